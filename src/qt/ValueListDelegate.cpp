#include "qt/ValueListDelegate.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

#include "qt/CellEditors.h"
#include "qt/ValueListModel.h"
#include "qt/ValueListView.h"

namespace mavCycEd::qt {

QRect ValueListDelegate::arrowRect(const QRect& cell, const QModelIndex& index) {
  if (index.data(ValueListModel::PickListRole).toStringList().isEmpty()) return {};
  const int width = std::min(cell.height(), cell.width());
  return {cell.right() - width + 1, cell.top(), width, cell.height()};
}

void ValueListDelegate::paintRow(QPainter* painter, const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const {
  const QRect arrow = arrowRect(option.rect, index);
  if (arrow.isEmpty()) {
    RowDelegate::paintRow(painter, option, index);
    return;
  }
  QStyleOptionViewItem text = option;
  text.rect.setRight(arrow.left() - 1);
  RowDelegate::paintRow(painter, text, index);

  // The rest of the cell, with the arrow in it.
  const QStyle& style = option.widget != nullptr ? *option.widget->style() : *QApplication::style();
  QStyleOptionViewItem rest = option;
  rest.rect = arrow;
  style.drawPrimitive(QStyle::PE_PanelItemViewItem, &rest, painter, option.widget);
  QStyleOption mark;
  mark.initFrom(option.widget);
  mark.state = option.state & (QStyle::State_Enabled | QStyle::State_Active);
  if ((option.state & QStyle::State_Selected) != 0) {
    mark.palette.setBrush(QPalette::ButtonText, option.palette.highlightedText());
    mark.palette.setBrush(QPalette::WindowText, option.palette.highlightedText());
  }
  const int margin = arrow.height() / 4;
  mark.rect = arrow.adjusted(margin, margin, -margin, -margin);
  style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &mark, painter, option.widget);
}

void ValueListDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const {
  auto* const view = qobject_cast<ValueListView*>(parent());
  if (view != nullptr && editor != nullptr) {
    view->cellEditor().release(*editor);
  } else {
    RowDelegate::destroyEditor(editor, index);
  }
}

QWidget* ValueListDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
  const QStringList items = index.data(ValueListModel::PickListRole).toStringList();
  QWidget* editor = nullptr;
  if (items.isEmpty()) {
    editor = new CellLine(parent);
  } else {
    editor = new CellCombo(items, parent);
  }
  editor->setAccessibleName(index.siblingAtColumn(ValueListModel::keyColumn).data().toString());
  lineOf(*editor).setText(index.data(Qt::EditRole).toString());
  return editor;
}

void ValueListDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                             const QModelIndex&) const {
  editor->setGeometry(option.rect);
}

// Neither keys nor a loss of the focus end an edit here.
bool ValueListDelegate::eventFilter(QObject*, QEvent*) { return false; }

}  // namespace mavCycEd::qt
