#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "kit/ValueList.h"
#include "platform/ValueListActiveX.h"

namespace mavCycEd::kit {

/// What every edition's value list does alike for its owner. The list is shared with the screen, which may have to
/// outlive its owner for a moment; it tells nothing any more then.
class ValueListPort : public platform::ValueListActiveX {
 public:
  ~ValueListPort() override { list_->setEvents({}); }
  ValueListPort(const ValueListPort&) = delete;
  ValueListPort& operator=(const ValueListPort&) = delete;

  ValueList& list() { return *list_; }
  const ValueListRows& rows() const { return list_->rows(); }
  bool isEditing() const { return list_->edit().isOpen(); }
  /// Ends an open edit as its user does.
  void endEdit() { std::shared_ptr(list_)->endEdit(); }

  void setEvents(platform::ValueListEvents events) override { list_->setEvents(std::move(events)); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override { caption_ = caption; }
  void setColumnTitle(int column, std::string_view title) override { list_->setTitle(column, title); }
  int RowCount() const override { return rows().rowCount(); }
  int Row() const override { return rows().currentRow(); }
  void setRow(int row) override { list_->setRow(row); }
  void focusValue(int row) override { list_->focusValue(row); }
  void InsertRow(std::string_view key, std::string_view value, bool append) override {
    list_->insertRow(key, value, append);
  }
  void DeleteRow(int row) override { list_->deleteRow(row); }
  void setValue(int column, int row, std::string_view text) override { list_->setValue(column, row, text); }
  std::string cellText(int column, int row) const override { return rows().cell(column, row); }
  void setPickList(int row, std::string_view items) override { list_->setPickList(row, items); }
  std::string toolTipText() const override { return toolTipText_; }
  void setToolTipText(std::string_view text) override { toolTipText_ = text; }

 protected:
  ValueListPort() = default;
  const std::shared_ptr<ValueList>& sharedList() const { return list_; }

 private:
  std::shared_ptr<ValueList> list_ = std::make_shared<ValueList>();
  std::string caption_;
  std::string toolTipText_;
};

}  // namespace mavCycEd::kit
