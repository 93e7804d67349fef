// The actions of the find dialog. Its controls are made in frmFind_form.cpp.
#include "workbench/find/frmFind.h"

#include "documents/ClsMRU.h"
#include "editor/SciOptions.h"
#include "engine/WaitCursor.h"
#include "host/Dialogs.h"
#include "host/ErrorLog.h"
#include "host/Host.h"
#include "host/Text.h"
#include "sci/Mod_Sci.h"
#include "workbench/parts/MainWindow.h"
#include "workbench/parts/Shown.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalBlocker>

namespace {

constexpr int LongestSelection = 300; // characters; a longer selection is no search text

QPointer<frmFind> instance;

std::string Text(const QComboBox* box) { return box->currentText().toStdString(); }

void Fill(QComboBox* box, const ClsMRU& list) {
    const QSignalBlocker quiet(box);
    const QString text = box->currentText();
    box->clear();
    for (const std::string& item : list.Items()) box->addItem(Shown(item));
    box->setEditText(text);
}

std::string WordAtCaret() {
    const auto caret = Mod_Sci::GetCurrentPos();
    return ToUtf8(
        Mod_Sci::GetTextRange(Mod_Sci::WordStartPosition(caret, 1), Mod_Sci::WordEndPosition(caret, 1)));
}

// Returns the selection if it can be a search text, else the word at the caret.
std::string TextAtCaret() {
    if (!DocumentActive()) return {};
    const auto length = Mod_Sci::GetSelectionEnd() - Mod_Sci::GetSelectionStart();
    if (length == 0) return WordAtCaret();
    if (length >= LongestSelection) return {};
    const std::string text = ToUtf8(Mod_Sci::GetSelText());
    return text.find_first_of("\r\n") == std::string::npos ? text : std::string();
}

void Tell(const char* title, int count, const char* what) {
    gHost.dialogs->Show({.text = "The specified region has been searched.\r\n" + std::to_string(count) + what,
                         .icon = MessageIcon::Information,
                         .title = title});
}

}

frmFind& frmFind::Instance() {
    if (!instance) instance = new frmFind(MainWindow());
    return *instance;
}

void frmFind::Unload() {
    if (!instance) return;
    instance->SaveOptions();
    delete instance;
}

void frmFind::StartFind(bool replaceMode) {
    Guarded("StartFind", "frmFind", [&] {
        std::string text = TextAtCaret();
        if (text.empty() && MRUFind.Count() > 0) text = MRUFind.IndexItem(1);
        Fill(cboFind, MRUFind);
        cboFind->setEditText(Shown(text));
        Enable();
        if (replaceMode) Expand(true);
        if (!isVisible()) Place();
        show();
        raise();
        activateWindow();
        cboFind->setFocus();
        cboFind->lineEdit()->selectAll();
    });
}

FindOptions frmFind::Options() const {
    FindOptions options;
    options.text = Text(cboFind);
    const auto add = [&](const QCheckBox* box, int flag) {
        if (box->isEnabled() && box->isChecked()) options.flags |= flag;
    };
    add(chkMatchCase, SCFIND_MATCHCASE);
    add(chkWholeWord, SCFIND_WHOLEWORD);
    add(chkWordStart, SCFIND_WORDSTART);
    add(chkRegExp, SCFIND_REGEXP);
    options.fromTop = optStartAt->checkedId() == 0;
    options.area = static_cast<SearchIn>(optSearchIn->checkedId());
    return options;
}

bool frmFind::FindNext(bool interactive) {
    return Guarded("FindNext", "frmFind", false, [&] { return Search(interactive, &FindRun::FindNext); });
}

bool frmFind::FindPrevious(bool interactive) {
    return Guarded("FindPrevious", "frmFind", false,
                   [&] { return Search(interactive, &FindRun::FindPrevious); });
}

bool frmFind::Search(bool interactive, bool (FindRun::*search)(const FindOptions&, bool)) {
    if (!DocumentActive()) return false;
    if (Text(cboFind).empty()) {
        StartFind(false);
        return false;
    }
    Remember();
    const bool found = (run_.*search)(Options(), interactive);
    ShowFound(found, interactive);
    return found;
}

// Moves the texts in the boxes to the top of their lists and stores the lists.
void frmFind::Remember() {
    MRUFind.Add(Text(cboFind));
    MRUFind.Save();
    Fill(cboFind, MRUFind);
}

void frmFind::cmdReplace_Click() {
    Guarded("cmdReplace_Click", "frmFind", [this] {
        if (!expanded_) return Expand(true);
        if (!DocumentActive() || Text(cboFind).empty()) return;
        Remember();
        const std::string replacement = Text(cboReplace);
        const bool found = run_.Replace(Options(), replacement);
        MRUReplace.Add(replacement);
        MRUReplace.Save();
        Fill(cboReplace, MRUReplace);
        ShowFound(found, true);
    });
}

void frmFind::cmdReplaceAll_Click() {
    Guarded("cmdReplaceAll_Click", "frmFind", [this] {
        if (!DocumentActive() || Text(cboFind).empty()) return;
        Remember();
        const std::string replacement = Text(cboReplace);
        const int ReplaceCount = run_.ReplaceAll(Options(), replacement);
        ShowRun();
        lblStatus->setText(tr("%1 replaced").arg(ReplaceCount));
        Tell("Zolto - Replace All", ReplaceCount, " replacements were made");
        MRUReplace.Add(replacement);
        MRUReplace.Save();
        Fill(cboReplace, MRUReplace);
    });
}

void frmFind::cmdMarkAll_Click() {
    Guarded("cmdMarkAll_Click", "frmFind", [this] {
        if (!DocumentActive() || Text(cboFind).empty()) return;
        Remember();
        int MarkCount = 0;
        {
            const WaitCursor wait;
            MarkCount = run_.Count(Options());
        }
        ShowRun();
        lblStatus->setText(tr("%1 found").arg(MarkCount));
        Tell("Zolto - Find & Mark All", MarkCount, " marks were added ");
    });
}

void frmFind::cmdCancel_Click() {
    Guarded("cmdCancel_Click", "frmFind", [this] {
        Expand(false);
        hide();
        if (DocumentActive()) ActiveForm()->View->GrabFocus();
    });
}

void frmFind::InsertWordUnderCursor() {
    Guarded("cmdInsertWordUnderCursor_Click", "frmFind", [this] {
        if (DocumentActive()) cboFind->setEditText(Shown(WordAtCaret()));
        cboFind->setFocus();
    });
}

void frmFind::NewRun() {
    run_.Reset();
    ShowRun();
}

void frmFind::ShowRun() {
    cmdFind->setText(run_.Running() ? tr("&Find Next") : tr("&Find"));
    lblStatus->clear();
}

void frmFind::ShowFound(bool found, bool interactive) {
    ShowRun();
    if (found) {
        const auto start = Mod_Sci::GetSelectionStart();
        lblStatus->setText(
            tr("Line %1 of %2").arg(Mod_Sci::LineFromPosition(start) + 1).arg(Shown(ActiveForm()->Filename)));
        if (interactive) RepositionDialog(start, Mod_Sci::GetSelectionEnd());
    } else {
        lblStatus->setText(tr("No more found"));
    }
    if (isVisible()) activateWindow();
}

void frmFind::keyPressEvent(QKeyEvent* event) {
    const bool shift = event->modifiers() & Qt::ShiftModifier;
    const bool control = event->modifiers() & Qt::ControlModifier;
    if (event->key() == Qt::Key_F3)
        shift ? FindPrevious(true) : FindNext(true);
    else if (control && event->key() == Qt::Key_F)
        cboFind->setFocus();
    else if (control && event->key() == Qt::Key_H)
        Expand(true);
    else
        QDialog::keyPressEvent(event);
}
