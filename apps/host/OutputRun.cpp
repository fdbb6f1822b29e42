#include "OutputRun.h"

#include <QBuffer>
#include <QFile>
#include <QPixmap>

#include "CycleFile.h"
#include "HostWindow.h"

namespace mavCycEd::host {
namespace {

std::optional<Problem> writeCycle(HostWindow& window, const QString& path) {
  const QString cycle = window.takeCycle();
  if (!cycle.isEmpty()) return saveCycle(path, cycle);
  const QString unwritable = window.unwritableBecause();
  if (!unwritable.isEmpty()) return Problem{QStringLiteral("\"%1\" was not written.").arg(path), unwritable, {}};
  return Problem{QStringLiteral("\"%1\" was not written.").arg(path),
                 QStringLiteral("The cycle has no atom lines, and the editor hands back nothing without them."),
                 QStringLiteral("Give a cycle with atom lines.")};
}

std::optional<Problem> writePicture(HostWindow& window, const QString& path) {
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  if (window.grab().save(&png, "PNG")) return saveFile(path, png.data());
  return Problem{QStringLiteral("\"%1\" was not written.").arg(path),
                 QStringLiteral("The window could not be made into a picture."),
                 {}};
}

}  // namespace

QString fileArgument(const std::string& argument) { return QFile::decodeName(argument.c_str()); }

std::optional<Problem> writeOutputs(HostWindow& window, const Options& options) {
  std::optional<Problem> problem;
  // The picture comes first: it shows the editor as it was loaded.
  if (!options.screenshot.empty()) problem = writePicture(window, fileArgument(options.screenshot));
  if (!options.out.empty()) {
    std::optional<Problem> cycleProblem = writeCycle(window, fileArgument(options.out));
    if (!problem) problem = std::move(cycleProblem);
  }
  return problem;
}

}  // namespace mavCycEd::host
