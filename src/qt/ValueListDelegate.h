#pragma once

#include "qt/RowDelegate.h"

namespace mavCycEd::qt {

/// Draws the cells of a value list, with an arrow where there is a list to pick from, and makes the editors of its
/// values. What happens in an editor is QtCellEditor's affair.
class ValueListDelegate : public RowDelegate {
  Q_OBJECT

 public:
  using RowDelegate::RowDelegate;

  /// Where the arrow of a cell is; empty for a cell without a list.
  static QRect arrowRect(const QRect& cell, const QModelIndex& index);

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  /// The text reaches the editor when the edit begins, and by QtCellEditor.
  void setEditorData(QWidget*, const QModelIndex&) const override {}
  void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}

 protected:
  void paintRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace mavCycEd::qt
