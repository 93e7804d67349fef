// The values before anything was read are the defaults.
#include "engine/OptionsEdit.h"

namespace OptionsEdit {

int HighlightCurrentLine = 1, AutoIndentType = 2, AutoIndentOnLoad = 0, EmptyUndo = 0, FixVariableCase = 1,
    ReplaceVarPlusPlus = 0, HighlightMatchedBraces = 1, ShowIndentGuides = 1, ShowWhiteSpaces = 0,
    InsertSpacesForTabs = 0, ShowCurrentFunction = 1, ShowLineNumbers = 1, ShowFoldMargin = 1,
    ShowMarkerMargin = 1, TabValue = 4, CursorPeriod = 500, CursorWidth = 3, WordWrap = 0, WordWrapFlags = 1,
    WordWrapFlagLocation = 1, WordWrapStartIndent = 1, Hmargin = 80, Vmargin = 3, HmarginStrict = 0,
    GotoPositionsAtTop = 0, ACshowOnlyLonger = 4, ACshowWhenNoMore = 10, ACstartAfter = 1, ACRowsHeight = 6,
    PopupCallTips = 1, BreakpointsAsBackground = 0, CBrowserMarkAsNew = 30,
    CBrowserRememberOnGotoDefinition = 1, BookMarksSingleFileBased = 0, SaveBookmarks = 1,
    SaveFoldingState = 1, SaveCompilerCommandLine = 1, FileDirtyOnBookmarks = 1, EachHelpInNewTab = 1,
    IFNoHelpFound = 2, HomeGoesToFirst = 0, CheckForMissingBracesOnFunctions = 0, KeepLineEnds = 1;
int ACshowAuto = 1, ACcompleteOnlyOne = 0, ACEnterAccepts = 0, ACIncKeywords = 1, ACIncVars = 1,
    ACIncConstants = 1, ACIncFunctions = 1, ACCloseListOnDelete = 1, ACCloseListOnNoMatch = 0,
    ACCloseListOnMatch = 1, ACTypesLabelsEnable = 1;
std::string ACFillUpChars = "(", ACStopChars = "/\\,.~`!@#$%^&*)-_=+{}[]:;?<>|\"", SciStyleName = "Default";

} // namespace OptionsEdit
