#ifndef KIVUXL_ADAICON_H
#define KIVUXL_ADAICON_H

// Icons: an image drawn cell by cell at run time and copied into a pixmap of the widget's depth.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string icon_varname(int n);
std::string icon_varptr(int n);
void icon_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void icon_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void icon_cleanup(std::FILE *file, int n);

#endif
