// Tests of the locale-independent character functions: every byte, not only samples.

#include "Ascii.h"

#include <clocale>
#include <string>

#include <gtest/gtest.h>

namespace {

const std::string kUpper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
const std::string kLower = "abcdefghijklmnopqrstuvwxyz";
const std::string kDigits = "0123456789";

bool Holds(const std::string &set, char c) { return set.find(c) != std::string::npos; }

} // namespace

TEST(Ascii, EveryByteIsFoldedAndClassified) {
  for (int byte = 0; byte < 256; ++byte) {
    SCOPED_TRACE(byte);
    const char c = static_cast<char>(byte);
    const bool upper = Holds(kUpper, c);
    const bool lower = Holds(kLower, c);
    EXPECT_EQ(AsciiIsAlpha(c), upper || lower);
    EXPECT_EQ(AsciiIsDigit(c), Holds(kDigits, c));
    EXPECT_EQ(AsciiIsAlnum(c), upper || lower || Holds(kDigits, c));
    EXPECT_EQ(AsciiToLower(c), upper ? kLower[kUpper.find(c)] : c);
    EXPECT_EQ(AsciiToUpper(c), lower ? kUpper[kLower.find(c)] : c);
  }
}

TEST(Ascii, ComparesWithoutCase) {
  static_assert(AsciiCompareNoCase("title", "TITLE") == 0);
  EXPECT_EQ(AsciiCompareNoCase("", ""), 0);
  EXPECT_LT(AsciiCompareNoCase("", "a"), 0);
  EXPECT_GT(AsciiCompareNoCase("a", ""), 0);
  EXPECT_LT(AsciiCompareNoCase("abc", "ABD"), 0);
  EXPECT_GT(AsciiCompareNoCase("ABD", "abc"), 0);
  EXPECT_LT(AsciiCompareNoCase("abc", "ABCD"), 0);
  EXPECT_GT(AsciiCompareNoCase("ABCD", "abc"), 0);
}

TEST(Ascii, ComparesInLowerCaseLikeTheCLibrary) {
  // "_" stands between the upper and the lower letters.
  EXPECT_LT(AsciiCompareNoCase("_", "A"), 0);
  EXPECT_LT(AsciiCompareNoCase("_", "a"), 0);
}

TEST(Ascii, ComparesBytesAbove127AsUnsigned) {
  EXPECT_GT(AsciiCompareNoCase("\xe9", "z"), 0);
  EXPECT_LT(AsciiCompareNoCase("z", "\xe9"), 0);
  EXPECT_NE(AsciiCompareNoCase("\xe9", "\xc9"), 0);
}

TEST(Ascii, EqualityKnowsTheLength) {
  using namespace std::string_view_literals;
  static_assert(AsciiEqualNoCase("XmForm", "xmfORM"));
  EXPECT_TRUE(AsciiEqualNoCase("", ""));
  EXPECT_FALSE(AsciiEqualNoCase("a", "ab"));
  EXPECT_FALSE(AsciiEqualNoCase("ab", "a"));
  EXPECT_FALSE(AsciiEqualNoCase("ab", "ac"));
  EXPECT_FALSE(AsciiEqualNoCase("a\0b"sv, "a\0c"sv));
  EXPECT_TRUE(AsciiEqualNoCase("a\0b"sv, "A\0B"sv));
}

TEST(Ascii, FindsASuffixWithoutCase) {
  static_assert(AsciiEndsWithNoCase("demo.UIL", ".uil"));
  EXPECT_TRUE(AsciiEndsWithNoCase(".uil", ".UIL"));
  EXPECT_TRUE(AsciiEndsWithNoCase("demo", ""));
  EXPECT_FALSE(AsciiEndsWithNoCase("uil", ".uil"));
  EXPECT_FALSE(AsciiEndsWithNoCase("demo.uil ", ".uil"));
  EXPECT_FALSE(AsciiEndsWithNoCase("", "x"));
}

TEST(Ascii, LowersInPlace) {
  std::string text = "Push_Button 1 \xc9";
  text += '\0';
  text += 'Z';
  AsciiLowerInPlace(text);
  std::string expected = "push_button 1 \xc9";
  expected += '\0';
  expected += 'z';
  EXPECT_EQ(text, expected);
}

TEST(Ascii, TheLocaleDoesNotMatter) {
  // Some locales may not be installed; the functions must not notice those that are.
  for (const char *locale : {"tr_TR.UTF-8", "tr_TR.ISO-8859-9", "de_DE.ISO-8859-1", "C.UTF-8"}) {
    if (std::setlocale(LC_ALL, locale) == nullptr) {
      continue;
    }
    EXPECT_EQ(AsciiCompareNoCase("title", "TITLE"), 0) << locale;
    EXPECT_EQ(AsciiToLower('\xc9'), '\xc9') << locale;
    EXPECT_EQ(AsciiToUpper('i'), 'I') << locale;
    EXPECT_FALSE(AsciiIsAlpha('\xe9')) << locale;
  }
  std::setlocale(LC_ALL, "C");
}
