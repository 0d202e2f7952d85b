#ifndef KIVUXL_EMIT_H
#define KIVUXL_EMIT_H

// The one writer of generated text.  A template is a literal marked as Ada text, and stands in the
// source as it comes out, one line of output per source line:
//
//   Emit(file, "    args : xtr5.arglist( 1 .. %d );\n"_ada, slots);
//
// Its conversions are %s for a text and %d for an int.  The compiler takes the template apart and
// checks the arguments against it, so that a run only copies pieces of known length: this takes a
// third of the instructions that reading the template does, which were a quarter of all.

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

// The text of a template, in a form that can be part of a type.
template <std::size_t size> struct AdaText {
  char text[size];
  consteval AdaText(const char (&literal)[size]) : text{} {
    for (std::size_t i = 0; i < size; ++i) {
      text[i] = literal[i];
    }
  }
};

// A template: all of it is in its type.
template <AdaText text> struct AdaTemplate {};

template <AdaText text> consteval AdaTemplate<text> operator""_ada() { return {}; }

// Writes the text with the values, of which null is written as "(null)".  Failures stay in the
// stream's error indicator, which whoever closes the unit checks.
template <AdaText text, typename... Values>
void Emit(std::FILE *file, AdaTemplate<text> ada, const Values &...values);

// The text with the values.
template <AdaText text, typename... Values>
std::string EmitToString(AdaTemplate<text> ada, const Values &...values);

// The same for the few templates with other conversions, which are printf's, and for messages.
// Slow.
void Emit(std::FILE *file, const char *format, ...) __attribute__((format(printf, 2, 3)));
std::string EmitByLibrary(const char *format, std::va_list arguments)
    __attribute__((format(printf, 1, 0)));

// Gives a stream of a file that nothing else writes to a large buffer of its own, until
// EmitRelease; without one, when too many streams have theirs, Emit works as well.
void EmitHold(std::FILE *file);

// Writes what is left in the stream's buffer, if it has one, and gives that up: before the stream
// is looked at for errors and closed.
void EmitRelease(const std::FILE *file);

// -- How the templates are taken apart ---------------------------------------------------------

// Where a text that stands for itself starts in the template, and how long it is.
struct AdaPiece {
  std::size_t start;
  std::size_t length;
};

// The texts before, between and behind the conversions, each of which is two characters long.
template <AdaText text> consteval auto AdaPieces() {
  constexpr std::size_t kLength = sizeof(text.text) - 1;
  std::array<AdaPiece, 1 + std::count(text.text, text.text + kLength, '%')> pieces{};
  std::size_t start = 0;
  for (AdaPiece &piece : pieces) {
    piece.start = start;
    while (start + piece.length < kLength && text.text[start + piece.length] != '%') {
      ++piece.length;
    }
    start += piece.length + 2;
  }
  return pieces;
}

template <AdaText text> inline constexpr auto kAdaPieces = AdaPieces<text>();

// What stands for a value until it is written: its measured text, or the number.
struct AdaString {
  std::string_view text;
  AdaString(const char *value) : text(value == nullptr ? "(null)" : value) {}
};
struct AdaNumber {
  int number;
  template <typename Value> AdaNumber(Value value) : number(value) {
    static_assert(std::is_same_v<Value, int>);
  }
};

// Which of them the conversion with that index is for.
template <AdaText text, std::size_t index> consteval auto AdaConversion() {
  constexpr AdaPiece kPiece = kAdaPieces<text>[index];
  constexpr char kLetter = text.text[kPiece.start + kPiece.length + 1];
  static_assert(kLetter == 's' || kLetter == 'd');
  return std::type_identity<std::conditional_t<kLetter == 's', AdaString, AdaNumber>>();
}
template <AdaText text, std::size_t index>
using AdaValue = typename decltype(AdaConversion<text, index>())::type;

// -- How the values are written ----------------------------------------------------------------

constexpr std::size_t kLongestNumber = 11; // characters of an int

// Puts a number at `out`, where there is room for it; returns its end.
char *EmitNumber(char *out, int number);

inline std::size_t EmitRoom(AdaNumber /*value*/) { return kLongestNumber; }
inline std::size_t EmitRoom(AdaString value) { return value.text.size(); }

inline char *EmitValue(char *out, AdaNumber value) {
  if (value.number < 0 || value.number > 9) {
    return EmitNumber(out, value.number);
  }
  *out = static_cast<char>('0' + value.number);
  return out + 1;
}

inline char *EmitValue(char *out, AdaString value) {
  std::memcpy(out, value.text.data(), value.text.size());
  return out + value.text.size();
}

template <AdaText text> consteval std::size_t AdaLength() {
  std::size_t length = 0;
  for (const AdaPiece &piece : kAdaPieces<text>) {
    length += piece.length;
  }
  return length;
}

template <AdaText text, std::size_t index> inline char *EmitPiece(char *out) {
  constexpr AdaPiece kPiece = kAdaPieces<text>[index];
  std::memcpy(out, text.text + kPiece.start, kPiece.length);
  return out + kPiece.length;
}

// Checks the values of a template and measures them; `use` gets the room that all the text takes
// at most, and what puts it somewhere and returns its end.
template <AdaText text, typename Use, std::size_t... index, typename... Values>
inline auto EmitUse(Use use, std::index_sequence<index...> /*type*/, const Values &...values) {
  static_assert(sizeof...(Values) + 1 == kAdaPieces<text>.size()); // one for each conversion
  return [&use](AdaValue<text, index>... measured) {
    return use((AdaLength<text>() + ... + EmitRoom(measured)), [&](char *out) {
      ((out = EmitPiece<text, index>(out), out = EmitValue(out, measured)), ...);
      return EmitPiece<text, sizeof...(index)>(out);
    });
  }(values...);
}

// A place for text on its way to a stream.
struct EmitBuffer {
  std::FILE *file;
  char *next;
  char *text;
  char *limit;
};

// A buffer for text to that stream, with so much room.
EmitBuffer *EmitReserve(std::FILE *file, std::size_t room);

// Ends the text that EmitReserve made room for.
void EmitPass(EmitBuffer *buffer, char *end);

template <AdaText text, typename... Values>
inline void Emit(std::FILE *file, AdaTemplate<text> /*ada*/, const Values &...values) {
  const auto use = [file](std::size_t room, auto put) {
    EmitBuffer *buffer = EmitReserve(file, room);
    EmitPass(buffer, put(buffer->next));
  };
  EmitUse<text>(use, std::index_sequence_for<Values...>(), values...);
}

template <AdaText text, typename... Values>
inline std::string EmitToString(AdaTemplate<text> /*ada*/, const Values &...values) {
  const auto use = [](std::size_t room, auto put) {
    std::array<char, 64> name; // as nearly all are; not cleared
    if (room <= name.size()) {
      return std::string(name.data(), put(name.data()));
    }
    std::string result(room, '\0');
    result.resize(static_cast<std::size_t>(put(result.data()) - result.data()));
    return result;
  };
  return EmitUse<text>(use, std::index_sequence_for<Values...>(), values...);
}

#endif
