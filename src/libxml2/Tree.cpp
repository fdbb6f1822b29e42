#include "libxml2/Tree.h"

#include <climits>

#include "platform/RunTimeError.h"

namespace mavCycEd::libxml2 {

Owner<xmlNode> makeText(xmlDoc& document, std::string_view text) {
  if (text.size() > INT_MAX) throw RunTimeError(ErrorNumber::OutOfMemory);
  return Owner<xmlNode>(made(xmlNewDocTextLen(&document, toXml(text.data()), static_cast<int>(text.size()))));
}

void setValue(xmlAttr& attribute, std::string_view value) {
  Owner<xmlNode> text;
  if (!value.empty()) {
    text = makeText(*attribute.doc, value);
    text->parent = reinterpret_cast<xmlNode*>(&attribute);
  }
  xmlFreeNodeList(attribute.children);
  attribute.children = attribute.last = text.release();
}

}  // namespace mavCycEd::libxml2
