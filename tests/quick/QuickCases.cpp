// Runs the end-to-end cases of tests/cases/ in this process, which takes a hundredth of the time
// that a shell and a program for each of them take.  What a case is stands in tests/run_case.py;
// the same is compared here, but malformed cases are that program's business.  A case whose command
// line is more than words is skipped: redirections and the like need a shell.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "Driver.h"
#include "Reset.h"

namespace fs = std::filesystem;

// -- Files -------------------------------------------------------------------------------------

static std::string ReadIfThere(const fs::path &path) {
  std::ostringstream text;
  const std::ifstream file(path, std::ios::binary);
  if (file) {
    text << file.rdbuf();
  }
  return text.str();
}

static std::vector<std::string> LinesOf(const std::string &text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

// What a name stands for: equal before and after when the run left it alone.
static std::string Describe(const fs::path &path) {
  const fs::file_status status = fs::symlink_status(path);
  if (fs::is_symlink(status)) {
    return "link " + fs::read_symlink(path).string();
  }
  if (fs::is_regular_file(status)) {
    return "file " + ReadIfThere(path);
  }
  return std::to_string(static_cast<int>(status.type()));
}

using Snapshot = std::map<std::string, std::string>;

// Everything below a directory, by relative name; names of directories end in "/".
static Snapshot SnapshotOf(const fs::path &top) {
  Snapshot found;
  for (const fs::directory_entry &entry : fs::recursive_directory_iterator(top)) {
    const bool is_folder = fs::is_directory(entry.symlink_status());
    const std::string name = entry.path().lexically_relative(top).string();
    found[name + (is_folder ? "/" : "")] = Describe(entry.path());
  }
  return found;
}

// The names of what a run wrote or changed, and with "-" of what it removed, sorted.
static std::vector<std::string> Changes(const Snapshot &before, const Snapshot &after) {
  std::vector<std::string> names;
  for (const auto &[name, content] : after) {
    const auto old = before.find(name);
    if (old == before.end() || old->second != content) {
      names.push_back(name);
    }
  }
  for (const auto &[name, content] : before) {
    if (!after.contains(name)) {
      names.push_back("-" + name);
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

// -- Command lines -----------------------------------------------------------------------------

// Takes a quoted text up to its closing quote; false when a shell would do more with it.
static bool TakeQuoted(std::string_view *rest, std::string *word) {
  const char quote = rest->front();
  const std::size_t end = rest->find(quote, 1);
  if (end == std::string_view::npos) {
    return false;
  }
  const std::string_view text = rest->substr(1, end - 1);
  word->append(text);
  rest->remove_prefix(end + 1);
  return quote == '\'' || text.find_first_of("$`\\") == std::string_view::npos;
}

// The words of a command line; nothing when it is more than words and quoted texts.
static std::optional<std::vector<std::string>> WordsOf(std::string_view rest) {
  std::vector<std::string> words;
  bool inside = false;
  while (!rest.empty()) {
    const char next = rest.front();
    if (next == ' ') {
      inside = false;
      rest.remove_prefix(1);
      continue;
    }
    if (!inside) {
      words.emplace_back();
      inside = true;
    }
    if (next == '\'' || next == '"') {
      if (!TakeQuoted(&rest, &words.back())) {
        return std::nullopt;
      }
    } else if (std::string_view("\t\n|&;<>()$`\\*?[]#~!{}").find(next) != std::string_view::npos) {
      return std::nullopt;
    } else {
      words.back() += next;
      rest.remove_prefix(1);
    }
  }
  return words;
}

// -- Surroundings ------------------------------------------------------------------------------

// Lets a descriptor lead to a file for one scope.
class Redirected {
public:
  Redirected(int descriptor, const fs::path &path, int flags)
      : number(descriptor), saved(fcntl(descriptor, F_DUPFD_CLOEXEC, 10)) {
    constexpr mode_t kMode = 0600;
    const int file = open(path.c_str(), flags | O_CLOEXEC, kMode);
    if (file < 0 || saved < 0 || dup2(file, number) < 0) {
      std::perror(path.c_str());
      std::abort();
    }
    close(file);
  }
  ~Redirected() {
    dup2(saved, number);
    close(saved);
  }
  Redirected(const Redirected &) = delete;
  Redirected &operator=(const Redirected &) = delete;

private:
  int number;
  int saved;
};

// Replaces the environment for one scope by that of a case.
class Surroundings {
public:
  explicit Surroundings(const std::vector<std::string> &lines) : folder(fs::current_path()) {
    for (char **entry = environ; *entry != nullptr; ++entry) {
      before.emplace_back(*entry);
    }
    clearenv();
    mask = umask(022);
    Set(lines);
  }
  ~Surroundings() {
    clearenv();
    Set(before);
    umask(mask);
    fs::current_path(folder);
  }
  Surroundings(const Surroundings &) = delete;
  Surroundings &operator=(const Surroundings &) = delete;

private:
  // Lines NAME=value, or NAME alone to unset it.
  static void Set(const std::vector<std::string> &lines) {
    for (const std::string &line : lines) {
      const std::size_t equals = line.find('=');
      if (equals == std::string::npos) {
        unsetenv(line.c_str());
      } else {
        setenv(line.substr(0, equals).c_str(), line.substr(equals + 1).c_str(), 1);
      }
    }
  }

  fs::path folder;
  mode_t mask;
  std::vector<std::string> before;
};

// -- The cases ---------------------------------------------------------------------------------

static std::vector<std::string> CaseNames() {
  std::vector<std::string> names;
  for (const fs::directory_entry &entry : fs::directory_iterator(KIVUXL_CASES)) {
    if (entry.is_directory()) {
      names.push_back(entry.path().filename());
    }
  }
  std::sort(names.begin(), names.end());
  return names;
}

static std::optional<std::vector<std::string>> CommandOf(const std::string &name) {
  std::string command = ReadIfThere(fs::path(KIVUXL_CASES) / name / "command");
  if (command.ends_with('\n')) {
    command.pop_back();
  }
  return WordsOf(command);
}

// Runs the program with these words and returns its status.
static int RunWords(std::vector<std::string> words) {
  std::vector<char *> argv;
  argv.reserve(words.size() + 1);
  for (std::string &word : words) {
    argv.push_back(word.data());
  }
  argv.push_back(nullptr);
  const int status = DriverRun(static_cast<int>(words.size()), argv.data());
  std::fflush(stdout);
  return status;
}

class Cases : public testing::TestWithParam<std::string> {
protected:
  void SetUp() override {
    folder = fs::path(KIVUXL_CASES) / GetParam();
    std::string name = fs::temp_directory_path() / "kivuxl-quick-XXXXXX";
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    top = name;
    fs::create_directory(top / "tmp");
  }

  void TearDown() override {
    ProgramReset();
    for (const auto &[name, content] : SnapshotOf(top)) {
      if (name.ends_with('/')) {
        fs::permissions(top / name, fs::perms::owner_all, fs::perm_options::add);
      }
    }
    fs::remove_all(top);
  }

  [[nodiscard]] std::vector<std::string> Environment() const {
    std::vector<std::string> lines = {
        "LC_ALL=C",
        "TZ=UTC",
        "PATH=/usr/local/bin:/usr/bin:/bin",
        "TMPDIR=" + (top / "tmp").string(),
    };
    const std::vector<std::string> own = LinesOf(ReadIfThere(folder / "environment"));
    lines.insert(lines.end(), own.begin(), own.end());
    return lines;
  }

  // Fills the scratch directory and goes there.
  void Prepare() const {
    const fs::path scratch = top / "scratch";
    if (fs::exists(folder / "input")) {
      fs::copy(folder / "input", scratch,
               fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    } else {
      fs::create_directory(scratch);
    }
    fs::current_path(scratch);
    if (fs::exists(folder / "setup")) {
      const std::string command = "sh -e '" + (folder / "setup").string() + "'";
      EXPECT_EQ(std::system(command.c_str()), 0);
    }
  }

  [[nodiscard]] int Run(const std::vector<std::string> &words) const {
    constexpr int kFresh = O_WRONLY | O_CREAT | O_TRUNC;
    std::fflush(stdout);
    const Redirected in(STDIN_FILENO, "/dev/null", O_RDONLY);
    const Redirected out(STDOUT_FILENO, top / "stdout", kFresh);
    const Redirected err(STDERR_FILENO, top / "stderr", kFresh);
    return RunWords(words);
  }

  void CompareContents() const {
    const fs::path expected = folder / "expected";
    if (!fs::exists(expected)) {
      return;
    }
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(expected)) {
      const fs::path name = entry.path().lexically_relative(expected);
      if (entry.is_regular_file()) {
        EXPECT_EQ(ReadIfThere(name), ReadIfThere(entry.path())) << name;
      }
    }
  }

  fs::path folder;
  fs::path top;
};

TEST_P(Cases, InProcess) {
  const auto words = CommandOf(GetParam());
  if (!words) {
    GTEST_SKIP() << GetParam() << ": its command line needs a shell";
  }
  const Surroundings surroundings(Environment());
  Prepare();
  const Snapshot before = SnapshotOf(".");
  const int status = Run(*words);
  EXPECT_EQ(status, std::stoi(ReadIfThere(folder / "status")));
  EXPECT_EQ(ReadIfThere(top / "stdout"), ReadIfThere(folder / "stdout"));
  EXPECT_EQ(ReadIfThere(top / "stderr"), ReadIfThere(folder / "stderr"));
  EXPECT_EQ(Changes(before, SnapshotOf(".")), LinesOf(ReadIfThere(folder / "files")));
  CompareContents();
  EXPECT_TRUE(fs::is_empty(top / "tmp"));
}

// A folder's name as that of a test.
static std::string TestName(const testing::TestParamInfo<std::string> &parameter) {
  std::string name = parameter.param;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(All, Cases, testing::ValuesIn(CaseNames()), TestName);

// -- The runner itself -------------------------------------------------------------------------

TEST(CaseRunner, MostCasesNeedNoShell) {
  const std::vector<std::string> names = CaseNames();
  const auto skipped = std::count_if(names.begin(), names.end(),
                                     [](const std::string &name) { return !CommandOf(name); });
  EXPECT_GE(names.size(), 400U);
  EXPECT_LE(skipped * 10, static_cast<long>(names.size())) << "one in ten";
}

TEST(CaseRunner, WordsAreThoseOfAShell) {
  using Words = std::vector<std::string>;
  EXPECT_EQ(WordsOf("kivuxl"), Words{"kivuxl"});
  EXPECT_EQ(WordsOf("kivuxl  -o x.ads m.uil"), (Words{"kivuxl", "-o", "x.ads", "m.uil"}));
  EXPECT_EQ(WordsOf("kivuxl '' a'b c'd \"e f\""), (Words{"kivuxl", "", "ab cd", "e f"}));
  EXPECT_EQ(WordsOf("kivuxl '$x\\'"), (Words{"kivuxl", "$x\\"}));
  for (const char *line : {"a > b", "a | b", "a; b", "a & b", "a >&-", "a $b", "a `b`", "a *",
                           "a ~", "a 'b", "a \"$b\"", "a \\b", "(a)", "a #b"}) {
    EXPECT_EQ(WordsOf(line), std::nullopt) << line;
  }
}

TEST(CaseRunner, ChangesAreNamed) {
  const Snapshot before = {{"changed", "file 1"}, {"gone", "file"}, {"same", "file"}};
  const Snapshot after = {
      {"changed", "file 2"}, {"new/", "2"}, {"new/one", "file"}, {"same", "file"}};
  EXPECT_EQ(Changes(before, after),
            (std::vector<std::string>{"-gone", "changed", "new/", "new/one"}));
}
