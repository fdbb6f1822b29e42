#include "text/TextPosition.h"

#include "text/Utf8.h"

namespace mavCycEd::text {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

}  // namespace

TextPositions::TextPositions(std::string_view text)
    : text_(text), reached_(text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0) {}

TextPosition TextPositions::at(std::size_t offset) {
  while (reached_ < text_.size()) {
    const char byte = text_[reached_];
    const bool startsLineEnd = byte == '\r' && text_.substr(reached_, 2) == "\r\n";
    const std::size_t size = startsLineEnd ? 2 : firstCharacterSize(text_.substr(reached_));
    if (reached_ + size > offset) break;
    reached_ += size;
    if (byte == '\r' || byte == '\n') {
      ++position_.line;
      position_.column = 1;
    } else {
      ++position_.column;
    }
  }
  return position_;
}

}  // namespace mavCycEd::text
