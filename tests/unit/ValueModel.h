#ifndef KIVUXL_VALUEMODEL_H
#define KIVUXL_VALUEMODEL_H

// For tests: builds value records and holds what a value writes against the texts that it should
// write, for a predefined argument, a user-defined one under both releases of the bindings, and no
// argument at all.

#include <string>

#include "AdaValues.h"
#include "WidgetModel.h"

class ValueModel : public WidgetModel {
protected:
  // A list of texts.
  static List Texts(std::initializer_list<const char *> texts) {
    List list = ModelList();
    for (const char *text : texts) {
      ModelAppend(list, ModelText(text));
    }
    return list;
  }
  // A value that is a text, such as a keysym.
  template <typename T> static T *Text(std::int32_t kind, const char *text) {
    auto *value = ModelNew<T>(kind);
    value->value = text;
    return value;
  }
  static TableValue *Table(std::int32_t kind, List items) {
    auto *value = ModelNew<TableValue>(kind);
    value->value = items;
    return value;
  }
  static TableValue *Table(std::int32_t kind, std::initializer_list<KindRec *> items) {
    return Table(kind, Items(items));
  }
  static FontValue *Font(const char *name, const char *charset = nullptr) {
    auto *font = Text<FontValue>(FONT, name);
    font->charset = charset;
    return font;
  }
  static FontsetValue *Fontset(std::initializer_list<const char *> names,
                               const char *charset = nullptr) {
    auto *fontset = ModelNew<FontsetValue>(FONTSET);
    fontset->value = Texts(names);
    fontset->charset = charset;
    return fontset;
  }
  static CharacterSetValue *DefineCharacterSet(const char *name, bool right_to_left) {
    auto *charset = ModelNew<CharacterSetValue>(CHARACTER_SET);
    charset->name = name;
    charset->charset = "x-registry";
    charset->write_dir = right_to_left;
    EXPECT_TRUE(SymbolAdd(ModelBinding(CHARACTER_SET_CONSTANT, name, charset)));
    return charset;
  }
  // A segment in the default character set, or in the one named.
  static CompoundStringSegment *Segment(const char *text, const char *charset = nullptr) {
    auto *segment = Text<CompoundStringSegment>(COMPOUND_STRING, text);
    segment->default_charset = charset == nullptr;
    segment->charset = charset;
    return segment;
  }

  static std::string Declared(const KindRec *value, const NamedSetting *argument, int n) {
    return Written([&](std::FILE *file) { ValueDeclareArgument(value, argument, file, n); });
  }
  static std::string Set(const KindRec *value, const NamedSetting *argument, int n) {
    return Written([&](std::FILE *file) { ValueSetArgument(value, argument, file, n); });
  }
  static std::string Cleaned(const KindRec *value, int n) {
    return Written([&](std::FILE *file) { ValueCleanup(value, file, n); });
  }

  // What a value writes in slot 7.
  struct Expected {
    std::string declaration;
    std::string setting;    // without the setting of the argument, which comes last
    std::string expression; // to which the argument is set
    std::string cleanup;
  };
  static void ExpectWritten(KindRec *value, const Expected &expected) {
    EXPECT_EQ(Declared(value, nullptr, 7), expected.declaration);
    EXPECT_EQ(Set(value, nullptr, 7), expected.setting);

    const ArgumentInvoke *predefined = Argument("XmNspacing", value);
    EXPECT_EQ(Declared(value, predefined, 7), expected.declaration);
    EXPECT_EQ(Set(value, predefined, 7), expected.setting +
                                             "    xtr5.setarg( args( 7 ), xmdef.nspacing, " +
                                             expected.expression + " );\n");

    const ArgumentInvoke *own = Argument("XmNown", value, false);
    const std::string own_setting =
        expected.setting + "    xtr5.setarg( args( 7 ), arg_7, " + expected.expression + " );\n";
    orvo_revision = 3;
    EXPECT_EQ(Declared(value, own, 7),
              "    arg_7 : constant string := \"XmNown\" & ASCII.NUL;\n" + expected.declaration);
    EXPECT_EQ(Set(value, own, 7), own_setting);
    orvo_revision = 4;
    EXPECT_EQ(Declared(value, own, 7),
              "    arg_7 : constant xmdef.argname :=\n"
              "        xmdef.argname( string'( \"XmNown\" ) & ASCII.NUL );\n" +
                  expected.declaration);
    EXPECT_EQ(Set(value, own, 7), own_setting);

    EXPECT_EQ(Cleaned(value, 7), expected.cleanup);
  }
  static void ExpectNames(const KindRec *value, const char *name, const char *pointer) {
    EXPECT_EQ(ValueVariableName(value, 12), name);
    EXPECT_EQ(ValueVariablePointer(value, 12), pointer);
  }
};

#endif
