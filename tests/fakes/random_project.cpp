#include "fakes/random_project.h"

namespace tarnwick::test {

RandomProject::RandomProject(std::uint32_t seed) : RandomParts(seed) {}
RandomProject::~RandomProject() = default;

void RandomProject::Fill(ProjectBuilder& project, const RandomProjectShape& shape) {
  shape_ = shape;
  for (int i = 0; i < shape.Forms; ++i) AddForm(project);
  project.Tables.MainFormName = project.Tables.ListaFrms.Lines().front().Text;
}

std::int16_t RandomProject::Short() {
  return static_cast<std::int16_t>(Below(65536) - 32768);
}

std::int32_t RandomProject::Color() {
  return static_cast<std::int32_t>(Any());
}

std::string RandomProject::Text(int longest) {
  static constexpr std::string_view kPlain =
      "abcdefghijklmnopqrstuvwxyzABCXYZ0123456789 ,,.;:'\"\\/&%$#=+-_\xE9\xFC\xA7\x9F\t";
  static constexpr std::string_view kAny =
      "ab, <>()[]{}\x8D\x8C\x8E\x8F\x95\r\n#*top<>left<string>\"'\\";
  return TextOf(!shape_.Holdable && Chance(30) ? kAny : kPlain, longest);
}

std::string RandomProject::Code() {
  std::string code;
  for (int lines = Below(5); lines > 0; --lines) {
    code += Text(30);
    if (lines > 1) code += "\r\n";
  }
  return code;
}

std::string RandomProject::Rows() {
  std::string rows;
  for (int n = Below(5); n > 0; --n) rows += Text(8) + '\x95';
  return rows;
}

void RandomProject::AddForm(ProjectBuilder& project) {
  const BuiltForm form = project.AddForm(Name("Frm"));
  FormRec& record = form.Record();
  record.FileName = "C:\\Work\\" + record.Name + ".ftn";
  project.Tables.ListaFrms.SetText(form.Number, FormListText(record.Name, record.FileName));
  FillForm(form);
  times_ = 0;
  for (int i = 0; i < shape_.ObjectsPerForm; ++i) {
    AddObject(project, form, static_cast<Kind>(Below(static_cast<int>(kObjectKindCount))));
  }
  if (Chance(60)) AddMenu(form);
}

void RandomProject::FillForm(const BuiltForm& form) {
  FormRec& record = form.Record();
  record.Left = Short();
  record.Top = Short();
  record.Width = static_cast<std::int16_t>(Below(32767));
  record.Height = static_cast<std::int16_t>(Below(32767));
  form.User().Width = static_cast<float>(record.Width) * kTwipsPerPixel;
  form.User().Height = static_cast<float>(record.Height) * kTwipsPerPixel;
  record.Visible = Short();
  record.Hint = Text(20);
  record.Cursor = Short();
  record.BorderStyle = Short();
  record.Center = static_cast<std::int16_t>(Below(2));
  record.WndState = Short();
  if (Chance(30)) record.IconFile = "C:\\icons\\a.ico";
  if (Chance(30)) record.ImageFile = "back.bmp";
  record.TfAlign = Short();
  record.TfCursor = Short();
  record.TfLeft = Short();
  record.TfTop = Short();
  record.TfWidth = Short();
  record.TfHeight = Short();
  record.TfTransparency = Short();
  record.TfTranspColor = Color();
  record.DeclarePbl = Code();
  form.User().Caption = Text(20);
  form.User().BackColor = Color();
  for (const Event event : ListOf(EventListId::Form).Events) {
    if (Chance(40)) form.Code(event, Code());
  }
}

void RandomProject::AddObject(ProjectBuilder& project, const BuiltForm& form, Kind kind) {
  // A socket takes the number of the record before it: a timer of the same number, if it is to
  // be found again.
  if (kind == Kind::WinSock && shape_.Holdable) {
    if (times_ != form.User().UBound(Kind::WinSock)) return;
    AddObject(project, form, Kind::Time);
  } else if (kind == Kind::Time && shape_.Holdable && times_ != form.User().UBound(Kind::WinSock)) {
    return;
  }
  if (kind == Kind::Time) ++times_;
  BuiltObject object = form.Add(kind, Name(InfoOf(kind).Prefix));
  FillControl(object.Control);
  FillRecord(object.Record);
  for (const Event event : ListOf(InfoOf(kind).Events).Events) {
    if (Chance(50)) object.Code(event, Code());
  }
  const int number = object.Control.Index;
  if (kind == Kind::WinSock) {
    *form.Record().WinSocks.Ensure(number) = {Text(8), Text(8), Text(8), Text(4)};
  } else if (kind == Kind::HtmlViewer) {
    form.Record().HtmlViewers.Ensure(number)->Navigate = Text(12);
  } else if (kind == Kind::PopUpMenu) {
    *form.Record().PopUps.Ensure(number) = {Short(), Short(), Text(8)};
    FillPopUp(project, form, number);
  }
  if (!shape_.Holdable && Chance(10)) object.Delete();
}

void RandomProject::FillControl(DesignControl& control) {
  const auto place = [this] { return static_cast<float>(Below(4000) - 500) * kTwipsPerPixel; };
  control.Left = place();
  control.Top = place();
  control.Width = place();
  control.Height = place();
  control.Caption = Text(20);
  control.Text = Text(20);
  control.ToolTipText = Text(20);
  control.FontName = Text(12);
  control.FontSize = static_cast<float>(Below(200)) / 4.0F;
  control.FontBold = Chance(50);
  control.FontItalic = Chance(50);
  control.ForeColor = Color();
  control.BackColor = Color();
  control.BorderStyle = Short();
  control.Appearance = Short();
  control.BackStyle = Short();
  control.AutoSize = Chance(50);
  control.Stretch = Chance(50);
  control.Value = Chance(50) ? std::int16_t{1} : std::int16_t{0};
  if (control.Id == Kind::OptionButton) control.Value = static_cast<std::int16_t>(-control.Value);
}

void RandomProject::FillRecord(ObjectRec& record) {
  for (std::int16_t ObjectRec::*field :
       {&ObjectRec::Interval, &ObjectRec::Sorted, &ObjectRec::MultiSelect,
        &ObjectRec::HideScrollBars, &ObjectRec::Icon, &ObjectRec::ScrollBars, &ObjectRec::Visible,
        &ObjectRec::Enabled, &ObjectRec::Cursor, &ObjectRec::Columns, &ObjectRec::TabOrder,
        &ObjectRec::ReadOnly}) {
    record.*field = Short();
  }
  record.Title = Text(12);
  record.Filter = Text(12);
  record.InitialDir = Text(12);
  record.FileName = Text(12);
  record.ImageFile = Chance(50) ? "(None)" : Text(6) + ".bmp";
  record.Items = Rows();
  record.FontColor = Color();
}

void RandomProject::AddMenu(const BuiltForm& form) {
  for (int n = 1 + Below(3); n > 0; --n) {
    AddTitleControl(form.User(), Text(8), Name("mnu"));
    for (int item = Below(4); item > 0; --item) {
      const std::string name = Name("itm");
      AddItemControl(form.User(), (Chance(30) ? "..." : "") + ("z" + Text(8)), name);
      if (Chance(50)) form.ItemCode(name, Code());
    }
  }
}

}  // namespace tarnwick::test
