#ifndef KIVUXL_ADAWIDECHARACTER_H
#define KIVUXL_ADAWIDECHARACTER_H

// Wide-character strings: an array of character codes.

#include <cstdio>
#include <string>

#include "uiltoada.h"

// The Ada aggregate of the character codes, the closing zero included.
std::string wide_character_value_expr(const wchar_t *text);

std::string wide_character_varname(int n);
std::string wide_character_varptr(int n);
void wide_character_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                            int n);
void wide_character_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                           int n);

#endif
