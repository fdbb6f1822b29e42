#include "catalogue/Configuration.h"

#include <algorithm>
#include <utility>

#include "text/CaseFold.h"

namespace mavCycEd {

using platform::XmlNode;

void Configuration::setText(std::string text) {
  text_ = std::move(text);
  parsed_.reset();
}

platform::XmlNodeList Configuration::elements(std::string_view path) {
  if (text_.empty()) return {};
  if (!parsed_) {
    parsed_ = xmlDocuments_.createDocument();
    parsed_->loadXML(text_);
  }
  const XmlNode config = parsed_->selectSingleNode("Config");
  return config ? config.selectNodes(path) : platform::XmlNodeList();
}

void Configuration::appendArguments(std::string_view objectName, ValueList& list) {
  for (const XmlNode& object : elements("Arguments/OBJECT")) {
    const XmlNode name = object.selectSingleNode("OBJECTNAME");
    if (!name) return;
    if (name.text() != objectName) continue;
    for (XmlNode argument = object.firstChild().nextSibling(); argument; argument = argument.nextSibling()) {
      std::string text = argument.text();
      const bool known = std::ranges::any_of(
          list, [&text](const std::string& entry) { return text::equalsIgnoringCase(entry, text); });
      if (!known) list.push_back(std::move(text));
    }
  }
}

}  // namespace mavCycEd
