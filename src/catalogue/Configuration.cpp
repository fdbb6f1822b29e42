#include "catalogue/Configuration.h"

#include <unordered_set>
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
    std::unique_ptr<platform::XmlDocument> document = xmlDocuments_.createDocument();
    document->loadXML(text_);
    parsed_ = std::move(document);
  }
  const XmlNode config = parsed_->selectSingleNode("Config");
  return config ? config.selectNodes(path) : platform::XmlNodeList();
}

void Configuration::appendArguments(std::string_view objectName, ValueList& list) {
  std::unordered_set<std::string> known;
  for (const std::string& entry : list) known.insert(text::foldCase(entry));
  for (const XmlNode& object : elements("Arguments/OBJECT")) {
    const XmlNode name = object.selectSingleNode("OBJECTNAME");
    if (!name) return;
    if (name.text() != objectName) continue;
    for (XmlNode argument = object.firstChild().nextSibling(); argument; argument = argument.nextSibling()) {
      std::string text = argument.text();
      if (known.insert(text::foldCase(text)).second) list.push_back(std::move(text));
    }
  }
}

}  // namespace mavCycEd
