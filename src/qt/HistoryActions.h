#pragma once

#include <QAction>
#include <QObject>
#include <functional>
#include <optional>
#include <string>

class QKeyEvent;

namespace mavCycEd::qt {

/// What takes an operator's steps back and brings them again: two actions for the host's menus, and the keys for them
/// (Ctrl+Z, Ctrl+Y, Ctrl+Shift+Z) in a widget and all that is in it. The keys are the widget's own there, also where
/// the host has given them a meaning; everywhere else they stay the host's. In a line that is being typed into they are
/// the line's.
class HistoryActions : public QObject {
  Q_OBJECT

 public:
  HistoryActions(QWidget& widget, std::function<void()> undo, std::function<void()> redo);

  QAction* undoAction() { return &undo_; }
  QAction* redoAction() { return &redo_; }

  /// What the next steps are called; nothing where there is none.
  void show(const std::optional<std::string>& undoText, const std::optional<std::string>& redoText);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QAction* actionOf(const QKeyEvent& key);

  QAction undo_;
  QAction redo_;
};

}  // namespace mavCycEd::qt
