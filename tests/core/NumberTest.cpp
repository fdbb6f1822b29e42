#include "text/Number.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <locale>
#include <string>

#include "platform/RunTimeError.h"

namespace mavCycEd::text {
namespace {

int errorOfIntegerValue(std::string_view text) {
  try {
    integerValue(text);
  } catch (const RunTimeError& error) {
    return error.number();
  }
  return 0;
}

TEST(Number, NumbersMayHaveSignPointExponentAndBlanksAround) {
  for (const char* number : {"1", "+5", "-5", ".5", "-.5", "5.", "00", "1.25", "1e3", "1E3", "1e+3", "1E-3", ".5e1",
                             "5.e1", "  1", "1  ", "\t1\r\n", "\n1"}) {
    EXPECT_TRUE(isNumeric(number)) << number;
  }
}

TEST(Number, TextsThatAreNotWhollyOneNumberAreNotNumeric) {
  for (const char* text : {"",    " ",   ".",   "+",     "-",    "e3",    "1e",       "1e+",  "1e-", ".e1", "0x10",
                           "0b1", "1f",  "nan", "NaN",   "inf",  "-inf",  "infinity", "1,5",  "1 2", "1a",  "a1",
                           "--1", "+-1", "- 1", "1.2.3", "1..2", "1e1.5", "1'000",    "1_0",  "٣",   "½",   "1\u00A0",
                           "$1",  "(1)", "1%",  "1d3",   "&H10", "1e3e3", "True",     "Empty"}) {
    EXPECT_FALSE(isNumeric(text)) << text;
  }
}

TEST(Number, ANumberBeyondADoubleHasTheHighestValueOfOne) {
  constexpr double highest = std::numeric_limits<double>::max();
  for (const std::string& number :
       {std::string("1e400"), std::string("1e99999999999999999999"), std::string(400, '9')}) {
    EXPECT_TRUE(isNumeric(number)) << number;
    EXPECT_EQ(numericValue(number), highest) << number;
    EXPECT_EQ(numericValue("-" + number + " ml"), -highest) << number;
  }
}

TEST(Number, ANumberTooSmallForADoubleIsZero) {
  EXPECT_TRUE(isNumeric("1e-400"));
  EXPECT_EQ(numericValue("1e-400"), 0);
  EXPECT_EQ(numericValue("-1e-400"), 0);
  EXPECT_TRUE(isNumeric("1e-99999999999999999999"));
  EXPECT_EQ(numericValue("1e-99999999999999999999"), 0);
  EXPECT_TRUE(isNumeric("0e99999999999999999999")) << "nothing, however often";
}

TEST(Number, TheValueIsTheNumberThatTheTextBeginsWith) {
  EXPECT_EQ(numericValue("5 ml"), 5);
  EXPECT_EQ(numericValue("  7x"), 7);
  EXPECT_EQ(numericValue("\r\n\t 3"), 3);
  EXPECT_EQ(numericValue("+5"), 5);
  EXPECT_EQ(numericValue("-5.25;"), -5.25);
  EXPECT_EQ(numericValue(".5"), 0.5);
  EXPECT_EQ(numericValue("5."), 5);
  EXPECT_EQ(numericValue("1e3"), 1000);
  EXPECT_EQ(numericValue("1E-2"), 0.01);
  EXPECT_EQ(numericValue("1.2.3"), 1.2);
  EXPECT_EQ(numericValue("1,5"), 1);
  EXPECT_EQ(numericValue(std::string(400, '0') + "1"), 1);
}

TEST(Number, AnExponentWithoutDigitsIsNoPartOfTheNumber) {
  EXPECT_EQ(numericValue("1e"), 1);
  EXPECT_EQ(numericValue("1e+"), 1);
  EXPECT_EQ(numericValue("2ex"), 2);
  EXPECT_EQ(numericValue("2e-x"), 2);
}

TEST(Number, WithoutANumberInFrontTheValueIsZero) {
  for (const char* text :
       {"", " ", "abc", "-", "+", ".", "- 5", "--5", "+-5", ".e3", "e3", "nan", "inf", "-inf", "x5"}) {
    EXPECT_EQ(numericValue(text), 0) << text;
  }
  EXPECT_EQ(numericValue("0x10"), 0) << "the 0 in front of the x";
}

TEST(Number, WholeNumbersAreRoundedHalvesToTheEvenNeighbour) {
  EXPECT_EQ(integerValue("7"), 7);
  EXPECT_EQ(integerValue("2.4"), 2);
  EXPECT_EQ(integerValue("2.5"), 2);
  EXPECT_EQ(integerValue("3.5"), 4);
  EXPECT_EQ(integerValue("-2.5"), -2);
  EXPECT_EQ(integerValue("-3.5"), -4);
  EXPECT_EQ(integerValue("2.51"), 3);
  EXPECT_EQ(integerValue("12 rows"), 12);
  EXPECT_EQ(integerValue("rows"), 0);
  EXPECT_EQ(integerValue(""), 0);
}

TEST(Number, WholeNumbersBeyond32BitsAreAnOverflow) {
  EXPECT_EQ(integerValue("2147483647"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(integerValue("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(integerValue("2147483647.4"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(integerValue("-2147483648.5"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(errorOfIntegerValue("2147483648"), 6);
  EXPECT_EQ(errorOfIntegerValue("2147483647.5"), 6);
  EXPECT_EQ(errorOfIntegerValue("-2147483649"), 6);
  EXPECT_EQ(errorOfIntegerValue("1e300"), 6);
}

TEST(Number, NumbersAreWrittenWithoutTrailingZeros) {
  EXPECT_EQ(fromNumber(0), "0");
  EXPECT_EQ(fromNumber(-0.0), "0");
  EXPECT_EQ(fromNumber(10), "10");
  EXPECT_EQ(fromNumber(-10), "-10");
  EXPECT_EQ(fromNumber(0.1), "0.1");
  EXPECT_EQ(fromNumber(-1.5), "-1.5");
  EXPECT_EQ(fromNumber(100000), "100000");
  EXPECT_EQ(fromNumber(1234567.25), "1234567.25");
}

TEST(Number, NumbersAreWrittenWithAtMost15Digits) {
  EXPECT_EQ(fromNumber(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(fromNumber(2.0 / 3), "0.666666666666667");
  EXPECT_EQ(fromNumber(100.0 / 3), "33.3333333333333");
  EXPECT_EQ(fromNumber(0.1 + 0.2), "0.3");
  EXPECT_EQ(fromNumber(123456789012345), "123456789012345");
  EXPECT_EQ(fromNumber(0.123456789012345), "0.123456789012345");
}

TEST(Number, VeryLargeAndVerySmallNumbersHaveAnExponent) {
  EXPECT_EQ(fromNumber(1e14), "100000000000000");
  EXPECT_EQ(fromNumber(1e15), "1E+15");
  EXPECT_EQ(fromNumber(999999999999999.9), "1E+15");
  EXPECT_EQ(fromNumber(1e20), "1E+20");
  EXPECT_EQ(fromNumber(-1.25e100), "-1.25E+100");
  EXPECT_EQ(fromNumber(0.0001), "0.0001");
  EXPECT_EQ(fromNumber(0.00001), "0.00001");
  EXPECT_EQ(fromNumber(1e-15), "0.000000000000001");
  EXPECT_EQ(fromNumber(1e-16), "1E-16");
  EXPECT_EQ(fromNumber(1.23456789012345e-5), "1.23456789012345E-05");
  EXPECT_EQ(fromNumber(1e-300), "1E-300");
}

TEST(Number, PositionsHaveAtLeastTwoDigits) {
  EXPECT_EQ(withTwoDigits(0), "00");
  EXPECT_EQ(withTwoDigits(1), "01");
  EXPECT_EQ(withTwoDigits(10), "10");
  EXPECT_EQ(withTwoDigits(100), "100");
  EXPECT_EQ(withTwoDigits(100000), "100000");
}

/// Decimal comma and a point between thousands, as in much of Europe.
class CommaDecimals : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

/// A process with a decimal comma: in the C library when the machine has such a locale, in the streams always.
class NumberUnderADecimalComma : public ::testing::Test {
 protected:
  NumberUnderADecimalComma() : streams_(std::locale::global(std::locale(std::locale::classic(), new CommaDecimals))) {
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "de-DE"}) {
      if (std::setlocale(LC_ALL, name) != nullptr) break;
    }
  }
  ~NumberUnderADecimalComma() override {
    std::locale::global(streams_);
    std::setlocale(LC_ALL, "C");
  }

 private:
  std::locale streams_;
};

TEST_F(NumberUnderADecimalComma, ThePointIsTheDecimalPoint) {
  EXPECT_TRUE(isNumeric("1.5"));
  EXPECT_FALSE(isNumeric("1,5"));
  EXPECT_FALSE(isNumeric("1.000,5"));
  EXPECT_EQ(numericValue("1.5"), 1.5);
  EXPECT_EQ(numericValue("1,5"), 1);
  EXPECT_EQ(numericValue("1.500"), 1.5);
  EXPECT_EQ(integerValue("7.6"), 8);
}

TEST_F(NumberUnderADecimalComma, NumbersAreWrittenWithThePointAndWithoutSeparators) {
  EXPECT_EQ(fromNumber(1.5), "1.5");
  EXPECT_EQ(fromNumber(1234567.5), "1234567.5");
  EXPECT_EQ(fromNumber(1.5e20), "1.5E+20");
  EXPECT_EQ(withTwoDigits(1000), "1000");
}

}  // namespace
}  // namespace mavCycEd::text
