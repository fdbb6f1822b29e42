#include "win32/NativeWindow.h"

#include "win32/Accessible.h"
#include "win32/HistoryKeys.h"
#include "win32/Module.h"
#include "win32/Win32Frame.h"

namespace mavCycEd::win32 {
namespace {

constexpr UINT reflected = WM_APP + 0x1000;  // and the message itself
constexpr UINT posted = WM_APP + 0x800;
constexpr UINT_PTR subclassId = 1;

}  // namespace

bool reflect(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
  HWND child = nullptr;
  switch (message) {
    case WM_COMMAND: child = reinterpret_cast<HWND>(lParam); break;
    case WM_NOTIFY: child = reinterpret_cast<const NMHDR*>(lParam)->hwndFrom; break;
    case WM_DRAWITEM: child = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->hwndItem; break;
    default: return false;
  }
  if (child == nullptr) return false;
  result = SendMessageW(child, reflected + message, wParam, lParam);
  return true;
}

namespace {

HWND make(HWND parent, const NativeWindow::Kind& kind) {
  const DWORD asChild = (kind.style & WS_POPUP) != 0 ? 0 : WS_CHILD | WS_VISIBLE;
  return CreateWindowExW(kind.extendedStyle, kind.windowClass, L"", kind.style | asChild, 0, 0, 0, 0, parent, nullptr,
                         ownModule(), nullptr);
}

}  // namespace

HWND shownRootOf(HWND window) {
  const HWND root = window == nullptr ? nullptr : GetAncestor(window, GA_ROOT);
  return root != nullptr && IsWindowVisible(root) != FALSE ? root : nullptr;
}

bool hasLostFocusToControl(HWND control) {
  const HWND focus = GetFocus();
  const bool isElsewhere = focus != nullptr && focus != control && IsChild(control, focus) == FALSE;
  return isElsewhere && GetAncestor(focus, GA_ROOT) == GetAncestor(control, GA_ROOT);
}

NativeWindow::NativeWindow(HWND parent, Win32Frame* frame, const Kind& kind)
    : handle_(make(parent, kind)), frame_(frame) {
  if (handle_ != nullptr) SetWindowSubclass(handle_, procedure, subclassId, reinterpret_cast<DWORD_PTR>(this));
  if (frame_ != nullptr) frame_->add(*this);
}

NativeWindow::NativeWindow(HWND existing) : handle_(existing), isOurs_(false) {
  if (handle_ != nullptr) SetWindowSubclass(handle_, procedure, subclassId, reinterpret_cast<DWORD_PTR>(this));
}

NativeWindow::~NativeWindow() {
  if (frame_ != nullptr) frame_->remove(*this);
  if (handle_ == nullptr) return;
  const HWND window = handle_;
  RemoveWindowSubclass(window, procedure, subclassId);
  handle_ = nullptr;
  if (isOurs_) DestroyWindow(window);
}

void NativeWindow::remake(const Kind& kind) {
  if (handle_ == nullptr || !isOurs_) return;
  const ThemedScope themed;
  const HWND former = handle_;
  const HWND parent = GetAncestor(former, GA_PARENT);
  const bool hadFocus = GetFocus() == former;
  const HWND made = make(parent, kind);
  if (made == nullptr) return;
  RECT around{};
  GetWindowRect(former, &around);
  MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&around), 2);
  SetWindowPos(made, former, around.left, around.top, around.right - around.left, around.bottom - around.top,
               SWP_NOACTIVATE);  // behind it in the order of the Tab key
  RemoveWindowSubclass(former, procedure, subclassId);
  SetWindowSubclass(made, procedure, subclassId, reinterpret_cast<DWORD_PTR>(this));
  handle_ = made;
  if (font_) send(WM_SETFONT, reinterpret_cast<WPARAM>(font_.get()), FALSE);
  applyState();
  if (hadFocus) SetFocus(made);
  DestroyWindow(former);
}

void NativeWindow::setSelfEnabled(bool enabled) {
  enabled_ = enabled;
  applyState();
}

void NativeWindow::setSelfVisible(bool visible) {
  visible_ = visible;
  applyState();
}

bool NativeWindow::isEnabledHere() const { return enabled_ && (frame_ == nullptr || frame_->isEnabledHere()); }
bool NativeWindow::isVisibleHere() const { return visible_ && (frame_ == nullptr || frame_->isVisibleHere()); }

void NativeWindow::applyState() {
  if (handle_ == nullptr) return;
  EnableWindow(handle_, isEnabledHere() ? TRUE : FALSE);
  ShowWindow(handle_, isVisibleHere() ? SW_SHOWNA : SW_HIDE);
}

void NativeWindow::place(const RECT& rect) {
  if (handle_ == nullptr) return;
  SetWindowPos(handle_, nullptr, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void NativeWindow::setScreenFont(const FontHandle& font, int /*dpi*/) {
  font_ = font;
  send(WM_SETFONT, reinterpret_cast<WPARAM>(font.get()), TRUE);
}

std::optional<LRESULT> NativeWindow::onMessage(UINT, WPARAM, LPARAM) { return std::nullopt; }

void NativeWindow::post(int what) const {
  if (handle_ != nullptr) PostMessageW(handle_, posted, static_cast<WPARAM>(what), 0);
}

LRESULT NativeWindow::send(UINT message, WPARAM wParam, LPARAM lParam) const {
  return handle_ == nullptr ? 0 : SendMessageW(handle_, message, wParam, lParam);
}

LRESULT NativeWindow::callSystem(UINT message, WPARAM wParam, LPARAM lParam) const {
  return handle_ == nullptr ? 0 : DefSubclassProc(handle_, message, wParam, lParam);
}

void NativeWindow::setText(const std::wstring& text) const {
  if (handle_ != nullptr) SetWindowTextW(handle_, text.c_str());
}

// No exception gets back into the system. The editor's procedures catch their own and report them; what arrives here
// is memory that ran out in the screen itself, and the message counts as dealt with.
LRESULT CALLBACK NativeWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                         DWORD_PTR self) {
  auto& object = *reinterpret_cast<NativeWindow*>(self);
  if (message == WM_NCDESTROY) {
    object.handle_ = nullptr;
    RemoveWindowSubclass(window, procedure, subclassId);
    return DefSubclassProc(window, message, wParam, lParam);
  }
  try {
    return object.dispatch(message, wParam, lParam);
  } catch (...) {
    return 0;
  }
}

LRESULT NativeWindow::dispatch(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case posted: onPosted(static_cast<int>(wParam)); return 0;
    case reflected + WM_COMMAND: onCommand(HIWORD(wParam)); return 0;
    case reflected + WM_NOTIFY: return onNotify(*reinterpret_cast<const NMHDR*>(lParam));
    case reflected + WM_DRAWITEM: onDraw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)); return TRUE;
    case WM_GETOBJECT: {
      const bool ours = static_cast<LONG>(lParam) == OBJID_CLIENT && !accessibleName_.empty();
      if (ours) return accessibleDescription(*this, wParam);
      break;
    }
    default: break;
  }
  const HWND window = handle_;
  if (handOnHistoryKey(window, message, wParam)) return 0;
  if (const std::optional<LRESULT> answer = onMessage(message, wParam, lParam)) return *answer;
  return DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace mavCycEd::win32
