#ifndef KIVUXL_ADABOOLEAN_H
#define KIVUXL_ADABOOLEAN_H

// Booleans: a constant handed over by value.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string boolean_varname(int n);
std::string boolean_varptr(int n);
void boolean_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void boolean_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
