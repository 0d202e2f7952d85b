// Tests of X bitmap files.

#include "ValueModel.h"

namespace {

class AdaXBitmapFile : public ValueModel {
protected:
  static std::string Setting(const std::string &widget) {
    return "    XtR5.SetArg( xbitmapfile_args_7( 1 ),\n"
           "                 Xmdef.Nbackground,\n"
           "                 xbitmapfile_background_7'address );\n"
           "    XtR5.SetArg( xbitmapfile_args_7( 2 ),\n"
           "                 Xmdef.Nforeground,\n"
           "                 xbitmapfile_foreground_7'address );\n"
           "    XtR5.SetArg( xbitmapfile_args_7( 3 ),\n"
           "                 Xmdef.Ndepth,\n"
           "                 xbitmapfile_depth_7'address );\n"
           "    XtR5.GetValues( " +
           widget +
           ", xbitmapfile_args_7, 3 );\n"
           "    xbitmapfile_7 :=\n"
           "      Xm1_2_2.GetPixmapByDepth( XtR5.ScreenOfObject( self ),\n"
           "                                xbitmapfile_file_7,\n"
           "                                xbitmapfile_foreground_7,\n"
           "                                xbitmapfile_background_7,\n"
           "                                xbitmapfile_depth_7 );\n";
  }
};

constexpr const char *kDeclaration =
    "    xbitmapfile_7 : xlibr5.pixmap;\n"
    "    xbitmapfile_file_7 : constant string := \"icons/\"left\".xbm\";\n"
    "    xbitmapfile_args_7 : xtr5.arglist( 1 .. 3 );\n"
    "    xbitmapfile_background_7 : xlibr5.pixel;\n"
    "    xbitmapfile_foreground_7 : xlibr5.pixel;\n"
    "    xbitmapfile_depth_7 : xlibr5.int;\n";

// The name of the file is written as it is.
TEST_F(AdaXBitmapFile, IsReadForTheWidget) {
  ExpectWritten(Text<XBitmapFileValue>(XBITMAPFILE, "icons/\"left\".xbm"),
                {kDeclaration, Setting("self"), "xbitmapfile_7", ""});
}

TEST_F(AdaXBitmapFile, IsReadForTheParentOfAGadget) {
  child_self_or_parent = "parent";
  ExpectWritten(Text<XBitmapFileValue>(XBITMAPFILE, "icons/\"left\".xbm"),
                {kDeclaration, Setting("parent"), "xbitmapfile_7", ""});
}

TEST_F(AdaXBitmapFile, Names) {
  ExpectNames(Text<XBitmapFileValue>(XBITMAPFILE, "x"), "xbitmapfile_12", "xbitmapfile_12'address");
}

} // namespace
