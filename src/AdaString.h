#ifndef KIVUXL_ADASTRING_H
#define KIVUXL_ADASTRING_H

// Strings, and the expression by which any text becomes an Ada string.

#include <cstdio>
#include <string>

#include "uiltoada.h"

// An Ada 83 and Ada 95 expression of the text, byte for byte, that ends in an explicit NUL.  Null
// counts as empty.  In Ada 83 each byte of 128 and above is reported and replaced by '~'.
std::string string_value_expr(const char *text);

std::string string_varname(int n);
std::string string_varptr(int n);
void string_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void string_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
