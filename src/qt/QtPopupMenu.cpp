#include "qt/QtPopupMenu.h"

#include <QCursor>
#include <QPointer>
#include <QScreen>
#include <QWidgetAction>
#include <cstddef>

#include "kit/Notify.h"
#include "qt/MenuList.h"
#include "qt/Text.h"

namespace mavCycEd::qt {
namespace {

// A menu that is higher than the screen goes on in further columns, which soon lead beyond it; and it takes the square
// of its entries to build.
bool fitInMenu(std::size_t entries, const QMenu& menu) {
  constexpr int around = 10;  // more than most styles need
  const int entryHeight = menu.fontMetrics().height() + around;
  return entries <= static_cast<std::size_t>(menu.screen()->availableSize().height() / entryHeight);
}

}  // namespace

QtPopupMenu::QtPopupMenu(const kit::CommandGate& gate, const char* name, QWidget* parent)
    : gate_(gate), menu_(new PopupMenuWidget([this] { return visibleCaptions(); }, parent)) {
  menu_->setObjectName(QLatin1String(name));
}

void QtPopupMenu::setCaption(std::string_view caption) {
  MenuItems::setCaption(caption);
  menu_->setTitle(withoutAccessKey(caption));
}

// An open menu does not stand for items that have changed behind it.
void QtPopupMenu::itemsChanged() {
  if (menu_->isVisible()) menu_->close();
}

void QtPopupMenu::popUp() {
  fill();
  if (!menu_->isEmpty()) menu_->popup(place_ ? place_() : QCursor::pos());
}

void QtPopupMenu::fill() {
  const QList<QAction*> former = menu_->actions();
  for (QAction* const action : former) {
    menu_->removeAction(action);
    action->deleteLater();  // it may be the one that is being triggered
  }
  const std::vector<int> indexes = visibleIndexes();
  menu_->addActions(fitInMenu(indexes.size(), *menu_) ? entries(indexes) : QList<QAction*>{listEntry(indexes)});
}

QList<QAction*> QtPopupMenu::entries(const std::vector<int>& indexes) {
  QList<QAction*> actions;
  for (const int index : indexes) {
    auto* const action = new QAction(withoutAccessKey(itemCaption(index)), menu_);
    connect(action, &QAction::triggered, this, [this, index] { onTriggered(index); });
    actions.append(action);
  }
  return actions;
}

QAction* QtPopupMenu::listEntry(const std::vector<int>& indexes) {
  auto* const action = new QWidgetAction(menu_);
  auto* const list = new MenuList(visibleCaptions(), menu_);
  action->setDefaultWidget(list);
  connect(list, &MenuList::chosen, this, [this, indexes](int row) {
    const QPointer<QtPopupMenu> self(this);
    menu_->close();
    if (self) onTriggered(indexes[static_cast<std::size_t>(row)]);
  });
  return action;
}

void QtPopupMenu::onTriggered(int index) {
  const QPointer<QtPopupMenu> self(this);
  gate_.pass();
  if (self) kit::tell(events().Click, index);
}

}  // namespace mavCycEd::qt
