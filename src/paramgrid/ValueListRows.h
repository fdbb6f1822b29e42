#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mavCycEd {

/// The rows of a ValueListActiveX and which of them is current, without any screen: what every edition's grid keeps
/// and shows. The rules about the current row have their home here.
class ValueListRows {
 public:
  struct Entry {
    std::string key;
    std::string value;
    std::vector<std::string> pickList;  ///< empty: the value is only typed
  };

  /// The number of rows, the title row included.
  int rowCount() const { return static_cast<int>(entries_.size()) + 1; }
  bool isParameterRow(int row) const { return row >= 1 && row < rowCount(); }

  /// 0 only when there is no parameter row, otherwise a parameter row.
  int currentRow() const { return currentRow_; }
  /// Any number that is no parameter row is ignored.
  void setCurrentRow(int row);

  /// Adds a row at the end, or as row 1; gives its number. The current row stays on its entry; the first row added
  /// becomes current.
  int insert(std::string_view key, std::string_view value, bool append);
  /// Removes a parameter row; any other number is ignored. A current row behind it moves along; when the current row
  /// itself goes, the one that takes its place is current, or else the new last one.
  void remove(int row);

  /// The entry of a parameter row; nullptr for any other number.
  const Entry* entry(int row) const;
  /// Writes the key (column 0) or the value (column 1) of a parameter row. False, and nothing written, beyond the rows.
  bool setCell(int column, int row, std::string_view text);
  /// The key (column 0) or the value (column 1) of a parameter row; empty beyond the rows.
  std::string cell(int column, int row) const;
  /// Gives a parameter row its pick list from a ";"-separated text. False beyond the rows.
  bool setPickList(int row, std::string_view items);

 private:
  std::vector<Entry> entries_;
  int currentRow_ = 0;
};

}  // namespace mavCycEd
