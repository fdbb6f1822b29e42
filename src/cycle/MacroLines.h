#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mavCycEd/Cycle.h"

/// The macro text: a cycle as lines that end with carriage return and line feed.
///
/// | line                                  | meaning                                   |
/// |---------------------------------------|-------------------------------------------|
/// | [PMA]                                 | the header; nothing wherever it stands    |
/// | //...                                 | a line of the description                 |
/// | NAME(value,value)                     | an atom line; NAME of "A" to "Z" and "_"  |
/// | anything else, also nothing at all    | a cycle variable                          |
///
/// It carries descriptions of one line only: "//" is written in front of the first line alone. An atom line with one
/// parameter is written without its value.
namespace mavCycEd {

/// One line of a macro text. It points into the text.
struct MacroLine {
  enum class Kind { Header, Description, AtomCall, Variable };

  Kind kind = Kind::Variable;
  std::string_view text;

  /// Of a description line: the text without its marks.
  std::string description() const;
  /// Of an atom call: what stands before its "(".
  std::string_view atomName() const;
  /// Of an atom call: the values; none where nothing but one character follows the "(".
  std::vector<std::string_view> values() const;
};

/// Whether a text is a macro text: at least one line break, and the first line exactly "[PMA]".
bool isMacroText(std::string_view text);

/// What a line by itself is.
MacroLine macroLineOf(std::string_view line);
/// The lines of a macro text. They point into it.
std::vector<MacroLine> macroLines(std::string_view text);

/// The line of a cycle that keeps it from being written, from 0: one with several parameters of which one has no name,
/// and therefore no value field. Nothing where every line can be written.
std::optional<std::size_t> lineWithoutName(const Cycle& cycle);
/// The line that starts a macro text, its line end included.
std::string macroHeader();
/// A cycle as a macro text, without the header. A line that cannot be written is run-time error 9.
std::string macroTextOf(const Cycle& cycle);

}  // namespace mavCycEd
