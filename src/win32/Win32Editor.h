#pragma once

#include <memory>
#include <string>

#include "catalogue/AtomListProvider.h"
#include "control/EditorControl.h"
#include "kit/Lifeline.h"
#include "win32/EditorScreen.h"
#include "win32/Help.h"
#include "win32/Services.h"

namespace mavCycEd::win32 {

/// What a host may put in place of the editor's own services. All are optional.
struct EditorServices {
  std::shared_ptr<AtomListProvider> provider = nullptr;
  std::shared_ptr<platform::MessageBox> messageBox = nullptr;
  std::shared_ptr<platform::Clock> clock = nullptr;
  std::shared_ptr<platform::Timer> gridTimer = nullptr;
  std::shared_ptr<platform::Timer> typingTimer = nullptr;
  std::wstring helpFile = {};
  HelpViewer helpViewer = nullptr;
};

/// What the editor works on. It lives until the editor is gone and its last procedure has ended.
struct Surroundings {
  Surroundings(HWND parent, std::unique_ptr<platform::XmlDocumentFactory> documents, EditorServices given);

  PlatformServices platformServices() {
    return {*xmlDocuments, *services.messageBox, systemMessage, codePage, *services.clock};
  }

  std::unique_ptr<platform::XmlDocumentFactory> xmlDocuments;
  Win32SystemMessage systemMessage;
  AnsiCodePage codePage;
  EditorScreen screen;
  EditorServices services;
};

/// The whole editor on native windows: a screen and the control on it. It may be destroyed at any time, also from
/// inside its own events: what is still running then ends on windows that nobody sees.
class Win32Editor {
 public:
  /// `parent`: see EditorScreen.
  Win32Editor(HWND parent, std::unique_ptr<platform::XmlDocumentFactory> xmlDocuments, CycleEditorErrorHandler onError,
              EditorServices services = {});
  ~Win32Editor();
  Win32Editor(const Win32Editor&) = delete;
  Win32Editor& operator=(const Win32Editor&) = delete;

  EditorScreen& screen() { return surroundings_->screen; }
  EditorControl& control() { return control_; }
  const EditorControl& control() const { return control_; }

  /// Finishes a value that is being typed, before a call of the host's that changes what is shown or takes the cycle.
  /// What the end of the edit leads to may destroy the editor: false then.
  bool settle();

 private:
  std::shared_ptr<Surroundings> surroundings_;
  EditorControl control_;
  kit::Lifeline lifeline_;
};

}  // namespace mavCycEd::win32
