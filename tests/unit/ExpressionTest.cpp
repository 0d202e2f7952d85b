// Tests of arithmetic on constant expressions: every operator on every pair of kinds, and both
// sides of every limit of the conversions.

#include "Expression.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Error.h"
#include "Listing.h"
#include "Reset.h"

namespace {

using Texts = std::vector<std::string>;

constexpr std::int32_t kMaxInteger = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kMinInteger = std::numeric_limits<std::int32_t>::min();
constexpr float kMaxSingle = std::numeric_limits<float>::max();
constexpr float kTinySingle = std::numeric_limits<float>::min();
constexpr double kMaxFloat = std::numeric_limits<double>::max();
constexpr double kTinyFloat = std::numeric_limits<double>::min();

const char *const kDivideByZero = "Cannot divide by zero";
const char *const kTooLargeInteger = "Number too large to convert to integer";
const char *const kTooLargeSingle = "Number too large to convert to single float";
const char *const kTooLargeFloat = "Number too large to convert to float";
const char *const kNonNumeric = "Non-numeric type in numeric expression";

NumberValue B(bool value) noexcept { return NumberOfBoolean(value); }
NumberValue I(std::int32_t value) noexcept { return NumberOfInteger(value); }
NumberValue S(float value) noexcept { return NumberOfSingleFloat(value); }
NumberValue F(double value) noexcept { return NumberOfFloat(value); }

NumberValue NoNumber() {
  NumberValue value{};
  value.kind = FONT;
  return value;
}

// The kind's letter and the value, such as "i-3" and "f0.5".
std::string Show(const NumberValue &number) {
  std::array<char, 64> text{};
  switch (number.kind) {
  case BOOLEAN_NUMBER:
    return number.value.boolean ? "btrue" : "bfalse";
  case INTEGER_NUMBER:
    return "i" + std::to_string(number.value.integer);
  case SINGLE_FLOAT_NUMBER:
    std::snprintf(text.data(), text.size(), "s%.9g", static_cast<double>(number.value.single));
    return text.data();
  case FLOAT_NUMBER:
    std::snprintf(text.data(), text.size(), "f%.15g", number.value.float_v);
    return text.data();
  default:
    return "kind " + std::to_string(number.kind);
  }
}

// The errors reported so far, which are then forgotten.
Texts Errors() {
  Texts texts;
  ListingLine *line = ListingCurrentLine();
  for (const ListItem *node = ListFirstNode(line->errors); node != nullptr; node = node->next) {
    const auto *error = static_cast<const ErrorRec *>(node->data);
    EXPECT_EQ(kError, error->error_type) << error->msg;
    texts.emplace_back(error->msg);
  }
  line->errors = nullptr;
  return texts;
}

const Texts kNone;

class Expression : public testing::Test {
protected:
  void SetUp() override { ProgramReset(); }
  void TearDown() override { ProgramReset(); }
};

using BinaryFunction = void (*)(NumberValue *, const NumberValue &, const NumberValue &);

std::string Apply(BinaryFunction function, const NumberValue &left, const NumberValue &right) {
  NumberValue result = NoNumber();
  function(&result, left, right);
  return Show(result);
}

using UnaryFunction = void (*)(NumberValue *, const NumberValue &);

std::string Apply(UnaryFunction function, const NumberValue &operand) {
  NumberValue result = NoNumber();
  function(&result, operand);
  return Show(result);
}

// -- Kinds -------------------------------------------------------------------------------------

TEST_F(Expression, DominantKindOfEachPair) {
  constexpr std::int32_t kKinds[] = {BOOLEAN_NUMBER, INTEGER_NUMBER, SINGLE_FLOAT_NUMBER,
                                     FLOAT_NUMBER};
  constexpr std::int32_t kExpected[4][4] = {
      {BOOLEAN_NUMBER, INTEGER_NUMBER, SINGLE_FLOAT_NUMBER, FLOAT_NUMBER},
      {INTEGER_NUMBER, INTEGER_NUMBER, SINGLE_FLOAT_NUMBER, FLOAT_NUMBER},
      {SINGLE_FLOAT_NUMBER, SINGLE_FLOAT_NUMBER, SINGLE_FLOAT_NUMBER, FLOAT_NUMBER},
      {FLOAT_NUMBER, FLOAT_NUMBER, FLOAT_NUMBER, FLOAT_NUMBER},
  };
  for (int left = 0; left < 4; ++left) {
    for (int right = 0; right < 4; ++right) {
      EXPECT_EQ(kExpected[left][right], DominantKind(kKinds[left], kKinds[right]));
    }
  }
  EXPECT_EQ(kNone, Errors());
}

TEST_F(Expression, DominantKindOfNoNumber) {
  EXPECT_EQ(INTEGER_NUMBER, DominantKind(FLOAT_NUMBER, FONT));
  EXPECT_EQ(Texts{kNonNumeric}, Errors());
  EXPECT_EQ(INTEGER_NUMBER, DominantKind(LITERAL_INTEGER, FLOAT_NUMBER));
  EXPECT_EQ(Texts{kNonNumeric}, Errors());
  EXPECT_EQ(INTEGER_NUMBER, DominantKind(NIL, NIL));
  EXPECT_EQ(Texts{kNonNumeric}, Errors());
}

// -- Conversions -------------------------------------------------------------------------------

template <typename T> struct Conversion {
  NumberValue from;
  T to;
  const char *error; // or null
};

template <typename T>
void ExpectConversions(T (*convert)(const NumberValue &), const std::vector<Conversion<T>> &rows) {
  for (const Conversion<T> &row : rows) {
    SCOPED_TRACE(Show(row.from));
    EXPECT_EQ(row.to, convert(row.from));
    EXPECT_EQ(row.error == nullptr ? kNone : Texts{row.error}, Errors());
  }
}

TEST_F(Expression, ToBoolean) {
  ExpectConversions<bool>(NumberToBoolean,
                          {
                              {B(false), false, nullptr},
                              {B(true), true, nullptr},
                              {I(0), false, nullptr},
                              {I(1), true, nullptr},
                              {I(256), true, nullptr},
                              {I(kMinInteger), true, nullptr},
                              {S(0), false, nullptr},
                              {S(kTinySingle), false, nullptr},
                              {S(std::nextafter(kTinySingle, 1.0F)), true, nullptr},
                              {S(-kTinySingle), true, nullptr},
                              {S(std::nextafter(-kTinySingle, 0.0F)), false, nullptr},
                              {S(0.25F), true, nullptr},
                              {F(0), false, nullptr},
                              {F(kTinyFloat), false, nullptr},
                              {F(std::nextafter(kTinyFloat, 1.0)), true, nullptr},
                              {F(-kTinyFloat), true, nullptr},
                              {F(std::nextafter(-kTinyFloat, 0.0)), false, nullptr},
                              {F(1e-300), true, nullptr},
                              {NoNumber(), false, "Expression cannot be converted to Boolean"},
                          });
}

TEST_F(Expression, ToInteger) {
  ExpectConversions<std::int32_t>(NumberToInteger,
                                  {
                                      {B(false), 0, nullptr},
                                      {B(true), 1, nullptr},
                                      {I(-7), -7, nullptr},
                                      {S(3.99F), 3, nullptr},
                                      {S(-3.99F), -3, nullptr},
                                      {S(kTinySingle), 0, nullptr},
                                      {S(-kTinySingle), 0, nullptr},
                                      {S(2147483520.0F), 2147483520, nullptr},
                                      {S(2147483648.0F), 0, kTooLargeInteger},
                                      {S(-2147483648.0F), kMinInteger, nullptr},
                                      {S(-2147483904.0F), 0, kTooLargeInteger},
                                      {F(3.99), 3, nullptr},
                                      {F(-3.99), -3, nullptr},
                                      {F(kTinyFloat), 0, nullptr},
                                      {F(2147483647.0), kMaxInteger, nullptr},
                                      {F(2147483647.5), 0, kTooLargeInteger},
                                      {F(-2147483648.0), kMinInteger, nullptr},
                                      {F(-2147483648.5), 0, kTooLargeInteger},
                                      {F(3e9), 0, kTooLargeInteger},
                                      {NoNumber(), 0, "Expression cannot be converted to integer"},
                                  });
}

TEST_F(Expression, ToSingleFloat) {
  const double max_single = static_cast<double>(kMaxSingle);
  ExpectConversions<float>(NumberToSingleFloat,
                           {
                               {B(false), 0.0F, nullptr},
                               {B(true), 1.0F, nullptr},
                               {I(-7), -7.0F, nullptr},
                               {I(16777217), 16777216.0F, nullptr},
                               {S(1.5F), 1.5F, nullptr},
                               {F(1.5), 1.5F, nullptr},
                               {F(0.1), 0.1F, nullptr},
                               {F(max_single), kMaxSingle, nullptr},
                               {F(-max_single), -kMaxSingle, nullptr},
                               {F(std::nextafter(max_single, kMaxFloat)), 0.0F, kTooLargeSingle},
                               {F(std::nextafter(-max_single, -kMaxFloat)), 0.0F, kTooLargeSingle},
                               {F(1e300), 0.0F, kTooLargeSingle},
                               {F(1e-300), 0.0F, nullptr},
                               {NoNumber(), 0.0F, "Expression cannot be converted to single float"},
                           });
}

// Within the band around zero the sign goes too.
TEST_F(Expression, TinyFloatToSingleFloat) {
  EXPECT_FALSE(std::signbit(NumberToSingleFloat(F(-kTinyFloat / 2))));
  EXPECT_TRUE(std::signbit(NumberToSingleFloat(F(-kTinyFloat))));
}

TEST_F(Expression, ToFloat) {
  ExpectConversions<double>(NumberToFloat,
                            {
                                {B(false), 0.0, nullptr},
                                {B(true), 1.0, nullptr},
                                {I(kMinInteger), -2147483648.0, nullptr},
                                {S(0.1F), 0.100000001490116119384765625, nullptr},
                                {F(kMaxFloat), kMaxFloat, nullptr},
                                {NoNumber(), 0.0, "Expression cannot be converted to float"},
                            });
}

// -- Operators on each pair of kinds -----------------------------------------------------------

// The results for the operands of kLeft (rows) and kRight (columns), "!" where the operator is not
// defined.
struct OperatorTable {
  BinaryFunction function;
  const char *symbol;
  const char *fallback;
  const char *results[4][4];
};

const NumberValue kLeft[] = {B(true), I(12), S(2.5F), F(0.75)};
const NumberValue kRight[] = {B(true), I(5), S(0.5F), F(0.25)};

const OperatorTable kOperators[] = {
    {MultiplyExpression,
     "*",
     "i0",
     {{"!", "i5", "s0.5", "f0.25"},
      {"i12", "i60", "s6", "f3"},
      {"s2.5", "s12.5", "s1.25", "f0.625"},
      {"f0.75", "f3.75", "f0.375", "f0.1875"}}},
    {DivideExpression,
     "/",
     "i0",
     {{"!", "i0", "s2", "f4"},
      {"i12", "i2", "s24", "f48"},
      {"s2.5", "s0.5", "s5", "f10"},
      {"f0.75", "f0.15", "f1.5", "f3"}}},
    {AddExpression,
     "+",
     "i0",
     {{"!", "i6", "s1.5", "f1.25"},
      {"i13", "i17", "s12.5", "f12.25"},
      {"s3.5", "s7.5", "s3", "f2.75"},
      {"f1.75", "f5.75", "f1.25", "f1"}}},
    {SubtractExpression,
     "-",
     "i0",
     {{"!", "i-4", "s0.5", "f0.75"},
      {"i11", "i7", "s11.5", "f11.75"},
      {"s1.5", "s-2.5", "s2", "f2.25"},
      {"f-0.25", "f-4.25", "f0.25", "f0.5"}}},
    {LeftShiftExpression,
     "<<",
     "i0",
     {{"!", "i32", "!", "!"},
      {"i24", "i384", "!", "!"},
      {"!", "!", "!", "!"},
      {"!", "!", "!", "!"}}},
    {RightShiftExpression,
     ">>",
     "i0",
     {{"!", "i0", "!", "!"}, {"i6", "i0", "!", "!"}, {"!", "!", "!", "!"}, {"!", "!", "!", "!"}}},
    {AndExpression,
     "&",
     "bfalse",
     {{"btrue", "i1", "!", "!"},
      {"i0", "i4", "!", "!"},
      {"!", "!", "!", "!"},
      {"!", "!", "!", "!"}}},
    {OrExpression,
     "|",
     "bfalse",
     {{"btrue", "i5", "!", "!"},
      {"i13", "i13", "!", "!"},
      {"!", "!", "!", "!"},
      {"!", "!", "!", "!"}}},
    {ExclusiveOrExpression,
     "^",
     "bfalse",
     {{"bfalse", "i4", "!", "!"},
      {"i13", "i9", "!", "!"},
      {"!", "!", "!", "!"},
      {"!", "!", "!", "!"}}},
};

std::string NotDefined(const std::string &symbol) {
  return "Operator " + symbol + " not defined for type of expression";
}

TEST_F(Expression, EachOperatorOnEachPairOfKinds) {
  for (const OperatorTable &table : kOperators) {
    for (int left = 0; left < 4; ++left) {
      for (int right = 0; right < 4; ++right) {
        SCOPED_TRACE(Show(kLeft[left]) + " " + table.symbol + " " + Show(kRight[right]));
        const std::string expected = table.results[left][right];
        const bool defined = expected != "!";
        EXPECT_EQ(defined ? expected : table.fallback,
                  Apply(table.function, kLeft[left], kRight[right]));
        EXPECT_EQ(defined ? kNone : Texts{NotDefined(table.symbol)}, Errors());
      }
    }
  }
}

// The operation goes on with integers: the other operand is converted, the bad one counts 0.
TEST_F(Expression, OperandThatIsNoNumber) {
  EXPECT_EQ("i3", Apply(AddExpression, F(3.5), NoNumber()));
  EXPECT_EQ((Texts{kNonNumeric, "Expression cannot be converted to integer"}), Errors());
}

TEST_F(Expression, ResultMayBeAnOperand) {
  NumberValue number = I(7);
  SubtractExpression(&number, I(10), number);
  EXPECT_EQ("i3", Show(number));
  MultiplyExpression(&number, number, number);
  EXPECT_EQ("i9", Show(number));
  UnaryMinusExpression(&number, number);
  EXPECT_EQ("i-9", Show(number));
}

// -- Integers ----------------------------------------------------------------------------------

struct IntegerRow {
  BinaryFunction function;
  std::int32_t left;
  std::int32_t right;
  const char *result;
};

const IntegerRow kIntegerRows[] = {
    {MultiplyExpression, 65536, 65536, "i0"},
    {MultiplyExpression, kMaxInteger, 2, "i-2"},
    {MultiplyExpression, kMinInteger, -1, "i-2147483648"},
    {MultiplyExpression, -3, 4, "i-12"},
    {DivideExpression, 7, 2, "i3"},
    {DivideExpression, -7, 2, "i-3"},
    {DivideExpression, 7, -2, "i-3"},
    {DivideExpression, -7, -2, "i3"},
    {DivideExpression, 7, -1, "i-7"},
    {DivideExpression, kMinInteger, -1, "i-2147483648"},
    {DivideExpression, kMinInteger, 1, "i-2147483648"},
    {AddExpression, kMaxInteger, 1, "i-2147483648"},
    {AddExpression, kMinInteger, -1, "i2147483647"},
    {SubtractExpression, kMinInteger, 1, "i2147483647"},
    {SubtractExpression, 0, kMinInteger, "i-2147483648"},
    {LeftShiftExpression, 1, 0, "i1"},
    {LeftShiftExpression, 1, 31, "i-2147483648"},
    {LeftShiftExpression, 1, 32, "i1"},
    {LeftShiftExpression, 1, 33, "i2"},
    {LeftShiftExpression, 3, 31, "i-2147483648"},
    {LeftShiftExpression, -1, 4, "i-16"},
    {LeftShiftExpression, 1, -1, "i-2147483648"},
    {LeftShiftExpression, 1, -32, "i1"},
    {RightShiftExpression, -8, 1, "i-4"},
    {RightShiftExpression, -8, 33, "i-4"},
    {RightShiftExpression, -1, 31, "i-1"},
    {RightShiftExpression, kMaxInteger, 31, "i0"},
    {RightShiftExpression, 8, -31, "i4"},
    {AndExpression, -1, 255, "i255"},
    {OrExpression, kMinInteger, 1, "i-2147483647"},
    {ExclusiveOrExpression, -1, 1, "i-2"},
};

TEST_F(Expression, IntegersWrapAround) {
  for (const IntegerRow &row : kIntegerRows) {
    SCOPED_TRACE(std::to_string(row.left) + " " + std::to_string(row.right));
    EXPECT_EQ(row.result, Apply(row.function, I(row.left), I(row.right)));
    EXPECT_EQ(kNone, Errors());
  }
}

TEST_F(Expression, BooleanLogic) {
  struct {
    BinaryFunction function;
    const char *results[4]; // of false false, false true, true false, true true
  } const rows[] = {
      {AndExpression, {"bfalse", "bfalse", "bfalse", "btrue"}},
      {OrExpression, {"bfalse", "btrue", "btrue", "btrue"}},
      {ExclusiveOrExpression, {"bfalse", "btrue", "btrue", "bfalse"}},
  };
  for (const auto &row : rows) {
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(row.results[i], Apply(row.function, B(i / 2 == 1), B(i % 2 == 1)));
    }
  }
}

TEST_F(Expression, TrueAndOneAreTwo) {
  EXPECT_EQ("i2", Apply(AddExpression, B(true), I(1)));
  EXPECT_EQ(kNone, Errors());
  EXPECT_EQ("i0", Apply(AddExpression, B(true), B(true)));
  EXPECT_EQ(Texts{NotDefined("+")}, Errors());
}

// -- Floats ------------------------------------------------------------------------------------

struct RealRow {
  BinaryFunction function;
  NumberValue left;
  NumberValue right;
  const char *result;
  const char *error; // or null
};

const RealRow kRealRows[] = {
    {DivideExpression, I(7), I(0), "i0", kDivideByZero},
    {DivideExpression, I(7), B(false), "i0", kDivideByZero},
    {DivideExpression, S(1), S(0), "s0", kDivideByZero},
    {DivideExpression, S(1), I(0), "s0", kDivideByZero},
    {DivideExpression, S(1), S(kTinySingle), "s0", kDivideByZero},
    {DivideExpression, S(1), S(-kTinySingle), "s-8.50705917e+37", nullptr},
    {DivideExpression, S(1), S(-0.0F), "s0", kDivideByZero},
    {DivideExpression, F(1), F(0), "f0", kDivideByZero},
    {DivideExpression, F(1), F(kTinyFloat), "f0", kDivideByZero},
    {DivideExpression, F(1), F(-kTinyFloat), "f-4.49423283715579e+307", nullptr},
    {DivideExpression, F(0), F(0), "f0", kDivideByZero},
    // Each operation on single floats is rounded by itself.
    {AddExpression, S(16777216), S(1), "s16777216", nullptr},
    {AddExpression, F(16777216), S(1), "f16777217", nullptr},
    {AddExpression, S(16777216), I(1), "s16777216", nullptr},
    {DivideExpression, S(1), S(3), "s0.333333343", nullptr},
    {DivideExpression, F(1), F(3), "f0.333333333333333", nullptr},
    // The largest numbers, and beyond them.
    {MultiplyExpression, S(kMaxSingle), S(1), "s3.40282347e+38", nullptr},
    {MultiplyExpression, S(kMaxSingle), S(2), "s0", kTooLargeSingle},
    {MultiplyExpression, S(kMaxSingle), S(-2), "s0", kTooLargeSingle},
    {MultiplyExpression, S(kMaxSingle), F(2), "f6.80564693277058e+38", nullptr},
    {AddExpression, S(kMaxSingle), S(kMaxSingle), "s0", kTooLargeSingle},
    {SubtractExpression, S(-kMaxSingle), S(kMaxSingle), "s0", kTooLargeSingle},
    {SubtractExpression, S(kMaxSingle), S(kMaxSingle), "s0", nullptr},
    {DivideExpression, S(kMaxSingle), S(0.5F), "s0", kTooLargeSingle},
    {MultiplyExpression, F(1e308), F(1), "f1e+308", nullptr},
    {MultiplyExpression, F(1e308), F(10), "f0", kTooLargeFloat},
    {AddExpression, F(kMaxFloat), F(kMaxFloat), "f0", kTooLargeFloat},
    {SubtractExpression, F(-kMaxFloat), F(kMaxFloat), "f0", kTooLargeFloat},
    {DivideExpression, F(kMaxFloat), F(0.5), "f0", kTooLargeFloat},
    // Underflow is no fault.
    {MultiplyExpression, S(1e-30F), S(1e-30F), "s0", nullptr},
    {MultiplyExpression, F(1e-300), F(1e-300), "f0", nullptr},
};

TEST_F(Expression, Floats) {
  for (const RealRow &row : kRealRows) {
    SCOPED_TRACE(Show(row.left) + " " + Show(row.right));
    EXPECT_EQ(row.result, Apply(row.function, row.left, row.right));
    EXPECT_EQ(row.error == nullptr ? kNone : Texts{row.error}, Errors());
  }
}

// -- Operators of one operand ------------------------------------------------------------------

TEST_F(Expression, UnaryNot) {
  EXPECT_EQ("bfalse", Apply(UnaryNotExpression, B(true)));
  EXPECT_EQ("btrue", Apply(UnaryNotExpression, B(false)));
  EXPECT_EQ("i-1", Apply(UnaryNotExpression, I(0)));
  EXPECT_EQ("i-6", Apply(UnaryNotExpression, I(5)));
  EXPECT_EQ(kNone, Errors());
  for (const NumberValue &operand : {S(1), F(1), NoNumber()}) {
    EXPECT_EQ("i0", Apply(UnaryNotExpression, operand));
    EXPECT_EQ(Texts{NotDefined("~")}, Errors());
  }
}

TEST_F(Expression, UnaryMinus) {
  EXPECT_EQ("i-5", Apply(UnaryMinusExpression, I(5)));
  EXPECT_EQ("i-2147483648", Apply(UnaryMinusExpression, I(kMinInteger)));
  EXPECT_EQ("s-1.5", Apply(UnaryMinusExpression, S(1.5F)));
  EXPECT_EQ("f2.5", Apply(UnaryMinusExpression, F(-2.5)));
  EXPECT_EQ(kNone, Errors());
  for (const NumberValue &operand : {B(true), NoNumber()}) {
    EXPECT_EQ("i0", Apply(UnaryMinusExpression, operand));
    EXPECT_EQ(Texts{NotDefined("-")}, Errors());
  }
}

// -- Records of the model ----------------------------------------------------------------------

TEST_F(Expression, NumbersBecomeRecordsAndComeBack) {
  YYSTYPE value{};
  NumberToValue(&value, B(true));
  EXPECT_EQ(BOOLEAN_NUMBER, value.boolean.kind);
  EXPECT_TRUE(value.boolean.value);
  EXPECT_EQ("btrue", Show(ValueToNumber(&value.boolean)));
  NumberToValue(&value, I(-7));
  EXPECT_EQ(INTEGER_NUMBER, value.integer.kind);
  EXPECT_EQ(-7, value.integer.value);
  EXPECT_EQ("i-7", Show(ValueToNumber(&value.integer)));
  NumberToValue(&value, S(1.5F));
  EXPECT_EQ(SINGLE_FLOAT_NUMBER, value.single.kind);
  EXPECT_EQ(1.5F, value.single.value);
  EXPECT_EQ("s1.5", Show(ValueToNumber(&value.single)));
  NumberToValue(&value, F(0.1));
  EXPECT_EQ(FLOAT_NUMBER, value.float_t.kind);
  EXPECT_EQ(0.1, value.float_t.value);
  EXPECT_EQ("f0.1", Show(ValueToNumber(&value.float_t)));
}

TEST_F(Expression, NumberOfTheSameSemanticValue) {
  YYSTYPE value{};
  value.number = F(2.5);
  NumberToValue(&value, value.number);
  EXPECT_EQ(FLOAT_NUMBER, value.float_t.kind);
  EXPECT_EQ(2.5, value.float_t.value);
}

TEST_F(Expression, RecordThatIsNoNumberKeepsItsKind) {
  FontValue font{};
  font.kind = FONT;
  const NumberValue number = ValueToNumber(&font);
  EXPECT_EQ(FONT, number.kind);
  YYSTYPE value{};
  NumberToValue(&value, number);
  EXPECT_EQ(FONT, value.kind);
  EXPECT_EQ(kNone, Errors());
}

} // namespace
