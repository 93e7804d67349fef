// The edit control as this program uses it: its signals become notifications, text in a single-byte code
// page is Windows-1252, and dropped files are told instead of inserted.
#pragma once

#include "host/EditorView.h"
#include "host/qt/ChangeEvents.h"

#include <Qsci/qsciscintillabase.h>

class EditorWidget : public QsciScintillaBase {
    Q_OBJECT

public:
    explicit EditorWidget(QWidget* parent = nullptr);

    void SetEvents(EditorViewEvents* events) { events_ = events; }
    bool IsUtf8() const;

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

    QByteArray InDocument(const QString& text) const;

    EditorViewEvents* events_ = nullptr;
    bool painting_ = false;
    mutable ChangeEvents changes_;
};
