#pragma once

#include <QStyledItemDelegate>

namespace mavCycEd::qt {

/// Draws the cells of a value list, with an arrow where there is a list to pick from, and makes the editors of its
/// values. What happens in an editor is CellEdit's affair.
class ValueListDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// Where the arrow of a cell is; empty for a cell without a list.
  static QRect arrowRect(const QRect& cell, const QModelIndex& index);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  /// The text reaches the editor when the edit begins, and by CellEdit.
  void setEditorData(QWidget*, const QModelIndex&) const override {}
  void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace mavCycEd::qt
