#ifndef KIVUXL_ADACOMPOUNDSTRING_H
#define KIVUXL_ADACOMPOUNDSTRING_H

// Compound strings: segments created one by one and joined at run time.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string compound_string_varname(int n);
std::string compound_string_varptr(int n);
void compound_string_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                             int n);
void compound_string_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                            int n);
void compound_string_cleanup(std::FILE *file, int n);

#endif
