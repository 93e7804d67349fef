// The edit control as this program uses it: signals become notifications, text in a single-byte code page is
// Windows-1252, and dropped files are reported instead of inserted.
#pragma once

#include "host/EditorView.h"
#include "host/qt/view/ChangeEvents.h"
#include "host/qt/view/TextTeller.h"

#include <Qsci/qsciscintillabase.h>

#include <optional>

class QLabel;

class EditorWidget : public QsciScintillaBase {
    Q_OBJECT

public:
    explicit EditorWidget(QWidget* parent = nullptr);

    void SetEvents(EditorViewEvents* events) { events_ = events; }
    bool IsUtf8() const;
    // The last key moved in a completion list, which is still open.
    bool MovedInList() const { return movedInList_ && SendScintilla(SCI_AUTOCACTIVE); }

    // Returns a text from outside in the document's bytes and line ends. A character without a byte is
    // offered to the owner first and becomes a question mark if the owner refuses it.
    QByteArray ForDocument(const QString& text) const;
    // Puts bytes of the document in place of the selection, in one step of the history.
    void ReplaceSelection(const QByteArray& bytes);
    TextTeller& Teller() { return teller_; }

protected:
    void childEvent(QChildEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    QByteArray fromMimeData(const QMimeData* source, bool& rectangular) const override;
    QMimeData* toMimeData(const QByteArray& text, bool rectangular) const override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void ConnectNotifications();
    void Notify(const SciNotification& notification);
    bool CaretOnScreen() const;

    bool TakesCharacter(const QString& character) const;
    void Offer(const QString& text) const;
    QByteArray InDocument(const QString& text) const;
    void InsertTyped(const QString& text);
    void ShowComposed(const QString& text);

    EditorViewEvents* events_ = nullptr;
    bool painting_ = false;
    bool movedInList_ = false;
    std::optional<bool> historyUtf8_; // the code page that an undo or a redo came to
    QLabel* composed_ = nullptr;      // what is composed and has no bytes in the document
    TextTeller teller_{*this};
    mutable ChangeEvents changes_;
};
