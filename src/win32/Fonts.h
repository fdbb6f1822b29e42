#pragma once

#include <memory>
#include <string_view>
#include <type_traits>

#include "platform/Font.h"
#include "win32/Windows.h"

namespace mavCycEd::win32 {

/// A font of the system, freed with its last owner.
using FontHandle = std::shared_ptr<std::remove_pointer_t<HFONT>>;

FontHandle makeFont(const LOGFONTW& description);

/// What a font's description means in points, on a screen of so many dots per inch, and back.
platform::Font asFont(const LOGFONTW& description, int dpi);
LOGFONTW asDescription(const platform::Font& font, int dpi);

/// A device context with a font selected, to measure texts with.
class TextMeasure {
 public:
  TextMeasure(HWND window, HFONT font);
  ~TextMeasure();
  TextMeasure(const TextMeasure&) = delete;
  TextMeasure& operator=(const TextMeasure&) = delete;

  int width(std::wstring_view text) const;
  int lineHeight() const;
  int averageWidth() const;

 private:
  HWND window_;
  HDC context_;
  HGDIOBJ before_;
};

}  // namespace mavCycEd::win32
