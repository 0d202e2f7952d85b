// See AdaFont.h.

#include "AdaFont.h"

#include "AdaArgument.h"
#include "AdaString.h"
#include "Emit.h"

std::string font_varname(int n) { return ExpressionFormat("font_%d"_ada, n); }

std::string font_varptr(int n) { return font_varname(n); }

void font_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  argument_declare(argument, file, n);
  Emit(file, "    %s : %s;\n"_ada, font_varname(n).c_str(), argument_object_type(FONT));
  Emit(file,
       "    font_string_%d : constant string :=\n"
       "%s;\n"
       "    font_display_%d : xlibr5.display;\n"_ada,
       n, string_value_expr(static_cast<const FontValue *>(value)->value).c_str(), n);
}

void font_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file, int n) {
  const std::string name = font_varname(n);
  Emit(file,
       "    font_display_%d := XtR5.DisplayOfObject( parent );\n"
       "    %s := xlibr5.loadqueryfont( font_display_%d,\n"
       "                                font_string_%d );\n"_ada,
       n, name.c_str(), n, n);
  argument_setarg(name.c_str(), argument, file, n);
}
