// Wires the floors together. Each request that a lower floor declares is filled here and nowhere else.
#include "app/wire_up.h"

#include "documents/DocumentCalls.h"
#include "documents/Mod_File.h"
#include "editor/EditorCalls.h"
#include "editor/Mod_SciFun_complete.h"
#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/EngineCalls.h"
#include "host/Desktop.h"
#include "host/DockStudio.h"
#include "host/Host.h"
#include "host/HostCalls.h"
#include "sci/Mod_Sci.h"
#include "toolchain/ToolchainCalls.h"
#include "workbench/dialogs/frmError.h"
#include "workbench/dialogs/frmSplash.h"
#include "workbench/explorer/frmMainList.h"
#include "workbench/find/frmFind.h"
#include "workbench/frame/frmMain.h"
#include "workbench/output/frmCompiling.h"
#include "workbench/output/frmOutput.h"
#include "workbench/parts/Shown.h"

namespace {

void WireEditor() {
    gEngineCalls.PuniLista = [] { frmMainList::Instance().PuniLista(); };
    gEngineCalls.Autocomplete = Mod_SciFun::Autocomplete;
    gEngineCalls.AutocompleteType = Mod_SciFun::AutocompleteType;
    gEngineCalls.AutocompleteLabel = Mod_SciFun::AutocompleteLabel;
    gEngineCalls.AutocompleteBackSlash = Mod_SciFun::AutocompleteBackSlash;
    gEngineCalls.DocumentChanged = [] {
        if (frmDoc* document = ActiveForm()) document->SetDirty(true);
    };
    gEditorCalls.SetPositionText = [](const std::string& text) { frmMain::Instance().SetPositionText(text); };
    gEditorCalls.SetFunctionText = [](const std::string& text) { frmMain::Instance().SetFunctionText(text); };
    gEditorCalls.SetTipText = [](const TipText& tip) { frmMain::Instance().SetTipText(tip); };
    gEditorCalls.SetNotice = [](const std::string& text) { frmMain::Instance().SetNotice(text); };
    gEditorCalls.UpdateSciCommandUI = [] { frmMain::Instance().UpdateSciCommandUI(); };
    gEditorCalls.OpenMember = Mod_File::OpenMemberOfActive;
    gEditorCalls.FilesDropped = Mod_File::FilesDropped;
}

void WireDocuments() {
    gDocumentCalls.UpdateCommandUI = [] { frmMain::Instance().UpdateCommandUI(); };
    gDocumentCalls.DocumentWindowActivated = [](DocumentWindow& window) {
        frmMain::Instance().DS_DocumentWindowActivate(window, false);
    };
    gDocumentCalls.UnloadFind = [] { frmFind::Unload(); };
    gDocumentCalls.RefreshCodeExplorer = [] { frmMainList::Instance().Refresh(); };
    gDocumentCalls.SplashStatus = [](const std::string& text) { frmSplash::SetStatus(text); };
    gDocumentCalls.CreateMainWindow = [] { frmMain::Instance().Form_Load(); };
    gDocumentCalls.ShowMainWindow = [] {
        frmSplash::Unload();
        gHost.dock->ShowWindow();
    };
    gDocumentCalls.StrictModeChecked = [] {
        const DockCommand* strict = gHost.dock->FindCommand("Strict Mode");
        return strict && strict->Checked();
    };
}

void WireToolchain() {
    gToolchainCalls.ClearOutput = [] { frmOutput::Instance().Clear(); };
    gToolchainCalls.AppendOutput = [](const std::string& line) { frmOutput::Instance().Append(line); };
    gToolchainCalls.ScrollOutputToEnd = [] { frmOutput::Instance().ScrollToEnd(); };
    gToolchainCalls.ShowCompiling = [](const std::string& label) {
        frmCompiling::Instance().Open(Shown(label));
    };
    gToolchainCalls.CloseCompiling = [] { frmCompiling::Instance().close(); };
    gToolchainCalls.SetCompilingValue = [](int value) { frmCompiling::Instance().SetValue(value); };
}

}

void WireUp() {
    gHostCalls.ShowErrorDialog = [] { frmError::ShowModal(); };
    gHostCalls.CountOpenFiles = [] { return static_cast<int>(gHost.dock->DocumentWindows().size()); };
    WireEditor();
    WireDocuments();
    WireToolchain();
}
