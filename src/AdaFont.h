#ifndef KIVUXL_ADAFONT_H
#define KIVUXL_ADAFONT_H

// Fonts: loaded at run time on the display of the widget's parent.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string font_varname(int n);
std::string font_varptr(int n);
void font_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void font_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
