// Pages that a program prints.
#include "objects/behaviour.h"

namespace tarnwick::objects {
namespace {

bool NotPrinting(ObjectWorld& world, const MemberInfo& method) {
  return world.Fail("Printer." + std::string(method.Facts.Name) +
                    ": no document is being printed; BeginDoc begins one");
}

bool BeginDoc(ObjectWorld& world, ObjectRecord& printer, const MemberInfo& method,
              std::span<Value> arguments, Value& result) {
  if (printer.Truth(Word::Printing)) {
    return world.Fail("Printer.BeginDoc: a document is being printed already; EndDoc ends it");
  }
  world.OwnFont(printer);
  printer.Put(Word::Printing, Value::Integer(1));
  printer.Put(Word::PageNumber, Value::Integer(1));
  if (!world.Widgets().Invoke(printer, method, arguments, result)) {
    world.Note("Nothing is printed in a run without windows");
  }
  return true;
}

bool EndDoc(ObjectWorld& world, ObjectRecord& printer, const MemberInfo& method,
            std::span<Value> arguments, Value& result) {
  if (!printer.Truth(Word::Printing)) return true;
  printer.Put(Word::Printing, Value::Integer(0));
  world.Widgets().Invoke(printer, method, arguments, result);
  return true;
}

bool NewPage(ObjectWorld& world, ObjectRecord& printer, const MemberInfo& method,
             std::span<Value> arguments, Value& result) {
  if (!printer.Truth(Word::Printing)) return NotPrinting(world, method);
  printer.Put(Word::PageNumber, Value::Integer(printer.Number(Word::PageNumber) + 1));
  world.Widgets().Invoke(printer, method, arguments, result);
  return true;
}

bool Draw(ObjectWorld& world, ObjectRecord& printer, const MemberInfo& method,
          std::span<Value> arguments, Value& result) {
  if (!printer.Truth(Word::Printing)) return NotPrinting(world, method);
  world.Widgets().Invoke(printer, method, arguments, result);
  return true;
}

/// On paper a text has another size than on the screen.
bool Measure(ObjectWorld& world, ObjectRecord& printer, const MemberInfo& method,
             std::span<Value> arguments, Value& result) {
  world.OwnFont(printer);
  result = Value::Integer(0);
  world.Widgets().Invoke(printer, method, arguments, result);
  return true;
}

bool PrintText(ObjectWorld& world, ObjectRecord& box, const MemberInfo& method,
               std::span<Value> arguments, Value& result) {
  if (!box.Realised || !world.Widgets().Invoke(box, method, arguments, result)) {
    world.Note(box.FullName() + " is not shown in a window: nothing was printed");
  }
  return true;
}

using enum ObjectClass;
constexpr BehaviourRow kRows[] = {
    {QRichEdit, Word::Print, {.Call = PrintText}},  {Printer, Word::BeginDoc, {.Call = BeginDoc}},
    {Printer, Word::EndDoc, {.Call = EndDoc}},      {Printer, Word::NewPage, {.Call = NewPage}},
    {Printer, Word::PageWidth, {.Get = LiveValue}}, {Printer, Word::PageHeight, {.Get = LiveValue}},
    {Printer, Word::TextWidth, {.Call = Measure}},  {Printer, Word::TextHeight, {.Call = Measure}},
    {Printer, Word::Circle, {.Call = Draw}},        {Printer, Word::CopyRect, {.Call = Draw}},
    {Printer, Word::Draw, {.Call = Draw}},          {Printer, Word::FillRect, {.Call = Draw}},
    {Printer, Word::Line, {.Call = Draw}},          {Printer, Word::PSet, {.Call = Draw}},
    {Printer, Word::Rectangle, {.Call = Draw}},     {Printer, Word::RoundRect, {.Call = Draw}},
    {Printer, Word::StretchDraw, {.Call = Draw}},   {Printer, Word::TextOut, {.Call = Draw}},
    {Printer, Word::TextRect, {.Call = Draw}},
};

}  // namespace

BehaviourRows PrinterBehaviour() {
  return kRows;
}

}  // namespace tarnwick::objects
