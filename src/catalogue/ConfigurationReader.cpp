#include "catalogue/ConfigurationReader.h"

#include <unordered_set>
#include <utility>

#include "text/CaseFold.h"

namespace mavCycEd {

using platform::XmlNode;

void ConfigurationReader::setText(std::string text) {
  text_ = std::move(text);
  parsed_.reset();
  arguments_.reset();
  units_.reset();
}

XmlNode ConfigurationReader::root() {
  if (text_.empty()) return {};
  if (!parsed_) {
    std::unique_ptr<platform::XmlDocument> document = xmlDocuments_.createDocument();
    document->loadXML(text_);
    parsed_ = std::move(document);
  }
  return parsed_->selectSingleNode("Config");
}

platform::XmlNodeList ConfigurationReader::elements(std::string_view path) {
  const XmlNode config = root();
  return config ? config.selectNodes(path) : platform::XmlNodeList();
}

XmlNode ConfigurationReader::unit(const std::string& name) {
  if (!units_) {
    std::unordered_map<std::string, XmlNode> units;
    for (const XmlNode& unit : elements("Units/UNIT")) {
      const XmlNode unitName = unit.selectSingleNode("UNITNAME");
      units.emplace(unitName ? cleanedEntry(unitName.text()) : std::string(), unit);
    }
    units_ = std::move(units);
  }
  const auto found = units_->find(name);
  return found == units_->end() ? XmlNode() : found->second;
}

const ConfigurationReader::Arguments& ConfigurationReader::arguments() {
  if (arguments_) return *arguments_;
  Arguments arguments;
  for (const XmlNode& object : elements("Arguments/OBJECT")) {
    const XmlNode name = object.selectSingleNode("OBJECTNAME");
    if (!name) break;
    ValueList& texts = arguments[name.text()];
    for (XmlNode argument = object.firstChild().nextSibling(); argument; argument = argument.nextSibling()) {
      texts.push_back(argument.text());
    }
  }
  return arguments_.emplace(std::move(arguments));
}

void ConfigurationReader::appendArguments(std::string_view objectName, ValueList& list) {
  const auto offered = arguments().find(std::string(objectName));
  if (offered == arguments().end() || offered->second.empty()) return;
  std::unordered_set<std::string> known;
  for (const std::string& entry : list) known.insert(text::foldCase(entry));
  for (const std::string& argument : offered->second) {
    if (known.insert(text::foldCase(argument)).second) list.push_back(argument);
  }
}

}  // namespace mavCycEd
