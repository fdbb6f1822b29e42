#pragma once

#include <QEvent>
#include <QShortcutEvent>

namespace mavCycEd::qt {

/// A button of Qt's whose access key acts at once. Qt's own is pressed for a moment first, and a user who goes on
/// typing has changed by then what the press was meant for.
template <typename Button>
class PromptButton : public Button {
 public:
  using Button::Button;

 protected:
  bool event(QEvent* event) override {
    const bool isShortcut = event->type() == QEvent::Shortcut;
    if (!isShortcut || static_cast<const QShortcutEvent&>(*event).isAmbiguous()) return Button::event(event);
    this->click();  // which may destroy the button
    return true;
  }
};

}  // namespace mavCycEd::qt
