#pragma once

#include <libxml/xmlerror.h>

#include <string>

namespace mavCycEd::libxml2 {

/// What an error of the parser says to people.
std::string messageOf(const xmlError& error);

}  // namespace mavCycEd::libxml2
