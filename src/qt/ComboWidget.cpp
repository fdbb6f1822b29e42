#include "qt/ComboWidget.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCoreApplication>
#include <QFocusEvent>
#include <QScrollBar>
#include <QStylePainter>
#include <QWheelEvent>
#include <algorithm>
#include <chrono>

#include "qt/FocusRules.h"
#include "qt/GridKeys.h"
#include "qt/RowDelegate.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

ComboWidget::ComboWidget(QWidget* parent)
    : QComboBox(parent), typeAhead_(kit::TypeAhead::Time(QApplication::keyboardInputInterval())) {
  constexpr int mostVisibleItems = 20;
  setMaxVisibleItems(mostVisibleItems);
  setItemDelegate(new RowDelegate(this));
  view()->installEventFilter(this);
  // A list with a scroll bar in every style, not a menu as high as the screen.
  setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
}

void ComboWidget::showPopup() {
  const int wanted = view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width();
  constexpr int widest = 3;  // in widths of the combo box
  view()->setMinimumWidth(std::min(wanted, widest * width()));
  QComboBox::showPopup();
}

// The list is a window of its own, where keys end. Whoever asks for the help has done with the list.
bool ComboWidget::eventFilter(QObject* watched, QEvent* event) {
  const bool pressed = watched == view() && event->type() == QEvent::KeyPress;
  if (!pressed || !isHelpKey(static_cast<const QKeyEvent&>(*event))) return QComboBox::eventFilter(watched, event);
  hidePopup();
  QCoreApplication::sendEvent(this, event);
  return true;
}

void ComboWidget::wheelEvent(QWheelEvent* event) { event->ignore(); }

void ComboWidget::focusOutEvent(QFocusEvent* event) {
  QComboBox::focusOutEvent(event);
  typeAhead_.restart();
  if (leavesControl(*this, *event)) emit focusLeft();
}

void ComboWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Shift) return QComboBox::keyPressEvent(event);
  // Ctrl and a letter find no item: they are for whoever has a meaning for them.
  if (!isEditable() && (event->modifiers() & Qt::ControlModifier) != 0 && !event->text().isEmpty()) {
    typeAhead_.restart();
    event->ignore();
    return;
  }
  if (isEditable() || !typeAhead(*event)) {
    typeAhead_.restart();
    QComboBox::keyPressEvent(event);
  }
}

// False when nothing was typed. What is told may destroy the widget.
bool ComboWidget::typeAhead(const QKeyEvent& event) {
  const bool isText = !event.text().isEmpty() && event.text().front().isPrint() && event.key() != Qt::Key_Space;
  if (!isText || (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) return false;
  const auto now =
      std::chrono::duration_cast<kit::TypeAhead::Time>(std::chrono::steady_clock::now().time_since_epoch());
  const int found = typeAhead_.type(
      fromQt(event.text()), now,
      {.count = count(), .current = currentIndex(), .text = [this](int index) { return fromQt(itemText(index)); }});
  if (found < 0 || found == currentIndex()) return true;
  setCurrentIndex(found);
  emit textActivated(currentText());
  return true;
}

void ComboWidget::paintEvent(QPaintEvent* event) {
  if (isEditable() || currentIndex() >= 0) {
    QComboBox::paintEvent(event);
    return;
  }
  QStylePainter painter(this);
  painter.setPen(palette().color(QPalette::Text));
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = placeholderText();
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

}  // namespace mavCycEd::qt
