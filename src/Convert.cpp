// See Convert.h.
//
// What is to be written is planned before any of it is written: a group per step, each of the files
// that one writer fills together.  So the names of all files are known, and looked at, while
// nothing has happened to them yet.  A group's files are put in place when all of them are
// complete.

#include "Convert.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "AdaCallbacks.h"
#include "AdaMain.h"
#include "AdaWidgetProcs.h"
#include "AdaWidgets.h"
#include "Emit.h"
#include "Error.h"
#include "Filename.h"
#include "Files.h"
#include "Initialize.h"
#include "Listing.h"
#include "Model.h"
#include "Options.h"
#include "Output.h"
#include "Parser.h"
#include "TreeCheck.h"
#include "WidgetUtils.h"

constexpr char kTemporaryPrefix[] = "kivut";
constexpr std::string_view kStandardOutput = "-";
constexpr char kClientDataWord[] = "client_data";
constexpr char kWrapperWord[] = "cbproc";
constexpr char kInstancesWord[] = "cbinst";
constexpr int kInterfaceC = 1; // reserved

static int error_count = 0; // in the module's text

static bool IsStandardOutput() { return output_filename == kStandardOutput; }

// -- Progress ----------------------------------------------------------------------------------

// Progress that shares standard output with generated text is a comment there.
static const char *CommentOpener() { return interface_type == kInterfaceC ? "/*" : "--"; }
static const char *CommentCloser() { return interface_type == kInterfaceC ? "*/" : ""; }

constexpr int kProgress = 2;

static void ReportConverting(const char *filename) {
  if (!output_filename) {
    UilPrintf(kProgress, "Converting file %s", filename);
  } else if (IsStandardOutput()) {
    UilPrintf(kProgress, "%s Converting file %s (output on standard output) %s", CommentOpener(),
              filename, CommentCloser());
  } else {
    UilPrintf(kProgress, "Converting file %s to %s", filename, output_filename->c_str());
  }
}

static void ReportListing() {
  if (IsStandardOutput()) {
    UilPrintf(kProgress, "%s Writing listing file %s %s", CommentOpener(),
              listing_filename->c_str(), CommentCloser());
  } else {
    UilPrintf(kProgress, "Writing listing file %s", listing_filename->c_str());
  }
}

static void ReportMain() {
  if (main_file == kStandardOutput) {
    UilPrintf(kProgress, "%s Creating main program %s (output on standard output) %s",
              CommentOpener(), main_filename.c_str(), CommentCloser());
  } else {
    UilPrintf(kProgress, "Creating main program %s", main_filename.c_str());
  }
}

// -- Listing -----------------------------------------------------------------------------------

static bool RefuseSource(const std::string &path) {
  if (!FilesIsSource(path.c_str())) {
    return false;
  }
  ErrorFormat(kImmediate, "Output file %s is also an input", path.c_str());
  return true;
}

// Opens the listing without emptying it: what an earlier run has left stays until there is
// something to write.
static bool OpenListing() {
  if (!listing_filename) {
    return true;
  }
  if (RefuseSource(*listing_filename)) {
    return false;
  }
  constexpr mode_t kMode = 0666;
  const int descriptor = open(listing_filename->c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, kMode);
  listing_fp = descriptor < 0 ? nullptr : fdopen(descriptor, "w");
  if (listing_fp == nullptr && descriptor >= 0) {
    close(descriptor);
  }
  if (listing_fp == nullptr) {
    ErrorFormat(kImmediate, "Error opening listing file %s", listing_filename->c_str());
  }
  ReportListing();
  return true;
}

static bool ReportBadListing() {
  ErrorFormat(kImmediate, "Error writing file \"%s\"", listing_filename->c_str());
  return false;
}

// From here on it is complete, and stays when a later fault is fatal.
static bool FlushListing() {
  if (listing_fp == nullptr) {
    return true;
  }
  if (std::fflush(listing_fp) != 0 || std::ferror(listing_fp) != 0) {
    return ReportBadListing();
  }
  OutputEndsInPlace(*listing_filename);
  return true;
}

// Whether the open listing still stands under its name as a file of its own: not under a link, and
// not replaced by a unit of that name.
static bool IsListingInPlace() {
  struct stat named {};
  struct stat open {};
  return lstat(listing_filename->c_str(), &named) == 0 && S_ISREG(named.st_mode) &&
         fstat(fileno(listing_fp), &open) == 0 && named.st_dev == open.st_dev &&
         named.st_ino == open.st_ino;
}

// Closes the open listing.  One that is not to stay, or cannot be closed and so is not whole, is
// removed, unless its name is a device's, a pipe's or a link's: /dev/stdout stays, whatever it
// leads to.
static bool EndListing(bool stays) {
  const bool is_file = IsListingInPlace();
  const bool closed = std::fclose(listing_fp) == 0;
  listing_fp = nullptr;
  if (is_file && !(stays && closed)) {
    unlink(listing_filename->c_str());
  }
  OutputEndsInPlace(*listing_filename);
  return closed;
}

static bool CloseListing() {
  return listing_fp == nullptr || EndListing(true) || ReportBadListing();
}

static void DropListing() {
  if (listing_fp != nullptr) {
    EndListing(false);
  }
}

// -- Reading the module ------------------------------------------------------------------------

// The tables first: each of the others enters its words there.
static constexpr bool (*kVocabulary[])() = {
    SymbolTableInit, NamesTableInit,  ReservedWordInit, FunctionNameInit, CharacterSetInit,
    NamedValueInit,  WidgetClassInit, ArgumentNameInit, ReasonNameInit,   NonReservedWordInit,
};

static void LoadVocabulary() {
  for (const auto &load : kVocabulary) {
    if (!load()) {
      OutOfMemory();
    }
  }
}

// Parses the module and reports what is wrong with it.
static bool ReadModule(const char *filename) {
  ReportConverting(filename);
  if (FilesOpen(filename, false) == nullptr) {
    ErrorFormat(kImmediate, "Error opening file %s", filename);
    return false;
  }
  if (!OpenListing()) {
    return false;
  }
  listing_keeps_lines = listing_fp != nullptr;
  LoadVocabulary();
  const bool parsed = yyparse() == 0;
  error_count = WriteListing();
  if (!FlushListing() || error_count > 0) {
    return false;
  }
  if (module_name == nullptr) {
    ErrorMessage(kImmediate, "No module name found in UIL");
    return false;
  }
  return parsed;
}

// -- The plan ----------------------------------------------------------------------------------

// The outputs that may be open together.
enum SlotNumber {
  kSlotSpec,       // of the current unit
  kSlotBody,       // of the current unit
  kSlotClientSpec, // client data
  kSlotClientBody,
  kSlotInstances, // callback instantiations
  kSlots
};

using Streams = std::array<std::FILE *, kSlots>; // null in slots that are not used

struct UnitFile {
  SlotNumber slot;
  std::string path;
};

// The files of one writer, in the order in which they are put in place.
struct UnitGroup {
  void (*write)(const Streams &streams);
  bool to_standard; // all of it goes to standard output instead
  std::vector<UnitFile> files;
};

using FileNamer = void(std::string &, std::string_view, std::string_view, std::string_view);

static UnitFile File(SlotNumber slot, FileNamer *namer, std::string_view base,
                     std::string_view word) {
  std::string path;
  namer(path, outdir.value_or(""), base, word);
  return {slot, OutputFinalName(path)};
}

static UnitFile Spec(SlotNumber slot, std::string_view word) {
  return File(slot, SpecFileName, package_base, word);
}

static UnitFile Body(SlotNumber slot, std::string_view word) {
  return File(slot, BodyFileName, package_base, word);
}

static void WriteWidgets(const Streams &streams) {
  if (!WidgetTableInit()) {
    OutOfMemory();
  }
  if (widgets_record_suffix && !WidgetCheckDuplicates()) {
    ErrorMessage(kImmediate, "Multiple instances of named control, -widgets suppressed");
    widgets_record_suffix.reset();
  }
  OutputWidgets(streams[kSlotSpec], streams[kSlotBody], streams[kSlotClientSpec],
                streams[kSlotClientBody]);
}

static void WriteInstant(const Streams &streams) { OutputInstant(streams[kSlotSpec]); }

static void WriteCallbacks(const Streams &streams) {
  OutputCallbacks(streams[kSlotSpec], streams[kSlotBody]);
}

static void WriteWrapper(const Streams &streams) {
  OutputWrapper(streams[kSlotSpec], streams[kSlotBody], streams[kSlotInstances]);
}

static void WriteMain(const Streams &streams) { OutputMain(streams[kSlotBody]); }

static UnitGroup PlanWidgets() {
  UnitGroup group = {WriteWidgets,
                     IsStandardOutput(),
                     {Spec(kSlotSpec, uil_package_suffix), Body(kSlotBody, uil_package_suffix)}};
  if (AtLeastOneCallback()) {
    group.files.push_back(Spec(kSlotClientSpec, kClientDataWord));
    if (!IsStandardOutput() || !ada95) {
      group.files.push_back(Body(kSlotClientBody, kClientDataWord));
    }
  }
  return group;
}

static UnitGroup PlanWrapper() {
  UnitGroup group = {WriteWrapper, IsStandardOutput(), {Body(kSlotBody, kWrapperWord)}};
  if (IsStandardOutput() || !forbid_generic_wrapper) {
    group.files.push_back(Spec(kSlotSpec, kWrapperWord));
    group.files.push_back(Spec(kSlotInstances, kInstancesWord));
  }
  return group;
}

// All units of the module, in order.
static std::vector<UnitGroup> PlanUnits() {
  std::vector<UnitGroup> plan = {PlanWidgets()};
  if (!forbid_generic_widgets) {
    plan.push_back({WriteInstant, IsStandardOutput(), {Spec(kSlotSpec, uil_instant_suffix)}});
  }
  if (emit_stubs && (AtLeastOneCallback() || WidgetsAreUserDefined())) {
    plan.push_back({WriteCallbacks,
                    IsStandardOutput(),
                    {Spec(kSlotSpec, cb_package_suffix), Body(kSlotBody, cb_package_suffix)}});
  }
  if (emit_wrappers && AtLeastOneCallback()) {
    plan.push_back(PlanWrapper());
  }
  return plan;
}

// The main procedure always has a file of its own.
static UnitGroup PlanMain() {
  return {WriteMain, false, {File(kSlotBody, MainFileName, main_filename, main_sfx.value_or(""))}};
}

// True when a file that the group writes has been read in this run.
static bool IsGroupRefused(const UnitGroup &group) {
  if (group.to_standard) {
    return false;
  }
  for (const UnitFile &file : group.files) {
    if (RefuseSource(file.path)) {
      return true;
    }
  }
  return false;
}

// -- Writing -----------------------------------------------------------------------------------

// Whatever happens, no stream stays open and no temporary file behind.
struct OutputSlots {
  std::array<OutputSlot, kSlots> slots;
  OutputSlots() = default;
  ~OutputSlots() {
    for (OutputSlot &slot : slots) {
      OutputDiscard(&slot);
    }
  }
  OutputSlots(const OutputSlots &) = delete;
  OutputSlots &operator=(const OutputSlots &) = delete;
};

static bool OpenSlot(const UnitGroup &group, SlotNumber number, OutputSlots *open) {
  OutputSlot *slot = &open->slots[number];
  if (group.to_standard) {
    slot->name = std::string(kStandardOutput);
    slot->stream = stdout;
    return true;
  }
  if (MakeTemporaryFile(tmpdir ? tmpdir->c_str() : nullptr, kTemporaryPrefix, &slot->name,
                        &slot->stream) == 0) {
    return false;
  }
  EmitHold(slot->stream);
  return true;
}

static bool PlaceSlot(OutputSlot *slot, const std::string &path) {
  if (slot->name != kStandardOutput && CopyTemporaryToFile(slot->name, path) == 0) {
    return false;
  }
  slot->name.clear();
  return true;
}

static bool WriteGroup(const UnitGroup &group) {
  OutputSlots open;
  Streams streams{};
  for (const UnitFile &file : group.files) {
    if (!OpenSlot(group, file.slot, &open)) {
      return false;
    }
    streams[file.slot] = open.slots[file.slot].stream;
  }
  group.write(streams);
  for (const UnitFile &file : group.files) {
    if (OutputClose(&open.slots[file.slot], file.path) == 0) {
      return false;
    }
  }
  for (const UnitFile &file : group.files) {
    if (!PlaceSlot(&open.slots[file.slot], file.path)) {
      return false;
    }
  }
  return !group.to_standard || OutputCheckStandard() != 0;
}

// -- The run -----------------------------------------------------------------------------------

static bool ConvertModule(const char *filename) {
  if (!ReadModule(filename)) {
    return false;
  }
  SetOverrideName();
  SetPackageBaseName();
  AppendShellsForTopLevel();
  DropUnusedProcedures();
  TreeCheck();
  const std::vector<UnitGroup> plan = PlanUnits();
  for (const UnitGroup &group : plan) {
    if (IsGroupRefused(group)) {
      return false;
    }
  }
  if (emit_main && IsGroupRefused(PlanMain())) {
    return false;
  }
  for (const UnitGroup &group : plan) {
    if (!WriteGroup(group)) {
      return false;
    }
  }
  return CloseListing();
}

static bool ConvertMain() {
  if (!emit_main) {
    return true;
  }
  if (no_uil) {
    ReportMain();
  }
  return WriteGroup(PlanMain());
}

int Convert(const char *filename) {
  if ((no_uil || ConvertModule(filename)) && ConvertMain()) {
    return 1;
  }
  DropListing();
  if (error_count > 0) {
    std::fflush(stdout);
    std::fprintf(stderr, "Total of %d errors encountered.\n", error_count);
  }
  return 0;
}

void ConvertReset() { error_count = 0; }
