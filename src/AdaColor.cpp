// See AdaColor.h.  The colormap is asked of the widget that conversions run against, and a colour
// that cannot be allocated there, or has no name, is replaced by its fallback.

#include "AdaColor.h"

#include "AdaArgument.h"
#include "AdaString.h"
#include "AdaWidgetProcs.h"
#include "Emit.h"

std::string color_varname(int n) { return ExpressionFormat("color_%d"_ada, n); }

std::string color_varptr(int n) { return ExpressionAddress(color_varname(n)); }

void color_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  argument_declare(argument, file, n);
  Emit(file, "    %s : xlibr5.pixel;\n"_ada, color_varname(n).c_str());
  Emit(file,
       "    string_%d : constant string :=\n"
       "%s;\n"_ada,
       n, string_value_expr(static_cast<const ColorValue *>(value)->value).c_str());
  Emit(file,
       "    color_args_%d : xtr5.arglist( 1 .. 1 );\n"
       "    color_colormap_%d : xlibr5.colormap;\n"
       "    color_screen_rgb_%d : xlibr5.color;\n"
       "    color_exact_rgb_%d : xlibr5.color;\n"
       "    color_status_%d : boolean;\n"_ada,
       n, n, n, n, n);
}

static void AllocateColor(std::FILE *file, int n) {
  Emit(file,
       "    XtR5.SetArg( color_args_%d( 1 ),\n"
       "                 Xmdef.Ncolormap,\n"
       "                 color_colormap_%d'address );\n"
       "    XtR5.GetValues( %s, color_args_%d, 1 );\n"
       "    if string_%d'length > 1 then\n"
       "      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),\n"
       "                              color_colormap_%d,\n"
       "                              string_%d,\n"
       "                              color_screen_rgb_%d,\n"
       "                              color_exact_rgb_%d,\n"
       "                              color_status_%d );\n"
       "    else\n"
       "      color_status_%d := false;\n"
       "    end if;\n"_ada,
       n, n, child_self_or_parent, n, n, n, n, n, n, n, n);
}

static void WriteFallback(std::int32_t fallback, std::FILE *file, int n) {
  const std::string pointer = color_varptr(n);
  switch (fallback) {
  case BACKGROUND:
    Emit(file,
         "      XtR5.SetArg( color_args_%d( 1 ),\n"
         "                   Xmdef.Nbackground,\n"
         "                   %s );\n"
         "      XtR5.GetValues( %s, color_args_%d, 1 );\n"_ada,
         n, pointer.c_str(), child_self_or_parent, n);
    break;
  case FOREGROUND:
    Emit(file,
         "      XtR5.SetArg( color_args_%d( 1 ),\n"
         "                   Xmdef.Nforeground,\n"
         "                   %s );\n"
         "      XtR5.GetValues( %s, color_args_%d, 1 );\n"_ada,
         n, pointer.c_str(), child_self_or_parent, n);
    break;
  default:
    Emit(file, "      %s := xlibr5.pixel( 0 );\n"_ada, color_varname(n).c_str());
    break;
  }
}

void color_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  const std::string name = color_varname(n);
  AllocateColor(file, n);
  Emit(file,
       "    if color_status_%d then\n"
       "      %s := color_screen_rgb_%d.pixel;\n"
       "    else\n"_ada,
       n, name.c_str(), n);
  WriteFallback(static_cast<const ColorValue *>(value)->fallback, file, n);
  Emit(file, "    end if;\n"_ada);
  argument_setarg(name.c_str(), argument, file, n);
}
