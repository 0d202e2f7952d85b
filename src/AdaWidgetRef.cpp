// See AdaWidgetRef.h.  The widget is looked up below the top-level widget by the pattern "*name",
// which is why these settings wait for the post procedure.

#include "AdaWidgetRef.h"

#include "AdaArgument.h"
#include "Emit.h"

std::string widget_varname(int n) { return ExpressionFormat("widget_%d"_ada, n); }

std::string widget_varptr(int n) { return widget_varname(n); }

void widget_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  argument_declare(argument, file, n);
  Emit(file, "    %s : %s := xtr5.xtnull;\n"_ada, widget_varname(n).c_str(),
       argument_object_type(WIDGET_REF));
  Emit(file, "    widget_string_%d : constant string := \"*%s\";\n"_ada, n,
       static_cast<const WidgetRef *>(value)->name);
}

void widget_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                   int n) {
  const std::string name = widget_varname(n);
  Emit(file,
       "    %s := xtr5.nametowidget( current_top_level,\n"
       "                             widget_string_%d );\n"_ada,
       name.c_str(), n);
  argument_setarg(name.c_str(), argument, file, n);
}
