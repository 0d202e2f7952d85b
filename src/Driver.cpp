// See Driver.h.  Start-up in fixed order: the words are read, then what depends on several of them
// is settled (suffixes, language level, names), then the module is translated.

#include "Driver.h"

#include <fcntl.h>
#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <new>
#include <optional>
#include <string>
#include <string_view>

#include "Ascii.h"
#include "Convert.h"
#include "Error.h"
#include "Files.h"
#include "Listing.h"
#include "Options.h"
#include "Output.h"
#include "Reset.h"
#include "WidgetUtils.h"

constexpr char kProgram[] = "kivuxl";

// -- Surroundings ------------------------------------------------------------------------------

// A stream that the caller has closed gets a descriptor on which it fails, or a file opened later
// would be taken for it.
static void ReserveStandardStreams() {
  int descriptor = open("/dev/null", O_RDONLY);
  while (descriptor == STDIN_FILENO || descriptor == STDOUT_FILENO || descriptor == STDERR_FILENO) {
    descriptor = open("/dev/null", O_RDONLY);
  }
  if (descriptor >= 0) {
    close(descriptor);
  }
}

// SOURCE_DATE_EPOCH, when it is a number, makes a listing reproducible.
static std::time_t StartTime() {
  const char *epoch = std::getenv("SOURCE_DATE_EPOCH");
  if (epoch != nullptr && AsciiIsDigit(*epoch)) {
    char *end = nullptr;
    const long long seconds = std::strtoll(epoch, &end, 10);
    if (*end == '\0') {
      return static_cast<std::time_t>(seconds);
    }
  }
  return std::time(nullptr);
}

// The user's locale, but numbers as the languages on both sides write them.
static void SetLocale() {
  std::setlocale(LC_ALL, "");
  std::setlocale(LC_NUMERIC, "C");
}

static std::string_view LastPart(std::string_view path) {
  return path.substr(path.rfind('/') + 1); // npos + 1 is 0
}

// -- Settings ----------------------------------------------------------------------------------

static void SettleCompiler() {
  if (apex) {
    spec_sfx = ".1.ada";
    body_sfx = ".2.ada";
  } else if (gnat) {
    spec_sfx = ".ads";
    body_sfx = ".adb";
  }
  portable = !(apex || gnat || vads || adaworld);
  if (gnat) {
    ada95 = true;
  } else if (vads || adaworld) {
    ada95 = false;
  }
}

static void SettleNoUil() {
  if (!no_uil) {
    return;
  }
  if (ListLength(shellinfo) == 0) {
    FatalErrorMessage("Option `-shell' is required when `-nouil' is specified.", 1);
  }
  if (!emit_main) {
    main_filename_type = 0;
  }
  emit_main = true;
}

// What the main procedure is called after when -main gives no name.
static std::string MainBase(const std::optional<std::string> &filename) {
  const bool named = output_filename && !output_filename->starts_with('-');
  const std::string given = named ? *output_filename : filename.value_or("uil");
  const std::string_view last = LastPart(given);
  return std::string(last.substr(0, last.find('.')));
}

// The forms of -main: whether the name and whether the suffix is the user's.
struct MainForm {
  bool has_name;
  bool has_suffix;
};
static constexpr MainForm kMainForms[] = {
    {false, false}, // -main
    {false, true},  // -main .ext
    {true, true},   // -main name.ext
    {true, false},  // -main name
};

static void SettleMainName(const std::optional<std::string> &filename) {
  if (emit_main || emit_wrappers || emit_stubs) {
    const MainForm &form = kMainForms[main_filename_type];
    main_filename = form.has_name ? std::string(LastPart(main_file.value_or("")))
                                  : MainBase(filename) + "_main";
    if (!form.has_suffix || !main_sfx || apex || gnat) {
      main_sfx = body_sfx;
    }
  }
  main_filename = LegalName(main_filename);
}

// No two packages may have one name.
static void SettleSuffixes() {
  for (const std::string *suffix : {&cb_package_suffix, &uil_package_suffix}) {
    if (AsciiEqualNoCase(*suffix, uil_instant_suffix)) {
      uil_instant_suffix = suffix->empty() ? "mrm" : "";
    }
  }
  if (AsciiEqualNoCase(uil_package_suffix, cb_package_suffix)) {
    cb_package_suffix = AsciiEqualNoCase(uil_package_suffix, "callbacks") ? "cbs" : "callbacks";
  }
}

static void SettleCase() {
  if (apex || gnat) {
    AsciiLowerInPlace(main_filename);
    if (output_filename) {
      AsciiLowerInPlace(*output_filename);
    }
  }
}

// -- The run -----------------------------------------------------------------------------------

static int Run(int argc, char **argv) {
  run_date_time = StartTime();
  SetLocale();
  program_name = argc > 0 ? LastPart(argv[0]) : kProgram;
  if (argc <= 1) {
    FatalErrorMessage("Requires arguments", 1);
  }
  const CommandLine line = OptionsRead(argc, argv);
  FilesAddPath("/usr/dt/include/uil");
  FilesAddPath("/usr/include/uil");
  if (line.print_version || verbose > 1) {
    std::printf("Kivu UIL Translator version %s.\n", version_string);
  }
  SettleCompiler();
  SettleNoUil();
  if (!line.filename && !no_uil) {
    FatalErrorMessage("No input file specified", 1);
  }
  SettleMainName(line.filename);
  SettleSuffixes();
  SettleCase();
  return Convert(line.filename ? line.filename->c_str() : nullptr) != 0 ? 0 : 1;
}

static int RunToStatus(int argc, char **argv) {
  try {
    return Run(argc, argv);
  } catch (const ProgramExit &exit) {
    return exit.status;
  } catch (const std::bad_alloc &) {
    ErrorMessage(kImmediate, "Out of memory");
    return 1;
  }
}

int DriverRun(int argc, char **argv) {
  ReserveStandardStreams();
  ProgramReset();
  OutputCatchSignals();
  const int status = RunToStatus(argc, argv);
  OutputRemoveTemporaries();
  const bool printed = OutputCheckStandard() != 0;
  return status == 0 && !printed ? 1 : status;
}
