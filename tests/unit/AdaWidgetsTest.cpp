// Tests of the widgets packages: whole units for each option, and the order of the branches that
// fetch widgets by name.

#include "AdaWidgets.h"

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "AdaWidgetProcs.h"
#include "Error.h"
#include "Filename.h"
#include "Model.h"
#include "Options.h"
#include "Reset.h"

namespace {

// A stream in memory.
struct Unit {
  Unit() : file(open_memstream(&buffer, &size)) {}
  ~Unit() {
    std::fclose(file);
    std::free(buffer);
  }
  Unit(const Unit &) = delete;
  Unit &operator=(const Unit &) = delete;
  std::string Text() {
    std::fflush(file);
    return {buffer, size};
  }

  char *buffer = nullptr;
  std::size_t size = 0;
  std::FILE *file;
};

// The four units, and what was said while they were written.
struct Units {
  std::string spec;
  std::string body;
  std::string cdspec;
  std::string cdbody;
  std::string messages;
};

class AdaWidgetsTest : public testing::Test {
protected:
  void SetUp() override {
    ProgramReset();
    program_name = "kivuxl";
    package_base = "demo";
    CaseSensitive(true);
    unbound_procedures = ModelList();
    top_level_objects = ModelList();
  }
  void TearDown() override { ProgramReset(); }

  // Before any name is bound.
  static void CaseSensitive(bool sensitive) {
    case_sensitive = sensitive;
    ASSERT_TRUE(SymbolTableInit());
    ASSERT_TRUE(WidgetTableInit());
  }

  static WidgetDef *Widget(const char *name, const char *class_name,
                           std::int32_t kind = WIDGET_NAME) {
    auto *widget = ModelNew<WidgetDef>(kind);
    widget->name = name;
    widget->managed = MANAGED;
    widget->gadget = WIDGET;
    widget->type = ModelBinding(WIDGET_CLASS, class_name, nullptr);
    widget->attribs = ModelList();
    if (kind == WIDGET_NAME) {
      auto *binding = ModelNew<WidgetValue>(WIDGET_NAME);
      binding->name = name;
      binding->value = widget;
      SymbolAdd(binding);
    }
    return widget;
  }

  static WidgetDef *TopLevel(const char *name) {
    WidgetDef *widget = Widget(name, "XmForm");
    ModelAppend(top_level_objects, widget);
    return widget;
  }

  // A control defined where it is used.
  static WidgetDef *Inline(WidgetDef *parent, const char *name, std::int32_t kind = WIDGET_DEF) {
    WidgetDef *child = Widget(name, "XmForm", kind);
    ModelAppend(Items(&parent->ctls, CONTROLS_LIST), child);
    return child;
  }

  // A control that is a reference.
  static void Refer(WidgetDef *parent, const char *name) {
    auto *reference = ModelNew<WidgetRef>(WIDGET_REF);
    reference->name = name;
    reference->managed = NIL;
    ModelAppend(Items(&parent->ctls, CONTROLS_LIST), reference);
  }

  // A named object and a reference to it.
  static WidgetDef *Child(WidgetDef *parent, const char *name) {
    WidgetDef *child = Widget(name, "XmForm");
    Refer(parent, name);
    return child;
  }

  static ProcedureName *Procedure(const char *name, std::int32_t usage) {
    auto *procedure = ModelNew<ProcedureName>(PROCEDURE_NAME);
    procedure->name = name;
    procedure->type = NIL;
    procedure->usage = usage;
    ModelAppend(unbound_procedures, procedure);
    return procedure;
  }

  // An activate callback; its value is a reference to the widget named, or nothing.
  static void Callback(WidgetDef *widget, ProcedureName *procedure, const char *target = nullptr) {
    auto *reason = ModelNew<ReasonName>(REASON_NAME);
    reason->name = "XmNactivateCallback";
    reason->predefined = true;
    SymbolAdd(ModelBinding(REASON_NAME, reason->name, reason));
    auto *invocation = ModelNew<ProcedureInvoke>(PROCEDURE_INVOKE);
    invocation->name = procedure->name;
    invocation->proc = procedure;
    invocation->param = Tag(target);
    auto *callback = ModelNew<CallbackValue>(CALLBACK);
    callback->name = reason->name;
    callback->value = ModelList();
    ModelAppend(callback->value, invocation);
    ModelAppend(Items(&widget->cbs, CALLBACKS_LIST), callback);
  }

  static void Argument(WidgetDef *widget, const char *name, std::int32_t integer) {
    auto *value = ModelNew<IntegerValue>(INTEGER_NUMBER);
    value->value = integer;
    auto *argument = ModelNew<ArgumentInvoke>(ARGUMENT);
    argument->name = name;
    argument->value = value;
    argument->predefined = true;
    ModelAppend(Items(&widget->args, ARGUMENTS_LIST), argument);
  }

  static void Shell(const char *child, const char *shell) {
    if (shellinfo == nullptr) {
      shellinfo = ModelList();
    }
    auto *entry = ModelNew<Kivu_ShellInfo>(NIL);
    entry->childName = child;
    entry->shellName = shell;
    entry->shellClass = "topLevelShell";
    entry->pkgName = "demo";
    ModelAppend(shellinfo, entry);
  }

  static Units Write() {
    Unit spec;
    Unit body;
    Unit cdspec;
    Unit cdbody;
    testing::internal::CaptureStderr();
    OutputWidgets(spec.file, body.file, cdspec.file, cdbody.file);
    std::string messages = testing::internal::GetCapturedStderr();
    return {spec.Text(), body.Text(), cdspec.Text(), cdbody.Text(), std::move(messages)};
  }

  static std::string Instant() {
    Unit unit;
    OutputInstant(unit.file);
    return unit.Text();
  }

  // The part of a text from `begin` up to and with `end`.
  static std::string Excerpt(const std::string &text, const std::string &begin,
                             const std::string &end) {
    const std::size_t from = text.find(begin);
    const std::size_t to = text.find(end, from);
    if (from == std::string::npos || to == std::string::npos) {
      return "not found: " + begin;
    }
    return text.substr(from, to + end.size() - from);
  }

  static std::string Fetch(const std::string &body) {
    return Excerpt(body, "  procedure FetchWidget(\n", "  end FetchWidget;\n");
  }

private:
  static KindRec *Tag(const char *target) {
    if (target == nullptr) {
      return ModelNew<KindRec>(NIL);
    }
    auto *reference = ModelNew<WidgetRef>(WIDGET_REF);
    reference->name = target;
    return reference;
  }

  // The items of the one list that stands in a widget's lists.
  static List Items(List *lists, std::int32_t kind) {
    if (*lists == nullptr) {
      *lists = ModelList();
      auto *list = ModelNew<UnionList>(kind);
      list->value = ModelList();
      ModelAppend(*lists, list);
    }
    return static_cast<UnionList *>(ListGetFirst(*lists))->value;
  }
};

const char kSpecContext[] = R"Ada(with XlibR5;
with XtR5;
with Xm1_2_2;
)Ada";

const char kFetchDeclaration[] = R"Ada(  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
)Ada";

const char kNoShellTables[] = R"Ada(  Shells      : XtR5.WidgetList( 1 .. 0 );
  Child_Lists : array( 1 .. 0 ) of XtR5.WidgetList_Ptr;
  Child_Names : XlibR5.StringList ( 1 .. 0 );
  Shell_Names : XlibR5.StringList ( 1 .. 0 );
)Ada";

const char kShellDeclarations[] = R"Ada(  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
)Ada";

const char kBodyContext[] = R"Ada(with Xm;
with Xmdef;
with unchecked_deallocation;
)Ada";

const char kBodyDeclarations[] = R"Ada(  function "="( left, right : in xtr5.widget ) return boolean
    renames xtr5."=";
  create_callback_struct : constant xm1_2_2.anycallbackstruct := (
    reason => xm1_2_2.CR_CREATE,
    event  => null );
  procedure freewidgetlist is new
    unchecked_deallocation( xtr5.widgetlist,
                            xtr5.widgetlist_ptr );
  current_top_level : xtr5.widget := xtr5.xtnull;
  auto_child : xtr5.widget := xtr5.xtnull;
)Ada";

const char kUppercase[] = R"Ada(  function uppercase_char( chr : in character )
    return character is
    diff : constant :=
           character'pos( 'a' ) - character'pos( 'A' );
  begin
    if chr in 'a' .. 'z' then
      return character'val( character'pos( chr ) - diff );
    else
      return chr;
  end uppercase_char;
  function uppercase_str( str : in string )
    return string is
    upc : string( 1 .. str'length ) := str;
  begin
    for i in upc'range loop
      upc( i ) := uppercase_char( upc( i ) );
    end loop;
    return upc;
  end uppercase_str;
)Ada";

const char kFetchBegin[] = R"Ada(  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
)Ada";

const char kFetchBeginAnyCase[] = R"Ada(  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    upc_name : constant string := uppercase_str( name );
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
)Ada";

const char kFetchEnd[] = R"Ada(    widgets_return := widgets;
  end FetchWidget;
)Ada";

const char kShellFunctions[] = R"Ada(  function Shell return XtR5.Widget is
  begin
    return Shells( Shells'First );
  end Shell;
  function Child_List return XtR5.WidgetList_Ptr is
  begin
    return Child_Lists( Child_Lists'First );
  end Child_List;
  function Child_Name return String is
  begin
    return Child_Names( Child_Names'First ).all;
  end Child_Name;
  function Shell_Name return String is
  begin
    return Shell_Names( Shell_Names'First ).all;
  end Shell_Name;
)Ada";

const char kNoShellFunctions[] = R"Ada(  function Shell return XtR5.Widget is
  begin
    return XtR5.XtNULL;
  end Shell;
  function Child_List return XtR5.WidgetList_Ptr is
  begin
    return NULL;
  end Child_List;
  function Child_Name return String is
  begin
    return "";
  end Child_Name;
  function Shell_Name return String is
  begin
    return "";
  end Shell_Name;
)Ada";

// One branch for each pair of a word and a widget: the UIL name in the test and the Ada name.
std::string Branches(const std::vector<std::pair<std::string, std::string>> &widgets,
                     const std::string &variable) {
  std::string text;
  for (const auto &[uil, ada] : widgets) {
    text += text.empty() ? "    if " : "    elsif ";
    text += variable + " = \"" + uil + "\" then\n";
    text += "      widgets := kivu_create_" + ada + "( parent );\n";
    text += "      kivu_post_" + ada + "( parent, widgets, widgets'first );\n";
  }
  return text + "    end if;\n";
}

// -- A module without widgets ------------------------------------------------------------------

TEST_F(AdaWidgetsTest, NoWidgets) {
  top_level_objects = nullptr;
  unbound_procedures = nullptr;
  const Units units = Write();
  EXPECT_EQ(units.spec, std::string(kSpecContext) + "package demo_uil is\n" + kFetchDeclaration +
                            kNoShellTables + kShellDeclarations + "end demo_uil;\n");
  EXPECT_EQ(units.body, std::string(kBodyContext) + "package body demo_uil is\n" +
                            kBodyDeclarations + kFetchBegin + kFetchEnd + kNoShellFunctions +
                            "end demo_uil;\n");
  EXPECT_EQ(units.cdspec, "with XlibR5;\n"
                          "with XtR5;\n"
                          "with Xm1_2_2;\n"
                          "with Xmdef;\n"
                          "package demo_client_data is\n"
                          "end demo_client_data;\n");
  EXPECT_EQ(units.messages, "");
}

TEST_F(AdaWidgetsTest, NoWidgetsInAnyCaseAndWithoutSuffix) {
  CaseSensitive(false);
  uil_package_suffix = "";
  const Units units = Write();
  EXPECT_EQ(units.spec, std::string(kSpecContext) + "package demo is\n" + kFetchDeclaration +
                            kNoShellTables + kShellDeclarations + "end demo;\n");
  EXPECT_EQ(units.body, std::string(kBodyContext) + "package body demo is\n" + kBodyDeclarations +
                            kUppercase + kFetchBeginAnyCase + kFetchEnd + kNoShellFunctions +
                            "end demo;\n");
}

// -- Shell tables ------------------------------------------------------------------------------

TEST_F(AdaWidgetsTest, ShellTables) {
  Shell("Main", "main_appl");
  Shell("aux", "aux_shell");
  const Units units = Write();
  EXPECT_EQ(units.spec, std::string(kSpecContext) + "package demo_uil is\n" + kFetchDeclaration +
                            "  AppShell    : XtR5.Widget;\n"
                            "  Shells      : XtR5.WidgetList( 1 .. 2 );\n"
                            "  Child_Lists : array( 1 .. 2 ) of XtR5.WidgetList_Ptr;\n"
                            "  Child_Names : constant XlibR5.StringList := (\n"
                            "    1 => new String'( \"Main\" ), \n"
                            "    2 => new String'( \"aux\" ) );\n"
                            "  Shell_Names : constant XlibR5.StringList := (\n"
                            "    1 => new String'( \"main_appl\" ), \n"
                            "    2 => new String'( \"aux_shell\" ) );\n" +
                            kShellDeclarations + "end demo_uil;\n");
  EXPECT_EQ(units.body, std::string(kBodyContext) + "package body demo_uil is\n" +
                            kBodyDeclarations + kFetchBegin + kFetchEnd + kShellFunctions +
                            "end demo_uil;\n");
}

TEST_F(AdaWidgetsTest, OneShell) {
  Shell("main", "main_appl");
  EXPECT_EQ(Excerpt(Write().spec, "  AppShell", "  function Shell "),
            R"Ada(  AppShell    : XtR5.Widget;
  Shells      : XtR5.WidgetList( 1 .. 1 );
  Child_Lists : array( 1 .. 1 ) of XtR5.WidgetList_Ptr;
  Child_Names : constant XlibR5.StringList := (
    1 => new String'( "main" ) );
  Shell_Names : constant XlibR5.StringList := (
    1 => new String'( "main_appl" ) );
  function Shell )Ada");
}

// -- User-defined widgets ----------------------------------------------------------------------

const char kGenericFormals[] = R"Ada(generic
  with function make_dial(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  with function make_knob(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
)Ada";

TEST_F(AdaWidgetsTest, UserDefinedWidgetsMakeThePackageGeneric) {
  Procedure("Make_Dial", CREATE_PROC);
  Procedure("quit_cb", NIL);
  Procedure("make-knob", CREATE_PROC);
  const Units units = Write();
  EXPECT_EQ(units.spec, std::string(kSpecContext) + kGenericFormals + "package demo_uil is\n" +
                            kFetchDeclaration + kNoShellTables + kShellDeclarations +
                            "end demo_uil;\n");
  EXPECT_EQ(Excerpt(units.body, "with Xm;", "package body demo_uil is\n"),
            std::string(kBodyContext) + "package body demo_uil is\n");
  EXPECT_EQ(Instant(), R"Ada(with demo_callbacks;
with demo_uil;
package demo is
  package Widgets is new demo_uil(
    make_dial => demo_callbacks.make_dial,
    make_knob => demo_callbacks.make_knob );
end demo;
)Ada");
}

TEST_F(AdaWidgetsTest, UserDefinedWidgetsWithoutGenerics) {
  forbid_generic_widgets = true;
  Procedure("make_dial", CREATE_PROC);
  const Units units = Write();
  EXPECT_EQ(units.spec, std::string(kSpecContext) + "package demo_uil is\n" + kFetchDeclaration +
                            kNoShellTables + kShellDeclarations + "end demo_uil;\n");
  EXPECT_EQ(Excerpt(units.body, "with Xm;", "package body demo_uil is\n"),
            std::string(kBodyContext) + "with demo_callbacks;\npackage body demo_uil is\n");
  EXPECT_EQ(Instant(), R"Ada(with demo_callbacks;
with demo_uil;
package demo is
  package Widgets renames demo_uil;
end demo;
)Ada");
}

TEST_F(AdaWidgetsTest, BodyNamesClientDataBeforeCallbacks) {
  forbid_generic_widgets = true;
  Procedure("make_dial", CREATE_PROC);
  Procedure("quit_cb", CALLBACK_PROC);
  cb_package_suffix = "cbs";
  EXPECT_EQ(Excerpt(Write().body, "with Xm;", "package body demo_uil is\n"),
            std::string(kBodyContext) + "with demo_client_data;\n"
                                        "use  demo_client_data;\n"
                                        "with demo_cbs;\n"
                                        "package body demo_uil is\n");
}

TEST_F(AdaWidgetsTest, InstantiationRenamesOrdinaryWidgets) {
  EXPECT_EQ(Instant(), R"Ada(with demo_uil;
package demo is
  package Widgets renames demo_uil;
end demo;
)Ada");
}

TEST_F(AdaWidgetsTest, InstantiationFollowsTheSuffixes) {
  uil_instant_suffix = "inst";
  uil_package_suffix = "";
  cb_package_suffix = "";
  Procedure("make_dial", CREATE_PROC);
  EXPECT_EQ(Instant(), R"Ada(with demo;
with demo;
package demo_inst is
  package Widgets is new demo(
    make_dial => demo.make_dial );
end demo_inst;
)Ada");
}

// -- Client data package -----------------------------------------------------------------------

std::string ClientDataSpec(const std::string &pragma) {
  return R"Ada(with XlibR5;
with XtR5;
with Xm1_2_2;
with Xmdef;
package demo_client_data is
  procedure demo_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
  pragma )Ada" +
         pragma + "(c, demo_cb_proc);\nend demo_client_data;\n";
}

TEST_F(AdaWidgetsTest, PragmaFollowsTheCompiler) {
  Procedure("quit_cb", CALLBACK_PROC);
  EXPECT_EQ(Write().cdspec, ClientDataSpec("external"));
  adaworld = true;
  EXPECT_EQ(Write().cdspec, ClientDataSpec("call_in"));
  apex = true;
  EXPECT_EQ(Write().cdspec, ClientDataSpec("export_procedure"));
  gnat = true;
  EXPECT_EQ(Write().cdspec, ClientDataSpec("export"));
  gnat = false;
  ada95 = true;
  EXPECT_EQ(Write().cdspec, ClientDataSpec("export"));
}

TEST_F(AdaWidgetsTest, ClientDataBodyCallsTheWrapper) {
  EXPECT_EQ(Write().cdbody, R"Ada(with demo_cbinst;
package body demo_client_data is
  procedure demo_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    demo_cbinst( w, client_data, call_data );
  end demo_cb_proc;
end demo_client_data;
)Ada");
  forbid_generic_wrapper = true;
  EXPECT_EQ(Write().cdbody, R"Ada(with demo_cbproc;
package body demo_client_data is
  procedure demo_cb_proc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
  begin
    demo_cbproc( w, client_data, call_data );
  end demo_cb_proc;
end demo_client_data;
)Ada");
}

TEST_F(AdaWidgetsTest, ClientDataUnitsMayBeAbsent) {
  Procedure("quit_cb", CALLBACK_PROC);
  const Units all = Write();
  Unit spec;
  Unit body;
  OutputWidgets(spec.file, body.file, nullptr, nullptr);
  EXPECT_EQ(spec.Text(), all.spec);
  EXPECT_EQ(body.Text(), all.body);
}

// -- FetchWidget -------------------------------------------------------------------------------

TEST_F(AdaWidgetsTest, BranchesGoByGroupsOfSiblings) {
  WidgetDef *main = TopLevel("Main");
  TopLevel("Other");
  WidgetDef *a = Child(main, "a");
  Child(main, "b$2");
  Child(a, "a1");
  WidgetDef *a2 = Child(a, "a2");
  Child(a2, "a21");
  EXPECT_EQ(Fetch(Write().body), kFetchBegin +
                                     Branches({{"Main", "main"},
                                               {"Other", "other"},
                                               {"a", "a"},
                                               {"b$2", "b_2"},
                                               {"a1", "a1"},
                                               {"a2", "a2"},
                                               {"a21", "a21"}},
                                              "name") +
                                     kFetchEnd);
}

TEST_F(AdaWidgetsTest, BranchesInAnyCaseCompareUpperCaseNames) {
  CaseSensitive(false);
  WidgetDef *main = TopLevel("Main_\xe9");
  Child(main, "ok_Button1");
  const Units units = Write();
  EXPECT_EQ(Fetch(units.body),
            kFetchBeginAnyCase +
                Branches({{"MAIN_\xe9", "main"}, {"OK_BUTTON1", "ok_button1"}}, "upc_name") +
                kFetchEnd);
  // The upper-casing functions stand between the declarations and the procedure.
  EXPECT_EQ(Excerpt(units.body, "  function uppercase_char", kFetchBeginAnyCase),
            std::string(kUppercase) + kFetchBeginAnyCase);
}

TEST_F(AdaWidgetsTest, ChildrenOfWidgetsWithoutBranchAreVisited) {
  WidgetDef *main = TopLevel("main");
  WidgetDef *anon = Inline(main, "anon_XmForm_1");
  anon->anon = true;
  Child(anon, "below_anon");
  Refer(main, "undefined");
  WidgetDef *automatic = Inline(main, "Xm_Items", AUTO_CREATED_DEF);
  Child(automatic, "below_auto");
  EXPECT_EQ(
      Fetch(Write().body),
      kFetchBegin +
          Branches({{"main", "main"}, {"below_anon", "below_anon"}, {"below_auto", "below_auto"}},
                   "name") +
          kFetchEnd);
}

TEST_F(AdaWidgetsTest, SharedWidgetHasABranchForEachPath) {
  WidgetDef *main = TopLevel("main");
  WidgetDef *a = Child(main, "a");
  WidgetDef *b = Child(main, "b");
  WidgetDef *shared = Child(a, "shared");
  Refer(b, "shared");
  Child(shared, "leaf");
  EXPECT_EQ(Fetch(Write().body), kFetchBegin +
                                     Branches({{"main", "main"},
                                               {"a", "a"},
                                               {"b", "b"},
                                               {"shared", "shared"},
                                               {"leaf", "leaf"},
                                               {"shared", "shared"},
                                               {"leaf", "leaf"}},
                                              "name") +
                                     kFetchEnd);
}

// -- Record types ------------------------------------------------------------------------------

TEST_F(AdaWidgetsTest, RecordOfEachTopLevelWidget) {
  widgets_record_suffix = "rec";
  WidgetDef *main = TopLevel("Main");
  TopLevel("other");
  WidgetDef *a = Child(main, "a");
  Child(a, "a-1");
  WidgetDef *automatic = Inline(main, "Xm_Items", AUTO_CREATED_DEF);
  Child(automatic, "below_auto");
  Refer(main, "undefined");
  Inline(main, "anon_XmForm_1")->anon = true;
  const Units units = Write();
  EXPECT_EQ(units.spec, std::string(kSpecContext) + "package demo_uil is\n" +
                            R"Ada(  type main_rec is record
    main : XtR5.Widget := XtR5.XtNULL;
    a : XtR5.Widget := XtR5.XtNULL;
    a_1 : XtR5.Widget := XtR5.XtNULL;
    anon_xmform_1 : XtR5.Widget := XtR5.XtNULL;
  end record;
  main : main_rec;
  function Create_main( parent : in XtR5.Widget )
    return main_rec;
  type other_rec is record
    other : XtR5.Widget := XtR5.XtNULL;
  end record;
  other : other_rec;
  function Create_other( parent : in XtR5.Widget )
    return other_rec;
)Ada" + kFetchDeclaration + kNoShellTables +
                            kShellDeclarations + "end demo_uil;\n");
  EXPECT_EQ(Excerpt(units.body, "  function Create_main", "  end Create_main;\n"),
            R"Ada(  function Create_main( parent : in XtR5.Widget )
    return main_rec is
    widgets : xtr5.widgetlist_ptr;
  begin
    FetchWidget( parent, "Main", widgets );
    return main;
  end Create_main;
)Ada");
  EXPECT_NE(units.body.find("  end Create_main;\n"
                            "  function kivu_create_main( parent : in xtr5.widget )\n"
                            "    return xtr5.widgetlist_ptr is\n"),
            std::string::npos);
  EXPECT_EQ(current_top_level, nullptr);
}

TEST_F(AdaWidgetsTest, WidgetReachedTwiceHasOneField) {
  widgets_record_suffix = "rec";
  WidgetDef *main = TopLevel("main");
  WidgetDef *a = Child(main, "a");
  WidgetDef *shared = Child(a, "shared");
  Child(shared, "leaf");
  Refer(main, "shared");
  const Units units = Write();
  EXPECT_EQ(Excerpt(units.spec, "  type main_rec", "  end record;\n"),
            R"Ada(  type main_rec is record
    main : XtR5.Widget := XtR5.XtNULL;
    a : XtR5.Widget := XtR5.XtNULL;
    shared : XtR5.Widget := XtR5.XtNULL;
    leaf : XtR5.Widget := XtR5.XtNULL;
  end record;
)Ada");
  EXPECT_EQ(units.messages, "kivuxl: Control shared appears more than once under main.\n");
}

TEST_F(AdaWidgetsTest, NoRecordsWithoutWidgets) {
  widgets_record_suffix = "rec";
  EXPECT_EQ(Write().spec, std::string(kSpecContext) + "package demo_uil is\n" + kFetchDeclaration +
                              kNoShellTables + kShellDeclarations + "end demo_uil;\n");
}

// -- Numbers of the callbacks ------------------------------------------------------------------

// All registrations of the body, in order.
std::string Registrations(const std::string &body) {
  std::string lines;
  for (std::size_t at = body.find("    xtr5.addcallback("); at != std::string::npos;
       at = body.find("    xtr5.addcallback(", at + 1)) {
    lines += body.substr(at, body.find('\n', at) + 1 - at);
  }
  return lines;
}

TEST_F(AdaWidgetsTest, OneCounterNumbersTheCallbacksOfAllTrees) {
  ProcedureName *quit = Procedure("quit_cb", CALLBACK_PROC);
  for (const char *name : {"first", "second"}) {
    WidgetDef *top = TopLevel(name);
    Callback(top, quit);
    Callback(top, quit);
  }
  EXPECT_EQ(Registrations(Write().body),
            "    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 1 );\n"
            "    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 2 );\n"
            "    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 3 );\n"
            "    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 4 );\n");
}

TEST_F(AdaWidgetsTest, PostProceduresNumberTheCallbacksFromOneAgain) {
  ProcedureName *show = Procedure("show_cb", CALLBACK_PROC);
  for (const char *name : {"first", "second"}) {
    WidgetDef *top = TopLevel(name);
    Callback(top, show);
    Callback(top, show, name);
  }
  EXPECT_EQ(Registrations(Write().body),
            "    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 1 );\n"
            "    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 3 );\n"
            "    xtr5.addcallback( widgets( index ), Xmdef.NactivateCallback, "
            "demo_cb_proc'address, 2 );\n"
            "    xtr5.addcallback( widgets( index ), Xmdef.NactivateCallback, "
            "demo_cb_proc'address, 4 );\n");
}

TEST_F(AdaWidgetsTest, ClientDataIsNumberedOverAllTrees) {
  ProcedureName *show = Procedure("show_cb", CALLBACK_PROC);
  for (const char *name : {"first", "second"}) {
    Callback(TopLevel(name), show, name);
  }
  EXPECT_EQ(Excerpt(Write().cdspec, "package demo_client_data", "  procedure demo_cb_proc(\n"),
            R"Ada(package demo_client_data is
    widget_1 : xtr5.widget := xtr5.xtnull;
    widget_string_1 : constant string := "*first";
    widget_2 : xtr5.widget := xtr5.xtnull;
    widget_string_2 : constant string := "*second";
  procedure demo_cb_proc(
)Ada");
}

// -- A small module, end to end ----------------------------------------------------------------

TEST_F(AdaWidgetsTest, SmallModule) {
  WidgetDef *main = TopLevel("main");
  WidgetDef *ok = Widget("ok", "XmPushButton");
  Refer(main, "ok");
  Argument(ok, "XmNwidth", 100);
  Callback(ok, Procedure("quit_cb", CALLBACK_PROC));
  Shell("main", "main_appl");
  const Units units = Write();
  EXPECT_EQ(units.body, R"Ada(with Xm;
with Xmdef;
with unchecked_deallocation;
with demo_client_data;
use  demo_client_data;
package body demo_uil is
  function "="( left, right : in xtr5.widget ) return boolean
    renames xtr5."=";
  create_callback_struct : constant xm1_2_2.anycallbackstruct := (
    reason => xm1_2_2.CR_CREATE,
    event  => null );
  procedure freewidgetlist is new
    unchecked_deallocation( xtr5.widgetlist,
                            xtr5.widgetlist_ptr );
  current_top_level : xtr5.widget := xtr5.xtnull;
  auto_child : xtr5.widget := xtr5.xtnull;
  function kivu_create_main( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  function kivu_create_ok( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr;
  procedure kivu_post_main( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure kivu_post_ok( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int );
  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr ) is
    widgets : xtr5.widgetlist_ptr := null;
  begin
    current_top_level := Xtr5.Xtnull;
    if name = "main" then
      widgets := kivu_create_main( parent );
      kivu_post_main( parent, widgets, widgets'first );
    elsif name = "ok" then
      widgets := kivu_create_ok( parent );
      kivu_post_ok( parent, widgets, widgets'first );
    end if;
    widgets_return := widgets;
  end FetchWidget;
  function Shell return XtR5.Widget is
  begin
    return Shells( Shells'First );
  end Shell;
  function Child_List return XtR5.WidgetList_Ptr is
  begin
    return Child_Lists( Child_Lists'First );
  end Child_List;
  function Child_Name return String is
  begin
    return Child_Names( Child_Names'First ).all;
  end Child_Name;
  function Shell_Name return String is
  begin
    return Shell_Names( Shell_Names'First ).all;
  end Shell_Name;
  function kivu_create_main( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 1 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 0 );
  begin
    self := Xm1_2_2.CreateForm(
              parent,
              "main",
              args,
              0 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    child_lists( 1 ) := kivu_create_ok( self );
    xtr5.managechild( child_lists( 1 )( 1 ) );
    for child_index in child_lists'range loop
      child_count := child_count +
                     child_lists( child_index )'length;
    end loop;
    declare
      children : xtr5.widgetlist( 1 .. child_count );
    begin
      child_count := children'first;
      children( child_count ) := self;
      for child_index in child_lists'range loop
        children( child_count + 1 ..
                  child_count +
                  child_lists( child_index )'length ) :=
          child_lists( child_index ).all;
        child_count := child_count +
                       child_lists( child_index )'length;
        freewidgetlist( child_lists( child_index ) );
      end loop;
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_main;
  function kivu_create_ok( parent : in xtr5.widget )
    return xtr5.widgetlist_ptr is
    self : xtr5.widget;
    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;
    child_count : integer := 1;
    args : xtr5.arglist( 1 .. 1 );
  begin
    declare
    integer_1 : constant integer := 100;
    begin
    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );
    self := Xm1_2_2.CreatePushButton(
              parent,
              "ok",
              args,
              1 );
    if current_top_level = xtr5.xtnull then      current_top_level := self;
    end if;
    end;
    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 1 );
    declare
      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );
    begin
      return new xtr5.widgetlist'( children );
    end;
  end kivu_create_ok;
  procedure kivu_post_main( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 0 );
  begin
    kivu_post_ok( widgets( index ), widgets, index + 1 );
    null;
  end kivu_post_main;
  procedure kivu_post_ok( parent : in xtr5.widget;
      widgets : in xtr5.widgetlist_ptr;
      index : in xtr5.int ) is
    args : xtr5.arglist( 1 .. 1 );
  begin
    null;
  end kivu_post_ok;
end demo_uil;
)Ada");
  EXPECT_EQ(units.cdspec, ClientDataSpec("external"));
  EXPECT_EQ(units.messages, "");
}

} // namespace
