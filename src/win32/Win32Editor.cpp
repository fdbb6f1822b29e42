#include "win32/Win32Editor.h"

#include <utility>

namespace mavCycEd::win32 {

Win32Editor::Win32Editor(HWND parent, platform::XmlDocumentFactory& xmlDocuments, CycleEditorErrorHandler onError,
                         EditorServices services)
    : screen_(parent, services.gridTimer),
      services_(completed(std::move(services), screen_)),
      control_(screen_.controls(), {xmlDocuments, *services_.messageBox, systemMessage_, codePage_, *services_.clock},
               std::move(onError), services_.provider) {}

EditorServices Win32Editor::completed(EditorServices services, EditorScreen& screen) {
  if (!services.messageBox) {
    services.messageBox = std::make_shared<Win32MessageBox>([&screen] { return screen.window(); });
  }
  if (!services.clock) services.clock = std::make_shared<Win32Clock>();
  return services;
}

}  // namespace mavCycEd::win32
