// What start-up makes of several options together.  Each run ends at a source that is not there,
// with everything settled.

#include "Driver.h"

#include <clocale>
#include <cstdlib>
#include <string>
#include <vector>

#include "Reset.h"
#include "SourceFiles.h"

class Driver : public SourceFiles {
protected:
  void TearDown() override {
    ProgramReset();
    SourceFiles::TearDown();
  }

  // Runs the program with these words and returns its status.
  static int Run(std::vector<std::string> words, std::string *errors = nullptr) {
    std::vector<char *> argv;
    argv.reserve(words.size() + 1);
    for (std::string &word : words) {
      argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    int status = -1;
    const std::string printed =
        ErrorsOf([&] { status = DriverRun(static_cast<int>(words.size()), argv.data()); });
    if (errors != nullptr) {
      *errors = printed;
    }
    return status;
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

// Wherever memory runs out, the run ends with a message and leaves nothing half-written.
TEST_F(Driver, ExhaustionEndsTheRun) {
  Put("m.uil", "module m\nobject f : XmForm { };\nend module;\n");
  std::filesystem::create_directory("tmp");
  setenv("TMPDIR", "tmp", 1);
  int status = 1;
  int failures = 0;
  for (long after = 0; status != 0; after += 53) {
    std::string errors;
    AllocFailAfter(after);
    status = Run({"kivuxl", "m.uil"}, &errors);
    AllocFailAfter(-1);
    failures += status;
    const bool reported = errors.starts_with("kivuxl: ") && errors.ends_with(".\n");
    EXPECT_TRUE(status == 0 ? errors.empty() : reported) << after << errors;
    EXPECT_TRUE(std::filesystem::is_empty("tmp"));
  }
  unsetenv("TMPDIR");
  EXPECT_GT(failures, 1);
  EXPECT_TRUE(std::filesystem::exists("m_uil.ads"));
}
