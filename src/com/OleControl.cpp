#include "com/OleControl.h"

#include <vector>

#include "com/Keyboard.h"

namespace mavCycEd::com {
namespace {

wchar_t smallLetter(wchar_t key) {
  CharLowerBuffW(&key, 1);
  return key;
}

}  // namespace

OleControl::~OleControl() { forgetAccessKeys(); }

STDMETHODIMP OleControl::GetControlInfo(CONTROLINFO* info) {
  return entry([&] {
    requireWritable(info, sizeof *info);
    if (info->cb < sizeof *info) throw Failure(E_INVALIDARG);
    std::vector<ACCEL> keys;
    // The small letter is what the keyboard sends, the capital what it sends with Shift; containers compare exactly.
    for (const wchar_t key : accessKeys(session_.window().handle())) {
      const auto number = static_cast<WORD>(keys.size() / 2 + 1);
      keys.push_back({FALT, static_cast<WORD>(smallLetter(key)), number});
      keys.push_back({FALT, static_cast<WORD>(key), number});
    }
    forgetAccessKeys();
    if (!keys.empty()) accessKeys_ = CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
    info->hAccel = accessKeys_;
    info->cAccel = static_cast<USHORT>(accessKeys_ == nullptr ? 0 : keys.size());
    info->dwFlags = 0;
  });
}

STDMETHODIMP OleControl::OnMnemonic(MSG* message) {
  return entry([&] {
    requireReadable(message, sizeof *message);
    activation_.activateUi(nullptr);
    pressAccessKey(session_.window().handle(), static_cast<wchar_t>(message->wParam));
  });
}

STDMETHODIMP OleControl::OnAmbientPropertyChange(DISPID) {
  return entry([&] { activation_.followAmbient(); });
}

STDMETHODIMP OleControl::FreezeEvents(BOOL freeze) {
  return entry([&] { events_.freeze(freeze != FALSE); });
}

void OleControl::forgetAccessKeys() {
  if (accessKeys_ != nullptr) DestroyAcceleratorTable(accessKeys_);
  accessKeys_ = nullptr;
}

}  // namespace mavCycEd::com
