// A libFuzzer target: whole translations in one process.  The input is the module; its size chooses
// the options, so that any file can be a seed.  Ada goes to the null device and messages nowhere
// (run with -close_fd_mask=2); what is looked for are crashes, leaks, hangs and undefined
// behaviour.

#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "Driver.h"
#include "Reset.h"

static std::string source; // the module's path

static const char *const kOptions[] = {"-ci", "-gnat", "-ada95", "-widgets", "-orvo4", "-ng"};

static void Remove() {
  unlink(source.c_str());
  rmdir(source.substr(0, source.rfind('/')).c_str());
}

// Runs in a directory of its own, where no include file is.
extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/) {
  const char *top = std::getenv("TMPDIR");
  std::string directory = std::string(top == nullptr ? "/tmp" : top) + "/kivuxl-fuzz-XXXXXX";
  if (mkdtemp(directory.data()) == nullptr || std::freopen("/dev/null", "w", stdout) == nullptr) {
    std::perror("kivuxl-fuzz");
    std::exit(1);
  }
  source = directory + "/m.uil";
  return std::atexit(Remove);
}

static void WriteSource(const std::uint8_t *data, std::size_t size) {
  std::FILE *file = std::fopen(source.c_str(), "w");
  if (file == nullptr || std::fwrite(data, 1, size, file) != size || std::fclose(file) != 0) {
    std::perror("kivuxl-fuzz");
    std::exit(1);
  }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  WriteSource(data, size);
  std::vector<std::string> words = {"kivuxl", "-stub", "-wrap", "-v", "/dev/null", "-o", "-"};
  for (std::size_t i = 0; i < std::size(kOptions); ++i) {
    if ((size >> i & 1U) != 0) {
      words.emplace_back(kOptions[i]);
    }
  }
  words.emplace_back("-w"); // -widgets and -ng take what comes behind them for a word of theirs
  words.emplace_back("-w");
  words.push_back(source);
  std::vector<char *> argv;
  for (std::string &word : words) {
    argv.push_back(word.data());
  }
  argv.push_back(nullptr);
  DriverRun(static_cast<int>(words.size()), argv.data());
  ProgramReset();
  return 0;
}
