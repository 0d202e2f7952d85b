#ifndef KIVUXL_ADAFONTSET_H
#define KIVUXL_ADAFONTSET_H

// Font sets: created at run time on the display of the widget's parent.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string fontset_varname(int n);
std::string fontset_varptr(int n);
void fontset_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void fontset_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
