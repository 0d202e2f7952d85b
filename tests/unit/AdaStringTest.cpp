// Tests of strings and of the expression by which a text is written.

#include "AdaString.h"

#include "ValueModel.h"

namespace {

class AdaString : public ValueModel {};

TEST_F(AdaString, NothingIsAnEmptyString) {
  EXPECT_EQ(string_value_expr(nullptr), "      \"\" & character'val( 0 )");
  EXPECT_EQ(string_value_expr(""), "      \"\" & character'val( 0 )");
}

TEST_F(AdaString, PrintableTextIsOneRun) {
  EXPECT_EQ(string_value_expr("x"), "      \"x\" &\n"
                                    "      character'val(   0 )");
  EXPECT_EQ(string_value_expr(" ~"), "      \" ~\" &\n"
                                     "      character'val(   0 )");
}

TEST_F(AdaString, QuotesAreDoubled) {
  EXPECT_EQ(string_value_expr("ab\"c"), "      \"ab\"\"c\" &\n"
                                        "      character'val(   0 )");
  EXPECT_EQ(string_value_expr("\""), "      \"\"\"\" &\n"
                                     "      character'val(   0 )");
}

TEST_F(AdaString, OtherCharactersStandAlone) {
  EXPECT_EQ(string_value_expr("a\tb"), "      \"a\" &\n"
                                       "      character'val(   9 ) &\n"
                                       "      \"b\" &\n"
                                       "      character'val(   0 )");
  EXPECT_EQ(string_value_expr("\n\x1f\x7f"), "      character'val(  10 ) &\n"
                                             "      character'val(  31 ) &\n"
                                             "      character'val( 127 ) &\n"
                                             "      character'val(   0 )");
}

TEST_F(AdaString, Ada95TakesEveryByte) {
  ada95 = true;
  std::string expression;
  EXPECT_EQ(Reported([&] { expression = string_value_expr("caf\xe9\x80\xff"); }), "");
  EXPECT_EQ(expression, "      \"caf\" &\n"
                        "      character'val( 233 ) &\n"
                        "      character'val( 128 ) &\n"
                        "      character'val( 255 ) &\n"
                        "      character'val(   0 )");
}

TEST_F(AdaString, Ada83ReplacesAndReports) {
  ada95 = false;
  std::string expression;
  EXPECT_EQ(Reported([&] { expression = string_value_expr("caf\xe9!"); }),
            "kivuxl: Character \\351\\ cannot be represented in Ada 83.\n");
  EXPECT_EQ(expression, "      \"caf\" &\n"
                        "      '~' &\n"
                        "      \"!\" &\n"
                        "      character'val(   0 )");
}

// Each byte is reported, by the text of the first.
TEST_F(AdaString, Ada83ReportsEachByte) {
  ada95 = false;
  std::string expression;
  EXPECT_EQ(Reported([&] { expression = string_value_expr("\x80\xff"); }),
            "kivuxl: Character \\200\\ cannot be represented in Ada 83.\n"
            "kivuxl: Character \\200\\ cannot be represented in Ada 83.\n");
  EXPECT_EQ(expression, "      '~' &\n"
                        "      '~' &\n"
                        "      character'val(   0 )");
  EXPECT_EQ(Reported([&] { expression = string_value_expr("\xff"); }),
            "kivuxl: Character \\377\\ cannot be represented in Ada 83.\n");
}

TEST_F(AdaString, LongTextIsOneRun) {
  const std::string text(3000000, 'q');
  EXPECT_EQ(string_value_expr(text.c_str()), "      \"" + text +
                                                 "\" &\n"
                                                 "      character'val(   0 )");
}

TEST_F(AdaString, IsSetByTheAddressOfTheFirstCharacter) {
  ExpectWritten(Text<StringValue>(SIMPLE_STRING, "Hello"),
                {"    string_7 : constant string :=\n"
                 "      \"Hello\" &\n"
                 "      character'val(   0 );\n",
                 "", "string_7( string_7'first )'address", ""});
}

TEST_F(AdaString, Names) {
  ExpectNames(Text<StringValue>(SIMPLE_STRING, "x"), "string_12",
              "string_12( string_12'first )'address");
}

} // namespace
