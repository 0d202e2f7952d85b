// Which trees are refused before anything is written.

#include "TreeCheck.h"

#include <string>
#include <vector>

#include "WidgetModel.h"

class TreeCheckTest : public WidgetModel {
protected:
  // What the check prints; the status that ends the run is added at the end.
  static std::string Checked() {
    std::string ending;
    const std::string printed = Reported([&ending] {
      try {
        TreeCheck();
      } catch (const ProgramExit &exit) {
        ending = "[exit " + std::to_string(exit.status) + "]";
      }
    });
    return printed + ending;
  }

  static WidgetRef *Ref(const char *name) { return Reference(name, NIL); }

  // `levels` widgets below `top`, each the only child of the one above; the lowest.
  static WidgetDef *Nest(WidgetDef *top, int levels) {
    for (int i = 0; i < levels; ++i) {
      WidgetDef *child = Inline("inner", "XmForm");
      Controls(top, {child});
      top = child;
    }
    return top;
  }

  // A list that holds `width` times what is given.
  static List Repeated(KindRec *item, int width) {
    List list = ModelList();
    for (int i = 0; i < width; ++i) {
      ModelAppend(list, item);
    }
    return list;
  }

  // 1,000 lists of 1,000 times what is given: as many controls as may be.
  static KindRec *Million(KindRec *item) {
    List thousand = Repeated(item, 1000);
    return Listed(CONTROLS_LIST_NAME, Repeated(Listed(CONTROLS_LIST_NAME, thousand), 1000));
  }
};

TEST_F(TreeCheckTest, NothingAtAllIsSound) { EXPECT_EQ(Checked(), ""); }

TEST_F(TreeCheckTest, SharedChildrenAreSound) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  WidgetDef *shared = Define("shared", "XmForm");
  WidgetDef *left = Inline("left", "XmForm");
  Controls(shared, {Inline("leaf", "XmLabel")});
  Controls(left, {Ref("shared")});
  Controls(top, {left, Ref("shared"), Ref("shared"), Automatic("Xm_OK", "XmPushButton")});
  EXPECT_EQ(Checked(), "");
}

TEST_F(TreeCheckTest, UndefinedObjectsAreReportedOnceEach) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  WidgetDef *second = TopLevel(Define("second", "XmForm"));
  WidgetDef *forward = Define("forward", "XmForm");
  forward->attribs = nullptr;
  Controls(top, {Ref("forward"), Ref("later"), Ref("forward")});
  Controls(second, {Ref("forward")});
  EXPECT_EQ(Checked(), "kivuxl: Reference to undefined object forward.\n"
                       "kivuxl: Reference to undefined object later.\n");
}

TEST_F(TreeCheckTest, ControlThatControlsItself) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  Controls(top, {Ref("top")});
  EXPECT_EQ(Checked(), "kivuxl: Control top contains itself.\n[exit 1]");
}

TEST_F(TreeCheckTest, RingNamesTheFirstWidgetMetAgain) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  WidgetDef *a = Define("a", "XmForm");
  WidgetDef *b = Define("b", "XmForm");
  Controls(a, {Ref("b")});
  Controls(b, {Ref("a")});
  Controls(top, {Inline("leaf", "XmLabel"), Ref("b")});
  EXPECT_EQ(Checked(), "kivuxl: Control b contains itself.\n[exit 1]");
}

TEST_F(TreeCheckTest, RingThroughAListNamesTheWidgetInIt) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  WidgetDef *a = Define("a", "XmForm");
  WidgetDef *b = Define("b", "XmForm");
  List list = Items({Inline("leaf", "XmLabel"), Ref("a")});
  Controls(top, {Listed(CONTROLS_LIST_NAME, list)});
  Controls(a, {Ref("b")});
  Controls(b, {Listed(CONTROLS_LIST_NAME, list)});
  EXPECT_EQ(Checked(), "kivuxl: Control a contains itself.\n[exit 1]");
}

TEST_F(TreeCheckTest, ListThatContainsItselfNamesItsWidget) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  WidgetDef *holder = Define("holder", "XmForm");
  List outer = ModelList();
  List inner = Items({Listed(CONTROLS_LIST_NAME, outer)});
  ModelAppend(outer, Listed(CONTROLS_LIST_NAME, inner));
  Controls(holder, {Listed(CONTROLS_LIST_NAME, outer)});
  Controls(top, {Ref("holder")});
  EXPECT_EQ(Checked(), "kivuxl: Control holder contains itself.\n[exit 1]");
}

TEST_F(TreeCheckTest, RingThatNoTopLevelObjectReachesIsNoError) {
  TopLevel(Define("top", "XmForm"));
  WidgetDef *a = Define("a", "XmForm");
  Controls(a, {Ref("a")});
  EXPECT_EQ(Checked(), "");
}

TEST_F(TreeCheckTest, DepthHasALimit) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  Nest(top, kMaxControlDepth);
  EXPECT_EQ(Checked(), "");
}

TEST_F(TreeCheckTest, DepthOverTheLimit) {
  TopLevel(Define("first", "XmForm"));
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  Nest(top, kMaxControlDepth + 1);
  EXPECT_EQ(Checked(), "kivuxl: Controls nested too deeply below top.\n[exit 1]");
}

TEST_F(TreeCheckTest, UndefinedObjectsAreOneLevel) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  Controls(Nest(top, kMaxControlDepth - 1), {Ref("later")});
  EXPECT_EQ(Checked(), "kivuxl: Reference to undefined object later.\n");
}

TEST_F(TreeCheckTest, ListsInListsAreNoDepth) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  List list = Items({Inline("leaf", "XmLabel")});
  for (int i = 0; i < 2 * kMaxControlDepth; ++i) {
    list = Items({Listed(CONTROLS_LIST_NAME, list)});
  }
  Controls(top, {Listed(CONTROLS_LIST_NAME, list)});
  EXPECT_EQ(Checked(), "");
}

TEST_F(TreeCheckTest, VeryDeepTreesNeedNoStack) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  Nest(top, 50000);
  EXPECT_EQ(Checked(), "kivuxl: Controls nested too deeply below top.\n[exit 1]");
}

TEST_F(TreeCheckTest, PathsHaveALimit) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  Controls(top, {Million(Inline("leaf", "XmLabel"))});
  EXPECT_EQ(Checked(), "");
}

TEST_F(TreeCheckTest, PathsOverTheLimit) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  Controls(top, {Inline("one_more", "XmLabel"), Million(Inline("leaf", "XmLabel"))});
  EXPECT_EQ(Checked(), "kivuxl: Too many controls below top.\n[exit 1]");
}

// What is not defined counts one each time.
TEST_F(TreeCheckTest, UndefinedObjectsCountAsPaths) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  Controls(top, {Million(Ref("later"))});
  EXPECT_EQ(Checked(), "kivuxl: Reference to undefined object later.\n");
}

// 2 ** 100 paths, and two widgets a level.
TEST_F(TreeCheckTest, SharedChildrenAreWalkedOnce) {
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  WidgetDef *level = Inline("leaf", "XmLabel");
  for (int i = 0; i < 100; ++i) {
    WidgetDef *above = Inline("level", "XmForm");
    Controls(above, {level, level});
    level = above;
  }
  Controls(top, {level});
  EXPECT_EQ(Checked(), "kivuxl: Too many controls below top.\n[exit 1]");
}

TEST_F(TreeCheckTest, EachTopLevelObjectCountsWhatIsBelowItself) {
  WidgetDef *big = Define("big", "XmForm");
  Controls(big, {Listed(CONTROLS_LIST_NAME, Repeated(Inline("leaf", "XmLabel"), 600000))});
  Controls(TopLevel(Define("first", "XmForm")), {Ref("big")});
  Controls(TopLevel(Define("second", "XmForm")), {Ref("big"), Ref("big")});
  EXPECT_EQ(Checked(), "kivuxl: Too many controls below second.\n[exit 1]");
}
