#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace mavCycEd::platform {

/// A window of the platform as a number that only the platform's own services understand; 0: none.
using WindowHandle = std::uintptr_t;

/// What a modal dialog tells its owner.
struct ModalDialogEvents {
  /// The user closed the window by its frame or with Esc.
  std::function<void()> Close;
};

/// A window that keeps its owner from working until it closes.
class ModalDialog {
 public:
  virtual ~ModalDialog() = default;

  virtual void setEvents(ModalDialogEvents events) = 0;

  virtual std::string caption() const = 0;
  virtual void setCaption(std::string_view caption) = 0;

  /// Shows the window and returns when it has closed.
  virtual void showModal() = 0;
  /// Ends showModal().
  virtual void close() = 0;

  /// Whether the window exists on the screen at this moment.
  virtual bool isLoaded() const = 0;
  /// The window's handle, 0 while it is not loaded.
  virtual WindowHandle hWnd() const = 0;
};

}  // namespace mavCycEd::platform
