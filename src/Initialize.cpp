// See Initialize.h.  Keywords are entered as they are; every other row is wrapped in a binding
// whose value is the row itself, or the value that the row holds.

#include "Initialize.h"

#include <algorithm>

#include "Model.h"
#include "Vocabulary.h"

// Bindings and `token_types` take plain pointers, since the same fields also hold records of the
// module.  Nobody writes to a constant row through one.
template <typename Row> static Row *RowPointer(const Row &row) { return const_cast<Row *>(&row); }

static bool BindRow(const SimpleObjectRec &row, void *value) {
  return SymbolAdd(ModelBinding(row.kind, row.name, value));
}

// Binds each row to itself.
template <typename Rows> static bool BindRows(const Rows &rows) {
  return std::all_of(std::begin(rows), std::end(rows),
                     [](const auto &row) { return BindRow(row, RowPointer(row)); });
}

// Binds each row to the value that it holds.
template <typename Rows> static bool BindHeldValues(const Rows &rows) {
  return std::all_of(std::begin(rows), std::end(rows),
                     [](const auto &row) { return BindRow(row, RowPointer(row.value)); });
}

template <typename Rows> static bool EnterRows(Rows &rows) {
  return std::all_of(std::begin(rows), std::end(rows),
                     [](BareWord &row) { return SymbolAdd(&row); });
}

bool ReservedWordInit() { return EnterRows(reserved_words); }

bool NonReservedWordInit() { return EnterRows(non_res_words); }

bool FunctionNameInit() {
  std::fill(token_types, token_types + MAX_TOKENS, nullptr);
  return std::all_of(function_names.begin(), function_names.end(), [](const FunctionName &row) {
    if (!BindRow(row, RowPointer(row))) {
      return false;
    }
    token_types[row.value_type] = RowPointer(row);
    return true;
  });
}

bool CharacterSetInit() { return BindRows(character_sets); }

bool NamedValueInit() { return BindHeldValues(constants) && BindHeldValues(booleans); }

static WidgetClassValue *ClassFind(const char *name) {
  return static_cast<WidgetClassValue *>(SymbolFind(name));
}

// The child of a row with its classes looked up.
static AutoCreatedChild *AutoChildResolve(const AutoChildTemplate &row) {
  auto *child = ModelNew<AutoCreatedChild>(row.kind);
  child->name = row.name;
  child->child = ClassFind(row.child_name);
  child->num_parents = row.num_parent_names;
  const auto count = static_cast<std::size_t>(row.num_parent_names);
  child->parents =
      static_cast<WidgetClassValue **>(ModelAllocate((count + 1) * sizeof(WidgetClassValue *)));
  std::transform(row.parent_names, row.parent_names + count, child->parents, ClassFind);
  return child;
}

static bool BindAutoChild(const AutoChildTemplate &row) {
  auto *binding = ModelNew<AutoChildValue>(row.kind);
  binding->name = row.name;
  binding->value = AutoChildResolve(row);
  return SymbolAdd(binding);
}

bool WidgetClassInit() {
  return BindRows(widget_class_rows) &&
         std::all_of(auto_created_children.begin(), auto_created_children.end(), BindAutoChild);
}

bool ArgumentPartInit(const ArgumentName *table, std::size_t count) {
  return std::all_of(table, table + count,
                     [](const ArgumentName &row) { return BindRow(row, RowPointer(row)); });
}

template <typename Rows> static bool BindArguments(const Rows &rows) {
  return ArgumentPartInit(rows.data(), rows.size());
}

bool ArgumentNameInit() {
  return BindArguments(argument_names_a_d) && BindArguments(argument_names_e_k) &&
         BindArguments(argument_names_l_n) && BindArguments(argument_names_o_s) &&
         BindArguments(argument_names_t_z);
}

bool ReasonNameInit() { return BindRows(reason_names); }

void InitializeReset() {
  for (WidgetClass &row : widget_class_rows) {
    row.need = false;
    row.use_gadget = false;
  }
}
