#pragma once

#include <QObject>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kit/CommandGate.h"
#include "platform/ItemListBox.h"
#include "platform/LineListBox.h"
#include "qt/LineListModel.h"
#include "qt/TextListModel.h"
#include "qt/TextListView.h"

namespace mavCycEd::qt {

/// A list box.
class QtListBox : public QObject, public virtual platform::ListBox {
  Q_OBJECT

 public:
  TextListView* widget() const { return view_; }

  void setEvents(platform::ListBoxEvents events) override { events_ = std::move(events); }
  int itemCount() const override { return model_->count(); }
  std::string itemText(int index) const override { return model_->text(index); }
  int index() const override { return view_->selectedRow(); }
  void setIndex(int index) override;
  platform::Font font() const override;
  void setItemFont(const platform::Font& font) override;

  /// What a double click of the user on the selected item does; nothing when none is selected.
  void doubleClick();

 protected:
  /// The model becomes the widget's own.
  QtListBox(const kit::CommandGate& gate, ListModel* model, const char* name, QWidget* parent);

 private:
  void raiseClick();

  const kit::CommandGate& gate_;
  ListModel* model_;
  TextListView* view_;
  platform::ListBoxEvents events_;
};

/// A list of items.
class QtItemListBox : public QtListBox, public platform::ItemListBox {
  Q_OBJECT

 public:
  QtItemListBox(const kit::CommandGate& gate, const char* name, QWidget* parent)
      : QtItemListBox(gate, new TextListModel, name, parent) {}

  void clear() override { assign({}); }
  void assign(std::vector<std::string> items) override { items_->assign(std::move(items)); }
  void addItem(std::string_view text) override { items_->append(text); }
  void insertItem(int index, std::string_view text) override { items_->insert(index, text); }
  void removeItem(int index) override { items_->remove(index); }
  void setItemText(int index, std::string_view text) override { items_->setText(index, text); }

 private:
  QtItemListBox(const kit::CommandGate& gate, TextListModel* items, const char* name, QWidget* parent)
      : QtListBox(gate, items, name, parent), items_(items) {}

  TextListModel* items_;
};

/// A list of an owner's lines.
class QtLineListBox : public QtListBox, public platform::LineListBox {
  Q_OBJECT

 public:
  QtLineListBox(const kit::CommandGate& gate, const char* name, QWidget* parent)
      : QtLineListBox(gate, new LineListModel, name, parent) {}

  void clear() override { lines_->clear(); }
  void showLines(const platform::ListLines& lines) override { lines_->show(lines); }
  void spliced(int at, int removed, int added) override {
    lines_->splice({.at = at, .removed = removed, .added = added});
  }

 private:
  QtLineListBox(const kit::CommandGate& gate, LineListModel* lines, const char* name, QWidget* parent)
      : QtListBox(gate, lines, name, parent), lines_(lines) {}

  LineListModel* lines_;
};

}  // namespace mavCycEd::qt
