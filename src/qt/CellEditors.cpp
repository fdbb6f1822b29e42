#include "qt/CellEditors.h"

namespace mavCycEd::qt {

CellLine::CellLine(QWidget* parent) : QLineEdit(parent) {
  setFrame(false);
  setAutoFillBackground(true);
  // A right click asks for the menu of the grid.
  setContextMenuPolicy(Qt::NoContextMenu);
}

CellCombo::CellCombo(const QStringList& items, QWidget* parent) : ComboWidget(parent) {
  setEditable(true);
  setFrame(false);
  setAutoFillBackground(true);
  setInsertPolicy(NoInsert);
  setDuplicatesEnabled(true);
  setCompleter(nullptr);
  addItems(items);
  setCurrentIndex(-1);
  setContextMenuPolicy(Qt::NoContextMenu);
  lineEdit()->setContextMenuPolicy(Qt::NoContextMenu);
}

void CellCombo::showPopup() {
  const QString text = currentText();
  setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
  setEditText(text);
  ComboWidget::showPopup();
}

QLineEdit& lineOf(QWidget& editor) {
  auto* const combo = qobject_cast<QComboBox*>(&editor);
  return combo != nullptr ? *combo->lineEdit() : static_cast<QLineEdit&>(editor);
}

}  // namespace mavCycEd::qt
