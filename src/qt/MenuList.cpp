#include "qt/MenuList.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "qt/Text.h"
#include "qt/TextListModel.h"

namespace mavCycEd::qt {

MenuList::MenuList(std::vector<std::string> captions, QWidget* parent) : QListView(parent) {
  auto* const model = new TextListModel(this);
  model->assign(std::move(captions));
  setModel(model);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setCurrentIndex({});  // or the focus would make the first entry current, and Enter choose it unseen
  setAccessibleName(parent->accessibleName());
  connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { clicked_ = index.row(); });
}

QSize MenuList::sizeHint() const {
  constexpr int rows = 20;
  constexpr int margin = 24;
  constexpr int mostCharacters = 60;
  const QFontMetrics metrics = fontMetrics();
  const auto& model = static_cast<const TextListModel&>(*this->model());
  const int text = metrics.horizontalAdvance(toQtLine(model.longest()));
  const int widest = mostCharacters * metrics.averageCharWidth();
  return {std::min(text, widest) + verticalScrollBar()->sizeHint().width() + margin,
          std::min(rows, model.count()) * sizeHintForRow(0) + 2 * frameWidth()};
}

void MenuList::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter) {
    QListView::keyPressEvent(event);
  } else if (currentIndex().isValid()) {
    emit chosen(currentIndex().row());
  } else {
    setCurrentIndex(model()->index(0, 0));
  }
}

// What is told may destroy the list: Qt's own part comes first.
void MenuList::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  if (const int row = std::exchange(clicked_, -1); row >= 0) emit chosen(row);
}

void MenuList::showEvent(QShowEvent* event) {
  QListView::showEvent(event);
  setFocus(Qt::PopupFocusReason);
}

}  // namespace mavCycEd::qt
