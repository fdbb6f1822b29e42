#pragma once

#include <cstddef>
#include <string_view>

namespace mavCycEd::text {

/// A place in a text as people and text editors name it: line and column from 1, columns in characters. A line ends
/// with CR LF, or with a lone CR or LF; a byte order mark at the start of the text is no character of it.
struct TextPosition {
  std::size_t line = 1;
  std::size_t column = 1;
};

/// Finds the positions of bytes in a text, in one walk through it.
class TextPositions {
 public:
  explicit TextPositions(std::string_view text);

  /// The position of the character that the byte at `offset` belongs to; behind the end that of the end. No offset is
  /// lower than the one before.
  TextPosition at(std::size_t offset);

 private:
  std::string_view text_;
  std::size_t reached_ = 0;
  TextPosition position_;
};

/// The position of one byte.
inline TextPosition positionAt(std::string_view text, std::size_t offset) { return TextPositions(text).at(offset); }

}  // namespace mavCycEd::text
