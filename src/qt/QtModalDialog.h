#pragma once

#include <QObject>
#include <QPointer>
#include <utility>

#include "platform/ModalDialog.h"
#include "qt/ModalWindow.h"

namespace mavCycEd::qt {

/// A modal dialog.
class QtModalDialog : public QObject, public platform::ModalDialog {
  Q_OBJECT

 public:
  /// The window stands over `owner` and is the owner's child.
  QtModalDialog(const char* name, QWidget* owner);
  ~QtModalDialog() override;
  QtModalDialog(const QtModalDialog&) = delete;
  QtModalDialog& operator=(const QtModalDialog&) = delete;

  ModalWindow* widget() const { return window_; }

  void setEvents(platform::ModalDialogEvents events) override { events_ = std::move(events); }
  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  void showModal() override { window_->exec(); }
  void close() override;
  bool isLoaded() const override { return window_ && window_->isVisible(); }
  platform::WindowHandle hWnd() const override;

 private:
  QPointer<ModalWindow> window_;
  platform::ModalDialogEvents events_;
  std::string caption_;
};

}  // namespace mavCycEd::qt
