// Which fields of a form, its window and its objects a step brings back.
#pragma once

#include <tuple>
#include <type_traits>

#include "model/project_records.h"

namespace tarnwick {

// The bindings name every field there is, so that a field that is added does not compile until it
// is decided here whether steps bring it back.

/// The fields of a form's record; its file name is what a save left, and stays.
template <class Record>
auto FieldsOf(Record& form) {
  auto& [removed, left, top, width, height, reserved, file_name, name, visible, hint, cursor,
         border, center, state, icon, image, popups, buttons, labels, lists, options, checks, texts,
         rich_texts, combos, images, open_dialogs, save_dialogs, times, socks, viewers, tf_align,
         tf_color, tf_cursor, tf_height, tf_left, tf_top, tf_transparency, tf_transp_color,
         tf_width, tf_string, declarations, combo_items] = form;
  return std::tie(removed, left, top, width, height, reserved, name, visible, hint, cursor, border,
                  center, state, icon, image, tf_align, tf_color, tf_cursor, tf_height, tf_left,
                  tf_top, tf_transparency, tf_transp_color, tf_width, tf_string, declarations);
}

/// The record arrays of a form.
template <class Record>
auto ArraysOf(Record& form) {
  return std::tie(form.PopUps, form.Buttons, form.Labels, form.ListBoxes, form.OptionButtons,
                  form.CheckBoxes, form.TextBoxes, form.RichTextBoxes, form.ComboBoxes, form.Images,
                  form.OpenDialogs, form.SaveDialogs, form.Times, form.WinSocks, form.HtmlViewers,
                  form.ComboItems);
}

/// What a design window is by itself, beside its objects and its selection.
template <class Window>
auto WindowFieldsOf(Window& form) {
  return std::tie(form.Caption, form.WindowPicture, form.WindowIcon, form.BackColor, form.Left,
                  form.Top, form.Width, form.Height, form.oldHeight, form.oldWidth,
                  form.NextTabOrder);
}

/// The entries of a form's events bar, and its title.
template <class Bar>
auto BarFieldsOf(Bar& bar) {
  return std::tie(bar.Caption, bar.Entries);
}

/// Position and size of a control: what most steps change.
template <class Control>
auto PlaceFieldsOf(Control& control) {
  return std::tie(control.Left, control.Top, control.Width, control.Height);
}

/// All of a control but position and size, and its index, which follows from the objects before it.
template <class Control>
auto ControlFieldsOf(Control& control) {
  auto& [kind, index, tag, visible, enabled, left, top, width, height, caption, text, tip,
         font_name, font_size, bold, italic, underline, strike_out, auto_size, stretch, word_wrap,
         is_default, is_cancel, value, back_style, border_style, appearance, tab_index, back_color,
         fore_color, picture, items, menu_parent] = control;
  return std::tie(kind, tag, visible, enabled, caption, text, tip, font_name, font_size, bold,
                  italic, underline, strike_out, auto_size, stretch, word_wrap, is_default,
                  is_cancel, value, back_style, border_style, appearance, tab_index, back_color,
                  fore_color, picture, items, menu_parent);
}

/// The fields as values, to be kept.
template <class Tie>
struct ValuesOfTie;
template <class... T>
struct ValuesOfTie<std::tuple<T&...>> {
  using Type = std::tuple<std::remove_const_t<T>...>;
};
using FormValues = ValuesOfTie<decltype(FieldsOf(std::declval<FormRec&>()))>::Type;
using WindowValues = ValuesOfTie<decltype(WindowFieldsOf(std::declval<DesignForm&>()))>::Type;
using PlaceValues = ValuesOfTie<decltype(PlaceFieldsOf(std::declval<DesignControl&>()))>::Type;
using BarValues = ValuesOfTie<decltype(BarFieldsOf(std::declval<FrmBarra&>()))>::Type;

}  // namespace tarnwick
