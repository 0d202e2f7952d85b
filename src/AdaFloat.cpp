// See AdaFloat.h.  Fifteen decimals after the point of the scientific form; the point is one under
// every locale, since numbers are always written in the "C" manner.

#include "AdaFloat.h"

#include "AdaArgument.h"
#include "Emit.h"

std::string float_varname(int n) { return ExpressionFormat("float_%d"_ada, n); }

std::string float_varptr(int n) { return ExpressionAddress(float_varname(n)); }

void float_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  argument_declare(argument, file, n);
  Emit(file, "    %s : constant %s := %.15E;\n", float_varname(n).c_str(),
       argument_object_type(FLOAT_NUMBER), static_cast<const FloatValue *>(value)->value);
}

void float_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file, int n) {
  argument_setarg(float_varptr(n).c_str(), argument, file, n);
}
