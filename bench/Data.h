#pragma once

#include <string>

namespace mavCycEd::bench {

/// Texts of the sample instrument, and longer ones made of them.
struct Instrument {
  std::string catalogue;
  std::string configuration;
};

/// The sample instrument.
const Instrument& instrument();

/// A version 03 cycle of so many atom lines, a multiple of 1,000: the long sample cycle over and over.
const std::string& cycleOf(int lines);

/// A macro text of so many atom lines.
std::string macroOf(int lines);

/// A catalogue of so many atoms and objects. The atom "PICKED" is in the middle; its 30 parameters, a third of which
/// are objects of one class of 10 objects, are the same whatever the size.
std::string catalogueOf(int atoms, int objects);

}  // namespace mavCycEd::bench
