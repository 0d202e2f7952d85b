// Tests of icons.

#include "ValueModel.h"

namespace {

class AdaIcon : public ValueModel {
protected:
  static IconValue *Icon(List rows, List colors) {
    auto *icon = ModelNew<IconValue>(ICON);
    icon->value = rows;
    icon->colors = colors;
    return icon;
  }
  static ColorAssignment *Assign(const char *name, std::int32_t fallback, const char *chars) {
    auto *assignment = ModelNew<ColorAssignment>(COLOR_TABLE_ENTRY);
    assignment->value = name;
    assignment->fallback = fallback;
    assignment->chars = chars;
    return assignment;
  }
  // The declarations and the settings of a colour in the inner block.
  static std::string ColorDeclared(const std::string &i, const std::string &text) {
    return "    color_" + i +
           " : xlibr5.pixel;\n"
           "    string_" +
           i + " : constant string :=\n" + text +
           ";\n"
           "    color_args_" +
           i +
           " : xtr5.arglist( 1 .. 1 );\n"
           "    color_colormap_" +
           i +
           " : xlibr5.colormap;\n"
           "    color_screen_rgb_" +
           i +
           " : xlibr5.color;\n"
           "    color_exact_rgb_" +
           i +
           " : xlibr5.color;\n"
           "    color_status_" +
           i + " : boolean;\n";
  }
  static std::string ColorSet(const std::string &i, const std::string &fallback,
                              const std::string &widget = "self") {
    return "    XtR5.SetArg( color_args_" + i +
           "( 1 ),\n"
           "                 Xmdef.Ncolormap,\n"
           "                 color_colormap_" +
           i +
           "'address );\n"
           "    XtR5.GetValues( " +
           widget + ", color_args_" + i +
           ", 1 );\n"
           "    if string_" +
           i +
           "'length > 1 then\n"
           "      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),\n"
           "                              color_colormap_" +
           i +
           ",\n"
           "                              string_" +
           i +
           ",\n"
           "                              color_screen_rgb_" +
           i +
           ",\n"
           "                              color_exact_rgb_" +
           i +
           ",\n"
           "                              color_status_" +
           i +
           " );\n"
           "    else\n"
           "      color_status_" +
           i +
           " := false;\n"
           "    end if;\n"
           "    if color_status_" +
           i +
           " then\n"
           "      color_" +
           i + " := color_screen_rgb_" + i +
           ".pixel;\n"
           "    else\n" +
           fallback + "    end if;\n";
  }
  static std::string Fetched(const std::string &i, const std::string &resource,
                             const std::string &widget = "self") {
    return "      XtR5.SetArg( color_args_" + i +
           "( 1 ),\n"
           "                   Xmdef." +
           resource +
           ",\n"
           "                   color_" +
           i +
           "'address );\n"
           "      XtR5.GetValues( " +
           widget + ", color_args_" + i + ", 1 );\n";
  }
  // The two colours of an icon without a colour table.
  static std::string DefaultColorBlock(const std::string &widget = "self") {
    return "    declare\n" + ColorDeclared("1", "      \"\" & character'val( 0 )") +
           ColorDeclared("2", "      \"\" & character'val( 0 )") + "    begin\n" +
           ColorSet("1", Fetched("1", "Nbackground", widget), widget) +
           "    icon_pixels_7( 1 ) := color_1;\n" +
           ColorSet("2", Fetched("2", "Nforeground", widget), widget) +
           "    icon_pixels_7( 2 ) := color_2;\n"
           "    end;\n";
  }
  // From the depth to the freed graphics context, in slot 7.
  static std::string Drawing(const std::string &widget = "self") {
    return "    XtR5.SetArg( icon_args_7( 1 ),\n"
           "                 Xmdef.Ndepth,\n"
           "                 icon_depth_7'address );\n"
           "    XtR5.GetValues( " +
           widget +
           ", icon_args_7, 1 );\n"
           "    icon_display_7 := XtR5.DisplayOfObject( self );\n"
           "    icon_screen_7  := XtR5.ScreenOfObject( self );\n"
           "    icon_root_7    :=\n"
           "      XlibR5.RootWindowOfScreen( icon_screen_7 );\n"
           "    icon_visual_7  :=\n"
           "      XlibR5.DefaultVisualOfScreen( icon_screen_7 );\n"
           "    icon_image_7 :=\n"
           "      XlibR5.CreateImage( icon_display_7,\n"
           "                          icon_visual_7,\n"
           "                          icon_depth_7,\n"
           "                          xlibr5.zpixmap,\n"
           "                          0,\n"
           "                          xtr5.xtnull,\n"
           "                          icon_strlen_7 / icon_chrlen_7,\n"
           "                          icon_strings_7'length,\n"
           "                          xlibr5.bitmappad( icon_display_7 ),\n"
           "                          0 );\n"
           "    icon_data_7 :=\n"
           "      new xlibr5.unsignedcharlist(\n"
           "        1 .. icon_image_7.height *\n"
           "             icon_image_7.bytes_per_line );\n"
           "    icon_image_7.data :=\n"
           "      icon_data_7( icon_data_7'first )'address;\n"
           "    for y in icon_strings_7'range loop\n"
           "      for x in 1 .. icon_strlen_7 / icon_chrlen_7 loop\n"
           "        for p in icon_chars_7'range loop\n"
           "          if icon_chars_7( p ).all =\n"
           "             icon_strings_7( y )\n"
           "               ( ( x - 1 ) * icon_chrlen_7 + 1 ..\n"
           "                 x * icon_chrlen_7 ) then\n"
           "            icon_dummy_7 :=\n"
           "              xlibr5.putpixel( icon_image_7, x - 1, y - 1,\n"
           "                               icon_pixels_7( p ) );\n"
           "            exit;\n"
           "          end if;\n"
           "        end loop;\n"
           "      end loop;\n"
           "    end loop;\n"
           "    icon_7 := xlibr5.createpixmap( icon_display_7,\n"
           "                               icon_root_7,\n"
           "                               icon_image_7.width,\n"
           "                               icon_image_7.height,\n"
           "                               icon_image_7.depth );\n"
           "    icon_gc_7 := xlibr5.creategc( icon_display_7,\n"
           "                                   icon_root_7,\n"
           "                                   0,\n"
           "                                   icon_gcvalues_7 );\n"
           "    xlibr5.putimage( icon_display_7,\n"
           "                     icon_7,\n"
           "                     icon_gc_7,\n"
           "                     icon_image_7,\n"
           "                     0, 0, 0, 0,\n"
           "                     icon_image_7.width,\n"
           "                     icon_image_7.height );\n"
           "    xlibr5.freegc( icon_display_7, icon_gc_7 );\n";
  }
};

const std::string kVariables = "    icon_depth_7 : xlibr5.int;\n"
                               "    icon_visual_7 : xlibr5.visual_ptr;\n"
                               "    icon_screen_7 : xlibr5.screen_ptr;\n"
                               "    icon_display_7 : xlibr5.display;\n"
                               "    icon_root_7 : xlibr5.window;\n"
                               "    icon_gc_7 : xlibr5.gc;\n"
                               "    icon_gcvalues_7 : xlibr5.gcvalues;\n"
                               "    icon_image_7 : xlibr5.image_ptr;\n"
                               "    icon_args_7 : xtr5.arglist( 1 .. 1 );\n"
                               "    icon_dummy_7 : xlibr5.int;\n"
                               "    icon_data_7 : xlibr5.unsignedcharlist_ptr;\n";
const std::string kDefaultTable = "    icon_pixels_7 : xlibr5.pixellist( 1 .. 2 );\n"
                                  "    icon_chars_7 : xlibr5.stringlist( 1 .. 2 ) := (\n"
                                  "        new string'( \" \" ),\n"
                                  "        new string'( \"*\" ) );\n"
                                  "    icon_chrlen_7 : constant integer := 1;\n";
constexpr const char *kCleanup = "    icon_dummy_7 := xlibr5.destroyimage( icon_image_7 );\n";

// Rows are written as they are.
TEST_F(AdaIcon, WithoutColorTable) {
  const Expected expected = {"    icon_7 : xlibr5.pixmap;\n"
                             "    icon_strings_7 : xlibr5.stringlist( 1 .. 2 ) := (\n"
                             "        1 => new string'( \"* *\" ),\n"
                             "        2 => new string'( \" \"\" ) );\n"
                             "    icon_strlen_7 : constant integer := 3;\n" +
                                 kDefaultTable + kVariables,
                             DefaultColorBlock() + Drawing(), "icon_7", kCleanup};
  ExpectWritten(Icon(Texts({"* *", " \""}), nullptr), expected);
  ExpectWritten(Icon(Texts({"* *", " \""}), ModelList()), expected);
}

TEST_F(AdaIcon, WithoutRows) {
  const Expected expected = {"    icon_7 : xlibr5.pixmap;\n"
                             "    icon_strings_7 : xlibr5.stringlist( 1 .. 0 );\n"
                             "    icon_strlen_7 : constant integer := 0;\n" +
                                 kDefaultTable + kVariables,
                             DefaultColorBlock() + Drawing(), "icon_7", kCleanup};
  ExpectWritten(Icon(Texts({}), nullptr), expected);
  ExpectWritten(Icon(nullptr, nullptr), expected);
}

TEST_F(AdaIcon, OfAGadgetAsksTheParent) {
  child_self_or_parent = "parent";
  EXPECT_EQ(Set(Icon(Texts({"*"}), nullptr), nullptr, 7),
            DefaultColorBlock("parent") + Drawing("parent"));
}

// The width of a cell is that of the longest characters.
TEST_F(AdaIcon, WithColorTable) {
  const std::string red = "      \"red\" &\n"
                          "      character'val(   0 )";
  const std::string declaration = "    icon_7 : xlibr5.pixmap;\n"
                                  "    icon_strings_7 : xlibr5.stringlist( 1 .. 1 ) := (\n"
                                  "        1 => new string'( \"aabbcc\" ) );\n"
                                  "    icon_strlen_7 : constant integer := 6;\n"
                                  "    icon_pixels_7 : xlibr5.pixellist( 1 .. 3 );\n"
                                  "    icon_chars_7 : xlibr5.stringlist( 1 .. 3 ) := (\n"
                                  "      1 => new string'( \"a\" ),\n"
                                  "      2 => new string'( \"bb\" ),\n"
                                  "      3 => new string'( \"\" ) );\n"
                                  "    icon_chrlen_7 : constant integer := 2;\n" +
                                  kVariables;
  const std::string setting =
      "    declare\n" + ColorDeclared("1", red) +
      ColorDeclared("2", "      \"\" & character'val( 0 )") + ColorDeclared("3", red) +
      "    begin\n" + ColorSet("1", "      color_1 := xlibr5.pixel( 0 );\n") +
      "    icon_pixels_7( 1 ) := color_1;\n" + ColorSet("2", Fetched("2", "Nbackground")) +
      "    icon_pixels_7( 2 ) := color_2;\n" + ColorSet("3", Fetched("3", "Nforeground")) +
      "    icon_pixels_7( 3 ) := color_3;\n"
      "    end;\n" +
      Drawing();
  ExpectWritten(
      Icon(Texts({"aabbcc"}), Items({Assign("red", NIL, "a"), Assign(nullptr, BACKGROUND, "bb"),
                                     Assign("red", FOREGROUND, "")})),
      {declaration, setting, "icon_7", kCleanup});
}

TEST_F(AdaIcon, CellIsOneCharacterWideAtLeast) {
  const std::string declared = Declared(Icon(nullptr, Items({Assign("red", NIL, "")})), nullptr, 7);
  EXPECT_EQ(declared, "    icon_7 : xlibr5.pixmap;\n"
                      "    icon_strings_7 : xlibr5.stringlist( 1 .. 0 );\n"
                      "    icon_strlen_7 : constant integer := 0;\n"
                      "    icon_pixels_7 : xlibr5.pixellist( 1 .. 1 );\n"
                      "    icon_chars_7 : xlibr5.stringlist( 1 .. 1 ) := (\n"
                      "      1 => new string'( \"\" ) );\n"
                      "    icon_chrlen_7 : constant integer := 1;\n" +
                          kVariables);
}

TEST_F(AdaIcon, LargeIcon) {
  const std::string row(2000, '*');
  List rows = ModelList();
  std::string expected = "    icon_7 : xlibr5.pixmap;\n"
                         "    icon_strings_7 : xlibr5.stringlist( 1 .. 2000 ) := (\n";
  for (int i = 1; i <= 2000; ++i) {
    ModelAppend(rows, ModelText(row));
    expected += "        " + std::to_string(i) + " => new string'( \"" + row + "\" )" +
                (i == 2000 ? " );\n" : ",\n");
  }
  expected += "    icon_strlen_7 : constant integer := 2000;\n" + kDefaultTable + kVariables;
  EXPECT_TRUE(Declared(Icon(rows, nullptr), nullptr, 7) == expected);
}

TEST_F(AdaIcon, Names) { ExpectNames(Icon(nullptr, nullptr), "icon_12", "icon_12'address"); }

} // namespace
