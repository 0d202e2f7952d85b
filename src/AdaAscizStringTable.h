#ifndef KIVUXL_ADAASCIZSTRINGTABLE_H
#define KIVUXL_ADAASCIZSTRINGTABLE_H

// String tables: a null-terminated array of the addresses of C texts.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string asciz_string_table_varname(int n);
std::string asciz_string_table_varptr(int n);
void asciz_string_table_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                                int n);
void asciz_string_table_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                               int n);

#endif
