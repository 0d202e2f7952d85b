// The words of the command line: which option a word is, what it takes with it, what it changes.

#include "Options.h"

#include <set>
#include <string>
#include <vector>

#include "ConfigFile.h"
#include "Parser.h"
#include "SourceFiles.h"

class Options : public SourceFiles {
protected:
  // Reads the words as the program's arguments.
  static CommandLine Read(std::vector<const char *> words) {
    words.insert(words.begin(), "kivuxl");
    return OptionsRead(static_cast<int>(words.size()), words.data());
  }

  // What reading the words prints on standard error, and the status when that ends the run.
  static std::string Complaint(const std::vector<const char *> &words) {
    return ErrorsOf([&words] { Read(words); });
  }

  // The input file, "(none)" without one.
  static std::string Filename(const std::vector<const char *> &words) {
    return Read(words).filename.value_or("(none)");
  }

  // Reads the lines as a configuration file.
  static CommandLine ReadLines(std::string_view lines) {
    Put("options.cfg", lines);
    return Read({"-cfg", "options.cfg", "m.uil"});
  }

  static std::string LineComplaint(std::string_view lines) {
    return ErrorsOf([lines] { ReadLines(lines); });
  }

  static std::string PathOf(const ListItem *node) {
    return static_cast<const Kivu_IncludePath *>(node->data)->path;
  }

  static std::string Shells() {
    std::string result;
    for (const ListItem *node = ListFirstNode(shellinfo); node != nullptr; node = node->next) {
      const auto *shell = static_cast<const Kivu_ShellInfo *>(node->data);
      result += std::string(shell->childName) + ' ' + shell->shellName + ' ' + shell->shellClass +
                ' ' + shell->pkgName + ' ' + std::to_string(shell->kind) + '\n';
    }
    return result;
  }
};

// -- Defaults and flags ------------------------------------------------------------------------

TEST_F(Options, StartValues) {
  EXPECT_EQ(verbose, 1);
  EXPECT_EQ(interface_type, 2);
  EXPECT_EQ(orvo_revision, 3);
  EXPECT_TRUE(case_sensitive);
  EXPECT_EQ(spec_sfx, ".ads");
  EXPECT_EQ(body_sfx, ".adb");
  EXPECT_EQ(listing_width, 75);
  EXPECT_EQ(listing_length, 54);
  EXPECT_EQ(uil_package_suffix, "uil");
  EXPECT_EQ(cb_package_suffix, "callbacks");
  EXPECT_EQ(uil_instant_suffix, "");
  EXPECT_FALSE(widgets_record_suffix.has_value());
  EXPECT_STREQ(version_string, "3.0.2 Mon Jun 28 11:17:13 PDT 1999");
}

TEST_F(Options, ResetGivesBackTheStartValues) {
  Read({"-verbose", "-orvo4",   "-ci",    "-main", "d/n.x", "-stub",  "-wrap", "-make",   "-ux",
        "-spec",    ".s",       "-body",  ".b",    "-o",    "out",    "-apex", "-ada95",  "-dir",
        "d",        "-tmp",     "t",      "-v",    "list",  "-width", "9",     "-length", "8",
        "-widgets", "w",        "-sfx",   "s",     "-cbs",  "c",      "-inst", "i",       "-nouil",
        "-version", "-yydebug", "-shell", "a",     "b",     "c",      "-ng",   "m.uil"});
  OptionsReset();
  ParserReset();
  ScannerReset();
  EXPECT_EQ(verbose, 1);
  EXPECT_EQ(orvo_revision, 3);
  EXPECT_TRUE(case_sensitive);
  for (const bool flag : {override_case, emit_main, emit_stubs, emit_wrappers, emit_make, emit_ux,
                          apex, ada95, no_uil, forbid_generic_wrapper, forbid_generic_widgets}) {
    EXPECT_FALSE(flag);
  }
  for (const auto &text : {main_file, main_sfx, output_filename, outdir, tmpdir, listing_filename,
                           widgets_record_suffix}) {
    EXPECT_FALSE(text.has_value());
  }
  EXPECT_EQ(main_filename_type, 0);
  EXPECT_EQ(spec_sfx, ".ads");
  EXPECT_EQ(body_sfx, ".adb");
  EXPECT_EQ(uil_package_suffix, "uil");
  EXPECT_EQ(cb_package_suffix, "callbacks");
  EXPECT_EQ(uil_instant_suffix, "");
  EXPECT_EQ(listing_width, 75);
  EXPECT_EQ(listing_length, 54);
  EXPECT_EQ(shellinfo, nullptr);
  EXPECT_EQ(yydebug, 0);
  EXPECT_EQ(yy_flex_debug, 0);
  EXPECT_FALSE(Read({"m.uil"}).print_version);
}

TEST_F(Options, FlagsAreSetByTheirOwnWord) {
  struct Row {
    const char *word;
    const bool *flag;
  };
  const Row rows[] = {
      {"-stub", &emit_stubs},   {"-wrap", &emit_wrappers},  {"-make", &emit_make},
      {"-ux", &emit_ux},        {"-nouil", &no_uil},        {"-ada95", &ada95},
      {"-apex", &apex},         {"-gnat", &gnat},           {"-vads", &vads},
      {"-adaworld", &adaworld}, {"-objectada", &objectada}, {"-portable", &portable}};
  for (const Row &row : rows) {
    OptionsReset();
    EXPECT_EQ(Filename({row.word, "m.uil"}), "m.uil") << row.word;
    for (const Row &other : rows) {
      EXPECT_EQ(*other.flag, &other == &row) << row.word << " and " << other.word;
    }
  }
}

TEST_F(Options, LastOfTwoContraryFlagsCounts) {
  Read({"-ada95", "-ada83", "-orvo4", "-ada", "-verbose", "-w", "m.uil"});
  EXPECT_FALSE(ada95);
  EXPECT_EQ(orvo_revision, 3);
  EXPECT_EQ(verbose, 0);
}

TEST_F(Options, RevisionsOfTheInterface) {
  for (const auto &[word, revision] : std::vector<std::pair<const char *, int>>{
           {"-orvo4", 4}, {"-ada", 3}, {"-orvo", 3}, {"-orvo3", 3}}) {
    orvo_revision = 0;
    Read({word, "m.uil"});
    EXPECT_EQ(orvo_revision, revision) << word;
    EXPECT_EQ(interface_type, 2) << word;
  }
}

TEST_F(Options, CaseOptionsOverrideTheModule) {
  Read({"-ci", "m.uil"});
  EXPECT_FALSE(case_sensitive);
  EXPECT_TRUE(override_case);
  OptionsReset();
  case_sensitive = false;
  Read({"-cs", "m.uil"});
  EXPECT_TRUE(case_sensitive);
  EXPECT_TRUE(override_case);
}

TEST_F(Options, VersionIsRemembered) {
  EXPECT_FALSE(Read({"m.uil"}).print_version);
  EXPECT_TRUE(Read({"-ver", "m.uil"}).print_version);
  OptionsReset();
  EXPECT_TRUE(Read({"-version", "m.uil"}).print_version);
}

TEST_F(Options, TracingSwitchesBoth) {
  Read({"-yydebug", "m.uil"});
  EXPECT_EQ(yydebug, 1);
  EXPECT_EQ(yy_flex_debug, 1);
  ParserReset();
}

TEST_F(Options, HelpEndsTheRunAtOnce) {
  for (const char *word : {"-help", "-h"}) {
    const std::string text = Complaint({"-unknown", word, "-o"});
    EXPECT_TRUE(text.starts_with("kivuxl:  Unknown flag -unknown.\nUsage:\nkivuxl\n  [-ada] "))
        << text;
    EXPECT_TRUE(text.ends_with("in place of the default WML description.\n[exit 0]")) << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 108);
  }
}

// -- Words -------------------------------------------------------------------------------------

TEST_F(Options, UnknownFlagsAreReportedAndIgnored) {
  for (const char *word :
       {"-stars", "-c", "-", "-O", "-verbos", "-versions", "-widget", "-shells"}) {
    EXPECT_EQ(Complaint({word, "m.uil"}), "kivuxl:  Unknown flag " + std::string(word) + ".\n");
  }
}

TEST_F(Options, SecondInputFileEndsTheRun) {
  EXPECT_EQ(Complaint({"a.uil", "b.uil"}),
            "kivuxl:  Error, more than one filename specified.\n[exit 1]");
}

TEST_F(Options, EmptyWordIsAnInputFile) {
  EXPECT_EQ(Filename({""}), "");
  EXPECT_EQ(Filename({}), "(none)");
}

TEST_F(Options, WmdLeavesItsArgument) {
  EXPECT_EQ(Filename({"-wmd", "m.uil"}), "m.uil");
  EXPECT_EQ(Complaint({"-wmd", "file", "m.uil"}),
            "kivuxl:  Error, more than one filename specified.\n[exit 1]");
}

TEST_F(Options, CompilersExcludeEachOther) {
  const std::vector<const char *> words = {"-apex",     "-gnat",      "-vads",
                                           "-adaworld", "-objectada", "-portable"};
  for (const char *first : words) {
    for (const char *second : words) {
      OptionsReset();
      program_name = "kivuxl";
      EXPECT_EQ(Complaint({first, second, "m.uil"}),
                first == second ? ""
                                : "kivuxl: Specify only one compiler\n(-apex | -gnat | -vads | "
                                  "-adaworld | -objectada | -portable)..\n[exit 1]")
          << first << ' ' << second;
    }
  }
}

// -- Required arguments ------------------------------------------------------------------------

TEST_F(Options, MissingArgumentsEndTheRun) {
  struct Row {
    const char *word;
    const char *complaint;
    const char *in_file; // when it is another one
  };
  const Row rows[] = {
      {"-o", "The -o option requires a filename parameter", nullptr},
      {"-I", "The -I option requires a path parameter", nullptr},
      {"-v", "The -v option requires a filename parameter", nullptr},
      {"-width", "The -width option requires a parameter", nullptr},
      {"-length", "The -length option requires a parameter", nullptr},
      {"-dir", "The -dir option requires a directory parameter",
       "The -dir option requires a directory name."},
      {"-tmp", "The -tmp option requires a directory parameter",
       "The -tmp option requires a directory name."},
  };
  for (const Row &row : rows) {
    const std::string word = row.word;
    EXPECT_EQ(Complaint({"m.uil", row.word}),
              "kivuxl: " + std::string(row.complaint) + ".\n[exit 1]");
    const char *in_file = row.in_file == nullptr ? row.complaint : row.in_file;
    EXPECT_EQ(LineComplaint(word + "\n"), "kivuxl: Wrong number (1) of arguments for option \"" +
                                              word + "\".\nkivuxl: " + in_file + ".\n[exit 1]");
  }
}

TEST_F(Options, RequiredArgumentsMayBeginWithAMinus) {
  EXPECT_EQ(Filename({"-o", "-", "-v", "-list", "-dir", "-d", "-tmp", "-t", "m.uil"}), "m.uil");
  EXPECT_EQ(output_filename, "-");
  EXPECT_EQ(listing_filename, "-list");
  EXPECT_EQ(outdir, "-d");
  EXPECT_EQ(tmpdir, "-t");
}

TEST_F(Options, RequiredArgumentMayBeTheLastWord) {
  EXPECT_EQ(Filename({"m.uil", "-o", "out"}), "m.uil");
  EXPECT_EQ(output_filename, "out");
}

TEST_F(Options, SizesOfThePage) {
  Read({"-width", "1", "-length", "32767", "m.uil"});
  EXPECT_EQ(listing_width, 1);
  EXPECT_EQ(listing_length, 32767);
  Read({"-width", "32768", "-length", "99999999999999999999", "m.uil"});
  EXPECT_EQ(listing_width, 32767);
  EXPECT_EQ(listing_length, 32767);
  Read({"-width", "40columns", "m.uil"});
  EXPECT_EQ(listing_width, 40);
  for (const char *number : {"0", "-1", "wide", "", "-99999999999999999999"}) {
    EXPECT_EQ(Complaint({"-width", number, "m.uil"}),
              "kivuxl: The -width option requires a positive number.\n[exit 1]");
    EXPECT_EQ(Complaint({"-length", number, "m.uil"}),
              "kivuxl: The -length option requires a positive number.\n[exit 1]");
  }
}

TEST_F(Options, PathsAreJoinedOnTheCommandLine) {
  Read({"-Ione", "-Index", "-I-", "m.uil"});
  ASSERT_EQ(ListLength(paths), 3U);
  EXPECT_EQ(PathOf(paths->first), "one");
  EXPECT_EQ(PathOf(paths->first->next), "ndex");
  EXPECT_EQ(PathOf(paths->last), "-");
  EXPECT_EQ(Filename({"xI"}), "xI"); // no option
  EXPECT_EQ(ListLength(paths), 3U);
}

// -- Optional arguments ------------------------------------------------------------------------

TEST_F(Options, SuffixOptionsTakeAWordBeforeTheLast) {
  struct Row {
    const char *word;
    std::string *text;
  };
  for (const Row &row : {Row{"-sfx", &uil_package_suffix}, Row{"-cbs", &cb_package_suffix},
                         Row{"-inst", &uil_instant_suffix}}) {
    EXPECT_EQ(Filename({row.word, "x", "m.uil"}), "m.uil") << row.word;
    EXPECT_EQ(*row.text, "x");
    EXPECT_EQ(Filename({row.word, "m.uil"}), "m.uil") << row.word;
    EXPECT_EQ(*row.text, "");
    *row.text = "old";
    emit_stubs = false;
    EXPECT_EQ(Filename({row.word, "-stub", "m.uil"}), "m.uil") << row.word;
    EXPECT_EQ(*row.text, "");
    EXPECT_TRUE(emit_stubs);
    *row.text = "old";
    EXPECT_EQ(Filename({"m.uil", row.word}), "m.uil") << row.word;
    EXPECT_EQ(*row.text, "");
  }
}

TEST_F(Options, WidgetsPassesOverAWordInAnyCase) {
  EXPECT_EQ(Filename({"-widgets", "rec", "m.uil"}), "m.uil");
  EXPECT_EQ(widgets_record_suffix, "rec");
  EXPECT_EQ(Filename({"-widgets", "-stub", "m.uil"}), "m.uil");
  EXPECT_EQ(widgets_record_suffix, "widgets");
  EXPECT_FALSE(emit_stubs);
  EXPECT_EQ(Filename({"-widgets", "m.uil"}), "(none)");
  EXPECT_EQ(Filename({"m.uil", "-widgets"}), "m.uil");
}

TEST_F(Options, MainTakesAName) {
  EXPECT_EQ(Filename({"-main", "dir/name.ext", "m.uil"}), "m.uil");
  EXPECT_TRUE(emit_main);
  EXPECT_EQ(main_filename_type, 2);
  EXPECT_EQ(main_file, "dir/name");
  EXPECT_EQ(main_sfx, ".ext");
}

TEST_F(Options, MainWithoutAName) {
  EXPECT_EQ(Filename({"-main", "m.uil"}), "m.uil");
  EXPECT_TRUE(emit_main);
  EXPECT_EQ(main_filename_type, 0);
  EXPECT_EQ(Filename({"-main", "-o", "out/app.ads", "x.uil"}), "x.uil");
  EXPECT_EQ(main_filename_type, 0);
  EXPECT_EQ(output_filename, "out/app.ads");
  emit_main = false;
  EXPECT_EQ(Filename({"m.uil", "-main"}), "m.uil");
  EXPECT_TRUE(emit_main);
}

TEST_F(Options, GenericsAreForbiddenByWordsBeforeTheLast) {
  struct Row {
    std::vector<const char *> words;
    bool wrapper;
    bool widgets;
    const char *complaint;
  };
  const Row rows[] = {
      {{"-ng", "m.uil"}, true, true, ""},
      {{"m.uil", "-ng"}, true, true, ""},
      {{"-ng", "-stub", "m.uil"}, true, true, ""},
      {{"-ng", "callbacks", "m.uil"}, true, false, ""},
      {{"-ng", "widgets", "m.uil"}, false, true, ""},
      {{"-ng", "widgets", "callbacks", "m.uil"}, true, true, ""},
      {{"-ng", "widgets", "widgets"}, false, true, ""}, // the second one is the input file
      {{"-ng", "other", "-stub"}, false, false, ""},    // "other" is the input file
      {{"-ng", "callbacks"}, true, true, ""},           // "callbacks" is the input file
      {{"-ng", "other", "m.uil"},
       false,
       false,
       "kivuxl:  Error, more than one filename specified.\n[exit 1]"},
  };
  for (const Row &row : rows) {
    OptionsReset();
    program_name = "kivuxl";
    EXPECT_EQ(Complaint(row.words), row.complaint) << row.words[1];
    EXPECT_EQ(forbid_generic_wrapper, row.wrapper) << row.words[1];
    EXPECT_EQ(forbid_generic_widgets, row.widgets) << row.words[1];
  }
}

// -- Suffixes and names ------------------------------------------------------------------------

TEST_F(Options, FileSuffixesOfTheCommandLine) {
  struct Row {
    std::vector<const char *> words;
    const char *spec;
    const char *body;
    const char *filename;
  };
  const Row rows[] = {
      {{"-spec", "s", "m.uil"}, ".s", ".adb", "m.uil"},
      {{"-spec", ".1.a", "-body", "b", "m.uil"}, ".1.a", ".b", "m.uil"},
      {{"-specs", "m.uil"}, ".s", ".adb", "m.uil"},
      {{"-spec.1.ada", "-bodyb", "m.uil"}, ".1.ada", ".b", "m.uil"},
      {{"-spec", "-body", ".b", "m.uil"}, ".ads", ".b", "m.uil"},
      {{"-spec", "", "-stub"}, ".ads", ".adb", ""}, // the empty word is the input file
      {{"m.uil", "-body"}, ".ads", ".adb", "m.uil"},
      {{"-body", "m.uil"}, ".ads", "m.uil", "(none)"}, // even the last word is taken
  };
  for (const Row &row : rows) {
    OptionsReset();
    EXPECT_EQ(Filename(row.words), row.filename) << row.words.front();
    EXPECT_EQ(spec_sfx, row.spec) << row.words.front();
    EXPECT_EQ(body_sfx, row.body) << row.words.front();
  }
}

TEST_F(Options, SetSuffixTellsWhetherTheNextWordIsUsed) {
  std::string target = "old";
  EXPECT_EQ(set_suffix("-spec", "-spec", nullptr, &target), 0);
  EXPECT_EQ(set_suffix("-spec", "-spec", "", &target), 0);
  EXPECT_EQ(set_suffix("-spec", "-spec", "-x", &target), 0);
  EXPECT_EQ(target, "old");
  EXPECT_EQ(set_suffix("-spec", "-spec", "s", &target), 1);
  EXPECT_EQ(target, ".s");
  EXPECT_EQ(set_suffix("-spec", "-spec", "a.b", &target), 1);
  EXPECT_EQ(target, "a.b");
  EXPECT_EQ(set_suffix("-spec", "-spec-x", "s", &target), 0);
  EXPECT_EQ(target, ".-x");
}

TEST_F(Options, FormsOfTheMainFileName) {
  struct Row {
    const char *arg;
    int type;
    const char *file; // "(none)" where there is none
    const char *sfx;
  };
  const Row rows[] = {
      {"-", 0, "(none)", "(none)"},          {"-a/b.c", 0, "(none)", "(none)"},
      {".ext", 1, "(none)", ".ext"},         {".", 1, "(none)", "."},
      {"name.ext", 2, "name", ".ext"},       {"name.a.b", 2, "name", ".a.b"},
      {"name", 3, "name", "(none)"},         {"d.e/name.ext", 2, "d.e/name", ".ext"},
      {"d.e/name", 3, "d.e/name", "(none)"}, {"d/.ext", 2, "d/", ".ext"},
      {"./name", 3, "./name", "(none)"},     {"", 3, "", "(none)"},
  };
  for (const Row &row : rows) {
    std::optional<std::string> file = "old";
    std::optional<std::string> sfx = "old";
    int type = -1;
    set_main_filename(row.arg, &file, &sfx, &type);
    EXPECT_EQ(type, row.type) << row.arg;
    EXPECT_EQ(file.value_or("(none)"), row.file) << row.arg;
    EXPECT_EQ(sfx.value_or("(none)"), row.sfx) << row.arg;
  }
}

// -- Shells ------------------------------------------------------------------------------------

TEST_F(Options, ShellsKeepTheirOrder) {
  Read({"-shell", "top", "applicationShell", "top", "-shell", "a", "dialogShell", "b", "m.uil"});
  EXPECT_EQ(Shells(), "top top_appl applicationShell top 0\n"
                      "b a dialogShell a 0\n");
}

TEST_F(Options, ShellsCalledLikeTheirChildAreRenamed) {
  Read({"-shell", "A", "applicationShell", "a", "-shell", "b", "menuShell",     "B",
        "-shell", "c", "dialogShell",      "c", "-shell", "d", "topLevelShell", "d",
        "-shell", "e", "APPLICATIONSHELL", "e"});
  EXPECT_EQ(Shells(), "a A_appl applicationShell A 0\n"
                      "B b_menu menuShell b 0\n"
                      "c c_popup dialogShell c 0\n"
                      "d d_shell topLevelShell d 0\n"
                      "e e_shell APPLICATIONSHELL e 0\n");
}

TEST_F(Options, ShellTakesThreeWords) {
  const std::string complaint = "kivuxl: -shell shell_name shell_class child_name.\n[exit 1]";
  EXPECT_EQ(Complaint({"-shell"}), complaint);
  EXPECT_EQ(Complaint({"-shell", "a", "b"}), complaint);
  EXPECT_EQ(Complaint({"-shell", "-a", "b", "c"}), complaint);
  EXPECT_EQ(Complaint({"-shell", "a", "-b", "c"}), complaint);
  EXPECT_EQ(Complaint({"-shell", "a", "b", "-c"}), complaint);
  EXPECT_EQ(ListLength(shellinfo), 0U);
}

// -- Configuration files -----------------------------------------------------------------------

TEST_F(Options, ConfigurationLinesSetOptions) {
  EXPECT_EQ(ReadLines("-o out\n"
                      "-I one\n"
                      "-Ix two\n"
                      "-v list\n-width 40\n-length 30\n-dir d\n-tmp t\n"
                      "-wmd file\n"
                      "-main .ext\n"
                      "-widgets rec\n-sfx s\n-cbs c\n-inst i\n"
                      "-ng callbacks\n"
                      "-spec s\n-body .b\n"
                      "-shell a b c\n"
                      "-stub\n")
                .filename,
            "m.uil");
  EXPECT_EQ(output_filename, "out");
  ASSERT_EQ(ListLength(paths), 2U);
  EXPECT_EQ(PathOf(paths->first), "one");
  EXPECT_EQ(PathOf(paths->last), "two");
  EXPECT_EQ(listing_filename, "list");
  EXPECT_EQ(listing_width, 40);
  EXPECT_EQ(listing_length, 30);
  EXPECT_EQ(outdir, "d");
  EXPECT_EQ(tmpdir, "t");
  EXPECT_EQ(main_filename_type, 1);
  EXPECT_EQ(widgets_record_suffix, "rec");
  EXPECT_EQ(uil_package_suffix, "s");
  EXPECT_EQ(cb_package_suffix, "c");
  EXPECT_EQ(uil_instant_suffix, "i");
  EXPECT_TRUE(forbid_generic_wrapper);
  EXPECT_FALSE(forbid_generic_widgets);
  EXPECT_EQ(spec_sfx, ".s");
  EXPECT_EQ(body_sfx, ".b");
  EXPECT_EQ(Shells(), "c a b a 0\n");
  EXPECT_TRUE(emit_stubs);
}

TEST_F(Options, ConfigurationLinesWithoutArguments) {
  uil_instant_suffix = "old";
  EXPECT_EQ(ReadLines("-widgets\n-stub\n-sfx\n-cbs\n-inst\n-ng\n-main\n-spec\n").filename, "m.uil");
  EXPECT_EQ(widgets_record_suffix, "widgets");
  EXPECT_TRUE(emit_stubs); // the line after -widgets is not passed over
  EXPECT_EQ(uil_package_suffix, "");
  EXPECT_EQ(cb_package_suffix, "");
  EXPECT_EQ(uil_instant_suffix, "");
  EXPECT_TRUE(forbid_generic_wrapper);
  EXPECT_TRUE(forbid_generic_widgets);
  EXPECT_TRUE(emit_main);
  EXPECT_EQ(main_filename_type, 0);
  EXPECT_EQ(spec_sfx, ".ads");
}

TEST_F(Options, ConfigurationArgumentsMayBeginWithAMinus) {
  const std::string only = "kivuxl: Only one option per line in a configuration file:\n\t\t\"";
  EXPECT_EQ(LineComplaint("-sfx -x\n-shell -a b -c\n-spec -s\n"),
            only + "-sfx -x\".\n" + only + "-shell -a b -c\".\n" + only + "-spec -s\".\n");
  EXPECT_EQ(uil_package_suffix, "-x");
  EXPECT_EQ(Shells(), "-c -a b -a 0\n");
  EXPECT_EQ(spec_sfx, ".ads");
}

TEST_F(Options, ConfigurationGenericsIgnoreOtherWords) {
  EXPECT_EQ(LineComplaint("-ng other widgets\n"), "");
  EXPECT_FALSE(forbid_generic_wrapper);
  EXPECT_TRUE(forbid_generic_widgets);
}

TEST_F(Options, ConfigurationShellNeedsFourWords) {
  EXPECT_EQ(LineComplaint("-shell a b\n"),
            "kivuxl: Wrong number (3) of arguments for option \"-shell\".\n"
            "kivuxl: -shell shell_name shell_class child_name.\n[exit 1]");
}

TEST_F(Options, ConfigurationPathNeedsAWordOfItsOwn) {
  EXPECT_EQ(LineComplaint("-Ix\n"), "kivuxl: The -I option requires a path parameter.\n[exit 1]");
}

TEST_F(Options, ConfigurationSurplusWordsAreIgnored) {
  EXPECT_EQ(LineComplaint("-o a b\n-stub x\n-shell a b c d\n"),
            "kivuxl: Wrong number (3) of arguments for option \"-o\".\n"
            "kivuxl: Wrong number (2) of arguments for option \"-stub\".\n"
            "kivuxl: Wrong number (5) of arguments for option \"-shell\".\n");
  EXPECT_EQ(output_filename, "a");
  EXPECT_TRUE(emit_stubs);
  EXPECT_EQ(Shells(), "c a b a 0\n");
}

TEST_F(Options, ConfigurationFileNamesTheInputFile) {
  Put("options.cfg", "-stub\nm.uil\n");
  EXPECT_EQ(Filename({"-cfg", "options.cfg", "-wrap"}), "m.uil");
  EXPECT_TRUE(emit_stubs);
  EXPECT_TRUE(emit_wrappers);
  EXPECT_EQ(LineComplaint("other.uil\n"),
            "kivuxl:  Error, more than one filename specified.\n[exit 1]");
}

TEST_F(Options, ConfigurationFileHasNoConfigurationFile) {
  EXPECT_EQ(LineComplaint("-cfg other\n-cfg\n"),
            "kivuxl: Configuration file cannot contain -cfg arguments..\n"
            "kivuxl: Wrong number (1) of arguments for option \"-cfg\".\n"
            "kivuxl: Configuration file cannot contain -cfg arguments..\n");
}

TEST_F(Options, ConfigurationFileAtTheEndIsNotRead) {
  Put("options.cfg", "-stub\n");
  EXPECT_EQ(Filename({"m.uil", "-cfg", "options.cfg"}), "m.uil");
  EXPECT_FALSE(emit_stubs);
  EXPECT_FALSE(ConfigFileIsOpen());
  EXPECT_EQ(Filename({"m.uil", "-cfg"}), "m.uil");
}

TEST_F(Options, ConfigurationFilesMayFollowEachOther) {
  Put("one.cfg", "-stub\n");
  Put("two.cfg", "-wrap\n");
  EXPECT_EQ(Filename({"-cfg", "one.cfg", "-cfg", "two.cfg", "m.uil"}), "m.uil");
  EXPECT_TRUE(emit_stubs);
  EXPECT_TRUE(emit_wrappers);
}

TEST_F(Options, MissingConfigurationFileCostsAWord) {
  EXPECT_EQ(Complaint({"-cfg", "none.cfg", "-stub", "m.uil"}),
            "kivuxl: Configuration file cannot be opened..\n");
  EXPECT_FALSE(emit_stubs);
  std::filesystem::create_directory("d");
  EXPECT_EQ(Complaint({"-cfg", "d", "lost", "m.uil"}),
            "kivuxl: Configuration file cannot be opened..\n");
}

// -- The table ---------------------------------------------------------------------------------

TEST_F(Options, TableHasEachSpellingOnce) {
  std::set<std::string> spellings;
  for (const OptionRow &row : OptionRows()) {
    EXPECT_TRUE(spellings.insert(row.spelling).second) << row.spelling;
    EXPECT_EQ(row.spelling[0], '-') << row.spelling;
    EXPECT_LE(row.min_words, row.max_words) << row.spelling;
  }
}

TEST_F(Options, TableChecksTheCountsOfConfigurationLines) {
  struct Row {
    int min;
    int max;
    std::set<std::string> options;
  };
  const Row rows[] = {
      {1, 1, {"-ada",   "-apex",  "-gnat",    "-vads",    "-adaworld", "-objectada", "-portable",
              "-ada95", "-ada83", "-nouil",   "-orvo",    "-orvo3",    "-orvo4",     "-stars",
              "-c",     "-w",     "-version", "-verbose", "-stub",     "-wrap",      "-make",
              "-ux",    "-cs",    "-ci",      "-help"}},
      {2, 2, {"-o", "-I", "-v", "-width", "-length", "-wmd", "-dir", "-tmp", "-cfg"}},
      {4, 4, {"-shell"}},
      {1, 3, {"-ng"}},
      {1, 2, {"-spec", "-body", "-widgets", "-sfx", "-cbs", "-inst", "-main"}},
      {0, 0, {"-ver", "-yydebug", "-h"}},
  };
  std::size_t expected = 0;
  for (const Row &row : rows) {
    expected += row.options.size();
    for (const OptionRow &option : OptionRows()) {
      if (row.options.contains(option.spelling)) {
        EXPECT_EQ(option.min_words, row.min) << option.spelling;
        EXPECT_EQ(option.max_words, row.max) << option.spelling;
      }
    }
  }
  EXPECT_EQ(OptionRows().size(), expected);
}
