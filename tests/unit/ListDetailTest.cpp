// The list and the memory helpers in the places where a slip is easy.

#include "Alloc.h"
#include "Hash.h"
#include "List.h"
#include <cstring>
#include <gtest/gtest.h>
#include <string>

namespace {

char a[] = "a", b[] = "b", c[] = "c", d[] = "d", e[] = "e";
List Of(std::initializer_list<char *> items, CompareProc compare = nullptr,
        KeyProc keyproc = nullptr, DestroyProc destroy = nullptr) {
  List list = ListCreate(compare, destroy, keyproc);
  for (char *item : items) {
    ListAppendItem(list, item);
  }
  return list;
}

std::string Text(List list) {
  std::string text;
  for (const ListItem *node = list->first; node != nullptr; node = node->next) {
    text += static_cast<const char *>(node->data);
  }
  return text;
}

std::string Rest(List list) {
  std::string text;
  while (void *item = ListGetItem(list)) {
    text += static_cast<const char *>(item);
  }
  return text;
}

std::string destroyed;
void Destroy(void *item) { destroyed += static_cast<const char *>(item); }
int CompareText(const void *key, const void *item_key) {
  return std::strcmp(static_cast<const char *>(key), static_cast<const char *>(item_key));
}

const void *Itself(void *item) { return item; }
} // namespace

TEST(ListDetail, EveryChangeForgetsTheNote) {
  List list = Of({a, b, c});
  const auto note_after = [list](const auto &change) {
    list->note = 7;
    change();
    return list->note;
  };
  List other = Of({d});
  List inserted = Of({d, e});
  EXPECT_EQ(Of({})->note, 0U);
  EXPECT_EQ(0U, note_after([list] { ListAppendItem(list, e); }));
  EXPECT_EQ(0U, note_after([list] { ListPrependItem(list, b, e); }));
  EXPECT_EQ(0U, note_after([list] { ListDeleteItem(list, b); }));
  EXPECT_EQ(0U, note_after([=] { ListAppend(list, other); }));
  EXPECT_EQ(0U, note_after([=] { ListSubstitute(list, c, inserted); }));
  EXPECT_EQ("aedeed", Text(list));
  EXPECT_EQ(0U, note_after([=] { ListSubstitute(list, a, nullptr); }));
  EXPECT_EQ(0U, note_after([list] { ListDestroyItems(list); }));
  other->note = 7;
  ListAppendItem(other, a);
  EXPECT_EQ(0U, other->note);
  EXPECT_EQ(7U, note_after([=] { ListFindFirst(list, a); }));
}

TEST(ListDetail, DeletingUnderTheCursorKeepsThePredecessor) {
  List list = Of({a, b, c});
  ListInitTraverse(list);
  EXPECT_EQ(a, ListGetItem(list));
  ListItem *first = list->first;
  EXPECT_TRUE(ListDeleteItem(list, b));
  EXPECT_EQ(first, list->previous);
  EXPECT_EQ(list->last, list->traverse);
  EXPECT_EQ("c", Rest(list));
  ListInitTraverse(list);
  EXPECT_TRUE(ListDeleteItem(list, a)); // the head, under the cursor
  EXPECT_EQ(nullptr, list->previous);
  EXPECT_EQ(c, ListGetItem(list));
  ListDestroy(list);
}

TEST(ListDetail, FindItemLeavesPreviousAlone) {
  char a2[] = "a";
  List list = Of({b, a, c, a2, d}, CompareText, Itself);
  ListInitTraverse(list);
  EXPECT_EQ(a, ListFindItem(list, "a"));
  EXPECT_EQ(nullptr, list->previous);
  EXPECT_EQ(c, ListGetItem(list));
  ListItem *node_c = list->previous;
  EXPECT_EQ(a2, ListFindItem(list, "a"));
  EXPECT_EQ(node_c, list->previous);
  EXPECT_EQ(nullptr, ListFindItem(list, nullptr)); // no search at all
  EXPECT_EQ(list->last, list->traverse);
  EXPECT_EQ(nullptr, ListFindItem(list, "a"));
  EXPECT_EQ(nullptr, list->traverse);
  EXPECT_EQ(nullptr, ListFindItem(list, "d"));
  EXPECT_EQ(b, ListFindFirst(list, "b"));
  EXPECT_EQ(nullptr, list->traverse);
  ListDestroy(list);
}

TEST(ListDetail, SubstituteOfTheItemJustReturned) {
  List list = Of({a, b, c}), two = Of({d, e});
  ListInitTraverse(list);
  ListGetItem(list);
  EXPECT_TRUE(ListSubstitute(list, a, two));
  EXPECT_EQ(nullptr, list->previous);
  EXPECT_EQ(list->first, list->traverse);
  EXPECT_EQ(4U, ListLength(list));
  EXPECT_EQ("debc", Text(list));
  EXPECT_EQ(2U, ListLength(two));
  EXPECT_EQ(nullptr, two->traverse);
  EXPECT_EQ(d, ListGetItem(list));
  EXPECT_EQ(e, ListGetItem(list));
  EXPECT_EQ(b, ListGetItem(list));
  EXPECT_EQ(c, ListGetItem(list));
  EXPECT_TRUE(ListSubstitute(list, c, two)); // the last one, the cursor had run off
  EXPECT_EQ("debde", Text(list));
  EXPECT_EQ(e, ListGetLast(list));
  EXPECT_EQ(nullptr, list->last->next);
  EXPECT_EQ("de", Rest(list));
  ListDestroy(two);
  ListDestroy(list);
}

TEST(ListDetail, SubstituteByNothing) {
  List list = Of({a, b, c, d}, nullptr, nullptr, Destroy), none = Of({});
  destroyed.clear();
  ListInitTraverse(list);
  ListGetItem(list);
  ListGetItem(list); // b; the cursor is on c
  EXPECT_TRUE(ListSubstitute(list, c, none));
  EXPECT_STREQ("b", static_cast<char *>(list->previous->data));
  EXPECT_EQ(list->last, list->traverse);
  EXPECT_TRUE(ListSubstitute(list, d, nullptr)); // last and under the cursor
  EXPECT_EQ(nullptr, list->traverse);
  EXPECT_EQ(b, ListGetLast(list));
  EXPECT_FALSE(ListSubstitute(list, e, none));
  EXPECT_TRUE(ListSubstitute(list, a, none));
  EXPECT_TRUE(ListSubstitute(list, b, none));
  EXPECT_EQ(nullptr, list->first);
  EXPECT_EQ(nullptr, list->last);
  EXPECT_EQ(0U, ListLength(list));
  EXPECT_EQ("cdab", destroyed);
  ListDestroy(none);
  ListDestroy(list);
}

TEST(ListDetail, SubstituteByTheListItself) {
  List list = Of({a, b});
  EXPECT_TRUE(ListSubstitute(list, b, list));
  EXPECT_EQ("aab", Text(list));
  EXPECT_EQ(3U, ListLength(list));
  EXPECT_EQ("ab", Rest(list)); // copying had just returned b
  ListDestroy(list);
}

TEST(ListDetail, PrependAtTheCursorIsVisited) {
  List list = Of({});
  ListPrependItem(list, e, b); // empty: whatever the key
  EXPECT_EQ("b", Text(list));
  ListPrependItem(list, e, d);
  ListPrependItem(list, b, nullptr);
  EXPECT_EQ("b", Text(list));
  ListAppendItem(list, c);
  ListInitTraverse(list);
  ListGetItem(list);
  ListItem *node_b = list->first;
  ListPrependItem(list, c, d);
  EXPECT_EQ(node_b, list->previous);
  EXPECT_EQ(d, list->traverse->data);
  ListPrependItem(list, b, a); // behind the cursor
  EXPECT_EQ("abdc", Text(list));
  EXPECT_EQ(4U, ListLength(list));
  EXPECT_EQ("dc", Rest(list));
  EXPECT_EQ(nullptr, list->last->next);
  ListDestroy(list);
}

TEST(ListDetail, AppendMovesNodesAndLeavesTheCursor) {
  List one = Of({a}), two = Of({b, c}), none = Of({});
  ListInitTraverse(one);
  ListGetItem(one); // cursor at the end
  ListInitTraverse(two);
  ListItem *node_b = two->first;
  ListAppend(one, two);
  EXPECT_EQ(node_b, one->first->next);
  EXPECT_EQ("abc", Text(one));
  EXPECT_EQ(nullptr, ListGetItem(one));
  EXPECT_EQ(nullptr, two->first);
  EXPECT_EQ(nullptr, two->last);
  EXPECT_EQ(nullptr, two->traverse);
  EXPECT_EQ(nullptr, two->previous);
  EXPECT_EQ(0U, ListLength(two));
  ListAppend(none, one);
  EXPECT_EQ("abc", Text(none));
  EXPECT_EQ(c, ListGetLast(none));
  EXPECT_EQ(3U, ListLength(none));
  ListAppendItem(two, d);
  EXPECT_EQ("d", Text(two));
  for (List list : {one, two, none}) {
    ListDestroy(list);
  }
}

TEST(ListDetail, OneFunctionAloneMeansPointers) {
  char a2[] = "a";
  List compare_only = Of({a}, CompareText, nullptr);
  List key_only = Of({a}, nullptr, Itself);
  List both = Of({a}, CompareText, Itself);
  for (List list : {compare_only, key_only}) {
    EXPECT_EQ(nullptr, ListFindFirst(list, a2));
    EXPECT_EQ(a, ListFindFirst(list, a));
    EXPECT_FALSE(ListDeleteItem(list, a2));
  }
  EXPECT_EQ(a, ListFindFirst(both, a2));
  EXPECT_TRUE(ListDeleteItem(both, a2));
  EXPECT_FALSE(ListDeleteItem(both, a2));
  EXPECT_FALSE(ListDeleteItem(nullptr, a2));
  for (List list : {compare_only, key_only, both}) {
    ListDestroy(list);
  }
}

TEST(ListDetail, AppendDuringATraversal) {
  List list = Of({a});
  ListInitTraverse(list);
  ListAppendItem(list, b); // the cursor is still on a
  EXPECT_EQ(a, ListGetItem(list));
  EXPECT_EQ(b, ListGetItem(list));
  ListAppendItem(list, c); // it has run off
  EXPECT_EQ(nullptr, ListGetItem(list));
  EXPECT_EQ(3U, ListLength(list));
  List fresh = Of({});
  ListInitTraverse(fresh);
  ListAppendItem(fresh, a);
  EXPECT_EQ(nullptr, ListGetItem(fresh));
  ListCopyItems(fresh, list);
  EXPECT_EQ("aabc", Text(fresh));
  EXPECT_EQ(nullptr, list->traverse);
  ListDestroy(fresh);
  ListDestroy(list);
}

TEST(ListDetail, DestroyItemsKeepsTheFunctions) {
  List list = Of({a, b, c}, CompareText, Itself, Destroy);
  ListInitTraverse(list);
  ListGetItem(list);
  destroyed.clear();
  EXPECT_TRUE(ListDeleteItem(list, "c"));
  EXPECT_EQ("c", destroyed);
  ListDestroyItems(list);
  EXPECT_EQ("cab", destroyed);
  EXPECT_EQ(nullptr, list->traverse);
  EXPECT_EQ(nullptr, list->previous);
  EXPECT_EQ(0U, ListLength(list));
  ListAppendItem(list, d);
  EXPECT_EQ(d, ListFindFirst(list, "d"));
  ListDestroy(list);
  EXPECT_EQ("cabd", destroyed);
}

TEST(ListDetail, SmartBlocksGoInSteps) {
  std::size_t actual = 99;
  const std::size_t wanted[] = {0, 1, 12, 13, 28, 29, 44, 45};
  const std::size_t given[] = {12, 12, 12, 28, 28, 44, 44, 60};
  for (int i = 0; i < 8; i++) {
    _MFree(_SmartMalloc(wanted[i], &actual));
    EXPECT_EQ(given[i], actual) << wanted[i];
  }
  actual = 99;
  void *block = _SmartRealloc(nullptr, 13, &actual);
  ASSERT_NE(nullptr, block);
  EXPECT_EQ(28U, actual);
  EXPECT_EQ(block, _SmartRealloc(block, 28, &actual));
  EXPECT_EQ(block, _SmartRealloc(block, 0, &actual));
  EXPECT_EQ(28U, actual);
  block = _SmartRealloc(block, 29, &actual);
  EXPECT_EQ(44U, actual);
  _MFree(block);
}

TEST(ListDetail, TextsThatMayBeNull) {
  EXPECT_EQ(0, SafeStrcmp(nullptr, nullptr, 0));
  EXPECT_EQ(-1, SafeStrcmp(nullptr, "", 1));
  EXPECT_EQ(1, SafeStrcmp("", nullptr, 0));
  EXPECT_EQ(0, SafeStrcmp("aB", "Ab", 0));
  EXPECT_LT(0, SafeStrcmp("aB", "Ab", -1));
  EXPECT_GT(0, SafeStrcmp("a", "B", 0));
  EXPECT_LT(0, SafeStrcmp("a", "B", 1));
  char buffer[8] = "old";
  EXPECT_EQ(buffer, SafeStrcpy(buffer, nullptr));
  EXPECT_STREQ("old", buffer);
  EXPECT_EQ(nullptr, SafeStrcpy(nullptr, "x"));
  EXPECT_STREQ("", SafeStrcpy(buffer, ""));
  EXPECT_EQ(nullptr, SafeStrdup(nullptr));
  SimpleObjectRec named{};
  named.kind = 5;
  named.name = a;
  EXPECT_EQ(a, SimpleListKeyFunc(&named));
  EXPECT_EQ(nullptr, SimpleListKeyFunc(nullptr));
}
