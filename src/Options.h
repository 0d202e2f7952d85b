#ifndef KIVUXL_OPTIONS_H
#define KIVUXL_OPTIONS_H

// The options of the run: program-wide, set by the command line and a configuration file before
// translation starts, and only read afterwards.

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "List.h"
#include "uiltoada.h"

constexpr int kInterfaceOrvo = 2;

extern int verbose;         // 0 under -w, 1, 2 under -verbose
extern int interface_type;  // kInterfaceOrvo
extern int orvo_revision;   // 3 or 4
extern bool case_sensitive; // may be cleared by the module's names clause
extern bool override_case;
extern bool emit_main;
extern std::optional<std::string> main_file;
extern std::optional<std::string> main_sfx;
extern int main_filename_type;
extern std::string main_filename;
extern List shellinfo; // of Kivu_ShellInfo; null while there is none
extern bool no_uil;
extern bool emit_stubs;
extern bool emit_wrappers;
extern bool emit_make;
extern bool emit_ux;
extern std::string spec_sfx;
extern std::string body_sfx;
extern std::optional<std::string> output_filename;
extern bool apex;
extern bool gnat;
extern bool vads;
extern bool adaworld;
extern bool objectada;
extern bool portable;
extern bool ada95;
extern std::optional<std::string> outdir;
extern std::optional<std::string> tmpdir;
extern std::optional<std::string> listing_filename;
extern int listing_width;
extern int listing_length;
extern std::optional<std::string> widgets_record_suffix;
extern std::string uil_package_suffix;
extern std::string cb_package_suffix;
extern std::string uil_instant_suffix;
extern bool forbid_generic_wrapper;
extern bool forbid_generic_widgets;
extern std::string program_name;
extern const char *const version_string;

// What the words say beside the options.
struct CommandLine {
  std::optional<std::string> filename; // the input file
  bool print_version = false;
};

// How the spelling of an option is compared with a word.
enum class OptionMatch {
  kExact,
  kBegins,  // the word begins with it
  kSecondI, // any word after whose "-" stands an "I"
};

struct OptionWords; // the word being read and what may follow it

// One option.  The command line, the check of configuration lines and the tests read one table.
struct OptionRow {
  const char *spelling;
  OptionMatch match;
  // Takes the option's arguments and their effect.  Returns how many further words of the command
  // line it has used.  Null: the option is only known to the check of configuration lines.
  int (*read)(const OptionRow &row, const OptionWords &words);
  // How many words a configuration line may have, the option included; no check when 0.
  int min_words;
  int max_words;
  // What it changes; which of these is used depends on `read`.
  bool *flag = nullptr;
  std::string *text = nullptr;
  void (*apply)(const char *argument) = nullptr;
  // Complaints about a missing argument, in a configuration file another one where that is set.
  const char *missing = nullptr;
  const char *missing_in_file = nullptr;
};

std::span<const OptionRow> OptionRows();

// Reads all words from the first argument on, and the configuration files that they name.  Faults
// that end the run do so from here.
CommandLine OptionsRead(int argc, const char *const *argv);

// Sets `target` to the suffix given with the option, either joined to it in `word` or in `next`
// (which may be null), with a "." in front when it has none.  Returns 1 when `next` was used,
// else 0.
int set_suffix(const char *option, const char *word, const char *next, std::string *target);

// Splits the argument of -main into the main procedure's file name and suffix.  `*type` becomes 0
// when `arg` is no name, 1 for a suffix alone, 2 for both, 3 for a name alone.
void set_main_filename(const char *arg, std::optional<std::string> *file,
                       std::optional<std::string> *sfx, int *type);

void OptionsReset();

#endif
