#pragma once

#include <QDialog>

#include "qt/HelpPages.h"

class QAction;

namespace mavCycEd::qt {

class HelpBrowser;

/// The window of the help: a page, and buttons that lead to others. Closing hides it.
class HelpWindow : public QDialog {
  Q_OBJECT

 public:
  explicit HelpWindow(QWidget* over);

  /// Shows a page, with the keyboard in it.
  void showPage(HelpPage page);
  /// Goes over another window. It stays shown, and the keyboard stays where it is.
  void moveOver(QWidget* window);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void layOut();
  void connectCommands();

  HelpBrowser* pages_;
  QAction* back_;
  QAction* forward_;
  QAction* contents_;
};

}  // namespace mavCycEd::qt
