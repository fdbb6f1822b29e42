#include "com/EditorSession.h"

#include "com/ModalMessageBox.h"
#include "libxml2/Libxml2DocumentFactory.h"

namespace mavCycEd::com {

EditorControl& EditorSession::settledEditor() {
  // What the end of the edit leads to cannot destroy the editor: the host's call keeps it.
  editorOnScreen().settle();
  return editor();
}

ControlWindow& EditorSession::window() {
  editorOnScreen();
  return *window_;
}

win32::Win32Editor& EditorSession::editorOnScreen() {
  if (editor_) return *editor_;
  auto messageBox = std::make_shared<ModalMessageBox>([this] { return editor_ ? screen().window() : nullptr; },
                                                      [this](bool open) { modalChanged(open); });
  auto editor = std::make_unique<win32::Win32Editor>(
      nullptr, std::make_unique<libxml2::Libxml2DocumentFactory>(),
      [this](const CycleEditorErrorEvent& event) { events_.raise(event); },
      win32::EditorServices{.messageBox = std::move(messageBox)});
  if (editor->screen().window() == nullptr) throw Failure(E_OUTOFMEMORY);
  editor->screen().setModality([this](bool open) { modalChanged(open); });
  window_ = std::make_unique<ControlWindow>(editor->screen());
  window_->setMouseActivated([this] {
    if (const auto activated = mouseActivated_) activated();
  });
  editor_ = std::move(editor);
  return *editor_;
}

void EditorSession::modalChanged(bool open) {
  if (open) stays_.push_back(std::make_unique<Lifetime::StayWhileModal>(lifetime_));
  if (const auto modal = modal_) modal(open);
  if (open || stays_.empty()) return;
  // Its end is the last thing that happens here: the control may go with it.
  const auto last = std::move(stays_.back());
  stays_.pop_back();
}

}  // namespace mavCycEd::com
