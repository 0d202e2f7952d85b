#ifndef KIVUXL_MODEL_H
#define KIVUXL_MODEL_H

// The symbol model's tables and the making of its records.
//
// The model lives until the program is put back to its start: records come from ModelNew, texts
// from ModelText, lists from ModelList, and AllocReset gives all of them back together.  None of
// these returns null: running out of memory ends the run with "Out of memory".

#include <cstdint>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "uiltoada.h"

extern HashTable symbol_table;            // every name of the module and of the language
extern HashTable names_table;             // the Ada-legal forms of the names that become Ada names
extern FunctionName *token_types[];       // type descriptions by value kind, MAX_TOKENS entries
extern List widget_classes;               // classes used, in order of first use; null before one
extern List top_level_objects;            // WidgetDef; null before one
extern List unbound_procedures;           // ProcedureName; null before one
extern ModuleData *module_definition;     // null before the module header
extern const char *module_name;           // the module's name, null before the header
extern const char *default_character_set; // UIL name, null when not given
extern const char *uil_version;           // null when not given

// `size` zeroed bytes of the model.
void *ModelAllocate(std::size_t size);

// A new record, all zero but for its kind.
template <typename T> T *ModelNew(std::int32_t kind) {
  static_assert(std::is_trivially_copyable_v<T>);
  T *record = new (ModelAllocate(sizeof(T))) T();
  record->kind = kind;
  return record;
}

// A copy of a record.
template <typename T> T *ModelCopy(const T &original) {
  static_assert(std::is_trivially_copyable_v<T>);
  return new (ModelAllocate(sizeof(T))) T(original);
}

// A copy of the text, closed by a zero byte.
char *ModelText(std::string_view text);

// A new list without functions, and appending to it.
List ModelList();
void ModelAppend(List list, void *item);

// A new list of the same items.
List ModelListCopy(List source);

// A new binding of `name` (shared, not copied) to `value`; not entered in any table.
NamedBinding *ModelBinding(std::int32_t kind, const char *name, void *value);

// The entry of a table under that name, or null; exhaustion ends the run.
void *ModelFind(HashTable table, const char *name);

// The entry of `symbol_table` under that name, or null.
SimpleObjectRec *SymbolFind(const char *name);

// Enters a record in a table.  False when the name is taken; exhaustion ends the run.
bool SymbolAdd(SimpleObjectRec *entry);
bool NamesAdd(SimpleObjectRec *entry);

// The character set bound to a UIL name, or null when the name means something else or nothing.
CharacterSetValue *SymbolFindCharacterSet(const char *name);

// A new module record, case sensitivity copied from the global.
ModuleData *CreateModule(const char *name);

// Create the tables; false when one could not be made.
bool SymbolTableInit();
bool NamesTableInit();

// A new list of the items of the kind named, in order; null when there are none.
List ExtractArgumentsLists(List list);
List ExtractCallbacksLists(List list);
List ExtractControlsLists(List list);

void ModelReset();

#endif
