// See AdaClassRecName.h.  The class objects of the bindings follow the names of the classes but for
// the exceptions of one table.

#include "AdaClassRecName.h"

#include <string_view>

#include "AdaArgument.h"
#include "Ascii.h"
#include "Emit.h"

namespace {

struct OddTranslation {
  const char *uil_name;
  const char *ada_object;
  const char *prefix;
};

constexpr OddTranslation odd_trans[] = {
    {"extobject", "extobjectclass", "xm1_2_2."},
    {"object", "objectclass", "xm1_2_2."},
    {"rectobj", "rectobjclass", "xm1_2_2."},
    {"xmdisplay", "displayclass", "xm1_2_2."},
    {"xmdragcontext", "dragcontextclass", "xm1_2_2."},
    {"xmscreen", "screenclass", "xm1_2_2."},
    {"xmdragicon", "dragiconobjectclass", "xm1_2_2."},
    {"xmdroptransfer", "droptransferobjectclass", "xm1_2_2."},
    {"xmdropsite", "dropsitemanagerobjectclass", "xm1_2_2."},
    {"overrideshell", "overrideshellwidgetclass", "xtr5."},
    {"toplevelshell", "toplevelshellwidgetclass", "xtr5."},
    {"transientshell", "transientshellwidgetclass", "xtr5."},
    {"applicationshell", "applicationshellwidgetclass", "xtr5."},
};

constexpr std::string_view kToolkitPrefix = "xm";
constexpr std::string_view kGadget = "gadget";

} // namespace

std::string class_rec_name_value_expr(const char *text) {
  std::string_view name = text == nullptr ? "" : text;
  for (const OddTranslation &odd : odd_trans) {
    if (AsciiEqualNoCase(name, odd.uil_name)) {
      return std::string(odd.prefix) + odd.ada_object;
    }
  }
  const char *ending = AsciiEndsWithNoCase(name, kGadget) ? "class" : "widgetclass";
  if (AsciiEqualNoCase(name.substr(0, kToolkitPrefix.size()), kToolkitPrefix)) {
    name.remove_prefix(kToolkitPrefix.size());
  }
  return std::string("xm1_2_2.").append(name).append(ending);
}

std::string class_rec_name_varname(int n) { return ExpressionFormat("class_rec_name_%d"_ada, n); }

std::string class_rec_name_varptr(int n) { return class_rec_name_varname(n); }

void class_rec_name_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                            int n) {
  const char *class_name = static_cast<const ClassRecNameValue *>(value)->value;
  argument_declare(argument, file, n);
  Emit(file, "    %s : constant %s := %s;\n"_ada, class_rec_name_varname(n).c_str(),
       argument_object_type(CLASS_REC_NAME), class_rec_name_value_expr(class_name).c_str());
}

void class_rec_name_setarg(const KindRec * /*value*/, const NamedSetting *argument, std::FILE *file,
                           int n) {
  argument_setarg(class_rec_name_varname(n).c_str(), argument, file, n);
}
