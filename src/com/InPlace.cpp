#include "com/InPlace.h"

#include "com/Keyboard.h"

namespace mavCycEd::com {
namespace {

// The window, once a container has placed it.
void giveWindow(const Activation& activation, EditorSession& session, HWND* window) {
  HWND& result = out(window);
  if (!activation.isInPlace()) throw Failure(E_FAIL);
  result = session.window().handle();
}

// The keys that are held, as containers have them.
DWORD heldKeys() {
  const auto held = [](int key, DWORD flag) { return GetKeyState(key) < 0 ? flag : 0; };
  return held(VK_SHIFT, 1) | held(VK_CONTROL, 2) | held(VK_MENU, 4);
}

}  // namespace

STDMETHODIMP InPlaceObject::GetWindow(HWND* window) {
  return entry([&] { giveWindow(activation_, session_, window); });
}

STDMETHODIMP InPlaceObject::ContextSensitiveHelp(BOOL) { return S_OK; }

STDMETHODIMP InPlaceObject::InPlaceDeactivate() {
  return entry([&] { activation_.deactivate(); });
}

STDMETHODIMP InPlaceObject::UIDeactivate() {
  return entry([&] { activation_.deactivateUi(); });
}

STDMETHODIMP InPlaceObject::SetObjectRects(LPCRECT position, LPCRECT clip) {
  return entry([&] {
    requireReadable(position, sizeof *position);
    if (clip != nullptr) requireReadable(clip, sizeof *clip);
    const RECT placed = *position;
    activation_.move(placed, clip == nullptr ? placed : *clip);
    extent_.setFromPixels(placed.right - placed.left, placed.bottom - placed.top);
  });
}

STDMETHODIMP InPlaceObject::ReactivateAndUndo() { return E_NOTIMPL; }

STDMETHODIMP InPlaceActiveObject::GetWindow(HWND* window) {
  return entry([&] { giveWindow(activation_, session_, window); });
}

STDMETHODIMP InPlaceActiveObject::ContextSensitiveHelp(BOOL) { return S_OK; }

STDMETHODIMP InPlaceActiveObject::TranslateAccelerator(LPMSG message) {
  return entry([&] {
    requireReadable(message, sizeof *message);
    if (message->message < WM_KEYFIRST || message->message > WM_KEYLAST || !activation_.isInPlace()) return S_FALSE;
    MSG key = *message;
    switch (answerKey(session_.window().handle(), key)) {
      case KeyUse::Done: return S_OK;
      case KeyUse::Wanted: return S_FALSE;
      case KeyUse::HandOver: break;
    }
    const ComPtr<IOleControlSite> site = site_.control();
    return site && site->TranslateAccelerator(&key, heldKeys()) == S_OK ? S_OK : S_FALSE;
  });
}

STDMETHODIMP InPlaceActiveObject::OnFrameWindowActivate(BOOL) { return S_OK; }
STDMETHODIMP InPlaceActiveObject::OnDocWindowActivate(BOOL) { return S_OK; }
STDMETHODIMP InPlaceActiveObject::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) { return S_OK; }
STDMETHODIMP InPlaceActiveObject::EnableModeless(BOOL) { return S_OK; }

}  // namespace mavCycEd::com
