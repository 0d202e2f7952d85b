// Tests of the dispatcher: phases, and what is said of values that have no family.

#include "AdaValues.h"

#include "ValueModel.h"

namespace {

class AdaValues : public ValueModel {
protected:
  // What all six operations print and write for the value.
  static std::string Messages(KindRec *value) {
    std::string written;
    const ArgumentInvoke *own = Argument("XmNown", value, false);
    std::string messages = Reported([&] {
      ValueDeferSetting(value);
      written += Declared(value, own, 1);
      written += Set(value, own, 1);
      written += Cleaned(value, 1);
      written += ValueVariableName(value, 1);
      written += ValueVariablePointer(value, 1);
    });
    EXPECT_EQ(written, "");
    return messages;
  }
  static std::string Repeated(const std::string &text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) {
      result += text;
    }
    return result;
  }
};

TEST_F(AdaValues, PhaseOfEveryKind) {
  for (std::int32_t kind = NIL; kind < MAX_TOKENS; ++kind) {
    auto *value = ModelNew<KindRec>(kind);
    DeferUntil expected = SETARG_BEFORE;
    if (kind == COLOR || kind == RGB || kind == ICON || kind == XBITMAPFILE || kind == PIXMAP) {
      expected = SETARG_AFTER;
    } else if (kind == WIDGET_REF) {
      expected = SETARG_SECOND;
    }
    DeferUntil phase = SETARG_BEFORE;
    Reported([&] { phase = ValueDeferSetting(value); });
    EXPECT_EQ(phase, expected) << kind;
  }
}

TEST_F(AdaValues, PhaseOfAKnownKindIsSilent) {
  for (const std::int32_t kind : {BOOLEAN_NUMBER,
                                  INTEGER_NUMBER,
                                  SINGLE_FLOAT_NUMBER,
                                  FLOAT_NUMBER,
                                  SIMPLE_STRING,
                                  ASCIZ_STRING_TABLE,
                                  CLASS_REC_NAME,
                                  COLOR,
                                  RGB,
                                  COMPOUND_STRING,
                                  COMPOUND_STRING_TABLE,
                                  FONT,
                                  FONTSET,
                                  FONT_TABLE,
                                  ICON,
                                  INTEGER_TABLE,
                                  KEYSYM,
                                  TRANSLATION_TABLE,
                                  WIDE_CHARACTER,
                                  XBITMAPFILE,
                                  WIDGET_REF,
                                  NIL,
                                  NONE}) {
    auto *value = ModelNew<KindRec>(kind);
    EXPECT_EQ(Reported([&] { ValueDeferSetting(value); }), "") << kind;
  }
}

TEST_F(AdaValues, NoValue) {
  EXPECT_EQ(Messages(nullptr), Repeated("kivuxl: Internal error: empty value.\n", 6));
  DeferUntil phase = SETARG_SECOND;
  Reported([&] { phase = ValueDeferSetting(nullptr); });
  EXPECT_EQ(phase, SETARG_BEFORE);
}

TEST_F(AdaValues, PixmapHasNoFamily) {
  EXPECT_EQ(Messages(ModelNew<KindRec>(PIXMAP)),
            Repeated("kivuxl: Internal error:  Unexpected data type PIXMAP.\n", 6));
}

TEST_F(AdaValues, OtherKindsHaveNoFamily) {
  EXPECT_EQ(Messages(ModelNew<KindRec>(COLOR_TABLE)),
            Repeated("kivuxl: Internal error: Unexpected data type " +
                         std::to_string(static_cast<int>(COLOR_TABLE)) + ".\n",
                     6));
  EXPECT_EQ(Messages(ModelNew<KindRec>(0)),
            Repeated("kivuxl: Internal error: Unexpected data type 0.\n", 6));
  EXPECT_EQ(Messages(ModelNew<KindRec>(MAX_TOKENS)),
            Repeated("kivuxl: Internal error: Unexpected data type " +
                         std::to_string(static_cast<int>(MAX_TOKENS)) + ".\n",
                     6));
}

// An argument set to a name that means nothing: its phase is asked for, it is declared, set and
// cleaned up, and one message comes of it.
TEST_F(AdaValues, ArgumentWithoutAValueIsReportedOnce) {
  for (const std::int32_t kind : {NIL, NONE}) {
    auto *value = ModelNew<KindRec>(kind);
    const ArgumentInvoke *own = Argument("XmNown", value, false);
    std::string declared;
    std::string later;
    const std::string messages = Reported([&] {
      ValueDeferSetting(value);
      declared = Declared(value, own, 1);
      later = Set(value, own, 1) + Cleaned(value, 1);
      ValueDeferSetting(value);
    });
    EXPECT_EQ(messages,
              "kivuxl: Internal error: Unexpected data type " + std::to_string(kind) + ".\n");
    EXPECT_EQ(declared, "    arg_1 : constant string := \"XmNown\" & ASCII.NUL;\n");
    EXPECT_EQ(later, "");
    EXPECT_EQ(Declared(value, Argument("XmNuserData", value), 1), "");
    EXPECT_EQ(Declared(value, nullptr, 1), "");
  }
}

TEST_F(AdaValues, MissingTagHasNoName) {
  for (const std::int32_t kind : {NIL, NONE}) {
    const auto *value = ModelNew<KindRec>(kind);
    const std::string message =
        "kivuxl: Internal error: Unexpected data type " + std::to_string(kind) + ".\n";
    std::string name = "name";
    EXPECT_EQ(Reported([&] { name = ValueVariableName(value, 1); }), message);
    EXPECT_EQ(name, "");
    name = "name";
    EXPECT_EQ(Reported([&] { name = ValueVariablePointer(value, 1); }), message);
    EXPECT_EQ(name, "");
  }
}

} // namespace
