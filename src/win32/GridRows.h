#pragma once

#include <array>
#include <string>

#include "paramgrid/ValueListRows.h"

namespace mavCycEd::win32 {

/// What a grid shows: its rows and the titles of its columns.
struct GridRows {
  static constexpr int keyColumn = 0;
  static constexpr int valueColumn = 1;

  ValueListRows rows;
  std::array<std::string, 2> titles;

  bool hasList(int row) const {
    const ValueListRows::Entry* const entry = rows.entry(row);
    return entry != nullptr && !entry->pickList.empty();
  }
};

}  // namespace mavCycEd::win32
