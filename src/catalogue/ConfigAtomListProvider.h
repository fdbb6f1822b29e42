#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "catalogue/AtomListProvider.h"
#include "catalogue/modCycleHelper.h"

namespace mavCycEd {

/// The control's own atom list provider. It draws on the configuration document:
///
/// - `Config/Units/UNIT` with `UNITNAME` (as in the catalogue's definitions), `UNITTEXT` (what is shown) and `FACTOR`;
///   a unit that is not there is shown by its own name, with the factor 1.
/// - `Config/FurtherAtoms/ATOM` with `AtomName` and any number of `Param` definitions, in the catalogue's form. A name
///   that the catalogue has too is not offered twice; its definitions follow the catalogue's own.
/// - An attribute `Hidden` of "1" on such an ATOM, or on an object of the catalogue, hides it.
///
/// Whether the mark is ignored is settled when the further atom names are asked for, which every load does once; it
/// then holds for all questions until the next load.
///
/// "REPEAT" (with the number of repetitions) and "END" are offered when neither the catalogue nor the configuration
/// names them.
class ConfigAtomListProvider : public AtomListProvider {
 public:
  /// The catalogue reader outlives the provider.
  explicit ConfigAtomListProvider(modCycleHelper& catalogue) : catalogue_(catalogue) {}

  void setIgnoreHidden(bool ignore) override { ignoreHiddenNext_ = ignore; }
  std::vector<std::string> furtherAtomNames() override;
  UnitOfMeasure lookUpUnit(std::string_view unitName) override;
  bool isObjectHidden(const platform::XmlNode& object) override;
  std::string furtherParameters(std::string_view atomName) override;

 private:
  bool isHidden(const platform::XmlNode& element) const;

  modCycleHelper& catalogue_;
  bool ignoreHiddenNext_ = false;  // from the next load on
  bool ignoreHidden_ = false;
};

}  // namespace mavCycEd
