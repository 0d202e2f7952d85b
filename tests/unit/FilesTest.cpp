// Source files: opening, the include search, the stack, and copying.

#include "SourceFiles.h"

#include <sys/stat.h>
#include <unistd.h>

#include <thread>

class Files : public SourceFiles {
protected:
  static std::string PathsInOrder() {
    std::string all;
    for (const ListItem *node = ListFirstNode(paths); node != nullptr; node = node->next) {
      const auto *path = static_cast<const Kivu_IncludePath *>(node->data);
      EXPECT_EQ(path->kind, 0);
      all += std::string(path->path) + ";";
    }
    return all;
  }
};

TEST_F(Files, PathsKeepTheirOrderAndAreCopies) {
  std::string path = "b";
  FilesAddPath(path.c_str());
  path = "a";
  FilesAddPath(path.c_str());
  FilesAddPath("b");
  EXPECT_EQ(PathsInOrder(), "b;a;b;");
}

TEST_F(Files, PathsWithoutMemoryAreFatal) {
  for (long allocations = 0; allocations < 4; ++allocations) {
    AllocFailAfter(allocations);
    paths = nullptr;
    EXPECT_EQ(ErrorsOf([] { FilesAddPath("dir"); }),
              "kivuxl: FilesAddPath: Memory allocation error.\n[exit 1]");
  }
}

TEST_F(Files, MainFileIsNotSearchedFor) {
  std::filesystem::create_directory("dir");
  Put("dir/a.uil", "x");
  FilesAddPath("dir");
  EXPECT_EQ(FilesOpen("a.uil", false), nullptr);
  EXPECT_EQ(FilesDepth(), 0);
  EXPECT_EQ(ListLength(files), 0U);
  EXPECT_STREQ(FilesCurrentFile(), "");
}

TEST_F(Files, MainFileStandsAtTheBottomOfTheStack) {
  yylineno = 17;
  Open("a\nb");
  EXPECT_EQ(yylineno, 1);
  EXPECT_EQ(file_number, 1);
  EXPECT_EQ(FilesDepth(), 1);
  EXPECT_STREQ(FilesCurrentFile(), "main.uil");
  const auto *info = static_cast<const FileInfo *>(ListGetLast(filenames));
  EXPECT_EQ(info->nfile, 1);
  EXPECT_STREQ(info->name, "main.uil");
  EXPECT_EQ(info->lineno, 0);
  EXPECT_EQ(FilesClose(), 0);
  EXPECT_EQ(FilesDepth(), 1);
}

TEST_F(Files, IncludeOfTheCurrentDirectoryWins) {
  std::filesystem::create_directory("dir");
  Put("dir/b.uil", "in_dir");
  Put("b.uil", "here");
  FilesAddPath("dir");
  Open("a");
  ASSERT_NE(FilesOpen("b.uil", true), nullptr);
  EXPECT_STREQ(FilesCurrentFile(), "b.uil");
  EXPECT_EQ(Tokens(), "here | a");
}

TEST_F(Files, IncludeIsFoundInTheSecondDirectoryUnderItsPath) {
  std::filesystem::create_directory("one");
  std::filesystem::create_directory("two");
  std::filesystem::create_directory("one/b.uil"); // not a file
  Put("two/b.uil", "x\n@");
  FilesAddPath("none");
  FilesAddPath("one");
  FilesAddPath("two");
  Open("a");
  ASSERT_NE(FilesOpen("b.uil", true), nullptr);
  EXPECT_STREQ(FilesCurrentFile(), "two/b.uil");
  EXPECT_EQ(Tokens(), "x | a");
  EXPECT_EQ(Report(), "two/b.uil(2): @a\n"
                      "  syntax: expected [1]: \"@\" substituting whitespace\n\n");
}

TEST_F(Files, ClosingTellsWhetherAFileIsLeft) {
  Put("b.uil", "b");
  Open("a");
  ASSERT_NE(FilesOpen("b.uil", true), nullptr);
  EXPECT_EQ(FilesClose(), 1);
  EXPECT_EQ(FilesDepth(), 1);
  EXPECT_EQ(FilesClose(), 0);
  EXPECT_EQ(Tokens(), "a");
}

TEST_F(Files, IncludeThatNoDirectoryHasIsNone) {
  FilesAddPath("none");
  Open("a");
  EXPECT_EQ(FilesOpen("b.uil", true), nullptr);
  EXPECT_EQ(FilesDepth(), 1);
}

TEST_F(Files, DirectoriesAreNoSources) {
  std::filesystem::create_directory("dir");
  EXPECT_EQ(FilesOpen("dir", false), nullptr);
  EXPECT_EQ(FilesOpen("", false), nullptr);
}

// In a child, which gives up the rights that may read everything.
TEST_F(Files, UnreadableFilesAreNoSources) {
  Put("secret", "x");
  std::filesystem::permissions("secret", std::filesystem::perms::none);
  std::filesystem::permissions(scratch, std::filesystem::perms::all);
  EXPECT_EXIT(
      {
        constexpr uid_t kNobody = 65534;
        if (geteuid() == 0 && seteuid(kNobody) != 0) {
          std::_Exit(9);
        }
        std::_Exit(FilesOpen("secret", false) == nullptr ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(Files, PipesAreReadLikeFiles) {
  ASSERT_EQ(mkfifo("pipe", 0600), 0);
  std::thread writer([] { Put("pipe", "from a pipe"); });
  ASSERT_NE(FilesOpen("pipe", false), nullptr);
  EXPECT_EQ(Tokens(), "from | a | pipe");
  writer.join();
}

TEST_F(Files, ReadErrorsAreFatal) {
  // Readable by its permissions, but its first page is not mapped.
  if (std::FILE *memory = std::fopen("/proc/self/mem", "r"); memory != nullptr) {
    std::fclose(memory);
  } else {
    GTEST_SKIP() << "no file to fail on";
  }
  ASSERT_NE(FilesOpen("/proc/self/mem", false), nullptr);
  EXPECT_EQ(ErrorsOf([] { yylex(); }), "kivuxl: Error reading file \"/proc/self/mem\".\n[exit 1]");
}

TEST_F(Files, FileIsReadOnceOnly) {
  const std::string message = "kivuxl: FilesOpen: File already included.\n[exit 1]";
  Put("b.uil", "b");
  Open("a");
  EXPECT_EQ(ErrorsOf([] { FilesOpen("main.uil", true); }), message);
  ASSERT_NE(FilesOpen("b.uil", true), nullptr);
  EXPECT_EQ(ErrorsOf([] { FilesOpen("b.uil", true); }), message);
  EXPECT_EQ(Tokens(), "b | a");
  EXPECT_EQ(ErrorsOf([] { FilesOpen("b.uil", true); }), message);
  EXPECT_NE(FilesOpen("./b.uil", true), nullptr) << "another path is another file";
}

TEST_F(Files, LineNumbersGoOnAfterAnInclude) {
  Put("b.uil", "b1\nb2\nb3\n");
  Open("a1\na2\na3 @\n");
  EXPECT_EQ(NextToken(), "a1");
  EXPECT_EQ(NextToken(), "a2");
  ASSERT_NE(FilesOpen("b.uil", true), nullptr);
  EXPECT_EQ(static_cast<const FileInfo *>(ListGetLast(filenames))->lineno, 2);
  EXPECT_EQ(file_number, 2);
  EXPECT_EQ(FilesDepth(), 2);
  EXPECT_EQ(Tokens(), "b1 | b2 | b3 | a3");
  EXPECT_EQ(file_number, 1);
  EXPECT_EQ(FilesDepth(), 1);
  EXPECT_STREQ(FilesCurrentFile(), "b.uil");
  EXPECT_EQ(Report(), "main.uil(3): a3 @\n"
                      "  syntax: expected [4]: \"@\" substituting whitespace\n\n");
}

TEST_F(Files, LineThatIncludesHoldsTheFirstLineOfTheInclude) {
  Put("b.uil", "b1\nb2\n");
  Open("a1 rest\na2");
  EXPECT_EQ(NextToken(), "a1");
  ASSERT_NE(FilesOpen("b.uil", true), nullptr);
  EXPECT_EQ(Tokens(), "b1 | b2 | rest | a2");
  std::string lines;
  for (const ListItem *node = ListFirstNode(listing); node != nullptr; node = node->next) {
    const auto *line = static_cast<const ListingLine *>(node->data);
    lines += std::to_string(line->file_number) + " " + line->file_name + " " +
             std::to_string(line->line_number) + " <" + line->text + ">\n";
  }
  EXPECT_EQ(lines, "1 main.uil 1 <a1b1>\n"
                   "2 b.uil 2 <b2>\n"
                   "1 main.uil 1 < rest>\n"
                   "1 main.uil 2 <a2>\n");
}

TEST_F(Files, IncludesAreReadInsideEachOther) {
  constexpr int kDeep = 100;
  for (int depth = 1; depth < kDeep; ++depth) {
    Put("f" + std::to_string(depth), "n" + std::to_string(depth) + " ");
  }
  Open("last");
  std::string expected = "last";
  for (int depth = 1; depth < kDeep; ++depth) {
    ASSERT_NE(FilesOpen(("f" + std::to_string(depth)).c_str(), true), nullptr);
    expected = "n" + std::to_string(depth) + " | " + expected;
  }
  EXPECT_EQ(FilesDepth(), kDeep);
  EXPECT_EQ(Tokens(), expected);
}

TEST_F(Files, SourcesAreKnownByAnyPath) {
  Put("other", "x");
  Put("b.uil", "b");
  Open("a");
  ASSERT_NE(FilesOpen("b.uil", true), nullptr);
  std::filesystem::create_symlink("main.uil", "soft");
  std::filesystem::create_hard_link("b.uil", "hard");
  EXPECT_EQ(Tokens(), "b | a");
  EXPECT_TRUE(FilesIsSource("main.uil"));
  EXPECT_TRUE(FilesIsSource("./soft"));
  EXPECT_TRUE(FilesIsSource("hard"));
  EXPECT_FALSE(FilesIsSource("other"));
  EXPECT_FALSE(FilesIsSource("missing"));
}

TEST_F(Files, ListingIsNoInclude) {
  Put("list", "x");
  std::filesystem::create_hard_link("list", "linked");
  listing_filename = "list";
  Open("a");
  listing_fp = std::fopen("list", "r+");
  ASSERT_NE(listing_fp, nullptr);
  EXPECT_EQ(ErrorsOf([] { FilesOpen("linked", true); }),
            "kivuxl: Output file list is also an input.\n[exit 1]");
  EXPECT_EQ(Contents("list"), "x");
  Put("b.uil", "b");
  EXPECT_NE(FilesOpen("b.uil", true), nullptr);
}

TEST_F(Files, ListingOnTheFirstDescriptorIsNoInclude) {
  Put("list", "x");
  listing_filename = "list";
  Open("a");
  EXPECT_EQ(ErrorsOf([] {
              const WithoutStandardInput without;
              const Stream closing(std::fopen("list", "r+"));
              listing_fp = closing.get();
              EXPECT_EQ(fileno(listing_fp), 0);
              FilesOpen("list", true);
            }),
            "kivuxl: Output file list is also an input.\n[exit 1]");
  listing_fp = nullptr; // closed
}

TEST_F(Files, OpeningWithoutMemoryIsFatal) {
  Put("a", "x");
  const std::string no_memory = "kivuxl: FilesOpen: Memory allocation failure.\n[exit 1]";
  const std::string no_buffer = "kivuxl: FilesOpen: Cannot create flex buffer..\n[exit 1]";
  std::string outcomes;
  for (long allocations = 0; outcomes.find("opened") == std::string::npos; ++allocations) {
    AllocFailAfter(allocations);
    const std::string errors = ErrorsOf([] { FilesOpen("a", false); });
    EXPECT_TRUE(errors == no_memory || errors == no_buffer || errors.empty()) << errors;
    outcomes += errors == no_memory ? "memory " : errors == no_buffer ? "buffer " : "opened";
    ResetAll();
    program_name = "kivuxl";
  }
  EXPECT_EQ(outcomes,
            "memory memory memory memory memory memory memory buffer buffer buffer opened");
}

TEST_F(Files, CopyHasTheSameBytes) {
  std::string bytes;
  for (int i = 0; i < 20000; ++i) {
    bytes += static_cast<char>(i * 7);
  }
  for (const std::size_t size : {0U, 1U, 8192U, 8193U, 20000U}) {
    Put("from", bytes.substr(0, size));
    EXPECT_EQ(ErrorsOf([] { EXPECT_EQ(FilesCopyFile("from", "to"), 1); }), "");
    EXPECT_EQ(Contents("to"), bytes.substr(0, size));
  }
}

TEST_F(Files, CopyReportsWhatFailed) {
  Put("from", "x");
  std::filesystem::create_directory("dir");
  const auto failure = [](const char *from, const char *to) {
    return ErrorsOf([&] { EXPECT_EQ(FilesCopyFile(from, to), 0); });
  };
  EXPECT_EQ(failure("none", "to"), "kivuxl: Cannot open file \"none\" for reading.\n");
  EXPECT_FALSE(std::filesystem::exists("to"));
  EXPECT_EQ(failure("from", "none/to"), "kivuxl: Cannot open file \"none/to\" for writing.\n");
  EXPECT_EQ(failure("dir", "to"), "kivuxl: Error reading file \"dir\".\n");
}

TEST_F(Files, CopyToAFullDeviceFails) {
  if (!std::filesystem::exists("/dev/full")) {
    GTEST_SKIP() << "no device that is always full";
  }
  for (const std::size_t size : {std::size_t{1}, std::size_t{100000}}) {
    Put("from", std::string(size, 'x'));
    EXPECT_EQ(ErrorsOf([] { EXPECT_EQ(FilesCopyFile("from", "/dev/full"), 0); }),
              "kivuxl: Error writing file \"/dev/full\".\n");
  }
}

TEST_F(Files, ResetForgetsEverything) {
  FilesAddPath("dir");
  Put("b.uil", "b");
  Open("a");
  ASSERT_NE(FilesOpen("b.uil", true), nullptr);
  FilesReset();
  EXPECT_EQ(FilesDepth(), 0);
  EXPECT_EQ(file_number, 0);
  EXPECT_STREQ(FilesCurrentFile(), "");
  EXPECT_FALSE(FilesIsSource("main.uil"));
  EXPECT_EQ(ListLength(paths), 0U);
  char byte = 0;
  EXPECT_EQ(FilesRead(&byte, 1), 0U);
}
