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

#include "qt/GridKeys.h"
#include "qt/ValueListDelegate.h"
#include "qt/ValueListModel.h"

namespace mavCycEd::qt {
namespace {

constexpr int lowestRow = 19;

platform::MouseButton named(Qt::MouseButton button) {
  switch (button) {
    case Qt::RightButton: return platform::MouseButton::Secondary;
    case Qt::MiddleButton: return platform::MouseButton::Middle;
    default: return platform::MouseButton::Primary;
  }
}

}  // namespace

ValueListView::CodeChange::CodeChange(ValueListView& view) : view_(view), before_(view.byCode_) {
  view_.byCode_ = true;
}

ValueListView::CodeChange::~CodeChange() {
  view_.showCurrentRow();
  view_.byCode_ = before_;
}

ValueListView::ValueListView(ValueListModel* model, QWidget* parent)
    : QTableView(parent), model_(*model), cellEdit_(new CellEdit(*model, *this)) {
  model->setParent(this);
  setModel(model);
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
  connect(cellEdit_, &CellEdit::left, this, &ValueListView::goOn);
}

// An editor that is still open loses the focus when it is destroyed with the view; nobody is to hear of it.
ValueListView::~ValueListView() { delete cellEdit_; }

void ValueListView::setUpHeaders() {
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  QHeaderView& titles = *horizontalHeader();
  titles.setHighlightSections(false);
  titles.setSectionsClickable(false);
  titles.setMinimumHeight(lowestRow);
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
  verticalHeader()->setDefaultSectionSize(std::max(lowestRow, fontMetrics().height() + margins));
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
  const int rows = std::clamp(model_.rowCount() + 2, 5, 10);
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
  if (model_.rows().currentRow() == 0) return;
  scrollTo(model_.cellIndex(ValueListModel::valueColumn, model_.rows().currentRow()));
}

// While a value is edited its cell stays the view's current one: another cell would close the editor.
void ValueListView::markCurrentRow() {
  const QScopedValueRollback quiet(byCode_, true);
  const int row = model_.rows().currentRow();
  if (row == 0) {
    selectionModel()->clear();
    return;
  }
  const QModelIndex value = model_.cellIndex(ValueListModel::valueColumn, row);
  const QItemSelectionModel::SelectionFlags whole = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
  if (cellEdit_->isOpen()) {
    selectionModel()->select(value, whole);
  } else {
    selectionModel()->setCurrentIndex(value, whole);
  }
}

void ValueListView::chooseRow(int row) {
  if (!model_.rows().isParameterRow(row)) return;
  if (row != model_.rows().currentRow()) {
    makeCurrent(row);
  } else {
    emit rowKept();
  }
}

void ValueListView::makeCurrent(int row) {
  model_.setCurrentRow(row);
  showCurrentRow();
  emit rowChosen();
}

void ValueListView::editCurrentRow() {
  const QPointer<ValueListView> self(this);
  chooseRow(model_.rows().currentRow());
  if (self) openEditor();
}

void ValueListView::openEditor() {
  const int row = model_.rows().currentRow();
  if (row == 0) {
    setFocus();
    return;
  }
  scrollTo(model_.cellIndex(ValueListModel::valueColumn, row));
  cellEdit_->open(row);
}

// A change that neither code nor our own keys made: an assistive technology's.
void ValueListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (!byCode_ && current.isValid()) chooseRow(ValueListModel::rowOf(current));
}

// The parameter row that a key leads to from the current one, 0 when the key leads nowhere.
int ValueListView::rowBy(int key) const {
  const int current = model_.rows().currentRow();
  const int last = model_.rows().rowCount() - 1;
  switch (key) {
    case Qt::Key_Up: return current - 1;
    case Qt::Key_Down: return current + 1;
    case Qt::Key_PageUp: return std::max(current - pageRows(), 1);
    case Qt::Key_PageDown: return std::min(current + pageRows(), last);
    case Qt::Key_Home: return 1;
    case Qt::Key_End: return last;
    default: return 0;
  }
}

bool ValueListView::moveBy(int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End: chooseRow(rowBy(key)); return true;
    default: return false;
  }
}

bool ValueListView::opensEditor(const QKeyEvent& key) const {
  return (isPlain(key) && key.key() == Qt::Key_F2) || (enterOpens_ && isEnter(key));
}

void ValueListView::keyPressEvent(QKeyEvent* event) {
  event->accept();
  if (isMenuKey(*event)) {
    askForMenuByKey();
  } else if (cellEdit_->isOpen()) {  // what the editor does not want is not for the rows either
    event->ignore();
  } else if (event->matches(QKeySequence::Copy)) {
    QGuiApplication::clipboard()->setText(currentIndex().data().toString());
  } else if (isListKey(*event)) {
    editCurrentRow();
    cellEdit_->showList();
  } else if (opensEditor(*event)) {
    editCurrentRow();
  } else if (isPlain(*event) && moveBy(event->key())) {
    return;
  } else if (beginsEdit(*event) && model_.rows().currentRow() != 0) {
    editCurrentRow();
    cellEdit_->forward(*event);
  } else {
    event->ignore();
  }
}

void ValueListView::inputMethodEvent(QInputMethodEvent* event) {
  const bool empty = event->commitString().isEmpty() && event->preeditString().isEmpty();
  if (empty || cellEdit_->isOpen() || model_.rows().currentRow() == 0) {
    event->ignore();
    return;
  }
  editCurrentRow();
  cellEdit_->forward(*event);
}

// The keys of the grid are the grid's, also where the host has given them a meaning of its own.
bool ValueListView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (isListKey(key) || isMenuKey(key) || beginsEdit(key) || opensEditor(key)) {
      event->accept();
      return true;
    }
  }
  return QTableView::event(event);
}

// Where an ended edit leads.
void ValueListView::goOn(int row, CellEdit::Step step) {
  using Step = CellEdit::Step;
  const int last = model_.rows().rowCount() - 1;
  int target = 0;
  switch (step) {
    case Step::NextCell:
    case Step::NextLine:
    case Step::Down: target = row + 1; break;
    case Step::PreviousCell:
    case Step::Up: target = row - 1; break;
    case Step::PageDown: target = std::min(row + pageRows(), last); break;
    case Step::PageUp: target = std::max(row - pageRows(), 1); break;
  }
  if (model_.rows().isParameterRow(target)) {
    const QPointer<ValueListView> self(this);
    chooseRow(target);
    if (self) editCurrentRow();
  } else if (step == Step::NextCell || step == Step::PreviousCell) {
    focusNextPrevChild(step == Step::NextCell);
  } else if (step != Step::NextLine) {
    editCurrentRow();  // at the first or last row an arrow leads nowhere
  }
}

void ValueListView::mousePressEvent(QMouseEvent* event) {
  event->accept();
  const QPoint place = event->position().toPoint();
  const QPointer<ValueListView> self(this);
  listWanted_ = false;
  cellEdit_->end();
  if (!self) return;
  const QModelIndex pressed = indexAt(place);
  if (pressed.isValid()) chooseRow(ValueListModel::rowOf(pressed));
  if (!self) return;
  tellPress(event->button(), place);
  if (!self || event->button() != Qt::LeftButton) return;
  // What was told may have changed the rows.
  const QModelIndex value = indexAt(place);
  if (!value.isValid() || value.column() != ValueListModel::valueColumn || !isEnabled()) return;
  if (ValueListModel::rowOf(value) != model_.rows().currentRow()) return;
  editCurrentRow();
  listWanted_ = ValueListDelegate::arrowRect(visualRect(value), value).contains(place);
}

void ValueListView::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
  tellMove(event->position().toPoint());
}

void ValueListView::tellMove(const QPoint& place) {
  const QPoint units = units_.ofCells(place);
  emit mouseMoved(units.x(), units.y());
}

void ValueListView::tellPress(Qt::MouseButton button, const QPoint& place) {
  const QPoint units = units_.ofCells(place);
  emit mousePressed(named(button), units.x(), units.y());
}

void ValueListView::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
  if (event->button() == Qt::LeftButton && std::exchange(listWanted_, false)) cellEdit_->showList();
}

void ValueListView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void ValueListView::contextMenuEvent(QContextMenuEvent* event) {
  event->accept();
  if (event->reason() != QContextMenuEvent::Mouse) {
    askForMenuByKey();
    return;
  }
  const QPointer<ValueListView> self(this);
  cellEdit_->end();
  if (!self) return;
  const QModelIndex index = indexAt(event->pos());
  chooseRow(index.isValid() ? ValueListModel::rowOf(index) : model_.rows().currentRow());
  if (self) askForMenu(units_.ofCells(event->pos()), event->globalPos());
}

// No press comes before such a request that would tell of the row: it is told in any case.
void ValueListView::askForMenuByKey() {
  const QPointer<ValueListView> self(this);
  const int edited = cellEdit_->row();
  cellEdit_->end();
  if (!self) return;
  const int row = edited != 0 ? edited : model_.rows().currentRow();
  if (!model_.rows().isParameterRow(row)) return;
  makeCurrent(row);
  if (!self) return;
  const QPoint middle = visualRect(model_.cellIndex(ValueListModel::valueColumn, row)).center();
  askForMenu(units_.ofCells(middle), viewport()->mapToGlobal(middle));
}

void ValueListView::askForMenu(const QPoint& units, const QPoint& place) {
  menuPlace_ = place;
  emit menuAskedFor(units.x(), units.y());
}

bool ValueListView::eventFilter(QObject* watched, QEvent* event) {
  if (watched != horizontalHeader()->viewport()) return QTableView::eventFilter(watched, event);
  const QPointer<ValueListView> self(this);
  onTitleEvent(*event);
  return !self;
}

void ValueListView::onTitleEvent(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress: {
      const auto& press = static_cast<const QMouseEvent&>(event);
      const QPoint units = units_.ofTitles(press.position().toPoint());
      emit mousePressed(named(press.button()), units.x(), units.y());
      break;
    }
    case QEvent::MouseMove: {
      const QPoint units = units_.ofTitles(static_cast<const QMouseEvent&>(event).position().toPoint());
      emit mouseMoved(units.x(), units.y());
      break;
    }
    case QEvent::ContextMenu: {
      const auto& request = static_cast<const QContextMenuEvent&>(event);
      const QPointer<ValueListView> self(this);
      chooseRow(model_.rows().currentRow());
      if (self) askForMenu(units_.ofTitles(request.pos()), request.globalPos());
      break;
    }
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
