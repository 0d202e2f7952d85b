#ifndef KIVUXL_DRIVER_H
#define KIVUXL_DRIVER_H

// The driver: from the command line to the exit status.

// Runs the program as main does and returns its exit status; ends the process in no case.
int DriverRun(int argc, char **argv);

#endif
