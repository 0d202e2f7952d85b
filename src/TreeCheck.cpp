// See TreeCheck.h.
//
// A walk in depth, with a stack of its own instead of recursion, over two sorts of places: widgets,
// and lists of controls, which may be named in many places and lead back to themselves.  Each place
// is walked once.  What is below it is remembered, so shared children cost nothing, however many
// paths lead to them.

#include "TreeCheck.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "Error.h"
#include "Model.h"
#include "WidgetUtils.h"

// One step of the way from the top-level object.
struct TreeStep {
  const void *key;         // the widget's definition or the list
  const WidgetDef *widget; // null for a list
  const ListItem *next;    // what is still to be walked
  TreePlace *place;
};

struct TreeWalk {
  std::unordered_map<const void *, TreePlace> lists; // widgets have their places with them
  std::vector<TreeStep> way;
};

// Adds a control, or what is in a list, to what is below a place; both counts stop one above what
// is allowed.
static void Add(TreePlace *sum, std::int32_t controls, int depth) {
  sum->controls = std::min(sum->controls + controls, kMaxHierarchy + 1);
  sum->depth =
      static_cast<std::int16_t>(std::max<int>(sum->depth, std::min(depth, kMaxControlDepth + 1)));
}

static void AddPlace(TreePlace *sum, const TreePlace &place, bool is_widget) {
  Add(sum, place.controls + (is_widget ? 1 : 0), place.depth + (is_widget ? 1 : 0));
}

// The place is on the way to itself.  When it is a list, the first widget in it is the one that
// would be met again; a list of lists alone leads back to the widget that holds it.
[[noreturn]] static void ReportRing(const std::vector<TreeStep> &way, const void *key) {
  const auto is_widget = [](const TreeStep &step) { return step.widget != nullptr; };
  const auto first =
      std::find_if(way.begin(), way.end(), [key](const TreeStep &step) { return step.key == key; });
  const auto inside = std::find_if(first, way.end(), is_widget);
  const auto &widget =
      inside == way.end() ? *std::find_if(way.rbegin(), way.rend(), is_widget) : *inside;
  FatalErrorFormat("Control %s contains itself", widget.widget->name);
}

// Goes down to a place, or takes what is known of it.
static void Enter(TreeWalk *walk, TreePlace *place, const TreeStep &step) {
  if (place->state == TreePlace::kNew) {
    place->state = TreePlace::kOpen;
    walk->way.push_back(step);
  } else if (place->state == TreePlace::kOpen) {
    ReportRing(walk->way, step.key);
  } else {
    AddPlace(walk->way.back().place, *place, step.widget != nullptr);
  }
}

static void EnterWidget(TreeWalk *walk, const WidgetDef *definition) {
  TreePlace *place = &WidgetNotesOf(definition)->place;
  Enter(walk, place, {definition, definition, ListFirstNode(definition->ctls), place});
}

static void EnterList(TreeWalk *walk, List items) {
  TreePlace *place = &walk->lists[items];
  Enter(walk, place, {items, nullptr, ListFirstNode(items), place});
}

// What is written for a widget is kept by its name and goes by the legal form of that, so the name
// made for an object without one must not be the name of another.
static void CheckAnonymous(const WidgetDef *definition) {
  if (!definition->anon) {
    return;
  }
  const auto *holder = static_cast<const BareWord *>(
      static_cast<SimpleObjectRec *>(ModelFind(names_table, LegalText(definition->name))));
  if (holder != nullptr && holder->kind == WIDGET_NAME &&
      WidgetIsDefined(static_cast<const WidgetValue *>(holder->value)->value)) {
    FatalErrorFormat("Cannot use %s as widget name because it conflicts with an anonymous object",
                     static_cast<const WidgetValue *>(holder->value)->name);
  }
}

// One item of the place at the end of the way.
static void TakeItem(TreeWalk *walk, KindRec *item) {
  switch (item->kind) {
  case CONTROLS_LIST:
  case CONTROLS_LIST_NAME: {
    List items = static_cast<UnionList *>(item)->value;
    if (items != nullptr) {
      EnterList(walk, items);
    }
    return;
  }
  case WIDGET_NAME:
  case WIDGET_DEF:
  case AUTO_CREATED_DEF:
    CheckAnonymous(static_cast<WidgetDef *>(item));
    EnterWidget(walk, WidgetOrigin(static_cast<WidgetDef *>(item)));
    return;
  case WIDGET_REF:
    if (const WidgetDef *widget = WidgetResolve(static_cast<WidgetRef *>(item))) {
      EnterWidget(walk, WidgetOrigin(widget));
      return;
    }
    break;
  default:
    break;
  }
  Add(walk->way.back().place, 1, 1); // a reference to nothing
}

// Everything below the place at the end of the way has been walked.
static void Leave(TreeWalk *walk) {
  const TreeStep done = walk->way.back();
  walk->way.pop_back();
  done.place->state = TreePlace::kWalked;
  if (!walk->way.empty()) {
    AddPlace(walk->way.back().place, *done.place, done.widget != nullptr);
  }
}

static void WalkTree(TreeWalk *walk, const WidgetDef *top) {
  if (WidgetNotesOf(top)->place.state != TreePlace::kNew) {
    return;
  }
  EnterWidget(walk, top);
  while (!walk->way.empty()) {
    const ListItem *node = walk->way.back().next;
    if (node == nullptr) {
      Leave(walk);
    } else {
      walk->way.back().next = node->next;
      TakeItem(walk, static_cast<KindRec *>(node->data));
    }
  }
}

static void CheckSize(const WidgetDef *top, const TreePlace &below) {
  if (below.depth > kMaxControlDepth) {
    FatalErrorFormat("Controls nested too deeply below %s", top->name);
  }
  if (below.controls > kMaxHierarchy) {
    FatalErrorFormat("Too many controls below %s", top->name);
  }
}

void TreeCheck() {
  WidgetListsAreComplete();
  TreeWalk walk;
  for (const ListItem *node = ListFirstNode(top_level_objects); node != nullptr;
       node = node->next) {
    const auto *top = static_cast<const WidgetDef *>(node->data);
    WalkTree(&walk, top);
    CheckSize(top, WidgetNotesOf(top)->place);
  }
}
