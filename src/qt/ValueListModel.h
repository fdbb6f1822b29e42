#pragma once

#include <QAbstractTableModel>
#include <memory>

#include "kit/ValueList.h"

namespace mavCycEd::qt {

/// The rows of a value list as a table: row 0 of the table is parameter row 1, the titles are its header.
class ValueListModel : public QAbstractTableModel, private kit::ValueListRows::Observer {
  Q_OBJECT

 public:
  static constexpr int keyColumn = kit::ValueListRows::keyColumn;
  static constexpr int valueColumn = kit::ValueListRows::valueColumn;
  enum Role : int {
    ExactTextRole = Qt::UserRole,  ///< the cell as it was given, as a QByteArray
    PickListRole,                  ///< the items of a value cell, as a QStringList
  };

  explicit ValueListModel(std::shared_ptr<kit::ValueList> list);
  ~ValueListModel() override;
  ValueListModel(const ValueListModel&) = delete;
  ValueListModel& operator=(const ValueListModel&) = delete;

  /// The cell of a parameter row.
  QModelIndex cellIndex(int column, int row) const { return index(row - 1, column); }
  /// The parameter row of a cell, 0 for none.
  static int rowOf(const QModelIndex& index) { return index.row() + 1; }
  /// Rows are just coming or going: what follows from that in the views is no user's doing.
  bool isChanging() const { return changing_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  void aboutToInsert(int row) override;
  void inserted() override;
  void aboutToRemove(int row) override;
  void removed() override;
  void changed(int column, int row) override;

  std::shared_ptr<kit::ValueList> list_;
  const kit::ValueListRows& rows_;
  bool changing_ = false;
};

}  // namespace mavCycEd::qt
