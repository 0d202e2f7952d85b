// See AdaTranslationTable.h.  The declaration of the rows ends in a parenthesis that nothing opens.
// That is the text that users of the output know and correct, so it stays.

#include "AdaTranslationTable.h"

#include "AdaArgument.h"
#include "Emit.h"

std::string translation_table_varname(int n) {
  return ExpressionFormat("translation_table_%d"_ada, n);
}

std::string translation_table_varptr(int n) { return translation_table_varname(n); }

static void DeclareRows(List rows, std::FILE *file, int n) {
  if (ListLength(rows) == 0) {
    Emit(file, "    translation_table_string_%d : constant string := \"\";\n"_ada, n);
    return;
  }
  Emit(file, "    translation_table_string_%d : constant string :=\n"_ada, n);
  for (const ListItem *node = ListFirstNode(rows); node != nullptr; node = node->next) {
    Emit(file, "        \"%s\" & ASCII.LF %s\n"_ada, static_cast<const char *>(node->data),
         node->next == nullptr ? ");" : "&");
  }
}

void translation_table_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                               int n) {
  argument_declare(argument, file, n);
  Emit(file, "    %s : %s;\n"_ada, translation_table_varname(n).c_str(),
       argument_object_type(TRANSLATION_TABLE));
  DeclareRows(static_cast<const TransTableValue *>(value)->value, file, n);
}

void translation_table_setarg(const KindRec * /*value*/, const NamedSetting *argument,
                              std::FILE *file, int n) {
  const std::string name = translation_table_varname(n);
  Emit(file,
       "    %s :=\n"
       "      xtr5.parsetranslationtable( translation_table_string_%d );\n"_ada,
       name.c_str(), n);
  argument_setarg(name.c_str(), argument, file, n);
}
