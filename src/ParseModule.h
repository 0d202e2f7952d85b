#ifndef KIVUXL_PARSEMODULE_H
#define KIVUXL_PARSEMODULE_H

// What the parser does with the module's header and clauses, with includes, and with the names
// that will become Ada names.

#include "uiltoada.h"

// Opens the module of that name.
void ModuleHeader(YYSTYPE *result, const SymbolValue &name);

// names = case_insensitive
void NamesInsensitive();

// character_set = <constant>
void ModuleCharacterSet(const SymbolValue &constant);

// version = <number> | <string>
void ModuleVersionNumber(const NumberValue &version);
void ModuleVersionText(const StringValue &version);

// <class> = widget | gadget;
void ObjectVariant(const SymbolValue &widget_class, std::int32_t variant);

// include file <name>: the file becomes the scanner's input.  `lookahead` is the token read after
// the file name, with its value, or null when there is none to keep.
void IncludeFile(const StringValue &name, const int *lookahead, const YYSTYPE &value);

// Registers the Ada-legal form of `entry`'s name.  False, after the message `conflict` with the
// names of both, when another entry has claimed it.
bool RegisterAdaName(SimpleObjectRec *entry, const char *conflict);

#endif
