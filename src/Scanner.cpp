// What the rules of lex.l call: the literal buffer, the semantic values of numbers and names, and
// the tokens that were read ahead of an include file.
//
// The parser needs one token more than the file's name to tell an include without a semicolon.
// That token belongs behind the included text.  So it is kept with the depth of the include stack
// at which it was read, and delivered when the stack is back at this depth.

#include "Scanner.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "Alloc.h"
#include "Error.h"
#include "Files.h"
#include "Model.h"

char *lit_buffer = nullptr;
std::size_t lit_bufsiz = 0;
int lit_bufptr = 0;

struct KeptToken {
  int token;
  YYSTYPE value;
  int depth; // files open when it was read
};

static std::vector<KeptToken> kept_tokens;

// -- Literals ----------------------------------------------------------------------------------

[[noreturn]] static void LiteralExhausted() {
  FatalErrorMessage("StartLiteral: Memory allocation error", 1);
}

void StartLiteral() {
  if (lit_buffer == nullptr) {
    lit_buffer = static_cast<char *>(_SmartMalloc(1, &lit_bufsiz));
    if (lit_buffer == nullptr) {
      LiteralExhausted();
    }
  }
  lit_bufptr = 0;
  lit_buffer[0] = '\0';
}

// Grows by doubling, so that a text of any length is copied a bounded number of times.
void NeedLiteral(int n) {
  const std::int64_t need = std::int64_t{lit_bufptr} + n + 1;
  if (need <= static_cast<std::int64_t>(lit_bufsiz)) {
    return;
  }
  if (need > INT_MAX) {
    LiteralExhausted();
  }
  const auto size = static_cast<std::size_t>(need);
  lit_buffer =
      static_cast<char *>(_SmartRealloc(lit_buffer, std::max(size, lit_bufsiz * 2), &lit_bufsiz));
  if (lit_buffer == nullptr || lit_bufsiz < size) {
    LiteralExhausted();
  }
}

void PutLiteralChar(char c) { PutLiteralText(&c, 1); }

void PutLiteralText(const char *text, int length) {
  NeedLiteral(length);
  std::memcpy(lit_buffer + lit_bufptr, text, static_cast<std::size_t>(length));
  lit_bufptr += length;
  lit_buffer[lit_bufptr] = '\0';
}

void PutEscapeChar(const char *text) {
  switch (text[1]) {
  case '\n':
    return;
  case 'n':
    return PutLiteralChar('\n');
  case 't':
    return PutLiteralChar('\t');
  case 'v':
    return PutLiteralChar('\v');
  case 'b':
    return PutLiteralChar('\b');
  case 'f':
    return PutLiteralChar('\f');
  case 'r':
    return PutLiteralChar('\r');
  default:
    return PutLiteralChar(text[1]);
  }
}

// `text` is a backslash, digits and a backslash.  The octal number ends before a digit 8 or 9.
void PutEscapeNum(const char *text) {
  constexpr int kOctal = 8;
  const unsigned long long code = std::strtoull(text + 1, nullptr, kOctal);
  PutLiteralChar(static_cast<char>(static_cast<unsigned char>(code & 0xffU)));
}

int GetLiteral(int token) {
  if (lit_buffer == nullptr) {
    StartLiteral(); // nothing stands between the newline that broke a string and this one's end
  }
  yylval.string.kind = token;
  yylval.string.value = lit_buffer;
  yylval.string.charsets = nullptr;
  lit_buffer = nullptr;
  lit_bufsiz = 0;
  lit_bufptr = 0;
  return token;
}

// -- Numbers and names -------------------------------------------------------------------------

int GetInteger(const char *text) {
  constexpr int kDecimal = 10;
  const long long value = std::strtoll(text, nullptr, kDecimal);
  yylval.integer.value = static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
  return LITERAL_INTEGER;
}

int GetFloat(const char *text) {
  double value = std::strtod(text, nullptr);
  if (std::isinf(value)) {
    ErrorMessage(kError, "Number too large to convert to float");
    value = 0;
  }
  yylval.float_t.value = value;
  return LITERAL_FLOAT;
}

int TextLiteral(const char *text) {
  SimpleObjectRec *entry = SymbolFind(text);
  yylval.symbol.kind = entry == nullptr ? SYMBOL : entry->kind;
  yylval.symbol.name = entry == nullptr ? ModelText(text) : entry->name;
  yylval.symbol.value = entry;
  return yylval.symbol.kind;
}

// -- Kept tokens -------------------------------------------------------------------------------

void ScannerKeepToken(int token, const YYSTYPE &value) {
  kept_tokens.push_back({token, value, FilesDepth()});
}

bool ScannerTokenDue() { return !kept_tokens.empty() && kept_tokens.back().depth == FilesDepth(); }

// Whether TextLiteral made the token; all others are told by their code.
static bool TokenIsName(int token) {
  switch (token) {
  case LITERAL_INTEGER:
  case LITERAL_FLOAT:
  case LITERAL_SINGLE:
  case LITERAL_DOUBLE:
  case LEFT_SHIFT:
  case RIGHT_SHIFT:
    return false;
  default:
    return token >= NIL;
  }
}

int ScannerDeliverToken() {
  if (!ScannerTokenDue()) {
    return 0;
  }
  const KeptToken kept = kept_tokens.back();
  kept_tokens.pop_back();
  if (TokenIsName(kept.token)) {
    // What the name means may have been declared in the included file.
    return TextLiteral(kept.value.symbol.name);
  }
  yylval = kept.value;
  return kept.token;
}

void ScannerForget() {
  lit_buffer = nullptr;
  lit_bufsiz = 0;
  lit_bufptr = 0;
  kept_tokens.clear();
}
