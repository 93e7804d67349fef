// A dock pane: a place round the documents that hosts one form.
#pragma once

#include "host/DockStudio.h"
#include "host/qt/Layout.h"

#include <QDockWidget>
#include <QMainWindow>
#include <functional>

class QtPane : public DockPane {
public:
    // `shown` is told when the pane is shown or closed, by whomever.
    QtPane(const LayoutPane& record, QMainWindow& window, std::function<void(bool)> shown);
    ~QtPane() override;

    bool Visible() const override;
    bool AutoHidden() const override { return false; }
    void Show() override;
    void Hide() override;

    void Replace(const LayoutPane& record);
    void Attach(Form& form, const std::string& caption, const std::string& icon);
    const std::string& Name() const { return record_.name; }
    LayoutPane Record() const;

private:
    LayoutPane record_;
    QMainWindow& window_;
    QDockWidget* dock_;
};
