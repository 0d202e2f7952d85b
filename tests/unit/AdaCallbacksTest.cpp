// Tests of the callback packages: whole texts of the stubs, the wrapper and its instantiation, and
// of single case arms.

#include "AdaCallbacks.h"

#include <array>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "AdaWidgetProcs.h"
#include "Error.h"
#include "Filename.h"
#include "Model.h"
#include "Options.h"
#include "Reset.h"

namespace {

// A stream in memory.
struct Unit {
  Unit() : file(open_memstream(&buffer, &size)) {}
  ~Unit() {
    std::fclose(file);
    std::free(buffer);
  }
  Unit(const Unit &) = delete;
  Unit &operator=(const Unit &) = delete;
  std::string Text() {
    std::fflush(file);
    return {buffer, size};
  }

  char *buffer = nullptr;
  std::size_t size = 0;
  std::FILE *file;
};

class AdaCallbacksTest : public testing::Test {
protected:
  void SetUp() override {
    ProgramReset();
    program_name = "kivuxl";
    package_base = "demo";
    case_sensitive = true;
    ASSERT_TRUE(SymbolTableInit());
    ASSERT_TRUE(WidgetTableInit());
    unbound_procedures = ModelList();
    top_level_objects = ModelList();
  }
  void TearDown() override { ProgramReset(); }

  static ProcedureName *Procedure(const char *name, std::int32_t type, std::int32_t usage) {
    auto *procedure = ModelNew<ProcedureName>(PROCEDURE_NAME);
    procedure->name = name;
    procedure->type = type;
    procedure->usage = usage;
    ModelAppend(unbound_procedures, procedure);
    return procedure;
  }

  static ProcedureInvoke *Invoke(ProcedureName *procedure, KindRec *param) {
    auto *invocation = ModelNew<ProcedureInvoke>(PROCEDURE_INVOKE);
    invocation->name = procedure->name;
    invocation->proc = procedure;
    invocation->param = param;
    return invocation;
  }

  static KindRec *Integer(std::int32_t value) {
    auto *record = ModelNew<IntegerValue>(INTEGER_NUMBER);
    record->value = value;
    return record;
  }

  // A top-level object whose activate callback makes that invocation.
  static void TopLevel(const char *name, ProcedureInvoke *invocation) {
    auto *callback = ModelNew<CallbackValue>(CALLBACK);
    callback->name = "XmNactivateCallback";
    callback->value = ModelList();
    ModelAppend(callback->value, invocation);
    auto *callbacks = ModelNew<CallbacksList>(CALLBACKS_LIST);
    callbacks->value = ModelList();
    ModelAppend(callbacks->value, callback);
    auto *widget = ModelNew<WidgetDef>(WIDGET_NAME);
    widget->name = name;
    widget->type = ModelBinding(WIDGET_CLASS, "XmPushButton", nullptr);
    widget->attribs = ModelList();
    widget->cbs = ModelList();
    ModelAppend(widget->cbs, callbacks);
    ModelAppend(top_level_objects, widget);
  }

  static std::string Arm(ProcedureName *procedure, KindRec *param, unsigned number) {
    Unit body;
    CallbackWrapperProcCase(Invoke(procedure, param), body.file, number);
    return body.Text();
  }

  // The three units of the wrapper.
  static std::array<std::string, 3> Wrapper() {
    Unit spec;
    Unit body;
    Unit inst;
    OutputWrapper(spec.file, body.file, inst.file);
    return {spec.Text(), body.Text(), inst.Text()};
  }
};

// -- Stubs -------------------------------------------------------------------------------------

TEST_F(AdaCallbacksTest, StubsOfBothUsages) {
  Procedure("quit_cb", NIL, CALLBACK_PROC);
  Procedure("Make_Dial", NIL, CREATE_PROC);
  Procedure("set$cb", INTEGER_NUMBER, CALLBACK_PROC);
  Procedure("unused", NIL, NIL);
  Unit spec;
  Unit body;
  OutputCallbacks(spec.file, body.file);
  EXPECT_EQ(spec.Text(), R"Ada(with XlibR5;
with XtR5;
with Xm1_2_2;
package demo_callbacks is
  procedure quit_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  function make_dial(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget;
  procedure set_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
end demo_callbacks;
)Ada");
  EXPECT_EQ(body.Text(), R"Ada(package body demo_callbacks is
  procedure quit_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end quit_cb;
  function make_dial(
    parent : in xtr5.widget;
    name   : in string;
    args   : in xtr5.arglist;
    nargs  : in xtr5.int ) return xtr5.widget is
  begin
    return xtr5.xtnull;
  end make_dial;
  procedure set_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end set_cb;
end demo_callbacks;
)Ada");
}

TEST_F(AdaCallbacksTest, StubsWithoutPackageSuffix) {
  cb_package_suffix = "";
  Procedure("ask", SIMPLE_STRING, CALLBACK_PROC);
  Unit spec;
  Unit body;
  OutputCallbacks(spec.file, body.file);
  EXPECT_EQ(spec.Text(), R"Ada(with XlibR5;
with XtR5;
with Xm1_2_2;
package demo is
  procedure ask(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer );
end demo;
)Ada");
  EXPECT_EQ(body.Text(), R"Ada(package body demo is
  procedure ask(
      w           : in xtr5.widget;
      client_data : in string;
      call_data   : in xtr5.pointer ) is
  begin
    null;
  end ask;
end demo;
)Ada");
}

TEST_F(AdaCallbacksTest, NoProceduresGiveEmptyPackageInAda83) {
  Unit spec;
  Unit body;
  testing::internal::CaptureStderr();
  OutputCallbacks(spec.file, body.file);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(spec.Text(), "package demo_callbacks is\nend demo_callbacks;\n");
  EXPECT_EQ(body.Text(), "package body demo_callbacks is\nend demo_callbacks;\n");
}

TEST_F(AdaCallbacksTest, NoProceduresGiveNoBodyInAda95) {
  ada95 = true;
  unbound_procedures = nullptr;
  Unit spec;
  Unit body;
  testing::internal::CaptureStderr();
  OutputCallbacks(spec.file, body.file);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "kivuxl: Empty callback package body not written (Ada 95 requirement).\n");
  EXPECT_EQ(spec.Text(), "package demo_callbacks is\nend demo_callbacks;\n");
  EXPECT_EQ(body.Text(), "");
}

// -- Wrapper -----------------------------------------------------------------------------------

const char kNullWrapper[] = R"Ada(with XtR5;
procedure demo_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  null;
end demo_cbproc;
)Ada";

TEST_F(AdaCallbacksTest, WrapperWithoutCallbacksDoesNothing) {
  Procedure("make_dial", NIL, CREATE_PROC);
  for (const bool forbidden : {false, true}) {
    forbid_generic_wrapper = forbidden;
    const auto [spec, body, inst] = Wrapper();
    EXPECT_EQ(spec, "");
    EXPECT_EQ(body, kNullWrapper);
    EXPECT_EQ(inst, "");
  }
}

TEST_F(AdaCallbacksTest, GenericWrapper) {
  ProcedureName *quit = Procedure("quit_cb", NIL, CALLBACK_PROC);
  Procedure("make_dial", NIL, CREATE_PROC);
  ProcedureName *set = Procedure("set_cb", INTEGER_NUMBER, CALLBACK_PROC);
  TopLevel("first", Invoke(quit, ModelNew<KindRec>(NIL)));
  TopLevel("second", Invoke(set, Integer(7)));
  TopLevel("third", Invoke(quit, ModelNew<KindRec>(NIL)));
  const auto [spec, body, inst] = Wrapper();
  EXPECT_EQ(spec, R"Ada(with XlibR5;
with XtR5;
with Xm1_2_2;
generic
  with procedure quit_cb(
      w           : in xtr5.widget;
      client_data : in xtr5.pointer;
      call_data   : in xtr5.pointer );
  with procedure set_cb(
      w           : in xtr5.widget;
      client_data : in integer;
      call_data   : in xtr5.pointer );
procedure demo_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer );
)Ada");
  EXPECT_EQ(body, R"Ada(with XlibR5;
with XtR5;
with Xm1_2_2;
with demo_client_data;
use  demo_client_data;
procedure demo_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      quit_cb(w, xtr5.xtnull, call_data);
    when 2 =>
      set_cb(w, integer_2, call_data);
    when 3 =>
      quit_cb(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end demo_cbproc;
)Ada");
  EXPECT_EQ(inst, R"Ada(with demo_cbproc;
with demo_callbacks;
procedure demo_cbinst is new
  demo_cbproc(
    quit_cb => demo_callbacks.quit_cb,
    set_cb => demo_callbacks.set_cb );
)Ada");
}

TEST_F(AdaCallbacksTest, OrdinaryWrapperCallsThePackage) {
  forbid_generic_wrapper = true;
  cb_package_suffix = "cbs";
  TopLevel("first", Invoke(Procedure("Quit_CB", NIL, CALLBACK_PROC), ModelNew<KindRec>(NONE)));
  Unit body;
  OutputWrapper(nullptr, body.file, nullptr);
  EXPECT_EQ(body.Text(), R"Ada(with XlibR5;
with XtR5;
with Xm1_2_2;
with demo_client_data;
use  demo_client_data;
with demo_cbs;
procedure demo_cbproc(
    w           : in xtr5.widget;
    client_data : in xtr5.argval;
    call_data   : in xtr5.pointer ) is
begin
  case client_data is
    when 1 =>
      demo_cbs.quit_cb(w, xtr5.xtnull, call_data);
    when others =>
      null;
  end case;
end demo_cbproc;
)Ada");
}

TEST_F(AdaCallbacksTest, InstantiationWithoutPackageSuffix) {
  cb_package_suffix = "";
  Procedure("quit_cb", NIL, CALLBACK_PROC);
  EXPECT_EQ(Wrapper()[2], R"Ada(with demo_cbproc;
with demo;
procedure demo_cbinst is new
  demo_cbproc(
    quit_cb => demo.quit_cb );
)Ada");
}

// -- Case arms ---------------------------------------------------------------------------------

TEST_F(AdaCallbacksTest, ArmOfProcedureWithoutParameterIgnoresTheValue) {
  for (const std::int32_t type :
       {static_cast<std::int32_t>(NIL), static_cast<std::int32_t>(NONE)}) {
    EXPECT_EQ(Arm(Procedure("quit", type, CALLBACK_PROC), Integer(1), 4),
              "    when 4 =>\n      quit(w, xtr5.xtnull, call_data);\n");
  }
}

TEST_F(AdaCallbacksTest, ArmOfAnyTypePassesTheAddress) {
  ProcedureName *any = Procedure("any_cb", ANY, CALLBACK_PROC);
  EXPECT_EQ(Arm(any, Integer(1), 5),
            "    when 5 =>\n      any_cb(w, integer_5'address, call_data);\n");
  const char *const null_arm = "    when 6 =>\n      any_cb(w, xtr5.xtnull, call_data);\n";
  EXPECT_EQ(Arm(any, ModelNew<KindRec>(NIL), 6), null_arm);
  EXPECT_EQ(Arm(any, ModelNew<KindRec>(NONE), 6), null_arm);
  EXPECT_EQ(Arm(any, nullptr, 6), null_arm);
}

TEST_F(AdaCallbacksTest, ArmOfOtherTypesPassesTheVariable) {
  auto *text = ModelNew<StringValue>(SIMPLE_STRING);
  text->value = "x";
  EXPECT_EQ(Arm(Procedure("ask", SIMPLE_STRING, CALLBACK_PROC), text, 12),
            "    when 12 =>\n      ask(w, string_12, call_data);\n");
}

TEST_F(AdaCallbacksTest, ArmNamesThePackageWhenTheWrapperIsOrdinary) {
  forbid_generic_wrapper = true;
  cb_package_suffix = "";
  EXPECT_EQ(Arm(Procedure("Set_It", ANY, CALLBACK_PROC), Integer(1), 2),
            "    when 2 =>\n      demo.set_it(w, integer_2'address, call_data);\n");
}

} // namespace
