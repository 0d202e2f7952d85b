// See AdaWidgetProcs.h.  Each small writer holds one template; the public functions put them
// together in the order of the generated text.  A widget may be reached along several ways, as
// copies of its definition: what has been written is kept by name in `widget_table`.
//
// Client data numbers are given by counting invocations as they are met.  Each traversal counts
// all of them, also those that it writes nothing for.

#include "AdaWidgetProcs.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <string>
#include <unordered_set>
#include <vector>

#include "AdaArgument.h"
#include "AdaCallbacks.h"
#include "AdaValues.h"
#include "Alloc.h"
#include "Emit.h"
#include "Error.h"
#include "Filename.h"
#include "Model.h"
#include "Options.h"
#include "WidgetUtils.h"

HashTable widget_table = nullptr;
const char *child_self_or_parent = "self";
const WidgetDef *current_top_level = nullptr;

static std::uint32_t widget_table_number = 0; // of the run's tables, from 1

constexpr unsigned kBuckets = 511;

// "Xm" of a class, function or constant and "XmN" of a resource, which the Ada names leave out.
constexpr std::size_t kToolkitPrefix = 2;
constexpr std::size_t kResourcePrefix = 3;

static const char *LessPrefix(const char *name, std::size_t length) {
  return name + std::min(length, std::strlen(name));
}

// Sets `child_self_or_parent` for one scope; `expression` must outlive it.
struct ExpressionScope {
  const char *saved = child_self_or_parent;
  explicit ExpressionScope(const char *expression) { child_self_or_parent = expression; }
  ~ExpressionScope() { child_self_or_parent = saved; }
  ExpressionScope(const ExpressionScope &) = delete;
  ExpressionScope &operator=(const ExpressionScope &) = delete;
};

// -- Controls ----------------------------------------------------------------------------------

static bool IsAutomatic(const KindRec *control) { return control->kind == AUTO_CREATED_DEF; }

// A child that the generated code creates, hence with subprograms of its own.
static bool IsCreated(const KindRec *control) {
  return control->kind == WIDGET_DEF || control->kind == WIDGET_NAME;
}

template <typename Visit> static void ForEachControl(List controls, Visit visit) {
  for (const ListItem *node = ListFirstNode(controls); node != nullptr; node = node->next) {
    visit(static_cast<const KindRec *>(node->data));
  }
}

template <typename Visit> static void ForEachCreatedChild(List controls, Visit visit) {
  ForEachControl(controls, [&](const KindRec *control) {
    if (IsCreated(control)) {
      visit(static_cast<const WidgetDef *>(control));
    }
  });
}

template <typename Visit> static void ForEachChild(List controls, Visit visit) {
  ForEachControl(controls, [&](const KindRec *control) {
    if (IsCreated(control) || IsAutomatic(control)) {
      visit(static_cast<const WidgetDef *>(control));
    }
  });
}

static void ReportNoWidget() {
  ErrorMessage(kImmediate, "Internal error: non-widget object in controls list");
}

// -- What has been written ---------------------------------------------------------------------

bool WidgetTableInit() {
  ++widget_table_number;
  widget_table = case_sensitive ? HashCreate(kBuckets, CaseSensitiveKeyFunc, SimpleHashFunc,
                                             CaseSensitiveCompareFunc, nullptr)
                                : HashCreate(kBuckets, CaseInsensitiveKeyFunc, SimpleHashFunc,
                                             CaseInsensitiveCompareFunc, nullptr);
  return widget_table != nullptr;
}

static WidgetEmit *FindEmitRecord(const WidgetDef *widget) {
  auto *record = static_cast<WidgetEmit *>(ModelFind(widget_table, widget->name));
  if (record == nullptr) {
    record = ModelNew<WidgetEmit>(widget->kind);
    record->name = widget->name;
    if (!HashAdd(widget_table, record)) {
      OutOfMemory();
    }
  }
  return record;
}

// Asked for nine times for each widget.
WidgetEmit *WidgetEmitRecord(const WidgetDef *widget) {
  WidgetNotes *notes = WidgetNotesOf(widget);
  if (notes->emit_table != widget_table_number) {
    notes->emit = FindEmitRecord(widget);
    notes->emit_table = widget_table_number;
  }
  return notes->emit;
}

// Whether this is the first time for the widget and the flag, which is set.
static bool WidgetEmitOnce(const WidgetDef *widget, bool WidgetEmit::*flag) {
  WidgetEmit *record = WidgetEmitRecord(widget);
  const bool first = !(record->*flag);
  record->*flag = true;
  return first;
}

// -- Arguments in phases -----------------------------------------------------------------------

// The phase is asked for once for each argument, since asking may report.
struct PhasedArgument {
  const ArgumentInvoke *argument;
  DeferUntil phase;
  int slots; // two for one with a pair
};
using PhasedArguments = std::vector<PhasedArgument>;

constexpr unsigned PhaseBit(DeferUntil phase) { return 1U << phase; }

constexpr unsigned kBefore = PhaseBit(SETARG_BEFORE);
constexpr unsigned kAfter = PhaseBit(SETARG_AFTER);
constexpr unsigned kSecond = PhaseBit(SETARG_SECOND);

// The arguments that one call sets: those of some phases.
struct ArgumentBlock {
  const PhasedArguments &all;
  unsigned phases;
};

static PhasedArguments WidgetPhasedArguments(List arguments) {
  PhasedArguments phased;
  phased.reserve(ListLength(arguments));
  for (const ListItem *node = ListFirstNode(arguments); node != nullptr; node = node->next) {
    const auto *argument = static_cast<const ArgumentInvoke *>(node->data);
    phased.push_back({argument, ValueDeferSetting(argument->value),
                      argument_paired_arg(argument->name) == nullptr ? 1 : 2});
  }
  return phased;
}

// Calls visit(argument, n) for each argument of the block with its first slot; returns how many
// slots the block takes.
template <typename Visit> static int BlockForEach(const ArgumentBlock &block, Visit visit) {
  int slots = 0;
  for (const PhasedArgument &entry : block.all) {
    if ((PhaseBit(entry.phase) & block.phases) != 0) {
      visit(entry.argument, slots + 1);
      slots += entry.slots;
    }
  }
  return slots;
}

static int BlockSlots(const ArgumentBlock &block) {
  return BlockForEach(block, [](const ArgumentInvoke *, int) {});
}

static void BlockDeclareAndSet(const ArgumentBlock &block, std::FILE *file) {
  BlockForEach(block, [file](const ArgumentInvoke *argument, int n) {
    ValueDeclareArgument(argument->value, argument, file, n);
  });
  Emit(file, "    begin\n"_ada);
  BlockForEach(block, [file](const ArgumentInvoke *argument, int n) {
    ValueSetArgument(argument->value, argument, file, n);
  });
}

static void BlockCleanup(const ArgumentBlock &block, std::FILE *file) {
  BlockForEach(block, [file](const ArgumentInvoke *argument, int n) {
    ValueCleanup(argument->value, file, n);
  });
}

// -- Templates ---------------------------------------------------------------------------------

static void WidgetCreateProcDecl(const WidgetDef *widget, std::FILE *file, bool is_body) {
  Emit(file,
       "  function kivu_create_%s( parent : in xtr5.widget )\n"
       "    return xtr5.widgetlist_ptr%s\n"_ada,
       WidgetAdaName(widget), is_body ? " is" : ";");
  if (is_body) {
    Emit(file, "    self : xtr5.widget;\n"_ada);
  }
}

static void WidgetCreateProcEnd(const WidgetDef *widget, std::FILE *file) {
  Emit(file, "  end kivu_create_%s;\n"_ada, WidgetAdaName(widget));
}

static void WidgetPostProcDecl(const WidgetDef *widget, std::FILE *file, bool is_body) {
  Emit(file,
       "  procedure kivu_post_%s( parent : in xtr5.widget;\n"
       "      widgets : in xtr5.widgetlist_ptr;\n"
       "      index : in xtr5.int )%s\n"_ada,
       WidgetAdaName(widget), is_body ? " is" : ";");
}

static void WidgetPostProcEnd(const WidgetDef *widget, std::FILE *file) {
  Emit(file,
       "    null;\n"
       "  end kivu_post_%s;\n"_ada,
       WidgetAdaName(widget));
}

static void WidgetCreateCtlsDecl(std::FILE *file, int children) {
  Emit(file,
       "    child_lists : array( 1 .. %d ) of xtr5.widgetlist_ptr;\n"
       "    child_count : integer := 1;\n"_ada,
       children);
}

static void WidgetCreateArgsDecl(std::FILE *file, int slots) {
  Emit(file, "    args : xtr5.arglist( 1 .. %d );\n"_ada, slots);
}

static void WidgetEmitCountDescendants(std::FILE *file) {
  Emit(file, "    for child_index in child_lists'range loop\n"
             "      child_count := child_count +\n"
             "                     child_lists( child_index )'length;\n"
             "    end loop;\n"_ada);
}

static void WidgetDeclareChildList(std::FILE *file) {
  Emit(file, "    declare\n"
             "      children : xtr5.widgetlist( 1 .. child_count );\n"_ada);
}

static void WidgetMergeChildLists(std::FILE *file) {
  Emit(file, "    begin\n"
             "      child_count := children'first;\n"
             "      children( child_count ) := self;\n"
             "      for child_index in child_lists'range loop\n"
             "        children( child_count + 1 ..\n"
             "                  child_count +\n"
             "                  child_lists( child_index )'length ) :=\n"
             "          child_lists( child_index ).all;\n"
             "        child_count := child_count +\n"
             "                       child_lists( child_index )'length;\n"
             "        freewidgetlist( child_lists( child_index ) );\n"
             "      end loop;\n"_ada);
}

static void WidgetTrivialChildList(std::FILE *file) {
  Emit(file, "    declare\n"
             "      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );\n"
             "    begin\n"_ada);
}

static void WidgetReturnChildList(const WidgetDef *widget, std::FILE *file) {
  if (widgets_record_suffix.has_value() && current_top_level != nullptr &&
      current_top_level->name != nullptr) {
    Emit(file, "      %s.%s := self;\n"_ada, WidgetAdaName(current_top_level),
         WidgetAdaName(widget));
  }
  Emit(file, "      return new xtr5.widgetlist'( children );\n"
             "    end;\n"_ada);
}

static void WidgetCallXtSetvalues(std::FILE *file, const char *expression, int slots) {
  Emit(file, "    XtR5.SetValues( %s, args, %d );\n"_ada, expression, slots);
}

// A child of a widget that needs its children first is made by the widget's own parent.
static void WidgetChildCreate(const WidgetDef *child, std::FILE *file, int ordinal, bool managed,
                              bool children_first) {
  Emit(file, "    child_lists( %d ) := kivu_create_%s( %s );\n"_ada, ordinal, WidgetAdaName(child),
       children_first ? "parent" : "self");
  if (managed) {
    Emit(file, "    xtr5.managechild( child_lists( %d )( 1 ) );\n"_ada, ordinal);
  }
}

static void WidgetChildPostProc(const WidgetDef *child, std::FILE *file, int offset) {
  Emit(file, "    kivu_post_%s( widgets( index ), widgets, index + %d );\n"_ada,
       WidgetAdaName(child), offset);
}

static void WidgetSetSubmenuArg(std::FILE *file, int slot, int ordinal) {
  Emit(file,
       "    xtr5.setarg( args( %d ),\n"
       "                 xmdef.nsubmenuid,\n"
       "                 child_lists( %d )( 1 ) );\n"_ada,
       slot, ordinal);
}

static void WidgetSetTopLevel(std::FILE *file) {
  Emit(file, "    if current_top_level = xtr5.xtnull then      current_top_level := self;\n"
             "    end if;\n"_ada);
}

static void WidgetCallMotifClass(const WidgetDef *widget, std::FILE *file, int slots) {
  Emit(file,
       "    self := Xm1_2_2.Create%s%s(\n"
       "              parent,\n"
       "              \"%s\",\n"
       "              args,\n"
       "              %d );\n"_ada,
       LessPrefix(widget->type->name, kToolkitPrefix), widget->gadget == GADGET ? "Gadget" : "",
       widget->name, slots);
}

// The creation function of a user-defined widget is a generic formal or stands in the callbacks
// package.
static void WidgetCallUserCreate(const WidgetDef *widget, std::FILE *file, int slots) {
  std::string function = LegalName(widget->type->name);
  if (forbid_generic_widgets) {
    function = PackageName(package_base, cb_package_suffix) + "." + function;
  }
  Emit(file,
       "    self := %s(\n"
       "              parent,\n"
       "              \"%s\",\n"
       "              args,\n"
       "              %d );\n"_ada,
       function.c_str(), widget->name, slots);
}

static void WidgetCallMotifCreate(const WidgetDef *widget, std::FILE *file, int slots) {
  const std::int32_t kind = widget->type == nullptr ? NIL : widget->type->kind;
  if (kind == WIDGET_CLASS) {
    WidgetCallMotifClass(widget, file, slots);
  } else if (kind == PROCEDURE_NAME) {
    WidgetCallUserCreate(widget, file, slots);
  } else {
    ErrorFormat(kImmediate, "Internal error: Widget %s of unknown class", widget->name);
  }
}

// -- Callbacks ---------------------------------------------------------------------------------

// The reason that the callback is for, or null when the name means none.
static const ReasonName *CallbackReason(const CallbackValue *callback) {
  const SimpleObjectRec *entry = SymbolFind(callback->name);
  if (entry == nullptr || (entry->kind != REASON_NAME && entry->kind != REASON_VALUE)) {
    return nullptr;
  }
  return static_cast<const ReasonName *>(static_cast<const ReasonConstant *>(entry)->value.value);
}

static bool IsPredefined(const ReasonName *reason) {
  return reason != nullptr && reason->predefined;
}

static bool HasTag(const ProcedureInvoke *invocation) {
  return invocation->param != nullptr && invocation->param->kind != NIL &&
         invocation->param->kind != NONE;
}

static std::string PredefinedReasonName(const char *reason) {
  return std::string("Xmdef.N") + LessPrefix(reason, kResourcePrefix);
}

static void WidgetAddCallback(const char *expression, const CallbackValue *callback,
                              const ReasonName *reason, std::FILE *file, int n) {
  const char *base = package_base.c_str();
  if (ReasonIsCreateCallback(callback->name)) {
    Emit(file, "    %s_cb_proc( %s, %d, create_callback_struct'address );\n"_ada, base, expression,
         n);
  } else if (IsPredefined(reason)) {
    Emit(file, "    xtr5.addcallback( %s, %s, %s_cb_proc'address, %d );\n"_ada, expression,
         PredefinedReasonName(callback->name).c_str(), base, n);
  } else {
    Emit(file, "    xtr5.addcallback( %s, arg_%d, %s_cb_proc'address, %d );\n"_ada, expression, n,
         base, n);
  }
}

// Calls visit(callback, reason, invocation, n) for each invocation with its client data number.
template <typename Visit>
static void ForEachInvocation(List callbacks, unsigned *counter, Visit visit) {
  for (const ListItem *node = ListFirstNode(callbacks); node != nullptr; node = node->next) {
    const auto *callback = static_cast<const CallbackValue *>(node->data);
    const ReasonName *reason = CallbackReason(callback);
    for (const ListItem *item = ListFirstNode(callback->value); item != nullptr;
         item = item->next) {
      ++*counter;
      visit(callback, reason, static_cast<const ProcedureInvoke *>(item->data),
            static_cast<int>(*counter));
    }
  }
}

// Registers the callbacks of the creation phase, or those of the post phase.
static void WidgetClientDataInit(const char *expression, List callbacks, std::FILE *file,
                                 unsigned *counter, bool post) {
  ForEachInvocation(callbacks, counter,
                    [&](const CallbackValue *callback, const ReasonName *reason,
                        const ProcedureInvoke *invocation, int n) {
                      const bool tagged = HasTag(invocation);
                      const bool is_second =
                          tagged && ValueDeferSetting(invocation->param) == SETARG_SECOND;
                      if (is_second != post) {
                        return;
                      }
                      if (tagged) {
                        ValueSetArgument(invocation->param, nullptr, file, n);
                      }
                      WidgetAddCallback(expression, callback, reason, file, n);
                    });
}

// -- Automatically created children ------------------------------------------------------------

static void WidgetFetchAutoChild(const WidgetDef *widget, const WidgetDef *child, std::FILE *file,
                                 const char *target) {
  const char *function =
      widget->type == nullptr ? nullptr : NameOfGetChildFunction(widget->type->name);
  const char *constant = NameOfGetChildArgument(child->name);
  if (function != nullptr && constant != nullptr) {
    Emit(file,
         "    %s :=\n"
         "      Xm1_2_2.%s( self, Xm1_2_2.%s );\n"_ada,
         target, LessPrefix(function, kToolkitPrefix), LessPrefix(constant, kToolkitPrefix));
  } else {
    Emit(file,
         "    %s :=\n"
         "      XtR5.NameToWidget( self, \"*%s\" );\n"_ada,
         target, child->name);
  }
}

static void WidgetSetAutoChild(List arguments, std::FILE *file, const char *target, bool post) {
  const PhasedArguments phased = WidgetPhasedArguments(arguments);
  const ArgumentBlock block = {phased, post ? kSecond : kBefore | kAfter};
  Emit(file, "    declare\n"_ada);
  WidgetCreateArgsDecl(file, WidgetCountArguments(arguments));
  BlockDeclareAndSet(block, file);
  WidgetCallXtSetvalues(file, target, BlockSlots(block));
  BlockCleanup(block, file);
  Emit(file, "      null;\n"
             "    end;\n"_ada);
}

static void WidgetAutoCreatedSet(const WidgetDef *widget, const WidgetDef *child, std::FILE *file,
                                 int ordinal, unsigned *counter, bool post) {
  const FlatList arguments(WidgetFlatArgumentsList(child));
  const FlatList callbacks(WidgetFlatCallbacksList(child));
  const bool has_arguments = WidgetCountArguments(arguments.get()) > 0;
  const bool has_callbacks = WidgetCountCallbacks(callbacks.get()) > 0;
  std::string target = "auto_child";
  if (!post) {
    Emit(file, "    child_lists( %d ) := new xtr5.widgetlist( 1 .. 1 );\n"_ada, ordinal);
    target = "child_lists( " + std::to_string(ordinal) + " )( 1 )";
  }
  const ExpressionScope scope(WidgetChildrenAreGadgets(widget) ? "self" : target.c_str());
  WidgetFetchAutoChild(widget, child, file, target.c_str());
  if (!has_arguments && !has_callbacks) {
    return;
  }
  Emit(file, "    if %s /= XtR5.XtNULL then\n"_ada, target.c_str());
  if (has_callbacks) {
    WidgetClientDataInit(target.c_str(), callbacks.get(), file, counter, post);
  }
  if (has_arguments) {
    WidgetSetAutoChild(arguments.get(), file, target.c_str(), post);
  }
  Emit(file, "      null;\n"
             "    end if;\n"_ada);
}

// -- Creation functions ------------------------------------------------------------------------

static void WidgetCallCreateProc(const WidgetDef *widget, const KindRec *control, std::FILE *file,
                                 int ordinal, bool children_first, unsigned *counter) {
  if (IsCreated(control)) {
    const auto *child = static_cast<const WidgetDef *>(control);
    WidgetChildCreate(child, file, ordinal, !children_first && child->managed != UNMANAGED,
                      children_first);
  } else if (IsAutomatic(control)) {
    WidgetAutoCreatedSet(widget, static_cast<const WidgetDef *>(control), file, ordinal, counter,
                         false);
  } else {
    ReportNoWidget();
  }
}

static void WidgetCallCreateProcs(const WidgetDef *widget, List controls, std::FILE *file,
                                  bool children_first, unsigned *counter) {
  int ordinal = 0;
  ForEachControl(controls, [&](const KindRec *control) {
    WidgetCallCreateProc(widget, control, file, ++ordinal, children_first, counter);
  });
}

// The create call with the arguments that it takes.
static void WidgetCreateSelf(const WidgetDef *widget, const PhasedArguments &arguments,
                             std::FILE *file, bool with_submenu) {
  const ArgumentBlock block = {arguments, kBefore};
  int slots = BlockSlots(block);
  const bool has_block = slots > 0;
  if (has_block) {
    Emit(file, "    declare\n"_ada);
    BlockDeclareAndSet(block, file);
  }
  if (with_submenu) {
    WidgetSetSubmenuArg(file, ++slots, 1);
  }
  WidgetCallMotifCreate(widget, file, slots);
  WidgetSetTopLevel(file);
  if (has_block) {
    BlockCleanup(block, file);
    Emit(file, "    end;\n"_ada);
  }
}

// A block of its own that sets the arguments of those phases, if there are any.
static void WidgetSetArguments(const PhasedArguments &arguments, unsigned phases, std::FILE *file,
                               const char *expression) {
  const ArgumentBlock block = {arguments, phases};
  const int slots = BlockSlots(block);
  if (slots == 0) {
    return;
  }
  Emit(file, "    declare\n"_ada);
  BlockDeclareAndSet(block, file);
  WidgetCallXtSetvalues(file, expression, slots);
  BlockCleanup(block, file);
  Emit(file, "    end;\n"_ada);
}

static void WidgetReturnSubtree(const WidgetDef *widget, std::FILE *file, bool has_children) {
  if (has_children) {
    WidgetEmitCountDescendants(file);
    WidgetDeclareChildList(file);
    WidgetMergeChildLists(file);
  } else {
    WidgetTrivialChildList(file);
  }
  WidgetReturnChildList(widget, file);
}

// The function of this widget alone.  Not inlined: its frame would count for each level of
// controls.
[[gnu::noinline]] static void WidgetWriteOneCreateProc(const WidgetDef *widget, List controls,
                                                       std::FILE *file, unsigned *counter) {
  const FlatList arguments(WidgetFlatArgumentsList(widget));
  const FlatList callbacks(WidgetFlatCallbacksList(widget));
  const bool children_first = WidgetChildrenFirst(widget);
  const int children = WidgetCountChildren(controls);
  WidgetCreateProcDecl(widget, file, true);
  WidgetCreateCtlsDecl(file, children);
  WidgetCreateArgsDecl(file, WidgetCountArguments(arguments.get()) + (children_first ? 1 : 0));
  Emit(file, "  begin\n"_ada);
  if (children_first) {
    WidgetCallCreateProcs(widget, controls, file, true, counter);
  }
  const PhasedArguments phased = WidgetPhasedArguments(arguments.get());
  WidgetCreateSelf(widget, phased, file, children > 0 && children_first);
  WidgetSetArguments(phased, kAfter, file, "self");
  WidgetClientDataInit("self", callbacks.get(), file, counter, false);
  if (!children_first) {
    WidgetCallCreateProcs(widget, controls, file, false, counter);
  }
  WidgetReturnSubtree(widget, file, children > 0);
  WidgetCreateProcEnd(widget, file);
}

// The expression that a widget's own values are converted against: a gadget has no window.
static const char *SelfOrParent(const WidgetDef *widget) {
  return widget->gadget == GADGET ? "parent" : "self";
}

void WidgetWriteCreateProc(const WidgetDef *widget, std::FILE *file, unsigned *counter) {
  if (!WidgetEmitOnce(widget, &WidgetEmit::body)) {
    return;
  }
  const FlatList controls(WidgetFlatControlsList(widget));
  const auto write_children = [&] {
    ForEachCreatedChild(controls.get(), [&](const WidgetDef *child) {
      WidgetWriteCreateProc(child, file, counter);
    });
  };
  const bool children_first = WidgetChildrenFirst(widget);
  if (children_first) {
    write_children();
  }
  const ExpressionScope scope(SelfOrParent(widget));
  WidgetWriteOneCreateProc(widget, controls.get(), file, counter);
  if (!children_first) {
    write_children();
  }
}

// -- Post procedures ---------------------------------------------------------------------------

static void WidgetCallPostProc(const WidgetDef *widget, const KindRec *control, std::FILE *file,
                               int offset, unsigned *counter) {
  if (IsCreated(control)) {
    WidgetChildPostProc(static_cast<const WidgetDef *>(control), file, offset);
  } else if (IsAutomatic(control)) {
    WidgetAutoCreatedSet(widget, static_cast<const WidgetDef *>(control), file, offset, counter,
                         true);
  } else {
    ReportNoWidget();
  }
}

// How many places of the widget list the control takes; a reference to nothing takes one.
static std::int64_t ControlSize(const KindRec *control) {
  return IsCreated(control) || IsAutomatic(control)
             ? WidgetCountHierarchy(static_cast<const WidgetDef *>(control))
             : 1;
}

static int NextOffset(int offset, std::int64_t size) {
  constexpr int largest = std::numeric_limits<int>::max();
  return size > largest - offset ? largest : offset + static_cast<int>(size);
}

// A widget that needs its children first gives them their ordinal, any other one their place in
// the widget list.
static void WidgetCallPostProcs(const WidgetDef *widget, List controls, std::FILE *file,
                                bool children_first, unsigned *counter) {
  int offset = 1;
  ForEachControl(controls, [&](const KindRec *control) {
    WidgetCallPostProc(widget, control, file, offset, counter);
    offset = NextOffset(offset, children_first ? 1 : ControlSize(control));
  });
}

// The procedure of this widget alone.  Not inlined, as the function above is not.
[[gnu::noinline]] static void WidgetWriteOnePostProc(const WidgetDef *widget, List controls,
                                                     std::FILE *file, unsigned *counter) {
  const FlatList arguments(WidgetFlatArgumentsList(widget));
  const FlatList callbacks(WidgetFlatCallbacksList(widget));
  const bool children_first = WidgetChildrenFirst(widget);
  WidgetPostProcDecl(widget, file, true);
  WidgetCreateArgsDecl(file, WidgetCountArguments(arguments.get()) + (children_first ? 1 : 0));
  Emit(file, "  begin\n"_ada);
  if (children_first) {
    WidgetCallPostProcs(widget, controls, file, true, counter);
  }
  WidgetSetArguments(WidgetPhasedArguments(arguments.get()), kSecond, file, "widgets( index )");
  WidgetClientDataInit("widgets( index )", callbacks.get(), file, counter, true);
  if (!children_first) {
    WidgetCallPostProcs(widget, controls, file, false, counter);
  }
  WidgetPostProcEnd(widget, file);
}

void WidgetWritePostProc(const WidgetDef *widget, std::FILE *file, unsigned *counter) {
  if (!WidgetEmitOnce(widget, &WidgetEmit::pstb)) {
    return;
  }
  const FlatList controls(WidgetFlatControlsList(widget));
  const auto write_children = [&] {
    ForEachCreatedChild(controls.get(),
                        [&](const WidgetDef *child) { WidgetWritePostProc(child, file, counter); });
  };
  const bool children_first = WidgetChildrenFirst(widget);
  if (children_first) {
    write_children();
  }
  const ExpressionScope scope(SelfOrParent(widget));
  WidgetWriteOnePostProc(widget, controls.get(), file, counter);
  if (!children_first) {
    write_children();
  }
}

// -- Forward declarations ----------------------------------------------------------------------

void WidgetDeclareCreateProc(const WidgetDef *widget, std::FILE *file) {
  if (!WidgetEmitOnce(widget, &WidgetEmit::decl)) {
    return;
  }
  WidgetCreateProcDecl(widget, file, false);
  const FlatList controls(WidgetFlatControlsList(widget));
  ForEachCreatedChild(controls.get(),
                      [&](const WidgetDef *child) { WidgetDeclareCreateProc(child, file); });
}

void WidgetDeclarePostProc(const WidgetDef *widget, std::FILE *file) {
  if (!WidgetEmitOnce(widget, &WidgetEmit::post)) {
    return;
  }
  WidgetPostProcDecl(widget, file, false);
  const FlatList controls(WidgetFlatControlsList(widget));
  ForEachCreatedChild(controls.get(),
                      [&](const WidgetDef *child) { WidgetDeclarePostProc(child, file); });
}

// -- Client data -------------------------------------------------------------------------------

static void DeclareCallbackData(List callbacks, std::FILE *file, unsigned *counter) {
  ForEachInvocation(callbacks, counter,
                    [&](const CallbackValue *callback, const ReasonName *reason,
                        const ProcedureInvoke *invocation, int n) {
                      if (reason == nullptr) {
                        ErrorFormat(kImmediate, "Callback reason %s not defined", callback->name);
                      } else if (HasTag(invocation) || !reason->predefined) {
                        ValueDeclareArgument(invocation->param,
                                             reason->predefined ? nullptr : reason, file, n);
                      }
                    });
}

static void WriteCallbackArms(List callbacks, std::FILE *file, unsigned *counter) {
  ForEachInvocation(
      callbacks, counter,
      [&](const CallbackValue *, const ReasonName *, const ProcedureInvoke *invocation, int n) {
        CallbackWrapperProcCase(invocation, file, static_cast<unsigned>(n));
      });
}

// One traversal of all callbacks below a widget, in the order of the client data numbers.
struct CallbackWalk {
  bool WidgetEmit::*flag; // set for the widgets that have been visited
  void (*write)(List callbacks, std::FILE *file, unsigned *counter);
};

static constexpr CallbackWalk kDeclareWalk = {&WidgetEmit::data, DeclareCallbackData};
static constexpr CallbackWalk kCasesWalk = {&WidgetEmit::cbs, WriteCallbackArms};

static void WidgetWalkCallbacks(const WidgetDef *widget, const CallbackWalk &walk, std::FILE *file,
                                unsigned *counter) {
  if (!IsAutomatic(widget) && !WidgetEmitOnce(widget, walk.flag)) {
    return;
  }
  const FlatList callbacks(WidgetFlatCallbacksList(widget));
  const FlatList controls(WidgetFlatControlsList(widget));
  const auto walk_children = [&] {
    ForEachChild(controls.get(),
                 [&](const WidgetDef *child) { WidgetWalkCallbacks(child, walk, file, counter); });
  };
  const bool children_first = WidgetChildrenFirst(widget);
  if (children_first) {
    walk_children();
  }
  walk.write(callbacks.get(), file, counter);
  if (!children_first) {
    walk_children();
  }
}

void WidgetDeclareClientData(const WidgetDef *widget, std::FILE *file, unsigned *counter) {
  WidgetWalkCallbacks(widget, kDeclareWalk, file, counter);
}

void WidgetWriteCallbackCases(const WidgetDef *widget, std::FILE *file, unsigned *counter) {
  WidgetWalkCallbacks(widget, kCasesWalk, file, counter);
}

// -- Duplicate check ---------------------------------------------------------------------------

static void ClearEmitRecords(const WidgetDef *widget, std::unordered_set<WidgetEmit *> *visited) {
  WidgetEmit *record = WidgetEmitRecord(widget);
  if (!visited->insert(record).second) {
    return;
  }
  record->rec = nullptr;
  const FlatList controls(WidgetFlatControlsList(widget));
  ForEachCreatedChild(controls.get(),
                      [&](const WidgetDef *child) { ClearEmitRecords(child, visited); });
}

void WidgetClearEmitRecord(const WidgetDef *widget) {
  std::unordered_set<WidgetEmit *> visited;
  ClearEmitRecords(widget, &visited);
}

static bool CheckChildren(List controls) {
  for (const ListItem *node = ListFirstNode(controls); node != nullptr; node = node->next) {
    const auto *control = static_cast<const KindRec *>(node->data);
    if (IsCreated(control) && !WidgetCheckEmitRecord(static_cast<const WidgetDef *>(control))) {
      return false;
    }
  }
  return true;
}

bool WidgetCheckEmitRecord(const WidgetDef *widget) {
  WidgetEmit *record = WidgetEmitRecord(widget);
  if (record->rec == nullptr) {
    record->rec = current_top_level->name;
    const FlatList controls(WidgetFlatControlsList(widget));
    return CheckChildren(controls.get());
  }
  if (SafeStrcmp(record->rec, current_top_level->name, case_sensitive ? 1 : 0) == 0) {
    return true; // shared within the tree: what is below it has been looked at
  }
  ErrorFormat(kImmediate, "Control %s appears under both %s and %s", widget->name,
              current_top_level->name, record->rec);
  return false;
}

static bool CheckTopLevels() {
  for (const ListItem *node = ListFirstNode(top_level_objects); node != nullptr;
       node = node->next) {
    current_top_level = static_cast<const WidgetDef *>(node->data);
    if (!WidgetCheckEmitRecord(current_top_level)) {
      return false;
    }
  }
  return true;
}

bool WidgetCheckDuplicates() {
  for (const ListItem *node = ListFirstNode(top_level_objects); node != nullptr;
       node = node->next) {
    current_top_level = static_cast<const WidgetDef *>(node->data);
    WidgetClearEmitRecord(current_top_level);
  }
  const bool passed = CheckTopLevels();
  current_top_level = nullptr;
  return passed;
}

void AdaWidgetProcsReset() {
  widget_table = nullptr;
  child_self_or_parent = "self";
  current_top_level = nullptr;
}
