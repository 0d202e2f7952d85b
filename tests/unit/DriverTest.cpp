// What start-up makes of several options together.  Each run ends at a source that is not there,
// with everything settled.

#include "Driver.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <new>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "Reset.h"
#include "SourceFiles.h"

// -- Exhaustion of everything but the model's memory --------------------------------------------

static long news_left = -1; // before each operator new fails; -1 = without end

// NOLINTBEGIN(misc-new-delete-overloads)
void *operator new(std::size_t size) {
  void *block = news_left == 0 ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  news_left -= news_left > 0 ? 1 : 0;
  return block;
}
void operator delete(void *block) noexcept { std::free(block); }
void operator delete(void *block, std::size_t) noexcept { std::free(block); }
// NOLINTEND(misc-new-delete-overloads)

// The words of a command line, as main gets them.
struct Arguments {
  std::vector<std::string> words;
  std::vector<char *> argv;
  explicit Arguments(std::vector<std::string> given) : words(std::move(given)) {
    for (std::string &word : words) {
      argv.push_back(word.data());
    }
    argv.push_back(nullptr);
  }
  int Run() { return DriverRun(static_cast<int>(words.size()), argv.data()); }
};

class Driver : public SourceFiles {
protected:
  void TearDown() override {
    ProgramReset();
    SourceFiles::TearDown();
  }

  // Runs the program with these words and returns its status.
  static int Run(const std::vector<std::string> &words, std::string *errors = nullptr) {
    Arguments arguments(words);
    int status = -1;
    const std::string printed = ErrorsOf([&] { status = arguments.Run(); });
    if (errors != nullptr) {
      *errors = printed;
    }
    return status;
  }

  // Runs the program in a process of its own, after `arrange` has changed that; its exit status,
  // or -1 when it ended in another way.
  static int RunInChild(void (*arrange)(), const std::vector<std::string> &words,
                        std::string *errors) {
    int status = -1;
    *errors = ErrorsOf([&] {
      const pid_t child = fork();
      if (child == 0) {
        arrange();
        _exit(Arguments(words).Run());
      }
      EXPECT_EQ(waitpid(child, &status, 0), child);
    });
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  static void CloseStandardStreams() {
    close(STDIN_FILENO);
    close(STDOUT_FILENO);
  }

  static void FillStandardOutput() {
    const int full = open("/dev/full", O_WRONLY);
    if (full < 0 || dup2(full, STDOUT_FILENO) < 0) {
      _exit(0);
    }
  }

  // Settles the options for an input file that is not there.
  static void Settle(std::vector<std::string> words, const char *filename = "ui/hello.uil") {
    std::string errors;
    words.insert(words.begin(), "bin/kivuxl");
    words.emplace_back(filename);
    EXPECT_EQ(Run(words, &errors), 1);
    EXPECT_EQ(errors, "kivuxl: Error opening file " + std::string(filename) + ".\n");
  }
};

TEST_F(Driver, ProgramNameIsTheLastPartOfThePath) {
  std::string errors;
  EXPECT_EQ(Run({"a/b/other"}, &errors), 1);
  EXPECT_EQ(errors, "other: Requires arguments.\n");
  EXPECT_EQ(Run({"plain"}, &errors), 1);
  EXPECT_EQ(errors, "plain: Requires arguments.\n");
  EXPECT_EQ(Run({}, &errors), 1);
  EXPECT_EQ(errors, "kivuxl: Requires arguments.\n");
}

// Else the listing would be opened as standard output, and the units would land in it.
TEST_F(Driver, ClosedStandardOutputIsNoOtherFile) {
  Put("m.uil", "module m end module;\n");
  std::string errors;
  EXPECT_EQ(RunInChild(CloseStandardStreams, {"kivuxl", "-v", "list", "-o", "-", "m.uil"}, &errors),
            1);
  EXPECT_EQ(errors, "kivuxl: Error writing file \"-\".\n");
  EXPECT_EQ(Contents("list").find("package"), std::string::npos);
  EXPECT_EQ(Contents("m.uil"), "module m end module;\n");
}

TEST_F(Driver, FullStandardOutputIsAFailure) {
  Put("m.uil", "module m end module;\n");
  std::string errors;
  EXPECT_EQ(RunInChild(FillStandardOutput, {"kivuxl", "-verbose", "m.uil"}, &errors), 1);
  EXPECT_EQ(errors, "kivuxl: Error writing file \"-\".\n");
}

TEST_F(Driver, StandardDirectoriesComeLast) {
  Settle({"-Ione", "-Itwo"});
  std::vector<std::string> found;
  for (const ListItem *node = ListFirstNode(paths); node != nullptr; node = node->next) {
    found.emplace_back(static_cast<const Kivu_IncludePath *>(node->data)->path);
  }
  EXPECT_EQ(found,
            (std::vector<std::string>{"one", "two", "/usr/dt/include/uil", "/usr/include/uil"}));
}

TEST_F(Driver, CompilersSettleSuffixesAndLanguage) {
  struct Row {
    std::vector<std::string> words;
    const char *spec;
    const char *body;
    bool is_portable;
    bool is_ada95;
  };
  const Row rows[] = {
      {{}, ".ads", ".adb", true, false},
      {{"-ada95"}, ".ads", ".adb", true, true},
      {{"-apex", "-spec", ".s", "-body", ".b"}, ".1.ada", ".2.ada", false, false},
      {{"-apex", "-ada95"}, ".1.ada", ".2.ada", false, true},
      {{"-gnat", "-spec", ".s"}, ".ads", ".adb", false, true},
      {{"-gnat", "-ada83"}, ".ads", ".adb", false, true},
      {{"-vads", "-ada95", "-spec", ".s"}, ".s", ".adb", false, false},
      {{"-adaworld", "-ada95"}, ".ads", ".adb", false, false},
      {{"-objectada"}, ".ads", ".adb", true, false},
      {{"-objectada", "-ada95"}, ".ads", ".adb", true, true},
      {{"-portable", "-body", "b"}, ".ads", ".b", true, false},
  };
  for (const Row &row : rows) {
    Settle(row.words);
    const std::string first = row.words.empty() ? "" : row.words.front();
    EXPECT_EQ(spec_sfx, row.spec) << first;
    EXPECT_EQ(body_sfx, row.body) << first;
    EXPECT_EQ(portable, row.is_portable) << first;
    EXPECT_EQ(ada95, row.is_ada95) << first;
  }
}

TEST_F(Driver, NameOfTheMainProcedure) {
  struct Row {
    std::vector<std::string> words;
    const char *name;
    const char *sfx;
  };
  const Row rows[] = {
      {{"-main"}, "hello_main", ".adb"}, // the input file is not its name
      {{"-main", "-body", ".b"}, "hello_main", ".b"},
      {{"-main", "-o", "out/app.ads"}, "app_main", ".adb"},
      {{"-main", "-o", "-"}, "hello_main", ".adb"},
      {{"-main", "-o", ""}, "main", ".adb"}, // an Ada name does not begin with "_"
      {{"-main", ".ext"}, "hello_main", ".ext"},
      {{"-main", ".ext", "-apex"}, "hello_main", ".2.ada"},
      {{"-main", ".ext", "-gnat"}, "hello_main", ".adb"},
      {{"-main", "dir/Name.a.b"}, "name", ".a.b"},
      {{"-main", "dir/name.ext", "-gnat"}, "name", ".adb"},
      {{"-main", "dir.d/name"}, "name", ".adb"},
      {{"-main", "my-name"}, "my_name", ".adb"},
      {{"-stub"}, "hello_main", ".adb"},
      {{"-wrap"}, "hello_main", ".adb"},
      {{}, "", "(none)"},
  };
  for (const Row &row : rows) {
    Settle(row.words);
    const std::string first = row.words.empty() ? "" : row.words.back();
    EXPECT_EQ(main_filename, row.name) << first;
    EXPECT_EQ(main_sfx.value_or("(none)"), row.sfx) << first;
  }
}

TEST_F(Driver, PackagesDoNotShareAName) {
  struct Row {
    std::vector<std::string> words;
    const char *uil;
    const char *callbacks;
    const char *instant;
  };
  const Row rows[] = {
      {{}, "uil", "callbacks", ""},
      {{"-sfx"}, "", "callbacks", "mrm"},
      {{"-cbs"}, "uil", "", "mrm"},
      {{"-cbs", "uil"}, "uil", "callbacks", ""},
      {{"-cbs", "UIL"}, "uil", "callbacks", ""},
      {{"-sfx", "callbacks", "-cbs", "callbacks"}, "callbacks", "cbs", ""},
      {{"-sfx", "Callbacks"}, "Callbacks", "cbs", ""},
      {{"-inst", "Callbacks"}, "uil", "callbacks", ""},
      {{"-inst", "uil"}, "uil", "callbacks", ""},
      {{"-sfx", "", "-cbs", ""}, "", "callbacks", "mrm"},
      {{"-sfx", "mrm", "-cbs", ""}, "mrm", "", ""},
      {{"-inst", "x", "-sfx", "y", "-cbs", "z"}, "y", "z", "x"},
  };
  for (const Row &row : rows) {
    std::vector<std::string> words = row.words;
    words.emplace_back("-ada95"); // so that the last suffix is not the second-last word
    Settle(words);
    const std::string first = row.words.empty() ? "" : row.words.front() + row.words.back();
    EXPECT_EQ(uil_package_suffix, row.uil) << first;
    EXPECT_EQ(cb_package_suffix, row.callbacks) << first;
    EXPECT_EQ(uil_instant_suffix, row.instant) << first;
  }
}

TEST_F(Driver, SomeCompilersWantNamesInLowerCase) {
  Settle({"-o", "Out/App.ads", "-main"});
  EXPECT_EQ(output_filename, "Out/App.ads");
  EXPECT_EQ(main_filename, "app_main");
  Settle({"-o", "Out/App.ads", "-gnat"});
  EXPECT_EQ(output_filename, "out/app.ads");
  Settle({"-o", "Out/App.ads", "-apex"});
  EXPECT_EQ(output_filename, "out/app.ads");
}

TEST_F(Driver, NumbersKeepTheirPoint) {
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  Settle({});
  unsetenv("LC_ALL");
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  std::setlocale(LC_ALL, "C");
}

TEST_F(Driver, TimeMayBeGiven) {
  setenv("SOURCE_DATE_EPOCH", "86400", 1);
  Settle({});
  EXPECT_EQ(run_date_time, 86400);
  for (const char *text : {"", "x", "12x", "-5"}) {
    setenv("SOURCE_DATE_EPOCH", text, 1);
    Settle({});
    EXPECT_GT(run_date_time, 86400) << text;
  }
  unsetenv("SOURCE_DATE_EPOCH");
}

TEST_F(Driver, ListingIsAnOrdinaryFile) {
  Put("m.uil", "module m end module;\n");
  const mode_t mask = umask(027);
  EXPECT_EQ(Run({"kivuxl", "-v", "list", "m.uil"}), 0);
  umask(mask);
  EXPECT_EQ(std::filesystem::status("list").permissions(), std::filesystem::perms(0640));
}

// Longer than what a stream keeps back, so that nothing may be emptied after the first line.
TEST_F(Driver, LongListingIsWhole) {
  constexpr int kLines = 300;
  constexpr std::size_t kWidth = 79; // of a row on a page 80 wide
  std::string source;
  std::string rows;
  for (int i = 1; i <= kLines; ++i) {
    const std::string line = i == 1        ? "module m"
                             : i == kLines ? "end module;"
                                           : "value v" + std::to_string(i) + " : 1;";
    source += line + "\n";
    std::string row = std::to_string(1000000 + i).substr(1) + ": " + line;
    row.resize(kWidth, ' ');
    rows += row + "\n";
  }
  Put("m.uil", source);
  std::string errors;
  EXPECT_EQ(Run({"kivuxl", "-width", "80", "-length", "400", "-v", "list", "m.uil"}, &errors), 0);
  EXPECT_EQ(errors, "");
  const std::string text = Contents("list");
  EXPECT_TRUE(text.starts_with("\n\n\nModule: m "));
  EXPECT_NE(text.find("Page: 1\n\n\n" + rows + "\n"), std::string::npos) << text;
}

TEST_F(Driver, OneProcessRunsManyTranslations) {
  Put("m.uil", "module m\nobject f : XmForm { };\nend module;\n");
  for (int i = 0; i < 2; ++i) {
    std::string errors;
    EXPECT_EQ(Run({"kivuxl", "m.uil"}, &errors), 0);
    EXPECT_EQ(errors, "");
    EXPECT_EQ(Run({"kivuxl", "-help"}), 0);
    EXPECT_EQ(Run({"kivuxl", "-apex", "-gnat", "m.uil"}), 1);
  }
  EXPECT_TRUE(std::filesystem::exists("m_uil.adb"));
}

// Something of everything, and a warning.
static const char *const kRichModule =
    "module rich version = 'one' names = case_insensitive objects = { XmLabel = gadget; }\n"
    "value count : 3 << 2; size : 1.5 * 2.0; name : exported 'a' & 'b'; yes : true;\n"
    "value red : color ('red', foreground); grey : rgb (1, 2, 3);\n"
    "value colors : color_table (red = 'r', background color = ' ');\n"
    "value dots : icon (color_table = colors, 'r r', ' r '); bitmap : xbitmapfile ('dots');\n"
    "value text : compound_string ('one', separate = true) & compound_string ('two');\n"
    "value fixed : font ('fixed'); set : fontset ('a', 'b'); fonts : font_table (fixed, set);\n"
    "value key : keysym ('Return'); keys : translation_table ('<Key>a: a()', '<Key>b: b()');\n"
    "value lines : asciz_table ('a', 'b'); items : compound_string_table (text, text);\n"
    "value numbers : integer_table (1, 2, 3); wide : wide_character ('w'); top : 9;\n"
    "value own : argument ('own', integer); happens : reason ('happens');\n"
    "value class : class_rec_name ('XmForm');\n"
    "identifier where; procedure plain; told (integer); said (string); makes;\n"
    "list sizes : arguments { XmNwidth = count; XmNheight = 9; own = 5; };\n"
    "list calls : callbacks { XmNactivateCallback = procedures { plain; told (1); }; };\n"
    "object main : XmMainWindow { controls { XmMenuBar { controls { XmCascadeButton {\n"
    "  arguments { XmNlabelString = text; XmNmnemonic = key; };\n"
    "  controls { XmPulldownMenu { controls { XmPushButton push; }; }; }; }; }; };\n"
    "  XmForm inner; user_defined procedure makes { arguments { XmNwidth = 5; }; }; }; };\n"
    "object push : XmPushButton { arguments { arguments sizes; XmNtranslations = keys; };\n"
    "  callbacks { callbacks calls; MrmNcreateCallback = procedure said ('x'); }; };\n"
    "object inner : XmForm { arguments { XmNbackground = red; XmNfontList = fonts; };\n"
    "  controls { XmList { arguments { XmNitems = items; XmNbackgroundPixmap = dots; }; };\n"
    "    unmanaged XmLabel { arguments { XmNlabelPixmap = dots; XmNuserData = numbers; }; };\n"
    "    XmText { arguments { XmNvalueWcs = wide; XmNvalue = name; }; }; }; };\n"
    "object box : XmFileSelectionDialog { controls { Xm_OK { arguments { XmNleftWidget =\n"
    "  XmForm inner; }; }; }; };\n"
    "end module;\n";

static const std::vector<std::string> kRichWords = {
    "kivuxl", "-v", "list", "-main", "-stub", "-wrap", "-widgets", "record", "rich.uil"};

static const char *const kRichReport =
    "rich.uil(13): identifier where; procedure plain; told (integer); said (string); makes;\n"
    " warning: Limitation: no identifiers, where will be ignored\n\n";

static const std::set<std::string> kRichFiles = {"list",
                                                 "rich.uil",
                                                 "rich_callbacks.adb",
                                                 "rich_callbacks.ads",
                                                 "rich_cbinst.ads",
                                                 "rich_cbproc.adb",
                                                 "rich_cbproc.ads",
                                                 "rich_client_data.adb",
                                                 "rich_client_data.ads",
                                                 "rich_main.adb",
                                                 "rich.ads",
                                                 "rich_uil.adb",
                                                 "rich_uil.ads"};

// Runs the rich module with something exhausted after `count` uses; the status.  A run that fails
// says why, and leaves neither temporary nor half-written files.
class Exhaustion : public Driver {
protected:
  void SetUp() override {
    Driver::SetUp();
    std::filesystem::create_directory("tmp");
    setenv("TMPDIR", "tmp", 1);
  }
  void TearDown() override {
    unsetenv("TMPDIR");
    Driver::TearDown();
  }

  static std::set<std::string> Files() {
    std::set<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(".")) {
      names.insert(entry.path().filename());
    }
    names.erase("tmp");
    return names;
  }

  static std::map<std::string, std::string> FileContents() {
    std::map<std::string, std::string> contents;
    for (const std::string &name : Files()) {
      contents[name] = Contents(name);
    }
    return contents;
  }

  int RunRich(void (*exhaust)(long), long count) {
    for (const std::string &name : Files()) {
      std::filesystem::remove(name);
    }
    Put("rich.uil", source);
    Arguments arguments(kRichWords);
    int status = -1;
    errors = ErrorsOf([&] {
      exhaust(count);
      status = arguments.Run();
      exhaust(-1);
    });
    EXPECT_TRUE(std::filesystem::is_empty("tmp")) << count;
    if (status == 0) {
      return status;
    }
    EXPECT_EQ(status, 1) << count;
    const std::set<std::string> present = Files();
    EXPECT_TRUE(std::includes(kRichFiles.begin(), kRichFiles.end(), present.begin(), present.end()))
        << count << ": " << testing::PrintToString(present);
    return status;
  }

  // The smallest count that is enough.
  long Needed(void (*exhaust)(long)) {
    long enough = 1;
    while (RunRich(exhaust, enough) != 0) {
      enough *= 2;
    }
    for (long step = enough / 2; step > 0; step /= 2) {
      if (RunRich(exhaust, enough - step) == 0) {
        enough -= step;
      }
    }
    return enough;
  }

  std::string source = kRichModule;
  std::string errors;
};

TEST_F(Exhaustion, ItIsNotTheModule) {
  EXPECT_EQ(RunRich(AllocFailAfter, -1), 0);
  EXPECT_EQ(errors, kRichReport);
  EXPECT_EQ(Files(), kRichFiles);
}

static void ExhaustNew(long count) { news_left = count; }

static void ExhaustDescriptors(long count) {
  rlimit limit{};
  getrlimit(RLIMIT_NOFILE, &limit);
  limit.rlim_cur = limit.rlim_max;
  if (count >= 0) {
    const int next = dup(STDIN_FILENO);
    close(next);
    limit.rlim_cur = static_cast<rlim_t>(next + count);
  }
  setrlimit(RLIMIT_NOFILE, &limit);
}

// The words of the last message.
static std::string LastMessage(std::string errors) {
  if (errors.ends_with(".\n")) {
    errors.resize(errors.size() - 2);
  }
  const std::size_t start = errors.rfind('\n') + 1; // npos + 1 is 0
  constexpr std::string_view kPrefix = "kivuxl: ";
  return errors.compare(start, kPrefix.size(), kPrefix) == 0 ? errors.substr(start + kPrefix.size())
                                                             : "(none)";
}

static const std::set<std::string> kModelMessages = {
    "FilesAddPath: Memory allocation error", "FilesOpen: Cannot create flex buffer.",
    "FilesOpen: Memory allocation failure",  "Out of memory",
    "PutListing: Memory allocation error",   "StartLiteral: Memory allocation error",
};

TEST_F(Exhaustion, ModelMemoryAnywhere) {
  const long needed = Needed(AllocFailAfter);
  for (long count = 0; count < needed; ++count) {
    ASSERT_EQ(RunRich(AllocFailAfter, count), 1);
    ASSERT_TRUE(kModelMessages.contains(LastMessage(errors))) << count << ": " << errors;
  }
}

// One allocation that fails, while all around it succeed, is no loss that nobody is told of.
TEST_F(Exhaustion, ModelMemoryOnce) {
  setenv("SOURCE_DATE_EPOCH", "0", 1);
  source = "module rich end module;";
  const long vocabulary = Needed(AllocFailAfter); // nearly all of that
  source = kRichModule;
  const long needed = Needed(AllocFailAfter);
  EXPECT_GT(needed, vocabulary + 400);
  ASSERT_EQ(RunRich(AllocFailAfter, -1), 0);
  const std::map<std::string, std::string> whole = FileContents();
  for (long count = vocabulary - 100; count < needed; ++count) {
    if (RunRich(AllocFailOnce, count) == 0) {
      ASSERT_EQ(errors, kRichReport) << count;
      ASSERT_EQ(FileContents(), whole) << count;
    } else {
      ASSERT_TRUE(kModelMessages.contains(LastMessage(errors))) << count << ": " << errors;
    }
  }
  unsetenv("SOURCE_DATE_EPOCH");
}

TEST_F(Exhaustion, OtherMemoryAnywhere) {
  const long needed = Needed(ExhaustNew);
  EXPECT_GT(needed, 100); // less than at first: earlier runs have left room in some texts
  for (long count = 0; count < needed; ++count) {
    ASSERT_EQ(RunRich(ExhaustNew, count), 1);
    ASSERT_EQ(LastMessage(errors), "Out of memory") << count << ": " << errors;
  }
}

// A text that the scanner complains of is made printable and stored.
TEST_F(Exhaustion, MemoryOfTheReport) {
  std::set<std::string> seen;
  source = "module rich \001\002\003\004\005\006\007\010 end module;";
  for (long count = 0; count < 200; ++count) {
    ASSERT_EQ(RunRich(ExhaustNew, count), 1);
    seen.insert(errors.starts_with("rich.uil(1): ") ? "report" : LastMessage(errors));
  }
  seen.erase("Out of memory"); // depends on what earlier runs of the process have left
  EXPECT_EQ(seen, (std::set<std::string>{"report", "LexicalError: Memory allocation failure"}));
}

TEST_F(Exhaustion, MemoryOfAnEncodedText) {
  const std::string text(100, 'x');
  EXPECT_EQ(ErrorsOf([&] {
              ExhaustNew(0);
              try {
                EncodePrintably(text.data(), static_cast<int>(text.size()));
              } catch (...) {
                ExhaustNew(-1);
                throw;
              }
            }),
            "kivuxl: EncodePrintably: Memory allocation error.\n[exit 1]");
}

TEST_F(Exhaustion, Descriptors) {
  const long needed = Needed(ExhaustDescriptors);
  EXPECT_GT(needed, 4);
  for (long count = 0; count < needed; ++count) {
    EXPECT_EQ(RunRich(ExhaustDescriptors, count), 1);
    EXPECT_EQ(errors, (count == 0 ? "kivuxl: Error opening listing file list.\n" : "") +
                          std::string(kRichReport) + "kivuxl: Error opening temporary file.\n");
  }
}

static void ExhaustFileSize(long size) {
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = size < 0 ? limit.rlim_max : static_cast<rlim_t>(size);
  setrlimit(RLIMIT_FSIZE, &limit);
}

// A file that grows larger than it may is a failed write.  The body of the widgets is by far the
// largest file, the listing the next.
TEST_F(Exhaustion, FileSize) {
  EXPECT_EQ(RunRich(ExhaustFileSize, 10000), 1);
  EXPECT_EQ(errors, std::string(kRichReport) + "kivuxl: Error writing file \"rich_uil.adb\".\n");
  EXPECT_EQ(Files(), std::set<std::string>{"rich.uil"});
  EXPECT_EQ(RunRich(ExhaustFileSize, 1000), 1);
  EXPECT_EQ(errors, std::string(kRichReport) + "kivuxl: Error writing file \"list\".\n");
  EXPECT_EQ(Files(), std::set<std::string>{"rich.uil"});
}
