#include "com/Lifetime.h"

#include "win32/MessageWindow.h"

namespace mavCycEd::com {

/// Lets go of the object once the messages before its own have been dealt with.
class Lifetime::IdleWindow : public win32::MessageWindow {
 public:
  explicit IdleWindow(IUnknown& whole) : whole_(whole) {}

  void releaseWhenIdle() {
    if (handle() == nullptr) return;
    whole_.AddRef();
    if (PostMessageW(handle(), releaseMessage, 0, 0) == FALSE) whole_.Release();
  }

 protected:
  LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != releaseMessage) return MessageWindow::onMessage(message, wParam, lParam);
    whole_.Release();  // and this window with it, perhaps
    return 0;
  }

 private:
  static constexpr UINT releaseMessage = WM_APP;

  IUnknown& whole_;
};

Lifetime::Lifetime(IUnknown& whole) : whole_(whole) {}
Lifetime::~Lifetime() = default;

void Lifetime::stayUntilIdle() {
  if (stays_ > 0) return;  // the host's own call keeps the object alive
  if (!idleWindow_) idleWindow_ = std::make_unique<IdleWindow>(whole_);
  idleWindow_->releaseWhenIdle();
}

}  // namespace mavCycEd::com
