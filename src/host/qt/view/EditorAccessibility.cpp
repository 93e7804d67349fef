// The accessible text of a view. It reads single lines and words, never the whole text.
#include "host/qt/view/EditorAccessibility.h"

#include "host/qt/view/EditorWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QTextBoundaryFinder>
#include <algorithm>

namespace {

using Base = QsciScintillaBase;

class EditorText : public QAccessibleWidget,
                   public QAccessibleTextInterface,
                   public QAccessibleEditableTextInterface {
public:
    explicit EditorText(EditorWidget& view)
        : QAccessibleWidget(&view, QAccessible::EditableText), view_(view) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface)
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.selectableText = state.multiLine = state.editable = true;
        return state;
    }
    // The scroll bars and the text's surface say nothing of their own.
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    using QAccessibleWidget::text;
    QString text(int start, int end) const override { return offsets().Text(At(start), At(end)); }
    int characterCount() const override { return offsets().Count(); }
    int cursorPosition() const override { return offsets().OffsetOf(Ask(Base::SCI_GETCURRENTPOS)); }
    void setCursorPosition(int offset) override { view_.SendScintilla(Base::SCI_GOTOPOS, At(offset)); }

    int selectionCount() const override { return Ask(Base::SCI_GETSELECTIONEMPTY) ? 0 : 1; }
    void selection(int index, int* start, int* end) const override {
        *start = *end = 0;
        if (index != 0 || selectionCount() == 0) return;
        *start = offsets().OffsetOf(Ask(Base::SCI_GETSELECTIONSTART));
        *end = offsets().OffsetOf(Ask(Base::SCI_GETSELECTIONEND));
    }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int) override { setCursorPosition(cursorPosition()); }
    void setSelection(int, int start, int end) override {
        view_.SendScintilla(Base::SCI_SETSEL, static_cast<unsigned long>(At(start)), At(end));
    }

    QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                         int* end) const override {
        return Piece(offset, 0, type, start, end);
    }
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                             int* end) const override {
        return Piece(offset, -1, type, start, end);
    }
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                            int* end) const override {
        return Piece(offset, 1, type, start, end);
    }

    QRect characterRect(int offset) const override {
        const long position = At(offset);
        const QPoint at = Place(position), next = Place(position + 1);
        const int width = next.y() == at.y() ? std::max(1, next.x() - at.x()) : 1;
        const auto height = static_cast<int>(view_.SendScintilla(Base::SCI_TEXTHEIGHT, 0UL));
        return {view_.viewport()->mapToGlobal(at), QSize(width, height)};
    }
    int offsetAtPoint(const QPoint& point) const override {
        const QPoint at = view_.viewport()->mapFromGlobal(point);
        const long position = view_.SendScintilla(Base::SCI_POSITIONFROMPOINTCLOSE,
                                                  static_cast<unsigned long>(at.x()), long{at.y()});
        return position < 0 ? -1 : offsets().OffsetOf(position);
    }
    void scrollToSubstring(int start, int end) override {
        view_.SendScintilla(Base::SCI_SCROLLRANGE, static_cast<unsigned long>(At(end)), At(start));
    }
    QString attributes(int offset, int* start, int* end) const override {
        *start = offset;
        *end = offset + 1;
        return {};
    }

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override {
        const QByteArray bytes = view_.ForDocument(text); // first, because offsets may change
        setSelection(0, start, end);
        view_.ReplaceSelection(bytes);
    }

private:
    TextOffsets& offsets() const { return view_.Teller().Offsets(); }
    long At(int offset) const { return offset < 0 ? Ask(Base::SCI_GETLENGTH) : offsets().PositionOf(offset); }
    long Ask(unsigned message) const { return view_.SendScintilla(message); }
    long Ask(unsigned message, long argument) const {
        return view_.SendScintilla(message, static_cast<unsigned long>(argument));
    }
    QPoint Place(long position) const {
        return {static_cast<int>(view_.SendScintilla(Base::SCI_POINTXFROMPOSITION, 0UL, position)),
                static_cast<int>(view_.SendScintilla(Base::SCI_POINTYFROMPOSITION, 0UL, position))};
    }
    QString Line(long line) const {
        return offsets().Text(Ask(Base::SCI_POSITIONFROMLINE, line),
                              Ask(Base::SCI_POSITIONFROMLINE, line + 1));
    }
    QString Piece(int offset, int step, QAccessible::TextBoundaryType type, int* start, int* end) const;

    EditorWidget& view_;
};

QTextBoundaryFinder::BoundaryType FinderOf(QAccessible::TextBoundaryType type) {
    if (type == QAccessible::CharBoundary) return QTextBoundaryFinder::Grapheme;
    return type == QAccessible::WordBoundary ? QTextBoundaryFinder::Word : QTextBoundaryFinder::Sentence;
}

// Returns the unit of text at an offset, or the one before or after it. Words and characters are searched in
// one line; the line's last unit is followed by the next line's first.
QString EditorText::Piece(int offset, int step, QAccessible::TextBoundaryType type, int* start,
                          int* end) const {
    const long position = At(offset);
    long line = Ask(Base::SCI_LINEFROMPOSITION, position);
    const long lines = Ask(Base::SCI_GETLINECOUNT);
    const auto whole = [&](long at) {
        *start = *end = -1;
        if (at < 0 || at >= lines) return QString();
        const QString text = Line(at);
        *start = offsets().OffsetOf(Ask(Base::SCI_POSITIONFROMLINE, at));
        *end = *start + static_cast<int>(text.size());
        return text;
    };
    if (type == QAccessible::NoBoundary) {
        *start = 0;
        *end = characterCount();
        return step == 0 ? text(0, *end) : QString();
    }
    if (type == QAccessible::LineBoundary || type == QAccessible::ParagraphBoundary)
        return whole(line + step);
    QString text = whole(line);
    const auto piece = [&](qsizetype from, qsizetype to) {
        const int lineStart = *start;
        *start = lineStart + static_cast<int>(from);
        *end = lineStart + static_cast<int>(to);
        return text.mid(from, to - from);
    };
    QTextBoundaryFinder finder(FinderOf(type), text);
    finder.setPosition(offset - *start);
    qsizetype from =
        finder.isAtBoundary() ? finder.position() : std::max<qsizetype>(0, finder.toPreviousBoundary());
    finder.setPosition(from);
    qsizetype to = finder.toNextBoundary();
    if (to < 0) to = text.size();
    if (step == 0) return piece(from, to);
    if (step < 0 && from > 0) {
        finder.setPosition(from);
        return piece(std::max<qsizetype>(0, finder.toPreviousBoundary()), from);
    }
    if (step > 0 && to < text.size()) {
        finder.setPosition(to);
        const qsizetype next = finder.toNextBoundary();
        return piece(to, next < 0 ? text.size() : next);
    }
    text = whole(line + step);
    if (text.isEmpty()) return {};
    QTextBoundaryFinder other(FinderOf(type), text);
    if (step > 0) return piece(0, other.toNextBoundary());
    other.toEnd();
    return piece(std::max<qsizetype>(0, other.toPreviousBoundary()), text.size());
}

QAccessibleInterface* MakeObject(const QString&, QObject* object) {
    auto* view = qobject_cast<EditorWidget*>(object);
    return view ? new EditorText(*view) : nullptr;
}

}

void InstallEditorAccessibility() {
    static bool installed = false;
    if (!installed) QAccessible::installFactory(MakeObject);
    installed = true;
}
