#ifndef KIVUXL_ALLOC_H
#define KIVUXL_ALLOC_H

// The memory of the symbol model and its containers, and text helpers that take null.
//
// Nothing here prints or ends the program: exhaustion is a null result.  The allocator knows all
// its blocks, so that AllocReset can give back whatever one translation has left.  Blocks are
// aligned to 8 bytes, those whose size is a multiple of 16 to 16, and so for every type that they
// are made for; their contents are undefined until written.

#include <cstddef>
#include <cstdint>

// The fixed names of the allocator begin with an underscore and a capital.
// NOLINTBEGIN(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

// A new block of `size` bytes, 0 allowed; null when there is no memory.
void *_MAlloc(std::size_t size);

// Gives a block back.  Null is ignored.
void _MFree(void *ptr);

// The block with its size changed, perhaps at another place; a new block for null.  On exhaustion
// null, and the old block stays as it was.
void *_MReAlloc(void *ptr, std::size_t size);

// A new block of at least `size` bytes, rounded up to 16k + 12 bytes, which goes to `*actual`.
// On exhaustion null, and `*actual` keeps its value.
void *_SmartMalloc(std::size_t size, std::size_t *actual);

// Grows a block of _SmartMalloc to at least `size` bytes; it never shrinks.  Null begins a block.
// When no larger block is needed, and also on exhaustion, the old `ptr` comes back with `*actual`
// unchanged: a caller sees a failure by `*actual` being less than the size asked for.
void *_SmartRealloc(void *ptr, std::size_t size, std::size_t *actual);

// NOLINTEND(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)

// Orders two texts, null before any text: negative, 0 or positive (-1 and 1 where one is null).
// Letters fold in ASCII when `case_sensitive` is 0.
int SafeStrcmp(const char *s1, const char *s2, int case_sensitive);

// Copies the text `s2` to `s1`, at most `size` - 1 characters and the closing zero byte; nothing
// when either is null or `size` is 0.  Returns `s1`.
char *SafeStrcpy(char *s1, const char *s2, std::size_t size = SIZE_MAX);

// A copy from _MAlloc that belongs to the caller; null for null and on exhaustion.
char *SafeStrdup(const char *str);

// Gives back every block that is still live.
void AllocReset();

// The number of live blocks.  For tests.
std::size_t AllocLiveBlocks();

// How many allocations have failed so far.  By the difference one can tell a look-up that found
// nothing from one that had no memory for its key.
std::size_t AllocFailures();

// For tests of exhaustion: after `n` further allocations each one fails, or only the next; -1 ends
// that.  AllocReset leaves the setting alone.
void AllocFailAfter(long n);
void AllocFailOnce(long n);

#endif
