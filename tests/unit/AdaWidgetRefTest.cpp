// Tests of references to widgets as values.

#include "ValueModel.h"

namespace {

class AdaWidgetRef : public ValueModel {};

TEST_F(AdaWidgetRef, IsLookedUpByName) {
  ExpectWritten(Reference("Ok$Button", NIL),
                {"    widget_7 : xtr5.widget := xtr5.xtnull;\n"
                 "    widget_string_7 : constant string := \"*Ok$Button\";\n",
                 "    widget_7 := xtr5.nametowidget( current_top_level,\n"
                 "                             widget_string_7 );\n",
                 "widget_7", ""});
}

TEST_F(AdaWidgetRef, Names) { ExpectNames(Reference("w", NIL), "widget_12", "widget_12"); }

} // namespace
