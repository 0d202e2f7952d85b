#ifndef KIVUXL_ADAVALUES_H
#define KIVUXL_ADAVALUES_H

// The emission protocol: every UIL value that reaches the Ada text is declared, set and cleaned up
// through these functions, which dispatch on the value's kind to the family of the kind.
//
// `argument` is the resource or reason being set, null for a callback tag; `n` is the slot number,
// from 1, that names the generated variables.
//
// A null value and a kind without family are internal faults: an immediate message, and nothing is
// written.  A value that was not given (NIL, NONE) has a name constant to declare and no phase of
// its own, so these two are silent; setting it is reported.  Cleaning up follows the setting of the
// same value and does not report that again.

#include <cstdint>
#include <cstdio>
#include <string>

#include "uiltoada.h"

void ValueDeclareArgument(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                          int n);
void ValueSetArgument(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
DeferUntil ValueDeferSetting(const KindRec *value);
void ValueCleanup(const KindRec *value, std::FILE *file, int n);

// The Ada name of the variable that holds the value, and an expression for its address (or the
// value itself where it is a reference already).  Empty after an internal message.
std::string ValueVariableName(const KindRec *value, int n);
std::string ValueVariablePointer(const KindRec *value, int n);

// The Ada type of a value of that kind: a constant, one for all kinds without a type of their own.
const char *ValueObjectType(std::int32_t kind);

#endif
