#ifndef KIVUXL_ADAARGUMENT_H
#define KIVUXL_ADAARGUMENT_H

// What is common to all value kinds: the constant that names a user-defined argument, the setting
// of an argument slot, the pairs of list and count resources, and the Ada type of a kind.

#include <cstdint>
#include <cstdio>
#include <string>

#include "Emit.h"
#include "uiltoada.h"

// Declares the name constant of a user-defined argument or reason; nothing for a predefined one,
// whose constant the bindings have, nor for null.
void argument_declare(const NamedSetting *argument, std::FILE *file, int n);

// Sets slot n of `args` to the expression; nothing for a null argument, as of a callback tag.
void argument_setarg(const char *expression, const NamedSetting *argument, std::FILE *file, int n);

// The count resource that goes with a list resource, or null.  Follows `case_sensitive`.
const char *argument_paired_arg(const char *name);

// The Ada type of a value of that kind.
const char *argument_object_type(std::int32_t kind);

// A short generated text, such as the name of a variable; with conversions of printf the second.
template <AdaText text, typename... Values>
std::string ExpressionFormat(AdaTemplate<text> ada, const Values &...values) {
  return EmitToString(ada, values...);
}
std::string ExpressionFormat(const char *format, ...) __attribute__((format(printf, 1, 2)));

// The address of a variable, and that of the first element of an array.
std::string ExpressionAddress(const std::string &name);
std::string ExpressionFirstAddress(const std::string &name);

#endif
