// See AdaValues.h.  One table holds all that is known of each kind of value; an index made by the
// compiler finds the row of a kind.  A new kind of value needs its own file and one row here.

#include "AdaValues.h"

#include <array>
#include <cstddef>
#include <iterator>

#include "AdaArgument.h"
#include "AdaAscizStringTable.h"
#include "AdaBoolean.h"
#include "AdaClassRecName.h"
#include "AdaColor.h"
#include "AdaCompoundString.h"
#include "AdaCompoundStringTable.h"
#include "AdaFloat.h"
#include "AdaFont.h"
#include "AdaFontTable.h"
#include "AdaFontset.h"
#include "AdaIcon.h"
#include "AdaInteger.h"
#include "AdaIntegerTable.h"
#include "AdaKeysym.h"
#include "AdaSingleFloat.h"
#include "AdaString.h"
#include "AdaTranslationTable.h"
#include "AdaWideCharacter.h"
#include "AdaWidgetRef.h"
#include "AdaXBitmapFile.h"
#include "Error.h"

namespace {

using Emitter = void (*)(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                         int n);
using Namer = std::string (*)(int n);
using Cleaner = void (*)(std::FILE *file, int n);

struct ValueFamily {
  std::int32_t kind;
  Emitter declare; // null: values of the kind never get here
  Emitter setarg;  // null: there is nothing to set
  Namer varname;
  Namer varptr;
  Cleaner cleanup; // null: there is nothing to free
  DeferUntil defer;
  const char *ada_type;
};

// A value that was not given still needs the name of its argument.
void unset_declare(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                   int n) {
  argument_declare(argument, file, n);
}

// "xlib5.real" is a name of the bindings, spelt like that.
constexpr ValueFamily kFamilies[] = {
    {BOOLEAN_NUMBER, boolean_declare, boolean_setarg, boolean_varname, boolean_varptr, nullptr,
     SETARG_BEFORE, "boolean"},
    {INTEGER_NUMBER, integer_declare, integer_setarg, integer_varname, integer_varptr, nullptr,
     SETARG_BEFORE, "integer"},
    {SINGLE_FLOAT_NUMBER, single_float_declare, single_float_setarg, single_float_varname,
     single_float_varptr, nullptr, SETARG_BEFORE, "xlib5.real"},
    {FLOAT_NUMBER, float_declare, float_setarg, float_varname, float_varptr, nullptr, SETARG_BEFORE,
     "xtr5.double"},
    {SIMPLE_STRING, string_declare, string_setarg, string_varname, string_varptr, nullptr,
     SETARG_BEFORE, "string"},
    {ASCIZ_STRING_TABLE, asciz_string_table_declare, asciz_string_table_setarg,
     asciz_string_table_varname, asciz_string_table_varptr, nullptr, SETARG_BEFORE,
     "xlibr5.stringlist"},
    {CLASS_REC_NAME, class_rec_name_declare, class_rec_name_setarg, class_rec_name_varname,
     class_rec_name_varptr, nullptr, SETARG_BEFORE, "xtr5.widgetclass"},
    {COLOR, color_declare, color_setarg, color_varname, color_varptr, nullptr, SETARG_AFTER,
     "xtr5.pixel"},
    {RGB, color_declare, color_setarg, color_varname, color_varptr, nullptr, SETARG_AFTER,
     "xtr5.pixel"},
    {COMPOUND_STRING, compound_string_declare, compound_string_setarg, compound_string_varname,
     compound_string_varptr, compound_string_cleanup, SETARG_BEFORE, "xm1_2_2.xmstring"},
    {COMPOUND_STRING_TABLE, compound_string_table_declare, compound_string_table_setarg,
     compound_string_table_varname, compound_string_table_varptr, compound_string_table_cleanup,
     SETARG_BEFORE, "xm1_2_2.xmstringlist"},
    {FONT, font_declare, font_setarg, font_varname, font_varptr, nullptr, SETARG_BEFORE,
     "xlibr5.fontstruct_ptr"},
    {FONTSET, fontset_declare, fontset_setarg, fontset_varname, fontset_varptr, nullptr,
     SETARG_BEFORE, "xlibr5.fontset"},
    {FONT_TABLE, font_table_declare, font_table_setarg, font_table_varname, font_table_varptr,
     nullptr, SETARG_BEFORE, "xm1_2_2.fontlist"},
    {ICON, icon_declare, icon_setarg, icon_varname, icon_varptr, icon_cleanup, SETARG_AFTER,
     "xlibr5.pixmap"},
    {INTEGER_TABLE, integer_table_declare, integer_table_setarg, integer_table_varname,
     integer_table_varptr, nullptr, SETARG_BEFORE, "xlibr5.intlist"},
    {KEYSYM, keysym_declare, keysym_setarg, keysym_varname, keysym_varptr, nullptr, SETARG_BEFORE,
     "xlibr5.keysym"},
    {PIXMAP, nullptr, nullptr, nullptr, nullptr, nullptr, SETARG_AFTER, "xlibr5.pixmap"},
    {TRANSLATION_TABLE, translation_table_declare, translation_table_setarg,
     translation_table_varname, translation_table_varptr, nullptr, SETARG_BEFORE,
     "xtr5.translations"},
    {WIDE_CHARACTER, wide_character_declare, wide_character_setarg, wide_character_varname,
     wide_character_varptr, nullptr, SETARG_BEFORE, "xlibr5.unsignedshortlist"},
    {XBITMAPFILE, xbitmapfile_declare, xbitmapfile_setarg, xbitmapfile_varname, xbitmapfile_varptr,
     nullptr, SETARG_AFTER, "xlibr5.pixmap"},
    {WIDGET_REF, widget_declare, widget_setarg, widget_varname, widget_varptr, nullptr,
     SETARG_SECOND, "xtr5.widget"},
    {NIL, unset_declare, nullptr, nullptr, nullptr, nullptr, SETARG_BEFORE, "xtr5.pointer"},
    {NONE, unset_declare, nullptr, nullptr, nullptr, nullptr, SETARG_BEFORE, "xtr5.pointer"},
    // every other kind
    {0, nullptr, nullptr, nullptr, nullptr, nullptr, SETARG_BEFORE, "xtr5.pointer"},
};

constexpr std::size_t kOther = std::size(kFamilies) - 1;
constexpr std::size_t kKinds = MAX_TOKENS - NIL;
using FamilyIndex = std::array<std::uint8_t, kKinds>;

// The row of each kind, by its distance from the first token.
constexpr FamilyIndex MakeIndex() {
  FamilyIndex index{};
  for (std::uint8_t &row : index) {
    row = kOther;
  }
  for (std::size_t row = 0; row < kOther; ++row) {
    index[static_cast<std::size_t>(kFamilies[row].kind - NIL)] = static_cast<std::uint8_t>(row);
  }
  return index;
}

constexpr FamilyIndex kFamilyIndex = MakeIndex();

constexpr const ValueFamily &FamilyOfKind(std::int32_t kind) {
  return kind < NIL || kind >= MAX_TOKENS
             ? kFamilies[kOther]
             : kFamilies[kFamilyIndex[static_cast<std::size_t>(kind - NIL)]];
}

constexpr bool EachKindHasItsRow() {
  for (std::size_t row = 0; row < kOther; ++row) {
    if (&FamilyOfKind(kFamilies[row].kind) != &kFamilies[row]) {
      return false;
    }
  }
  return true;
}
static_assert(EachKindHasItsRow(), "two rows for one kind");

// The family, or null after a message when there is no value.
const ValueFamily *FamilyOfValue(const KindRec *value) {
  if (value == nullptr) {
    ErrorMessage(kImmediate, "Internal error: empty value");
    return nullptr;
  }
  return &FamilyOfKind(value->kind);
}

void ReportUnexpected(const KindRec *value) {
  if (value->kind == PIXMAP) {
    ErrorMessage(kImmediate, "Internal error:  Unexpected data type PIXMAP");
  } else {
    ErrorFormat(kImmediate, "Internal error: Unexpected data type %d", value->kind);
  }
}

void EmitBy(Emitter ValueFamily::*operation, const KindRec *value, const NamedSetting *argument,
            std::FILE *file, int n) {
  const ValueFamily *family = FamilyOfValue(value);
  if (family == nullptr) {
    return;
  }
  if (family->*operation == nullptr) {
    ReportUnexpected(value);
    return;
  }
  (family->*operation)(value, argument, file, n);
}

std::string NameBy(Namer ValueFamily::*operation, const KindRec *value, int n) {
  const ValueFamily *family = FamilyOfValue(value);
  if (family == nullptr) {
    return {};
  }
  if (family->*operation == nullptr) {
    ReportUnexpected(value);
    return {};
  }
  return (family->*operation)(n);
}

} // namespace

void ValueDeclareArgument(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                          int n) {
  EmitBy(&ValueFamily::declare, value, argument, file, n);
}

void ValueSetArgument(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  EmitBy(&ValueFamily::setarg, value, argument, file, n);
}

DeferUntil ValueDeferSetting(const KindRec *value) {
  const ValueFamily *family = FamilyOfValue(value);
  if (family == nullptr) {
    return SETARG_BEFORE;
  }
  if (family->declare == nullptr) {
    ReportUnexpected(value);
  }
  return family->defer;
}

void ValueCleanup(const KindRec *value, std::FILE *file, int n) {
  const ValueFamily *family = FamilyOfValue(value);
  if (family == nullptr) {
    return;
  }
  if (family->declare == nullptr) {
    ReportUnexpected(value);
  } else if (family->cleanup != nullptr) {
    family->cleanup(file, n);
  }
}

std::string ValueVariableName(const KindRec *value, int n) {
  return NameBy(&ValueFamily::varname, value, n);
}

std::string ValueVariablePointer(const KindRec *value, int n) {
  return NameBy(&ValueFamily::varptr, value, n);
}

const char *ValueObjectType(std::int32_t kind) { return FamilyOfKind(kind).ada_type; }
