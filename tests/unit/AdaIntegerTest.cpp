// Tests of integer values.

#include "ValueModel.h"

namespace {

class AdaInteger : public ValueModel {};

TEST_F(AdaInteger, IsSetByValue) {
  ExpectWritten(Integer(42), {"    integer_7 : constant integer := 42;\n", "", "integer_7", ""});
  ExpectWritten(Integer(-2147483647 - 1),
                {"    integer_7 : constant integer := -2147483648;\n", "", "integer_7", ""});
}

TEST_F(AdaInteger, Names) { ExpectNames(Integer(0), "integer_12", "integer_12'address"); }

} // namespace
