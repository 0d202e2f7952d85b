// Tests of what all kinds of value share: name constants, slots, pairs, types and small texts.

#include "AdaArgument.h"

#include "ValueModel.h"

namespace {

class AdaArgument : public ValueModel {
protected:
  static std::string Declaration(const NamedSetting *argument, int n) {
    return Written([&](std::FILE *file) { argument_declare(argument, file, n); });
  }
  static std::string Setting(const char *expression, const NamedSetting *argument, int n) {
    return Written([&](std::FILE *file) { argument_setarg(expression, argument, file, n); });
  }
};

TEST_F(AdaArgument, PredefinedNameIsNotDeclared) {
  EXPECT_EQ(Declaration(Argument("XmNwidth", nullptr), 1), "");
  EXPECT_EQ(Declaration(nullptr, 1), "");
}

TEST_F(AdaArgument, OwnNameIsDeclaredForTheRevision) {
  const NamedSetting *own = Argument("XtNcolour\"", nullptr, false);
  orvo_revision = 3;
  EXPECT_EQ(Declaration(own, 2), "    arg_2 : constant string := \"XtNcolour\"\" & ASCII.NUL;\n");
  orvo_revision = 4;
  EXPECT_EQ(Declaration(own, 31), "    arg_31 : constant xmdef.argname :=\n"
                                  "        xmdef.argname( string'( \"XtNcolour\"\" ) & ASCII.NUL "
                                  ");\n");
}

TEST_F(AdaArgument, OwnReasonIsDeclaredAsAnArgumentIs) {
  orvo_revision = 3;
  EXPECT_EQ(Declaration(Reason("XyNsqueezeCallback", false), 5),
            "    arg_5 : constant string := \"XyNsqueezeCallback\" & ASCII.NUL;\n");
  EXPECT_EQ(Declaration(Reason("XmNactivateCallback", true), 5), "");
}

TEST_F(AdaArgument, PredefinedNameLosesThreeCharacters) {
  EXPECT_EQ(Setting("x", Argument("XmNwidth", nullptr), 1),
            "    xtr5.setarg( args( 1 ), xmdef.nwidth, x );\n");
  EXPECT_EQ(Setting("x", Argument("abcLabel", nullptr), 10),
            "    xtr5.setarg( args( 10 ), xmdef.nLabel, x );\n");
  EXPECT_EQ(Setting("x", Argument("XmN", nullptr), 1),
            "    xtr5.setarg( args( 1 ), xmdef.n, x );\n");
  EXPECT_EQ(Setting("x", Argument("Xm", nullptr), 1),
            "    xtr5.setarg( args( 1 ), xmdef.n, x );\n");
}

TEST_F(AdaArgument, OwnNameIsSetByItsConstant) {
  EXPECT_EQ(Setting("y'address", Argument("XmNown", nullptr, false), 3),
            "    xtr5.setarg( args( 3 ), arg_3, y'address );\n");
  EXPECT_EQ(Setting("y", nullptr, 3), "");
}

TEST_F(AdaArgument, ListResourcesHaveTheirCount) {
  EXPECT_STREQ(argument_paired_arg("XmNitems"), "XmNitemCount");
  EXPECT_STREQ(argument_paired_arg("XmNselectedItems"), "XmNselectedItemCount");
  EXPECT_STREQ(argument_paired_arg("XmNlistItems"), "XmNlistItemCount");
  EXPECT_STREQ(argument_paired_arg("XmNhistoryItems"), "XmNhistoryItemCount");
  EXPECT_STREQ(argument_paired_arg("XmNdirListItems"), "XmNdirListItemCount");
  EXPECT_STREQ(argument_paired_arg("XmNfileListItems"), "XmNfileListItemCount");
  EXPECT_EQ(argument_paired_arg("XmNitemCount"), nullptr);
  EXPECT_EQ(argument_paired_arg("XmNitem"), nullptr);
  EXPECT_EQ(argument_paired_arg(""), nullptr);
  EXPECT_EQ(argument_paired_arg(nullptr), nullptr);
}

TEST_F(AdaArgument, PairsFollowTheCaseOfTheModule) {
  case_sensitive = true;
  EXPECT_EQ(argument_paired_arg("XMNITEMS"), nullptr);
  case_sensitive = false;
  EXPECT_STREQ(argument_paired_arg("XMNITEMS"), "XmNitemCount");
}

struct KindType {
  std::int32_t kind;
  const char *type;
};

constexpr KindType kTypes[] = {
    {BOOLEAN_NUMBER, "boolean"},
    {INTEGER_NUMBER, "integer"},
    {SINGLE_FLOAT_NUMBER, "xlib5.real"},
    {FLOAT_NUMBER, "xtr5.double"},
    {SIMPLE_STRING, "string"},
    {ASCIZ_STRING_TABLE, "xlibr5.stringlist"},
    {CLASS_REC_NAME, "xtr5.widgetclass"},
    {COLOR, "xtr5.pixel"},
    {RGB, "xtr5.pixel"},
    {COMPOUND_STRING, "xm1_2_2.xmstring"},
    {COMPOUND_STRING_TABLE, "xm1_2_2.xmstringlist"},
    {FONT, "xlibr5.fontstruct_ptr"},
    {FONTSET, "xlibr5.fontset"},
    {FONT_TABLE, "xm1_2_2.fontlist"},
    {ICON, "xlibr5.pixmap"},
    {INTEGER_TABLE, "xlibr5.intlist"},
    {KEYSYM, "xlibr5.keysym"},
    {PIXMAP, "xlibr5.pixmap"},
    {TRANSLATION_TABLE, "xtr5.translations"},
    {WIDE_CHARACTER, "xlibr5.unsignedshortlist"},
    {XBITMAPFILE, "xlibr5.pixmap"},
    {WIDGET_REF, "xtr5.widget"},
};

TEST_F(AdaArgument, EveryKindHasItsType) {
  for (std::int32_t kind = NIL; kind < MAX_TOKENS; ++kind) {
    const char *expected = "xtr5.pointer";
    for (const KindType &row : kTypes) {
      expected = row.kind == kind ? row.type : expected;
    }
    EXPECT_STREQ(argument_object_type(kind), expected) << kind;
  }
}

TEST_F(AdaArgument, CodesThatAreNoKindsArePointers) {
  for (const std::int32_t kind : {-1, 0, 37, NIL - 1, static_cast<int>(MAX_TOKENS), 100000}) {
    EXPECT_STREQ(argument_object_type(kind), "xtr5.pointer") << kind;
  }
}

TEST_F(AdaArgument, SmallTexts) {
  EXPECT_EQ(ExpressionFormat("%s_%d"_ada, "a", 3), "a_3");
  EXPECT_EQ(ExpressionFormat("%s"_ada, ""), "");
  const std::string longer(5000, 'x');
  std::string closed = longer;
  closed.push_back('.');
  EXPECT_EQ(ExpressionFormat("%s."_ada, longer.c_str()), closed);
  EXPECT_EQ(ExpressionAddress("v_1"), "v_1'address");
  EXPECT_EQ(ExpressionFirstAddress("v_1"), "v_1( v_1'first )'address");
}

} // namespace
