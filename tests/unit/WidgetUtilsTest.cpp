// Tests of the widget tree analysis: opened lists, resolved references, shells, automatic
// children, counts and names.

#include "WidgetUtils.h"

#include <chrono>
#include <cstring>
#include <limits>

#include "WidgetModel.h"

namespace {

class WidgetUtils : public WidgetModel {};

// -- Flattening --------------------------------------------------------------------------------

TEST_F(WidgetUtils, NothingGivesAnEmptyList) {
  EXPECT_EQ(ListLength(FlatList(WidgetFlatArgumentsList(nullptr)).get()), 0U);
  EXPECT_EQ(ListLength(FlatList(WidgetFlatCallbacksList(nullptr)).get()), 0U);
  EXPECT_EQ(ListLength(FlatList(WidgetFlatControlsList(nullptr)).get()), 0U);
  auto *bare = ModelNew<WidgetDef>(WIDGET_NAME);
  EXPECT_EQ(ListLength(FlatList(WidgetFlatArgumentsList(bare)).get()), 0U);
  EXPECT_EQ(ListLength(FlatList(WidgetFlatCallbacksList(bare)).get()), 0U);
  EXPECT_EQ(ListLength(FlatList(WidgetFlatControlsList(bare)).get()), 0U);
}

TEST_F(WidgetUtils, ResultHasNoFunctions) {
  WidgetDef *widget = Define("w", "XmForm");
  Controls(widget, {Inline("a", "XmLabel")});
  const FlatList controls(WidgetFlatControlsList(widget));
  EXPECT_EQ(controls->compare, nullptr);
  EXPECT_EQ(controls->destroy, nullptr);
  EXPECT_EQ(controls->keyproc, nullptr);
}

TEST_F(WidgetUtils, ArgumentsListsAreOpenedInPlace) {
  List innermost = Items({Argument("c", Integer(1)), Argument("d", Integer(1))});
  List inner = Items({Argument("b", Integer(1)), Listed(ARGUMENTS_LIST_NAME, innermost),
                      Argument("e", Integer(1))});
  WidgetDef *widget = Define("w", "XmForm");
  Arguments(widget, {Argument("a", Integer(1)), Listed(ARGUMENTS_LIST_NAME, inner),
                     Listed(ARGUMENTS_LIST_NAME, ModelList()), Argument("f", Integer(1))});
  Arguments(widget, {Listed(ARGUMENTS_LIST_NAME, innermost), Argument("a", Integer(2))});
  EXPECT_EQ(Names(FlatList(WidgetFlatArgumentsList(widget))), "a b c d e f c d a ");
  EXPECT_EQ(ListLength(widget->args), 2U);
  EXPECT_EQ(ListLength(inner), 3U);
  EXPECT_EQ(ListLength(innermost), 2U);
}

TEST_F(WidgetUtils, CallbacksListsAreOpenedInPlace) {
  List inner = Items({Callback("b", {}), Callback("c", {})});
  WidgetDef *widget = Define("w", "XmForm");
  Callbacks(widget, {Callback("a", {}), Listed(CALLBACKS_LIST_NAME, inner), Callback("d", {})});
  EXPECT_EQ(Names(FlatList(WidgetFlatCallbacksList(widget))), "a b c d ");
}

TEST_F(WidgetUtils, ControlsListsAreOpenedInPlace) {
  List innermost = Items({Inline("c", "XmLabel"), Automatic("Xm_OK", "XmPushButton")});
  List inner = Items({Inline("b", "XmLabel"), Listed(CONTROLS_LIST_NAME, innermost)});
  WidgetDef *widget = Define("w", "XmForm");
  Controls(widget, {Inline("a", "XmLabel"), Listed(CONTROLS_LIST_NAME, inner),
                    Widget(WIDGET_NAME, "d", "XmLabel")});
  EXPECT_EQ(Names(FlatList(WidgetFlatControlsList(widget))), "a b c Xm_OK d ");
}

TEST_F(WidgetUtils, ListsOfOtherSortsAreKept) {
  UnionList *other = Listed(CONTROLS_LIST, Items({Inline("a", "XmLabel")}));
  WidgetDef *widget = Define("w", "XmForm");
  Arguments(widget, {other});
  Callbacks(widget, {other});
  EXPECT_EQ(Contents(FlatList(WidgetFlatArgumentsList(widget))),
            std::vector<void *>{static_cast<void *>(other)});
  EXPECT_EQ(Contents(FlatList(WidgetFlatCallbacksList(widget))),
            std::vector<void *>{static_cast<void *>(other)});
}

TEST_F(WidgetUtils, UnexpectedKindIsReportedAndKept) {
  WidgetDef *widget = Define("w", "XmForm");
  IntegerValue *odd = Integer(1);
  Controls(widget, {Inline("a", "XmLabel"), odd});
  FlatList controls;
  EXPECT_EQ(Reported([&] { controls.reset(WidgetFlatControlsList(widget)); }),
            "kivuxl: Internal error, object of unexpected type 263 in controls list.\n");
  ASSERT_EQ(ListLength(controls.get()), 2U);
  EXPECT_EQ(ListGetLast(controls.get()), odd);
}

TEST_F(WidgetUtils, ListsInListsMayBeDeep) {
  List list = Items({Argument("XmNx", Integer(1))});
  for (int depth = 0; depth < 200000; ++depth) {
    list = Items({Listed(ARGUMENTS_LIST_NAME, list)});
  }
  WidgetDef *widget = Define("w", "XmForm");
  widget->args = list;
  EXPECT_EQ(Names(FlatList(WidgetFlatArgumentsList(widget))), "XmNx ");
}

TEST_F(WidgetUtils, TooManyItemsEndTheRun) {
  WidgetDef *widget = Define("w", "XmForm");
  KindRec *argument = Argument("XmNx", Integer(1));
  for (unsigned i = 0; i < kMaxFlatItems; ++i) {
    ModelAppend(widget->args, argument);
  }
  EXPECT_EQ(ListLength(FlatList(WidgetFlatArgumentsList(widget)).get()), kMaxFlatItems);
  ModelAppend(widget->args, argument);
  EXPECT_EQ(Reported([&] { EXPECT_THROW(WidgetFlatArgumentsList(widget), ProgramExit); }),
            "kivuxl: Too many arguments in w.\n");
}

// A callback counts for each of its procedures, and for one when it has none or one.
TEST_F(WidgetUtils, ProceduresAreCountedAsItems) {
  for (const auto &callback : {Callback("a", {Invoke("p")}), Callback("a", {})}) {
    List list = ModelList();
    for (unsigned i = 0; i < kMaxFlatItems - 2; ++i) {
      ModelAppend(list, callback);
    }
    WidgetDef *widget = Inline("w", "XmForm");
    Callbacks(widget,
              {Listed(CALLBACKS_LIST_NAME, list), Callback("b", {Invoke("p"), Invoke("q")})});
    EXPECT_EQ(ListLength(FlatList(WidgetFlatCallbacksList(widget)).get()), kMaxFlatItems - 1);
    Callbacks(widget, {Callback("c", {})});
    EXPECT_EQ(Reported([&] { EXPECT_THROW(WidgetFlatCallbacksList(widget), ProgramExit); }),
              "kivuxl: Too many callbacks in w.\n");
  }
}

// Forty lists, each naming the one before twice: 2^40 items for 80 lines of source.
TEST_F(WidgetUtils, ListsThatDoubleEndTheRun) {
  List arguments = Items({Argument("XmNx", Integer(1))});
  List callbacks = Items({Callback("a", {})});
  List controls = Items({Inline("a", "XmLabel")});
  for (int level = 0; level < 40; ++level) {
    arguments =
        Items({Listed(ARGUMENTS_LIST_NAME, arguments), Listed(ARGUMENTS_LIST_NAME, arguments)});
    callbacks =
        Items({Listed(CALLBACKS_LIST_NAME, callbacks), Listed(CALLBACKS_LIST_NAME, callbacks)});
    controls = Items({Listed(CONTROLS_LIST_NAME, controls), Listed(CONTROLS_LIST_NAME, controls)});
  }
  WidgetDef *widget = Define("w", "XmForm");
  widget->args = arguments;
  widget->cbs = callbacks;
  widget->ctls = controls;
  EXPECT_EQ(Reported([&] { EXPECT_THROW(WidgetFlatArgumentsList(widget), ProgramExit); }),
            "kivuxl: Too many arguments in w.\n");
  EXPECT_EQ(Reported([&] { EXPECT_THROW(WidgetFlatCallbacksList(widget), ProgramExit); }),
            "kivuxl: Too many callbacks in w.\n");
  EXPECT_EQ(Reported([&] { EXPECT_THROW(WidgetFlatControlsList(widget), ProgramExit); }),
            "kivuxl: Too many controls below w.\n");
}

// The same with nothing in the innermost list: no item, and no step for each of the 2^40 ways to
// it.
TEST_F(WidgetUtils, EmptyListsThatDoubleCostNothing) {
  List list = ModelList();
  for (int level = 0; level < 40; ++level) {
    list = Items({Listed(ARGUMENTS_LIST_NAME, list), Listed(ARGUMENTS_LIST_NAME, list)});
  }
  WidgetDef *widget = Define("w", "XmForm");
  widget->args = list;
  EXPECT_EQ(Names(FlatList(WidgetFlatArgumentsList(widget))), "");
  WidgetDef *other = Define("v", "XmForm");
  Arguments(other, {Listed(ARGUMENTS_LIST_NAME, list), Argument("XmNx", Integer(1))});
  EXPECT_EQ(Names(FlatList(WidgetFlatArgumentsList(other))), "XmNx ");
}

// Lists in lists that open into as many items as are allowed, and one more.
TEST_F(WidgetUtils, ItemsOfListsInListsAreCounted) {
  List list = ModelList();
  for (unsigned i = 0; i < kMaxFlatItems / 2; ++i) {
    ModelAppend(list, Argument("XmNx", Integer(1)));
  }
  WidgetDef *widget = Define("w", "XmForm");
  Arguments(widget, {Listed(ARGUMENTS_LIST_NAME, list), Listed(ARGUMENTS_LIST_NAME, list)});
  EXPECT_EQ(ListLength(FlatList(WidgetFlatArgumentsList(widget)).get()), kMaxFlatItems);
  Arguments(widget, {Argument("XmNy", Integer(1))});
  EXPECT_EQ(Reported([&] { EXPECT_THROW(WidgetFlatArgumentsList(widget), ProgramExit); }),
            "kivuxl: Too many arguments in w.\n");
}

TEST_F(WidgetUtils, ListThatHoldsItselfEndsTheRun) {
  List list = Items({Argument("XmNx", Integer(1))});
  ModelAppend(list, Listed(ARGUMENTS_LIST_NAME, list));
  WidgetDef *widget = Define("w", "XmForm");
  widget->args = list;
  EXPECT_EQ(Reported([&] { EXPECT_THROW(WidgetFlatArgumentsList(widget), ProgramExit); }),
            "kivuxl: Too many arguments in w.\n");
}

// What is taken as it is stays in the model.
TEST_F(WidgetUtils, ListWithoutListsIsUsedAsItIs) {
  List list = Items({Argument("XmNx", Integer(1)), Argument("XmNy", Integer(1))});
  WidgetDef *widget = Define("w", "XmForm");
  ModelAppend(widget->args, Listed(ARGUMENTS_LIST_NAME, list));
  for (int i = 0; i < 2; ++i) {
    const FlatList flat(WidgetFlatArgumentsList(widget));
    EXPECT_EQ(flat.get(), list);
  }
  EXPECT_EQ(ListLength(list), 2U);
}

// -- References --------------------------------------------------------------------------------

TEST_F(WidgetUtils, ReferenceTakesAllButManagedFromTheDefinition) {
  WidgetDef *child = Define("child", "XmPushButton");
  child->managed = MANAGED;
  child->gadget = GADGET;
  child->maybe_top = true;
  WidgetDef *widget = Define("w", "XmForm");
  Controls(widget, {Reference("child", UNMANAGED), Reference("child", NIL)});

  const FlatList controls(WidgetFlatControlsList(widget));
  ASSERT_EQ(ListLength(controls.get()), 2U);
  const auto *copy = static_cast<const WidgetDef *>(ListGetFirst(controls.get()));
  EXPECT_NE(copy, child);
  EXPECT_EQ(copy->managed, UNMANAGED);
  EXPECT_EQ(copy->kind, WIDGET_NAME);
  EXPECT_STREQ(copy->name, "child");
  EXPECT_EQ(copy->gadget, GADGET);
  EXPECT_EQ(copy->type, child->type);
  EXPECT_EQ(copy->attribs, child->attribs);
  EXPECT_EQ(copy->args, child->args);
  EXPECT_EQ(copy->cbs, child->cbs);
  EXPECT_EQ(copy->ctls, child->ctls);
  EXPECT_FALSE(copy->anon);
  EXPECT_TRUE(copy->maybe_top);
  EXPECT_EQ(ListGetLast(controls.get()), child); // which is not unmanaged either
  EXPECT_EQ(child->managed, MANAGED);
  EXPECT_EQ(WidgetOrigin(copy), child);
  EXPECT_EQ(WidgetOrigin(child), child);
}

TEST_F(WidgetUtils, ReferenceIsCopiedOnce) {
  Define("child", "XmPushButton");
  WidgetDef *widget = Define("w", "XmForm");
  Controls(widget, {Reference("child", NIL)});
  EXPECT_EQ(Contents(FlatList(WidgetFlatControlsList(widget))),
            Contents(FlatList(WidgetFlatControlsList(widget))));
}

TEST_F(WidgetUtils, UndefinedReferenceIsReportedOnceAndKept) {
  WidgetDef *widget = Define("parent", "XmForm");
  WidgetRef *reference = Reference("w", NIL);
  Controls(widget, {reference, Reference("w", MANAGED), Reference("v", NIL)});
  FlatList controls;
  EXPECT_EQ(Reported([&] { controls.reset(WidgetFlatControlsList(widget)); }),
            "kivuxl: Reference to undefined object w.\n"
            "kivuxl: Reference to undefined object v.\n");
  ASSERT_EQ(ListLength(controls.get()), 3U);
  EXPECT_EQ(ListGetFirst(controls.get()), reference);
  EXPECT_EQ(reference->kind, WIDGET_REF);
  EXPECT_EQ(Reported([&] { controls.reset(WidgetFlatControlsList(widget)); }), "");
  WidgetUtilsReset();
  EXPECT_EQ(Reported([&] { EXPECT_EQ(WidgetResolve(reference), nullptr); }),
            "kivuxl: Reference to undefined object w.\n");
}

TEST_F(WidgetUtils, UndefinedReferencesFollowTheCaseRule) {
  EXPECT_EQ(Reported([&] {
              WidgetResolve(Reference("w", NIL));
              WidgetResolve(Reference("W", NIL));
            }),
            "kivuxl: Reference to undefined object w.\n"
            "kivuxl: Reference to undefined object W.\n");
  IgnoreCase();
  WidgetUtilsReset();
  EXPECT_EQ(Reported([&] {
              WidgetResolve(Reference("W", NIL));
              WidgetResolve(Reference("w", NIL));
            }),
            "kivuxl: Reference to undefined object W.\n");
}

TEST_F(WidgetUtils, ForwardReferenceAloneIsUndefined) {
  auto *empty = ModelNew<WidgetDef>(WIDGET_NAME);
  empty->name = "later";
  Bind("later", empty);
  WidgetRef *reference = Reference("later", NIL);
  EXPECT_EQ(Reported([&] { EXPECT_EQ(WidgetResolve(reference), nullptr); }),
            "kivuxl: Reference to undefined object later.\n");
  EXPECT_FALSE(WidgetIsDefined(empty));
  EXPECT_FALSE(WidgetIsDefined(nullptr));

  empty->attribs = ModelList();
  EXPECT_TRUE(WidgetIsDefined(empty));
  ASSERT_NE(WidgetResolve(reference), nullptr);
  EXPECT_EQ(WidgetOrigin(WidgetResolve(reference)), empty);
}

TEST_F(WidgetUtils, ReferenceToWhatIsNoWidgetIsReportedAndKept) {
  SymbolAdd(ModelBinding(INTEGER_VALUE, "size", Integer(4)));
  WidgetDef *widget = Define("w", "XmForm");
  WidgetRef *reference = Reference("size", NIL);
  Controls(widget, {reference});
  FlatList controls;
  EXPECT_EQ(Reported([&] { controls.reset(WidgetFlatControlsList(widget)); }),
            "kivuxl: Object size is not a widget.\n");
  EXPECT_EQ(Contents(controls), std::vector<void *>{static_cast<void *>(reference)});
  EXPECT_EQ(Reported([&] { EXPECT_EQ(WidgetResolve(reference), nullptr); }), ""); // said once
}

// -- Classes and reasons -----------------------------------------------------------------------

TEST_F(WidgetUtils, TwoClassesTakeTheirChildrenFirst) {
  EXPECT_TRUE(WidgetChildrenFirst(Inline("w", "XmCascadeButton")));
  EXPECT_TRUE(WidgetChildrenFirst(Inline("w", "XmOptionMenu")));
  EXPECT_FALSE(WidgetChildrenFirst(Inline("w", "XmCascadeButtonGadget")));
  EXPECT_FALSE(WidgetChildrenFirst(Inline("w", "XmForm")));
  EXPECT_FALSE(WidgetChildrenFirst(Inline("w", "xmoptionmenu")));
  EXPECT_FALSE(WidgetChildrenFirst(nullptr));
  case_sensitive = false;
  EXPECT_TRUE(WidgetChildrenFirst(Inline("w", "xmoptionmenu")));
}

TEST_F(WidgetUtils, OneClassHasGadgetsForChildren) {
  EXPECT_TRUE(WidgetChildrenAreGadgets(Inline("w", "XmOptionMenu")));
  EXPECT_FALSE(WidgetChildrenAreGadgets(Inline("w", "XmCascadeButton")));
}

TEST_F(WidgetUtils, CreateCallbackIsKnownByName) {
  EXPECT_TRUE(ReasonIsCreateCallback("MrmNcreateCallback"));
  EXPECT_FALSE(ReasonIsCreateCallback("mrmncreatecallback"));
  EXPECT_FALSE(ReasonIsCreateCallback("XmNactivateCallback"));
  case_sensitive = false;
  EXPECT_TRUE(ReasonIsCreateCallback("mrmncreatecallback"));
}

// -- Shells ------------------------------------------------------------------------------------

TEST_F(WidgetUtils, ShellFollowsTheEndOfTheClassName) {
  const struct {
    const char *class_name;
    const char *shell;
  } rows[] = {
      {"XmPromptDialog", "dialogShell"},      {"XDialog", "dialogShell"},
      {"Dialog", "applicationShell"},         {"XmPopupMenu", "menuShell"},
      {"Menu", "applicationShell"},           {"XmMenuBar", "menuShell"},
      {"MenuBar", "applicationShell"},        {"XmMainWindow", "applicationShell"},
      {"XmPromptdialog", "applicationShell"},
  };
  for (const auto &row : rows) {
    EXPECT_STREQ(DeduceShellForTopLevel(Inline("w", row.class_name)), row.shell) << row.class_name;
  }
  case_sensitive = false;
  EXPECT_STREQ(DeduceShellForTopLevel(Inline("w", "XmPromptdialog")), "dialogShell");
}

TEST_F(WidgetUtils, ShellOfNamelessWidgetIsAnError) {
  const std::string message = "kivuxl: Internal error: No name or class for top-level widget.\n";
  WidgetDef *nameless = Inline(nullptr, "XmPromptDialog");
  WidgetDef *classless = Inline("w", "XmForm");
  classless->type = nullptr;
  EXPECT_EQ(Reported([&] { EXPECT_STREQ(DeduceShellForTopLevel(nullptr), ""); }), message);
  EXPECT_EQ(Reported([&] { EXPECT_STREQ(DeduceShellForTopLevel(nameless), ""); }), message);
  EXPECT_EQ(Reported([&] { EXPECT_STREQ(DeduceShellForTopLevel(classless), ""); }), message);

  TopLevel(classless);
  EXPECT_EQ(Reported([&] { AppendShellsForTopLevel(); }), message);
  EXPECT_STREQ(static_cast<Kivu_ShellInfo *>(ListGetFirst(shellinfo))->shellName, "w_shell");
}

Kivu_ShellInfo *ShellOption(const char *child, const char *name, const char *shell_class) {
  auto *info = ModelNew<Kivu_ShellInfo>(0);
  info->childName = child;
  info->shellName = name;
  info->shellClass = shell_class;
  info->pkgName = "other";
  if (shellinfo == nullptr) {
    shellinfo = ModelList();
  }
  ModelAppend(shellinfo, info);
  return info;
}

std::string ShellLines() {
  std::string text;
  for (const ListItem *node = ListFirstNode(shellinfo); node != nullptr; node = node->next) {
    const auto *info = static_cast<const Kivu_ShellInfo *>(node->data);
    text += std::string(info->childName) + " " + info->shellName + " " + info->shellClass + " " +
            info->pkgName + "\n";
  }
  return text;
}

TEST_F(WidgetUtils, NoTopLevelObjectsAddNoShells) {
  AppendShellsForTopLevel();
  EXPECT_EQ(shellinfo, nullptr);
}

TEST_F(WidgetUtils, FirstOrdinaryWidgetGetsTheApplicationShell) {
  TopLevel(Define("p", "XmPromptDialog"));
  TopLevel(Define("m", "XmMenuBar"));
  TopLevel(Define("a", "XmMainWindow"));
  TopLevel(Define("b", "XmMainWindow"));
  TopLevel(Define("c", "XmForm"));
  AppendShellsForTopLevel();
  EXPECT_EQ(ShellLines(), "p p_popup dialogShell demo\n"
                          "m m_menu menuShell demo\n"
                          "a a_appl applicationShell demo\n"
                          "b b_shell topLevelShell demo\n"
                          "c c_shell topLevelShell demo\n");
}

TEST_F(WidgetUtils, ShellOfAnOptionWins) {
  ShellOption("b", "mine", "dialogShell");
  TopLevel(Define("a", "XmMainWindow"));
  TopLevel(Define("b", "XmMainWindow"));
  TopLevel(Define("B", "XmMainWindow"));
  AppendShellsForTopLevel();
  EXPECT_EQ(ShellLines(), "b mine dialogShell other\n"
                          "a a_appl applicationShell demo\n"
                          "B B_shell topLevelShell demo\n");
}

TEST_F(WidgetUtils, ShellOfAnOptionIsFoundInAnyCase) {
  IgnoreCase();
  ShellOption("B", "mine", "APPLICATIONSHELL");
  TopLevel(Define("a", "XmMainWindow"));
  TopLevel(Define("b", "XmMainWindow"));
  AppendShellsForTopLevel();
  EXPECT_EQ(ShellLines(), "B mine APPLICATIONSHELL other\n"
                          "a a_shell topLevelShell demo\n");
}

TEST_F(WidgetUtils, ApplicationShellOfAnOptionIsTheOnlyOne) {
  ShellOption("elsewhere", "mine", "applicationShell");
  TopLevel(Define("a", "XmMainWindow"));
  TopLevel(Define("p", "XmPromptDialog"));
  AppendShellsForTopLevel();
  EXPECT_EQ(ShellLines(), "elsewhere mine applicationShell other\n"
                          "a a_shell topLevelShell demo\n"
                          "p p_popup dialogShell demo\n");
}

TEST_F(WidgetUtils, ManyShellsTakeLinearTime) {
  constexpr int kWidgets = 60000;
  std::vector<std::string> names;
  names.reserve(kWidgets);
  for (int i = 0; i < kWidgets; ++i) {
    names.push_back("widget_" + std::to_string(i));
    TopLevel(Inline(names.back().c_str(), i < kWidgets / 2 ? "XmPromptDialog" : "XmForm"));
  }
  const auto start = std::chrono::steady_clock::now();
  AppendShellsForTopLevel();
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_EQ(ListLength(shellinfo), static_cast<unsigned>(kWidgets));
}

// -- Automatically created children ------------------------------------------------------------

struct NamePair {
  const char *key;
  const char *text; // null: none
};

constexpr NamePair kChildFunctions[] = {
    {"XmErrorDialog", "XmMessageBoxGetChild"},
    {"XmFileSelectionBox", "XmFileSelectionBoxGetChild"},
    {"XmFileSelectionDialog", "XmFileSelectionBoxGetChild"},
    {"XmInformationDialog", "XmMessageBoxGetChild"},
    {"XmMainWindow", nullptr},
    {"XmMessageBox", "XmMessageBoxGetChild"},
    {"XmMessageDialog", "XmMessageBoxGetChild"},
    {"XmOptionMenu", nullptr},
    {"XmPromptDialog", "XmSelectionBoxGetChild"},
    {"XmPulldownMenu", nullptr},
    {"XmQuestionDialog", "XmMessageBoxGetChild"},
    {"XmScale", nullptr},
    {"XmScrolledList", nullptr},
    {"XmScrolledText", nullptr},
    {"XmScrolledWindow", nullptr},
    {"XmSelectionBox", "XmSelectionBoxGetChild"},
    {"XmSelectionDialog", "XmSelectionBoxGetChild"},
    {"XmTemplateDialog", "XmMessageBoxGetChild"},
    {"XmWarningDialog", "XmMessageBoxGetChild"},
    {"XmWorkingDialog", "XmMessageBoxGetChild"},
    {"XmForm", nullptr},
};

constexpr NamePair kChildConstants[] = {
    {"Xm_Apply", "XmDIALOG_APPLY_BUTTON"},
    {"Xm_Cancel", "XmDIALOG_CANCEL_BUTTON"},
    {"Xm_Dir", "XmDIALOG_DIR_LIST_LABEL"},
    {"Xm_DirList", "XmDIALOG_DIR_LIST"},
    {"Xm_Filter", "XmDIALOG_APPLY_BUTTON"},
    {"Xm_FilterLabel", "XmDIALOG_FILTER_LABEL"},
    {"Xm_FilterText", "XmDIALOG_FILTER_TEXT"},
    {"Xm_Help", "XmDIALOG_HELP_BUTTON"},
    {"Xm_HorScrollBar", nullptr},
    {"Xm_Items", "XmDIALOG_LIST_LABEL"},
    {"Xm_ItemsList", "XmDIALOG_LIST"},
    {"Xm_Message", "XmDIALOG_MESSAGE_LABEL"},
    {"Xm_OK", "XmDIALOG_OK_BUTTON"},
    {"Xm_OptionButton", nullptr},
    {"Xm_OptionLabel", nullptr},
    {"Xm_Selection", "XmDIALOG_SELECTION_LABEL"},
    {"Xm_Separator", "XmDIALOG_SEPARATOR"},
    {"Xm_Separator1", nullptr},
    {"Xm_Separator2", nullptr},
    {"Xm_Separator3", nullptr},
    {"Xm_Symbol", "XmDIALOG_SYMBOL_LABEL"},
    {"Xm_TearOffControl", nullptr},
    {"Xm_Text", "XmDIALOG_TEXT"},
    {"Xm_Title", nullptr},
    {"Xm_VertScrollBar", nullptr},
    {"Xm_Nothing", nullptr},
};

TEST_F(WidgetUtils, GetChildFunctions) {
  for (const NamePair &row : kChildFunctions) {
    EXPECT_STREQ(NameOfGetChildFunction(row.key), row.text) << row.key;
  }
  EXPECT_EQ(NameOfGetChildFunction("xmerrordialog"), nullptr);
  case_sensitive = false;
  EXPECT_STREQ(NameOfGetChildFunction("xmerrordialog"), "XmMessageBoxGetChild");
}

TEST_F(WidgetUtils, GetChildArguments) {
  for (const NamePair &row : kChildConstants) {
    EXPECT_STREQ(NameOfGetChildArgument(row.key), row.text) << row.key;
  }
  EXPECT_EQ(NameOfGetChildArgument("xm_ok"), nullptr);
  case_sensitive = false;
  EXPECT_STREQ(NameOfGetChildArgument("xm_ok"), "XmDIALOG_OK_BUTTON");
}

// -- Counts ------------------------------------------------------------------------------------

TEST_F(WidgetUtils, PairedArgumentsCountTwo) {
  WidgetDef *widget = Define("w", "XmList");
  EXPECT_EQ(WidgetCountArguments(FlatList(WidgetFlatArgumentsList(widget)).get()), 0);
  Arguments(widget, {Argument("XmNitems", Integer(1)), Argument("XmNwidth", Integer(1))});
  EXPECT_EQ(WidgetCountArguments(FlatList(WidgetFlatArgumentsList(widget)).get()), 3);
  Arguments(widget, {Argument("xmnitems", Integer(1))});
  EXPECT_EQ(WidgetCountArguments(FlatList(WidgetFlatArgumentsList(widget)).get()), 4);
  case_sensitive = false;
  EXPECT_EQ(WidgetCountArguments(FlatList(WidgetFlatArgumentsList(widget)).get()), 5);
}

TEST_F(WidgetUtils, CallbacksCountTheirProcedures) {
  WidgetDef *widget = Define("w", "XmForm");
  EXPECT_EQ(WidgetCountCallbacks(FlatList(WidgetFlatCallbacksList(widget)).get()), 0);
  Callbacks(widget, {Callback("a", {Invoke("p"), Invoke("q"), Invoke("r")}), Callback("b", {}),
                     Callback("c", {Invoke("p")})});
  EXPECT_EQ(WidgetCountCallbacks(FlatList(WidgetFlatCallbacksList(widget)).get()), 4);
}

TEST_F(WidgetUtils, ReferencesToNothingCountAsChildren) {
  WidgetDef *widget = Define("w", "XmForm");
  Controls(widget,
           {Reference("nothing", NIL), Inline("a", "XmLabel"), Automatic("Xm_OK", "XmPushButton")});
  Reported([&] {
    EXPECT_EQ(WidgetCountChildren(FlatList(WidgetFlatControlsList(widget)).get()), 3);
    EXPECT_EQ(WidgetCountHierarchy(widget), 4);
  });
}

TEST_F(WidgetUtils, HierarchyCountsSharedWidgetsEachTime) {
  WidgetDef *shared = Define("shared", "XmForm");
  Controls(shared, {Inline("leaf", "XmLabel")});
  WidgetDef *left = Define("left", "XmForm");
  Controls(left, {Reference("shared", NIL)});
  WidgetDef *ok = Automatic("Xm_OK", "XmPushButton");
  Controls(ok, {Reference("shared", UNMANAGED)});
  WidgetDef *top = Define("top", "XmForm");
  Controls(top, {Reference("left", NIL), Reference("shared", NIL), ok});
  EXPECT_EQ(WidgetCountHierarchy(shared), 2);
  EXPECT_EQ(WidgetCountHierarchy(ok), 3);
  EXPECT_EQ(WidgetCountHierarchy(top), 1 + 3 + 2 + 3);
}

// Each level has the level below twice, so that each level doubles the count.
TEST_F(WidgetUtils, HierarchySaturates) {
  constexpr int kLevels = 100;
  std::vector<std::string> names;
  names.reserve(kLevels);
  for (int level = 0; level < kLevels; ++level) {
    names.push_back("level_" + std::to_string(level));
  }
  Define(names[0].c_str(), "XmForm");
  for (std::size_t level = 1; level < names.size(); ++level) {
    WidgetDef *widget = Define(names[level].c_str(), "XmForm");
    const char *below = names[level - 1].c_str();
    Controls(widget, {Reference(below, NIL), Reference(below, NIL)});
  }
  const auto count = [&](const char *name) {
    return WidgetCountHierarchy(WidgetResolve(Reference(name, NIL)));
  };
  EXPECT_EQ(count("level_40"), (std::int64_t{1} << 41) - 1);
  EXPECT_EQ(count("level_62"), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(count("level_99"), std::numeric_limits<std::int64_t>::max());
}

TEST_F(WidgetUtils, HierarchyOfARingIsTheLargestNumber) {
  WidgetDef *a = Define("a", "XmForm");
  WidgetDef *b = Define("b", "XmForm");
  Controls(a, {Reference("b", NIL)});
  Controls(b, {Reference("a", NIL)});
  EXPECT_EQ(WidgetCountHierarchy(a), std::numeric_limits<std::int64_t>::max());
}

// -- Procedures --------------------------------------------------------------------------------

TEST_F(WidgetUtils, ProceduresTellTheirUse) {
  EXPECT_FALSE(WidgetsAreUserDefined());
  EXPECT_FALSE(AtLeastOneCallback());
  DropUnusedProcedures();
  unbound_procedures = ListCreate(ListCompareCaseSensitive, nullptr, SimpleListKeyFunc);
  for (const char *name : {"a", "b", "c"}) {
    ModelAppend(unbound_procedures, Procedure(name, NIL, NIL));
  }
  EXPECT_FALSE(WidgetsAreUserDefined());
  EXPECT_FALSE(AtLeastOneCallback());
  ModelAppend(unbound_procedures, Procedure("d", NIL, CREATE_PROC));
  EXPECT_TRUE(WidgetsAreUserDefined());
  EXPECT_FALSE(AtLeastOneCallback());
  ModelAppend(unbound_procedures, Procedure("e", NIL, NIL));
  ModelAppend(unbound_procedures, Procedure("f", NIL, CALLBACK_PROC));
  ModelAppend(unbound_procedures, Procedure("g", NIL, NIL));
  EXPECT_TRUE(AtLeastOneCallback());

  DropUnusedProcedures();
  std::string names;
  for (const ListItem *node = ListFirstNode(unbound_procedures); node != nullptr;
       node = node->next) {
    names += static_cast<const ProcedureName *>(node->data)->name;
  }
  EXPECT_EQ(names, "df");
}

// -- Names -------------------------------------------------------------------------------------

TEST_F(WidgetUtils, LegalNames) {
  const struct {
    const char *name;
    const char *legal;
  } rows[] = {
      {"OK_Button", "ok_button"},
      {"my-widget.1", "my_widget_1"},
      {"a__b", "a_b"},
      {"a___b", "a__b"},
      {"_x__y_", "x_y"},
      {"__ab", "_ab"},
      {"_a_b", "ab"},
      {"_", ""},
      {"__", ""},
      {"", ""},
      {"a_", "a"},
      {"a__", "a"},
      {"a___", "a_"},
      {"1st", "1st"},
      {"End", "end"},
      {"caf\xC3\xA9x", "caf_x"},
      {"a$b", "a_b"},
  };
  for (const auto &row : rows) {
    EXPECT_EQ(LegalName(row.name), row.legal) << row.name;
  }
}

TEST_F(WidgetUtils, LegalNamesDependOnTheInterface) {
  interface_type = 3;
  EXPECT_EQ(LegalName("_My-Name_"), "my_name");
  interface_type = 1;
  EXPECT_EQ(LegalName("_My-Name_"), "_My-Name_");
  interface_type = 4;
  EXPECT_EQ(LegalName("_My-Name_"), "_My-Name_");
}

TEST_F(WidgetUtils, LegalTextIsTheNameItselfWhenThatIsLegal) {
  interface_type = 3;
  const char *plain = "my_name";
  const char *odd = "_My-Name_";
  EXPECT_EQ(LegalText(plain), plain);
  EXPECT_STREQ(LegalText(odd), "my_name");
  interface_type = 4; // where every name is
  EXPECT_EQ(LegalText(odd), odd);
}

TEST_F(WidgetUtils, LongNamesAreMadeLegalInOnePass) {
  const auto start = std::chrono::steady_clock::now();
  // Of each run of underscores behind a letter every second one goes, beginning with the second.
  const std::string legal = LegalName("a" + std::string(8000000, '_') + "b");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_EQ(legal, "a" + std::string(4000000, '_') + "b");
}

} // namespace
