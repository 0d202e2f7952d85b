// See WidgetUtils.h.  A widget's lists are opened with a stack of positions instead of recursion,
// because the depth of list references is the user's; the result is made in one pass.  What a list
// opens into is counted once and noted on it, so that empty lists are passed over, too long ones
// refused before they are opened, and most lists, which name no other, used as they are.  Whatever
// compares names follows the module's case rule.

#include "WidgetUtils.h"

#include <algorithm>
#include <limits>
#include <unordered_set>
#include <vector>

#include "AdaArgument.h"
#include "Alloc.h"
#include "Ascii.h"
#include "Error.h"
#include "Filename.h"
#include "Model.h"
#include "Options.h"

// Beside the Ada interface, the only value of `interface_type` for which names are made legal.
constexpr int kInterfaceReserved = 3;

static bool lists_are_complete = false;

static bool SameName(const char *left, const char *right) {
  return SafeStrcmp(left, right, case_sensitive ? 1 : 0) == 0;
}

static bool EndsWithName(std::string_view text, std::string_view suffix) {
  return case_sensitive ? text.ends_with(suffix) : AsciiEndsWithNoCase(text, suffix);
}

// -- References --------------------------------------------------------------------------------

// Names of which it has been said that they mean no widget, folded when case does not matter.
static std::unordered_set<std::string> reported_names;

static bool IsFirstReport(const char *name) {
  std::string key = name;
  if (!case_sensitive) {
    AsciiLowerInPlace(key);
  }
  return reported_names.insert(std::move(key)).second;
}

bool WidgetIsDefined(const WidgetDef *widget) {
  return widget != nullptr && widget->attribs != nullptr;
}

const WidgetDef *WidgetOrigin(const WidgetDef *widget) {
  return widget->origin == nullptr ? widget : widget->origin;
}

// A resolved reference is written along with its definition, so it leads to the notes at once.
WidgetNotes *WidgetNotesOf(const WidgetDef *widget) {
  if (widget->notes == nullptr) {
    // The notes are the one thing that asking changes in the model.
    auto *noted = const_cast<WidgetDef *>(WidgetOrigin(widget));
    if (noted->notes == nullptr) {
      noted->notes = new (ModelAllocate(sizeof(WidgetNotes))) WidgetNotes();
    }
    const_cast<WidgetDef *>(widget)->notes = noted->notes;
  }
  return widget->notes;
}

// The definition bound to the name, or null after a message.
static WidgetDef *FindDefinition(const char *name) {
  const SimpleObjectRec *entry = SymbolFind(name);
  if (entry != nullptr && entry->kind != WIDGET_NAME && entry->kind != WIDGET_DEF) {
    if (IsFirstReport(name)) {
      ErrorFormat(kImmediate, "Object %s is not a widget", name);
    }
    return nullptr;
  }
  if (entry != nullptr && WidgetIsDefined(static_cast<const WidgetValue *>(entry)->value)) {
    return static_cast<const WidgetValue *>(entry)->value;
  }
  if (IsFirstReport(name)) {
    ErrorFormat(kImmediate, "Reference to undefined object %s", name);
  }
  return nullptr;
}

// Whether the reference asks for nothing that its definition does not say.
static bool IsPlain(const WidgetRef &reference, const WidgetDef &definition) {
  return (reference.managed == UNMANAGED) == (definition.managed == UNMANAGED);
}

const WidgetDef *WidgetResolve(WidgetRef *reference) {
  if (reference->resolved == nullptr) {
    WidgetDef *definition = FindDefinition(reference->name);
    if (definition == nullptr || IsPlain(*reference, *definition)) {
      reference->resolved = definition;
      return definition;
    }
    static_cast<void>(WidgetNotesOf(definition)); // before it is copied
    reference->resolved = ModelCopy(*definition);
    reference->resolved->managed = reference->managed;
    reference->resolved->origin = definition;
  }
  return reference->resolved;
}

// -- Flattening --------------------------------------------------------------------------------

// What tells one sort of list from the others: its place in a widget's notes, the kinds that stand
// for a list inside it, what becomes of any other item, for how many it counts, and the complaint
// when a list opens into too much.
struct FlatRules {
  std::size_t place;
  std::int32_t list_kind;
  std::int32_t list_name_kind;
  KindRec *(*keep)(KindRec *item);
  std::uint32_t (*weight)(const KindRec *item);
  const char *overflow;
};

constexpr std::uint32_t kTooMany = kMaxFlatItems + 1; // stands for all larger numbers

static KindRec *KeepItem(KindRec *item) { return item; }

static std::uint32_t WeighItem(const KindRec * /*item*/) { return 1; }

// Each procedure of a callback is written, and a list of procedures may be shared by many
// callbacks.
static std::uint32_t WeighCallback(const KindRec *item) {
  const auto procedures = ListLength(static_cast<const CallbackValue *>(item)->value);
  return static_cast<std::uint32_t>(std::clamp<std::size_t>(procedures, 1, kTooMany));
}

static KindRec *KeepControl(KindRec *item) {
  switch (item->kind) {
  case WIDGET_NAME:
  case WIDGET_DEF:
  case AUTO_CREATED_DEF:
    return item;
  case WIDGET_REF: {
    auto *reference = static_cast<WidgetRef *>(item);
    return WidgetResolve(reference) == nullptr ? item : reference->resolved;
  }
  default:
    ErrorFormat(kImmediate, "Internal error, object of unexpected type %d in controls list",
                item->kind);
    return item;
  }
}

static constexpr FlatRules kArgumentRules = {0,        ARGUMENTS_LIST, ARGUMENTS_LIST_NAME,
                                             KeepItem, WeighItem,      "Too many arguments in"};
static constexpr FlatRules kCallbackRules = {1,        CALLBACKS_LIST, CALLBACKS_LIST_NAME,
                                             KeepItem, WeighCallback,  "Too many callbacks in"};
static constexpr FlatRules kControlRules = {2,           CONTROLS_LIST, CONTROLS_LIST_NAME,
                                            KeepControl, WeighItem,     "Too many controls below"};

// The note on a list: the weight of the items that it opens into, whether there are lists in it,
// and that both are known.
constexpr std::uint32_t kCounted = 1;
constexpr std::uint32_t kHasLists = 2;
constexpr std::uint32_t kCountUnit = 4;

static bool IsList(const KindRec *item, const FlatRules &rules) {
  return item->kind == rules.list_kind || item->kind == rules.list_name_kind;
}

static List ListOfItem(KindRec *item) { return static_cast<UnionList *>(item)->value; }

// A list that is being counted, up to an item.
struct ListCount {
  List list;
  ListItem *next;
  std::uint32_t items;
  std::uint32_t has_lists; // kHasLists or 0
};

static ListCount StartCount(List list) {
  list->note = kTooMany * kCountUnit | kHasLists | kCounted; // what a list that holds itself finds
  return {list, list->first, 0, 0};
}

// Counts the next item.  False when it is a list whose own count is missing.
static bool CountItem(ListCount *count, const FlatRules &rules) {
  auto *item = static_cast<KindRec *>(count->next->data);
  std::uint32_t items = 0;
  if (IsList(item, rules)) {
    List list = ListOfItem(item);
    if (list != nullptr && list->note == 0) {
      return false;
    }
    items = list == nullptr ? 0 : list->note / kCountUnit;
    count->has_lists = kHasLists;
  } else {
    items = rules.weight(item);
    count->next->data = rules.keep(item);
  }
  count->items = std::min(count->items + items, kTooMany);
  count->next = count->next->next;
  return true;
}

// Counts what is left of the list and notes it.  False before a list whose own count is missing.
static bool CountItems(ListCount *count, const FlatRules &rules) {
  while (count->next != nullptr) {
    if (!CountItem(count, rules)) {
      return false;
    }
  }
  count->list->note = count->items * kCountUnit | count->has_lists | kCounted;
  return true;
}

// The weight of what the list opens into, kTooMany at most.  Notes that on it and on all lists in
// it, whose items become what they are kept as.
static std::uint32_t CountOpened(List source, const FlatRules &rules) {
  if (source == nullptr) {
    return 0;
  }
  if (source->note == 0) {
    ListCount count = StartCount(source);
    std::vector<ListCount> open; // the lists around the one that is being counted
    while (!CountItems(&count, rules) || !open.empty()) {
      if (count.next == nullptr) {
        count = open.back();
        open.pop_back();
      } else {
        open.push_back(count);
        count = StartCount(ListOfItem(static_cast<KindRec *>(count.next->data)));
      }
    }
  }
  return source->note / kCountUnit;
}

// The items of `source` in a new list, each list in it replaced by its own items, to any depth.
static List FlatCopy(const WidgetDef *widget, List source, const FlatRules &rules) {
  FlatList flat(ModelList());
  std::uint32_t left = kMaxFlatItems;
  std::vector<const ListItem *> open = {ListFirstNode(source)}; // what is still to do, per list
  while (!open.empty()) {
    const ListItem *node = open.back();
    if (node == nullptr) {
      open.pop_back();
      continue;
    }
    open.back() = node->next;
    auto *item = static_cast<KindRec *>(node->data);
    const bool is_list = IsList(item, rules);
    const std::uint32_t items = is_list ? CountOpened(ListOfItem(item), rules) : rules.weight(item);
    if (items > left) {
      FatalErrorFormat("%s %s", rules.overflow, widget->name);
    }
    if (!is_list) {
      left -= items;
      ModelAppend(flat.get(), rules.keep(item));
    } else if (items > 0) {
      open.push_back(ListFirstNode(ListOfItem(item)));
    }
  }
  return flat.release();
}

// Finds out whether `source` opens into nothing or into one list without lists, which is taken as
// it is.  True puts it into `flat`.
static bool FindFlat(List source, const FlatRules &rules, List *flat) {
  *flat = nullptr;
  if (ListLength(source) != 1) {
    return ListLength(source) == 0;
  }
  auto *item = static_cast<KindRec *>(source->first->data);
  if (!IsList(item, rules)) {
    return false;
  }
  List list = ListOfItem(item);
  const std::uint32_t items = CountOpened(list, rules);
  *flat = items == 0 ? nullptr : list;
  return items == 0 || (items <= kMaxFlatItems && (list->note & kHasLists) == 0);
}

// The items of `source` with each list in it replaced by its own items.  Nearly always the model
// has such a list, which is taken as it is: without the copies 10,000 widgets take a tenth less.
// Which one is noted on the widget, for the way there leads through four records and is gone six
// times.
static List Flatten(const WidgetDef *widget, List WidgetDef::*source, const FlatRules &rules) {
  if (widget == nullptr) {
    return nullptr;
  }
  WidgetNotes *notes = WidgetNotesOf(widget);
  if (notes->flat_known[rules.place]) {
    return notes->flat[rules.place];
  }
  List flat = nullptr;
  if (!FindFlat(widget->*source, rules, &flat)) {
    return FlatCopy(widget, widget->*source, rules);
  }
  if (lists_are_complete) {
    notes->flat[rules.place] = flat;
    notes->flat_known[rules.place] = true;
  }
  return flat;
}

void WidgetListsAreComplete() { lists_are_complete = true; }

List WidgetFlatArgumentsList(const WidgetDef *widget) {
  return Flatten(widget, &WidgetDef::args, kArgumentRules);
}

List WidgetFlatCallbacksList(const WidgetDef *widget) {
  return Flatten(widget, &WidgetDef::cbs, kCallbackRules);
}

List WidgetFlatControlsList(const WidgetDef *widget) {
  return Flatten(widget, &WidgetDef::ctls, kControlRules);
}

// -- Classes -----------------------------------------------------------------------------------

static bool IsOfClass(const WidgetDef *widget, const char *class_name) {
  return widget != nullptr && widget->type != nullptr && SameName(widget->type->name, class_name);
}

bool WidgetChildrenFirst(const WidgetDef *widget) {
  return IsOfClass(widget, "XmCascadeButton") || IsOfClass(widget, "XmOptionMenu");
}

bool WidgetChildrenAreGadgets(const WidgetDef *widget) { return IsOfClass(widget, "XmOptionMenu"); }

bool ReasonIsCreateCallback(const char *reason) { return SameName(reason, "MrmNcreateCallback"); }

// -- Shells ------------------------------------------------------------------------------------

struct TextPair {
  const char *key;
  const char *text;
};

static constexpr char kApplicationShell[] = "applicationShell";
static constexpr char kTopLevelShell[] = "topLevelShell";

// Ends of class names that ask for a shell of their own.
static constexpr TextPair kShellBySuffix[] = {
    {"Dialog", "dialogShell"},
    {"Menu", "menuShell"},
    {"MenuBar", "menuShell"},
};

// What is put behind a widget's name to name its shell.
static constexpr TextPair kShellNameSuffix[] = {
    {"dialogShell", "_popup"},
    {"menuShell", "_menu"},
    {kApplicationShell, "_appl"},
};
static constexpr char kOtherShellSuffix[] = "_shell";

static bool HasApplicationShell() {
  for (const ListItem *node = ListFirstNode(shellinfo); node != nullptr; node = node->next) {
    if (SameName(static_cast<const Kivu_ShellInfo *>(node->data)->shellClass, kApplicationShell)) {
      return true;
    }
  }
  return false;
}

static const char *DeduceShell(const WidgetDef *widget, bool has_application) {
  if (widget == nullptr || widget->name == nullptr || widget->type == nullptr ||
      widget->type->name == nullptr) {
    ErrorMessage(kImmediate, "Internal error: No name or class for top-level widget");
    return "";
  }
  const std::string_view class_name = widget->type->name;
  for (const TextPair &row : kShellBySuffix) {
    const std::string_view suffix = row.key;
    if (class_name.size() > suffix.size() && EndsWithName(class_name, suffix)) {
      return row.text;
    }
  }
  return has_application ? kTopLevelShell : kApplicationShell;
}

const char *DeduceShellForTopLevel(const WidgetDef *widget) {
  return DeduceShell(widget, HasApplicationShell());
}

static const char *ShellNameSuffix(std::string_view shell_class) {
  for (const TextPair &row : kShellNameSuffix) {
    if (shell_class == row.key) {
      return row.text;
    }
  }
  return kOtherShellSuffix;
}

static const void *ShellInfoKey(void *item) {
  return static_cast<const Kivu_ShellInfo *>(item)->childName;
}

static void PrepareShellInfo() {
  if (shellinfo == nullptr) {
    shellinfo = ModelList();
  }
  shellinfo->compare = case_sensitive ? ListCompareCaseSensitive : ListCompareCaseInsensitive;
  shellinfo->keyproc = ShellInfoKey;
}

static Kivu_ShellInfo *NewShellInfo(const WidgetDef *widget, const char *shell_class) {
  auto *info = ModelNew<Kivu_ShellInfo>(0);
  info->childName = widget->name;
  info->shellClass = shell_class;
  info->shellName = ModelText((widget->name == nullptr ? "" : widget->name) +
                              std::string(ShellNameSuffix(shell_class)));
  info->pkgName = ModelText(package_base);
  return info;
}

void AppendShellsForTopLevel() {
  if (ListLength(top_level_objects) == 0) {
    return;
  }
  PrepareShellInfo();
  bool has_application = HasApplicationShell(); // kept up here: asking each time is quadratic
  for (const ListItem *node = ListFirstNode(top_level_objects); node != nullptr;
       node = node->next) {
    const auto *widget = static_cast<const WidgetDef *>(node->data);
    if (ListFindFirst(shellinfo, widget->name) != nullptr) {
      continue; // the user's own choice
    }
    const char *shell_class = DeduceShell(widget, has_application);
    has_application = has_application || SameName(shell_class, kApplicationShell);
    ModelAppend(shellinfo, NewShellInfo(widget, shell_class));
  }
}

// -- Automatically created children ------------------------------------------------------------

// The Motif function that gives a child of a widget of that class; null: there is none.
static constexpr TextPair get_child_fn_name[] = {
    {"XmErrorDialog", "XmMessageBoxGetChild"},
    {"XmFileSelectionBox", "XmFileSelectionBoxGetChild"},
    {"XmFileSelectionDialog", "XmFileSelectionBoxGetChild"},
    {"XmInformationDialog", "XmMessageBoxGetChild"},
    {"XmMainWindow", nullptr},
    {"XmMessageBox", "XmMessageBoxGetChild"},
    {"XmMessageDialog", "XmMessageBoxGetChild"},
    {"XmOptionMenu", nullptr},
    {"XmPromptDialog", "XmSelectionBoxGetChild"},
    {"XmPulldownMenu", nullptr},
    {"XmQuestionDialog", "XmMessageBoxGetChild"},
    {"XmScale", nullptr},
    {"XmScrolledList", nullptr},
    {"XmScrolledText", nullptr},
    {"XmScrolledWindow", nullptr},
    {"XmSelectionBox", "XmSelectionBoxGetChild"},
    {"XmSelectionDialog", "XmSelectionBoxGetChild"},
    {"XmTemplateDialog", "XmMessageBoxGetChild"},
    {"XmWarningDialog", "XmMessageBoxGetChild"},
    {"XmWorkingDialog", "XmMessageBoxGetChild"},
};

// The Motif constant of a child by its UIL name.  The filter button of a file selection box is its
// apply button.
static constexpr TextPair get_child_arg_name[] = {
    {"Xm_Apply", "XmDIALOG_APPLY_BUTTON"},
    {"Xm_Cancel", "XmDIALOG_CANCEL_BUTTON"},
    {"Xm_Dir", "XmDIALOG_DIR_LIST_LABEL"},
    {"Xm_DirList", "XmDIALOG_DIR_LIST"},
    {"Xm_Filter", "XmDIALOG_APPLY_BUTTON"},
    {"Xm_FilterLabel", "XmDIALOG_FILTER_LABEL"},
    {"Xm_FilterText", "XmDIALOG_FILTER_TEXT"},
    {"Xm_Help", "XmDIALOG_HELP_BUTTON"},
    {"Xm_HorScrollBar", nullptr},
    {"Xm_Items", "XmDIALOG_LIST_LABEL"},
    {"Xm_ItemsList", "XmDIALOG_LIST"},
    {"Xm_Message", "XmDIALOG_MESSAGE_LABEL"},
    {"Xm_OK", "XmDIALOG_OK_BUTTON"},
    {"Xm_OptionButton", nullptr},
    {"Xm_OptionLabel", nullptr},
    {"Xm_Selection", "XmDIALOG_SELECTION_LABEL"},
    {"Xm_Separator", "XmDIALOG_SEPARATOR"},
    {"Xm_Separator1", nullptr},
    {"Xm_Separator2", nullptr},
    {"Xm_Separator3", nullptr},
    {"Xm_Symbol", "XmDIALOG_SYMBOL_LABEL"},
    {"Xm_TearOffControl", nullptr},
    {"Xm_Text", "XmDIALOG_TEXT"},
    {"Xm_Title", nullptr},
    {"Xm_VertScrollBar", nullptr},
};

template <std::size_t Count>
static const char *FindPair(const TextPair (&table)[Count], const char *key) {
  for (const TextPair &row : table) {
    if (SameName(key, row.key)) {
      return row.text;
    }
  }
  return nullptr;
}

const char *NameOfGetChildFunction(const char *class_name) {
  return FindPair(get_child_fn_name, class_name);
}

const char *NameOfGetChildArgument(const char *child_name) {
  return FindPair(get_child_arg_name, child_name);
}

// -- Counts ------------------------------------------------------------------------------------

int WidgetCountArguments(List arguments) {
  int count = 0;
  for (const ListItem *node = ListFirstNode(arguments); node != nullptr; node = node->next) {
    const char *name = static_cast<const ArgumentInvoke *>(node->data)->name;
    count += argument_paired_arg(name) == nullptr ? 1 : 2;
  }
  return count;
}

int WidgetCountChildren(List controls) { return static_cast<int>(ListLength(controls)); }

int WidgetCountCallbacks(List callbacks) {
  std::int64_t count = 0; // lists are shared, so there may be more than an int counts
  for (const ListItem *node = ListFirstNode(callbacks); node != nullptr; node = node->next) {
    count += ListLength(static_cast<const CallbackValue *>(node->data)->value);
  }
  return static_cast<int>(std::min<std::int64_t>(count, std::numeric_limits<int>::max()));
}

constexpr std::int64_t kLargestCount = std::numeric_limits<std::int64_t>::max();

static std::int64_t CountControl(const KindRec *control) {
  switch (control->kind) {
  case WIDGET_NAME:
  case WIDGET_DEF:
  case AUTO_CREATED_DEF:
    return WidgetCountHierarchy(static_cast<const WidgetDef *>(control));
  default:
    return 1;
  }
}

static std::int64_t CountTree(const WidgetDef *widget) {
  const FlatList controls(WidgetFlatControlsList(widget));
  std::int64_t total = 1;
  for (const ListItem *node = ListFirstNode(controls.get()); node != nullptr; node = node->next) {
    const std::int64_t below = CountControl(static_cast<const KindRec *>(node->data));
    total = below > kLargestCount - total ? kLargestCount : total + below;
  }
  return total;
}

std::int64_t WidgetCountHierarchy(const WidgetDef *widget) {
  WidgetNotes *notes = WidgetNotesOf(widget);
  if (notes->hierarchy == 0) {
    notes->hierarchy = kLargestCount; // what is found by whoever gets back here in a ring
    notes->hierarchy = CountTree(widget);
  }
  return notes->hierarchy;
}

// -- Procedures --------------------------------------------------------------------------------

static bool IsProcedureUsedAs(std::int32_t usage) {
  for (const ListItem *node = ListFirstNode(unbound_procedures); node != nullptr;
       node = node->next) {
    if (static_cast<const ProcedureName *>(node->data)->usage == usage) {
      return true;
    }
  }
  return false;
}

bool WidgetsAreUserDefined() { return IsProcedureUsedAs(CREATE_PROC); }

bool AtLeastOneCallback() { return IsProcedureUsedAs(CALLBACK_PROC); }

void DropUnusedProcedures() {
  ListInitTraverse(unbound_procedures);
  while (const auto *proc = ListNext<ProcedureName>(unbound_procedures)) {
    if (proc->usage == NIL) {
      ListDeleteItem(unbound_procedures, proc->name);
    }
  }
}

// -- Names -------------------------------------------------------------------------------------

// Takes out underscores at the start and the second of each pair.  The character behind one that
// is taken out is kept unseen, so that of three underscores two stay.  In place, as
// every name of the module comes here.
static void DropUnderscores(std::string *name) {
  char *const text = name->data();
  std::size_t length = 0;
  bool after_underscore = true;
  for (std::size_t i = 0; i < name->size(); ++i) {
    if (text[i] != '_') {
      after_underscore = false;
    } else if (after_underscore) {
      ++i;
    } else {
      after_underscore = true;
    }
    if (i < name->size()) {
      text[length++] = text[i];
    }
  }
  name->resize(length);
}

std::string LegalName(std::string_view name) {
  std::string result(name);
  if (interface_type != kInterfaceOrvo && interface_type != kInterfaceReserved) {
    return result;
  }
  for (char &c : result) {
    c = AsciiIsAlnum(c) ? AsciiToLower(c) : '_';
  }
  DropUnderscores(&result);
  if (!result.empty() && result.back() == '_') {
    result.pop_back();
  }
  return result;
}

// Whether LegalName leaves the name as it is, seen without a copy: nearly all are written like
// this.
static bool IsPlainlyLegal(const char *name) {
  char before = '_';
  for (; *name != '\0'; ++name) {
    const bool is_plain = AsciiIsAlnum(*name) && AsciiToLower(*name) == *name;
    if (!is_plain && (*name != '_' || before == '_')) {
      return false;
    }
    before = *name;
  }
  return before != '_';
}

const char *LegalText(const char *name) {
  if (IsPlainlyLegal(name)) {
    return name;
  }
  const std::string legal = LegalName(name);
  return legal == name ? name : ModelText(legal);
}

const char *WidgetAdaName(const WidgetDef *widget) {
  WidgetNotes *notes = WidgetNotesOf(widget);
  if (notes->ada_name == nullptr) {
    notes->ada_name = LegalText(widget->name);
  }
  return notes->ada_name;
}

void WidgetUtilsReset() {
  reported_names.clear();
  lists_are_complete = false;
}
