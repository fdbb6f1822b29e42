#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "catalogue/CatalogueText.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// An object of the catalogue.
struct CatalogueObject {
  platform::XmlNode element;
  std::string name;
  int position = 0;  ///< in document order
};

/// What is asked of a catalogue again and again, looked up by name. It is made in one walk through the document.
class CatalogueIndex {
 public:
  explicit CatalogueIndex(platform::XmlDocument& catalogue);

  /// The first ATOM of this name, as the picker shows it; nothing when there is none.
  platform::XmlNode atom(const std::string& name) const;
  /// The objects of a class, in document order; an object without a name is none.
  std::span<const CatalogueObject> objectsOf(const std::string& className) const;
  /// The names of the syringes of a class, in document order.
  std::span<const std::string> syringesOf(const std::string& className) const;
  /// The entries of the list of this number, empty when there is none. A list whose own number is not numeric, met on
  /// the way, is run-time error 13.
  std::string namedList(double number) const;

 private:
  void addAtoms(platform::XmlDocument& catalogue);
  void addObjects(platform::XmlDocument& catalogue);
  void addSyringes(platform::XmlDocument& catalogue);
  void addLists(platform::XmlDocument& catalogue);

  std::unordered_map<std::string, platform::XmlNode> atoms_;
  std::unordered_map<std::string, std::vector<CatalogueObject>> objects_;
  std::unordered_map<std::string, std::vector<std::string>> syringes_;
  std::map<double, std::string> lists_;
  bool listsEndInError_ = false;  // the lists are those before one whose number is not numeric
};

}  // namespace mavCycEd
