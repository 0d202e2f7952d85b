#ifndef KIVUXL_ADASINGLEFLOAT_H
#define KIVUXL_ADASINGLEFLOAT_H

// Single floats: a constant handed over by its address.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string single_float_varname(int n);
std::string single_float_varptr(int n);
void single_float_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                          int n);
void single_float_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                         int n);

#endif
