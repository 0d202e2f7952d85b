// See ParseLists.h.

#include "ParseLists.h"

#include "Error.h"
#include "Model.h"
#include "ParseModule.h"
#include "ParseObjects.h"
#include "ParseUsage.h"
#include "ParseValues.h"
#include "Types.h"

// -- Procedures --------------------------------------------------------------------------------

void ProcedureDeclare(const SymbolValue &name, std::int32_t type) {
  auto *procedure = ModelNew<ProcedureName>(PROCEDURE_NAME);
  procedure->name = name.name;
  procedure->type = type;
  procedure->usage = NIL;
  if (!RegisterAdaName(procedure, "Cannot use %s as procedure name because it conflicts with %s")) {
    return;
  }
  auto *binding = ModelNew<ProcedureDecl>(PROCEDURE_NAME);
  binding->name = name.name;
  binding->value = procedure;
  SymbolAdd(binding);
  AddProcedure(procedure);
}

void NoParameter(YYSTYPE *result, std::int32_t kind) {
  result->value.kind = kind;
  result->value.name = nullptr;
}

// Only what is absent has no name: values given are records of other shapes or carry a name.
static bool ParameterAbsent(const YYSTYPE &parameter) {
  return (parameter.kind == NIL || parameter.kind == NONE) && parameter.value.name == nullptr;
}

static bool ParameterFits(const ProcedureName *procedure, const YYSTYPE &parameter) {
  if (ParameterAbsent(parameter)) {
    return procedure->type == NIL || procedure->type == NONE || procedure->type == ANY;
  }
  return procedure->type != NIL && IsTypeCompatible(procedure->type, parameter.kind, true);
}

void ProcedureInvocation(YYSTYPE *result, const SymbolValue &procedure, const YYSTYPE &parameter) {
  ProcedureName *declared = static_cast<ProcedureDecl *>(procedure.value)->value;
  if (!ParameterFits(declared, parameter)) {
    const char *given = NameOfType(parameter.kind);
    ErrorFormat(kError, "Cannot cast expression of type %s to argument of procedure %s(%s)", given,
                declared->name, NameOfType(declared->type));
    ParseFailed(result);
    return;
  }
  ProcedureInvoke invocation{};
  invocation.kind = PROCEDURE_INVOKE;
  invocation.name = declared->name;
  invocation.proc = declared;
  ConvertAssignToValue(parameter, ParameterAbsent(parameter) ? ANY : declared->type,
                       &invocation.param);
  declared->usage = CALLBACK_PROC;
  result->proc_v = invocation;
}

ProcedureInvoke *InvocationItem(const ProcedureInvoke &invocation) {
  return invocation.kind == NIL ? nullptr : ModelCopy(invocation);
}

// -- Lists -------------------------------------------------------------------------------------

void ListOf(YYSTYPE *result, std::int32_t kind, const TableValue &items) {
  UnionList list{};
  list.kind = kind;
  list.value = items.value;
  result->attrib_v = list;
}

void ListDeclare(const SymbolValue &name, std::int32_t kind, const UnionList &list) {
  if (list.kind == NIL) {
    return;
  }
  auto *binding = ModelNew<ListDecl>(kind);
  binding->name = name.name;
  binding->value = ModelCopy(list);
  binding->value->name = name.name;
  if (!SymbolAdd(binding)) { // an item of the list has taken the name for a widget
    ErrorFormat(kError, "Cannot use %s as list name because it conflicts with %s", name.name,
                SymbolFind(name.name)->name);
  }
}

void ListReference(YYSTYPE *result, std::int32_t kind, const SymbolValue &name) {
  UnionList reference{};
  reference.kind = kind;
  reference.name = name.name;
  reference.value = static_cast<ListDecl *>(name.value)->value->value;
  result->attrib_v = reference;
}

void NameFault(YYSTYPE *result, const SymbolValue &name, const char *format) {
  ErrorFormat(kError, format, name.name);
  ParseFailed(result);
}

UnionList *ListItemOf(const UnionList &item) {
  return item.kind == NIL ? nullptr : ModelCopy(item);
}

// -- Arguments ---------------------------------------------------------------------------------

static bool ArgumentFits(const ArgumentName &argument, const YYSTYPE &value) {
  if (IsTypeCompatible(argument.value_type, value.kind, true)) {
    return true;
  }
  const char *given = NameOfType(value.kind);
  ErrorFormat(kError, "Cannot cast expression of type %d (%s) to argument %s : %d (%s)", value.kind,
              given, argument.name, argument.value_type, NameOfType(argument.value_type));
  return false;
}

void ArgumentItem(YYSTYPE *result, const SymbolValue &argument, const YYSTYPE &value) {
  const auto &declared = BoundValue<ArgumentName>(argument);
  if (!ArgumentFits(declared, value)) {
    ParseFailed(result);
    return;
  }
  ArgumentInvoke item{};
  item.kind = ARGUMENT;
  item.name = declared.name;
  item.predefined = declared.predefined;
  ConvertAssignToValue(value, declared.value_type, &item.value);
  result->arg_v = item;
}

ArgumentInvoke *ArgumentItemOf(const ArgumentInvoke &argument) {
  return argument.kind == NIL ? nullptr : ModelCopy(argument);
}

// -- Widgets as values -------------------------------------------------------------------------

void WidgetByName(YYSTYPE *result, const SymbolValue &name) {
  WidgetRef reference{};
  reference.kind = WIDGET_REF;
  reference.name = name.name;
  reference.managed = NIL;
  result->widget_r = reference;
}

void WidgetOfClass(YYSTYPE *result, const SymbolValue &widget_class, const SymbolValue &name) {
  if (WidgetHasClass(name, widget_class)) {
    WidgetByName(result, name);
  } else {
    ParseFailed(result);
  }
}

void NewWidgetOfClass(YYSTYPE *result, const SymbolValue &widget_class, const SymbolValue &name) {
  WidgetForward(name, static_cast<WidgetClassValue *>(widget_class.value));
  WidgetByName(result, name);
}

void UnknownByName(YYSTYPE *result, const SymbolValue &name) {
  result->value.kind = NIL;
  result->value.name = name.name;
}

// -- Callbacks ---------------------------------------------------------------------------------

static void CallbackOf(YYSTYPE *result, const SymbolValue &reason, List invocations) {
  CallbackValue callback{};
  callback.kind = CALLBACK;
  callback.name = reason.name;
  callback.value = invocations;
  result->cb_v = callback;
}

void CallbackProcedure(YYSTYPE *result, const SymbolValue &reason,
                       const ProcedureInvoke &invocation) {
  if (invocation.kind == NIL) {
    ParseFailed(result);
    return;
  }
  CallbackOf(result, reason, OneItem(InvocationItem(invocation)).value);
}

void CallbackProcedures(YYSTYPE *result, const SymbolValue &reason, const UnionList &procedures) {
  if (procedures.kind == NIL) {
    ParseFailed(result);
    return;
  }
  CallbackOf(result, reason, procedures.value);
}

CallbackValue *CallbackItemOf(const CallbackValue &callback) {
  return callback.kind == NIL ? nullptr : ModelCopy(callback);
}
