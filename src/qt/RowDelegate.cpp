#include "qt/RowDelegate.h"

#include <QPainter>

namespace mavCycEd::qt {

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  constexpr int air = 3;
  return QStyledItemDelegate::sizeHint(option, index) + QSize(0, air);
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const bool marked = (option.state & QStyle::State_HasFocus) != 0 && (option.state & QStyle::State_Selected) != 0;
  QStyleOptionViewItem row = option;
  if (marked) row.state.setFlag(QStyle::State_HasFocus, false);
  paintRow(painter, row, index);
  if (!marked) return;
  QColor line = option.palette.color(QPalette::HighlightedText);
  line.setAlphaF(0.6F);
  painter->save();
  painter->setPen(line);
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
  painter->restore();
}

void RowDelegate::paintRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
}

}  // namespace mavCycEd::qt
