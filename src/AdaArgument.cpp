// See AdaArgument.h.  A predefined argument is named by a constant of the bindings, a user-defined
// one by a constant of the block, whose shape depends on the release of the bindings.

#include "AdaArgument.h"

#include <algorithm>
#include <cstdarg>
#include <cstring>
#include <string_view>

#include "AdaValues.h"
#include "Alloc.h"
#include "Ascii.h"
#include "Emit.h"
#include "Options.h"

namespace {

// Release 4 of the bindings has a type of its own for argument names.
constexpr int kArgnameRevision = 4;

// "XmN", which the constants of the bindings leave out.
constexpr std::size_t kResourcePrefix = 3;

// A list resource and the resource that holds the number of its items.
struct PairedArgument {
  const char *list;
  const char *count;
};

constexpr PairedArgument paired_args[] = {
    {"XmNitems", "XmNitemCount"},
    {"XmNselectedItems", "XmNselectedItemCount"},
    {"XmNlistItems", "XmNlistItemCount"},
    {"XmNhistoryItems", "XmNhistoryItemCount"},
    {"XmNdirListItems", "XmNdirListItemCount"},
    {"XmNfileListItems", "XmNfileListItemCount"},
};

// Ends each list's name and no other's; every argument is asked for its pair many times.
constexpr std::string_view kListEnd = "Items";

constexpr bool EachListHasItsEnd() {
  for (const PairedArgument &pair : paired_args) {
    if (!AsciiEndsWithNoCase(pair.list, kListEnd)) {
      return false;
    }
  }
  return true;
}
static_assert(EachListHasItsEnd());

} // namespace

void argument_declare(const NamedSetting *argument, std::FILE *file, int n) {
  if (argument == nullptr || argument->predefined) {
    return;
  }
  if (orvo_revision < kArgnameRevision) {
    Emit(file, "    arg_%d : constant string := \"%s\" & ASCII.NUL;\n"_ada, n, argument->name);
  } else {
    Emit(file,
         "    arg_%d : constant xmdef.argname :=\n"
         "        xmdef.argname( string'( \"%s\" ) & ASCII.NUL );\n"_ada,
         n, argument->name);
  }
}

void argument_setarg(const char *expression, const NamedSetting *argument, std::FILE *file, int n) {
  if (argument == nullptr) {
    return;
  }
  if (argument->predefined) {
    const char *name = argument->name + std::min(kResourcePrefix, std::strlen(argument->name));
    Emit(file, "    xtr5.setarg( args( %d ), xmdef.n%s, %s );\n"_ada, n, name, expression);
  } else {
    Emit(file, "    xtr5.setarg( args( %d ), arg_%d, %s );\n"_ada, n, n, expression);
  }
}

const char *argument_paired_arg(const char *name) {
  if (name == nullptr || !AsciiEndsWithNoCase(name, kListEnd)) {
    return nullptr;
  }
  for (const PairedArgument &pair : paired_args) {
    if (SafeStrcmp(pair.list, name, static_cast<int>(case_sensitive)) == 0) {
      return pair.count;
    }
  }
  return nullptr;
}

const char *argument_object_type(std::int32_t kind) { return ValueObjectType(kind); }

std::string ExpressionFormat(const char *format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::string text = EmitByLibrary(format, arguments);
  va_end(arguments);
  return text;
}

std::string ExpressionAddress(const std::string &name) {
  return ExpressionFormat("%s'address"_ada, name.c_str());
}

std::string ExpressionFirstAddress(const std::string &name) {
  return ExpressionFormat("%s( %s'first )'address"_ada, name.c_str(), name.c_str());
}
