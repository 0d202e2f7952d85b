#ifndef KIVUXL_SOURCEFILES_H
#define KIVUXL_SOURCEFILES_H

// For tests of what reads sources: each test runs in a fresh directory of its own, with the
// program put back to its start and the symbol table empty.

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "Alloc.h"
#include "Error.h"
#include "Files.h"
#include "Listing.h"
#include "Model.h"
#include "Options.h"
#include "Scanner.h"

// Leaves descriptor 0 to what is opened next, for one scope.  Used inside ErrorsOf, which would
// take it, and around the streams that get it.
struct WithoutStandardInput {
  int saved = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 10);
  WithoutStandardInput() { close(STDIN_FILENO); }
  ~WithoutStandardInput() {
    dup2(saved, STDIN_FILENO);
    close(saved);
  }
  WithoutStandardInput(const WithoutStandardInput &) = delete;
  WithoutStandardInput &operator=(const WithoutStandardInput &) = delete;
};

class SourceFiles : public testing::Test {
protected:
  void SetUp() override {
    ResetAll();
    program_name = "kivuxl";
    ASSERT_TRUE(SymbolTableInit());
    start = std::filesystem::current_path();
    std::string name = std::filesystem::temp_directory_path() / "kivuxl-test-XXXXXX";
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    scratch = name;
    std::filesystem::current_path(scratch);
  }

  void TearDown() override {
    ResetAll();
    std::filesystem::current_path(start);
    std::filesystem::remove_all(scratch);
  }

  static void ResetAll() {
    AllocFailAfter(-1);
    ErrorReset();
    ListingReset();
    FilesReset();
    ScannerReset();
    ModelReset();
    OptionsReset();
    AllocReset();
  }

  static void Put(const std::string &name, std::string_view text) {
    std::ofstream file(name, std::ios::binary);
    file << text;
  }

  static std::string Contents(const std::string &name) {
    std::ostringstream text;
    text << std::ifstream(name, std::ios::binary).rdbuf();
    return text.str();
  }

  // What the function writes on standard error; the status that ends it is added at the end.
  static std::string ErrorsOf(const std::function<void()> &function) {
    std::string ending;
    testing::internal::CaptureStderr();
    try {
      function();
    } catch (const ProgramExit &exit) {
      ending = "[exit " + std::to_string(exit.status) + "]";
    }
    return testing::internal::GetCapturedStderr() + ending;
  }

  // The grouped report of everything read so far.
  static std::string Report() {
    return ErrorsOf([] { WriteListing(); });
  }

  // Makes the text the main file "main.uil" and the scanner's input.
  static void Open(std::string_view text) {
    Put("main.uil", text);
    ASSERT_NE(FilesOpen("main.uil", false), nullptr);
  }

  // The next token as a text: numbers and texts by their value, names by their name, after their
  // kind when they have one.
  static std::string NextToken() {
    const int token = yylex();
    switch (token) {
    case 0:
      return "(end)";
    case LITERAL_INTEGER:
      return std::to_string(yylval.integer.value);
    case LITERAL_FLOAT:
      return "float " + std::to_string(yylval.float_t.value);
    case LITERAL_SINGLE:
      return "single " + Printable();
    case LITERAL_DOUBLE:
      return "double " + Printable();
    case LEFT_SHIFT:
      return "<<";
    case RIGHT_SHIFT:
      return ">>";
    case SYMBOL:
      return yylval.symbol.name;
    default:
      return token < NIL ? std::string(1, static_cast<char>(token))
                         : std::to_string(token) + ":" + yylval.symbol.name;
    }
  }

  // All tokens from here on, separated by bars.
  static std::string Tokens() {
    std::string all;
    for (std::string token = NextToken(); token != "(end)"; token = NextToken()) {
      all += (all.empty() ? "" : " | ") + token;
    }
    return all;
  }

  static std::string TokensOf(std::string_view text) {
    Open(text);
    return Tokens();
  }

  // Enters a name of that kind, as a declaration would.
  static SimpleObjectRec *Declare(std::int32_t kind, const char *name) {
    auto *word = ModelNew<BareWord>(kind);
    word->name = name;
    SymbolAdd(word);
    return word;
  }

  std::filesystem::path start;
  std::filesystem::path scratch;

private:
  static std::string Printable() {
    const std::string_view text = yylval.string.value;
    return EncodePrintably(text.data(), static_cast<int>(text.size()));
  }
};

#endif
