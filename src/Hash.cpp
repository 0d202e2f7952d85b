// The hash table.  The chains are the table: bucket count, chain order and counts are what the
// caller sees.  Beside them stands a private index over all links, for tables with a stock compare
// function: such keys are equal exactly when their texts are, so that a good hash of the text leads
// to the link at once, however long its chain has grown.  A slot also remembers its link's bucket,
// since a link answers only to keys that hash into its chain.

#include "Hash.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>
#include <string_view>

#include "Alloc.h"
#include "Ascii.h"

// One slot of the index, free when `link` is null.
struct HashSlotRec {
  HashBucketRec *link;
  std::uint32_t bucket;
  std::uint32_t tag; // HashText of the key; its low bits are the slot's place
};

constexpr std::uint32_t kDefaultBuckets = 511;
constexpr std::uint32_t kMinBuckets = 31;
constexpr std::uint32_t kMaxBuckets = 32767;
constexpr std::uint32_t kAnyBucket = UINT32_MAX;
constexpr std::uint32_t kFirstIndexSize = 64;
constexpr std::uint32_t kMaxIndexSize = 0x80000000U;

// Carries the high bits of a product down to those that choose a place.
static std::uint32_t HashFinish(std::uint64_t hash) {
  hash ^= hash >> 33;
  hash *= 0xff51afd7ed558ccdU;
  return static_cast<std::uint32_t>(hash >> 32);
}

constexpr std::uint64_t kHashStart = 0xcbf29ce484222325U;
constexpr std::uint64_t kHashFactor = 0x100000001b3U;

// FNV-1a over 64 bits.
static std::uint32_t HashFolded(const char *text) {
  std::uint64_t hash = kHashStart;
  for (; *text != '\0'; ++text) {
    hash = (hash ^ static_cast<unsigned char>(AsciiToLower(*text))) * kHashFactor;
  }
  return HashFinish(hash);
}

// The same by words of eight bytes.  The last word of a longer text overlaps the one before.
static std::uint32_t HashExact(const char *text) {
  const std::size_t length = std::strlen(text);
  std::uint64_t hash = kHashStart ^ length;
  std::uint64_t word = 0;
  const auto take = [&hash, &word] {
    hash = (hash ^ word) * kHashFactor;
    hash ^= hash >> 32;
  };
  if (length < sizeof(word)) {
    for (const char c : std::string_view(text, length)) {
      word = word << 8 | static_cast<unsigned char>(c);
    }
    take();
    return HashFinish(hash);
  }
  for (std::size_t i = 0; i < length - sizeof(word); i += sizeof(word)) {
    std::memcpy(&word, text + i, sizeof(word));
    take();
  }
  std::memcpy(&word, text + length - sizeof(word), sizeof(word));
  take();
  return HashFinish(hash);
}

std::uint32_t HashText(const char *text, bool fold) {
  return fold ? HashFolded(text) : HashExact(text);
}

// -- Stock functions ---------------------------------------------------------------------------

char *CaseSensitiveKeyFunc(const void *entry) {
  if (entry == nullptr) {
    return nullptr;
  }
  return SafeStrdup(static_cast<const SimpleObjectRec *>(entry)->key);
}

char *CaseInsensitiveKeyFunc(const void *entry) {
  char *key = CaseSensitiveKeyFunc(entry);
  if (key != nullptr) {
    for (char *c = key; *c != '\0'; ++c) {
      *c = AsciiToUpper(*c);
    }
  }
  return key;
}

// XOR of the key's big-endian words, the first one short when the length is no multiple of four.
// Characters are widened with their sign: byte 0xE9 alone hashes to 0xFFFFFFE9.
std::uint32_t SimpleHashFunc(const char *key) {
  if (key == nullptr) {
    return 0;
  }
  std::size_t left = 0; // characters up to the key's end
  while (key[left] != '\0') {
    ++left;
  }
  std::uint32_t hash = 0;
  std::uint32_t word = 0;
  for (; left > 0; ++key) {
    word = (word << 8) | static_cast<std::uint32_t>(static_cast<signed char>(*key));
    --left;
    if (left % 4 == 0) {
      hash ^= word;
      word = 0;
    }
  }
  return hash;
}

int CaseSensitiveCompareFunc(const char *left, const char *right) {
  return SafeStrcmp(left, right, 1);
}

int CaseInsensitiveCompareFunc(const char *left, const char *right) {
  return SafeStrcmp(left, right, 0);
}

// -- The private index -------------------------------------------------------------------------

static bool HashHasStockCompare(const HashTableRec &table) {
  return table.compare_func == CaseSensitiveCompareFunc ||
         table.compare_func == CaseInsensitiveCompareFunc;
}

// Whether a look-up may use the index: it holds all links, placed under the present function.
static bool HashIndexIsCurrent(const HashTableRec &table) {
  return table.index.slots != nullptr && table.index.compare == table.compare_func &&
         table.index.count == table.nentries;
}

static std::uint32_t HashIndexTag(const HashIndexRec &index, const char *key) {
  return HashText(key, index.compare == CaseInsensitiveCompareFunc);
}

// Equal tags nearly always mean equal keys, so that this is asked once for each look-up.
static bool HashIndexEqual(const HashIndexRec &index, const char *left, const char *right) {
  return index.compare == CaseSensitiveCompareFunc ? std::strcmp(left, right) == 0
                                                   : index.compare(left, right) == 0;
}

// The link of that chain, or of any, with an equal key; or null.
static HashBucketRec *HashIndexFind(const HashIndexRec &index, std::uint32_t bucket,
                                    const char *key, std::uint32_t tag) {
  for (std::uint32_t place = tag & (index.size - 1); index.slots[place].link != nullptr;
       place = (place + 1) & (index.size - 1)) {
    const HashSlotRec &slot = index.slots[place];
    if (slot.tag == tag && (bucket == kAnyBucket || slot.bucket == bucket) &&
        HashIndexEqual(index, key, slot.link->key)) {
      return slot.link;
    }
  }
  return nullptr;
}

static void HashIndexPlace(HashIndexRec &index, const HashSlotRec &slot) {
  std::uint32_t place = slot.tag & (index.size - 1);
  while (index.slots[place].link != nullptr) {
    place = (place + 1) & (index.size - 1);
  }
  index.slots[place] = slot;
  ++index.count;
}

// Makes room for one more link; at least half of the slots stay free.  False on exhaustion.
static bool HashIndexReserve(HashIndexRec &index) {
  if (index.count < index.size / 2) {
    return true;
  }
  if (index.size == kMaxIndexSize) {
    return false;
  }
  HashIndexRec grown = {};
  grown.size = std::max(kFirstIndexSize, index.size * 2);
  grown.compare = index.compare;
  grown.hash = index.hash;
  void *memory = _MAlloc(grown.size * sizeof(HashSlotRec));
  if (memory == nullptr) {
    return false;
  }
  grown.slots = new (memory) HashSlotRec[grown.size]();
  for (std::uint32_t place = 0; place < index.size; ++place) {
    if (index.slots[place].link != nullptr) {
      HashIndexPlace(grown, index.slots[place]);
    }
  }
  _MFree(index.slots);
  index = grown;
  return true;
}

// -- The table ---------------------------------------------------------------------------------

static std::uint32_t HashBucketCount(unsigned max_entries) {
  return max_entries == 0 ? kDefaultBuckets : std::clamp(max_entries, kMinBuckets, kMaxBuckets);
}

HashTable HashCreate(unsigned max_entries, KeyFunc key_func, HashFunc hash_func,
                     CompareFunc compare_func, DestroyFunc destroy_func) {
  void *memory = _MAlloc(sizeof(HashTableRec));
  if (memory == nullptr) {
    return nullptr;
  }
  auto *table = new (memory) HashTableRec();
  table->modulus = HashBucketCount(max_entries);
  void *buckets = _MAlloc(table->modulus * sizeof(HashHeaderRec));
  if (buckets == nullptr) {
    _MFree(table);
    return nullptr;
  }
  table->entries = new (buckets) HashHeaderRec[table->modulus]();
  table->key_func = key_func != nullptr ? key_func : CaseSensitiveKeyFunc;
  table->hash_func = hash_func != nullptr ? hash_func : SimpleHashFunc;
  table->compare_func = compare_func != nullptr ? compare_func : CaseSensitiveCompareFunc;
  table->destroy_func = destroy_func;
  table->index.compare = HashHasStockCompare(*table) ? table->compare_func : nullptr;
  table->index.hash = table->hash_func;
  return table;
}

// What the index knows the key by; 0 in a table without one.
static std::uint32_t HashTag(const HashTableRec &table, const char *key) {
  return table.index.compare == nullptr ? 0 : HashIndexTag(table.index, key);
}

// The link of that chain with an equal key, or null.
static HashBucketRec *HashFindLink(const HashTableRec &table, std::uint32_t bucket, const char *key,
                                   std::uint32_t tag) {
  if (HashIndexIsCurrent(table)) {
    return HashIndexFind(table.index, bucket, key, tag);
  }
  for (HashBucketRec *link = table.entries[bucket].first; link != nullptr; link = link->next) {
    if (link->key != nullptr && table.compare_func(key, link->key) == 0) {
      return link;
    }
  }
  return nullptr;
}

// Enters a key that is not present; false on exhaustion.  The copy of the key stands behind its
// link, where a look-up has it at hand.
static bool HashAddLink(HashTableRec &table, std::uint32_t bucket, const char *key,
                        std::uint32_t tag, void *entry) {
  const bool indexed = table.index.compare != nullptr;
  if (indexed && !HashIndexReserve(table.index)) {
    return false;
  }
  const std::size_t size = std::strlen(key) + 1;
  auto *memory = static_cast<char *>(_MAlloc(sizeof(HashBucketRec) + size));
  if (memory == nullptr) {
    return false;
  }
  HashHeaderRec &chain = table.entries[bucket];
  char *copy = memory + sizeof(HashBucketRec);
  std::memcpy(copy, key, size);
  auto *link = new (memory) HashBucketRec{chain.first, copy, entry};
  if (indexed) {
    HashIndexPlace(table.index, {link, bucket, tag});
  }
  chain.first = link;
  table.ncollide += chain.count;
  ++chain.count;
  ++table.nentries;
  return true;
}

static bool HashAddKey(HashTableRec &table, const char *key, void *entry) {
  const std::uint32_t bucket = table.hash_func(key) % table.modulus;
  const std::uint32_t tag = HashTag(table, key);
  return HashFindLink(table, bucket, key, tag) == nullptr &&
         HashAddLink(table, bucket, key, tag, entry);
}

bool HashAdd(HashTable table, void *entry) {
  if (entry == nullptr || table == nullptr || table->entries == nullptr) {
    return false;
  }
  if (table->key_func == CaseSensitiveKeyFunc) { // without a copy
    const char *name = static_cast<const SimpleObjectRec *>(entry)->key;
    return name != nullptr && HashAddKey(*table, name, entry);
  }
  char *key = table->key_func(entry);
  const bool added = key != nullptr && HashAddKey(*table, key, entry);
  _MFree(key);
  return added;
}

// Whether the keys are the names themselves, of which equal ones always share a bucket.  Nearly all
// look-ups are of this sort; without a copy of the name and its bucket they take a third.
static bool HashKeysAreNames(const HashTableRec &table) {
  return table.key_func == CaseSensitiveKeyFunc && table.compare_func == CaseSensitiveCompareFunc &&
         table.hash_func == table.index.hash && HashIndexIsCurrent(table);
}

void *HashFind(HashTable table, const char *key) {
  if (key == nullptr || table == nullptr || table->entries == nullptr) {
    return nullptr;
  }
  if (HashKeysAreNames(*table)) {
    const HashBucketRec *link =
        HashIndexFind(table->index, kAnyBucket, key, HashIndexTag(table->index, key));
    return link == nullptr ? nullptr : link->entry;
  }
  SimpleObjectRec dummy = {};
  dummy.key = key;
  char *probe = table->key_func(&dummy);
  if (probe == nullptr) {
    return nullptr;
  }
  const std::uint32_t bucket = table->hash_func(probe) % table->modulus;
  const HashBucketRec *link = HashFindLink(*table, bucket, probe, HashTag(*table, probe));
  _MFree(probe);
  return link == nullptr ? nullptr : link->entry;
}

// Enters all entries of one table in another, bucket 0 first and each chain in its order.
static bool HashAddAll(HashTable target, const HashTableRec &source) {
  for (std::uint32_t bucket = 0; bucket < source.modulus; ++bucket) {
    for (const HashBucketRec *link = source.entries[bucket].first; link != nullptr;
         link = link->next) {
      if (link->entry != nullptr && !HashAdd(target, link->entry)) {
        return false;
      }
    }
  }
  return true;
}

// Frees the chains, the buckets and the index, but not the table's record.
static void HashPartDestroy(HashTable table, bool destroy_objects) {
  if (table == nullptr || table->entries == nullptr) {
    return;
  }
  const bool destroys = destroy_objects && table->destroy_func != nullptr;
  for (std::uint32_t bucket = 0; bucket < table->modulus; ++bucket) {
    HashBucketRec *next = nullptr;
    for (HashBucketRec *link = table->entries[bucket].first; link != nullptr; link = next) {
      next = link->next;
      if (destroys && link->entry != nullptr) {
        table->destroy_func(link->entry);
      }
      _MFree(link);
    }
  }
  _MFree(table->entries);
  _MFree(table->index.slots);
}

bool HashRevise(HashTable table, unsigned max_entries, KeyFunc key_func, HashFunc hash_func,
                CompareFunc compare_func, DestroyFunc destroy_func) {
  if (table == nullptr || table->entries == nullptr) {
    return false;
  }
  HashTable revised = HashCreate(max_entries != 0 ? max_entries : table->modulus,
                                 key_func != nullptr ? key_func : table->key_func,
                                 hash_func != nullptr ? hash_func : table->hash_func,
                                 compare_func != nullptr ? compare_func : table->compare_func,
                                 destroy_func != nullptr ? destroy_func : table->destroy_func);
  if (revised == nullptr) {
    return false;
  }
  if (!HashAddAll(revised, *table)) {
    HashDestroy(revised, false);
    return false;
  }
  HashPartDestroy(table, false);
  *table = *revised;
  _MFree(revised);
  return true;
}

void HashDestroy(HashTable table, bool destroy_objects) {
  HashPartDestroy(table, destroy_objects);
  _MFree(table);
}
