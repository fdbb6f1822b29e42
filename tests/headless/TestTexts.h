#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "mavCycEd/Catalogue.h"
#include "mavCycEd/CycleReading.h"

/// Texts made of a few words, and what is read from them.
namespace mavCycEd::test {

/// A catalogue of one laboratory: WASH (a number), ASPIRATE (an object and two numbers), VALVE (a list), BROKEN (a list
/// without such an item), HOME.
std::string laboratory();
/// Its units ("ul" is shown as "µl", ten counts each), a keyword and a further atom.
std::string laboratoryConfiguration();
/// The laboratory, which must be readable.
Catalogue laboratoryCatalogue();

/// A cycle document of these ATOM elements.
std::string cycleDocument(std::string_view atoms, std::string_view variables = {});
/// An ATOM element.
std::string atom(std::string_view name, const std::vector<std::pair<std::string, std::string>>& parameters);
/// A cycle of these lines: name and parameter text.
Cycle cycleOf(const std::vector<std::pair<std::string, std::string>>& lines);

/// "line:column" of a fault.
std::string placeOf(const TextFault& fault);

/// The content of a file of the samples.
std::string sample(std::string_view name);

}  // namespace mavCycEd::test
