#include "libxml2/Tree.h"

#include <climits>
#include <cstring>
#include <utility>

#include "platform/RunTimeError.h"
#include "text/Strings.h"
#include "text/XmlText.h"

namespace mavCycEd::libxml2 {
namespace {

// What takes the place of characters in the stored name of a namespace. libxml2 itself stores "&" so; it is the last
// to be put back.
constexpr std::pair<std::string_view, std::string_view> escapes[] = {
    {"<", "&lt;"}, {"\t", "&#9;"}, {"\n", "&#10;"}, {"&", "&#38;"}};

}  // namespace

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

std::string namespaceName(const xmlNs& declaration) {
  std::string name = declaration.href == nullptr ? "" : fromXml(declaration.href);
  for (const auto& [character, escape] : escapes) name = text::replaceAll(name, escape, character);
  return name;
}

bool needsEscape(const xmlChar* readName) {
  return readName != nullptr && std::strpbrk(fromXml(readName), "<\t\n\r") != nullptr;
}

void escapeName(xmlNs& declaration) {
  std::string name = text::toXmlText(fromXml(declaration.href));
  for (const auto& [character, escape] : escapes) {
    if (character != "&") name = text::replaceAll(name, character, escape);
  }
  const xmlChar* const stored = made(xmlStrdup(toXml(name.c_str())));
  xmlFree(const_cast<xmlChar*>(std::exchange(declaration.href, stored)));
}

}  // namespace mavCycEd::libxml2
