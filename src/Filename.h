#ifndef KIVUXL_FILENAME_H
#define KIVUXL_FILENAME_H

// Names of packages and files: one package base, a suffix word per unit, a suffix per compiler.

#include <optional>
#include <string>
#include <string_view>

extern std::optional<std::string> override_name; // package base derived from -o, or none
extern std::string package_base;                 // base of all package and file names

// Derives `override_name` from `output_filename`.
void SetOverrideName();

// Sets `package_base` from `override_name` or the module's name.
void SetPackageBaseName();

// `name` when it is longer than `suffix` and ends with it (in any case), else both joined.
std::string SetNameWithSuffix(std::string_view name, std::string_view suffix);

// Write the path of a unit's file into `path`.  An empty directory or suffix word adds nothing.
void SpecFileName(std::string &path, std::string_view dir, std::string_view base,
                  std::string_view suffix);
void BodyFileName(std::string &path, std::string_view dir, std::string_view base,
                  std::string_view suffix);
void MainFileName(std::string &path, std::string_view dir, std::string_view name,
                  std::string_view sfx);

// The name of a package: the base, then "_" and the suffix unless that is empty.
std::string PackageName(std::string_view base, std::string_view suffix);

void FilenameReset();

#endif
