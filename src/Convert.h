#ifndef KIVUXL_CONVERT_H
#define KIVUXL_CONVERT_H

// One whole translation: parse, report, and write every unit.

// Translates the module in that file (null under -nouil without one).  Returns 1 on success, 0 on
// failure, after everything has been reported.
int Convert(const char *filename);

void ConvertReset();

#endif
