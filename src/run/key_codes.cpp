#include <QKeyEvent>

#include "run/widget_events.h"

namespace tarnwick::run {
namespace {

struct KeyRow {
  int Key;
  int Code;
};
constexpr KeyRow kKeys[] = {
    {Qt::Key_Backspace, 8},      {Qt::Key_Tab, 9},          {Qt::Key_Backtab, 9},
    {Qt::Key_Return, 13},        {Qt::Key_Enter, 13},       {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},       {Qt::Key_Alt, 18},         {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},      {Qt::Key_Escape, 27},      {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},        {Qt::Key_PageDown, 34},    {Qt::Key_End, 35},
    {Qt::Key_Home, 36},          {Qt::Key_Left, 37},        {Qt::Key_Up, 38},
    {Qt::Key_Right, 39},         {Qt::Key_Down, 40},        {Qt::Key_Print, 44},
    {Qt::Key_Insert, 45},        {Qt::Key_Delete, 46},      {Qt::Key_Meta, 91},
    {Qt::Key_Menu, 93},          {Qt::Key_NumLock, 144},    {Qt::Key_ScrollLock, 145},
    {Qt::Key_Semicolon, 186},    {Qt::Key_Colon, 186},      {Qt::Key_Plus, 187},
    {Qt::Key_Equal, 187},        {Qt::Key_Comma, 188},      {Qt::Key_Less, 188},
    {Qt::Key_Minus, 189},        {Qt::Key_Underscore, 189}, {Qt::Key_Period, 190},
    {Qt::Key_Greater, 190},      {Qt::Key_Slash, 191},      {Qt::Key_Question, 191},
    {Qt::Key_QuoteLeft, 192},    {Qt::Key_AsciiTilde, 192}, {Qt::Key_BracketLeft, 219},
    {Qt::Key_BraceLeft, 219},    {Qt::Key_Backslash, 220},  {Qt::Key_Bar, 220},
    {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221}, {Qt::Key_Apostrophe, 222},
    {Qt::Key_QuoteDbl, 222},
};
constexpr KeyRow kPadKeys[] = {{Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},
                               {Qt::Key_Period, 110},   {Qt::Key_Comma, 110}, {Qt::Key_Slash, 111}};

struct BitRow {
  int Flag;
  int Bit;
};
constexpr BitRow kKeyBits[] = {
    {Qt::ShiftModifier, 1}, {Qt::AltModifier, 2}, {Qt::ControlModifier, 4}};
constexpr BitRow kButtonBits[] = {
    {Qt::LeftButton, 8}, {Qt::RightButton, 16}, {Qt::MiddleButton, 32}};

}  // namespace

int VirtualKey(const QKeyEvent& event) {
  constexpr int kPad0 = 96;
  constexpr int kF1 = 112;
  const int key = event.key();
  if ((event.modifiers() & Qt::KeypadModifier) != 0) {
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return kPad0 + (key - Qt::Key_0);
    for (const KeyRow& row : kPadKeys) {
      if (row.Key == key) return row.Code;
    }
  }
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return kF1 + (key - Qt::Key_F1);
  for (const KeyRow& row : kKeys) {
    if (row.Key == key) return row.Code;
  }
  return 0;
}

int ShiftBits(Qt::KeyboardModifiers keys, Qt::MouseButtons buttons) {
  int bits = 0;
  for (const BitRow& row : kKeyBits) {
    if ((keys.toInt() & row.Flag) != 0) bits |= row.Bit;
  }
  for (const BitRow& row : kButtonBits) {
    if ((buttons.toInt() & row.Flag) != 0) bits |= row.Bit;
  }
  return bits;
}

}  // namespace tarnwick::run
