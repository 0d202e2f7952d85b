#ifndef KIVUXL_ADACALLBACKS_H
#define KIVUXL_ADACALLBACKS_H

// The callback packages: stubs for the user's procedures, the wrapper that the toolkit calls, and
// the wrapper's instantiation.

#include <cstdio>

#include "uiltoada.h"

// Writes the callbacks package, a stub for each procedure that the module uses; without any, its
// empty forms.  A failed write shows when the streams are checked.
void OutputCallbacks(std::FILE *spec, std::FILE *body);

// `spec` and `inst` may be null when the wrapper is not generic.
void OutputWrapper(std::FILE *spec, std::FILE *body, std::FILE *inst);

// One case arm of the wrapper: client data `number` calls the invoked procedure.
void CallbackWrapperProcCase(const ProcedureInvoke *invocation, std::FILE *body, unsigned number);

#endif
