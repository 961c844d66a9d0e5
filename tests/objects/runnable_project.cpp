#include "objects/runnable_project.h"

namespace tarnwick::test {

RunnableProject::RunnableProject(std::uint32_t seed) : RandomParts(seed) {}
RunnableProject::~RunnableProject() = default;

void RunnableProject::Fill(ProjectBuilder& project) {
  const int forms = 1 + Below(3);
  for (int n = 0; n < forms; ++n) AddForm(project, n == 0);
  project.Tables.CurrentForm = project.Tables.User(1);
}

std::int16_t RunnableProject::Small(int limit) {
  return static_cast<std::int16_t>(Below(limit));
}

std::int32_t RunnableProject::Color() {
  return static_cast<std::int32_t>(Below(0x1000000));
}

std::string RunnableProject::Text(int longest) {
  static constexpr std::string_view kLetters =
      "abcdefghijklmnopqrstuvwxyzABCXYZ0123456789 ,.;:'\\/&%$#=+-_()<>\xE9\xFC\xA7";
  return TextOf(kLetters, longest);
}

std::string RunnableProject::Code() {
  static constexpr std::string_view kCodes[] = {
      "", "Dim n As Integer\r\nn = n + 1", "If Screen.Width > 1 Then Exit Sub",
      "For k = 1 To 3\r\nNext k", "' nothing\r\nDoEvents"};
  return std::string(kCodes[static_cast<std::size_t>(Below(5))]);
}

void RunnableProject::AddForm(ProjectBuilder& project, bool first) {
  const BuiltForm form = project.AddForm(Name("Frm"));
  FormRec& record = form.Record();
  record.FileName = "C:\\Work\\" + record.Name + ".ftn";
  project.Tables.ListaFrms.SetText(form.Number, FormListText(record.Name, record.FileName));
  record.Left = Small(800);
  record.Top = Small(600);
  record.Width = static_cast<std::int16_t>(100 + Below(700));
  record.Height = static_cast<std::int16_t>(100 + Below(500));
  record.Hint = Text(20);
  record.Cursor = Small(22);
  record.BorderStyle = Small(6);
  record.Center = Small(2);
  record.WndState = Small(3);
  record.ImageFile = "(Default)";
  form.User().Caption = Text(20);
  form.User().BackColor = Color();
  for (const Event event : ListOf(EventListId::Form).Events) {
    if (Chance(40)) form.Code(event, Code());
  }
  if (first) {
    for (const Kind kind : kKinds) AddObject(project, form, kind);
    project.Tables.MainFormName = project.Tables.ListaFrms.Lines().front().Text;
  }
  for (int n = Below(15); n > 0; --n) {
    const Kind kind = kKinds[static_cast<std::size_t>(Below(std::size(kKinds)))];
    // The rows of popup menus are counted over the forms: a second form's would be the first's.
    if (first || kind != Kind::PopUpMenu) AddObject(project, form, kind);
  }
  if (first && Chance(60)) AddMenu(project, form);
}

void RunnableProject::AddObject(ProjectBuilder& project, const BuiltForm& form, Kind kind) {
  BuiltObject object = form.Add(kind, Name(InfoOf(kind).Prefix));
  DesignControl& control = object.Control;
  control.Left = static_cast<float>((Below(1000) - 100) * kTwipsPerPixel);
  control.Top = static_cast<float>((Below(1000) - 100) * kTwipsPerPixel);
  control.Width = static_cast<float>(Below(600) * kTwipsPerPixel);
  control.Height = static_cast<float>(Below(600) * kTwipsPerPixel);
  // Half a pixel now and then.
  if (Chance(20)) control.Left += static_cast<float>(kTwipsPerPixel) / 2;
  control.Caption = Text(20);
  control.Text = Text(20);
  control.ToolTipText = Text(20);
  control.FontName = Text(12);
  control.FontSize = static_cast<float>(1 + Below(40));
  control.FontBold = Chance(50);
  control.FontItalic = Chance(50);
  control.ForeColor = Color();
  control.BackColor = Color();
  control.BorderStyle = Small(2);
  control.Appearance = Small(2);
  control.BackStyle = Small(2);
  control.AutoSize = Chance(50);
  control.Stretch = Chance(50);
  for (int n = Below(5); n > 0; --n) control.Items.push_back("row " + Text(8));
  FillRecord(object.Record);
  if (kind == Kind::ComboBox) object.Record.Items = Rows();
  for (const Event event : ListOf(InfoOf(kind).Events).Events) {
    if (Chance(50)) object.Code(event, Code());
  }
  if (kind == Kind::PopUpMenu) {
    *form.Record().PopUps.Ensure(control.Index) = {Small(3), Small(2), form.Record().Name};
    FillPopUp(project, form, control.Index);
  }
}

void RunnableProject::FillRecord(ObjectRec& record) {
  record.Interval = Small(5000);
  record.Checked = Small(2);
  record.Sorted = Small(2);
  record.MultiSelect = Small(2);
  record.HideScrollBars = Small(2);
  record.Icon = Small(2);
  record.ScrollBars = Small(4);
  record.Visible = Small(2);
  record.Enabled = Small(2);
  record.Cursor = Small(22);
  record.Columns = Small(4);
  record.TabOrder = Small(30);
  record.ReadOnly = Small(2);
  record.FontColor = Color();
  record.Title = Text(12);
  record.Filter = Text(12);
  record.InitialDir = Text(12);
  record.FileName = Text(12);
  record.ImageFile = "(None)";
}

std::string RunnableProject::Rows() {
  std::string rows;
  for (int n = Below(5); n > 0; --n) rows += "r" + Text(8) + '\x95';
  return rows;
}

void RunnableProject::AddMenu(ProjectBuilder& project, const BuiltForm& form) {
  for (int n = 1 + Below(3); n > 0; --n) {
    project.Title(Name("mnu"), Text(8));
    for (int item = Below(4); item > 0; --item) {
      const std::string name = Name("itm");
      project.Item(name, (Chance(30) ? "..." : "") + ("z" + Text(8)));
      if (Chance(50)) form.ItemCode(name, Code());
    }
  }
  BuildMenuControls(project.Tables, form.User());
}

}  // namespace tarnwick::test
