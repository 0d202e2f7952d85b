// See AdaKeysym.h.  A single character stands for itself; any other text is the name of a constant
// of the bindings.

#include "AdaKeysym.h"

#include "AdaArgument.h"
#include "Emit.h"

std::string keysym_varname(int n) { return ExpressionFormat("keysym_%d"_ada, n); }

std::string keysym_varptr(int n) { return ExpressionAddress(keysym_varname(n)); }

static bool IsOneCharacter(const char *text) { return text[0] != '\0' && text[1] == '\0'; }

void keysym_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  const char *text = static_cast<const KeysymValue *>(value)->value;
  const std::string name = keysym_varname(n);
  const char *type = argument_object_type(KEYSYM);
  argument_declare(argument, file, n);
  if (IsOneCharacter(text)) {
    Emit(file, "    %s : constant %s := %s( character'pos( '%s' ) );\n"_ada, name.c_str(), type,
         type, text);
  } else {
    Emit(file, "    %s : constant %s := XK.K_%s;\n"_ada, name.c_str(), type, text);
  }
}

void keysym_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                   int n) {
  argument_setarg(keysym_varname(n).c_str(), argument, file, n);
}
