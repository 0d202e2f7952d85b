// See ConfigFile.h.  The file is read line by line as the option loop asks for lines.  What is
// wrong with the shape of a line is reported here and does no harm to the run; what the words mean
// is for the options themselves.

#include "ConfigFile.h"

#include <sys/stat.h>

#include <cstdio>
#include <cstring>

#include "Error.h"
#include "Files.h"
#include "Options.h"

static Stream cfg_fp; // null while no file is open
static std::string cfg_name;

static bool IsBlank(char c) { return c == ' ' || c == '\t'; }

bool ConfigFileOpen(const char *path) {
  struct stat status {};
  if (stat(path, &status) != 0 || S_ISDIR(status.st_mode)) {
    return false;
  }
  cfg_fp.reset(std::fopen(path, "r"));
  cfg_name = path;
  return ConfigFileIsOpen();
}

bool ConfigFileIsOpen() { return cfg_fp != nullptr; }

void ConfigFileClose() { cfg_fp.reset(); }

// The next line without its newline and the blanks at its start.  False at the end of the file.
static bool ReadLine(std::string *line) {
  line->clear();
  int c = std::getc(cfg_fp.get());
  const bool at_end = c == EOF;
  for (; c != EOF && c != '\n'; c = std::getc(cfg_fp.get())) {
    if (!line->empty() || !IsBlank(static_cast<char>(c))) {
      *line += static_cast<char>(c);
    }
  }
  if (std::ferror(cfg_fp.get()) != 0) {
    FatalErrorFormat("Error reading file \"%s\"", cfg_name.c_str());
  }
  return !at_end;
}

// A second option on the line, or what looks like one, is taken as an argument of the first.
static void CheckSingleOption(const std::string &line) {
  for (std::size_t i = 1; i < line.size(); ++i) {
    if (line[i] == '-' && IsBlank(line[i - 1])) {
      ErrorFormat(kImmediate, "Only one option per line in a configuration file:\n\t\t\"%s\"",
                  line.c_str());
      return;
    }
  }
}

// Cuts the line into its words, up to a comment.
static void SplitWords(ConfigLine *line) {
  line->text.resize(std::min(line->text.find('#'), line->text.size()));
  line->cfg_argv.clear();
  bool in_word = false;
  for (char &c : line->text) {
    if (IsBlank(c)) {
      c = '\0';
      in_word = false;
    } else if (!in_word) {
      line->cfg_argv.push_back(&c);
      in_word = true;
    }
  }
  line->nargs = static_cast<int>(line->cfg_argv.size());
  line->cfg_argv.push_back(nullptr);
}

static void CheckCount(const ConfigLine &line) {
  const char *option = line.cfg_argv.front();
  for (const OptionRow &row : OptionRows()) {
    if (row.max_words > 0 && std::strcmp(row.spelling, option) == 0 &&
        (line.nargs < row.min_words || line.nargs > row.max_words)) {
      ErrorFormat(kImmediate, "Wrong number (%d) of arguments for option \"%s\"", line.nargs,
                  option);
    }
  }
}

int cfg_file_parse_line(ConfigLine *line) {
  do {
    if (!ReadLine(&line->text)) {
      return 0;
    }
  } while (line->text.empty() || line->text.front() == '#');
  CheckSingleOption(line->text);
  SplitWords(line);
  CheckCount(*line);
  return 1;
}
