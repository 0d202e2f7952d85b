#ifndef KIVUXL_ADACLASSRECNAME_H
#define KIVUXL_ADACLASSRECNAME_H

// Class record names: the Ada object of a widget class.

#include <cstdio>
#include <string>

#include "uiltoada.h"

// The Ada expression of the class object that a UIL class record name denotes.
std::string class_rec_name_value_expr(const char *text);

std::string class_rec_name_varname(int n);
std::string class_rec_name_varptr(int n);
void class_rec_name_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                            int n);
void class_rec_name_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                           int n);

#endif
