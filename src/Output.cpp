// See Output.h.
//
// The names of all temporary files that exist stand in a fixed table of plain texts, for the signal
// handlers read it too; it is changed only while their signals are held back.  A unit is put in
// place in two moves: a complete file gets an unguessable name in the directory of the final file,
// by a hard link or, where none can be made, by copying, and that name is changed to the final one.
// So the old unit stays until the new one takes its place.

#include "Output.h"

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <string_view>

#include "Alloc.h"
#include "Ascii.h"
#include "Emit.h"
#include "Error.h"
#include "Files.h"
#include "Options.h"

constexpr std::size_t kTemporaries = 8; // at one time: a file per slot, one in place, the listing
constexpr std::size_t kRandomLength = 16;
constexpr std::string_view kBesidePrefix = ".kivut";
constexpr mode_t kNewFileMode = 0666; // before the user's mask
constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGPIPE};

// -- Temporary files ---------------------------------------------------------------------------

struct TemporaryName {
  std::array<char, PATH_MAX> text; // "" in an unused entry
};

static std::array<TemporaryName, kTemporaries> temporaries;

// Holds the signals back for one scope.
struct SignalsHeld {
  sigset_t before{};
  SignalsHeld() {
    sigset_t held{};
    sigemptyset(&held);
    for (const int number : kSignals) {
      sigaddset(&held, number);
    }
    sigprocmask(SIG_BLOCK, &held, &before);
  }
  ~SignalsHeld() { sigprocmask(SIG_SETMASK, &before, nullptr); }
  SignalsHeld(const SignalsHeld &) = delete;
  SignalsHeld &operator=(const SignalsHeld &) = delete;
};

static TemporaryName *FindTemporary(std::string_view name) {
  auto *const entry =
      std::find_if(temporaries.begin(), temporaries.end(),
                   [name](const TemporaryName &item) { return name == item.text.data(); });
  return entry == temporaries.end() ? nullptr : entry;
}

// Remembers a file just created, or removes it again when there is no room.
static bool KeepTemporary(const std::string &name) {
  TemporaryName *entry = FindTemporary("");
  if (entry == nullptr || name.size() >= entry->text.size()) {
    unlink(name.c_str());
    return false;
  }
  SafeStrcpy(entry->text.data(), name.c_str(), entry->text.size());
  return true;
}

void OutputBeginsInPlace(const std::string &name) {
  struct stat status {};
  const SignalsHeld held;
  if (lstat(name.c_str(), &status) == 0 && S_ISREG(status.st_mode)) {
    KeepTemporary(name);
  }
}

void OutputEndsInPlace(const std::string &name) {
  const SignalsHeld held;
  TemporaryName *entry = FindTemporary(name);
  if (entry != nullptr) {
    entry->text[0] = '\0';
  }
}

static void RemoveEntry(TemporaryName *entry) {
  unlink(entry->text.data());
  entry->text[0] = '\0';
}

static void RemoveTemporary(const std::string &name) {
  const SignalsHeld held;
  TemporaryName *entry = name.empty() ? nullptr : FindTemporary(name);
  if (entry != nullptr) {
    RemoveEntry(entry);
  }
}

void OutputRemoveTemporaries() {
  const SignalsHeld held;
  for (TemporaryName &entry : temporaries) {
    if (entry.text[0] != '\0') {
      RemoveEntry(&entry);
    }
  }
}

// Creates a file under a fresh name and opens it.  Null when that cannot be done there.
static std::FILE *CreateIn(const char *dir, const char *prefix, std::string *name) {
  *name = std::string(dir) + '/' + prefix + "XXXXXX";
  const SignalsHeld held;
  const int descriptor = mkostemp(name->data(), O_CLOEXEC);
  if (descriptor < 0) {
    return nullptr;
  }
  std::FILE *stream = KeepTemporary(*name) ? fdopen(descriptor, "w") : nullptr;
  if (stream == nullptr) {
    close(descriptor);
  }
  return stream;
}

static bool IsDirectory(const char *path) {
  struct stat status {};
  return stat(path, &status) == 0 && S_ISDIR(status.st_mode);
}

// The first directory that can be used is taken: the environment's, the user's, the system's.
int MakeTemporaryFile(const char *dir, const char *prefix, std::string *name_out,
                      std::FILE **stream_out) {
  bool found = false;
  for (const char *candidate : {static_cast<const char *>(std::getenv("TMPDIR")), dir, P_tmpdir}) {
    if (candidate == nullptr || !IsDirectory(candidate)) {
      continue;
    }
    found = true;
    *stream_out = CreateIn(candidate, prefix, name_out);
    if (*stream_out != nullptr) {
      return 1;
    }
  }
  name_out->clear();
  *stream_out = nullptr;
  ErrorMessage(kImmediate,
               found ? "Error opening temporary file" : "Error creating temporary file name");
  return 0;
}

// -- Closing -----------------------------------------------------------------------------------

static void ReportWriting(const char *name) {
  ErrorFormat(kImmediate, "Error writing file \"%s\"", name);
}

int OutputClose(OutputSlot *slot, const std::string &final_name) {
  if (slot->stream == nullptr || slot->stream == stdout) {
    return 1;
  }
  EmitRelease(slot->stream);
  const bool failed = std::ferror(slot->stream) != 0;
  const bool closed = std::fclose(slot->stream) == 0;
  slot->stream = nullptr;
  if (failed || !closed) {
    ReportWriting(final_name.c_str());
    return 0;
  }
  return 1;
}

void OutputDiscard(OutputSlot *slot) {
  if (slot->stream != nullptr && slot->stream != stdout) {
    EmitRelease(slot->stream);
    std::fclose(slot->stream);
  }
  slot->stream = nullptr;
  RemoveTemporary(slot->name);
  slot->name.clear();
}

static bool standard_failed = false; // and it has been said

int OutputCheckStandard() {
  if (!standard_failed && (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)) {
    standard_failed = true;
    ReportWriting("-");
  }
  return standard_failed ? 0 : 1;
}

// -- Putting in place --------------------------------------------------------------------------

std::string OutputFinalName(std::string path) {
  if (apex || gnat) {
    const std::size_t last = path.rfind('/') + 1; // npos + 1 is 0
    std::transform(path.begin() + static_cast<std::ptrdiff_t>(last), path.end(),
                   path.begin() + static_cast<std::ptrdiff_t>(last), AsciiToLower);
  }
  return path;
}

// An unguessable name in the directory of the file; empty when the system has no random bytes.
static std::string NameBeside(const std::string &path) {
  static constexpr std::string_view kLetters =
      "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-";
  std::array<unsigned char, kRandomLength> bytes{};
  if (getentropy(bytes.data(), bytes.size()) != 0) {
    return "";
  }
  std::string name = path.substr(0, path.rfind('/') + 1);
  name += kBesidePrefix;
  for (const unsigned char byte : bytes) {
    name += kLetters[byte % kLetters.size()];
  }
  return name;
}

// Gives the file a second name; an error number, or 0.
static int LinkBeside(const std::string &temporary, const std::string &beside) {
  const SignalsHeld held;
  if (link(temporary.c_str(), beside.c_str()) != 0) {
    return errno;
  }
  return KeepTemporary(beside) ? 0 : ENOMEM;
}

// The file may well be copied where it cannot be linked.
static bool IsLinkRefused(int error) {
  static constexpr int kRefusals[] = {EXDEV, EPERM, EMLINK, ENOSYS, EOPNOTSUPP};
  return std::find(std::begin(kRefusals), std::end(kRefusals), error) != std::end(kRefusals);
}

static std::FILE *CreateBeside(const std::string &beside) {
  const SignalsHeld held;
  const int descriptor =
      open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0) {
    return nullptr;
  }
  std::FILE *stream = KeepTemporary(beside) ? fdopen(descriptor, "w") : nullptr;
  if (stream == nullptr) {
    close(descriptor);
  }
  return stream;
}

// Copies the temporary file to the name beside `final_name`, which is the one that messages name.
static bool CopyBeside(const std::string &temporary, const std::string &beside,
                       const std::string &final_name) {
  const Stream from(std::fopen(temporary.c_str(), "r"));
  if (from == nullptr) {
    ErrorFormat(kImmediate, "Cannot open file \"%s\" for reading", temporary.c_str());
    return false;
  }
  std::FILE *to = CreateBeside(beside);
  if (to == nullptr) {
    ErrorFormat(kImmediate, "Cannot open file \"%s\" for writing", final_name.c_str());
    return false;
  }
  const bool written = FilesCopyBlocks(from.get(), to);
  const bool closed = std::fclose(to) == 0;
  if (!written || !closed) {
    ReportWriting(final_name.c_str());
    return false;
  }
  if (std::ferror(from.get()) != 0) {
    ErrorFormat(kImmediate, "Error reading file \"%s\"", temporary.c_str());
    return false;
  }
  return true;
}

// Temporary files are private, finished units are as open as the user wants new files to be.
static void OpenToOthers(const std::string &path) {
  const mode_t mask = umask(0);
  umask(mask);
  // A file system without permissions may refuse; the unit is as good as it can be there.
  static_cast<void>(chmod(path.c_str(), kNewFileMode & ~mask));
}

static bool MoveTemporary(const std::string &temporary, const std::string &beside,
                          const std::string &final_name) {
  const int error = beside.empty() ? EIO : LinkBeside(temporary, beside);
  if (error != 0 && IsLinkRefused(error)) {
    if (!CopyBeside(temporary, beside, final_name)) {
      ErrorMessage(kImmediate, "Error copying temporary file");
      return false;
    }
  } else if (error != 0) {
    ErrorMessage(kImmediate, "Error moving temporary file");
    return false;
  }
  OpenToOthers(beside);
  if (std::rename(beside.c_str(), final_name.c_str()) != 0) {
    ErrorMessage(kImmediate, "Error moving temporary file");
    return false;
  }
  return true;
}

int CopyTemporaryToFile(const std::string &temporary, const std::string &final_name) {
  const std::string final_path = OutputFinalName(final_name);
  const std::string beside = NameBeside(final_path);
  const bool moved = MoveTemporary(temporary, beside, final_path);
  RemoveTemporary(beside);
  if (!moved) {
    return 0;
  }
  RemoveTemporary(temporary);
  return 1;
}

// -- Signals -----------------------------------------------------------------------------------

// Nothing but calls that are allowed in a handler.
static void RemoveTemporaries() {
  for (const TemporaryName &entry : temporaries) {
    if (entry.text[0] != '\0') {
      unlink(entry.text.data());
    }
  }
}

static void EndBySignal(int number) {
  RemoveTemporaries();
  struct sigaction action {};
  action.sa_handler = SIG_DFL;
  sigaction(number, &action, nullptr);
  raise(number); // comes when the handler returns
}

// Ending the run throws, and without any memory even that fails.
[[noreturn]] static void EndWithoutMemory() {
  constexpr std::string_view kText = "kivuxl: Out of memory.\n";
  [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, kText.data(), kText.size());
  RemoveTemporaries();
  _exit(1);
}

void OutputCatchSignals() {
  std::set_terminate(EndWithoutMemory);
  struct sigaction action {};
  sigemptyset(&action.sa_mask);
  for (const int number : kSignals) {
    sigaddset(&action.sa_mask, number);
  }
  action.sa_handler = EndBySignal;
  for (const int number : kSignals) {
    struct sigaction present {};
    if (sigaction(number, nullptr, &present) == 0 && present.sa_handler != SIG_IGN) {
      sigaction(number, &action, nullptr);
    }
  }
  // A file that grows over the user's limit is a failed write like any other.
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
}

void OutputReset() {
  OutputRemoveTemporaries();
  if (standard_failed) {
    std::clearerr(stdout);
    standard_failed = false;
  }
}
