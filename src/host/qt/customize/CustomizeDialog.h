// The window in which the user changes keys, bars and menus. It stays open beside the main window, whose bars
// can be changed by hand as long.
#pragma once

#include "host/qt/customize/BarEditor.h"
#include "host/qt/customize/CommandList.h"
#include "host/qt/customize/KeyPage.h"
#include "host/qt/customize/PlacePage.h"

#include <QDialog>
#include <QPushButton>

class CustomizeDialog : public QDialog {
    Q_OBJECT

public:
    CustomizeDialog(CustomizeTarget& target, QWidget* parent);

private:
    void Connect(const QPushButton& revert);

    CustomizeTarget& target_;
    BarEditor editor_;
    CommandList* commands_;
    KeyPage* keys_;
    PlacePage* places_;
};
