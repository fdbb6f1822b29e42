#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace mavCycEd {

/// One parameter of an atom as the catalogue defines it: fields separated by ";".
///
/// | field | number            | object               | list                                  |
/// |-------|-------------------|----------------------|---------------------------------------|
/// | 0     | name with marks   | name with marks      | name with marks, "#" among them       |
/// | 1     | lower limit       | first object class   | -                                     |
/// | 2     | upper limit       | further classes ...  | -                                     |
/// | 3     | default           | ...                  | default: the item's index, from 0     |
/// | 4     | step              | ...                  | -                                     |
/// | last  | unit name         | unit name            | list number                           |
class ParameterDefinition {
 public:
  enum class Kind { Number, Object, List };

  /// The definition must outlive this object. An empty one is run-time error 9: it has no fields.
  explicit ParameterDefinition(std::string_view definition);

  /// The name without the marks "#", "?" and "!" and without spaces at both ends.
  std::string displayName() const;
  /// A field's text; empty when there is no such field.
  std::string_view field(std::size_t number) const { return number < fields_.size() ? fields_[number] : ""; }
  std::string_view lastField() const { return fields_.back(); }
  /// The definition behind its first ";".
  std::string_view classList() const;
  Kind kind() const;

 private:
  std::string_view definition_;
  std::vector<std::string_view> fields_;
};

}  // namespace mavCycEd
