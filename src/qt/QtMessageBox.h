#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/MessageBox.h"

namespace mavCycEd::qt {

/// Message boxes, each modal for the window that it stands over. Esc answers OK.
class QtMessageBox : public platform::MessageBox {
 public:
  /// Boxes without an owner of their own stand over the window of `control`.
  explicit QtMessageBox(QWidget* control) : control_(control) {}

  int messageBox(platform::WindowHandle owner, std::string_view message, std::string_view caption, int flags) override;

 private:
  QPointer<QWidget> control_;
};

}  // namespace mavCycEd::qt
