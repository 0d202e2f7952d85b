#ifndef KIVUXL_ADATRANSLATIONTABLE_H
#define KIVUXL_ADATRANSLATIONTABLE_H

// Translation tables: parsed at run time from one text with a line for each row.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string translation_table_varname(int n);
std::string translation_table_varptr(int n);
void translation_table_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                               int n);
void translation_table_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                              int n);

#endif
