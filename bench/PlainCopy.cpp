// The yardstick of bench/table: reads a file and writes as many bytes as asked into as many files,
// and does nothing else.
//
//   plain_copy input directory bytes...
//
// For each number of bytes a file of that size is written into the directory, filled with the first
// 64 KiB of the input over and over.

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

static std::vector<char> ReadWhole(const char *path) {
  std::vector<char> bytes;
  std::FILE *file = std::fopen(path, "r");
  if (file == nullptr || std::fseek(file, 0, SEEK_END) != 0) {
    return bytes;
  }
  bytes.resize(static_cast<std::size_t>(std::max(std::ftell(file), 0L)));
  std::rewind(file);
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
  std::fclose(file);
  return bytes;
}

static bool WriteBytes(const std::string &path, const std::vector<char> &input, std::size_t count) {
  std::FILE *file = std::fopen(path.c_str(), "w");
  if (file == nullptr) {
    return false;
  }
  bool written = true;
  while (written && count > 0) {
    const std::size_t part = std::min({count, input.size(), std::size_t{65536}});
    written = std::fwrite(input.data(), 1, part, file) == part;
    count -= part;
  }
  return (std::fclose(file) == 0) && written;
}

int main(int argc, char **argv) {
  if (argc < 3) {
    std::fputs("usage: plain_copy input directory bytes...\n", stderr);
    return 2;
  }
  const std::vector<char> input = ReadWhole(argv[1]);
  if (input.empty()) {
    std::perror(argv[1]);
    return 1;
  }
  for (int i = 3; i < argc; ++i) {
    const std::string path = std::string(argv[2]) + "/" + std::to_string(i);
    if (!WriteBytes(path, input, std::strtoull(argv[i], nullptr, 10))) {
      std::perror(path.c_str());
      return 1;
    }
  }
  return 0;
}
