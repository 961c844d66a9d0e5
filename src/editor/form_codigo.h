// `FormCodigo`: one window for the code of all events, one event at a time.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editor/code_drafts.h"
#include "editor/code_host.h"
#include "editor/code_target.h"
#include "editor/edit_widget.h"
#include "editor/function_panel.h"
#include "editor/typed_text.h"
#include "language/support_tables.h"
#include "model/project_records.h"
#include "persistence/settings.h"

namespace tarnwick::editor {

/// The window without its widgets. It is built once; each opening captures what is selected, and
/// every later step works on that:
///
///   form_codigo.Open();                     // the view shows Caption() and Events()
///   form_codigo.Events_Click(row);          // the shown text is stored, another one shows
///   form_codigo.Accept();                   // or Cancel(); both end in CodeHost::Unload
///
/// Only a change of event, StoreShown and Accept write to `EventTable`, each as a step of the
/// history. A text that is the same as its entry writes nothing.
class FormCodigo {
 public:
  FormCodigo(ProjectTables& project, const language::SupportTables& language, Settings& settings,
             EditWidget& editor, CodeHost& host, CodeDrafts& drafts)
      : project_(project),
        language_(language),
        settings_(settings),
        host_(host),
        functions_(language, editor),
        typed_(editor, drafts) {}

  /// The load step: takes `JumpKey` or the selection of the current form and shows its code.
  /// Nothing without a current form.
  void Open();
  [[nodiscard]] bool IsOpen() const noexcept { return target_.What != CodeTarget::Sort::Nothing; }
  [[nodiscard]] const CodeTarget& Target() const noexcept { return target_; }

  /// The name of what is open, as the user sees it.
  [[nodiscard]] const std::string& Caption() const noexcept { return caption_; }
  /// The rows of `Events`.
  [[nodiscard]] const std::vector<EventRow>& Events() const noexcept { return events_; }
  /// The selected row of `Events`; -1 when it is empty.
  [[nodiscard]] int EventRowNo() const noexcept { return event_row_; }
  /// False: `Events` has one row that stays.
  [[nodiscard]] bool EventsEnabled() const noexcept { return events_.size() > 1; }

  /// Another row of `Events` was chosen: the shown text is stored, the row's text shows.
  void Events_Click(int row);
  /// Stores the shown text as a change of event does; nothing while the window is closed.
  void StoreShown();
  /// `BtnFrm(0)`: stores the text, remembers the event, notifies the events bar, closes.
  void Accept();
  /// `BtnFrm(1)`, and every other way out: what was typed since the last change of event goes.
  void Cancel();

  /// The object or form was renamed: caption and rows follow when it is the one that is open.
  void NameChanged(int form, std::string_view old_name, std::string_view new_name);

  /// The shown text with its key, and what was lost there. While the window is closed, and for a
  /// kind without events, the key is "".
  [[nodiscard]] TypedText& Typed() noexcept { return typed_; }
  [[nodiscard]] const TypedText& Typed() const noexcept { return typed_; }

  /// `WndFunc`, the function panel.
  [[nodiscard]] FunctionPanel& Functions() noexcept { return functions_; }
  [[nodiscard]] bool WndFuncVisible() const noexcept { return functions_visible_; }
  void ShowWndFunc(bool visible) noexcept { functions_visible_ = visible; }
  /// The row of `ComboSearch`; it is remembered between visits.
  [[nodiscard]] int ComboSearch() const noexcept { return combo_search_; }
  void SetComboSearch(int row);

 private:
  void LoadPanel();
  void LoadEvents(std::string_view kind_word);
  void LoadNamedItem(const EventKey& key);
  [[nodiscard]] std::string WantedEvent();
  [[nodiscard]] std::string ShownKey() const;
  void ShowText();
  void StoreText(const std::string& text);
  void Close();

  ProjectTables& project_;
  const language::SupportTables& language_;
  Settings& settings_;
  CodeHost& host_;
  FunctionPanel functions_;
  TypedText typed_;

  CodeTarget target_;
  std::string caption_;
  std::vector<EventRow> events_;
  int event_row_ = -1;
  bool IsLoading_ = false;
  bool left_behind_ = false;  ///< the code open is that of an object by its key
  bool functions_visible_ = true;
  int combo_search_ = 0;
};

}  // namespace tarnwick::editor
