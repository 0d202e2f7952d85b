// Tests of compound strings.

#include "ValueModel.h"

namespace {

class AdaCompoundString : public ValueModel {
protected:
  static CompoundStringSegment *RightToLeft(bool direction) {
    auto *modifier = ModelNew<CompoundStringSegment>(RIGHT_TO_LEFT);
    modifier->direction = direction;
    return modifier;
  }
  static CompoundStringSegment *Separate(bool separate) {
    auto *modifier = ModelNew<CompoundStringSegment>(SEPARATE);
    modifier->separate = separate;
    return modifier;
  }
  static CompoundStringSegment *CharacterSet(const char *name) {
    auto *modifier = ModelNew<CompoundStringSegment>(CHARACTER_SET);
    modifier->charset = name;
    return modifier;
  }
  static TableValue *Compound(std::initializer_list<KindRec *> items) {
    return Table(COMPOUND_STRING, items);
  }
  // The creation of the only segment, in slot 1: the character set as written, the direction
  // without its common beginning, and the separator.
  static std::string Created(const char *charset, const char *direction, const char *separator) {
    return std::string("    compound_string_1 :=\n"
                       "      xm1_2_2.stringsegmentcreate( string_1_1,\n"
                       "                                   ") +
           charset +
           ",\n"
           "                                   xm1_2_2.STRING_DIRECTION_" +
           direction +
           ",\n"
           "                                   " +
           separator + " );\n";
  }
};

TEST_F(AdaCompoundString, OneSegment) {
  ExpectWritten(Compound({Segment("Hello")}),
                {"    string_7_1 : constant string :=\n"
                 "      \"Hello\" &\n"
                 "      character'val(   0 );\n"
                 "    compound_string_7 : xm1_2_2.xmstring;\n",
                 "    compound_string_7 :=\n"
                 "      xm1_2_2.stringsegmentcreate( string_7_1,\n"
                 "                                   xmdef.FONTLIST_DEFAULT_TAG,\n"
                 "                                   xm1_2_2.STRING_DIRECTION_L_TO_R,\n"
                 "                                   FALSE );\n",
                 "compound_string_7", "    xm1_2_2.stringfree( compound_string_7 );\n"});
}

TEST_F(AdaCompoundString, ThreeSegmentsAreJoinedTwice) {
  DefineCharacterSet("hebrew", true);
  ExpectWritten(Compound({Segment("a"), Separate(true), Segment("", "hebrew"), Segment("c")}),
                {"    string_7_1 : constant string :=\n"
                 "      \"a\" &\n"
                 "      character'val(   0 );\n"
                 "    string_7_2 : constant string :=\n"
                 "      \"\" & character'val( 0 );\n"
                 "    string_7_3 : constant string :=\n"
                 "      \"c\" &\n"
                 "      character'val(   0 );\n"
                 "    compound_string_7 : xm1_2_2.xmstring;\n"
                 "    compound_string_segment_7 : xm1_2_2.xmstring;\n"
                 "    compound_string_temp_7 : xm1_2_2.xmstring;\n",
                 "    compound_string_7 :=\n"
                 "      xm1_2_2.stringsegmentcreate( string_7_1,\n"
                 "                                   xmdef.FONTLIST_DEFAULT_TAG,\n"
                 "                                   xm1_2_2.STRING_DIRECTION_L_TO_R,\n"
                 "                                   FALSE );\n"
                 "    compound_string_segment_7 :=\n"
                 "      xm1_2_2.stringsegmentcreate( string_7_2,\n"
                 "                                   \"hebrew\",\n"
                 "                                   xm1_2_2.STRING_DIRECTION_R_TO_L,\n"
                 "                                   TRUE );\n"
                 "    compound_string_temp_7 :=\n"
                 "      xm1_2_2.stringcopy( compound_string_7 );\n"
                 "    xm1_2_2.stringfree( compound_string_7 );\n"
                 "    compound_string_7 :=\n"
                 "      xm1_2_2.stringconcat( compound_string_temp_7,\n"
                 "                            compound_string_segment_7 );\n"
                 "    xm1_2_2.stringfree( compound_string_temp_7 );\n"
                 "    xm1_2_2.stringfree( compound_string_segment_7 );\n"
                 "    compound_string_segment_7 :=\n"
                 "      xm1_2_2.stringsegmentcreate( string_7_3,\n"
                 "                                   xmdef.FONTLIST_DEFAULT_TAG,\n"
                 "                                   xm1_2_2.STRING_DIRECTION_L_TO_R,\n"
                 "                                   FALSE );\n"
                 "    compound_string_temp_7 :=\n"
                 "      xm1_2_2.stringcopy( compound_string_7 );\n"
                 "    xm1_2_2.stringfree( compound_string_7 );\n"
                 "    compound_string_7 :=\n"
                 "      xm1_2_2.stringconcat( compound_string_temp_7,\n"
                 "                            compound_string_segment_7 );\n"
                 "    xm1_2_2.stringfree( compound_string_temp_7 );\n"
                 "    xm1_2_2.stringfree( compound_string_segment_7 );\n",
                 "compound_string_7", "    xm1_2_2.stringfree( compound_string_7 );\n"});
}

TEST_F(AdaCompoundString, NoSegments) {
  ExpectWritten(Compound({}),
                {"    compound_string_7 : xm1_2_2.xmstring;\n", "", "compound_string_7",
                 "    xm1_2_2.stringfree( compound_string_7 );\n"});
}

TEST_F(AdaCompoundString, CharacterSetOfTheSegment) {
  DefineCharacterSet("iso_latin1", false);
  EXPECT_EQ(Set(Compound({Segment("a", "iso_latin1")}), nullptr, 1),
            Created("\"iso_latin1\"", "L_TO_R", "FALSE"));
  // The segment's own character set wins over the modifier's.
  EXPECT_EQ(Set(Compound({CharacterSet("other"), Segment("a", "iso_latin1")}), nullptr, 1),
            Created("\"iso_latin1\"", "L_TO_R", "FALSE"));
}

TEST_F(AdaCompoundString, CharacterSetOfTheModifier) {
  DefineCharacterSet("hebrew", true);
  EXPECT_EQ(Set(Compound({CharacterSet("hebrew"), Segment("a")}), nullptr, 1),
            Created("\"hebrew\"", "R_TO_L", "FALSE"));
  auto *none = CharacterSet(nullptr);
  EXPECT_EQ(Set(Compound({none, Segment("a")}), nullptr, 1),
            Created("xmdef.FONTLIST_DEFAULT_TAG", "L_TO_R", "FALSE"));
  none->default_charset = true;
  EXPECT_EQ(Set(Compound({CharacterSet("hebrew"), none, Segment("a")}), nullptr, 1),
            Created("xmdef.FONTLIST_DEFAULT_TAG", "L_TO_R", "FALSE"));
}

TEST_F(AdaCompoundString, CharacterSetOfTheModule) {
  DefineCharacterSet("hebrew", true);
  DefineCharacterSet("iso_latin1", false);
  default_character_set = "hebrew";
  EXPECT_EQ(Set(Compound({Segment("a")}), nullptr, 1), Created("\"hebrew\"", "R_TO_L", "FALSE"));
  EXPECT_EQ(Set(Compound({Segment("a", "iso_latin1")}), nullptr, 1),
            Created("\"iso_latin1\"", "L_TO_R", "FALSE"));
  // A named set that has no name falls back to the module's, but has no direction.
  EXPECT_EQ(Set(Compound({CharacterSet(nullptr), Segment("a")}), nullptr, 1),
            Created("\"hebrew\"", "L_TO_R", "FALSE"));
}

TEST_F(AdaCompoundString, UnknownCharacterSetIsLeftToRight) {
  EXPECT_TRUE(SymbolAdd(ModelBinding(INTEGER_VALUE, "five", Integer(5))));
  EXPECT_EQ(Set(Compound({Segment("a", "unknown")}), nullptr, 1),
            Created("\"unknown\"", "L_TO_R", "FALSE"));
  EXPECT_EQ(Set(Compound({Segment("a", "five")}), nullptr, 1),
            Created("\"five\"", "L_TO_R", "FALSE"));
  default_character_set = "unknown";
  EXPECT_EQ(Set(Compound({Segment("a")}), nullptr, 1), Created("\"unknown\"", "L_TO_R", "FALSE"));
}

TEST_F(AdaCompoundString, DirectionGivenWinsOverTheCharacterSet) {
  DefineCharacterSet("hebrew", true);
  DefineCharacterSet("iso_latin1", false);
  EXPECT_EQ(Set(Compound({RightToLeft(true), Segment("a", "iso_latin1")}), nullptr, 1),
            Created("\"iso_latin1\"", "R_TO_L", "FALSE"));
  EXPECT_EQ(Set(Compound({RightToLeft(false), Segment("a", "hebrew")}), nullptr, 1),
            Created("\"hebrew\"", "L_TO_R", "FALSE"));
  auto *none = RightToLeft(false);
  none->default_direction = true;
  EXPECT_EQ(Set(Compound({none, Segment("a", "hebrew")}), nullptr, 1),
            Created("\"hebrew\"", "R_TO_L", "FALSE"));
}

TEST_F(AdaCompoundString, ModifiersHoldForOneSegment) {
  DefineCharacterSet("hebrew", true);
  const std::string setting = Set(Compound({RightToLeft(true), CharacterSet("hebrew"),
                                            Separate(true), Segment("a"), Segment("b")}),
                                  nullptr, 1);
  EXPECT_EQ(setting, Created("\"hebrew\"", "R_TO_L", "TRUE") +
                         "    compound_string_segment_1 :=\n"
                         "      xm1_2_2.stringsegmentcreate( string_1_2,\n"
                         "                                   xmdef.FONTLIST_DEFAULT_TAG,\n"
                         "                                   xm1_2_2.STRING_DIRECTION_L_TO_R,\n"
                         "                                   FALSE );\n"
                         "    compound_string_temp_1 :=\n"
                         "      xm1_2_2.stringcopy( compound_string_1 );\n"
                         "    xm1_2_2.stringfree( compound_string_1 );\n"
                         "    compound_string_1 :=\n"
                         "      xm1_2_2.stringconcat( compound_string_temp_1,\n"
                         "                            compound_string_segment_1 );\n"
                         "    xm1_2_2.stringfree( compound_string_temp_1 );\n"
                         "    xm1_2_2.stringfree( compound_string_segment_1 );\n");
}

TEST_F(AdaCompoundString, LastModifierOfAKindWins) {
  EXPECT_EQ(Set(Compound({Separate(true), RightToLeft(true), Separate(false), RightToLeft(false),
                          Segment("a")}),
                nullptr, 1),
            Created("xmdef.FONTLIST_DEFAULT_TAG", "L_TO_R", "FALSE"));
}

// It is neither declared nor counted, and the modifiers before it go on to the next segment.
TEST_F(AdaCompoundString, OtherItemsAreReportedAndSkipped) {
  auto *value = Compound({Separate(true), Integer(5), Segment("a")});
  std::string declared;
  EXPECT_EQ(Reported([&] { declared = Declared(value, nullptr, 1); }), "");
  EXPECT_EQ(declared, "    string_1_1 : constant string :=\n"
                      "      \"a\" &\n"
                      "      character'val(   0 );\n"
                      "    compound_string_1 : xm1_2_2.xmstring;\n");
  std::string set;
  EXPECT_EQ(Reported([&] { set = Set(value, nullptr, 1); }),
            "kivuxl: Internal error: non-string object in compound string.\n");
  EXPECT_EQ(set, Created("xmdef.FONTLIST_DEFAULT_TAG", "L_TO_R", "TRUE"));
}

TEST_F(AdaCompoundString, Names) {
  ExpectNames(Compound({}), "compound_string_12", "compound_string_12");
}

} // namespace
