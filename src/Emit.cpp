// See Emit.h.  Formatting goes straight to the stream: units may be of any size.

#include "Emit.h"

#include <cstdarg>

void Emit(std::FILE *file, const char *format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::vfprintf(file, format, arguments);
  va_end(arguments);
}
