#pragma once

#include "qt/TextListModel.h"

namespace mavCycEd::qt {

/// The items of a list of which any number can be selected: each has a check box.
class CheckListModel : public TextListModel {
  Q_OBJECT

 public:
  using TextListModel::TextListModel;

  void assign(std::vector<std::string> items) override;
  void append(std::string_view text, bool selected);
  bool isSelected(int index) const { return selected_[static_cast<std::size_t>(texts().checked(index))]; }
  void toggle(int index);

  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

 private:
  std::vector<bool> selected_;
};

}  // namespace mavCycEd::qt
