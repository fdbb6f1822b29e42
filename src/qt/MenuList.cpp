#include "qt/MenuList.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>

#include "qt/Text.h"
#include "qt/TextListModel.h"

namespace mavCycEd::qt {

MenuList::MenuList(std::vector<std::string> captions, QWidget* parent) : QListView(parent) {
  auto* const model = new TextListModel(this);
  model->assign(std::move(captions));
  setModel(model);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setFrameShape(NoFrame);
  setAccessibleName(parent->accessibleName());
  connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { emit chosen(index.row()); });
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
          std::min(rows, model.count()) * sizeHintForRow(0)};
}

void MenuList::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && currentIndex().isValid()) {
    emit chosen(currentIndex().row());
    return;
  }
  QListView::keyPressEvent(event);
}

void MenuList::showEvent(QShowEvent* event) {
  QListView::showEvent(event);
  setFocus(Qt::PopupFocusReason);
}

}  // namespace mavCycEd::qt
