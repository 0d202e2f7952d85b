// See Expression.h.  An operator is a record of functions, one for each number kind that it is
// defined for; one routine finds the kind in which to work, converts both operands and calls the
// function of that kind.

#include "Expression.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "Error.h"

// -- Makers and kinds --------------------------------------------------------------------------

NumberValue NumberOfBoolean(bool value) {
  NumberValue number{};
  number.kind = BOOLEAN_NUMBER;
  number.value.boolean = value;
  return number;
}

NumberValue NumberOfInteger(std::int32_t value) {
  NumberValue number{};
  number.kind = INTEGER_NUMBER;
  number.value.integer = value;
  return number;
}

NumberValue NumberOfSingleFloat(float value) {
  NumberValue number{};
  number.kind = SINGLE_FLOAT_NUMBER;
  number.value.single = value;
  return number;
}

NumberValue NumberOfFloat(double value) {
  NumberValue number{};
  number.kind = FLOAT_NUMBER;
  number.value.float_v = value;
  return number;
}

// The number kinds in ascending rank; their token codes ascend in the same order.
static_assert(BOOLEAN_NUMBER < INTEGER_NUMBER && INTEGER_NUMBER < SINGLE_FLOAT_NUMBER &&
              SINGLE_FLOAT_NUMBER < FLOAT_NUMBER);

static bool KindIsNumber(std::int32_t kind) {
  return kind == BOOLEAN_NUMBER || kind == INTEGER_NUMBER || kind == SINGLE_FLOAT_NUMBER ||
         kind == FLOAT_NUMBER;
}

std::int32_t DominantKind(std::int32_t a, std::int32_t b) {
  if (!KindIsNumber(a) || !KindIsNumber(b)) {
    ErrorMessage(kError, "Non-numeric type in numeric expression");
    return INTEGER_NUMBER;
  }
  return std::max(a, b);
}

// -- Conversions -------------------------------------------------------------------------------

// Whether the value counts as zero: the band around zero in which no normal number lies, closed at
// its upper end only.
template <typename Real> static bool IsTiny(Real x) {
  return -std::numeric_limits<Real>::min() < x && x <= std::numeric_limits<Real>::min();
}

bool NumberToBoolean(const NumberValue &v) {
  switch (v.kind) {
  case BOOLEAN_NUMBER:
    return v.value.boolean;
  case INTEGER_NUMBER:
    return v.value.integer != 0;
  case SINGLE_FLOAT_NUMBER:
    return !IsTiny(v.value.single);
  case FLOAT_NUMBER:
    return !IsTiny(v.value.float_v);
  default:
    ErrorMessage(kError, "Expression cannot be converted to Boolean");
    return false;
  }
}

static std::int32_t IntegerWhen(bool in_range, double x) {
  if (!in_range) {
    ErrorMessage(kError, "Number too large to convert to integer");
    return 0;
  }
  return static_cast<std::int32_t>(x);
}

std::int32_t NumberToInteger(const NumberValue &v) {
  switch (v.kind) {
  case BOOLEAN_NUMBER:
    return v.value.boolean ? 1 : 0;
  case INTEGER_NUMBER:
    return v.value.integer;
  case SINGLE_FLOAT_NUMBER:
    return IntegerWhen(-2147483648.0F <= v.value.single && v.value.single < 2147483648.0F,
                       static_cast<double>(v.value.single));
  case FLOAT_NUMBER:
    return IntegerWhen(-2147483648.0 <= v.value.float_v && v.value.float_v <= 2147483647.0,
                       v.value.float_v);
  default:
    ErrorMessage(kError, "Expression cannot be converted to integer");
    return 0;
  }
}

static float SingleFloatTooLarge() {
  ErrorMessage(kError, "Number too large to convert to single float");
  return 0;
}

static double FloatTooLarge() {
  ErrorMessage(kError, "Number too large to convert to float");
  return 0;
}

static float FloatToSingleFloat(double x) {
  if (IsTiny(x)) {
    return 0;
  }
  const auto limit = static_cast<double>(std::numeric_limits<float>::max());
  return -limit <= x && x <= limit ? static_cast<float>(x) : SingleFloatTooLarge();
}

float NumberToSingleFloat(const NumberValue &v) {
  switch (v.kind) {
  case BOOLEAN_NUMBER:
    return v.value.boolean ? 1 : 0;
  case INTEGER_NUMBER:
    return static_cast<float>(v.value.integer);
  case SINGLE_FLOAT_NUMBER:
    return v.value.single;
  case FLOAT_NUMBER:
    return FloatToSingleFloat(v.value.float_v);
  default:
    ErrorMessage(kError, "Expression cannot be converted to single float");
    return 0;
  }
}

double NumberToFloat(const NumberValue &v) {
  switch (v.kind) {
  case BOOLEAN_NUMBER:
    return v.value.boolean ? 1 : 0;
  case INTEGER_NUMBER:
    return static_cast<double>(v.value.integer);
  case SINGLE_FLOAT_NUMBER:
    return static_cast<double>(v.value.single);
  case FLOAT_NUMBER:
    return v.value.float_v;
  default:
    ErrorMessage(kError, "Expression cannot be converted to float");
    return 0;
  }
}

// -- Arithmetic of the kinds -------------------------------------------------------------------

static std::uint32_t Bits(std::int32_t x) { return static_cast<std::uint32_t>(x); }

static std::int32_t FromBits(std::uint32_t bits) { return static_cast<std::int32_t>(bits); }

static std::int32_t IntegerMultiply(std::int32_t a, std::int32_t b) {
  return FromBits(Bits(a) * Bits(b));
}

// The smallest integer divided by -1 wraps around like its negation.
static std::int32_t IntegerDivide(std::int32_t a, std::int32_t b) {
  if (b == 0) {
    ErrorMessage(kError, "Cannot divide by zero");
    return 0;
  }
  return b == -1 ? FromBits(0U - Bits(a)) : a / b;
}

static std::int32_t IntegerAdd(std::int32_t a, std::int32_t b) {
  return FromBits(Bits(a) + Bits(b));
}

static std::int32_t IntegerSubtract(std::int32_t a, std::int32_t b) {
  return FromBits(Bits(a) - Bits(b));
}

// A shift count counts modulo 32, that of a negative number too.
constexpr std::uint32_t kShiftMask = 31;

static std::int32_t IntegerLeftShift(std::int32_t a, std::int32_t b) {
  return FromBits(Bits(a) << (Bits(b) & kShiftMask));
}

static std::int32_t IntegerRightShift(std::int32_t a, std::int32_t b) {
  return a >> (Bits(b) & kShiftMask);
}

static std::int32_t IntegerAnd(std::int32_t a, std::int32_t b) {
  return FromBits(Bits(a) & Bits(b));
}

static std::int32_t IntegerOr(std::int32_t a, std::int32_t b) {
  return FromBits(Bits(a) | Bits(b));
}

static std::int32_t IntegerExclusiveOr(std::int32_t a, std::int32_t b) {
  return FromBits(Bits(a) ^ Bits(b));
}

static bool BooleanAnd(bool a, bool b) { return a && b; }

static bool BooleanOr(bool a, bool b) { return a || b; }

static bool BooleanExclusiveOr(bool a, bool b) { return a != b; }

// No infinity ever reaches the generated text: a result beyond the largest number is a fault.
static float Finite(float x) { return std::isfinite(x) ? x : SingleFloatTooLarge(); }

static double Finite(double x) { return std::isfinite(x) ? x : FloatTooLarge(); }

template <typename Real> static Real RealMultiply(Real a, Real b) { return Finite(a * b); }

template <typename Real> static Real RealDivide(Real a, Real b) {
  if (IsTiny(b)) {
    ErrorMessage(kError, "Cannot divide by zero");
    return 0;
  }
  return Finite(a / b);
}

template <typename Real> static Real RealAdd(Real a, Real b) { return Finite(a + b); }

template <typename Real> static Real RealSubtract(Real a, Real b) { return Finite(a - b); }

// -- Operators ---------------------------------------------------------------------------------

// The functions of an operator of two operands, null for a kind that it is not defined for.
struct BinaryOperator {
  const char *undefined_message;
  std::int32_t fallback_kind; // of the zero that an undefined operation gives
  bool (*boolean)(bool, bool);
  std::int32_t (*integer)(std::int32_t, std::int32_t);
  float (*single)(float, float);
  double (*float_v)(double, double);
};

// clang-format off
constexpr BinaryOperator kMultiply = {
    "Operator * not defined for type of expression", INTEGER_NUMBER,
    nullptr, IntegerMultiply, RealMultiply<float>, RealMultiply<double>};
constexpr BinaryOperator kDivide = {
    "Operator / not defined for type of expression", INTEGER_NUMBER,
    nullptr, IntegerDivide, RealDivide<float>, RealDivide<double>};
constexpr BinaryOperator kAdd = {
    "Operator + not defined for type of expression", INTEGER_NUMBER,
    nullptr, IntegerAdd, RealAdd<float>, RealAdd<double>};
constexpr BinaryOperator kSubtract = {
    "Operator - not defined for type of expression", INTEGER_NUMBER,
    nullptr, IntegerSubtract, RealSubtract<float>, RealSubtract<double>};
constexpr BinaryOperator kLeftShift = {
    "Operator << not defined for type of expression", INTEGER_NUMBER,
    nullptr, IntegerLeftShift, nullptr, nullptr};
constexpr BinaryOperator kRightShift = {
    "Operator >> not defined for type of expression", INTEGER_NUMBER,
    nullptr, IntegerRightShift, nullptr, nullptr};
constexpr BinaryOperator kAnd = {
    "Operator & not defined for type of expression", BOOLEAN_NUMBER,
    BooleanAnd, IntegerAnd, nullptr, nullptr};
constexpr BinaryOperator kOr = {
    "Operator | not defined for type of expression", BOOLEAN_NUMBER,
    BooleanOr, IntegerOr, nullptr, nullptr};
constexpr BinaryOperator kExclusiveOr = {
    "Operator ^ not defined for type of expression", BOOLEAN_NUMBER,
    BooleanExclusiveOr, IntegerExclusiveOr, nullptr, nullptr};
// clang-format on

static NumberValue Undefined(const char *message, std::int32_t fallback_kind) {
  ErrorMessage(kError, message);
  return fallback_kind == BOOLEAN_NUMBER ? NumberOfBoolean(false) : NumberOfInteger(0);
}

// Applies the function of one kind to both operands in that kind.
template <typename T>
static NumberValue Apply(const BinaryOperator &op, T (*function)(T, T),
                         T (*convert)(const NumberValue &), NumberValue (*make)(T),
                         const NumberValue &left, const NumberValue &right) {
  if (function == nullptr) {
    return Undefined(op.undefined_message, op.fallback_kind);
  }
  const T left_operand = convert(left);
  const T right_operand = convert(right);
  return make(function(left_operand, right_operand));
}

static NumberValue Operate(const BinaryOperator &op, const NumberValue &left,
                           const NumberValue &right) {
  switch (DominantKind(left.kind, right.kind)) {
  case BOOLEAN_NUMBER:
    return Apply(op, op.boolean, NumberToBoolean, NumberOfBoolean, left, right);
  case SINGLE_FLOAT_NUMBER:
    return Apply(op, op.single, NumberToSingleFloat, NumberOfSingleFloat, left, right);
  case FLOAT_NUMBER:
    return Apply(op, op.float_v, NumberToFloat, NumberOfFloat, left, right);
  default:
    return Apply(op, op.integer, NumberToInteger, NumberOfInteger, left, right);
  }
}

void MultiplyExpression(NumberValue *result, const NumberValue &left, const NumberValue &right) {
  *result = Operate(kMultiply, left, right);
}

void DivideExpression(NumberValue *result, const NumberValue &left, const NumberValue &right) {
  *result = Operate(kDivide, left, right);
}

void AddExpression(NumberValue *result, const NumberValue &left, const NumberValue &right) {
  *result = Operate(kAdd, left, right);
}

void SubtractExpression(NumberValue *result, const NumberValue &left, const NumberValue &right) {
  *result = Operate(kSubtract, left, right);
}

void LeftShiftExpression(NumberValue *result, const NumberValue &left, const NumberValue &right) {
  *result = Operate(kLeftShift, left, right);
}

void RightShiftExpression(NumberValue *result, const NumberValue &left, const NumberValue &right) {
  *result = Operate(kRightShift, left, right);
}

void AndExpression(NumberValue *result, const NumberValue &left, const NumberValue &right) {
  *result = Operate(kAnd, left, right);
}

void OrExpression(NumberValue *result, const NumberValue &left, const NumberValue &right) {
  *result = Operate(kOr, left, right);
}

void ExclusiveOrExpression(NumberValue *result, const NumberValue &left, const NumberValue &right) {
  *result = Operate(kExclusiveOr, left, right);
}

void UnaryNotExpression(NumberValue *result, const NumberValue &v) {
  switch (v.kind) {
  case BOOLEAN_NUMBER:
    *result = NumberOfBoolean(!v.value.boolean);
    return;
  case INTEGER_NUMBER:
    *result = NumberOfInteger(FromBits(~Bits(v.value.integer)));
    return;
  default:
    *result = Undefined("Operator ~ not defined for type of expression", INTEGER_NUMBER);
  }
}

void UnaryMinusExpression(NumberValue *result, const NumberValue &v) {
  switch (v.kind) {
  case INTEGER_NUMBER:
    *result = NumberOfInteger(FromBits(0U - Bits(v.value.integer)));
    return;
  case SINGLE_FLOAT_NUMBER:
    *result = NumberOfSingleFloat(-v.value.single);
    return;
  case FLOAT_NUMBER:
    *result = NumberOfFloat(-v.value.float_v);
    return;
  default:
    *result = Undefined("Operator - not defined for type of expression", INTEGER_NUMBER);
  }
}

// -- Records of the model ----------------------------------------------------------------------

NumberValue ValueToNumber(const KindRec *value) {
  switch (value->kind) {
  case BOOLEAN_NUMBER:
    return NumberOfBoolean(static_cast<const BooleanValue *>(value)->value);
  case INTEGER_NUMBER:
    return NumberOfInteger(static_cast<const IntegerValue *>(value)->value);
  case SINGLE_FLOAT_NUMBER:
    return NumberOfSingleFloat(static_cast<const SingleFloatValue *>(value)->value);
  case FLOAT_NUMBER:
    return NumberOfFloat(static_cast<const FloatValue *>(value)->value);
  default: {
    NumberValue other{}; // no number: every operation reports it
    other.kind = value->kind;
    return other;
  }
  }
}

void NumberToValue(YYSTYPE *result, const NumberValue &value) {
  const NumberValue number = value; // may be a member of `*result`
  switch (number.kind) {
  case BOOLEAN_NUMBER:
    result->boolean = BooleanValue{{number.kind}, number.value.boolean};
    return;
  case INTEGER_NUMBER:
    result->integer = IntegerValue{{number.kind}, number.value.integer};
    return;
  case SINGLE_FLOAT_NUMBER:
    result->single = SingleFloatValue{{number.kind}, number.value.single};
    return;
  case FLOAT_NUMBER:
    result->float_t = FloatValue{{number.kind}, number.value.float_v};
    return;
  default:
    result->value = UnionValue{};
    result->kind = number.kind;
  }
}
