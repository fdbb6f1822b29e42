#include "ChangeWatch.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenu>
#include <QWidget>

namespace mavCycEd::host {
namespace {

constexpr int rest = 1000;  // milliseconds, like the next one
constexpr qint64 quickAnswer = 50;

/// Whether a key may enter something: it has a text, and is neither a movement nor a command.
bool mayEnter(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Escape: return false;
    case Qt::Key_Delete: return true;
    case Qt::Key_V:
    case Qt::Key_X:
    case Qt::Key_Y:
    case Qt::Key_Z: return true;
    default: break;
  }
  return !event.text().isEmpty() && (event.modifiers() & Qt::ControlModifier) == 0;
}

bool isButtonOrMenu(const QObject* receiver) {
  return qobject_cast<const QAbstractButton*>(receiver) != nullptr || qobject_cast<const QMenu*>(receiver) != nullptr;
}

}  // namespace

ChangeWatch::ChangeWatch(QWidget& editor, std::function<bool()> isChanged)
    : editor_(editor), isChanged_(std::move(isChanged)) {
  rest_.setSingleShot(true);
  connect(&rest_, &QTimer::timeout, this, &ChangeWatch::whenRested);
  QCoreApplication::instance()->installEventFilter(this);
}

bool ChangeWatch::eventFilter(QObject* receiver, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (isInEditor(receiver)) takeInput(mayEnter(*static_cast<QKeyEvent*>(event)));
      break;
    case QEvent::MouseButtonRelease:
    case QEvent::Shortcut:
      if (isInEditor(receiver)) takeInput(isButtonOrMenu(receiver));
      break;
    case QEvent::Drop:
    case QEvent::InputMethod:
      if (isInEditor(receiver)) takeInput(true);
      break;
    default: break;
  }
  return false;
}

bool ChangeWatch::isInEditor(const QObject* receiver) const {
  if (!receiver->isWidgetType()) return false;
  // The editor's dialogs and menus are windows of their own, so QWidget::isAncestorOf() does not see them.
  for (const auto* widget = static_cast<const QWidget*>(receiver); widget; widget = widget->parentWidget()) {
    if (widget == &editor_) return true;
  }
  return false;
}

void ChangeWatch::takeInput(bool entering) {
  entered_ = entered_ || entering;
  inputSinceAnswer_ = true;
  if (answersQuickly()) {
    rest_.start(rest);
  } else if (entering) {
    setChanged(true);
  }
}

void ChangeWatch::whenRested() {
  // In the middle of a command: its dialog or menu is open, or a mouse button is down.
  const bool busy = QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr ||
                    QGuiApplication::mouseButtons() != Qt::NoButton;
  if (busy) {
    rest_.start(rest);
  } else {
    ask();
  }
}

bool ChangeWatch::answersQuickly() const { return lastAnswerTook_ <= quickAnswer; }

bool ChangeWatch::ask() {
  rest_.stop();
  QElapsedTimer watch;
  watch.start();
  const bool answer = isChanged_();
  lastAnswerTook_ = watch.elapsed();
  inputSinceAnswer_ = false;
  setChanged(answer);
  return answer;
}

void ChangeWatch::glance() {
  const bool inDialog = QApplication::activeModalWidget() != nullptr;
  if (inputSinceAnswer_ && !inDialog && answersQuickly()) ask();
}

void ChangeWatch::settle(bool changed) {
  rest_.stop();
  inputSinceAnswer_ = false;
  entered_ = false;
  setChanged(changed);
}

void ChangeWatch::setChanged(bool changed) {
  if (changed == changed_) return;
  changed_ = changed;
  emit changedChanged(changed);
}

}  // namespace mavCycEd::host
