#ifndef KIVUXL_LISTING_H
#define KIVUXL_LISTING_H

// The listing: the source as it was read, line by line, with the diagnostics attached to each.
// After parsing it serves twice: for the grouped report on standard error, and for the paginated
// listing file.

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <string>

#include "List.h"

// One source line.
struct ListingLine {
  int file_number;       // number of the source file, 0 when no file is open
  int line_number;       // line number in that file
  const char *file_name; // shared with the file's record; "" when no file is open
  bool complete;         // the line's newline has been seen
  int maxlen;            // capacity of `text`
  int length;            // characters in `text`, without the newline
  char *text;            // the characters, closed by a zero byte
  List errors;           // of ErrorRec, null without diagnostics
};

extern List listing;              // the lines in reading order
extern bool listing_keeps_lines;  // false: a line that is read, without diagnostics, is forgotten
extern std::FILE *listing_fp;     // the open listing file, or null
extern std::time_t run_date_time; // the time at start-up

// Appends `length` characters to the current line, opening a fresh one when there is none or the
// last is complete.  A closing newline completes the line and counts it in `yylineno`.
void PutListing(const char *text, int length);

// The line being read (never null).
ListingLine *ListingCurrentLine();

// The width of the printable rendering of `length` raw characters, without its quotes, and the
// rendering itself, in double quotes.
int EncodedLength(const char *text, int length);
std::string EncodePrintably(const char *text, int length);

// The key of a line: 11 bits of file number above 20 bits of line number.
int ListingMakeKey(int file, int line);

// The functions of `listing`.  A line is looked up by a line that has its file and line number.
const void *ListingKeyFunc(void *item);
int ListingCompareFunc(const void *key, const void *item_key);

// Prints all diagnostics on standard error, grouped under their lines, and writes the listing to
// `listing_fp` when that is open: a regular file is emptied first.  Returns the number of errors.
// Whoever closes the stream sees whether all of it was written.
int WriteListing();

// Pieces of the listing file.  `row_counter` counts the rows of source text on all pages.
void WriteHeader(std::FILE *stream, const char *module, int page);
void WriteLine(std::FILE *stream, const ListingLine *line, std::int64_t *row_counter,
               int *page_counter);
void WriteFooter(std::FILE *stream, const char *file_name, const char *version);

// Forgets the lines, and closes `listing_fp` if it is open.
void ListingReset();

#endif
