// See AdaString.h.  A text becomes a chain of pieces, one to a line: runs of printable characters
// in quotes, and each other character by its code.  The closing zero of the text is the last piece,
// so that the bindings can hand the Ada string to C.

#include "AdaString.h"

#include <cstring>
#include <string_view>

#include "AdaArgument.h"
#include "Emit.h"
#include "Error.h"
#include "Options.h"

namespace {

constexpr unsigned char kFirstPrintable = 32;
constexpr unsigned char kLastPrintable = 126;
constexpr unsigned char kLastAscii = 127;

// Beside its characters, the quotes and the zero of a text without other pieces.
constexpr std::size_t kTypicalExtra = 64;

// An expression being built.
struct StringExpression {
  std::string text;
  bool in_quote = false; // a quoted run is open
  std::string message;   // the report of the first character that Ada 83 lacks
};

} // namespace

static bool IsPrintable(unsigned char c) { return c >= kFirstPrintable && c <= kLastPrintable; }

static void BeginPiece(StringExpression *expression) {
  if (!expression->text.empty()) {
    expression->text += " &\n";
  }
}

// Characters that are neither quotes nor to be written by code.
static void AppendPrintable(StringExpression *expression, std::string_view run) {
  if (!expression->in_quote) {
    BeginPiece(expression);
    expression->text += "      \"";
    expression->in_quote = true;
  }
  expression->text += run;
}

// Every report of one text names the first such character.
static void ReportUnrepresentable(StringExpression *expression, unsigned char c) {
  if (expression->message.empty()) {
    expression->message = ExpressionFormat("Character \\%03o\\ cannot be represented in Ada 83", c);
  }
  ErrorMessage(kImmediate, expression->message.c_str());
}

static void AppendCode(StringExpression *expression, unsigned char c) {
  if (expression->in_quote) {
    expression->text += '"';
    expression->in_quote = false;
  }
  BeginPiece(expression);
  if (c == '\0') {
    expression->text += "      character'val(   0 )"; // ends every text
  } else if (ada95 || c <= kLastAscii) {
    expression->text += ExpressionFormat("      character'val( %3u )", c);
  } else {
    ReportUnrepresentable(expression, c);
    expression->text += "      '~'";
  }
}

std::string string_value_expr(const char *text) {
  if (text == nullptr || *text == '\0') {
    return "      \"\" & character'val( 0 )";
  }
  StringExpression expression;
  expression.text.reserve(std::strlen(text) + kTypicalExtra);
  for (const char *next = text;; ++next) {
    const char *run = next;
    while (IsPrintable(static_cast<unsigned char>(*next)) && *next != '"') {
      ++next;
    }
    if (next != run) {
      AppendPrintable(&expression, {run, static_cast<std::size_t>(next - run)});
    }
    if (*next == '"') {
      AppendPrintable(&expression, "\"\"");
    } else {
      AppendCode(&expression, static_cast<unsigned char>(*next));
    }
    if (*next == '\0') {
      return expression.text;
    }
  }
}

std::string string_varname(int n) { return ExpressionFormat("string_%d"_ada, n); }

std::string string_varptr(int n) { return ExpressionFirstAddress(string_varname(n)); }

void string_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  const char *text = static_cast<const StringValue *>(value)->value;
  argument_declare(argument, file, n);
  Emit(file,
       "    %s : constant string :=\n"
       "%s;\n"_ada,
       string_varname(n).c_str(), string_value_expr(text).c_str());
}

void string_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                   int n) {
  argument_setarg(string_varptr(n).c_str(), argument, file, n);
}
