#ifndef KIVUXL_WIDGETUTILS_H
#define KIVUXL_WIDGETUTILS_H

// Questions about the widget tree: what a widget's arguments, callbacks and children are once
// every reference has been opened, which shell it lives in, how large things are, and how a UIL
// name becomes an Ada identifier.  Nothing here writes output.
//
// The flattening functions return a new list, or one of the model that is flat as it is; a FlatList
// destroys the first and spares the second.  The items belong to the model.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "uiltoada.h"

// Holds a flattened list and destroys it at the end of its scope, unless it is the model's, which
// has a note on it.  A list that is added to loses its note, so none may be held meanwhile.
struct ListDestroyer {
  void operator()(List list) const {
    if (list->note == 0) {
      ListDestroy(list);
    }
  }
};
using FlatList = std::unique_ptr<ListHeader, ListDestroyer>;

// A list may name another one twice, and that one again, so that a short module opens into more
// items than any memory holds.  Opening into more than this for one widget, each procedure of a
// callback counted, ends the run with status 1.
constexpr std::uint32_t kMaxFlatItems = 2000000;

// Null gives an empty list, which may be null.  In the controls, references are resolved; one that
// cannot be stays in the list as WIDGET_REF.
List WidgetFlatArgumentsList(const WidgetDef *widget);
List WidgetFlatCallbacksList(const WidgetDef *widget);
List WidgetFlatControlsList(const WidgetDef *widget);

// Says that no list of the model will become longer, so that what one opens into may be kept.
void WidgetListsAreComplete();

// The definition that a reference stands for; a copy of it, made once for each reference, when only
// one of the two is unmanaged.  Null, after an immediate message that is given once for each name,
// when the name is not defined or is no widget's.
const WidgetDef *WidgetResolve(WidgetRef *reference);

bool WidgetChildrenFirst(const WidgetDef *widget);
bool WidgetChildrenAreGadgets(const WidgetDef *widget);
bool ReasonIsCreateCallback(const char *reason);

// Whether the definition has been given; a forward reference alone is bound to an empty one.
bool WidgetIsDefined(const WidgetDef *widget);

// The definition that an item of a flattened controls list stands for: the item itself, or what a
// resolved reference copies.  Two items of one definition share it.
const WidgetDef *WidgetOrigin(const WidgetDef *widget);

// What the pass before the writers knows of a place in the trees, a widget or a list.
struct TreePlace {
  std::int32_t controls; // below it, by paths
  std::int16_t depth;    // levels of controls below it
  enum : std::uint8_t { kNew, kOpen, kWalked } state;
};

// What has been found out about a definition, shared by all that refer to it.  As long as a line of
// the processor's memory, for every walk over the widgets comes here.
struct WidgetNotes {
  List flat[3];           // its lists opened, as far as the model has them like that
  const char *ada_name;   // null while not asked for
  WidgetEmit *emit;       // AdaWidgetProcs' record of its name, of the table with that number
  std::int64_t hierarchy; // size of the subtree, 0 while not counted
  TreePlace place;
  std::uint32_t emit_table;
  bool flat_known[3]; // whether `flat` has the list
};
static_assert(sizeof(WidgetNotes) == 64);

WidgetNotes *WidgetNotesOf(const WidgetDef *widget);

// The shell class for a top-level widget (a constant).
const char *DeduceShellForTopLevel(const WidgetDef *widget);
void AppendShellsForTopLevel();

// Constants of the tables, or null.
const char *NameOfGetChildFunction(const char *class_name);
const char *NameOfGetChildArgument(const char *child_name);

int WidgetCountArguments(List arguments);
int WidgetCountChildren(List controls);
int WidgetCountCallbacks(List callbacks);

// The widget plus all its descendants, each as often as it is referred to; a reference that cannot
// be resolved counts one.  Remembered per definition; saturates at the largest value, which is also
// what a ring gives.
std::int64_t WidgetCountHierarchy(const WidgetDef *widget);

bool WidgetsAreUserDefined();
bool AtLeastOneCallback();
void DropUnusedProcedures();

// The Ada identifier made from a UIL name; may be empty.
std::string LegalName(std::string_view name);

// The same as a text of the model, which is the name itself where that is legal.
const char *LegalText(const char *name);

// The Ada identifier of a widget.  Remembered per definition: it is written 8 to 12 times.
const char *WidgetAdaName(const WidgetDef *widget);

void WidgetUtilsReset();

#endif
