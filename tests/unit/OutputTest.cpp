// Temporary files, and how they become the files of the user.

#include "Output.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <set>
#include <vector>

#include "SourceFiles.h"

class Output : public SourceFiles {
protected:
  void SetUp() override {
    SourceFiles::SetUp();
    OutputReset();
    unsetenv("TMPDIR");
    std::filesystem::create_directory("tmp");
    mask = umask(022);
  }
  void TearDown() override {
    OutputReset();
    umask(mask);
    SourceFiles::TearDown();
  }

  // A slot with a fresh temporary file in `dir` that holds the text, not yet closed.
  static OutputSlot Slot(std::string_view text, const char *dir = "tmp") {
    OutputSlot slot;
    EXPECT_EQ(MakeTemporaryFile(dir, "kivut", &slot.name, &slot.stream), 1);
    std::fwrite(text.data(), 1, text.size(), slot.stream);
    return slot;
  }

  // The name of a finished temporary file.
  static std::string Finished(std::string_view text, const char *dir = "tmp") {
    OutputSlot slot = Slot(text, dir);
    EXPECT_EQ(OutputClose(&slot, "final"), 1);
    return slot.name;
  }

  static std::string PlaceComplaint(const std::string &temporary, const std::string &final_name) {
    return ErrorsOf([&] { EXPECT_EQ(CopyTemporaryToFile(temporary, final_name), 0); });
  }

  static unsigned ModeOf(const std::string &name) {
    struct stat status {};
    EXPECT_EQ(stat(name.c_str(), &status), 0) << name;
    return status.st_mode & 07777U;
  }

  // All files below the scratch directory, hidden ones too.
  static std::set<std::string> All() {
    std::set<std::string> names;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(".")) {
      if (!entry.is_directory()) {
        names.insert(entry.path().lexically_normal());
      }
    }
    return names;
  }

  // A directory on another file system than the scratch directory, or null.
  static const char *Elsewhere() {
    struct stat here {};
    struct stat there {};
    const bool other = stat(".", &here) == 0 && stat("/dev/shm", &there) == 0 &&
                       here.st_dev != there.st_dev && access("/dev/shm", W_OK) == 0;
    return other ? "/dev/shm" : nullptr;
  }

  mode_t mask = 0;
};

// -- Temporary files ---------------------------------------------------------------------------

TEST_F(Output, TemporaryFilesArePrivateAndFresh) {
  umask(0);
  OutputSlot one = Slot("1");
  OutputSlot two = Slot("2");
  EXPECT_NE(one.name, two.name);
  for (const OutputSlot &slot : {one, two}) {
    EXPECT_TRUE(slot.name.starts_with("tmp/kivut")) << slot.name;
    EXPECT_EQ(slot.name.size(), std::string("tmp/kivut").size() + 6);
    EXPECT_EQ(ModeOf(slot.name), 0600U);
  }
  OutputDiscard(&one);
  OutputDiscard(&two);
  EXPECT_EQ(one.stream, nullptr);
  EXPECT_EQ(All(), (std::set<std::string>{}));
}

TEST_F(Output, TemporaryFileMayHaveTheFirstDescriptor) {
  const WithoutStandardInput without;
  OutputSlot slot = Slot("1");
  ASSERT_NE(slot.stream, nullptr);
  EXPECT_EQ(fileno(slot.stream), 0);
  EXPECT_TRUE(slot.name.starts_with("tmp/kivut")) << slot.name;
  OutputDiscard(&slot);
  EXPECT_EQ(All(), (std::set<std::string>{}));
}

TEST_F(Output, EnvironmentNamesTheFirstDirectory) {
  std::filesystem::create_directory("env");
  setenv("TMPDIR", "env", 1);
  OutputSlot slot = Slot("");
  unsetenv("TMPDIR");
  EXPECT_TRUE(slot.name.starts_with("env/kivut")) << slot.name;
  OutputDiscard(&slot);
}

TEST_F(Output, DirectoriesThatCannotBeUsedArePassedOver) {
  Put("file", "");
  for (const char *bad : {"none", "file", ""}) {
    setenv("TMPDIR", bad, 1);
    OutputSlot slot = Slot("");
    unsetenv("TMPDIR");
    EXPECT_TRUE(slot.name.starts_with("tmp/kivut")) << slot.name;
    OutputDiscard(&slot);
    OutputSlot standard = Slot("", bad);
    EXPECT_TRUE(standard.name.starts_with(std::string(P_tmpdir) + "/kivut")) << standard.name;
    OutputDiscard(&standard);
  }
  OutputSlot standard = Slot("", nullptr);
  EXPECT_TRUE(standard.name.starts_with(std::string(P_tmpdir) + "/kivut")) << standard.name;
  OutputDiscard(&standard);
}

TEST_F(Output, TemporaryFileThatCannotBeOpened) {
  OutputSlot slot;
  // gtest's own capture keeps a descriptor, so the limit is set inside of it.
  const std::string complaint = ErrorsOf([&slot] {
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &before), 0);
    const rlimit none = {0, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &none), 0);
    EXPECT_EQ(MakeTemporaryFile("tmp", "kivut", &slot.name, &slot.stream), 0);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &before), 0);
  });
  EXPECT_EQ(complaint, "kivuxl: Error opening temporary file.\n");
  EXPECT_EQ(slot.stream, nullptr);
  EXPECT_EQ(slot.name, "");
}

// The signal handlers know of eight.
TEST_F(Output, ThereIsRoomForEightTemporaryFiles) {
  std::vector<std::string> names;
  for (int i = 0; i < 8; ++i) {
    names.push_back(Finished(""));
  }
  OutputSlot ninth;
  EXPECT_EQ(ErrorsOf([&] {
              EXPECT_EQ(MakeTemporaryFile("tmp", "kivut", &ninth.name, &ninth.stream), 0);
            }),
            "kivuxl: Error opening temporary file.\n");
  EXPECT_EQ(ninth.stream, nullptr);
  EXPECT_EQ(ninth.name, "");
  EXPECT_EQ(All(), std::set<std::string>(names.begin(), names.end()));
  EXPECT_EQ(PlaceComplaint(names[0], "m.ads"), "kivuxl: Error moving temporary file.\n");
  EXPECT_EQ(All(), std::set<std::string>(names.begin(), names.end()));
}

TEST_F(Output, AllTemporaryFilesAreRemovedTogether) {
  std::vector<OutputSlot> slots = {Slot("1"), Slot("2"), Slot("3"), Slot("4"), Slot("5")};
  EXPECT_EQ(All().size(), 5U);
  OutputRemoveTemporaries();
  EXPECT_EQ(All(), (std::set<std::string>{}));
  for (OutputSlot &slot : slots) {
    OutputDiscard(&slot);
  }
}

// -- Closing -----------------------------------------------------------------------------------

TEST_F(Output, FileWrittenInPlaceGoesWithTheTemporaryOnesUntilItIsComplete) {
  for (const char *name : {"half", "h", "whole", "w"}) {
    Put(name, "text");
  }
  std::filesystem::create_symlink("whole", "link");
  for (const char *name : {"half", "whole", "link", "missing"}) {
    OutputBeginsInPlace(name);
  }
  OutputEndsInPlace("whole");
  OutputEndsInPlace("link");
  OutputRemoveTemporaries();
  OutputRemoveTemporaries();
  EXPECT_EQ(All(), (std::set<std::string>{"h", "link", "w", "whole"}));
}

TEST_F(Output, UnitThatCannotBeWrittenIsNamedByItsFinalName) {
  OutputSlot slot;
  slot.name = "/dev/full";
  slot.stream = std::fopen("/dev/full", "w");
  ASSERT_NE(slot.stream, nullptr);
  std::fputs("package", slot.stream);
  EXPECT_EQ(ErrorsOf([&slot] { EXPECT_EQ(OutputClose(&slot, "d/m_uil.ads"), 0); }),
            "kivuxl: Error writing file \"d/m_uil.ads\".\n");
  EXPECT_EQ(slot.stream, nullptr);
}

TEST_F(Output, EarlierFailureIsNotForgotten) {
  OutputSlot slot;
  slot.stream = std::fopen("/dev/full", "w");
  ASSERT_NE(slot.stream, nullptr);
  std::fputs("package", slot.stream);
  EXPECT_NE(std::fflush(slot.stream), 0); // the buffer is empty now, so closing succeeds
  EXPECT_EQ(ErrorsOf([&slot] { EXPECT_EQ(OutputClose(&slot, "m"), 0); }),
            "kivuxl: Error writing file \"m\".\n");
}

TEST_F(Output, WhatIsClosedIsNotClosedAgain) {
  OutputSlot slot = Slot("text");
  EXPECT_EQ(OutputClose(&slot, "m"), 1);
  EXPECT_EQ(slot.stream, nullptr);
  EXPECT_EQ(OutputClose(&slot, "m"), 1);
  OutputDiscard(&slot);
}

TEST_F(Output, StandardOutputStaysOpen) {
  OutputSlot slot = {"-", stdout};
  EXPECT_EQ(OutputClose(&slot, "m"), 1);
  OutputDiscard(&slot);
  testing::internal::CaptureStdout();
  std::printf("text");
  EXPECT_EQ(OutputCheckStandard(), 1);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "text");
}

TEST_F(Output, FullStandardOutputIsReportedOnce) {
  std::fflush(stdout);
  const int saved = dup(STDOUT_FILENO);
  std::FILE *full = std::fopen("/dev/full", "w");
  ASSERT_NE(full, nullptr);
  dup2(fileno(full), STDOUT_FILENO);
  std::printf("text");
  const std::string complaint = ErrorsOf([] {
    EXPECT_EQ(OutputCheckStandard(), 0);
    EXPECT_EQ(OutputCheckStandard(), 0);
  });
  dup2(saved, STDOUT_FILENO);
  close(saved);
  std::fclose(full);
  EXPECT_EQ(complaint, "kivuxl: Error writing file \"-\".\n");
  OutputReset();
  EXPECT_EQ(OutputCheckStandard(), 1);
}

// -- Putting in place --------------------------------------------------------------------------

TEST_F(Output, FinishedUnitIsMoved) {
  umask(027);
  EXPECT_EQ(CopyTemporaryToFile(Finished("new"), "m.ads"), 1);
  EXPECT_EQ(Contents("m.ads"), "new");
  EXPECT_EQ(ModeOf("m.ads"), 0640U);
  EXPECT_EQ(All(), (std::set<std::string>{"m.ads"}));
}

TEST_F(Output, FinishedUnitReplacesAnOldOne) {
  Put("m.ads", "old");
  Put("other", "other");
  std::filesystem::create_symlink("other", "link.ads");
  EXPECT_EQ(CopyTemporaryToFile(Finished("new"), "m.ads"), 1);
  EXPECT_EQ(CopyTemporaryToFile(Finished("new"), "link.ads"), 1);
  EXPECT_EQ(Contents("m.ads"), "new");
  EXPECT_EQ(Contents("link.ads"), "new");
  EXPECT_EQ(Contents("other"), "other"); // the link is replaced, not what it leads to
  EXPECT_EQ(All(), (std::set<std::string>{"link.ads", "m.ads", "other"}));
}

TEST_F(Output, SomeCompilersWantTheLastPartInLowerCase) {
  std::filesystem::create_directory("Dir");
  EXPECT_EQ(OutputFinalName("Dir/My_UIL.ads"), "Dir/My_UIL.ads");
  gnat = true;
  EXPECT_EQ(OutputFinalName("Dir/My_UIL.ads"), "Dir/my_uil.ads");
  gnat = false;
  apex = true;
  EXPECT_EQ(OutputFinalName("My.1.ADA"), "my.1.ada");
  EXPECT_EQ(CopyTemporaryToFile(Finished("new"), "Dir/My_UIL.ads"), 1);
  EXPECT_EQ(All(), (std::set<std::string>{"Dir/my_uil.ads"}));
}

TEST_F(Output, MissingDirectoryIsReported) {
  EXPECT_EQ(PlaceComplaint(Finished("new"), "none/m.ads"),
            "kivuxl: Error moving temporary file.\n");
  OutputRemoveTemporaries();
  EXPECT_EQ(All(), (std::set<std::string>{}));
}

TEST_F(Output, DirectoryIsNotReplaced) {
  std::filesystem::create_directory("m.ads");
  const std::string temporary = Finished("new");
  EXPECT_EQ(PlaceComplaint(temporary, "m.ads"), "kivuxl: Error moving temporary file.\n");
  EXPECT_EQ(All(), (std::set<std::string>{temporary}));
}

TEST_F(Output, UnitIsCopiedAcrossFileSystems) {
  const char *elsewhere = Elsewhere();
  if (elsewhere == nullptr) {
    GTEST_SKIP() << "no second file system";
  }
  umask(027);
  const std::string text(100000, 'x');
  const std::string temporary = Finished(text, elsewhere);
  Put("m.ads", "old");
  EXPECT_EQ(CopyTemporaryToFile(temporary, "m.ads"), 1);
  EXPECT_EQ(Contents("m.ads"), text);
  EXPECT_EQ(ModeOf("m.ads"), 0640U);
  EXPECT_EQ(All(), (std::set<std::string>{"m.ads"}));
  EXPECT_FALSE(std::filesystem::exists(temporary));
}

TEST_F(Output, OldUnitStaysWhenTheCopyCannotBeWritten) {
  const char *elsewhere = Elsewhere();
  if (elsewhere == nullptr) {
    GTEST_SKIP() << "no second file system";
  }
  const std::string temporary = Finished(std::string(100000, 'x'), elsewhere);
  Put("m.ads", "old");
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small = {50000, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  const std::string complaint = PlaceComplaint(temporary, "m.ads");
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(complaint, "kivuxl: Error writing file \"m.ads\".\n"
                       "kivuxl: Error copying temporary file.\n");
  EXPECT_EQ(Contents("m.ads"), "old");
  EXPECT_EQ(All(), (std::set<std::string>{"m.ads"}));
}

// Lets no descriptor above the next `count` free ones be opened for one scope.
struct FewDescriptors {
  rlimit before{};
  explicit FewDescriptors(rlim_t count) {
    getrlimit(RLIMIT_NOFILE, &before);
    const int next = dup(STDIN_FILENO);
    close(next);
    const rlimit few = {static_cast<rlim_t>(next) + count, before.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
  }
  ~FewDescriptors() { setrlimit(RLIMIT_NOFILE, &before); }
  FewDescriptors(const FewDescriptors &) = delete;
  FewDescriptors &operator=(const FewDescriptors &) = delete;
};

TEST_F(Output, CopyWithoutDescriptorsIsReported) {
  const char *elsewhere = Elsewhere();
  if (elsewhere == nullptr) {
    GTEST_SKIP() << "no second file system";
  }
  const std::string temporary = Finished("new", elsewhere);
  Put("m.ads", "old");
  const std::string named[] = {"\"" + temporary + "\" for reading", "\"m.ads\" for writing"};
  for (rlim_t count = 0; count < 2; ++count) {
    const std::string complaint = ErrorsOf([&] {
      const FewDescriptors few(count);
      EXPECT_EQ(CopyTemporaryToFile(temporary, "m.ads"), 0);
    });
    EXPECT_EQ(complaint, "kivuxl: Cannot open file " + named[count] +
                             ".\nkivuxl: Error copying temporary file.\n");
    EXPECT_EQ(Contents("m.ads"), "old");
    EXPECT_EQ(All(), (std::set<std::string>{"m.ads"}));
  }
}

// A directory cannot be linked, and opens, but cannot be read.
TEST_F(Output, WhatCannotBeReadIsNotPlaced) {
  EXPECT_EQ(PlaceComplaint("tmp", "m.ads"), "kivuxl: Error reading file \"tmp\".\n"
                                            "kivuxl: Error copying temporary file.\n");
  EXPECT_EQ(All(), (std::set<std::string>{}));
}

// -- Signals -----------------------------------------------------------------------------------

// Runs `act` in a process of its own and returns how that has ended.
static int EndingOf(const std::function<void()> &act) {
  const pid_t child = fork();
  if (child == 0) {
    act();
    _exit(0);
  }
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  return status;
}

TEST_F(Output, SignalsRemoveTemporaryFilesAndEndTheProcess) {
  for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
    const int status = EndingOf([number] {
      std::signal(number, SIG_DFL);
      OutputCatchSignals();
      Finished("1");
      Finished("2");
      raise(number);
    });
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == number) << number;
    EXPECT_EQ(All(), (std::set<std::string>{})) << number;
  }
}

TEST_F(Output, IgnoredSignalsStayIgnored) {
  const int status = EndingOf([] {
    std::signal(SIGHUP, SIG_IGN);
    OutputCatchSignals();
    Finished("1");
    raise(SIGHUP);
  });
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  EXPECT_EQ(All().size(), 1U);
}

// The handler itself, for a signal that does not end the process.
TEST_F(Output, HandlerRemovesEveryTemporaryFile) {
  struct sigaction handler {};
  const int status = EndingOf([&] {
    OutputCatchSignals();
    sigaction(SIGTERM, nullptr, &handler);
    Finished("1");
    Finished("2");
    std::signal(SIGURG, SIG_IGN);
    handler.sa_handler(SIGURG);
    std::exit(All().empty() ? 0 : 1);
  });
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST_F(Output, TerminationWithoutMemoryRemovesThemAndSaysSo) {
  int status = -1;
  const std::string printed = ErrorsOf([&] {
    status = EndingOf([] {
      OutputCatchSignals();
      Finished("1");
      std::terminate();
    });
  });
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1);
  EXPECT_EQ(printed, "kivuxl: Out of memory.\n");
  EXPECT_EQ(All(), (std::set<std::string>{}));
}
