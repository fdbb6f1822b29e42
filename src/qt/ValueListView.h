#pragma once

#include <QTableView>

#include "platform/ValueListActiveX.h"
#include "qt/CellEdit.h"
#include "qt/GridUnits.h"

namespace mavCycEd::qt {

class ValueListModel;

/// A value list on the screen: the keys and the mouse of its user. A value is edited in its cell: a click on it, F2,
/// Enter or simply typing opens the editor; a value that was picked from its list is still being edited, so that the
/// next key leads on from there.
class ValueListView : public QTableView {
  Q_OBJECT

 public:
  /// While one of these lives, what happens to the rows is code's doing and tells nothing; then the view shows the
  /// current row.
  class CodeChange {
   public:
    explicit CodeChange(ValueListView& view);
    ~CodeChange();
    CodeChange(const CodeChange&) = delete;
    CodeChange& operator=(const CodeChange&) = delete;

   private:
    ValueListView& view_;
    bool before_;
  };

  /// The model becomes the view's own.
  ValueListView(ValueListModel* model, QWidget* parent);
  ~ValueListView() override;
  ValueListView(const ValueListView&) = delete;
  ValueListView& operator=(const ValueListView&) = delete;

  CellEdit& cellEdit() { return *cellEdit_; }
  const CellEdit& cellEdit() const { return *cellEdit_; }

  /// Selects the current row of the rows, and brings it into view.
  void markCurrentRow();
  void showCurrentRow();
  /// The user makes a parameter row current, or works on in the one that is current.
  void chooseRow(int row);
  /// Whether Enter opens the editor of the current row's value, as F2 does; it does unless the window has another use
  /// for the key.
  void setEnterOpens(bool opens) { enterOpens_ = opens; }
  /// The user opens the editor of the current row's value, if there is a row.
  void editCurrentRow();
  /// Opens the editor of the current row's value without a word of the row.
  void openEditor();
  /// Closes the editor of an edit; the focus stays in the grid if it was in the editor.
  void removeEditor(QWidget* editor) { closeEditor(editor, QAbstractItemDelegate::NoHint); }
  /// Tells what the mouse does over the cells, or over an editor on them; `place` is in the viewport.
  void tellMove(const QPoint& place);
  void tellPress(Qt::MouseButton button, const QPoint& place);
  /// Where the pop-up menu was last asked for, in global coordinates.
  QPoint menuPlace() const { return menuPlace_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// The user made another row current, or asked for the menu of the current one by the keyboard.
  void rowChosen();
  /// The user goes on to work in the row that was current already.
  void rowKept();
  void mousePressed(mavCycEd::platform::MouseButton button, int x, int y);
  void mouseMoved(int x, int y);
  void menuAskedFor(int x, int y);

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
  void setUpHeaders();
  void fitToFont();
  void fitColumns();
  void onColumnResized(int column, int width);
  bool opensEditor(const QKeyEvent& key) const;
  int rowBy(int key) const;
  bool moveBy(int key);
  void goOn(int row, CellEdit::Step step);
  void onTitleEvent(const QEvent& event);
  void makeCurrent(int row);
  void askForMenu(const QPoint& units, const QPoint& place);
  void askForMenuByKey();
  int pageRows() const;

  ValueListModel& model_;
  CellEdit* cellEdit_;
  GridUnits units_{*this};
  QPoint menuPlace_;
  double keyShare_ = 0.55;  // of the key column in the width
  bool enterOpens_ = true;
  bool byCode_ = false;
  bool fitting_ = false;     // the widths of the columns are being set
  bool listWanted_ = false;  // the mouse button went down on an arrow
};

}  // namespace mavCycEd::qt
