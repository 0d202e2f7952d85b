// Tests of fonts.

#include "ValueModel.h"

namespace {

class AdaFont : public ValueModel {};

TEST_F(AdaFont, IsLoadedOnTheDisplayOfTheParent) {
  child_self_or_parent = "child"; // has no part in it
  ExpectWritten(Font("-*-fixed-*", "iso_latin1"),
                {"    font_7 : xlibr5.fontstruct_ptr;\n"
                 "    font_string_7 : constant string :=\n"
                 "      \"-*-fixed-*\" &\n"
                 "      character'val(   0 );\n"
                 "    font_display_7 : xlibr5.display;\n",
                 "    font_display_7 := XtR5.DisplayOfObject( parent );\n"
                 "    font_7 := xlibr5.loadqueryfont( font_display_7,\n"
                 "                                font_string_7 );\n",
                 "font_7", ""});
}

TEST_F(AdaFont, Names) { ExpectNames(Font("x"), "font_12", "font_12"); }

} // namespace
