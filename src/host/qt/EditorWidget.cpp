// The edit control as this program uses it.
#include "host/qt/EditorWidget.h"

#include "host/qt/EditorAccessibility.h"
#include "host/qt/NotificationCodes.h"
#include "host/qt/QtText.h"

#include <QApplication>
#include <QChildEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMimeData>

namespace {

constexpr int Utf8CodePage = 65001;

std::vector<std::string> LocalFiles(const QMimeData* dropped) {
    std::vector<std::string> paths;
    for (const QUrl& url : dropped->urls())
        if (url.isLocalFile()) paths.push_back(PathBytes(url.toLocalFile()));
    return paths;
}

}

EditorWidget::EditorWidget(QWidget* parent)
    : QsciScintillaBase(parent), changes_(*this, [this](const SciNotification& notification) {
          if (events_) events_->OnNotify(notification);
      }) {
    // Behind the library's own registration, which its first view makes, and in front of all that asks for
    // this view's object.
    InstallEditorAccessibility();
    setAccessibleName(tr("Source text"));
    setFrameShape(QFrame::NoFrame);
    SendScintilla(SCI_SETCODEPAGE, 0UL);
    SendScintilla(SCI_USEPOPUP, 0UL);
    // Painted straight to the screen: a buffer of its own would be in pixels of the wrong size where the
    // display is scaled.
    SendScintilla(SCI_SETBUFFEREDDRAW, 0UL);
    // What was measured of the lines on the screen is kept: a key changes one of them, and all are painted.
    SendScintilla(SCI_SETLAYOUTCACHE, SC_CACHE_PAGE);
    ConnectNotifications();
}

bool EditorWidget::IsUtf8() const { return SendScintilla(SCI_GETCODEPAGE) == Utf8CodePage; }

void EditorWidget::Notify(const SciNotification& notification) { changes_.Take(notification); }

QByteArray EditorWidget::InDocument(const QString& text) const {
    return IsUtf8() ? text.toUtf8() : text.toLatin1();
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
    std::string single;
    // The library writes "?" for what its narrower code page lacks.
    if (!IsUtf8() && source->hasText() && FromUtf8ToSingleBytes(Typed(source->text()), single))
        bytes = QByteArray::fromStdString(single);
    // The line ends that the library would make of the pasted ones.
    bytes.replace("\r\n", "\n").replace('\r', '\n');
    if (SendScintilla(SCI_GETEOLMODE) == SC_EOL_CRLF) bytes.replace("\n", "\r\n");
    changes_.Insert(bytes);
    return bytes;
}

QMimeData* EditorWidget::toMimeData(const QByteArray& text, bool rectangular) const {
    QMimeData* copied = QsciScintillaBase::toMimeData(text, rectangular);
    if (!IsUtf8()) copied->setText(Shown(text.toStdString()));
    return copied;
}

void EditorWidget::contextMenuEvent(QContextMenuEvent* event) { event->ignore(); }

void EditorWidget::dragEnterEvent(QDragEnterEvent* event) {
    // What it could not take must not leave a caret where it passed by.
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
    if (!event->mimeData()->hasUrls()) return QsciScintillaBase::dropEvent(event);
    event->acceptProposedAction();
    const auto paths = LocalFiles(event->mimeData());
    if (events_ && !paths.empty()) events_->OnDropFiles(paths);
}

void EditorWidget::paintEvent(QPaintEvent* event) {
    painting_ = true;
    QsciScintillaBase::paintEvent(event);
    painting_ = false;
}

void EditorWidget::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    // A letter with Alt is a menu's key that no menu has; it is not typing.
    const bool menuKey = event->modifiers() & Qt::AltModifier && !(event->modifiers() & Qt::ControlModifier);
    if (menuKey && !text.isEmpty() && text.front().isPrint()) return event->ignore();
    const bool beyondLatin1 =
        std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() > 0xFF; });
    if (IsUtf8() || !beyondLatin1) {
        const ChangeEvents::Inserting typed(changes_, InDocument(text));
        return QsciScintillaBase::keyPressEvent(event);
    }
    std::string bytes;
    // A question mark in place of what was typed would be a silent loss.
    if (!FromUtf8ToSingleBytes(Typed(text), bytes)) return QApplication::beep();
    {
        const ChangeEvents::Inserting typed(changes_, QByteArray::fromStdString(bytes));
        SendScintilla(SCI_REPLACESEL, bytes.c_str());
    }
    for (const char c : bytes) Notify({.code = CharAdded, .ch = static_cast<unsigned char>(c)});
}

void EditorWidget::inputMethodEvent(QInputMethodEvent* event) {
    const ChangeEvents::Inserting typed(changes_, InDocument(event->commitString()));
    QsciScintillaBase::inputMethodEvent(event);
}

#include "moc_EditorWidget.cpp"
