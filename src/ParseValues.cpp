// See ParseValues.h.

#include "ParseValues.h"

#include <array>
#include <cstdio>
#include <cstring>

#include "Error.h"
#include "Expression.h"
#include "ParseUsage.h"
#include "Types.h"

// -- Lists in the making -----------------------------------------------------------------------

TableValue NoItems() {
  TableValue items{};
  items.kind = LIST;
  items.value = ModelList();
  return items;
}

TableValue OneItem(void *item) {
  TableValue items = NoItems();
  if (item != nullptr) {
    ModelAppend(items.value, item);
  }
  return items;
}

void AddItem(TableValue *result, const TableValue &items, void *item) {
  *result = items;
  if (item != nullptr) {
    ModelAppend(result->value, item);
  }
}

std::int32_t TypeOfKeyword(const SymbolValue &keyword) {
  return BoundValue<FunctionName>(keyword).value_type;
}

void NumberResult(YYSTYPE *result, const YYSTYPE &number) {
  if (number.kind == NIL) {
    ParseFailed(result);
  } else {
    NumberToValue(result, number.number);
  }
}

// -- Strings -----------------------------------------------------------------------------------

static void StringOf(YYSTYPE *result, const char *text, List charsets) {
  StringBuild build{};
  build.kind = SIMPLE_STRING;
  build.value = text;
  build.charsets = charsets;
  build.length = std::strlen(text);
  build.capacity = 0;
  result->build = build;
}

void StringLiteral(YYSTYPE *result, const StringValue &literal) {
  StringOf(result, literal.value, nullptr);
}

void StringBound(YYSTYPE *result, const SymbolValue &name) {
  const auto &bound = BoundValue<StringValue>(name);
  StringOf(result, bound.value, bound.charsets);
}

void StringInCharacterSet(YYSTYPE *result, CharacterSetValue *charset, const StringValue &literal) {
  StringOf(result, literal.value, nullptr);
  if (charset == nullptr) {
    return;
  }
  auto *run = ModelNew<StringCharSet>(SIMPLE_STRING);
  run->str = literal.value;
  run->charset = charset;
  run->start = 0;
  run->length = static_cast<std::int32_t>(result->build.length);
  result->build.charsets = ModelList();
  ModelAppend(result->build.charsets, run);
}

// Makes room in the left text's own buffer, so that a chain of parts is joined in linear time.
static char *StringReserve(StringBuild *build, std::size_t length) {
  if (build->capacity <= length) {
    const std::size_t capacity = 2 * length + 1;
    char *buffer = static_cast<char *>(ModelAllocate(capacity));
    std::memcpy(buffer, build->value, build->length);
    build->value = buffer;
    build->capacity = capacity;
    return buffer;
  }
  return const_cast<char *>(build->value); // the chain's own buffer
}

static void AppendRuns(StringBuild *build, const StringBuild &right) {
  for (const ListItem *node = ListFirstNode(right.charsets); node != nullptr; node = node->next) {
    auto *run = ModelCopy(*static_cast<const StringCharSet *>(node->data));
    run->start += static_cast<std::int32_t>(build->length);
    ModelAppend(build->charsets, run);
  }
}

void StringJoin(YYSTYPE *result, const StringBuild &left, const StringBuild &right) {
  StringBuild build = left;
  if (left.capacity == 0 && left.charsets != nullptr) { // may be a bound value's list
    build.charsets = ModelListCopy(left.charsets);
  }
  if (right.charsets != nullptr) {
    if (build.charsets == nullptr) {
      build.charsets = ModelList();
    }
    AppendRuns(&build, right);
  }
  char *buffer = StringReserve(&build, build.length + right.length);
  std::memcpy(buffer + build.length, right.value, right.length);
  build.length += right.length;
  buffer[build.length] = '\0';
  result->build = build;
}

StringValue *StringItem(const StringBuild &string) { return ModelCopy<StringValue>(string); }

void TextFunction(YYSTYPE *result, std::int32_t kind, const StringValue &text) {
  TextValue value{};
  value.kind = kind;
  value.value = text.value;
  result->keysym = value;
}

void ArgumentFunction(YYSTYPE *result, const StringValue &name, std::int32_t value_type) {
  ArgumentName argument{};
  argument.kind = ARGUMENT_NAME;
  argument.name = name.value;
  argument.value_type = value_type;
  argument.predefined = false;
  result->argument = argument;
}

void ClassRecNameFunction(YYSTYPE *result, const StringValue &class_name) {
  ClassRecNameValue value{};
  value.kind = CLASS_REC_NAME;
  value.value = class_name.value;
  result->classrec = value;
}

void ReasonFunction(YYSTYPE *result, const StringValue &name) {
  ReasonName reason{};
  reason.kind = REASON_NAME;
  reason.name = name.value;
  reason.predefined = false;
  result->reason = reason;
}

void XBitmapFileFunction(YYSTYPE *result, const StringValue &file) {
  XBitmapFileValue value{};
  value.kind = XBITMAPFILE;
  value.value = file.value;
  result->xbmf = value;
}

void TableFunction(YYSTYPE *result, std::int32_t kind, const TableValue &items) {
  TableValue table{};
  table.kind = kind;
  table.value = items.value;
  result->ascz_tbl = table;
}

// The texts of string items, as the lists of texts that tables, font sets and icons hold.
static List TextsOf(const TableValue &strings) {
  List texts = ModelList();
  for (const ListItem *node = ListFirstNode(strings.value); node != nullptr; node = node->next) {
    ModelAppend(texts, const_cast<char *>(static_cast<const StringValue *>(node->data)->value));
  }
  return texts;
}

void TextTable(YYSTYPE *result, std::int32_t kind, const TableValue &strings) {
  TableValue table{};
  table.kind = kind;
  table.value = TextsOf(strings);
  result->ascz_tbl = table;
}

// -- Character sets ----------------------------------------------------------------------------

static void CharacterSetResult(YYSTYPE *result, CharacterSetValue *charset) {
  CharacterSetConst value{};
  value.kind = CHARACTER_SET;
  value.name = charset->name;
  value.value.value = charset;
  result->chars_c = value;
}

void CharacterSetBound(YYSTYPE *result, const SymbolValue &name) {
  const auto *binding = static_cast<const CharacterSetConst *>(name.value);
  CharacterSetResult(result, static_cast<CharacterSetValue *>(binding->value.value));
}

void CharacterSetFunction(YYSTYPE *result, const StringValue &name, const TableValue &options) {
  auto *charset = ModelNew<CharacterSetValue>(CHARACTER_SET);
  charset->name = name.value;
  charset->charset = name.value;
  for (const ListItem *node = ListFirstNode(options.value); node != nullptr; node = node->next) {
    const auto *option = static_cast<const BooleanValue *>(node->data);
    if (option->kind == RIGHT_TO_LEFT) {
      charset->parse_dir = option->value;
      charset->write_dir = option->value;
    } else {
      charset->sixteen_bit = option->value;
    }
  }
  CharacterSetResult(result, charset);
}

CharacterSetValue *CharacterSetOf(const CharacterSetConst &charset) {
  return charset.kind == CHARACTER_SET ? static_cast<CharacterSetValue *>(charset.value.value)
                                       : nullptr;
}

BooleanValue *CharacterSetOption(std::int32_t kind, const NumberValue &value) {
  auto *option = ModelNew<BooleanValue>(kind);
  option->value = NumberToBoolean(value);
  return option;
}

// -- Colours -----------------------------------------------------------------------------------

void ColorFunction(YYSTYPE *result, const StringValue &name, std::int32_t fallback) {
  ColorValue color{};
  color.kind = COLOR;
  color.value = name.value;
  color.fallback = fallback;
  result->color = color;
}

static void ColorEntry(YYSTYPE *result, const char *color, std::int32_t fallback,
                       const StringValue &chars) {
  auto *entry = ModelNew<ColorAssignment>(COLOR_TABLE_ENTRY);
  entry->value = color;
  entry->fallback = fallback;
  entry->chars = chars.value;
  result->ctl_v.kind = COLOR_TABLE_ENTRY;
  result->ctl_v.value.ptr = entry;
}

void ColorAssign(YYSTYPE *result, const ColorValue &color, const StringValue &chars) {
  if (color.kind == NIL) {
    result->ctl_v.kind = NIL;
    result->ctl_v.value.ptr = nullptr;
    return;
  }
  ColorEntry(result, color.value, color.fallback, chars);
}

void ColorAssignFallback(YYSTYPE *result, std::int32_t fallback, const StringValue &chars) {
  ColorEntry(result, nullptr, fallback, chars);
}

constexpr unsigned kRgbComponents = 3;
constexpr std::int32_t kRgbMaximum = 65535;

// The components of an rgb function, or false after a message.
static bool RgbComponents(const TableValue &items, std::array<unsigned, kRgbComponents> *values) {
  if (ListLength(items.value) != kRgbComponents) {
    ErrorMessage(kError, "RGB function takes 3 arguments");
    return false;
  }
  bool good = true;
  unsigned *next = values->data();
  for (const ListItem *node = ListFirstNode(items.value); node != nullptr; node = node->next) {
    const auto *item = static_cast<const IntegerValue *>(node->data);
    if (item->kind != NIL && (item->value < 0 || item->value > kRgbMaximum)) {
      ErrorMessage(kError, "RGB argument must be between 0 and 65535");
    }
    good = good && item->kind != NIL && item->value >= 0 && item->value <= kRgbMaximum;
    *next++ = static_cast<unsigned>(item->value);
  }
  return good;
}

void RgbFunction(YYSTYPE *result, const TableValue &components) {
  std::array<unsigned, kRgbComponents> values{};
  if (!RgbComponents(components, &values)) {
    ParseFailed(result);
    return;
  }
  std::array<char, sizeof "#rrrrggggbbbb"> text{};
  std::snprintf(text.data(), text.size(), "#%04x%04x%04x", values[0] & 0xffffU, values[1] & 0xffffU,
                values[2] & 0xffffU);
  RGBValue rgb{};
  rgb.kind = RGB;
  rgb.value = ModelText(text.data());
  rgb.fallback = NIL;
  result->rgb = rgb;
}

// -- Compound strings --------------------------------------------------------------------------

CompoundStringSegment *OptionCharacterSet(const CharacterSetConst &charset) {
  const CharacterSetValue *set = CharacterSetOf(charset);
  if (set == nullptr) {
    return nullptr;
  }
  auto *option = ModelNew<CompoundStringSegment>(CHARACTER_SET);
  option->default_charset = false;
  option->charset = set->name;
  return option;
}

CompoundStringSegment *OptionRightToLeft(const NumberValue &value) {
  auto *option = ModelNew<CompoundStringSegment>(RIGHT_TO_LEFT);
  option->default_direction = false;
  option->direction = NumberToBoolean(value);
  return option;
}

CompoundStringSegment *OptionSeparate(const NumberValue &value) {
  auto *option = ModelNew<CompoundStringSegment>(SEPARATE);
  option->default_separate = false;
  option->separate = NumberToBoolean(value);
  return option;
}

static void CompoundResult(YYSTYPE *result, List items) {
  CompoundStringVal value{};
  value.kind = COMPOUND_STRING;
  value.value = items;
  result->cmpstr = value;
}

void CompoundStringFunction(YYSTYPE *result, const StringValue &text, const TableValue &options) {
  CompoundResult(result, StringToCompound(&text, options.value));
}

void CompoundStringBound(YYSTYPE *result, const SymbolValue &name) {
  CompoundResult(result, ModelListCopy(BoundValue<CompoundStringVal>(name).value));
}

// Both lists belong to this expression alone, so the right one's nodes move.
void CompoundStringJoin(YYSTYPE *result, const YYSTYPE &left, const YYSTYPE &right) {
  if (left.kind == NIL || right.kind == NIL) {
    ParseFailed(result);
    return;
  }
  *result = left;
  if (ListLength(right.cmpstr.value) > 0) {
    ListAppend(result->cmpstr.value, right.cmpstr.value);
  }
}

CompoundStringVal *CompoundStringItem(const YYSTYPE &value) {
  return value.kind == NIL ? nullptr : ModelCopy(value.cmpstr);
}

void StringsToCompoundTable(YYSTYPE *result, const TableValue &strings) {
  TableValue items = NoItems();
  for (const ListItem *node = ListFirstNode(strings.value); node != nullptr; node = node->next) {
    auto *item = ModelNew<CompoundStringVal>(COMPOUND_STRING);
    item->value = StringToCompound(static_cast<const StringValue *>(node->data), nullptr);
    ModelAppend(items.value, item);
  }
  TableFunction(result, COMPOUND_STRING_TABLE, items);
}

// -- Fonts -------------------------------------------------------------------------------------

static const char *CharacterSetName(const CompoundStringSegment *option) {
  return option == nullptr ? nullptr : option->charset;
}

void FontFunction(YYSTYPE *result, const StringValue &name, const CompoundStringSegment *charset) {
  FontValue font{};
  font.kind = FONT;
  font.value = name.value;
  font.charset = CharacterSetName(charset);
  result->font = font;
}

void FontsetFunction(YYSTYPE *result, const TableValue &names,
                     const CompoundStringSegment *charset) {
  FontsetValue fontset{};
  fontset.kind = FONTSET;
  fontset.value = TextsOf(names);
  fontset.charset = CharacterSetName(charset);
  result->fontset = fontset;
}

// FontValue and FontsetValue differ in their value alone.
template <typename T>
static KindRec *FontCopy(const CharacterSetValue *charset, const T &original) {
  T *copy = ModelCopy(original);
  if (charset != nullptr) {
    copy->charset = charset->name;
  }
  return copy;
}

KindRec *FontTableItem(const CharacterSetConst &charset, const YYSTYPE &font) {
  if (font.kind == NIL) {
    return nullptr;
  }
  const CharacterSetValue *set = CharacterSetOf(charset);
  return font.kind == FONT ? FontCopy(set, font.font) : FontCopy(set, font.fontset);
}

// -- Icons and integer tables ------------------------------------------------------------------

void IconFunction(YYSTYPE *result, const YYSTYPE &colors, const TableValue &rows) {
  IconValue icon{};
  icon.kind = ICON;
  icon.value = TextsOf(rows);
  icon.colors = colors.kind == NIL ? nullptr : colors.colortbl.value;
  result->icon = icon;
}

IntegerValue *IntegerItem(const NumberValue &value) {
  if (value.kind == NIL) {
    return ModelNew<IntegerValue>(NIL);
  }
  auto *item = ModelNew<IntegerValue>(INTEGER_NUMBER);
  item->value = NumberToInteger(value);
  return item;
}

void IntegerTableFunction(YYSTYPE *result, const TableValue &items) {
  List good = ModelList();
  for (const ListItem *node = ListFirstNode(items.value); node != nullptr; node = node->next) {
    if (static_cast<KindRec *>(node->data)->kind != NIL) {
      ModelAppend(good, node->data);
    }
  }
  TableValue table{};
  table.kind = INTEGER_TABLE;
  table.value = good;
  result->int_tbl = table;
}

// -- Declarations ------------------------------------------------------------------------------

void ValueDeclare(const SymbolValue &name, const YYSTYPE &value) {
  if (value.kind == NIL) {
    return;
  }
  KindRec *record = nullptr;
  CastAssignToValue(value, &record);
  SymbolAdd(ModelBinding(ValueOfType(value.kind), name.name, record));
}

void ValueRedeclare(const SymbolValue &name, const YYSTYPE &value) {
  const std::int32_t bound = BoundValue<KindRec>(name).kind;
  if (IsTypeCompatible(bound, value.kind, true)) {
    ErrorFormat(kError, "Variable %s already assigned a value", name.name);
    return;
  }
  const char *source = NameOfType(value.kind);
  ErrorFormat(kError, "Cannot cast expression of type %s to value %s : %s", source, name.name,
              NameOfType(bound));
}

void ValueImport(const SymbolValue &name) {
  ErrorFormat(kError, "Limitation: no imports, cannot import value %s", name.name);
}

void IdentifierDeclare(const SymbolValue &name) {
  auto *word = ModelNew<BareWord>(IDENTIFIER_NAME);
  word->name = name.name;
  SymbolAdd(word);
  ErrorFormat(kWarning, "Limitation: no identifiers, %s will be ignored", name.name);
}
