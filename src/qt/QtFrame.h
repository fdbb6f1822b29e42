#pragma once

#include <QGroupBox>

#include "platform/Frame.h"

namespace mavCycEd::qt {

/// A frame as a group box.
class QtFrame : public platform::Frame {
 public:
  QtFrame(const char* name, QWidget* parent);

  QGroupBox* widget() const { return box_; }

  std::string caption() const override { return caption_; }
  void setCaption(std::string_view caption) override;
  bool isEnabled() const override { return !box_->testAttribute(Qt::WA_ForceDisabled); }
  void setEnabled(bool enabled) override { box_->setEnabled(enabled); }
  bool isVisible() const override { return visible_; }
  void setVisible(bool visible) override;

 private:
  QGroupBox* box_;
  std::string caption_;
  bool visible_ = true;
};

}  // namespace mavCycEd::qt
