#include "codegen/form_init.h"

#include "codegen/menu_init.h"
#include "codegen/object_init.h"
#include "codegen/object_lines.h"

namespace tarnwick {

namespace {

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
  gen.Code.OfForm().ForEach(kFormHookEvents, [&](Event event, std::string_view) {
    gen.Out.Line(name, InfoOf(event).Suffix, " = ", name, "_", InfoOf(event).Name);
  });
}

void WriteAllLines(Generation& gen, const DesignControl& control, std::int16_t& button_count) {
  WriteCommonLines(gen, control, button_count);
  WriteObjectInit(gen, control);
  WriteObjectHooks(gen, control);
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
  gen.Mark({.Part = SourcePart::FormLines});
  WriteFormLines(gen);
  WriteFormHooks(gen);
  gen.Out.Blank();

  KindCounters& counters = gen.State.KindCounters;
  // The kind's template counts as the first popup and writes nothing, so that the counter is 1 at
  // the first real popup.
  counters.Set(Kind::PopUpMenu, 1);
  std::int16_t button_count = 0;
  bool menu_bar_done = false;
  for (const ControlRef& control : gen.User().Controls()) {
    if (!control->Visible) continue;
    const SetUpRule rule = InfoOf(control->Id).Program.SetUp;
    if (rule == SetUpRule::None) continue;
    gen.Mark({.Part = rule == SetUpRule::MenuBar ? SourcePart::MenuLines : SourcePart::ObjectLines,
              .Id = control->Id,
              .Number = static_cast<std::int16_t>(control->Index)});
    switch (rule) {
      case SetUpRule::None:
        break;
      case SetUpRule::OwnLines:
        WriteObjectInit(gen, *control);
        gen.Out.Blank();
        break;
      case SetUpRule::AllLines:
        WriteAllLines(gen, *control, button_count);
        break;
      case SetUpRule::PopUp:
        WritePopUpInit(gen, control->Tag);
        counters.Step(Kind::PopUpMenu);
        break;
      case SetUpRule::MenuBar:
        if (gen.MenuBarVisible() && !menu_bar_done) WriteMenuBarInit(gen);
        menu_bar_done = true;
        break;
    }
  }
  counters.Set(Kind::PopUpMenu, 0);
}

}  // namespace tarnwick
