// See TreeCheck.h.
//
// A walk in depth, with a stack of its own instead of recursion, over two sorts of places: widgets,
// and lists of controls, which may be named in many places and lead back to themselves.  Each place
// is walked once.  What is below it is remembered, so shared children cost nothing, however many
// paths lead to them.

#include "TreeCheck.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <vector>

#include "Error.h"
#include "Model.h"
#include "WidgetUtils.h"

// What is below a place.
struct TreeSize {
  long long controls = 0; // by paths, at most kMaxHierarchy + 1
  int depth = 0;          // levels of controls, at most kMaxControlDepth + 1
};

struct TreePlace {
  bool open = true; // on the way that is being walked
  TreeSize below;
};

// One step of the way from the top-level object.
struct TreeStep {
  const void *key;         // the widget's definition or the list
  const WidgetDef *widget; // null for a list
  const ListItem *next;    // what is still to be walked
  TreePlace *place;
};

struct TreeWalk {
  std::unordered_map<const void *, TreePlace> places;
  std::vector<TreeStep> way;
};

static void Add(TreeSize *sum, const TreeSize &part) {
  sum->controls = std::min(sum->controls + part.controls, kMaxHierarchy + 1);
  sum->depth = std::max(sum->depth, part.depth);
}

// The size of a widget together with what is below it.
static TreeSize WithWidget(const TreeSize &below) {
  return {below.controls + 1, std::min(below.depth, kMaxControlDepth) + 1};
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
static void Enter(TreeWalk *walk, const void *key, const WidgetDef *widget, List items) {
  const auto [entry, is_new] = walk->places.try_emplace(key);
  TreePlace *place = &entry->second;
  if (is_new) {
    walk->way.push_back({key, widget, ListFirstNode(items), place});
  } else if (place->open) {
    ReportRing(walk->way, key);
  } else {
    Add(&walk->way.back().place->below,
        widget == nullptr ? place->below : WithWidget(place->below));
  }
}

static void EnterWidget(TreeWalk *walk, const WidgetDef *definition) {
  Enter(walk, definition, definition, definition->ctls);
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
      Enter(walk, items, nullptr, items);
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
  Add(&walk->way.back().place->below, WithWidget({}));
}

// Everything below the place at the end of the way has been walked.
static void Leave(TreeWalk *walk) {
  const TreeStep done = walk->way.back();
  walk->way.pop_back();
  done.place->open = false;
  if (!walk->way.empty()) {
    Add(&walk->way.back().place->below,
        done.widget == nullptr ? done.place->below : WithWidget(done.place->below));
  }
}

static void WalkTree(TreeWalk *walk, const WidgetDef *top) {
  if (walk->places.contains(top)) {
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

static void CheckSize(const WidgetDef *top, const TreeSize &below) {
  if (below.depth > kMaxControlDepth) {
    FatalErrorFormat("Controls nested too deeply below %s", top->name);
  }
  if (below.controls > kMaxHierarchy) {
    FatalErrorFormat("Too many controls below %s", top->name);
  }
}

void TreeCheck() {
  TreeWalk walk;
  for (const ListItem *node = ListFirstNode(top_level_objects); node != nullptr;
       node = node->next) {
    const auto *top = static_cast<const WidgetDef *>(node->data);
    WalkTree(&walk, top);
    CheckSize(top, walk.places.at(top).below);
  }
}
