// Tests of float values.

#include "ValueModel.h"

namespace {

class AdaFloat : public ValueModel {
protected:
  static FloatValue *Float(double number) {
    auto *value = ModelNew<FloatValue>(FLOAT_NUMBER);
    value->value = number;
    return value;
  }
};

TEST_F(AdaFloat, IsSetByAddress) {
  ExpectWritten(Float(1.5), {"    float_7 : constant xtr5.double := 1.500000000000000E+00;\n", "",
                             "float_7'address", ""});
  ExpectWritten(Float(-1e300), {"    float_7 : constant xtr5.double := -1.000000000000000E+300;\n",
                                "", "float_7'address", ""});
}

TEST_F(AdaFloat, Names) { ExpectNames(Float(0), "float_12", "float_12'address"); }

} // namespace
