#include "QtEdition.h"

#include <QApplication>
#include <iostream>
#include <memory>

#include "Output.h"
#include "QtDriver.h"
#include "memory/MemoryServices.h"
#include "memory/MemoryTimer.h"

namespace mavCycEd::play {
namespace {

void writeQtMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message) {
  const bool ofThePlatform = message.startsWith("This plugin does not support") || message.contains("XDG_RUNTIME_DIR");
  if (!ofThePlatform) std::cerr << message.toStdString() << '\n';
}

}  // namespace

void tellWhatQtSays() { qInstallMessageHandler(writeQtMessage); }

int withQtDriver(int argc, char** argv, const std::string& now, const std::function<int(ControlDriver&)>& body) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  tellWhatQtSays();
  const QApplication application(argc, argv);
  HostServices services;
  services.messageBox =
      std::make_shared<memory::MemoryMessageBox>([](std::string_view text, std::string_view title, int flags) {
        writeLine(std::cout, messageBoxLine(text, title, flags));
      });
  services.clock = std::make_shared<memory::StandingClock>(now);
  const auto timer = std::make_shared<memory::MemoryTimer>();
  services.gridTimer = timer;
  services.typingTimer = std::make_shared<memory::MemoryTimer>();
  QtDriver driver(
      services, [](const CycleEditorErrorEvent& event) { writeLine(std::cout, asLine(event)); },
      [timer] { timer->fire(); });
  return body(driver);
}

}  // namespace mavCycEd::play
