// The settings of section OptionsEdit, one global a key.
#pragma once

#include <string>

namespace OptionsEdit {

// All written by Options::GetEditOptions and by the preferences alone.
extern int HighlightCurrentLine, AutoIndentType, AutoIndentOnLoad, EmptyUndo, FixVariableCase,
    ReplaceVarPlusPlus, HighlightMatchedBraces, ShowIndentGuides, ShowWhiteSpaces, InsertSpacesForTabs,
    ShowCurrentFunction, ShowLineNumbers, ShowFoldMargin, ShowMarkerMargin, TabValue, CursorPeriod,
    CursorWidth, WordWrap, WordWrapFlags, WordWrapFlagLocation, WordWrapStartIndent, Hmargin, Vmargin,
    HmarginStrict, GotoPositionsAtTop, ACshowOnlyLonger, ACshowWhenNoMore, ACstartAfter, ACRowsHeight,
    PopupCallTips, BreakpointsAsBackground, CBrowserMarkAsNew, CBrowserRememberOnGotoDefinition,
    BookMarksSingleFileBased, SaveBookmarks, SaveFoldingState, SaveCompilerCommandLine, FileDirtyOnBookmarks,
    EachHelpInNewTab, IFNoHelpFound, HomeGoesToFirst, CheckForMissingBracesOnFunctions, KeepLineEnds;
extern int ACshowAuto, ACcompleteOnlyOne, ACEnterAccepts, ACIncKeywords, ACIncVars, ACIncConstants,
    ACIncFunctions, ACCloseListOnDelete, ACCloseListOnNoMatch, ACCloseListOnMatch, ACTypesLabelsEnable;
extern std::string ACFillUpChars, ACStopChars, SciStyleName;

} // namespace OptionsEdit
