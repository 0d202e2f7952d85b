// The hash table in the places where a slip is easy.

#include "Alloc.h"
#include "Hash.h"
#include <climits>
#include <cstring>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

SimpleObjectRec Named(const char *name) {
  SimpleObjectRec record{};
  record.kind = 1;
  record.key = name;
  return record;
}

std::string destroyed;
void Destroy(void *entry) { destroyed += static_cast<SimpleObjectRec *>(entry)->key; }
std::string other_destroyed;
void OtherDestroy(void *entry) { other_destroyed += static_cast<SimpleObjectRec *>(entry)->key; }
// Only the first character counts; no key without one.
char *FirstCharacterKey(const void *entry) {
  const char *key = static_cast<const SimpleObjectRec *>(entry)->key;
  if (key == nullptr || *key == '\0') {
    return nullptr;
  }
  auto *copy = static_cast<char *>(_MAlloc(2));
  copy[0] = key[0];
  copy[1] = '\0';
  return copy;
}

std::string compared;
int RecordingCompare(const char *left, const char *right) {
  compared += std::string(left) + "?" + right + " ";
  return std::strcmp(left, right);
}

int AlwaysEqual(const char *, const char *) { return 0; }
} // namespace

TEST(HashDetail, BucketCountsAtTheLimits) {
  const unsigned wanted[] = {0, 1, 30, 31, 32, 32766, 32767, 32768, UINT_MAX};
  const unsigned given[] = {511, 31, 31, 31, 32, 32766, 32767, 32767, 32767};
  for (int i = 0; i < 9; i++) {
    HashTable table = HashCreate(wanted[i], nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(given[i], table->modulus) << wanted[i];
    HashDestroy(table, false);
  }
}

TEST(HashDetail, OddChunkComesFirstAndHighBytesSpread) {
  EXPECT_EQ(0U, SimpleHashFunc(""));
  EXPECT_EQ(0x414243U ^ 0x44454647U, SimpleHashFunc("ABCDEFG"));
  EXPECT_EQ(0x41424344U ^ 0x45464748U, SimpleHashFunc("ABCDEFGH"));
  EXPECT_EQ(0U, SimpleHashFunc("ABCDABCD"));
  EXPECT_EQ(0xFFFFFFE9U, SimpleHashFunc("A\xE9"));
  EXPECT_EQ(0xFFFFE941U, SimpleHashFunc("\xE9"
                                        "A"));
  EXPECT_EQ(0xFEFDFC84U, SimpleHashFunc("\x80\x01\x02\x03\x04"));
}

TEST(HashDetail, ChainHoldsTheNewestFirst) {
  HashTable table = HashCreate(5, nullptr, nullptr, nullptr, nullptr);
  SimpleObjectRec a = Named("A"), b = Named("\""), c = Named("`"), d = Named("B");
  EXPECT_TRUE(HashAdd(table, &a));
  EXPECT_TRUE(HashAdd(table, &b));
  EXPECT_TRUE(HashAdd(table, &c));
  EXPECT_TRUE(HashAdd(table, &d));
  const HashHeaderRec &bucket = table->entries[3];
  ASSERT_EQ(3U, bucket.count);
  EXPECT_EQ(&c, bucket.first->entry);
  EXPECT_EQ(&b, bucket.first->next->entry);
  EXPECT_EQ(&a, bucket.first->next->next->entry);
  EXPECT_EQ(nullptr, bucket.first->next->next->next);
  EXPECT_EQ(4U, table->nentries);
  EXPECT_EQ(3U, table->ncollide);
  HashDestroy(table, false);
}

TEST(HashDetail, ReviseReversesAChainAndKeepsTheBucketCount) {
  HashTable table = HashCreate(31, nullptr, nullptr, nullptr, nullptr);
  SimpleObjectRec a = Named("A"), b = Named("\""), c = Named("`");
  HashAdd(table, &a);
  HashAdd(table, &b);
  HashAdd(table, &c);
  ASSERT_TRUE(HashRevise(table, 0, nullptr, nullptr, nullptr, nullptr));
  EXPECT_EQ(31U, table->modulus);
  EXPECT_EQ(3U, table->nentries);
  EXPECT_EQ(3U, table->ncollide);
  EXPECT_EQ(&a, table->entries[3].first->entry);
  EXPECT_EQ(&c, table->entries[3].first->next->next->entry);
  EXPECT_EQ(&b, HashFind(table, "\""));
  HashDestroy(table, false);
}

TEST(HashDetail, FailedReviseLeavesEverythingAsItWas) {
  HashTable table = HashCreate(40, nullptr, nullptr, nullptr, Destroy);
  SimpleObjectRec a = Named("ab"), b = Named("aB");
  HashAdd(table, &a);
  HashAdd(table, &b);
  destroyed.clear();
  EXPECT_FALSE(HashRevise(table, 100, CaseInsensitiveKeyFunc, nullptr, CaseInsensitiveCompareFunc,
                          OtherDestroy));
  EXPECT_EQ("", destroyed);
  EXPECT_EQ(40U, table->modulus);
  EXPECT_EQ(2U, table->nentries);
  EXPECT_TRUE(table->key_func == CaseSensitiveKeyFunc);
  EXPECT_TRUE(table->compare_func == CaseSensitiveCompareFunc);
  EXPECT_TRUE(table->destroy_func == Destroy);
  EXPECT_EQ(&a, HashFind(table, "ab"));
  EXPECT_EQ(&b, HashFind(table, "aB"));
  EXPECT_EQ(nullptr, HashFind(table, "AB"));
  HashDestroy(table, false);
}

TEST(HashDetail, RevisedTableFoldsAndHasTheNewDestroyFunction) {
  HashTable table = HashCreate(31, nullptr, nullptr, nullptr, Destroy);
  HashTable before = table;
  SimpleObjectRec a = Named("b"), b = Named("A");
  HashAdd(table, &a);
  HashAdd(table, &b);
  destroyed.clear();
  other_destroyed.clear();
  ASSERT_TRUE(HashRevise(table, 77, CaseInsensitiveKeyFunc, nullptr, CaseInsensitiveCompareFunc,
                         OtherDestroy));
  EXPECT_EQ(before, table);
  EXPECT_EQ(77U, table->modulus);
  EXPECT_STREQ("B", table->entries[0x42].first->key);
  EXPECT_EQ(&a, HashFind(table, "B"));
  EXPECT_EQ(&b, HashFind(table, "a"));
  SimpleObjectRec c = Named("a");
  EXPECT_FALSE(HashAdd(table, &c));
  HashDestroy(table, true);
  EXPECT_EQ("", destroyed);
  EXPECT_EQ("Ab", other_destroyed); // buckets 0x41, 0x42
}

TEST(HashDetail, DestroyGoesByBucketsThenByNewest) {
  HashTable table = HashCreate(31, nullptr, nullptr, nullptr, Destroy);
  SimpleObjectRec a = Named("A"), b = Named("B"), c = Named("`"), d = Named("@");
  HashAdd(table, &b); // bucket 4
  HashAdd(table, &a); // bucket 3
  HashAdd(table, &c); // bucket 3
  HashAdd(table, &d); // bucket 2
  destroyed.clear();
  HashDestroy(table, true);
  EXPECT_EQ("@`AB", destroyed);
}

TEST(HashDetail, KeyIsACopy) {
  HashTable table = HashCreate(0, nullptr, nullptr, nullptr, nullptr);
  char name[] = "first";
  SimpleObjectRec a = Named(name);
  HashAdd(table, &a);
  std::strcpy(name, "other");
  EXPECT_EQ(&a, HashFind(table, "first"));
  EXPECT_EQ(nullptr, HashFind(table, "other"));
  EXPECT_TRUE(HashAdd(table, &a)); // under its new name
  EXPECT_EQ(2U, table->nentries);
  HashDestroy(table, false);
}

TEST(HashDetail, ProbeKeyGoesThroughTheKeyFunction) {
  HashTable table = HashCreate(0, FirstCharacterKey, nullptr, nullptr, nullptr);
  SimpleObjectRec a = Named("abc"), b = Named("axyz"), c = Named(""), d = Named(nullptr);
  EXPECT_TRUE(HashAdd(table, &a));
  EXPECT_FALSE(HashAdd(table, &b));
  EXPECT_FALSE(HashAdd(table, &c));
  EXPECT_FALSE(HashAdd(table, &d));
  EXPECT_EQ(&a, HashFind(table, "anything"));
  EXPECT_EQ(nullptr, HashFind(table, ""));
  EXPECT_EQ(1U, table->nentries);
  HashDestroy(table, false);
}

TEST(HashDetail, CompareIsCalledNewestFirstWithTheNewKeyAtTheLeft) {
  HashTable table = HashCreate(31, nullptr, nullptr, RecordingCompare, nullptr);
  SimpleObjectRec a = Named("A"), b = Named("\""), c = Named("`"), d = Named("B");
  HashAdd(table, &a);
  HashAdd(table, &b);
  HashAdd(table, &d); // another chain
  compared.clear();
  HashAdd(table, &c);
  EXPECT_EQ("`?\" `?A ", compared);
  compared.clear();
  EXPECT_EQ(&b, HashFind(table, "\""));
  EXPECT_EQ("\"?` \"?\" ", compared);
  HashDestroy(table, false);
}

TEST(HashDetail, OnlyOneChainIsSearched) {
  HashTable table = HashCreate(31, nullptr, nullptr, AlwaysEqual, nullptr);
  SimpleObjectRec a = Named("A"), b = Named("B"), c = Named("`");
  EXPECT_TRUE(HashAdd(table, &a));
  EXPECT_TRUE(HashAdd(table, &b));
  EXPECT_FALSE(HashAdd(table, &c)); // the bucket of A
  EXPECT_EQ(&a, HashFind(table, "`"));
  EXPECT_EQ(nullptr, HashFind(table, "C"));
  EXPECT_EQ(0U, table->ncollide);
  HashDestroy(table, false);
}

TEST(HashDetail, EmptyTextIsAName) {
  HashTable table = HashCreate(0, nullptr, nullptr, nullptr, nullptr);
  SimpleObjectRec a = Named(""), b = Named("ABCDABCD");
  EXPECT_TRUE(HashAdd(table, &a));
  EXPECT_FALSE(HashAdd(table, &a));
  EXPECT_TRUE(HashAdd(table, &b));
  EXPECT_EQ(2U, table->entries[0].count);
  EXPECT_EQ(1U, table->ncollide);
  EXPECT_EQ(&a, HashFind(table, ""));
  EXPECT_FALSE(HashAdd(nullptr, &a));
  EXPECT_FALSE(HashAdd(table, nullptr));
  EXPECT_EQ(nullptr, HashFind(nullptr, ""));
  HashDestroy(table, false);
}

static std::uint32_t Const(const char *) { return 5; }

// The index is fast only while names that differ little lie apart.
TEST(HashDetail, EveryByteOfATextCounts) {
  for (std::size_t length = 1; length <= 25; ++length) {
    const std::string text(length, 'm');
    for (std::size_t place = 0; place < length; ++place) {
      std::string other = text;
      other[place] = 'n';
      EXPECT_NE(HashText(text.c_str(), false), HashText(other.c_str(), false)) << other;
      EXPECT_NE(HashText(text.c_str(), true), HashText(other.c_str(), true)) << other;
      other[place] = 'M';
      EXPECT_NE(HashText(text.c_str(), false), HashText(other.c_str(), false)) << other;
      EXPECT_EQ(HashText(text.c_str(), true), HashText(other.c_str(), true)) << other;
    }
  }
}

TEST(HashDetail, AnotherHashFunctionLooksInItsOwnChain) {
  SimpleObjectRec first = Named("abc");
  SimpleObjectRec second = Named("abc");
  HashTable table = HashCreate(0, nullptr, nullptr, nullptr, nullptr);
  EXPECT_TRUE(HashAdd(table, &first));
  table->hash_func = Const;
  EXPECT_EQ(nullptr, HashFind(table, "abc"));
  EXPECT_TRUE(HashAdd(table, &second));
  EXPECT_EQ(&second, HashFind(table, "abc"));
  HashDestroy(table, false);
}
