// Tests of wide-character strings.

#include "AdaWideCharacter.h"

#include <clocale>

#include "ValueModel.h"

namespace {

class AdaWideCharacter : public ValueModel {
protected:
  // The conversion follows the locale of the process.
  void SetUp() override {
    ValueModel::SetUp();
    saved_locale = std::setlocale(LC_CTYPE, nullptr);
    ASSERT_NE(std::setlocale(LC_CTYPE, "C.UTF-8"), nullptr);
  }
  void TearDown() override {
    std::setlocale(LC_CTYPE, saved_locale.c_str());
    ValueModel::TearDown();
  }

private:
  std::string saved_locale;
};

constexpr const char *kExpression = "wide_character_7( wide_character_7'first )'address";

TEST_F(AdaWideCharacter, ElementsAreCodes) {
  EXPECT_EQ(wide_character_value_expr(L"A\U0001F600"), "    ( 1 => 16#00000041#, \n"
                                                       "      2 => 16#0001f600#, \n"
                                                       "      3 => 16#00000000# )");
  EXPECT_EQ(wide_character_value_expr(L""), "    ( 1 => 16#00000000# )");
}

TEST_F(AdaWideCharacter, IsSetByTheAddressOfTheFirstElement) {
  ExpectWritten(Text<WideCharValue>(WIDE_CHARACTER, "x\xe2\x82\xac"),
                {"    wide_character_7 : constant xlibr5.unsignedshortlist :=\n"
                 "    ( 1 => 16#00000078#, \n"
                 "      2 => 16#000020ac#, \n"
                 "      3 => 16#00000000# );\n",
                 "", kExpression, ""});
}

TEST_F(AdaWideCharacter, EmptyTextHasItsZero) {
  const Expected expected = {"    wide_character_7 : constant xlibr5.unsignedshortlist :=\n"
                             "    ( 1 => 16#00000000# );\n",
                             "", kExpression, ""};
  ExpectWritten(Text<WideCharValue>(WIDE_CHARACTER, ""), expected);
  ExpectWritten(Text<WideCharValue>(WIDE_CHARACTER, nullptr), expected);
}

TEST_F(AdaWideCharacter, TextThatCannotBeConvertedIsOneZero) {
  auto *value = Text<WideCharValue>(WIDE_CHARACTER, "ab\xff");
  EXPECT_EQ(Reported([&] {
              ExpectWritten(value, {"    wide_character_7 : constant xlibr5.unsignedshortlist "
                                    "( 1 .. 1 ) := ( others => 0 );\n",
                                    "", kExpression, ""});
            }),
            "");
}

TEST_F(AdaWideCharacter, LongTextIsConvertedWhole) {
  const std::string text(100000, 'w');
  auto *value = Text<WideCharValue>(WIDE_CHARACTER, text.c_str());
  const std::string declared = Declared(value, nullptr, 1);
  const std::string end = "  100000 => 16#00000077#, \n"
                          "      100001 => 16#00000000# );\n";
  ASSERT_GT(declared.size(), end.size());
  EXPECT_EQ(declared.substr(declared.size() - end.size()), end);
}

TEST_F(AdaWideCharacter, Names) {
  ExpectNames(Text<WideCharValue>(WIDE_CHARACTER, "x"), "wide_character_12",
              "wide_character_12( wide_character_12'first )'address");
}

} // namespace
