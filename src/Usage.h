#ifndef KIVUXL_USAGE_H
#define KIVUXL_USAGE_H

// The usage text.

// Writes the usage text to standard error and ends the run with status 0.
[[noreturn]] void Help();

#endif
