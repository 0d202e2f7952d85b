// Tests of font tables.

#include "ValueModel.h"

namespace {

class AdaFontTable : public ValueModel {};

TEST_F(AdaFontTable, FontsAndFontSetsAreJoined) {
  ExpectWritten(Table(FONT_TABLE, {Font("fixed", "iso_latin1"), Fontset({"k14"}, "jis")}),
                {"    font_table_7 : xm1_2_2.fontlist;\n"
                 "    font_table_entry_7_1 : xm1_2_2.fontlistentry;\n"
                 "    font_table_tag_7_1 : constant string := \"iso_latin1\";\n"
                 "    font_table_entry_7_2 : xm1_2_2.fontlistentry;\n"
                 "    font_table_tag_7_2 : constant string := \"jis\";\n",
                 "    declare\n"
                 "    font_1 : xlibr5.fontstruct_ptr;\n"
                 "    font_string_1 : constant string :=\n"
                 "      \"fixed\" &\n"
                 "      character'val(   0 );\n"
                 "    font_display_1 : xlibr5.display;\n"
                 "    fontset_2 : xlibr5.fontset;\n"
                 "    fontset_string_2 : constant string :=\n"
                 "        \"k14\";\n"
                 "    fontset_missing_2 : xlibr5.stringlist_ptr;\n"
                 "    fontset_mcount_2 : xlibr5.int;\n"
                 "    fontset_defstr_2 : xlibr5.string_ptr;\n"
                 "    fontset_display_2 : xlibr5.display;\n"
                 "    begin\n"
                 "    font_display_1 := XtR5.DisplayOfObject( parent );\n"
                 "    font_1 := xlibr5.loadqueryfont( font_display_1,\n"
                 "                                font_string_1 );\n"
                 "    font_table_entry_7_1 :=\n"
                 "      xm1_2_2.fontlistentrycreate(\n"
                 "        font_table_tag_7_1,\n"
                 "        xm.font_is_font,\n"
                 "        font_1 );\n"
                 "    fontset_display_2 := XtR5.DisplayOfObject( parent );\n"
                 "    xlibr5.createfontset( fontset_display_2,\n"
                 "                          fontset_string_2,\n"
                 "                          fontset_missing_2,\n"
                 "                          fontset_mcount_2,\n"
                 "                          fontset_defstr_2,\n"
                 "                          fontset_2 );\n"
                 "    font_table_entry_7_2 :=\n"
                 "      xm1_2_2.fontlistentrycreate(\n"
                 "        font_table_tag_7_2,\n"
                 "        xm.font_is_fontset,\n"
                 "        fontset_2 );\n"
                 "    end;\n"
                 "    font_table_7 := xtr5.xtnull;\n"
                 "    font_table_7 :=\n"
                 "      xm1_2_2.fontlistappendentry(\n"
                 "        font_table_7,\n"
                 "        font_table_entry_7_1 );\n"
                 "    xtr5.free( font_table_entry_7_1 );\n"
                 "    font_table_7 :=\n"
                 "      xm1_2_2.fontlistappendentry(\n"
                 "        font_table_7,\n"
                 "        font_table_entry_7_2 );\n"
                 "    xtr5.free( font_table_entry_7_2 );\n",
                 "font_table_7", ""});
}

TEST_F(AdaFontTable, EmptyTableIsNull) {
  ExpectWritten(Table(FONT_TABLE, {}), {"    font_table_7 : xm1_2_2.fontlist;\n",
                                        "    font_table_7 := xtr5.xtnull;\n", "font_table_7", ""});
}

TEST_F(AdaFontTable, TagOfTheToolkit) {
  EXPECT_EQ(Declared(Table(FONT_TABLE, {Font("a"), Font("b", ""), Fontset({}, "")}), nullptr, 1),
            "    font_table_1 : xm1_2_2.fontlist;\n"
            "    font_table_entry_1_1 : xm1_2_2.fontlistentry;\n"
            "    font_table_tag_1_1 : constant string :=\n"
            "        Xmdef.FONTLIST_DEFAULT_TAG;\n"
            "    font_table_entry_1_2 : xm1_2_2.fontlistentry;\n"
            "    font_table_tag_1_2 : constant string :=\n"
            "        Xmdef.FONTLIST_DEFAULT_TAG;\n"
            "    font_table_entry_1_3 : xm1_2_2.fontlistentry;\n"
            "    font_table_tag_1_3 : constant string :=\n"
            "        Xmdef.FONTLIST_DEFAULT_TAG;\n");
}

TEST_F(AdaFontTable, TagOfTheModule) {
  default_character_set = "hebrew";
  EXPECT_EQ(Declared(Table(FONT_TABLE, {Font("a"), Font("b", "")}), nullptr, 1),
            "    font_table_1 : xm1_2_2.fontlist;\n"
            "    font_table_entry_1_1 : xm1_2_2.fontlistentry;\n"
            "    font_table_tag_1_1 : constant string := \"hebrew\";\n"
            "    font_table_entry_1_2 : xm1_2_2.fontlistentry;\n"
            "    font_table_tag_1_2 : constant string := \"hebrew\";\n");
}

// It keeps its number, and its declaration, but gets no tag and is not opened.
TEST_F(AdaFontTable, OtherEntriesAreReported) {
  auto *table = Table(FONT_TABLE, {Integer(5), Font("a", "x")});
  std::string declared;
  EXPECT_EQ(Reported([&] { declared = Declared(table, nullptr, 1); }),
            "kivuxl: Internal error: unexpected type in font table.\n");
  EXPECT_EQ(declared, "    font_table_1 : xm1_2_2.fontlist;\n"
                      "    font_table_entry_1_1 : xm1_2_2.fontlistentry;\n"
                      "    font_table_entry_1_2 : xm1_2_2.fontlistentry;\n"
                      "    font_table_tag_1_2 : constant string := \"x\";\n");
  std::string set;
  EXPECT_EQ(Reported([&] { set = Set(table, nullptr, 1); }), "");
  EXPECT_EQ(set, "    declare\n"
                 "    font_2 : xlibr5.fontstruct_ptr;\n"
                 "    font_string_2 : constant string :=\n"
                 "      \"a\" &\n"
                 "      character'val(   0 );\n"
                 "    font_display_2 : xlibr5.display;\n"
                 "    begin\n"
                 "    font_display_2 := XtR5.DisplayOfObject( parent );\n"
                 "    font_2 := xlibr5.loadqueryfont( font_display_2,\n"
                 "                                font_string_2 );\n"
                 "    font_table_entry_1_2 :=\n"
                 "      xm1_2_2.fontlistentrycreate(\n"
                 "        font_table_tag_1_2,\n"
                 "        xm.font_is_font,\n"
                 "        font_2 );\n"
                 "    end;\n"
                 "    font_table_1 := xtr5.xtnull;\n"
                 "    font_table_1 :=\n"
                 "      xm1_2_2.fontlistappendentry(\n"
                 "        font_table_1,\n"
                 "        font_table_entry_1_2 );\n"
                 "    xtr5.free( font_table_entry_1_2 );\n");
}

TEST_F(AdaFontTable, Names) {
  ExpectNames(Table(FONT_TABLE, {}), "font_table_12", "font_table_12");
}

} // namespace
