#ifndef KIVUXL_ADAFLOAT_H
#define KIVUXL_ADAFLOAT_H

// Floats: a constant handed over by its address.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string float_varname(int n);
std::string float_varptr(int n);
void float_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void float_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
