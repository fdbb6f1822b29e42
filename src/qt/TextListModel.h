#pragma once

#include <QAbstractListModel>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ListLines.h"
#include "text/FirstIndex.h"

namespace mavCycEd::qt {

/// The items of a list box or a combo box: texts, and no object for each of them, or lines that somebody else keeps. An
/// index beyond the list is run-time error 5.
class TextListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role : int {
    ExactTextRole = Qt::UserRole,  ///< the item as it was given, as a QByteArray
  };

  using QAbstractListModel::QAbstractListModel;

  /// Replaces all items: one model reset.
  virtual void assign(std::vector<std::string> items);
  /// Shows lines in place of items: one model reset.
  void showLines(const platform::ListLines& lines);
  /// The lines have one more at the end.
  void lineAdded();
  /// A line has another text.
  void lineChanged(int index);
  void append(std::string_view text);
  void remove(int index);
  void setText(int index, std::string_view text);

  int count() const { return lines_ != nullptr ? lineCount_ : static_cast<int>(items_.size()); }
  std::string text(int index) const;
  /// The item that needs the most room, as far as its length tells; empty when there is no item.
  std::string longest() const;
  /// The first item of exactly this text, -1 when there is none.
  int indexOf(std::string_view text) { return places_.of(text, items_); }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 protected:
  std::size_t checked(int index) const;

 private:
  void tellChange(int index);

  std::vector<std::string> items_;
  text::FirstIndex places_;
  const platform::ListLines* lines_ = nullptr;  // null: the items are its own
  int lineCount_ = 0;
};

}  // namespace mavCycEd::qt
