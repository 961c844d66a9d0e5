#include <algorithm>

#include "basic/hosts/console_host.h"
#include "basic/hosts/printer_host.h"
#include "basic/hosts/system_host.h"
#include "basic/lib/native_help.h"
#include "basic/lib/native_table.h"
#include "basic/semantics.h"

namespace tarnwick::basic {
namespace {

constexpr int kVisiblePage = 0;

void Cls(LibraryCall& call) {
  if (ConsoleHost* console = NeedConsole(call)) console->Clear();
}

/// A colour that is left out stays; one outside 0 to 15 counts by its low four bits.
void Color(LibraryCall& call) {
  ConsoleHost* console = NeedConsole(call);
  if (console == nullptr) return;
  const auto color = [&call](std::size_t index) {
    const std::int64_t number = WholeOr(call, index, -1);
    return static_cast<int>(number < 0 ? -1 : number & 0xF);
  };
  console->Color(color(0), color(1));
}

void CsrLin(LibraryCall& call) {
  if (ConsoleHost* console = NeedConsole(call)) {
    call.Result = Value::Integer(console->Row(kVisiblePage));
  }
}

void Pos(LibraryCall& call) {
  if (ConsoleHost* console = NeedConsole(call)) {
    call.Result = Value::Integer(console->Column(kVisiblePage));
  }
}

void Inkey(LibraryCall& call) {
  if (ConsoleHost* console = NeedConsole(call)) call.Result = Value::Text(console->Key());
}

void InputOf(LibraryCall& call) {
  ConsoleHost* console = NeedConsole(call);
  if (console == nullptr) return;
  const auto count = static_cast<std::size_t>(std::max<std::int64_t>(WholeOr(call, 0, 0), 0));
  if (!FitsLimit(call, "INPUT$", count)) return;
  call.Result = Value::Text(count == 0 ? std::string() : console->ReadBytes(count));
}

void IsConsole(LibraryCall& call) {
  ConsoleHost* console = call.Host.Console;
  call.Result = Value::Truth(console != nullptr && console->IsConsole());
}

/// A row or column that is left out stays.
void Locate(LibraryCall& call) {
  ConsoleHost* console = NeedConsole(call);
  if (console == nullptr) return;
  const int row = IntAt(call, 0, console->Row(kVisiblePage));
  console->Locate(row, IntAt(call, 1, console->Column(kVisiblePage)));
}

void Pcopy(LibraryCall& call) {
  if (ConsoleHost* console = NeedConsole(call)) console->CopyPage(IntAt(call, 0), IntAt(call, 1));
}

void Screen(LibraryCall& call) {
  if (ConsoleHost* console = NeedConsole(call)) {
    call.Result = Value::Integer(console->CharacterAt(IntAt(call, 0), IntAt(call, 1)));
  }
}

void Peek(LibraryCall& call) {
  if (ConsoleHost* console = NeedConsole(call)) {
    call.Result = Value::Integer(console->Peek(WholeOr(call, 0, 0)));
  }
}

void Poke(LibraryCall& call) {
  if (ConsoleHost* console = NeedConsole(call)) {
    console->Poke(WholeOr(call, 0, 0), static_cast<int>(WholeOr(call, 1, 0) & 0xFF));
  }
}

void SetConsoleTitle(LibraryCall& call) {
  if (ConsoleHost* console = NeedConsole(call)) console->SetTitle(TextAt(call, 0));
}

void Lflush(LibraryCall& call) {
  if (call.Host.Printer != nullptr) call.Host.Printer->Flush();
}

void PlayWav(LibraryCall& call) {
  SystemHost* system = NeedSystem(call);
  if (system == nullptr) return;
  const std::string path(TextAt(call, 0));
  if (!system->PlayWave(path, IntAt(call, 1))) {
    call.State.Notes.push_back("PLAYWAV could not play \"" + path + '"');
  }
}

void Sound(LibraryCall& call) {
  SystemHost* system = NeedSystem(call);
  if (system == nullptr) return;
  const double duration = call.At(1).AsNumber();
  system->Sound(call.At(0).AsNumber(),
                duration < kSoundMillisecondsFrom ? duration * 1000 : duration);
}

constexpr NativeRow kRows[] = {
    {FunctionId::Cls, Cls},
    {FunctionId::Color, Color},
    {FunctionId::CsrLin, CsrLin},
    {FunctionId::Inkey, Inkey},
    {FunctionId::InputOf, InputOf},
    {FunctionId::IsConsole, IsConsole},
    {FunctionId::Lflush, Lflush},
    {FunctionId::Locate, Locate},
    {FunctionId::Pcopy, Pcopy},
    {FunctionId::Peek, Peek},
    {FunctionId::PlayWav, PlayWav},
    {FunctionId::Poke, Poke},
    {FunctionId::Pos, Pos},
    {FunctionId::Screen, Screen},
    {FunctionId::SetConsoleTitle, SetConsoleTitle},
    {FunctionId::Sound, Sound},
};

}  // namespace

std::span<const NativeRow> ConsoleNatives() {
  return kRows;
}

}  // namespace tarnwick::basic
