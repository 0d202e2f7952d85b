// See Filename.h.  The base comes from -o or from the module's name; a unit adds a word to it that
// is also the end of its package's name.

#include "Filename.h"

#include "Ascii.h"
#include "Model.h"
#include "Options.h"
#include "WidgetUtils.h"

std::optional<std::string> override_name;
std::string package_base;

constexpr std::string_view kUilWord = "uil";
constexpr std::string_view kUilEnding = "_uil"; // of a module's name, no part of the base

// Cuts the last "/" and what is behind it off `path`, and returns what was behind.
static std::string TakeLastPart(std::string *path) {
  const std::size_t slash = path->rfind('/');
  if (slash == std::string::npos) {
    return *path;
  }
  std::string last = path->substr(slash + 1);
  path->resize(slash);
  return last;
}

void SetOverrideName() {
  if (!output_filename || output_filename->empty() || output_filename->front() == '-') {
    return;
  }
  std::string stem = TakeLastPart(&*output_filename);
  stem.resize(std::min(stem.find('.'), stem.size()));
  if (!AsciiEndsWithNoCase(stem, kUilWord)) {
    stem += kUilEnding;
  }
  override_name = stem;
}

void SetPackageBaseName() {
  package_base = override_name            ? *override_name
                 : module_name == nullptr ? ""
                                          : LegalName(module_name);
  if (package_base.size() > kUilEnding.size() && AsciiEndsWithNoCase(package_base, kUilEnding)) {
    package_base.resize(package_base.size() - kUilEnding.size());
  }
}

std::string SetNameWithSuffix(std::string_view name, std::string_view suffix) {
  std::string result(name);
  if (name.size() <= suffix.size() || !AsciiEndsWithNoCase(name, suffix)) {
    result += suffix;
  }
  return result;
}

std::string PackageName(std::string_view base, std::string_view suffix) {
  std::string name(base);
  if (!suffix.empty()) {
    name += '_';
    name += suffix;
  }
  return name;
}

static std::string InDirectory(std::string_view dir, std::string_view name) {
  std::string path(dir);
  if (!dir.empty()) {
    path += '/';
  }
  path += name;
  return path;
}

// What keeps a body apart from the spec when one suffix serves both.
static const char *BodyMark(std::string_view sfx) { return spec_sfx == sfx ? "_b" : ""; }

void SpecFileName(std::string &path, std::string_view dir, std::string_view base,
                  std::string_view suffix) {
  path = InDirectory(dir, PackageName(base, suffix)) + spec_sfx;
}

void BodyFileName(std::string &path, std::string_view dir, std::string_view base,
                  std::string_view suffix) {
  path = InDirectory(dir, PackageName(base, suffix)) + BodyMark(body_sfx) + body_sfx;
}

void MainFileName(std::string &path, std::string_view dir, std::string_view name,
                  std::string_view sfx) {
  path = InDirectory(dir, name) + BodyMark(sfx);
  path += sfx;
}

void FilenameReset() {
  override_name.reset();
  package_base.clear();
}
