#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <vector>

#include "kit/ValueList.h"
#include "kit/ValueListScreen.h"

namespace mavCycEd::qt {

class ValueListView;

/// The editor of a value in its cell of a view.
class QtCellEditor : public QObject, public kit::CellEditor {
  Q_OBJECT

 public:
  QtCellEditor(std::shared_ptr<kit::ValueList> list, ValueListView& view);

  bool openEditor(int row) override;
  void closeEditor() override;
  kit::TypedLine line() const override;
  void showLine(const kit::TypedLine& line) override;
  bool takeUntoldTyping() override { return false; }
  void openList() override;
  void watchMouse(bool watch) override;

  /// Hands an event to the open editor: the key that began the edit.
  void forward(QEvent& event);
  /// Destroys an editor that has been closed, but not while it is telling what is typed: a message box that this leads
  /// to has an event loop of its own, in which the editor would go too early.
  void release(QWidget& editor);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool onMouse(QWidget& over, const QEvent& event);
  bool onFocusOut(const QFocusEvent& event);
  void onTyped();
  void endTelling();

  std::shared_ptr<kit::ValueList> list_;
  ValueListView& view_;
  QPointer<QWidget> editor_;
  QTimer mouseWatch_;
  int telling_ = 0;                        // what was typed is being told
  std::vector<QPointer<QWidget>> closed_;  // editors that were closed meanwhile
};

}  // namespace mavCycEd::qt
