#pragma once

#include <memory>
#include <string>
#include <variant>

namespace mavCycEd {

/// A reference to some object; who holds it knows what it is.
using ObjectReference = std::shared_ptr<void>;

/// A value of any kind: nothing yet, a number, a text, or an object reference.
using Variant = std::variant<std::monostate, double, std::string, ObjectReference>;

/// The value as text: nothing and object references as an empty text, numbers as text::fromNumber() writes them.
std::string textOf(const Variant& value);
/// The number that the value is or begins with; 0 for nothing and for object references.
double numberOf(const Variant& value);
/// Whether the value is a number or a text that is numeric.
bool holdsNumber(const Variant& value);
/// Whether the value is nothing or an empty text.
bool holdsNothing(const Variant& value);

}  // namespace mavCycEd
