// The allocator: malloc with a small header in front of each block, by which all live blocks form a
// doubly linked ring.  Taking a block out of the ring needs no search, and giving everything back
// at the end of a translation is one walk.

#include "Alloc.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "Ascii.h"

namespace {

// Stands in front of the caller's bytes, which keep malloc's alignment.
struct alignas(std::max_align_t) BlockHeader {
  BlockHeader *next;
  BlockHeader *previous;
};

static_assert(sizeof(BlockHeader) % alignof(std::max_align_t) == 0);

BlockHeader ring = {&ring, &ring};
long allocations_left = -1; // before each one fails; -1 = without end

} // namespace

static bool AllocMayProceed() {
  if (allocations_left < 0) {
    return true;
  }
  if (allocations_left == 0) {
    return false;
  }
  --allocations_left;
  return true;
}

static BlockHeader *AllocHeaderOf(void *ptr) { return static_cast<BlockHeader *>(ptr) - 1; }

static bool AllocFits(std::size_t size) { return size <= SIZE_MAX - sizeof(BlockHeader); }

// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

void *_MAlloc(std::size_t size) {
  if (!AllocMayProceed() || !AllocFits(size)) {
    return nullptr;
  }
  auto *block = static_cast<BlockHeader *>(std::malloc(sizeof(BlockHeader) + size));
  if (block == nullptr) {
    return nullptr;
  }
  block->next = &ring;
  block->previous = ring.previous;
  ring.previous->next = block;
  ring.previous = block;
  return block + 1;
}

void _MFree(void *ptr) {
  if (ptr == nullptr) {
    return;
  }
  BlockHeader *block = AllocHeaderOf(ptr);
  block->previous->next = block->next;
  block->next->previous = block->previous;
  std::free(block);
}

void *_MReAlloc(void *ptr, std::size_t size) {
  if (ptr == nullptr) {
    return _MAlloc(size);
  }
  if (!AllocMayProceed() || !AllocFits(size)) {
    return nullptr;
  }
  void *moved = std::realloc(AllocHeaderOf(ptr), sizeof(BlockHeader) + size);
  if (moved == nullptr) {
    return nullptr;
  }
  auto *block = static_cast<BlockHeader *>(moved);
  block->previous->next = block;
  block->next->previous = block;
  return block + 1;
}

// The smallest number of the form 16k + 12 that is not below `size`, so that the block and a
// four-byte header of an allocator fill whole units of 16 bytes.  0 when there is none.
static std::size_t SmartNeed(std::size_t size) {
  if (size > SIZE_MAX - 19) {
    return 0;
  }
  return (size + 19) / 16 * 16 - 4;
}

void *_SmartMalloc(std::size_t size, std::size_t *actual) {
  const std::size_t need = SmartNeed(size);
  void *block = need == 0 ? nullptr : _MAlloc(need);
  if (block != nullptr) {
    *actual = need;
  }
  return block;
}

void *_SmartRealloc(void *ptr, std::size_t size, std::size_t *actual) {
  if (ptr == nullptr) {
    return _SmartMalloc(size, actual);
  }
  const std::size_t need = SmartNeed(size);
  void *block = need <= *actual ? nullptr : _MReAlloc(ptr, need);
  if (block == nullptr) {
    return ptr;
  }
  *actual = need;
  return block;
}

// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

int SafeStrcmp(const char *s1, const char *s2, int case_sensitive) {
  if (s1 == nullptr) {
    return s2 == nullptr ? 0 : -1;
  }
  if (s2 == nullptr) {
    return 1;
  }
  return case_sensitive != 0 ? std::strcmp(s1, s2) : AsciiCompareNoCase(s1, s2);
}

char *SafeStrcpy(char *s1, const char *s2, std::size_t size) {
  if (s1 == nullptr || s2 == nullptr || size == 0) {
    return s1;
  }
  const std::size_t length = std::min(std::strlen(s2), size - 1);
  std::memmove(s1, s2, length);
  s1[length] = '\0';
  return s1;
}

char *SafeStrdup(const char *str) {
  if (str == nullptr) {
    return nullptr;
  }
  const std::size_t size = std::strlen(str) + 1;
  auto *copy = static_cast<char *>(_MAlloc(size));
  return copy == nullptr ? nullptr : SafeStrcpy(copy, str, size);
}

void AllocReset() {
  BlockHeader *next = nullptr;
  for (BlockHeader *block = ring.next; block != &ring; block = next) {
    next = block->next;
    std::free(block);
  }
  ring = {&ring, &ring};
}

std::size_t AllocLiveBlocks() {
  std::size_t count = 0;
  for (const BlockHeader *block = ring.next; block != &ring; block = block->next) {
    ++count;
  }
  return count;
}

void AllocFailAfter(long n) { allocations_left = n; }
