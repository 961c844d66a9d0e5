// The drop-down list at the caret: members, events and type names while the user types.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editor/edit_widget.h"
#include "editor/member_lookup.h"

namespace tarnwick::editor {

/// Key codes that the list treats by themselves.
namespace list_key {
inline constexpr int kNone = 0;
inline constexpr int kBackspace = 8;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kUp = 38;
inline constexpr int kDown = 40;
}  // namespace list_key

/// `lstIntellisense` with its frame and shadow. A view shows what it is given and takes no focus;
/// it stands one text line below the caret of the moment it is shown and stays there.
class MemberListView {
 public:
  MemberListView() = default;
  MemberListView(const MemberListView&) = delete;
  MemberListView& operator=(const MemberListView&) = delete;
  virtual ~MemberListView() = default;

  /// Shows the list with these rows, none selected.
  virtual void showintellisense(const std::vector<std::string>& rows) = 0;
  /// Selects a row; -1 for none.
  virtual void SelectRow(int row) = 0;
  virtual void HideList() = 0;
};

/// The state of one window's list. The window forwards what its editing widget reports:
///
///   before a key acts        if (list.KeyDown(key)) ... the key is used up
///   before a character       list.KeyPress(character)
///   after each change        list.Changed()
///   after a move of the caret without a change    list.CaretMoved()
///   press in the text, scrolling, loss of focus   list.HideList()
class Intellisense {
 public:
  Intellisense(EditWidget& editor, const MemberLookup& lookup, MemberListView& view)
      : editor_(editor), lookup_(lookup), view_(view) {}

  /// Forgets everything typed so far, as at each opening of the window.
  void Reset();

  /// True when the key is used up: it inserted a row, moved the selection or closed the list.
  [[nodiscard]] bool KeyDown(int key);
  /// A character is about to be typed: a blank takes the selected row first.
  void KeyPress(int character);
  /// The text has changed.
  void Changed();
  /// The caret has moved and the text is the same.
  void CaretMoved();
  void HideList();

  /// A row of the list was clicked, or double-clicked, which takes it whole. Nothing for a row that
  /// is not there.
  void Click(int row);
  void DoubleClick(int row);
  /// A key on the list itself: any but Up and Down takes the selected row.
  void ListKeyDown(int key);

  [[nodiscard]] bool Visible() const noexcept { return visible_; }
  [[nodiscard]] const std::vector<std::string>& Rows() const noexcept { return rows_; }
  /// The selected row; -1 for none.
  [[nodiscard]] int Row() const noexcept { return row_; }

 private:
  enum class ListMode { Members, Types, TypesDismissed };
  /// How the row that is taken was chosen: a row of a double click goes in whole.
  enum class ListSource { Typed, DoubleClicked };

  [[nodiscard]] bool Opens(std::string_view word);
  void Open(ListMode mode, std::string_view word);
  void LineIntellisense(std::string_view word);
  void Show(std::vector<std::string> rows, std::size_t name_length);
  void FilterList();
  [[nodiscard]] bool HasRow(int row) const noexcept {
    return row >= 0 && row < static_cast<int>(rows_.size());
  }
  void Select(int row);
  /// True when a text was inserted.
  bool AcceptItem(ListSource source);
  void Insert(std::string_view text, int replaced);
  /// True while the caret stands behind what opened the list, with nothing but a name between.
  [[nodiscard]] bool CaretInServedWord() const;

  EditWidget& editor_;
  const MemberLookup& lookup_;
  MemberListView& view_;

  /// What has been typed since the window was opened.
  struct Typed {
    std::string LastWord;
    std::string ListPrefix;
    int LastKey = list_key::kNone;
    int PrevKey = list_key::kNone;
    bool AsPending = false;
    ListMode Mode = ListMode::Members;
  };
  Typed typed_;

  std::vector<std::string> rows_;
  int row_ = -1;
  bool visible_ = false;
  std::size_t name_length_ = 0;  ///< of an event list: the length of the name with its "_"
  int line_ = 0;                 ///< where the word that the list serves begins
  int column_ = 0;
};

}  // namespace tarnwick::editor
