#pragma once

#include <string>

namespace mavCycEd::platform {

/// What one control hands another when its font is copied: the face, its size and its character set.
struct Font {
  std::string faceName;  ///< family name as the platform knows it; empty: the platform's default
  double pointSize = 0;  ///< size in points; 0: the platform's default
  int characterSet = 1;  ///< the platform's character set number; 1: its default
  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace mavCycEd::platform
