#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

namespace mavCycEd::host {

/// The files that were opened or saved last, newest first, kept in the program's settings.
class RecentFiles {
 public:
  static constexpr qsizetype most = 8;

  /// The list that the settings hold under `key`. The settings outlive it.
  RecentFiles(QSettings& settings, QString key) : settings_(settings), key_(std::move(key)) {}

  QStringList files() const { return settings_.value(key_).toStringList(); }
  /// Puts a file in front.
  void add(const QString& path);
  void remove(const QString& path);
  void clear() { settings_.remove(key_); }

 private:
  QSettings& settings_;
  QString key_;
};

/// The name of a file in a menu: short, with its folder where two of `all` have the same name, and without mnemonics.
QString menuText(const QString& path, const QStringList& all);

}  // namespace mavCycEd::host
