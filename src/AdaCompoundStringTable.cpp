// See AdaCompoundStringTable.h.  The entries are built one after the other in a block of their own,
// whose variables are numbered by entry, and stored in the table, which ends in a null entry.

#include "AdaCompoundStringTable.h"

#include "AdaArgument.h"
#include "AdaCompoundString.h"
#include "Emit.h"

std::string compound_string_table_varname(int n) {
  return ExpressionFormat("compound_string_table_%d"_ada, n);
}

std::string compound_string_table_varptr(int n) {
  return ExpressionFirstAddress(compound_string_table_varname(n));
}

void compound_string_table_declare(const KindRec *value, const NamedSetting *argument,
                                   std::FILE *file, int n) {
  const auto entries = ListLength(static_cast<const CmpStringTableVal *>(value)->value);
  argument_declare(argument, file, n);
  Emit(file, "    %s : %s( 1 .. %d ) := ( others => xtr5.xtnull );\n"_ada,
       compound_string_table_varname(n).c_str(), argument_object_type(COMPOUND_STRING_TABLE),
       static_cast<int>(entries) + 1);
}

static void FillTable(List entries, const std::string &table, std::FILE *file) {
  Emit(file, "    declare\n"_ada);
  int i = 0;
  for (const ListItem *node = ListFirstNode(entries); node != nullptr; node = node->next) {
    compound_string_declare(static_cast<const KindRec *>(node->data), nullptr, file, ++i);
  }
  Emit(file, "    begin\n"_ada);
  i = 0;
  for (const ListItem *node = ListFirstNode(entries); node != nullptr; node = node->next) {
    compound_string_setarg(static_cast<const KindRec *>(node->data), nullptr, file, ++i);
    Emit(file, "    %s( %d ) := %s;\n"_ada, table.c_str(), i, compound_string_varname(i).c_str());
  }
  Emit(file, "    end;\n"_ada);
}

// The count resource of the pair, which leaves out the null entry.
static void SetCount(const char *count_name, const std::string &table, std::FILE *file, int n) {
  NamedSetting count = {};
  count.kind = ARGUMENT;
  count.name = count_name;
  count.predefined = true;
  const std::string length = ExpressionFormat("xtr5.argval( %s'length - 1 )"_ada, table.c_str());
  argument_setarg(length.c_str(), &count, file, n);
}

void compound_string_table_setarg(const KindRec *value, const NamedSetting *argument,
                                  std::FILE *file, int n) {
  List entries = static_cast<const CmpStringTableVal *>(value)->value;
  const std::string table = compound_string_table_varname(n);
  if (ListLength(entries) != 0) {
    FillTable(entries, table, file);
  }
  argument_setarg(compound_string_table_varptr(n).c_str(), argument, file, n);
  const char *count_name = argument == nullptr ? nullptr : argument_paired_arg(argument->name);
  if (count_name != nullptr) {
    SetCount(count_name, table, file, n + 1);
  }
}

void compound_string_table_cleanup(std::FILE *file, int n) {
  const std::string name = compound_string_table_varname(n);
  const char *table = name.c_str();
  Emit(file,
       "    for index_%d in %s'range loop\n"
       "      if %s( index_%d ) /= xtr5.xtnull then\n"
       "        xm1_2_2.stringfree( %s( index_%d ) );\n"
       "      end if;\n"
       "    end loop;\n"_ada,
       n, table, table, n, table, n);
}
