// Tests of single-float values.

#include "ValueModel.h"

namespace {

class AdaSingleFloat : public ValueModel {
protected:
  static SingleFloatValue *Single(float number) {
    auto *value = ModelNew<SingleFloatValue>(SINGLE_FLOAT_NUMBER);
    value->value = number;
    return value;
  }
};

TEST_F(AdaSingleFloat, IsSetByAddress) {
  ExpectWritten(Single(1.5F), {"    single_float_7 : constant xlib5.real := 1.500000E+00;\n", "",
                               "single_float_7'address", ""});
  ExpectWritten(Single(-0.0001F), {"    single_float_7 : constant xlib5.real := -1.000000E-04;\n",
                                   "", "single_float_7'address", ""});
}

TEST_F(AdaSingleFloat, Names) {
  ExpectNames(Single(0), "single_float_12", "single_float_12'address");
}

} // namespace
