#include "qt/TextListView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "qt/GridKeys.h"
#include "qt/Text.h"

namespace mavCycEd::qt {
namespace {

// Every item gets the size of the longest one, so that a list of any length is laid out at once and can be scrolled
// sideways to the end of each text.
class UniformDelegate : public QStyledItemDelegate {
 public:
  UniformDelegate(const TextListModel& model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize own = QStyledItemDelegate::sizeHint(option, index);
    const QString text = index.data().toString();
    const int difference =
        option.fontMetrics.horizontalAdvance(toQt(model_.longest())) - option.fontMetrics.horizontalAdvance(text);
    constexpr int air = 3;  // between the lines
    return {own.width() + difference, own.height() + air};
  }

 private:
  const TextListModel& model_;
};

bool isReturn(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

}  // namespace

TextListView::TextListView(TextListModel* model, QWidget* parent) : QListView(parent) {
  model->setParent(this);
  setModel(model);
  setItemDelegate(new UniformDelegate(*model, this));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setTextElideMode(Qt::ElideNone);
  setHorizontalScrollMode(ScrollPerPixel);
  connect(model, &TextListModel::dataChanged, this, [this] { scheduleDelayedItemsLayout(); });
}

int TextListView::selectedRow() const {
  const QModelIndex current = currentIndex();
  return current.isValid() && selectionModel()->isSelected(current) ? current.row() : -1;
}

void TextListView::select(int row) {
  if (row < 0) {
    selectionModel()->clear();
    return;
  }
  const QModelIndex index = model()->index(row, 0);
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
  scrollTo(index);
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
  select(indexAt(event->position().toPoint()).row());
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
    select(row);
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
