// Tests of the types of values: their names, what may be assigned to what, the conversion on
// assignment, compound strings, and the lists of the module.

#include "Types.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "Error.h"
#include "Expression.h"
#include "Initialize.h"
#include "Listing.h"
#include "Model.h"
#include "Options.h"
#include "Reset.h"

namespace {

using Texts = std::vector<std::string>;
using Kinds = std::vector<std::int32_t>;

constexpr const char *kOutOfRange = "kivuxl: Internal error: token out of range.\n";
constexpr const char *kNoValue = "kivuxl: Internal error: token does not denote a value.\n";

const Texts kNone;

// The errors reported so far, which are then forgotten.
Texts Errors() {
  Texts texts;
  ListingLine *line = ListingCurrentLine();
  for (const ListItem *node = ListFirstNode(line->errors); node != nullptr; node = node->next) {
    const auto *error = static_cast<const ErrorRec *>(node->data);
    EXPECT_EQ(kError, error->error_type) << error->msg;
    texts.emplace_back(error->msg);
  }
  line->errors = nullptr;
  return texts;
}

class Types : public testing::Test {
protected:
  void SetUp() override {
    ProgramReset();
    program_name = "kivuxl";
    LoadVocabulary();
  }
  void TearDown() override { ProgramReset(); }

  static void LoadVocabulary() {
    ASSERT_TRUE(SymbolTableInit());
    ASSERT_TRUE(FunctionNameInit());
    ASSERT_TRUE(CharacterSetInit());
  }
};

// What a call writes on standard error.
template <typename Call> std::string ErrorOutput(Call call) {
  testing::internal::CaptureStderr();
  call();
  return testing::internal::GetCapturedStderr();
}

// -- Names and binding kinds -------------------------------------------------------------------

struct TypeRow {
  std::int32_t kind; // of the value
  const char *name;
  std::int32_t binding;
  std::array<std::int32_t, 3> converts_to; // 0 where not used
};

// Every kind that denotes a value.
constexpr auto kTypes = std::to_array<TypeRow>({
    {BOOLEAN_NUMBER, "boolean", BOOLEAN_VALUE, {INTEGER_NUMBER, SINGLE_FLOAT_NUMBER, FLOAT_NUMBER}},
    {INTEGER_NUMBER, "integer", INTEGER_VALUE, {BOOLEAN_NUMBER, SINGLE_FLOAT_NUMBER, FLOAT_NUMBER}},
    {SINGLE_FLOAT_NUMBER,
     "single_float",
     SINGLE_FLOAT_VALUE,
     {BOOLEAN_NUMBER, INTEGER_NUMBER, FLOAT_NUMBER}},
    {FLOAT_NUMBER, "float", FLOAT_VALUE, {BOOLEAN_NUMBER, INTEGER_NUMBER, SINGLE_FLOAT_NUMBER}},
    {SIMPLE_STRING, "string", STRING_VALUE, {COMPOUND_STRING}},
    {REASON_NAME, "reason", REASON_VALUE, {}},
    {ARGUMENT_NAME, "argument", ARGUMENT_VALUE, {}},
    {ANY, "any", NIL, {}},
    {ASCIZ_STRING_TABLE, "asciz_table", ASCIZ_STRING_TABLE_VALUE, {}},
    {CHARACTER_SET, "character_set", NIL, {}},
    {CLASS_REC_NAME, "class_rec_name", CLASS_REC_NAME_VALUE, {}},
    {COLOR, "color", COLOR_VALUE, {RGB}},
    {COLOR_TABLE, "color_table", COLOR_TABLE_VALUE, {}},
    {COMPOUND_STRING, "compound_string", COMPOUND_STRING_VALUE, {}},
    {COMPOUND_STRING_TABLE, "string_table", COMPOUND_STRING_TABLE_VALUE, {}},
    {FONT, "font", FONT_VALUE, {FONT_TABLE}},
    {FONTSET, "fontset", FONTSET_VALUE, {FONT_TABLE}},
    {FONT_TABLE, "font_table", FONT_TABLE_VALUE, {}},
    {ICON, "icon", ICON_VALUE, {PIXMAP}},
    {INTEGER_TABLE, "integer_table", INTEGER_TABLE_VALUE, {}},
    {KEYSYM, "keysym", KEYSYM_VALUE, {}},
    {NONE, "void", NIL, {}},
    {PIXMAP, "pixmap", PIXMAP_VALUE, {}},
    {RGB, "rgb", RGB_VALUE, {COLOR}},
    {TRANSLATION_TABLE, "translation_table", TRANSLATION_TABLE_VALUE, {}},
    {WIDE_CHARACTER, "wide_character", WIDE_CHARACTER_VALUE, {}},
    {WIDGET, "widget", NIL, {}},
    {XBITMAPFILE, "xbitmapfile", XBITMAPFILE_VALUE, {PIXMAP}},
});

const TypeRow *TypeOf(std::int32_t kind) {
  for (const TypeRow &type : kTypes) {
    if (type.kind == kind) {
      return &type;
    }
  }
  return nullptr;
}

TEST_F(Types, NameOfEachKind) {
  for (std::int32_t kind = 0; kind < MAX_TOKENS; ++kind) {
    const TypeRow *type = TypeOf(kind);
    const char *name = nullptr;
    const std::string output = ErrorOutput([&] { name = NameOfType(kind); });
    EXPECT_STREQ(type == nullptr ? "[invalid type]" : type->name, name) << kind;
    EXPECT_EQ(type == nullptr ? kNoValue : "", output) << kind;
  }
}

TEST_F(Types, NameOfNoToken) {
  for (const std::int32_t kind : {static_cast<std::int32_t>(MAX_TOKENS), 100000, -1}) {
    const char *name = nullptr;
    EXPECT_EQ(kOutOfRange, ErrorOutput([&] { name = NameOfType(kind); })) << kind;
    EXPECT_STREQ("[invalid type]", name) << kind;
  }
}

TEST_F(Types, BindingOfEachKind) {
  const std::string output = ErrorOutput([] {
    for (std::int32_t kind = 0; kind < MAX_TOKENS; ++kind) {
      const TypeRow *type = TypeOf(kind);
      EXPECT_EQ(type == nullptr ? static_cast<std::int32_t>(NIL) : type->binding, ValueOfType(kind))
          << kind;
    }
  });
  EXPECT_EQ("", output);
}

TEST_F(Types, BindingOfNoToken) {
  for (const std::int32_t kind : {static_cast<std::int32_t>(MAX_TOKENS), -1}) {
    EXPECT_EQ(kOutOfRange, ErrorOutput([&] { EXPECT_EQ(NIL, ValueOfType(kind)); })) << kind;
  }
}

// -- Compatibility -----------------------------------------------------------------------------

// Every kind that takes a value of that kind, in ascending order.
Kinds TargetsOf(std::int32_t source, bool allow_conversion) {
  Kinds targets;
  for (std::int32_t target = NIL; target < MAX_TOKENS; ++target) {
    if (IsTypeCompatible(target, source, allow_conversion)) {
      targets.push_back(target);
    }
  }
  return targets;
}

Kinds Sorted(Kinds kinds) {
  std::sort(kinds.begin(), kinds.end());
  kinds.erase(std::unique(kinds.begin(), kinds.end()), kinds.end());
  return kinds;
}

TEST_F(Types, CompatibleWithoutConversion) {
  for (const TypeRow &type : kTypes) {
    EXPECT_EQ(Sorted({type.kind, ANY}), TargetsOf(type.kind, false)) << type.name;
  }
}

TEST_F(Types, CompatibleWithConversion) {
  for (const TypeRow &type : kTypes) {
    Kinds expected = {type.kind, ANY};
    std::copy_if(type.converts_to.begin(), type.converts_to.end(), std::back_inserter(expected),
                 [](std::int32_t kind) { return kind != 0; });
    EXPECT_EQ(Sorted(expected), TargetsOf(type.kind, true)) << type.name;
  }
}

TEST_F(Types, WidgetTakesNamesAndReferences) {
  for (const bool allow_conversion : {false, true}) {
    EXPECT_EQ((Kinds{NIL, ANY, WIDGET}), TargetsOf(NIL, allow_conversion));
    EXPECT_EQ((Kinds{ANY, WIDGET, WIDGET_REF}), TargetsOf(WIDGET_REF, allow_conversion));
  }
}

TEST_F(Types, VoidTakesNothingButVoid) {
  for (std::int32_t source = NIL; source < MAX_TOKENS; ++source) {
    EXPECT_EQ(source == NONE, IsTypeCompatible(NONE, source, true)) << source;
  }
  EXPECT_EQ("", ErrorOutput([] { EXPECT_FALSE(IsTypeCompatible(NONE, MAX_TOKENS, true)); }));
}

TEST_F(Types, CompatibilityOfNoToken) {
  for (const std::int32_t source : {static_cast<std::int32_t>(MAX_TOKENS), -1}) {
    EXPECT_EQ(kOutOfRange,
              ErrorOutput([&] { EXPECT_FALSE(IsTypeCompatible(COLOR, source, true)); }));
    EXPECT_EQ("", ErrorOutput([&] { EXPECT_TRUE(IsTypeCompatible(ANY, source, true)); }));
    EXPECT_EQ("", ErrorOutput([&] { EXPECT_TRUE(IsTypeCompatible(source, source, true)); }));
  }
}

// -- Copying -----------------------------------------------------------------------------------

template <typename T> const T &Copied(const YYSTYPE &value) {
  KindRec *record = nullptr;
  CastAssignToValue(value, &record);
  EXPECT_NE(nullptr, record);
  EXPECT_EQ(value.kind, record->kind);
  return *static_cast<const T *>(record);
}

// A value of that kind in that member.
template <typename T> YYSTYPE Holding(T YYSTYPE::*member, std::int32_t kind, T record) {
  YYSTYPE value{};
  record.kind = kind;
  value.*member = record;
  return value;
}

TEST_F(Types, CopiesOfNumbers) {
  YYSTYPE value{};
  NumberToValue(&value, NumberOfBoolean(true));
  EXPECT_TRUE(Copied<BooleanValue>(value).value);
  NumberToValue(&value, NumberOfInteger(-7));
  EXPECT_EQ(-7, Copied<IntegerValue>(value).value);
  NumberToValue(&value, NumberOfSingleFloat(1.5F));
  EXPECT_EQ(1.5F, Copied<SingleFloatValue>(value).value);
  NumberToValue(&value, NumberOfFloat(0.1));
  EXPECT_EQ(0.1, Copied<FloatValue>(value).value);
}

TEST_F(Types, CopiesOfTexts) {
  StringValue string{};
  string.value = "text";
  string.charsets = ModelList();
  for (const std::int32_t kind : {SIMPLE_STRING, LITERAL_SINGLE, LITERAL_DOUBLE}) {
    const auto &copy = Copied<StringValue>(Holding(&YYSTYPE::string, kind, string));
    EXPECT_EQ(string.value, copy.value);
    EXPECT_EQ(string.charsets, copy.charsets);
  }
  TextValue text{};
  text.value = "F1";
  EXPECT_EQ(text.value, Copied<KeysymValue>(Holding(&YYSTYPE::keysym, KEYSYM, text)).value);
  EXPECT_EQ(text.value,
            Copied<WideCharValue>(Holding(&YYSTYPE::wchar, WIDE_CHARACTER, text)).value);
}

// The buffer of a string that is being joined is handed on as it is.
TEST_F(Types, CopyOfAJoinedString) {
  YYSTYPE value{};
  StringBuild build{};
  build.kind = SIMPLE_STRING;
  build.value = "joined";
  build.length = 6;
  build.capacity = 20;
  value.build = build;
  EXPECT_EQ(build.value, Copied<StringValue>(value).value);
}

TEST_F(Types, CopiesOfNames) {
  ArgumentName argument{};
  argument.name = "XmNmine";
  argument.value_type = COLOR;
  const auto &argument_copy =
      Copied<ArgumentName>(Holding(&YYSTYPE::argument, ARGUMENT_NAME, argument));
  EXPECT_EQ(argument.name, argument_copy.name);
  EXPECT_EQ(COLOR, argument_copy.value_type);

  ReasonName reason{};
  reason.name = "mine";
  reason.predefined = true;
  const auto &reason_copy = Copied<ReasonName>(Holding(&YYSTYPE::reason, REASON_NAME, reason));
  EXPECT_EQ(reason.name, reason_copy.name);
  EXPECT_TRUE(reason_copy.predefined);

  ClassRecNameValue record{};
  record.name = "name";
  record.value = "xmLabelClassRec";
  const auto &record_copy =
      Copied<ClassRecNameValue>(Holding(&YYSTYPE::classrec, CLASS_REC_NAME, record));
  EXPECT_EQ(record.name, record_copy.name);
  EXPECT_EQ(record.value, record_copy.value);

  XBitmapFileValue bitmap{};
  bitmap.name = "name";
  bitmap.value = "a.xbm";
  const auto &bitmap_copy = Copied<XBitmapFileValue>(Holding(&YYSTYPE::xbmf, XBITMAPFILE, bitmap));
  EXPECT_EQ(bitmap.name, bitmap_copy.name);
  EXPECT_EQ(bitmap.value, bitmap_copy.value);
}

TEST_F(Types, CopiesOfColorsAndFonts) {
  ColorValue color{};
  color.value = "red";
  color.fallback = FOREGROUND;
  for (const std::int32_t kind : {COLOR, RGB}) {
    const auto &copy = Copied<ColorValue>(Holding(&YYSTYPE::color, kind, color));
    EXPECT_EQ(color.value, copy.value);
    EXPECT_EQ(FOREGROUND, copy.fallback);
  }

  FontValue font{};
  font.value = "fixed";
  font.charset = "iso_latin1";
  const auto &font_copy = Copied<FontValue>(Holding(&YYSTYPE::font, FONT, font));
  EXPECT_EQ(font.value, font_copy.value);
  EXPECT_EQ(font.charset, font_copy.charset);

  FontsetValue fontset{};
  fontset.value = ModelList();
  fontset.charset = "iso_greek";
  const auto &fontset_copy = Copied<FontsetValue>(Holding(&YYSTYPE::fontset, FONTSET, fontset));
  EXPECT_EQ(fontset.value, fontset_copy.value);
  EXPECT_EQ(fontset.charset, fontset_copy.charset);

  IconValue icon{};
  icon.value = ModelList();
  icon.colors = ModelList();
  const auto &icon_copy = Copied<IconValue>(Holding(&YYSTYPE::icon, ICON, icon));
  EXPECT_EQ(icon.value, icon_copy.value);
  EXPECT_EQ(icon.colors, icon_copy.colors);
}

TEST_F(Types, CopiesOfTables) {
  TableValue table{};
  table.value = ModelList();
  for (const std::int32_t kind :
       {ASCIZ_STRING_TABLE, COLOR_TABLE, COMPOUND_STRING, COMPOUND_STRING_TABLE, FONT_TABLE,
        INTEGER_TABLE, TRANSLATION_TABLE}) {
    EXPECT_EQ(table.value, Copied<TableValue>(Holding(&YYSTYPE::ascz_tbl, kind, table)).value)
        << kind;
  }
}

TEST_F(Types, CopyOfAReference) {
  WidgetRef reference{};
  reference.name = "w";
  reference.managed = UNMANAGED;
  const auto &copy = Copied<WidgetRef>(Holding(&YYSTYPE::widget_r, WIDGET_REF, reference));
  EXPECT_EQ(reference.name, copy.name);
  EXPECT_EQ(UNMANAGED, copy.managed);
}

TEST_F(Types, CopyOfAValueThatIsMissing) {
  UnionValue missing{};
  missing.name = "later";
  for (const std::int32_t kind : {NIL, NONE}) {
    EXPECT_EQ(missing.name, Copied<UnionValue>(Holding(&YYSTYPE::value, kind, missing)).name);
  }
}

TEST_F(Types, CastAssignCopiesTheWholeValue) {
  static_assert(std::is_trivially_copyable_v<YYSTYPE>);
  YYSTYPE source{};
  WidgetDef def{};
  def.kind = WIDGET_DEF;
  def.name = "w";
  def.managed = MANAGED;
  def.gadget = GADGET;
  def.attribs = ModelList();
  def.ctls = ModelList();
  def.maybe_top = true;
  source.widget_d = def;
  YYSTYPE destination{};
  CastAssign(source, &destination);
  EXPECT_EQ(WIDGET_DEF, destination.kind);
  EXPECT_EQ(def.name, destination.widget_d.name);
  EXPECT_EQ(MANAGED, destination.widget_d.managed);
  EXPECT_EQ(GADGET, destination.widget_d.gadget);
  EXPECT_EQ(def.attribs, destination.widget_d.attribs);
  EXPECT_EQ(def.ctls, destination.widget_d.ctls);
  EXPECT_TRUE(destination.widget_d.maybe_top);
}

// -- Conversion on assignment ------------------------------------------------------------------

YYSTYPE Number(const NumberValue &number) {
  YYSTYPE value{};
  NumberToValue(&value, number);
  return value;
}

KindRec *Converted(const YYSTYPE &value, std::int32_t target) {
  KindRec *record = nullptr;
  ConvertAssignToValue(value, target, &record);
  EXPECT_NE(nullptr, record);
  return record;
}

std::string ShowNumber(const KindRec *record) {
  const NumberValue number = ValueToNumber(record);
  switch (number.kind) {
  case BOOLEAN_NUMBER:
    return number.value.boolean ? "true" : "false";
  case INTEGER_NUMBER:
    return "integer " + std::to_string(number.value.integer);
  case SINGLE_FLOAT_NUMBER:
    return "single " + std::to_string(number.value.single);
  case FLOAT_NUMBER:
    return "float " + std::to_string(number.value.float_v);
  default:
    return "kind " + std::to_string(number.kind);
  }
}

TEST_F(Types, EachNumberBecomesEachOther) {
  const struct {
    NumberValue number;
    const char *results[4]; // as Boolean, integer, single float, float
  } rows[] = {
      {NumberOfBoolean(true), {"true", "integer 1", "single 1.000000", "float 1.000000"}},
      {NumberOfInteger(-3), {"true", "integer -3", "single -3.000000", "float -3.000000"}},
      {NumberOfSingleFloat(2.5F), {"true", "integer 2", "single 2.500000", "float 2.500000"}},
      {NumberOfFloat(0.5), {"true", "integer 0", "single 0.500000", "float 0.500000"}},
      {NumberOfFloat(0), {"false", "integer 0", "single 0.000000", "float 0.000000"}},
  };
  constexpr std::int32_t kTargets[4] = {BOOLEAN_NUMBER, INTEGER_NUMBER, SINGLE_FLOAT_NUMBER,
                                        FLOAT_NUMBER};
  constexpr std::int32_t kKeywords[4] = {BOOLEAN, INTEGER, SINGLE_FLOAT, FLOAT};
  for (const auto &row : rows) {
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(row.results[i], ShowNumber(Converted(Number(row.number), kTargets[i])));
      EXPECT_EQ(row.results[i], ShowNumber(Converted(Number(row.number), kKeywords[i])));
    }
  }
  EXPECT_EQ(kNone, Errors());
}

TEST_F(Types, NumberTooLargeForItsTarget) {
  EXPECT_EQ("integer 0", ShowNumber(Converted(Number(NumberOfFloat(3e9)), INTEGER_NUMBER)));
  EXPECT_EQ(Texts{"Number too large to convert to integer"}, Errors());
  EXPECT_EQ("single 0.000000",
            ShowNumber(Converted(Number(NumberOfFloat(1e300)), SINGLE_FLOAT_NUMBER)));
  EXPECT_EQ(Texts{"Number too large to convert to single float"}, Errors());
}

TEST_F(Types, AnyTakesTheValueAsItIs) {
  EXPECT_EQ("integer 7", ShowNumber(Converted(Number(NumberOfInteger(7)), ANY)));
  EXPECT_EQ("float 7.500000", ShowNumber(Converted(Number(NumberOfFloat(7.5)), ANY)));
}

YYSTYPE String(const char *text) {
  YYSTYPE value{};
  value.string.kind = SIMPLE_STRING;
  value.string.value = text;
  value.string.charsets = nullptr;
  return value;
}

TEST_F(Types, StringBecomesACompoundString) {
  const KindRec *record = Converted(String("Hello"), COMPOUND_STRING);
  ASSERT_EQ(COMPOUND_STRING, record->kind);
  List items = static_cast<const CompoundStringVal *>(record)->value;
  ASSERT_EQ(1U, ListLength(items));
  const auto *segment = static_cast<CompoundStringSegment *>(ListGetFirst(items));
  EXPECT_EQ(COMPOUND_STRING, segment->kind);
  EXPECT_STREQ("Hello", segment->value);
}

TEST_F(Types, StringStaysAString) {
  const YYSTYPE value = String("Hello");
  const KindRec *record = Converted(value, SIMPLE_STRING);
  ASSERT_EQ(SIMPLE_STRING, record->kind);
  EXPECT_EQ(value.string.value, static_cast<const StringValue *>(record)->value);
}

TEST_F(Types, FontBecomesAFontTable) {
  FontValue font{};
  font.value = "fixed";
  font.charset = "iso_latin1";
  const KindRec *record = Converted(Holding(&YYSTYPE::font, FONT, font), FONT_TABLE);
  ASSERT_EQ(FONT_TABLE, record->kind);
  List items = static_cast<const FontTableValue *>(record)->value;
  ASSERT_EQ(1U, ListLength(items));
  const auto *item = static_cast<const FontValue *>(ListGetFirst(items));
  EXPECT_EQ(FONT, item->kind);
  EXPECT_STREQ("fixed", item->value);
  EXPECT_STREQ("iso_latin1", item->charset);
}

TEST_F(Types, FontsetBecomesAFontTable) {
  FontsetValue fontset{};
  fontset.value = ModelList();
  fontset.charset = "iso_greek";
  const KindRec *record = Converted(Holding(&YYSTYPE::fontset, FONTSET, fontset), FONT_TABLE);
  ASSERT_EQ(FONT_TABLE, record->kind);
  List items = static_cast<const FontTableValue *>(record)->value;
  ASSERT_EQ(1U, ListLength(items));
  const auto *item = static_cast<const FontsetValue *>(ListGetFirst(items));
  EXPECT_EQ(FONTSET, item->kind);
  EXPECT_EQ(fontset.value, item->value);
  EXPECT_STREQ("iso_greek", item->charset);
}

TEST_F(Types, FontTableIsCopied) {
  TableValue table{};
  table.value = ModelList();
  const KindRec *record = Converted(Holding(&YYSTYPE::font_tbl, FONT_TABLE, table), FONT_TABLE);
  ASSERT_EQ(FONT_TABLE, record->kind);
  EXPECT_EQ(table.value, static_cast<const FontTableValue *>(record)->value);
}

// These are accepted for each other, but keep their kind.
TEST_F(Types, ColorsAndPicturesAreCopied) {
  EXPECT_EQ(COLOR, Converted(Holding(&YYSTYPE::color, COLOR, ColorValue{}), RGB)->kind);
  EXPECT_EQ(RGB, Converted(Holding(&YYSTYPE::rgb, RGB, RGBValue{}), COLOR)->kind);
  EXPECT_EQ(ICON, Converted(Holding(&YYSTYPE::icon, ICON, IconValue{}), PIXMAP)->kind);
  EXPECT_EQ(XBITMAPFILE,
            Converted(Holding(&YYSTYPE::xbmf, XBITMAPFILE, XBitmapFileValue{}), PIXMAP)->kind);
}

TEST_F(Types, UnknownNameBecomesAReference) {
  UnionValue name{};
  name.name = "later";
  const KindRec *record = Converted(Holding(&YYSTYPE::value, NIL, name), WIDGET);
  ASSERT_EQ(WIDGET_REF, record->kind);
  const auto *reference = static_cast<const WidgetRef *>(record);
  EXPECT_EQ(name.name, reference->name);
  EXPECT_EQ(NIL, reference->managed);
  EXPECT_EQ(nullptr, reference->resolved);
}

TEST_F(Types, UnknownNameForAnythingElseIsCopied) {
  UnionValue name{};
  name.name = "later";
  for (const std::int32_t target : {ANY, INTEGER_NUMBER, COMPOUND_STRING, FONT_TABLE}) {
    const KindRec *record = Converted(Holding(&YYSTYPE::value, NIL, name), target);
    EXPECT_EQ(NIL, record->kind);
    EXPECT_EQ(name.name, static_cast<const UnionValue *>(record)->name);
  }
  EXPECT_EQ(kNone, Errors());
}

TEST_F(Types, ReferenceStaysAReference) {
  WidgetRef reference{};
  reference.name = "w";
  const KindRec *record = Converted(Holding(&YYSTYPE::widget_r, WIDGET_REF, reference), WIDGET);
  ASSERT_EQ(WIDGET_REF, record->kind);
  EXPECT_EQ(reference.name, static_cast<const WidgetRef *>(record)->name);
}

// A value that no conversion fits is never taken for a record of another type.
TEST_F(Types, ValueWithoutFittingConversionIsCopied) {
  EXPECT_EQ(SIMPLE_STRING, Converted(String("x"), FONT_TABLE)->kind);
  EXPECT_EQ(COLOR, Converted(Holding(&YYSTYPE::color, COLOR, ColorValue{}), INTEGER_NUMBER)->kind);
  EXPECT_EQ(FONT, Converted(Holding(&YYSTYPE::font, FONT, FontValue{}), COMPOUND_STRING)->kind);
  EXPECT_EQ("integer 3", ShowNumber(Converted(Number(NumberOfInteger(3)), COMPOUND_STRING)));
  EXPECT_EQ(kNone, Errors());
  EXPECT_EQ("integer 0", ShowNumber(Converted(String("x"), INTEGER_NUMBER)));
  EXPECT_EQ(Texts{"Expression cannot be converted to integer"}, Errors());
}

// -- Compound strings --------------------------------------------------------------------------

// One line for an item: an option by its kind, a segment by its text and properties.
std::string ShowItem(const CompoundStringSegment &item) {
  switch (item.kind) {
  case CHARACTER_SET:
    return std::string("charset ") + item.charset;
  case RIGHT_TO_LEFT:
    return std::string("right_to_left ") + (item.direction ? "true" : "false");
  case SEPARATE:
    return std::string("separate ") + (item.separate ? "true" : "false");
  default:
    break;
  }
  EXPECT_EQ(COMPOUND_STRING, item.kind);
  EXPECT_FALSE(item.separate);
  std::string direction = item.direction ? "right to left" : "left to right";
  if (item.default_direction) {
    direction = item.direction ? "bad direction" : "default direction";
  }
  return std::string("'") + item.value + "' " + (item.default_charset ? "default charset" : "") +
         (item.charset != nullptr ? item.charset : "") + ", " + direction;
}

Texts Show(List items) {
  Texts texts;
  for (const ListItem *node = ListFirstNode(items); node != nullptr; node = node->next) {
    texts.push_back(ShowItem(*static_cast<const CompoundStringSegment *>(node->data)));
  }
  return texts;
}

struct TextRun {
  const char *charset; // or null
  std::int32_t start;
  std::int32_t length;
};

StringValue *StringOfRuns(const char *text, const std::vector<TextRun> &runs) {
  auto *string = ModelNew<StringValue>(SIMPLE_STRING);
  string->value = text;
  string->charsets = ModelList();
  for (const TextRun &run : runs) {
    auto *record = ModelNew<StringCharSet>(SIMPLE_STRING);
    record->str = text;
    record->start = run.start;
    record->length = run.length;
    if (run.charset != nullptr) {
      record->charset = ModelNew<CharacterSetValue>(CHARACTER_SET);
      record->charset->name = run.charset;
    }
    ModelAppend(string->charsets, record);
  }
  return string;
}

StringValue *PlainString(const char *text) {
  auto *string = ModelNew<StringValue>(SIMPLE_STRING);
  string->value = text;
  return string;
}

CompoundStringSegment *Option(std::int32_t kind, bool value) {
  auto *option = ModelNew<CompoundStringSegment>(kind);
  option->direction = kind == RIGHT_TO_LEFT && value;
  option->separate = kind == SEPARATE && value;
  option->charset = kind == CHARACTER_SET ? "iso_latin2" : nullptr;
  return option;
}

List Options(const std::vector<CompoundStringSegment *> &options) {
  List list = ModelList();
  for (CompoundStringSegment *option : options) {
    ModelAppend(list, option);
  }
  return list;
}

TEST_F(Types, CompoundOfNothing) {
  EXPECT_EQ(kNone, Show(StringToCompound(nullptr, nullptr)));
  List options = Options({Option(SEPARATE, true)});
  List items = StringToCompound(PlainString(nullptr), options);
  ASSERT_NE(nullptr, items);
  EXPECT_EQ(kNone, Show(items));
  EXPECT_EQ(1U, ListLength(options));
}

TEST_F(Types, CompoundOfPlainText) {
  EXPECT_EQ(Texts{"'Hello' default charset, default direction"},
            Show(StringToCompound(PlainString("Hello"), nullptr)));
  EXPECT_EQ(Texts{"'' default charset, default direction"},
            Show(StringToCompound(PlainString(""), nullptr)));
}

TEST_F(Types, CompoundOfAListWithoutRuns) {
  EXPECT_EQ(Texts{"'Hello' default charset, default direction"},
            Show(StringToCompound(StringOfRuns("Hello", {}), nullptr)));
}

TEST_F(Types, CompoundOptionsComeBeforeThePlainText) {
  List options =
      Options({Option(SEPARATE, true), Option(CHARACTER_SET, true), Option(RIGHT_TO_LEFT, true)});
  EXPECT_EQ((Texts{"charset iso_latin2", "right_to_left true", "separate true",
                   "'Hello' default charset, default direction"}),
            Show(StringToCompound(PlainString("Hello"), options)));
  EXPECT_EQ((Texts{"charset iso_latin2", "right_to_left true"}), Show(options));
}

// A second separate option is an option like the others.
TEST_F(Types, CompoundTakesOneSeparateOption) {
  List options = Options({Option(SEPARATE, false), Option(SEPARATE, true)});
  EXPECT_EQ((Texts{"separate true", "separate false", "'x' default charset, default direction"}),
            Show(StringToCompound(PlainString("x"), options)));
  EXPECT_EQ(Texts{"separate true"}, Show(options));
}

TEST_F(Types, CompoundOfOneRun) {
  EXPECT_EQ(Texts{"'Hello' iso_latin1, left to right"},
            Show(StringToCompound(StringOfRuns("Hello", {{"iso_latin1", 0, 5}}), nullptr)));
  EXPECT_EQ(Texts{"'Hello' iso_hebrew_lr, right to left"},
            Show(StringToCompound(StringOfRuns("Hello", {{"iso_hebrew_lr", 0, 5}}), nullptr)));
}

TEST_F(Types, CompoundOfACharacterSetThatIsNotBound) {
  EXPECT_EQ(Texts{"'Hello' mine, default direction"},
            Show(StringToCompound(StringOfRuns("Hello", {{"mine", 0, 5}}), nullptr)));
  EXPECT_EQ(Texts{"'Hello' integer, default direction"},
            Show(StringToCompound(StringOfRuns("Hello", {{"integer", 0, 5}}), nullptr)));
}

TEST_F(Types, CompoundOfARunWithoutCharacterSet) {
  EXPECT_EQ(Texts{"'Hello' default charset, default direction"},
            Show(StringToCompound(StringOfRuns("Hello", {{nullptr, 0, 5}}), nullptr)));
}

TEST_F(Types, CompoundMergesRunsOfOneCharacterSet) {
  const StringValue *string = StringOfRuns(
      "abcdef",
      {{"iso_latin1", 0, 1}, {"iso_latin1", 1, 2}, {"iso_greek", 3, 2}, {"iso_latin1", 5, 1}});
  EXPECT_EQ((Texts{"'abc' iso_latin1, left to right", "'de' iso_greek, left to right",
                   "'f' iso_latin1, left to right"}),
            Show(StringToCompound(string, nullptr)));
}

TEST_F(Types, CompoundMergesRunsWithoutCharacterSet) {
  EXPECT_EQ(
      Texts{"'abcd' default charset, default direction"},
      Show(StringToCompound(StringOfRuns("abcd", {{nullptr, 0, 2}, {nullptr, 2, 2}}), nullptr)));
}

TEST_F(Types, CompoundComparesCharacterSetsByCase) {
  const std::vector<TextRun> runs = {{"mine", 0, 1}, {"MINE", 1, 1}};
  EXPECT_EQ((Texts{"'a' mine, default direction", "'b' MINE, default direction"}),
            Show(StringToCompound(StringOfRuns("ab", runs), nullptr)));
  case_sensitive = false;
  EXPECT_EQ(Texts{"'ab' mine, default direction"},
            Show(StringToCompound(StringOfRuns("ab", runs), nullptr)));
}

TEST_F(Types, CompoundOfTextBeforeARun) {
  EXPECT_EQ((Texts{"'ab' default charset, default direction", "'cd' iso_greek, left to right"}),
            Show(StringToCompound(StringOfRuns("abcd", {{"iso_greek", 2, 2}}), nullptr)));
}

// Text between two runs parts them, though their character set is one.
TEST_F(Types, CompoundOfTextBetweenRuns) {
  const StringValue *string = StringOfRuns("abcde", {{"iso_greek", 0, 2}, {"iso_greek", 3, 2}});
  EXPECT_EQ((Texts{"'ab' iso_greek, left to right", "'c' default charset, default direction",
                   "'de' iso_greek, left to right"}),
            Show(StringToCompound(string, nullptr)));
}

TEST_F(Types, CompoundDropsTextAfterTheLastRun) {
  EXPECT_EQ(Texts{"'ab' iso_greek, left to right"},
            Show(StringToCompound(StringOfRuns("abcd", {{"iso_greek", 0, 2}}), nullptr)));
}

TEST_F(Types, CompoundOptionsComeBeforeEachSegment) {
  List options = Options({Option(RIGHT_TO_LEFT, true), Option(SEPARATE, true)});
  const StringValue *string =
      StringOfRuns("abcdef", {{"iso_latin1", 1, 2}, {"iso_latin1", 3, 1}, {"iso_greek", 4, 2}});
  EXPECT_EQ((Texts{"right_to_left true", "'a' default charset, default direction",
                   "right_to_left true", "'bcd' iso_latin1, left to right", "right_to_left true",
                   "separate true", "'ef' iso_greek, left to right"}),
            Show(StringToCompound(string, options)));
}

// Many joined runs make one segment, and no piece is copied for each of them.
TEST_F(Types, CompoundOfManyRuns) {
  constexpr int kRuns = 200000;
  const std::string text(kRuns, 'x');
  std::vector<TextRun> runs;
  runs.reserve(kRuns);
  for (int i = 0; i < kRuns; ++i) {
    runs.push_back({nullptr, i, 1});
  }
  List items = StringToCompound(StringOfRuns(text.c_str(), runs), nullptr);
  ASSERT_EQ(1U, ListLength(items));
  EXPECT_EQ(text, static_cast<CompoundStringSegment *>(ListGetFirst(items))->value);
}

TEST_F(Types, CompoundOfAnEmptyRun) {
  EXPECT_EQ((Texts{"'' iso_latin1, left to right", "'ab' iso_greek, left to right"}),
            Show(StringToCompound(StringOfRuns("ab", {{"iso_latin1", 0, 0}, {"iso_greek", 0, 2}}),
                                  nullptr)));
}

TEST_F(Types, CompoundOfRunsBeyondTheText) {
  EXPECT_EQ((Texts{"'ab' iso_latin1, left to right", "'' default charset, default direction",
                   "'' iso_greek, left to right"}),
            Show(StringToCompound(StringOfRuns("ab", {{"iso_latin1", 0, 9}, {"iso_greek", 20, 5}}),
                                  nullptr)));
}

// -- Lists of the module -----------------------------------------------------------------------

Texts Names(List list) {
  Texts names;
  for (const ListItem *node = ListFirstNode(list); node != nullptr; node = node->next) {
    names.emplace_back(static_cast<const SimpleObjectRec *>(node->data)->name);
  }
  return names;
}

ProcedureName *Procedure(const char *name) {
  auto *procedure = ModelNew<ProcedureName>(PROCEDURE_NAME);
  procedure->name = name;
  return procedure;
}

TEST_F(Types, ProceduresAreKeptOnce) {
  EXPECT_EQ(nullptr, unbound_procedures);
  ProcedureName *first = Procedure("b");
  AddProcedure(first);
  AddProcedure(Procedure("a"));
  AddProcedure(Procedure("b"));
  AddProcedure(Procedure("B"));
  EXPECT_EQ((Texts{"b", "a", "B"}), Names(unbound_procedures));
  EXPECT_EQ(first, ListGetFirst(unbound_procedures));
}

// The list keeps the way of comparing that held when it was made.
TEST_F(Types, ProceduresWithoutCase) {
  case_sensitive = false;
  AddProcedure(Procedure("b"));
  case_sensitive = true;
  AddProcedure(Procedure("B"));
  AddProcedure(Procedure("a"));
  EXPECT_EQ((Texts{"b", "a"}), Names(unbound_procedures));
}

TEST_F(Types, ClassesAreKeptOnce) {
  EXPECT_EQ(nullptr, widget_classes);
  NamedBinding *form = ModelBinding(WIDGET_CLASS, "XmForm", nullptr);
  NamedBinding *label = ModelBinding(WIDGET_CLASS, "XmLabel", nullptr);
  AddWidgetClass(label);
  AddWidgetClass(form);
  AddWidgetClass(label);
  EXPECT_EQ((Texts{"XmLabel", "XmForm"}), Names(widget_classes));
}

WidgetDef *Object(const char *name) {
  auto *def = ModelNew<WidgetDef>(WIDGET_NAME);
  def->name = name;
  def->maybe_top = true;
  auto *binding = ModelNew<WidgetValue>(WIDGET_NAME);
  binding->name = name;
  binding->value = def;
  EXPECT_TRUE(SymbolAdd(binding));
  return def;
}

TEST_F(Types, TopLevelObjects) {
  EXPECT_EQ(nullptr, top_level_objects);
  WidgetDef *child = Object("child");
  child->maybe_top = false;
  WidgetMaybeTopLevel(child);
  EXPECT_EQ(nullptr, top_level_objects);
  WidgetDef *b = Object("b");
  WidgetMaybeTopLevel(b);
  WidgetMaybeTopLevel(Object("a"));
  WidgetMaybeTopLevel(b);
  EXPECT_EQ((Texts{"b", "a"}), Names(top_level_objects));

  WidgetNotTopLevel("b");
  EXPECT_FALSE(b->maybe_top);
  EXPECT_EQ(Texts{"a"}, Names(top_level_objects));
}

TEST_F(Types, ReferenceBeforeAnyTopLevelObject) {
  WidgetDef *w = Object("w");
  WidgetNotTopLevel("w");
  EXPECT_FALSE(w->maybe_top);
  EXPECT_EQ(nullptr, top_level_objects);
}

TEST_F(Types, NamesThatAreNoObjectsAreNotTopLevel) {
  WidgetMaybeTopLevel(Object("w"));
  WidgetNotTopLevel("unknown");
  WidgetNotTopLevel("integer");
  EXPECT_EQ(Texts{"w"}, Names(top_level_objects));
}

TEST_F(Types, AnonymousObjectsAreCounted) {
  const std::string first = AnonymousWidget("XmPushButton");
  EXPECT_EQ("anon_XmPushButton_1", first);
  EXPECT_STREQ("anon_XmPushButton_2", AnonymousWidget("XmPushButton"));
  EXPECT_STREQ("anon_make_it_3", AnonymousWidget("make_it"));
  TypesReset();
  EXPECT_STREQ("anon_XmForm_1", AnonymousWidget("XmForm"));
}

} // namespace
