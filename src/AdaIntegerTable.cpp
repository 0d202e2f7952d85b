// See AdaIntegerTable.h.

#include "AdaIntegerTable.h"

#include "AdaArgument.h"
#include "Emit.h"

std::string integer_table_varname(int n) { return ExpressionFormat("integer_table_%d"_ada, n); }

std::string integer_table_varptr(int n) { return ExpressionFirstAddress(integer_table_varname(n)); }

void integer_table_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                           int n) {
  List integers = static_cast<const IntegerTableValue *>(value)->value;
  const int count = static_cast<int>(ListLength(integers));
  const std::string name = integer_table_varname(n);
  const char *type = argument_object_type(INTEGER_TABLE);
  argument_declare(argument, file, n);
  if (count == 0) {
    Emit(file, "    %s : constant %s( 1 .. 0 );\n"_ada, name.c_str(), type);
    return;
  }
  Emit(file, "    %s : constant %s( 1 .. %d ) := (\n"_ada, name.c_str(), type, count);
  int i = 0;
  for (const ListItem *node = ListFirstNode(integers); node != nullptr; node = node->next) {
    ++i;
    Emit(file, "        %d => %d%s\n"_ada, i, static_cast<const IntegerValue *>(node->data)->value,
         i == count ? " );" : ",");
  }
}

void integer_table_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                          int n) {
  argument_setarg(integer_table_varptr(n).c_str(), argument, file, n);
}
