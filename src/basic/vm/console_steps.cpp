// PRINT, INPUT, DATA, and the arguments of a SUBI.
#include <utility>

#include "basic/check/checked_expression.h"
#include "basic/hosts/console_host.h"
#include "basic/hosts/printer_host.h"
#include "basic/lib/date_text.h"
#include "basic/vm/machine_state.h"
#include "basic/vm/number_text.h"
#include "basic/vm/texts.h"

namespace tarnwick::basic {
namespace {

/// Columns of a zone of PRINT.
constexpr int kZone = 14;

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

bool MachineState::PrintText(std::string_view text, std::int64_t page) {
  if (page == kPrinterPage) {
    if (Host.Printer != nullptr) {
      Host.Printer->Write(text);
    } else if (!std::exchange(PrinterMissed, true)) {
      Library.Notes.emplace_back("There is no printer in this run: what LPRINT writes is lost");
      TakeNotes();
    }
    return true;
  }
  if (Host.Console == nullptr) return Fail("There is no console to print to");
  Host.Console->Write(static_cast<int>(page), text);
  return true;
}

bool MachineState::PrintZone(std::int64_t page) {
  const bool printer = page == kPrinterPage;
  if (!printer && Host.Console == nullptr) return Fail("There is no console to print to");
  int column = 1;
  if (!printer) column = Host.Console->Column(static_cast<int>(page));
  if (printer && Host.Printer != nullptr) column = Host.Printer->Column();
  const int blanks = kZone - (column - 1) % kZone;
  return PrintText(std::string(static_cast<std::size_t>(blanks), ' '), page);
}

bool MachineState::InputLine() {
  if (Host.Console == nullptr) return Fail("There is no console to read from");
  // At the end of the input all values are 0 and "".
  InputRest = Host.Console->ReadLine().value_or(std::string());
  return !EndsBehindWaiting();
}

void MachineState::InputField(Slot& target, bool rest) {
  std::string field;
  if (rest) {
    field.swap(InputRest);
  } else {
    const std::size_t comma = InputRest.find(',');
    field = InputRest.substr(0, comma);
    InputRest.erase(0, comma == std::string::npos ? comma : comma + 1);
  }
  SetText(target, std::string(Trimmed(field)));
}

const DataItem* MachineState::ReadData() {
  if (NextData < Program.Data.size()) return &Program.Data[NextData++];
  Fail(Program.Data.empty() ? "READ without DATA" : "READ behind the last value of DATA");
  return nullptr;
}

void MachineState::FoundFact(std::uint16_t target, std::uint16_t part) {
  FileEntry entry;
  if (Library.NextFound > 0 && Library.NextFound <= Library.Found.size()) {
    entry = Library.Found[Library.NextFound - 1];
  }
  Slot& slot = Base()[target];
  switch (static_cast<FoundFilePart>(part)) {
    case FoundFilePart::Filename:
      SetText(slot, entry.Name);
      break;
    case FoundFilePart::Size:
      slot.I = entry.Size;
      break;
    case FoundFilePart::Date:
      SetText(slot, entry.Name.empty() ? "" : DateText(entry.Changed));
      break;
    case FoundFilePart::Time:
      SetText(slot, entry.Name.empty() ? "" : TimeText(entry.Changed));
      break;
    case FoundFilePart::Attributes:
      slot.I = entry.Attributes;
      break;
  }
}

bool MachineState::Parameter(const Instruction* read, bool text) {
  const std::int64_t index = Base()[read->B].I;
  static const std::vector<Value> kNone;
  const bool has = Frames.back().Variadic;
  const std::vector<Value>& row = !has   ? kNone
                                  : text ? Variadics.back().Texts
                                         : Variadics.back().Numbers;
  if (index < 1 || index > static_cast<std::int64_t>(row.size())) {
    return Fail(std::string(text ? "PARAMSTR$(" : "PARAMVAL(") + IntegerText(index) +
                "): there are " + std::to_string(row.size()));
  }
  const Value& value = row[static_cast<std::size_t>(index) - 1];
  if (text) {
    SetText(Base()[read->A], value.AsText());
  } else {
    Base()[read->A].D = value.AsNumber();
  }
  return true;
}

}  // namespace tarnwick::basic
