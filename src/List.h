#ifndef KIVUXL_LIST_H
#define KIVUXL_LIST_H

// Singly linked list of untyped items with one traversal cursor and keyed lookup.
//
// The list owns its nodes, never its items.  An item matches a key when `compare` of the key and
// of the item's key is 0, or, where `compare` or `keyproc` is null, when it is the key itself.  The
// cursor allows one traversal at a time; to look through a list without touching the cursor, walk
// the nodes from ListFirstNode.  Memory comes from _MAlloc; exhaustion shows only in null or false
// results, or as an item that is not there.  A null list is an empty one.

#include <cstdint>

// 0 when the keys are equal.
using CompareProc = int (*)(const void *key, const void *item_key);
using DestroyProc = void (*)(void *item);
// The item's key, which must not change while the item is in the list.
using KeyProc = const void *(*)(void *item);

struct ListItem {
  ListItem *next;
  void *data;     // the item, never null
  ListItem *prev; // private: the node before, so that taking a node out needs no walk
};

struct ListIndexRec;

struct ListHeader {
  ListItem *first;
  ListItem *last;
  ListItem *traverse;   // what the next ListGetItem returns; null when the traversal is over
  ListItem *previous;   // what the last ListGetItem returned; null after ListInitTraverse
  CompareProc compare;  // may be null
  DestroyProc destroy;  // may be null
  KeyProc keyproc;      // may be null
  std::uint32_t nitems; // number of nodes
  std::uint32_t note;   // for whoever made the list; 0 in a new one and after each change
  ListIndexRec *index;  // private: finds the first match of a text key without a walk
};
using List = ListHeader *;

// A new empty list; each function may be null.  Null on exhaustion.
List ListCreate(CompareProc compare, DestroyProc destroy, KeyProc keyproc);

// Empties the list, each item going to `destroy` if that is set.
void ListDestroyItems(List list);

// ListDestroyItems, then frees the list itself.
void ListDestroy(List list);

// Adds at the end.  A null item is ignored.
void ListAppendItem(List list, void *item);

// Adds before the first match of `key`, and nowhere without a match; to an empty list in any case.
// Put in front of the cursor's item it is visited next.
void ListPrependItem(List list, const void *key, void *item);

// Removes the first match of `key`; false without one.  The item goes to `destroy` if that is set.
// A traversal goes on behind it.
bool ListDeleteItem(List list, const void *key);

// The first match, or null.  The cursor is not touched.
void *ListFindFirst(List list, const void *key);

// The next match from the cursor on, the cursor then stands behind it; null ends the traversal.
void *ListFindItem(List list, const void *key);

// Traversal: ListInitTraverse, then ListGetItem until it gives null.
void ListInitTraverse(List list);
void *ListGetItem(List list);

// ListGetItem for items of a known type: `while (auto *widget = ListNext<WidgetDef>(list))`.
template <typename T> T *ListNext(List list) { return static_cast<T *>(ListGetItem(list)); }

// The first and the last item, or null.
void *ListGetFirst(List list);
inline void *ListGetLast(List list) {
  return list == nullptr || list->last == nullptr ? nullptr : list->last->data;
}

// The first node or null, for
// `for (const ListItem *node = ListFirstNode(list); node != nullptr; node = node->next)`.
inline ListItem *ListFirstNode(List list) { return list == nullptr ? nullptr : list->first; }

// The number of items.
inline std::uint32_t ListLength(List list) { return list == nullptr ? 0 : list->nitems; }

// Moves all nodes of `l2` to the end of `l1`; `l2` is left empty.
void ListAppend(List l1, List l2);

// Appends the items of `l2` to `l1`; both lists then hold the same items.
void ListCopyItems(List l1, List l2);

// Puts the items of `l2`, which stay in `l2` too, in the place of the first match of `k1`.  When
// the cursor has just returned that match, it returns the new items next.  False without a match
// and on exhaustion; `l1` is then as it was.
bool ListSubstitute(List l1, const void *k1, List l2);

// Key function of items that begin with SimpleObjectRec: the name.
const void *SimpleListKeyFunc(void *entry);

// Compare functions for keys that are texts; null keys come before all others.
int ListCompareCaseSensitive(const void *key, const void *item_key);
int ListCompareCaseInsensitive(const void *key, const void *item_key);

#endif
