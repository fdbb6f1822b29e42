#pragma once

#include <QListView>
#include <string>
#include <vector>

namespace mavCycEd::qt {

/// The entries of a long pop-up menu, as a list in it. A click or Enter chooses; typing finds; Esc is the menu's. As in
/// a menu no entry is active at first, and Enter then leads to the first one.
class MenuList : public QListView {
  Q_OBJECT

 public:
  MenuList(std::vector<std::string> captions, QWidget* parent);

  QSize sizeHint() const override;

 signals:
  void chosen(int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  int clicked_ = -1;
};

}  // namespace mavCycEd::qt
