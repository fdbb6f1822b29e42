#pragma once

#include <string>
#include <utility>

#include "mavCycEd/TextFault.h"

namespace mavCycEd {

/// What a laboratory adds to a catalogue: units, arguments offered for objects, further atoms. An XML document with the
/// root `Config`; whatever else is in it is optional. A default-made one adds nothing.
class Configuration {
 public:
  Configuration() = default;

  /// Reads a configuration document (UTF-8).
  static Reading<Configuration> read(std::string text);

  /// The text that it was read from.
  const std::string& text() const { return text_; }

 private:
  explicit Configuration(std::string text) : text_(std::move(text)) {}

  std::string text_;
};

}  // namespace mavCycEd
