#pragma once

#include <QStyledItemDelegate>

namespace mavCycEd::qt {

/// Draws the rows of lists: with some air between them, so that no style covers the lowest pixels of a text, and so
/// that one sees where the keyboard is. There the selected row has its full colour and a line around it, anywhere else
/// it is muted. Some styles lay their own mark over the text instead, which makes it pale.
class RowDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const final;

 protected:
  /// The row without its focus mark.
  virtual void paintRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;
};

}  // namespace mavCycEd::qt
