// See ParseUsage.h.

#include "ParseUsage.h"

#include <array>

#include "Error.h"
#include "Model.h"

// ORDER USAGE
static constexpr std::array kUsageTexts = {
    "names = case_[in]sensitive",
    "character_set = <character-set>",
    "version = <number> | <string>",
    "objects = { <widget-class> = widget | gadget ; ... }",
    "( <number> )",
    "integer ( <number> )",
    "single_float ( <number> )",
    "float ( <number> )",
    "include file <filename> ;",
    "value <name> : [ exported | private ] <expression> | imported <type> ...",
    "argument ( <string> [ <type> ] )",
    "asciz_[string_]table ( <string>, ... )",
    "character_set ( <name> [ <options> ] )",
    "class_rec_name ( '<widget-class>' )",
    "color ( <color-name> [ foreground | background ] )",
    "color_table ( <color> = <string>, ... )",
    "compound_string ( <string> [ <options> ] )",
    "font ( <font-name> [ , character_set = <character-set> ] )",
    "fontset ( <font-name> [ , character_set = <character-set> ] )",
    "font_table ( [ <character-set> = ] font, ... )",
    "icon ( [ color_table = <color-table> ] <string>, ... )",
    "integer_table ( <nunber>, ... )",
    "keysym ( <string> )",
    "reason ( <string> )",
    "rgb ( <integer>, ... )",
    "translation_table ( <string>, ... )",
    "wide_character ( <string> )",
    "xbitmapfile ( <filename> )",
    "identifier name ; ...",
    "procedure <name> [ ( [ <type> ] ) ] ;",
    "list <name> : <kind-of-list> { <item> ; ... } ; ...",
    "arguments { <argument> = <value> ; ... } ;",
    "callbacks { <reason> = procedure <procedure> ; ... } ;",
    "procedures { <procedure> [ ( [ <value> ] ) ] ; ... }",
    "<procedure> [ ( [ <value> ] ) ] ;",
    "controls { [ [un]managed ] <widget-class> <widget> ; ... } ;",
    "[ [un]managed ] <widget-class> <widget-name> ;",
    "<auto-created-child> { [ <attribute> ; ... ] } ;",
    "<widget-class> [ widget | gadget ] { <attribute> ; ... }",
    "user_defined procedure <procedure> { <attribute> ; ... }",
};
static_assert(kUsageTexts.size() == kConstructCount);

static bool module_fault_reported = false;
static bool not_a_module_reported = false;

const char *UsageOf(Construct construct) { return kUsageTexts[construct]; }

void ReportUsage(Construct construct) { ErrorMessage(kSyntax, UsageOf(construct)); }

void SyntaxFault(YYSTYPE *result, Construct construct) {
  ReportUsage(construct);
  ParseFailed(result);
}

void ParseFailed(YYSTYPE *result) {
  result->value.kind = NIL;
  result->value.name = "";
}

static void ReportModuleUsage() {
  if (module_definition == nullptr) {
    ErrorMessage(kSyntax, "module <name> ... end module;");
  } else {
    ErrorFormat(kSyntax, "module %s <module-clause>* <section>* end module;",
                module_definition->name);
  }
}

void ModuleFault(YYSTYPE *result) {
  ReportModuleUsage();
  module_fault_reported = true;
  ParseFailed(result);
}

void NotAModule(YYSTYPE *result) {
  if (!not_a_module_reported) {
    ReportModuleUsage();
    not_a_module_reported = true;
  }
  ParseFailed(result);
}

void ModuleGivenUp() {
  if (!module_fault_reported && !not_a_module_reported) {
    ReportModuleUsage();
  }
}

void ParseUsageReset() {
  module_fault_reported = false;
  not_a_module_reported = false;
}
