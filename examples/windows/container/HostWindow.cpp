#include "HostWindow.h"

namespace {

constexpr const wchar_t* className = L"mavCycEd.Example.Container";

// A length on the screen as it is scaled.
int scaled(int length) {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return MulDiv(length, dpi, USER_DEFAULT_SCREEN_DPI);
}

const int margin = scaled(8);
const int buttonHeight = scaled(26);

// A text as an argument for COM.
class Text {
 public:
  explicit Text(const std::wstring& text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
  ~Text() { SysFreeString(text_); }
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;
  BSTR get() const { return text_; }

 private:
  BSTR text_;
};

}  // namespace

HostWindow::HostWindow() {
  const HINSTANCE module = GetModuleHandleW(nullptr);
  WNDCLASSW description{};
  description.lpfnWndProc = procedure;
  description.hInstance = module;
  description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  description.lpszClassName = className;
  RegisterClassW(&description);
  window_ = CreateWindowExW(0, className, L"Two editors", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 0, 0, scaled(1000),
                            scaled(600), nullptr, nullptr, module, nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  button_ = CreateWindowExW(0, L"BUTTON", L"Hand back", WS_CHILD | WS_VISIBLE | WS_TABSTOP, margin, margin, scaled(120),
                            buttonHeight, window_, nullptr, module, nullptr);
  SendMessageW(button_, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), TRUE);
  const RECT small{0, 0, 100, 100};
  left_ = ControlSite::create(window_, small);
  right_ = ControlSite::create(window_, small);
  if (!isComplete()) return;
  connect(*left_, *right_);
  connect(*right_, *left_);
  layOut();
  ShowWindow(window_, SW_SHOW);
}

HostWindow::~HostWindow() {
  if (left_ != nullptr) left_->close();
  if (right_ != nullptr) right_->close();
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  DestroyWindow(window_);
}

void HostWindow::connect(ControlSite& site, ControlSite& other) {
  site.onError([this](const EditorError& error) { errors_.push_back(error); });
  site.onActivated([&other] { other.deactivate(); });
  site.onTabOut([this, &site](bool backwards) {
    const bool isLeft = &site == left_;
    site.deactivate();
    if (isLeft == backwards) {
      focusButton();
    } else {
      focus(isLeft ? *right_ : *left_);
    }
  });
}

void HostWindow::load(const std::wstring& catalogue, const std::wstring& cycle) {
  for (ControlSite* const site : {left_, right_}) {
    site->editor().SetXMLStrings(Text(catalogue).get(), Text(cycle).get());
  }
}

std::wstring HostWindow::cycleOf(ControlSite& site) {
  BSTR text = nullptr;
  if (FAILED(site.editor().RetrieveCycle(&text))) return {};
  std::wstring cycle(text, SysStringLen(text));
  SysFreeString(text);
  return cycle;
}

void HostWindow::layOut() {
  RECT client{};
  GetClientRect(window_, &client);
  const LONG top = buttonHeight + 2 * margin;
  const LONG middle = client.right / 2;
  if (left_ != nullptr) left_->place({margin, top, middle - margin / 2, client.bottom - margin});
  if (right_ != nullptr) right_->place({middle + margin / 2, top, client.right - margin, client.bottom - margin});
}

void HostWindow::focusButton() { SetFocus(button_); }

// At which end the editor takes the keyboard it sees from the key and the Shift key.
void HostWindow::focus(ControlSite& site) {
  MSG tab{site.controlWindow(), WM_KEYDOWN, VK_TAB, 0, 0, {}};
  site.activate(&tab);
}

void HostWindow::dispatch(MSG& message) {
  for (ControlSite* const site : {left_, right_}) {
    const HWND control = site->controlWindow();
    const bool isOurs = message.hwnd == control || IsChild(control, message.hwnd) != FALSE;
    if (isOurs && site->translate(message)) return;
  }
  if (message.message == WM_SYSCHAR && (left_->pressAccessKey(message) || right_->pressAccessKey(message))) return;
  if (message.hwnd == button_ && message.message == WM_KEYDOWN && message.wParam == VK_TAB) {
    focus(GetKeyState(VK_SHIFT) < 0 ? *right_ : *left_);
    return;
  }
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

void HostWindow::run() {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) dispatch(message);
}

LRESULT CALLBACK HostWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto self = reinterpret_cast<HostWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  return self != nullptr ? self->onMessage(message, wParam, lParam) : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT HostWindow::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE: layOut(); return 0;
    case WM_COMMAND:
      if (reinterpret_cast<HWND>(lParam) == button_ && HIWORD(wParam) == BN_CLICKED) {
        MessageBoxW(window_, cycleOf(*left_).c_str(), L"The left editor's cycle", MB_OK);
        return 0;
      }
      break;
    case WM_CLOSE: PostQuitMessage(0); return 0;
    default: break;
  }
  return DefWindowProcW(window_, message, wParam, lParam);
}
