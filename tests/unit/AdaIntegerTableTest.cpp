// Tests of integer tables.

#include "ValueModel.h"

namespace {

class AdaIntegerTable : public ValueModel {};

constexpr const char *kExpression = "integer_table_7( integer_table_7'first )'address";

TEST_F(AdaIntegerTable, IsSetByTheAddressOfTheFirstElement) {
  ExpectWritten(Table(INTEGER_TABLE, {Integer(10), Integer(-3), Integer(0)}),
                {"    integer_table_7 : constant xlibr5.intlist( 1 .. 3 ) := (\n"
                 "        1 => 10,\n"
                 "        2 => -3,\n"
                 "        3 => 0 );\n",
                 "", kExpression, ""});
  ExpectWritten(Table(INTEGER_TABLE, {Integer(10)}),
                {"    integer_table_7 : constant xlibr5.intlist( 1 .. 1 ) := (\n"
                 "        1 => 10 );\n",
                 "", kExpression, ""});
}

TEST_F(AdaIntegerTable, EmptyTableHasNoValue) {
  ExpectWritten(
      Table(INTEGER_TABLE, {}),
      {"    integer_table_7 : constant xlibr5.intlist( 1 .. 0 );\n", "", kExpression, ""});
}

TEST_F(AdaIntegerTable, SetsNoCount) {
  auto *table = Table(INTEGER_TABLE, {Integer(1)});
  EXPECT_EQ(Set(table, Argument("XmNitems", table), 1),
            "    xtr5.setarg( args( 1 ), xmdef.nitems, "
            "integer_table_1( integer_table_1'first )'address );\n");
}

TEST_F(AdaIntegerTable, MillionEntries) {
  List items = ModelList();
  std::string expected = "    integer_table_1 : constant xlibr5.intlist( 1 .. 1000000 ) := (\n";
  for (int i = 1; i <= 1000000; ++i) {
    ModelAppend(items, Integer(i % 10));
    expected += "        " + std::to_string(i) + " => " + std::to_string(i % 10) +
                (i == 1000000 ? " );\n" : ",\n");
  }
  EXPECT_TRUE(Declared(Table(INTEGER_TABLE, items), nullptr, 1) == expected);
}

TEST_F(AdaIntegerTable, Names) {
  ExpectNames(Table(INTEGER_TABLE, {}), "integer_table_12",
              "integer_table_12( integer_table_12'first )'address");
}

} // namespace
