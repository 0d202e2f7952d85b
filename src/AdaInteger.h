#ifndef KIVUXL_ADAINTEGER_H
#define KIVUXL_ADAINTEGER_H

// Integers: a constant handed over by value.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string integer_varname(int n);
std::string integer_varptr(int n);
void integer_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void integer_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
