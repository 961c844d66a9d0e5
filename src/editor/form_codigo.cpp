#include "editor/form_codigo.h"

#include <algorithm>
#include <utility>

#include "text/code_page.h"
#include "text/numbers.h"

namespace tarnwick::editor {

namespace {

// Sections and keys of the scratch index.
constexpr std::string_view kEventsSection = "Events";
constexpr std::string_view kEventsIndexSection = "EventsIndex";
constexpr SettingKey kSearchWhere{"Search", "Whr"};
constexpr SettingKey kPanelState{"Load", "LstFnc"};
constexpr std::string_view kPanelOpen = "1";
constexpr std::string_view kPanelClosed = "2";

constexpr std::string_view kMenuWord = "menu";
constexpr std::string_view kFormWord = "Form";

/// The wanted suffix of a form that was never opened is written with this row.
constexpr std::string_view kDefaultFormRow = "11";

int RowOfSuffix(const std::vector<EventRow>& rows, std::string_view suffix) {
  const auto found = std::find_if(rows.begin(), rows.end(), [suffix](const EventRow& row) {
    return EqualsFolded(InfoOf(row.Id).Suffix, suffix);
  });
  return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

}  // namespace

void FormCodigo::Open() {
  DesignForm* window = project_.CurrentForm;
  if (window == nullptr) return;
  LoadPanel();
  events_.clear();
  event_row_ = -1;
  left_behind_ = false;
  if (project_.JumpKey.find('.') != std::string::npos) {
    const std::string jump = std::exchange(project_.JumpKey, {});
    const EventKey key = EventKeyOf(jump);
    target_ = TargetOfKey(key.Owner, window->Number());
    LoadNamedItem(key);
    return;
  }
  target_ = TargetOfSelection(*window);
  switch (target_.What) {
    case CodeTarget::Sort::MenuItem:
      caption_ = target_.NameObjet;
      LoadEvents(kMenuWord);
      break;
    case CodeTarget::Sort::Form: {
      const FormRec* record = project_.RecordOf(*window);
      caption_ = record == nullptr ? std::string(kFormWord) : record->Name;
      LoadEvents(kFormWord);
      window->ControlSel = nullptr;
      break;
    }
    default:
      // The name before stays where no control is selected.
      if (window->ControlSel != nullptr) caption_ = window->ControlSel->Tag;
      if (language_.ObjectHelp.Find(target_.KindWord) != nullptr) {
        LoadEvents(target_.KindWord);
      } else {
        project_.JumpKey.clear();
        ShowText();
      }
  }
}

void FormCodigo::LoadPanel() {
  functions_.Fill();
  const std::string where = settings_.ReadEventIndex(kSearchWhere.Section, kSearchWhere.Key);
  const double row = Val(where);
  const auto rows = static_cast<double>(kComboSearchRows.size());
  combo_search_ = row >= 0 && row < rows ? static_cast<int>(row) : 0;
  const std::string state = settings_.ReadEventIndex(kPanelState.Section, kPanelState.Key);
  functions_visible_ = state.empty() || state == kPanelOpen;
}

void FormCodigo::SetComboSearch(int row) {
  combo_search_ = std::clamp(row, 0, static_cast<int>(kComboSearchRows.size()) - 1);
  settings_.WriteEventIndex(kSearchWhere.Section, kSearchWhere.Key,
                            NumberText(static_cast<std::int64_t>(combo_search_)));
}

void FormCodigo::LoadNamedItem(const EventKey& key) {
  left_behind_ = key.OfObject;
  caption_ = target_.NameObjet;
  events_ = {{"Sub " + caption_ + "_" + std::string(InfoOf(key.Id).Signature), key.Id}};
  event_row_ = 0;
  ShowText();
}

std::string FormCodigo::WantedEvent() {
  if (!project_.JumpKey.empty())
    return std::string(".").append(std::exchange(project_.JumpKey, {}));
  if (target_.What == CodeTarget::Sort::MenuItem) return {};
  return settings_.ReadEventIndex(kEventsSection, KeyPrefixOf(target_));
}

void FormCodigo::LoadEvents(std::string_view kind_word) {
  IsLoading_ = true;
  const std::string wanted = WantedEvent();
  events_ = EventRowsOf(kind_word, caption_);
  event_row_ = wanted.empty() ? -1 : RowOfSuffix(events_, wanted);
  if (event_row_ < 0) event_row_ = DefaultRowOf(kind_word, events_);
  if (wanted.empty() && target_.What == CodeTarget::Sort::Form) {
    settings_.WriteEventIndex(kEventsIndexSection, KeyPrefixOf(target_), kDefaultFormRow);
  }
  ShowText();
  IsLoading_ = false;
}

std::string FormCodigo::ShownKey() const {
  if (event_row_ < 0) return {};
  const Event event = events_[static_cast<std::size_t>(event_row_)].Id;
  return KeyPrefixOf(target_).append(InfoOf(event).Suffix);
}

void FormCodigo::ShowText() {
  std::string key = ShownKey();
  // An entry that is not there and an empty one show the same page.
  const std::string* code = key.empty() ? nullptr : project_.EventTable.Find(key);
  typed_.Show(std::move(key), code);
}

void FormCodigo::StoreText(const std::string& text) {
  const std::string& key = typed_.Key();
  if (key.empty()) return;
  typed_.Stored(text);
  const std::string* const entry = project_.EventTable.Find(key);
  if (target_.What == CodeTarget::Sort::NamedItem && text.empty()) {
    // An item that was opened by its name has no entry while it has no code.
    project_.EventTable.Remove(key);
  } else if (entry == nullptr ? !text.empty() : *entry != text) {
    project_.EventTable.Replace(key, text);
  }
}

void FormCodigo::StoreShown() {
  if (!typed_.Differs()) return;
  host_.AcceptBegins(target_.Form, "Code " + caption_);
  StoreText(typed_.Text());
  host_.CodeAccepted(target_.Form);
}

void FormCodigo::Events_Click(int row) {
  if (IsLoading_ || row == event_row_) return;
  if (row < 0 || row >= static_cast<int>(events_.size())) return;
  StoreShown();
  event_row_ = row;
  ShowText();
}

void FormCodigo::Accept() {
  if (!IsOpen()) return;
  const std::string text = typed_.Text();
  const int form = target_.Form;
  host_.AcceptBegins(form, "Code " + caption_);
  StoreText(text);
  if (target_.What != CodeTarget::Sort::NamedItem) {
    if (event_row_ >= 0) {
      const std::string prefix = KeyPrefixOf(target_);
      const Event event = events_[static_cast<std::size_t>(event_row_)].Id;
      settings_.WriteEventIndex(kEventsSection, prefix, InfoOf(event).Suffix);
      settings_.WriteEventIndex(kEventsIndexSection, prefix,
                                NumberText(static_cast<std::int64_t>(event_row_)));
    }
    settings_.WriteEventIndex(kPanelState.Section, kPanelState.Key,
                              functions_visible_ ? kPanelOpen : kPanelClosed);
    const std::string name = BarNameOf(target_);
    if (text.empty()) {
      host_.DelBoockMarck(form, name);
    } else {
      host_.PopBoockMarck(form, name);
    }
  }
  // The code of an object that has gone leaves the events bar with its last event.
  if (left_behind_ && text.empty()) host_.DelBoockMarck(form, BarNameOf(target_));
  host_.CodeAccepted(form);
  Close();
}

void FormCodigo::Cancel() {
  if (IsOpen()) Close();
}

void FormCodigo::NameChanged(int form, std::string_view old_name, std::string_view new_name) {
  if (!IsOpen() || target_.Form != form || caption_ != old_name) return;
  if (target_.What != CodeTarget::Sort::Form && target_.What != CodeTarget::Sort::Object) return;
  caption_ = new_name;
  const bool is_form = target_.What == CodeTarget::Sort::Form;
  events_ = events_.empty()
                ? events_
                : EventRowsOf(is_form ? kFormWord : std::string_view(target_.KindWord), caption_);
}

void FormCodigo::Close() {
  typed_.Leave();
  target_ = {};
  events_.clear();
  event_row_ = -1;
  host_.Unload();
}

}  // namespace tarnwick::editor
