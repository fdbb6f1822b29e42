#include "qt/HelpDesk.h"

#include <utility>

#include "qt/GridKeys.h"

namespace mavCycEd::qt {

HelpDesk::HelpDesk(QWidget& control) : control_(&control) { control.installEventFilter(this); }

HelpDesk::~HelpDesk() { close(); }

void HelpDesk::show(HelpPage page) {
  if (control_) showOver(control_->window(), page);
}

// It is a window of that window: of all windows, only these can be used while it is modal.
void HelpDesk::showOver(QWidget* window, HelpPage page) {
  if (!window_) {
    window_ = new HelpWindow(window);
  } else if (window_->parentWidget() != window) {
    window_->moveOver(window);
  }
  window_->showPage(page);
}

void HelpDesk::leave(QWidget* window) {
  if (!window_ || window_->parentWidget() != window) return;
  if (control_) {
    window_->moveOver(control_->window());
  } else {
    close();
  }
}

void HelpDesk::close() { delete window_; }

bool HelpDesk::eventFilter(QObject* watched, QEvent* event) {
  const bool hidden = event->type() == QEvent::Hide && watched == control_ && control_->window()->isHidden();
  if (hidden && window_) window_->hide();
  return QObject::eventFilter(watched, event);
}

HelpKey::HelpKey(QWidget& widget, std::function<void()> answer) : answer_(std::move(answer)) {
  widget.installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  const bool pressed = event->type() == QEvent::KeyPress;
  if (!pressed && event->type() != QEvent::ShortcutOverride) return QObject::eventFilter(watched, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (!isHelpKey(key)) return false;
  event->accept();
  if (pressed && !key.isAutoRepeat()) answer_();
  return true;
}

}  // namespace mavCycEd::qt
