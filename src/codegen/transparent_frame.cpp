#include "codegen/transparent_frame.h"

#include "text/numbers.h"

namespace tarnwick {

std::string TransparentFrameSubName(int form) {
  return "TrnspAbrFrm" + NumberText(std::int64_t{form});
}

void WriteTransparentFrameSub(Generation& gen) {
  SourceText& out = gen.Out;
  const FormRec& form = gen.Record();
  gen.Mark({.Part = SourcePart::FrameSub});
  out.Line("Sub ", TransparentFrameSubName(gen.State.i));
  // Lines with the frame's name are left out when frame number 1 was deleted and another stayed.
  if (const ControlRef frame = gen.User().Element(Kind::TransparentFrame, 1)) {
    const std::string& name = frame->Tag;
    out.Line(name, ".Parent = ", form.Name);
    out.Line(name, ".Align = ", form.TfAlign);
    out.Line(name, ".TransparentColor = ", form.TfTranspColor);
    out.Line(name, ".Transparency = ", form.TfTransparency);
    out.Line(name, ".Top = ", form.TfTop);
    out.Line(name, ".Left = ", form.TfLeft);
    out.Line(name, ".Width = ", form.TfWidth);
    out.Line(name, ".Height = ", form.TfHeight);
  }
  out.Line(form.Name, ".Show1");
  out.Line("Do");
  out.Line("DoEvents");
  out.Line("Loop Until ", form.Name, ".Visible = 0");
  out.Line("End Sub");
}

}  // namespace tarnwick
