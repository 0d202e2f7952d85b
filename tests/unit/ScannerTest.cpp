// The scanner: which texts are which tokens, in every state, and what it keeps and reports.

#include "SourceFiles.h"

#include <climits>

class Scanner : public SourceFiles {
protected:
  // The texts of the listing's lines, each in "<>".
  static std::string Lines() {
    std::string all;
    for (const ListItem *node = ListFirstNode(listing); node != nullptr; node = node->next) {
      all += std::string("<") + static_cast<const ListingLine *>(node->data)->text + ">";
    }
    return all;
  }

  // Reads the next token, and includes the file behind it as the parser does when it has read one
  // token too many.
  static std::string IncludeBehindNextToken(const char *name) {
    const int token = yylex();
    ScannerKeepToken(token, yylval);
    return FilesOpen(name, true) == nullptr ? "not found" : "included";
  }
};

// -- The initial state -------------------------------------------------------------------------

TEST_F(Scanner, SingleCharactersAreTheirOwnTokens) {
  EXPECT_EQ(TokensOf("#&()*+,-/:;=^{|}"),
            "# | & | ( | ) | * | + | , | - | / | : | ; | = | ^ | { | | | }");
  EXPECT_EQ(Report(), "");
}

TEST_F(Scanner, ShiftsAreOneToken) { EXPECT_EQ(TokensOf("a<<b >>c"), "a | << | b | >> | c"); }

TEST_F(Scanner, NamesHoldLettersDigitsUnderscoresAndDollars) {
  EXPECT_EQ(TokensOf("a _b $c D1_$2 Z9 a.b"), "a | _b | $c | D1_$2 | Z9 | a | b");
  EXPECT_EQ(Report(), "main.uil(1): a _b $c D1_$2 Z9 a.b\n"
                      "  syntax: expected [19]: \".\" substituting whitespace\n\n");
}

TEST_F(Scanner, SignBelongsToTheNumber) { EXPECT_EQ(TokensOf("1-1"), "1 | -1"); }

TEST_F(Scanner, SignBeforeWhiteSpaceIsAnOperator) { EXPECT_EQ(TokensOf("1 - 1"), "1 | - | 1"); }

TEST_F(Scanner, SignAfterAName) {
  EXPECT_EQ(TokensOf("a-1 a- 1 a+2 --3 -+4"), "a | -1 | a | - | 1 | a | 2 | - | -3 | - | 4");
}

TEST_F(Scanner, Integers) {
  EXPECT_EQ(TokensOf("0 007 +12 2147483647 -2147483648"), "0 | 7 | 12 | 2147483647 | -2147483648");
}

TEST_F(Scanner, IntegersOutOfRangeKeepTheirLowBits) {
  EXPECT_EQ(TokensOf("2147483648 4294967297 -2147483649 9223372036854775807 "
                     "99999999999999999999 -99999999999999999999"),
            "-2147483648 | 1 | 2147483647 | -1 | -1 | 0");
  EXPECT_EQ(Report(), "");
}

TEST_F(Scanner, Floats) {
  EXPECT_EQ(TokensOf("1. 1.5 +1.5 -.5 .5 .25e1 2.e1 2.5E+1 2e1 -2E-1 1e"),
            "float 1.000000 | float 1.500000 | float 1.500000 | float -0.500000 | float 0.500000 | "
            "float 2.500000 | float 20.000000 | float 25.000000 | float 20.000000 | "
            "float -0.200000 | 1 | e");
  EXPECT_EQ(Report(), "");
}

TEST_F(Scanner, ExponentNeedsDigits) {
  EXPECT_EQ(TokensOf("1e+ 1.5e 1.5e-x .5e -.5E+y"),
            "1 | e | + | float 1.500000 | e | float 1.500000 | e | - | x | float 0.500000 | e | "
            "float -0.500000 | E | + | y");
}

TEST_F(Scanner, WhatOnlyBeginsLikeALongerTokenEndsInTime) {
  EXPECT_EQ(TokensOf("12e+.5 12e+5e+5 -.5e+ +1E-1E- 1.5E- .5e"),
            "12 | e | float 0.500000 | float 1200000.000000 | e | 5 | float -0.500000 | e | + | "
            "float 0.100000 | E | - | float 1.500000 | E | - | float 0.500000 | e");
  EXPECT_EQ(Report(), "");
}

TEST_F(Scanner, SignBeforeAPointAloneIsAnOperator) {
  EXPECT_EQ(TokensOf("x +.a\n-.e5"), "x | + | a | - | e5");
  EXPECT_EQ(Report(), "main.uil(1): x +.a\n"
                      "  syntax: expected [4]: \".\" substituting whitespace\n\n"
                      "main.uil(2): -.e5\n"
                      "  syntax: expected [2]: \".\" substituting whitespace\n\n");
}

TEST_F(Scanner, NumbersLeaveTheKindAlone) {
  yylval.kind = 77;
  GetInteger("5");
  EXPECT_EQ(yylval.kind, 77);
  GetFloat("5.5");
  EXPECT_EQ(yylval.kind, 77);
}

TEST_F(Scanner, FloatTooLargeIsAnErrorAndZero) {
  EXPECT_EQ(TokensOf("1e308 1e309\n-1e999 1e-999"),
            "float " + std::to_string(1e308) +
                " | float 0.000000 | float 0.000000 | float 0.000000");
  EXPECT_EQ(Report(), "main.uil(1): 1e308 1e309\n"
                      "   error: Number too large to convert to float\n\n"
                      "main.uil(2): -1e999 1e-999\n"
                      "   error: Number too large to convert to float\n\n");
}

TEST_F(Scanner, OtherCharactersAreReportedAndSkipped) {
  std::string characters = "~<>.%?@[]\\`\r\f\v";
  for (int c = 0; c < 256; ++c) {
    if (c < 9 || (c > 13 && c < 32) || c > 126) {
      characters += static_cast<char>(c);
    }
  }
  std::string text;
  std::string report;
  int line = 0;
  for (const char c : characters) {
    text += std::string("a ") + c + "b\n";
    report += "main.uil(" + std::to_string(++line) + "): a " +
              (c == '\0' ? std::string() : c + std::string("b")) +
              "\n  syntax: expected [3]: " + EncodePrintably(&c, 1) +
              " substituting whitespace\n\n";
  }
  std::string expected = "a | b";
  for (std::size_t i = 1; i < characters.size(); ++i) {
    expected += " | a | b";
  }
  EXPECT_EQ(TokensOf(text), expected);
  EXPECT_EQ(Report(), report);
}

TEST_F(Scanner, FaultAtTheStartOfALineIsInColumnOne) {
  EXPECT_EQ(TokensOf("a\n@\n"), "a");
  EXPECT_EQ(Report(), "main.uil(2): @\n  syntax: expected [1]: \"@\" substituting whitespace\n\n");
}

TEST_F(Scanner, CarriageReturnsAreReportedOncePerLine) {
  EXPECT_EQ(TokensOf("a;\r\nb;\r\n"), "a | ; | b | ;");
  EXPECT_EQ(Report(), "main.uil(1): a;\r\n"
                      "  syntax: expected [3]: \"\\r\" substituting whitespace\n\n"
                      "main.uil(2): b;\r\n"
                      "  syntax: expected [3]: \"\\r\" substituting whitespace\n\n");
}

TEST_F(Scanner, EverythingReadGoesToTheListing) {
  EXPECT_EQ(TokensOf("a\t'x'  /* c\n d */ \"y\\n\" ! e\n1.5 << @ \n\nz"),
            "a | single \"x\" | double \"y\\n\" | float 1.500000 | << | z");
  EXPECT_EQ(Lines(), "<a\t'x'  /* c>< d */ \"y\\n\" ! e><1.5 << @ ><><z>");
  EXPECT_EQ(yylineno, 5);
}

TEST_F(Scanner, EndOfInputIsZeroAgainAndAgain) {
  EXPECT_EQ(TokensOf(""), "");
  EXPECT_EQ(yylex(), 0);
  EXPECT_EQ(yylex(), 0);
}

TEST_F(Scanner, WithoutAnyFileTheInputIsEmpty) { EXPECT_EQ(yylex(), 0); }

// -- Names -------------------------------------------------------------------------------------

TEST_F(Scanner, NewNameIsASymbolWithACopyOfItsText) {
  Open("fresh fresh");
  ASSERT_EQ(yylex(), SYMBOL);
  EXPECT_EQ(yylval.symbol.kind, SYMBOL);
  EXPECT_STREQ(yylval.symbol.name, "fresh");
  EXPECT_EQ(yylval.symbol.value, nullptr);
  const char *first = yylval.symbol.name;
  ASSERT_EQ(yylex(), SYMBOL);
  EXPECT_NE(yylval.symbol.name, first);
  EXPECT_EQ(SymbolFind("fresh"), nullptr);
}

TEST_F(Scanner, NameIsWhatItWasDeclaredAs) {
  Open("w w");
  EXPECT_EQ(yylex(), SYMBOL);
  SimpleObjectRec *entry = Declare(WIDGET_NAME, "w");
  ASSERT_EQ(yylex(), WIDGET_NAME);
  EXPECT_EQ(yylval.symbol.kind, WIDGET_NAME);
  EXPECT_EQ(yylval.symbol.name, entry->name);
  EXPECT_EQ(yylval.symbol.value, entry);
}

TEST_F(Scanner, KeywordsFoldOnlyInCaseInsensitiveModules) {
  SimpleObjectRec *entry = Declare(END, "end");
  Open("end End END");
  EXPECT_EQ(yylex(), END);
  EXPECT_EQ(yylex(), SYMBOL);
  EXPECT_STREQ(yylval.symbol.name, "End");
  ASSERT_TRUE(HashRevise(symbol_table, 0, CaseInsensitiveKeyFunc, nullptr,
                         CaseInsensitiveCompareFunc, nullptr));
  EXPECT_EQ(yylex(), END);
  EXPECT_STREQ(yylval.symbol.name, "end");
  EXPECT_EQ(yylval.symbol.value, entry);
}

// -- Comments ----------------------------------------------------------------------------------

TEST_F(Scanner, BlockCommentsAreSkipped) {
  EXPECT_EQ(TokensOf("a/* ' \" ! @ ~\xff \\\n * / **/b/**/c/***/d/* /* */e*/f"),
            "a | b | c | d | e | * | / | f");
  EXPECT_EQ(Report(), "");
}

TEST_F(Scanner, LineCommentsEndWithTheLine) {
  EXPECT_EQ(TokensOf("a ! ' \" /* ~ !\nb!\nc !"), "a | b | c");
  EXPECT_EQ(Report(), "");
}

TEST_F(Scanner, OpenCommentAtTheEndIsNoFault) {
  EXPECT_EQ(TokensOf("a /* b\nc *"), "a");
  EXPECT_EQ(Report(), "");
}

// -- Strings -----------------------------------------------------------------------------------

TEST_F(Scanner, StringsHoldTheOtherQuote) {
  EXPECT_EQ(
      TokensOf(R"('it\'s' 'say "a"' "it's" "say \"a\"" '' "")"),
      R"(single "it's" | single "say "a"" | double "it's" | double "say "a"" | single "" | double "")");
}

TEST_F(Scanner, StringValueBelongsToTheParser) {
  Open("'one' 'two'");
  ASSERT_EQ(yylex(), LITERAL_SINGLE);
  EXPECT_EQ(yylval.string.kind, LITERAL_SINGLE);
  EXPECT_EQ(yylval.string.charsets, nullptr);
  const char *one = yylval.string.value;
  EXPECT_EQ(lit_buffer, nullptr);
  EXPECT_EQ(lit_bufsiz, 0U);
  EXPECT_EQ(lit_bufptr, 0);
  ASSERT_EQ(yylex(), LITERAL_SINGLE);
  EXPECT_STREQ(one, "one");
  EXPECT_STREQ(yylval.string.value, "two");
}

TEST_F(Scanner, EscapesStoreTheirCharacter) {
  EXPECT_EQ(TokensOf(R"('\n\t\v\b\f\r' "\"\'\\" 'a\b\c\a\!')"),
            R"(single "\n\t\v\b\f\r" | double ""'\" | single "a\bca!")");
  EXPECT_EQ(Report(), "");
}

TEST_F(Scanner, NumericEscapesAreOctal) {
  EXPECT_EQ(
      TokensOf(R"('\12\' '\101\' '<\400\>' '\1234\' '\128\' '<\8\>' '<\9\>' '\0101\')"),
      R"(single "\n" | single "A" | single "<" | single "\234" | single "\n" | single "<" | single "<" | single "A")");
}

TEST_F(Scanner, NumericEscapeSaturates) {
  EXPECT_EQ(TokensOf("'\\1777777777777777777777\\' '\\2000000000000000000000\\' "
                     "'<\\1777777777777777777400\\>'"),
            "single \"\\377\" | single \"\\377\" | single \"<\"");
}

TEST_F(Scanner, ZeroByteStandsInTheLiteral) {
  Open("'a\\400\\b'");
  ASSERT_EQ(yylex(), LITERAL_SINGLE);
  EXPECT_EQ(std::string(yylval.string.value, 4), std::string("a\0b\0", 4));
}

TEST_F(Scanner, DigitsWithoutClosingBackslashAreOrdinary) {
  EXPECT_EQ(TokensOf(R"('\101' '\12x\n' "\9" "\1x\2")"),
            R"(single "101" | single "12x\n" | double "9" | double "1x2")");
}

TEST_F(Scanner, StringsHoldAnyCharacterButANewline) {
  EXPECT_EQ(TokensOf("'\t\xe9\x01!/*' \"\t\xe9\x01!/*\""),
            "single \"\\t\\351\\1!/*\" | double \"\\t\\351\\1!/*\"");
  EXPECT_EQ(Report(), "");
}

TEST_F(Scanner, BackslashNewlineGoesOnInSingleQuotes) {
  EXPECT_EQ(TokensOf("'one\\\ntwo' x"), "single \"onetwo\" | x");
  EXPECT_EQ(Report(), "");
  EXPECT_EQ(yylineno, 2);
}

TEST_F(Scanner, BackslashNewlineIsAWarningInDoubleQuotes) {
  EXPECT_EQ(TokensOf("\"one\\\ntwo\" x"), "double \"onetwo\" | x");
  EXPECT_EQ(Report(), "main.uil(1): \"one\\\n"
                      " warning: [5]: \"\\\\n\" allowing it anyway\n\n");
}

TEST_F(Scanner, NewlineBreaksAString) {
  EXPECT_EQ(TokensOf("a 'one\ntwo\n\nx' b"),
            "a | single \"one\" | single \"two\" | single \"\" | single \"x\" | b");
  EXPECT_EQ(Report(), "main.uil(1): a 'one\n"
                      "  syntax: expected [7]: \"\\n\" substituting endquote\n\n"
                      "main.uil(2): two\n"
                      "  syntax: expected [4]: \"\\n\" substituting endquote\n\n"
                      "main.uil(3): \n"
                      "  syntax: expected [1]: \"\\n\" substituting endquote\n\n");
}

TEST_F(Scanner, BrokenStringKeepsItsQuote) {
  EXPECT_EQ(TokensOf("\"one'\n\" 'two\n' x"), "double \"one'\" | double \"\" | single \"two\" | "
                                              "single \"\" | x");
}

TEST_F(Scanner, OpenStringAtTheEndIsAbandoned) {
  EXPECT_EQ(TokensOf("a 'one\\"), "a");
  EXPECT_EQ(Report(), "");
}

// -- Included files ----------------------------------------------------------------------------

TEST_F(Scanner, StateGoesOnBehindAnInclude) {
  Put("b.uil", "b 'one \\");
  Put("c.uil", "c /* one");
  Open("a two' x */ y");
  EXPECT_EQ(NextToken(), "a");
  ASSERT_NE(FilesOpen("b.uil", true), nullptr);
  EXPECT_EQ(NextToken(), "b");
  EXPECT_EQ(NextToken(), "single \"one \\ two\"");
  ASSERT_NE(FilesOpen("c.uil", true), nullptr);
  EXPECT_EQ(Tokens(), "c | y");
}

TEST_F(Scanner, KeptTokenFollowsTheIncludedFile) {
  Put("b.uil", "b1 b2");
  Open("a1 a2 a3");
  EXPECT_EQ(NextToken(), "a1");
  EXPECT_EQ(IncludeBehindNextToken("b.uil"), "included");
  EXPECT_EQ(Tokens(), "b1 | b2 | a2 | a3");
  EXPECT_EQ(Lines(), "<a1 a2b1 b2 a3>");
}

TEST_F(Scanner, KeptTokenOfEachSortIsDelivered) {
  const char *const tokens[] = {";", "12", "1.5", "'s'", "\"d\"", "<<", ">>"};
  const char *const expected[] = {";",  "12", "float 1.500000", "single \"s\"", "double \"d\"",
                                  "<<", ">>"};
  std::string text = "a ";
  for (const char *token : tokens) {
    text += std::string(token) + " ";
  }
  Open(text);
  EXPECT_EQ(NextToken(), "a");
  for (std::size_t i = 0; i < std::size(tokens); ++i) {
    const std::string name = "f" + std::to_string(i);
    Put(name, "in 77 8.5 'other'");
    EXPECT_EQ(IncludeBehindNextToken(name.c_str()), "included");
    EXPECT_EQ(NextToken(), "in");
    EXPECT_EQ(NextToken(), "77");
    EXPECT_EQ(NextToken(), "float 8.500000");
    EXPECT_EQ(NextToken(), "single \"other\"");
    EXPECT_EQ(NextToken(), expected[i]);
  }
  EXPECT_EQ(NextToken(), "(end)");
}

TEST_F(Scanner, KeptNameIsLookedUpAgain) {
  Put("b.uil", "b");
  Open("name other");
  EXPECT_EQ(IncludeBehindNextToken("b.uil"), "included");
  EXPECT_EQ(NextToken(), "b");
  SimpleObjectRec *entry = Declare(WIDGET_NAME, "name");
  ASSERT_EQ(yylex(), WIDGET_NAME);
  EXPECT_EQ(yylval.symbol.value, entry);
  EXPECT_EQ(Tokens(), "other");
}

TEST_F(Scanner, KeptKeywordStaysOne) {
  Declare(VALUE, "value");
  Put("b.uil", "");
  Open("value x");
  EXPECT_EQ(IncludeBehindNextToken("b.uil"), "included");
  EXPECT_EQ(yylex(), VALUE);
  EXPECT_EQ(Tokens(), "x");
}

TEST_F(Scanner, KeptEndOfInputEndsItAgain) {
  Put("b.uil", "b");
  Open("a");
  EXPECT_EQ(NextToken(), "a");
  EXPECT_EQ(IncludeBehindNextToken("b.uil"), "included");
  EXPECT_EQ(NextToken(), "b");
  EXPECT_EQ(NextToken(), "(end)");
  EXPECT_EQ(NextToken(), "(end)");
  EXPECT_EQ(FilesDepth(), 1);
}

TEST_F(Scanner, KeptTokensAreDeliveredInsideOut) {
  Put("b.uil", "b1 b2 b3");
  Put("c.uil", "c1 c2");
  Put("d.uil", "d1");
  Open("a1 a2");
  EXPECT_EQ(IncludeBehindNextToken("b.uil"), "included");
  EXPECT_EQ(NextToken(), "b1");
  EXPECT_EQ(IncludeBehindNextToken("c.uil"), "included");
  EXPECT_EQ(NextToken(), "c1");
  ASSERT_NE(FilesOpen("d.uil", true), nullptr); // after a semicolon: nothing to keep
  EXPECT_EQ(Tokens(), "d1 | c2 | b2 | b3 | a1 | a2");
}

// The token behind the inner include is the one that was kept for the outer one.
TEST_F(Scanner, KeptTokenIsKeptAgain) {
  Put("b.uil", "b");
  Put("c.uil", "c");
  Put("d.uil", "d");
  Open("a1 a2");
  EXPECT_EQ(IncludeBehindNextToken("b.uil"), "included");
  EXPECT_EQ(NextToken(), "b");
  EXPECT_EQ(IncludeBehindNextToken("c.uil"), "included"); // a1 again, b.uil has ended
  EXPECT_EQ(FilesDepth(), 2);
  EXPECT_EQ(IncludeBehindNextToken("d.uil"), "included"); // c
  EXPECT_EQ(Tokens(), "d | c | a1 | a2");
}

TEST_F(Scanner, SeveralFilesEndAtOnce) {
  Put("b.uil", "b");
  Put("c.uil", "");
  Put("d.uil", "\n");
  Open("a1 a2");
  EXPECT_EQ(IncludeBehindNextToken("b.uil"), "included");
  EXPECT_EQ(NextToken(), "b");
  ASSERT_NE(FilesOpen("c.uil", true), nullptr);
  ASSERT_NE(FilesOpen("d.uil", true), nullptr);
  EXPECT_EQ(Tokens(), "a1 | a2");
}

TEST_F(Scanner, KeptTokenComesInAnyState) {
  Put("b.uil", "b 'open");
  Put("c.uil", "c /* open");
  Open("a1 rest' a2 skipped */ a3");
  EXPECT_EQ(IncludeBehindNextToken("b.uil"), "included");
  EXPECT_EQ(NextToken(), "b");
  EXPECT_EQ(NextToken(), "a1");
  EXPECT_EQ(NextToken(), "single \"open rest\"");
  EXPECT_EQ(IncludeBehindNextToken("c.uil"), "included");
  EXPECT_EQ(Tokens(), "c | a2 | a3");
}

// -- Long tokens -------------------------------------------------------------------------------

// Each of these takes minutes when a token is scanned anew at each refill, or a text copied at each
// character.
constexpr std::size_t kLong = 8000000;

TEST_F(Scanner, LongName) {
  const std::string name(kLong, 'n');
  EXPECT_EQ(TokensOf(name + " x"), name + " | x");
}

TEST_F(Scanner, LongComments) {
  const std::string text(kLong, 'c');
  const std::string stars(kLong, '*');
  EXPECT_EQ(TokensOf("a/*" + text + "*/b!" + text + "\nc/*" + stars + "/d"), "a | b | c | d");
}

TEST_F(Scanner, LongStrings) {
  const std::string text(kLong, 's');
  EXPECT_EQ(TokensOf("'" + text + "' x"), "single \"" + text + "\" | x");
}

TEST_F(Scanner, LongStringsOfEscapes) {
  std::string text;
  std::string expected;
  while (text.size() < kLong / 4) {
    text += "\\x\\101\\";
    expected += "xA";
  }
  EXPECT_EQ(TokensOf("\"" + text + "\" x"), "double \"" + expected + "\" | x");
}

TEST_F(Scanner, LongNumbers) {
  const std::string digits(kLong, '0');
  EXPECT_EQ(TokensOf(digits + "7 1." + digits + " '\\" + digits + "101\\' '\\" + digits + "'"),
            "7 | float 1.000000 | single \"A\" | single \"" + digits + "\"");
}

TEST_F(Scanner, LongBlanks) { EXPECT_EQ(TokensOf("a" + std::string(kLong, ' ') + "b"), "a | b"); }

// -- Failures ----------------------------------------------------------------------------------

TEST_F(Scanner, NoMemoryForALiteralIsFatal) {
  const std::string message = "kivuxl: StartLiteral: Memory allocation error.\n[exit 1]";
  AllocFailAfter(0);
  EXPECT_EQ(ErrorsOf([] { StartLiteral(); }), message);
  EXPECT_EQ(ErrorsOf([] { NeedLiteral(1); }), message);
  AllocFailAfter(1);
  StartLiteral();
  for (int i = 0; i < 11; ++i) {
    PutLiteralChar('x');
  }
  EXPECT_EQ(ErrorsOf([] { PutLiteralChar('x'); }), message);
}

TEST_F(Scanner, LiteralThatOutgrowsItsCountIsFatal) {
  StartLiteral();
  lit_bufptr = 5;
  EXPECT_EQ(ErrorsOf([] { NeedLiteral(INT_MAX); }),
            "kivuxl: StartLiteral: Memory allocation error.\n[exit 1]");
}

TEST_F(Scanner, NeedLiteralMakesRoomForTheZeroByte) {
  StartLiteral();
  EXPECT_EQ(lit_bufsiz, 12U);
  EXPECT_STREQ(lit_buffer, "");
  NeedLiteral(11);
  EXPECT_EQ(lit_bufsiz, 12U);
  NeedLiteral(12);
  EXPECT_EQ(lit_bufsiz, 28U);
  PutLiteralChar('a');
  EXPECT_EQ(lit_bufptr, 1);
  StartLiteral();
  EXPECT_EQ(lit_bufptr, 0);
  EXPECT_STREQ(lit_buffer, "");
}

TEST_F(Scanner, GeneratedScannerEndsTheRunWithStatusTwo) {
  Open(std::string(40000, 'n'));
  AllocFailAfter(0);
  EXPECT_EQ(ErrorsOf([] { yylex(); }), "fatal error - scanner input buffer overflow\n[exit 2]");
}

TEST_F(Scanner, ResetPutsTheScannerBackToItsStart) {
  EXPECT_EQ(TokensOf("a 'open"), "a");
  ScannerKeepToken(';', yylval);
  yy_flex_debug = 1;
  yylineno = 9;
  ScannerReset();
  EXPECT_EQ(yy_flex_debug, 0);
  EXPECT_EQ(yylineno, 1);
  EXPECT_EQ(lit_buffer, nullptr);
  EXPECT_EQ(lit_bufsiz, 0U);
  EXPECT_EQ(lit_bufptr, 0);
  FilesReset();
  Put("next.uil", "b");
  ASSERT_NE(FilesOpen("next.uil", false), nullptr);
  EXPECT_EQ(Tokens(), "b");
}
