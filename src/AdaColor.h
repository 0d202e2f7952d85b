#ifndef KIVUXL_ADACOLOR_H
#define KIVUXL_ADACOLOR_H

// Colours, by name or by red, green and blue: allocated at run time in the colormap of the widget,
// with the colour of the widget's foreground or background as fallback.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string color_varname(int n);
std::string color_varptr(int n);
void color_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void color_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
