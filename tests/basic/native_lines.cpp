#include "basic/native_lines.h"

#include <vector>

#include "basic/lib/native_table.h"
#include "basic/vm/number_text.h"
#include "fakes/program_world.h"

namespace tarnwick::basic {
namespace {

bool IsNamePart(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

class Line {
 public:
  explicit Line(std::string_view text) : text_(text) { state_.Resources = world_.Resources; }

  std::optional<LineResult> Run() {
    do {
      Statement();
    } while (known_ && result_.Error.empty() && Take(':'));
    if (result_.Error.empty() && Peek() != '\0') known_ = false;
    if (!known_) return std::nullopt;
    for (const std::string& note : state_.Notes) result_.Notes += "note: " + note + "\n";
    result_.Output = world_.Log;
    return result_;
  }

 private:
  char Peek() {
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
    return at_ < text_.size() ? text_[at_] : '\0';
  }
  bool Take(char c) {
    if (Peek() != c) return false;
    ++at_;
    return true;
  }

  void Statement() {
    if (Take('?')) {
      const Value value = Expression();
      if (known_ && result_.Error.empty()) world_.Console.Write(0, value.AsText() + "\n");
      return;
    }
    const std::string name = Name();
    const bool bracket = Take('(');
    CallFunction(name, Arguments(), false);
    if (bracket && !Take(')')) known_ = known_ && !result_.Error.empty();
  }

  std::string Name() {
    std::string name;
    for (Peek(); at_ < text_.size() && IsNamePart(text_[at_]); ++at_) name += text_[at_];
    if (at_ < text_.size() && text_[at_] == '$') name += text_[at_++];
    return name;
  }

  Value Expression() {
    Value value = Term();
    while (known_ && result_.Error.empty() && Take('+')) {
      const Value right = Term();
      value = value.Kind() == SlotKind::Text ? Value::Text(value.AsText() + right.AsText())
                                             : Value::Number(value.AsNumber() + right.AsNumber());
    }
    return value;
  }

  Value Term() {
    const char c = Peek();
    if (Take('"')) {
      const std::size_t end = text_.find('"', at_);
      const std::string_view bytes = text_.substr(at_, end - at_);
      at_ = end == std::string_view::npos ? text_.size() : end + 1;
      return Value::Text(std::string(bytes));
    }
    if ((c >= '0' && c <= '9') || c == '-' || c == '.' || c == '&') {
      const std::size_t begin = at_++;
      while (at_ < text_.size() &&
             (IsNamePart(text_[at_]) || text_[at_] == '.' || text_[at_] == '&' ||
              ((text_[at_] == '-' || text_[at_] == '+') && text_[at_ - 1] == 'E'))) {
        ++at_;
      }
      const std::string_view number = text_.substr(begin, at_ - begin);
      const bool whole = number.find_first_of(".E") == std::string_view::npos;
      const double value = NumberIn(number);
      return whole ? Value::Integer(Rounded(value)) : Value::Number(value);
    }
    const std::string name = Name();
    std::vector<Value> arguments;
    if (Take('(')) {
      arguments = Arguments();
      if (!Take(')') && result_.Error.empty()) known_ = false;
    }
    return CallFunction(name, std::move(arguments), true);
  }

  /// Up to the bracket or the end; an argument left out is Empty.
  std::vector<Value> Arguments() {
    std::vector<Value> arguments;
    if (Peek() == ')' || Peek() == '\0' || Peek() == ':') return arguments;
    do {
      const char c = Peek();
      const bool none = c == ',' || c == ')' || c == '\0' || c == ':';
      arguments.push_back(none ? Value() : Expression());
    } while (known_ && result_.Error.empty() && Take(','));
    return arguments;
  }

  Value CallFunction(const std::string& name, std::vector<Value> arguments, bool wants_value) {
    if (!known_ || !result_.Error.empty()) return {};
    const FunctionInfo* row = FindFunction(name, arguments.size());
    const NativeFunction code = row == nullptr ? nullptr : NativeOf(row->Id);
    if (code == nullptr || (wants_value && row->Form != FunctionForm::Function)) {
      known_ = false;
      return {};
    }
    for (std::size_t i = 0; i < arguments.size(); ++i) Convert(*row, i, arguments[i]);
    LibraryCall call{arguments, world_.Host, state_, kTableTextLimit, Value(), ""};
    code(call);
    result_.Error = call.Error;
    return call.Result;
  }

  static void Convert(const FunctionInfo& row, std::size_t index, Value& value) {
    if (value.Kind() == SlotKind::Empty) return;
    switch (row.ParameterOf(index).Kind) {
      case ParameterKind::String:
        value = Value::Text(value.AsText());
        break;
      case ParameterKind::Whole:
        value = Value::Integer(value.AsInteger());
        break;
      case ParameterKind::Number:
        value = Value::Number(value.AsNumber());
        break;
      default:
        break;
    }
  }

  std::string_view text_;
  std::size_t at_ = 0;
  bool known_ = true;
  LineResult result_;

  ProgramWorld world_;
  LibraryState state_;
};

}  // namespace

std::optional<LineResult> RunNativeLine(std::string_view line) {
  return Line(line).Run();
}

}  // namespace tarnwick::basic
