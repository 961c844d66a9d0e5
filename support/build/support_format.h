// The byte form of the support files: Windows-1252, CR LF line ends, and the marks between values.
// Anything that would break the format is refused as a fault.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "build/faults.h"
#include "build/help_text.h"
#include "build/support_sources.h"

namespace tarnwick::support {

inline constexpr char kValueStart = '\x8D';
inline constexpr char kValueEnd = '\x8E';
inline constexpr char kNameEnd = '\x8C';   ///< ends the name of an entry in braces
inline constexpr char kRowBreak = '\x95';  ///< between the rows of a list, the lines of a help text
inline constexpr char kHelpComma = '\x8F';
inline constexpr char kGridValueBreak = '\x8B';  ///< between the values of a row of the grid
inline constexpr std::string_view kHelpSection = "**tn**";
inline constexpr std::string_view kEventSection = "**etn**";

/// A name as it goes into the files. Refused are empty names, characters other than printable
/// ASCII, the comma and double quote, at which sequential reading would break, and those of
/// `forbidden`.
[[nodiscard]] std::string EncodeName(std::string_view name, std::string_view forbidden,
                                     const Place& where, Faults& faults);
/// One line of text in the code page. Refused are characters that the page lacks, control
/// characters, the marks of the files and the words that open a section.
[[nodiscard]] std::string EncodeLine(std::string_view line, const Place& where, Faults& faults);
/// A help text: its lines joined, commas exchanged for their stand-in.
[[nodiscard]] std::string EncodeHelp(const HelpLines& lines, const Place& where, Faults& faults);
/// The mark behind the name of a row of the grid: "" for "text", else one byte. Nothing for a word
/// that is no mark.
[[nodiscard]] std::optional<std::string_view> MarkByte(std::string_view mark) noexcept;

/// The four files.
[[nodiscard]] std::string ObjectsFile(const SupportSources& sources, Faults& faults);
[[nodiscard]] std::string FunctionsFile(const SupportSources& sources, Faults& faults);
[[nodiscard]] std::string KeywordsFile(const SupportSources& sources, Faults& faults);
[[nodiscard]] std::string GridFile(const SupportSources& sources, Faults& faults);
/// The include file of generated programs: the same text in the code page with CR LF.
[[nodiscard]] std::string IncludeFile(std::string_view utf8, const std::string& file,
                                      Faults& faults);

}  // namespace tarnwick::support
