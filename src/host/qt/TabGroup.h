// One group of tabs in the document area.
#pragma once

#include <QTabWidget>

class TabGroup : public QTabWidget {
    Q_OBJECT

public:
    explicit TabGroup(QWidget* parent = nullptr);

signals:
    void CloseAsked(QWidget* page);
    void TabDoubleClicked(QWidget* page);
    void TabContextAsked(QWidget* page, const QPoint& global);

protected:
    void tabInserted(int index) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};
