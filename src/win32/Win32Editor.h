#pragma once

#include <memory>

#include "catalogue/AtomListProvider.h"
#include "control/EditorControl.h"
#include "win32/EditorScreen.h"
#include "win32/Services.h"

namespace mavCycEd::win32 {

/// What a host may put in place of the editor's own services. All are optional.
struct EditorServices {
  std::shared_ptr<AtomListProvider> provider = nullptr;
  std::shared_ptr<platform::MessageBox> messageBox = nullptr;
  std::shared_ptr<platform::Clock> clock = nullptr;
  std::shared_ptr<platform::Timer> gridTimer = nullptr;
};

/// The whole editor on native windows: a screen and the control on it.
class Win32Editor {
 public:
  /// `parent`: see EditorScreen. The factory of documents outlives the editor.
  Win32Editor(HWND parent, platform::XmlDocumentFactory& xmlDocuments, CycleEditorErrorHandler onError,
              EditorServices services = {});

  EditorScreen& screen() { return screen_; }
  const EditorControl& control() const { return control_; }
  /// For a call of the host's that only asks.
  EditorControl& control() { return control_; }
  /// For a call of the host's that changes what is shown or takes the cycle: a value that is being typed is finished
  /// first.
  EditorControl& settledControl() {
    screen_.gate().pass();
    return control_;
  }

 private:
  static EditorServices completed(EditorServices services, EditorScreen& screen);

  EditorScreen screen_;
  EditorServices services_;
  Win32SystemMessage systemMessage_;
  AnsiCodePage codePage_;
  EditorControl control_;
};

}  // namespace mavCycEd::win32
