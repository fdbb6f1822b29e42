#include "qt/CheckListView.h"

#include <QMouseEvent>

#include "qt/RowDelegate.h"

namespace mavCycEd::qt {

CheckListView::CheckListView(CheckListModel* model, QWidget* parent) : QListView(parent), model_(model) {
  model->setParent(this);
  setModel(model);
  setItemDelegate(new RowDelegate(this));
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
}

QSize CheckListView::minimumSizeHint() const {
  constexpr int lines = 4;
  return {QListView::minimumSizeHint().width(), lines * fontMetrics().lineSpacing() + 2 * frameWidth()};
}

void CheckListView::mousePressEvent(QMouseEvent* event) {
  const QModelIndex index = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !index.isValid()) {
    event->ignore();
    return;
  }
  event->accept();
  setCurrentIndex(index);
  model_->toggle(index.row());
}

// The press has toggled; the second press of a double click is one press more.
void CheckListView::mouseMoveEvent(QMouseEvent* event) { event->accept(); }
void CheckListView::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }
void CheckListView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

}  // namespace mavCycEd::qt
