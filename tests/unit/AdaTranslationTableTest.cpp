// Tests of translation tables.

#include "ValueModel.h"

namespace {

class AdaTranslationTable : public ValueModel {};

constexpr const char *kSetting =
    "    translation_table_7 :=\n"
    "      xtr5.parsetranslationtable( translation_table_string_7 );\n";

// The last line closes a parenthesis that nothing opens; quotes are not doubled.
TEST_F(AdaTranslationTable, RowsAreLines) {
  ExpectWritten(Table(TRANSLATION_TABLE, Texts({"<Key>a: b()", "<Key>\"c\": d()", ""})),
                {"    translation_table_7 : xtr5.translations;\n"
                 "    translation_table_string_7 : constant string :=\n"
                 "        \"<Key>a: b()\" & ASCII.LF &\n"
                 "        \"<Key>\"c\": d()\" & ASCII.LF &\n"
                 "        \"\" & ASCII.LF );\n",
                 kSetting, "translation_table_7", ""});
}

TEST_F(AdaTranslationTable, EmptyTableIsAnEmptyText) {
  ExpectWritten(Table(TRANSLATION_TABLE, Texts({})),
                {"    translation_table_7 : xtr5.translations;\n"
                 "    translation_table_string_7 : constant string := \"\";\n",
                 kSetting, "translation_table_7", ""});
}

TEST_F(AdaTranslationTable, Names) {
  ExpectNames(Table(TRANSLATION_TABLE, Texts({})), "translation_table_12", "translation_table_12");
}

} // namespace
