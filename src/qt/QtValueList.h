#pragma once

#include <QLabel>
#include <QObject>
#include <utility>

#include "platform/ValueListActiveX.h"
#include "qt/ValueListModel.h"
#include "qt/ValueListView.h"

namespace mavCycEd::qt {

/// A value list: a caption and a grid of keys and values.
///
/// An edit that its user gives up (Esc) writes the value back that the cell had before, and tells nothing. An edit in
/// which nothing was typed ends without a word, too.
class QtValueList : public QObject, public platform::ValueListActiveX {
  Q_OBJECT

 public:
  QtValueList(const char* name, QWidget* parent);

  /// The caption and the grid.
  QWidget* widget() const { return pane_; }
  ValueListView* view() const { return view_; }
  bool isEditing() const { return view_->cellEdit().isOpen(); }
  /// Ends an open edit as its user does.
  void endEdit() { view_->cellEdit().end(); }

  void setEvents(platform::ValueListEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  void setColumnTitle(int column, std::string_view title) override { model_->setTitle(column, title); }
  int RowCount() const override { return model_->rows().rowCount(); }
  int Row() const override { return model_->rows().currentRow(); }
  void setRow(int row) override;
  void focusValue(int row) override;
  void InsertRow(std::string_view key, std::string_view value, bool append) override;
  void DeleteRow(int row) override;
  void setValue(int column, int row, std::string_view text) override;
  std::string cellText(int column, int row) const override;
  void setPickList(int row, std::string_view items) override { model_->setPickList(row, items); }
  std::string toolTipText() const override { return toolTipText_; }
  void setToolTipText(std::string_view text) override;
  platform::Font font() const override;
  void setCellFont(const platform::Font& font) override;

 private:
  void connectView();
  void raiseSetEditText(int row);
  void raiseEndOfEdit(int row);
  std::string value(int row) const { return model_->rows().cell(ValueListModel::valueColumn, row); }

  QWidget* pane_;
  QLabel* label_;
  ValueListModel* model_;
  ValueListView* view_;
  platform::ValueListEvents events_;
  std::string caption_;
  std::string toolTipText_;
};

}  // namespace mavCycEd::qt
