#ifndef KIVUXL_ADAMAIN_H
#define KIVUXL_ADAMAIN_H

// The main procedure, which creates every top-level widget under its shell.

#include <cstdio>
#include <string>

// One package's count of shells so far.
struct PackageShellCount {
  int count;
  const char *key;
};

// Writes the main procedure, which creates the shells, manages and realises what is in them, and
// enters the toolkit's loop.  A failed write shows when the stream is checked.
void OutputMain(std::FILE *file);

// The expression by which the main procedure reaches an entry's package.
std::string ShellPackage(const char *pkg_name, const char *suffix, const char *member);

// The n-th call for one package returns n; 0 for an empty or missing expression.
int PackageShellIndex(const char *expression);

void AdaMainReset();

#endif
