// See ParseModule.h.

#include "ParseModule.h"

#include <array>
#include <cstdio>
#include <string>

#include "Error.h"
#include "Expression.h"
#include "Files.h"
#include "Model.h"
#include "Options.h"
#include "Scanner.h"
#include "WidgetUtils.h"

bool RegisterAdaName(SimpleObjectRec *entry, const char *conflict) {
  auto *claim = ModelNew<BareWord>(entry->kind);
  claim->name = LegalText(entry->name);
  claim->value = entry;
  if (NamesAdd(claim)) {
    return true;
  }
  const auto *holder = static_cast<const BareWord *>(
      static_cast<SimpleObjectRec *>(ModelFind(names_table, claim->name)));
  ErrorFormat(kError, conflict, entry->name,
              static_cast<const SimpleObjectRec *>(holder->value)->name);
  return false;
}

void ModuleHeader(YYSTYPE *result, const SymbolValue &name) {
  module_definition = CreateModule(name.name);
  RegisterAdaName(module_definition, "Cannot use %s as module name because it conflicts with %s");
  module_name = module_definition->name;
  result->module.kind = MODULE;
  result->module.value = module_definition;
}

void NamesInsensitive() {
  if (override_case) {
    return;
  }
  // No two words of the language differ in letter case alone, so only exhaustion can refuse this.
  if (!HashRevise(symbol_table, 0, CaseInsensitiveKeyFunc, nullptr, CaseInsensitiveCompareFunc,
                  nullptr)) {
    OutOfMemory();
  }
  module_definition->case_sensitive = false;
  case_sensitive = false;
}

void ModuleCharacterSet(const SymbolValue &constant) {
  const auto *binding = static_cast<const CharacterSetConst *>(constant.value);
  const auto *charset = static_cast<const CharacterSetValue *>(binding->value.value);
  module_definition->default_character_set = charset->name;
  default_character_set = charset->name;
}

static void SetVersion(const char *version) {
  module_definition->uil_version = version;
  uil_version = version;
}

void ModuleVersionNumber(const NumberValue &version) {
  const double number = NumberToFloat(version);
  constexpr std::size_t kLongestNumber = 400; // the largest float has 309 digits before its point
  std::array<char, kLongestNumber> text{};
  std::snprintf(text.data(), text.size(), "%-8.3f", number);
  SetVersion(ModelText(text.data()));
}

void ModuleVersionText(const StringValue &version) { SetVersion(version.value); }

void ObjectVariant(const SymbolValue &widget_class, std::int32_t variant) {
  const auto *binding = static_cast<const WidgetClassValue *>(widget_class.value);
  static_cast<WidgetClass *>(binding->value.value)->use_gadget = variant == GADGET;
}

void IncludeFile(const StringValue &name, const int *lookahead, const YYSTYPE &value) {
  if (lookahead != nullptr) {
    ScannerKeepToken(*lookahead, value);
  }
  if (FilesOpen(name.value, true) == nullptr) {
    FatalErrorFormat("Include_Directive: Cannot open file %s", name.value);
  }
}
