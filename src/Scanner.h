#ifndef KIVUXL_SCANNER_H
#define KIVUXL_SCANNER_H

// The scanner of src/lex.l: tokens, the literal buffer, and the semantic values of numbers and
// names.

#include <cstddef>
#include <cstdio>

#include "uiltoada.h"

struct yy_buffer_state;

extern YYSTYPE yylval;
extern int yylineno;      // current line number, kept by the listing
extern int yy_flex_debug; // trace the scanner on standard error

// A failure of the generated scanner itself, such as no memory for its buffers.
struct ScannerFailure {
  const char *message;
};

// The next token code, 0 at the end of all input; sets `yylval`.  A ScannerFailure ends the run
// with its message and status 2.
int yylex();

// The generated buffer functions that the include stack uses.  They throw ScannerFailure.
yy_buffer_state *yy_create_buffer(std::FILE *file, int size);
void yy_switch_to_buffer(yy_buffer_state *buffer);
void yy_delete_buffer(yy_buffer_state *buffer);

// The literal buffer, null between literals: always closed by a zero byte after the last stored
// character.  GetLiteral hands it over to the parser as the text of `yylval`.  No memory for it is
// fatal.
extern char *lit_buffer;
extern std::size_t lit_bufsiz;
extern int lit_bufptr;
void StartLiteral();
void NeedLiteral(int n);
void PutLiteralChar(char c);
void PutLiteralText(const char *text, int length);
void PutEscapeChar(const char *text);
void PutEscapeNum(const char *text);
int GetLiteral(int token);

// The semantic values of numbers and names; each returns its token.
int GetInteger(const char *text);
int GetFloat(const char *text);
int TextLiteral(const char *text);

// Keeps a token that was read ahead of an include file: the scanner delivers it after the file
// opened next has ended, looking a name up again then.  Called just before FilesOpen.
void ScannerKeepToken(int token, const YYSTYPE &value);

// True when a kept token is to come before anything else of the file being read.
bool ScannerTokenDue();

// The token that is due, its value in `yylval`; 0 when none is.
int ScannerDeliverToken();

// Forgets literals and kept tokens; the part of ScannerReset that is not generated.
void ScannerForget();

// Puts the scanner back to its start and frees its buffers, which come from Alloc.h: called before
// AllocReset.
void ScannerReset();

#endif
