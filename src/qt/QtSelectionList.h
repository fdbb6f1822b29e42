#pragma once

#include "platform/SelectionList.h"
#include "qt/CheckListView.h"

namespace mavCycEd::qt {

/// A list of several selections.
class QtSelectionList : public platform::SelectionList {
 public:
  QtSelectionList(const char* name, QWidget* parent)
      : model_(new CheckListModel), view_(new CheckListView(model_, parent)) {
    view_->setObjectName(QLatin1String(name));
  }

  CheckListView* widget() const { return view_; }

  void clear() override { model_->assign({}); }
  void addItem(std::string_view text, bool selected) override { model_->append(text, selected); }
  int itemCount() const override { return model_->count(); }
  std::string itemText(int index) const override { return model_->text(index); }
  bool isSelected(int index) const override { return model_->isSelected(index); }

 private:
  CheckListModel* model_;
  CheckListView* view_;
};

}  // namespace mavCycEd::qt
