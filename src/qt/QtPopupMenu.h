#pragma once

#include <QMenu>
#include <QObject>
#include <functional>
#include <map>
#include <utility>

#include "platform/PopupMenu.h"
#include "qt/CommandGate.h"

namespace mavCycEd::qt {

/// A pop-up menu. The widget holds an action for every item, in index order, whether the menu is open or not.
class QtPopupMenu : public QObject, public platform::PopupMenu {
  Q_OBJECT

 public:
  QtPopupMenu(const CommandGate& gate, const char* name, QWidget* parent);

  QMenu* widget() const { return menu_; }
  /// Where the menu opens, in global coordinates; at the pointer when nobody says.
  void setPlace(std::function<QPoint()> place) { place_ = std::move(place); }

  void setEvents(platform::PopupMenuEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  int itemCount() const override { return static_cast<int>(items_.size()); }
  int lastIndex() const override { return items_.rbegin()->first; }
  bool hasItem(int index) const override { return items_.contains(index); }
  void createItem(int index) override;
  void removeItem(int index) override;
  std::string itemCaption(int index) const override { return item(index).caption; }
  void setItemCaption(int index, std::string_view caption) override;
  bool isItemVisible(int index) const override { return item(index).action->isVisible(); }
  void setItemVisible(int index, bool visible) override { item(index).action->setVisible(visible); }
  void popUp() override;

 private:
  struct Item {
    std::string caption;
    QAction* action;
  };
  const Item& item(int index) const;
  QAction* newAction(int index);
  void onTriggered(int index);

  const CommandGate& gate_;
  QMenu* menu_;
  std::function<QPoint()> place_;
  platform::PopupMenuEvents events_;
  std::string caption_;
  std::map<int, Item> items_;
};

}  // namespace mavCycEd::qt
