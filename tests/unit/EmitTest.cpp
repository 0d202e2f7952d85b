// Tests of the writer of generated text: what it formats itself and what it hands to the library.

#include "Emit.h"

#include <array>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

namespace {

// A stream in memory; Text() closes it and gives what was written.
struct MemoryStream {
  char *bytes = nullptr;
  std::size_t size = 0;
  std::FILE *stream = open_memstream(&bytes, &size);
  MemoryStream() = default;
  MemoryStream(const MemoryStream &) = delete;
  MemoryStream &operator=(const MemoryStream &) = delete;
  ~MemoryStream() { std::free(bytes); }
  std::string Text() {
    std::fclose(stream);
    return {bytes, size};
  }
};

// A stream in a file, for a stream in memory cannot do without its buffer.
struct TemporaryStream {
  std::FILE *stream = std::tmpfile();
  TemporaryStream() = default;
  TemporaryStream(const TemporaryStream &) = delete;
  TemporaryStream &operator=(const TemporaryStream &) = delete;
  ~TemporaryStream() { std::fclose(stream); }
  std::string Text() {
    std::string text(static_cast<std::size_t>(std::ftell(stream)), '\0');
    std::rewind(stream);
    text.resize(std::fread(text.data(), 1, text.size(), stream));
    return text;
  }
};

} // namespace

TEST(Emit, TextsAndNumbersAreFormatted) {
  MemoryStream memory;
  Emit(memory.stream, "  %s_%d : constant := %d; -- 100%%\n", "arg", 12, -7);
  Emit(memory.stream, "%d %d %d", INT_MIN, 0, INT_MAX);
  Emit(memory.stream, "%s", "");
  EXPECT_EQ(memory.Text(), "  arg_12 : constant := -7; -- 100%\n-2147483648 0 2147483647");
}

TEST(Emit, OtherConversionsAreTheLibrarys) {
  MemoryStream memory;
  Emit(memory.stream, "%s( %3u ) %d %03o %s %08lx%d.\n", "val", 7U, 1, 8U, "x", 255UL, 2);
  Emit(memory.stream, "%.6E and %.15E", 1.5, -0.25);
  EXPECT_EQ(memory.Text(),
            "val(   7 ) 1 010 x 000000ff2.\n1.500000E+00 and -2.500000000000000E-01");
}

TEST(Emit, NoTextIsWrittenAsTheLibraryDoes) {
  MemoryStream memory;
  Emit(memory.stream, "<%s>", std::getenv("KIVUXL_HAS_NO_SUCH_VARIABLE"));
  EXPECT_EQ(memory.Text(), "<(null)>");
}

TEST(Emit, TextsOfEveryLengthStayWholeAndInOrder) {
  for (const std::size_t length : {2046U, 2047U, 2048U, 2049U, 4096U, 100000U}) {
    const std::string text(length, 'x');
    MemoryStream memory;
    Emit(memory.stream, "a%sb%d%sc", text.c_str(), 5, text.c_str());
    EXPECT_EQ(memory.Text(), "a" + text + "b5" + text + "c") << length;
  }
}

TEST(Emit, NumbersArePaddedAsTheLibraryDoes) {
  MemoryStream memory;
  Emit(memory.stream, "%3u,%3u,%3u,%3u,%3u,%3u%s", 0U, 9U, 10U, 99U, 100U, UINT_MAX, ".");
  EXPECT_EQ(memory.Text(), "  0,  9, 10, 99,100,4294967295.");
}

TEST(Emit, AHeldStreamGetsItsTextInOrderAtRelease) {
  TemporaryStream held;
  MemoryStream other;
  EmitHold(held.stream);
  const std::string text(40000, 'x');
  const std::string longest(70000, 'y');
  Emit(held.stream, "a%sb%s", text.c_str(), text.c_str());
  Emit(other.stream, "between");
  Emit(held.stream, "c%sd%.1f", longest.c_str(), 0.5);
  EmitRelease(held.stream);
  Emit(held.stream, "e");
  EXPECT_EQ(held.Text(), "a" + text + "b" + text + "c" + longest + "d0.5e");
  EXPECT_EQ(other.Text(), "between");
}

TEST(Emit, MoreStreamsThanBuffersAreWrittenAsWell) {
  std::array<TemporaryStream, 7> units;
  for (TemporaryStream &unit : units) {
    EmitHold(unit.stream);
  }
  for (TemporaryStream &unit : units) {
    Emit(unit.stream, "unit %d", 1);
    EmitRelease(unit.stream);
    EXPECT_EQ(unit.Text(), "unit 1");
  }
}
