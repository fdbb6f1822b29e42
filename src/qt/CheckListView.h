#pragma once

#include <QListView>

#include "qt/CheckListModel.h"

namespace mavCycEd::qt {

/// A list of texts with check boxes. A click anywhere on an item toggles it, and so does the space bar.
class CheckListView : public QListView {
  Q_OBJECT

 public:
  /// The model becomes the view's own.
  CheckListView(CheckListModel* model, QWidget* parent);

  QSize minimumSizeHint() const override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  CheckListModel* model_;
};

}  // namespace mavCycEd::qt
