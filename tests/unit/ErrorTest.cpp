// Diagnostics: what is printed at once, what is attached to lines, and the report of these.

#include "SourceFiles.h"

#include <fcntl.h>
#include <unistd.h>

class Error : public SourceFiles {};

TEST_F(Error, ImmediateMessageNamesTheProgramAndEndsInAPoint) {
  EXPECT_EQ(ErrorsOf([] { ErrorMessage(kImmediate, "No module name found in UIL"); }),
            "kivuxl: No module name found in UIL.\n");
  EXPECT_EQ(ErrorsOf([] { ErrorMessage(kImmediate, "Ends in one."); }), "kivuxl: Ends in one..\n");
  EXPECT_EQ(ListLength(listing), 0U);
}

TEST_F(Error, FatalMessagesEndTheRun) {
  EXPECT_EQ(ErrorsOf([] { FatalErrorMessage("Broken", 3); }), "kivuxl: Broken.\n[exit 3]");
  EXPECT_EQ(ErrorsOf([] { FatalErrorFormat("Broken %s", "twice"); }),
            "kivuxl: Broken twice.\n[exit 1]");
  EXPECT_EQ(ErrorsOf([] { OutOfMemory(); }), "kivuxl: Out of memory.\n[exit 1]");
  EXPECT_EQ(ErrorsOf([] { Shutdown(2); }), "[exit 2]");
}

TEST_F(Error, FormattedMessageIsOfAnyLength) {
  const std::string name(100000, 'n');
  EXPECT_EQ(ErrorsOf([&] { ErrorFormat(kImmediate, "Name %s", name.c_str()); }),
            "kivuxl: Name " + name + ".\n");
  EXPECT_EQ(error_message, "Name " + name);
  EXPECT_EQ(ErrorsOf([] { ErrorFormat(kImmediate, "<%s>", error_message.c_str()); }),
            "kivuxl: <Name " + name + ">.\n");
  EXPECT_EQ(ErrorsOf([] { ErrorFormat(kImmediate, "%s", ""); }), "kivuxl: .\n");
}

TEST_F(Error, OtherKindsAreAttachedToTheLineBeingRead) {
  PutListing("value\n", 6);
  PutListing("  x", 3);
  EXPECT_EQ(ErrorsOf([] {
              error_message = "kept";
              ErrorMessage(kError, error_message.c_str());
              error_message = "overwritten";
            }),
            "");
  const auto *line = static_cast<const ListingLine *>(ListGetLast(listing));
  EXPECT_STREQ(line->text, "  x");
  ASSERT_EQ(ListLength(line->errors), 1U);
  const auto *error = static_cast<const ErrorRec *>(ListGetFirst(line->errors));
  EXPECT_EQ(error->error_type, kError);
  EXPECT_STREQ(error->msg, "kept");
}

TEST_F(Error, CurrentLineIsNeverNullAndNeverComplete) {
  ListingLine *first = ListingCurrentLine();
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(ListingCurrentLine(), first);
  PutListing("a\n", 2);
  EXPECT_TRUE(first->complete);
  EXPECT_NE(ListingCurrentLine(), first);
  EXPECT_EQ(ListLength(listing), 2U);
}

TEST_F(Error, ReportGroupsTheDiagnosticsUnderTheirLines) {
  Open("value\n  x : y\nend\n");
  PutListing("value\n", 6);
  PutListing("  x : y", 7);
  ErrorMessage(kWarning, "one");
  ErrorMessage(kError, "two");
  PutListing("\n", 1);
  PutListing("end\n", 4);
  ErrorMessage(kSyntax, "names = case_[in]sensitive");
  int count = 0;
  EXPECT_EQ(ErrorsOf([&] { count = WriteListing(); }),
            "main.uil(2):   x : y\n"
            " warning: one\n"
            "   error: two\n"
            "\n"
            "main.uil(4): \n"
            "  syntax: expected names = case_[in]sensitive\n"
            "\n");
  EXPECT_EQ(count, 2);
}

TEST_F(Error, WarningsAreNoErrors) {
  PutListing("a", 1);
  ErrorMessage(kWarning, "mind");
  int count = -1;
  EXPECT_EQ(ErrorsOf([&] { count = WriteListing(); }), "(0): a\n warning: mind\n\n");
  EXPECT_EQ(count, 0);
}

TEST_F(Error, UnknownKindsPrintAndCountAsErrors) {
  ListingLine *line = ListingCurrentLine();
  FilesAddError(line, static_cast<ErrorType>(0), "zero");
  FilesAddError(line, kImmediate, "four");
  FilesAddError(line, static_cast<ErrorType>(255), "last");
  int count = 0;
  EXPECT_EQ(ErrorsOf([&] { count = WriteErrors(stderr, line, false); }),
            "   error: zero\n   error: four\n   error: last\n\n");
  EXPECT_EQ(count, 3);
}

TEST_F(Error, LineWithoutDiagnosticsWritesNothing) {
  PutListing("a\n", 2);
  EXPECT_EQ(Report(), "");
}

TEST_F(Error, ReportedLineKeepsItsBytesUpToAZero) {
  const std::string_view text("a\x01\xe9\x7f z\0hidden\n", 14);
  PutListing(text.data(), static_cast<int>(text.size()));
  FilesAddError(static_cast<ListingLine *>(ListGetLast(listing)), kError, "odd");
  EXPECT_EQ(Report(), "(0): a\x01\xe9\x7f z\n   error: odd\n\n");
}

TEST_F(Error, LexicalErrorGivesTheColumnAndTheCharacters) {
  LexicalError("@", 1, "substituting whitespace", true);
  PutListing("@ab", 3);
  LexicalError("\r", 1, "substituting whitespace", true);
  LexicalError("\\\n", 2, "allowing it anyway", false);
  EXPECT_EQ(Report(), "(0): @ab\n"
                      "  syntax: expected [1]: \"@\" substituting whitespace\n"
                      "  syntax: expected [4]: \"\\r\" substituting whitespace\n"
                      " warning: [4]: \"\\\\n\" allowing it anyway\n"
                      "\n");
}

TEST_F(Error, LexicalErrorAfterACompleteLineBelongsToTheNext) {
  PutListing("a\n", 2);
  LexicalError("~", 1, "substituting whitespace", true);
  EXPECT_EQ(ListLength(listing), 2U);
  EXPECT_EQ(Report(), "(0): \n  syntax: expected [1]: \"~\" substituting whitespace\n\n");
}

TEST_F(Error, ProgressIsPrintedUpToTheLevelOfTheOptions) {
  testing::internal::CaptureStdout();
  UilPrintf(2, "Converting file %s", "hidden");
  UilPrintf(1, "Converting file %s", "a.uil");
  UilPrintf(0, "Ends itself: %d\n", 5);
  UilPrintf(1, "%s", "argument\n");
  UilPrintf(1, "%s", "");
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "Converting file a.uil\nEnds itself: 5\nargument\n\n\n");
}

TEST_F(Error, SilencedRunStillPrintsMessages) {
  verbose = 0;
  PutListing("a", 1);
  ErrorMessage(kWarning, "mind");
  testing::internal::CaptureStdout();
  UilPrintf(2, "progress");
  UilPrintf(1, "progress");
  EXPECT_EQ(ErrorsOf([] {
              ErrorMessage(kImmediate, "now");
              WriteListing();
            }),
            "kivuxl: now.\n(0): a\n warning: mind\n\n");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

// Both streams lead to one file, as under 2>&1.
TEST_F(Error, StreamsReadInOrder) {
  EXPECT_EXIT(
      {
        const int both = open("both", O_WRONLY | O_CREAT | O_APPEND, 0600);
        if (dup2(both, STDOUT_FILENO) < 0 || dup2(both, STDERR_FILENO) < 0) {
          std::exit(9);
        }
        std::fputs("first\n", stdout);
        ErrorMessage(kImmediate, "second");
        std::fputs("third\n", stdout);
        PutListing("fourth", 6);
        ErrorMessage(kError, "fifth");
        WriteListing();
        std::exit(0);
      },
      testing::ExitedWithCode(0), "");
  EXPECT_EQ(Contents("both"), "first\nkivuxl: second.\nthird\n(0): fourth\n   error: fifth\n\n");
}

TEST_F(Error, ExhaustionWhileReportingIsFatal) {
  ListingLine *line = ListingCurrentLine();
  for (long allocations = 0; allocations < 4; ++allocations) {
    AllocFailAfter(allocations);
    line->errors = nullptr;
    EXPECT_EQ(ErrorsOf([&] { FilesAddError(line, kError, "text"); }),
              "kivuxl: Out of memory.\n[exit 1]");
  }
  AllocFailAfter(4);
  line->errors = nullptr;
  EXPECT_EQ(ErrorsOf([&] { FilesAddError(line, kError, "text"); }), "");
}
