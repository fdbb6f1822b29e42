#pragma once

#include "com/Com.h"

namespace mavCycEd::com {

/// The size of the control in hundredths of a millimetre, which is what it keeps when it is stored.
class Extent {
 public:
  SIZEL size() const { return size_; }
  void set(SIZEL size);
  void setFromPixels(int width, int height);

  /// Whether the size has changed since it was loaded or stored.
  bool isDirty() const { return dirty_; }
  void setDirty(bool dirty) { dirty_ = dirty; }

  /// What a new control has.
  void reset();

 private:
  static constexpr SIZEL newSize{20000, 13500};

  SIZEL size_ = newSize;
  bool dirty_ = false;
};

}  // namespace mavCycEd::com
