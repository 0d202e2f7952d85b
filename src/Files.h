#ifndef KIVUXL_FILES_H
#define KIVUXL_FILES_H

// Source files: the include path, the stack of open files with their scanner buffers and saved
// line numbers, and the reading itself.

#include <cstddef>
#include <cstdio>
#include <memory>

#include "List.h"
#include "uiltoada.h"

struct yy_buffer_state;

// An open file that closes itself.  What the closing says is lost: a file that has been written is
// closed by hand.
struct FileCloser {
  void operator()(std::FILE *file) const { std::fclose(file); }
};
using Stream = std::unique_ptr<std::FILE, FileCloser>;

// One include directory.
struct Kivu_IncludePath : KindRec {
  const char *path;
};

// One file ever opened in this run.
struct FileName {
  int nfile;        // 1 for the first file
  const char *name; // the path as opened
};

// One entry of the include stack.
struct FileInfo {
  int nfile;
  const char *name;
  std::FILE *fp;
  int lineno;              // the including file's line number, restored when this file ends
  yy_buffer_state *buffer; // the scanner's input buffer for this file
};

extern List paths;      // of Kivu_IncludePath, in search order
extern List files;      // of FileName, in the order opened
extern List filenames;  // of FileInfo; the last entry is the file being read
extern int file_number; // number of the file being read

// Appends a copy of `path` to the include directories.
void FilesAddPath(const char *path);

// Opens a source file and makes it the scanner's input; an include is searched along `paths`.
// Returns the open stream (owned by the stack), or null when the file cannot be opened.
std::FILE *FilesOpen(const char *name, bool is_include);

// Ends the current include file.  Returns 1 when the scanner is to go on with the including file,
// 0 when the current file is the main file.
int FilesClose();

// How many files are open: 1 while the main file is read.
int FilesDepth();

// The name of the most recently opened file, "" before the first.
const char *FilesCurrentFile();

// Reads up to `size` characters of the file being read; 0 at its end.  A read error is fatal.
std::size_t FilesRead(char *buffer, std::size_t size);

// True when `path` is the same file (device and inode) as a source opened in this run.
bool FilesIsSource(const char *path);

// Copies what is left of `from`.  False when it could not all be written; whether it could all be
// read is for the caller to ask of `from`.
bool FilesCopyBlocks(std::FILE *from, std::FILE *to);

// Copies a file's bytes.  Returns 1, or 0 after an immediate message.
int FilesCopyFile(const char *from, const char *to);

void FilesReset();

#endif
