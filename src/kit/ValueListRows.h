#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace mavCycEd::kit {

/// The rows of a ValueListActiveX, the titles above them and which row is current, without any screen: what every
/// edition's grid keeps and shows. The rules about the current row have their home here.
class ValueListRows {
 public:
  static constexpr int keyColumn = 0;
  static constexpr int valueColumn = 1;

  struct Entry {
    std::string key;
    std::string value;
    std::vector<std::string> pickList;  ///< empty: the value is only typed
  };

  /// A screen that shows the rows hears of their changes here.
  class Observer {
   public:
    virtual ~Observer() = default;
    /// A row is about to be this number.
    virtual void aboutToInsert(int row) = 0;
    virtual void inserted() = 0;
    /// A parameter row is about to go.
    virtual void aboutToRemove(int row) = 0;
    virtual void removed() = 0;
    /// A cell has another text, or a value another pick list; row 0 is a title.
    virtual void changed(int column, int row) = 0;
  };

  ValueListRows() = default;
  ~ValueListRows() = default;
  ValueListRows(const ValueListRows&) = delete;
  ValueListRows& operator=(const ValueListRows&) = delete;

  /// nullptr: nobody hears of the changes.
  void setObserver(Observer* observer) { observer_ = observer; }

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
  /// Whether the value of a row can be picked from a list.
  bool hasPickList(int row) const;
  /// Writes the key (column 0) or the value (column 1) of a parameter row. False, and nothing written, beyond the rows.
  bool setCell(int column, int row, std::string_view text);
  /// The key (column 0) or the value (column 1) of a parameter row, a title of row 0; empty beyond the rows.
  std::string cell(int column, int row) const;
  /// Writes a column's title; there are the columns 0 and 1.
  void setTitle(int column, std::string_view title);
  /// Gives a parameter row its pick list from a ";"-separated text. False beyond the rows.
  bool setPickList(int row, std::string_view items);

 private:
  void tellChanged(int column, int row) const;

  std::vector<Entry> entries_;
  std::array<std::string, 2> titles_;
  int currentRow_ = 0;
  Observer* observer_ = nullptr;
};

}  // namespace mavCycEd::kit
