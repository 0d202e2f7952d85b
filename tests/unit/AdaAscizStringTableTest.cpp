// Tests of string tables.

#include "ValueModel.h"

namespace {

class AdaAscizStringTable : public ValueModel {};

constexpr const char *kExpression = "asciz_string_table_7( asciz_string_table_7'first )'address";

TEST_F(AdaAscizStringTable, HoldsTheAddressesOfItsTexts) {
  ExpectWritten(Table(ASCIZ_STRING_TABLE, Texts({"one", ""})),
                {"    string_7_1 : constant string :=\n"
                 "      \"one\" &\n"
                 "      character'val(   0 );\n"
                 "    string_7_2 : constant string :=\n"
                 "      \"\" & character'val( 0 );\n"
                 "    asciz_string_table_7 : constant xlibr5.stringlist( 1 .. 3 ) := (\n"
                 "        1 => string_7_1( string_7_1'first )'address,\n"
                 "        2 => string_7_2( string_7_2'first )'address,\n"
                 "        3 => xtr5.xtnull );\n",
                 "", kExpression, ""});
}

TEST_F(AdaAscizStringTable, EmptyTableEndsAtOnce) {
  const Expected expected = {
      "    asciz_string_table_7 : constant xlibr5.stringlist( 1 .. 1 ) := (\n"
      "        1 => xtr5.xtnull );\n",
      "", kExpression, ""};
  ExpectWritten(Table(ASCIZ_STRING_TABLE, Texts({})), expected);
  ExpectWritten(Table(ASCIZ_STRING_TABLE, static_cast<List>(nullptr)), expected);
}

TEST_F(AdaAscizStringTable, SetsNoCount) {
  auto *table = Table(ASCIZ_STRING_TABLE, Texts({"one"}));
  EXPECT_EQ(Set(table, Argument("XmNitems", table), 1),
            "    xtr5.setarg( args( 1 ), xmdef.nitems, "
            "asciz_string_table_1( asciz_string_table_1'first )'address );\n");
}

TEST_F(AdaAscizStringTable, Names) {
  ExpectNames(Table(ASCIZ_STRING_TABLE, Texts({})), "asciz_string_table_12",
              "asciz_string_table_12( asciz_string_table_12'first )'address");
}

} // namespace
