// See AdaWidgets.h.  Each unit is one function that reads like the unit's table of contents; the
// pieces below it write one paragraph of Ada each.  Text without any variable part stands as a raw
// string.  The subprograms of the single widgets come from AdaWidgetProcs.
//
// Names inside Ada code go through LegalName; names inside Ada string literals are the user's.

#include "AdaWidgets.h"

#include <string>

#include "AdaWidgetProcs.h"
#include "Alloc.h"
#include "Ascii.h"
#include "Emit.h"
#include "Error.h"
#include "Filename.h"
#include "Model.h"
#include "Options.h"
#include "WidgetUtils.h"

static std::string WidgetsPackage() { return PackageName(package_base, uil_package_suffix); }

static std::string CallbacksPackage() { return PackageName(package_base, cb_package_suffix); }

static std::string InstantPackage() { return PackageName(package_base, uil_instant_suffix); }

// The procedure that the client data package calls: the wrapper, or its instantiation.
static const char *WrapperSuffix() { return forbid_generic_wrapper ? "cbproc" : "cbinst"; }

static bool WidgetsAreGeneric() { return WidgetsAreUserDefined() && !forbid_generic_widgets; }

// The object that an item of a flattened controls list is, or null for a reference that could not
// be resolved.
static const WidgetDef *ControlWidget(const void *item) {
  const auto *widget = static_cast<const KindRec *>(item);
  switch (widget->kind) {
  case WIDGET_NAME:
  case WIDGET_DEF:
  case AUTO_CREATED_DEF:
    return static_cast<const WidgetDef *>(widget);
  default:
    return nullptr;
  }
}

// Calls `action` for each top-level object while that is the current one.
template <typename Action> static void ForEachTopLevel(Action action) {
  for (const ListItem *node = ListFirstNode(top_level_objects); node != nullptr;
       node = node->next) {
    current_top_level = static_cast<const WidgetDef *>(node->data);
    action(current_top_level);
  }
  current_top_level = nullptr;
}

// Calls `action` for each creation procedure of user-defined objects.
template <typename Action> static void ForEachCreateProc(Action action) {
  for (const ListItem *node = ListFirstNode(unbound_procedures); node != nullptr;
       node = node->next) {
    const auto *procedure = static_cast<const ProcedureName *>(node->data);
    if (procedure->usage == CREATE_PROC) {
      action(LegalName(procedure->name));
    }
  }
}

// -- Widgets specification ---------------------------------------------------------------------

static void WriteGenericFormals(std::FILE *file) {
  Emit(file, "generic\n"_ada);
  ForEachCreateProc([file](const std::string &name) {
    Emit(file,
         "  with function %s(\n"
         "    parent : in xtr5.widget;\n"
         "    name   : in string;\n"
         "    args   : in xtr5.arglist;\n"
         "    nargs  : in xtr5.int ) return xtr5.widget;\n"_ada,
         name.c_str());
  });
}

// One field for each object of the tree, the top-level object itself first.
static void WidgetEmitRecordField(const WidgetDef *widget, std::FILE *file) {
  WidgetEmit *record = WidgetEmitRecord(widget);
  if (SafeStrcmp(record->rec, current_top_level->name, case_sensitive ? 1 : 0) == 0) {
    ErrorFormat(kImmediate, "Control %s appears more than once under %s", widget->name,
                current_top_level->name);
    return;
  }
  record->rec = current_top_level->name;
  Emit(file, "    %s : XtR5.Widget := XtR5.XtNULL;\n"_ada, WidgetAdaName(widget));
  const FlatList children(WidgetFlatControlsList(widget));
  for (const ListItem *node = ListFirstNode(children.get()); node != nullptr; node = node->next) {
    const WidgetDef *child = ControlWidget(node->data);
    if (child != nullptr && child->kind != AUTO_CREATED_DEF) {
      WidgetEmitRecordField(child, file);
    }
  }
}

static void WriteTopLevelRecord(const WidgetDef *widget, std::FILE *file) {
  const char *top = WidgetAdaName(widget);
  const char *suffix = widgets_record_suffix->c_str();
  Emit(file, "  type %s_%s is record\n"_ada, top, suffix);
  WidgetClearEmitRecord(widget);
  WidgetEmitRecordField(widget, file);
  Emit(file,
       "  end record;\n"
       "  %s : %s_%s;\n"
       "  function Create_%s( parent : in XtR5.Widget )\n"
       "    return %s_%s;\n"_ada,
       top, top, suffix, top, top, suffix);
}

// The rows of a table of names, one for each shell.
static void WriteShellNames(std::FILE *file, const char *Kivu_ShellInfo::*name) {
  int i = 0;
  for (const ListItem *node = ListFirstNode(shellinfo); node != nullptr; node = node->next) {
    const auto *shell = static_cast<const Kivu_ShellInfo *>(node->data);
    Emit(file, "    %d => new String'( \"%s\" )%s\n"_ada, ++i, shell->*name,
         node->next != nullptr ? ", " : " );");
  }
}

static constexpr char kEmptyShellTables[] =
    R"Ada(  Shells      : XtR5.WidgetList( 1 .. 0 );
  Child_Lists : array( 1 .. 0 ) of XtR5.WidgetList_Ptr;
  Child_Names : XlibR5.StringList ( 1 .. 0 );
  Shell_Names : XlibR5.StringList ( 1 .. 0 );
)Ada";

static void WriteShellTables(std::FILE *file) {
  const int count = static_cast<int>(ListLength(shellinfo));
  if (count == 0) {
    Emit(file, "%s"_ada, kEmptyShellTables);
    return;
  }
  Emit(file,
       "  AppShell    : XtR5.Widget;\n"
       "  Shells      : XtR5.WidgetList( 1 .. %d );\n"
       "  Child_Lists : array( 1 .. %d ) of XtR5.WidgetList_Ptr;\n"
       "  Child_Names : constant XlibR5.StringList := (\n"_ada,
       count, count);
  WriteShellNames(file, &Kivu_ShellInfo::childName);
  Emit(file, "  Shell_Names : constant XlibR5.StringList := (\n"_ada);
  WriteShellNames(file, &Kivu_ShellInfo::shellName);
}

static constexpr char kFetchDeclaration[] =
    R"Ada(  procedure FetchWidget(
    parent         : in     XtR5.Widget;
    name           : in     String;
    widgets_return :    out XtR5.WidgetList_Ptr );
)Ada";

static constexpr char kShellDeclarations[] =
    R"Ada(  function Shell      return XtR5.Widget;
  function Child_List return XtR5.WidgetList_Ptr;
  function Child_Name return String;
  function Shell_Name return String;
)Ada";

static void WriteWidgetsSpec(std::FILE *file) {
  const std::string package = WidgetsPackage();
  Emit(file, "with XlibR5;\n"
             "with XtR5;\n"
             "with Xm1_2_2;\n"_ada);
  if (WidgetsAreGeneric()) {
    WriteGenericFormals(file);
  }
  Emit(file, "package %s is\n"_ada, package.c_str());
  if (widgets_record_suffix.has_value()) {
    ForEachTopLevel([file](const WidgetDef *top) { WriteTopLevelRecord(top, file); });
  }
  Emit(file, "%s"_ada, kFetchDeclaration);
  WriteShellTables(file);
  Emit(file, "%s"_ada, kShellDeclarations);
  Emit(file, "end %s;\n"_ada, package.c_str());
}

// -- Client data package -----------------------------------------------------------------------

// The pragma by which the compiler lets the toolkit, which is written in C, call a procedure.
static const char *CallbackPragma() {
  if (ada95 || gnat) {
    return "export";
  }
  if (apex) {
    return "export_procedure";
  }
  return adaworld ? "call_in" : "external";
}

static void WriteClientDataSpec(std::FILE *file) {
  const char *base = package_base.c_str();
  Emit(file,
       "with XlibR5;\n"
       "with XtR5;\n"
       "with Xm1_2_2;\n"
       "with Xmdef;\n"
       "package %s_client_data is\n"_ada,
       base);
  unsigned counter = 0;
  ForEachTopLevel(
      [file, &counter](const WidgetDef *top) { WidgetDeclareClientData(top, file, &counter); });
  if (AtLeastOneCallback()) {
    Emit(file,
         "  procedure %s_cb_proc(\n"
         "    w           : in xtr5.widget;\n"
         "    client_data : in xtr5.argval;\n"
         "    call_data   : in xtr5.pointer );\n"
         "  pragma %s(c, %s_cb_proc);\n"_ada,
         base, CallbackPragma(), base);
  }
  Emit(file, "end %s_client_data;\n"_ada, base);
}

static void WriteClientDataBody(std::FILE *file) {
  const char *base = package_base.c_str();
  const char *suffix = WrapperSuffix();
  Emit(file,
       "with %s_%s;\n"
       "package body %s_client_data is\n"
       "  procedure %s_cb_proc(\n"
       "    w           : in xtr5.widget;\n"
       "    client_data : in xtr5.argval;\n"
       "    call_data   : in xtr5.pointer ) is\n"
       "  begin\n"
       "    %s_%s( w, client_data, call_data );\n"
       "  end %s_cb_proc;\n"
       "end %s_client_data;\n"_ada,
       base, suffix, base, base, base, suffix, base, base);
}

static void OutputWidgetsSpec(std::FILE *spec, std::FILE *cdspec, std::FILE *cdbody) {
  WriteWidgetsSpec(spec);
  if (cdspec != nullptr) {
    WriteClientDataSpec(cdspec);
  }
  if (cdbody != nullptr) {
    WriteClientDataBody(cdbody);
  }
}

// -- Widgets body ------------------------------------------------------------------------------

static void WriteBodyContext(std::FILE *file) {
  Emit(file, "with Xm;\n"
             "with Xmdef;\n"
             "with unchecked_deallocation;\n"_ada);
  if (AtLeastOneCallback()) {
    Emit(file,
         "with %s_client_data;\n"
         "use  %s_client_data;\n"_ada,
         package_base.c_str(), package_base.c_str());
  }
  // Without generic formals the user's creation functions are called where they are declared.
  if (WidgetsAreUserDefined() && forbid_generic_widgets) {
    Emit(file, "with %s;\n"_ada, CallbacksPackage().c_str());
  }
}

static constexpr char kBodyDeclarations[] =
    R"Ada(  function "="( left, right : in xtr5.widget ) return boolean
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

// The missing "end if;" of uppercase_char is part of the text that users of this output know.
static constexpr char kUppercaseFunctions[] =
    R"Ada(  function uppercase_char( chr : in character )
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

static std::string UpperCase(std::string text) {
  for (char &c : text) {
    c = AsciiToUpper(c);
  }
  return text;
}

// One branch of FetchWidget.  An object without a name of the user's cannot be fetched.
static void WidgetWriteFetchCase(const WidgetDef *widget, std::FILE *file, unsigned *counter) {
  if (widget->kind == AUTO_CREATED_DEF || widget->anon) {
    return;
  }
  const char *ada_name = WidgetAdaName(widget);
  const std::string uil_name = case_sensitive ? widget->name : UpperCase(widget->name);
  Emit(file,
       "    %s %s = \"%s\" then\n"
       "      widgets := kivu_create_%s( parent );\n"
       "      kivu_post_%s( parent, widgets, widgets'first );\n"_ada,
       *counter == 0 ? "if" : "elsif", case_sensitive ? "name" : "upc_name", uil_name.c_str(),
       ada_name, ada_name);
  ++*counter;
}

// The branches of all that is below the object: its children, then what is below the first child,
// and so on.  An object that is reached twice gets two branches; the first wins at run time.
static void WidgetWriteFetchChildren(const WidgetDef *widget, std::FILE *file, unsigned *counter) {
  const FlatList children(WidgetFlatControlsList(widget));
  for (const ListItem *node = ListFirstNode(children.get()); node != nullptr; node = node->next) {
    if (const WidgetDef *child = ControlWidget(node->data)) {
      WidgetWriteFetchCase(child, file, counter);
    }
  }
  for (const ListItem *node = ListFirstNode(children.get()); node != nullptr; node = node->next) {
    if (const WidgetDef *child = ControlWidget(node->data)) {
      WidgetWriteFetchChildren(child, file, counter);
    }
  }
}

static void WriteFetchBranches(std::FILE *file) {
  unsigned counter = 0;
  ForEachTopLevel(
      [file, &counter](const WidgetDef *top) { WidgetWriteFetchCase(top, file, &counter); });
  ForEachTopLevel(
      [file, &counter](const WidgetDef *top) { WidgetWriteFetchChildren(top, file, &counter); });
  if (counter > 0) {
    Emit(file, "    end if;\n"_ada);
  }
}

static void WriteFetchProcedure(std::FILE *file) {
  Emit(file, "  procedure FetchWidget(\n"
             "    parent         : in     XtR5.Widget;\n"
             "    name           : in     String;\n"
             "    widgets_return :    out XtR5.WidgetList_Ptr ) is\n"_ada);
  if (!case_sensitive) {
    Emit(file, "    upc_name : constant string := uppercase_str( name );\n"_ada);
  }
  Emit(file, "    widgets : xtr5.widgetlist_ptr := null;\n"
             "  begin\n"
             "    current_top_level := Xtr5.Xtnull;\n"_ada);
  WriteFetchBranches(file);
  Emit(file, "    widgets_return := widgets;\n"
             "  end FetchWidget;\n"_ada);
}

static constexpr char kShellFunctions[] =
    R"Ada(  function Shell return XtR5.Widget is
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

static constexpr char kEmptyShellFunctions[] =
    R"Ada(  function Shell return XtR5.Widget is
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

// The function that creates a whole tree and returns its record.
static void WidgetWriteCreateTopLevel(const WidgetDef *widget, std::FILE *file) {
  const char *top = WidgetAdaName(widget);
  Emit(file,
       "  function Create_%s( parent : in XtR5.Widget )\n"
       "    return %s_%s is\n"
       "    widgets : xtr5.widgetlist_ptr;\n"
       "  begin\n"
       "    FetchWidget( parent, \"%s\", widgets );\n"
       "    return %s;\n"
       "  end Create_%s;\n"_ada,
       top, top, widgets_record_suffix->c_str(), widget->name, top, top);
}

// The subprograms of all objects.  Both passes number the callbacks, each from 1.
static void WriteWidgetSubprograms(std::FILE *file) {
  unsigned counter = 0;
  ForEachTopLevel([file, &counter](const WidgetDef *top) {
    if (widgets_record_suffix.has_value()) {
      WidgetWriteCreateTopLevel(top, file);
    }
    WidgetWriteCreateProc(top, file, &counter);
  });
  counter = 0;
  ForEachTopLevel(
      [file, &counter](const WidgetDef *top) { WidgetWritePostProc(top, file, &counter); });
}

static void OutputWidgetsBody(std::FILE *file) {
  const std::string package = WidgetsPackage();
  WriteBodyContext(file);
  Emit(file, "package body %s is\n"_ada, package.c_str());
  Emit(file, "%s"_ada, kBodyDeclarations);
  ForEachTopLevel([file](const WidgetDef *top) { WidgetDeclareCreateProc(top, file); });
  ForEachTopLevel([file](const WidgetDef *top) { WidgetDeclarePostProc(top, file); });
  if (!case_sensitive) {
    Emit(file, "%s"_ada, kUppercaseFunctions);
  }
  WriteFetchProcedure(file);
  Emit(file, "%s"_ada, ListLength(shellinfo) > 0 ? kShellFunctions : kEmptyShellFunctions);
  WriteWidgetSubprograms(file);
  Emit(file, "end %s;\n"_ada, package.c_str());
}

void OutputWidgets(std::FILE *spec, std::FILE *body, std::FILE *cdspec, std::FILE *cdbody) {
  OutputWidgetsSpec(spec, cdspec, cdbody);
  OutputWidgetsBody(body);
}

// -- Instantiation package ---------------------------------------------------------------------

// package Widgets is new demo_uil(
//     make_dial => demo_callbacks.make_dial );
static void WriteInstantiation(std::FILE *file) {
  Emit(file, "  package Widgets is new %s(\n"_ada, WidgetsPackage().c_str());
  const std::string callbacks = CallbacksPackage();
  const char *separator = "";
  ForEachCreateProc([file, &callbacks, &separator](const std::string &name) {
    Emit(file, "%s    %s => %s.%s"_ada, separator, name.c_str(), callbacks.c_str(), name.c_str());
    separator = ",\n";
  });
  Emit(file, " );\n"_ada);
}

void OutputInstant(std::FILE *file) {
  const std::string widgets = WidgetsPackage();
  const std::string instant = InstantPackage();
  if (WidgetsAreUserDefined()) {
    Emit(file, "with %s;\n"_ada, CallbacksPackage().c_str());
  }
  Emit(file,
       "with %s;\n"
       "package %s is\n"_ada,
       widgets.c_str(), instant.c_str());
  if (WidgetsAreGeneric()) {
    WriteInstantiation(file);
  } else {
    Emit(file, "  package Widgets renames %s;\n"_ada, widgets.c_str());
  }
  Emit(file, "end %s;\n"_ada, instant.c_str());
}
