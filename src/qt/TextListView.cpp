#include "qt/TextListView.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <functional>
#include <utility>

#include "qt/GridKeys.h"
#include "qt/RowDelegate.h"
#include "qt/Text.h"

namespace mavCycEd::qt {
namespace {

// Every item gets the size of the longest one, so that a list of any length is laid out at once and can be scrolled
// sideways to the end of each text.
class UniformDelegate : public RowDelegate {
 public:
  /// `grown`: a text turned up that needs more room.
  UniformDelegate(ListModel& model, std::function<void()> grown, QObject* parent)
      : RowDelegate(parent), model_(model), grown_(std::move(grown)) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QString text = index.data().toString();
    const int difference =
        option.fontMetrics.horizontalAdvance(toQtLine(model_.longest())) - option.fontMetrics.horizontalAdvance(text);
    return RowDelegate::sizeHint(option, index) + QSize(difference, 0);
  }

 protected:
  void paintRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    if (model_.notice(index.row())) grown_();
    RowDelegate::paintRow(painter, option, index);
  }

 private:
  ListModel& model_;
  std::function<void()> grown_;
};

bool isReturn(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

}  // namespace

TextListView::TextListView(ListModel* model, QWidget* parent) : QListView(parent) {
  model->setParent(this);
  setModel(model);
  setItemDelegate(new UniformDelegate(
      *model, [this] { scheduleDelayedItemsLayout(); }, this));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setTextElideMode(Qt::ElideNone);
  setHorizontalScrollMode(ScrollPerPixel);
  setAutoScroll(false);  // bringIntoView() does it, once for any number of changes
}

int TextListView::selectedRow() const {
  const QModelIndex current = currentIndex();
  return current.isValid() && selectionModel()->isSelected(current) ? current.row() : -1;
}

void TextListView::select(int row) {
  selectInPlace(row);
  if (row >= 0) bringIntoView(model()->index(row, 0));
}

// An item that is only partly in view stays where it is: a double click would end on its neighbour.
void TextListView::selectInPlace(int row) {
  const QScopedValueRollback<bool> inPlace(inPlace_, true);
  if (row < 0) {
    selectionModel()->clear();
  } else {
    selectionModel()->setCurrentIndex(model()->index(row, 0), QItemSelectionModel::ClearAndSelect);
  }
}

// Qt's own view would select the neighbour of a selected row that goes.
void TextListView::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
  const int current = currentIndex().row();
  if (current >= first && current <= last) selectInPlace(-1);
  QListView::rowsAboutToBeRemoved(parent, first, last);
}

// Qt's own views repaint the items that changed, and to know where they are they lay out all items, each time. It is
// enough to paint once, when all is done.
void TextListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  if (QAccessible::isActive()) QListView::currentChanged(current, previous);
  viewport()->update();
  if (current.isValid() && !inPlace_) bringIntoView(current);
}

void TextListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  if (QAccessible::isActive()) QListView::selectionChanged(selected, deselected);
  viewport()->update();
}

void TextListView::showEvent(QShowEvent* event) {
  QListView::showEvent(event);
  if (currentIndex().isValid()) bringIntoView(currentIndex());
}

// Scrolling lays the whole list out: it waits until whatever is going on has ended.
void TextListView::bringIntoView(const QModelIndex& index) {
  wanted_ = index;
  if (std::exchange(scrollWaits_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        scrollWaits_ = false;
        if (wanted_.isValid()) scrollTo(wanted_);
      },
      Qt::QueuedConnection);
}

QSize TextListView::sizeOf(int characters, int lines) const {
  const QFontMetrics metrics = fontMetrics();
  const int frame = 2 * frameWidth();
  return {characters * metrics.averageCharWidth() + verticalScrollBar()->sizeHint().width() + frame,
          lines * metrics.lineSpacing() + frame};
}

QSize TextListView::sizeHint() const { return sizeOf(30, 8); }

QSize TextListView::minimumSizeHint() const { return sizeOf(12, 3); }

// The keys of the list are the list's, also where the host has given them a meaning of its own.
bool TextListView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (isPlain(key) && (key.key() == Qt::Key_Delete || isReturn(key))) {
      event->accept();
      return true;
    }
  }
  return QListView::event(event);
}

void TextListView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  event->accept();
  selectInPlace(indexAt(event->position().toPoint()).row());
  emit chosen();
}

// The press has chosen; what happens until the button is up again changes nothing.
void TextListView::mouseMoveEvent(QMouseEvent* event) { event->accept(); }
void TextListView::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }

void TextListView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  event->accept();
  const int row = indexAt(event->position().toPoint()).row();
  const QPointer<TextListView> self(this);
  if (row != selectedRow()) {
    selectInPlace(row);
    emit chosen();
  }
  if (self && row >= 0) emit doubleClickedItem();
}

// The focus alone leads to no item: the first arrow key then selects the first one.
void TextListView::focusInEvent(QFocusEvent* event) {
  const bool none = !currentIndex().isValid();
  QListView::focusInEvent(event);
  if (none) selectionModel()->clearCurrentIndex();
}

void TextListView::keyPressEvent(QKeyEvent* event) {
  if (isPlain(*event) && event->key() == Qt::Key_Delete) {
    event->accept();
    emit deletePressed();
    return;
  }
  if (isReturn(*event)) {
    event->accept();
    emit returnPressed();
    return;
  }
  const bool again = isPlain(*event) && event->key() == Qt::Key_Space;
  if (again) {
    event->accept();
    select(currentIndex().row());
    emit chosen();
    return;
  }
  const int before = selectedRow();
  QListView::keyPressEvent(event);
  if (selectedRow() != before) emit chosen();
}

}  // namespace mavCycEd::qt
