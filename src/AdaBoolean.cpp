// See AdaBoolean.h.

#include "AdaBoolean.h"

#include "AdaArgument.h"
#include "Emit.h"

std::string boolean_varname(int n) { return ExpressionFormat("boolean_%d"_ada, n); }

std::string boolean_varptr(int n) { return ExpressionAddress(boolean_varname(n)); }

void boolean_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  const bool is_true = static_cast<const BooleanValue *>(value)->value;
  argument_declare(argument, file, n);
  Emit(file, "    %s : constant boolean := %s;\n"_ada, boolean_varname(n).c_str(),
       is_true ? "true" : "false");
}

void boolean_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                    int n) {
  argument_setarg(boolean_varname(n).c_str(), argument, file, n);
}
