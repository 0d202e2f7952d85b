#ifndef KIVUXL_ADAWIDGETS_H
#define KIVUXL_ADAWIDGETS_H

// The widgets packages: specification and body, the client data package, the instantiation.

#include <cstdio>

// Writes the widgets specification and body and the client data units; `cdspec` and `cdbody` may
// be null and are then not written.
void OutputWidgets(std::FILE *spec, std::FILE *body, std::FILE *cdspec, std::FILE *cdbody);

// Writes the instantiation package.
void OutputInstant(std::FILE *file);

#endif
