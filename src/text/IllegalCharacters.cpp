#include "text/IllegalCharacters.h"

#include <string_view>

namespace mavCycEd::text {
namespace {

bool removeAll(std::string& text, std::string_view characters) {
  return std::erase_if(text, [characters](char c) { return characters.find(c) != std::string_view::npos; }) == 0;
}

}  // namespace

bool filterName(std::string& name) { return removeAll(name, "\",'&+-;<>"); }

bool filterValue(std::string& value) { return removeAll(value, "\",'&;<>"); }

}  // namespace mavCycEd::text
