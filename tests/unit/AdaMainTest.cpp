// Tests of the main procedure: its whole text for every mix of shells, and the counters behind the
// indexes.

#include "AdaMain.h"

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "Alloc.h"
#include "Error.h"
#include "Model.h"
#include "Options.h"
#include "Reset.h"

namespace {

class AdaMainTest : public testing::Test {
protected:
  void SetUp() override {
    ProgramReset();
    program_name = "kivuxl";
    main_filename = "demo_main";
  }
  void TearDown() override { ProgramReset(); }

  static void Shell(const char *child, const char *shell, const char *shell_class,
                    const char *package) {
    if (shellinfo == nullptr) {
      shellinfo = ModelList();
    }
    auto *entry = ModelNew<Kivu_ShellInfo>(NIL);
    entry->childName = child;
    entry->shellName = shell;
    entry->shellClass = shell_class;
    entry->pkgName = package;
    ModelAppend(shellinfo, entry);
  }

  // What OutputMain writes; its messages go to `messages`.
  std::string Main() {
    char *text = nullptr;
    std::size_t size = 0;
    std::FILE *file = open_memstream(&text, &size);
    testing::internal::CaptureStderr();
    OutputMain(file);
    messages = testing::internal::GetCapturedStderr();
    std::fclose(file);
    std::string result(text, size);
    std::free(text);
    return result;
  }

  std::string messages;
};

const char kContext[] = R"Ada(with XlibR5;
with XrmR5;
with Xt;
with XtR5;
with Xm1_2_2;
)Ada";

const char kDeclarations[] = R"Ada(procedure demo_main is
  app_class : constant string := "Demo_main";
  argv        : xlibr5.stringlist_ptr := xlibr5.getarguments;
  app_context : xtr5.appcontext;
  options     : xrmr5.optiondesclist( 1 .. 0 );
  fallback    : xlibr5.stringlist( 1 .. 0 );
  args        : xtr5.arglist( 1 .. 0 );
  app_shell   : xtr5.widget;
  langproc    : xtr5.languageproc;
  widgets     : xtr5.widgetlist_ptr;
)Ada";

const char kOtherShell[] = "  other_shell : xtr5.widget;\n";

const char kBegin[] = R"Ada(begin
  langproc := XtR5.SetLanguageProc(
      XtR5.AppContext( XtR5.XtNULL ),
      XtR5.XtNULL,
      XtR5.XtNULL );
  XtR5.AppInitialize( app_context,
                      app_class,
                      options,
                      argv,
                      fallback,
                      args,
                      app_shell );
)Ada";

const char kEnd[] = R"Ada(  XtR5.AppMainLoop( app_context );
end demo_main;
)Ada";

// The whole procedure around what depends on the shells.
std::string Expected(const std::string &withs, bool other_shell, const std::string &statements) {
  return kContext + withs + kDeclarations + (other_shell ? kOtherShell : "") + kBegin + statements +
         kEnd;
}

TEST_F(AdaMainTest, ApplicationShellAlone) {
  Shell("main", "main_appl", "applicationShell", "demo");
  EXPECT_EQ(Main(), Expected("with demo;\n", false, R"Ada(  demo.Widgets.AppShell := app_shell;
  demo.Widgets.Shells( 1 ) := app_shell;
  demo.Widgets.FetchWidget( app_shell,
                          "main",
                          widgets );
  demo.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
)Ada"));
  EXPECT_EQ(messages, "");
}

TEST_F(AdaMainTest, DialogShellIsCreatedButNotPoppedUp) {
  Shell("main", "main_appl", "applicationShell", "demo");
  Shell("about", "about_popup", "dialogShell", "demo");
  EXPECT_EQ(Main(), Expected("with demo;\n"
                             "with demo;\n",
                             true, R"Ada(  demo.Widgets.AppShell := app_shell;
  demo.Widgets.AppShell := app_shell;
  demo.Widgets.Shells( 1 ) := app_shell;
  demo.Widgets.FetchWidget( app_shell,
                          "main",
                          widgets );
  demo.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "about_popup",
                                        xm1_2_2.dialogShellwidgetclass,
                                        app_shell,
                                        args );
  demo.Widgets.FetchWidget( other_shell,
                          "about",
                          widgets );
  demo.Widgets.Shells( 2 ) := other_shell;
  demo.Widgets.Child_Lists( 2 ) := widgets;
)Ada"));
  EXPECT_EQ(messages, "");
}

TEST_F(AdaMainTest, OtherShellsWithoutApplicationShell) {
  Shell("One", "one_shell", "topLevelShell", "demo");
  Shell("two", "two_shell", "TRANSIENTSHELL", "demo");
  EXPECT_EQ(Main(), Expected("with demo;\n"
                             "with demo;\n",
                             true, R"Ada(  demo.Widgets.AppShell := app_shell;
  demo.Widgets.AppShell := app_shell;
  other_shell := XtR5.CreatePopupShell( "one_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  demo.Widgets.FetchWidget( other_shell,
                          "One",
                          widgets );
  demo.Widgets.Shells( 1 ) := other_shell;
  demo.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "two_shell",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  demo.Widgets.FetchWidget( other_shell,
                          "two",
                          widgets );
  demo.Widgets.Shells( 2 ) := other_shell;
  demo.Widgets.Child_Lists( 2 ) := widgets;
)Ada"));
  EXPECT_EQ(messages, "");
}

TEST_F(AdaMainTest, OneShellOfAnotherClassNeedsTheVariable) {
  Shell("m", "m_menu", "menuShell", "demo");
  EXPECT_EQ(Main(), Expected("with demo;\n", true, "  demo.Widgets.AppShell := app_shell;\n"));
  EXPECT_EQ(messages, "");
  EXPECT_EQ(error_message, "Cannot generate auto-fetch code for top-level widget m");
}

TEST_F(AdaMainTest, OnlyTheFirstApplicationShellIsUsed) {
  Shell("a", "a_appl", "ApplicationShell", "demo");
  Shell("b", "b_appl", "applicationShell", "demo");
  EXPECT_EQ(Main(), Expected("with demo;\n"
                             "with demo;\n",
                             true, R"Ada(  demo.Widgets.AppShell := app_shell;
  demo.Widgets.AppShell := app_shell;
  demo.Widgets.Shells( 1 ) := app_shell;
  demo.Widgets.FetchWidget( app_shell,
                          "a",
                          widgets );
  demo.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
)Ada"));
  EXPECT_EQ(messages, "kivuxl: Too many application shells, shell b_appl will be ignored.\n");
}

TEST_F(AdaMainTest, ShellsAreCountedPerPackageWhateverTheCase) {
  Shell("a", "a_shell", "topLevelShell", "demo");
  Shell("b", "b_appl", "applicationShell", "Other");
  Shell("c", "c_shell", "transientShell", "DEMO");
  Shell("d", "d_shell", "transientShell", "other");
  EXPECT_EQ(Main(), Expected("with demo;\n"
                             "with Other;\n"
                             "with DEMO;\n"
                             "with other;\n",
                             true, R"Ada(  demo.Widgets.AppShell := app_shell;
  Other.Widgets.AppShell := app_shell;
  DEMO.Widgets.AppShell := app_shell;
  other.Widgets.AppShell := app_shell;
  Other.Widgets.Shells( 1 ) := app_shell;
  Other.Widgets.FetchWidget( app_shell,
                          "b",
                          widgets );
  Other.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.RealizeWidget( app_shell );
  other_shell := XtR5.CreatePopupShell( "a_shell",
                                        xtr5.toplevelshellwidgetclass,
                                        app_shell,
                                        args );
  demo.Widgets.FetchWidget( other_shell,
                          "a",
                          widgets );
  demo.Widgets.Shells( 1 ) := other_shell;
  demo.Widgets.Child_Lists( 1 ) := widgets;
  XtR5.ManageChild( widgets( widgets'first ) );
  XtR5.Popup( other_shell, Xt.GrabNone );
  other_shell := XtR5.CreatePopupShell( "c_shell",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  DEMO.Widgets.FetchWidget( other_shell,
                          "c",
                          widgets );
  DEMO.Widgets.Shells( 2 ) := other_shell;
  DEMO.Widgets.Child_Lists( 2 ) := widgets;
  other_shell := XtR5.CreatePopupShell( "d_shell",
                                        xtr5.transientshellwidgetclass,
                                        app_shell,
                                        args );
  other.Widgets.FetchWidget( other_shell,
                          "d",
                          widgets );
  other.Widgets.Shells( 2 ) := other_shell;
  other.Widgets.Child_Lists( 2 ) := widgets;
)Ada"));
  EXPECT_EQ(messages, "");
}

TEST_F(AdaMainTest, WithoutShellsOnlyTheApplicationShellIsRealized) {
  EXPECT_EQ(Main(), Expected("", false, "  XtR5.RealizeWidget( app_shell );\n"));
  EXPECT_EQ(messages, "kivuxl: No top-level widgets or no shell arguments given.\n");
}

TEST_F(AdaMainTest, PackagesFollowTheSuffixes) {
  Shell("m", "m_menu", "menuShell", "demo");
  uil_instant_suffix = "inst";
  EXPECT_EQ(Main(),
            Expected("with demo_inst;\n", true, "  demo_inst.Widgets.AppShell := app_shell;\n"));
  forbid_generic_widgets = true;
  EXPECT_EQ(Main(), Expected("with demo_uil;\n", true, "  demo_uil.AppShell := app_shell;\n"));
  uil_package_suffix = "";
  EXPECT_EQ(Main(), Expected("with demo;\n", true, "  demo.AppShell := app_shell;\n"));
}

TEST_F(AdaMainTest, ApexMarksTheMainProcedure) {
  apex = true;
  EXPECT_EQ(Main(), Expected("", false, "  XtR5.RealizeWidget( app_shell );\n") + "pragma Main;\n");
}

TEST_F(AdaMainTest, NameThatDoesNotBeginWithALowerCaseLetter) {
  main_filename = "Run";
  EXPECT_NE(Main().find("procedure Run is\n  app_class : constant string := \"Run\";\n"),
            std::string::npos);
  main_filename = "";
  EXPECT_NE(Main().find("procedure  is\n  app_class : constant string := \"\";\n"),
            std::string::npos);
}

TEST_F(AdaMainTest, ShellPackageJoinsWhatIsGiven) {
  EXPECT_EQ(ShellPackage("demo", "", ""), "demo");
  EXPECT_EQ(ShellPackage("demo", "uil", ""), "demo_uil");
  EXPECT_EQ(ShellPackage("demo", "", "Widgets"), "demo.Widgets");
  EXPECT_EQ(ShellPackage("demo", "inst", "Widgets"), "demo_inst.Widgets");
  EXPECT_EQ(ShellPackage("demo", nullptr, nullptr), "demo");
  EXPECT_EQ(ShellPackage(nullptr, "uil", "Widgets"), "_uil.Widgets");
}

TEST_F(AdaMainTest, ShellIndexCountsCallsPerPackage) {
  std::string expression = "demo.Widgets";
  EXPECT_EQ(PackageShellIndex(expression.c_str()), 1);
  expression = "other.Widgets"; // the entry keeps its own copy of the key
  EXPECT_EQ(PackageShellIndex(expression.c_str()), 1);
  EXPECT_EQ(PackageShellIndex("DEMO.widgets"), 2);
  EXPECT_EQ(PackageShellIndex("demo.Widgets"), 3);
  EXPECT_EQ(PackageShellIndex("Other.Widgets"), 2);
  EXPECT_EQ(PackageShellIndex(""), 0);
  EXPECT_EQ(PackageShellIndex(nullptr), 0);
  AdaMainReset();
  EXPECT_EQ(PackageShellIndex("demo.Widgets"), 1);
}

TEST_F(AdaMainTest, ShellIndexEndsTheRunWithoutMemory) {
  for (long allocations = 0; allocations < 4; ++allocations) {
    AdaMainReset();
    AllocFailAfter(allocations);
    testing::internal::CaptureStderr();
    EXPECT_THROW(PackageShellIndex("demo"), ProgramExit) << allocations;
    AllocFailAfter(-1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "kivuxl: Out of memory.\n");
  }
}

TEST_F(AdaMainTest, SecondProcedureNumbersItsShellsAnew) {
  Shell("a", "a_shell", "topLevelShell", "demo");
  const std::string first = Main();
  EXPECT_EQ(Main(), first);
  EXPECT_NE(first.find("demo.Widgets.Shells( 1 ) := other_shell;\n"), std::string::npos);
}

} // namespace
