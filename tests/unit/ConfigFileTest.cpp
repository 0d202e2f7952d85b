// Lines of a configuration file: which are read, how they are cut into words, what is said of them.

#include "ConfigFile.h"

#include <cstring>
#include <vector>

#include "SourceFiles.h"

class ConfigFile : public SourceFiles {
protected:
  void TearDown() override {
    ConfigFileClose();
    SourceFiles::TearDown();
  }

  static void OpenText(std::string_view text) {
    Put("options.cfg", text);
    ASSERT_TRUE(ConfigFileOpen("options.cfg"));
  }

  // All lines of the file, their words separated by bars, one line a line.
  static std::string Lines(std::string_view text) {
    OpenText(text);
    std::string result;
    ConfigLine line;
    for (int found = cfg_file_parse_line(&line); found != 0; found = cfg_file_parse_line(&line)) {
      EXPECT_EQ(found, 1);
      EXPECT_EQ(line.cfg_argv.size(), static_cast<std::size_t>(line.nargs) + 1);
      EXPECT_EQ(line.cfg_argv.back(), nullptr);
      for (int i = 0; i < line.nargs; ++i) {
        result += (i == 0 ? "" : "|") + std::string(line.cfg_argv[static_cast<std::size_t>(i)]);
      }
      result += '\n';
    }
    return result;
  }

  static std::string Complaints(std::string_view text) {
    return ErrorsOf([text] { Lines(text); });
  }
};

TEST_F(ConfigFile, LinesAreCutAtBlanksAndTabs) {
  EXPECT_EQ(Lines("-o out\n \t-shell\ta  b\t \tc \nname.uil\n"),
            "-o|out\n-shell|a|b|c\nname.uil\n");
}

TEST_F(ConfigFile, EmptyLinesAndCommentsArePassedOver) {
  EXPECT_EQ(Lines("\n   \n# -o out\n  \t# more\n-stub\n\n"), "-stub\n");
  EXPECT_EQ(Lines(""), "");
  EXPECT_EQ(Lines("# no more"), "");
}

TEST_F(ConfigFile, LastLineNeedsNoNewline) { EXPECT_EQ(Lines("-stub\n-o out"), "-stub\n-o|out\n"); }

TEST_F(ConfigFile, CommentEndsALineAnywhere) {
  EXPECT_EQ(Lines("-stub # stubs\n-o a#b c\n-wrap#\n"), "-stub\n-o|a\n-wrap\n");
}

TEST_F(ConfigFile, LineMayBeOfAnyLength) {
  const std::string name(20000, 'x');
  EXPECT_EQ(Lines("-o " + name + "\n"), "-o|" + name + "\n");
}

TEST_F(ConfigFile, SecondOptionOnALineIsReported) {
  const std::string only = "kivuxl: Only one option per line in a configuration file:\n\t\t\"";
  EXPECT_EQ(Complaints("  -sfx -x -y \n"), only +
                                               "-sfx -x -y \".\n"
                                               "kivuxl: Wrong number (3) of arguments for option "
                                               "\"-sfx\".\n");
  EXPECT_EQ(Complaints("-sfx\t-\n"), only + "-sfx\t-\".\n");
  EXPECT_EQ(Complaints("-stub # not -wrap\n"), only + "-stub # not -wrap\".\n");
  EXPECT_EQ(Complaints("-o a-b\n--stub\n"), "");
}

TEST_F(ConfigFile, CountsAreCheckedByTheFirstWord) {
  EXPECT_EQ(Complaints("-stub x\n-o\n-shell a b\n-ng a b c\n-main a b\n-c x\n"),
            "kivuxl: Wrong number (2) of arguments for option \"-stub\".\n"
            "kivuxl: Wrong number (1) of arguments for option \"-o\".\n"
            "kivuxl: Wrong number (3) of arguments for option \"-shell\".\n"
            "kivuxl: Wrong number (4) of arguments for option \"-ng\".\n"
            "kivuxl: Wrong number (3) of arguments for option \"-main\".\n"
            "kivuxl: Wrong number (2) of arguments for option \"-c\".\n");
  EXPECT_EQ(Complaints("-stub\n-o x\n-shell a b c\n-ng\n-ng a b\n-main\n-main a\n-c\n"), "");
}

TEST_F(ConfigFile, OtherWordsAreNotChecked) {
  EXPECT_EQ(Complaints("-h x\n-ver x\n-yydebug x\n-Ix y z\n-specs x y\nfile x y\n-unknown x y\n"),
            "");
}

TEST_F(ConfigFile, OpensFilesOnly) {
  EXPECT_FALSE(ConfigFileOpen("none.cfg"));
  std::filesystem::create_directory("d");
  EXPECT_FALSE(ConfigFileOpen("d"));
  EXPECT_FALSE(ConfigFileIsOpen());
  OpenText("-stub\n");
  EXPECT_TRUE(ConfigFileIsOpen());
  ConfigFileClose();
  EXPECT_FALSE(ConfigFileIsOpen());
}

TEST_F(ConfigFile, ReadErrorsAreFatal) {
  ASSERT_TRUE(ConfigFileOpen("/proc/self/mem")); // opens, and fails when its first byte is read
  ConfigLine line;
  EXPECT_EQ(ErrorsOf([&line] { cfg_file_parse_line(&line); }),
            "kivuxl: Error reading file \"/proc/self/mem\".\n[exit 1]");
}
