// Tests of the hash table: the values of the stock functions, chains and counts, revision,
// exhaustion at every allocation, and the private index against plain walks of the chains.

#include "Hash.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Alloc.h"

namespace {

class Hash : public testing::Test {
protected:
  void SetUp() override { AllocReset(); }
  void TearDown() override {
    AllocFailAfter(-1);
    AllocReset();
  }

  // A record with that name, which lives as long as the test.
  SimpleObjectRec *Entry(const std::string &name) {
    names.push_back(name);
    return EntryAt(names.back().c_str());
  }
  SimpleObjectRec *EntryAt(const char *name) {
    records.emplace_back();
    records.back().kind = static_cast<std::int32_t>(records.size());
    records.back().key = name;
    return &records.back();
  }

private:
  std::deque<std::string> names;
  std::deque<SimpleObjectRec> records;
};

HashTable CreateSensitive(unsigned max_entries) {
  return HashCreate(max_entries, CaseSensitiveKeyFunc, SimpleHashFunc, CaseSensitiveCompareFunc,
                    nullptr);
}

HashTable CreateInsensitive(unsigned max_entries) {
  return HashCreate(max_entries, CaseInsensitiveKeyFunc, SimpleHashFunc, CaseInsensitiveCompareFunc,
                    nullptr);
}

std::uint32_t ConstantHash(const char *) { return 7; }

// Compare functions that the table does not know as stock ones.
int OwnSensitiveCompare(const char *left, const char *right) {
  return CaseSensitiveCompareFunc(left, right);
}
int OwnInsensitiveCompare(const char *left, const char *right) {
  return CaseInsensitiveCompareFunc(left, right);
}

std::vector<void *> destroyed;
void RecordDestroyed(void *entry) { destroyed.push_back(entry); }

// All entries in the order of a walk: buckets by number, each chain from its newest link.
std::vector<void *> Traversal(HashTable table) {
  std::vector<void *> result;
  for (std::uint32_t bucket = 0; bucket < table->modulus; ++bucket) {
    for (const HashBucketRec *link = table->entries[bucket].first; link != nullptr;
         link = link->next) {
      result.push_back(link->entry);
    }
  }
  return result;
}

void ExpectConsistent(HashTable table) {
  std::uint32_t total = 0;
  for (std::uint32_t bucket = 0; bucket < table->modulus; ++bucket) {
    std::uint32_t count = 0;
    for (const HashBucketRec *link = table->entries[bucket].first; link != nullptr;
         link = link->next) {
      EXPECT_EQ(table->hash_func(link->key) % table->modulus, bucket);
      ++count;
    }
    EXPECT_EQ(table->entries[bucket].count, count);
    total += count;
  }
  EXPECT_EQ(table->nentries, total);
}

} // namespace

TEST_F(Hash, NameAndKeyAreOneField) {
  SimpleObjectRec *entry = Entry("demo");
  EXPECT_STREQ(entry->name, "demo");
  EXPECT_EQ(entry->name, entry->key);
}

TEST_F(Hash, BucketCountIsBroughtIntoRange) {
  const std::map<unsigned, std::uint32_t> expected = {{0, 511},
                                                      {1, 31},
                                                      {5, 31},
                                                      {30, 31},
                                                      {31, 31},
                                                      {32, 32},
                                                      {511, 511},
                                                      {512, 512},
                                                      {32766, 32766},
                                                      {32767, 32767},
                                                      {32768, 32767},
                                                      {40000, 32767},
                                                      {4294967295U, 32767}};
  for (const auto &[max_entries, modulus] : expected) {
    HashTable table = CreateSensitive(max_entries);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->modulus, modulus) << max_entries;
    HashDestroy(table, false);
  }
  EXPECT_EQ(AllocLiveBlocks(), 0U);
}

TEST_F(Hash, NewTableIsEmpty) {
  HashTable table = HashCreate(0, nullptr, nullptr, nullptr, nullptr);
  EXPECT_EQ(table->nentries, 0U);
  EXPECT_EQ(table->ncollide, 0U);
  for (std::uint32_t bucket = 0; bucket < table->modulus; ++bucket) {
    EXPECT_EQ(table->entries[bucket].first, nullptr);
    EXPECT_EQ(table->entries[bucket].count, 0U);
  }
  EXPECT_EQ(HashFind(table, "a"), nullptr);
}

TEST_F(Hash, NullFunctionsMeanTheCaseSensitiveOnes) {
  HashTable table = HashCreate(0, nullptr, nullptr, nullptr, nullptr);
  EXPECT_EQ(table->key_func, CaseSensitiveKeyFunc);
  EXPECT_EQ(table->hash_func, SimpleHashFunc);
  EXPECT_EQ(table->compare_func, CaseSensitiveCompareFunc);
  EXPECT_EQ(table->destroy_func, nullptr);
}

TEST_F(Hash, GivenFunctionsAreKept) {
  HashTable table = HashCreate(0, CaseInsensitiveKeyFunc, ConstantHash, CaseInsensitiveCompareFunc,
                               RecordDestroyed);
  EXPECT_EQ(table->key_func, CaseInsensitiveKeyFunc);
  EXPECT_EQ(table->hash_func, ConstantHash);
  EXPECT_EQ(table->compare_func, CaseInsensitiveCompareFunc);
  EXPECT_EQ(table->destroy_func, RecordDestroyed);
}

TEST_F(Hash, SimpleHashValues) {
  EXPECT_EQ(SimpleHashFunc(nullptr), 0U);
  EXPECT_EQ(SimpleHashFunc(""), 0U);
  EXPECT_EQ(SimpleHashFunc("A"), 0x41U);
  EXPECT_EQ(SimpleHashFunc("AB"), 0x4142U);
  EXPECT_EQ(SimpleHashFunc("ABC"), 0x414243U);
  EXPECT_EQ(SimpleHashFunc("ABCD"), 0x41424344U);
  EXPECT_EQ(SimpleHashFunc("ABCDE"), 0x42434404U);
  EXPECT_EQ(SimpleHashFunc("ABCDEF"), 0x4142U ^ 0x43444546U);
  EXPECT_EQ(SimpleHashFunc("ABCDEFGH"), 0x41424344U ^ 0x45464748U);
  EXPECT_EQ(SimpleHashFunc("ABCDEFGHI"), 0x41U ^ 0x42434445U ^ 0x46474849U);
  EXPECT_EQ(SimpleHashFunc("ABCDABCD"), 0U);
}

TEST_F(Hash, SimpleHashWidensWithTheSign) {
  EXPECT_EQ(SimpleHashFunc("\xe9"), 0xffffffe9U);
  EXPECT_EQ(SimpleHashFunc("\xe9"
                           "A"),
            0xffffe941U);
  EXPECT_EQ(SimpleHashFunc("A\xe9"), 0xffffffe9U);
  EXPECT_EQ(SimpleHashFunc("AB\xe9"
                           "C"),
            0xffffe943U);
  EXPECT_EQ(SimpleHashFunc("A\x80"), 0xffffff80U);
  EXPECT_EQ(SimpleHashFunc("A\x7f"), 0x417fU);
  EXPECT_EQ(SimpleHashFunc("A\xe9xyz"), 0x41U ^ 0xe978797aU);
}

TEST_F(Hash, KeyFunctionsCopyAndFold) {
  SimpleObjectRec *entry = Entry("Button_1 \xe9");
  char *plain = CaseSensitiveKeyFunc(entry);
  EXPECT_STREQ(plain, "Button_1 \xe9");
  EXPECT_NE(plain, entry->key);
  EXPECT_STREQ(CaseInsensitiveKeyFunc(entry), "BUTTON_1 \xe9");
  EXPECT_STREQ(entry->key, "Button_1 \xe9");
  EXPECT_EQ(CaseSensitiveKeyFunc(nullptr), nullptr);
  EXPECT_EQ(CaseInsensitiveKeyFunc(nullptr), nullptr);
  EXPECT_EQ(CaseSensitiveKeyFunc(EntryAt(nullptr)), nullptr);
  EXPECT_EQ(CaseInsensitiveKeyFunc(EntryAt(nullptr)), nullptr);
}

TEST_F(Hash, CompareFunctions) {
  EXPECT_EQ(CaseSensitiveCompareFunc("a", "a"), 0);
  EXPECT_GT(CaseSensitiveCompareFunc("a", "A"), 0);
  EXPECT_LT(CaseSensitiveCompareFunc("A", "a"), 0);
  EXPECT_EQ(CaseInsensitiveCompareFunc("aZ", "Az"), 0);
  EXPECT_LT(CaseInsensitiveCompareFunc("a", "B"), 0);
  EXPECT_GT(CaseInsensitiveCompareFunc("B", "a"), 0);
}

TEST_F(Hash, AddAndFind) {
  HashTable table = CreateSensitive(511);
  SimpleObjectRec *one = Entry("one");
  SimpleObjectRec *two = Entry("two");
  EXPECT_TRUE(HashAdd(table, one));
  EXPECT_TRUE(HashAdd(table, two));
  EXPECT_EQ(HashFind(table, "one"), one);
  EXPECT_EQ(HashFind(table, "two"), two);
  EXPECT_EQ(HashFind(table, "three"), nullptr);
  EXPECT_EQ(HashFind(table, "One"), nullptr);
  EXPECT_EQ(HashFind(table, ""), nullptr);
  EXPECT_EQ(HashFind(table, nullptr), nullptr);
  EXPECT_EQ(table->nentries, 2U);
  ExpectConsistent(table);
}

TEST_F(Hash, TheEmptyNameIsAName) {
  HashTable table = CreateSensitive(0);
  SimpleObjectRec *entry = Entry("");
  EXPECT_TRUE(HashAdd(table, entry));
  EXPECT_EQ(HashFind(table, ""), entry);
  EXPECT_EQ(table->entries[0].first->entry, entry);
}

TEST_F(Hash, TheTableKeepsItsOwnKey) {
  HashTable table = CreateSensitive(511);
  std::string name = "first";
  SimpleObjectRec *entry = EntryAt(name.c_str());
  EXPECT_TRUE(HashAdd(table, entry));
  name[0] = 'F';
  EXPECT_EQ(HashFind(table, "first"), entry);
  EXPECT_EQ(HashFind(table, "First"), nullptr);
}

TEST_F(Hash, NullsAreRefused) {
  HashTable table = CreateSensitive(0);
  EXPECT_FALSE(HashAdd(table, nullptr));
  EXPECT_FALSE(HashAdd(nullptr, Entry("a")));
  EXPECT_FALSE(HashAdd(table, EntryAt(nullptr)));
  EXPECT_EQ(HashFind(nullptr, "a"), nullptr);
  EXPECT_FALSE(HashRevise(nullptr, 0, nullptr, nullptr, nullptr, nullptr));
  EXPECT_EQ(table->nentries, 0U);
  HashDestroy(nullptr, true);
}

TEST_F(Hash, ATableWithoutBucketsIsRefused) {
  HashTableRec empty = {};
  empty.key_func = CaseSensitiveKeyFunc;
  EXPECT_FALSE(HashAdd(&empty, Entry("a")));
  EXPECT_EQ(HashFind(&empty, "a"), nullptr);
  EXPECT_FALSE(HashRevise(&empty, 0, nullptr, nullptr, nullptr, nullptr));
}

TEST_F(Hash, TheFirstEntryOfANameWins) {
  HashTable table = CreateSensitive(31);
  SimpleObjectRec *first = Entry("same");
  HashAdd(table, first);
  HashAdd(table, Entry("other"));
  const std::uint32_t ncollide = table->ncollide;
  const std::size_t blocks = AllocLiveBlocks();
  EXPECT_FALSE(HashAdd(table, Entry("same")));
  EXPECT_FALSE(HashAdd(table, first));
  EXPECT_EQ(HashFind(table, "same"), first);
  EXPECT_EQ(table->nentries, 2U);
  EXPECT_EQ(table->ncollide, ncollide);
  EXPECT_EQ(AllocLiveBlocks(), blocks);
  ExpectConsistent(table);
}

TEST_F(Hash, CaseFoldsWithTheInsensitiveFunctions) {
  HashTable table = CreateInsensitive(511);
  SimpleObjectRec *entry = Entry("Button1");
  EXPECT_TRUE(HashAdd(table, entry));
  EXPECT_FALSE(HashAdd(table, Entry("BUTTON1")));
  EXPECT_EQ(HashFind(table, "BUTTON1"), entry);
  EXPECT_EQ(HashFind(table, "Button1"), entry);
  EXPECT_EQ(HashFind(table, "button1"), entry);
  EXPECT_EQ(HashFind(table, "button2"), nullptr);
  EXPECT_STREQ(table->entries[SimpleHashFunc("BUTTON1") % 511].first->key, "BUTTON1");
}

TEST_F(Hash, CollisionsAreCountedAndChainsHaveTheNewestFirst) {
  HashTable table = HashCreate(31, nullptr, ConstantHash, nullptr, nullptr);
  SimpleObjectRec *one = Entry("1");
  SimpleObjectRec *two = Entry("2");
  SimpleObjectRec *three = Entry("3");
  HashAdd(table, one);
  EXPECT_EQ(table->ncollide, 0U);
  HashAdd(table, two);
  EXPECT_EQ(table->ncollide, 1U);
  HashAdd(table, three);
  EXPECT_EQ(table->ncollide, 3U);
  EXPECT_EQ(table->nentries, 3U);
  EXPECT_EQ(table->entries[7].count, 3U);
  EXPECT_EQ(Traversal(table), (std::vector<void *>{three, two, one}));
  EXPECT_EQ(HashFind(table, "1"), one);
  EXPECT_EQ(HashFind(table, "3"), three);
}

TEST_F(Hash, KeysOfDifferentChainsDoNotMeet) {
  // The keys fold to one name but hash by their own letters, so that each chain has its own.
  HashTable table =
      HashCreate(511, CaseSensitiveKeyFunc, SimpleHashFunc, CaseInsensitiveCompareFunc, nullptr);
  SimpleObjectRec *lower = Entry("a");
  SimpleObjectRec *upper = Entry("A");
  EXPECT_TRUE(HashAdd(table, lower));
  EXPECT_TRUE(HashAdd(table, upper));
  EXPECT_EQ(HashFind(table, "a"), lower);
  EXPECT_EQ(HashFind(table, "A"), upper);
}

TEST_F(Hash, ACompareFunctionOfOnesOwnIsUsed) {
  // Equal when the first letters are.
  const CompareFunc first_letter = [](const char *left, const char *right) {
    return static_cast<int>(*left) - static_cast<int>(*right);
  };
  HashTable table = HashCreate(31, nullptr, ConstantHash, first_letter, nullptr);
  SimpleObjectRec *alpha = Entry("alpha");
  EXPECT_TRUE(HashAdd(table, alpha));
  EXPECT_FALSE(HashAdd(table, Entry("any")));
  EXPECT_EQ(HashFind(table, "ask"), alpha);
  EXPECT_EQ(HashFind(table, "b"), nullptr);
}

TEST_F(Hash, FunctionsMayBeChangedInTheRecord) {
  HashTable table = HashCreate(31, nullptr, ConstantHash, CaseSensitiveCompareFunc, nullptr);
  SimpleObjectRec *lower = Entry("abc");
  SimpleObjectRec *upper = Entry("ABC");
  HashAdd(table, lower);
  HashAdd(table, upper);
  table->compare_func = CaseInsensitiveCompareFunc;
  EXPECT_EQ(HashFind(table, "aBc"), upper);
  EXPECT_FALSE(HashAdd(table, Entry("Abc")));
  SimpleObjectRec *other = Entry("Other");
  EXPECT_TRUE(HashAdd(table, other));
  EXPECT_EQ(HashFind(table, "oTHER"), other);
  table->compare_func = CaseSensitiveCompareFunc;
  EXPECT_EQ(HashFind(table, "abc"), lower);
  EXPECT_EQ(HashFind(table, "oTHER"), nullptr);
  EXPECT_EQ(HashFind(table, "Other"), other);
  EXPECT_EQ(HashFind(table, "aBc"), nullptr);
}

TEST_F(Hash, DestroyHandsEachEntryOverOnceInOrder) {
  destroyed.clear();
  HashTable table = HashCreate(31, nullptr, nullptr, nullptr, RecordDestroyed);
  for (const char *name : {"a", "b", "c", "abcde", "fghij"}) {
    HashAdd(table, Entry(name));
  }
  const std::vector<void *> entries = Traversal(table);
  HashDestroy(table, true);
  EXPECT_EQ(destroyed, entries);
  EXPECT_EQ(AllocLiveBlocks(), 0U);
}

TEST_F(Hash, DestroyLeavesEntriesAloneUnlessAsked) {
  destroyed.clear();
  HashTable table = HashCreate(31, nullptr, nullptr, nullptr, RecordDestroyed);
  HashAdd(table, Entry("a"));
  HashDestroy(table, false);
  EXPECT_TRUE(destroyed.empty());
  EXPECT_EQ(AllocLiveBlocks(), 0U);
}

TEST_F(Hash, DestroyOfEntriesWithoutAFunctionIsHarmless) {
  HashTable table = CreateSensitive(31);
  SimpleObjectRec *entry = Entry("a");
  HashAdd(table, entry);
  HashDestroy(table, true);
  EXPECT_STREQ(entry->name, "a");
  EXPECT_EQ(AllocLiveBlocks(), 0U);
}

TEST_F(Hash, ReviseKeepsWhatIsNotGiven) {
  HashTable table = HashCreate(40, CaseInsensitiveKeyFunc, ConstantHash, CaseInsensitiveCompareFunc,
                               RecordDestroyed);
  SimpleObjectRec *entry = Entry("a");
  HashAdd(table, entry);
  EXPECT_TRUE(HashRevise(table, 0, nullptr, nullptr, nullptr, nullptr));
  EXPECT_EQ(table->modulus, 40U);
  EXPECT_EQ(table->key_func, CaseInsensitiveKeyFunc);
  EXPECT_EQ(table->hash_func, ConstantHash);
  EXPECT_EQ(table->compare_func, CaseInsensitiveCompareFunc);
  EXPECT_EQ(table->destroy_func, RecordDestroyed);
  EXPECT_EQ(HashFind(table, "A"), entry);
}

TEST_F(Hash, ReviseTakesAllThatIsGiven) {
  destroyed.clear();
  HashTable table = CreateSensitive(31);
  SimpleObjectRec *entry = Entry("a");
  HashAdd(table, entry);
  EXPECT_TRUE(HashRevise(table, 40, CaseInsensitiveKeyFunc, ConstantHash,
                         CaseInsensitiveCompareFunc, RecordDestroyed));
  EXPECT_EQ(table->modulus, 40U);
  EXPECT_EQ(table->key_func, CaseInsensitiveKeyFunc);
  EXPECT_EQ(table->hash_func, ConstantHash);
  EXPECT_EQ(table->compare_func, CaseInsensitiveCompareFunc);
  EXPECT_EQ(HashFind(table, "A"), entry);
  HashDestroy(table, true);
  EXPECT_EQ(destroyed, (std::vector<void *>{entry}));
}

TEST_F(Hash, DestroySkipsLinksWithoutEntry) {
  destroyed.clear();
  HashTable table = HashCreate(31, nullptr, ConstantHash, nullptr, RecordDestroyed);
  SimpleObjectRec *stays = Entry("stays");
  HashAdd(table, Entry("gone"));
  HashAdd(table, stays);
  HashBucketRec *link = table->entries[ConstantHash("") % 31].first;
  ASSERT_NE(link, nullptr);
  (link->entry == stays ? link->next : link)->entry = nullptr;
  HashDestroy(table, true);
  EXPECT_EQ(destroyed, (std::vector<void *>{stays}));
  EXPECT_EQ(AllocLiveBlocks(), 0U);
}

TEST_F(Hash, ReviseReversesChains) {
  HashTable table = HashCreate(31, nullptr, ConstantHash, nullptr, nullptr);
  SimpleObjectRec *one = Entry("1");
  SimpleObjectRec *two = Entry("2");
  SimpleObjectRec *three = Entry("3");
  for (SimpleObjectRec *entry : {one, two, three}) {
    HashAdd(table, entry);
  }
  const std::size_t blocks = AllocLiveBlocks();
  EXPECT_TRUE(HashRevise(table, 0, nullptr, nullptr, nullptr, nullptr));
  EXPECT_EQ(Traversal(table), (std::vector<void *>{one, two, three}));
  EXPECT_EQ(table->ncollide, 3U);
  EXPECT_EQ(table->nentries, 3U);
  EXPECT_EQ(AllocLiveBlocks(), blocks);
}

TEST_F(Hash, ReviseToFoldingFindsInAnyCase) {
  HashTable table = CreateSensitive(511);
  SimpleObjectRec *form = Entry("MainForm");
  SimpleObjectRec *button = Entry("ok_button");
  HashAdd(table, form);
  HashAdd(table, button);
  EXPECT_EQ(HashFind(table, "mainform"), nullptr);
  EXPECT_TRUE(
      HashRevise(table, 0, CaseInsensitiveKeyFunc, nullptr, CaseInsensitiveCompareFunc, nullptr));
  EXPECT_EQ(HashFind(table, "mainform"), form);
  EXPECT_EQ(HashFind(table, "OK_Button"), button);
  EXPECT_FALSE(HashAdd(table, Entry("MAINFORM")));
  EXPECT_EQ(table->modulus, 511U);
  ExpectConsistent(table);
}

TEST_F(Hash, ReviseChangesTheBucketCount) {
  HashTable table = CreateSensitive(31);
  std::vector<SimpleObjectRec *> entries;
  for (int i = 0; i < 200; ++i) {
    entries.push_back(Entry("name" + std::to_string(i)));
    HashAdd(table, entries.back());
  }
  for (const unsigned modulus : {32767U, 100U, 31U, 511U}) {
    EXPECT_TRUE(HashRevise(table, modulus, nullptr, nullptr, nullptr, nullptr));
    EXPECT_EQ(table->modulus, modulus);
    ExpectConsistent(table);
    for (SimpleObjectRec *entry : entries) {
      EXPECT_EQ(HashFind(table, entry->name), entry);
    }
  }
}

TEST_F(Hash, ReviseSkipsLinksWithoutEntry) {
  HashTable table = CreateSensitive(31);
  HashAdd(table, Entry("gone"));
  SimpleObjectRec *stays = Entry("stays");
  HashAdd(table, stays);
  table->entries[SimpleHashFunc("gone") % 31].first->entry = nullptr;
  EXPECT_TRUE(HashRevise(table, 0, nullptr, nullptr, nullptr, nullptr));
  EXPECT_EQ(table->nentries, 1U);
  EXPECT_EQ(Traversal(table), (std::vector<void *>{stays}));
}

TEST_F(Hash, ReviseThatMergesNamesLeavesTheTableAsItWas) {
  destroyed.clear();
  HashTable table = HashCreate(31, nullptr, nullptr, nullptr, RecordDestroyed);
  SimpleObjectRec *lower = Entry("button");
  SimpleObjectRec *upper = Entry("BUTTON");
  SimpleObjectRec *other = Entry("other");
  for (SimpleObjectRec *entry : {lower, upper, other}) {
    HashAdd(table, entry);
  }
  const std::vector<void *> order = Traversal(table);
  const std::uint32_t ncollide = table->ncollide;
  const std::size_t blocks = AllocLiveBlocks();
  EXPECT_FALSE(
      HashRevise(table, 0, CaseInsensitiveKeyFunc, nullptr, CaseInsensitiveCompareFunc, nullptr));
  EXPECT_TRUE(destroyed.empty());
  EXPECT_EQ(AllocLiveBlocks(), blocks);
  EXPECT_EQ(Traversal(table), order);
  EXPECT_EQ(table->nentries, 3U);
  EXPECT_EQ(table->ncollide, ncollide);
  EXPECT_EQ(table->key_func, CaseSensitiveKeyFunc);
  EXPECT_EQ(table->compare_func, CaseSensitiveCompareFunc);
  EXPECT_EQ(HashFind(table, "button"), lower);
  EXPECT_EQ(HashFind(table, "BUTTON"), upper);
  EXPECT_EQ(HashFind(table, "Button"), nullptr);
  EXPECT_TRUE(HashAdd(table, Entry("Button")));
  ExpectConsistent(table);
}

// -- Exhaustion --------------------------------------------------------------------------------

TEST_F(Hash, CreateSurvivesExhaustion) {
  for (const long successes : {0, 1}) {
    AllocFailAfter(successes);
    EXPECT_EQ(CreateSensitive(31), nullptr);
    EXPECT_EQ(AllocLiveBlocks(), 0U);
  }
  AllocFailAfter(2);
  EXPECT_NE(CreateSensitive(31), nullptr);
}

TEST_F(Hash, AddSurvivesExhaustionAtEveryAllocation) {
  HashTable table = CreateSensitive(31);
  // More names than the index holds at first, so that its growth fails too.
  for (int i = 0; i < 200; ++i) {
    SimpleObjectRec *entry = Entry("n" + std::to_string(i));
    const std::vector<void *> order = Traversal(table);
    const std::uint32_t ncollide = table->ncollide;
    long successes = 0;
    for (AllocFailAfter(0); !HashAdd(table, entry); AllocFailAfter(++successes)) {
      ASSERT_LT(successes, 4);
      AllocFailAfter(-1);
      ASSERT_EQ(Traversal(table), order);
      ASSERT_EQ(table->ncollide, ncollide);
      ASSERT_EQ(HashFind(table, entry->name), nullptr);
    }
    AllocFailAfter(-1);
    ASSERT_GE(successes, 1); // the link at least
    ASSERT_EQ(HashFind(table, entry->name), entry);
  }
  ExpectConsistent(table);
  HashDestroy(table, false);
  EXPECT_EQ(AllocLiveBlocks(), 0U);
}

TEST_F(Hash, FindSurvivesExhaustion) {
  HashTable table = CreateInsensitive(31);
  SimpleObjectRec *entry = Entry("a");
  HashAdd(table, entry);
  AllocFailAfter(0);
  EXPECT_EQ(HashFind(table, "a"), nullptr);
  AllocFailAfter(-1);
  EXPECT_EQ(HashFind(table, "a"), entry);
}

// A name that is its own key is looked up as it stands, without a copy and by the index.
TEST_F(Hash, FindOfANameTakesNoMemory) {
  HashTable table = CreateSensitive(31);
  SimpleObjectRec *first = Entry("a");
  SimpleObjectRec *second = Entry("b");
  ASSERT_TRUE(HashAdd(table, first));
  ASSERT_TRUE(HashAdd(table, second));
  AllocFailAfter(0);
  EXPECT_EQ(HashFind(table, "a"), first);
  EXPECT_EQ(HashFind(table, "b"), second);
  EXPECT_EQ(HashFind(table, "c"), nullptr);
  AllocFailAfter(-1);
}

TEST_F(Hash, ReviseSurvivesExhaustionAtEveryAllocation) {
  HashTable table = CreateSensitive(31);
  std::vector<SimpleObjectRec *> entries;
  for (int i = 0; i < 50; ++i) {
    entries.push_back(Entry("n" + std::to_string(i)));
    HashAdd(table, entries.back());
  }
  const std::vector<void *> order = Traversal(table);
  const std::size_t blocks = AllocLiveBlocks();
  long successes = 0;
  for (AllocFailAfter(0);
       !HashRevise(table, 0, CaseInsensitiveKeyFunc, nullptr, CaseInsensitiveCompareFunc, nullptr);
       AllocFailAfter(++successes)) {
    AllocFailAfter(-1);
    ASSERT_EQ(AllocLiveBlocks(), blocks);
    ASSERT_EQ(Traversal(table), order);
    ASSERT_EQ(HashFind(table, "n7"), entries[7]);
    ASSERT_EQ(HashFind(table, "N7"), nullptr);
  }
  AllocFailAfter(-1);
  EXPECT_GE(successes, 102); // record, buckets, and a key and a link for each name
  EXPECT_EQ(HashFind(table, "N7"), entries[7]);
  EXPECT_EQ(AllocLiveBlocks(), blocks);
}

// -- The index ---------------------------------------------------------------------------------

namespace {

std::string RandomName(std::mt19937 &random) {
  static const std::string letters = "abAB_\xe9";
  std::string name;
  for (auto left = random() % 6; left > 0; --left) {
    name += letters[random() % letters.size()];
  }
  return name;
}

} // namespace

TEST_F(Hash, IndexedTablesBehaveLikeWalkedOnes) {
  struct Functions {
    KeyFunc key;
    HashFunc hash;
    CompareFunc stock;
    CompareFunc own;
  };
  constexpr Functions kFunctions[] = {
      {CaseSensitiveKeyFunc, SimpleHashFunc, CaseSensitiveCompareFunc, OwnSensitiveCompare},
      {CaseInsensitiveKeyFunc, SimpleHashFunc, CaseInsensitiveCompareFunc, OwnInsensitiveCompare},
      {CaseSensitiveKeyFunc, SimpleHashFunc, CaseInsensitiveCompareFunc, OwnInsensitiveCompare},
      {CaseSensitiveKeyFunc, ConstantHash, CaseInsensitiveCompareFunc, OwnInsensitiveCompare},
      {CaseSensitiveKeyFunc, ConstantHash, CaseSensitiveCompareFunc, OwnSensitiveCompare},
  };
  std::mt19937 random(511);
  for (const Functions &f : kFunctions) {
    HashTable indexed = HashCreate(31, f.key, f.hash, f.stock, nullptr);
    HashTable walked = HashCreate(31, f.key, f.hash, f.own, nullptr);
    int refused = 0;
    for (int step = 0; step < 3000; ++step) {
      SimpleObjectRec *entry = Entry(RandomName(random));
      ASSERT_EQ(HashFind(indexed, entry->name), HashFind(walked, entry->name)) << entry->name;
      const bool added = HashAdd(indexed, entry);
      ASSERT_EQ(added, HashAdd(walked, entry)) << entry->name;
      ASSERT_EQ(indexed->ncollide, walked->ncollide);
      refused += added ? 0 : 1;
    }
    EXPECT_GT(refused, 100);
    EXPECT_GT(indexed->nentries, 100U);
    EXPECT_EQ(Traversal(indexed), Traversal(walked));
    ExpectConsistent(indexed);
    // Walked and indexed tables become one another.
    const bool revised = HashRevise(indexed, 100, nullptr, nullptr, f.own, nullptr);
    ASSERT_EQ(revised, HashRevise(walked, 100, nullptr, nullptr, f.stock, nullptr));
    EXPECT_EQ(Traversal(indexed), Traversal(walked));
    for (int step = 0; step < 500; ++step) {
      const std::string name = RandomName(random);
      ASSERT_EQ(HashFind(indexed, name.c_str()), HashFind(walked, name.c_str())) << name;
    }
  }
}

TEST_F(Hash, TextHashSpreadsAndFolds) {
  EXPECT_EQ(HashText("Button", true), HashText("bUTTON", true));
  EXPECT_NE(HashText("Button", false), HashText("bUTTON", false));
  // Names that differ in a number only, as generated modules have them.
  std::set<std::uint32_t> low_bits;
  for (int i = 0; i < 1024; ++i) {
    low_bits.insert(HashText(("button_" + std::to_string(i)).c_str(), true) % 4096);
  }
  // A random function takes some 906 of the 4096 places.
  EXPECT_GT(low_bits.size(), 860U);
}

TEST_F(Hash, AHundredThousandNames) {
  constexpr int kNames = 100000;
  for (HashTable table : {CreateSensitive(511), CreateInsensitive(511)}) {
    std::vector<SimpleObjectRec *> entries;
    for (int i = 0; i < kNames; ++i) {
      entries.push_back(Entry("push_button_" + std::to_string(i)));
    }
    const auto start = std::chrono::steady_clock::now();
    for (SimpleObjectRec *entry : entries) {
      ASSERT_TRUE(HashAdd(table, entry));
    }
    EXPECT_EQ(table->index.count, 100000U);
    for (SimpleObjectRec *entry : entries) {
      ASSERT_EQ(HashFind(table, entry->name), entry);
      ASSERT_FALSE(HashAdd(table, entry));
    }
    EXPECT_EQ(HashFind(table, "push_button_100000"), nullptr);
    ASSERT_TRUE(
        HashRevise(table, 0, CaseInsensitiveKeyFunc, nullptr, CaseInsensitiveCompareFunc, nullptr));
    EXPECT_EQ(HashFind(table, "PUSH_BUTTON_99999"), entries[99999]);
    EXPECT_EQ(table->nentries, 100000U);
    ExpectConsistent(table);
    RecordProperty("milliseconds",
                   static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(
                                        std::chrono::steady_clock::now() - start)
                                        .count()));
    HashDestroy(table, false);
  }
  EXPECT_EQ(AllocLiveBlocks(), 0U);
}

TEST_F(Hash, AHundredThousandNamesInOneChain) {
  HashTable table = HashCreate(31, nullptr, ConstantHash, nullptr, nullptr);
  for (int i = 0; i < 100000; ++i) {
    ASSERT_TRUE(HashAdd(table, Entry("n" + std::to_string(i))));
  }
  EXPECT_EQ(table->entries[7].count, 100000U);
  // 0 + 1 + ... + 99999 in 32 bits.
  EXPECT_EQ(table->ncollide, static_cast<std::uint32_t>(4999950000ULL));
  EXPECT_EQ(static_cast<SimpleObjectRec *>(HashFind(table, "n0"))->kind, 1);
}
