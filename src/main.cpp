// The program.  Everything it does is in the library, where tests reach it.

#include "Driver.h"

int main(int argc, char **argv) { return DriverRun(argc, argv); }
