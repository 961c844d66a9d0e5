#include "codegen/object_init.h"

#include <array>
#include <span>
#include <string>

#include "codegen/form_init.h"
#include "model/units.h"
#include "text/code_page.h"

namespace tarnwick {

namespace {

/// One line with a whole number of the object's record.
struct RecordLine {
  std::string_view Text;
  std::int16_t ObjectRec::*Field;
};

using R = ObjectRec;

// The minus sign in front of a cursor number is part of the text, so cursor 0 reads "-0".
constexpr std::array kButtonLines{
    RecordLine{".Enabled = ", &R::Enabled}, RecordLine{".Visible = ", &R::Visible},
    RecordLine{".TabOrder = ", &R::TabOrder}, RecordLine{".Cursor = -", &R::Cursor}};
constexpr std::array kTextBoxLines{
    RecordLine{".Enabled = ", &R::Enabled}, RecordLine{".Visible = ", &R::Visible},
    RecordLine{".TabOrder = ", &R::TabOrder}, RecordLine{".ReadOnly = ", &R::ReadOnly}};
constexpr std::array kRichTextBoxLines{RecordLine{".Enabled = ", &R::Enabled},
                                       RecordLine{".Visible = ", &R::Visible},
                                       RecordLine{".TabOrder = ", &R::TabOrder},
                                       RecordLine{".WordWrap = ", &R::Icon},
                                       RecordLine{".ReadOnly = ", &R::ReadOnly},
                                       RecordLine{".ScrollBars = ", &R::ScrollBars},
                                       RecordLine{".HideScrollBars = ", &R::HideScrollBars}};
constexpr std::array kLabelLines{RecordLine{".Enabled = ", &R::Enabled},
                                 RecordLine{".Visible = ", &R::Visible},
                                 RecordLine{".Cursor = -", &R::Cursor}};
constexpr std::array kListBoxLines{RecordLine{".Enabled = ", &R::Enabled},
                                   RecordLine{".Visible = ", &R::Visible},
                                   RecordLine{".Cursor = -", &R::Cursor},
                                   RecordLine{".Columns = ", &R::Columns},
                                   RecordLine{".MultiSelect = ", &R::MultiSelect},
                                   RecordLine{".TabOrder = ", &R::TabOrder},
                                   RecordLine{".Sorted = ", &R::Sorted}};
constexpr std::array kComboBoxLines{
    RecordLine{".Enabled = ", &R::Enabled}, RecordLine{".Visible = ", &R::Visible},
    RecordLine{".Cursor = -", &R::Cursor}, RecordLine{".TabOrder = ", &R::TabOrder},
    RecordLine{".Sorted = ", &R::Sorted}};
constexpr std::array kImageLines{RecordLine{".Enabled = ", &R::Enabled},
                                 RecordLine{".Visible = ", &R::Visible},
                                 RecordLine{".Cursor = -", &R::Cursor}};
constexpr std::array kCheckLines{
    RecordLine{".Enabled = ", &R::Enabled}, RecordLine{".Visible = ", &R::Visible},
    RecordLine{".Checked = ", &R::Checked}, RecordLine{".TabOrder = ", &R::TabOrder}};
constexpr std::array kTimeLines{RecordLine{".Enabled = ", &R::Enabled},
                                RecordLine{".Interval = ", &R::Interval}};

std::span<const RecordLine> LinesOf(Kind kind) noexcept {
  switch (kind) {
    case Kind::Button:
      return kButtonLines;
    case Kind::TextBox:
      return kTextBoxLines;
    case Kind::RichTextBox:
      return kRichTextBoxLines;
    case Kind::Label:
      return kLabelLines;
    case Kind::ListBox:
      return kListBoxLines;
    case Kind::ComboBox:
      return kComboBoxLines;
    case Kind::Image:
      return kImageLines;
    case Kind::CheckBox:
    case Kind::OptionButton:
      return kCheckLines;
    case Kind::Time:
      return kTimeLines;
    case Kind::OpenDialog:
    case Kind::SaveDialog:
    case Kind::FileStream:
    case Kind::TransparentFrame:
    case Kind::HtmlViewer:
    case Kind::WinSock:
    case Kind::PopUpMenu:
    case Kind::Menu:
    case Kind::MenuItem:
    case Kind::Numero:
    case Kind::Frame:
    case Kind::Handle:
    case Kind::Form:
      break;
  }
  return {};
}

/// The name of a picture's resource. When no record names the picture, the object's own number
/// is used.
void WritePicture(Generation& gen, std::string_view name, std::string_view member, Kind kind,
                  std::string_view file, ImageIndex& images) {
  const int first = images.FindFirstImage(file);
  gen.Out.Line(name, member, gen.NumeroText(), InfoOf(kind).PictureWord,
               first != 0 ? first : int{gen.State.CurrentOrdinal}, "_Bmp");
}

void WriteButtonPicture(Generation& gen, std::string_view name, std::string_view file) {
  if (!HasPicturePath(file)) return;
  WritePicture(gen, name, ".BmpHandle = Frm", Kind::Button, file, gen.ButtonImages());
}

void WriteImagePicture(Generation& gen, std::string_view name, std::string_view file) {
  if (!HasPicturePath(file)) return;
  constexpr std::string_view kBitmap = "bmp";
  const bool bitmap = file.size() >= kBitmap.size() &&
                      EqualsFolded(file.substr(file.size() - kBitmap.size()), kBitmap);
  WritePicture(gen, name, bitmap ? ".BmpHandle = Frm" : ".IcoHandle = Frm", Kind::Image, file,
               gen.PictureImages());
}

void WriteListRows(Generation& gen, const DesignControl& control) {
  if (!HasListLines(control)) return;
  for (const std::string& row : control.Items) gen.Out.Line(control.Tag, ".AddItems ", Quoted{row});
}

/// The items of a combo box: pieces between double quotes or item ends; a last empty one is none.
void WriteComboItems(Generation& gen, std::string_view name, std::string_view items) {
  constexpr std::string_view kEnds{"\"\x95", 2};
  static_assert(kEnds[1] == kStoredLineBreak);
  while (true) {
    const std::size_t end = items.find_first_of(kEnds);
    if (end == std::string_view::npos && items.empty()) return;
    gen.Out.Line(name, ".Additems ", Quoted{items.substr(0, end)});
    if (end == std::string_view::npos) return;
    items.remove_prefix(end + 1);
  }
}

void WriteTimeHook(Generation& gen, std::string_view name, int ordinal) {
  if (gen.Code.OfObject(Kind::Time, ordinal).Of(Event::OnTimer).empty()) return;
  gen.Out.Line(name, ".OnTimer = ", SubNameOf(name, ordinal), "_OnTimer");
}

void WriteDialog(Generation& gen, std::string_view name, const ObjectRec& record) {
  gen.Out.Line(name, ".Caption = ", Quoted{record.Title});
  gen.Out.Line(name, ".Filter = ", Quoted{record.Filter});
  gen.Out.Line(name, ".InitialDir = ", Quoted{record.InitialDir});
  gen.Out.Line(name, ".FileName = ", Quoted{record.FileName});
}

void WriteWinSock(Generation& gen, std::string_view name, const WinSockRec& record) {
  gen.Out.Line(name, ".Parent = ", gen.Record().Name);
  gen.Out.Line(name, ".Family = ", record.Family);
  gen.Out.Line(name, ".Protocol = ", record.Protocol);
  gen.Out.Line(name, ".Type = ", record.Type);
  gen.Out.Line(name, ".WMessage = ", record.WMessage);
}

/// The viewer's object can only be made on a form that is visible, so the form is shown below the
/// screen for the moment and put back.
void WriteHtmlViewer(Generation& gen, const DesignControl& control, const HtmlViewerRec& record) {
  SourceText& out = gen.Out;
  const std::string& name = control.Tag;
  const FormRec& form = gen.Record();
  out.Line(form.Name, ".Visible = 1");
  out.Line(form.Name, ".Top = Screen.Height + 500");
  out.Line(name, ".Parent = ", form.Name);
  out.Line(name, ".Width = ", PixelsOf(control.Width));
  out.Line(name, ".Height = ", PixelsOf(control.Height));
  out.Line(name, ".Top = ", PixelsOf(control.Top));
  out.Line(name, ".Left = ", PixelsOf(control.Left));
  out.Line(name, ".createObject(\"Shell.Explorer.1\")");
  out.Line(form.Name, ".Visible = 0");
  WriteFormPlace(gen);
  if (!HasPicturePath(record.Navigate)) return;
  const std::string path = ResolveProjectPath(gen.Tables, record.Navigate, false);
  out.Line("Dim xpFl as qFileStream: Dim axp$ as string");
  out.Line("xpFl.Open (", Quoted{path}, ",2)");
  out.Line("for i = 0 to xpfl.linecount - 1");
  out.Line("axp$ = axp$ + xpfl.readline");
  out.Line("next i");
  out.Line("xpfl.close");
  out.Line("axp$ = \"about: \" + axp$");
  out.Line(name, ".Navigate(axp$)");
}

/// What a kind writes behind its record lines.
void WriteKindRest(Generation& gen, const DesignControl& control, const ObjectRec& record,
                   int ordinal) {
  switch (control.Id) {
    case Kind::Button:
      WriteButtonPicture(gen, control.Tag, record.ImageFile);
      gen.Out.Line(control.Tag, ".Layout = 2");
      break;
    case Kind::Label:
      gen.Out.Line(control.Tag, control.BackStyle == 0 ? ".Transparent = 1" : ".Transparent = 0");
      break;
    case Kind::ListBox:
      WriteListRows(gen, control);
      break;
    case Kind::ComboBox:
      WriteComboItems(gen, control.Tag, record.Items);
      break;
    case Kind::Image:
      WriteImagePicture(gen, control.Tag, record.ImageFile);
      break;
    case Kind::Time:
      WriteTimeHook(gen, control.Tag, ordinal);
      break;
    case Kind::OpenDialog:
      WriteDialog(gen, control.Tag, record);
      break;
    case Kind::SaveDialog:
      // Read at the number of the other dialog kind: a second save dialog shows the first one's
      // texts, or none.
      WriteDialog(
          gen, control.Tag,
          RecordOrEmpty(gen.Record().SaveDialogs, gen.State.KindCounters.Of(Kind::OpenDialog)));
      break;
    case Kind::WinSock:
      WriteWinSock(gen, control.Tag, RecordOrEmpty(gen.Record().WinSocks, ordinal));
      break;
    case Kind::HtmlViewer:
      WriteHtmlViewer(gen, control, RecordOrEmpty(gen.Record().HtmlViewers, ordinal));
      break;
    case Kind::CheckBox:
    case Kind::OptionButton:
    case Kind::TextBox:
    case Kind::RichTextBox:
    case Kind::FileStream:
    case Kind::TransparentFrame:
    case Kind::PopUpMenu:
    case Kind::Menu:
    case Kind::MenuItem:
    case Kind::Numero:
    case Kind::Frame:
    case Kind::Handle:
    case Kind::Form:
      break;
  }
}

}  // namespace

bool HasListLines(const DesignControl& control) noexcept {
  return control.Items.size() >= 2 && control.Items.front() != control.Tag;
}

void WriteObjectInit(Generation& gen, const DesignControl& control) {
  const Kind kind = control.Id;
  if (kind == Kind::TransparentFrame) return;
  KindCounters& counters = gen.State.KindCounters;
  const std::int16_t ordinal = kind == Kind::Label ? counters.Of(kind) : counters.Step(kind);
  gen.State.CurrentOrdinal = ordinal;
  static const ObjectRec empty{};
  const RecordArray<ObjectRec>* records = gen.Record().Objects(kind);
  const ObjectRec& record = records == nullptr ? empty : RecordOrEmpty(*records, ordinal);
  for (const RecordLine& line : LinesOf(kind)) {
    gen.Out.Line(control.Tag, line.Text, record.*line.Field);
  }
  WriteKindRest(gen, control, record, ordinal);
}

void WriteObjectHooks(Generation& gen, const DesignControl& control) {
  const int ordinal = gen.State.CurrentOrdinal;
  const OwnerCode code = gen.Code.OfObject(control.Id, ordinal);
  code.ForEach(kObjectEvents, [&](Event event, std::string_view text) {
    if (IsBlank(text)) return;
    gen.Out.Line(control.Tag, InfoOf(event).Suffix, " = ", SubNameOf(control.Tag, ordinal), "_",
                 InfoOf(event).Name);
  });
}

}  // namespace tarnwick
