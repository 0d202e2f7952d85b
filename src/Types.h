#ifndef KIVUXL_TYPES_H
#define KIVUXL_TYPES_H

// Types of values: their names, which value may be assigned to what, and the conversion on
// assignment.
//
// A semantic value (YYSTYPE) that holds a value is one of the value records of uiltoada.h, in its
// member of the union; a value bound or assigned in the model is a record of its own.

#include <cstdint>

#include "uiltoada.h"

// The type's UIL name; "[invalid type]" after an internal message for what is no type.
const char *NameOfType(std::int32_t kind);

// Whether a value of kind `source` may be assigned where `target` is required.
bool IsTypeCompatible(std::int32_t target, std::int32_t source, bool allow_conversion);

// The binding kind of a named value of that type; NIL where there is none.
std::int32_t ValueOfType(std::int32_t kind);

// A new record of the model that holds the same value.
void CastAssignToValue(const YYSTYPE &value, KindRec **out);

// A new record of the target type that holds the value, converted where the types ask for it.
void ConvertAssignToValue(const YYSTYPE &value, std::int32_t target, KindRec **out);

// Copies a whole semantic value.
void CastAssign(const YYSTYPE &source, YYSTYPE *destination);

// The items of a compound string: the text's runs as segments, each preceded by the options.
// `options` (of CompoundStringSegment) may be null; its SEPARATE option is taken out.
List StringToCompound(const StringValue *string, List options);

// Maintenance of the lists of procedures, classes and top-level objects.
void AddProcedure(ProcedureName *proc);
void AddWidgetClass(WidgetClassValue *widget_class);
void WidgetMaybeTopLevel(WidgetDef *def);
void WidgetNotTopLevel(const char *name);

// A new name for an object defined inline: "anon_<class>_<count>".
char *AnonymousWidget(const char *widget_class);

void TypesReset();

#endif
