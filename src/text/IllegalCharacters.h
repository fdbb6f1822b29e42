#pragma once

#include <string>

/// Characters that would break a cycle document or a variable's definition.
namespace mavCycEd::text {

/// Removes from a variable's name: double quote , ' & + - ; < >. True when there was nothing to remove.
bool filterName(std::string& name);

/// Removes from a parameter value: double quote , ' & ; < >. True when there was nothing to remove.
bool filterValue(std::string& value);

}  // namespace mavCycEd::text
