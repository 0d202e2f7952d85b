// See Model.h.  Records and texts are single blocks of the tracked allocator; what the tables and
// lists add is taken from it too, so that one AllocReset frees the whole model.

#include "Model.h"

#include "Alloc.h"
#include "Error.h"
#include "Options.h"

HashTable symbol_table = nullptr;
HashTable names_table = nullptr;
FunctionName *token_types[MAX_TOKENS];
List widget_classes = nullptr;
List top_level_objects = nullptr;
List unbound_procedures = nullptr;
ModuleData *module_definition = nullptr;
const char *module_name = nullptr;
const char *default_character_set = nullptr;
const char *uil_version = nullptr;

constexpr unsigned kBuckets = 511;

void *ModelAllocate(std::size_t size) {
  void *block = _MAlloc(size);
  if (block == nullptr) {
    OutOfMemory();
  }
  std::memset(block, 0, size);
  return block;
}

char *ModelText(std::string_view text) {
  char *copy = static_cast<char *>(ModelAllocate(text.size() + 1));
  if (!text.empty()) {
    std::memcpy(copy, text.data(), text.size());
  }
  return copy;
}

List ModelList() {
  List list = ListCreate(nullptr, nullptr, nullptr);
  if (list == nullptr) {
    OutOfMemory();
  }
  return list;
}

void ModelAppend(List list, void *item) {
  const unsigned before = ListLength(list);
  ListAppendItem(list, item);
  if (item != nullptr && ListLength(list) == before) {
    OutOfMemory();
  }
}

List ModelListCopy(List source) {
  List copy = ModelList();
  for (const ListItem *node = ListFirstNode(source); node != nullptr; node = node->next) {
    ModelAppend(copy, node->data);
  }
  return copy;
}

NamedBinding *ModelBinding(std::int32_t kind, const char *name, void *value) {
  auto *binding = ModelNew<NamedBinding>(kind);
  binding->name = name;
  binding->value.value = value;
  return binding;
}

void *ModelFind(HashTable table, const char *name) {
  const std::size_t failures = AllocFailures();
  void *entry = HashFind(table, name);
  if (AllocFailures() != failures) {
    OutOfMemory();
  }
  return entry;
}

SimpleObjectRec *SymbolFind(const char *name) {
  return static_cast<SimpleObjectRec *>(ModelFind(symbol_table, name));
}

static bool TableAdd(HashTable table, SimpleObjectRec *entry) {
  if (HashAdd(table, entry)) {
    return true;
  }
  if (ModelFind(table, entry->name) == nullptr) {
    OutOfMemory();
  }
  return false;
}

bool SymbolAdd(SimpleObjectRec *entry) { return TableAdd(symbol_table, entry); }

bool NamesAdd(SimpleObjectRec *entry) { return TableAdd(names_table, entry); }

CharacterSetValue *SymbolFindCharacterSet(const char *name) {
  SimpleObjectRec *entry = SymbolFind(name);
  if (entry == nullptr || entry->kind != CHARACTER_SET_CONSTANT) {
    return nullptr;
  }
  return static_cast<CharacterSetValue *>(static_cast<CharacterSetConst *>(entry)->value.value);
}

ModuleData *CreateModule(const char *name) {
  auto *module = ModelNew<ModuleData>(MODULE);
  module->name = name;
  module->case_sensitive = case_sensitive;
  return module;
}

static bool TableInit(HashTable *table) {
  *table = case_sensitive ? HashCreate(kBuckets, CaseSensitiveKeyFunc, SimpleHashFunc,
                                       CaseSensitiveCompareFunc, nullptr)
                          : HashCreate(kBuckets, CaseInsensitiveKeyFunc, SimpleHashFunc,
                                       CaseInsensitiveCompareFunc, nullptr);
  return *table != nullptr;
}

bool SymbolTableInit() { return TableInit(&symbol_table); }

bool NamesTableInit() { return TableInit(&names_table); }

// Null when there are none, as of most widgets for two kinds out of three.
static List ExtractKind(List list, std::int32_t kind) {
  List extract = nullptr;
  for (const ListItem *node = ListFirstNode(list); node != nullptr; node = node->next) {
    if (static_cast<KindRec *>(node->data)->kind == kind) {
      extract = extract == nullptr ? ModelList() : extract;
      ModelAppend(extract, node->data);
    }
  }
  return extract;
}

List ExtractArgumentsLists(List list) { return ExtractKind(list, ARGUMENTS_LIST); }

List ExtractCallbacksLists(List list) { return ExtractKind(list, CALLBACKS_LIST); }

List ExtractControlsLists(List list) { return ExtractKind(list, CONTROLS_LIST); }

void ModelReset() {
  symbol_table = nullptr;
  names_table = nullptr;
  for (FunctionName *&type : token_types) {
    type = nullptr;
  }
  widget_classes = nullptr;
  top_level_objects = nullptr;
  unbound_procedures = nullptr;
  module_definition = nullptr;
  module_name = nullptr;
  default_character_set = nullptr;
  uil_version = nullptr;
}
