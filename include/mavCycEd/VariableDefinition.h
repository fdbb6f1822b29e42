#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mavCycEd {

/// What a definition says of a variable that stands for a number.
struct NumberVariable {
  std::string name;  ///< the first field without its unit part
  std::string unit;  ///< "None" when the parentheses are empty or missing
  std::string defaultValue;
  std::string lower;
  std::string upper;
};

/// Under which name, and to parameters of which unit, a variable is offered.
struct VariableOffer {
  std::string name;  ///< the first field without its unit part
  std::string unit;  ///< "None" for empty parentheses, empty where there are none
};

/// The definition of a cycle variable, which is its entry in the list of variables: fields separated by ";".
///
/// - a number: name, blank, unit in parentheses, ";", default, ";", lower limit, ";", upper limit. A unit "None" is
///   "()": "Volume (ul);10;0;100", "Count ();5;1;10".
/// - an object: name, ";", the object types separated by ";".
///
/// Any text may stand where a definition should; what it lacks then is empty. This class alone knows how the text is
/// put together and taken apart.
class VariableDefinition {
 public:
  VariableDefinition() = default;
  explicit VariableDefinition(std::string text) : text_(std::move(text)) {}

  static VariableDefinition number(const NumberVariable& variable);
  static VariableDefinition object(std::string_view name, const std::vector<std::string>& objectTypes);

  const std::string& text() const { return text_; }
  /// Whether the text is empty or only spaces; such an entry is not written to a cycle document.
  bool isBlank() const;

  /// The name that values refer to the variable by, whatever the case of its letters: what stands before the first ";",
  /// and of that what stands before the first "(", without spaces at both ends.
  std::string name() const;
  /// The same without trimming: what the dialog shows for an object.
  std::string objectName() const;
  /// The fields behind the name: values of a number, or object types.
  std::vector<std::string_view> valueFields() const;
  /// Read as a number's definition. The three values are empty when there are fewer than four fields.
  NumberVariable asNumber() const;
  /// Nothing when there are fewer than two fields, or no name.
  std::optional<VariableOffer> offer() const;

  friend bool operator==(const VariableDefinition&, const VariableDefinition&) = default;

 private:
  std::string text_;
};

}  // namespace mavCycEd
