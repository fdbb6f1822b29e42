#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/XmlNode.h"

namespace mavCycEd {

/// What the unit lookup answers for a unit name of the catalogue.
struct UnitOfMeasure {
  std::string text;         ///< shown in parentheses behind a parameter's name; "None" or empty: nothing is shown
  std::int32_t factor = 1;  ///< what the catalogue's limits, defaults and steps are divided by; 0 counts as 1
};

/// Answers the editor's questions that the catalogue leaves to the instrument's suite. The control makes one of its
/// own that draws on the configuration text (ConfigAtomListProvider); a host may supply another. An exception that a
/// provider throws ends the procedure that asked, and reaches the host as CycleEditorError.
class AtomListProvider {
 public:
  virtual ~AtomListProvider() = default;

  /// True: what is marked as hidden is shown all the same. It takes effect at the next SetXMLStrings, which begins with
  /// the question for the further atom names; until then all answers stay as they are.
  virtual void setIgnoreHidden(bool ignore) = 0;

  /// Names that the atom picker offers behind the catalogue's atoms; empty ones are left out.
  virtual std::vector<std::string> furtherAtomNames() = 0;
  /// The unit of a parameter definition; `unitName` is the cleaned last field of the definition.
  virtual UnitOfMeasure lookUpUnit(std::string_view unitName) = 0;
  /// Whether an object of the catalogue (a child of LATESTKAM/OBJECTS) is kept out of the pick lists.
  virtual bool isObjectHidden(const platform::XmlNode& object) = 0;
  /// Parameter definitions that follow the catalogue's own for this atom, separated by "|"; empty for none.
  virtual std::string furtherParameters(std::string_view atomName) = 0;
};

}  // namespace mavCycEd
