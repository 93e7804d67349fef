// While the user customises: takes over the pointer on the bars of the main window. Commands are dropped on
// them, moved about and pulled off; nothing that is clicked there runs.
#pragma once

#include "host/qt/customize/CustomizeTarget.h"

#include <QPoint>
#include <QPointer>
#include <QWidget>

class BarEditor : public QObject {
    Q_OBJECT

public:
    explicit BarEditor(CustomizeTarget& target);
    ~BarEditor() override;

signals:
    void EntriesChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The bar or menu under the pointer, and the index of the entry that the pointer is before.
    struct Spot {
        std::string place;
        int index = -1;
        QRect line; // where a dropped command would be inserted, in the bar
        QWidget* bar = nullptr;
    };

    std::string PlaceOf(QObject* watched, QWidget*& bar) const;
    Spot SpotAt(const std::string& place, QWidget* bar, const QPoint& at) const;
    int EntryAt(const std::string& place, QWidget* bar, const QPoint& at) const;
    bool Mouse(const std::string& place, QWidget* bar, QEvent& event);
    bool Drop(const std::string& place, QWidget* bar, QEvent& event);
    void DragEntry(const std::string& place, int index, QWidget* bar);
    void ShowMenu(const std::string& place, int index, const QPoint& global);
    void Insert(const Spot& spot, const std::string& command);
    QRect RectOf(QWidget* bar, const LayoutEntry& entry) const;

    CustomizeTarget& target_;
    QPointer<QWidget> line_; // shows where a dropped command would be inserted
    std::string fromPlace_;  // the place of the dragged entry; empty for an entry of the list
    bool dropped_ = false;
    QPoint press_;
};
