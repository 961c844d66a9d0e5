// What the member list does, as a table: it runs on the editing widget in memory and on the real
// one alike.
#pragma once

#include <string_view>
#include <vector>

namespace tarnwick::test {

/// A sequence of typed characters and what it must lead to. In `Typed`, "\b" is Backspace, "\r"
/// Enter, "\x1B" Esc, "\x01" the key Down and "\x02" the key Up.
struct IntellisenseCase {
  std::string_view Name;
  std::string_view Typed;
  /// The rows of the list joined by ","; "" while it is hidden.
  std::string_view Rows;
  /// The selected row's text; "" for none.
  std::string_view Selected;
  /// The text with "|" where the caret stands; lines joined by "/".
  std::string_view Text;
};

/// The project of the table: form 1 is "Main" with the button "Ok", the label "my_label", the image
/// "Pic", another one "Images3", a popup menu "Pop", the menu title "mnuFile" and its item
/// "mnuOpen"; form 2 is "Other" with a list that is named "Ok" too.
[[nodiscard]] inline const std::vector<IntellisenseCase>& IntellisenseCases() {
  static const std::vector<IntellisenseCase> cases{
      {"ADotOpensTheMembersOfAnObject", "Ok.", "Caption,Color,Click", "Caption", "Ok.|"},
      {"ANameCountsInAnyLetters", "oK.", "Caption,Color,Click", "Caption", "oK.|"},
      {"ABlankInFrontOfTheDotOpensNothing", "Ok .", "", "", "Ok .|"},
      {"AFormHasTheMembersOfForms", "Main.", "Show,Caption", "Show", "Main.|"},
      {"ATitleOfTheMenuBarHasItsOwn", "mnuFile.", "Caption,Visible", "Caption", "mnuFile.|"},
      {"AnItemOfTheMenuBarHasItsOwn", "mnuOpen.", "Checked,Caption", "Checked", "mnuOpen.|"},
      {"APictureIsListedUnderImage", "Pic.", "Picture", "Picture", "Pic.|"},
      {"AnElementOfThePicturesIsListedUnderImageToo", "Images3.", "Picture", "Picture",
       "Images3.|"},
      {"APopupMenuHasTheMembersOfItsArray", "Pop.", "Popup", "Popup", "Pop.|"},
      {"TheFirstFormWithAnObjectOfTheNameDecides", "x = Ok.", "Caption,Color,Click", "Caption",
       "x = Ok.|"},
      {"FixedWordsHaveTheirLists", "screen.", "Width", "Width", "screen.|"},
      {"TheClipboardHasItsList", "Clipboard.", "Open", "Open", "Clipboard.|"},
      {"TheApplicationHasItsList", "APPLICATION.", "Title", "Title", "APPLICATION.|"},
      {"AFontHasItsList", "Font.", "Bold", "Bold", "Font.|"},
      {"AFixedWordCountsBehindAnotherName", "Ok.Font.", "Bold", "Bold", "Ok.Font.|"},
      {"AnUnknownNameShowsNothing", "Nix.", "", "", "Nix.|"},
      {"ANumberShowsNothing", "1.", "", "", "1.|"},
      {"NamesWithADotResolveByTheirLastPart", "Main.Ok.", "Caption,Color,Click", "Caption",
       "Main.Ok.|"},
      {"ACommentLineOpensNothing", "' Ok.", "", "", "' Ok.|"},
      {"ACommentBehindTheCodeDoesNoHarm", "x = 1 ' Ok.", "Caption,Color,Click", "Caption",
       "x = 1 ' Ok.|"},
      {"ACommentLineWithBlanksInFrontOpensNothing", "  ' Ok.", "", "", "  ' Ok.|"},
      {"ADotWithinATextOpensTheListAllTheSame", "x = \"Ok.", "Caption,Color,Click", "Caption",
       "x = \"Ok.|"},
      {"TwoDotsOpenNothing", "Ok..", "", "", "Ok..|"},
      {"ADotAtTheStartOfALineOpensNothing", ".", "", "", ".|"},
      {"AMemberIsNoName", "Ok.Caption.", "", "", "Ok.Caption.|"},
      {"TypingSelectsTheRowThatBeginsWithIt", "Ok.cl", "Caption,Color,Click", "Click", "Ok.cl|"},
      {"TheFirstRowThatFitsIsSelected", "Ok.c", "Caption,Color,Click", "Caption", "Ok.c|"},
      {"LettersThatFitNoRowSelectNone", "Ok.xy", "Caption,Color,Click", "", "Ok.xy|"},
      {"EnterAddsTheRestOfTheRow", "Ok.co\r", "", "", "Ok.color|"},
      {"EnterOnTheFirstRowAddsItWhole", "Ok.\r", "", "", "Ok.Caption|"},
      {"EnterWithNothingToAddIsALineEnd", "Ok.click\r", "", "", "Ok.click/|"},
      {"EnterWithNoRowIsALineEnd", "Ok.xy\r", "", "", "Ok.xy/|"},
      {"ABlankTakesTheRowAndIsTyped", "Ok.co ", "", "", "Ok.color |"},
      {"ABlankWithNothingToAddIsTypedAlone", "Ok.click ", "", "", "Ok.click |"},
      {"ABlankWithNoRowIsTypedAlone", "Ok.xy ", "", "", "Ok.xy |"},
      {"ATakenRowMayBeFollowedByAnotherName", "Ok.co = Main.s\r", "", "", "Ok.color = Main.show|"},
      {"UpHidesTheListAndMovesTheCaret", "Ok.\x02", "", "", "|Ok."},
      {"EscHidesTheList", "Ok.\x1B", "", "", "Ok.|"},
      {"DownMovesTheSelectionAndTheCaretStays", "Ok.\x01", "Caption,Color,Click", "Color", "Ok.|"},
      {"DownStaysOnTheLastRow", "Ok.\x01\x01\x01\x01", "Caption,Color,Click", "Click", "Ok.|"},
      {"TheRowChosenByDownIsTakenByEnter", "Ok.\x01\x01\r", "", "", "Ok.Click|"},
      {"BackspaceBehindTheDotHidesTheList", "Ok.\b", "", "", "Ok|"},
      {"TheDotTypedAgainOpensTheListAgain", "Ok.\b.", "Caption,Color,Click", "Caption", "Ok.|"},
      {"BackspaceOverADotThatOpenedNothingIsOne", "Nix.\b", "", "", "Nix|"},
      {"AfterEscTheNextLetterOpensNothing",
       "Ok.\x1B"
       "c",
       "", "", "Ok.c|"},
      {"BackspaceInTheWordFiltersAgain", "Ok.cl\b", "Caption,Color,Click", "Caption", "Ok.c|"},
      {"BackspaceToTheDotKeepsTheList", "Ok.c\b", "Caption,Color,Click", "Caption", "Ok.|"},
      {"ASignEndsTheWordAndTheList", "Ok.ca=", "", "", "Ok.ca=|"},
      {"AnUnderscoreOpensTheEvents", "Ok_", "OnClick,OnKeyUp", "OnClick", "Ok_|"},
      {"TheEventsFilterBehindTheUnderscore", "Ok_onk", "OnClick,OnKeyUp", "OnKeyUp", "Ok_onk|"},
      {"TheUnderscoreThatOpenedTheListCounts", "my_label_ond", "OnClick,OnDblClick", "OnDblClick",
       "my_label_ond|"},
      {"AnEventIsTakenByEnter", "Ok_onk\r", "", "", "Ok_onkeyUp|"},
      {"AnEventIsTakenByABlank", "Ok_ ", "", "", "Ok_OnClick |"},
      {"EventsOfATitleOfTheMenuBar", "mnuFile_", "OnClick", "OnClick", "mnuFile_|"},
      {"EventsOfAPictureStandUnderItsArray", "Pic_", "OnPaint", "OnPaint", "Pic_|"},
      {"AnUnderscoreBehindAnUnknownNameOpensNothing", "Nix_", "", "", "Nix_|"},
      {"AKindWithoutEventsOpensNothing", "Pop_", "", "", "Pop_|"},
      {"ACommentLineOpensNoEvents", "'Ok_", "", "", "'Ok_|"},
      {"AnUnderscoreWithinANameOpensNothing", "my_", "", "", "my_|"},
      {"EventsOfAForm", "Sub Other_", "OnShow", "OnShow", "Sub Other_|"},
      {"EventsOfAMenuItem", "mnuOpen_", "OnClick", "OnClick", "mnuOpen_|"},
      {"DimAsOpensTheTypes", "Dim x As ", "Integer,QForm", "Integer", "Dim x As |"},
      {"ADimInAnyLettersCounts", "dim x aS ", "Integer,QForm", "Integer", "dim x aS |"},
      {"ADimWithBlanksInFrontCounts", "   Dim x As ", "Integer,QForm", "Integer", "   Dim x As |"},
      {"AWordThatOnlyBeginsWithDimCountsToo", "Dimension As ", "Integer,QForm", "Integer",
       "Dimension As |"},
      {"ASecondAsOfTheLineOpensTheTypesAgain", "Dim x As Integer, y As ", "Integer,QForm",
       "Integer", "Dim x As Integer, y As |"},
      {"ACommentedDimOpensNothing", "'Dim x As ", "", "", "'Dim x As |"},
      {"AsOutsideOfDimOpensNothing", "x As ", "", "", "x As |"},
      {"TheTypesFilterToo", "Dim x As qf", "Integer,QForm", "QForm", "Dim x As qf|"},
      {"ATypeIsTakenByEnter", "Dim x As q\r", "", "", "Dim x As qForm|"},
      {"ATypeIsTakenByABlank", "Dim x As q ", "", "", "Dim x As qForm |"},
      {"BackspaceOverTheBlankDismissesTheTypes", "Dim x As \b", "", "", "Dim x As|"},
      {"TypingBringsDismissedTypesBack", "Dim x As \b ", "Integer,QForm", "Integer", "Dim x As |"},
      {"TypesThatCameBackFilter", "Dim x As \b q", "Integer,QForm", "QForm", "Dim x As q|"},
      {"AnUnderscoreWithinAMemberHidesItsList", "Ok.x_", "", "", "Ok.x_|"},
      {"ALongerWordForgetsAs", "Dim x Asa ", "", "", "Dim x Asa |"},
      {"ALineEndHidesTheList", "Ok.xy\rOk", "", "", "Ok.xy/Ok|"},
  };
  return cases;
}

}  // namespace tarnwick::test
