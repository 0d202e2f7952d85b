// See AdaInteger.h.

#include "AdaInteger.h"

#include "AdaArgument.h"
#include "Emit.h"

std::string integer_varname(int n) { return ExpressionFormat("integer_%d"_ada, n); }

std::string integer_varptr(int n) { return ExpressionAddress(integer_varname(n)); }

void integer_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  argument_declare(argument, file, n);
  Emit(file, "    %s : constant %s := %d;\n"_ada, integer_varname(n).c_str(),
       argument_object_type(INTEGER_NUMBER), static_cast<const IntegerValue *>(value)->value);
}

void integer_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                    int n) {
  argument_setarg(integer_varname(n).c_str(), argument, file, n);
}
