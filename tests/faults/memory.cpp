// A library to be preloaded into the program under test, in which chosen allocations fail: the
// program's own, the C++ library's and the C library's.
//
// KIVUXL_MEMORY holds two numbers, "<first>,<last>": the allocations first to last, counted from 1,
// fail.  KIVUXL_FAULTS_REPORT names a file that gets an "F" when the first one fails, and at the
// end of a run that ends by itself the number of allocations.

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <cstdio>

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
}

static bool counting = false;
static unsigned long first = 0;
static unsigned long last = 0;
static unsigned long calls = 0;
static int report = -1;

// Counts an allocation; true when it is to fail.
static bool Fails() {
  if (!counting) {
    return false;
  }
  ++calls;
  if (calls < first || calls > last) {
    return false;
  }
  if (calls == first) {
    static_cast<void>(!write(report, "F", 1));
  }
  errno = ENOMEM;
  return true;
}

extern "C" void *malloc(std::size_t size) { return Fails() ? nullptr : __libc_malloc(size); }

extern "C" void *calloc(std::size_t count, std::size_t size) {
  return Fails() ? nullptr : __libc_calloc(count, size);
}

extern "C" void *realloc(void *block, std::size_t size) {
  return Fails() ? nullptr : __libc_realloc(block, size);
}

extern "C" int posix_memalign(void **block, std::size_t alignment, std::size_t size) {
  *block = Fails() ? nullptr : __libc_memalign(alignment, size);
  return *block == nullptr ? ENOMEM : 0;
}

__attribute__((constructor)) static void Start() {
  constexpr int kOutOfTheWay = 100; // the program's own descriptors stay what they are
  const char *text = getenv("KIVUXL_MEMORY");
  const char *name = getenv("KIVUXL_FAULTS_REPORT");
  if (text == nullptr || name == nullptr) {
    return;
  }
  char *end = nullptr;
  first = strtoul(text, &end, 10);
  last = *end == ',' ? strtoul(end + 1, nullptr, 10) : first;
  const int descriptor = open(name, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  report = fcntl(descriptor, F_DUPFD_CLOEXEC, kOutOfTheWay);
  close(descriptor);
  counting = true;
}

__attribute__((destructor)) static void Finish() {
  char text[32];
  if (counting) {
    counting = false;
    const int length = snprintf(text, sizeof text, "%lu\n", calls);
    static_cast<void>(!write(report, text, static_cast<std::size_t>(length)));
  }
}
