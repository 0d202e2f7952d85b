#ifndef KIVUXL_PARSEOBJECTS_H
#define KIVUXL_PARSEOBJECTS_H

// What the parser does with objects: definitions, references to objects defined earlier or later,
// inline definitions and automatic children.

#include "uiltoada.h"

// Binds a new name to an object that is defined later: of that class, or of any when it is null.
// Returns the empty definition.
WidgetDef *WidgetForward(const SymbolValue &name, WidgetClassValue *widget_class);

// Whether the object agrees with the class, which a reference without class takes on; reports a
// fault.  The class is recorded as used.
bool WidgetHasClass(const SymbolValue &name, const SymbolValue &widget_class);

// Items of a controls list.  `managed` is MANAGED, UNMANAGED or NIL; `widget_class` may be null.
void ControlReference(YYSTYPE *result, std::int32_t managed, const SymbolValue *widget_class,
                      const SymbolValue &name);
void ControlForward(YYSTYPE *result, std::int32_t managed, const SymbolValue *widget_class,
                    const SymbolValue &name);
void ControlInline(YYSTYPE *result, std::int32_t managed, const WidgetDef &definition);
void ControlAutomatic(YYSTYPE *result, const SymbolValue &child, const TableValue &attributes);

// The item of a control for its list: null when it failed.
void *ControlItem(const ControlValue &control);

// A definition, without its name.  `variant` is WIDGET, GADGET or NIL when neither was written.
void WidgetDefinition(YYSTYPE *result, const SymbolValue &widget_class, std::int32_t variant,
                      const TableValue &attributes);
void UserDefinition(YYSTYPE *result, const SymbolValue &procedure, const TableValue &attributes);

// Marks the procedure as one that creates objects.
void ProcedureCreates(const SymbolValue &procedure);

// <name> : <definition>; for a new name and for a name bound as an object.
void ObjectDefine(const SymbolValue &name, const WidgetDef &definition);
void ObjectComplete(const SymbolValue &name, const WidgetDef &definition);
void ObjectImport(const SymbolValue &name);

#endif
