// Tests of font sets.

#include "ValueModel.h"

namespace {

class AdaFontset : public ValueModel {};

constexpr const char *kSetting = "    fontset_display_7 := XtR5.DisplayOfObject( parent );\n"
                                 "    xlibr5.createfontset( fontset_display_7,\n"
                                 "                          fontset_string_7,\n"
                                 "                          fontset_missing_7,\n"
                                 "                          fontset_mcount_7,\n"
                                 "                          fontset_defstr_7,\n"
                                 "                          fontset_7 );\n";

TEST_F(AdaFontset, NamesAreJoinedByCommas) {
  ExpectWritten(Fontset({"-*-fixed-*", "\"k14\"", "r"}),
                {"    fontset_7 : xlibr5.fontset;\n"
                 "    fontset_string_7 : constant string :=\n"
                 "        \"-*-fixed-*,\" &\n"
                 "        \"\"k14\",\" &\n"
                 "        \"r\";\n"
                 "    fontset_missing_7 : xlibr5.stringlist_ptr;\n"
                 "    fontset_mcount_7 : xlibr5.int;\n"
                 "    fontset_defstr_7 : xlibr5.string_ptr;\n"
                 "    fontset_display_7 : xlibr5.display;\n",
                 kSetting, "fontset_7", ""});
}

TEST_F(AdaFontset, WithoutNames) {
  ExpectWritten(Fontset({}), {"    fontset_7 : xlibr5.fontset;\n"
                              "    fontset_string_7 : constant string := \"\";\n"
                              "    fontset_missing_7 : xlibr5.stringlist_ptr;\n"
                              "    fontset_mcount_7 : xlibr5.int;\n"
                              "    fontset_defstr_7 : xlibr5.string_ptr;\n"
                              "    fontset_display_7 : xlibr5.display;\n",
                              kSetting, "fontset_7", ""});
}

TEST_F(AdaFontset, Names) { ExpectNames(Fontset({}), "fontset_12", "fontset_12"); }

} // namespace
