// Tests of the writer of generated text: templates that the compiler takes apart, and those that it
// hands to the library.

#include "Emit.h"

#include <array>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "AdaArgument.h"

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
  Emit(memory.stream, "  %s_%d : constant := %d;\n"_ada, "arg", 12, -7);
  Emit(memory.stream, "%d %d %d"_ada, INT_MIN, 0, INT_MAX);
  Emit(memory.stream, "%s"_ada, "");
  EXPECT_EQ(memory.Text(), "  arg_12 : constant := -7;\n-2147483648 0 2147483647");
}

TEST(Emit, ValuesStandWhereTheirConversionsDo) {
  MemoryStream memory;
  const std::string middle(16, 'm');
  Emit(memory.stream, ""_ada);
  Emit(memory.stream, "%s"_ada, "only");
  Emit(memory.stream, "%d%s%d"_ada, 9, middle.c_str(), 10);
  Emit(memory.stream, "|%s%s|\n"_ada, "", "b");
  EXPECT_EQ(memory.Text(), "only9mmmmmmmmmmmmmmmm10|b|\n");
}

TEST(Emit, TheTextItselfIsTheSame) {
  EXPECT_EQ(EmitToString(""_ada), "");
  EXPECT_EQ(EmitToString("%s_%d"_ada, "name", -1), "name_-1");
  for (const std::size_t length : {52U, 53U, 54U, 64U, 65U, 3000U}) {
    const std::string text(length, 'x');
    EXPECT_EQ(EmitToString("<%s%d>"_ada, text.c_str(), INT_MIN), "<" + text + "-2147483648>");
  }
}

TEST(Emit, OtherConversionsAreTheLibrarys) {
  MemoryStream memory;
  Emit(memory.stream, "%s( %3u ) %d %03o %s %08lx%d 100%%.\n", "val", 7U, 1, 8U, "x", 255UL, 2);
  Emit(memory.stream, "%.6E and %.15E", 1.5, -0.25);
  EXPECT_EQ(memory.Text(),
            "val(   7 ) 1 010 x 000000ff2 100%.\n1.500000E+00 and -2.500000000000000E-01");
}

TEST(Emit, LibraryMayWriteNothing) { EXPECT_EQ(ExpressionFormat("%.0s", "x"), ""); }

TEST(Emit, NoTextIsWrittenAsTheLibraryDoes) {
  MemoryStream memory;
  Emit(memory.stream, "<%s>"_ada, std::getenv("KIVUXL_HAS_NO_SUCH_VARIABLE"));
  EXPECT_EQ(memory.Text(), "<(null)>");
}

TEST(Emit, TextsOfEveryLengthStayWholeAndInOrder) {
  for (const std::size_t length : {1U, 8U, 2047U, 524280U, 524288U, 1048565U, 1048576U, 1100000U}) {
    const std::string text(length, 'x');
    const std::string expected = "a" + text + "b5" + text + "c";
    MemoryStream memory;
    Emit(memory.stream, "a%sb%d%sc"_ada, text.c_str(), 5, text.c_str());
    EXPECT_EQ(memory.Text(), expected) << length;
    TemporaryStream held;
    EmitHold(held.stream);
    Emit(held.stream, "a%sb%d%sc"_ada, text.c_str(), 5, text.c_str());
    EmitRelease(held.stream);
    EXPECT_EQ(held.Text(), expected) << length;
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
  const std::string text(600000, 'x');
  const std::string longest(1100000, 'y');
  Emit(held.stream, "a%sb%s"_ada, text.c_str(), text.c_str());
  Emit(other.stream, "between"_ada);
  Emit(held.stream, "c%sd"_ada, longest.c_str());
  Emit(held.stream, "%.1f", 0.5);
  EmitRelease(held.stream);
  Emit(held.stream, "e"_ada);
  EXPECT_EQ(held.Text(), "a" + text + "b" + text + "c" + longest + "d0.5e");
  EXPECT_EQ(other.Text(), "between");
}

TEST(Emit, ReleaseOfNoStreamReleasesNone) {
  TemporaryStream held;
  EmitHold(held.stream);
  Emit(held.stream, "kept"_ada);
  EmitRelease(nullptr);
  EXPECT_EQ(held.Text(), "");
  EmitRelease(held.stream);
  EXPECT_EQ(held.Text(), "kept");
}

TEST(Emit, MoreStreamsThanBuffersAreWrittenAsWell) {
  std::array<TemporaryStream, 7> units;
  for (TemporaryStream &unit : units) {
    EmitHold(unit.stream);
  }
  for (TemporaryStream &unit : units) {
    Emit(unit.stream, "unit %d"_ada, 1);
    EmitRelease(unit.stream);
    EXPECT_EQ(unit.Text(), "unit 1");
  }
}
