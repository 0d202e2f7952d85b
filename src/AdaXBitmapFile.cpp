// See AdaXBitmapFile.h.

#include "AdaXBitmapFile.h"

#include "AdaArgument.h"
#include "AdaWidgetProcs.h"
#include "Emit.h"

std::string xbitmapfile_varname(int n) { return ExpressionFormat("xbitmapfile_%d"_ada, n); }

std::string xbitmapfile_varptr(int n) { return ExpressionAddress(xbitmapfile_varname(n)); }

void xbitmapfile_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                         int n) {
  argument_declare(argument, file, n);
  Emit(file, "    %s : %s;\n"_ada, xbitmapfile_varname(n).c_str(),
       argument_object_type(XBITMAPFILE));
  Emit(file,
       "    xbitmapfile_file_%d : constant string := \"%s\";\n"
       "    xbitmapfile_args_%d : xtr5.arglist( 1 .. 3 );\n"
       "    xbitmapfile_background_%d : xlibr5.pixel;\n"
       "    xbitmapfile_foreground_%d : xlibr5.pixel;\n"
       "    xbitmapfile_depth_%d : xlibr5.int;\n"_ada,
       n, static_cast<const XBitmapFileValue *>(value)->value, n, n, n, n);
}

void xbitmapfile_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                        int n) {
  const std::string name = xbitmapfile_varname(n);
  Emit(file,
       "    XtR5.SetArg( xbitmapfile_args_%d( 1 ),\n"
       "                 Xmdef.Nbackground,\n"
       "                 xbitmapfile_background_%d'address );\n"
       "    XtR5.SetArg( xbitmapfile_args_%d( 2 ),\n"
       "                 Xmdef.Nforeground,\n"
       "                 xbitmapfile_foreground_%d'address );\n"
       "    XtR5.SetArg( xbitmapfile_args_%d( 3 ),\n"
       "                 Xmdef.Ndepth,\n"
       "                 xbitmapfile_depth_%d'address );\n"
       "    XtR5.GetValues( %s, xbitmapfile_args_%d, 3 );\n"_ada,
       n, n, n, n, n, n, child_self_or_parent, n);
  Emit(file,
       "    %s :=\n"
       "      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),\n"
       "                                xbitmapfile_file_%d,\n"
       "                                xbitmapfile_foreground_%d,\n"
       "                                xbitmapfile_background_%d,\n"
       "                                xbitmapfile_depth_%d );\n"_ada,
       name.c_str(), n, n, n, n);
  argument_setarg(name.c_str(), argument, file, n);
}
