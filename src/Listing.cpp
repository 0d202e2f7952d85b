// The listing.  The scanner hands over every piece of source that it matches; the pieces are put
// together again to the lines of the source, in reading order.  When the parse is over the lines
// are walked twice: for the grouped report and for the pages of the listing file.
//
// A page holds `listing_length` rows of source text.  Headers, footers and diagnostics do not
// count, neither does an empty source line, which prints no row.

#include "Listing.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstring>
#include <new>
#include <string_view>

#include "Alloc.h"
#include "Error.h"
#include "Files.h"
#include "Model.h"
#include "Options.h"
#include "Output.h"
#include "Scanner.h"

List listing = nullptr;
bool listing_keeps_lines = true;
std::FILE *listing_fp = nullptr;
std::time_t run_date_time = 0;

static ListingLine *open_line = nullptr; // the last one, until it is complete

constexpr std::size_t kModuleNameShown = 31; // characters of the module's name in a header
constexpr std::size_t kDateSize = 256;       // bytes of the date in any locale
constexpr int kNumberedLines = 1000000;      // from here on line numbers show their last digits

// -- Keys --------------------------------------------------------------------------------------

int ListingMakeKey(int file, int line) {
  constexpr unsigned kFileMask = 0x7ff00000;
  constexpr unsigned kLineMask = 0xfffff;
  constexpr unsigned kLineBits = 20;
  return static_cast<int>(((static_cast<unsigned>(file) << kLineBits) & kFileMask) |
                          (static_cast<unsigned>(line) & kLineMask));
}

const void *ListingKeyFunc(void *item) { return item; }

static int ListingKeyOf(const void *line) {
  const auto *entry = static_cast<const ListingLine *>(line);
  return ListingMakeKey(entry->file_number, entry->line_number);
}

int ListingCompareFunc(const void *key, const void *item_key) {
  return ListingKeyOf(key) - ListingKeyOf(item_key);
}

// -- Capturing the source ----------------------------------------------------------------------

[[noreturn]] static void ListingExhausted() {
  FatalErrorMessage("PutListing: Memory allocation error", 1);
}

// A line without text, at the end of the listing.
static ListingLine *ListingAddLine() {
  if (listing == nullptr) {
    listing = ListCreate(ListingCompareFunc, nullptr, ListingKeyFunc);
  }
  void *memory = _MAlloc(sizeof(ListingLine));
  std::size_t size = 0;
  auto *text = static_cast<char *>(_SmartMalloc(1, &size));
  if (listing == nullptr || memory == nullptr || text == nullptr) {
    ListingExhausted();
  }
  auto *line = new (memory) ListingLine{};
  line->maxlen = static_cast<int>(size);
  line->text = text;
  ListAppendItem(listing, line);
  if (ListGetLast(listing) != line) {
    ListingExhausted();
  }
  return line;
}

// A fresh line of the file being read.  Without a listing file nobody looks at a line again that
// has no diagnostics, so the next one takes its place: at 100,000 widgets that is 240 MB of 540.
static ListingLine *ListingNewLine(ListingLine *last) {
  const bool reuse = last != nullptr && !listing_keeps_lines && last->errors == nullptr;
  ListingLine *line = reuse ? last : ListingAddLine();
  const auto *file = static_cast<const FileInfo *>(ListGetLast(filenames));
  line->file_number = file == nullptr ? 0 : file->nfile;
  line->line_number = file == nullptr ? 0 : yylineno;
  line->file_name = file == nullptr ? "" : file->name;
  line->complete = false;
  line->length = 0;
  line->text[0] = '\0';
  return line;
}

// Makes room for `length` more characters and the closing zero byte.  A line that outgrows its
// count of characters ends the run like one that outgrows the memory.
static void ListingReserve(ListingLine *line, int length) {
  if (length < line->maxlen - line->length) {
    return;
  }
  constexpr std::int64_t kLongest = INT_MAX - 64; // leaves room for the allocator's rounding
  const std::int64_t need = std::int64_t{line->length} + length + 1;
  if (need > kLongest) {
    ListingExhausted();
  }
  const std::int64_t wanted = std::min(std::max(need, std::int64_t{line->maxlen} * 2), kLongest);
  auto size = static_cast<std::size_t>(line->maxlen);
  line->text =
      static_cast<char *>(_SmartRealloc(line->text, static_cast<std::size_t>(wanted), &size));
  if (size < static_cast<std::size_t>(need)) {
    ListingExhausted();
  }
  line->maxlen = static_cast<int>(size);
}

// Everything but the middle of a line.
[[gnu::noinline]] static void ListingPutEdge(const char *text, int length) {
  if (open_line == nullptr) {
    open_line = ListingNewLine(static_cast<ListingLine *>(ListGetLast(listing)));
  }
  ListingLine *line = open_line;
  if (length <= 0) {
    return;
  }
  const bool ends = text[length - 1] == '\n';
  const int kept = ends ? length - 1 : length;
  ListingReserve(line, kept);
  std::memcpy(line->text + line->length, text, static_cast<std::size_t>(kept));
  line->length += kept;
  line->text[line->length] = '\0';
  if (ends) {
    line->complete = true;
    open_line = nullptr;
    yylineno += yylineno < INT_MAX ? 1 : 0;
  }
}

// Most of the 40 pieces of a widget's source stand in the middle of a line, and there is room.
void PutListing(const char *text, int length) {
  ListingLine *line = open_line;
  if (line == nullptr || length <= 0 || text[length - 1] == '\n' ||
      length >= line->maxlen - line->length) {
    ListingPutEdge(text, length);
    return;
  }
  char *end = line->text + line->length;
  line->length += length;
  end[length] = '\0';
  std::memcpy(end, text, static_cast<std::size_t>(length));
}

ListingLine *ListingCurrentLine() {
  PutListing(nullptr, 0);
  return static_cast<ListingLine *>(ListGetLast(listing));
}

// -- Printable rendering -----------------------------------------------------------------------

constexpr unsigned char kFirstNamedControl = 8;
constexpr unsigned char kLastNamedControl = 13;

static void EncodeCharacter(std::string &result, unsigned char c) {
  if (c >= 32 && c <= 126) {
    result += static_cast<char>(c);
    return;
  }
  result += '\\';
  if (c >= kFirstNamedControl && c <= kLastNamedControl) {
    result += "btnvfr"[c - kFirstNamedControl];
    return;
  }
  std::array<char, 4> octal{};
  std::snprintf(octal.data(), octal.size(), "%o", static_cast<unsigned>(c));
  result += octal.data();
}

static int EncodedWidth(unsigned char c) {
  if (c >= 127) {
    return 4;
  }
  if (c >= 32) {
    return 1;
  }
  return c > kLastNamedControl ? 3 : 2;
}

int EncodedLength(const char *text, int length) {
  std::int64_t total = 0;
  for (int i = 0; i < length; ++i) {
    total += EncodedWidth(static_cast<unsigned char>(text[i]));
  }
  return static_cast<int>(std::min<std::int64_t>(total, INT_MAX));
}

std::string EncodePrintably(const char *text, int length) {
  try {
    std::string result;
    result.reserve(static_cast<std::size_t>(EncodedLength(text, length)) + 3);
    result += '"';
    for (int i = 0; i < length; ++i) {
      EncodeCharacter(result, static_cast<unsigned char>(text[i]));
    }
    result += '"';
    return result;
  } catch (const std::bad_alloc &) {
    FatalErrorMessage("EncodePrintably: Memory allocation error", 1);
  }
}

// -- Rows --------------------------------------------------------------------------------------

// Writes `part` over the row from column `start` on.  What stands left of the margin is dropped;
// what does not fit makes the row longer.
static void RowPut(std::string &row, int start, std::string_view part) {
  if (start < 0) {
    part.remove_prefix(std::min(part.size(), static_cast<std::size_t>(-start)));
    start = 0;
  }
  const auto column = static_cast<std::size_t>(start);
  if (row.size() < column + part.size()) {
    row.resize(column + part.size(), ' ');
  }
  row.replace(column, part.size(), part);
}

static std::string BlankRow(int width) {
  return std::string(static_cast<std::size_t>(std::max(width, 0)), ' ');
}

static int Length(std::string_view text) {
  return static_cast<int>(std::min<std::size_t>(text.size(), INT_MAX / 4));
}

// Where a centred part starts.
static int Centred(std::string_view part) { return listing_width / 2 - Length(part) / 2; }

// Rows are C texts: a zero byte ends one.
static void WriteRow(std::FILE *stream, const std::string &row, const char *end) {
  std::fputs(row.c_str(), stream);
  std::fputs(end, stream);
}

// -- Pages -------------------------------------------------------------------------------------

static std::string RunDate() {
  const std::tm *local = std::localtime(&run_date_time);
  std::array<char, kDateSize> date{};
  if (local == nullptr || std::strftime(date.data(), date.size(), "%c", local) == 0) {
    return "";
  }
  return date.data();
}

// "\n\n\n", then "Module: m          <date>          Page: 1", in two rows when one is too short.
void WriteHeader(std::FILE *stream, const char *module, int page) {
  const std::string_view name = module == nullptr ? "" : module;
  const std::string module_part = "Module: " + std::string(name.substr(0, kModuleNameShown));
  const std::string date = RunDate();
  const std::string page_part = "Page: " + std::to_string(page);
  const int gap = listing_width - Length(module_part) - Length(date) - Length(page_part);
  std::fputs("\n\n\n", stream);
  std::string row = BlankRow(listing_width);
  RowPut(row, 0, module_part);
  if (gap >= 2) {
    RowPut(row, Length(module_part) + gap / 2, date);
  }
  RowPut(row, listing_width - Length(page_part), page_part);
  WriteRow(stream, row, gap >= 2 ? "\n\n\n" : "\n");
  if (gap < 2) {
    row = BlankRow(listing_width);
    RowPut(row, Centred(date), date);
    WriteRow(stream, row, "\n\n");
  }
}

// One row of a footer that does not fit in a single one.
static void WriteCentred(std::FILE *stream, std::string_view part) {
  std::string row = BlankRow(listing_width);
  RowPut(row, Centred(part), part);
  WriteRow(stream, row, "\n");
}

static void WriteTwoRowFooter(std::FILE *stream, std::string_view name, std::string_view version) {
  std::fputs("\n", stream);
  if (Length(name) > listing_width) {
    std::fputs("\n", stream);
  } else {
    WriteCentred(stream, name);
  }
  if (Length(version) > listing_width) {
    std::fputs("\n", stream);
  } else {
    WriteCentred(stream, version);
  }
}

// "\n\n", then "<file>                <version>", in two rows when one is too short.
void WriteFooter(std::FILE *stream, const char *file_name, const char *version) {
  std::string_view name = file_name;
  if (Length(name) > listing_width) {
    name.remove_prefix(name.rfind('/') + 1); // npos + 1 is 0
  }
  if (Length(name) + Length(version) > listing_width - 1) {
    WriteTwoRowFooter(stream, name, version);
    return;
  }
  std::string row = BlankRow(listing_width);
  RowPut(row, 0, name);
  RowPut(row, listing_width - Length(version), version);
  std::fputs("\n\n", stream);
  WriteRow(stream, row, "\n");
}

static bool AtPageBoundary(std::int64_t row_counter) { return row_counter % listing_length == 0; }

static void FillPage(std::FILE *stream, std::int64_t *row_counter) {
  while (!AtPageBoundary(*row_counter)) {
    std::fputs("\n", stream);
    ++*row_counter;
  }
}

// "000001: ", and "*00001: " for the line 1000001.
static std::string LinePrefix(int line_number) {
  std::array<char, 24> prefix{};
  if (line_number < kNumberedLines) {
    std::snprintf(prefix.data(), prefix.size(), "%06d: ", line_number);
  } else {
    std::snprintf(prefix.data(), prefix.size(), "*%05d: ", line_number % kNumberedLines);
  }
  return prefix.data();
}

// The rows of the line's text, `width` characters of it on each.
static void WriteText(std::FILE *stream, const ListingLine *line, std::string_view prefix,
                      int width, std::int64_t *row_counter) {
  std::string_view text(line->text, static_cast<std::size_t>(line->length));
  while (!text.empty()) {
    const std::string_view chunk = text.substr(0, static_cast<std::size_t>(width));
    std::string row = BlankRow(listing_width - 1);
    RowPut(row, 0, prefix);
    RowPut(row, Length(prefix), chunk);
    WriteRow(stream, row, "\n");
    ++*row_counter;
    text.remove_prefix(chunk.size());
    prefix = std::string_view("          ").substr(0, prefix.size());
  }
}

void WriteLine(std::FILE *stream, const ListingLine *line, std::int64_t *row_counter,
               int *page_counter) {
  const std::string prefix = LinePrefix(line->line_number);
  const int width = std::max(listing_width - Length(prefix), 1);
  const std::int64_t rows = 1 + (line->length > 0 ? (line->length - 1) / width : 0) +
                            std::int64_t{ListLength(line->errors)};
  const std::int64_t last_row = *row_counter + rows - 1;
  if (last_row % listing_length < *row_counter % listing_length) {
    FillPage(stream, row_counter);
    WriteFooter(stream, line->file_name, version_string);
    WriteHeader(stream, module_name, ++*page_counter);
  }
  WriteText(stream, line, prefix, width, row_counter);
  WriteErrors(stream, line, false);
}

// What an earlier run left in the file goes only now, when the parse has come to its end.
static void EmptyListingFile() {
  struct stat status {};
  const int descriptor = fileno(listing_fp);
  if (descriptor < 0) {
    return;
  }
  const std::string name = listing_filename.value_or("");
  if (fstat(descriptor, &status) != 0) {
    FatalErrorFormat("Error writing file \"%s\"", name.c_str());
  }
  if (!S_ISREG(status.st_mode)) {
    return;
  }
  OutputBeginsInPlace(name);
  if (ftruncate(descriptor, 0) != 0) {
    OutputEndsInPlace(name);
    FatalErrorFormat("Error writing file \"%s\"", name.c_str());
  }
}

static void WriteListingFile() {
  std::int64_t row_counter = 0;
  int page_counter = 0;
  for (const ListItem *node = ListFirstNode(listing); node != nullptr; node = node->next) {
    const auto *line = static_cast<const ListingLine *>(node->data);
    if (AtPageBoundary(row_counter)) {
      WriteHeader(listing_fp, module_name, ++page_counter);
    }
    WriteLine(listing_fp, line, &row_counter, &page_counter);
    if (AtPageBoundary(row_counter) || node->next == nullptr) {
      FillPage(listing_fp, &row_counter);
      WriteFooter(listing_fp, line->file_name, version_string);
    }
  }
}

int WriteListing() {
  int count = 0;
  for (const ListItem *node = ListFirstNode(listing); node != nullptr; node = node->next) {
    count += WriteErrors(stderr, static_cast<const ListingLine *>(node->data), true);
  }
  if (listing_fp != nullptr) {
    EmptyListingFile();
    WriteListingFile();
  }
  return count;
}

void ListingReset() {
  listing = nullptr;
  open_line = nullptr;
  listing_keeps_lines = true;
  if (listing_fp != nullptr) {
    std::fclose(listing_fp);
    listing_fp = nullptr;
  }
  run_date_time = 0;
}
