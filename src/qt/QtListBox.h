#pragma once

#include <QObject>
#include <utility>

#include "platform/CommandGate.h"
#include "platform/ListBox.h"
#include "qt/TextListView.h"

namespace mavCycEd::qt {

/// A list box.
class QtListBox : public QObject, public platform::ListBox {
  Q_OBJECT

 public:
  QtListBox(const platform::CommandGate& gate, const char* name, QWidget* parent);

  TextListView* widget() const { return view_; }

  void setEvents(platform::ListBoxEvents events) override { events_ = std::move(events); }
  void clear() override { assign({}); }
  void assign(std::vector<std::string> items) override { model_->assign(std::move(items)); }
  void showLines(const platform::ListLines& lines) override { model_->showLines(lines); }
  void lineAdded() override { model_->lineAdded(); }
  void lineChanged(int index) override { model_->lineChanged(index); }
  void addItem(std::string_view text) override { model_->append(text); }
  void removeItem(int index) override;
  void setItemText(int index, std::string_view text) override { model_->setText(index, text); }
  int itemCount() const override { return model_->count(); }
  std::string itemText(int index) const override { return model_->text(index); }
  int index() const override { return view_->selectedRow(); }
  void setIndex(int index) override;
  platform::Font font() const override;
  void setItemFont(const platform::Font& font) override;

  /// What a double click of the user on the selected item does; nothing when none is selected.
  void doubleClick();

 private:
  void raiseClick();

  const platform::CommandGate& gate_;
  TextListModel* model_;
  TextListView* view_;
  platform::ListBoxEvents events_;
};

}  // namespace mavCycEd::qt
