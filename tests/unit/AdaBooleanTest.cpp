// Tests of Boolean values.

#include "ValueModel.h"

namespace {

class AdaBoolean : public ValueModel {
protected:
  static BooleanValue *Boolean(bool is_true) {
    auto *value = ModelNew<BooleanValue>(BOOLEAN_NUMBER);
    value->value = is_true;
    return value;
  }
};

TEST_F(AdaBoolean, IsSetByValue) {
  ExpectWritten(Boolean(true),
                {"    boolean_7 : constant boolean := true;\n", "", "boolean_7", ""});
  ExpectWritten(Boolean(false),
                {"    boolean_7 : constant boolean := false;\n", "", "boolean_7", ""});
}

TEST_F(AdaBoolean, Names) { ExpectNames(Boolean(true), "boolean_12", "boolean_12'address"); }

} // namespace
