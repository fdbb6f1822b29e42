#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <iostream>

#include "CommandLine.h"
#include "HostWindow.h"
#include "OutputRun.h"

namespace {

using namespace mavCycEd::host;

// The editor refreshes its grid half a second after a line was shown; a picture is taken when that has happened.
constexpr int untilEverythingIsShown = 700;

void complain(const QString& text) { std::cerr << "cyced-host: " << text.toStdString() << '\n'; }

bool hasDisplay() {
#ifdef Q_OS_LINUX
  return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
  return true;
#endif
}

// Opens the files of the command line. The problems are told on standard error and returned.
QList<Problem> openFiles(HostWindow& window, const Options& options) {
  QList<Problem> problems;
  const auto open = [&](const std::string& path, auto opener) {
    if (path.empty() || !problems.isEmpty()) return;
    if (const std::optional<Problem> problem = (window.*opener)(fileArgument(path))) problems << *problem;
  };
  window.setIgnoreHidden(options.ignoreHidden);
  open(options.configuration, &HostWindow::openConfiguration);
  open(options.catalogue, &HostWindow::openCatalogue);
  open(options.cycle, &HostWindow::openCycle);
  for (const Problem& problem : problems) complain(asLine(problem));
  return problems;
}

int writeAndTell(HostWindow& window, const Options& options) {
  const std::optional<Problem> problem = writeOutputs(window, options);
  if (!problem) return Fine;
  complain(asLine(*problem));
  return NotWritten;
}

int run(QSettings& settings, const Options& options) {
  HostWindow window(settings);
  int editorErrors = 0;
  QObject::connect(&window, &HostWindow::editorFailed, &window, [&editorErrors](const QString& text) {
    ++editorErrors;
    complain(QStringLiteral("The editor reported: ") + text);
  });
  const QList<Problem> problems = openFiles(window, options);
  if (options.quit && (!problems.isEmpty() || editorErrors > 0)) return UnusableFile;

  window.show();
  QTimer::singleShot(untilEverythingIsShown, &window, [&] {
    const int code = problems.isEmpty() ? writeAndTell(window, options) : Fine;
    if (options.quit) QApplication::exit(code);
  });
  if (!options.quit) {
    for (const Problem& problem : problems) window.tell(problem);
  }
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (const std::optional<int> exitCode = readCommandLine(argc, argv, options)) return *exitCode;
  if (!hasDisplay()) {
    if (!options.quit) {
      complain(QStringLiteral("There is no display for the window. Start it on a desktop, or use --quit."));
      return WrongUsage;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }

  int qtArgumentCount = 1;  // all others have been read
  const QApplication application(qtArgumentCount, argv);
  QCoreApplication::setOrganizationName(QStringLiteral("mavCycEd"));
  QCoreApplication::setApplicationName(QStringLiteral("cyced-host"));
  QCoreApplication::setApplicationVersion(QStringLiteral(MAVCYCED_VERSION));

  if (options.quit) {
    // Settings of its own: nobody else's window size, and nothing to remember.
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
    return run(settings, options);
  }
  QSettings settings;
  return run(settings, options);
}
