#include "qt/RowDelegate.h"

#include <QPainter>

#include "qt/FocusRules.h"

namespace mavCycEd::qt {
namespace {

QColor between(const QColor& from, const QColor& to, float share) {
  return QColor::fromRgbF(from.redF() + (to.redF() - from.redF()) * share,
                          from.greenF() + (to.greenF() - from.greenF()) * share,
                          from.blueF() + (to.blueF() - from.blueF()) * share);
}

// The colours of a selected row while the keyboard is elsewhere.
void mute(QPalette& palette) {
  constexpr float share = 0.4F;
  const QColor muted = between(palette.color(QPalette::Base), palette.color(QPalette::Highlight), share);
  palette.setColor(QPalette::Highlight, muted);
  palette.setBrush(QPalette::HighlightedText, palette.text());
}

}  // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  constexpr int air = 3;
  return QStyledItemDelegate::sizeHint(option, index) + QSize(0, air);
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const bool selected = (option.state & QStyle::State_Selected) != 0;
  const bool marked = selected && (option.state & QStyle::State_HasFocus) != 0;
  QStyleOptionViewItem row = option;
  if (selected && option.widget != nullptr && !holdsFocus(*option.widget)) mute(row.palette);
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
