// Tests of keysyms.

#include "ValueModel.h"

namespace {

class AdaKeysym : public ValueModel {};

TEST_F(AdaKeysym, OneCharacterStandsForItself) {
  ExpectWritten(Text<KeysymValue>(KEYSYM, "q"), {"    keysym_7 : constant xlibr5.keysym := "
                                                 "xlibr5.keysym( character'pos( 'q' ) );\n",
                                                 "", "keysym_7", ""});
  EXPECT_EQ(Declared(Text<KeysymValue>(KEYSYM, "'"), nullptr, 1),
            "    keysym_1 : constant xlibr5.keysym := xlibr5.keysym( character'pos( ''' ) );\n");
}

TEST_F(AdaKeysym, OtherTextsAreNames) {
  ExpectWritten(Text<KeysymValue>(KEYSYM, "F1"),
                {"    keysym_7 : constant xlibr5.keysym := XK.K_F1;\n", "", "keysym_7", ""});
  EXPECT_EQ(Declared(Text<KeysymValue>(KEYSYM, ""), nullptr, 1),
            "    keysym_1 : constant xlibr5.keysym := XK.K_;\n");
}

TEST_F(AdaKeysym, Names) {
  ExpectNames(Text<KeysymValue>(KEYSYM, "F1"), "keysym_12", "keysym_12'address");
}

} // namespace
