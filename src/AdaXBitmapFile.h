#ifndef KIVUXL_ADAXBITMAPFILE_H
#define KIVUXL_ADAXBITMAPFILE_H

// X bitmap files: read at run time in the colours and the depth of the widget.

#include <cstdio>
#include <string>

#include "uiltoada.h"

std::string xbitmapfile_varname(int n);
std::string xbitmapfile_varptr(int n);
void xbitmapfile_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                         int n);
void xbitmapfile_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);

#endif
