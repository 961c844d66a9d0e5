#include "objects/rich_text.h"

#include <charconv>
#include <cstdint>
#include <vector>

namespace tarnwick::objects {
namespace {

constexpr std::string_view kHead = "{\\rtf";

/// Words that begin a group without text of the document.
constexpr std::string_view kSilent[] = {"fonttbl", "colortbl", "stylesheet", "info",
                                        "pict",    "header",   "footer",     "generator"};

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

struct Row {
  std::string_view Word;
  std::string_view Text;
};
constexpr Row kTexts[] = {{"par", "\r\n"},       {"line", "\r\n"},   {"tab", "\t"},
                          {"lquote", "\x91"},    {"rquote", "\x92"}, {"ldblquote", "\x93"},
                          {"rdblquote", "\x94"}, {"bullet", "\x95"}, {"endash", "\x96"},
                          {"emdash", "\x97"}};

class Reader {
 public:
  explicit Reader(std::string_view rich) : rest_(rich) {}

  std::string Read() {
    while (!rest_.empty()) Step();
    return std::move(text_);
  }

 private:
  [[nodiscard]] bool Silent() const { return silent_ > 0; }

  void Put(std::string_view text) {
    if (!Silent()) text_ += text;
  }

  void Step() {
    const char c = rest_.front();
    rest_.remove_prefix(1);
    if (c == '{') {
      ++depth_;
    } else if (c == '}') {
      if (silent_ == depth_) silent_ = 0;
      if (depth_ > 0) --depth_;
    } else if (c == '\\') {
      Control();
    } else if (c != '\r' && c != '\n') {
      Put({&c, 1});
    }
  }

  void Control() {
    if (rest_.empty()) return;
    if (!IsLetter(rest_.front())) {
      const char sign = rest_.front();
      rest_.remove_prefix(1);
      if (sign == '\'') return Hex();
      if (sign == '*' && silent_ == 0) silent_ = depth_;
      if (sign == '\\' || sign == '{' || sign == '}') Put({&sign, 1});
      if (sign == '~') Put("\xA0");
      return;
    }
    std::size_t length = 0;
    while (length < rest_.size() && IsLetter(rest_[length])) ++length;
    const std::string_view word = rest_.substr(0, length);
    rest_.remove_prefix(length);
    const std::size_t number = rest_.find_first_not_of("-0123456789");
    rest_.remove_prefix(number == std::string_view::npos ? rest_.size() : number);
    if (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
    for (const std::string_view silent : kSilent) {
      if (word == silent && silent_ == 0) silent_ = depth_;
    }
    for (const Row& row : kTexts) {
      if (word == row.Word) Put(row.Text);
    }
  }

  void Hex() {
    std::uint8_t byte = 0;
    const std::string_view digits = rest_.substr(0, 2);
    std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
    rest_.remove_prefix(digits.size());
    const char c = static_cast<char>(byte);
    Put({&c, 1});
  }

  std::string_view rest_;
  std::string text_;
  int depth_ = 0;
  int silent_ = 0;  ///< depth of the group whose text is passed over; 0: none
};

}  // namespace

bool IsRichText(std::string_view bytes) noexcept {
  return bytes.starts_with(kHead);
}

std::string PlainTextOf(std::string_view rich) {
  return Reader(rich).Read();
}

std::string RichTextOf(std::string_view plain) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string rich = R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0 MS Sans Serif;}}\f0\fs16 )";
  for (std::size_t i = 0; i < plain.size(); ++i) {
    const char c = plain[i];
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\r' && i + 1 < plain.size() && plain[i + 1] == '\n') continue;
    if (c == '\n' || c == '\r') {
      rich += "\\par\r\n";
    } else if (c == '\t') {
      rich += "\\tab ";
    } else if (c == '\\' || c == '{' || c == '}') {
      rich += {'\\', c};
    } else if (byte >= 0x80 || byte < 0x20) {
      rich += {'\\', '\'', kDigits[byte >> 4U], kDigits[byte & 15U]};
    } else {
      rich += c;
    }
  }
  return rich + "}\r\n";
}

}  // namespace tarnwick::objects
