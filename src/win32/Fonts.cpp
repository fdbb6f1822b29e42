#include "win32/Fonts.h"

#include <cmath>

#include "win32/Dpi.h"
#include "win32/Text.h"

namespace mavCycEd::win32 {
namespace {

constexpr double pointsPerInch = 72;

}  // namespace

FontHandle makeFont(const LOGFONTW& description) { return {CreateFontIndirectW(&description), DeleteObject}; }

platform::Font asFont(const LOGFONTW& description, int dpi) {
  platform::Font font;
  font.faceName = fromWide(description.lfFaceName);
  font.pointSize = std::abs(description.lfHeight) * pointsPerInch / dpi;
  font.characterSet = description.lfCharSet;
  return font;
}

LOGFONTW asDescription(const platform::Font& font, int dpi) {
  LOGFONTW description = systemFont(dpi);
  if (!font.faceName.empty()) {
    const std::wstring face = toWide(font.faceName).substr(0, LF_FACESIZE - 1);
    face.copy(description.lfFaceName, LF_FACESIZE - 1);
    description.lfFaceName[face.size()] = L'\0';
  }
  if (font.pointSize > 0) description.lfHeight = -static_cast<LONG>(std::lround(font.pointSize * dpi / pointsPerInch));
  description.lfCharSet = static_cast<BYTE>(font.characterSet);
  return description;
}

TextMeasure::TextMeasure(HWND window, HFONT font)
    : window_(window), context_(GetDC(window)), before_(SelectObject(context_, font)) {}

TextMeasure::~TextMeasure() {
  SelectObject(context_, before_);
  ReleaseDC(window_, context_);
}

int TextMeasure::width(std::wstring_view text) const {
  SIZE size{};
  GetTextExtentPoint32W(context_, text.data(), static_cast<int>(text.size()), &size);
  return size.cx;
}

int TextMeasure::lineHeight() const {
  TEXTMETRICW metrics{};
  GetTextMetricsW(context_, &metrics);
  return metrics.tmHeight + metrics.tmExternalLeading;
}

int TextMeasure::averageWidth() const {
  TEXTMETRICW metrics{};
  GetTextMetricsW(context_, &metrics);
  return metrics.tmAveCharWidth;
}

}  // namespace mavCycEd::win32
