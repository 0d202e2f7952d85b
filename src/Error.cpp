// Diagnostics.  A message either goes to standard error at once or becomes an ErrorRec of the line
// being read; WriteErrors prints those later.  Standard output is flushed before each write to
// standard error, so that both read in order when they go to one place.

#include "Error.h"

#include <array>
#include <cstdarg>
#include <cstring>
#include <new>

#include "Alloc.h"
#include "Emit.h"
#include "Listing.h"
#include "Options.h"

std::string error_message;

// What stands before a diagnostic in the grouped report, by its kind.
static constexpr std::array<const char *, kImmediate> kPrefixes = {
    "   error: ",          // no kind of its own
    " warning: ",          // kWarning
    "  syntax: expected ", // kSyntax
    "   error: ",          // kError
};

void ErrorMessage(ErrorType type, const char *msg) {
  if (type == kImmediate) {
    std::fflush(stdout);
    std::fprintf(stderr, "%s: %s.\n", program_name.c_str(), msg);
  } else {
    FilesAddError(ListingCurrentLine(), type, msg);
  }
}

void ErrorFormat(ErrorType type, const char *format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  error_message = EmitByLibrary(format, arguments); // arguments may point into it
  va_end(arguments);
  ErrorMessage(type, error_message.c_str());
}

void FatalErrorMessage(const char *msg, int status) {
  ErrorMessage(kImmediate, msg);
  Shutdown(status);
}

void FatalErrorFormat(const char *format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  error_message = EmitByLibrary(format, arguments);
  va_end(arguments);
  FatalErrorMessage(error_message.c_str(), 1);
}

void Shutdown(int status) { throw ProgramExit{status}; }

void OutOfMemory() { FatalErrorMessage("Out of memory", 1); }

void UilPrintf(int level, const char *format, ...) {
  if (level > verbose) {
    return;
  }
  std::va_list arguments;
  va_start(arguments, format);
  std::vprintf(format, arguments);
  va_end(arguments);
  const std::size_t length = std::strlen(format);
  if (length == 0 || format[length - 1] != '\n') {
    std::putchar('\n');
  }
}

void FilesAddError(ListingLine *line, ErrorType type, const char *msg) {
  if (line->errors == nullptr) {
    line->errors = ListCreate(nullptr, nullptr, nullptr);
  }
  void *memory = _MAlloc(sizeof(ErrorRec));
  char *copy = SafeStrdup(msg);
  if (line->errors == nullptr || memory == nullptr || copy == nullptr) {
    OutOfMemory();
  }
  const std::uint32_t before = ListLength(line->errors);
  ListAppendItem(line->errors, new (memory) ErrorRec{type, copy});
  if (ListLength(line->errors) == before) {
    OutOfMemory();
  }
}

void LexicalError(const char *text, int length, const char *msg, bool is_syntax) {
  ListingLine *line = ListingCurrentLine();
  try {
    std::string report = "[" + std::to_string(line->length + 1LL) + "]: ";
    report += EncodePrintably(text, length);
    report += ' ';
    report += msg;
    FilesAddError(line, is_syntax ? kSyntax : kWarning, report.c_str());
  } catch (const std::bad_alloc &) {
    FatalErrorMessage("LexicalError: Memory allocation failure", 1);
  }
}

int WriteErrors(std::FILE *stream, const ListingLine *line, bool with_header) {
  if (ListLength(line->errors) == 0) {
    return 0;
  }
  if (stream == stderr) {
    std::fflush(stdout);
  }
  if (with_header) {
    std::fprintf(stream, "%s(%d): %s\n", line->file_name, line->line_number, line->text);
  }
  int count = 0;
  for (const ListItem *node = ListFirstNode(line->errors); node != nullptr; node = node->next) {
    const auto *error = static_cast<const ErrorRec *>(node->data);
    const std::size_t row = error->error_type < kPrefixes.size() ? error->error_type : kError;
    std::fprintf(stream, "%s%s\n", kPrefixes[row], error->msg);
    count += error->error_type == kWarning ? 0 : 1;
  }
  std::fputs("\n", stream);
  return count;
}

void ErrorReset() { error_message.clear(); }
