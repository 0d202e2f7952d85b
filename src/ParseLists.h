#ifndef KIVUXL_PARSELISTS_H
#define KIVUXL_PARSELISTS_H

// What the parser does with procedures and with the lists of arguments, callbacks and procedures.
// An item that failed has kind NIL and is left out of its list.

#include "uiltoada.h"

// procedure <name> ( <type> ); the type is a value kind, NIL without parentheses, NONE for "()".
void ProcedureDeclare(const SymbolValue &name, std::int32_t type);

// A list written in braces: a record of that kind around the items.
void ListOf(YYSTYPE *result, std::int32_t kind, const TableValue &items);

// list <name> : ...; `kind` is the binding kind.
void ListDeclare(const SymbolValue &name, std::int32_t kind, const UnionList &list);

// A reference to a named list, as an item of that binding kind.
void ListReference(YYSTYPE *result, std::int32_t kind, const SymbolValue &name);

// Reports a fault of a name, whose text is to be put into the format, and fails.
void NameFault(YYSTYPE *result, const SymbolValue &name, const char *format);

// The item of a semantic value for a list: null when the item failed.
UnionList *ListItemOf(const UnionList &item);

// <argument> = <value>; the argument is a predefined or a declared one.
void ArgumentItem(YYSTYPE *result, const SymbolValue &argument, const YYSTYPE &value);

// A widget as a value: `<class> <name>`, or just the name.
void WidgetOfClass(YYSTYPE *result, const SymbolValue &widget_class, const SymbolValue &name);
void NewWidgetOfClass(YYSTYPE *result, const SymbolValue &widget_class, const SymbolValue &name);
void WidgetByName(YYSTYPE *result, const SymbolValue &name);
// A name that means nothing yet.
void UnknownByName(YYSTYPE *result, const SymbolValue &name);

// The parameter of an invocation that has none: of kind NIL without parentheses, NONE with empty
// ones; distinguished by its null name from a value that was given.
void NoParameter(YYSTYPE *result, std::int32_t kind);

// <procedure> ( <value> );
void ProcedureInvocation(YYSTYPE *result, const SymbolValue &procedure, const YYSTYPE &parameter);

// <reason> = procedure <invocation>, and <reason> = <list of procedures>.
void CallbackProcedure(YYSTYPE *result, const SymbolValue &reason,
                       const ProcedureInvoke &invocation);
void CallbackProcedures(YYSTYPE *result, const SymbolValue &reason, const UnionList &procedures);

// Copies of finished items for their lists; null for a failed one.
ProcedureInvoke *InvocationItem(const ProcedureInvoke &invocation);
ArgumentInvoke *ArgumentItemOf(const ArgumentInvoke &argument);
CallbackValue *CallbackItemOf(const CallbackValue &callback);

#endif
