#pragma once

#include <QAbstractListModel>
#include <string>

#include "kit/ListTexts.h"

namespace mavCycEd::qt {

/// Texts as the model of a view: no object for each of them. An index beyond the list is run-time error 5.
class ListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role : int {
    ExactTextRole = Qt::UserRole,  ///< the item as it was given, as a QByteArray
  };

  using QAbstractListModel::QAbstractListModel;

  int count() const { return texts().count(); }
  std::string text(int index) const { return texts().text(index); }
  /// The text that needs the most room, as far as its length tells; empty when there is none.
  std::string longest() const;
  /// A text is being drawn. True when the list needs more room for it than it was given.
  virtual bool notice(int /*index*/) { return false; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 protected:
  virtual const kit::ListTexts& texts() const = 0;
  /// Texts from `first` to `last` are others; the rows stay.
  void tellChange(int first, int last);
};

}  // namespace mavCycEd::qt
