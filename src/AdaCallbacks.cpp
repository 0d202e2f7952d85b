// See AdaCallbacks.h.  Every unit walks the procedures that the module uses, in the order of their
// declarations: creation procedures of user-defined objects are functions, callback procedures are
// procedures whose client data has the Ada type of the declared parameter.  The numbers of the
// wrapper's case arms are those that the widgets body registers the callbacks with.

#include "AdaCallbacks.h"

#include <string>

#include "AdaArgument.h"
#include "AdaValues.h"
#include "AdaWidgetProcs.h"
#include "Emit.h"
#include "Error.h"
#include "Filename.h"
#include "Model.h"
#include "Options.h"
#include "WidgetUtils.h"

static std::string CallbacksPackage() { return PackageName(package_base, cb_package_suffix); }

// Calls `action` for each procedure that is used in that way.
template <typename Action> static void ForEachProcedure(std::int32_t usage, Action action) {
  for (const ListItem *node = ListFirstNode(unbound_procedures); node != nullptr;
       node = node->next) {
    const auto *procedure = static_cast<const ProcedureName *>(node->data);
    if (procedure->usage == usage) {
      action(procedure);
    }
  }
}

// -- Callbacks package -------------------------------------------------------------------------

static void WriteEmptyStubSpec(std::FILE *spec, const std::string &package) {
  Emit(spec,
       "package %s is\n"
       "end %s;\n"_ada,
       package.c_str(), package.c_str());
}

static void WriteStubDeclaration(const ProcedureName *procedure, std::FILE *spec) {
  const std::string name = LegalName(procedure->name);
  if (procedure->usage == CREATE_PROC) {
    Emit(spec,
         "  function %s(\n"
         "    parent : in xtr5.widget;\n"
         "    name   : in string;\n"
         "    args   : in xtr5.arglist;\n"
         "    nargs  : in xtr5.int ) return xtr5.widget;\n"_ada,
         name.c_str());
  } else if (procedure->usage == CALLBACK_PROC) {
    Emit(spec,
         "  procedure %s(\n"
         "      w           : in xtr5.widget;\n"
         "      client_data : in %s;\n"
         "      call_data   : in xtr5.pointer );\n"_ada,
         name.c_str(), argument_object_type(procedure->type));
  }
}

static void CallbackStubPkgSpec(std::FILE *spec) {
  const std::string package = CallbacksPackage();
  if (ListLength(unbound_procedures) == 0) {
    WriteEmptyStubSpec(spec, package);
    return;
  }
  Emit(spec,
       "with XlibR5;\n"
       "with XtR5;\n"
       "with Xm1_2_2;\n"
       "package %s is\n"_ada,
       package.c_str());
  for (const ListItem *node = ListFirstNode(unbound_procedures); node != nullptr;
       node = node->next) {
    WriteStubDeclaration(static_cast<const ProcedureName *>(node->data), spec);
  }
  Emit(spec, "end %s;\n"_ada, package.c_str());
}

// Ada 95 does not allow a package body that nothing requires.
static void WriteEmptyStubBody(std::FILE *body, const std::string &package) {
  if (ada95) {
    ErrorMessage(kImmediate, "Empty callback package body not written (Ada 95 requirement)");
    return;
  }
  Emit(body,
       "package body %s is\n"
       "end %s;\n"_ada,
       package.c_str(), package.c_str());
}

static void WriteStub(const ProcedureName *procedure, std::FILE *body) {
  const std::string name = LegalName(procedure->name);
  if (procedure->usage == CREATE_PROC) {
    Emit(body,
         "  function %s(\n"
         "    parent : in xtr5.widget;\n"
         "    name   : in string;\n"
         "    args   : in xtr5.arglist;\n"
         "    nargs  : in xtr5.int ) return xtr5.widget is\n"
         "  begin\n"
         "    return xtr5.xtnull;\n"
         "  end %s;\n"_ada,
         name.c_str(), name.c_str());
  } else if (procedure->usage == CALLBACK_PROC) {
    Emit(body,
         "  procedure %s(\n"
         "      w           : in xtr5.widget;\n"
         "      client_data : in %s;\n"
         "      call_data   : in xtr5.pointer ) is\n"
         "  begin\n"
         "    null;\n"
         "  end %s;\n"_ada,
         name.c_str(), argument_object_type(procedure->type), name.c_str());
  }
}

static void CallbackStubPkgBody(std::FILE *body) {
  const std::string package = CallbacksPackage();
  if (ListLength(unbound_procedures) == 0) {
    WriteEmptyStubBody(body, package);
    return;
  }
  Emit(body, "package body %s is\n"_ada, package.c_str());
  for (const ListItem *node = ListFirstNode(unbound_procedures); node != nullptr;
       node = node->next) {
    WriteStub(static_cast<const ProcedureName *>(node->data), body);
  }
  Emit(body, "end %s;\n"_ada, package.c_str());
}

void OutputCallbacks(std::FILE *spec, std::FILE *body) {
  CallbackStubPkgSpec(spec);
  CallbackStubPkgBody(body);
}

// -- Wrapper -----------------------------------------------------------------------------------

// A module without callbacks has a wrapper that does nothing.
static void WriteNullWrapper(std::FILE *body) {
  Emit(body,
       "with XtR5;\n"
       "procedure %s_cbproc(\n"
       "    w           : in xtr5.widget;\n"
       "    client_data : in xtr5.argval;\n"
       "    call_data   : in xtr5.pointer ) is\n"
       "begin\n"
       "  null;\n"
       "end %s_cbproc;\n"_ada,
       package_base.c_str(), package_base.c_str());
}

// Only a generic wrapper has a declaration of its own, with the callback procedures as formals.
static void WriteGenericWrapper(std::FILE *spec) {
  Emit(spec, "with XlibR5;\n"
             "with XtR5;\n"
             "with Xm1_2_2;\n"
             "generic\n"_ada);
  ForEachProcedure(CALLBACK_PROC, [spec](const ProcedureName *procedure) {
    Emit(spec,
         "  with procedure %s(\n"
         "      w           : in xtr5.widget;\n"
         "      client_data : in %s;\n"
         "      call_data   : in xtr5.pointer );\n"_ada,
         LegalName(procedure->name).c_str(), argument_object_type(procedure->type));
  });
  Emit(spec,
       "procedure %s_cbproc(\n"
       "    w           : in xtr5.widget;\n"
       "    client_data : in xtr5.argval;\n"
       "    call_data   : in xtr5.pointer );\n"_ada,
       package_base.c_str());
}

static void WriteWrapperContext(std::FILE *body) {
  Emit(body,
       "with XlibR5;\n"
       "with XtR5;\n"
       "with Xm1_2_2;\n"
       "with %s_client_data;\n"
       "use  %s_client_data;\n"_ada,
       package_base.c_str(), package_base.c_str());
  if (forbid_generic_wrapper) {
    Emit(body, "with %s;\n"_ada, CallbacksPackage().c_str());
  }
}

static void WriteWrapperCases(std::FILE *body) {
  unsigned counter = 0;
  for (const ListItem *node = ListFirstNode(top_level_objects); node != nullptr;
       node = node->next) {
    WidgetWriteCallbackCases(static_cast<const WidgetDef *>(node->data), body, &counter);
  }
}

static void WriteWrapperBody(std::FILE *body) {
  WriteWrapperContext(body);
  Emit(body,
       "procedure %s_cbproc(\n"
       "    w           : in xtr5.widget;\n"
       "    client_data : in xtr5.argval;\n"
       "    call_data   : in xtr5.pointer ) is\n"
       "begin\n"
       "  case client_data is\n"_ada,
       package_base.c_str());
  WriteWrapperCases(body);
  Emit(body,
       "    when others =>\n"
       "      null;\n"
       "  end case;\n"
       "end %s_cbproc;\n"_ada,
       package_base.c_str());
}

static void CallbackWrapperProc(std::FILE *spec, std::FILE *body) {
  if (!AtLeastOneCallback()) {
    WriteNullWrapper(body);
    return;
  }
  if (!forbid_generic_wrapper) {
    WriteGenericWrapper(spec);
  }
  WriteWrapperBody(body);
}

// How the wrapper calls a procedure: as a generic formal, or where it is declared.
static std::string CalledName(const ProcedureName *procedure) {
  const std::string name = LegalName(procedure->name);
  return forbid_generic_wrapper ? CallbacksPackage() + "." + name : name;
}

static bool IsGiven(const KindRec *param) {
  return param != nullptr && param->kind != NIL && param->kind != NONE;
}

// What the procedure gets as its client data: the value declared under that number, its address
// where the procedure takes any type, or nothing.
static std::string ClientDataExpression(const ProcedureInvoke *invocation, int number) {
  const std::int32_t type = invocation->proc->type;
  if (type == NIL || type == NONE) {
    return "xtr5.xtnull";
  }
  if (type != ANY) {
    return ValueVariableName(invocation->param, number);
  }
  return IsGiven(invocation->param) ? ValueVariablePointer(invocation->param, number)
                                    : "xtr5.xtnull";
}

void CallbackWrapperProcCase(const ProcedureInvoke *invocation, std::FILE *body, unsigned number) {
  const int n = static_cast<int>(number);
  Emit(body,
       "    when %d =>\n"
       "      %s(w, %s, call_data);\n"_ada,
       n, CalledName(invocation->proc).c_str(), ClientDataExpression(invocation, n).c_str());
}

// procedure demo_cbinst is new
//   demo_cbproc(
//     quit_cb => demo_callbacks.quit_cb );
static void CallbackWrapperInst(std::FILE *inst) {
  if (!AtLeastOneCallback() || forbid_generic_wrapper) {
    return;
  }
  const char *base = package_base.c_str();
  const std::string package = CallbacksPackage();
  Emit(inst,
       "with %s_cbproc;\n"
       "with %s;\n"
       "procedure %s_cbinst is new\n"
       "  %s_cbproc(\n"_ada,
       base, package.c_str(), base, base);
  const char *separator = "";
  ForEachProcedure(CALLBACK_PROC, [inst, &package, &separator](const ProcedureName *procedure) {
    const std::string name = LegalName(procedure->name);
    Emit(inst, "%s    %s => %s.%s"_ada, separator, name.c_str(), package.c_str(), name.c_str());
    separator = ",\n";
  });
  Emit(inst, " );\n"_ada);
}

void OutputWrapper(std::FILE *spec, std::FILE *body, std::FILE *inst) {
  CallbackWrapperProc(spec, body);
  CallbackWrapperInst(inst);
}
