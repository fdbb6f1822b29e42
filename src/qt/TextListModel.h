#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "kit/ListItems.h"
#include "qt/ListModel.h"

namespace mavCycEd::qt {

/// The items of a list box or a combo box.
class TextListModel : public ListModel {
  Q_OBJECT

 public:
  using ListModel::ListModel;

  /// Replaces all items: one model reset.
  virtual void assign(std::vector<std::string> items);
  void append(std::string_view text) { insert(count(), text); }
  void insert(int index, std::string_view text);
  void remove(int index);
  void setText(int index, std::string_view text);

  /// The first item of exactly this text, -1 when there is none.
  int indexOf(std::string_view text) { return items_.indexOf(text); }

 protected:
  const kit::ListTexts& texts() const override { return items_; }

 private:
  kit::ListItems items_;
};

}  // namespace mavCycEd::qt
