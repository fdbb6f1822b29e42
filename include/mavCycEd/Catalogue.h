#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mavCycEd/Configuration.h"
#include "mavCycEd/ParameterRow.h"
#include "mavCycEd/TextFault.h"
#include "mavCycEd/VariableDefinition.h"

namespace mavCycEd {

/// The atoms of an instrument with their parameters, together with what the laboratory's configuration adds to them. It
/// never changes; copies share what they know, so that they belong to one thread at a time.
class Catalogue {
 public:
  /// What becomes of atoms and objects that the configuration or the catalogue marks as hidden.
  enum class Hidden {
    LeftOut,  ///< they are not offered
    Offered,  ///< the marks are ignored
  };

  /// Reads a catalogue document (XML in UTF-8, root `LATESTKAM`).
  static Reading<Catalogue> read(std::string_view text, const Configuration& configuration = {},
                                 Hidden hidden = Hidden::LeftOut);

  /// The names of the atoms that are offered: the catalogue's in document order, then further ones. "REPEAT" and "END"
  /// are among them unless the configuration hides them.
  const std::vector<std::string>& atomNames() const;
  /// Whether an atom of exactly this name is offered.
  bool offersAtom(std::string_view name) const;

  /// The parameters of an atom; none for an atom that is not offered.
  AtomParameters parametersOf(std::string_view atomName) const;

  /// Checks a value for a parameter of an atom, counted from 0; nothing is wrong with values beyond the last one, nor
  /// with values of atoms that are not offered. Whoever asks often asks parametersOf() once, and checkValue().
  std::optional<ValueFault> checkValue(std::string_view atomName, std::size_t parameter, std::string_view value) const;

  /// What may be picked for a choice: its items, and the variables that fit it. A number's are empty.
  std::vector<std::string> itemsOf(const ParameterRow& row, const std::vector<VariableDefinition>& variables) const;
  /// What else is offered as the value of a row, each once: the default of a number, the names of the row's class, the
  /// variables that fit it, and the laboratory's keywords.
  std::vector<std::string> valuesOfferedFor(const ParameterRow& row,
                                            const std::vector<VariableDefinition>& variables) const;

 private:
  class Rules;
  explicit Catalogue(std::shared_ptr<Rules> rules);

  std::shared_ptr<Rules> rules_;
};

}  // namespace mavCycEd
