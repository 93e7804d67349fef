// The edit control as this program uses it: its signals become notifications, text in a single-byte code
// page is Windows-1252, and dropped files are told instead of inserted.
#pragma once

#include "host/EditorView.h"
#include "host/qt/ChangeEvents.h"
#include "host/qt/TextTeller.h"

#include <Qsci/qsciscintillabase.h>

class EditorWidget : public QsciScintillaBase {
    Q_OBJECT

public:
    explicit EditorWidget(QWidget* parent = nullptr);

    void SetEvents(EditorViewEvents* events) { events_ = events; }
    bool IsUtf8() const;
    // The last key moved in a completion list, which is still open.
    bool MovedInList() const { return movedInList_ && SendScintilla(SCI_AUTOCACTIVE); }

    // Inserts at the caret, as if it were typed.
    void InsertTyped(const QString& text);
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

    bool TakesCharacter(const QString& character, bool composing) const;
    QByteArray InDocument(const QString& text) const;

    EditorViewEvents* events_ = nullptr;
    bool painting_ = false;
    bool movedInList_ = false;
    TextTeller teller_{*this};
    mutable ChangeEvents changes_;
};
