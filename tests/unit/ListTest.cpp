// Tests of the list: order, keys, the cursor's rules in every operation, exhaustion at every
// allocation, and the private index against plain walks.

#include "List.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Alloc.h"
#include "Hash.h"

namespace {

using Items = std::vector<void *>;

std::vector<void *> destroyed;
void RecordDestroyed(void *item) { destroyed.push_back(item); }

class ListTest : public testing::Test {
protected:
  void SetUp() override {
    AllocReset();
    destroyed.clear();
  }
  void TearDown() override {
    AllocFailAfter(-1);
    AllocReset();
  }

  // A record with that name, which lives as long as the test.
  SimpleObjectRec *Named(const std::string &name) {
    names.push_back(name);
    return NamedAt(names.back().c_str());
  }
  SimpleObjectRec *NamedAt(const char *name) {
    records.emplace_back();
    records.back().name = name;
    return &records.back();
  }

  // Items for lists without keys.
  int a = 1;
  int b = 2;
  int c = 3;
  int d = 4;
  int e = 5;

private:
  std::deque<std::string> names;
  std::deque<SimpleObjectRec> records;
};

List Create(const Items &items) {
  List list = ListCreate(nullptr, nullptr, nullptr);
  for (void *item : items) {
    ListAppendItem(list, item);
  }
  return list;
}

List CreateKeyed(CompareProc compare, const Items &items) {
  List list = ListCreate(compare, nullptr, SimpleListKeyFunc);
  for (void *item : items) {
    ListAppendItem(list, item);
  }
  return list;
}

// Compare functions that the list does not know as stock ones.
int OwnSensitiveCompare(const void *key, const void *item_key) {
  return ListCompareCaseSensitive(key, item_key);
}
int OwnInsensitiveCompare(const void *key, const void *item_key) {
  return ListCompareCaseInsensitive(key, item_key);
}

// The items from the head, read without the cursor; checks all links and the count on the way.
Items Contents(List list) {
  Items items;
  const ListItem *prev = nullptr;
  for (const ListItem *node = ListFirstNode(list); node != nullptr; node = node->next) {
    EXPECT_EQ(node->prev, prev);
    items.push_back(node->data);
    prev = node;
  }
  EXPECT_EQ(list->last, prev);
  EXPECT_EQ(ListLength(list), items.size());
  return items;
}

// What the cursor still has to give.
Items Rest(List list) {
  Items items;
  while (void *item = ListGetItem(list)) {
    items.push_back(item);
  }
  return items;
}

Items Traversal(List list) {
  ListInitTraverse(list);
  return Rest(list);
}

void *DataOf(const ListItem *node) { return node == nullptr ? nullptr : node->data; }

} // namespace

// -- Making, appending, reading ----------------------------------------------------------------

TEST_F(ListTest, NewListIsEmpty) {
  List list = ListCreate(ListCompareCaseSensitive, RecordDestroyed, SimpleListKeyFunc);
  EXPECT_EQ(list->first, nullptr);
  EXPECT_EQ(list->last, nullptr);
  EXPECT_EQ(list->traverse, nullptr);
  EXPECT_EQ(list->previous, nullptr);
  EXPECT_EQ(list->nitems, 0U);
  EXPECT_EQ(list->compare, ListCompareCaseSensitive);
  EXPECT_EQ(list->destroy, RecordDestroyed);
  EXPECT_EQ(list->keyproc, SimpleListKeyFunc);
}

TEST_F(ListTest, AnEmptyListGivesNothing) {
  List list = Create({});
  EXPECT_EQ(ListGetFirst(list), nullptr);
  EXPECT_EQ(ListGetLast(list), nullptr);
  EXPECT_EQ(ListGetItem(list), nullptr);
  ListInitTraverse(list);
  EXPECT_EQ(ListGetItem(list), nullptr);
  EXPECT_EQ(ListFirstNode(list), nullptr);
  EXPECT_EQ(ListLength(list), 0U);
  EXPECT_EQ(ListFindFirst(list, &a), nullptr);
  EXPECT_EQ(ListFindItem(list, &a), nullptr);
  EXPECT_FALSE(ListDeleteItem(list, &a));
  EXPECT_FALSE(ListSubstitute(list, &a, Create({&b})));
}

TEST_F(ListTest, ANullListIsAnEmptyOne) {
  List other = Create({&a});
  EXPECT_EQ(ListLength(nullptr), 0U);
  EXPECT_EQ(ListGetFirst(nullptr), nullptr);
  EXPECT_EQ(ListGetLast(nullptr), nullptr);
  EXPECT_EQ(ListFirstNode(nullptr), nullptr);
  ListInitTraverse(nullptr);
  EXPECT_EQ(ListGetItem(nullptr), nullptr);
  ListAppendItem(nullptr, &a);
  ListPrependItem(nullptr, &a, &b);
  EXPECT_FALSE(ListDeleteItem(nullptr, &a));
  EXPECT_EQ(ListFindFirst(nullptr, &a), nullptr);
  EXPECT_EQ(ListFindItem(nullptr, &a), nullptr);
  EXPECT_FALSE(ListSubstitute(nullptr, &a, other));
  ListAppend(nullptr, other);
  ListAppend(other, nullptr);
  ListCopyItems(nullptr, other);
  ListCopyItems(other, nullptr);
  EXPECT_EQ(Contents(other), Items({&a}));
  ListDestroyItems(nullptr);
  ListDestroy(nullptr);
}

TEST_F(ListTest, AppendKeepsTheOrder) {
  List list = Create({&a, &b, &a, &c});
  EXPECT_EQ(Contents(list), Items({&a, &b, &a, &c}));
  EXPECT_EQ(Traversal(list), Items({&a, &b, &a, &c}));
  EXPECT_EQ(ListGetFirst(list), &a);
  EXPECT_EQ(ListGetLast(list), &c);
  EXPECT_EQ(ListLength(list), 4U);
}

TEST_F(ListTest, ANullItemIsIgnored) {
  List list = Create({&a, nullptr});
  EXPECT_EQ(Contents(list), Items({&a}));
  ListPrependItem(list, &a, nullptr);
  EXPECT_EQ(Contents(list), Items({&a}));
}

TEST_F(ListTest, TheCursorRunsOnce) {
  List list = Create({&a, &b});
  EXPECT_EQ(ListGetItem(list), nullptr); // not begun
  ListInitTraverse(list);
  EXPECT_EQ(list->previous, nullptr);
  EXPECT_EQ(ListGetItem(list), &a);
  EXPECT_EQ(DataOf(list->previous), &a);
  EXPECT_EQ(DataOf(list->traverse), &b);
  EXPECT_EQ(ListGetItem(list), &b);
  EXPECT_EQ(ListGetItem(list), nullptr);
  EXPECT_EQ(ListGetItem(list), nullptr);
  EXPECT_EQ(DataOf(list->previous), &b);
  EXPECT_EQ(Traversal(list), Items({&a, &b}));
}

TEST_F(ListTest, TypedTraversal) {
  List list = Create({&a, &b});
  int sum = 0;
  ListInitTraverse(list);
  while (const int *item = ListNext<int>(list)) {
    sum = sum * 10 + *item;
  }
  EXPECT_EQ(sum, 12);
}

TEST_F(ListTest, AppendBeforeTheCursorsEndIsVisited) {
  List list = Create({&a, &b});
  ListInitTraverse(list);
  ListGetItem(list);
  ListAppendItem(list, &c);
  EXPECT_EQ(Rest(list), Items({&b, &c}));
}

TEST_F(ListTest, AppendAfterTheCursorsEndIsNotVisited) {
  List list = Create({&a, &b});
  ListInitTraverse(list);
  ListGetItem(list);
  ListGetItem(list); // the cursor is past the end, although nobody has seen null yet
  ListAppendItem(list, &c);
  EXPECT_EQ(ListGetItem(list), nullptr);
  EXPECT_EQ(Contents(list), Items({&a, &b, &c}));
}

// -- Keys --------------------------------------------------------------------------------------

TEST_F(ListTest, WithoutFunctionsAKeyIsTheItem) {
  SimpleObjectRec *one = Named("one");
  for (List list : {ListCreate(nullptr, nullptr, nullptr),
                    ListCreate(ListCompareCaseSensitive, nullptr, nullptr),
                    ListCreate(nullptr, nullptr, SimpleListKeyFunc)}) {
    ListAppendItem(list, one);
    EXPECT_EQ(ListFindFirst(list, one), one);
    EXPECT_EQ(ListFindFirst(list, "one"), nullptr);
    EXPECT_EQ(ListFindFirst(list, nullptr), nullptr);
  }
}

TEST_F(ListTest, TextKeys) {
  SimpleObjectRec *one = Named("One");
  SimpleObjectRec *two = Named("Two");
  List sensitive = CreateKeyed(ListCompareCaseSensitive, {one, two});
  EXPECT_EQ(ListFindFirst(sensitive, "Two"), two);
  EXPECT_EQ(ListFindFirst(sensitive, "TWO"), nullptr);
  List insensitive = CreateKeyed(ListCompareCaseInsensitive, {one, two});
  EXPECT_EQ(ListFindFirst(insensitive, "TWO"), two);
  EXPECT_EQ(ListFindFirst(insensitive, "Three"), nullptr);
  EXPECT_EQ(ListFindFirst(insensitive, nullptr), nullptr);
}

TEST_F(ListTest, ItemsWithoutNameMatchNothing) {
  SimpleObjectRec *named = Named("a");
  List list = CreateKeyed(ListCompareCaseSensitive, {NamedAt(nullptr), named});
  EXPECT_EQ(ListFindFirst(list, "a"), named);
  EXPECT_EQ(ListFindFirst(list, ""), nullptr);
}

TEST_F(ListTest, SimpleKeyIsTheName) {
  EXPECT_STREQ(static_cast<const char *>(SimpleListKeyFunc(Named("x"))), "x");
  EXPECT_EQ(SimpleListKeyFunc(NamedAt(nullptr)), nullptr);
  EXPECT_EQ(SimpleListKeyFunc(nullptr), nullptr);
}

TEST_F(ListTest, KeysNeedNotBeTexts) {
  const CompareProc compare = [](const void *key, const void *item_key) {
    return *static_cast<const int *>(key) - *static_cast<const int *>(item_key);
  };
  const KeyProc key_of = [](void *item) -> const void * { return item; };
  List list = ListCreate(compare, nullptr, key_of);
  for (int *item : {&a, &b, &c}) {
    ListAppendItem(list, item);
  }
  const int two = 2;
  const int nine = 9;
  EXPECT_EQ(ListFindFirst(list, &two), &b);
  EXPECT_EQ(ListFindFirst(list, &nine), nullptr);
}

TEST_F(ListTest, FindFirstLeavesTheCursorAlone) {
  List list = Create({&a, &b, &c});
  ListInitTraverse(list);
  ListGetItem(list);
  EXPECT_EQ(ListFindFirst(list, &c), &c);
  EXPECT_EQ(ListFindFirst(list, &e), nullptr);
  EXPECT_EQ(DataOf(list->previous), &a);
  EXPECT_EQ(Rest(list), Items({&b, &c}));
}

TEST_F(ListTest, FindItemEnumeratesTheMatches) {
  for (const int padding : {0, 30}) { // walked and indexed
    SimpleObjectRec *first = Named("x");
    SimpleObjectRec *second = Named("X");
    SimpleObjectRec *third = Named("x");
    Items items = {Named("a"), first, Named("b"), second, third, Named("c")};
    for (int i = 0; i < padding; ++i) {
      items.push_back(Named("p" + std::to_string(i)));
    }
    List list = CreateKeyed(ListCompareCaseInsensitive, items);
    ListInitTraverse(list);
    EXPECT_EQ(ListFindItem(list, "x"), first);
    EXPECT_EQ(ListFindItem(list, "x"), second);
    EXPECT_EQ(ListFindItem(list, "x"), third);
    EXPECT_EQ(ListFindItem(list, "x"), nullptr);
    EXPECT_EQ(list->traverse, nullptr);
    EXPECT_EQ(ListFindItem(list, "x"), nullptr);
    EXPECT_EQ(ListGetItem(list), nullptr);
  }
}

TEST_F(ListTest, FindItemSearchesFromTheCursorAndMovesItBehindTheMatch) {
  List list = Create({&a, &b, &c, &d});
  ListInitTraverse(list);
  ListGetItem(list);
  EXPECT_EQ(ListFindItem(list, &c), &c);
  EXPECT_EQ(DataOf(list->previous), &a); // deliberately not moved
  EXPECT_EQ(DataOf(list->traverse), &d);
  EXPECT_EQ(ListFindItem(list, &a), nullptr); // lies behind
  EXPECT_EQ(list->traverse, nullptr);
}

TEST_F(ListTest, FindItemWithoutKeyKeepsTheCursor) {
  List list = Create({&a, &b});
  ListInitTraverse(list);
  EXPECT_EQ(ListFindItem(list, nullptr), nullptr);
  EXPECT_EQ(ListGetItem(list), &a);
}

// -- Deleting ----------------------------------------------------------------------------------

TEST_F(ListTest, DeleteTheOnlyItem) {
  List list = Create({&a});
  EXPECT_TRUE(ListDeleteItem(list, &a));
  EXPECT_EQ(list->first, nullptr);
  EXPECT_EQ(list->last, nullptr);
  EXPECT_EQ(list->nitems, 0U);
  EXPECT_FALSE(ListDeleteItem(list, &a));
  ListAppendItem(list, &b);
  EXPECT_EQ(Contents(list), Items({&b}));
}

TEST_F(ListTest, DeleteFirstMiddleAndLast) {
  List list = Create({&a, &b, &c, &d});
  EXPECT_TRUE(ListDeleteItem(list, &d));
  EXPECT_EQ(ListGetLast(list), &c);
  EXPECT_EQ(list->last->next, nullptr);
  EXPECT_EQ(Contents(list), Items({&a, &b, &c}));
  EXPECT_TRUE(ListDeleteItem(list, &b));
  EXPECT_EQ(Contents(list), Items({&a, &c}));
  EXPECT_TRUE(ListDeleteItem(list, &a));
  EXPECT_EQ(Contents(list), Items({&c}));
  EXPECT_FALSE(ListDeleteItem(list, &a));
  EXPECT_FALSE(ListDeleteItem(list, nullptr));
  EXPECT_EQ(Contents(list), Items({&c}));
}

TEST_F(ListTest, DeleteTakesTheFirstMatchOnly) {
  List list = Create({&a, &b, &a});
  EXPECT_TRUE(ListDeleteItem(list, &a));
  EXPECT_EQ(Contents(list), Items({&b, &a}));
}

TEST_F(ListTest, DeleteTheItemJustReturned) {
  for (int *victim : {&a, &b, &c}) {
    List list = Create({&a, &b, &c});
    Items seen;
    ListInitTraverse(list);
    while (void *item = ListGetItem(list)) {
      seen.push_back(item);
      if (item == victim) {
        EXPECT_TRUE(ListDeleteItem(list, item));
      }
    }
    EXPECT_EQ(seen, Items({&a, &b, &c}));
    EXPECT_EQ(Contents(list).size(), 2U);
  }
}

TEST_F(ListTest, DeleteEveryItemWhileTraversing) {
  List list = Create({&a, &b, &c});
  ListInitTraverse(list);
  while (void *item = ListGetItem(list)) {
    ListDeleteItem(list, item);
  }
  EXPECT_EQ(Contents(list), Items());
}

TEST_F(ListTest, DeleteTheItemUnderTheCursor) {
  List list = Create({&a, &b, &c});
  ListInitTraverse(list);
  ListGetItem(list);
  EXPECT_TRUE(ListDeleteItem(list, &b));
  EXPECT_EQ(DataOf(list->previous), &a);
  EXPECT_EQ(Rest(list), Items({&c}));
}

TEST_F(ListTest, DeleteUnderTheCursorAfterAFindCatchesUpWithThePredecessor) {
  List list = Create({&a, &b, &c, &d});
  ListInitTraverse(list);
  ListGetItem(list);
  ListFindItem(list, &b); // leaves `previous` on the first item
  EXPECT_TRUE(ListDeleteItem(list, &c));
  EXPECT_EQ(DataOf(list->previous), &b);
  EXPECT_EQ(Rest(list), Items({&d}));
}

TEST_F(ListTest, DeleteTheFirstItemUnderTheCursor) {
  List list = Create({&a, &b});
  ListInitTraverse(list);
  EXPECT_TRUE(ListDeleteItem(list, &a));
  EXPECT_EQ(list->previous, nullptr);
  EXPECT_EQ(Rest(list), Items({&b}));
}

TEST_F(ListTest, DeleteTheLastItemUnderTheCursor) {
  List list = Create({&a, &b});
  ListInitTraverse(list);
  ListGetItem(list);
  EXPECT_TRUE(ListDeleteItem(list, &b));
  EXPECT_EQ(Rest(list), Items());
  EXPECT_EQ(DataOf(list->previous), &a);
}

TEST_F(ListTest, ADeletedItemIsNotMistakenForALaterOne) {
  // The new node may well get the address of the one just deleted.
  List list = Create({&a, &b, &c});
  ListInitTraverse(list);
  ListGetItem(list);
  ListDeleteItem(list, &a);
  ListAppendItem(list, &d);
  EXPECT_TRUE(ListSubstitute(list, &d, Create({&e})));
  EXPECT_EQ(Rest(list), Items({&b, &c, &e}));
}

TEST_F(ListTest, DeleteHandsTheItemToDestroy) {
  List list = ListCreate(nullptr, RecordDestroyed, nullptr);
  for (int *item : {&a, &b, &c}) {
    ListAppendItem(list, item);
  }
  ListDeleteItem(list, &b);
  EXPECT_EQ(destroyed, Items({&b}));
  ListDestroyItems(list);
  EXPECT_EQ(destroyed, Items({&b, &a, &c}));
  EXPECT_EQ(Contents(list), Items());
  EXPECT_EQ(list->destroy, RecordDestroyed);
  ListAppendItem(list, &d);
  ListDestroy(list);
  EXPECT_EQ(destroyed, Items({&b, &a, &c, &d}));
  EXPECT_EQ(AllocLiveBlocks(), 0U);
}

TEST_F(ListTest, DestroyItemsEndsTheTraversal) {
  List list = Create({&a, &b});
  ListInitTraverse(list);
  ListGetItem(list);
  ListDestroyItems(list);
  EXPECT_EQ(list->traverse, nullptr);
  EXPECT_EQ(list->previous, nullptr);
  EXPECT_EQ(AllocLiveBlocks(), 1U);
}

// -- Prepending --------------------------------------------------------------------------------

TEST_F(ListTest, PrependGoesBeforeTheMatch) {
  List list = Create({&a, &b, &a});
  ListPrependItem(list, &b, &c);
  EXPECT_EQ(Contents(list), Items({&a, &c, &b, &a}));
  ListPrependItem(list, &a, &d);
  EXPECT_EQ(Contents(list), Items({&d, &a, &c, &b, &a}));
  EXPECT_EQ(ListGetFirst(list), &d);
}

TEST_F(ListTest, PrependWithoutMatchDoesNothing) {
  List list = Create({&a, &b});
  ListPrependItem(list, &c, &d);
  ListPrependItem(list, nullptr, &d);
  EXPECT_EQ(Contents(list), Items({&a, &b}));
}

TEST_F(ListTest, PrependToAnEmptyListAppends) {
  List list = Create({});
  ListPrependItem(list, &c, &a);
  EXPECT_EQ(Contents(list), Items({&a}));
  List other = Create({});
  ListPrependItem(other, nullptr, &a);
  EXPECT_EQ(Contents(other), Items({&a}));
}

TEST_F(ListTest, PrependAtTheCursorIsVisitedNext) {
  List list = Create({&a, &b});
  ListInitTraverse(list);
  ListGetItem(list);
  ListPrependItem(list, &b, &c);
  EXPECT_EQ(DataOf(list->previous), &a);
  EXPECT_EQ(Rest(list), Items({&c, &b}));
  ListInitTraverse(list);
  ListPrependItem(list, &a, &d);
  EXPECT_EQ(list->previous, nullptr);
  EXPECT_EQ(Rest(list), Items({&d, &a, &c, &b}));
}

TEST_F(ListTest, PrependAtTheCursorAfterAFindCatchesUpWithThePredecessor) {
  List list = Create({&a, &b, &c});
  ListInitTraverse(list);
  ListGetItem(list);
  ListFindItem(list, &b);
  ListPrependItem(list, &c, &d);
  EXPECT_EQ(DataOf(list->previous), &b);
  EXPECT_EQ(Rest(list), Items({&d, &c}));
}

TEST_F(ListTest, PrependBehindTheCursorIsNotVisited) {
  List list = Create({&a, &b});
  ListInitTraverse(list);
  ListGetItem(list);
  ListPrependItem(list, &a, &c);
  EXPECT_EQ(Rest(list), Items({&b}));
}

// -- Joining and copying -----------------------------------------------------------------------

TEST_F(ListTest, AppendListMovesTheNodes) {
  List l1 = Create({&a, &b});
  List l2 = Create({&c, &d});
  const ListItem *moved = l2->first;
  ListInitTraverse(l2);
  ListGetItem(l2);
  ListInitTraverse(l1);
  ListGetItem(l1);
  ListAppend(l1, l2);
  EXPECT_EQ(Contents(l1), Items({&a, &b, &c, &d}));
  EXPECT_EQ(l1->first->next->next, moved);
  EXPECT_EQ(Rest(l1), Items({&b, &c, &d}));
  EXPECT_EQ(Contents(l2), Items());
  EXPECT_EQ(l2->traverse, nullptr);
  EXPECT_EQ(l2->previous, nullptr);
  ListAppendItem(l2, &e);
  EXPECT_EQ(Contents(l2), Items({&e}));
  EXPECT_EQ(Contents(l1), Items({&a, &b, &c, &d}));
}

TEST_F(ListTest, AppendListToAnEmptyOne) {
  List l1 = Create({});
  List l2 = Create({&a, &b});
  ListAppend(l1, l2);
  EXPECT_EQ(Contents(l1), Items({&a, &b}));
  EXPECT_EQ(Contents(l2), Items());
}

TEST_F(ListTest, AppendAnEmptyListChangesNothing) {
  List l1 = Create({&a});
  ListAppend(l1, Create({}));
  EXPECT_EQ(Contents(l1), Items({&a}));
  ListAppendItem(l1, &b);
  EXPECT_EQ(Contents(l1), Items({&a, &b}));
  List empty = Create({});
  ListAppend(empty, Create({}));
  EXPECT_EQ(Contents(empty), Items());
}

TEST_F(ListTest, AppendAListToItselfChangesNothing) {
  List list = Create({&a, &b});
  ListAppend(list, list);
  EXPECT_EQ(Contents(list), Items({&a, &b}));
}

TEST_F(ListTest, CopyItemsSharesThem) {
  List l1 = Create({&a});
  List l2 = Create({&b, &c});
  ListInitTraverse(l1);
  ListCopyItems(l1, l2);
  EXPECT_EQ(Contents(l1), Items({&a, &b, &c}));
  EXPECT_EQ(Contents(l2), Items({&b, &c}));
  EXPECT_EQ(ListGetItem(l2), nullptr);
  EXPECT_EQ(Rest(l1), Items({&a, &b, &c}));
  ListCopyItems(l1, Create({}));
  EXPECT_EQ(Contents(l1), Items({&a, &b, &c}));
}

TEST_F(ListTest, CopyToItselfEnds) {
  List list = Create({&a, &b});
  ListCopyItems(list, list);
  EXPECT_EQ(Contents(list), Items({&a, &b, &a, &b}));
  EXPECT_EQ(ListGetItem(list), nullptr);
}

// -- Substituting ------------------------------------------------------------------------------

TEST_F(ListTest, SubstituteInEveryPlace) {
  struct Case {
    int *key;
    Items expected;
  };
  for (const Case &test :
       {Case{&a, {&d, &e, &b, &c}}, Case{&b, {&a, &d, &e, &c}}, Case{&c, {&a, &b, &d, &e}}}) {
    List list = Create({&a, &b, &c});
    List with = Create({&d, &e});
    EXPECT_TRUE(ListSubstitute(list, test.key, with));
    EXPECT_EQ(Contents(list), test.expected);
    EXPECT_EQ(Contents(with), Items({&d, &e}));
    ListDestroy(list);
    ListDestroy(with);
    EXPECT_EQ(AllocLiveBlocks(), 0U);
  }
}

TEST_F(ListTest, SubstituteTheOnlyItem) {
  List list = Create({&a});
  EXPECT_TRUE(ListSubstitute(list, &a, Create({&b, &c})));
  EXPECT_EQ(Contents(list), Items({&b, &c}));
}

TEST_F(ListTest, SubstituteWithNothingDeletes) {
  for (int *key : {&a, &b, &c}) {
    for (const bool null_list : {false, true}) {
      List list = Create({&a, &b, &c});
      Items expected = {&a, &b, &c};
      expected.erase(std::find(expected.begin(), expected.end(), key));
      EXPECT_TRUE(ListSubstitute(list, key, null_list ? nullptr : Create({})));
      EXPECT_EQ(Contents(list), expected);
    }
  }
  List single = Create({&a});
  EXPECT_TRUE(ListSubstitute(single, &a, nullptr));
  EXPECT_EQ(Contents(single), Items());
}

TEST_F(ListTest, SubstituteWithoutMatch) {
  List list = Create({&a});
  EXPECT_FALSE(ListSubstitute(list, &b, Create({&c})));
  EXPECT_FALSE(ListSubstitute(list, nullptr, Create({&c})));
  EXPECT_FALSE(ListSubstitute(list, &b, nullptr));
  EXPECT_EQ(Contents(list), Items({&a}));
}

TEST_F(ListTest, SubstituteTheItemJustReturnedVisitsTheNewOnes) {
  for (int *key : {&a, &b, &c}) {
    List list = Create({&a, &b, &c});
    ListInitTraverse(list);
    void *before = nullptr;
    for (void *item = ListGetItem(list); item != key; item = ListGetItem(list)) {
      before = item;
    }
    EXPECT_TRUE(ListSubstitute(list, key, Create({&d, &e})));
    EXPECT_EQ(DataOf(list->previous), before);
    EXPECT_EQ(ListGetItem(list), &d);
    EXPECT_EQ(ListGetItem(list), &e);
    const Items rest = Rest(list);
    EXPECT_EQ(rest, key == &a ? Items({&b, &c}) : key == &b ? Items({&c}) : Items());
  }
}

TEST_F(ListTest, SubstituteElsewhereLeavesTheCursor) {
  List list = Create({&a, &b, &c, &d});
  ListInitTraverse(list);
  ListGetItem(list);
  ListGetItem(list);
  EXPECT_TRUE(ListSubstitute(list, &a, Create({&e})));
  EXPECT_TRUE(ListSubstitute(list, &d, Create({&e, &e})));
  EXPECT_EQ(DataOf(list->previous), &b);
  EXPECT_EQ(Rest(list), Items({&c, &e, &e}));
}

TEST_F(ListTest, SubstituteTheItemUnderTheCursorVisitsTheNewOnes) {
  List list = Create({&a, &b, &c});
  ListInitTraverse(list);
  ListGetItem(list);
  EXPECT_TRUE(ListSubstitute(list, &b, Create({&d, &e})));
  EXPECT_EQ(DataOf(list->previous), &a);
  EXPECT_EQ(Rest(list), Items({&d, &e, &c}));
}

TEST_F(ListTest, SubstituteWithNothingMovesTheCursorOn) {
  List list = Create({&a, &b, &c});
  ListInitTraverse(list);
  ListGetItem(list);
  EXPECT_TRUE(ListSubstitute(list, &b, nullptr));
  EXPECT_EQ(DataOf(list->previous), &a);
  EXPECT_EQ(Rest(list), Items({&c}));
  ListInitTraverse(list);
  EXPECT_EQ(ListGetItem(list), &a);
  EXPECT_TRUE(ListSubstitute(list, &a, nullptr)); // just returned: goes on with its successor
  EXPECT_EQ(Rest(list), Items({&c}));
}

TEST_F(ListTest, SubstituteByItself) {
  List list = Create({&a, &b});
  EXPECT_TRUE(ListSubstitute(list, &a, list));
  EXPECT_EQ(Contents(list), Items({&a, &b, &b}));
}

TEST_F(ListTest, SubstituteDestroysTheMatchOnly) {
  List list = ListCreate(nullptr, RecordDestroyed, nullptr);
  ListAppendItem(list, &a);
  ListAppendItem(list, &b);
  EXPECT_TRUE(ListSubstitute(list, &a, Create({&c})));
  EXPECT_EQ(destroyed, Items({&a}));
  EXPECT_TRUE(ListSubstitute(list, &b, nullptr));
  EXPECT_EQ(destroyed, Items({&a, &b}));
  EXPECT_EQ(Contents(list), Items({&c}));
}

TEST_F(ListTest, NestedListsAreFlattenedInOneTraversal) {
  // Three levels, an empty list among them; the lists are items like any other.
  List inner = Create({&c, &d});
  List empty = Create({});
  List middle = Create({&b, inner, empty});
  List outer = Create({&a, middle, &e, empty});
  const Items lists = {inner, empty, middle};
  Items seen;
  ListInitTraverse(outer);
  while (void *item = ListGetItem(outer)) {
    if (std::find(lists.begin(), lists.end(), item) != lists.end()) {
      EXPECT_TRUE(ListSubstitute(outer, item, static_cast<List>(item)));
    } else {
      seen.push_back(item);
    }
  }
  EXPECT_EQ(seen, Items({&a, &b, &c, &d, &e}));
  EXPECT_EQ(Contents(outer), seen);
}

// -- Exhaustion --------------------------------------------------------------------------------

TEST_F(ListTest, CreateSurvivesExhaustion) {
  AllocFailAfter(0);
  EXPECT_EQ(ListCreate(nullptr, nullptr, nullptr), nullptr);
}

TEST_F(ListTest, AnItemThatFindsNoMemoryIsNotThere) {
  List list = Create({&a});
  AllocFailAfter(0);
  ListAppendItem(list, &b);
  ListPrependItem(list, &a, &b);
  ListCopyItems(list, Create({}));
  EXPECT_EQ(Contents(list), Items({&a}));
  AllocFailAfter(-1);
  List empty = Create({});
  AllocFailAfter(0);
  ListPrependItem(empty, &a, &b);
  EXPECT_EQ(Contents(empty), Items());
}

TEST_F(ListTest, SubstituteSurvivesExhaustionAtEveryAllocation) {
  List list = Create({&a, &b, &c});
  List with = Create({&d, &e, &d});
  const std::size_t blocks = AllocLiveBlocks();
  ListInitTraverse(list);
  ListGetItem(list);
  ListGetItem(list);
  // The temporary list and its three nodes.
  for (long successes = 0; successes < 4; ++successes) {
    AllocFailAfter(successes);
    EXPECT_FALSE(ListSubstitute(list, &b, with));
    EXPECT_EQ(Contents(list), Items({&a, &b, &c}));
    EXPECT_EQ(Contents(with), Items({&d, &e, &d}));
    EXPECT_EQ(DataOf(list->previous), &b);
    EXPECT_EQ(DataOf(list->traverse), &c);
    EXPECT_EQ(AllocLiveBlocks(), blocks);
  }
  AllocFailAfter(4);
  EXPECT_TRUE(ListSubstitute(list, &b, with));
  EXPECT_EQ(Contents(list), Items({&a, &d, &e, &d, &c}));
}

TEST_F(ListTest, SearchesNeedNoMemory) {
  Items items;
  for (int i = 0; i < 100; ++i) {
    items.push_back(Named("n" + std::to_string(i)));
  }
  for (long successes = 0; successes < 6; ++successes) {
    List list = CreateKeyed(ListCompareCaseSensitive, items);
    AllocFailAfter(successes);
    EXPECT_EQ(ListFindFirst(list, "n77"), items[77]);
    EXPECT_EQ(ListFindFirst(list, "n100"), nullptr);
    EXPECT_TRUE(ListDeleteItem(list, "n0"));
    EXPECT_EQ(ListFindFirst(list, "n0"), nullptr);
    AllocFailAfter(-1);
    EXPECT_EQ(ListFindFirst(list, "n99"), items[99]);
    EXPECT_EQ(Contents(list).size(), 99U);
    ListDestroy(list);
    EXPECT_EQ(AllocLiveBlocks(), 0U);
  }
}

// -- The index ---------------------------------------------------------------------------------

TEST_F(ListTest, TheFirstOfEqualNamesIsFoundAsTheListChanges) {
  Items items;
  for (int i = 0; i < 40; ++i) {
    items.push_back(Named("n" + std::to_string(i % 20)));
  }
  List list = CreateKeyed(ListCompareCaseSensitive, items);
  EXPECT_EQ(ListFindFirst(list, "n5"), items[5]);
  EXPECT_TRUE(ListDeleteItem(list, "n5"));
  EXPECT_EQ(ListFindFirst(list, "n5"), items[25]);
  SimpleObjectRec *early = Named("n5");
  ListPrependItem(list, "n0", early);
  EXPECT_EQ(ListFindFirst(list, "n5"), early);
  SimpleObjectRec *late = Named("n5");
  ListAppendItem(list, late);
  EXPECT_EQ(ListFindFirst(list, "n5"), early);
  EXPECT_TRUE(ListDeleteItem(list, "n5"));
  EXPECT_TRUE(ListDeleteItem(list, "n5"));
  EXPECT_EQ(ListFindFirst(list, "n5"), late);
  EXPECT_TRUE(ListDeleteItem(list, "n5"));
  EXPECT_EQ(ListFindFirst(list, "n5"), nullptr);
}

TEST_F(ListTest, FunctionsMayBeChangedInTheHeader) {
  Items items;
  for (int i = 0; i < 40; ++i) {
    items.push_back(Named("Name" + std::to_string(i)));
  }
  List list = CreateKeyed(ListCompareCaseSensitive, items);
  EXPECT_EQ(ListFindFirst(list, "NAME7"), nullptr);
  EXPECT_EQ(ListFindFirst(list, "Name7"), items[7]);
  list->compare = ListCompareCaseInsensitive;
  EXPECT_EQ(ListFindFirst(list, "NAME7"), items[7]);
  list->compare = ListCompareCaseSensitive;
  EXPECT_EQ(ListFindFirst(list, "NAME7"), nullptr);
  list->keyproc = [](void *) -> const void * { return "same"; };
  EXPECT_EQ(ListFindFirst(list, "same"), items[0]);
  EXPECT_EQ(ListFindFirst(list, "Name7"), nullptr);
  list->keyproc = nullptr;
  EXPECT_EQ(ListFindFirst(list, items[9]), items[9]);
  EXPECT_EQ(ListFindFirst(list, "Name7"), nullptr);
}

TEST_F(ListTest, AnIndexedListOfItemsWithoutNames) {
  Items items;
  for (int i = 0; i < 40; ++i) {
    items.push_back(NamedAt(nullptr));
  }
  List list = CreateKeyed(ListCompareCaseSensitive, items);
  EXPECT_EQ(ListFindFirst(list, "a"), nullptr);
  SimpleObjectRec *named = Named("a");
  ListAppendItem(list, named);
  EXPECT_EQ(ListFindFirst(list, "a"), named);
  EXPECT_TRUE(ListSubstitute(list, "a", Create({NamedAt(nullptr)})));
  EXPECT_EQ(ListFindFirst(list, "a"), nullptr);
  EXPECT_EQ(ListLength(list), 41U);
}

namespace {

// One list that is indexed and one that is walked, which get the same operations.
struct Pair {
  List indexed;
  List walked;
};

using MakeName = std::function<SimpleObjectRec *(const std::string &)>;

std::string RandomName(std::mt19937 &random) {
  const auto number = random() % 60;
  return (random() % 2 == 0 ? "name" : "NAME") + std::to_string(number);
}

void SubstituteBoth(const Pair &pair, std::mt19937 &random, const MakeName &make) {
  const std::string key = RandomName(random);
  Items items;
  for (auto left = random() % 4; left > 0; --left) {
    items.push_back(make(RandomName(random)));
  }
  List with = Create(items);
  ASSERT_EQ(ListSubstitute(pair.indexed, key.c_str(), with),
            ListSubstitute(pair.walked, key.c_str(), with));
  ListDestroy(with);
}

void AppendListToBoth(const Pair &pair, std::mt19937 &random, const MakeName &make) {
  Items items;
  for (auto left = random() % 4; left > 0; --left) {
    items.push_back(make(RandomName(random)));
  }
  for (List list : {pair.indexed, pair.walked}) {
    List more = CreateKeyed(list->compare, items);
    ListAppend(list, more);
    ListDestroy(more);
  }
}

void RandomOperation(const Pair &pair, std::mt19937 &random, const MakeName &make) {
  const std::string key = RandomName(random);
  SimpleObjectRec *item = make(RandomName(random));
  switch (random() % 10) {
  case 0:
  case 1:
    ListAppendItem(pair.indexed, item);
    ListAppendItem(pair.walked, item);
    break;
  case 2:
    ListPrependItem(pair.indexed, key.c_str(), item);
    ListPrependItem(pair.walked, key.c_str(), item);
    break;
  case 3:
  case 4:
    ASSERT_EQ(ListDeleteItem(pair.indexed, key.c_str()), ListDeleteItem(pair.walked, key.c_str()));
    break;
  case 5:
    ASSERT_EQ(ListFindItem(pair.indexed, key.c_str()), ListFindItem(pair.walked, key.c_str()));
    break;
  case 6:
    SubstituteBoth(pair, random, make);
    break;
  case 7:
    AppendListToBoth(pair, random, make);
    break;
  case 8:
    ASSERT_EQ(ListGetItem(pair.indexed), ListGetItem(pair.walked));
    break;
  default:
    if (random() % 8 == 0) {
      ListInitTraverse(pair.indexed);
      ListInitTraverse(pair.walked);
    }
    break;
  }
  ASSERT_EQ(ListFindFirst(pair.indexed, key.c_str()), ListFindFirst(pair.walked, key.c_str()));
}

} // namespace

TEST_F(ListTest, IndexedListsBehaveLikeWalkedOnes) {
  const MakeName make = [this](const std::string &name) { return Named(name); };
  constexpr std::pair<CompareProc, CompareProc> kCompares[] = {
      {ListCompareCaseSensitive, OwnSensitiveCompare},
      {ListCompareCaseInsensitive, OwnInsensitiveCompare}};
  std::mt19937 random(19930115);
  for (const auto &[stock, own] : kCompares) {
    const Pair pair = {CreateKeyed(stock, {}), CreateKeyed(own, {})};
    std::uint32_t longest = 0;
    int indexed_steps = 0;
    for (int step = 0; step < 8000; ++step) {
      ASSERT_NO_FATAL_FAILURE(RandomOperation(pair, random, make)) << step;
      ASSERT_EQ(DataOf(pair.indexed->traverse), DataOf(pair.walked->traverse)) << step;
      ASSERT_EQ(DataOf(pair.indexed->previous), DataOf(pair.walked->previous)) << step;
      ASSERT_EQ(Contents(pair.indexed), Contents(pair.walked)) << step;
      longest = std::max(longest, ListLength(pair.indexed));
      indexed_steps += pair.indexed->index != nullptr ? 1 : 0;
      ASSERT_EQ(pair.walked->index, nullptr);
      if (step % 2000 == 1999) {
        ListDestroyItems(pair.indexed);
        ListDestroyItems(pair.walked);
      }
    }
    EXPECT_GT(longest, 60U);
    EXPECT_GT(indexed_steps, 4000);
  }
}

TEST_F(ListTest, AHundredThousandNamesSearchedBeforeEachAppend) {
  constexpr int kNames = 100000;
  Items items;
  for (int i = 0; i < kNames; ++i) {
    items.push_back(Named("push_button_" + std::to_string(i)));
  }
  const auto start = std::chrono::steady_clock::now();
  List list = CreateKeyed(ListCompareCaseInsensitive, {});
  for (void *item : items) {
    const void *name = SimpleListKeyFunc(item);
    ASSERT_EQ(ListFindFirst(list, name), nullptr);
    ListAppendItem(list, item);
    ListInitTraverse(list);
    ASSERT_EQ(ListFindItem(list, name), item);
  }
  for (auto item = items.rbegin(); item != items.rend(); ++item) {
    ASSERT_TRUE(ListDeleteItem(list, SimpleListKeyFunc(*item)));
  }
  EXPECT_EQ(Contents(list), Items());
  RecordProperty("milliseconds",
                 static_cast<int>(std::chrono::duration_cast<std::chrono::milliseconds>(
                                      std::chrono::steady_clock::now() - start)
                                      .count()));
}
