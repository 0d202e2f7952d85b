#ifndef KIVUXL_EMIT_H
#define KIVUXL_EMIT_H

// The one writer of generated text.  A template stands in the source as it comes out, one line of
// output per source line; the compiler checks its arguments.

#include <cstdarg>
#include <cstdio>
#include <string>

// Writes the formatted text.  Failures stay in the stream's error indicator, which whoever closes
// the unit checks.
void Emit(std::FILE *file, const char *format, ...) __attribute__((format(printf, 2, 3)));

// Gives a stream of a file that nothing else writes to a large buffer of its own, until
// EmitRelease; without one, when too many streams have theirs, Emit works as well.
void EmitHold(std::FILE *file);

// Writes what is left in the stream's buffer, if it has one, and gives that up: before the stream
// is looked at for errors and closed.
void EmitRelease(const std::FILE *file);

// The formatted text itself.
std::string EmitToString(const char *format, std::va_list arguments)
    __attribute__((format(printf, 1, 0)));

#endif
