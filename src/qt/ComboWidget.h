#pragma once

#include <QComboBox>

#include "kit/TypeAhead.h"

namespace mavCycEd::qt {

/// A combo box on the screen. Turning the mouse wheel over it never changes it; its list is as wide as its texts and
/// scrolls; a text that is no item looks like any other. Typing finds
/// items, and begins anew behind any other key and in another control.
class ComboWidget : public QComboBox {
  Q_OBJECT

 public:
  explicit ComboWidget(QWidget* parent);

  void showPopup() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  /// The keyboard focus went to another control. A list, a menu or another window in front does not count.
  void focusLeft();

 protected:
  void wheelEvent(QWheelEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool typeAhead(const QKeyEvent& event);

  kit::TypeAhead typeAhead_;
};

}  // namespace mavCycEd::qt
