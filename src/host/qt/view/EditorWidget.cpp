// The edit control as this program uses it.
#include "host/qt/view/EditorWidget.h"

#include "host/qt/system/QtText.h"
#include "host/qt/view/HighBytes.h"
#include "host/qt/view/NotificationCodes.h"

#include <QChildEvent>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QScopedValueRollback>

namespace {

constexpr int Utf8CodePage = 65001;

std::vector<std::string> LocalFiles(const QMimeData* dropped) {
    std::vector<std::string> paths;
    for (const QUrl& url : dropped->urls())
        if (url.isLocalFile()) paths.push_back(PathBytes(url.toLocalFile()));
    return paths;
}

// The keys that the completion list takes for itself.
bool MovesInList(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown ||
           key == Qt::Key_Home || key == Qt::Key_End;
}

// With accents joined to their letters as far as there are such letters.
QString Composed(const QString& text) { return text.normalized(QString::NormalizationForm_C); }

// One string for each character.
QStringList Characters(const QString& text) {
    QStringList characters;
    for (const QChar unit : Composed(text)) {
        if (unit.isLowSurrogate() && !characters.isEmpty())
            characters.back() += unit;
        else
            characters += unit;
    }
    return characters;
}

}

EditorWidget::EditorWidget(QWidget* parent)
    : QsciScintillaBase(parent), changes_(
                                     *this,
                                     [this](const SciNotification& notification) {
                                         teller_.Hear(notification);
                                         if (events_) events_->OnNotify(notification);
                                     },
                                     [this] { teller_.Unheard(); },
                                     [this] {
                                         const auto utf8 = std::exchange(historyUtf8_, std::nullopt);
                                         if (utf8 && *utf8 != IsUtf8() && events_)
                                             events_->OnHistoryCodePage(*utf8);
                                     },
                                     [this] { return CaretOnScreen(); }) {
    setFrameShape(QFrame::NoFrame);
    SendScintilla(SCI_SETCODEPAGE, 0UL);
    SendScintilla(SCI_USEPOPUP, 0UL);
    // Painted straight to the screen: a buffer of its own would be in pixels of the wrong size where the
    // display is scaled.
    SendScintilla(SCI_SETBUFFEREDDRAW, 0UL);
    // What was measured of the lines on the screen is kept: a key changes one of them, and all are painted.
    SendScintilla(SCI_SETLAYOUTCACHE, SC_CACHE_PAGE);
    // The horizontal bar is there when a line seen so far is wider than the view, and reaches to its end.
    SendScintilla(SCI_SETSCROLLWIDTHTRACKING, 1UL);
    SendScintilla(SCI_SETSCROLLWIDTH, 1UL);
    ConnectNotifications();
}

bool EditorWidget::IsUtf8() const { return SendScintilla(SCI_GETCODEPAGE) == Utf8CodePage; }

// The library asks the screen under the caret for the maximum size of a list and crashes without a screen.
bool EditorWidget::CaretOnScreen() const {
    const auto caret = SendScintilla(SCI_GETCURRENTPOS);
    const auto x = SendScintilla(SCI_POINTXFROMPOSITION, 0L, caret);
    const auto y = SendScintilla(SCI_POINTYFROMPOSITION, 0L, caret);
    const QPoint point(static_cast<int>(x), static_cast<int>(y));
    return QGuiApplication::screenAt(viewport()->mapToGlobal(point)) &&
           QGuiApplication::screenAt(mapToGlobal(point));
}

void EditorWidget::Notify(const SciNotification& notification) { changes_.Deliver(notification); }

// The library would silently insert "?" for a character without a byte in the code page, so the owner is
// asked first.
bool EditorWidget::TakesCharacter(const QString& character) const {
    std::string byte;
    if (IsUtf8() || FromUtf8ToSingleBytes(Typed(character), byte)) return true;
    return events_ && events_->OnBeyondCodePage(Typed(character));
}

void EditorWidget::Offer(const QString& text) const {
    std::string bytes;
    if (IsUtf8() || FromUtf8ToSingleBytes(Typed(Composed(text)), bytes)) return;
    for (const QString& character : Characters(text))
        if (!TakesCharacter(character)) break;
}

// What the document lacks a byte for becomes a question mark.
QByteArray EditorWidget::InDocument(const QString& text) const {
    if (IsUtf8()) return text.toUtf8();
    std::string whole;
    if (FromUtf8ToSingleBytes(Typed(Composed(text)), whole)) return QByteArray::fromStdString(whole);
    QByteArray bytes;
    for (const QString& character : Characters(text)) {
        std::string byte = "?";
        FromUtf8ToSingleBytes(Typed(character), byte);
        bytes += QByteArray::fromStdString(byte);
    }
    return bytes;
}

void EditorWidget::ConnectNotifications() {
    using Base = QsciScintillaBase;
    connect(this, &Base::SCN_STYLENEEDED, this, [this](int position) {
        Notify({.code = StyleNeeded, .position = position, .inPaint = painting_});
    });
    connect(this, &Base::SCN_CHARADDED, this, [this](int ch) { Notify({.code = CharAdded, .ch = ch}); });
    connect(this, &Base::SCN_SAVEPOINTREACHED, this, [this] { Notify({.code = SavePointReached}); });
    connect(this, &Base::SCN_SAVEPOINTLEFT, this, [this] { Notify({.code = SavePointLeft}); });
    connect(this, &Base::SCN_UPDATEUI, this,
            [this](int updated) { Notify({.code = UpdateUi, .updated = updated}); });
    connect(this, &Base::SCN_PAINTED, this, [this] { Notify({.code = Painted}); });
    connect(this, &Base::SCN_DOUBLECLICK, this, [this](int position, int line, int modifiers) {
        Notify({.code = DoubleClick, .position = position, .modifiers = modifiers, .line = line});
    });
    connect(this, &Base::SCN_MARGINCLICK, this, [this](int position, int modifiers, int margin) {
        Notify({.code = MarginClick, .position = position, .modifiers = modifiers, .margin = margin});
    });
    connect(this, &Base::SCN_NEEDSHOWN, this, [this](int position, int length) {
        Notify({.code = NeedShown, .position = position, .length = length});
    });
    connect(this, qOverload<const char*, int, int, int>(&Base::SCN_AUTOCSELECTION), this,
            [this](const char* text, int position, int ch, int) {
                Notify({.code = AutoCSelection, .position = position, .ch = ch, .text = text});
            });
    connect(this, &Base::SCN_AUTOCCANCELLED, this, [this] { Notify({.code = AutoCCancelled}); });
    connect(this, &Base::SCN_MODIFIED, this,
            [this](int position, int type, const char* text, int length, int linesAdded, int line,
                   int foldNow, int foldBefore, int, int) {
                if (type & SC_MOD_CONTAINER) {
                    historyUtf8_ = (type & SC_PERFORMED_REDO) != 0;
                    return;
                }
                Notify({.code = Modified,
                        .position = position,
                        .modificationType = type,
                        .text = text,
                        .length = length,
                        .linesAdded = linesAdded,
                        .line = line,
                        .foldLevelNow = foldNow,
                        .foldLevelPrev = foldBefore});
            });
    connect(this, &Base::SCN_FOCUSIN, this, [this] {
        if (events_) events_->OnSetFocus();
    });
    connect(this, &Base::SCN_FOCUSOUT, this, [this] {
        if (events_) events_->OnKillFocus();
    });
}

// The completion list is a child that the library makes anew each time; it takes the colours of the text.
void EditorWidget::childEvent(QChildEvent* event) {
    QsciScintillaBase::childEvent(event);
    if (event->type() != QEvent::ChildAdded || !event->child()->isWidgetType()) return;
    const auto colour = [this](unsigned message, unsigned long style) {
        const auto bgr = static_cast<int>(SendScintilla(message, style));
        return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF);
    };
    QPalette colours = palette();
    colours.setColor(QPalette::Base, colour(SCI_STYLEGETBACK, STYLE_DEFAULT));
    colours.setColor(QPalette::Text, colour(SCI_STYLEGETFORE, 0));
    static_cast<QWidget*>(event->child())->setPalette(colours);
}

bool EditorWidget::canInsertFromMimeData(const QMimeData* source) const { return source->hasText(); }

QByteArray EditorWidget::fromMimeData(const QMimeData* source, bool& rectangular) const {
    QByteArray bytes = QsciScintillaBase::fromMimeData(source, rectangular);
    // The library knows Latin-1 alone.
    bytes = ForDocument(source->hasText() ? source->text() : QString::fromLatin1(bytes));
    changes_.Insert(bytes);
    return bytes;
}

QByteArray EditorWidget::ForDocument(const QString& text) const {
    Offer(text);
    QByteArray bytes = InDocument(text);
    bytes.replace("\r\n", "\n").replace('\r', '\n');
    if (SendScintilla(SCI_GETEOLMODE) == SC_EOL_CRLF) bytes.replace("\n", "\r\n");
    return bytes;
}

QMimeData* EditorWidget::toMimeData(const QByteArray& text, bool rectangular) const {
    QMimeData* copied = QsciScintillaBase::toMimeData(text, rectangular);
    if (!IsUtf8()) copied->setText(QString::fromStdString(SingleBytesToUtf8(text.toStdString())));
    return copied;
}

void EditorWidget::contextMenuEvent(QContextMenuEvent* event) { event->ignore(); }

void EditorWidget::dragEnterEvent(QDragEnterEvent* event) {
    // A drag that is refused must leave no drop caret behind.
    if (!event->mimeData()->hasUrls() && !canInsertFromMimeData(event->mimeData())) return event->ignore();
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
    else
        QsciScintillaBase::dragEnterEvent(event);
}

void EditorWidget::dragMoveEvent(QDragMoveEvent* event) {
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
    else
        QsciScintillaBase::dragMoveEvent(event);
}

void EditorWidget::dropEvent(QDropEvent* event) {
    if (!event->mimeData()->hasUrls()) {
        // The text may grow before the drop position.
        Offer(event->mimeData()->text());
        QDragMoveEvent there(event->position().toPoint(), event->possibleActions(), event->mimeData(),
                             event->buttons(), event->modifiers());
        QsciScintillaBase::dragMoveEvent(&there);
        return QsciScintillaBase::dropEvent(event);
    }
    event->acceptProposedAction();
    const auto paths = LocalFiles(event->mimeData());
    if (events_ && !paths.empty()) events_->OnDropFiles(paths);
}

void EditorWidget::paintEvent(QPaintEvent* event) {
    {
        const QScopedValueRollback<bool> guard(painting_, true);
        QsciScintillaBase::paintEvent(event);
    }
    if (!IsUtf8()) PaintHighBytes(*this);
}

void EditorWidget::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    const bool modifier = event->key() >= Qt::Key_Shift && event->key() <= Qt::Key_Alt;
    if (!modifier) movedInList_ = SendScintilla(SCI_AUTOCACTIVE) && MovesInList(event->key());
    // A letter with Alt is a menu's key that no menu has; it is not typing.
    const bool menuKey = event->modifiers() & Qt::AltModifier && !(event->modifiers() & Qt::ControlModifier);
    if (menuKey && !text.isEmpty() && text.front().isPrint()) return event->ignore();
    const bool beyondLatin1 =
        std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0xFF; });
    if (!IsUtf8() && beyondLatin1) return InsertTyped(text);
    const ChangeEvents::Inserting typed(changes_, InDocument(text));
    QsciScintillaBase::keyPressEvent(event);
}

void EditorWidget::ReplaceSelection(const QByteArray& bytes) {
    const ChangeEvents::Inserting text(changes_, bytes);
    SendScintilla(SCI_REPLACESEL, 0UL, bytes.constData());
}

// Character by character, as keys do it: undo steps and what follows a typed character hang on that. The
// library takes the bytes of a single-byte text for Latin-1.
void EditorWidget::InsertTyped(const QString& text) {
    QString lines = text;
    lines.replace("\r\n", "\n").replace('\r', '\n');
    for (const QString& character : Characters(lines)) {
        if (!TakesCharacter(character)) continue;
        const QByteArray bytes = ForDocument(character);
        if (character == "\n") {
            ReplaceSelection(bytes);
            continue;
        }
        const ChangeEvents::Inserting typed(changes_, bytes);
        QInputMethodEvent one;
        one.setCommitString(IsUtf8() ? character : QString::fromLatin1(bytes));
        QsciScintillaBase::inputMethodEvent(&one);
    }
}

// A composition may be cancelled and must change nothing then, so text without bytes in the document is
// composed beside it.
void EditorWidget::ShowComposed(const QString& text) {
    if (!composed_) {
        composed_ = new QLabel(viewport());
        composed_->setAutoFillBackground(true);
    }
    QFont font = composed_->font();
    font.setUnderline(true);
    composed_->setFont(font);
    composed_->setText(text);
    composed_->adjustSize();
    composed_->move(inputMethodQuery(Qt::ImCursorRectangle).toRect().topLeft());
    composed_->setVisible(!text.isEmpty());
}

void EditorWidget::inputMethodEvent(QInputMethodEvent* event) {
    // Takes back what was being composed, because the document may change its code page now.
    QInputMethodEvent nothing;
    nothing.setCommitString({}, event->replacementStart(), event->replacementLength());
    QsciScintillaBase::inputMethodEvent(&nothing);
    InsertTyped(event->commitString());
    const QString composed = event->preeditString();
    std::string bytes;
    const bool fits = IsUtf8() || FromUtf8ToSingleBytes(Typed(Composed(composed)), bytes);
    if (composed_ || !fits) ShowComposed(fits ? QString() : composed);
    if (composed.isEmpty() || !fits) return;
    QInputMethodEvent composing(IsUtf8() ? composed : QString::fromLatin1(InDocument(composed)),
                                event->attributes());
    QsciScintillaBase::inputMethodEvent(&composing);
}

#include "moc_EditorWidget.cpp"
