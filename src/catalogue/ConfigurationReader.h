#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "catalogue/CatalogueText.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// The configuration text that the host gave, parsed when a question first needs it.
class ConfigurationReader {
 public:
  explicit ConfigurationReader(platform::XmlDocumentFactory& xmlDocuments) : xmlDocuments_(xmlDocuments) {}

  /// Stores the text as it is.
  void setText(std::string text);
  const std::string& text() const { return text_; }

  /// The elements that a path below the root `Config` leads to ("Units/UNIT"); none when the text is empty or does not
  /// parse.
  platform::XmlNodeList elements(std::string_view path);

  /// Adds the arguments offered for an object, those of every `Config/Arguments/OBJECT` whose name is exactly
  /// `objectName`, to a list; an argument that the list already holds, compared without regard to case, is not added.
  /// An OBJECT without OBJECTNAME ends the search.
  void appendArguments(std::string_view objectName, ValueList& list);

  /// The element `Config/Units/UNIT` of this name, the first of several; none when there is none.
  platform::XmlNode unit(const std::string& name);

 private:
  using Arguments = std::unordered_map<std::string, ValueList>;
  platform::XmlNode root();
  const Arguments& arguments();

  platform::XmlDocumentFactory& xmlDocuments_;
  std::string text_;
  std::unique_ptr<platform::XmlDocument> parsed_;
  std::optional<Arguments> arguments_;                                       // by object name
  std::optional<std::unordered_map<std::string, platform::XmlNode>> units_;  // by name
};

}  // namespace mavCycEd
