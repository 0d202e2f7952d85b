#ifndef KIVUXL_ERROR_H
#define KIVUXL_ERROR_H

// Diagnostics: one small interface for every fault and every progress message of the program.

#include <cstdint>
#include <cstdio>
#include <string>

#include "List.h"

struct ListingLine;

// The kind of a diagnostic.  Kinds 1 to 3 are attached to the listing line being read and printed
// grouped under it after parsing; kind 4 is printed at once.  2 and 3 count as errors.
enum ErrorType : std::uint8_t {
  kWarning = 1,
  kSyntax = 2,
  kError = 3,
  kImmediate = 4,
};

// One diagnostic attached to a listing line.
struct ErrorRec {
  ErrorType error_type;
  char *msg; // a private copy
};

// What Shutdown throws; only the outermost function of the driver catches it.
struct ProgramExit {
  int status;
};

// The text of the message being built.  Reused by every ErrorFormat.
extern std::string error_message;

// Reports `msg`: kind 4 prints "<program_name>: <msg>.\n" on standard error at once, any other
// kind attaches a copy of the text to the line being read.
void ErrorMessage(ErrorType type, const char *msg);

// Formats into `error_message` and reports the result.
void ErrorFormat(ErrorType type, const char *format, ...) __attribute__((format(printf, 2, 3)));

// ErrorMessage(kImmediate, msg), then Shutdown(status).
[[noreturn]] void FatalErrorMessage(const char *msg, int status);

// Formats like ErrorFormat and ends the run with status 1.
[[noreturn]] void FatalErrorFormat(const char *format, ...) __attribute__((format(printf, 1, 2)));

// Ends the run with that exit status by throwing ProgramExit.
[[noreturn]] void Shutdown(int status);

// The immediate message "Out of memory", then Shutdown(1).
[[noreturn]] void OutOfMemory();

// Prints the formatted text on standard output when `level` is not above `verbose`, with a newline
// unless the format ends in one.
void UilPrintf(int level, const char *format, ...) __attribute__((format(printf, 2, 3)));

// Appends a diagnostic with a copy of `msg` to the line's `errors`.
void FilesAddError(ListingLine *line, ErrorType type, const char *msg);

// Attaches "[column]: "<the characters, made printable>" <msg>" to the line being read: a syntax
// error when `is_syntax` is set, else a warning.
void LexicalError(const char *text, int length, const char *msg, bool is_syntax);

// Writes the line's diagnostics to `stream`, under the line itself when `with_header` is set.
// Returns how many of them are errors (kinds other than 1).
int WriteErrors(std::FILE *stream, const ListingLine *line, bool with_header);

void ErrorReset();

#endif
