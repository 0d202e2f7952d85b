#ifndef KIVUXL_ADAFONTTABLE_H
#define KIVUXL_ADAFONTTABLE_H

// Font tables: fonts and font sets with their tags, joined to a font list at run time.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string font_table_varname(int n);
std::string font_table_varptr(int n);
void font_table_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
void font_table_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
