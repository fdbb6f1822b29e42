#pragma once

#include <QLabel>

#include "kit/ValueListPort.h"
#include "qt/ValueListView.h"

namespace mavCycEd::qt {

/// A value list: a caption and a grid of keys and values.
class QtValueList : public kit::ValueListPort {
 public:
  QtValueList(const char* name, QWidget* parent);

  /// The caption and the grid.
  QWidget* widget() const { return pane_; }
  ValueListView* view() const { return view_; }

  void setCaption(std::string_view caption) override;
  void setToolTipText(std::string_view text) override;
  platform::Font font() const override;
  void setCellFont(const platform::Font& font) override;

 private:
  QWidget* pane_;
  QLabel* label_;
  ValueListView* view_;
};

}  // namespace mavCycEd::qt
