#include "win32/Win32Editor.h"

#include <utility>

namespace mavCycEd::win32 {
namespace {

EditorServices completed(EditorServices services, EditorScreen& screen) {
  if (!services.messageBox) {
    services.messageBox = std::make_shared<Win32MessageBox>([&screen] { return screen.window(); });
  }
  if (!services.clock) services.clock = std::make_shared<Win32Clock>();
  if (services.helpFile.empty()) services.helpFile = ownHelpFile();
  if (!services.helpViewer) services.helpViewer = showInSystemHelp;
  return services;
}

}  // namespace

Surroundings::Surroundings(HWND parent, std::unique_ptr<platform::XmlDocumentFactory> documents, EditorServices given)
    : xmlDocuments(std::move(documents)),
      screen(parent, given.gridTimer, given.typingTimer),
      services(completed(std::move(given), screen)) {
  screen.setHelp([file = services.helpFile, viewer = services.helpViewer, messageBox = services.messageBox](
                     HWND over, HelpPage page) { showHelp(over, page, file, viewer, *messageBox); });
}

Win32Editor::Win32Editor(HWND parent, std::unique_ptr<platform::XmlDocumentFactory> xmlDocuments,
                         CycleEditorErrorHandler onError, EditorServices services)
    : surroundings_(std::make_shared<Surroundings>(parent, std::move(xmlDocuments), std::move(services))),
      control_(surroundings_->screen.controls(), surroundings_->platformServices(), std::move(onError),
               surroundings_->services.provider, surroundings_) {
  surroundings_->screen.setHistory([this](HistoryStep step) {
    if (step == HistoryStep::Undo) {
      control_.Undo();
    } else {
      control_.Redo();
    }
  });
}

// What is still running keeps the windows; the host's own may be on its way out.
Win32Editor::~Win32Editor() {
  surroundings_->screen.setHistory({});
  if (control_.isRunning()) surroundings_->screen.setParent(nullptr);
}

bool Win32Editor::settle() {
  const kit::Lifeline::Watch alive = lifeline_.watch();
  const auto surroundings = surroundings_;
  surroundings->screen.gate().pass();
  return static_cast<bool>(alive);
}

}  // namespace mavCycEd::win32
