#ifndef KIVUXL_CONFIGFILE_H
#define KIVUXL_CONFIGFILE_H

// The configuration file of -cfg: the options of the command line, one a line.

#include <string>
#include <vector>

// One option line.
struct ConfigLine {
  std::string text;                   // the line, and with zero bytes between them its words
  int nargs = 0;                      // words, the option included
  std::vector<const char *> cfg_argv; // the words, closed by null; they point into `text`
};

// Opens a file, which is then the open configuration file.  False when it cannot be opened.
bool ConfigFileOpen(const char *path);

// True from a successful ConfigFileOpen until ConfigFileClose.
bool ConfigFileIsOpen();

void ConfigFileClose();

// Reads the next option line of the open configuration file.  Returns 0 at its end and 1 when a
// line was read, also when a fault of it was reported: the line is used all the same.
int cfg_file_parse_line(ConfigLine *line);

#endif
