#ifndef KIVUXL_ADAKEYSYM_H
#define KIVUXL_ADAKEYSYM_H

// Keysyms: a constant handed over by value.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string keysym_varname(int n);
std::string keysym_varptr(int n);
void keysym_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void keysym_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
