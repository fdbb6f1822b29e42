#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mavCycEd {

/// One parameter in a parameter text: fields separated by ";", the first one its name, the others its values. It points
/// into the parameter text.
class ParameterSegment {
 public:
  explicit ParameterSegment(std::string_view text) : text_(text), separator_(text.find(';')) {}

  std::string_view text() const { return text_; }
  /// Whether there is a value at all, if only an empty one.
  bool hasValue() const { return separator_ != std::string_view::npos; }
  /// What stands before the first ";"; the whole segment where there is none.
  std::string_view name() const { return text_.substr(0, separator_); }
  /// What stands behind the first ";", further ones included; the whole segment where there is none, since a parameter
  /// without a name is just its value.
  std::string_view value() const { return hasValue() ? text_.substr(separator_ + 1) : text_; }
  /// All fields; an empty segment has none.
  std::vector<std::string_view> fields() const;
  /// Calls visit(value) for each value field in order until it returns false; whether it never did.
  template <typename Visit>
  bool forEachValue(const Visit& visit) const;

 private:
  std::string_view text_;
  std::size_t separator_;
};

/// The parameters of an atom line as one text: a segment for each, name, ";" and value, with a carriage return between
/// two segments ("Amount(ul);100\rSpeed;Fast"). Nothing is escaped: a name or value holds neither ";" nor a carriage
/// return. This class alone knows how the text is put together and taken apart.
class ParameterText {
 public:
  ParameterText() = default;
  explicit ParameterText(std::string text) : text_(std::move(text)) {}

  const std::string& text() const { return text_; }
  bool empty() const { return text_.empty(); }

  /// The segments in order; an empty text has none. They point into this object.
  std::vector<ParameterSegment> segments() const;
  /// Calls visit(segment) for each of them, without making a list.
  template <typename Visit>
  void forEachSegment(const Visit& visit) const;

  /// Adds a parameter as a cycle document holds it. When the last one has been added, endAppending() is called.
  void append(std::string_view name, std::string_view value);
  /// A first parameter without a name becomes just its value.
  void endAppending();
  /// No parameter is left; the room for them stays.
  void clear() { text_.clear(); }

  /// The text of parameters given by name and value, in order. A parameter without a name is just its value, wherever
  /// it stands.
  static ParameterText of(const std::vector<std::pair<std::string, std::string>>& parameters);

  friend bool operator==(const ParameterText&, const ParameterText&) = default;

 private:
  std::string text_;
};

template <typename Visit>
bool ParameterSegment::forEachValue(const Visit& visit) const {
  for (std::size_t separator = separator_; separator != std::string_view::npos;) {
    const std::size_t begin = separator + 1;
    separator = text_.find(';', begin);
    if (!visit(text_.substr(begin, separator == std::string_view::npos ? separator : separator - begin))) return false;
  }
  return true;
}

template <typename Visit>
void ParameterText::forEachSegment(const Visit& visit) const {
  if (text_.empty()) return;
  const std::string_view text = text_;
  for (std::size_t begin = 0;;) {
    const std::size_t end = text.find('\r', begin);
    visit(ParameterSegment(text.substr(begin, end == std::string_view::npos ? end : end - begin)));
    if (end == std::string_view::npos) return;
    begin = end + 1;
  }
}

}  // namespace mavCycEd
