#include "win32/Dpi.h"

namespace mavCycEd::win32 {
namespace {

// What older systems lack is looked up when it is needed.
template <typename Function>
Function userFunction(const char* name) {
  const HMODULE user = GetModuleHandleW(L"user32.dll");
  return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(user, name)));
}

int dpiOfScreen() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return dpi;
}

}  // namespace

int dpiOf(HWND window) {
  static const auto getDpiForWindow = userFunction<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
  const UINT dpi = getDpiForWindow != nullptr && window != nullptr ? getDpiForWindow(window) : 0;
  return dpi != 0 ? static_cast<int>(dpi) : dpiOfScreen();
}

int scaled(HWND window, int length) { return MulDiv(length, dpiOf(window), USER_DEFAULT_SCREEN_DPI); }

LOGFONTW systemFont(int dpi) {
  static const auto parametersForDpi =
      userFunction<BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT)>("SystemParametersInfoForDpi");
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  if (parametersForDpi != nullptr &&
      parametersForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, static_cast<UINT>(dpi)) != FALSE) {
    return metrics.lfMessageFont;
  }
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  metrics.lfMessageFont.lfHeight = MulDiv(metrics.lfMessageFont.lfHeight, dpi, dpiOfScreen());
  return metrics.lfMessageFont;
}

}  // namespace mavCycEd::win32
