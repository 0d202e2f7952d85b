// See ParseObjects.h.
//
// An object may be named before it is defined.  Such a forward reference is bound at once to an
// empty definition (without attributes), so that its name is claimed and later mentions find it;
// the definition fills it in.

#include "ParseObjects.h"

#include "Error.h"
#include "Model.h"
#include "ParseModule.h"
#include "ParseUsage.h"
#include "Types.h"
#include "WidgetUtils.h"

static WidgetDef *WidgetOf(const SymbolValue &name) {
  return static_cast<WidgetValue *>(name.value)->value;
}

// Binds the name to the definition and claims its Ada name; a conflict is reported and binds the
// name all the same.
static void BindWidget(WidgetDef *definition) {
  auto *binding = ModelNew<WidgetValue>(WIDGET_NAME);
  binding->name = definition->name;
  binding->value = definition;
  RegisterAdaName(binding, "Cannot use %s as widget name because it conflicts with %s");
  SymbolAdd(binding);
}

static void NoteClass(SimpleObjectRec *type) {
  if (type->kind == WIDGET_CLASS) {
    AddWidgetClass(static_cast<WidgetClassValue *>(type));
  }
}

WidgetDef *WidgetForward(const SymbolValue &name, WidgetClassValue *widget_class) {
  auto *definition = ModelNew<WidgetDef>(WIDGET_NAME);
  definition->name = name.name;
  definition->managed = NIL;
  definition->gadget = WIDGET;
  definition->type = widget_class;
  definition->maybe_top = true;
  BindWidget(definition);
  if (widget_class != nullptr) {
    NoteClass(widget_class);
  }
  return definition;
}

// A definition that has no class yet takes the first one that it meets.
static bool ClassAgrees(WidgetDef *definition, SimpleObjectRec *type) {
  if (definition->type == nullptr) {
    definition->type = type;
  }
  return definition->type == type;
}

bool WidgetHasClass(const SymbolValue &name, const SymbolValue &widget_class) {
  auto *type = static_cast<WidgetClassValue *>(widget_class.value);
  WidgetDef *definition = WidgetOf(name);
  AddWidgetClass(type);
  if (ClassAgrees(definition, type)) {
    return true;
  }
  ErrorFormat(kError, "Widget %s is class %s, not class %s", name.name, definition->type->name,
              type->name);
  return false;
}

// -- Controls ----------------------------------------------------------------------------------

static void ControlOf(YYSTYPE *result, std::int32_t kind, void *item) {
  ControlValue control{};
  control.kind = kind;
  control.value.ptr = item;
  result->ctl_v = control;
}

static void ReferenceTo(YYSTYPE *result, std::int32_t managed, const char *name) {
  auto *reference = ModelNew<WidgetRef>(WIDGET_REF);
  reference->name = name;
  reference->managed = managed;
  ControlOf(result, WIDGET_REF, reference);
}

void ControlReference(YYSTYPE *result, std::int32_t managed, const SymbolValue *widget_class,
                      const SymbolValue &name) {
  WidgetNotTopLevel(name.name);
  if (widget_class != nullptr && !WidgetHasClass(name, *widget_class)) {
    ParseFailed(result);
    return;
  }
  ReferenceTo(result, managed, name.name);
}

void ControlForward(YYSTYPE *result, std::int32_t managed, const SymbolValue *widget_class,
                    const SymbolValue &name) {
  WidgetDef *definition = WidgetForward(
      name,
      widget_class == nullptr ? nullptr : static_cast<WidgetClassValue *>(widget_class->value));
  definition->maybe_top = false;
  ReferenceTo(result, managed, name.name);
}

void ControlInline(YYSTYPE *result, std::int32_t managed, const WidgetDef &definition) {
  if (definition.kind == NIL) {
    ParseFailed(result);
    return;
  }
  WidgetDef *inline_definition = ModelCopy(definition);
  inline_definition->name = AnonymousWidget(definition.type->name);
  inline_definition->managed = managed;
  inline_definition->anon = true;
  NoteClass(definition.type);
  ControlOf(result, WIDGET_DEF, inline_definition);
}

// Keeps the attributes as written and splits them by kind.
static void SplitAttributes(WidgetDef *definition, const TableValue &attributes) {
  definition->attribs = attributes.value;
  definition->args = ExtractArgumentsLists(attributes.value);
  definition->cbs = ExtractCallbacksLists(attributes.value);
  definition->ctls = ExtractControlsLists(attributes.value);
}

void ControlAutomatic(YYSTYPE *result, const SymbolValue &child, const TableValue &attributes) {
  const AutoCreatedChild *automatic = static_cast<AutoChildValue *>(child.value)->value;
  auto *definition = ModelNew<WidgetDef>(AUTO_CREATED_DEF);
  definition->name = automatic->name;
  definition->managed = NIL;
  definition->gadget = WIDGET;
  definition->type = automatic->child;
  SplitAttributes(definition, attributes);
  ControlOf(result, AUTO_CREATED_DEF, definition);
}

void *ControlItem(const ControlValue &control) {
  return control.kind == NIL ? nullptr : control.value.ptr;
}

// -- Definitions -------------------------------------------------------------------------------

static void DefinitionOf(YYSTYPE *result, SimpleObjectRec *type, std::int32_t gadget,
                         const TableValue &attributes) {
  WidgetDef definition{};
  definition.kind = WIDGET_DEF;
  definition.managed = NIL;
  definition.gadget = gadget;
  definition.type = type;
  SplitAttributes(&definition, attributes);
  result->widget_d = definition;
}

void WidgetDefinition(YYSTYPE *result, const SymbolValue &widget_class, std::int32_t variant,
                      const TableValue &attributes) {
  auto *type = static_cast<WidgetClassValue *>(widget_class.value);
  const bool use_gadget = static_cast<const WidgetClass *>(type->value.value)->use_gadget;
  const std::int32_t otherwise = use_gadget ? GADGET : WIDGET;
  DefinitionOf(result, type, variant == NIL ? otherwise : variant, attributes);
}

void UserDefinition(YYSTYPE *result, const SymbolValue &procedure, const TableValue &attributes) {
  ProcedureCreates(procedure);
  DefinitionOf(result, procedure.value, WIDGET, attributes);
}

void ProcedureCreates(const SymbolValue &procedure) {
  static_cast<ProcedureDecl *>(procedure.value)->value->usage = CREATE_PROC;
}

// -- Objects -----------------------------------------------------------------------------------

void ObjectDefine(const SymbolValue &name, const WidgetDef &definition) {
  if (definition.kind == NIL) {
    return;
  }
  WidgetDef *object = ModelCopy(definition);
  object->kind = WIDGET_NAME;
  object->name = name.name;
  object->maybe_top = true;
  BindWidget(object);
  WidgetMaybeTopLevel(object);
  NoteClass(object->type);
}

static bool CompletionAgrees(const SymbolValue &name, WidgetDef *object, SimpleObjectRec *type) {
  if (WidgetIsDefined(object)) {
    ErrorFormat(kError, "Widget %s already defined", name.name);
    return false;
  }
  if (ClassAgrees(object, type)) {
    return true;
  }
  ErrorFormat(kError,
              type->kind == PROCEDURE_NAME ? "Widget %s is class %s, not procedure %s"
                                           : "Widget %s is class %s, not class %s",
              name.name, object->type->name, type->name);
  return false;
}

void ObjectComplete(const SymbolValue &name, const WidgetDef &definition) {
  if (definition.kind == NIL) {
    return;
  }
  WidgetDef *object = WidgetOf(name);
  if (!CompletionAgrees(name, object, definition.type)) {
    return;
  }
  const char *bound_name = object->name;
  const bool maybe_top = object->maybe_top;
  *object = definition;
  object->kind = WIDGET_NAME;
  object->name = bound_name;
  object->maybe_top = maybe_top;
  WidgetMaybeTopLevel(object);
  NoteClass(object->type);
}

void ObjectImport(const SymbolValue &name) {
  ErrorFormat(kError, "Limitation: no imports, cannot import object %s", name.name);
}
