// See AdaWideCharacter.h.  The text is in the multibyte encoding of the user's locale; each
// character becomes an element of the array, written by its code.

#include "AdaWideCharacter.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <vector>

#include "AdaArgument.h"
#include "Emit.h"

std::string wide_character_varname(int n) { return ExpressionFormat("wide_character_%d"_ada, n); }

std::string wide_character_varptr(int n) {
  return ExpressionFirstAddress(wide_character_varname(n));
}

std::string wide_character_value_expr(const wchar_t *text) {
  const std::size_t count = std::wcslen(text) + 1;
  std::string aggregate;
  for (std::size_t i = 1; i <= count; ++i) {
    const bool is_first = i == 1;
    aggregate += ExpressionFormat(
        "%s    %s%d => 16#%08lx#%s", is_first ? "" : "\n", is_first ? "( " : "  ",
        static_cast<int>(i), static_cast<unsigned long>(text[i - 1]), i == count ? " )" : ", ");
  }
  return aggregate;
}

// The characters with their closing zero; empty when the text cannot be converted.
static std::vector<wchar_t> WideText(const char *text) {
  std::vector<wchar_t> wide(std::strlen(text) + 1);
  if (std::mbstowcs(wide.data(), text, wide.size()) == static_cast<std::size_t>(-1)) {
    wide.clear();
  }
  return wide;
}

void wide_character_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                            int n) {
  const char *text = static_cast<const WideCharValue *>(value)->value;
  const std::vector<wchar_t> wide = WideText(text == nullptr ? "" : text);
  const std::string name = wide_character_varname(n);
  const char *type = argument_object_type(WIDE_CHARACTER);
  argument_declare(argument, file, n);
  if (wide.empty()) {
    Emit(file, "    %s : constant %s ( 1 .. 1 ) := ( others => 0 );\n"_ada, name.c_str(), type);
  } else {
    Emit(file,
         "    %s : constant %s :=\n"
         "%s;\n"_ada,
         name.c_str(), type, wide_character_value_expr(wide.data()).c_str());
  }
}

void wide_character_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                           int n) {
  argument_setarg(wide_character_varptr(n).c_str(), argument, file, n);
}
