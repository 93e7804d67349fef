// The dialog that finds, replaces and counts. It stays open beside the text, and is hidden instead of closed.
#pragma once

#include "editor/FindRun.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

class frmFind : public QDialog {
public:
    // The only find dialog, created on first use.
    static frmFind& Instance();
    // Stores the options and deletes the dialog, if there is one.
    static void Unload();

    // Fills the dialog from the text at the caret and shows it. `replaceMode` also shows the replace
    // controls.
    void StartFind(bool replaceMode);
    // Selects the next or previous hit and returns whether there is one. Without a search text the dialog is
    // shown. `interactive` allows questions and messages.
    bool FindNext(bool interactive);
    bool FindPrevious(bool interactive);

    void reject() override { cmdCancel_Click(); }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit frmFind(QWidget* parent);
    ~frmFind() override;

    void MakeControls();
    void Arrange();
    QGridLayout* TextFields();
    QHBoxLayout* OptionGroups();
    QVBoxLayout* ButtonColumn();
    void SetTabStops();
    void Connect();
    QGroupBox* Group(const char* name, const QString& title, QButtonGroup* buttons,
                     const QStringList& captions);
    void LoadOptions();
    void SaveOptions() const;
    void Place();

    void cmdReplace_Click();
    void cmdReplaceAll_Click();
    void cmdMarkAll_Click();
    void cmdCancel_Click();
    void InsertWordUnderCursor();

    bool Search(bool interactive, bool (FindRun::*search)(const FindOptions&, bool));
    FindOptions Options() const;
    void Remember();
    void Expand(bool expanded);
    void Enable();
    static void StopAtChosen(const QButtonGroup& group);
    void NewRun();
    void ShowRun();
    void ShowFound(bool found, bool interactive);
    void RepositionDialog(std::intptr_t start, std::intptr_t end);

    FindRun run_;
    bool expanded_ = false;
    QComboBox* cboFind;
    QComboBox* cboReplace;
    QLabel* lblFind;
    QLabel* lblReplace;
    QLabel* lblStatus;
    QPushButton* cmdFind;
    QPushButton* cmdFindPrev;
    QPushButton* cmdInsertWordUnderCursor;
    QPushButton* cmdMarkAll;
    QPushButton* cmdReplace;
    QPushButton* cmdReplaceAll;
    QPushButton* cmdCancel;
    QCheckBox* chkMatchCase;
    QCheckBox* chkWholeWord;
    QCheckBox* chkWordStart;
    QCheckBox* chkRegExp;
    QButtonGroup* optStartAt;
    QButtonGroup* optSearchIn;
    QGroupBox* startAt_;
    QGroupBox* searchIn_;
};
