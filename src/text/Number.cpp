#include "text/Number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>

#include "platform/RunTimeError.h"

namespace mavCycEd::text {
namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view digits = "0123456789";

std::string_view withoutLeadingBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(blanks);
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

// Whether a number without sign that does not fit a double is too large, not too small: with the exponent counted in,
// its first digit that is not 0 stands before the decimal point.
bool isTooLarge(std::string_view number) {
  const std::size_t e = std::min(number.find_first_of("eE"), number.size());
  const std::string_view mantissa = number.substr(0, e);
  const auto point = static_cast<double>(std::min(mantissa.find('.'), mantissa.size()));
  const auto firstDigit = static_cast<double>(mantissa.find_first_of("123456789"));
  double exponent = 0;
  if (e < number.size()) {
    std::string_view written = number.substr(e + 1);
    const bool negative = written.starts_with('-');
    if (negative || written.starts_with('+')) written.remove_prefix(1);
    std::from_chars(written.data(), written.data() + written.size(), exponent);
    if (negative) exponent = -exponent;
  }
  return point + exponent > firstDigit;
}

struct Scanned {
  double value;
  std::size_t size;  // what it takes of the text
};

// The number at the start of the text, leading blanks included in its size.
std::optional<Scanned> scan(std::string_view text) {
  std::string_view rest = withoutLeadingBlanks(text);
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);
  const std::string_view unpointed = rest.starts_with('.') ? rest.substr(1) : rest;
  if (unpointed.empty() || digits.find(unpointed.front()) == std::string_view::npos) return std::nullopt;
  double value = 0;
  const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value, std::chars_format::general);
  const auto numberSize = static_cast<std::size_t>(end - rest.data());
  if (error == std::errc::result_out_of_range) {
    value = isTooLarge(rest.substr(0, numberSize)) ? std::numeric_limits<double>::max() : 0;
  } else if (error != std::errc()) {
    return std::nullopt;
  }
  const auto before = static_cast<std::size_t>(rest.data() - text.data());
  return Scanned{negative ? -value : value, before + numberSize};
}

}  // namespace

bool isNumeric(std::string_view text) {
  const std::optional<Scanned> number = scan(text);
  return number && withoutLeadingBlanks(text.substr(number->size)).empty();
}

double numericValue(std::string_view text) {
  const std::optional<Scanned> number = scan(text);
  return number ? number->value : 0;
}

std::int32_t integerValue(std::string_view text) {
  const double whole = std::nearbyint(numericValue(text));
  if (whole < std::numeric_limits<std::int32_t>::min() || whole > std::numeric_limits<std::int32_t>::max()) {
    throw RunTimeError(ErrorNumber::Overflow);
  }
  return static_cast<std::int32_t>(whole);
}

std::string fromNumber(double number) {
  if (number == 0) return "0";
  constexpr int significantDigits = 15;
  std::array<char, 40> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(number),
                                     std::chars_format::scientific, significantDigits - 1);
  const std::string_view scientific(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
  const std::size_t e = scientific.find('e');
  if (e == std::string_view::npos) return std::string(scientific);  // not a finite number

  std::string mantissa{scientific.front()};
  mantissa += scientific.substr(2, e - 2);
  mantissa.erase(mantissa.find_last_not_of('0') + 1);
  int exponent = 0;
  const std::size_t exponentAt = e + (scientific[e + 1] == '+' ? 2 : 1);
  std::from_chars(scientific.data() + exponentAt, scientific.data() + scientific.size(), exponent);

  const auto length = static_cast<int>(mantissa.size());
  std::string result = number < 0 ? "-" : "";
  if (exponent >= significantDigits || (exponent < -4 && length - exponent - 1 > significantDigits)) {
    result += mantissa.substr(0, 1);
    if (length > 1) result += '.' + mantissa.substr(1);
    result += exponent < 0 ? "E-" : "E+";
    return result + withTwoDigits(std::abs(exponent));
  }
  if (exponent < 0) return result + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + mantissa;
  const auto wholeDigits = static_cast<std::size_t>(exponent) + 1;
  if (mantissa.size() <= wholeDigits) return result + mantissa + std::string(wholeDigits - mantissa.size(), '0');
  return result + mantissa.substr(0, wholeDigits) + '.' + mantissa.substr(wholeDigits);
}

std::string withTwoDigits(int number) {
  std::string text = std::to_string(number);
  if (text.size() < 2) text.insert(text.begin(), '0');
  return text;
}

}  // namespace mavCycEd::text
