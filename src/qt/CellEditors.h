#pragma once

#include <QLineEdit>
#include <QStringList>

#include "qt/ComboWidget.h"

namespace mavCycEd::qt {

/// What stands in a cell while its value is edited: a line to type into, or a line with a list to pick from. Both have
/// a line edit, which says what is typed.
class CellLine : public QLineEdit {
  Q_OBJECT

 public:
  explicit CellLine(QWidget* parent);
};

class CellCombo : public ComboWidget {
  Q_OBJECT

 public:
  CellCombo(const QStringList& items, QWidget* parent);

  /// Opens the list at the item that the text is, and leaves the text as it is.
  void showPopup() override;
};

/// The line edit of an editor.
QLineEdit& lineOf(QWidget& editor);

}  // namespace mavCycEd::qt
