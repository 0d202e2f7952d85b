// See AdaMain.h.  The procedure reaches each module through the tables of its widgets package, so
// a shell is written as a package expression and an index into that package's tables.  The index
// is the shell's position among the shells of the same package; the two passes over the shells
// (the application's own, then all others) count it alike.

#include "AdaMain.h"

#include <new>

#include "AdaClassRecName.h"
#include "Alloc.h"
#include "Ascii.h"
#include "Emit.h"
#include "Error.h"
#include "Model.h"
#include "Options.h"

// -- Packages ----------------------------------------------------------------------------------

static bool IsEmpty(const char *text) { return text == nullptr || *text == '\0'; }

std::string ShellPackage(const char *pkg_name, const char *suffix, const char *member) {
  std::string result = pkg_name == nullptr ? "" : pkg_name;
  if (!IsEmpty(suffix)) {
    result.append("_").append(suffix);
  }
  if (!IsEmpty(member)) {
    result.append(".").append(member);
  }
  return result;
}

static const char *ShellPackageSuffix() {
  return (forbid_generic_widgets ? uil_package_suffix : uil_instant_suffix).c_str();
}

// The unit to be named in a with clause.
static std::string ShellUnit(const Kivu_ShellInfo &shell) {
  return ShellPackage(shell.pkgName, ShellPackageSuffix(), "");
}

// The widgets package: the unit itself, or the package in it that every instantiation declares.
static std::string ShellExpression(const Kivu_ShellInfo &shell) {
  return ShellPackage(shell.pkgName, ShellPackageSuffix(), forbid_generic_widgets ? "" : "Widgets");
}

// Calls `action` for each shell.
template <typename Action> static void ForEachShell(Action action) {
  for (const ListItem *node = ListFirstNode(shellinfo); node != nullptr; node = node->next) {
    action(*static_cast<const Kivu_ShellInfo *>(node->data));
  }
}

// -- Indexes -----------------------------------------------------------------------------------

static List PackageShellIndexAlist = nullptr; // of PackageShellCount; null before the first call

static const void *CountKey(void *item) { return static_cast<PackageShellCount *>(item)->key; }

static void CountDestroy(void *item) {
  _MFree(const_cast<char *>(static_cast<PackageShellCount *>(item)->key));
  _MFree(item);
}

static void CreateShellIndexes() {
  PackageShellIndexAlist = ListCreate(ListCompareCaseInsensitive, CountDestroy, CountKey);
  if (PackageShellIndexAlist == nullptr) {
    OutOfMemory();
  }
}

static void DestroyShellIndexes() {
  ListDestroy(PackageShellIndexAlist);
  PackageShellIndexAlist = nullptr;
}

int PackageShellIndex(const char *expression) {
  if (IsEmpty(expression)) {
    return 0;
  }
  if (PackageShellIndexAlist == nullptr) {
    CreateShellIndexes();
  }
  auto *entry = static_cast<PackageShellCount *>(ListFindFirst(PackageShellIndexAlist, expression));
  if (entry == nullptr) {
    entry = new (ModelAllocate(sizeof(PackageShellCount))) PackageShellCount();
    entry->key = ModelText(expression);
    ModelAppend(PackageShellIndexAlist, entry);
  }
  return ++entry->count;
}

// -- Declarations and initialisation -----------------------------------------------------------

static bool HasClass(const Kivu_ShellInfo &shell, const char *shell_class) {
  return AsciiCompareNoCase(shell.shellClass, shell_class) == 0;
}

static void WriteContext(std::FILE *file) {
  Emit(file, "with XlibR5;\n"
             "with XrmR5;\n"
             "with Xt;\n"
             "with XtR5;\n"
             "with Xm1_2_2;\n"_ada);
  if (ListLength(shellinfo) == 0) {
    ErrorMessage(kImmediate, "No top-level widgets or no shell arguments given");
  }
  ForEachShell([file](const Kivu_ShellInfo &shell) {
    Emit(file, "with %s;\n"_ada, ShellUnit(shell).c_str());
  });
}

// The class under which resource files name the application: "demo_main" is "Demo_main".
static std::string ApplicationClass() {
  std::string name = main_filename;
  if (!name.empty()) {
    name.front() = AsciiToUpper(name.front());
  }
  return name;
}

// Whether the procedure may have a shell to create besides the application's own.
static bool NeedsOtherShell() {
  const auto *first = static_cast<const Kivu_ShellInfo *>(ListGetFirst(shellinfo));
  return first != nullptr && (ListLength(shellinfo) > 1 || !HasClass(*first, "applicationShell"));
}

static constexpr char kDeclarations[] =
    R"Ada(  argv        : xlibr5.stringlist_ptr := xlibr5.getarguments;
  app_context : xtr5.appcontext;
  options     : xrmr5.optiondesclist( 1 .. 0 );
  fallback    : xlibr5.stringlist( 1 .. 0 );
  args        : xtr5.arglist( 1 .. 0 );
  app_shell   : xtr5.widget;
  langproc    : xtr5.languageproc;
  widgets     : xtr5.widgetlist_ptr;
)Ada";

static constexpr char kInitialisation[] =
    R"Ada(begin
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

static void WriteInitialisation(std::FILE *file) {
  Emit(file, "procedure %s is\n"_ada, main_filename.c_str());
  Emit(file, "  app_class : constant string := \"%s\";\n"_ada, ApplicationClass().c_str());
  Emit(file, "%s"_ada, kDeclarations);
  if (NeedsOtherShell()) {
    Emit(file, "  other_shell : xtr5.widget;\n"_ada);
  }
  Emit(file, "%s"_ada, kInitialisation);
  ForEachShell([file](const Kivu_ShellInfo &shell) {
    Emit(file, "  %s.AppShell := app_shell;\n"_ada, ShellExpression(shell).c_str());
  });
}

// -- Shells ------------------------------------------------------------------------------------

static void WriteApplicationShell(std::FILE *file, const Kivu_ShellInfo &shell, int index) {
  const std::string package = ShellExpression(shell);
  Emit(file,
       "  %s.Shells( %d ) := app_shell;\n"
       "  %s.FetchWidget( app_shell,\n"
       "                          \"%s\",\n"
       "                          widgets );\n"
       "  %s.Child_Lists( %d ) := widgets;\n"
       "  XtR5.ManageChild( widgets( widgets'first ) );\n"
       "  XtR5.RealizeWidget( app_shell );\n"_ada,
       package.c_str(), index, package.c_str(), shell.childName, package.c_str(), index);
}

// The first application shell is the one that the toolkit's initialisation made.
static void WriteApplicationShells(std::FILE *file) {
  if (ListLength(shellinfo) == 0) {
    Emit(file, "  XtR5.RealizeWidget( app_shell );\n"_ada);
  }
  bool written = false;
  ForEachShell([file, &written](const Kivu_ShellInfo &shell) {
    const int index = PackageShellIndex(ShellExpression(shell).c_str());
    if (!HasClass(shell, "applicationShell")) {
      return;
    }
    if (written) {
      ErrorFormat(kImmediate, "Too many application shells, shell %s will be ignored",
                  shell.shellName);
      return;
    }
    WriteApplicationShell(file, shell, index);
    written = true;
  });
  DestroyShellIndexes();
}

// The classes for which a popup shell is created.  Only a top-level shell appears at once; the
// application pops up the others when it needs them.
struct PopupClass {
  const char *shell_class;
  bool pop_up;
};
static constexpr PopupClass kPopupClasses[] = {
    {"topLevelShell", true},
    {"transientShell", false},
    {"dialogShell", false},
};

static void WritePopupShell(std::FILE *file, const Kivu_ShellInfo &shell, int index) {
  const std::string package = ShellExpression(shell);
  Emit(file,
       "  other_shell := XtR5.CreatePopupShell( \"%s\",\n"
       "                                        %s,\n"
       "                                        app_shell,\n"
       "                                        args );\n"_ada,
       shell.shellName, class_rec_name_value_expr(shell.shellClass).c_str());
  Emit(file,
       "  %s.FetchWidget( other_shell,\n"
       "                          \"%s\",\n"
       "                          widgets );\n"
       "  %s.Shells( %d ) := other_shell;\n"
       "  %s.Child_Lists( %d ) := widgets;\n"_ada,
       package.c_str(), shell.childName, package.c_str(), index, package.c_str(), index);
}

static void WriteOtherShell(std::FILE *file, const Kivu_ShellInfo &shell, int index) {
  for (const PopupClass &popup : kPopupClasses) {
    if (!HasClass(shell, popup.shell_class)) {
      continue;
    }
    WritePopupShell(file, shell, index);
    if (popup.pop_up) {
      Emit(file, "  XtR5.ManageChild( widgets( widgets'first ) );\n"
                 "  XtR5.Popup( other_shell, Xt.GrabNone );\n"_ada);
    }
    return;
  }
  ErrorFormat(kWarning, "Cannot generate auto-fetch code for top-level widget %s", shell.childName);
}

static void WriteOtherShells(std::FILE *file) {
  ForEachShell([file](const Kivu_ShellInfo &shell) {
    const int index = PackageShellIndex(ShellExpression(shell).c_str());
    if (!HasClass(shell, "applicationShell")) {
      WriteOtherShell(file, shell, index);
    }
  });
  DestroyShellIndexes();
}

void OutputMain(std::FILE *file) {
  WriteContext(file);
  WriteInitialisation(file);
  WriteApplicationShells(file);
  WriteOtherShells(file);
  Emit(file,
       "  XtR5.AppMainLoop( app_context );\n"
       "end %s;\n"_ada,
       main_filename.c_str());
  if (apex) {
    Emit(file, "pragma Main;\n"_ada);
  }
}

void AdaMainReset() { PackageShellIndexAlist = nullptr; }
