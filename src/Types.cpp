// See Types.h.  What a type is called and what its values may become stands in the rows of
// `token_types`; how a semantic value of a kind is copied or converted stands in two tables here.

#include "Types.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "Alloc.h"
#include "Error.h"
#include "Expression.h"
#include "Model.h"
#include "Options.h"

static std::int32_t anon_count = 0; // objects named by AnonymousWidget so far

// -- Names and compatibility -------------------------------------------------------------------

static bool IsToken(std::int32_t kind) { return kind >= 0 && kind < MAX_TOKENS; }

// False after an internal message.
static bool TokenInRange(std::int32_t kind) {
  if (IsToken(kind)) {
    return true;
  }
  ErrorMessage(kImmediate, "Internal error: token out of range");
  return false;
}

// The description of a type, or null where the kind is no type.
static const FunctionName *TypeRow(std::int32_t kind) {
  return IsToken(kind) ? token_types[kind] : nullptr;
}

const char *NameOfType(std::int32_t kind) {
  constexpr const char *kInvalid = "[invalid type]";
  if (!TokenInRange(kind)) {
    return kInvalid;
  }
  const FunctionName *type = TypeRow(kind);
  if (type == nullptr) {
    ErrorMessage(kImmediate, "Internal error: token does not denote a value");
    return kInvalid;
  }
  return type->name;
}

std::int32_t ValueOfType(std::int32_t kind) {
  if (!TokenInRange(kind)) {
    return NIL;
  }
  const FunctionName *type = TypeRow(kind);
  return type == nullptr ? static_cast<std::int32_t>(NIL) : type->const_type;
}

// Whether the type lists the kind among those that its values may take.
static bool TypePromotesTo(const FunctionName &type, std::int32_t kind) {
  const std::int32_t *end = type.proms + type.num_proms;
  return std::find(type.proms, end, kind) != end;
}

bool IsTypeCompatible(std::int32_t target, std::int32_t source, bool allow_conversion) {
  if (source == target || target == ANY) {
    return true;
  }
  if (target == NONE) {
    return false;
  }
  if (target == WIDGET && (source == NIL || source == WIDGET_REF)) {
    return true;
  }
  if (!TokenInRange(source)) {
    return false;
  }
  const FunctionName *type = TypeRow(source);
  if (type == nullptr) {
    return false;
  }
  return target == type->value_type || (allow_conversion && TypePromotesTo(*type, target));
}

// -- Copying -----------------------------------------------------------------------------------

// What is done with a semantic value of the kind, or for a target of the kind.
struct ValueRow {
  std::int32_t kind;
  KindRec *(*make)(const YYSTYPE &value);
};

template <auto Member> static KindRec *CopyMember(const YYSTYPE &value) {
  return ModelCopy(value.*Member);
}

// The member of the semantic value that holds a value of each kind.
constexpr ValueRow kCopies[] = {
    {BOOLEAN_NUMBER, CopyMember<&YYSTYPE::boolean>},
    {INTEGER_NUMBER, CopyMember<&YYSTYPE::integer>},
    {SINGLE_FLOAT_NUMBER, CopyMember<&YYSTYPE::single>},
    {FLOAT_NUMBER, CopyMember<&YYSTYPE::float_t>},
    {LITERAL_SINGLE, CopyMember<&YYSTYPE::string>},
    {LITERAL_DOUBLE, CopyMember<&YYSTYPE::string>},
    {SIMPLE_STRING, CopyMember<&YYSTYPE::string>},
    {REASON_NAME, CopyMember<&YYSTYPE::reason>},
    {ARGUMENT_NAME, CopyMember<&YYSTYPE::argument>},
    {ASCIZ_STRING_TABLE, CopyMember<&YYSTYPE::ascz_tbl>},
    {CLASS_REC_NAME, CopyMember<&YYSTYPE::classrec>},
    {COLOR, CopyMember<&YYSTYPE::color>},
    {COLOR_TABLE, CopyMember<&YYSTYPE::colortbl>},
    {COMPOUND_STRING, CopyMember<&YYSTYPE::cmpstr>},
    {COMPOUND_STRING_TABLE, CopyMember<&YYSTYPE::cstr_tbl>},
    {FONT, CopyMember<&YYSTYPE::font>},
    {FONTSET, CopyMember<&YYSTYPE::fontset>},
    {FONT_TABLE, CopyMember<&YYSTYPE::font_tbl>},
    {ICON, CopyMember<&YYSTYPE::icon>},
    {INTEGER_TABLE, CopyMember<&YYSTYPE::int_tbl>},
    {KEYSYM, CopyMember<&YYSTYPE::keysym>},
    {RGB, CopyMember<&YYSTYPE::rgb>},
    {TRANSLATION_TABLE, CopyMember<&YYSTYPE::xtable>},
    {WIDE_CHARACTER, CopyMember<&YYSTYPE::wchar>},
    {XBITMAPFILE, CopyMember<&YYSTYPE::xbmf>},
    {WIDGET_REF, CopyMember<&YYSTYPE::widget_r>},
};

// What the table makes of the value, or null when it has no row for that kind.
template <std::size_t Count>
static KindRec *MakeByKind(const ValueRow (&rows)[Count], std::int32_t kind, const YYSTYPE &value) {
  const ValueRow *row = std::find_if(std::begin(rows), std::end(rows),
                                     [kind](const ValueRow &r) { return r.kind == kind; });
  return row == std::end(rows) ? nullptr : row->make(value);
}

void CastAssignToValue(const YYSTYPE &value, KindRec **out) {
  KindRec *copy = MakeByKind(kCopies, value.kind, value);
  // Any other kind, such as NIL, has nothing but its name.
  *out = copy != nullptr ? copy : ModelCopy(value.value);
}

void CastAssign(const YYSTYPE &source, YYSTYPE *destination) { *destination = source; }

// -- Conversion on assignment ------------------------------------------------------------------

static KindRec *NewNumber(const NumberValue &number) {
  YYSTYPE value{};
  NumberToValue(&value, number);
  KindRec *record = nullptr;
  CastAssignToValue(value, &record);
  return record;
}

static KindRec *MakeBoolean(const YYSTYPE &value) {
  return NewNumber(NumberOfBoolean(NumberToBoolean(ValueToNumber(&value.value))));
}

static KindRec *MakeInteger(const YYSTYPE &value) {
  return NewNumber(NumberOfInteger(NumberToInteger(ValueToNumber(&value.value))));
}

static KindRec *MakeSingleFloat(const YYSTYPE &value) {
  return NewNumber(NumberOfSingleFloat(NumberToSingleFloat(ValueToNumber(&value.value))));
}

static KindRec *MakeFloat(const YYSTYPE &value) {
  return NewNumber(NumberOfFloat(NumberToFloat(ValueToNumber(&value.value))));
}

// Null when the value is no string.
static KindRec *MakeCompoundString(const YYSTYPE &value) {
  if (value.kind != SIMPLE_STRING) {
    return nullptr;
  }
  auto *result = ModelNew<CompoundStringVal>(COMPOUND_STRING);
  result->value = StringToCompound(&value.string, nullptr);
  return result;
}

// A font table of one item; null when the value is neither a font nor a font set.
static KindRec *MakeFontTable(const YYSTYPE &value) {
  if (value.kind != FONT && value.kind != FONTSET) {
    return nullptr;
  }
  KindRec *item = nullptr;
  CastAssignToValue(value, &item);
  auto *result = ModelNew<FontTableValue>(FONT_TABLE);
  result->value = ModelList();
  ModelAppend(result->value, item);
  return result;
}

// The conversions by the kind that is asked for.
constexpr ValueRow kConversions[] = {
    {BOOLEAN_NUMBER, MakeBoolean},
    {BOOLEAN, MakeBoolean},
    {INTEGER_NUMBER, MakeInteger},
    {INTEGER, MakeInteger},
    {SINGLE_FLOAT_NUMBER, MakeSingleFloat},
    {SINGLE_FLOAT, MakeSingleFloat},
    {FLOAT_NUMBER, MakeFloat},
    {FLOAT, MakeFloat},
    {COMPOUND_STRING, MakeCompoundString},
    {FONT_TABLE, MakeFontTable},
};

// The value as the target type has it, or null where it is to be taken as it is.
static KindRec *ConvertValue(const YYSTYPE &value, std::int32_t target) {
  const FunctionName *type = TypeRow(value.kind);
  if (type == nullptr || !type->do_prom || IsTypeCompatible(target, value.kind, false)) {
    return nullptr;
  }
  return MakeByKind(kConversions, target, value);
}

void ConvertAssignToValue(const YYSTYPE &value, std::int32_t target, KindRec **out) {
  if (value.kind == NIL && target == WIDGET) { // an object that is defined later
    auto *reference = ModelNew<WidgetRef>(WIDGET_REF);
    reference->name = value.value.name;
    reference->managed = NIL;
    *out = reference;
    return;
  }
  *out = ConvertValue(value, target);
  if (*out == nullptr) {
    CastAssignToValue(value, out);
  }
}

// -- Compound strings --------------------------------------------------------------------------

// A compound string in the making.  The text of the last segment grows in `text` until its last
// run is known, so that a segment of many runs is copied once.
struct CompoundBuild {
  List items;
  List options;                // put before each segment
  CompoundStringSegment *last; // the segment made last, null before one
  std::string text;            // its text
};

static void CompoundFinishText(CompoundBuild *build) {
  if (build->last != nullptr) {
    build->last->value = ModelText(build->text);
  }
  build->text.clear();
}

// Adds a segment of the default character set; the caller changes that.
static CompoundStringSegment *CompoundAddSegment(CompoundBuild *build, std::string_view text) {
  CompoundFinishText(build);
  for (const ListItem *node = ListFirstNode(build->options); node != nullptr; node = node->next) {
    ModelAppend(build->items, node->data);
  }
  auto *segment = ModelNew<CompoundStringSegment>(COMPOUND_STRING);
  segment->default_charset = true;
  segment->default_direction = true;
  ModelAppend(build->items, segment);
  build->last = segment;
  build->text = text;
  return segment;
}

static const char *RunCharacterSetName(const StringCharSet &run) {
  return run.charset == nullptr ? nullptr : run.charset->name;
}

// Adds a segment in the run's character set, written in the direction of the set of that name.
static void CompoundAddRun(CompoundBuild *build, const StringCharSet &run, std::string_view text) {
  CompoundStringSegment *segment = CompoundAddSegment(build, text);
  segment->default_charset = run.charset == nullptr;
  segment->charset = RunCharacterSetName(run);
  const CharacterSetValue *bound = SymbolFindCharacterSet(segment->charset);
  if (bound != nullptr) {
    segment->default_direction = false;
    segment->direction = bound->write_dir;
  }
}

static bool RunContinues(const StringCharSet *previous, const StringCharSet &run) {
  return previous != nullptr && SafeStrcmp(RunCharacterSetName(run), RunCharacterSetName(*previous),
                                           static_cast<int>(case_sensitive)) == 0;
}

// The part of the text from `start` on, as far as there is one.
static std::string_view TextPart(std::string_view text, std::int32_t start, std::int32_t length) {
  const auto from = static_cast<std::size_t>(std::max(start, 0));
  return from >= text.size() ? std::string_view()
                             : text.substr(from, static_cast<std::size_t>(std::max(length, 0)));
}

// Runs that follow each other in one character set are one segment, and text before a run that
// stands in no run is a segment of the default character set.  Text after the last run makes no
// segment; that is meant.
static void CompoundAddRuns(CompoundBuild *build, std::string_view text, List runs) {
  const StringCharSet *previous = nullptr;
  std::int32_t cursor = 0;
  for (const ListItem *node = ListFirstNode(runs); node != nullptr; node = node->next) {
    const auto *run = static_cast<const StringCharSet *>(node->data);
    const std::string_view part = TextPart(text, run->start, run->length);
    if (cursor < run->start) {
      CompoundAddSegment(build, TextPart(text, cursor, run->start - cursor));
      previous = nullptr;
    }
    if (RunContinues(previous, *run)) {
      build->text += part;
    } else {
      CompoundAddRun(build, *run, part);
    }
    previous = run;
    cursor = run->start + run->length;
  }
}

// Takes the first option of kind SEPARATE out of the list; null when it has none.
static KindRec *TakeSeparateOption(List options) {
  for (const ListItem *node = ListFirstNode(options); node != nullptr; node = node->next) {
    auto *option = static_cast<KindRec *>(node->data);
    if (option->kind == SEPARATE) {
      ListDeleteItem(options, option);
      return option;
    }
  }
  return nullptr;
}

// Puts the option before the last segment.
static void CompoundInsertOption(const CompoundBuild &build, KindRec *option) {
  const std::uint32_t before = ListLength(build.items);
  ListPrependItem(build.items, build.last, option);
  if (ListLength(build.items) == before) {
    OutOfMemory();
  }
}

List StringToCompound(const StringValue *string, List options) {
  CompoundBuild build = {ModelList(), options, nullptr, {}};
  if (string == nullptr || string->value == nullptr) {
    return build.items;
  }
  KindRec *separate = TakeSeparateOption(options);
  if (ListLength(string->charsets) == 0) {
    CompoundAddSegment(&build, string->value);
  } else {
    CompoundAddRuns(&build, string->value, string->charsets);
  }
  CompoundFinishText(&build);
  if (separate != nullptr) {
    CompoundInsertOption(build, separate);
  }
  return build.items;
}

// -- Lists of the module -----------------------------------------------------------------------

// Appends a record to a list keyed by name, which is made on first use and then keeps the way of
// comparing names, unless one of its name is there.
static void AppendNamed(List *list, SimpleObjectRec *record) {
  if (*list == nullptr) {
    *list = ListCreate(case_sensitive ? ListCompareCaseSensitive : ListCompareCaseInsensitive,
                       nullptr, SimpleListKeyFunc);
    if (*list == nullptr) {
      OutOfMemory();
    }
  }
  if (ListFindFirst(*list, record->name) == nullptr) {
    ModelAppend(*list, record);
  }
}

void AddProcedure(ProcedureName *proc) { AppendNamed(&unbound_procedures, proc); }

void AddWidgetClass(WidgetClassValue *widget_class) { AppendNamed(&widget_classes, widget_class); }

void WidgetMaybeTopLevel(WidgetDef *def) {
  if (def->maybe_top) {
    AppendNamed(&top_level_objects, def);
  }
}

void WidgetNotTopLevel(const char *name) {
  SimpleObjectRec *entry = SymbolFind(name);
  if (entry != nullptr && entry->kind == WIDGET_NAME) {
    WidgetDef *def = static_cast<WidgetValue *>(entry)->value;
    if (def != nullptr) {
      def->maybe_top = false;
    }
  }
  if (top_level_objects != nullptr) {
    ListDeleteItem(top_level_objects, name);
  }
}

char *AnonymousWidget(const char *widget_class) {
  ++anon_count;
  return ModelText(std::string("anon_") + widget_class + "_" + std::to_string(anon_count));
}

void TypesReset() { anon_count = 0; }
