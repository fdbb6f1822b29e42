// Plays a scenario on the Qt edition, and takes the pictures that its comments ask for; one of the host program too.

#include <mavCycEd/ctlCycEd.h>

#include <CLI/CLI.hpp>
#include <QApplication>
#include <QListView>
#include <QMessageBox>
#include <QSettings>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <exception>
#include <iostream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>

#include "Camera.h"
#include "HostWindow.h"
#include "PicturedScenario.h"
#include "Player.h"
#include "QtDriver.h"
#include "QtEdition.h"
#include "memory/MemoryServices.h"
#include "memory/MemoryTimer.h"
#include "qt/QtMessageBox.h"

namespace {

using namespace mavCycEd;

constexpr int untilEverythingIsShown = 700;  // the editor refreshes its grid half a second after a line was shown
constexpr int lineInThePicture = 11;         // one with several parameters

QPalette darkPalette() {
  const QColor window(0x35, 0x37, 0x3b);
  const QColor base(0x23, 0x25, 0x28);
  const QColor text(0xdf, 0xe1, 0xe5);
  QPalette palette(QColor(0x45, 0x48, 0x4d), window);
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::ToolTipBase, window);
  palette.setColor(QPalette::Highlight, QColor(0x2e, 0x6d, 0xa8));
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText, QPalette::HighlightedText}) {
    palette.setColor(role, text);
    if (role != QPalette::HighlightedText) palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x83, 0x88));
  }
  palette.setColor(QPalette::PlaceholderText, QColor(0x90, 0x93, 0x98));
  return palette;
}

/// Shows the boxes that the camera waits for, and answers all with OK.
class PicturedMessages : public platform::MessageBox {
 public:
  explicit PicturedMessages(tour::Camera& camera) : camera_(camera) {}
  void setControl(QWidget* control) { box_ = std::make_unique<qt::QtMessageBox>(control); }

  int messageBox(platform::WindowHandle owner, std::string_view message, std::string_view caption, int flags) override {
    if (!camera_.isWaiting()) return platform::OkButton;
    QTimer::singleShot(0, &camera_, [this] {
      camera_.takeWaiting();
      QApplication::activeModalWidget()->close();
    });
    return box_->messageBox(owner, message, caption, flags);
  }

 private:
  tour::Camera& camera_;
  std::unique_ptr<qt::QtMessageBox> box_;
};

ctlCycEd& shownControl() {
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (auto* const control = qobject_cast<ctlCycEd*>(window)) return *control;
  }
  throw std::runtime_error("There is no control.");
}

void pictureScenario(tour::Camera& camera, const std::string& file) {
  const auto messages = std::make_shared<PicturedMessages>(camera);
  const auto timer = std::make_shared<memory::MemoryTimer>();
  HostServices services;
  services.messageBox = messages;
  services.clock = std::make_shared<memory::StandingClock>("2024-03-09T14:05:00");
  services.gridTimer = timer;
  play::QtDriver driver(
      services, [](const CycleEditorErrorEvent&) {}, [timer] { timer->fire(); });
  ctlCycEd& control = shownControl();
  control.resize(860, 560);
  messages->setControl(&control);
  camera.pointAt(control);

  tour::PicturedScenario scenario(file, camera);
  std::ostringstream output;
  if (!play::Player(driver, output).play(scenario)) throw std::runtime_error(output.str());
  if (camera.taken().size() < scenario.pictureCount()) throw std::runtime_error("Not all pictures were taken.");
}

void select(QListView& list, int line) {
  const QModelIndex index = list.model()->index(line, 0);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
}

void pictureHost(tour::Camera& camera, const std::string& samples) {
  const QTemporaryDir folder;
  QSettings settings(folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat);
  host::HostWindow window(settings);
  camera.pointAt(window);
  const QString from = QString::fromStdString(samples);
  const auto opened = [](const std::optional<host::Problem>& problem) {
    if (problem) throw std::runtime_error(host::asLine(*problem).toStdString());
  };
  opened(window.openConfiguration(from + QStringLiteral("/configuration.xml")));
  opened(window.openCatalogue(from + QStringLiteral("/catalogue.xml")));
  opened(window.openCycle(from + QStringLiteral("/cycle-standard.xml")));
  window.resize(960, 640);
  window.show();
  select(*window.findChild<QListView*>(QStringLiteral("lstAtomSequence")), lineInThePicture);
  QTest::qWait(untilEverythingIsShown);
  camera.take("editor");
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Takes the pictures of the tour.");
  std::string theme = "light";
  std::string samples;
  std::string scenario;
  std::string folder;
  app.add_option("--theme", theme, "light or dark")->check(CLI::IsMember({"light", "dark"}))->capture_default_str();
  app.add_option("--samples", samples, "The folder of the sample instrument")->required();
  app.add_option("SCENARIO", scenario, "The scenario, with comments that ask for pictures")->required();
  app.add_option("FOLDER", folder, "Where the pictures go")->required();
  CLI11_PARSE(app, argc, argv);
  // The same pictures on every machine: no theme of its desktop, no blinking.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  play::tellWhatQtSays();
  int qtArgumentCount = 1;
  const QApplication application(qtArgumentCount, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  QApplication::setCursorFlashTime(0);
  if (theme == "dark") QApplication::setPalette(darkPalette());
  try {
    tour::Camera camera(folder, theme);
    pictureScenario(camera, scenario);
    pictureHost(camera, samples);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return 0;
}
