#pragma once

#include <QListView>
#include <QPersistentModelIndex>

#include "qt/ListModel.h"

namespace mavCycEd::qt {

/// A list of texts on the screen. It selects like a list box: the press of the button selects, a press below the items
/// selects none, and every choice of a user is told, also one of the item that was selected already.
class TextListView : public QListView {
  Q_OBJECT

 public:
  /// The model becomes the view's own.
  TextListView(ListModel* model, QWidget* parent);

  /// The selected item, -1 for none.
  int selectedRow() const;
  /// Selects an item, or none (-1), and brings it into view. Tells nothing.
  void select(int row);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// The user selected an item, or none.
  void chosen();
  /// The user double-clicked the selected item.
  void doubleClickedItem();
  void deletePressed();
  void returnPressed();

 protected:
  bool event(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void showEvent(QShowEvent* event) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;

 private:
  void bringIntoView(const QModelIndex& index);
  void selectInPlace(int row);
  QSize sizeOf(int characters, int lines) const;

  QPersistentModelIndex wanted_;  // the item to be brought into view
  bool scrollWaits_ = false;
  bool inPlace_ = false;  // what becomes current is not brought into view
};

}  // namespace mavCycEd::qt
