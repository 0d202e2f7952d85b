// See Emit.h.  A unit's text is put together where it is written from, in a buffer of its own
// beside the stream: with the library's buffer in between, each template was copied twice, which
// was a tenth of all executed instructions.

#include "Emit.h"

#include <charconv>
#include <memory>

namespace {

// What a file system gets at one time it keeps in larger pieces: 30 MB by the mebibyte instead of
// by 64 KiB take 10,000 widgets 4 % less.
constexpr std::size_t kUnitTextSize = 1 << 20;

// A stream with a buffer of its own.
struct UnitText {
  EmitBuffer buffer; // of no stream: unused
  std::unique_ptr<char[]> text;
};

constexpr std::size_t kUnitTexts = 5; // at one time

// For one text, to a stream without a buffer or longer than a buffer.
struct PassingText {
  EmitBuffer buffer;
  std::string text;
};

} // namespace

static std::array<UnitText, kUnitTexts> unit_texts;
static PassingText passing;

static void EmitFlush(EmitBuffer *buffer) {
  std::fwrite(buffer->text, 1, static_cast<std::size_t>(buffer->next - buffer->text), buffer->file);
  buffer->next = buffer->text;
}

// -- Units -------------------------------------------------------------------------------------

static EmitBuffer *UnitBuffer(const std::FILE *file) {
  static EmitBuffer *recent = &unit_texts[0].buffer;
  if (recent->file == file) {
    return recent;
  }
  for (UnitText &unit : unit_texts) {
    if (unit.buffer.file == file) {
      recent = &unit.buffer;
      return recent;
    }
  }
  return nullptr;
}

void EmitHold(std::FILE *file) {
  for (UnitText &unit : unit_texts) {
    if (unit.buffer.file == nullptr && std::setvbuf(file, nullptr, _IONBF, 0) == 0) {
      unit.text.reset(new char[kUnitTextSize]); // not cleared
      unit.buffer = {file, unit.text.get(), unit.text.get(), unit.text.get() + kUnitTextSize};
      return;
    }
  }
}

void EmitRelease(const std::FILE *file) {
  for (UnitText &unit : unit_texts) {
    if (file != nullptr && unit.buffer.file == file) {
      EmitFlush(&unit.buffer);
      unit = {};
    }
  }
}

// -- Text on its way ---------------------------------------------------------------------------

// Not inlined: this is rare.
[[gnu::noinline]] static EmitBuffer *PassingBuffer(std::FILE *file, std::size_t room) {
  passing.text.resize(room);
  passing.buffer = {file, passing.text.data(), passing.text.data(), passing.text.data() + room};
  return &passing.buffer;
}

EmitBuffer *EmitReserve(std::FILE *file, std::size_t room) {
  EmitBuffer *buffer = UnitBuffer(file);
  if (buffer != nullptr && room > static_cast<std::size_t>(buffer->limit - buffer->next)) {
    EmitFlush(buffer);
  }
  return buffer == nullptr || room > kUnitTextSize ? PassingBuffer(file, room) : buffer;
}

void EmitPass(EmitBuffer *buffer, char *end) {
  buffer->next = end;
  if (buffer == &passing.buffer) {
    EmitFlush(buffer);
    passing = {};
  }
}

char *EmitNumber(char *out, int number) {
  return std::to_chars(out, out + kLongestNumber, number).ptr;
}

// -- By the library ----------------------------------------------------------------------------

std::string EmitByLibrary(const char *format, std::va_list arguments) {
  std::va_list again;
  va_copy(again, arguments);
  std::string text(
      static_cast<std::size_t>(std::max(std::vsnprintf(nullptr, 0, format, arguments), 0)), '\0');
  std::vsnprintf(text.data(), text.size() + 1, format, again);
  va_end(again);
  return text;
}

void Emit(std::FILE *file, const char *format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  Emit(file, "%s"_ada, EmitByLibrary(format, arguments).c_str());
  va_end(arguments);
}
