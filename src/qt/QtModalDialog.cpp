#include "qt/QtModalDialog.h"

#include "kit/Notify.h"
#include "qt/Text.h"
#include "qt/WindowHandles.h"

namespace mavCycEd::qt {

QtModalDialog::QtModalDialog(const char* name, QWidget* owner) : window_(new ModalWindow(owner)) {
  window_->setObjectName(QLatin1String(name));
  connect(window_, &ModalWindow::closing, this, [this] { kit::tell(events_.Close); });
}

// What stands in the window goes with it; the owner may have destroyed it before.
QtModalDialog::~QtModalDialog() { delete window_; }

void QtModalDialog::setCaption(std::string_view caption) {
  caption_ = caption;
  window_->setWindowTitle(toQt(caption));
}

void QtModalDialog::close() {
  if (isLoaded()) window_->done(QDialog::Accepted);
}

platform::WindowHandle QtModalDialog::hWnd() const { return isLoaded() ? handleOf(window_) : 0; }

}  // namespace mavCycEd::qt
