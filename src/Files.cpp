// Source files.  `filenames` is a stack: an include file is pushed on the file that includes it
// and read to its end, then the scanner goes on with the file below.  Every file gets a scanner
// buffer of its own, so nothing of the including file is lost.  `files` remembers all paths ever
// opened, for a file may be read only once in a run.

#include "Files.h"

#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "Alloc.h"
#include "Error.h"
#include "Listing.h"
#include "Options.h"
#include "Scanner.h"

List paths = nullptr;
List files = nullptr;
List filenames = nullptr;
int file_number = 0;

constexpr int kScannerBufferSize = 16384;
constexpr std::size_t kCopyBlock = 8192;

// Which file on disk a path has led to.
struct FileIdentity {
  dev_t device;
  ino_t inode;
};

// The streams of `filenames`, in the same order; whatever happens, they are closed once.
static std::vector<Stream> open_streams;
static std::vector<FileIdentity> sources;

// -- Helpers -----------------------------------------------------------------------------------

// Appends to the list, making it first where there is none.  False on exhaustion.
static bool FilesAppend(List *list, CompareProc compare, KeyProc keyproc, void *item) {
  if (*list == nullptr) {
    *list = ListCreate(compare, nullptr, keyproc);
  }
  const std::uint32_t before = ListLength(*list);
  ListAppendItem(*list, item);
  return ListLength(*list) != before;
}

// A new record of the tracked memory, or null.
template <typename T> static T *FilesNew() {
  void *memory = _MAlloc(sizeof(T));
  return memory == nullptr ? nullptr : new (memory) T{};
}

[[noreturn]] static void FilesExhausted() {
  FatalErrorMessage("FilesOpen: Memory allocation failure", 1);
}

static const void *FileNameKey(void *item) { return static_cast<const FileName *>(item)->name; }

static FileInfo *FilesTop() { return static_cast<FileInfo *>(ListGetLast(filenames)); }

static bool SameFile(const FileIdentity &identity, const struct stat &status) {
  return identity.device == status.st_dev && identity.inode == status.st_ino;
}

// -- Include directories -----------------------------------------------------------------------

void FilesAddPath(const char *path) {
  auto *directory = FilesNew<Kivu_IncludePath>();
  char *copy = SafeStrdup(path);
  if (directory == nullptr || copy == nullptr) {
    FatalErrorMessage("FilesAddPath: Memory allocation error", 1);
  }
  directory->kind = 0;
  directory->path = copy;
  if (!FilesAppend(&paths, nullptr, nullptr, directory)) {
    FatalErrorMessage("FilesAddPath: Memory allocation error", 1);
  }
}

// -- Opening -----------------------------------------------------------------------------------

// Opens a file for reading.  A directory, which the system would open, is none.
static Stream FilesTry(const std::string &path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0 || S_ISDIR(status.st_mode)) {
    return nullptr;
  }
  return Stream(std::fopen(path.c_str(), "r"));
}

// Opens the file as named, and an include else in the first directory that has it.  `path` becomes
// the path that led to it.
static Stream FilesSearch(const char *name, bool is_include, std::string *path) {
  *path = name;
  Stream stream = FilesTry(*path);
  if (!is_include) {
    return stream;
  }
  for (const ListItem *node = ListFirstNode(paths); node != nullptr && stream == nullptr;
       node = node->next) {
    *path = static_cast<const Kivu_IncludePath *>(node->data)->path;
    *path += '/';
    *path += name;
    stream = FilesTry(*path);
  }
  return stream;
}

// Remembers which file it is.  A source that is being written as the listing would read itself.
static void FilesIdentify(std::FILE *stream, bool is_include) {
  struct stat status {};
  if (fstat(fileno(stream), &status) != 0) {
    return;
  }
  sources.push_back({status.st_dev, status.st_ino});
  struct stat output {};
  if (is_include && listing_fp != nullptr && fileno(listing_fp) >= 0 &&
      fstat(fileno(listing_fp), &output) == 0 && SameFile(sources.back(), output)) {
    FatalErrorFormat("Output file %s is also an input", listing_filename.value_or("").c_str());
  }
}

// Enters the path among the files of the run.
static FileName *FilesRecord(const std::string &path) {
  auto *file = FilesNew<FileName>();
  char *copy = SafeStrdup(path.c_str());
  if (file == nullptr || copy == nullptr) {
    FilesExhausted();
  }
  file->nfile = static_cast<int>(ListLength(files)) + 1;
  file->name = copy;
  if (!FilesAppend(&files, ListCompareCaseSensitive, FileNameKey, file)) {
    FilesExhausted();
  }
  return file;
}

// The scanner's buffer on that stream, current from now on.
static yy_buffer_state *FilesSwitchTo(std::FILE *stream) {
  try {
    yy_buffer_state *buffer = yy_create_buffer(stream, kScannerBufferSize);
    yy_switch_to_buffer(buffer);
    return buffer;
  } catch (const ScannerFailure &) {
    FatalErrorMessage("FilesOpen: Cannot create flex buffer.", 1);
  }
}

// Puts the file on the stack and in front of the scanner.
static void FilesPush(const FileName &file, Stream stream, int lineno) {
  auto *info = FilesNew<FileInfo>();
  if (info == nullptr) {
    FilesExhausted();
  }
  *info = {file.nfile, file.name, stream.get(), lineno, nullptr};
  open_streams.push_back(std::move(stream));
  if (!FilesAppend(&filenames, nullptr, nullptr, info)) {
    FilesExhausted();
  }
  info->buffer = FilesSwitchTo(info->fp);
  file_number = info->nfile;
}

std::FILE *FilesOpen(const char *name, bool is_include) {
  std::string path;
  Stream stream = FilesSearch(name, is_include, &path);
  if (stream == nullptr) {
    return nullptr;
  }
  if (ListFindFirst(files, path.c_str()) != nullptr) {
    FatalErrorMessage("FilesOpen: File already included", 1);
  }
  FilesIdentify(stream.get(), is_include);
  FilesPush(*FilesRecord(path), std::move(stream), is_include ? yylineno : 0);
  yylineno = 1;
  return FilesTop()->fp;
}

// -- Reading and closing -----------------------------------------------------------------------

std::size_t FilesRead(char *buffer, std::size_t size) {
  const FileInfo *file = FilesTop();
  if (file == nullptr) {
    return 0;
  }
  const std::size_t count = std::fread(buffer, 1, size, file->fp);
  if (count < size && std::ferror(file->fp) != 0) {
    FatalErrorFormat("Error reading file \"%s\"", file->name);
  }
  return count;
}

int FilesClose() {
  if (FilesDepth() < 2) {
    return 0;
  }
  FileInfo *ended = FilesTop();
  yylineno = ended->lineno;
  yy_delete_buffer(ended->buffer);
  ListDeleteItem(filenames, ended);
  open_streams.pop_back();
  file_number = FilesTop()->nfile;
  yy_switch_to_buffer(FilesTop()->buffer);
  return 1;
}

int FilesDepth() { return static_cast<int>(ListLength(filenames)); }

const char *FilesCurrentFile() {
  const auto *file = static_cast<const FileName *>(ListGetLast(files));
  return file == nullptr ? "" : file->name;
}

bool FilesIsSource(const char *path) {
  struct stat status {};
  return stat(path, &status) == 0 &&
         std::any_of(sources.begin(), sources.end(),
                     [&status](const FileIdentity &source) { return SameFile(source, status); });
}

// -- Copying -----------------------------------------------------------------------------------

bool FilesCopyBlocks(std::FILE *from, std::FILE *to) {
  std::array<char, kCopyBlock> block{};
  std::size_t count = 0;
  while ((count = std::fread(block.data(), 1, block.size(), from)) > 0) {
    if (std::fwrite(block.data(), 1, count, to) != count) {
      return false;
    }
  }
  return true;
}

int FilesCopyFile(const char *from, const char *to) {
  const Stream source(std::fopen(from, "r"));
  if (source == nullptr) {
    ErrorFormat(kImmediate, "Cannot open file \"%s\" for reading", from);
    return 0;
  }
  Stream target(std::fopen(to, "w"));
  if (target == nullptr) {
    ErrorFormat(kImmediate, "Cannot open file \"%s\" for writing", to);
    return 0;
  }
  const bool written = FilesCopyBlocks(source.get(), target.get());
  if (written && std::ferror(source.get()) != 0) {
    ErrorFormat(kImmediate, "Error reading file \"%s\"", from);
    return 0;
  }
  if (!written || std::fclose(target.release()) != 0) {
    ErrorFormat(kImmediate, "Error writing file \"%s\"", to);
    return 0;
  }
  return 1;
}

void FilesReset() {
  open_streams.clear();
  sources.clear();
  paths = nullptr;
  files = nullptr;
  filenames = nullptr;
  file_number = 0;
}
