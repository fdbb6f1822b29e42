#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/CatalogueIndex.h"
#include "catalogue/CatalogueText.h"
#include "catalogue/ConfigurationReader.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// Answers the editor's questions about the catalogue document (root LATESTKAM: ATOMS, CLASSES, OBJECTS, LISTS) and
/// the configuration. What a document lacks is no error: the answer is then what was gathered so far.
class modCycleHelper {
 public:
  explicit modCycleHelper(platform::XmlDocumentFactory& xmlDocuments) : configuration_(xmlDocuments) {}

  /// Keeps a shared reference to the catalogue; every question about the catalogue reads it.
  void setCatalogue(std::shared_ptr<platform::XmlDocument> catalogue);
  ConfigurationReader& configuration() { return configuration_; }

  /// The ATOM elements, in document order.
  platform::XmlNodeList atoms() const;
  /// The names of the atoms as the picker shows them, in document order.
  ValueList atomNames() const;
  /// The ATOM element whose name, as the picker shows it, is `name`; nothing when there is none.
  platform::XmlNode atom(std::string_view name) const;
  /// The objects of these classes, in document order, each once: elements under OBJECTS whose first child is the class
  /// and whose second is the name.
  std::vector<CatalogueObject> objectsOf(const std::vector<std::string_view>& classes) const;

  /// The class names, in document order, joined by ";". One whose whole text has no more than 2 characters keeps a ";"
  /// in front.
  std::string classNames() const;
  /// The values that an object-typed parameter of a class may take, added to a list: "user_index" unless the class is
  /// "None", the arguments of "FREE TEXT" and of the class, the syringes of the class.
  void appendObjectValues(std::string_view classValue, ValueList& list);
  /// Adds the syringes of a class to a list, as "SYR." and the syringe's name. A name that the list holds bare is left
  /// out; one that it holds with "SYR." in front is added again.
  void appendSyringes(std::string_view classValue, ValueList& list) const;
  /// The entries of the list of this number, separated by ";"; empty when there is none. A list whose own number is
  /// not numeric, met on the way, is run-time error 13.
  std::string namedList(std::int32_t number) const;
  /// The unit names in the atoms' parameter definitions, in document order, each followed by ";". A definition without
  /// ";" counts as the one before it once more; when it is the very first, that is run-time error 9.
  std::string standardUnits() const;

 private:
  platform::XmlNodeList select(std::string_view path) const;

  ConfigurationReader configuration_;
  std::shared_ptr<platform::XmlDocument> catalogue_;
  std::optional<CatalogueIndex> index_;  // nothing without a catalogue
};

}  // namespace mavCycEd
