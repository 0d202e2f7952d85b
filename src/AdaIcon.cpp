// See AdaIcon.h.  The generated code allocates the colours, makes an image of one pixel for each
// cell of the rows, colours each cell by the first entry of the colour table whose characters stand
// in the cell, and copies the image into a pixmap.  Without a colour table a blank is the widget's
// background and an asterisk its foreground.

#include "AdaIcon.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "AdaArgument.h"
#include "AdaColor.h"
#include "AdaWidgetProcs.h"
#include "Emit.h"

std::string icon_varname(int n) { return ExpressionFormat("icon_%d"_ada, n); }

std::string icon_varptr(int n) { return ExpressionAddress(icon_varname(n)); }

// -- Declarations ------------------------------------------------------------------------------

static void DeclareRows(List rows, std::FILE *file, int n) {
  const int count = static_cast<int>(ListLength(rows));
  std::size_t width = 0;
  if (count == 0) {
    Emit(file, "    icon_strings_%d : xlibr5.stringlist( 1 .. 0 );\n"_ada, n);
  } else {
    Emit(file, "    icon_strings_%d : xlibr5.stringlist( 1 .. %d ) := (\n"_ada, n, count);
  }
  int i = 0;
  for (const ListItem *node = ListFirstNode(rows); node != nullptr; node = node->next) {
    const auto *row = static_cast<const char *>(node->data);
    ++i;
    Emit(file, "        %d => new string'( \"%s\" )%s\n"_ada, i, row, i == count ? " );" : ",");
    width = std::max(width, std::strlen(row));
  }
  Emit(file, "    icon_strlen_%d : constant integer := %d;\n"_ada, n, static_cast<int>(width));
}

static void DeclareDefaultColors(std::FILE *file, int n) {
  Emit(file, "    icon_pixels_%d : xlibr5.pixellist( 1 .. 2 );\n"_ada, n);
  Emit(file,
       "    icon_chars_%d : xlibr5.stringlist( 1 .. 2 ) := (\n"
       "        new string'( \" \" ),\n"
       "        new string'( \"*\" ) );\n"_ada,
       n);
}

static void DeclareColorTable(List colors, std::FILE *file, int n) {
  const int count = static_cast<int>(ListLength(colors));
  Emit(file, "    icon_pixels_%d : xlibr5.pixellist( 1 .. %d );\n"_ada, n, count);
  Emit(file, "    icon_chars_%d : xlibr5.stringlist( 1 .. %d ) := (\n"_ada, n, count);
  int i = 0;
  for (const ListItem *node = ListFirstNode(colors); node != nullptr; node = node->next) {
    ++i;
    Emit(file, "      %d => new string'( \"%s\" )%s\n"_ada, i,
         static_cast<const ColorAssignment *>(node->data)->chars, i == count ? " );" : ",");
  }
}

// The characters of one cell, at least one.
static int CellWidth(List colors) {
  std::size_t width = 1;
  for (const ListItem *node = ListFirstNode(colors); node != nullptr; node = node->next) {
    width = std::max(width, std::strlen(static_cast<const ColorAssignment *>(node->data)->chars));
  }
  return static_cast<int>(width);
}

static void DeclareWorkingVariables(std::FILE *file, int n) {
  Emit(file,
       "    icon_depth_%d : xlibr5.int;\n"
       "    icon_visual_%d : xlibr5.visual_ptr;\n"
       "    icon_screen_%d : xlibr5.screen_ptr;\n"
       "    icon_display_%d : xlibr5.display;\n"
       "    icon_root_%d : xlibr5.window;\n"
       "    icon_gc_%d : xlibr5.gc;\n"
       "    icon_gcvalues_%d : xlibr5.gcvalues;\n"
       "    icon_image_%d : xlibr5.image_ptr;\n"
       "    icon_args_%d : xtr5.arglist( 1 .. 1 );\n"
       "    icon_dummy_%d : xlibr5.int;\n"
       "    icon_data_%d : xlibr5.unsignedcharlist_ptr;\n"_ada,
       n, n, n, n, n, n, n, n, n, n, n);
}

void icon_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  const auto *icon = static_cast<const IconValue *>(value);
  argument_declare(argument, file, n);
  Emit(file, "    %s : %s;\n"_ada, icon_varname(n).c_str(), argument_object_type(ICON));
  DeclareRows(icon->value, file, n);
  if (ListLength(icon->colors) == 0) {
    DeclareDefaultColors(file, n);
  } else {
    DeclareColorTable(icon->colors, file, n);
  }
  Emit(file, "    icon_chrlen_%d : constant integer := %d;\n"_ada, n, CellWidth(icon->colors));
  DeclareWorkingVariables(file, n);
}

// -- Settings ----------------------------------------------------------------------------------

static ColorValue MakeColor(const char *name, std::int32_t fallback) {
  ColorValue color = {};
  color.kind = COLOR;
  color.value = name;
  color.fallback = fallback;
  return color;
}

static std::vector<ColorValue> IconColors(List assignments) {
  if (ListLength(assignments) == 0) {
    return {MakeColor("", BACKGROUND), MakeColor("", FOREGROUND)};
  }
  std::vector<ColorValue> colors;
  for (const ListItem *node = ListFirstNode(assignments); node != nullptr; node = node->next) {
    const auto *assignment = static_cast<const ColorAssignment *>(node->data);
    colors.push_back(MakeColor(assignment->value, assignment->fallback));
  }
  return colors;
}

static void SetColors(const std::vector<ColorValue> &colors, std::FILE *file, int n) {
  Emit(file, "    declare\n"_ada);
  int i = 0;
  for (const ColorValue &color : colors) {
    color_declare(&color, nullptr, file, ++i);
  }
  Emit(file, "    begin\n"_ada);
  i = 0;
  for (const ColorValue &color : colors) {
    color_setarg(&color, nullptr, file, ++i);
    Emit(file, "    icon_pixels_%d( %d ) := %s;\n"_ada, n, i, color_varname(i).c_str());
  }
  Emit(file, "    end;\n"_ada);
}

static void FetchSurroundings(std::FILE *file, int n) {
  Emit(file,
       "    XtR5.SetArg( icon_args_%d( 1 ),\n"
       "                 Xmdef.Ndepth,\n"
       "                 icon_depth_%d'address );\n"
       "    XtR5.GetValues( %s, icon_args_%d, 1 );\n"_ada,
       n, n, child_self_or_parent, n);
  Emit(file,
       "    icon_display_%d := XtR5.DisplayOfObject( self );\n"
       "    icon_screen_%d  := XtR5.ScreenOfObject( self );\n"
       "    icon_root_%d    :=\n"
       "      XlibR5.RootWindowOfScreen( icon_screen_%d );\n"
       "    icon_visual_%d  :=\n"
       "      XlibR5.DefaultVisualOfScreen( icon_screen_%d );\n"_ada,
       n, n, n, n, n, n);
}

static void CreateImage(std::FILE *file, int n) {
  Emit(file,
       "    icon_image_%d :=\n"
       "      XlibR5.CreateImage( icon_display_%d,\n"
       "                          icon_visual_%d,\n"
       "                          icon_depth_%d,\n"
       "                          xlibr5.zpixmap,\n"
       "                          0,\n"
       "                          xtr5.xtnull,\n"
       "                          icon_strlen_%d / icon_chrlen_%d,\n"
       "                          icon_strings_%d'length,\n"
       "                          xlibr5.bitmappad( icon_display_%d ),\n"
       "                          0 );\n"_ada,
       n, n, n, n, n, n, n, n);
  Emit(file,
       "    icon_data_%d :=\n"
       "      new xlibr5.unsignedcharlist(\n"
       "        1 .. icon_image_%d.height *\n"
       "             icon_image_%d.bytes_per_line );\n"
       "    icon_image_%d.data :=\n"
       "      icon_data_%d( icon_data_%d'first )'address;\n"_ada,
       n, n, n, n, n, n);
}

static void DrawCells(std::FILE *file, int n) {
  Emit(file,
       "    for y in icon_strings_%d'range loop\n"
       "      for x in 1 .. icon_strlen_%d / icon_chrlen_%d loop\n"
       "        for p in icon_chars_%d'range loop\n"
       "          if icon_chars_%d( p ).all =\n"
       "             icon_strings_%d( y )\n"
       "               ( ( x - 1 ) * icon_chrlen_%d + 1 ..\n"
       "                 x * icon_chrlen_%d ) then\n"
       "            icon_dummy_%d :=\n"
       "              xlibr5.putpixel( icon_image_%d, x - 1, y - 1,\n"
       "                               icon_pixels_%d( p ) );\n"
       "            exit;\n"
       "          end if;\n"
       "        end loop;\n"
       "      end loop;\n"
       "    end loop;\n"_ada,
       n, n, n, n, n, n, n, n, n, n, n);
}

static void CopyToPixmap(std::FILE *file, int n) {
  const std::string name = icon_varname(n);
  Emit(file,
       "    %s := xlibr5.createpixmap( icon_display_%d,\n"
       "                               icon_root_%d,\n"
       "                               icon_image_%d.width,\n"
       "                               icon_image_%d.height,\n"
       "                               icon_image_%d.depth );\n"_ada,
       name.c_str(), n, n, n, n, n);
  Emit(file,
       "    icon_gc_%d := xlibr5.creategc( icon_display_%d,\n"
       "                                   icon_root_%d,\n"
       "                                   0,\n"
       "                                   icon_gcvalues_%d );\n"_ada,
       n, n, n, n);
  Emit(file,
       "    xlibr5.putimage( icon_display_%d,\n"
       "                     %s,\n"
       "                     icon_gc_%d,\n"
       "                     icon_image_%d,\n"
       "                     0, 0, 0, 0,\n"
       "                     icon_image_%d.width,\n"
       "                     icon_image_%d.height );\n"_ada,
       n, name.c_str(), n, n, n, n);
  Emit(file, "    xlibr5.freegc( icon_display_%d, icon_gc_%d );\n"_ada, n, n);
}

void icon_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  SetColors(IconColors(static_cast<const IconValue *>(value)->colors), file, n);
  FetchSurroundings(file, n);
  CreateImage(file, n);
  DrawCells(file, n);
  CopyToPixmap(file, n);
  argument_setarg(icon_varname(n).c_str(), argument, file, n);
}

// The pixmap holds a copy of the image.
void icon_cleanup(std::FILE *file, int n) {
  Emit(file, "    icon_dummy_%d := xlibr5.destroyimage( icon_image_%d );\n"_ada, n, n);
}
