#pragma once

#include <string_view>
#include <vector>

#include "platform/XmlNode.h"

namespace mavCycEd::platform {

/// Hears what an XML document holds while it is read, in document order. Texts are as in an XmlDocument: without
/// layout, line ends as line feeds. Comments and processing instructions are left out.
class XmlContent {
 public:
  virtual ~XmlContent() = default;

  /// An element starts; its name is the qualified one.
  virtual void startElement(std::string_view name, const std::vector<XmlAttribute>& attributes) = 0;
  /// A piece of the open element's text.
  virtual void text(std::string_view piece) = 0;
  /// The element that was started last, and is still open, ends.
  virtual void endElement() = 0;
};

}  // namespace mavCycEd::platform
