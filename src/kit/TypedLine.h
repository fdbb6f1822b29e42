#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace mavCycEd::kit {

/// A line of text while its user types.
struct TypedLine {
  std::string text;
  std::size_t cursor = 0;  ///< how many of the text's bytes stand before the place where typing goes on

  bool operator==(const TypedLine&) const = default;
};

/// The line without what a paste brought along of line ends and tabs; the cursor stays where it was in the text.
TypedLine onOneLine(const TypedLine& line);

/// The line with another text. Where that is the old one without some characters, typing goes on where it was;
/// otherwise behind the text.
TypedLine rewritten(const TypedLine& line, std::string_view text);

}  // namespace mavCycEd::kit
