#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "cycle/CycleText.h"
#include "text/CaseFold.h"
#include "text/LineEnds.h"
#include "text/Number.h"
#include "text/Strings.h"
#include "text/Utf8.h"

namespace mavCycEd::text {
namespace {

/// A code point that UTF-8 encodes: no surrogate.
rc::Gen<char32_t> codePoints() {
  return rc::gen::map(
      rc::gen::oneOf(rc::gen::inRange<std::uint32_t>(0, 0x80), rc::gen::inRange<std::uint32_t>(0x80, 0x800),
                     rc::gen::inRange<std::uint32_t>(0x800, 0xD800), rc::gen::inRange<std::uint32_t>(0xE000, 0x10000),
                     rc::gen::inRange<std::uint32_t>(0x10000, 0x110000)),
      [](std::uint32_t number) { return static_cast<char32_t>(number); });
}

/// UTF-8 by the book, written down once more.
std::string encoded(char32_t character) {
  const auto byte = [](char32_t value) { return static_cast<char>(static_cast<unsigned char>(value)); };
  if (character < 0x80) return {byte(character)};
  if (character < 0x800) return {byte(0xC0 | (character >> 6)), byte(0x80 | (character & 0x3F))};
  if (character < 0x10000) {
    return {byte(0xE0 | (character >> 12)), byte(0x80 | ((character >> 6) & 0x3F)), byte(0x80 | (character & 0x3F))};
  }
  return {byte(0xF0 | (character >> 18)), byte(0x80 | ((character >> 12) & 0x3F)),
          byte(0x80 | ((character >> 6) & 0x3F)), byte(0x80 | (character & 0x3F))};
}

std::string encoded(const std::vector<char32_t>& characters) {
  std::string result;
  for (const char32_t character : characters) result += encoded(character);
  return result;
}

/// Texts of pieces that matter to entities and line ends.
rc::Gen<std::string> trickyTexts() {
  const std::vector<std::string> pieces = {"&",      ";",      "<",      ">",      "\"", "'",    "lt",   "amp",
                                           "gt",     "quot",   "apos",   "a",      "/",  "\r",   "\n",   "\r\n",
                                           "\u2028", "\u2029", "\uFDD0", "\uFDD1", "ä",  "\x80", "\xEF", ","};
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(pieces)),
                      [](const std::vector<std::string>& chosen) { return join(chosen, ""); });
}

RC_GTEST_PROP(Utf8Property, EncodedCodePointsAreUtf8, ()) {
  const auto characters = *rc::gen::container<std::vector<char32_t>>(codePoints());
  const std::string bytes = encoded(characters);
  RC_ASSERT(isUtf8(bytes));
  RC_ASSERT(characterCount(bytes) == characters.size());
  std::string appended;
  for (const char32_t character : characters) append(appended, character);
  RC_ASSERT(appended == bytes);
}

RC_GTEST_PROP(Utf8Property, CodePointsAreReadBackOneByOne, ()) {
  const auto characters = *rc::gen::container<std::vector<char32_t>>(codePoints());
  const std::string bytes = encoded(characters);
  std::string_view rest = bytes;
  for (const char32_t character : characters) {
    RC_ASSERT(firstCharacter(rest) == character);
    rest.remove_prefix(firstCharacterSize(rest));
  }
  RC_ASSERT(rest.empty());
}

RC_GTEST_PROP(Utf8Property, ACodePointCutShortOrASurrogateIsNoUtf8, ()) {
  const std::string before = encoded(*rc::gen::container<std::vector<char32_t>>(codePoints()));
  const std::string behind = encoded(*rc::gen::container<std::vector<char32_t>>(codePoints()));
  std::string broken = encoded(static_cast<char32_t>(*rc::gen::inRange<std::uint32_t>(0xD800, 0xE000)));
  if (*rc::gen::arbitrary<bool>()) {
    broken = encoded(static_cast<char32_t>(*rc::gen::inRange<std::uint32_t>(0x80, 0xD800)));
    broken.pop_back();
  }
  RC_ASSERT(!isUtf8(before + broken + behind));
}

RC_GTEST_PROP(Utf8Property, BytesAreUtf8ExactlyWhenTheirCharactersEncodeThem, (const std::string& bytes)) {
  std::string again;
  std::size_t count = 0;
  for (std::string_view rest = bytes; !rest.empty(); rest.remove_prefix(firstCharacterSize(rest))) {
    again += encoded(firstCharacter(rest));
    ++count;
  }
  RC_ASSERT(isUtf8(bytes) == (again == bytes));
  RC_ASSERT(characterCount(bytes) == count);
  RC_ASSERT(hasMoreCharactersThan(bytes, count) == false);
  RC_ASSERT(count == 0 || hasMoreCharactersThan(bytes, count - 1));
}

RC_GTEST_PROP(Utf8Property, CuttingTheLastCharacterTakesOneAway, (const std::string& bytes)) {
  RC_PRE(!bytes.empty());
  const std::string text = *rc::gen::element(bytes, encoded(*rc::gen::container<std::vector<char32_t>>(codePoints())));
  const std::string_view cut = withoutLastCharacter(text);
  RC_ASSERT(text.starts_with(cut));
  RC_ASSERT(characterCount(cut) + (text.empty() ? 0 : 1) == characterCount(text));
}

RC_GTEST_PROP(EntityProperty, ReverseIsTheInverseOfConvert, ()) {
  const std::string text = *trickyTexts();
  const std::string converted = ConvertDescription(text);
  RC_ASSERT(ReverseDescription(converted) == text);
  RC_ASSERT(converted.find_first_of("<>\"'") == std::string::npos);
}

RC_GTEST_PROP(LineEndProperty, LineEndsAreNormalisedOnce, ()) {
  const std::string text = *trickyTexts();
  const std::string crLfText = toCrLf(text);
  RC_ASSERT(toCrLf(crLfText) == crLfText);
  RC_ASSERT(toLf(toLf(text)) == toLf(text));
  RC_ASSERT(toLf(text).find('\r') == std::string::npos);
  RC_ASSERT(toCrLf(toLf(text)) == crLfText);
  RC_ASSERT(toCrLf(toLf(crLfText)) == crLfText);
}

RC_GTEST_PROP(StringProperty, JoiningThePiecesGivesTheText, ()) {
  const std::string text = *trickyTexts();
  for (const std::string separator : {";", "\r\n", "/", "amp"}) {
    std::vector<std::string> pieces;
    for (const std::string_view piece : split(text, separator)) pieces.emplace_back(piece);
    RC_ASSERT(join(pieces, separator) == text);
    RC_ASSERT(join(pieces, "|") == replaceAll(text, separator, "|"));
  }
}

RC_GTEST_PROP(StringProperty, SplittingJoinedTextsGivesTheTexts, ()) {
  const auto letters = rc::gen::container<std::string>(rc::gen::element('a', 'b', ' ', '\r'));
  const auto texts = *rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(letters));
  RC_PRE(texts.size() > 1 || !texts.front().empty());
  const std::string joined = join(texts, ";");
  std::vector<std::string> pieces;
  for (const std::string_view piece : split(joined, ';')) pieces.emplace_back(piece);
  RC_ASSERT(pieces == texts);
}

RC_GTEST_PROP(NumberProperty, AWrittenNumberIsReadBackTo15Digits, ()) {
  const double mantissa = *rc::gen::map(rc::gen::arbitrary<std::int64_t>(), [](std::int64_t digits) {
    return static_cast<double>(digits % 1000000000000000);
  });
  const double number = mantissa * std::pow(10.0, *rc::gen::inRange(-40, 40));
  const std::string written = fromNumber(number);
  RC_ASSERT(isNumeric(written));
  const double readBack = numericValue(written);
  RC_ASSERT(std::abs(readBack - number) <= std::abs(number) * 5.1e-15);
  RC_ASSERT(fromNumber(readBack) == written);
  char expected[32];
  std::snprintf(expected, sizeof expected, "%.15g", number);
  RC_ASSERT(readBack == std::stod(expected));
}

RC_GTEST_PROP(NumberProperty, ANumberOf15DigitsIsWrittenAsItIs, ()) {
  const auto whole = *rc::gen::inRange<std::int64_t>(-999999999, 999999999);
  RC_ASSERT(fromNumber(static_cast<double>(whole)) == std::to_string(whole));
  const auto hundredths = *rc::gen::inRange<std::int64_t>(1, 99);
  std::string text = "0." + std::string(hundredths < 10 ? "0" : "") + std::to_string(hundredths);
  if (text.back() == '0') text.pop_back();
  RC_ASSERT(fromNumber(static_cast<double>(hundredths) / 100) == text);
}

RC_GTEST_PROP(NumberProperty, BlanksAroundANumberDoNotMatter, ()) {
  const std::string number =
      fromNumber(*rc::gen::map(rc::gen::inRange(-100000, 100000), [](int n) { return n / 64.0; }));
  const std::string blanks = *rc::gen::container<std::string>(rc::gen::element(' ', '\t', '\r', '\n'));
  RC_ASSERT(isNumeric(blanks + number + blanks));
  RC_ASSERT(numericValue(blanks + number + blanks) == numericValue(number));
  RC_ASSERT(!isNumeric(number + "x"));
  RC_ASSERT(numericValue(number + "x") == numericValue(number));
}

RC_GTEST_PROP(CaseProperty, FoldedTextsAreComparedAsTexts, ()) {
  const std::string a = encoded(*rc::gen::container<std::vector<char32_t>>(codePoints()));
  const std::string b =
      *rc::gen::element(a, foldCase(a), encoded(*rc::gen::container<std::vector<char32_t>>(codePoints())));
  RC_ASSERT(foldCase(foldCase(a)) == foldCase(a));
  RC_ASSERT(equalsIgnoringCase(a, b) == (foldCase(a) == foldCase(b)));
  RC_ASSERT(isUtf8(foldCase(a)));
  RC_ASSERT(characterCount(foldCase(a)) == characterCount(a));
}

}  // namespace
}  // namespace mavCycEd::text
