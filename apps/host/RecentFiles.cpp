#include "RecentFiles.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace mavCycEd::host {

void RecentFiles::add(const QString& path) {
  const QString file = QFileInfo(path).absoluteFilePath();
  QStringList known = files();
  known.removeAll(file);
  known.prepend(file);
  settings_.setValue(key_, QStringList(known.mid(0, most)));
}

void RecentFiles::remove(const QString& path) {
  QStringList known = files();
  known.removeAll(QFileInfo(path).absoluteFilePath());
  settings_.setValue(key_, known);
}

QString menuText(const QString& path, const QStringList& all) {
  const QFileInfo file(path);
  const auto sameName = std::ranges::count_if(
      all, [&file](const QString& other) { return QFileInfo(other).fileName() == file.fileName(); });
  QString text = file.fileName();
  if (sameName > 1) text += QStringLiteral(" (%1)").arg(QDir::toNativeSeparators(file.path()));
  return text.replace(u'&', QLatin1String("&&"));
}

}  // namespace mavCycEd::host
