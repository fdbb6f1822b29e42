#include "Win32Edition.h"

#include <iostream>
#include <memory>

#include "Output.h"
#include "Win32Driver.h"
#include "Win32OwnDesktop.h"
#include "memory/MemoryServices.h"
#include "memory/MemoryTimer.h"

namespace mavCycEd::play {

int withWin32Driver(const std::string& now, const std::function<int(ControlDriver&)>& body) {
  moveToOwnDesktop();  // nobody has to see it
  const auto timer = std::make_shared<memory::MemoryTimer>();
  win32::EditorServices services;
  services.messageBox =
      std::make_shared<memory::MemoryMessageBox>([](std::string_view text, std::string_view title, int flags) {
        writeLine(std::cout, messageBoxLine(text, title, flags));
      });
  services.clock = std::make_shared<memory::StandingClock>(now);
  services.gridTimer = timer;
  services.typingTimer = std::make_shared<memory::MemoryTimer>();
  Win32Driver driver(
      services, [](const CycleEditorErrorEvent& event) { writeLine(std::cout, asLine(event)); },
      [timer] { timer->fire(); });
  return body(driver);
}

}  // namespace mavCycEd::play
