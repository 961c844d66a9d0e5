#include "random_user.h"

#include <algorithm>
#include <iterator>

#include "designer/tool_box.h"
#include "editor/form_codigo.h"
#include "inspector/form_add_items.h"
#include "project/save_project.h"
#include "shell/events_bar.h"
#include "text/numbers.h"
#include "text/strings.h"

namespace tarnwick {

namespace {

constexpr float kTwips = 15;

/// What the code window asks of the main window.
class CodeHost final : public editor::CodeHost, public menus::CodeOpener {
 public:
  explicit CodeHost(MDIForm1& main) : main_(main) {}
  void PopBoockMarck(int form, std::string_view name) override {
    main_.Bar().PopBoockMarck(form, name);
  }
  void DelBoockMarck(int form, std::string_view name) override {
    main_.Bar().DelBoockMarck(form, name);
  }
  void AcceptBegins(int form, std::string_view step) override { main_.Steps().Begin(form, step); }
  void CodeAccepted(int /*form*/) override { main_.Steps().End(); }
  void Unload() override {}
  void OpenCode() override {}

 private:
  MDIForm1& main_;
};

}  // namespace

void RandomUser::Did(std::string deed) {
  deeds_.push_back(std::move(deed));
}

std::string RandomUser::Deeds() const {
  constexpr std::size_t kShown = 25;
  std::string text = "seed " + std::to_string(seed_) + ", last deeds:\n";
  for (std::size_t i = deeds_.size() > kShown ? deeds_.size() - kShown : 0; i < deeds_.size();
       ++i) {
    text.append(deeds_[i]).append("\n");
  }
  return text;
}

std::vector<ControlRef> RandomUser::Objects() {
  std::vector<ControlRef> objects;
  if (Form() == nullptr) return objects;
  for (const ControlRef& control : Form()->Controls()) {
    const auto kind = static_cast<std::size_t>(control->Id);
    if (kind < kObjectKindCount && control->Index > 0) objects.push_back(control);
  }
  return objects;
}

void RandomUser::Act() {
  switch (Below(23)) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
      return PutObject();
    case 5:
    case 6:
      return PressObject();
    case 7:
    case 8:
      return DragObject();
    case 9:
    case 10:
      return PressKey();
    case 11:
    case 12:
    case 13:
      return RunCommand();
    case 14:
      return EditCode();
    case 15:
    case 16:
      return EditProperty();
    case 17:
      return ChooseForm();
    case 18:
      return AddOrRemoveForm();
    case 19:
      return EditMenu();
    case 20:
      return EditPopUp();
    case 21:
      return SizeWindow();
    default:
      return SaveOrStartAnew();
  }
}

void RandomUser::PutObject() {
  if (Objects().size() >= kMostObjects) return;
  const auto tools = AllTools();
  const ToolInfo& tool = tools[static_cast<std::size_t>(Below(static_cast<int>(tools.size())))];
  if (tool.Number == kFormTool && !ChangesForms) return;
  if (tool.Number == kFormTool && main_.Tables().ListaFrms.Lines().size() >= kMostForms) return;
  // A WinSock has no number in a file: reading puts its values under that of the line before.
  if (tool.Objeto == "WinSock") return;
  main_.Commands().PressTool(tool.Number);
  FormUser* surface = main_.CurrentUser();
  if (surface == nullptr) return;
  const int x = Below(380);
  const int y = Below(300);
  surface->Gestures().Form_MouseDown(kLeftButton, 0, static_cast<float>(x) * kTwips,
                                     static_cast<float>(y) * kTwips);
  surface->Gestures().MouseUp();
  Did("place " + std::string(tool.Tip) + " at " + std::to_string(x) + "," + std::to_string(y));
}

void RandomUser::PressObject() {
  const std::vector<ControlRef> objects = Objects();
  if (objects.empty()) return;
  const ControlRef object =
      objects[static_cast<std::size_t>(Below(static_cast<int>(objects.size())))];
  FormUser* surface = main_.CurrentUser();
  surface->Gestures().ObjectMouseDown(object, Below(8) == 0 ? kRightButton : kLeftButton, 0, 30,
                                      30);
  surface->Gestures().MouseUp();
  Did("press " + object->Tag);
}

void RandomUser::DragObject() {
  const std::vector<ControlRef> objects = Objects();
  if (objects.empty() || !SetCursor) return;
  const ControlRef object =
      objects[static_cast<std::size_t>(Below(static_cast<int>(objects.size())))];
  FormUser* surface = main_.CurrentUser();
  const int form = surface->Number();
  SetCursor(form, {100, 100});
  surface->Gestures().ObjectMouseDown(object, kLeftButton, 0, 30, 30);
  if (Below(2) == 0) {
    surface->Gestures().MouseUp();
    surface->Gestures().HandleMouseDown(Below(8), kLeftButton);
  }
  SetCursor(form, {Below(300), Below(300)});
  surface->Gestures().MouseMove();
  surface->Gestures().MouseUp();
  Did("drag " + object->Tag);
}

void RandomUser::PressKey() {
  FormUser* surface = main_.CurrentUser();
  if (surface == nullptr) return;
  struct Key {
    int Code;
    int Shift;
  };
  static constexpr Key kKeys[]{
      {keys::kLeft, 0},      {keys::kDown, 0},          {keys::kRight, kCtrlBit},
      {keys::kUp, kCtrlBit}, {keys::kRight, kShiftBit}, {keys::kDown, kShiftBit},
      {keys::kTab, 0},       {keys::kTab, kShiftBit},   {keys::kC, kCtrlBit},
      {keys::kV, kCtrlBit},  {keys::kX, kCtrlBit},      {keys::kDelete, 0}};
  const Key& key = kKeys[static_cast<std::size_t>(Below(static_cast<int>(std::size(kKeys))))];
  if (key.Code == keys::kV && Objects().size() >= kMostObjects) return;
  surface->Keys().KeyDown(key.Code, key.Shift);
  Did("key " + std::to_string(key.Code) + " with " + std::to_string(key.Shift));
}

void RandomUser::RunCommand() {
  static constexpr Command kCommands[]{
      Command::Cut,         Command::Copy,      Command::Paste,        Command::Copy,
      Command::Paste,       Command::Delete,    Command::BringToFront, Command::StayBack,
      Command::AlignToGrid, Command::Lock,      Command::Lock,         Command::Properties,
      Command::Forms,       Command::EventsBar, Command::ObjectBar,    Command::Compile};
  const Command command =
      kCommands[static_cast<std::size_t>(Below(static_cast<int>(std::size(kCommands))))];
  if (command == Command::Paste && Objects().size() >= kMostObjects) return;
  if (command == Command::Compile && main_.Tables().AccionProject != "save") return;
  Did("run " + std::string(MenuRowOf(command)->Name));
  if (command == Command::Compile && !Saves) return;
  if (command == Command::Compile) {
    Save();
    return;
  }
  main_.Commands().Run(command);
}

/// Code of an object or of the form, typed into its window and accepted or not.
void RandomUser::EditCode() {
  FormUser* surface = main_.CurrentUser();
  if (surface == nullptr) return;
  const std::vector<ControlRef> objects = Objects();
  if (objects.empty() || Below(4) == 0) {
    surface->SelectForm();
  } else {
    surface->SelectObject(
        objects[static_cast<std::size_t>(Below(static_cast<int>(objects.size())))]);
  }
  CodeHost host(main_);
  editor::CodeDrafts drafts(main_.Tables());
  editor::FormCodigo window(main_.Tables(), main_.Support(), main_.SettingsFile(), code_text_, host,
                            drafts);
  window.Open();
  const int events = static_cast<int>(window.Events().size());
  if (events > 1 && Below(3) == 0) {
    window.Events_Click(Below(events));
    window.Cancel();
    return Did("look at the code of " + Form()->NameObjet);
  }
  if (events > 1) {
    // Opened at another event: a look at the default one would be a deed of its own.
    const auto row = static_cast<std::size_t>(Below(events));
    main_.Tables().JumpKey = InfoOf(window.Events()[row].Id).Name;
    window.Cancel();
    window.Open();
  }
  std::string code = "x = " + std::to_string(Below(100)) + "\r\nPrint x, \"done\"";
  if (Below(5) == 0) code.clear();
  code_text_.SetText(code);
  const bool keeps = Below(5) != 0;
  if (keeps) {
    window.Accept();
  } else {
    window.Cancel();
  }
  Did(std::string(keeps ? "accept" : "cancel") + " code of " + Form()->NameObjet);
}

/// Rows typed into a designer of menus, some of them moved, deleted or made deeper.
void RandomUser::EditRows(menus::MenuDesigner& designer) {
  menus::RowList& list = designer.List();
  for (int i = 1 + Below(6); i > 0; --i) {
    const std::string name = "mnu" + std::to_string(++names_given_);
    switch (Below(8)) {
      case 0:
        list.Indent();
        break;
      case 1:
        list.Outdent();
        break;
      case 2:
        list.DeleteRow();
        break;
      case 3:
        list.Select(Below(static_cast<int>(list.ListMenu().size()) + 1));
        list.Up();
        break;
      default:
        list.SetTexts({Below(5) == 0 ? "-" : "&Row, " + name, name});
        list.Enter();
        break;
    }
  }
  if (Below(8) == 0) list.DeleteAll();
  if (Below(6) != 0) designer.Ok();
}

void RandomUser::EditMenu() {
  if (Form() == nullptr) return;
  menus::FormMenu designer(main_.Context(), main_.Steps(), Form()->Number());
  EditRows(designer);
  Did("menu bar");
}

void RandomUser::EditPopUp() {
  for (const ControlRef& object : Objects()) {
    if (object->Id != Kind::PopUpMenu || Below(2) == 0) continue;
    CodeHost host(main_);
    menus::FormPopUp designer(main_.Context(), main_.Steps(), host, Form()->Number(),
                              object->Index);
    EditRows(designer);
    return Did("rows of " + object->Tag);
  }
}

/// The design window is dragged by its border, rolled up or maximised.
void RandomUser::SizeWindow() {
  FormUser* surface = main_.CurrentUser();
  if (surface == nullptr) return;
  static constexpr WindowState kStates[]{WindowState::Normal, WindowState::Normal,
                                         WindowState::Minimised, WindowState::Maximised};
  const WindowState state = kStates[Below(4)];
  for (int i = 1 + Below(3); i > 0; --i) {
    surface->Frame().Form_Resize(static_cast<float>(150 + Below(500)) * kTwips,
                                 static_cast<float>(120 + Below(400)) * kTwips, state);
  }
  surface->Frame().ResizeEnded();
  Did("size the window, state " + std::to_string(static_cast<int>(state)));
}

/// Edits a row in one of the ways that its type has.
void RandomUser::EditProperty() {
  PropertySheet& sheet = main_.Sheet();
  if (Form() == nullptr || !main_.Commands().PanelShown(Panel::Properties)) return;
  if (sheet.RowCount() == 0) return;
  const int row = Below(sheet.RowCount());
  sheet.SelectRow(row);
  const std::string label = std::string(sheet.Label(row)) + " of " + sheet.SelName();
  const std::vector<std::string> values = sheet.List().Values();
  if (!values.empty() && Below(4) != 0) {
    const int place = Below(static_cast<int>(values.size()));
    sheet.ApplyChoice(values[static_cast<std::size_t>(place)], place);
    return Did("choose in " + label + " " + std::to_string(place));
  }
  switch (sheet.RowMark(row)) {
    case row_mark::kFont:
      ports_.Dialogs.FontAnswers.push_back(FontChoice{"Font " + std::to_string(Below(3)),
                                                      static_cast<float>(8 + Below(4)),
                                                      Below(2) == 0, Below(2) == 0, Below(1000)});
      sheet.PickValue();
      return Did("pick " + label);
    case row_mark::kColor:
      if (Below(2) == 0) break;
      ports_.Dialogs.ColorAnswers.push_back(Below(0xFFFFFF));
      sheet.PickValue();
      return Did("pick " + label);
    case row_mark::kItems:
      EditItems();
      return Did("items of " + sheet.SelName());
    default:
      break;
  }
  if (sheet.Boton3Shown() && Below(3) == 0) {
    sheet.ResetValue();
    return Did("reset " + label);
  }
  TypeIntoRow(row);
  Did("type into " + label + ": " + sheet.Text(row));
}

/// Types key by key; the user may put the value back, or stay in the row.
void RandomUser::TypeIntoRow(int row) {
  PropertySheet& sheet = main_.Sheet();
  if (!sheet.TakesTyping(row)) return;
  static constexpr std::string_view kTexts[]{"10",     "57",        "140",    "99999999999",
                                             "-3",     "Two words", "clRed",  "$00FF80",
                                             "&HFF00", "True",      "(none)", "a, b and c"};
  std::string text(kTexts[static_cast<std::size_t>(Below(static_cast<int>(std::size(kTexts))))]);
  if (row == 0) text = "Name" + std::to_string(++names_given_);
  // A path within the project is stored whole by reading.
  if (sheet.IsPath(row)) text = Below(3) == 0 ? "(none)" : "Z:\\soak\\" + text;
  for (std::size_t keys = 1; keys <= text.size(); ++keys) sheet.ApplyText(text.substr(0, keys));
  if (Below(6) == 0) sheet.Revert();
  if (Below(3) != 0) sheet.LeaveRow();
}

void RandomUser::EditItems() {
  const ControlRef& list = Form()->ControlSel;
  if (!list || list->Id == Kind::PopUpMenu) return;
  FormAddItems dialog(main_.Tables(), main_.Context().Observer, main_.Steps(), *Form());
  std::string lines;
  for (int i = Below(4); i >= 0; --i) lines += "Item " + std::to_string(Below(100)) + "\r\n";
  dialog.Ok(lines);
}

void RandomUser::ChooseForm() {
  const int lines = static_cast<int>(main_.Tables().ListaFrms.Lines().size());
  if (lines == 0) return;
  const int place = Below(lines);
  main_.Forms().SelectLine(place);
  Did("form line " + std::to_string(place));
}

void RandomUser::AddOrRemoveForm() {
  if (!ChangesForms) return;
  if (main_.Tables().ListaFrms.Lines().size() >= kMostForms || Below(3) == 0) {
    const bool yes = Below(2) == 0;
    ports_.Messages.Answers.push_back(yes);
    main_.Commands().Run(Command::Remove);
    ports_.Messages.Answers.clear();
    Did(std::string("remove the form, answer ") + (yes ? "yes" : "no"));
  } else {
    main_.Commands().Run(Command::AddNewForm);
    Did("add a form");
  }
}

void RandomUser::SaveOrStartAnew() {
  if (!Saves) return;
  switch (Below(12)) {
    case 0:
      if (!StartsAnew) return;
      ports_.Messages.Answers = {false};
      main_.Commands().Run(Command::New);
      ports_.Messages.Answers.clear();
      Did("new project");
      break;
    case 1:
      main_.Commands().Run(Command::Open);
      Did("open, cancelled");
      break;
    default:
      Save();
      Did("save");
      break;
  }
}

void RandomUser::Save() {
  ProjectTables& tables = main_.Tables();
  const std::string folder = "Z:\\soak\\";
  auto& answers = ports_.Dialogs.SaveAnswers;
  answers.clear();
  if (tables.ProjectFile.starts_with(tables.ProgramFolder)) {
    answers.emplace_back(folder + "p" + std::to_string(++names_given_) + ".tnp");
  }
  for (const FormList::Line& line : tables.ListaFrms.Lines()) {
    if (tables.Form(line.FormNumber)->FileName.empty()) {
      answers.emplace_back(folder + "f" + std::to_string(++names_given_) + ".ftn");
    }
  }
  main_.Commands().Run(Below(3) == 0 ? Command::Compile : Command::Save);
  answers.clear();
}

std::map<std::string, std::string> RandomUser::SavedFiles() const {
  const ProjectTables& tables = main_.Tables();
  std::map<std::string, std::string> files;
  for (const FormList::Line& line : tables.ListaFrms.Lines()) {
    const std::string& path = tables.Form(line.FormNumber)->FileName;
    std::string bytes = ports_.Files.Bytes(path).value_or("not there");
    // A removal leaves a gap in the numbers that reading closes.
    const std::size_t open = bytes.find('(');
    const std::size_t close = bytes.find(')');
    if (bytes.starts_with("[Form]")) bytes.replace(open, close - open, "(");
    // The entries of a menu bar stand for empty lines wherever they were made; reading a file puts
    // them behind the objects.
    while (Contains(bytes, "\r\n\r\n")) bytes = ReplaceAll(bytes, "\r\n\r\n", "\r\n");
    files[path] = std::move(bytes);
  }
  return files;
}

std::map<std::string, std::string> RandomUser::Saved() {
  Save();
  return SavedFiles();
}

std::string RandomUser::SaveAndReload() {
  if (main_.Tables().ListaFrms.Empty()) main_.Commands().Run(Command::AddNewForm);
  Save();
  const std::map<std::string, std::string> saved = SavedFiles();
  ports_.Dialogs.OpenAnswers = {main_.Tables().ProjectFile};
  main_.Commands().Run(Command::Open);
  Did("save and open again");
  for (std::size_t i = 0; i < main_.Tables().ListaFrms.Lines().size(); ++i) {
    main_.Forms().SelectLine(static_cast<int>(i));
    objects_read_ += Objects().size();
  }
  if (std::string fault = Fault(); !fault.empty()) return fault;
  Save();
  for (const auto& [path, bytes] : SavedFiles()) {
    const auto before = saved.find(path);
    if (before == saved.end()) return path + " was not saved before";
    if (before->second == bytes) continue;
    const auto [old_at, new_at] =
        std::mismatch(before->second.begin(), before->second.end(), bytes.begin(), bytes.end());
    const auto place = static_cast<std::size_t>(new_at - bytes.begin());
    const std::size_t from = place < 300 ? 0 : place - 300;
    return path + " differs at " + std::to_string(place) + ":\n" +
           before->second.substr(from, 400) + "\n--- is now ---\n" + bytes.substr(from, 400);
  }
  if (SavedFiles().size() != saved.size()) return "a form was lost";
  return {};
}

std::string RandomUser::FaultOfForm(int number) const {
  const DesignForm* form = main_.Tables().UserIfAny(number);
  if (form == nullptr) return "form without a window";
  if (form->Number() != number) return "window with another number";
  if (const ControlRef& selected = form->ControlSel) {
    const auto& controls = form->Controls();
    if (std::find(controls.begin(), controls.end(), selected) == controls.end()) {
      return "selection of a control that is gone";
    }
    std::string name(InfoOf(selected->Id).NameWord);
    if (selected->Id != Kind::TransparentFrame) name += NumberText(std::int64_t{selected->Index});
    if (form->NameObjet != name) return "NameObjet " + form->NameObjet + " for " + name;
    if (form->IndexObjet != selected->Index) return "another IndexObjet than " + name;
  } else if (form->NameObjet != "Form") {
    return "NameObjet " + form->NameObjet + " without a control";
  }
  return {};
}

std::string RandomUser::Fault() const {
  const ProjectTables& tables = main_.Tables();
  if (tables.LoadingProject != 0) return "LoadingProject is left on";
  if (!main_.Commands().State(Command::New).Enabled) return "commands are left off";
  int before = 0;
  for (const FormList::Line& line : tables.ListaFrms.Lines()) {
    if (line.FormNumber <= before) return "lines out of order";
    before = line.FormNumber;
    if (!tables.IsLive(line.FormNumber)) return "line of a form that is gone";
    if (std::string fault = FaultOfForm(line.FormNumber); !fault.empty()) return fault;
  }
  for (int form = 1; form <= tables.FormsCount; ++form) {
    if (tables.IsLive(form) != (tables.ListaFrms.PositionOf(form) >= 0))
      return "form without a line";
  }
  if ((tables.CurrentForm == nullptr) != tables.ListaFrms.Empty()) return "no current form";
  const DesignForm* form = tables.CurrentForm;
  int down = 0;
  for (const ToolInfo& tool : AllTools())
    down += main_.Commands().ToolState(tool.Number).Checked ? 1 : 0;
  if (down != 1) return std::to_string(down) + " tools are down";
  const bool has_frame = form != nullptr && form->HasObjects(Kind::TransparentFrame);
  if (main_.Commands().ToolState(kTransparentFrameTool).Enabled == has_frame)
    return "tool 15 is wrong";
  for (const std::string& entry : ports_.Log.Entries()) {
    if (entry.starts_with("show ") && !entry.starts_with("show Need to Unblock")) return entry;
  }
  return {};
}

}  // namespace tarnwick
