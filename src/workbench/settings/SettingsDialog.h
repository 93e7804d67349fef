// What the dialogs of settings share: pages at the left, a search, and the buttons OK, Cancel and Apply.
#pragma once

#include "workbench/settings/OptionPage.h"

#include <QDialog>
#include <QListWidget>
#include <QStackedWidget>

class SettingsDialog : public QDialog {
public:
    void accept() override;

protected:
    // `pageKey`: where section Options keeps the number of the page that was open last. `module`: under which
    // failures are reported.
    SettingsDialog(const QString& title, const char* pageKey, const char* module, QWidget* parent);

    OptionPage& AddPage(const QString& caption);
    // A page of another kind.
    void AddPage(const QString& caption, QWidget* page);
    // Fills the controls from the options and opens the page that was open last. After the last page.
    void OpenLastPage();
    // Makes what the controls show the settings. A failure is reported, and the dialog stays open.
    virtual void ApplyChanges() = 0;

    void keyPressEvent(QKeyEvent* event) override;
    void done(int result) override;

    OptionControls controls_;

private:
    bool Apply();
    void Search(const QString& words);
    void ShowPage(int page);
    void FocusFound();

    const char* pageKey_;
    const char* module_;
    QLineEdit* search_;
    QListWidget* list_;
    QStackedWidget* pages_;
    std::vector<OptionPage*> optionPages_; // null for a page of another kind
};
