#pragma once

#include <QAbstractTableModel>
#include <array>
#include <string>
#include <string_view>

#include "paramgrid/ValueListRows.h"

namespace mavCycEd::qt {

/// The rows of a value list as a table: row 0 of the table is parameter row 1, the titles are its header.
class ValueListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  static constexpr int keyColumn = 0;
  static constexpr int valueColumn = 1;
  enum Role : int {
    ExactTextRole = Qt::UserRole,  ///< the cell as it was given, as a QByteArray
    PickListRole,                  ///< the items of a value cell, as a QStringList
  };

  using QAbstractTableModel::QAbstractTableModel;

  const ValueListRows& rows() const { return rows_; }
  /// The cell of a parameter row.
  QModelIndex cellIndex(int column, int row) const { return index(row - 1, column); }
  /// The parameter row of a cell, 0 for none.
  static int rowOf(const QModelIndex& index) { return index.row() + 1; }

  void setTitle(int column, std::string_view title);
  const std::string& title(int column) const { return titles_.at(static_cast<std::size_t>(column)); }
  void setCurrentRow(int row) { rows_.setCurrentRow(row); }
  void insert(std::string_view key, std::string_view value, bool append);
  void remove(int row);
  /// False, and nothing written, beyond the rows.
  bool setCell(int column, int row, std::string_view text);
  void setPickList(int row, std::string_view items);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  void tellChanged(int column, int row);

  ValueListRows rows_;
  std::array<std::string, 2> titles_;
};

}  // namespace mavCycEd::qt
