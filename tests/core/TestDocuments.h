#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// Catalogues and cycles made of a few words. Texts go into the documents escaped.
namespace mavCycEd::test {

struct CatalogueAtom {
  std::string name;
  std::vector<std::string> definitions;
};

/// What a catalogue holds; `objects` and `classes` are XML, the rest are texts.
struct Catalogue {
  std::vector<CatalogueAtom> atoms;
  std::string classes;
  std::string objects;
  std::vector<std::pair<std::string, std::string>> lists;  ///< number and entries
};

struct CycleLine {
  std::string name;
  std::vector<std::pair<std::string, std::string>> parameters;
};

struct CycleOf {
  std::vector<CycleLine> lines;
  std::vector<std::string> variables;
  std::string description = "//";
  std::string version = "03";  ///< empty: no VERSION element
  std::string attributes;      ///< of CYCLE, with a blank in front
};

std::string escaped(std::string_view text);
std::string element(std::string_view name, std::string_view content);

std::string xmlOf(const Catalogue& catalogue);
std::string xmlOf(const CycleOf& cycle);

/// A catalogue of atoms without parameters.
std::string catalogueOf(const std::vector<std::string>& names);
/// A catalogue whose one atom "ATOM" has these definitions.
std::string catalogueWith(const std::vector<std::string>& definitions);
/// A cycle of atom lines without parameters.
std::string cycleOf(const std::vector<std::string>& names);

}  // namespace mavCycEd::test
