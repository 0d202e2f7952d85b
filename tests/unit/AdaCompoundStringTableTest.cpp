// Tests of tables of compound strings.

#include "ValueModel.h"

namespace {

class AdaCompoundStringTable : public ValueModel {
protected:
  // A table of one-segment strings.
  static TableValue *Strings(std::initializer_list<const char *> texts) {
    List entries = ModelList();
    for (const char *text : texts) {
      ModelAppend(entries, Table(COMPOUND_STRING, {Segment(text)}));
    }
    return Table(COMPOUND_STRING_TABLE, entries);
  }
  // The creation and the storing of entry i, in the table of slot 7.
  static std::string Stored(const std::string &i) {
    return "    compound_string_" + i +
           " :=\n"
           "      xm1_2_2.stringsegmentcreate( string_" +
           i +
           "_1,\n"
           "                                   xmdef.FONTLIST_DEFAULT_TAG,\n"
           "                                   xm1_2_2.STRING_DIRECTION_L_TO_R,\n"
           "                                   FALSE );\n"
           "    compound_string_table_7( " +
           i + " ) := compound_string_" + i + ";\n";
  }
};

constexpr const char *kExpression =
    "compound_string_table_7( compound_string_table_7'first )'address";
constexpr const char *kCleanup =
    "    for index_7 in compound_string_table_7'range loop\n"
    "      if compound_string_table_7( index_7 ) /= xtr5.xtnull then\n"
    "        xm1_2_2.stringfree( compound_string_table_7( index_7 ) );\n"
    "      end if;\n"
    "    end loop;\n";

TEST_F(AdaCompoundStringTable, ThreeEntries) {
  const std::string declaration =
      "    compound_string_table_7 : xm1_2_2.xmstringlist( 1 .. 4 ) := ( others => xtr5.xtnull );\n";
  const std::string setting = "    declare\n"
                              "    string_1_1 : constant string :=\n"
                              "      \"a\" &\n"
                              "      character'val(   0 );\n"
                              "    compound_string_1 : xm1_2_2.xmstring;\n"
                              "    string_2_1 : constant string :=\n"
                              "      \"b\" &\n"
                              "      character'val(   0 );\n"
                              "    compound_string_2 : xm1_2_2.xmstring;\n"
                              "    string_3_1 : constant string :=\n"
                              "      \"c\" &\n"
                              "      character'val(   0 );\n"
                              "    compound_string_3 : xm1_2_2.xmstring;\n"
                              "    begin\n" +
                              Stored("1") + Stored("2") + Stored("3") + "    end;\n";
  ExpectWritten(Strings({"a", "b", "c"}), {declaration, setting, kExpression, kCleanup});
}

TEST_F(AdaCompoundStringTable, EmptyTable) {
  const std::string declaration =
      "    compound_string_table_7 : xm1_2_2.xmstringlist( 1 .. 1 ) := ( others => xtr5.xtnull );\n";
  ExpectWritten(Strings({}), {declaration, "", kExpression, kCleanup});
}

TEST_F(AdaCompoundStringTable, PairedCountGoesToTheNextSlot) {
  auto *table = Strings({});
  EXPECT_EQ(Set(table, Argument("XmNitems", table), 4),
            "    xtr5.setarg( args( 4 ), xmdef.nitems, "
            "compound_string_table_4( compound_string_table_4'first )'address );\n"
            "    xtr5.setarg( args( 5 ), xmdef.nitemCount, "
            "xtr5.argval( compound_string_table_4'length - 1 ) );\n");
}

// The count resource is the bindings' own even where the list is named by the user.
TEST_F(AdaCompoundStringTable, PairedCountIsPredefined) {
  auto *table = Strings({});
  EXPECT_EQ(Set(table, Argument("XmNselectedItems", table, false), 1),
            "    xtr5.setarg( args( 1 ), arg_1, "
            "compound_string_table_1( compound_string_table_1'first )'address );\n"
            "    xtr5.setarg( args( 2 ), xmdef.nselectedItemCount, "
            "xtr5.argval( compound_string_table_1'length - 1 ) );\n");
}

TEST_F(AdaCompoundStringTable, Names) {
  ExpectNames(Strings({}), "compound_string_table_12",
              "compound_string_table_12( compound_string_table_12'first )'address");
}

} // namespace
