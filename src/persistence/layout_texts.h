// The text of the records in a form file.
#pragma once

#include <array>
#include <string_view>

#include "model/kinds.h"

namespace tarnwick {

/// The line of a kind, each value as a word between two "@". The words are control members, events
/// and those of record_sources.h. The blanks are part of the format and differ from kind to kind.
struct LayoutText {
  Kind Id;
  std::string_view Text;
};

inline constexpr std::array<LayoutText, kObjectKindCount + 1> kLayoutTexts{{
    {Kind::Form,
     "[Form](@number@) {@name@}  Left<@form.Left@>Left   Top<@form.Top@>Top   "
     "Width<@form.Width@>Width   Height<@form.Height@>Height   Image<@form.ImageFile@>Image  "
     "Icon<@form.IconFile@>Icon  String<@window.caption@>String  Border<@form.BorderStyle@>Border  "
     "Color<@window.color@>Color  Cursor<@form.Cursor@>Cursor  Tip<@form.Hint@>Tip  "
     "WndState<@form.WndState@>WndState  Center<@form.Center@>Center  "
     "Visible<@form.Visible@>Visible  Click<@OnClick@>Click  Close<@OnClose@>Close   "
     "Hint<@OnHint@>Hint   KeyDown<@OnKeyDown@>KeyDown   KeyPress<@OnKeyPress@>KeyPress   "
     "KeyUp<@OnKeyUp@>KeyUp   MouseDown<@OnMouseDown@>MouseDown   "
     "MouseMove<@OnMouseMove@>MouseMove   MouseUp<@OnMouseUp@>MouseUp   Paint<@OnPaint@>Paint   "
     "Resize<@OnResize@>Resize   Show<@OnShow@>Show"},
    {Kind::Button,
     "[Button]   (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Caption@>String  Tip<@ToolTipText@>Tip  "
     "Image<@rec.ImageFile@>Image  Cursor<@rec.Cursor@>Cursor  Enabled<@rec.Enabled@>Enabled  "
     "FontName<@FontName@>FontName FontClr<@rec.FontColor@>FontClr FontSize<@FontSize@>FontSize  "
     "FontBold<@FontBold@>FontBold  FontItalic<@FontItalic@>FontItalic  "
     "TabOrder<@rec.TabOrder@>TabOrder  Visible<@rec.Visible@>Visible  Click<@OnClick@>Click   "
     "KeyDown<@OnKeyDown@>KeyDown   KeyPress<@OnKeyPress@>KeyPress   KeyUp<@OnKeyUp@>KeyUp   "
     "MouseDown<@OnMouseDown@>MouseDown   MouseMove<@OnMouseMove@>MouseMove   "
     "MouseUp<@OnMouseUp@>MouseUp"},
    {Kind::Label,
     "[Label]   (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Caption@>String   Tip<@ToolTipText@>Tip  "
     "Cursor<@rec.Cursor@>Cursor  Enabled<@rec.Enabled@>Enabled  Autosize<@AutoSize@>Autosize  "
     "FontName<@FontName@>FontName FontClr<@ForeColor@>FontClr FontSize<@FontSize@>FontSize  "
     "FontBold<@FontBold@>FontBold  FontItalic<@FontItalic@>FontItalic  "
     "TabOrder<@rec.TabOrder@>TabOrder  Transparent<@BackStyle@>Transparent  "
     "Icon<@rec.Icon@>Icon  Color<@BackColor@>Color  Visible<@rec.Visible@>Visible  "
     "Click<@OnClick@>Click   DblClick<@OnDblClick@>DblClick   "
     "MouseDown<@OnMouseDown@>MouseDown   MouseMove<@OnMouseMove@>MouseMove   "
     "MouseUp<@OnMouseUp@>MouseUp"},
    {Kind::Image,
     "[Image]   (@number@) {@name@} Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height  Image<@rec.ImageFile@>Image  Tip<@ToolTipText@>Tip  "
     "Cursor<@rec.Cursor@>Cursor  Enabled<@rec.Enabled@>Enabled  Stretch<@Stretch@>Stretch  "
     "Visible<@rec.Visible@>Visible  Click<@OnClick@>Click   DblClick<@OnDblClick@>DblClick   "
     "MouseDown<@OnMouseDown@>MouseDown   MouseMove<@OnMouseMove@>MouseMove   "
     "MouseUp<@OnMouseUp@>MouseUp"},
    {Kind::CheckBox,
     "[CheckBox]   (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Caption@>String  Checked<@Value@>Checked  "
     "Enabled<@rec.Enabled@>Enabled   FontName<@FontName@>FontName  FontSize<@FontSize@>FontSize  "
     "FontBold<@FontBold@>FontBold  FontItalic<@FontItalic@>FontItalic  "
     "FontClr<@ForeColor@>FontClr  Tip<@ToolTipText@>Tip  TabOrder<@rec.TabOrder@>TabOrder   "
     "Visible<@rec.Visible@>Visible  Click<@OnClick@>Click"},
    {Kind::OptionButton,
     "[OptionButton]  (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   "
     "Width<@Width@>Width   Height<@Height@>Height   String<@Caption@>String  "
     "Checked<@Value@>Checked  Enabled<@rec.Enabled@>Enabled   FontName<@FontName@>FontName  "
     "FontSize<@FontSize@>FontSize  FontBold<@FontBold@>FontBold  "
     "FontItalic<@FontItalic@>FontItalic  FontClr<@ForeColor@>FontClr  Tip<@ToolTipText@>Tip  "
     "TabOrder<@rec.TabOrder@>TabOrder   Visible<@rec.Visible@>Visible  Click<@OnClick@>Click"},
    {Kind::TextBox,
     "[TextBox] (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Text@>String   Border<@BorderStyle@>Border  "
     "Color<@BackColor@>Color  Enabled<@rec.Enabled@>Enabled  FontName<@FontName@>FontName  "
     "FontSize<@FontSize@>FontSize  FontBold<@FontBold@>FontBold  "
     "FontItalic<@FontItalic@>FontItalic  FontClr<@ForeColor@>FontClr  Tip<@ToolTipText@>Tip  "
     "ReadOnly<@rec.ReadOnly@>ReadOnly  TabOrder<@rec.TabOrder@>TabOrder  "
     "Visible<@rec.Visible@>Visible  Change<@OnChange@>Change   KeyPress<@OnKeyPress@>KeyPress   "
     "KeyUp<@OnKeyUp@>KeyUp   KeyDown<@OnKeyDown@>KeyDown"},
    {Kind::RichTextBox,
     "[RichTextBox] (@number@)  {@name@} Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Text@>String  Border<@BorderStyle@>Border  "
     "Color<@BackColor@>Color  Enabled<@rec.Enabled@>Enabled  FontName<@FontName@>FontName  "
     "FontSize<@FontSize@>FontSize  FontBold<@FontBold@>FontBold  "
     "FontItalic<@FontItalic@>FontItalic  FontClr<@ForeColor@>FontClr  Tip<@ToolTipText@>Tip  "
     "ReadOnly<@rec.ReadOnly@>ReadOnly  TabOrder<@rec.TabOrder@>TabOrder   "
     "Visible<@rec.Visible@>Visible  HideScrollBars<@rec.HideScrollBars@>HideScrollBars  "
     "ScrllBars<@rec.ScrollBars@>ScrllBars   Icon<@rec.Icon@>Icon   Change<@OnChange@>Change  "
     "KeyPress< @OnKeyPress@>KeyPress  KeyUp<@OnKeyUp@>KeyUp  KeyDown<@OnKeyDown@>KeyDown   "
     "MouseDown<@OnMouseDown@>MouseDown   MouseMove<@OnMouseMove@>MouseMove   "
     "MouseUp<@OnMouseUp@>MouseUp"},
    {Kind::ListBox,
     "[ListBox] (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height  Items<@items@>Items   Border<@Appearance@>Border  "
     "Color<@BackColor@>Color  Enabled<@rec.Enabled@>Enabled  FontName<@FontName@>FontName  "
     "FontSize<@FontSize@>FontSize  FontBold<@FontBold@>FontBold  "
     "FontItalic<@FontItalic@>FontItalic  FontClr<@ForeColor@>FontClr  Tip<@ToolTipText@>Tip  "
     "TabOrder<@rec.TabOrder@>TabOrder   Visible<@rec.Visible@>Visible Sorted<@rec.Sorted@>Sorted  "
     "MultiSelect<@rec.MultiSelect@>MultiSelect  Cursor<@rec.Cursor@>Cursor  "
     "Columns<@rec.Columns@>Columns Click<@OnClick@>Click   DblClick<@OnDblClick@>DblClick   "
     "Enter<@OnEnter@>Enter"},
    {Kind::ComboBox,
     "[ComboBox] (@number@) {@name@}  Left<@Left@>Left   Top<@Top@>Top   Width<@Width@>Width   "
     "Height<@Height@>Height   String<@Text@>String   Items<@items@>Items  "
     "Enabled<@rec.Enabled@>Enabled Tip<@ToolTipText@>Tip  TabOrder<@rec.TabOrder@>TabOrder   "
     "Visible<@rec.Visible@>Visible  Cursor<@rec.Cursor@>Cursor Sorted<@rec.Sorted@>Sorted  "
     "Change<@OnChange@>Change"},
    {Kind::Time,
     "[Time] (@number@) {@name@} Left<@Left@>Left   Top<@Top@>Top   "
     "Enabled<@rec.Enabled@>Enabled   Tip<@rec.Interval@>Tip   Click<@OnTimer@>Click"},
    {Kind::OpenDialog,
     "[OpenDialog]  (@number@) {@name@} Left<@Left@>Left   Top<@Top@>Top  "
     "String<@rec.Title@>String   Tip<@rec.Filter@>Tip   Width<@rec.FileName@>Width   "
     "Height<@rec.InitialDir@>Height"},
    {Kind::SaveDialog,
     "[SaveDialog] (@number@) {@name@} Left<@Left@>Left   Top<@Top@>Top   "
     "String<@rec.Title@>String   Tip<@rec.Filter@>Tip   Width<@rec.FileName@>Width   "
     "Height<@rec.InitialDir@>Height"},
    {Kind::FileStream, "[FileStream] {@name@} Left<@Left@>Left   Top<@Top@>Top"},
    {Kind::WinSock,
     "[WinSock] {@name@} Left<@Left@>Left   Top<@Top@>Top  Width<@Width@>Width  "
     "Height<@Height@>Height  Tip<@sock.Family@>Tip  Cursor<@sock.Protocol@>Cursor  "
     "String<@sock.Type@>String  Items<@sock.WMessage@>Items"},
    {Kind::TransparentFrame,
     "[TransparentFrame] {@name@} Left<@form.TfLeft@>Left   Top<@form.TfTop@>Top  "
     "Width<@form.TfWidth@>Width  Height<@form.TfHeight@>Height  Tip<@ToolTipText@>Tip  "
     "Cursor<@form.TfCursor@>Cursor  String<@form.TfAlign@>String  "
     "Items<@form.TfTransparency@>Items  Transparent<@form.TfTranspColor@>Transparent  "
     "Visible<@one@>Visible  Enabled<@one@>Enabled"},
    {Kind::HtmlViewer,
     "[HtmlViewer] (@number@) {@name@} Left<@Left@>Left Top<@Top@>Top Width<@Width@>Width "
     "Height<@Height@>Height String<@html.Navigate@>String "},
    {Kind::PopUpMenu,
     "[PopUpMenu]  (@number@) {@name@} Left<@Left@>Left   Top<@Top@>Top  "
     "String<@popup.Alignment@>String   Tip<@popup.AutoPopUp@>Tip "
     "Width<@popup.PopUpMenu@>Width  Items<@rows@>Items  Click<@OnPopUp@>Click"},
}};

}  // namespace tarnwick
