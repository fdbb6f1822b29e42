#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

#include "qt/HelpWindow.h"

namespace mavCycEd::qt {

/// The help of one control: one window at most, which goes with the control and is hidden with the control's window.
class HelpDesk : public QObject {
  Q_OBJECT

 public:
  explicit HelpDesk(QWidget& control);
  ~HelpDesk() override;
  HelpDesk(const HelpDesk&) = delete;
  HelpDesk& operator=(const HelpDesk&) = delete;

  void show(HelpPage page);
  /// Shows a page over a window that is modal: the operator can use both.
  void showOver(QWidget* window, HelpPage page);
  /// A window is about to go: the help that stands over it goes back to the control.
  void leave(QWidget* window);
  void close();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QPointer<QWidget> control_;
  QPointer<HelpWindow> window_;
};

/// Answers F1 in a widget and all that is in it. The key is the widget's own then, also where the host has given it a
/// meaning; everywhere else it stays the host's.
class HelpKey : public QObject {
  Q_OBJECT

 public:
  HelpKey(QWidget& widget, std::function<void()> answer);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void()> answer_;
};

}  // namespace mavCycEd::qt
