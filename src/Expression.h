#ifndef KIVUXL_EXPRESSION_H
#define KIVUXL_EXPRESSION_H

// Arithmetic on constant expressions: four number kinds, their conversions and the operators.
// Faults are reported as level-3 errors; each failing operation yields a defined value.

#include <cstdint>

#include "uiltoada.h"

// The kind in which an operation on two kinds is carried out.
std::int32_t DominantKind(std::int32_t a, std::int32_t b);

bool NumberToBoolean(const NumberValue &v);
std::int32_t NumberToInteger(const NumberValue &v);
float NumberToSingleFloat(const NumberValue &v);
double NumberToFloat(const NumberValue &v);

void UnaryNotExpression(NumberValue *result, const NumberValue &v);
void UnaryMinusExpression(NumberValue *result, const NumberValue &v);
void MultiplyExpression(NumberValue *result, const NumberValue &left, const NumberValue &right);
void DivideExpression(NumberValue *result, const NumberValue &left, const NumberValue &right);
void AddExpression(NumberValue *result, const NumberValue &left, const NumberValue &right);
void SubtractExpression(NumberValue *result, const NumberValue &left, const NumberValue &right);
void LeftShiftExpression(NumberValue *result, const NumberValue &left, const NumberValue &right);
void RightShiftExpression(NumberValue *result, const NumberValue &left, const NumberValue &right);
void AndExpression(NumberValue *result, const NumberValue &left, const NumberValue &right);
void OrExpression(NumberValue *result, const NumberValue &left, const NumberValue &right);
void ExclusiveOrExpression(NumberValue *result, const NumberValue &left, const NumberValue &right);

// Makers of working records.
NumberValue NumberOfBoolean(bool value);
NumberValue NumberOfInteger(std::int32_t value);
NumberValue NumberOfSingleFloat(float value);
NumberValue NumberOfFloat(double value);

// The working record of a number value of the model, and the other way round: `value` as one of
// BooleanValue, IntegerValue, SingleFloatValue and FloatValue, in its member of the union.
NumberValue ValueToNumber(const KindRec *value);
void NumberToValue(YYSTYPE *result, const NumberValue &value);

#endif
