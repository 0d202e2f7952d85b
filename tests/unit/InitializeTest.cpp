// Tests of the loading of the vocabulary: every row is found under its name, and a row that is
// refused ends the loading of its table.

#include "Initialize.h"

#include <array>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Model.h"
#include "Options.h"
#include "Reset.h"
#include "Vocabulary.h"

namespace {

struct Loader {
  const char *name;
  bool (*load)();
  unsigned rows;
};

// In the order of a run.
constexpr auto kLoaders = std::to_array<Loader>({
    {"ReservedWordInit", ReservedWordInit, 15},
    {"FunctionNameInit", FunctionNameInit, 30},
    {"CharacterSetInit", CharacterSetInit, 19},
    {"NamedValueInit", NamedValueInit, 128 + 4},
    {"WidgetClassInit", WidgetClassInit, 58 + 25},
    {"ArgumentNameInit", ArgumentNameInit, 306},
    {"ReasonNameInit", ReasonNameInit, 45},
    {"NonReservedWordInit", NonReservedWordInit, 15},
});

class Initialize : public testing::Test {
protected:
  void SetUp() override {
    ProgramReset();
    ASSERT_TRUE(SymbolTableInit());
  }
  void TearDown() override { ProgramReset(); }

  static void LoadAll() {
    for (const Loader &loader : kLoaders) {
      ASSERT_TRUE(loader.load()) << loader.name;
    }
  }

  // How many buckets the table has.
  static std::uint32_t Buckets(bool (*init)(), const HashTable *table) {
    EXPECT_TRUE(init());
    return (*table)->modulus;
  }

  // Takes a name before the vocabulary comes.
  void Claim(const char *name) {
    claimed.kind = SYMBOL;
    claimed.name = name;
    ASSERT_TRUE(SymbolAdd(&claimed));
  }

  template <typename Rows> static void ExpectBoundToRows(const Rows &rows) {
    for (const auto &row : rows) {
      const auto *binding = static_cast<const NamedBinding *>(SymbolFind(row.name));
      ASSERT_NE(nullptr, binding) << row.name;
      EXPECT_EQ(row.kind, binding->kind) << row.name;
      EXPECT_STREQ(row.name, binding->name);
      EXPECT_EQ(&row, binding->value.value) << row.name;
    }
  }

  template <typename Rows> static void ExpectBoundToHeldValues(const Rows &rows) {
    for (const auto &row : rows) {
      const auto *binding = static_cast<const NamedBinding *>(SymbolFind(row.name));
      ASSERT_NE(nullptr, binding) << row.name;
      EXPECT_EQ(row.kind, binding->kind) << row.name;
      EXPECT_EQ(&row.value, binding->value.value) << row.name;
    }
  }

  BareWord claimed{};
};

TEST_F(Initialize, EveryTableHasTheSameBuckets) {
  for (const bool sensitive : {true, false}) {
    case_sensitive = sensitive;
    EXPECT_EQ(Buckets(SymbolTableInit, &symbol_table), 511U);
    EXPECT_EQ(Buckets(NamesTableInit, &names_table), 511U);
  }
}

TEST_F(Initialize, EachTableAddsItsRows) {
  unsigned entries = 0;
  for (const Loader &loader : kLoaders) {
    EXPECT_TRUE(loader.load()) << loader.name;
    entries += loader.rows;
    EXPECT_EQ(entries, symbol_table->nentries) << loader.name;
  }
  EXPECT_EQ(645U, entries);
}

// No two words of the language differ only in case.
TEST_F(Initialize, LoadsWithoutCaseToo) {
  case_sensitive = false;
  ASSERT_TRUE(SymbolTableInit());
  LoadAll();
  EXPECT_EQ(645U, symbol_table->nentries);
  EXPECT_EQ(END, SymbolFind("EnD")->kind);
}

TEST_F(Initialize, CaseCountsInNames) {
  LoadAll();
  EXPECT_EQ(MODULE, SymbolFind("module")->kind);
  EXPECT_EQ(nullptr, SymbolFind("Module"));
}

TEST_F(Initialize, WordsAreEnteredAsTheyAre) {
  LoadAll();
  for (BareWord &row : reserved_words) {
    EXPECT_EQ(&row, SymbolFind(row.name)) << row.name;
  }
  for (BareWord &row : non_res_words) {
    EXPECT_EQ(&row, SymbolFind(row.name)) << row.name;
  }
}

TEST_F(Initialize, BindingsPointToTheRows) {
  LoadAll();
  ExpectBoundToRows(function_names);
  ExpectBoundToRows(character_sets);
  ExpectBoundToRows(widget_class_rows);
  ExpectBoundToRows(argument_names_a_d);
  ExpectBoundToRows(argument_names_e_k);
  ExpectBoundToRows(argument_names_l_n);
  ExpectBoundToRows(argument_names_o_s);
  ExpectBoundToRows(argument_names_t_z);
  ExpectBoundToRows(reason_names);
}

TEST_F(Initialize, BindingsOfConstantsPointToTheValues) {
  LoadAll();
  ExpectBoundToHeldValues(constants);
  ExpectBoundToHeldValues(booleans);
}

TEST_F(Initialize, TokenTypesHoldTheLastRowOfAValueType) {
  FunctionName left_over{};
  token_types[MODULE] = &left_over;
  ASSERT_TRUE(FunctionNameInit());
  EXPECT_EQ(nullptr, token_types[MODULE]);
  EXPECT_STREQ("asciz_table", token_types[ASCIZ_STRING_TABLE]->name);
  EXPECT_STREQ("string_table", token_types[COMPOUND_STRING_TABLE]->name);
  EXPECT_STREQ("integer", token_types[INTEGER_NUMBER]->name);
  EXPECT_STREQ("void", token_types[NONE]->name);
  int filled = 0;
  for (int kind = 0; kind < MAX_TOKENS; ++kind) {
    filled += token_types[kind] != nullptr ? 1 : 0;
  }
  EXPECT_EQ(28, filled);
}

const AutoCreatedChild &Child(const char *name) {
  const auto *binding = static_cast<const AutoChildValue *>(SymbolFind(name));
  EXPECT_EQ(AUTO_CREATED, binding->kind);
  EXPECT_STREQ(name, binding->name);
  return *binding->value;
}

TEST_F(Initialize, OkButtonOfThirteenParents) {
  LoadAll();
  const AutoCreatedChild &child = Child("Xm_OK");
  EXPECT_EQ(AUTO_CREATED, child.kind);
  EXPECT_STREQ("Xm_OK", child.name);
  EXPECT_EQ(SymbolFind("XmPushButton"), child.child);
  ASSERT_EQ(13, child.num_parents);
  const std::vector<std::string> expected = {
      "XmMessageBox",       "XmMessageDialog",       "XmErrorDialog",   "XmInformationDialog",
      "XmQuestionDialog",   "XmTemplateDialog",      "XmWarningDialog", "XmWorkingDialog",
      "XmFileSelectionBox", "XmFileSelectionDialog", "XmPromptDialog",  "XmSelectionBox",
      "XmSelectionDialog"};
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(SymbolFind(expected[i].c_str()), child.parents[i]) << expected[i];
    EXPECT_EQ(WIDGET_CLASS, child.parents[i]->kind);
  }
  EXPECT_EQ(nullptr, child.parents[13]);
}

void ExpectResolved(const AutoChildTemplate &row) {
  const AutoCreatedChild &child = Child(row.name);
  ASSERT_NE(nullptr, child.child);
  EXPECT_STREQ(row.child_name, child.child->name);
  ASSERT_EQ(row.num_parent_names, child.num_parents);
  for (int i = 0; i < child.num_parents; ++i) {
    ASSERT_NE(nullptr, child.parents[i]);
    EXPECT_STREQ(row.parent_names[i], child.parents[i]->name);
  }
  EXPECT_EQ(nullptr, child.parents[child.num_parents]);
}

TEST_F(Initialize, EveryAutomaticChildIsResolved) {
  LoadAll();
  for (const AutoChildTemplate &row : auto_created_children) {
    SCOPED_TRACE(row.name);
    ExpectResolved(row);
  }
}

// Of each table the name before the one that is taken, that one, and the next.
struct Refusal {
  const char *loader;
  bool (*load)();
  const char *before;
  const char *taken;
  const char *after;
};

constexpr auto kRefusals = std::to_array<Refusal>({
    {"ReservedWordInit", ReservedWordInit, "controls", "end", "exported"},
    {"FunctionNameInit", FunctionNameInit, "color", "color_table", "compound_string"},
    {"CharacterSetInit", CharacterSetInit, "iso_latin1", "iso_latin2", "iso_latin3"},
    {"NamedValueInit", NamedValueInit, "XmARROW_DOWN", "XmARROW_LEFT", "XmARROW_RIGHT"},
    {"NamedValueInit", NamedValueInit, "XmVERTICAL", "XmWORK_AREA", "on"},
    {"NamedValueInit", NamedValueInit, "off", "true", "false"},
    {"WidgetClassInit", WidgetClassInit, "XmLabel", "XmLabelGadget", "XmList"},
    {"WidgetClassInit", WidgetClassInit, "XmToggleButton", "XmToggleButtonGadget", "Xm_Apply"},
    {"WidgetClassInit", WidgetClassInit, "Xm_Message", "Xm_OK", "Xm_OptionButton"},
    {"ArgumentNameInit", ArgumentNameInit, "XmNdirectory", "XmNdoubleClickInterval", "XmNeditMode"},
    {"ArgumentNameInit", ArgumentNameInit, "XmNeditMode", "XmNeditable", "XmNentryAlignment"},
    {"ArgumentNameInit", ArgumentNameInit, "XmNnoResize", "XmNnumColumns", "XmNokLabelString"},
    {"ArgumentNameInit", ArgumentNameInit, "XmNsubMenuId", "XmNsymbolPixmap", "XmNtearOffModel"},
    {"ArgumentNameInit", ArgumentNameInit, "XmNx", "XmNy", "XmNz"},
    {"ReasonNameInit", ReasonNameInit, "XmNactivateCallback", "XmNapplyCallback", "XmNarmCallback"},
    {"NonReservedWordInit", NonReservedWordInit, "case_sensitive", "file", "foreground"},
});

TEST_F(Initialize, RefusedRowEndsItsTable) {
  for (const Refusal &refusal : kRefusals) {
    SCOPED_TRACE(std::string(refusal.loader) + " " + refusal.taken);
    ASSERT_TRUE(SymbolTableInit());
    Claim(refusal.taken);
    EXPECT_FALSE(refusal.load());
    EXPECT_NE(nullptr, SymbolFind(refusal.before));
    EXPECT_EQ(&claimed, SymbolFind(refusal.taken));
    EXPECT_EQ(nullptr, SymbolFind(refusal.after));
  }
}

TEST_F(Initialize, RefusedTypeDescribesNoValue) {
  Claim("color");
  EXPECT_FALSE(FunctionNameInit());
  EXPECT_STREQ("class_rec_name", token_types[CLASS_REC_NAME]->name);
  EXPECT_EQ(nullptr, token_types[COLOR]);
  EXPECT_EQ(nullptr, token_types[COLOR_TABLE]);
}

TEST_F(Initialize, ArgumentPartLoadsTheRowsItIsGiven) {
  EXPECT_TRUE(ArgumentPartInit(argument_names_t_z.data() + 1, 2));
  EXPECT_EQ(2U, symbol_table->nentries);
  EXPECT_EQ(nullptr, SymbolFind(argument_names_t_z[0].name));
  EXPECT_EQ(ARGUMENT_NAME, SymbolFind("XmNtextAccelerators")->kind);
  EXPECT_EQ(ARGUMENT_NAME, SymbolFind("XmNtextColumns")->kind);
  EXPECT_FALSE(ArgumentPartInit(argument_names_t_z.data(), 2));
}

TEST_F(Initialize, ResetTakesTheMarksOffTheClasses) {
  for (WidgetClass &row : widget_class_rows) {
    row.need = true;
    row.use_gadget = true;
  }
  InitializeReset();
  for (const WidgetClass &row : widget_class_rows) {
    EXPECT_FALSE(row.need) << row.name;
    EXPECT_FALSE(row.use_gadget) << row.name;
  }
}

TEST_F(Initialize, ProgramResetTakesTheMarksOffTheClasses) {
  widget_class_rows.back().use_gadget = true;
  ProgramReset();
  EXPECT_FALSE(widget_class_rows.back().use_gadget);
}

} // namespace
