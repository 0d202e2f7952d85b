// Tests of the allocator and the text helpers.

#include "Alloc.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

class Alloc : public testing::Test {
protected:
  void SetUp() override { AllocReset(); }
  void TearDown() override {
    AllocFailAfter(-1);
    AllocReset();
    EXPECT_EQ(AllocLiveBlocks(), 0U);
  }
};

void Fill(void *block, std::size_t size, int value) { std::memset(block, value, size); }

bool IsFilled(const void *block, std::size_t size, int value) {
  const auto *bytes = static_cast<const unsigned char *>(block);
  for (std::size_t i = 0; i < size; ++i) {
    if (bytes[i] != static_cast<unsigned char>(value)) {
      return false;
    }
  }
  return true;
}

} // namespace

TEST_F(Alloc, BlocksAreAlignedForEveryType) {
  for (std::size_t size = 0; size < 100; ++size) {
    void *block = _MAlloc(size);
    ASSERT_NE(block, nullptr);
    const std::size_t alignment = size % 16 == 0 ? 16 : 8; // as any type of that size needs
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block) % alignment, 0U) << size;
    Fill(block, size, 0xa5);
  }
  EXPECT_EQ(AllocLiveBlocks(), 100U);
}

#if defined(__SANITIZE_ADDRESS__)
constexpr std::size_t kApart = 16;
#else
constexpr std::size_t kApart = 0;
#endif

// At 100,000 widgets what stands between them would be many times their own size.
TEST_F(Alloc, BlocksOfUpToAKilobyteStandSideBySide) {
  for (const std::size_t size : {1U, 8U, 9U, 72U, 1000U, 1023U, 1024U}) {
    AllocReset();
    const auto first = reinterpret_cast<std::uintptr_t>(_MAlloc(size));
    const auto second = reinterpret_cast<std::uintptr_t>(_MAlloc(size));
    EXPECT_EQ(second - first, (size + 7) / 8 * 8 + kApart) << size;
  }
}

// A page of 32 KiB less its header and what malloc wants, down to the last byte.
TEST_F(Alloc, PageIsUsedToItsEnd) {
  constexpr std::size_t kRoom = 32768 - 64 - 16;
  for (const std::size_t size : {8U, 16U, 48U}) {
    AllocReset();
    const std::size_t step = size + kApart;
    const auto first = reinterpret_cast<std::uintptr_t>(_MAlloc(size));
    for (std::size_t i = 1; i < kRoom / step; ++i) {
      ASSERT_EQ(reinterpret_cast<std::uintptr_t>(_MAlloc(size)) - first, i * step) << size;
    }
    EXPECT_NE(reinterpret_cast<std::uintptr_t>(_MAlloc(size)) - first, kRoom / step * step) << size;
  }
}

TEST_F(Alloc, FreeTakesBlocksInAnyOrder) {
  void *first = _MAlloc(10);
  void *second = _MAlloc(20);
  void *third = _MAlloc(30);
  EXPECT_EQ(AllocLiveBlocks(), 3U);
  _MFree(second);
  EXPECT_EQ(AllocLiveBlocks(), 2U);
  _MFree(first);
  _MFree(third);
  EXPECT_EQ(AllocLiveBlocks(), 0U);
}

TEST_F(Alloc, FreeIgnoresNull) {
  void *block = _MAlloc(1);
  ASSERT_NE(block, nullptr);
  _MFree(nullptr);
  EXPECT_EQ(AllocLiveBlocks(), 1U);
}

TEST_F(Alloc, ReallocKeepsTheContentsAndTheOtherBlocks) {
  void *before = _MAlloc(8);
  void *block = _MAlloc(8);
  void *after = _MAlloc(8);
  Fill(block, 8, 7);
  block = _MReAlloc(block, 1000000);
  ASSERT_NE(block, nullptr);
  EXPECT_TRUE(IsFilled(block, 8, 7));
  Fill(block, 1000000, 9);
  block = _MReAlloc(block, 4);
  ASSERT_NE(block, nullptr);
  EXPECT_TRUE(IsFilled(block, 4, 9));
  EXPECT_EQ(AllocLiveBlocks(), 3U);
  _MFree(before);
  _MFree(after);
  EXPECT_EQ(AllocLiveBlocks(), 1U);
  _MFree(block);
  EXPECT_EQ(AllocLiveBlocks(), 0U);
}

TEST_F(Alloc, ReallocOfNullAllocates) {
  void *block = _MReAlloc(nullptr, 12);
  ASSERT_NE(block, nullptr);
  Fill(block, 12, 1);
  EXPECT_EQ(AllocLiveBlocks(), 1U);
}

TEST_F(Alloc, ReallocToNothingKeepsALiveBlock) {
  void *block = _MReAlloc(_MAlloc(5), 0);
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(AllocLiveBlocks(), 1U);
}

TEST_F(Alloc, SizesThatOverflowGiveNull) {
  EXPECT_EQ(_MAlloc(SIZE_MAX), nullptr);
  EXPECT_EQ(_MAlloc(SIZE_MAX - 15), nullptr);
  void *block = _MAlloc(4);
  Fill(block, 4, 3);
  EXPECT_EQ(_MReAlloc(block, SIZE_MAX), nullptr);
  EXPECT_TRUE(IsFilled(block, 4, 3));
  std::size_t actual = 77;
  EXPECT_EQ(_SmartMalloc(SIZE_MAX, &actual), nullptr);
  EXPECT_EQ(_SmartMalloc(SIZE_MAX - 18, &actual), nullptr);
  EXPECT_EQ(actual, 77U);
  EXPECT_EQ(AllocLiveBlocks(), 1U);
}

#ifndef __SANITIZE_ADDRESS__ // which ends the process at such a size
TEST_F(Alloc, SizesThatTheSystemRefusesGiveNull) {
  constexpr std::size_t kHalf = SIZE_MAX / 2;
  EXPECT_EQ(_MAlloc(kHalf), nullptr);
  void *block = _MAlloc(4);
  Fill(block, 4, 3);
  EXPECT_EQ(_MReAlloc(block, kHalf), nullptr);
  EXPECT_TRUE(IsFilled(block, 4, 3));
  EXPECT_EQ(AllocLiveBlocks(), 1U);
}
#endif

TEST_F(Alloc, SmartMallocRoundsUp) {
  constexpr std::pair<std::size_t, std::size_t> kSizes[] = {
      {0, 12},  {1, 12},  {11, 12}, {12, 12}, {13, 28},    {28, 28},
      {29, 44}, {44, 44}, {45, 60}, {60, 60}, {1000, 1004}};
  for (const auto &[size, need] : kSizes) {
    std::size_t actual = 0;
    void *block = _SmartMalloc(size, &actual);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(actual, need) << size;
    Fill(block, actual, 1);
  }
}

TEST_F(Alloc, SmartReallocOfNullBegins) {
  std::size_t actual = 1000;
  void *block = _SmartRealloc(nullptr, 13, &actual);
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(actual, 28U);
}

TEST_F(Alloc, SmartReallocNeverShrinks) {
  std::size_t actual = 0;
  void *block = _SmartMalloc(28, &actual);
  for (const std::size_t size : {28, 13, 12, 1, 0}) {
    EXPECT_EQ(_SmartRealloc(block, size, &actual), block);
    EXPECT_EQ(actual, 28U);
  }
}

TEST_F(Alloc, SmartReallocGrows) {
  std::size_t actual = 0;
  void *block = _SmartMalloc(28, &actual);
  Fill(block, actual, 5);
  block = _SmartRealloc(block, 29, &actual);
  EXPECT_EQ(actual, 44U);
  EXPECT_TRUE(IsFilled(block, 28, 5));
  Fill(block, actual, 6);
  EXPECT_EQ(AllocLiveBlocks(), 1U);
}

TEST_F(Alloc, SmartReallocThatFailsGivesTheOldBlock) {
  std::size_t actual = 0;
  void *block = _SmartMalloc(5, &actual);
  Fill(block, actual, 5);
  AllocFailAfter(0);
  EXPECT_EQ(_SmartRealloc(block, 100, &actual), block);
  EXPECT_EQ(actual, 12U);
  EXPECT_EQ(_SmartRealloc(nullptr, 100, &actual), nullptr);
  EXPECT_EQ(actual, 12U);
  AllocFailAfter(-1);
  EXPECT_EQ(_SmartRealloc(block, SIZE_MAX, &actual), block);
  EXPECT_EQ(actual, 12U);
  EXPECT_TRUE(IsFilled(block, 12, 5));
}

TEST_F(Alloc, FailAfterCountsEveryKindOfAllocation) {
  AllocFailAfter(4);
  std::size_t actual = 0;
  void *block = _MAlloc(1);
  EXPECT_NE(block, nullptr);
  EXPECT_NE(_MReAlloc(block, 100), nullptr);
  EXPECT_NE(_SmartMalloc(1, &actual), nullptr);
  EXPECT_NE(SafeStrdup("x"), nullptr);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(_MAlloc(1), nullptr);
    EXPECT_EQ(_MReAlloc(nullptr, 1), nullptr);
    EXPECT_EQ(_SmartMalloc(1, &actual), nullptr);
    EXPECT_EQ(SafeStrdup("x"), nullptr);
  }
  AllocFailAfter(-1);
  EXPECT_NE(_MAlloc(1), nullptr);
}

TEST_F(Alloc, FailOnceSparesWhatComesBehind) {
  AllocFailOnce(1);
  EXPECT_NE(_MAlloc(1), nullptr);
  EXPECT_EQ(_MAlloc(1), nullptr);
  for (int i = 0; i < 3; ++i) {
    EXPECT_NE(_MAlloc(1), nullptr);
  }
  AllocFailOnce(0);
  AllocFailAfter(-1);
  EXPECT_NE(_MAlloc(1), nullptr);
  AllocFailAfter(0);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(_MAlloc(1), nullptr);
  }
  AllocFailAfter(-1);
}

TEST_F(Alloc, FailuresAreCounted) {
  const std::size_t before = AllocFailures();
  void *block = _MAlloc(1);
  EXPECT_EQ(AllocFailures(), before);
  EXPECT_EQ(_MAlloc(SIZE_MAX), nullptr);
  EXPECT_EQ(_MReAlloc(block, SIZE_MAX), nullptr);
  AllocFailAfter(0);
  EXPECT_EQ(SafeStrdup("x"), nullptr);
  EXPECT_EQ(AllocFailures(), before + 3);
}

TEST_F(Alloc, ResetGivesEverythingBackAndCanBeRepeated) {
  AllocReset();
  for (int round = 0; round < 3; ++round) {
    for (int i = 0; i < 1000; ++i) {
      ASSERT_NE(_MAlloc(static_cast<std::size_t>(i)), nullptr);
    }
    EXPECT_EQ(AllocLiveBlocks(), 1000U);
    AllocReset();
    EXPECT_EQ(AllocLiveBlocks(), 0U);
  }
}

TEST_F(Alloc, RandomUseKeepsEveryBlockWhole) {
  struct Block {
    void *bytes;
    std::size_t size;
    int value;
  };
  std::vector<Block> blocks;
  std::mt19937 random(20240229);
  for (int step = 0; step < 20000; ++step) {
    const std::size_t size = random() % 300;
    const int value = static_cast<int>(random() % 256);
    const auto action = random() % 3;
    if (action == 0 || blocks.empty()) {
      blocks.push_back({_MAlloc(size), size, value});
      Fill(blocks.back().bytes, size, value);
      continue;
    }
    Block &block = blocks[random() % blocks.size()];
    ASSERT_TRUE(IsFilled(block.bytes, block.size, block.value));
    if (action == 1) {
      _MFree(block.bytes);
      block = blocks.back();
      blocks.pop_back();
    } else {
      block.bytes = _MReAlloc(block.bytes, size);
      ASSERT_TRUE(IsFilled(block.bytes, size < block.size ? size : block.size, block.value));
      block.size = size;
      block.value = value;
      Fill(block.bytes, size, value);
    }
  }
  EXPECT_EQ(AllocLiveBlocks(), blocks.size());
}

TEST(AllocText, StrcmpPutsNullFirst) {
  for (const int case_sensitive : {0, 1, -1}) {
    EXPECT_EQ(SafeStrcmp(nullptr, nullptr, case_sensitive), 0);
    EXPECT_EQ(SafeStrcmp(nullptr, "", case_sensitive), -1);
    EXPECT_EQ(SafeStrcmp(nullptr, "a", case_sensitive), -1);
    EXPECT_EQ(SafeStrcmp("", nullptr, case_sensitive), 1);
    EXPECT_EQ(SafeStrcmp("a", nullptr, case_sensitive), 1);
    EXPECT_EQ(SafeStrcmp("a", "a", case_sensitive), 0);
    EXPECT_LT(SafeStrcmp("a", "b", case_sensitive), 0);
    EXPECT_GT(SafeStrcmp("b", "a", case_sensitive), 0);
  }
}

TEST(AllocText, StrcmpFoldsOnlyWhenTold) {
  EXPECT_EQ(SafeStrcmp("Button1", "BUTTON1", 0), 0);
  EXPECT_NE(SafeStrcmp("Button1", "BUTTON1", 1), 0);
  EXPECT_NE(SafeStrcmp("Button1", "BUTTON1", -1), 0);
  EXPECT_LT(SafeStrcmp("B", "a", 1), 0);
  EXPECT_GT(SafeStrcmp("B", "a", 0), 0);
}

TEST(AllocText, StrcpyCopiesWhenBothAreThere) {
  std::array<char, 8> buffer = {'o', 'l', 'd', '\0', 'x', 'x', 'x', 'x'};
  EXPECT_EQ(SafeStrcpy(buffer.data(), "new one"), buffer.data());
  EXPECT_STREQ(buffer.data(), "new one");
  EXPECT_EQ(SafeStrcpy(buffer.data(), nullptr), buffer.data());
  EXPECT_STREQ(buffer.data(), "new one");
  EXPECT_EQ(SafeStrcpy(nullptr, "text"), nullptr);
  EXPECT_EQ(SafeStrcpy(buffer.data(), ""), buffer.data());
  EXPECT_STREQ(buffer.data(), "");
}

TEST(AllocText, StrcpyStaysInItsBounds) {
  std::array<char, 8> buffer = {'.', '.', '.', '.', '.', '.', '.', '.'};
  EXPECT_EQ(SafeStrcpy(buffer.data(), "abcdef", 4), buffer.data());
  EXPECT_EQ(std::memcmp(buffer.data(), "abc\0....", 8), 0);
  SafeStrcpy(buffer.data(), "xyz", 4);
  EXPECT_EQ(std::memcmp(buffer.data(), "xyz\0....", 8), 0);
  SafeStrcpy(buffer.data(), "q", 1);
  EXPECT_EQ(std::memcmp(buffer.data(), "\0yz\0....", 8), 0);
  SafeStrcpy(buffer.data(), "q", 0);
  EXPECT_EQ(std::memcmp(buffer.data(), "\0yz\0....", 8), 0);
}

TEST_F(Alloc, StrdupCopies) {
  EXPECT_EQ(SafeStrdup(nullptr), nullptr);
  const char *original = "a name";
  char *copy = SafeStrdup(original);
  EXPECT_STREQ(copy, "a name");
  EXPECT_NE(copy, original);
  EXPECT_STREQ(SafeStrdup(""), "");
  EXPECT_EQ(AllocLiveBlocks(), 2U);
}
