#ifndef KIVUXL_ADAINTEGERTABLE_H
#define KIVUXL_ADAINTEGERTABLE_H

// Integer tables: a constant array handed over by the address of its first element.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string integer_table_varname(int n);
std::string integer_table_varptr(int n);
void integer_table_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                           int n);
void integer_table_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                          int n);

#endif
