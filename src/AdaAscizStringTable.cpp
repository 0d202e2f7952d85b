// See AdaAscizStringTable.h.  Each text is a constant of its own, whose address the table holds.

#include "AdaAscizStringTable.h"

#include "AdaArgument.h"
#include "AdaString.h"
#include "Emit.h"

std::string asciz_string_table_varname(int n) {
  return ExpressionFormat("asciz_string_table_%d"_ada, n);
}

std::string asciz_string_table_varptr(int n) {
  return ExpressionFirstAddress(asciz_string_table_varname(n));
}

static void DeclareTexts(List texts, std::FILE *file, int n) {
  int i = 0;
  for (const ListItem *node = ListFirstNode(texts); node != nullptr; node = node->next) {
    ++i;
    Emit(file,
         "    string_%d_%d : constant string :=\n"
         "%s;\n"_ada,
         n, i, string_value_expr(static_cast<const char *>(node->data)).c_str());
  }
}

void asciz_string_table_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                                int n) {
  List texts = static_cast<const AscizTableValue *>(value)->value;
  const int count = static_cast<int>(ListLength(texts));
  argument_declare(argument, file, n);
  DeclareTexts(texts, file, n);
  Emit(file, "    %s : constant %s( 1 .. %d ) := (\n"_ada, asciz_string_table_varname(n).c_str(),
       argument_object_type(ASCIZ_STRING_TABLE), count + 1);
  for (int i = 1; i <= count; ++i) {
    Emit(file, "        %d => string_%d_%d( string_%d_%d'first )'address,\n"_ada, i, n, i, n, i);
  }
  Emit(file, "        %d => xtr5.xtnull );\n"_ada, count + 1);
}

void asciz_string_table_setarg(const KindRec * /*value*/, const NamedSetting *argument,
                               std::FILE *file, int n) {
  argument_setarg(asciz_string_table_varptr(n).c_str(), argument, file, n);
}
