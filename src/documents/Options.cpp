// Reading the settings: one table a section, in the order in which the keys are loaded.
#include "documents/Options.h"

#include "engine/OptionsEdit.h"
#include "host/ErrorLog.h"
#include "host/Failure.h"
#include "host/Host.h"
#include "host/Paths.h"
#include "host/SettingsStore.h"
#include "host/Text.h"

#include <charconv>

namespace Options {

int MultipleInstances = 0, AssBBfiles = 1, AssProjectFiles = 1, gRecentFiles = 10, gStartUp = 3,
    gEnumerateNewFiles = 0, gClipRingMaxItems = 15, gShowRecentFull = 1, gDisplayTimeInStatusBar = 1,
    gFileExStartPath = 1, gOnCompileSave = 1, gOpenHtmlInZolto = 1, gOpenBrowserAtStartup = 1,
    gDebugMaximized = 1, gDoubleClickClosesTabs = 1, gTabbingStartsWithPrevious = 0, gUnsortedFunctions = 0,
    gBackupEnabled = 0, gBackupType = 0, gBackupBakIncrement = 2, gBackupStoreType = 0;
std::string gDefNewName = "New", gLastCreatedExe, gDefaultHelpPage, gBackupStoreFolder;

namespace {

struct NumberKey {
    const char* key;
    int* value;
    bool isBoolean = false;
};

struct TextKey {
    const char* key;
    std::string* value;
};

const NumberKey OptionNumbers[] = {
    {"MultipleInstances", &MultipleInstances},
    {"AssBBfiles", &AssBBfiles},
    {"AssProjectFiles", &AssProjectFiles},
    {"gRecentFiles", &gRecentFiles},
    {"gStartUp", &gStartUp},
    {"gEnumerateNewFiles", &gEnumerateNewFiles},
    {"gClipRingMaxItems", &gClipRingMaxItems},
    {"gShowRecentFull", &gShowRecentFull},
    {"gDisplayTimeInStatusBar", &gDisplayTimeInStatusBar},
    {"gFileExStartPath", &gFileExStartPath},
    {"gOnCompileSave", &gOnCompileSave},
    {"gOpenHtmlInZolto", &gOpenHtmlInZolto},
    {"gOpenBrowserAtStartup", &gOpenBrowserAtStartup},
    {"gDebugMaximized", &gDebugMaximized},
    {"gDoubleClickClosesTabs", &gDoubleClickClosesTabs},
    {"gTabbingStartsWithPrevious", &gTabbingStartsWithPrevious},
    {"gUnsortedFunctions", &gUnsortedFunctions},
    {"gBackupEnabled", &gBackupEnabled},
    {"gBackupType", &gBackupType},
    {"gBackupBakIncrement", &gBackupBakIncrement},
    {"gBackupStoreType", &gBackupStoreType},
};

const TextKey OptionTexts[] = {
    {"gDefNewName", &gDefNewName},
    {"gLastCreatedExe", &gLastCreatedExe},
    {"gDefaultHelpPage", &gDefaultHelpPage},
    {"gBackupStoreFolder", &gBackupStoreFolder},
};

using namespace OptionsEdit;

const NumberKey EditNumbers[] = {
    {"HighlightCurrentLine", &HighlightCurrentLine},
    {"AutoIndentType", &AutoIndentType},
    {"AutoIndentOnLoad", &AutoIndentOnLoad},
    {"EmptyUndo", &EmptyUndo},
    {"FixVariableCase", &FixVariableCase},
    {"ReplaceVarPlusPlus", &ReplaceVarPlusPlus},
    {"HighlightMatchedBraces", &HighlightMatchedBraces},
    {"ShowIndentGuides", &ShowIndentGuides},
    {"ShowWhiteSpaces", &ShowWhiteSpaces},
    {"InsertSpacesForTabs", &InsertSpacesForTabs},
    {"ShowCurrentFunction", &ShowCurrentFunction},
    {"ShowLineNumbers", &ShowLineNumbers},
    {"ShowFoldMargin", &ShowFoldMargin},
    {"ShowMarkerMargin", &ShowMarkerMargin},
    {"TabValue", &TabValue},
    {"CursorPeriod", &CursorPeriod},
    {"CursorWidth", &CursorWidth},
    {"WordWrap", &WordWrap},
    {"WordWrapFlags", &WordWrapFlags},
    {"WordWrapFlagLocation", &WordWrapFlagLocation},
    {"WordWrapStartIndent", &WordWrapStartIndent},
    {"Hmargin", &Hmargin},
    {"Vmargin", &Vmargin},
    {"HmarginStrict", &HmarginStrict},
    {"GotoPositionsAtTop", &GotoPositionsAtTop},
    {"ACshowAuto", &ACshowAuto, true},
    {"ACshowOnlyLonger", &ACshowOnlyLonger},
    {"ACshowWhenNoMore", &ACshowWhenNoMore},
    {"ACstartAfter", &ACstartAfter},
    {"ACcompleteOnlyOne", &ACcompleteOnlyOne, true},
    {"ACEnterAccepts", &ACEnterAccepts, true},
    {"ACIncKeywords", &ACIncKeywords, true},
    {"ACIncVars", &ACIncVars, true},
    {"ACIncConstants", &ACIncConstants, true},
    {"ACIncFunctions", &ACIncFunctions, true},
    {"ACCloseListOnDelete", &ACCloseListOnDelete, true},
    {"ACCloseListOnNoMatch", &ACCloseListOnNoMatch, true},
    {"ACCloseListOnMatch", &ACCloseListOnMatch, true},
    {"ACTypesLabelsEnable", &ACTypesLabelsEnable, true},
    {"ACRowsHeight", &ACRowsHeight},
    {"PopupCallTips", &PopupCallTips},
    {"BreakpointsAsBackground", &BreakpointsAsBackground},
    {"CBrowserMarkAsNew", &CBrowserMarkAsNew},
    {"CBrowserRememberOnGotoDefinition", &CBrowserRememberOnGotoDefinition},
    {"BookMarksSingleFileBased", &BookMarksSingleFileBased},
    {"SaveBookmarks", &SaveBookmarks},
    {"SaveFoldingState", &SaveFoldingState},
    {"SaveCompilerCommandLine", &SaveCompilerCommandLine},
    {"FileDirtyOnBookmarks", &FileDirtyOnBookmarks},
    {"EachHelpInNewTab", &EachHelpInNewTab},
    {"IFNoHelpFound", &IFNoHelpFound},
    {"HomeGoesToFirst", &HomeGoesToFirst},
    {"CheckForMissingBracesOnFunctions", &CheckForMissingBracesOnFunctions},
    {"KeepLineEnds", &KeepLineEnds},
};

const TextKey EditTexts[] = {
    {"ACFillUpChars", &ACFillUpChars},
    {"ACStopChars", &ACStopChars},
    {"SciStyleName", &SciStyleName},
};

int ToNumber(const std::string& key, const std::string& text) {
    const std::string_view trimmed = TrimBlanks(text);
    int number = 0;
    const auto [end, error] = std::from_chars(trimmed.data(), trimmed.data() + trimmed.size(), number);
    if (error != std::errc() || end != trimmed.data() + trimmed.size())
        throw Failure(FailureTypeMismatch, "Type mismatch: " + key + " = \"" + text + "\"");
    return number;
}

// A key that holds no number keeps the value it has, and the others are still read.
template <class Numbers, class Texts>
void Load(const char* section, const char* routine, const char* module, const Numbers& numbers,
          const Texts& texts) {
    for (const NumberKey& row : numbers)
        Guarded(routine, module, [&] {
            const std::string text = gHost.settings->Get(section, row.key, std::to_string(*row.value));
            const int number = ToNumber(row.key, text);
            *row.value = row.isBoolean ? number != 0 : number;
        });
    for (const TextKey& row : texts) *row.value = gHost.settings->Get(section, row.key, *row.value);
}

} // namespace

void GetOptions() {
    if (gBackupStoreFolder.empty()) gBackupStoreFolder = AppPath("Backup");
    Load("Options", "GetOptions", "frmOptions", OptionNumbers, OptionTexts);
}

void GetEditOptions() {
    Load("OptionsEdit", "GetEditOptions", "frmOptionsEdit", EditNumbers, EditTexts);
    // A tab of no columns would divide by zero wherever an indentation is measured.
    if (TabValue < 1) TabValue = 1;
}

} // namespace Options
