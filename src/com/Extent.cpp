#include "com/Extent.h"

namespace mavCycEd::com {
namespace {

constexpr int hundredthsPerInch = 2540;

}  // namespace

void Extent::set(SIZEL size) {
  if (size.cx == size_.cx && size.cy == size_.cy) return;
  size_ = size;
  dirty_ = true;
}

void Extent::setFromPixels(int width, int height) {
  const HDC screen = GetDC(nullptr);
  const SIZEL perInch{GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY)};
  ReleaseDC(nullptr, screen);
  set({MulDiv(width, hundredthsPerInch, perInch.cx), MulDiv(height, hundredthsPerInch, perInch.cy)});
}

void Extent::reset() {
  size_ = newSize;
  dirty_ = false;
}

}  // namespace mavCycEd::com
