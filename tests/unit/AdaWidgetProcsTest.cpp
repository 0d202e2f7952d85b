// Tests of the Ada of single widgets: whole subprograms, in their order, and the diagnostics.
// The text of colours and compound strings is other modules' business: it is taken from their
// emitters, and what is tested is where it stands and against which widget it was made.

#include "AdaWidgetProcs.h"

#include "AdaValues.h"
#include "TreeCheck.h"
#include "WidgetModel.h"

namespace {

class AdaWidgetProcs : public WidgetModel {
protected:
  static std::string Create(const WidgetDef *widget, unsigned *counter) {
    return Written([&](std::FILE *file) { WidgetWriteCreateProc(widget, file, counter); });
  }
  static std::string Create(const WidgetDef *widget) {
    unsigned counter = 0;
    return Create(widget, &counter);
  }
  static std::string Post(const WidgetDef *widget, unsigned *counter) {
    return Written([&](std::FILE *file) { WidgetWritePostProc(widget, file, counter); });
  }
  static std::string Post(const WidgetDef *widget) {
    unsigned counter = 0;
    return Post(widget, &counter);
  }
  static std::string ClientData(const WidgetDef *widget, unsigned *counter) {
    return Written([&](std::FILE *file) { WidgetDeclareClientData(widget, file, counter); });
  }
  static std::string Cases(const WidgetDef *widget, unsigned *counter) {
    return Written([&](std::FILE *file) { WidgetWriteCallbackCases(widget, file, counter); });
  }

  // What the emitters write for one argument.
  static std::string Declares(const ArgumentInvoke *argument, int n) {
    return Written(
        [&](std::FILE *file) { ValueDeclareArgument(argument->value, argument, file, n); });
  }
  static std::string Sets(const ArgumentInvoke *argument, int n, const char *against) {
    const char *saved = child_self_or_parent;
    child_self_or_parent = against;
    std::string text =
        Written([&](std::FILE *file) { ValueSetArgument(argument->value, argument, file, n); });
    child_self_or_parent = saved;
    return text;
  }
  static std::string Cleans(const ArgumentInvoke *argument, int n) {
    std::string text = Written([&](std::FILE *file) { ValueCleanup(argument->value, file, n); });
    EXPECT_NE(text, "");
    return text;
  }

  static KindRec *CompoundString(const char *text) {
    auto *segment = ModelNew<CompoundStringSegment>(COMPOUND_STRING);
    segment->value = text;
    segment->default_charset = true;
    segment->default_direction = true;
    segment->default_separate = true;
    auto *value = ModelNew<CompoundStringVal>(COMPOUND_STRING);
    value->value = Items({segment});
    return value;
  }

  // An object of a creation procedure of the user's.
  static WidgetDef *UserDefined(const char *name, const char *procedure) {
    WidgetDef *widget = Define(name, "");
    auto *declaration = ModelNew<ProcedureDecl>(PROCEDURE_NAME);
    declaration->name = procedure;
    declaration->value = Procedure(procedure, NIL, CREATE_PROC);
    widget->type = declaration;
    return widget;
  }
};

// -- Texts that most functions share -----------------------------------------------------------

std::string Head(const std::string &name, int children, int slots) {
  return "  function kivu_create_" + name +
         "( parent : in xtr5.widget )\n"
         "    return xtr5.widgetlist_ptr is\n"
         "    self : xtr5.widget;\n"
         "    child_lists : array( 1 .. " +
         std::to_string(children) +
         " ) of xtr5.widgetlist_ptr;\n"
         "    child_count : integer := 1;\n"
         "    args : xtr5.arglist( 1 .. " +
         std::to_string(slots) +
         " );\n"
         "  begin\n";
}

std::string CreateCall(const std::string &function, const std::string &name, int slots) {
  return "    self := " + function +
         "(\n"
         "              parent,\n"
         "              \"" +
         name +
         "\",\n"
         "              args,\n"
         "              " +
         std::to_string(slots) + " );\n";
}

constexpr char kTopLevelLine[] =
    "    if current_top_level = xtr5.xtnull then      current_top_level := self;\n"
    "    end if;\n";

constexpr char kMerged[] = "    for child_index in child_lists'range loop\n"
                           "      child_count := child_count +\n"
                           "                     child_lists( child_index )'length;\n"
                           "    end loop;\n"
                           "    declare\n"
                           "      children : xtr5.widgetlist( 1 .. child_count );\n"
                           "    begin\n"
                           "      child_count := children'first;\n"
                           "      children( child_count ) := self;\n"
                           "      for child_index in child_lists'range loop\n"
                           "        children( child_count + 1 ..\n"
                           "                  child_count +\n"
                           "                  child_lists( child_index )'length ) :=\n"
                           "          child_lists( child_index ).all;\n"
                           "        child_count := child_count +\n"
                           "                       child_lists( child_index )'length;\n"
                           "        freewidgetlist( child_lists( child_index ) );\n"
                           "      end loop;\n";

constexpr char kTrivial[] = "    declare\n"
                            "      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );\n"
                            "    begin\n";

std::string Tail(const std::string &name) {
  return "      return new xtr5.widgetlist'( children );\n"
         "    end;\n"
         "  end kivu_create_" +
         name + ";\n";
}

// A function without arguments, callbacks and children.
std::string Plain(const std::string &name, const std::string &function) {
  return Head(name, 0, 0) + CreateCall(function, name, 0) + kTopLevelLine + kTrivial + Tail(name);
}

std::string PostHead(const std::string &name, int slots) {
  return "  procedure kivu_post_" + name +
         "( parent : in xtr5.widget;\n"
         "      widgets : in xtr5.widgetlist_ptr;\n"
         "      index : in xtr5.int ) is\n"
         "    args : xtr5.arglist( 1 .. " +
         std::to_string(slots) +
         " );\n"
         "  begin\n";
}

std::string PostTail(const std::string &name) {
  return "    null;\n"
         "  end kivu_post_" +
         name + ";\n";
}

std::string PlainPost(const std::string &name) { return PostHead(name, 0) + PostTail(name); }

// -- Creation functions ------------------------------------------------------------------------

TEST_F(AdaWidgetProcs, SmallModule) {
  Reason("XmNactivateCallback", true);
  WidgetDef *ok = Define("ok", "XmPushButton");
  Arguments(ok, {Argument("XmNwidth", Integer(100))});
  Callbacks(ok, {Callback("XmNactivateCallback", {Invoke("quit_cb")})});
  WidgetDef *main = Define("main", "XmForm");
  Controls(main, {Reference("ok", MANAGED)});

  EXPECT_EQ(
      Create(main),
      Head("main", 1, 0) + CreateCall("Xm1_2_2.CreateForm", "main", 0) + kTopLevelLine +
          "    child_lists( 1 ) := kivu_create_ok( self );\n"
          "    xtr5.managechild( child_lists( 1 )( 1 ) );\n" +
          kMerged + Tail("main") + Head("ok", 0, 1) +
          "    declare\n"
          "    integer_1 : constant integer := 100;\n"
          "    begin\n"
          "    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );\n" +
          CreateCall("Xm1_2_2.CreatePushButton", "ok", 1) + kTopLevelLine +
          "    end;\n"
          "    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 1 );\n" +
          kTrivial + Tail("ok"));
  EXPECT_EQ(Post(main), PostHead("main", 0) +
                            "    kivu_post_ok( widgets( index ), widgets, index + 1 );\n" +
                            PostTail("main") + PostHead("ok", 1) + PostTail("ok"));
  EXPECT_STREQ(child_self_or_parent, "self");
}

TEST_F(AdaWidgetProcs, WidgetAloneGetsATrivialList) {
  EXPECT_EQ(Create(Define("w", "XmForm")),
            "  function kivu_create_w( parent : in xtr5.widget )\n"
            "    return xtr5.widgetlist_ptr is\n"
            "    self : xtr5.widget;\n"
            "    child_lists : array( 1 .. 0 ) of xtr5.widgetlist_ptr;\n"
            "    child_count : integer := 1;\n"
            "    args : xtr5.arglist( 1 .. 0 );\n"
            "  begin\n"
            "    self := Xm1_2_2.CreateForm(\n"
            "              parent,\n"
            "              \"w\",\n"
            "              args,\n"
            "              0 );\n"
            "    if current_top_level = xtr5.xtnull then      current_top_level := self;\n"
            "    end if;\n"
            "    declare\n"
            "      children : xtr5.widgetlist( 1 .. 1 ) := ( 1 => self );\n"
            "    begin\n"
            "      return new xtr5.widgetlist'( children );\n"
            "    end;\n"
            "  end kivu_create_w;\n");
}

TEST_F(AdaWidgetProcs, AdaNamesAreLegalAndWidgetNamesAsTheyAre) {
  WidgetDef *gadget = Inline("My-Button", "XmPushButton");
  gadget->gadget = GADGET;
  EXPECT_EQ(Create(gadget), Head("my_button", 0, 0) +
                                CreateCall("Xm1_2_2.CreatePushButtonGadget", "My-Button", 0) +
                                kTopLevelLine + kTrivial + Tail("my_button"));
}

TEST_F(AdaWidgetProcs, ArgumentsFallIntoThreePhases) {
  auto *other = ModelNew<WidgetRef>(WIDGET_REF);
  other->name = "other";
  ArgumentInvoke *background = Argument("XmNbackground", Color("red"));
  ArgumentInvoke *foreground = Argument("XmNforeground", Color("blue"));
  ArgumentInvoke *label = Argument("XmNlabelString", CompoundString("text"));
  WidgetDef *widget = Define("w", "XmForm");
  Arguments(widget,
            {background, Argument("XmNitems", Integer(1)), Argument("XmNdefaultButton", other),
             label, foreground, Argument("XmNmine", Integer(7), false)});

  EXPECT_EQ(Create(widget),
            Head("w", 0, 7) +
                "    declare\n"
                "    integer_1 : constant integer := 1;\n" +
                Declares(label, 3) +
                "    arg_4 : constant string := \"XmNmine\" & ASCII.NUL;\n"
                "    integer_4 : constant integer := 7;\n"
                "    begin\n"
                "    xtr5.setarg( args( 1 ), xmdef.nitems, integer_1 );\n" +
                Sets(label, 3, "self") + "    xtr5.setarg( args( 4 ), arg_4, integer_4 );\n" +
                CreateCall("Xm1_2_2.CreateForm", "w", 4) + kTopLevelLine + Cleans(label, 3) +
                "    end;\n"
                "    declare\n" +
                Declares(background, 1) + Declares(foreground, 2) + "    begin\n" +
                Sets(background, 1, "self") + Sets(foreground, 2, "self") +
                "    XtR5.SetValues( self, args, 2 );\n"
                "    end;\n" +
                kTrivial + Tail("w"));
  EXPECT_EQ(Post(widget), PostHead("w", 7) +
                              "    declare\n"
                              "    widget_1 : xtr5.widget := xtr5.xtnull;\n"
                              "    widget_string_1 : constant string := \"*other\";\n"
                              "    begin\n"
                              "    widget_1 := xtr5.nametowidget( current_top_level,\n"
                              "                             widget_string_1 );\n"
                              "    xtr5.setarg( args( 1 ), xmdef.ndefaultButton, widget_1 );\n"
                              "    XtR5.SetValues( widgets( index ), args, 1 );\n"
                              "    end;\n" +
                              PostTail("w"));
}

TEST_F(AdaWidgetProcs, PairedNameAtTheEndStillTakesTwoSlots) {
  WidgetDef *widget = Define("w", "XmList");
  Arguments(widget, {Argument("XmNitems", Integer(1))});
  EXPECT_EQ(Create(widget), Head("w", 0, 2) +
                                "    declare\n"
                                "    integer_1 : constant integer := 1;\n"
                                "    begin\n"
                                "    xtr5.setarg( args( 1 ), xmdef.nitems, integer_1 );\n" +
                                CreateCall("Xm1_2_2.CreateList", "w", 2) + kTopLevelLine +
                                "    end;\n" + kTrivial + Tail("w"));
}

TEST_F(AdaWidgetProcs, GadgetsConvertAgainstTheirParent) {
  ArgumentInvoke *background = Argument("XmNbackground", Color("red"));
  WidgetDef *widget = Define("w", "XmLabel");
  widget->gadget = GADGET;
  Arguments(widget, {background});
  ASSERT_NE(Sets(background, 1, "self"), Sets(background, 1, "parent"));
  EXPECT_EQ(Create(widget), Head("w", 0, 1) + CreateCall("Xm1_2_2.CreateLabelGadget", "w", 0) +
                                kTopLevelLine + "    declare\n" + Declares(background, 1) +
                                "    begin\n" + Sets(background, 1, "parent") +
                                "    XtR5.SetValues( self, args, 1 );\n"
                                "    end;\n" +
                                kTrivial + Tail("w"));
  EXPECT_STREQ(child_self_or_parent, "self");
}

TEST_F(AdaWidgetProcs, UnmanagedChildIsNotManaged) {
  Define("a", "XmLabel");
  Define("b", "XmLabel");
  WidgetDef *inner = Inline("c", "XmLabel");
  WidgetDef *widget = Define("w", "XmForm");
  Controls(widget, {Reference("a", UNMANAGED), Reference("b", NIL), inner});
  EXPECT_EQ(Create(widget),
            Head("w", 3, 0) + CreateCall("Xm1_2_2.CreateForm", "w", 0) + kTopLevelLine +
                "    child_lists( 1 ) := kivu_create_a( self );\n"
                "    child_lists( 2 ) := kivu_create_b( self );\n"
                "    xtr5.managechild( child_lists( 2 )( 1 ) );\n"
                "    child_lists( 3 ) := kivu_create_c( self );\n"
                "    xtr5.managechild( child_lists( 3 )( 1 ) );\n" +
                kMerged + Tail("w") + Plain("a", "Xm1_2_2.CreateLabel") +
                Plain("b", "Xm1_2_2.CreateLabel") + Plain("c", "Xm1_2_2.CreateLabel"));
}

TEST_F(AdaWidgetProcs, CascadeButtonCreatesItsMenuFirst) {
  Reason("XmNcascadingCallback", true);
  Reason("XmNmapCallback", true);
  auto *other = ModelNew<WidgetRef>(WIDGET_REF);
  other->name = "other";
  WidgetDef *menu = Define("menu", "XmPulldownMenu");
  Callbacks(menu, {Callback("XmNmapCallback", {Invoke("map_cb")})});
  WidgetDef *button = Define("button", "XmCascadeButton");
  Arguments(button, {Argument("XmNwidth", Integer(9)), Argument("XmNx", other)});
  Callbacks(button, {Callback("XmNcascadingCallback", {Invoke("cascade_cb")})});
  Controls(button, {Reference("menu", MANAGED)});

  EXPECT_EQ(
      Create(button),
      Head("menu", 0, 0) + CreateCall("Xm1_2_2.CreatePulldownMenu", "menu", 0) + kTopLevelLine +
          "    xtr5.addcallback( self, Xmdef.NmapCallback, demo_cb_proc'address, 1 );\n" +
          kTrivial + Tail("menu") + Head("button", 1, 3) +
          "    child_lists( 1 ) := kivu_create_menu( parent );\n"
          "    declare\n"
          "    integer_1 : constant integer := 9;\n"
          "    begin\n"
          "    xtr5.setarg( args( 1 ), xmdef.nwidth, integer_1 );\n"
          "    xtr5.setarg( args( 2 ),\n"
          "                 xmdef.nsubmenuid,\n"
          "                 child_lists( 1 )( 1 ) );\n" +
          CreateCall("Xm1_2_2.CreateCascadeButton", "button", 2) + kTopLevelLine +
          "    end;\n"
          "    xtr5.addcallback( self, Xmdef.NcascadingCallback, demo_cb_proc'address, 2 );\n" +
          kMerged + Tail("button"));
  EXPECT_EQ(Post(button), PlainPost("menu") + PostHead("button", 3) +
                              "    kivu_post_menu( widgets( index ), widgets, index + 1 );\n"
                              "    declare\n"
                              "    widget_1 : xtr5.widget := xtr5.xtnull;\n"
                              "    widget_string_1 : constant string := \"*other\";\n"
                              "    begin\n"
                              "    widget_1 := xtr5.nametowidget( current_top_level,\n"
                              "                             widget_string_1 );\n"
                              "    xtr5.setarg( args( 1 ), xmdef.nx, widget_1 );\n"
                              "    XtR5.SetValues( widgets( index ), args, 1 );\n"
                              "    end;\n" +
                              PostTail("button"));
}

TEST_F(AdaWidgetProcs, CascadeButtonAloneSetsNoMenu) {
  WidgetDef *button = Define("button", "XmCascadeButton");
  EXPECT_EQ(Create(button), Head("button", 0, 1) +
                                CreateCall("Xm1_2_2.CreateCascadeButton", "button", 0) +
                                kTopLevelLine + kTrivial + Tail("button"));
  EXPECT_EQ(Post(button), PostHead("button", 1) + PostTail("button"));
}

// The places of a children-first widget's children in the post procedure are their ordinals; those
// of any other widget's children depend on what stands before.
TEST_F(AdaWidgetProcs, PostProceduresAreCalledWithOffsets) {
  WidgetDef *a = Define("a", "XmForm");
  Controls(a, {Inline("a1", "XmLabel"), Inline("a2", "XmLabel")});
  Define("b", "XmLabel");
  WidgetDef *form = Define("form", "XmForm");
  Controls(form,
           {Reference("a", NIL), Reference("b", NIL), Reference("a", NIL), Reference("b", NIL)});
  EXPECT_EQ(Post(form), PostHead("form", 0) +
                            "    kivu_post_a( widgets( index ), widgets, index + 1 );\n"
                            "    kivu_post_b( widgets( index ), widgets, index + 4 );\n"
                            "    kivu_post_a( widgets( index ), widgets, index + 5 );\n"
                            "    kivu_post_b( widgets( index ), widgets, index + 8 );\n" +
                            PostTail("form") + PostHead("a", 0) +
                            "    kivu_post_a1( widgets( index ), widgets, index + 1 );\n"
                            "    kivu_post_a2( widgets( index ), widgets, index + 2 );\n" +
                            PostTail("a") + PlainPost("a1") + PlainPost("a2") + PlainPost("b"));
  WidgetDef *option = Define("option", "XmOptionMenu");
  Controls(option, {Reference("a", NIL), Reference("b", NIL)});
  EXPECT_EQ(Post(option), PostHead("option", 1) +
                              "    kivu_post_a( widgets( index ), widgets, index + 1 );\n"
                              "    kivu_post_b( widgets( index ), widgets, index + 2 );\n" +
                              PostTail("option"));
}

TEST_F(AdaWidgetProcs, SharedWidgetIsWrittenOnce) {
  Define("shared", "XmLabel");
  WidgetDef *left = Define("left", "XmForm");
  Controls(left, {Reference("shared", UNMANAGED)});
  WidgetDef *top = Define("top", "XmForm");
  Controls(top, {Reference("left", UNMANAGED), Reference("shared", UNMANAGED)});
  EXPECT_EQ(Create(top), Head("top", 2, 0) + CreateCall("Xm1_2_2.CreateForm", "top", 0) +
                             kTopLevelLine +
                             "    child_lists( 1 ) := kivu_create_left( self );\n"
                             "    child_lists( 2 ) := kivu_create_shared( self );\n" +
                             kMerged + Tail("top") + Head("left", 1, 0) +
                             CreateCall("Xm1_2_2.CreateForm", "left", 0) + kTopLevelLine +
                             "    child_lists( 1 ) := kivu_create_shared( self );\n" + kMerged +
                             Tail("left") + Plain("shared", "Xm1_2_2.CreateLabel"));
  EXPECT_EQ(Create(top), "");
  EXPECT_EQ(Post(top), PostHead("top", 0) +
                           "    kivu_post_left( widgets( index ), widgets, index + 1 );\n"
                           "    kivu_post_shared( widgets( index ), widgets, index + 3 );\n" +
                           PostTail("top") + PostHead("left", 0) +
                           "    kivu_post_shared( widgets( index ), widgets, index + 1 );\n" +
                           PostTail("left") + PlainPost("shared"));
  EXPECT_EQ(Post(top), "");
}

TEST_F(AdaWidgetProcs, UserDefinedWidgetsCallTheirProcedure) {
  WidgetDef *generic = UserDefined("mine", "My_Create");
  EXPECT_EQ(Create(generic), Head("mine", 0, 0) + CreateCall("my_create", "mine", 0) +
                                 kTopLevelLine + kTrivial + Tail("mine"));
  forbid_generic_widgets = true;
  cb_package_suffix = "callbacks";
  EXPECT_EQ(Create(UserDefined("his", "His_Create")),
            Head("his", 0, 0) + CreateCall("demo_callbacks.his_create", "his", 0) + kTopLevelLine +
                kTrivial + Tail("his"));
  cb_package_suffix = "";
  EXPECT_EQ(Create(UserDefined("hers", "Her_Create")),
            Head("hers", 0, 0) + CreateCall("demo.her_create", "hers", 0) + kTopLevelLine +
                kTrivial + Tail("hers"));
}

TEST_F(AdaWidgetProcs, UnknownClassIsReported) {
  WidgetDef *widget = Define("w", "XmForm");
  widget->type->kind = INTEGER_VALUE;
  std::string text;
  EXPECT_EQ(Reported([&] { text = Create(widget); }),
            "kivuxl: Internal error: Widget w of unknown class.\n");
  EXPECT_EQ(text, Head("w", 0, 0) + kTopLevelLine + kTrivial + Tail("w"));
}

TEST_F(AdaWidgetProcs, ReferenceToNothingIsReportedByCreatingAndPosting) {
  WidgetDef *widget = Define("w", "XmForm");
  WidgetRef *nothing = Reference("nothing", NIL);
  Reported([&] { WidgetResolve(nothing); });
  Controls(widget, {nothing, Inline("a", "XmLabel")});
  const std::string message = "kivuxl: Internal error: non-widget object in controls list.\n";

  std::string text;
  EXPECT_EQ(Reported([&] { text = Create(widget); }), message);
  EXPECT_EQ(text, Head("w", 2, 0) + CreateCall("Xm1_2_2.CreateForm", "w", 0) + kTopLevelLine +
                      "    child_lists( 2 ) := kivu_create_a( self );\n"
                      "    xtr5.managechild( child_lists( 2 )( 1 ) );\n" +
                      kMerged + Tail("w") + Plain("a", "Xm1_2_2.CreateLabel"));
  EXPECT_EQ(Reported([&] { text = Post(widget); }), message);
  EXPECT_EQ(text, PostHead("w", 0) + "    kivu_post_a( widgets( index ), widgets, index + 2 );\n" +
                      PostTail("w") + PlainPost("a"));

  EXPECT_EQ(Reported([&] {
              unsigned counter = 0;
              Written([&](std::FILE *file) {
                WidgetDeclareCreateProc(widget, file);
                WidgetDeclarePostProc(widget, file);
                WidgetDeclareClientData(widget, file, &counter);
                WidgetWriteCallbackCases(widget, file, &counter);
              });
              TopLevel(widget);
              EXPECT_TRUE(WidgetCheckDuplicates());
            }),
            "");
}

TEST_F(AdaWidgetProcs, RecordFieldIsFilled) {
  widgets_record_suffix = "rec";
  WidgetDef *top = Define("My_Top", "XmForm");
  WidgetDef *child = Define("A_Child", "XmLabel");
  current_top_level = top;
  const std::string head = Head("a_child", 0, 0) + CreateCall("Xm1_2_2.CreateLabel", "A_Child", 0) +
                           kTopLevelLine + kTrivial;
  EXPECT_EQ(Create(child), head + "      my_top.a_child := self;\n" + Tail("a_child"));
  current_top_level = nullptr;
  WidgetEmitRecord(child)->body = false;
  EXPECT_EQ(Create(child), head + Tail("a_child"));
  widgets_record_suffix.reset();
  current_top_level = top;
  WidgetEmitRecord(child)->body = false;
  EXPECT_EQ(Create(child), head + Tail("a_child"));
}

// -- Callbacks ---------------------------------------------------------------------------------

TEST_F(AdaWidgetProcs, CallbacksAreRegisteredInTheirPhase) {
  Reason("XmNactivateCallback", true);
  Reason("MrmNcreateCallback", true);
  Reason("mine", false);
  auto *other = ModelNew<WidgetRef>(WIDGET_REF);
  other->name = "other";
  WidgetDef *widget = Define("w", "XmPushButton");
  Callbacks(widget, {Callback("XmNactivateCallback",
                              {Invoke("a"), Invoke("b", Integer(5)), Invoke("c", other)}),
                     Callback("MrmNcreateCallback", {Invoke("d", ModelNew<KindRec>(NONE))}),
                     Callback("mine", {Invoke("e"), Invoke("f", other)})});
  unsigned counter = 10;
  // Tags are declared in the client data package and have no argument slot to be set.
  EXPECT_EQ(Create(widget, &counter),
            Head("w", 0, 0) + CreateCall("Xm1_2_2.CreatePushButton", "w", 0) + kTopLevelLine +
                "    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 11 );\n"
                "    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 12 );\n"
                "    demo_cb_proc( self, 14, create_callback_struct'address );\n"
                "    xtr5.addcallback( self, arg_15, demo_cb_proc'address, 15 );\n" +
                kTrivial + Tail("w"));
  EXPECT_EQ(counter, 16U);
  counter = 10;
  EXPECT_EQ(
      Post(widget, &counter),
      PostHead("w", 0) +
          "    widget_13 := xtr5.nametowidget( current_top_level,\n"
          "                             widget_string_13 );\n"
          "    xtr5.addcallback( widgets( index ), Xmdef.NactivateCallback, demo_cb_proc'address, "
          "13 );\n"
          "    widget_16 := xtr5.nametowidget( current_top_level,\n"
          "                             widget_string_16 );\n"
          "    xtr5.addcallback( widgets( index ), arg_16, demo_cb_proc'address, 16 );\n" +
          PostTail("w"));
  EXPECT_EQ(counter, 16U);
}

TEST_F(AdaWidgetProcs, CallbackPhaseOfATagWithoutValueIsSilent) {
  Reason("XmNactivateCallback", true);
  WidgetDef *widget = Define("w", "XmPushButton");
  Callbacks(widget, {Callback("XmNactivateCallback", {Invoke("a")})});
  EXPECT_EQ(Reported([&] {
              Create(widget);
              Post(widget);
            }),
            "");
}

TEST_F(AdaWidgetProcs, TagsConvertLikeTheWidgetsArguments) {
  Reason("XmNactivateCallback", true);
  ColorValue *color = Color("red");
  WidgetDef *widget = Define("w", "XmPushButton");
  widget->gadget = GADGET;
  Callbacks(widget, {Callback("XmNactivateCallback", {Invoke("a", color)})});
  child_self_or_parent = "parent";
  const std::string set =
      Written([&](std::FILE *file) { ValueSetArgument(color, nullptr, file, 1); });
  child_self_or_parent = "self";
  EXPECT_EQ(
      Create(widget),
      Head("w", 0, 0) + CreateCall("Xm1_2_2.CreatePushButtonGadget", "w", 0) + kTopLevelLine + set +
          "    xtr5.addcallback( self, Xmdef.NactivateCallback, demo_cb_proc'address, 1 );\n" +
          kTrivial + Tail("w"));
}

// -- Automatically created children ------------------------------------------------------------

TEST_F(AdaWidgetProcs, AutomaticChildIsFetchedOnly) {
  WidgetDef *box = Define("box", "XmMessageBox");
  Controls(box, {Automatic("Xm_OK", "XmPushButton"), Automatic("Xm_Separator1", "XmSeparator")});
  EXPECT_EQ(Create(box), Head("box", 2, 0) + CreateCall("Xm1_2_2.CreateMessageBox", "box", 0) +
                             kTopLevelLine +
                             "    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );\n"
                             "    child_lists( 1 )( 1 ) :=\n"
                             "      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );\n"
                             "    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );\n"
                             "    child_lists( 2 )( 1 ) :=\n"
                             "      XtR5.NameToWidget( self, \"*Xm_Separator1\" );\n" +
                             kMerged + Tail("box"));
  EXPECT_EQ(Post(box), PostHead("box", 0) +
                           "    auto_child :=\n"
                           "      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );\n"
                           "    auto_child :=\n"
                           "      XtR5.NameToWidget( self, \"*Xm_Separator1\" );\n" +
                           PostTail("box"));
}

TEST_F(AdaWidgetProcs, AutomaticChildOfAClassWithoutFunction) {
  WidgetDef *window = Define("window", "XmScrolledWindow");
  Controls(window, {Automatic("Xm_OK", "XmPushButton")});
  EXPECT_EQ(Create(window), Head("window", 1, 0) +
                                CreateCall("Xm1_2_2.CreateScrolledWindow", "window", 0) +
                                kTopLevelLine +
                                "    child_lists( 1 ) := new xtr5.widgetlist( 1 .. 1 );\n"
                                "    child_lists( 1 )( 1 ) :=\n"
                                "      XtR5.NameToWidget( self, \"*Xm_OK\" );\n" +
                                kMerged + Tail("window"));
}

TEST_F(AdaWidgetProcs, AutomaticChildIsConfigured) {
  Reason("XmNactivateCallback", true);
  auto *other = ModelNew<WidgetRef>(WIDGET_REF);
  other->name = "other";
  ArgumentInvoke *background = Argument("XmNbackground", Color("red"));
  ArgumentInvoke *label = Argument("XmNlabelString", CompoundString("text"));
  WidgetDef *help = Automatic("Xm_Help", "XmPushButton");
  Arguments(help, {background, Argument("XmNx", other), Argument("XmNwidth", Integer(3)), label});
  Callbacks(help, {Callback("XmNactivateCallback", {Invoke("a"), Invoke("b", other)})});
  WidgetDef *box = Define("box", "XmFileSelectionBox");
  Controls(box, {Inline("first", "XmLabel"), help});

  EXPECT_EQ(Create(box),
            Head("box", 2, 0) + CreateCall("Xm1_2_2.CreateFileSelectionBox", "box", 0) +
                kTopLevelLine +
                "    child_lists( 1 ) := kivu_create_first( self );\n"
                "    xtr5.managechild( child_lists( 1 )( 1 ) );\n"
                "    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );\n"
                "    child_lists( 2 )( 1 ) :=\n"
                "      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );\n"
                "    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then\n"
                "    xtr5.addcallback( child_lists( 2 )( 1 ), Xmdef.NactivateCallback, "
                "demo_cb_proc'address, 1 );\n"
                "    declare\n"
                "    args : xtr5.arglist( 1 .. 4 );\n" +
                Declares(background, 1) + "    integer_2 : constant integer := 3;\n" +
                Declares(label, 3) + "    begin\n" + Sets(background, 1, "child_lists( 2 )( 1 )") +
                "    xtr5.setarg( args( 2 ), xmdef.nwidth, integer_2 );\n" +
                Sets(label, 3, "child_lists( 2 )( 1 )") +
                "    XtR5.SetValues( child_lists( 2 )( 1 ), args, 3 );\n" + Cleans(label, 3) +
                "      null;\n"
                "    end;\n"
                "      null;\n"
                "    end if;\n" +
                kMerged + Tail("box") + Plain("first", "Xm1_2_2.CreateLabel"));
  EXPECT_EQ(Post(box),
            PostHead("box", 0) +
                "    kivu_post_first( widgets( index ), widgets, index + 1 );\n"
                "    auto_child :=\n"
                "      Xm1_2_2.FileSelectionBoxGetChild( self, Xm1_2_2.DIALOG_HELP_BUTTON );\n"
                "    if auto_child /= XtR5.XtNULL then\n"
                "    widget_2 := xtr5.nametowidget( current_top_level,\n"
                "                             widget_string_2 );\n"
                "    xtr5.addcallback( auto_child, Xmdef.NactivateCallback, demo_cb_proc'address, "
                "2 );\n"
                "    declare\n"
                "    args : xtr5.arglist( 1 .. 4 );\n"
                "    widget_1 : xtr5.widget := xtr5.xtnull;\n"
                "    widget_string_1 : constant string := \"*other\";\n"
                "    begin\n"
                "    widget_1 := xtr5.nametowidget( current_top_level,\n"
                "                             widget_string_1 );\n"
                "    xtr5.setarg( args( 1 ), xmdef.nx, widget_1 );\n"
                "    XtR5.SetValues( auto_child, args, 1 );\n"
                "      null;\n"
                "    end;\n"
                "      null;\n"
                "    end if;\n" +
                PostTail("box") + PlainPost("first"));
  EXPECT_STREQ(child_self_or_parent, "self");
}

// With arguments, the post phase has its block even when it sets none of them.
TEST_F(AdaWidgetProcs, AutomaticChildHasAPostBlockWithoutSettings) {
  WidgetDef *ok = Automatic("Xm_OK", "XmPushButton");
  Arguments(ok, {Argument("XmNwidth", Integer(3))});
  WidgetDef *box = Define("box", "XmMessageBox");
  Controls(box, {ok});
  EXPECT_EQ(Post(box), PostHead("box", 0) +
                           "    auto_child :=\n"
                           "      Xm1_2_2.MessageBoxGetChild( self, Xm1_2_2.DIALOG_OK_BUTTON );\n"
                           "    if auto_child /= XtR5.XtNULL then\n"
                           "    declare\n"
                           "    args : xtr5.arglist( 1 .. 1 );\n"
                           "    begin\n"
                           "    XtR5.SetValues( auto_child, args, 0 );\n"
                           "      null;\n"
                           "    end;\n"
                           "      null;\n"
                           "    end if;\n" +
                           PostTail("box"));
}

// The children of an option menu are gadgets; their values are converted against the menu.
TEST_F(AdaWidgetProcs, AutomaticChildOfAnOptionMenu) {
  ArgumentInvoke *background = Argument("XmNbackground", Color("red"));
  WidgetDef *label = Automatic("Xm_OptionLabel", "XmLabel");
  Arguments(label, {background});
  Define("menu", "XmPulldownMenu");
  WidgetDef *option = Define("option", "XmOptionMenu");
  Controls(option, {Reference("menu", NIL), label});
  EXPECT_EQ(Create(option), Plain("menu", "Xm1_2_2.CreatePulldownMenu") + Head("option", 2, 1) +
                                "    child_lists( 1 ) := kivu_create_menu( parent );\n"
                                "    child_lists( 2 ) := new xtr5.widgetlist( 1 .. 1 );\n"
                                "    child_lists( 2 )( 1 ) :=\n"
                                "      XtR5.NameToWidget( self, \"*Xm_OptionLabel\" );\n"
                                "    if child_lists( 2 )( 1 ) /= XtR5.XtNULL then\n"
                                "    declare\n"
                                "    args : xtr5.arglist( 1 .. 1 );\n" +
                                Declares(background, 1) + "    begin\n" +
                                Sets(background, 1, "self") +
                                "    XtR5.SetValues( child_lists( 2 )( 1 ), args, 1 );\n"
                                "      null;\n"
                                "    end;\n"
                                "      null;\n"
                                "    end if;\n"
                                "    xtr5.setarg( args( 1 ),\n"
                                "                 xmdef.nsubmenuid,\n"
                                "                 child_lists( 1 )( 1 ) );\n" +
                                CreateCall("Xm1_2_2.CreateOptionMenu", "option", 1) +
                                kTopLevelLine + kMerged + Tail("option"));
}

// -- Forward declarations ----------------------------------------------------------------------

TEST_F(AdaWidgetProcs, ForwardDeclarationsGoFromParentToChild) {
  WidgetDef *menu = Define("menu", "XmPulldownMenu");
  Controls(menu, {Inline("item", "XmPushButton")});
  WidgetDef *button = Define("button", "XmCascadeButton");
  Controls(button, {Reference("menu", NIL)});
  WidgetDef *bar = Define("bar", "XmMenuBar");
  Controls(bar, {Reference("button", NIL), Automatic("Xm_OK", "XmPushButton"),
                 Reference("menu", NIL), Inline("last", "XmLabel")});
  std::string create;
  std::string post;
  for (const char *name : {"bar", "button", "menu", "item", "last"}) {
    create += std::string("  function kivu_create_") + name +
              "( parent : in xtr5.widget )\n"
              "    return xtr5.widgetlist_ptr;\n";
    post += std::string("  procedure kivu_post_") + name +
            "( parent : in xtr5.widget;\n"
            "      widgets : in xtr5.widgetlist_ptr;\n"
            "      index : in xtr5.int );\n";
  }
  const auto declare = [&](void (*declaration)(const WidgetDef *, std::FILE *)) {
    return Written([&](std::FILE *file) { declaration(bar, file); });
  };
  EXPECT_EQ(declare(WidgetDeclareCreateProc), create);
  EXPECT_EQ(declare(WidgetDeclareCreateProc), "");
  EXPECT_EQ(declare(WidgetDeclarePostProc), post);
  EXPECT_EQ(declare(WidgetDeclarePostProc), "");
}

// -- Client data and case arms -----------------------------------------------------------------

std::string Arm(unsigned number, const std::string &procedure) {
  return "    when " + std::to_string(number) + " =>\n      " + procedure +
         "(w, xtr5.xtnull, call_data);\n";
}

TEST_F(AdaWidgetProcs, ClientDataIsDeclaredByReason) {
  Reason("XmNactivateCallback", true);
  Reason("mine", false);
  auto *other = ModelNew<WidgetRef>(WIDGET_REF);
  other->name = "other";
  WidgetDef *widget = Define("w", "XmPushButton");
  Callbacks(widget, {Callback("XmNactivateCallback",
                              {Invoke("a"), Invoke("b", Integer(5)),
                               Invoke("c", ModelNew<KindRec>(NONE)), Invoke("d", other)}),
                     Callback("mine", {Invoke("e"), Invoke("f", Integer(6)),
                                       Invoke("g", ModelNew<KindRec>(NONE))})});
  unsigned counter = 0;
  EXPECT_EQ(ClientData(widget, &counter), "    integer_2 : constant integer := 5;\n"
                                          "    widget_4 : xtr5.widget := xtr5.xtnull;\n"
                                          "    widget_string_4 : constant string := \"*other\";\n"
                                          "    arg_5 : constant string := \"mine\" & ASCII.NUL;\n"
                                          "    arg_6 : constant string := \"mine\" & ASCII.NUL;\n"
                                          "    integer_6 : constant integer := 6;\n"
                                          "    arg_7 : constant string := \"mine\" & ASCII.NUL;\n");
  EXPECT_EQ(counter, 7U);
}

TEST_F(AdaWidgetProcs, UndefinedReasonIsReportedForEachInvocation) {
  Reason("mine", false);
  WidgetDef *widget = Define("w", "XmPushButton");
  Callbacks(widget, {Callback("w", {Invoke("a"), Invoke("b", Integer(2))}),
                     Callback("nothing", {Invoke("c")}), Callback("mine", {Invoke("d")})});
  unsigned counter = 0;
  std::string text;
  EXPECT_EQ(Reported([&] { text = ClientData(widget, &counter); }),
            "kivuxl: Callback reason w not defined.\n"
            "kivuxl: Callback reason w not defined.\n"
            "kivuxl: Callback reason nothing not defined.\n");
  EXPECT_EQ(text, "    arg_4 : constant string := \"mine\" & ASCII.NUL;\n");
  EXPECT_EQ(counter, 4U);
}

// The own callbacks come before those of the children, but for a children-first widget.
// Automatic children are walked each time, all others once.
TEST_F(AdaWidgetProcs, CallbacksAreNumberedInTraversalOrder) {
  Reason("mine", false);
  const auto with_callback = [](WidgetDef *widget, const char *procedure) {
    Callbacks(widget, {Callback("mine", {Invoke(procedure)})});
    return widget;
  };
  with_callback(Define("leaf", "XmLabel"), "leaf_cb");
  WidgetDef *ok = with_callback(Automatic("Xm_OK", "XmPushButton"), "ok_cb");
  Controls(ok, {Reference("leaf", NIL)});
  WidgetDef *menu = with_callback(Define("menu", "XmPulldownMenu"), "menu_cb");
  Controls(menu, {ok});
  WidgetDef *button = with_callback(Define("button", "XmCascadeButton"), "button_cb");
  Controls(button, {Reference("menu", NIL), ok});
  WidgetDef *top = with_callback(Define("top", "XmMenuBar"), "top_cb");
  Controls(top, {Reference("button", NIL), Reference("leaf", NIL), Reference("menu", NIL), ok});

  unsigned counter = 0;
  EXPECT_EQ(Cases(top, &counter), Arm(1, "top_cb") + Arm(2, "menu_cb") + Arm(3, "ok_cb") +
                                      Arm(4, "leaf_cb") + Arm(5, "ok_cb") + Arm(6, "button_cb") +
                                      Arm(7, "ok_cb"));
  EXPECT_EQ(counter, 7U);
  EXPECT_EQ(Cases(top, &counter), "");

  counter = 0;
  std::string declarations;
  for (int n = 1; n <= 7; ++n) {
    declarations +=
        "    arg_" + std::to_string(n) + " : constant string := \"mine\" & ASCII.NUL;\n";
  }
  EXPECT_EQ(ClientData(top, &counter), declarations);
  EXPECT_EQ(counter, 7U);
  EXPECT_EQ(ClientData(top, &counter), "");
}

// -- Emit records ------------------------------------------------------------------------------

TEST_F(AdaWidgetProcs, TableHasTheBucketsOfEveryTable) {
  EXPECT_EQ(widget_table->modulus, 511U);
  IgnoreCase();
  EXPECT_EQ(widget_table->modulus, 511U);
}

TEST_F(AdaWidgetProcs, RecordsAreKeptByName) {
  WidgetDef *widget = Define("w", "XmForm");
  WidgetEmit *record = WidgetEmitRecord(widget);
  EXPECT_STREQ(record->name, "w");
  EXPECT_FALSE(record->cbs || record->decl || record->body || record->post || record->pstb ||
               record->data);
  EXPECT_EQ(record->rec, nullptr);
  EXPECT_EQ(WidgetEmitRecord(Inline("w", "XmLabel")), record);
  EXPECT_NE(WidgetEmitRecord(Inline("W", "XmLabel")), record);
  IgnoreCase();
  record = WidgetEmitRecord(widget);
  EXPECT_EQ(WidgetEmitRecord(Inline("W", "XmLabel")), record);
}

TEST_F(AdaWidgetProcs, EachWriterSetsItsOwnFlag) {
  WidgetDef *widget = Define("w", "XmForm");
  const WidgetEmit *record = WidgetEmitRecord(widget);
  const auto flags = [&] {
    std::string text;
    for (bool flag :
         {record->cbs, record->decl, record->body, record->post, record->pstb, record->data}) {
      text += flag ? '1' : '0';
    }
    return text;
  };
  unsigned counter = 0;
  Written([&](std::FILE *file) { WidgetDeclareCreateProc(widget, file); });
  EXPECT_EQ(flags(), "010000");
  Create(widget);
  EXPECT_EQ(flags(), "011000");
  Written([&](std::FILE *file) { WidgetDeclarePostProc(widget, file); });
  EXPECT_EQ(flags(), "011100");
  Post(widget);
  EXPECT_EQ(flags(), "011110");
  ClientData(widget, &counter);
  EXPECT_EQ(flags(), "011111");
  Cases(widget, &counter);
  EXPECT_EQ(flags(), "111111");
}

TEST_F(AdaWidgetProcs, WidgetUnderTwoTopLevelsIsADuplicate) {
  WidgetDef *shared = Define("shared", "XmLabel");
  WidgetDef *middle = Define("middle", "XmForm");
  Controls(middle, {Reference("shared", NIL)});
  WidgetDef *first = TopLevel(Define("first", "XmForm"));
  Controls(first, {Reference("middle", NIL)});
  WidgetDef *second = TopLevel(Define("second", "XmForm"));
  Controls(second, {Inline("own", "XmLabel"), Reference("shared", NIL)});
  WidgetDef *third = TopLevel(Define("third", "XmForm"));
  Controls(third, {Reference("shared", NIL)});
  for (int run = 0; run < 2; ++run) { // the check begins with clear records each time
    bool passed = true;
    EXPECT_EQ(Reported([&] { passed = WidgetCheckDuplicates(); }),
              "kivuxl: Control shared appears under both second and first.\n");
    EXPECT_FALSE(passed);
    EXPECT_EQ(current_top_level, nullptr);
    EXPECT_STREQ(WidgetEmitRecord(shared)->rec, "first");
    EXPECT_STREQ(WidgetEmitRecord(second)->rec, "second");
    EXPECT_EQ(WidgetEmitRecord(third)->rec, nullptr);
  }
}

TEST_F(AdaWidgetProcs, WidgetSharedWithinOneTreeIsNoDuplicate) {
  EXPECT_TRUE(WidgetCheckDuplicates());
  Define("shared", "XmLabel");
  WidgetDef *left = Define("left", "XmForm");
  Controls(left, {Reference("shared", NIL)});
  WidgetDef *ok = Automatic("Xm_OK", "XmPushButton");
  Controls(ok, {Reference("left", NIL)}); // what is below an automatic child is not looked at
  WidgetDef *top = TopLevel(Define("top", "XmForm"));
  Controls(top, {Reference("left", NIL), Reference("shared", NIL), ok});
  Controls(TopLevel(Define("other", "XmForm")), {ok});
  EXPECT_EQ(Reported([&] { EXPECT_TRUE(WidgetCheckDuplicates()); }), "");
  EXPECT_EQ(current_top_level, nullptr);

  current_top_level = top;
  WidgetClearEmitRecord(top);
  EXPECT_EQ(WidgetEmitRecord(left)->rec, nullptr);
  EXPECT_TRUE(WidgetCheckEmitRecord(left));
  EXPECT_STREQ(WidgetEmitRecord(left)->rec, "top");
}

TEST_F(AdaWidgetProcs, TopLevelNamesAreComparedByTheCaseRule) {
  WidgetDef *widget = Define("w", "XmForm");
  current_top_level = Define("top", "XmForm");
  EXPECT_TRUE(WidgetCheckEmitRecord(widget));
  current_top_level = Inline("TOP", "XmForm");
  EXPECT_EQ(Reported([&] { EXPECT_FALSE(WidgetCheckEmitRecord(widget)); }),
            "kivuxl: Control w appears under both TOP and top.\n");
  case_sensitive = false;
  EXPECT_TRUE(WidgetCheckEmitRecord(widget));
}

// As deep as controls may be nested, all traversals need no more than a small stack.
TEST_F(AdaWidgetProcs, TraversalsReachTheGreatestDepth) {
  std::vector<std::string> names;
  names.reserve(kMaxControlDepth + 1);
  for (int level = 0; level <= kMaxControlDepth; ++level) {
    names.push_back("w" + std::to_string(level));
  }
  WidgetDef *top = Define(names[0].c_str(), "XmForm");
  for (std::size_t level = 1; level < names.size(); ++level) {
    top = Define(names[level].c_str(), "XmForm");
    Controls(top, {Reference(names[level - 1].c_str(), NIL)});
  }
  TopLevel(top);
  EXPECT_TRUE(WidgetCheckDuplicates());
  EXPECT_EQ(WidgetCountHierarchy(top), kMaxControlDepth + 1);
  const std::string lowest = PlainPost("w0");
  const std::string post = Post(top);
  EXPECT_EQ(post.substr(post.size() - lowest.size()), lowest);
  const std::string create = Create(top);
  const std::string plain = Plain("w0", "Xm1_2_2.CreateForm");
  EXPECT_EQ(create.substr(create.size() - plain.size()), plain);
  unsigned counter = 0;
  EXPECT_EQ(ClientData(top, &counter) + Cases(top, &counter), "");
  Written([&](std::FILE *file) {
    WidgetDeclareCreateProc(top, file);
    WidgetDeclarePostProc(top, file);
  });
  EXPECT_TRUE(WidgetEmitRecord(Inline("w0", "XmForm"))->decl);
  EXPECT_TRUE(WidgetEmitRecord(Inline("w0", "XmForm"))->post);
}

// Forty levels that each have the level below twice are 2^40 ways to the lowest.
TEST_F(AdaWidgetProcs, RecordsOfSharedWidgetsAreVisitedOnce) {
  std::vector<std::string> names;
  names.reserve(40);
  for (int level = 0; level < 40; ++level) {
    names.push_back("level_" + std::to_string(level));
  }
  WidgetDef *top = Define(names[0].c_str(), "XmForm");
  for (std::size_t level = 1; level < names.size(); ++level) {
    top = Define(names[level].c_str(), "XmForm");
    const char *below = names[level - 1].c_str();
    Controls(top, {Reference(below, NIL), Reference(below, NIL)});
  }
  TopLevel(top);
  EXPECT_TRUE(WidgetCheckDuplicates());
}

} // namespace
