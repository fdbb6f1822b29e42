#pragma once

#include <QMenu>
#include <QObject>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "kit/CommandGate.h"
#include "kit/MenuItems.h"

namespace mavCycEd::qt {

/// The widget of a pop-up menu. It gets its entries when it opens.
class PopupMenuWidget : public QMenu {
  Q_OBJECT

 public:
  using Captions = std::function<std::vector<std::string>()>;
  PopupMenuWidget(Captions captions, QWidget* parent) : QMenu(parent), captions_(std::move(captions)) {}

  /// The captions that it shows when it is open.
  std::vector<std::string> captions() const { return captions_(); }

 private:
  Captions captions_;
};

/// A pop-up menu. More entries than the screen is high are shown as a list in it, which scrolls and finds what is
/// typed.
class QtPopupMenu : public QObject, public kit::MenuItems {
  Q_OBJECT

 public:
  QtPopupMenu(const kit::CommandGate& gate, const char* name, QWidget* parent);

  QMenu* widget() const { return menu_; }
  /// Where the menu opens, in global coordinates; at the pointer when nobody says.
  void setPlace(std::function<QPoint()> place) { place_ = std::move(place); }

  void setCaption(std::string_view caption) override;
  void popUp() override;

 protected:
  void itemsChanged() override;

 private:
  void fill();
  QList<QAction*> entries(const std::vector<int>& indexes);
  QAction* listEntry(const std::vector<int>& indexes);
  void onTriggered(int index);

  const kit::CommandGate& gate_;
  PopupMenuWidget* menu_;
  std::function<QPoint()> place_;
};

}  // namespace mavCycEd::qt
