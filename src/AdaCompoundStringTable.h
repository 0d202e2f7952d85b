#ifndef KIVUXL_ADACOMPOUNDSTRINGTABLE_H
#define KIVUXL_ADACOMPOUNDSTRINGTABLE_H

// Tables of compound strings: a null-terminated array that is filled at run time.  The one kind of
// table that also sets the count resource that goes with its list resource.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string compound_string_table_varname(int n);
std::string compound_string_table_varptr(int n);
void compound_string_table_declare(const KindRec *value, const NamedSetting *argument,
                                   std::FILE *file, int n);
void compound_string_table_setarg(const KindRec *value, const NamedSetting *argument,
                                  std::FILE *file, int n);
void compound_string_table_cleanup(std::FILE *file, int n);

#endif
