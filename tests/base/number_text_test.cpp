// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/number_text.h"

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>
#include <locale>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "runs/run_record.h"

namespace kaldo {
namespace {

using namespace std::string_literals;

/// While it lives, the program runs under a language that writes 1.234,5.
class CommaLanguage {
 public:
  CommaLanguage()
      : earlier_(std::locale::global(std::locale(std::locale::classic(), new CommaFacet))),
        earlier_c_(std::setlocale(LC_ALL, nullptr)) {
    for (const char* const name : {"de_DE.UTF-8", "fr_FR.UTF-8", "pt_BR.UTF-8", "ru_RU.UTF-8"}) {
      if (std::setlocale(LC_ALL, name) != nullptr) {
        break;
      }
    }
  }
  CommaLanguage(const CommaLanguage&) = delete;
  CommaLanguage& operator=(const CommaLanguage&) = delete;
  CommaLanguage(CommaLanguage&&) = delete;
  CommaLanguage& operator=(CommaLanguage&&) = delete;
  ~CommaLanguage() {
    std::locale::global(earlier_);
    std::setlocale(LC_ALL, earlier_c_.c_str());
  }

 private:
  class CommaFacet : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
  };

  std::locale earlier_;
  std::string earlier_c_;
};

std::string Printf(double value) {
  std::array<char, 64> text{};
  (void)std::snprintf(text.data(), text.size(), "%g", value);
  return text.data();
}

TEST(FormatDouble, WritesSixDigitsAtMost) {
  EXPECT_EQ(FormatDouble(0.25), "0.25");
  EXPECT_EQ(FormatDouble(2.0 / 3.0), "0.666667");
  EXPECT_EQ(FormatDouble(3), "3");
  EXPECT_EQ(FormatDouble(0.00001), "1e-05");
  EXPECT_EQ(FormatDouble(999999.5), "1e+06");
  EXPECT_EQ(FormatDouble(-std::numeric_limits<double>::quiet_NaN()), "nan");
}

RC_GTEST_PROP(FormatDouble, AgreesWithPrintf, (std::uint64_t bits, double ordinary)) {
  const auto any = std::bit_cast<double>(bits);
  RC_ASSERT(std::isnan(any) || FormatDouble(any) == Printf(any));
  RC_ASSERT(FormatDouble(ordinary) == Printf(ordinary));
}

TEST(FormatDouble, HasNoLanguage) {
  const CommaLanguage language;
  EXPECT_EQ(FormatDouble(0.25), "0.25");
  EXPECT_EQ(FormatDouble(12345.5), "12345.5");
  EXPECT_EQ(ParseDouble("0.25"), 0.25);
  EXPECT_EQ(ParseDouble("0,25"), std::nullopt);
  EXPECT_EQ(ParseInteger("1.234"), std::nullopt);
  RunRecord record;
  record.threads = 12345;
  record.settings.emplace_back("epsilon", 0.25);
  const std::string text = FormatRunRecord(record);
  EXPECT_NE(text.find("\nthreads = 12345\n"), std::string::npos) << text;
  EXPECT_NE(text.find("\nepsilon = 0.25\n"), std::string::npos) << text;
}

TEST(ParseInteger, TakesTheWholeTextOrNothing) {
  EXPECT_EQ(ParseInteger("010"), 10);
  EXPECT_EQ(ParseInteger("-0"), 0);
  EXPECT_EQ(ParseInteger("2147483647"), 2147483647);
  EXPECT_EQ(ParseInteger("-2147483648"), std::numeric_limits<std::int32_t>::min());
  for (const std::string& text : {""s, " 1"s, "1 "s, "1.0"s, "1e3"s, "0x10"s, "2147483648"s,
                                  "-2147483649"s, "--1"s, "-"s, "1,5"s, "1\0"s, "\xef\xbc\x91"s}) {
    EXPECT_EQ(ParseInteger(text), std::nullopt) << testing::PrintToString(text);
  }
}

TEST(ParseDouble, TakesTheWholeTextOrNothing) {
  EXPECT_EQ(ParseDouble("0.008"), 0.008);
  EXPECT_EQ(ParseDouble("-1e-3"), -0.001);
  EXPECT_EQ(ParseDouble("1"), 1.0);
  EXPECT_TRUE(std::isnan(ParseDouble("nan").value_or(0)));
  for (const std::string& text : {""s, " 0.5"s, "0.5 "s, "0,5"s, "1e999"s, "0x1p3"s, "half"s,
                                  "0.5f"s, "0.5\0"s, "."s, "1e"s, "5%"s}) {
    EXPECT_EQ(ParseDouble(text), std::nullopt) << testing::PrintToString(text);
  }
}

RC_GTEST_PROP(ParseInteger, ReadsBackEveryNumber, (std::int32_t value)) {
  RC_ASSERT(ParseInteger(std::to_string(value)) == value);
}

}  // namespace
}  // namespace kaldo
