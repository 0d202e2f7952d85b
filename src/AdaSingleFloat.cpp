// See AdaSingleFloat.h.  Six decimals after the point of the scientific form are what the type
// holds; the point is one under every locale, since numbers are always written in the "C" manner.

#include "AdaSingleFloat.h"

#include "AdaArgument.h"
#include "Emit.h"

std::string single_float_varname(int n) { return ExpressionFormat("single_float_%d"_ada, n); }

std::string single_float_varptr(int n) { return ExpressionAddress(single_float_varname(n)); }

void single_float_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                          int n) {
  const auto number = static_cast<double>(static_cast<const SingleFloatValue *>(value)->value);
  argument_declare(argument, file, n);
  Emit(file, "    %s : constant %s := %.6E;\n", single_float_varname(n).c_str(),
       argument_object_type(SINGLE_FLOAT_NUMBER), number);
}

void single_float_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                         int n) {
  argument_setarg(single_float_varptr(n).c_str(), argument, file, n);
}
