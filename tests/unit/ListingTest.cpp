// The listing: how lines are captured, and every row of the listing file.

#include "SourceFiles.h"

#include <climits>
#include <clocale>
#include <ctime>

// Pieces of the pages as they stand with the module "demo", the file "main.uil" and 75 columns.
static std::string Header(int page) {
  return "\n\n\n"
         "Module: demo                Thu Jan  1 00:00:00 1970                Page: " +
         std::to_string(page) + "\n\n\n";
}

static const char *const kFooter =
    "\n\n"
    "main.uil                                 3.0.2 Mon Jun 28 11:17:13 PDT 1999\n";

static std::string Padded(std::string row, std::size_t width) {
  row.resize(std::max(width, row.size()), ' ');
  return row;
}

// A row of text: 74 columns, or one more.
static std::string Row(const std::string &text) { return Padded(text, 74) + "\n"; }

class Listing : public SourceFiles {
protected:
  void SetUp() override {
    SourceFiles::SetUp();
    std::setlocale(LC_ALL, "C");
    setenv("TZ", "UTC", 1);
    tzset();
    run_date_time = 0;
    module_name = "demo";
  }

  // What the function writes to the stream.
  static std::string Written(const std::function<void(std::FILE *)> &write) {
    char *text = nullptr;
    std::size_t size = 0;
    std::FILE *stream = open_memstream(&text, &size);
    write(stream);
    std::fclose(stream);
    const std::string result(text, size);
    std::free(text);
    return result;
  }

  static std::string HeaderOf(const char *module, int page) {
    return Written([&](std::FILE *stream) { WriteHeader(stream, module, page); });
  }

  static std::string FooterOf(const std::string &name, const char *version) {
    return Written([&](std::FILE *stream) { WriteFooter(stream, name.c_str(), version); });
  }

  // What a line of that number and text prints at that place of the listing.
  static std::string LineOf(int number, const std::string &text) {
    PutListing(text.data(), static_cast<int>(text.size()));
    PutListing("\n", 1);
    auto *line = static_cast<ListingLine *>(ListGetLast(listing));
    line->line_number = number;
    return Written(
        [&](std::FILE *stream) { WriteLine(stream, line, &row_counter, &page_counter); });
  }

  // The listing file of everything read so far.
  static std::string WholeListing() {
    return Written([](std::FILE *stream) {
      listing_fp = stream;
      WriteListing();
      listing_fp = nullptr;
    });
  }

  static void PutLines(std::string_view text) {
    while (!text.empty()) {
      const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
      PutListing(text.data(), static_cast<int>(end));
      text.remove_prefix(end);
    }
  }

  static inline std::int64_t row_counter;
  static inline int page_counter;

  Listing() {
    row_counter = 0;
    page_counter = 0;
  }
};

// -- Capturing ---------------------------------------------------------------------------------

TEST_F(Listing, PiecesBecomeLines) {
  Open("");
  PutListing("value", 5);
  PutListing(" ", 1);
  PutListing("x\n", 2);
  PutListing("\n", 1);
  PutListing("end", 3);
  EXPECT_EQ(yylineno, 3);
  ASSERT_EQ(ListLength(listing), 3U);
  const auto *line = static_cast<const ListingLine *>(ListGetFirst(listing));
  EXPECT_EQ(line->file_number, 1);
  EXPECT_EQ(line->line_number, 1);
  EXPECT_STREQ(line->file_name, "main.uil");
  EXPECT_TRUE(line->complete);
  EXPECT_EQ(line->length, 7);
  EXPECT_LT(line->length, line->maxlen);
  EXPECT_STREQ(line->text, "value x");
  EXPECT_EQ(line->errors, nullptr);
  line = static_cast<const ListingLine *>(ListGetLast(listing));
  EXPECT_EQ(line->line_number, 3);
  EXPECT_FALSE(line->complete);
  EXPECT_STREQ(line->text, "end");
}

TEST_F(Listing, LinesWithoutDiagnosticsAreForgottenOnRequest) {
  Open("");
  listing_keeps_lines = false;
  PutListing("a long first line of text\n", 26);
  PutListing("bad\n", 4);
  FilesAddError(static_cast<ListingLine *>(ListGetLast(listing)), kError, "odd");
  PutListing("good\n", 5);
  PutListing("end", 3);
  ASSERT_EQ(ListLength(listing), 2U);
  const auto *line = static_cast<const ListingLine *>(ListGetFirst(listing));
  EXPECT_EQ(line->line_number, 2);
  EXPECT_STREQ(line->text, "bad");
  line = static_cast<const ListingLine *>(ListGetLast(listing));
  EXPECT_EQ(line->line_number, 4);
  EXPECT_STREQ(line->text, "end");
  EXPECT_EQ(line->length, 3);
  EXPECT_FALSE(line->complete);
  EXPECT_EQ(line->errors, nullptr);
}

TEST_F(Listing, LineWithoutOpenFileHasNoPlace) {
  yylineno = 7;
  PutListing(nullptr, 0);
  const auto *line = static_cast<const ListingLine *>(ListGetLast(listing));
  EXPECT_EQ(line->file_number, 0);
  EXPECT_EQ(line->line_number, 0);
  EXPECT_STREQ(line->file_name, "");
  EXPECT_STREQ(line->text, "");
  EXPECT_FALSE(line->complete);
  PutListing(nullptr, 0);
  EXPECT_EQ(ListLength(listing), 1U);
}

TEST_F(Listing, OnlyAClosingNewlineCompletesALine) {
  PutListing("a\nb", 3);
  const auto *line = static_cast<const ListingLine *>(ListGetLast(listing));
  EXPECT_FALSE(line->complete);
  EXPECT_STREQ(line->text, "a\nb");
  PutListing("\0c\n", 3);
  EXPECT_TRUE(line->complete);
  EXPECT_EQ(line->length, 5);
  EXPECT_EQ(std::string(line->text, 6), std::string("a\nb\0c\0", 6));
}

TEST_F(Listing, LineHasRoomForItsZeroByte) {
  PutListing("a", 1);
  const auto *line = static_cast<const ListingLine *>(ListGetLast(listing));
  for (int i = 0; i < 200; ++i) {
    PutListing("b", 1);
    ASSERT_LT(line->length, line->maxlen);
  }
}

TEST_F(Listing, LongLineIsCapturedWhole) {
  const std::string word(1000, 'w');
  constexpr int kWords = 8000;
  for (int i = 0; i < kWords; ++i) {
    PutListing(word.data(), 1000);
  }
  for (int i = 0; i < 100000; ++i) {
    PutListing("x", 1);
  }
  const auto *line = static_cast<const ListingLine *>(ListGetLast(listing));
  EXPECT_EQ(line->length, 8100000);
  EXPECT_EQ(std::string(line->text), std::string(8000000, 'w') + std::string(100000, 'x'));
}

TEST_F(Listing, ExhaustionIsFatal) {
  const std::string message = "kivuxl: PutListing: Memory allocation error.\n[exit 1]";
  for (long allocations = 0; allocations < 4; ++allocations) {
    listing = nullptr;
    AllocFailAfter(allocations);
    EXPECT_EQ(ErrorsOf([] { PutListing("a", 1); }), message);
  }
  AllocFailAfter(-1);
  listing = nullptr;
  PutListing("a", 1);
  AllocFailAfter(0);
  EXPECT_EQ(ErrorsOf([] { PutListing("more than the first buffer", 26); }), message);
}

TEST_F(Listing, KeysHoldFileAndLine) {
  EXPECT_EQ(ListingMakeKey(0, 0), 0);
  EXPECT_EQ(ListingMakeKey(1, 1), 0x100001);
  EXPECT_EQ(ListingMakeKey(3, 0xfffff), 0x3fffff);
  EXPECT_EQ(ListingMakeKey(3, 0x100002), 0x300002);
  EXPECT_EQ(ListingMakeKey(0x7ff, 5), 0x7ff00005);
  EXPECT_EQ(ListingMakeKey(0x800, 5), 5);
  EXPECT_EQ(ListingMakeKey(-1, -1), 0x7fffffff);
}

TEST_F(Listing, LinesAreFoundByTheirKey) {
  Open("");
  PutLines("a\nb\nc\n");
  ListingLine sought{};
  sought.file_number = 1;
  sought.line_number = 2;
  const auto *line = static_cast<const ListingLine *>(ListFindFirst(listing, &sought));
  ASSERT_NE(line, nullptr);
  EXPECT_STREQ(line->text, "b");
  sought.line_number = 4;
  EXPECT_EQ(ListFindFirst(listing, &sought), nullptr);
  EXPECT_LT(ListingCompareFunc(line, ListGetLast(listing)), 0);
}

// -- Printable rendering -----------------------------------------------------------------------

TEST_F(Listing, EveryCharacterHasItsRendering) {
  const auto encoded = [](int c) {
    const char text = static_cast<char>(c);
    const std::string quoted = EncodePrintably(&text, 1);
    EXPECT_EQ(static_cast<int>(quoted.size()), EncodedLength(&text, 1) + 2);
    return quoted;
  };
  const char *const controls[] = {"\"\\0\"",  "\"\\1\"",  "\"\\2\"", "\"\\3\"", "\"\\4\"",
                                  "\"\\5\"",  "\"\\6\"",  "\"\\7\"", "\"\\b\"", "\"\\t\"",
                                  "\"\\n\"",  "\"\\v\"",  "\"\\f\"", "\"\\r\"", "\"\\16\"",
                                  "\"\\17\"", "\"\\20\"", "\"\\21\""};
  for (int c = 0; c < 18; ++c) {
    EXPECT_EQ(encoded(c), controls[c]);
  }
  EXPECT_EQ(encoded(31), "\"\\37\"");
  for (int c = 32; c < 127; ++c) {
    EXPECT_EQ(encoded(c), std::string("\"") + static_cast<char>(c) + "\"");
  }
  EXPECT_EQ(encoded(127), "\"\\177\"");
  EXPECT_EQ(encoded(128), "\"\\200\"");
  EXPECT_EQ(encoded(233), "\"\\351\"");
  EXPECT_EQ(encoded(255), "\"\\377\"");
  EXPECT_EQ(EncodePrintably("a\0\x1f\t", 4), "\"a\\0\\37\\t\"");
  EXPECT_EQ(EncodedLength("a\0\x1f\t", 4), 8);
  EXPECT_EQ(EncodePrintably("", 0), "\"\"");
}

// -- Headers -----------------------------------------------------------------------------------

TEST_F(Listing, HeaderHoldsModuleDateAndPage) {
  EXPECT_EQ(HeaderOf("demo", 1), Header(1));
  EXPECT_EQ(HeaderOf("odd", 12),
            "\n\n\n"
            "Module: odd                Thu Jan  1 00:00:00 1970                Page: 12\n\n\n");
  EXPECT_EQ(HeaderOf(nullptr, 1),
            "\n\n\n"
            "Module:                   Thu Jan  1 00:00:00 1970                  Page: 1\n\n\n");
}

// 31 characters of the name are shown: with this date that leaves a gap of 5 in 75 columns.
TEST_F(Listing, LongModuleNameIsCut) {
  const char *const name = "a234567890123456789012345678901234567890";
  EXPECT_EQ(HeaderOf(name, 1),
            "\n\n\n"
            "Module: a234567890123456789012345678901  Thu Jan  1 00:00:00 1970   Page: 1\n\n\n");
  listing_width = 72;
  EXPECT_EQ(HeaderOf(name, 1),
            "\n\n\n"
            "Module: a234567890123456789012345678901 Thu Jan  1 00:00:00 1970 Page: 1\n\n\n");
}

// A gap below 2 puts the date under the header row, centred: from column 35 - 12 on.
TEST_F(Listing, DateStandsUnderARowThatIsTooShort) {
  listing_width = 71;
  EXPECT_EQ(HeaderOf("a234567890123456789012345678901234567890", 1),
            "\n\n\n"
            "Module: a234567890123456789012345678901                         Page: 1\n"
            "                       Thu Jan  1 00:00:00 1970                        \n\n");
}

TEST_F(Listing, HeaderInNarrowColumns) {
  listing_width = 12;
  EXPECT_EQ(HeaderOf("demo", 1), "\n\n\n"
                                 "ModulPage: 1\n"
                                 "n  1 00:00:00 1970\n\n"); // from column 6 - 12 on
  listing_width = 5;
  EXPECT_EQ(HeaderOf("demo", 1), "\n\n\n"
                                 "ge: 1e: demo\n"
                                 " 00:00:00 1970\n\n"); // from column 2 - 12 on
}

// -- Footers -----------------------------------------------------------------------------------

TEST_F(Listing, FooterHoldsFileAndVersion) {
  EXPECT_EQ(FooterOf("main.uil", version_string), kFooter);
}

TEST_F(Listing, FooterOfOneRowLeavesAColumn) {
  const std::string name(40, 'n');
  EXPECT_EQ(FooterOf(name, version_string),
            "\n\n"
            "nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn 3.0.2 Mon Jun 28 11:17:13 PDT 1999\n");
  // One more: both centred, from column 37 - 20 and 37 - 17 on.
  EXPECT_EQ(FooterOf(name + "n", version_string),
            "\n"
            "                 nnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnnn                 \n"
            "                    3.0.2 Mon Jun 28 11:17:13 PDT 1999                     \n");
}

TEST_F(Listing, FooterShowsTheLastPartOfALongPath) {
  EXPECT_EQ(FooterOf("/" + std::string(70, 'd') + "/main.uil", version_string), kFooter);
  // 75 characters still fit.
  const std::string path = "/" + std::string(65, 'd') + "/main.uil";
  EXPECT_EQ(FooterOf(path, version_string),
            "\n" + path +
                "\n"
                "                    3.0.2 Mon Jun 28 11:17:13 PDT 1999                     \n");
}

TEST_F(Listing, FooterLeavesOutWhatIsWiderThanTheRow) {
  EXPECT_EQ(FooterOf(std::string(76, 'n'), version_string),
            "\n\n"
            "                    3.0.2 Mon Jun 28 11:17:13 PDT 1999                     \n");
  listing_width = 10;
  EXPECT_EQ(FooterOf("main.uil", version_string), "\n main.uil \n\n");
  EXPECT_EQ(FooterOf("longer/than/that", "1.0"), "\n\nthat   1.0\n");
  EXPECT_EQ(FooterOf("longer/than/that", "1.0.2.3456"), "\n   that   \n1.0.2.3456\n");
}

// -- Rows --------------------------------------------------------------------------------------

TEST_F(Listing, RowsKeepTheirTrailingBlanks) {
  EXPECT_EQ(LineOf(7, "value x : 1;"), Row("000007: value x : 1;"));
  EXPECT_EQ(row_counter, 1);
  EXPECT_EQ(page_counter, 0);
}

TEST_F(Listing, EmptyLinePrintsNoRow) {
  EXPECT_EQ(LineOf(7, ""), "");
  EXPECT_EQ(row_counter, 0);
}

TEST_F(Listing, LinesBehindTheLargestNumberKeepIt) {
  yylineno = INT_MAX - 1;
  for (int i = 0; i < 2; ++i) {
    PutListing("a\n", 2);
    EXPECT_EQ(yylineno, INT_MAX);
  }
}

TEST_F(Listing, EmptyLineBeginsNoPageHoweverNarrow) {
  listing_width = 9; // one column behind the number
  EXPECT_EQ(LineOf(7, ""), "");
  EXPECT_EQ(page_counter, 0);
}

TEST_F(Listing, LongLineGoesOnWithoutANumber) {
  EXPECT_EQ(LineOf(1, std::string(67, 'a')), "000001: " + std::string(67, 'a') + "\n");
  EXPECT_EQ(LineOf(2, std::string(68, 'b')),
            "000002: " + std::string(67, 'b') + "\n" + Row("        b"));
  EXPECT_EQ(row_counter, 3);
  // With its newline a line of 135 characters.
  EXPECT_EQ(LineOf(3, std::string(134, 'c')),
            "000003: " + std::string(67, 'c') + "\n" + "        " + std::string(67, 'c') + "\n");
  EXPECT_EQ(row_counter, 5);
  EXPECT_EQ(LineOf(4, std::string(135, 'd')), "000004: " + std::string(67, 'd') + "\n" +
                                                  "        " + std::string(67, 'd') + "\n" +
                                                  Row("        d"));
  EXPECT_EQ(row_counter, 8);
}

TEST_F(Listing, LineNumbersAboveAMillion) {
  EXPECT_EQ(LineOf(999999, "a"), Row("999999: a"));
  EXPECT_EQ(LineOf(1000000, "a"), Row("*00000: a"));
  EXPECT_EQ(LineOf(1099999, "a"), Row("*99999: a"));
  EXPECT_EQ(LineOf(1123456, std::string(67, 'a')),
            "*123456: " + std::string(66, 'a') + "\n" + Row("         a"));
}

TEST_F(Listing, ZeroByteEndsTheRow) {
  std::string text(70, 'a');
  text[3] = '\0';
  EXPECT_EQ(LineOf(1, text), "000001: aaa\n" + Row("        aaa"));
  EXPECT_EQ(row_counter, 2);
}

TEST_F(Listing, NarrowColumnsLeaveOneForTheText) {
  listing_width = 3;
  EXPECT_EQ(LineOf(1, "abc"), "000001: a\n        b\n        c\n");
  listing_width = 10;
  EXPECT_EQ(LineOf(1, "abc"), "000001: ab\n        c\n");
}

TEST_F(Listing, DiagnosticsStandUnderTheirLine) {
  PutListing("abc", 3);
  ErrorMessage(kWarning, "one");
  ErrorMessage(kSyntax, "two");
  EXPECT_EQ(LineOf(1, ""), Row("000001: abc") + " warning: one\n  syntax: expected two\n\n");
  EXPECT_EQ(row_counter, 1);
}

// -- Pages -------------------------------------------------------------------------------------

// A line moves to the next page when its last row would stand above its first one there.
TEST_F(Listing, LineIsNotSplitBetweenPages) {
  Open("");
  listing_length = 4;
  row_counter = 2;
  page_counter = 5;
  EXPECT_EQ(LineOf(1, std::string(68, 'a')),
            "000001: " + std::string(67, 'a') + "\n" + Row("        a"));
  EXPECT_EQ(row_counter, 4);
  row_counter = 3;
  EXPECT_EQ(LineOf(2, std::string(68, 'b')), "\n" + std::string(kFooter) + Header(6) + "000002: " +
                                                 std::string(67, 'b') + "\n" + Row("        b"));
  EXPECT_EQ(row_counter, 6);
  EXPECT_EQ(page_counter, 6);
}

TEST_F(Listing, DiagnosticsCountForThePageOfTheirLineOnly) {
  Open("");
  listing_length = 3;
  row_counter = 1;
  PutListing("abc", 3);
  ErrorMessage(kError, "one");
  ErrorMessage(kError, "two");
  EXPECT_EQ(LineOf(1, ""), "\n\n" + std::string(kFooter) + Header(1) + Row("000001: abc") +
                               "   error: one\n   error: two\n\n");
  EXPECT_EQ(row_counter, 4);
}

TEST_F(Listing, PagesHoldTheirLengthOfRows) {
  Open("");
  listing_length = 3;
  PutLines("module demo\n\nvalue\n  a : 1;\nend module;\n");
  EXPECT_EQ(WholeListing(), Header(1) + Row("000001: module demo") + Row("000003: value") +
                                Row("000004:   a : 1;") + kFooter + Header(2) +
                                Row("000005: end module;") + "\n\n" + kFooter);
}

TEST_F(Listing, LastPageThatIsFullHasOneFooter) {
  Open("");
  listing_length = 2;
  PutLines("a\nb\n");
  EXPECT_EQ(WholeListing(), Header(1) + Row("000001: a") + Row("000002: b") + kFooter);
}

// The counter stays on the boundary, so an empty line there has a page of its own.
TEST_F(Listing, EmptyLineAtThePageBoundary) {
  Open("");
  listing_length = 2;
  PutLines("\na\n");
  EXPECT_EQ(WholeListing(), Header(1) + kFooter + Header(2) + Row("000002: a") + "\n" + kFooter);
}

TEST_F(Listing, FooterNamesTheFileOfTheLineThatEndsThePage) {
  Open("");
  listing_length = 2;
  Put("part.uil", "");
  PutLines("a\n");
  ASSERT_NE(FilesOpen("part.uil", true), nullptr);
  PutLines("b\n");
  EXPECT_EQ(WholeListing(),
            Header(1) + Row("000001: a") + Row("000001: b") +
                "\n\n"
                "part.uil                                 3.0.2 Mon Jun 28 11:17:13 PDT 1999\n");
}

TEST_F(Listing, DefaultPageHas54Rows) {
  Open("");
  std::string expected = Header(1);
  for (int i = 1; i <= 55; ++i) {
    PutLines("x\n");
    expected += i == 55 ? kFooter + Header(2) : "";
    expected +=
        Row(i < 10 ? "00000" + std::to_string(i) + ": x" : "0000" + std::to_string(i) + ": x");
  }
  EXPECT_EQ(WholeListing(), expected + std::string(53, '\n') + kFooter);
}

TEST_F(Listing, NothingReadGivesAnEmptyListing) { EXPECT_EQ(WholeListing(), ""); }

TEST_F(Listing, ReportAndListingComeFromOneReading) {
  Open("");
  PutListing("a", 1);
  ErrorMessage(kError, "one");
  std::string pages;
  EXPECT_EQ(ErrorsOf([&] { pages = WholeListing(); }), "main.uil(1): a\n   error: one\n\n");
  EXPECT_EQ(pages,
            Header(1) + Row("000001: a") + "   error: one\n\n" + std::string(53, '\n') + kFooter);
}

// -- The file ----------------------------------------------------------------------------------

TEST_F(Listing, FileIsEmptiedWhenItIsWritten) {
  Put("list", std::string(100000, 'o'));
  Open("");
  listing_length = 1;
  listing_fp = std::fopen("list", "r+");
  ASSERT_NE(listing_fp, nullptr);
  PutLines("a\n");
  EXPECT_EQ(Contents("list").size(), 100000U);
  EXPECT_EQ(WriteListing(), 0);
  ASSERT_EQ(std::fclose(listing_fp), 0);
  listing_fp = nullptr;
  EXPECT_EQ(Contents("list"), Header(1) + Row("000001: a") + kFooter);
}

TEST_F(Listing, FileOnTheFirstDescriptorIsEmptiedToo) {
  Put("list", "old");
  const WithoutStandardInput without;
  const Stream closing(std::fopen("list", "r+"));
  listing_fp = closing.get();
  ASSERT_EQ(fileno(listing_fp), 0);
  EXPECT_EQ(WriteListing(), 0);
  listing_fp = nullptr;
  EXPECT_EQ(Contents("list"), "");
}

TEST_F(Listing, FileThatCannotBeEmptiedIsFatal) {
  Put("list", "old");
  listing_filename = "list";
  listing_fp = std::fopen("list", "r");
  ASSERT_NE(listing_fp, nullptr);
  EXPECT_EQ(ErrorsOf([] { WriteListing(); }), "kivuxl: Error writing file \"list\".\n[exit 1]");
}

TEST_F(Listing, ResetForgetsEverything) {
  Put("list", "");
  listing_fp = std::fopen("list", "w");
  PutLines("a\n");
  run_date_time = 5;
  ListingReset();
  EXPECT_EQ(listing, nullptr);
  EXPECT_EQ(listing_fp, nullptr);
  EXPECT_EQ(run_date_time, 0);
}
