#include "qt/ValueListView.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "kit/GridUnits.h"
#include "qt/GridKeys.h"
#include "qt/Text.h"
#include "qt/ValueListDelegate.h"
#include "qt/ValueListModel.h"

namespace mavCycEd::qt {

kit::Place placeOf(const QPoint& point) { return {point.x(), point.y()}; }

platform::MouseButton named(Qt::MouseButton button) {
  switch (button) {
    case Qt::RightButton: return platform::MouseButton::Secondary;
    case Qt::MiddleButton: return platform::MouseButton::Middle;
    default: return platform::MouseButton::Primary;
  }
}

ValueListView::ValueListView(std::shared_ptr<kit::ValueList> list, QWidget* parent)
    : QTableView(parent),
      list_(std::move(list)),
      model_(new ValueListModel(list_)),
      cellEditor_(new QtCellEditor(list_, *this)) {
  model_->setParent(this);
  setModel(model_);
  setItemDelegate(new ValueListDelegate(this));
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setSelectionBehavior(SelectRows);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setCornerButtonEnabled(false);
  setAutoScroll(false);  // rows come into view when the current one changes, never under a pointer that presses
  setMouseTracking(true);
  setAttribute(Qt::WA_InputMethodEnabled);
  setUpHeaders();
  list_->setScreen(this, cellEditor_);
}

// An editor that is still open loses the focus when it is destroyed with the view; nobody is to hear of it.
ValueListView::~ValueListView() {
  list_->setScreen(nullptr, nullptr);
  delete cellEditor_;
}

void ValueListView::setUpHeaders() {
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  QHeaderView& titles = *horizontalHeader();
  titles.setHighlightSections(false);
  titles.setSectionsClickable(false);
  titles.setMinimumHeight(kit::units::rowHeight);
  titles.viewport()->setMouseTracking(true);
  titles.viewport()->installEventFilter(this);
  connect(&titles, &QHeaderView::sectionResized, this,
          [this](int column, int, int width) { onColumnResized(column, width); });
  fitToFont();
}

// A row is as high as an editor in it needs. A column may get narrow: the header's own limit is the widest character
// that the font has, and in many fonts that one is wider than a short text.
void ValueListView::fitToFont() {
  constexpr int margins = 8;
  constexpr int characters = 4;
  horizontalHeader()->setMinimumSectionSize(fontMetrics().averageCharWidth() * characters);
  verticalHeader()->setDefaultSectionSize(std::max(kit::units::rowHeight, fontMetrics().height() + margins));
}

// Both columns are in view, always; a last section that the header stretches would not get narrow again.
void ValueListView::fitColumns() {
  const QScopedValueRollback fitting(fitting_, true);
  const int width = viewport()->width();
  const int narrowest = std::min(horizontalHeader()->minimumSectionSize(), width / 2);
  const int keyWidth = std::clamp(static_cast<int>(width * keyShare_), narrowest, width - narrowest);
  setColumnWidth(ValueListModel::keyColumn, keyWidth);
  setColumnWidth(ValueListModel::valueColumn, width - keyWidth);
}

// The user drags the border between the columns, or the end of the last one.
void ValueListView::onColumnResized(int column, int width) {
  if (fitting_ || (QGuiApplication::mouseButtons() & Qt::LeftButton) == 0 || viewport()->width() <= 0) return;
  if (column == ValueListModel::keyColumn) keyShare_ = static_cast<double>(width) / viewport()->width();
  fitColumns();
}

int ValueListView::pageRows() const {
  return std::max(viewport()->height() / std::max(verticalHeader()->defaultSectionSize(), 1) - 1, 1);
}

QSize ValueListView::sizeHint() const {
  constexpr int characters = 36;
  const int wanted = static_cast<int>(horizontalHeader()->sectionSizeHint(0) / keyShare_);
  const int rows = std::clamp(model_->rowCount() + 2, 5, 10);
  return {std::max(fontMetrics().averageCharWidth() * characters, wanted),
          verticalHeader()->defaultSectionSize() * rows};
}

QSize ValueListView::minimumSizeHint() const {
  const int frame = 2 * frameWidth();
  const int titles = std::max(horizontalHeader()->sizeHint().height(), horizontalHeader()->minimumHeight());
  return {fontMetrics().averageCharWidth() * 24 + frame, titles + verticalHeader()->defaultSectionSize() * 3 + frame};
}

void ValueListView::showCurrentRow() {
  markCurrentRow();
  const int row = list_->rows().currentRow();
  if (row != 0) scrollTo(model_->cellIndex(ValueListModel::valueColumn, row));
}

// While a value is edited its cell stays the view's current one: another cell would close the editor.
void ValueListView::markCurrentRow() {
  const QScopedValueRollback quiet(byCode_, true);
  const int row = list_->rows().currentRow();
  if (row == 0) {
    selectionModel()->clear();
    return;
  }
  const QModelIndex value = model_->cellIndex(ValueListModel::valueColumn, row);
  const QItemSelectionModel::SelectionFlags whole = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
  if (list_->edit().isOpen()) {
    selectionModel()->select(value, whole);
  } else {
    selectionModel()->setCurrentIndex(value, whole);
  }
}

QWidget* ValueListView::makeEditor(int row) {
  const QModelIndex value = model_->cellIndex(ValueListModel::valueColumn, row);
  edit(value);
  return indexWidget(value);
}

// A change that neither code nor our own keys made: an assistive technology's.
void ValueListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (byCode_ || model_->isChanging() || !current.isValid()) return;
  std::shared_ptr(list_)->chooseRow(ValueListModel::rowOf(current));
}

kit::Place ValueListView::placeOfTitle(const QPoint& place) const {
  return {place.x(), place.y() - horizontalHeader()->height()};  // the titles stand above the cells
}

kit::GridHit ValueListView::hitAt(kit::Place place) const {
  const int column = columnViewportPosition(ValueListModel::keyColumn);
  kit::GridHit hit{.x = kit::units::x(place.x - column, columnWidth(ValueListModel::keyColumn))};
  if (place.y < 0) {
    const int height = horizontalHeader()->height();
    hit.y = kit::units::y(place.y + height, 0, height);
    return hit;
  }
  const int at = rowAt(place.y);
  if (at >= 0) {
    const QModelIndex cell = indexAt({place.x, place.y});
    hit.row = at + 1;
    hit.onValue = cell.isValid() && cell.column() == ValueListModel::valueColumn;
    hit.onArrow = hit.onValue && ValueListDelegate::arrowRect(visualRect(cell), cell).contains(place.x, place.y);
    hit.y = kit::units::y(place.y - rowViewportPosition(at), hit.row, rowHeight(at));
    return hit;
  }
  const int last = model_->rowCount() - 1;
  const int bottom = last < 0 ? 0 : rowViewportPosition(last) + rowHeight(last);
  hit.row = -1;
  hit.y = kit::units::yBelowRows(place.y - bottom, list_->rows().rowCount(), verticalHeader()->defaultSectionSize());
  return hit;
}

kit::Place ValueListView::middleOf(int row) const {
  return placeOf(visualRect(model_->cellIndex(ValueListModel::valueColumn, row)).center());
}

QPoint ValueListView::menuPlace() const {
  const kit::Place place = list_->menuPlace();
  return viewport()->mapToGlobal(QPoint(place.x, place.y));
}

void ValueListView::copy(std::string_view text) { QGuiApplication::clipboard()->setText(toQt(text)); }

void ValueListView::keyPressEvent(QKeyEvent* event) {
  event->accept();
  const QPointer<ValueListView> self(this);
  switch (std::shared_ptr(list_)->pressKey(keyPressOf(*event))) {
    case kit::ValueList::KeyAnswer::NotTaken: event->ignore(); break;
    case kit::ValueList::KeyAnswer::Taken: break;
    case kit::ValueList::KeyAnswer::IntoEditor:
      if (self) cellEditor_->forward(*event);
      break;
  }
}

// What is composed is a character like any other.
void ValueListView::inputMethodEvent(QInputMethodEvent* event) {
  const bool isEmpty = event->commitString().isEmpty() && event->preeditString().isEmpty();
  const QPointer<ValueListView> self(this);
  const bool opens = !isEmpty && std::shared_ptr(list_)->pressKey({.key = kit::Key::Character}) ==
                                     kit::ValueList::KeyAnswer::IntoEditor;
  if (opens && self) {
    cellEditor_->forward(*event);
  } else {
    event->ignore();
  }
}

// The keys of the grid are the grid's, also where the host has given them a meaning of its own.
bool ValueListView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && list_->wantsKey(keyPressOf(static_cast<const QKeyEvent&>(*event)))) {
    event->accept();
    return true;
  }
  return QTableView::event(event);
}

void ValueListView::mousePressEvent(QMouseEvent* event) {
  event->accept();
  std::shared_ptr(list_)->pressMouse(named(event->button()), placeOf(event->position().toPoint()));
}

void ValueListView::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
  std::shared_ptr(list_)->moveMouse(placeOf(event->position().toPoint()));
}

void ValueListView::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::LeftButton) list_->releaseMouse();
}

void ValueListView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void ValueListView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() == QContextMenuEvent::Mouse) {
    std::shared_ptr(list_)->askForMenu(placeOf(event->pos()));
  } else {
    std::shared_ptr(list_)->askForMenuByKey();
  }
}

bool ValueListView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != horizontalHeader()->viewport()) return QTableView::eventFilter(watched, event);
  const QPointer<ValueListView> self(this);
  onTitleEvent(*event);
  return !self;
}

void ValueListView::onTitleEvent(const QEvent& event) {
  const auto list = list_;
  switch (event.type()) {
    case QEvent::MouseButtonPress: {
      const auto& press = static_cast<const QMouseEvent&>(event);
      list->pressMouse(named(press.button()), placeOfTitle(press.position().toPoint()));
      break;
    }
    case QEvent::MouseMove:
      list->moveMouse(placeOfTitle(static_cast<const QMouseEvent&>(event).position().toPoint()));
      break;
    case QEvent::ContextMenu: list->askForMenu(placeOfTitle(static_cast<const QContextMenuEvent&>(event).pos())); break;
    default: break;
  }
}

// The tool tip is the whole grid's; its cells have none of their own.
bool ValueListView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTableView::viewportEvent(event);
  QToolTip::showText(static_cast<const QHelpEvent*>(event)->globalPos(), toolTip(), viewport());
  return true;
}

void ValueListView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) fitToFont();
}

void ValueListView::resizeEvent(QResizeEvent* event) {
  fitColumns();
  QTableView::resizeEvent(event);
  horizontalScrollBar()->setValue(0);
}

}  // namespace mavCycEd::qt
