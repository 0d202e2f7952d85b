// See AdaFontset.h.  The names of the fonts are joined by commas to one text, as the X library
// takes them.

#include "AdaFontset.h"

#include "AdaArgument.h"
#include "Emit.h"

std::string fontset_varname(int n) { return ExpressionFormat("fontset_%d"_ada, n); }

std::string fontset_varptr(int n) { return fontset_varname(n); }

static void DeclareFontNames(List names, std::FILE *file, int n) {
  if (ListLength(names) == 0) {
    Emit(file, "    fontset_string_%d : constant string := \"\";\n"_ada, n);
    return;
  }
  Emit(file, "    fontset_string_%d : constant string :=\n"_ada, n);
  for (const ListItem *node = ListFirstNode(names); node != nullptr; node = node->next) {
    Emit(file, "        \"%s%s\n"_ada, static_cast<const char *>(node->data),
         node->next == nullptr ? "\";" : ",\" &");
  }
}

void fontset_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  argument_declare(argument, file, n);
  Emit(file, "    %s : %s;\n"_ada, fontset_varname(n).c_str(), argument_object_type(FONTSET));
  DeclareFontNames(static_cast<const FontsetValue *>(value)->value, file, n);
  Emit(file,
       "    fontset_missing_%d : xlibr5.stringlist_ptr;\n"
       "    fontset_mcount_%d : xlibr5.int;\n"
       "    fontset_defstr_%d : xlibr5.string_ptr;\n"
       "    fontset_display_%d : xlibr5.display;\n"_ada,
       n, n, n, n);
}

void fontset_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                    int n) {
  const std::string name = fontset_varname(n);
  Emit(file,
       "    fontset_display_%d := XtR5.DisplayOfObject( parent );\n"
       "    xlibr5.createfontset( fontset_display_%d,\n"
       "                          fontset_string_%d,\n"
       "                          fontset_missing_%d,\n"
       "                          fontset_mcount_%d,\n"
       "                          fontset_defstr_%d,\n"
       "                          %s );\n"_ada,
       n, n, n, n, n, n, name.c_str());
  argument_setarg(name.c_str(), argument, file, n);
}
