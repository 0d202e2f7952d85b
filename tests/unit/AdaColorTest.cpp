// Tests of colours.

#include "ValueModel.h"

namespace {

class AdaColor : public ValueModel {
protected:
  static ColorValue *Colour(const char *name, std::int32_t fallback, std::int32_t kind = COLOR) {
    ColorValue *value = Color(name);
    value->kind = kind;
    value->fallback = fallback;
    return value;
  }
  static std::string Declaration(const std::string &text) {
    return "    color_7 : xlibr5.pixel;\n"
           "    string_7 : constant string :=\n" +
           text +
           ";\n"
           "    color_args_7 : xtr5.arglist( 1 .. 1 );\n"
           "    color_colormap_7 : xlibr5.colormap;\n"
           "    color_screen_rgb_7 : xlibr5.color;\n"
           "    color_exact_rgb_7 : xlibr5.color;\n"
           "    color_status_7 : boolean;\n";
  }
  static std::string Setting(const std::string &widget, const std::string &fallback) {
    return "    XtR5.SetArg( color_args_7( 1 ),\n"
           "                 Xmdef.Ncolormap,\n"
           "                 color_colormap_7'address );\n"
           "    XtR5.GetValues( " +
           widget +
           ", color_args_7, 1 );\n"
           "    if string_7'length > 1 then\n"
           "      XlibR5.AllocNamedColor( XtR5.DisplayOfObject( self ),\n"
           "                              color_colormap_7,\n"
           "                              string_7,\n"
           "                              color_screen_rgb_7,\n"
           "                              color_exact_rgb_7,\n"
           "                              color_status_7 );\n"
           "    else\n"
           "      color_status_7 := false;\n"
           "    end if;\n"
           "    if color_status_7 then\n"
           "      color_7 := color_screen_rgb_7.pixel;\n"
           "    else\n" +
           fallback + "    end if;\n";
  }
};

constexpr const char *kRed = "      \"red\" &\n"
                             "      character'val(   0 )";
constexpr const char *kNoFallback = "      color_7 := xlibr5.pixel( 0 );\n";

TEST_F(AdaColor, WithoutFallbackIsPixelZero) {
  ExpectWritten(Colour("red", NIL),
                {Declaration(kRed), Setting("self", kNoFallback), "color_7", ""});
}

TEST_F(AdaColor, BackgroundIsFetchedIntoTheVariable) {
  ExpectWritten(Colour("red", BACKGROUND),
                {Declaration(kRed),
                 Setting("self", "      XtR5.SetArg( color_args_7( 1 ),\n"
                                 "                   Xmdef.Nbackground,\n"
                                 "                   color_7'address );\n"
                                 "      XtR5.GetValues( self, color_args_7, 1 );\n"),
                 "color_7", ""});
}

// In a gadget the colours are the parent's.
TEST_F(AdaColor, ForegroundOfTheWidgetThatConversionsRunAgainst) {
  child_self_or_parent = "parent";
  ExpectWritten(Colour("red", FOREGROUND),
                {Declaration(kRed),
                 Setting("parent", "      XtR5.SetArg( color_args_7( 1 ),\n"
                                   "                   Xmdef.Nforeground,\n"
                                   "                   color_7'address );\n"
                                   "      XtR5.GetValues( parent, color_args_7, 1 );\n"),
                 "color_7", ""});
}

TEST_F(AdaColor, RgbIsAColour) {
  ExpectWritten(Colour("#ffff00008000", NIL, RGB), {Declaration("      \"#ffff00008000\" &\n"
                                                                "      character'val(   0 )"),
                                                    Setting("self", kNoFallback), "color_7", ""});
}

// A text of one character, its NUL, is not allocated at run time.
TEST_F(AdaColor, WithoutNameIsTheEmptyText) {
  const Expected expected = {Declaration("      \"\" & character'val( 0 )"),
                             Setting("self", kNoFallback), "color_7", ""};
  ExpectWritten(Colour("", NIL), expected);
  ExpectWritten(Colour(nullptr, NIL), expected);
}

TEST_F(AdaColor, Names) {
  ExpectNames(Colour("red", NIL), "color_12", "color_12'address");
  ExpectNames(Colour("#000", NIL, RGB), "color_12", "color_12'address");
}

} // namespace
