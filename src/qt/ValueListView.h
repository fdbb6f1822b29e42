#pragma once

#include <QTableView>
#include <memory>

#include "kit/ValueList.h"
#include "qt/QtCellEditor.h"

namespace mavCycEd::qt {

class ValueListModel;

/// The names of places and mouse buttons.
kit::Place placeOf(const QPoint& point);
platform::MouseButton named(Qt::MouseButton button);

/// A value list on the screen: its looks, and the events of its user's keys and mouse.
class ValueListView : public QTableView, private kit::ValueListScreen {
  Q_OBJECT

 public:
  ValueListView(std::shared_ptr<kit::ValueList> list, QWidget* parent);
  ~ValueListView() override;
  ValueListView(const ValueListView&) = delete;
  ValueListView& operator=(const ValueListView&) = delete;

  QtCellEditor& cellEditor() { return *cellEditor_; }

  /// The user opens the editor of the current row's value, if there is a row.
  void editCurrentRow() { std::shared_ptr(list_)->editCurrentRow(); }

  /// Selects the current row of the rows.
  void markCurrentRow();
  /// Puts an editor into the cell of a row's value, and takes it away; the focus stays in the grid if it was in it.
  QWidget* makeEditor(int row);
  void removeEditor(QWidget* editor) { closeEditor(editor, QAbstractItemDelegate::NoHint); }
  /// Where the pop-up menu was last asked for, in global coordinates.
  QPoint menuPlace() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void showCurrentRow() override;
  void announceCurrentRow() override {}
  kit::GridHit hitAt(kit::Place place) const override;
  kit::Place middleOf(int row) const override;
  int pageRows() const override;
  bool isUsable() const override { return isEnabled(); }
  bool isFocused() const override { return hasFocus(); }
  void takeFocus() override { setFocus(); }
  void passFocus(bool forward) override { focusNextPrevChild(forward); }
  void copy(std::string_view text) override;

  void setUpHeaders();
  void fitToFont();
  void fitColumns();
  void onColumnResized(int column, int width);
  void onTitleEvent(const QEvent& event);
  kit::Place placeOfTitle(const QPoint& place) const;

  std::shared_ptr<kit::ValueList> list_;
  ValueListModel* model_;
  QtCellEditor* cellEditor_;
  double keyShare_ = 0.55;  // of the key column in the width
  bool byCode_ = false;
  bool fitting_ = false;  // the widths of the columns are being set
};

}  // namespace mavCycEd::qt
