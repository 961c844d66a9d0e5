#include "basic/hosts/object_host.h"
#include "basic/hosts/system_host.h"
#include "basic/lib/message_dialog.h"
#include "basic/lib/native_help.h"
#include "basic/lib/native_table.h"
#include "basic/semantics.h"

namespace tarnwick::basic {
namespace {

/// COMMAND$(n): argument n from 1, "" beyond; COMMAND$ and COMMAND$(0): all, blanks between them.
void Command(LibraryCall& call) {
  SystemHost* system = NeedSystem(call);
  if (system == nullptr) return;
  const std::vector<std::string>& arguments = system->Arguments();
  const std::int64_t number = WholeOr(call, 0, 0);
  std::string text;
  if (number > 0 && number <= static_cast<std::int64_t>(arguments.size())) {
    text = arguments[static_cast<std::size_t>(number - 1)];
  } else if (number == 0) {
    for (const std::string& argument : arguments) {
      if (!text.empty()) text += ' ';
      text += argument;
    }
  }
  call.Result = Value::Text(std::move(text));
}

void CommandCount(LibraryCall& call) {
  if (SystemHost* system = NeedSystem(call)) {
    call.Result = Value::Integer(static_cast<std::int64_t>(system->Arguments().size()));
  }
}

void DoEvents(LibraryCall& call) {
  if (call.Host.Objects != nullptr) call.Host.Objects->PumpEvents(kDoEventsWait);
}

/// ENVIRON "NAME=value".
void Environ(LibraryCall& call) {
  SystemHost* system = NeedSystem(call);
  if (system == nullptr) return;
  const std::string_view setting = TextAt(call, 0);
  const std::size_t sign = setting.find('=');
  const bool named = sign != std::string_view::npos && sign > 0;
  if (!named || !system->SetEnvironment(setting.substr(0, sign), setting.substr(sign + 1))) {
    call.State.Notes.push_back("ENVIRON takes \"NAME=value\", not \"" + std::string(setting) + '"');
  }
}

void EnvironOf(LibraryCall& call) {
  if (SystemHost* system = NeedSystem(call)) {
    call.Result = Value::Text(system->Environment(TextAt(call, 0)));
  }
}

void MessageBox(LibraryCall& call) {
  if (SystemHost* system = NeedSystem(call)) {
    call.Result =
        Value::Integer(system->MessageBox(TextAt(call, 0), TextAt(call, 1), IntAt(call, 2)));
  }
}

void MessageDlg(LibraryCall& call) {
  SystemHost* system = NeedSystem(call);
  if (system == nullptr) return;
  const MessageLook look = LookOfMessage(WholeOr(call, 1, -1));
  const int flags = BoxOfButtons(WholeOr(call, 2, 0)) | look.IconFlag;
  call.Result = Value::Integer(system->MessageBox(TextAt(call, 0), look.Title, flags));
}

void ShowMessage(LibraryCall& call) {
  if (SystemHost* system = NeedSystem(call)) system->MessageBox(TextAt(call, 0), "", 0);
}

/// Starts a program; its number, 0 with a note when it did not start.
std::int64_t Start(LibraryCall& call, const char* name, int show) {
  SystemHost* system = NeedSystem(call);
  if (system == nullptr) return 0;
  const std::string command(TextAt(call, 0));
  const std::int64_t number = system->Start(command, show);
  if (number == 0) {
    call.State.Notes.push_back(std::string(name) + " could not start \"" + command + '"');
  }
  return number;
}

constexpr int kShowNormal = 1;

void Run(LibraryCall& call) {
  Start(call, "RUN", kShowNormal);
}

void Shell(LibraryCall& call) {
  call.Result = Value::Integer(Start(call, "SHELL", IntAt(call, 1, kShowNormal)));
}

constexpr NativeRow kRows[] = {
    {FunctionId::Command, Command},       {FunctionId::CommandCount, CommandCount},
    {FunctionId::DoEvents, DoEvents},     {FunctionId::Environ, Environ},
    {FunctionId::EnvironOf, EnvironOf},   {FunctionId::MessageBox, MessageBox},
    {FunctionId::MessageDlg, MessageDlg}, {FunctionId::Run, Run},
    {FunctionId::Shell, Shell},           {FunctionId::ShowMessage, ShowMessage},
};

}  // namespace

std::span<const NativeRow> SystemNatives() {
  return kRows;
}

}  // namespace tarnwick::basic
