#ifndef KIVUXL_PARSEVALUES_H
#define KIVUXL_PARSEVALUES_H

// What the parser does with values: the records that value functions build, and the declaration of
// named values.  A value that failed has kind NIL; what is made of several parts is made of those
// that did not fail.

#include "Model.h"
#include "uiltoada.h"

// The record that a name is bound to.
template <typename T> const T &BoundValue(const SymbolValue &name) {
  return *static_cast<const T *>(static_cast<const NamedBinding *>(name.value)->value.value);
}

// Lists in the making: a list without items, adding an item (a null one is not added).
TableValue NoItems();
TableValue OneItem(void *item);
void AddItem(TableValue *result, const TableValue &items, void *item);

// The value kind of a type keyword.
std::int32_t TypeOfKeyword(const SymbolValue &keyword);

// A number expression as a value.
void NumberResult(YYSTYPE *result, const YYSTYPE &number);

// Strings: a literal, a bound string, a literal in a character set (null: the default one), and
// the joining of two.
void StringLiteral(YYSTYPE *result, const StringValue &literal);
void StringBound(YYSTYPE *result, const SymbolValue &name);
void StringInCharacterSet(YYSTYPE *result, CharacterSetValue *charset, const StringValue &literal);
void StringJoin(YYSTYPE *result, const StringBuild &left, const StringBuild &right);
StringValue *StringItem(const StringBuild &string);

// A value that has just a text, of the kind given.
void TextFunction(YYSTYPE *result, std::int32_t kind, const StringValue &text);

void ArgumentFunction(YYSTYPE *result, const StringValue &name, std::int32_t value_type);
void ClassRecNameFunction(YYSTYPE *result, const StringValue &class_name);
void ReasonFunction(YYSTYPE *result, const StringValue &name);
void XBitmapFileFunction(YYSTYPE *result, const StringValue &file);

// asciz_table and translation_table: the texts of string items.
void TextTable(YYSTYPE *result, std::int32_t kind, const TableValue &strings);

// Character sets.  The semantic value of a character set is a CharacterSetConst whose value is
// the record; an option is a BooleanValue of kind RIGHT_TO_LEFT or SIXTEEN_BIT.
void CharacterSetBound(YYSTYPE *result, const SymbolValue &name);
void CharacterSetFunction(YYSTYPE *result, const StringValue &name, const TableValue &options);
CharacterSetValue *CharacterSetOf(const CharacterSetConst &charset);
BooleanValue *CharacterSetOption(std::int32_t kind, const NumberValue &value);

// Colours.
void ColorFunction(YYSTYPE *result, const StringValue &name, std::int32_t fallback);
void ColorAssign(YYSTYPE *result, const ColorValue &color, const StringValue &chars);
void ColorAssignFallback(YYSTYPE *result, std::int32_t fallback, const StringValue &chars);
void RgbFunction(YYSTYPE *result, const TableValue &components);

// Compound strings.  An option is a CompoundStringSegment of kind CHARACTER_SET, RIGHT_TO_LEFT or
// SEPARATE; null when its value failed.
CompoundStringSegment *OptionCharacterSet(const CharacterSetConst &charset);
CompoundStringSegment *OptionRightToLeft(const NumberValue &value);
CompoundStringSegment *OptionSeparate(const NumberValue &value);
void CompoundStringFunction(YYSTYPE *result, const StringValue &text, const TableValue &options);
void CompoundStringBound(YYSTYPE *result, const SymbolValue &name);
void CompoundStringJoin(YYSTYPE *result, const YYSTYPE &left, const YYSTYPE &right);
CompoundStringVal *CompoundStringItem(const YYSTYPE &value);
void StringsToCompoundTable(YYSTYPE *result, const TableValue &strings);

// Fonts.  `charset` is an option as above, of kind NIL when not given.
void FontFunction(YYSTYPE *result, const StringValue &name, const CompoundStringSegment *charset);
void FontsetFunction(YYSTYPE *result, const TableValue &names,
                     const CompoundStringSegment *charset);
// A copy of a font or font set for a font table, in the character set when that is one.
KindRec *FontTableItem(const CharacterSetConst &charset, const YYSTYPE &font);

// Icons and integer tables.
void IconFunction(YYSTYPE *result, const YYSTYPE &colors, const TableValue &rows);
IntegerValue *IntegerItem(const NumberValue &value);
void IntegerTableFunction(YYSTYPE *result, const TableValue &items);

// A table of finished items.
void TableFunction(YYSTYPE *result, std::int32_t kind, const TableValue &items);

// value <name> : ...;
void ValueDeclare(const SymbolValue &name, const YYSTYPE &value);
void ValueRedeclare(const SymbolValue &name, const YYSTYPE &value);
void ValueImport(const SymbolValue &name);

// identifier <name>;
void IdentifierDeclare(const SymbolValue &name);

#endif
