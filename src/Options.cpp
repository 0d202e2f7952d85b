// See Options.h.
//
// The options stand in one table.  A row says how its word is recognised, how its arguments are
// read and what they change, so the loop over the words knows no option by name.  The rows stand
// in the order in which they are tried.

#include "Options.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "Alloc.h"
#include "Ascii.h"
#include "ConfigFile.h"
#include "Error.h"
#include "Files.h"
#include "Model.h"
#include "Parser.h"
#include "Scanner.h"
#include "Usage.h"

constexpr int kQuiet = 0;
constexpr int kNormal = 1;
constexpr int kVerbose = 2;
constexpr int kOldestRevision = 3;
constexpr int kNewestRevision = 4;
constexpr int kDefaultWidth = 75;
constexpr int kDefaultLength = 54;
constexpr long kLargestCount = 32767; // of columns or rows on a page
constexpr int kShellWords = 3;
constexpr char kSpecSuffix[] = ".ads";
constexpr char kBodySuffix[] = ".adb";
constexpr char kUilWord[] = "uil";
constexpr char kCallbacksWord[] = "callbacks";
constexpr char kWidgetsWord[] = "widgets";

int verbose = kNormal;
int interface_type = kInterfaceOrvo;
int orvo_revision = kOldestRevision;
bool case_sensitive = true;
bool override_case = false;
bool emit_main = false;
std::optional<std::string> main_file;
std::optional<std::string> main_sfx;
int main_filename_type = 0;
std::string main_filename;
List shellinfo = nullptr;
bool no_uil = false;
bool emit_stubs = false;
bool emit_wrappers = false;
bool emit_make = false;
bool emit_ux = false;
std::string spec_sfx = kSpecSuffix;
std::string body_sfx = kBodySuffix;
std::optional<std::string> output_filename;
bool apex = false;
bool gnat = false;
bool vads = false;
bool adaworld = false;
bool objectada = false;
bool portable = false;
bool ada95 = false;
std::optional<std::string> outdir;
std::optional<std::string> tmpdir;
std::optional<std::string> listing_filename;
int listing_width = kDefaultWidth;
int listing_length = kDefaultLength;
std::optional<std::string> widgets_record_suffix;
std::string uil_package_suffix = kUilWord;
std::string cb_package_suffix = kCallbacksWord;
std::string uil_instant_suffix;
bool forbid_generic_wrapper = false;
bool forbid_generic_widgets = false;
std::string program_name;
const char *const version_string = "3.0.2 Mon Jun 28 11:17:13 PDT 1999";

// The word being read.  In a configuration file `rest` is the rest of the line, else the rest of
// the command line.
struct OptionWords {
  const char *word;
  std::span<const char *const> rest;
  bool from_file;
};

static bool print_version = false;

// -- Arguments ---------------------------------------------------------------------------------

static bool IsOption(const char *word) { return word[0] == '-'; }

// The argument of an option that may stand alone, or null.  The last word of the command line is
// left for the input file.
static const char *OptionalArgument(const OptionWords &words) {
  if (words.from_file) {
    return words.rest.empty() ? nullptr : words.rest.front();
  }
  return words.rest.size() < 2 || IsOption(words.rest.front()) ? nullptr : words.rest.front();
}

static int ReadNone(const OptionRow &row, const OptionWords & /*words*/) {
  row.apply(nullptr);
  return 0;
}

static int ReadFlag(const OptionRow &row, const OptionWords & /*words*/) {
  *row.flag = true;
  return 0;
}

static int ReadRequired(const OptionRow &row, const OptionWords &words) {
  if (words.rest.empty()) {
    const bool in_file = words.from_file && row.missing_in_file != nullptr;
    FatalErrorMessage(in_file ? row.missing_in_file : row.missing, 1);
  }
  row.apply(words.rest.front());
  return 1;
}

static int ReadOptional(const OptionRow &row, const OptionWords &words) {
  const char *argument = OptionalArgument(words);
  *row.text = argument == nullptr ? "" : argument;
  return argument == nullptr ? 0 : 1;
}

// Reserved: its argument is left to be read as a word of its own.
static int ReadIgnored(const OptionRow & /*row*/, const OptionWords & /*words*/) { return 0; }

// "-Idir" on the command line, "-I dir" in a configuration file.
static int ReadPath(const OptionRow &row, const OptionWords &words) {
  const char *path = words.word + 2;
  if (words.from_file) {
    path = words.rest.empty() ? "" : words.rest.front();
  }
  if (*path == '\0') {
    FatalErrorMessage(row.missing, 1);
  }
  FilesAddPath(path);
  return 0;
}

// Without a suffix the next word is passed over all the same.
static int ReadWidgets(const OptionRow & /*row*/, const OptionWords &words) {
  const char *argument = OptionalArgument(words);
  widgets_record_suffix = argument == nullptr ? kWidgetsWord : argument;
  return 1;
}

static int ReadMain(const OptionRow & /*row*/, const OptionWords &words) {
  const char *argument = OptionalArgument(words);
  emit_main = true;
  set_main_filename(argument == nullptr ? "-" : argument, &main_file, &main_sfx,
                    &main_filename_type);
  return main_filename_type > 0 ? 1 : 0;
}

static bool ForbidGenerics(std::string_view word) {
  if (word == kCallbacksWord) {
    forbid_generic_wrapper = true;
  } else if (word == kWidgetsWord) {
    forbid_generic_widgets = true;
  } else {
    return false;
  }
  return true;
}

static int ReadGenerics(const OptionRow & /*row*/, const OptionWords &words) {
  if (OptionalArgument(words) == nullptr) {
    forbid_generic_wrapper = true;
    forbid_generic_widgets = true;
    return 0;
  }
  if (words.from_file) {
    std::for_each(words.rest.begin(), words.rest.end(), ForbidGenerics);
    return 0;
  }
  const auto last = words.rest.end() - 1;
  return static_cast<int>(std::find_if_not(words.rest.begin(), last, ForbidGenerics) -
                          words.rest.begin());
}

// The file's lines come next.  When there is no such file, one word more is lost.
static int ReadConfig(const OptionRow & /*row*/, const OptionWords &words) {
  if (words.from_file) {
    ErrorMessage(kImmediate, "Configuration file cannot contain -cfg arguments.");
    return 0;
  }
  if (words.rest.empty()) {
    return 0;
  }
  if (!ConfigFileOpen(words.rest.front())) {
    ErrorMessage(kImmediate, "Configuration file cannot be opened.");
    return 2;
  }
  return 1;
}

static int ReadSuffix(const OptionRow &row, const OptionWords &words) {
  return set_suffix(row.spelling, words.word, words.rest.empty() ? nullptr : words.rest.front(),
                    row.text);
}

static int ReadCompiler(const OptionRow &row, const OptionWords & /*words*/) {
  static constexpr std::array kCompilers = {&apex, &gnat, &vads, &adaworld, &objectada, &portable};
  for (const bool *compiler : kCompilers) {
    if (*compiler && compiler != row.flag) {
      FatalErrorMessage("Specify only one compiler\n(-apex | -gnat | -vads | -adaworld | "
                        "-objectada | -portable).",
                        1);
    }
  }
  *row.flag = true;
  return 0;
}

// -- Shells ------------------------------------------------------------------------------------

// What is put behind the name of a shell that is called like its child.
struct ShellSuffix {
  std::string_view shell_class;
  std::string_view suffix;
};
static constexpr ShellSuffix kShellSuffixes[] = {
    {"applicationShell", "_appl"},
    {"menuShell", "_menu"},
    {"dialogShell", "_popup"},
};
static constexpr std::string_view kOtherShellSuffix = "_shell";

static const char *ShellName(const char *name, const char *shell_class, const char *child) {
  if (SafeStrcmp(name, child, 0) != 0) {
    return ModelText(name);
  }
  const auto *row = std::find_if(
      std::begin(kShellSuffixes), std::end(kShellSuffixes),
      [shell_class](const ShellSuffix &entry) { return entry.shell_class == shell_class; });
  std::string result = name;
  result += row == std::end(kShellSuffixes) ? kOtherShellSuffix : row->suffix;
  return ModelText(result);
}

static const void *ShellKey(void *item) {
  return static_cast<const Kivu_ShellInfo *>(item)->childName;
}

static int ReadShell(const OptionRow &row, const OptionWords &words) {
  if (words.rest.size() < kShellWords ||
      (!words.from_file &&
       std::any_of(words.rest.begin(), words.rest.begin() + kShellWords, IsOption))) {
    FatalErrorMessage(row.missing, 1);
  }
  if (shellinfo == nullptr) {
    shellinfo = ModelList();
    shellinfo->compare = ListCompareCaseSensitive;
    shellinfo->keyproc = ShellKey;
  }
  auto *shell = ModelNew<Kivu_ShellInfo>(0);
  shell->childName = ModelText(words.rest[2]);
  shell->shellName = ShellName(words.rest[0], words.rest[1], words.rest[2]);
  shell->shellClass = ModelText(words.rest[1]);
  shell->pkgName = ModelText(words.rest[0]);
  ModelAppend(shellinfo, shell);
  return kShellWords;
}

// -- Effects -----------------------------------------------------------------------------------

static void SetTracing(const char * /*argument*/) {
  yydebug = 1;
  yy_flex_debug = 1;
}

template <int revision> static void SetRevision(const char * /*argument*/) {
  interface_type = kInterfaceOrvo;
  orvo_revision = revision;
}

template <bool sensitive> static void SetCase(const char * /*argument*/) {
  case_sensitive = sensitive;
  override_case = true;
}

template <int level> static void SetVerbose(const char * /*argument*/) { verbose = level; }

template <bool value> static void SetAda95(const char * /*argument*/) { ada95 = value; }

// What is no number counts as 0.
static int Count(const char *text, const char *complaint) {
  const long count = std::strtol(text, nullptr, 10);
  if (count < 1) {
    FatalErrorMessage(complaint, 1);
  }
  return static_cast<int>(std::min(count, kLargestCount));
}

static void SetWidth(const char *text) {
  listing_width = Count(text, "The -width option requires a positive number");
}

static void SetLength(const char *text) {
  listing_length = Count(text, "The -length option requires a positive number");
}

static void SetOutput(const char *text) { output_filename = text; }
static void SetListing(const char *text) { listing_filename = text; }
static void SetDirectory(const char *text) { outdir = text; }
static void SetTemporary(const char *text) { tmpdir = text; }
static void ShowHelp(const char * /*argument*/) { Help(); }

// -- The table ---------------------------------------------------------------------------------

// Rows in short: what most of them have in common.
static constexpr OptionRow Effect(const char *spelling, void (*apply)(const char *)) {
  return {spelling, OptionMatch::kExact, ReadNone, 1, 1, nullptr, nullptr, apply};
}

static constexpr OptionRow Unchecked(const char *spelling, void (*apply)(const char *)) {
  return {spelling, OptionMatch::kExact, ReadNone, 0, 0, nullptr, nullptr, apply};
}

static constexpr OptionRow Flag(const char *spelling, bool *flag) {
  return {spelling, OptionMatch::kExact, ReadFlag, 1, 1, flag};
}

static constexpr OptionRow Compiler(const char *spelling, bool *flag) {
  return {spelling, OptionMatch::kExact, ReadCompiler, 1, 1, flag};
}

static constexpr OptionRow Required(const char *spelling, void (*apply)(const char *),
                                    const char *missing, const char *missing_in_file = nullptr) {
  return {spelling, OptionMatch::kExact, ReadRequired, 2, 2, nullptr, nullptr, apply,
          missing,  missing_in_file};
}

static constexpr OptionRow Optional(const char *spelling, std::string *text) {
  return {spelling, OptionMatch::kExact, ReadOptional, 1, 2, nullptr, text};
}

static constexpr OptionRow Suffix(const char *spelling, std::string *text) {
  return {spelling, OptionMatch::kBegins, ReadSuffix, 1, 2, nullptr, text};
}

// Known words without any effect: they are reported as unknown.
static constexpr OptionRow Reserved(const char *spelling) {
  return {spelling, OptionMatch::kExact, nullptr, 1, 1};
}

static constexpr OptionRow kOptions[] = {
    Effect("-verbose", SetVerbose<kVerbose>),
    Required("-o", SetOutput, "The -o option requires a filename parameter"),
    {"-I", OptionMatch::kSecondI, ReadPath, 2, 2, nullptr, nullptr, nullptr,
     "The -I option requires a path parameter"},
    Flag("-version", &print_version),
    {"-ver", OptionMatch::kExact, ReadFlag, 0, 0, &print_version},
    Required("-v", SetListing, "The -v option requires a filename parameter"),
    Required("-width", SetWidth, "The -width option requires a parameter"),
    Required("-length", SetLength, "The -length option requires a parameter"),
    Unchecked("-yydebug", SetTracing),
    Effect("-help", ShowHelp),
    Unchecked("-h", ShowHelp),
    Effect("-ada", SetRevision<kOldestRevision>),
    Effect("-orvo", SetRevision<kOldestRevision>),
    Effect("-orvo3", SetRevision<kOldestRevision>),
    Effect("-orvo4", SetRevision<kNewestRevision>),
    Effect("-cs", SetCase<true>),
    Effect("-ci", SetCase<false>),
    Effect("-w", SetVerbose<kQuiet>),
    {"-wmd", OptionMatch::kExact, ReadIgnored, 2, 2},
    {"-main", OptionMatch::kExact, ReadMain, 1, 2},
    {"-widgets", OptionMatch::kExact, ReadWidgets, 1, 2},
    Optional("-sfx", &uil_package_suffix),
    Optional("-cbs", &cb_package_suffix),
    Optional("-inst", &uil_instant_suffix),
    {"-ng", OptionMatch::kExact, ReadGenerics, 1, 3},
    {"-cfg", OptionMatch::kExact, ReadConfig, 2, 2},
    Required("-dir", SetDirectory, "The -dir option requires a directory parameter",
             "The -dir option requires a directory name."),
    Required("-tmp", SetTemporary, "The -tmp option requires a directory parameter",
             "The -tmp option requires a directory name."),
    Flag("-stub", &emit_stubs),
    Flag("-wrap", &emit_wrappers),
    Flag("-make", &emit_make),
    Flag("-ux", &emit_ux),
    Suffix("-spec", &spec_sfx),
    Suffix("-body", &body_sfx),
    Compiler("-apex", &apex),
    Compiler("-gnat", &gnat),
    Compiler("-vads", &vads),
    Compiler("-adaworld", &adaworld),
    Compiler("-objectada", &objectada),
    Compiler("-portable", &portable),
    Effect("-ada95", SetAda95<true>),
    Effect("-ada83", SetAda95<false>),
    Flag("-nouil", &no_uil),
    {"-shell", OptionMatch::kExact, ReadShell, 4, 4, nullptr, nullptr, nullptr,
     "-shell shell_name shell_class child_name"},
    Reserved("-stars"),
    Reserved("-c"),
};

std::span<const OptionRow> OptionRows() { return kOptions; }

// -- Words -------------------------------------------------------------------------------------

static bool Matches(const OptionRow &row, std::string_view word) {
  switch (row.match) {
  case OptionMatch::kSecondI:
    return word.size() >= 2 && word[1] == 'I';
  case OptionMatch::kBegins:
    return word.starts_with(row.spelling);
  default:
    return word == row.spelling;
  }
}

static const OptionRow *FindOption(std::string_view word) {
  for (const OptionRow &row : kOptions) {
    if (row.read != nullptr && Matches(row, word)) {
      return &row;
    }
  }
  return nullptr;
}

static void TakeFilename(CommandLine *line, const char *word) {
  if (line->filename) {
    std::fflush(stdout);
    std::fprintf(stderr, "%s:  Error, more than one filename specified.\n", program_name.c_str());
    Shutdown(1);
  }
  line->filename = word;
}

// Takes one word.  Returns how many of the words behind it are used up.
static int TakeWord(CommandLine *line, const OptionWords &words) {
  if (!IsOption(words.word)) {
    TakeFilename(line, words.word);
    return 0;
  }
  const OptionRow *row = FindOption(words.word);
  if (row == nullptr) {
    std::fflush(stdout);
    std::fprintf(stderr, "%s:  Unknown flag %s.\n", program_name.c_str(), words.word);
    return 0;
  }
  return row->read(*row, words);
}

// Takes the next line of the open configuration file; false at its end.
static bool TakeConfigLine(CommandLine *line) {
  ConfigLine config;
  if (cfg_file_parse_line(&config) == 0) {
    ConfigFileClose();
    return false;
  }
  const std::span<const char *const> all(config.cfg_argv.data(),
                                         static_cast<std::size_t>(config.nargs));
  TakeWord(line, {all.front(), all.subspan(1), true});
  return true;
}

CommandLine OptionsRead(int argc, const char *const *argv) {
  const std::span<const char *const> all(argv, static_cast<std::size_t>(argc));
  CommandLine line;
  std::size_t position = 1;
  while (position < all.size()) {
    if (ConfigFileIsOpen() && TakeConfigLine(&line)) {
      continue;
    }
    const int used = TakeWord(&line, {all[position], all.subspan(position + 1), false});
    position += 1 + static_cast<std::size_t>(used);
  }
  ConfigFileClose(); // one that the last words have opened is never read
  line.print_version = print_version;
  return line;
}

// -- Arguments with a form of their own --------------------------------------------------------

int set_suffix(const char *option, const char *word, const char *next, std::string *target) {
  const bool joined = std::strcmp(word, option) != 0;
  if (!joined && (next == nullptr || *next == '\0' || IsOption(next))) {
    return 0;
  }
  const std::string_view text = joined ? word + std::strlen(option) : next;
  *target = text.find('.') == std::string_view::npos ? "." : "";
  *target += text;
  return joined ? 0 : 1;
}

void set_main_filename(const char *arg, std::optional<std::string> *file,
                       std::optional<std::string> *sfx, int *type) {
  constexpr int kNoName = 0;
  constexpr int kSuffixOnly = 1;
  constexpr int kNameAndSuffix = 2;
  constexpr int kNameOnly = 3;
  const std::string_view text = arg;
  const std::size_t last = text.rfind('/') + 1; // npos + 1 is 0
  const std::size_t point = text.find('.', last);
  file->reset();
  sfx->reset();
  if (IsOption(arg)) {
    *type = kNoName;
  } else if (point == 0) {
    *type = kSuffixOnly;
    *sfx = text;
  } else if (point != std::string_view::npos) {
    *type = kNameAndSuffix;
    *file = text.substr(0, point);
    *sfx = text.substr(point);
  } else {
    *type = kNameOnly;
    *file = text;
  }
}

void OptionsReset() {
  verbose = kNormal;
  interface_type = kInterfaceOrvo;
  orvo_revision = kOldestRevision;
  case_sensitive = true;
  main_filename_type = 0;
  listing_width = kDefaultWidth;
  listing_length = kDefaultLength;
  shellinfo = nullptr;
  for (bool *flag : {&override_case, &emit_main, &no_uil, &emit_stubs, &emit_wrappers, &emit_make,
                     &emit_ux, &apex, &gnat, &vads, &adaworld, &objectada, &portable, &ada95,
                     &forbid_generic_wrapper, &forbid_generic_widgets, &print_version}) {
    *flag = false;
  }
  for (std::optional<std::string> *text : {&main_file, &main_sfx, &output_filename, &outdir,
                                           &tmpdir, &listing_filename, &widgets_record_suffix}) {
    text->reset();
  }
  main_filename.clear();
  spec_sfx = kSpecSuffix;
  body_sfx = kBodySuffix;
  uil_package_suffix = kUilWord;
  cb_package_suffix = kCallbacksWord;
  uil_instant_suffix.clear();
  program_name.clear();
  ConfigFileClose();
}
