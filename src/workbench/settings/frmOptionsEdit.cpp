#include "workbench/settings/frmOptionsEdit.h"

#include "documents/OptionTable.h"
#include "editor/EditorCalls.h"
#include "editor/Mod_SciFun_edit.h"
#include "editor/SciOptions.h"
#include "editor/frmDoc.h"
#include "engine/ClsProject.h"
#include "engine/OptionsEdit.h"
#include "sci/Mod_Sci.h"

namespace {

using namespace OptionsEdit;

// Enables what has a meaning only while a box is checked.
void Enables(QCheckBox* box, const std::vector<QWidget*>& widgets) {
    const auto follow = [box, widgets] {
        for (QWidget* widget : widgets) widget->setEnabled(box->isChecked());
    };
    QObject::connect(box, &QCheckBox::toggled, box, follow);
    follow();
}

// Sends the settings to every open view, without the colours.
void SendToAllViews() {
    const ViewSwap kept(SciWndData);
    for (const auto& project : gProjects)
        for (const auto& source : project.record->Sources) {
            DocumentRecord& document = *source.record;
            SciWndData = document.SciEdi_WndData;
            SetSciOptions(false);
            // The line ends are those of the file, and not those of the active document.
            Mod_Sci::SetEolMode(KeepLineEnds && document.LfEnds ? SC_EOL_LF : SC_EOL_CRLF);
            document.State.Restyle();
            FormOf(document).Redraw();
        }
}

}

frmOptionsEdit::frmOptionsEdit(QWidget* parent)
    : SettingsDialog(tr("Editor options"), "LastSelectedTabOpEdit", "frmOptionsEdit", parent) {
    ViewPage();
    TypingPage();
    WrappingPage();
    AutolistPage();
    NavigationPage();
    FilesPage();
    OpenLastPage();
}

void frmOptionsEdit::ViewPage() {
    OptionPage& page = AddPage(tr("View"));
    page.Group(tr("Text"));
    page.Check("chkHighlightCurrentLine", "HighlightCurrentLine", tr("Highlight current line"));
    page.Check("chkHighlightMatchedBraces", "HighlightMatchedBraces", tr("Highlight matched braces"));
    page.Check("chkShowIndentGuides", "ShowIndentGuides", tr("Show indent guides"));
    page.Check("chkShowWhiteSpaces", "ShowWhiteSpaces", tr("Show white spaces"));
    page.Check("chkBreakpointAsBackground", "BreakpointsAsBackground",
               tr("Don't add mark for breakpoint, instead change the back color of the line"));
    page.Check("chkShowCurrentFunction", "ShowCurrentFunction", tr("Show current function in statusbar"));
    page.Group(tr("Margins"));
    page.Check("chkShowLineNumbers", "ShowLineNumbers", tr("Show line numbers"));
    page.Check("chkShowFoldMargin", "ShowFoldMargin", tr("Show fold margin"));
    page.Check("chkShowMarkerMargin", "ShowMarkerMargin", tr("Show marker margin"));
    page.Group(tr("Cursor"));
    page.Number("txtCursorPeriod", "CursorPeriod", tr("Cursor blinking period ( 100-2000 ):"), tr("ms"));
    page.Number("txtCursorWidth", "CursorWidth", tr("Cursor width (1-3):"), tr("pixels"));
    page.PlainCheck("chkVirtualWhiteSpace",
                    tr("Restrict cursor on text areas ( virtual whitespace ) nemoze ova !?"));
    page.Group(tr("All settings"));
    page.Button("cmdHelp", tr("Reset all"));
}

void frmOptionsEdit::TypingPage() {
    OptionPage& page = AddPage(tr("Typing"));
    page.Group(tr("Autoindent"));
    page.Choice("optAutoindentType", "AutoIndentType",
                {{IndentByScope, "Advanced  ( Fully automatic autoindenting of your code )"},
                 {IndentLikeLineAbove, "Simple  ( Autoindent new line based on previous line indentation )"},
                 {IndentNone, "None  ( Autoindent off )"}});
    page.Check("chkAutoIndentOnLoad", "AutoIndentOnLoad", tr("AutoIndent code on file loading"));
    page.Group(tr("Tabs"));
    page.Number("txtTabValue", "TabValue", tr("Tab value ( 1-30 ):"), tr("columns"));
    page.Check("chkInsertSpacesForTabs", "InsertSpacesForTabs", tr("Insert spaces for tabs"));
    page.Group(tr("Corrections"));
    page.Check("chkFixVariableCase", "FixVariableCase", tr("Auto correct function/type/variable casing"));
    page.Check("chkReplaceVarPlusPlus", "ReplaceVarPlusPlus",
               tr("Convert ++ and -- to Variable+1 /-1 automatically as you type"));
    page.Check("chkCheckForMissingBracesOnFunctions", "CheckForMissingBracesOnFunctions",
               tr("Missing braces and parameters on function that return value,will mark it as 'Bad'"));
    page.Group(tr("Keys"));
    page.Check("chkHomeGoesToFirst", "HomeGoesToFirst",
               tr("Home key jumps to the first position in the line ( instead of first character )"));
}

void frmOptionsEdit::WrappingPage() {
    OptionPage& page = AddPage(tr("Wrapping and scrolling"));
    page.Group(tr("Line wrapping"));
    QCheckBox* wrap = page.Check("chkWordWrap", "WordWrap", tr("Enable Line Wrapping"));
    QCheckBox* begin = page.Check("chkVisualFlagAtBegin", "WordWrapFlags",
                                  tr("Add visual flag at begin of a wrapped line"), WrapMarkAtBegin);
    QCheckBox* nearBegin =
        page.Check("chkNearTextAtBegin", "WordWrapFlagLocation", tr("Flag drawn near text"), WrapMarkAtBegin);
    QCheckBox* end = page.Check("chkVisualFlagAtEnd", "WordWrapFlags",
                                tr("Add visual flag at end of a wrapped line"), WrapMarkAtEnd);
    QCheckBox* nearEnd =
        page.Check("chkNearTextAtEnd", "WordWrapFlagLocation", tr("Flag drawn near text"), WrapMarkAtEnd);
    QSpinBox* indent = page.Number("txtWordWrapIndent", "WordWrapStartIndent",
                                   tr("Indent for sublines ( 1-30 ):"), tr("characters"));
    for (QCheckBox* below : {nearBegin, nearEnd}) page.Indent(below);
    const auto follow = [=] {
        const bool on = wrap->isChecked();
        for (QWidget* widget :
             {static_cast<QWidget*>(begin), static_cast<QWidget*>(end), static_cast<QWidget*>(indent)})
            widget->setEnabled(on);
        nearBegin->setEnabled(on && begin->isChecked());
        nearEnd->setEnabled(on && end->isChecked());
    };
    for (QCheckBox* box : {wrap, begin, end}) connect(box, &QCheckBox::toggled, box, follow);
    follow();
    page.Group(tr("Horizontal scrolling"));
    page.Number("txtHscrollvalue", "Hmargin", tr("Horizontal autoscroll policy value:"),
                tr("pixels (0-150)"));
    page.Choice("optHScrollStrict", "HmarginStrict",
                {{1, "Ensure that this amount is always visible from the edge (starts scrolling earlier)"},
                 {0, "Scroll by this amount when cursor reaches left/right edge"}});
    page.Group(tr("Vertical scrolling"));
    page.Number("txtVscrollvalue", "Vmargin", tr("Vertical autoscroll policy value:"),
                tr("code lines (0-10 )"));
    page.Check("chkGotoPositionsAtTop", "GotoPositionsAtTop",
               tr("When jumping to line, always show that line on top of the editor window"));
}

void frmOptionsEdit::AutolistPage() {
    OptionPage& page = AddPage(tr("Autolists"));
    page.Group(tr("When a list opens"));
    QCheckBox* automatic =
        page.Check("chkACShowAuto", "ACshowAuto", tr("Show Autolists automaticaly as you type"));
    QSpinBox* most = page.Number("txtACshowWhenNoMore", "ACshowWhenNoMore",
                                 tr("Show autolist when there are no more than"), tr("words in the list"));
    QSpinBox* typed = page.Number("txtACstartAfter", "ACstartAfter", tr("Start autocomplete after"),
                                  tr("characters typed"));
    Enables(automatic, {most, typed});
    page.Check("chkACTypesLabelsEnable", "ACTypesLabelsEnable",
               tr("Show Intellisense autolists automatyicaly for Types and Labels"));
    page.Check("chkPopupCallTips", "PopupCallTips",
               tr("Pop Up CallTips ( Function parameters help ) as you type"));
    page.Group(tr("What it holds"));
    page.Check("chkACIncKeywords", "ACIncKeywords", tr("Include Keywords"));
    page.Check("chkACIncVars", "ACIncVars", tr("Include Variables"));
    page.Check("chkACIncConstants", "ACIncConstants", tr("Include Constants"));
    page.Check("chkACIncFunctions", "ACIncFunctions", tr("Include Custom Functions"));
    page.Number("txtACshowOnlyLonger", "ACshowOnlyLonger", tr("Show in autocomplete only words longer than "),
                tr("characters"));
    page.Number("txtACRowsHeight", "ACRowsHeight", tr("Autolists Height :"), tr("rows"));
    page.Group(tr("How it ends"));
    page.Check("chkACcompleteOnlyOne", "ACcompleteOnlyOne",
               tr("Complete word without popping list if there is only one match"));
    page.Check("chkACEnterAccepts", "ACEnterAccepts",
               tr("Enter accepts the word chosen with the arrow keys"));
    page.Check("chkACCloseListOnDelete", "ACCloseListOnDelete", tr("Close List on Delete characters"));
    page.Check("chkACCloseListOnNoMatch", "ACCloseListOnNoMatch",
               tr("Close List When there is no more matches in the list"));
    page.Check("chkACcloseListOnMatch", "ACCloseListOnMatch",
               tr("Close List When there is full match in the list"));
    page.Text("txtACFillUpChars", "ACFillUpChars", tr("Fill Up Characters"));
    page.Text("txtACStopChars", "ACStopChars", tr("Stop Characters"));
}

void frmOptionsEdit::NavigationPage() {
    OptionPage& page = AddPage(tr("Navigation"));
    page.Group(tr("Browser"));
    page.Number("txtCBrowserMarkAsNew", "CBrowserMarkAsNew",
                tr("Browser will add position to history if something is edited more than"),
                tr("lines away from that position"));
    page.Check("chkCBrowserRememberOnGotoDefinition", "CBrowserRememberOnGotoDefinition",
               tr("Add position to browser history when using 'Goto Definition'"));
    page.Group(tr("Bookmarks"));
    page.Check("chkBookMarksSingleFileBased", "BookMarksSingleFileBased",
               tr("Limit bookmarks to single file ( bookmark commands won't jump to other files )"));
    page.Group(tr("Help"));
    page.Check("chkEachHelpInNewTab", "EachHelpInNewTab", tr("Open each requested help page in new tab"));
    page.Note("lblNoHelp", tr("If no help is found for a word:"));
    page.Choice("optIFNoHelpFound", "IFNoHelpFound",
                {{HelpCommandIndex, "Open Command Reference Index Page"},
                 {HelpIndex, "Open default Index page"},
                 {NoHelpPage, "Do nothing"}});
}

void frmOptionsEdit::FilesPage() {
    OptionPage& page = AddPage(tr("Files"));
    page.Group(tr("Save with the file"));
    page.Check("chkSaveBookmarks", "SaveBookmarks", tr("Bookmarks"));
    page.Check("chkSaveFoldingState", "SaveFoldingState", tr("Folding state"));
    page.Check("chkSaveCompilerCommandLine", "SaveCompilerCommandLine", tr("Command Line and Compiler used"));
    page.Check("chkFileDirtyOnBookmarks", "FileDirtyOnBookmarks",
               tr("Make files 'Dirty\" when changing bookmarks and folding states"));
    page.Group(tr("Text"));
    page.Check("chkEmptyUndo", "EmptyUndo", tr("Empty undo buffer upon saving"));
    page.Check("chkKeepLineEnds", "KeepLineEnds", tr("Keep the line ends of files that have only LF"));
}

void frmOptionsEdit::ApplyChanges() {
    // Without the margin nothing would show that lines are hidden.
    const bool foldMargin = findChild<QCheckBox*>("chkShowFoldMargin")->isChecked();
    if (ShowFoldMargin != 0 && !foldMargin && DocumentActive())
        Mod_SciFun::UnFoldEverything(Mod_SciFun::AnyFold);
    controls_.Store();
    Options::GetEditOptions();
    SendToAllViews();
    if (ShowCurrentFunction == 0) {
        gEditorCalls.SetFunctionText({});
        gEditorCalls.SetTipText({});
    }
}
