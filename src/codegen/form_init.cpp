#include "codegen/form_init.h"

#include "codegen/menu_init.h"
#include "codegen/object_init.h"
#include "codegen/object_lines.h"
#include "model/control_walk.h"

namespace tarnwick {

namespace {

/// Kinds that write their kind lines only: no common lines and no hooks.
constexpr KindSet kKindLinesOnly =
    KindSet::Of(Kind::TransparentFrame, Kind::OpenDialog, Kind::SaveDialog, Kind::Time,
                Kind::HtmlViewer, Kind::WinSock);

/// What the walk passes over: controls that are no objects, items under a title of the menu bar,
/// and the kind that has a declaration and nothing else.
constexpr KindSet kPassedOver = KindSet::Of(Kind::FileStream, Kind::MenuItem, Kind::Frame,
                                            Kind::Numero, Kind::Handle, Kind::Form);

void WriteFormLines(Generation& gen) {
  SourceText& out = gen.Out;
  const FormRec& form = gen.Record();
  WriteFormPlace(gen);
  if (form.ImageFile == kDefaultFile) {
    out.Line(form.Name, ".IcoHandle = Default_Icon");
  } else {
    out.Line(form.Name, ".IcoHandle = Form", gen.State.i, "_Icon");
  }
  out.Line(form.Name, ".Width = ", form.Width);
  out.Line(form.Name, ".Height = ", form.Height);
  out.Line(form.Name, ".BorderStyle = ", form.BorderStyle);
  out.Line(form.Name, ".Caption = ", Quoted{gen.User().Caption});
  out.Line(form.Name, ".Color = ", gen.User().BackColor);
  // The minus sign is part of the text: cursor 0 reads "-0".
  out.Line(form.Name, ".Cursor = -", form.Cursor);
  out.Line(form.Name, ".Hint = ", Quoted{form.Hint});
  out.Line(form.Name, ".ShowHint = 1");
  out.Line(form.Name, ".WindowState = ", form.WndState);
}

void WriteFormHooks(Generation& gen) {
  const std::string& name = gen.Record().Name;
  gen.Code.OfForm().ForEach<kFormHookEvents>([&](Event event, std::string_view) {
    gen.Out.Line(name, InfoOf(event).Suffix, " = ", name, "_", InfoOf(event).Name);
  });
}

void WriteObject(Generation& gen, const DesignControl& control, std::int16_t& button_count) {
  if (kKindLinesOnly.Has(control.Id)) {
    WriteObjectInit(gen, control);
  } else {
    WriteCommonLines(gen, control, button_count);
    WriteObjectInit(gen, control);
    WriteObjectHooks(gen, control);
  }
  gen.Out.Blank();
}

}  // namespace

void WriteFormPlace(Generation& gen) {
  const FormRec& form = gen.Record();
  if (form.Center == 0) {
    gen.Out.Line(form.Name, ".Top = ", form.Top);
    gen.Out.Line(form.Name, ".Left = ", form.Left);
  } else {
    gen.Out.Line(form.Name, ".Center");
  }
}

void WriteFormInit(Generation& gen) {
  WriteFormLines(gen);
  WriteFormHooks(gen);
  gen.Out.Blank();

  KindCounters& counters = gen.State.KindCounters;
  // The kind's template counts as the first popup met and writes nothing, so that the counter
  // stands at 1 when the first real popup comes.
  counters.Set(Kind::PopUpMenu, 1);
  std::int16_t button_count = 0;
  bool menu_bar_done = false;
  WalkControls<ControlPart::Whole>(gen.User().Controls(), 0, [&](const ControlRef& control) {
    if (!control->Visible || kPassedOver.Has(control->Id)) return;
    if (control->Id == Kind::PopUpMenu) {
      WritePopUpInit(gen, control->Tag);
      counters.Step(Kind::PopUpMenu);
    } else if (control->Id == Kind::Menu) {
      if (gen.MenuBarVisible() && !menu_bar_done) WriteMenuBarInit(gen);
      menu_bar_done = true;
    } else {
      WriteObject(gen, *control, button_count);
    }
  });
  counters.Set(Kind::PopUpMenu, 0);
}

}  // namespace tarnwick
