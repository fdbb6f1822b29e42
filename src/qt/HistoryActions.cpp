#include "qt/HistoryActions.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <utility>

#include "qt/Text.h"

namespace mavCycEd::qt {
namespace {

QString captionOf(const char* word, const std::optional<std::string>& step) {
  const QString caption = QLatin1String(word);
  if (!step || step->empty()) return caption;
  QString name = toQt(*step);
  return caption + QLatin1Char(' ') + name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace

HistoryActions::HistoryActions(QWidget& widget, std::function<void()> undo, std::function<void()> redo) {
  undo_.setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Z)});
  redo_.setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
  // The keys are shown in the host's menu, and good in the widget only: it answers them itself.
  for (QAction* const action : {&undo_, &redo_}) action->setShortcutContext(Qt::WidgetShortcut);
  connect(&undo_, &QAction::triggered, this, [answer = std::move(undo)] { answer(); });
  connect(&redo_, &QAction::triggered, this, [answer = std::move(redo)] { answer(); });
  show({}, {});
  widget.installEventFilter(this);
}

void HistoryActions::show(const std::optional<std::string>& undoText, const std::optional<std::string>& redoText) {
  undo_.setText(captionOf("&Undo", undoText));
  undo_.setEnabled(undoText.has_value());
  redo_.setText(captionOf("&Redo", redoText));
  redo_.setEnabled(redoText.has_value());
}

QAction* HistoryActions::actionOf(const QKeyEvent& key) {
  const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
  if (modifiers == Qt::ControlModifier && key.key() == Qt::Key_Z) return &undo_;
  const bool redoes = (modifiers == Qt::ControlModifier && key.key() == Qt::Key_Y) ||
                      (modifiers == (Qt::ControlModifier | Qt::ShiftModifier) && key.key() == Qt::Key_Z);
  return redoes ? &redo_ : nullptr;
}

bool HistoryActions::eventFilter(QObject* watched, QEvent* event) {
  const bool pressed = event->type() == QEvent::KeyPress;
  if (!pressed && event->type() != QEvent::ShortcutOverride) return QObject::eventFilter(watched, event);
  QAction* const action = actionOf(static_cast<const QKeyEvent&>(*event));
  if (action == nullptr) return false;
  event->accept();
  if (!pressed) return true;
  auto* const line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  if (line == nullptr) {
    action->trigger();
  } else if (action == &undo_) {
    line->undo();
  } else {
    line->redo();
  }
  return true;
}

}  // namespace mavCycEd::qt
