#include "qt/QtPopupMenu.h"

#include <QCursor>
#include <QPointer>
#include <algorithm>

#include "platform/RunTimeError.h"
#include "qt/Notify.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

QtPopupMenu::QtPopupMenu(const CommandGate& gate, const char* name, QWidget* parent)
    : gate_(gate), menu_(new QMenu(parent)) {
  menu_->setObjectName(QLatin1String(name));
  items_.emplace(0, Item{{}, newAction(0)});
}

void QtPopupMenu::setCaption(std::string_view caption) {
  caption_ = caption;
  menu_->setTitle(withoutAccessKey(caption));
}

const QtPopupMenu::Item& QtPopupMenu::item(int index) const {
  const auto found = items_.find(index);
  if (found == items_.end()) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  return found->second;
}

// The action of a new item, in its place among those that exist.
QAction* QtPopupMenu::newAction(int index) {
  auto* const action = new QAction(menu_);
  const auto next = items_.upper_bound(index);
  menu_->insertAction(next == items_.end() ? nullptr : next->second.action, action);
  connect(action, &QAction::triggered, this, [this, index] { onTriggered(index); });
  return action;
}

void QtPopupMenu::createItem(int index) {
  if (index < 0 || hasItem(index)) throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
  items_.emplace(index, Item{{}, newAction(index)});
}

void QtPopupMenu::removeItem(int index) {
  if (index == 0) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  QAction* const action = item(index).action;
  menu_->removeAction(action);
  action->deleteLater();  // it may be the one that is being triggered
  items_.erase(index);
}

void QtPopupMenu::setItemCaption(int index, std::string_view caption) {
  item(index).action->setText(withoutAccessKey(caption));
  items_.at(index).caption = caption;
}

void QtPopupMenu::popUp() {
  if (std::ranges::none_of(menu_->actions(), &QAction::isVisible)) return;
  menu_->popup(place_ ? place_() : QCursor::pos());
}

void QtPopupMenu::onTriggered(int index) {
  const QPointer<QtPopupMenu> self(this);
  gate_.pass();
  if (self) tell(events_.Click, index);
}

}  // namespace mavCycEd::qt
