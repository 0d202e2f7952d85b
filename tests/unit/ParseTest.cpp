// The parser and its actions, looked at in the model that they leave: what no generated unit shows
// directly.  Reports are compared as whole texts in the cases.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "Initialize.h"
#include "ParseUsage.h"
#include "ParseValues.h"
#include "Parser.h"
#include "Reset.h"
#include "SourceFiles.h"
#include "WidgetUtils.h"

class Parse : public SourceFiles {
protected:
  void SetUp() override {
    ProgramReset();
    SourceFiles::SetUp();
    ASSERT_TRUE(NamesTableInit());
    for (const auto &load :
         {ReservedWordInit, FunctionNameInit, CharacterSetInit, NamedValueInit, WidgetClassInit,
          ArgumentNameInit, ReasonNameInit, NonReservedWordInit}) {
      ASSERT_TRUE(load());
    }
  }

  void TearDown() override {
    ProgramReset();
    SourceFiles::TearDown();
  }

  // Parses the text as a module; the grouped report.
  static std::string ParseText(std::string_view text) {
    Put("m.uil", text);
    if (FilesOpen("m.uil", false) == nullptr) {
      return "cannot be opened";
    }
    status = yyparse();
    return Report();
  }

  template <typename T> static const T &Value(const char *name) {
    const SimpleObjectRec *entry = SymbolFind(name);
    return *static_cast<const T *>(static_cast<const NamedBinding *>(entry)->value.value);
  }

  static const WidgetDef *Widget(const char *name) {
    return static_cast<const WidgetValue *>(SymbolFind(name))->value;
  }

  static std::vector<std::string> Names(List list) {
    std::vector<std::string> names;
    for (const ListItem *node = ListFirstNode(list); node != nullptr; node = node->next) {
      names.emplace_back(static_cast<const SimpleObjectRec *>(node->data)->name);
    }
    return names;
  }

  static inline int status = 0;
};

using Strings = std::vector<std::string>;

// No unit shows which of its options a character set without a name has been given.
TEST_F(Parse, OptionsOfACharacterSetAreItsOwn) {
  EXPECT_EQ(ParseText("module m value "
                      "n : #character_set ('x') \"t\"; "
                      "r : #character_set ('x', right_to_left = true) \"t\"; "
                      "s : #character_set ('x', sixteen_bit = true) \"t\"; "
                      "o : #character_set ('x', right_to_left = true, right_to_left = false, "
                      "sixteen_bit = true) \"t\"; "
                      "end module;"),
            "");
  const auto options = [](const char *name) {
    const auto *run =
        static_cast<const StringCharSet *>(ListGetFirst(Value<StringValue>(name).charsets));
    std::string text;
    for (const bool option :
         {run->charset->parse_dir, run->charset->write_dir, run->charset->sixteen_bit}) {
      text += option ? '1' : '0';
    }
    return text;
  };
  EXPECT_EQ(options("n"), "000");
  EXPECT_EQ(options("r"), "110");
  EXPECT_EQ(options("s"), "001");
  EXPECT_EQ(options("o"), "001");
}

TEST_F(Parse, VersionNumberIsWrittenWithThreeDecimalsInEightPlaces) {
  EXPECT_EQ(ParseText("module m version = 2 end module;"), "");
  EXPECT_STREQ(uil_version, "2.000   ");
  EXPECT_EQ(module_definition->uil_version, uil_version);
}

TEST_F(Parse, VersionMayBeAnyNumberOrAText) {
  EXPECT_EQ(ParseText("module m version = 1 + 2.25 * 2 end module;"), "");
  EXPECT_STREQ(uil_version, "5.500   ");
}

TEST_F(Parse, VersionOfTheLargestFloatIsWrittenInFull) {
  EXPECT_EQ(ParseText("module m version = 1.5e308 end module;"), "");
  EXPECT_EQ(std::string(uil_version).size(), 309U + 4U);
}

TEST_F(Parse, VersionText) {
  EXPECT_EQ(ParseText("module m version = 'v' & \"1.0\" end module;"), "");
  EXPECT_STREQ(uil_version, "v1.0");
}

TEST_F(Parse, ModuleRecordAndCharacterSet) {
  EXPECT_EQ(ParseText("module Some_Module character_set = iso_hebrew end module;"), "");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(module_definition->kind, MODULE);
  EXPECT_STREQ(module_definition->name, "Some_Module");
  EXPECT_STREQ(module_name, "Some_Module");
  EXPECT_TRUE(module_definition->case_sensitive);
  EXPECT_STREQ(default_character_set, "iso_hebrew");
  EXPECT_STREQ(module_definition->default_character_set, "iso_hebrew");
  EXPECT_EQ(uil_version, nullptr);
}

TEST_F(Parse, CaseInsensitiveNamesAreOneEntry) {
  EXPECT_EQ(ParseText("module m names = case_insensitive VALUE Wide : 3; list L : ARGUMENTS { "
                      "xmnwidth = WIDE; }; END Module;"),
            "");
  EXPECT_FALSE(case_sensitive);
  EXPECT_FALSE(module_definition->case_sensitive);
  EXPECT_EQ(SymbolFind("WIDE"), SymbolFind("Wide"));
  EXPECT_EQ(symbol_table->modulus, 511U); // as before
}

TEST_F(Parse, OverrideCaseKeepsTheCase) {
  override_case = true;
  EXPECT_EQ(ParseText("module m names = case_insensitive value a : 3; A : 4; end module;"), "");
  EXPECT_TRUE(case_sensitive);
  EXPECT_EQ(Value<IntegerValue>("a").value, 3);
  EXPECT_EQ(Value<IntegerValue>("A").value, 4);
}

TEST_F(Parse, RgbIsThirteenCharacters) {
  EXPECT_EQ(ParseText("module m value c : rgb(65535, 0, 255); end module;"), "");
  EXPECT_EQ(SymbolFind("c")->kind, RGB_VALUE);
  EXPECT_EQ(Value<RGBValue>("c").kind, RGB);
  EXPECT_STREQ(Value<RGBValue>("c").value, "#ffff000000ff");
  EXPECT_EQ(Value<RGBValue>("c").fallback, NIL);
}

TEST_F(Parse, FailedValueLeavesItsNameNew) {
  EXPECT_EQ(ParseText("module m\nvalue c : rgb(1, 2);\n c : 5;\nend module;\n"),
            "m.uil(2): value c : rgb(1, 2);\n"
            "   error: RGB function takes 3 arguments\n"
            "\n");
  EXPECT_EQ(Value<IntegerValue>("c").value, 5);
}

TEST_F(Parse, NumbersKeepTheirKind) {
  EXPECT_EQ(ParseText("module m value b : on; i : 7 / 2; s : single_float(1.5); f : 2.5 * 2;"
                      " end module;"),
            "");
  EXPECT_EQ(SymbolFind("b")->kind, BOOLEAN_VALUE);
  EXPECT_TRUE(Value<BooleanValue>("b").value);
  EXPECT_EQ(Value<IntegerValue>("i").value, 3);
  EXPECT_EQ(SymbolFind("s")->kind, SINGLE_FLOAT_VALUE);
  EXPECT_EQ(Value<SingleFloatValue>("s").value, 1.5F);
  EXPECT_EQ(SymbolFind("f")->kind, FLOAT_VALUE);
  EXPECT_EQ(Value<FloatValue>("f").value, 5.0);
}

TEST_F(Parse, JoinedTextMovesTheRunsOfItsParts) {
  EXPECT_EQ(ParseText("module m value a : #iso_latin1\"abc\" & 'de';"
                      " b : 'x' & a & #iso_greek\"fg\" & 'h' & a; end module;"),
            "");
  const auto &text = Value<StringValue>("b");
  EXPECT_STREQ(text.value, "xabcdefghabcde");
  struct Run {
    const char *charset;
    int start;
    int length;
  };
  const std::vector<Run> expected = {
      {"iso_latin1", 1, 3}, {"iso_greek", 6, 2}, {"iso_latin1", 9, 3}};
  ASSERT_EQ(ListLength(text.charsets), expected.size());
  const ListItem *node = ListFirstNode(text.charsets);
  for (const Run &run : expected) {
    const auto *actual = static_cast<const StringCharSet *>(node->data);
    EXPECT_STREQ(actual->charset->name, run.charset);
    EXPECT_EQ(actual->start, run.start);
    EXPECT_EQ(actual->length, run.length);
    node = node->next;
  }
  EXPECT_STREQ(Value<StringValue>("a").value, "abcde") << "a bound text is not written to";
  EXPECT_EQ(ListLength(Value<StringValue>("a").charsets), 1U);
}

TEST_F(Parse, LongChainsOfTextsAreJoined) {
  std::string text = "module m value a : 'x'";
  for (int i = 0; i < 20000; ++i) {
    text += "\n& 'x'";
  }
  EXPECT_EQ(ParseText(text + "; end module;"), "");
  EXPECT_EQ(std::string(Value<StringValue>("a").value), std::string(20001, 'x'));
}

TEST_F(Parse, CompoundStringsOfANameAreCopied) {
  EXPECT_EQ(ParseText("module m value a : compound_string('x'); b : a & a & compound_string('y');"
                      " end module;"),
            "");
  EXPECT_EQ(ListLength(Value<CompoundStringVal>("a").value), 1U);
  EXPECT_EQ(ListLength(Value<CompoundStringVal>("b").value), 3U);
}

// Calls `take`, which gives the length of a list, with ever more memory; each time it gives less
// than two the run must have ended.
static void ExpectEndBeforeTwo(const std::function<std::uint32_t()> &take) {
  std::uint32_t length = 0;
  long count = 0;
  for (; length < 2; ++count) {
    ASSERT_LT(count, 20);
    testing::internal::CaptureStderr();
    AllocFailAfter(count);
    try {
      length = take();
      AllocFailAfter(-1);
      EXPECT_EQ(testing::internal::GetCapturedStderr() + std::to_string(length), "2") << count;
    } catch (const ProgramExit &exit) {
      AllocFailAfter(-1);
      EXPECT_EQ(testing::internal::GetCapturedStderr(), "kivuxl: Out of memory.\n") << count;
    }
  }
  EXPECT_GT(count, 3); // the list and two nodes at least
}

// A joined text has room for the zero byte behind it, also when its parts just fill what there is.
TEST_F(Parse, JoinedTextsKeepRoomForTheirEnd) {
  for (std::size_t length = 1; length < 40; ++length) {
    StringBuild part{};
    part.kind = SIMPLE_STRING;
    part.value = "x";
    part.length = 1;
    YYSTYPE joined{};
    joined.build = part;
    for (std::size_t i = 1; i < length; ++i) {
      const StringBuild left = joined.build;
      StringJoin(&joined, left, part);
      ASSERT_EQ(joined.build.value, std::string(i + 1, 'x'));
      ASSERT_GT(joined.build.capacity, joined.build.length) << length;
    }
  }
}

TEST_F(Parse, BoundListsAreCopiedWholeOrNotAtAll) {
  ASSERT_EQ(ParseText("module m value s : #iso_latin2\"x\";"
                      " c : compound_string('x') & compound_string('y'); end module;"),
            "");
  SymbolValue text{};
  text.value = SymbolFind("s");
  SymbolValue compound{};
  compound.value = SymbolFind("c");
  ExpectEndBeforeTwo([&] {
    YYSTYPE bound{};
    StringBound(&bound, text);
    YYSTYPE joined{};
    StringJoin(&joined, bound.build, bound.build);
    return ListLength(joined.build.charsets);
  });
  ExpectEndBeforeTwo([&] {
    YYSTYPE copy{};
    CompoundStringBound(&copy, compound);
    return ListLength(copy.cmpstr.value);
  });
}

TEST_F(Parse, UserCharacterSetHasItsTextAsName) {
  EXPECT_EQ(ParseText("module m value f : font('8x13', character_set = character_set('mine', "
                      "right_to_left = on, sixteen_bit = 1)); end module;"),
            "");
  EXPECT_STREQ(Value<FontValue>("f").charset, "mine");
}

TEST_F(Parse, FontTableItemsReplaceTheirCharacterSet) {
  EXPECT_EQ(ParseText("module m value f : font('8x13', character_set = iso_latin1);"
                      " t : font_table(f, iso_greek = f); end module;"),
            "");
  const List items = Value<FontTableValue>("t").value;
  EXPECT_STREQ(static_cast<const FontValue *>(ListGetFirst(items))->charset, "iso_latin1");
  EXPECT_STREQ(static_cast<const FontValue *>(ListGetLast(items))->charset, "iso_greek");
  EXPECT_STREQ(Value<FontValue>("f").charset, "iso_latin1");
}

TEST_F(Parse, ProcedureUsageFollowsTheLastUse) {
  EXPECT_EQ(ParseText("module m procedure p; q; r; list l : procedures { p; q(); };"
                      " object w : user_defined procedure q { }; end module;"),
            "");
  const auto usage = [](const char *name) {
    return static_cast<const ProcedureDecl *>(SymbolFind(name))->value->usage;
  };
  EXPECT_EQ(usage("p"), CALLBACK_PROC);
  EXPECT_EQ(usage("q"), CREATE_PROC);
  EXPECT_EQ(usage("r"), NIL);
  EXPECT_EQ(Names(unbound_procedures), (Strings{"p", "q", "r"}));
}

TEST_F(Parse, ObjectsClauseCountsAtTheDefinition) {
  EXPECT_EQ(ParseText("module m objects = { XmPushButton = gadget; } object"
                      " a : XmPushButton { }; b : XmPushButton widget { }; c : XmLabel { };"
                      " d : XmLabel gadget { }; e : XmPushButtonGadget { }; end module;"),
            "");
  const auto gadget = [](const char *name) { return Widget(name)->gadget; };
  EXPECT_EQ(gadget("a"), GADGET);
  EXPECT_EQ(gadget("b"), WIDGET);
  EXPECT_EQ(gadget("c"), WIDGET);
  EXPECT_EQ(gadget("d"), GADGET);
  EXPECT_EQ(gadget("e"), WIDGET);
}

TEST_F(Parse, TopLevelObjectsStandInTheOrderOfTheirDefinitions) {
  EXPECT_EQ(ParseText("module m object"
                      " a : XmForm { arguments { XmNdefaultButton = XmPushButton z; };"
                      "              controls { XmLabel c; }; };"
                      " b : XmForm { }; c : XmLabel { }; z : XmPushButton { };"
                      " y : XmForm { controls { XmForm b; }; }; end module;"),
            "");
  EXPECT_EQ(Names(top_level_objects), (Strings{"a", "z", "y"}));
  EXPECT_EQ(Names(widget_classes), (Strings{"XmPushButton", "XmLabel", "XmForm"}));
}

TEST_F(Parse, AnonymousObjectsAreNumberedWhenTheyAreComplete) {
  EXPECT_EQ(ParseText("module m object f : XmForm { controls { unmanaged XmForm { controls {"
                      " XmLabel { }; }; }; XmLabel { }; }; }; end module;"),
            "");
  const auto *controls = static_cast<const UnionList *>(ListGetFirst(Widget("f")->ctls));
  EXPECT_EQ(Names(controls->value), (Strings{"anon_XmForm_2", "anon_XmLabel_3"}));
  const auto *form = static_cast<const WidgetDef *>(ListGetFirst(controls->value));
  EXPECT_EQ(form->managed, UNMANAGED);
  EXPECT_TRUE(form->anon);
  EXPECT_EQ(Names(static_cast<const UnionList *>(ListGetFirst(form->ctls))->value),
            (Strings{"anon_XmLabel_1"}));
}

TEST_F(Parse, ForwardReferenceTakesTheFirstClass) {
  EXPECT_EQ(ParseText("module m\nobject f : XmForm { controls { a; XmLabel a; }; };\n"
                      " a : XmForm { };\nend module;\n"),
            "m.uil(3):  a : XmForm { };\n"
            "   error: Widget a is class XmLabel, not class XmForm\n"
            "\n");
  EXPECT_FALSE(WidgetIsDefined(Widget("a")));
}

TEST_F(Parse, ListsKeepTheirItemsInOrder) {
  EXPECT_EQ(ParseText("module m value extra : argument('extra', integer); list"
                      " a : arguments { XmNwidth = 1; extra = 2; };"
                      " b : arguments { XmNx = 3; arguments a; XmNy = 4; }; end module;"),
            "");
  const auto *list = static_cast<const ListDecl *>(SymbolFind("b"))->value;
  EXPECT_EQ(Names(list->value), (Strings{"XmNx", "a", "XmNy"}));
  const auto *inner = static_cast<const ListDecl *>(SymbolFind("a"))->value;
  EXPECT_EQ(Names(inner->value), (Strings{"XmNwidth", "extra"}));
  EXPECT_FALSE(static_cast<const ArgumentInvoke *>(ListGetLast(inner->value))->predefined);
}

TEST_F(Parse, CallbacksShareANamedListOfProcedures) {
  EXPECT_EQ(ParseText("module m procedure p; list l : procedures { p; p; };"
                      " c : callbacks { XmNactivateCallback = procedures l; }; end module;"),
            "");
  const auto *callbacks = static_cast<const ListDecl *>(SymbolFind("c"))->value;
  const auto *callback = static_cast<const CallbackValue *>(ListGetFirst(callbacks->value));
  EXPECT_STREQ(callback->name, "XmNactivateCallback");
  EXPECT_EQ(callback->value, static_cast<const ListDecl *>(SymbolFind("l"))->value->value);
}

TEST_F(Parse, EveryConstructHasItsUsageText) {
  for (int construct = 0; construct < kConstructCount; ++construct) {
    EXPECT_STRNE(UsageOf(static_cast<Construct>(construct)), "");
  }
  EXPECT_STREQ(UsageOf(kNamesClause), "names = case_[in]sensitive");
  EXPECT_STREQ(UsageOf(kXBitmapFile), "xbitmapfile ( <filename> )");
  EXPECT_STREQ(UsageOf(kUserDefinedObject),
               "user_defined procedure <procedure> { <attribute> ; ... }");
}

// A part that is wrong is reported once, and what it is a part of goes on without it.
TEST_F(Parse, FaultyPartsAreLeftOut) {
  struct Row {
    const char *text;
    Construct part;
  };
  const Row rows[] = {
      {"value t : color_table (color (1) = 'x', color ('red') = 'y');", kColor},
      {"value t : font_table (font (1), font ('fixed'));", kFont},
      {"value c : compound_string (1) & compound_string ('a');", kCompoundString},
      {"value c : compound_string ('a') & compound_string (1);", kCompoundString},
      {"value t : compound_string_table (compound_string (1), compound_string ('a'));",
       kCompoundString},
      {"value c : compound_string ('a', character_set = character_set (1));",
       kCharacterSetFunction},
      {"value f : font ('fixed', character_set = character_set (1));", kCharacterSetFunction},
      {"value t : integer_table (integer (), 5);", kIntegerFunction},
      {"value r : rgb (integer (), 5, 6);", kIntegerFunction},
      {"object f : XmForm { controls { XmLabel { 5 }; XmLabel b; }; }; b : XmLabel { };",
       kWidgetDefinition},
      {"object f : XmForm { controls { XmLabel b; }; }; b : XmLabel { 5 };", kWidgetDefinition},
  };
  for (const Row &row : rows) {
    const std::string text = std::string("module m ") + row.text + " end module;";
    EXPECT_EQ(ParseText(text),
              "m.uil(1): " + text + "\n  syntax: expected " + UsageOf(row.part) + "\n\n");
    TearDown();
    SetUp();
  }
}

TEST_F(Parse, WhatIsGoodOfATableStays) {
  ParseText("module m value t : integer_table (integer (), 5); end module;");
  const auto &table = Value<IntegerTableValue>("t");
  ASSERT_EQ(ListLength(table.value), 1U);
  EXPECT_EQ(static_cast<const IntegerValue *>(ListFirstNode(table.value)->data)->value, 5);
}

TEST_F(Parse, ColorsFallBackWithAndWithoutAComma) {
  EXPECT_EQ(ParseText("module m value a : color ('red' background); b : color ('red', background);"
                      " c : color ('red' foreground); d : color ('red', foreground);"
                      " e : color ('red'); end module;"),
            "");
  EXPECT_EQ(Value<ColorValue>("a").fallback, BACKGROUND);
  EXPECT_EQ(Value<ColorValue>("b").fallback, BACKGROUND);
  EXPECT_EQ(Value<ColorValue>("c").fallback, FOREGROUND);
  EXPECT_EQ(Value<ColorValue>("d").fallback, FOREGROUND);
  EXPECT_EQ(Value<ColorValue>("e").fallback, NIL);
}

TEST_F(Parse, ClausesAndSectionsMayBeEmpty) {
  EXPECT_EQ(ParseText("module m objects = { } object object end module;"), "");
}

TEST_F(Parse, FatalFaultEndsTheParse) {
  Put("m.uil", "module m value a : 1; include file 'nowhere'; value b : 2; end module;");
  ASSERT_NE(FilesOpen("m.uil", false), nullptr);
  EXPECT_EQ(ErrorsOf([] { yyparse(); }),
            "kivuxl: Include_Directive: Cannot open file nowhere.\n[exit 1]");
  EXPECT_NE(SymbolFind("a"), nullptr);
  EXPECT_EQ(SymbolFind("b"), nullptr);
}

TEST_F(Parse, RunningOutOfMemoryAnywhereEndsTheRun) {
  std::string deep;
  for (int i = 0; i < 60; ++i) { // deep enough for the parser's stack to grow
    deep = "XmForm { controls { " + deep + "}; };";
  }
  const std::string text = "module m value a : 'x' & 'y'; procedure p; list l : arguments {"
                           " XmNtitle = a; }; object f : XmForm { controls { " +
                           deep + " }; callbacks { XmNmapCallback = procedure p; }; }; end module;";
  int ended = 0;
  for (long allocations = 0; allocations < 300; ++allocations) {
    Put("m.uil", text);
    ASSERT_NE(FilesOpen("m.uil", false), nullptr);
    AllocFailAfter(allocations);
    const std::string errors = ErrorsOf([] { status = yyparse(); });
    AllocFailAfter(-1);
    ended += errors.ends_with(".\n[exit 1]") ? 1 : 0;
    EXPECT_TRUE(errors.ends_with(".\n[exit 1]") || errors.ends_with("[exit 2]") || status == 2)
        << allocations << ": " << errors;
    TearDown();
    SetUp();
  }
  EXPECT_GT(ended, 200);
}
