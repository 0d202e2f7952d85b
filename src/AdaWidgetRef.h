#ifndef KIVUXL_ADAWIDGETREF_H
#define KIVUXL_ADAWIDGETREF_H

// References to widgets: looked up by name at run time, when every widget exists.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string widget_varname(int n);
std::string widget_varptr(int n);
void widget_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void widget_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
