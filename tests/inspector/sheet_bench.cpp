#include "inspector/sheet_bench.h"

namespace tarnwick {

const SupportTables& DeliveredRows() {
  static const SupportTables tables = [] {
    std::ifstream file(test::ProgramFolder() + "/Add004.tn", std::ios::binary);
    SupportTables read;
    AddKindFile(read, std::string{std::istreambuf_iterator<char>(file), {}});
    return read;
  }();
  return tables;
}

RecordingHost::RecordingHost(CallLog& log) : log_(log) {}

void RecordingHost::SelectObject(DesignForm& form, const ControlRef& control) {
  Select(form, control);
  log_.Add("select " + form.NameObjet);
}

void RecordingHost::borderstylea(DesignForm& /*form*/, std::int16_t style) {
  log_.Add("border " + std::to_string(style));
}

void RecordingHost::FormRecolored(DesignForm& /*form*/) {
  log_.Add("recolor");
}

void RecordingHost::PlaceChanged(DesignForm& form) {
  log_.Add("place " + std::to_string(form.Number()));
}

bool RecordingHost::PictureLoads(const std::string& path) {
  return Pictures.contains(path);
}

void RecordingHost::NameChanged(DesignForm& /*form*/, std::string_view old_name,
                                std::string_view new_name) {
  log_.Add("name " + std::string{old_name} + ">" + std::string{new_name});
}

void RecordingHost::OpenFormPopUp(DesignForm& /*form*/, int index) {
  log_.Add("popup " + std::to_string(index));
}

void RecordingHost::OpenFormAddItems(DesignForm& /*form*/) {
  log_.Add("items");
}

RecordingObserver::RecordingObserver(CallLog& log) : log_(log) {}

void RecordingObserver::FormChanged(int form) {
  log_.Add("form " + std::to_string(form));
}

void RecordingObserver::ControlsChanged(int form) {
  log_.Add("controls " + std::to_string(form));
}

void RecordingObserver::EventsBarChanged(int form) {
  log_.Add("bar " + std::to_string(form));
}

void RecordingObserver::FormListChanged() {
  log_.Add("list");
}

void CountingView::RowsChanged() {
  ++Rows;
}

void CountingView::SubjectChanged() {
  ++Subjects;
}

void CountingView::RowTextChanged(int row) {
  Texts.push_back(row);
}

void CountingView::ComboChanged() {
  ++Combos;
  if (Sheet != nullptr) Sheet->ChooseComboRow(Sheet->Combo().Selected());
}

SheetBench::SheetBench(const SupportTables& support)
    : Sheet(Tables, support, Given, Observer, Host, Steps) {
  Tables.ProgramFolder = "C:\\T";
  Tables.ProjectFile = "C:\\P\\a.tnp";
  Tables.CurrentForm = Tables.User(AddForm(Tables));
  Sheet.SetView(&View);
  Sheet.FillCombo();
}

SheetBench::~SheetBench() = default;

FormRec& SheetBench::Record() {
  return *Tables.Form(Form().Number());
}

ControlRef SheetBench::Make(Kind kind, float x, float y) {
  ControlRef control = CreateObject(Tables, Form(), kind, x, y);
  Pick(control);
  return control;
}

void SheetBench::Pick(const ControlRef& control) {
  Select(Form(), control);
  Sheet.ClearPanel();
  Sheet.ShowSelection();
}

ControlRef SheetBench::MakeOrForm(Kind kind) {
  if (kind != Kind::Form) return Make(kind);
  Pick(nullptr);
  return nullptr;
}

int SheetBench::RowOf(std::string_view name) const {
  for (int i = 0; i < Sheet.RowCount(); ++i) {
    if (EqualsFolded(Sheet.Label(i), name)) return i;
  }
  return -1;
}

const std::string& SheetBench::Text(std::string_view name) const {
  return Sheet.Text(RowOf(name));
}

bool SheetBench::Type(std::string_view row, std::string_view text) {
  Sheet.SelectRow(RowOf(row));
  return Sheet.ApplyText(text);
}

bool SheetBench::Choose(std::string_view row, int place) {
  Sheet.SelectRow(RowOf(row));
  const auto& rows = Sheet.List().Values();
  const auto at = static_cast<std::size_t>(place);
  return Sheet.ApplyChoice(at < rows.size() ? rows[at] : std::string{}, place);
}

void SheetBench::PressButton(std::string_view row) {
  Sheet.SelectRow(RowOf(row));
  Sheet.PickValue();
}

std::vector<std::string> SheetBench::Labels() const {
  std::vector<std::string> labels;
  for (int i = 0; i < Sheet.RowCount(); ++i) labels.emplace_back(Sheet.Label(i));
  return labels;
}

std::vector<std::string> SheetBench::ComboRows() const {
  std::vector<std::string> rows;
  for (const ObjectCombo::Row& row : Sheet.Combo().Rows()) rows.push_back(row.Text);
  return rows;
}

bool SheetBench::Logged(std::string_view entry) const {
  return Fakes.Log.Find(entry) >= 0;
}

}  // namespace tarnwick
