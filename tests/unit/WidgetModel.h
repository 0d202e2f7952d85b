#ifndef KIVUXL_WIDGETMODEL_H
#define KIVUXL_WIDGETMODEL_H

// For tests: builds small widget trees in the symbol model, as the parser would, and catches what
// the writers write.  The fixture begins with empty tables, a case-sensitive module of the package
// base "demo" and the program name "kivuxl".

#include <cstdio>
#include <cstdlib>
#include <initializer_list>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "AdaWidgetProcs.h"
#include "Alloc.h"
#include "Error.h"
#include "Filename.h"
#include "Model.h"
#include "Options.h"
#include "WidgetUtils.h"

class WidgetModel : public testing::Test {
protected:
  void SetUp() override {
    ResetAll();
    program_name = "kivuxl";
    package_base = "demo";
    ASSERT_TRUE(SymbolTableInit());
    ASSERT_TRUE(WidgetTableInit());
  }
  void TearDown() override { ResetAll(); }

  static void ResetAll() {
    WidgetUtilsReset();
    AdaWidgetProcsReset();
    ModelReset();
    FilenameReset();
    OptionsReset();
    ErrorReset();
    AllocReset();
  }

  // The module's names clause said so.
  static void IgnoreCase() {
    case_sensitive = false;
    ASSERT_TRUE(SymbolTableInit());
    ASSERT_TRUE(WidgetTableInit());
  }

  // -- Records ---------------------------------------------------------------------------------

  static WidgetDef *Widget(std::int32_t kind, const char *name, const char *class_name) {
    auto *widget = ModelNew<WidgetDef>(kind);
    widget->name = name;
    widget->managed = NIL;
    widget->gadget = WIDGET;
    widget->type = ModelBinding(WIDGET_CLASS, class_name, ModelNew<WidgetClass>(WIDGET_CLASS));
    widget->attribs = ModelList();
    widget->args = ModelList();
    widget->cbs = ModelList();
    widget->ctls = ModelList();
    return widget;
  }
  static WidgetValue *Bind(const char *name, WidgetDef *widget) {
    auto *binding = ModelNew<WidgetValue>(WIDGET_NAME);
    binding->name = name;
    binding->value = widget;
    EXPECT_TRUE(SymbolAdd(binding));
    return binding;
  }
  // A definition of the object section.
  static WidgetDef *Define(const char *name, const char *class_name) {
    WidgetDef *widget = Widget(WIDGET_NAME, name, class_name);
    Bind(name, widget);
    return widget;
  }
  static WidgetDef *Inline(const char *name, const char *class_name) {
    return Widget(WIDGET_DEF, name, class_name);
  }
  static WidgetDef *Automatic(const char *name, const char *class_name) {
    return Widget(AUTO_CREATED_DEF, name, class_name);
  }
  static WidgetDef *TopLevel(WidgetDef *widget) {
    if (top_level_objects == nullptr) {
      top_level_objects = ModelList();
    }
    ModelAppend(top_level_objects, widget);
    return widget;
  }
  static WidgetRef *Reference(const char *name, std::int32_t managed) {
    auto *reference = ModelNew<WidgetRef>(WIDGET_REF);
    reference->name = name;
    reference->managed = managed;
    return reference;
  }

  static List Items(std::initializer_list<KindRec *> items) {
    List list = ModelList();
    for (KindRec *item : items) {
      ModelAppend(list, item);
    }
    return list;
  }
  // A list record; of a ..._LIST_NAME kind it refers to the list.
  static UnionList *Listed(std::int32_t kind, List items) {
    auto *list = ModelNew<UnionList>(kind);
    list->value = items;
    return list;
  }

  static IntegerValue *Integer(std::int32_t number) {
    auto *value = ModelNew<IntegerValue>(INTEGER_NUMBER);
    value->value = number;
    return value;
  }
  static ColorValue *Color(const char *name) {
    auto *value = ModelNew<ColorValue>(COLOR);
    value->value = name;
    value->fallback = NIL;
    return value;
  }
  static NamedSetting *Setting(std::int32_t kind, const char *name, KindRec *value,
                               bool predefined) {
    auto *setting = ModelNew<NamedSetting>(kind);
    setting->name = name;
    setting->value = value;
    setting->predefined = predefined;
    return setting;
  }
  static ArgumentInvoke *Argument(const char *name, KindRec *value, bool predefined = true) {
    return Setting(ARGUMENT, name, value, predefined);
  }
  static ProcedureName *Procedure(const char *name, std::int32_t type, std::int32_t usage) {
    auto *procedure = ModelNew<ProcedureName>(PROCEDURE_NAME);
    procedure->name = name;
    procedure->type = type;
    procedure->usage = usage;
    return procedure;
  }
  static ProcedureInvoke *Invoke(const char *name, KindRec *param = nullptr) {
    auto *invocation = ModelNew<ProcedureInvoke>(PROCEDURE_INVOKE);
    invocation->name = name;
    invocation->proc = Procedure(name, param == nullptr ? NIL : ANY, CALLBACK_PROC);
    invocation->param = param == nullptr ? ModelNew<KindRec>(NIL) : param;
    return invocation;
  }
  static CallbackValue *Callback(const char *reason, std::initializer_list<KindRec *> invocations) {
    auto *callback = ModelNew<CallbackValue>(CALLBACK);
    callback->name = reason;
    callback->value = Items(invocations);
    return callback;
  }
  static ReasonName *Reason(const char *name, bool predefined) {
    ReasonName *reason = Setting(REASON_NAME, name, nullptr, predefined);
    EXPECT_TRUE(SymbolAdd(ModelBinding(predefined ? REASON_NAME : REASON_VALUE, name, reason)));
    return reason;
  }

  // Give a widget its lists, written where they are used.
  static void Arguments(WidgetDef *widget, std::initializer_list<KindRec *> items) {
    ModelAppend(widget->args, Listed(ARGUMENTS_LIST, Items(items)));
  }
  static void Callbacks(WidgetDef *widget, std::initializer_list<KindRec *> items) {
    ModelAppend(widget->cbs, Listed(CALLBACKS_LIST, Items(items)));
  }
  static void Controls(WidgetDef *widget, std::initializer_list<KindRec *> items) {
    ModelAppend(widget->ctls, Listed(CONTROLS_LIST, Items(items)));
  }

  // -- Results ---------------------------------------------------------------------------------

  static std::vector<void *> Contents(const FlatList &list) {
    std::vector<void *> contents;
    for (const ListItem *node = ListFirstNode(list.get()); node != nullptr; node = node->next) {
      contents.push_back(node->data);
    }
    return contents;
  }
  // The names of a flattened list of named records, each with a blank behind it.
  static std::string Names(const FlatList &list) {
    std::string names;
    for (void *item : Contents(list)) {
      names += static_cast<SimpleObjectRec *>(static_cast<KindRec *>(item))->name;
      names += ' ';
    }
    return names;
  }
  // What write(file) writes.
  template <typename Write> static std::string Written(Write write) {
    char *text = nullptr;
    std::size_t size = 0;
    std::FILE *file = open_memstream(&text, &size);
    write(file);
    std::fclose(file);
    std::string result(text, size);
    std::free(text);
    return result;
  }
  // What act() prints on standard error.
  template <typename Act> static std::string Reported(Act act) {
    testing::internal::CaptureStderr();
    act();
    return testing::internal::GetCapturedStderr();
  }
};

#endif
