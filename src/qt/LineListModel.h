#pragma once

#include "kit/LineCount.h"
#include "qt/ListModel.h"

namespace mavCycEd::qt {

/// The lines of an owner.
class LineListModel : public ListModel {
  Q_OBJECT

 public:
  using ListModel::ListModel;

  /// Shows lines, or none: one model reset.
  void show(const platform::ListLines& lines);
  void clear();
  /// Lines went and came: rows are removed and inserted, and all others may have other texts.
  void splice(const kit::Splice& change);

  bool notice(int index) override { return lines_.notice(index); }

 protected:
  const kit::ListTexts& texts() const override { return lines_; }

 private:
  kit::LineCount lines_;
};

}  // namespace mavCycEd::qt
