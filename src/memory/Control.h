#pragma once

namespace mavCycEd::memory {

class MemoryFrame;

/// What all in-memory controls share: whether a user could reach them.
class Control {
 public:
  explicit Control(const MemoryFrame* container) : container_(container) {}

  bool isSelfEnabled() const { return enabled_; }
  void setSelfEnabled(bool enabled) { enabled_ = enabled; }
  bool isSelfVisible() const { return visible_; }
  void setSelfVisible(bool visible) { visible_ = visible; }

  /// Whether it and every frame around it are enabled.
  bool isEnabledHere() const;
  /// Whether a user can work with the control: it and every frame around it are enabled and visible.
  bool isUsable() const;

 private:
  const MemoryFrame* container_;
  bool enabled_ = true;
  bool visible_ = true;
};

}  // namespace mavCycEd::memory
