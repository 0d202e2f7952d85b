// Tests of class record names.

#include "AdaClassRecName.h"

#include "ValueModel.h"

namespace {

class AdaClassRecName : public ValueModel {};

struct Translation {
  const char *uil_name;
  const char *expression;
};

constexpr Translation kTranslations[] = {
    {"extobject", "xm1_2_2.extobjectclass"},
    {"object", "xm1_2_2.objectclass"},
    {"rectobj", "xm1_2_2.rectobjclass"},
    {"xmdisplay", "xm1_2_2.displayclass"},
    {"xmdragcontext", "xm1_2_2.dragcontextclass"},
    {"xmscreen", "xm1_2_2.screenclass"},
    {"xmdragicon", "xm1_2_2.dragiconobjectclass"},
    {"xmdroptransfer", "xm1_2_2.droptransferobjectclass"},
    {"xmdropsite", "xm1_2_2.dropsitemanagerobjectclass"},
    {"overrideshell", "xtr5.overrideshellwidgetclass"},
    {"toplevelshell", "xtr5.toplevelshellwidgetclass"},
    {"transientshell", "xtr5.transientshellwidgetclass"},
    {"applicationshell", "xtr5.applicationshellwidgetclass"},
    // Case does not matter.
    {"topLevelShell", "xtr5.toplevelshellwidgetclass"},
    {"XmDisplay", "xm1_2_2.displayclass"},
    // The general rule keeps the case.
    {"XmPushButton", "xm1_2_2.PushButtonwidgetclass"},
    {"xmpushbutton", "xm1_2_2.pushbuttonwidgetclass"},
    {"XMForm", "xm1_2_2.Formwidgetclass"},
    {"XmPushButtonGadget", "xm1_2_2.PushButtonGadgetclass"},
    {"XmLabelGADGET", "xm1_2_2.LabelGADGETclass"},
    {"MyWidget", "xm1_2_2.MyWidgetwidgetclass"},
    {"MyXmWidget", "xm1_2_2.MyXmWidgetwidgetclass"},
    // The ends of the rules.
    {"gadget", "xm1_2_2.gadgetclass"},
    {"adget", "xm1_2_2.adgetwidgetclass"},
    {"XmGadget", "xm1_2_2.Gadgetclass"},
    {"gadgets", "xm1_2_2.gadgetswidgetclass"},
    {"xm", "xm1_2_2.widgetclass"},
    {"x", "xm1_2_2.xwidgetclass"},
    {"", "xm1_2_2.widgetclass"},
    {nullptr, "xm1_2_2.widgetclass"},
    {"xmdisplays", "xm1_2_2.displayswidgetclass"},
    {"objec", "xm1_2_2.objecwidgetclass"},
};

TEST_F(AdaClassRecName, ClassObjects) {
  for (const Translation &row : kTranslations) {
    EXPECT_EQ(class_rec_name_value_expr(row.uil_name), row.expression);
  }
}

TEST_F(AdaClassRecName, IsSetByValue) {
  ExpectWritten(
      Text<ClassRecNameValue>(CLASS_REC_NAME, "XmPushButton"),
      {"    class_rec_name_7 : constant xtr5.widgetclass := xm1_2_2.PushButtonwidgetclass;\n", "",
       "class_rec_name_7", ""});
}

TEST_F(AdaClassRecName, Names) {
  ExpectNames(Text<ClassRecNameValue>(CLASS_REC_NAME, "XmForm"), "class_rec_name_12",
              "class_rec_name_12");
}

} // namespace
