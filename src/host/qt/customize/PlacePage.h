// The page on which the entries of a bar or menu are changed. Commands are dropped here from the list, and
// the entries are put in order by dragging or by the buttons.
#pragma once

#include "host/qt/customize/CustomizeTarget.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <functional>

// The entries in order. A drop is reported to the owner, which fills the list again.
class EntryList : public QListWidget {
    Q_OBJECT

public:
    explicit EntryList(QWidget* parent = nullptr);

signals:
    // `row` is the entry to insert before.
    void CommandDropped(const QString& command, int row);
    void EntryMoved(int from, int row);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    int RowAt(const QPoint& at) const;
};

class PlacePage : public QWidget {
    Q_OBJECT

public:
    // `selected` returns the command selected in the command list, null for none.
    PlacePage(CustomizeTarget& target, std::function<QtCommand*()> selected, QWidget* parent);

    // Fills the page anew after places or entries changed from outside.
    void Reload();
    void SelectionChanged();

private:
    void Connect();
    std::string Place() const;
    void ShowEntries(int row);
    void ShowState();
    void Insert(const std::string& command, int row);
    void Move(int from, int to);
    void Remove();
    void SetGroup(bool begins);
    void NewBar();
    void DeleteBar();

    CustomizeTarget& target_;
    std::function<QtCommand*()> selected_;
    QComboBox* places_;
    EntryList* entries_;
    QPushButton* add_;
    QPushButton* remove_;
    QPushButton* up_;
    QPushButton* down_;
    QPushButton* newBar_;
    QPushButton* deleteBar_;
    QCheckBox* group_;
};
