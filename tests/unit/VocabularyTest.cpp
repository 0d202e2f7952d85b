// The vocabulary, written down a second time.  Each table is compared with its text here row by row
// and in order, so that a row that is changed, lost or moved by accident is noticed.

#include "Vocabulary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

Texts Words(const char *text) {
  std::istringstream stream(text);
  Texts words;
  for (std::string word; stream >> word;) {
    words.push_back(word);
  }
  return words;
}

Texts Pieces(const char *text, char separator) {
  std::istringstream stream(text);
  Texts pieces;
  for (std::string piece; std::getline(stream, piece, separator);) {
    pieces.push_back(piece);
  }
  return pieces;
}

template <typename Rows, typename Render> Texts Rendered(const Rows &rows, Render render) {
  Texts texts;
  std::transform(std::begin(rows), std::end(rows), std::back_inserter(texts), render);
  return texts;
}

void ExpectRows(const Texts &expected, const Texts &rows) {
  ASSERT_EQ(expected.size(), rows.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(expected[i], rows[i]);
  }
}

// -- Keywords ----------------------------------------------------------------------------------

struct Keyword {
  const char *name;
  TokenCode token;
};

template <typename Words> void ExpectKeywords(const Words &rows, std::vector<Keyword> expected) {
  ASSERT_EQ(expected.size(), rows.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_STREQ(expected[i].name, rows[i].name);
    EXPECT_EQ(expected[i].token, rows[i].kind) << rows[i].name;
    EXPECT_EQ(nullptr, rows[i].value) << rows[i].name;
  }
}

TEST(Vocabulary, ReservedWords) {
  ExpectKeywords(reserved_words, {
                                     {"arguments", ARGUMENTS},
                                     {"callbacks", CALLBACKS},
                                     {"controls", CONTROLS},
                                     {"end", END},
                                     {"exported", EXPORTED},
                                     {"gadget", GADGET},
                                     {"identifier", IDENTIFIER},
                                     {"include", INCLUDE},
                                     {"list", LIST},
                                     {"module", MODULE},
                                     {"object", OBJECT},
                                     {"private", PRIVATE},
                                     {"procedure", PROCEDURE},
                                     {"procedures", PROCEDURES},
                                     {"value", VALUE},
                                 });
}

TEST(Vocabulary, NonReservedWords) {
  ExpectKeywords(non_res_words, {
                                    {"background", BACKGROUND},
                                    {"case_insensitive", CASE_INSENSITIVE},
                                    {"case_sensitive", CASE_SENSITIVE},
                                    {"file", FILE_WORD},
                                    {"foreground", FOREGROUND},
                                    {"imported", IMPORTED},
                                    {"managed", MANAGED},
                                    {"names", NAMES},
                                    {"objects", OBJECTS},
                                    {"right_to_left", RIGHT_TO_LEFT},
                                    {"separate", SEPARATE},
                                    {"sixteen_bit", SIXTEEN_BIT},
                                    {"unmanaged", UNMANAGED},
                                    {"user_defined", USER_DEFINED},
                                    {"version", VERSION},
                                });
}

// -- Types -------------------------------------------------------------------------------------

struct Type {
  const char *name;
  TokenCode kind;
  TokenCode value_type;
  TokenCode const_type;
  bool do_prom;
  std::array<std::int32_t, 3> proms; // 0 where not used
};

constexpr auto kTypes = std::to_array<Type>({
    {"any", ANY, ANY, NIL, false, {}},
    {"argument", ARGUMENT, ARGUMENT_NAME, ARGUMENT_VALUE, false, {}},
    {"asciz_string_table",
     ASCIZ_STRING_TABLE,
     ASCIZ_STRING_TABLE,
     ASCIZ_STRING_TABLE_VALUE,
     false,
     {}},
    {"asciz_table", ASCIZ_STRING_TABLE, ASCIZ_STRING_TABLE, ASCIZ_STRING_TABLE_VALUE, false, {}},
    {"boolean",
     BOOLEAN,
     BOOLEAN_NUMBER,
     BOOLEAN_VALUE,
     true,
     {INTEGER_NUMBER, SINGLE_FLOAT_NUMBER, FLOAT_NUMBER}},
    {"character_set", CHARACTER_SET, CHARACTER_SET, NIL, false, {}},
    {"class_rec_name", CLASS_REC_NAME, CLASS_REC_NAME, CLASS_REC_NAME_VALUE, false, {}},
    {"color", COLOR, COLOR, COLOR_VALUE, false, {RGB}},
    {"color_table", COLOR_TABLE, COLOR_TABLE, COLOR_TABLE_VALUE, false, {}},
    {"compound_string", COMPOUND_STRING, COMPOUND_STRING, COMPOUND_STRING_VALUE, false, {}},
    {"compound_string_table",
     COMPOUND_STRING_TABLE,
     COMPOUND_STRING_TABLE,
     COMPOUND_STRING_TABLE_VALUE,
     false,
     {}},
    {"float",
     FLOAT,
     FLOAT_NUMBER,
     FLOAT_VALUE,
     true,
     {BOOLEAN_NUMBER, INTEGER_NUMBER, SINGLE_FLOAT_NUMBER}},
    {"font", FONT, FONT, FONT_VALUE, true, {FONT_TABLE}},
    {"fontset", FONTSET, FONTSET, FONTSET_VALUE, true, {FONT_TABLE}},
    {"font_table", FONT_TABLE, FONT_TABLE, FONT_TABLE_VALUE, false, {}},
    {"icon", ICON, ICON, ICON_VALUE, false, {PIXMAP}},
    {"integer",
     INTEGER,
     INTEGER_NUMBER,
     INTEGER_VALUE,
     true,
     {BOOLEAN_NUMBER, SINGLE_FLOAT_NUMBER, FLOAT_NUMBER}},
    {"integer_table", INTEGER_TABLE, INTEGER_TABLE, INTEGER_TABLE_VALUE, false, {}},
    {"keysym", KEYSYM, KEYSYM, KEYSYM_VALUE, false, {}},
    {"void", NONE, NONE, NIL, false, {}},
    {"pixmap", PIXMAP, PIXMAP, PIXMAP_VALUE, false, {}},
    {"reason", REASON, REASON_NAME, REASON_VALUE, false, {}},
    {"rgb", RGB, RGB, RGB_VALUE, false, {COLOR}},
    {"single_float",
     SINGLE_FLOAT,
     SINGLE_FLOAT_NUMBER,
     SINGLE_FLOAT_VALUE,
     true,
     {BOOLEAN_NUMBER, INTEGER_NUMBER, FLOAT_NUMBER}},
    {"string", STRING, SIMPLE_STRING, STRING_VALUE, true, {COMPOUND_STRING}},
    {"string_table",
     COMPOUND_STRING_TABLE,
     COMPOUND_STRING_TABLE,
     COMPOUND_STRING_TABLE_VALUE,
     false,
     {}},
    {"translation_table", TRANSLATION_TABLE, TRANSLATION_TABLE, TRANSLATION_TABLE_VALUE, false, {}},
    {"wide_character", WIDE_CHARACTER, WIDE_CHARACTER, WIDE_CHARACTER_VALUE, false, {}},
    {"widget", WIDGET, WIDGET, NIL, false, {}},
    {"xbitmapfile", XBITMAPFILE, XBITMAPFILE, XBITMAPFILE_VALUE, false, {PIXMAP}},
});

void ExpectType(const Type &type, const FunctionName &row) {
  EXPECT_STREQ(type.name, row.name);
  EXPECT_EQ(type.kind, row.kind) << type.name;
  EXPECT_EQ(type.value_type, row.value_type) << type.name;
  EXPECT_EQ(type.const_type, row.const_type) << type.name;
  EXPECT_EQ(type.do_prom, row.do_prom) << type.name;
  EXPECT_TRUE(std::equal(type.proms.begin(), type.proms.end(), row.proms)) << type.name;
  EXPECT_EQ(3 - std::count(type.proms.begin(), type.proms.end(), 0), row.num_proms) << type.name;
}

TEST(Vocabulary, Types) {
  ASSERT_EQ(kTypes.size(), function_names.size());
  for (std::size_t i = 0; i < kTypes.size(); ++i) {
    ExpectType(kTypes[i], function_names[i]);
  }
}

// -- Character sets ----------------------------------------------------------------------------

// Name, registry name, and p: parsed right to left, w: written right to left, 16: two bytes.
constexpr const char *kCharacterSets =
    "iso_latin1=iso8859-1 iso_latin2=iso8859-2 iso_latin3=iso8859-3 iso_latin4=iso8859-4 "
    "iso_latin5=iso8859-5 iso_cyrillic=iso8859-5 iso_arabic=iso8859-6 iso_greek=iso8859-7 "
    "iso_latin8=iso8859-8:pw iso_latin8_lr=iso8859-8:w iso_hebrew=iso8859-8:pw "
    "iso_hebrew_lr=iso8859-8:w gb_hanzi=gb2313.1980-0:16 gb_hanzi_gr=gb2313.1980-1:16 "
    "jis_kanji=jisx0208.1983-0:16 jis_kanji_gr=jisx0208.1983-1:16 jis_katakana=jisx0201.1976-0 "
    "ksc_hangul=ksc5601.1987-0:16 ksc_hangul_gr=ksc5601.1987-1:16";

TEST(Vocabulary, CharacterSets) {
  const auto render = [](const CharacterSetValue &row) {
    const std::string flags = std::string(row.parse_dir ? "p" : "") + (row.write_dir ? "w" : "") +
                              (row.sixteen_bit ? "16" : "");
    return std::string(row.name) + "=" + row.charset + (flags.empty() ? "" : ":" + flags);
  };
  ExpectRows(Words(kCharacterSets), Rendered(character_sets, render));
  for (const CharacterSetValue &row : character_sets) {
    EXPECT_EQ(CHARACTER_SET_CONSTANT, row.kind) << row.name;
    EXPECT_TRUE(row.predefined) << row.name;
  }
}

// -- Constants ---------------------------------------------------------------------------------

constexpr const char *kIntegers =
    "Xm1000TH_INCHES=2 Xm100TH_FONT_UNITS=4 Xm100TH_MILLIMETERS=1 Xm100TH_POINTS=3 "
    "XmALIGNMENT_BASELINE_BOTTOM=2 XmALIGNMENT_BASELINE_TOP=0 XmALIGNMENT_BEGINNING=0 "
    "XmALIGNMENT_CENTER=1 XmALIGNMENT_CONTENTS_BOTTOM=4 XmALIGNMENT_CONTENTS_TOP=3 "
    "XmALIGNMENT_END=2 XmALIGNMENT_WIDGET_BOTTOM=4 XmALIGNMENT_WIDGET_TOP=3 "
    "XmAPPLICATION_DEFINED=1 XmARROW_DOWN=1 XmARROW_LEFT=2 XmARROW_RIGHT=3 XmARROW_UP=0 "
    "XmAS_NEEDED=1 XmATTACH_FORM=1 XmATTACH_NONE=0 XmATTACH_OPPOSITE_FORM=2 "
    "XmATTACH_OPPOSITE_WIDGET=4 XmATTACH_POSITION=5 XmATTACH_SELF=6 XmATTACH_WIDGET=3 "
    "XmAUTOMATIC=0 XmBOTTOM_LEFT=2 XmBOTTOM_RIGHT=0 XmBROWSE_SELECT=3 XmCHANGE_ALL=0 "
    "XmCHANGE_HEIGHT=3 XmCHANGE_NONE=1 XmCHANGE_WIDTH=2 XmCOMMAND_ABOVE_WORKSPACE=0 "
    "XmCOMMAND_BELOW_WORKSPACE=1 XmCONSTANT=1 XmDIALOG_APPLICATION_MODAL=1 "
    "XmDIALOG_CANCEL_BUTTON=0 XmDIALOG_COMMAND=3 XmDIALOG_DEFAULT_BUTTON=0 XmDIALOG_ERROR=1 "
    "XmDIALOG_FILE_SELECTION=4 XmDIALOG_FULL_APPLICATION_MODAL=2 XmDIALOG_HELP_BUTTON=0 "
    "XmDIALOG_INFORMATION=2 XmDIALOG_MESSAGE=3 XmDIALOG_MESSAGE_LABEL=0 XmDIALOG_MODELESS=0 "
    "XmDIALOG_OK_BUTTON=0 XmDIALOG_PRIMARY_APPLICATION_MODAL=1 XmDIALOG_PROMPT=1 "
    "XmDIALOG_QUESTION=4 XmDIALOG_SELECTION=2 XmDIALOG_SEPARATOR=0 XmDIALOG_SYMBOL_LABEL=0 "
    "XmDIALOG_SYSTEM_MODAL=3 XmDIALOG_WARNING=5 XmDIALOG_WORKING=6 XmDIALOG_WORK_AREA=0 "
    "XmDOUBLE_DASHED_LINE=4 XmDOUBLE_LINE=2 XmDYNAMIC=1 XmEXCLUSIVE_TAB_GROUP=3 "
    "XmEXTENDED_SELECT=2 XmFILE_ANY_TYPE=3 XmFILE_DIRECTORY=1 XmFILE_REGULAR=2 "
    "XmFRAME_GENERIC_CHILD=0 XmFRAME_TITLE_CHILD=2 XmFRAME_WORKAREA_CHILD=1 XmHORIZONTAL=2 "
    "XmMAX_ON_BOTTOM=1 XmMAX_ON_LEFT=2 XmMAX_ON_RIGHT=3 XmMAX_ON_TOP=0 XmMENU_BAR=1 "
    "XmMENU_OPTION=4 XmMENU_POPUP=3 XmMENU_PULLDOWN=2 XmMULTIPLE_SELECT=1 XmMULTI_LINE_EDIT=0 "
    "XmNONE=0 XmNO_LINE=0 XmNO_ORIENTATION=0 XmNO_PACKING=0 XmN_OF_MANY=1 XmONE_OF_MANY=2 "
    "XmPACK_COLUMN=2 XmPACK_NONE=3 XmPACK_TIGHT=1 XmPIXELS=0 XmPIXMAP=1 XmRESIZE_ANY=2 "
    "XmRESIZE_GROW=1 XmRESIZE_IF_POSSIBLE=2 XmRESIZE_NONE=0 XmSHADOW_ETCHED_IN=5 "
    "XmSHADOW_ETCHED_OUT=6 XmSHADOW_IN=7 XmSHADOW_OUT=8 XmSINGLE_DASHED_LINE=3 XmSINGLE_LINE=1 "
    "XmSINGLE_LINE_EDIT=1 XmSINGLE_SELECT=0 XmSTATIC=0 XmSTICKY_TAB_GROUP=2 XmSTRING=2 "
    "XmSTRING_DIRECTION_L_TO_R=0 XmSTRING_DIRECTION_R_TO_L=1 XmTAB_GROUP=1 XmTEAR_OFF_DISABLED=1 "
    "XmTEAR_OFF_ENABLED=0 XmTOP_LEFT=3 XmTOP_RIGHT=1 XmTRAVERSE_CURRENT=0 XmTRAVERSE_DOWN=7 "
    "XmTRAVERSE_HOME=3 XmTRAVERSE_LEFT=8 XmTRAVERSE_NEXT=1 XmTRAVERSE_NEXT_TAB_GROUP=4 "
    "XmTRAVERSE_PREV=2 XmTRAVERSE_PREV_TAB_GROUP=5 XmTRAVERSE_RIGHT=9 XmTRAVERSE_UP=6 "
    "XmVARIABLE=0 XmVERTICAL=1 XmWORK_AREA=0";

template <typename Row> std::string NameAndValue(const Row &row) {
  return std::string(row.name) + "=" + std::to_string(static_cast<int>(row.value.value));
}

TEST(Vocabulary, IntegerConstants) {
  ExpectRows(Words(kIntegers), Rendered(constants, NameAndValue<IntegerConstantTemplate>));
  for (const IntegerConstantTemplate &row : constants) {
    EXPECT_EQ(INTEGER_CONSTANT, row.kind) << row.name;
    EXPECT_EQ(INTEGER_NUMBER, row.value.kind) << row.name;
  }
}

// How often each value stands in the table, and with it the sum.
TEST(Vocabulary, IntegerConstantCounts) {
  std::map<int, int> counts;
  int sum = 0;
  for (const IntegerConstantTemplate &row : constants) {
    ++counts[row.value.value];
    sum += row.value.value;
  }
  const std::map<int, int> expected = {{0, 33}, {1, 31}, {2, 24}, {3, 18}, {4, 9},
                                       {5, 4},  {6, 4},  {7, 2},  {8, 2},  {9, 1}};
  EXPECT_EQ(expected, counts);
  EXPECT_EQ(252, sum);
}

TEST(Vocabulary, Booleans) {
  ExpectRows(Words("on=1 off=0 true=1 false=0"),
             Rendered(booleans, NameAndValue<BooleanConstantTemplate>));
  for (const BooleanConstantTemplate &row : booleans) {
    EXPECT_EQ(BOOLEAN_CONSTANT, row.kind) << row.name;
    EXPECT_EQ(BOOLEAN_NUMBER, row.value.kind) << row.name;
  }
}

// -- Widget classes ----------------------------------------------------------------------------

template <typename Row> std::string Name(const Row &row) { return row.name; }

constexpr const char *kClasses =
    "ApplicationShell OverrideShell Shell TopLevelShell TransientShell VendorShell WMShell "
    "XmArrowButton XmArrowButtonGadget XmBulletinBoard XmBulletinBoardDialog XmCascadeButton "
    "XmCascadeButtonGadget XmCommand XmDrawingArea XmDrawnButton XmFileSelectionBox "
    "XmFileSelectionDialog XmForm XmFormDialog XmFrame XmLabel XmLabelGadget XmList "
    "XmScrolledList XmMainWindow XmMessageBox XmMessageDialog XmQuestionDialog XmPromptDialog "
    "XmWarningDialog XmInformationDialog XmErrorDialog XmTemplateDialog XmWorkingDialog "
    "XmMenuBar XmOptionMenu XmPopupMenu XmRadioBox XmRowColumn XmPulldownMenu XmWorkArea "
    "XmPanedWindow XmPushButton XmPushButtonGadget XmScale XmScrollBar XmScrolledWindow "
    "XmSelectionBox XmSelectionDialog XmSeparator XmSeparatorGadget XmScrolledText "
    "XmTearOffButton XmText XmTextField XmToggleButton XmToggleButtonGadget";

TEST(Vocabulary, WidgetClasses) {
  ExpectRows(Words(kClasses), Rendered(widget_class_rows, Name<WidgetClass>));
  for (const WidgetClass &row : widget_class_rows) {
    EXPECT_EQ(WIDGET_CLASS, row.kind) << row.name;
    EXPECT_FALSE(row.need) << row.name;
    EXPECT_FALSE(row.use_gadget) << row.name;
  }
}

// The child, its class, and the classes that create it.
constexpr const char *kAutoChildren =
    "Xm_Apply XmLabel XmPromptDialog XmSelectionBox XmSelectionDialog;"
    "Xm_Cancel XmPushButton XmMessageBox XmMessageDialog XmErrorDialog XmInformationDialog "
    "XmQuestionDialog XmTemplateDialog XmWarningDialog XmWorkingDialog XmFileSelectionBox "
    "XmFileSelectionDialog XmPromptDialog XmSelectionBox XmSelectionDialog;"
    "Xm_Dir XmLabel XmFileSelectionBox XmFileSelectionDialog;"
    "Xm_DirList XmScrolledList XmFileSelectionBox XmFileSelectionDialog;"
    "Xm_Filter XmPushButton XmFileSelectionBox XmFileSelectionDialog;"
    "Xm_FilterLabel XmLabel XmFileSelectionBox XmFileSelectionDialog;"
    "Xm_FilterText XmText XmFileSelectionBox XmFileSelectionDialog;"
    "Xm_Help XmPushButton XmMessageBox XmMessageDialog XmErrorDialog XmInformationDialog "
    "XmQuestionDialog XmTemplateDialog XmWarningDialog XmWorkingDialog XmFileSelectionBox "
    "XmFileSelectionDialog XmPromptDialog XmSelectionBox XmSelectionDialog;"
    "Xm_HorScrollBar XmScrollBar XmScrolledWindow;"
    "Xm_Items XmLabel XmFileSelectionBox XmFileSelectionDialog XmPromptDialog XmSelectionBox "
    "XmSelectionDialog;"
    "Xm_ItemsList XmScrolledList XmFileSelectionBox XmFileSelectionDialog XmPromptDialog "
    "XmSelectionBox XmSelectionDialog;"
    "Xm_Message XmLabel XmMessageBox XmMessageDialog XmErrorDialog XmInformationDialog "
    "XmQuestionDialog XmTemplateDialog XmWarningDialog XmWorkingDialog;"
    "Xm_OK XmPushButton XmMessageBox XmMessageDialog XmErrorDialog XmInformationDialog "
    "XmQuestionDialog XmTemplateDialog XmWarningDialog XmWorkingDialog XmFileSelectionBox "
    "XmFileSelectionDialog XmPromptDialog XmSelectionBox XmSelectionDialog;"
    "Xm_OptionButton XmCascadeButtonGadget XmOptionMenu;"
    "Xm_OptionLabel XmLabelGadget XmOptionMenu;"
    "Xm_Selection XmLabel XmPromptDialog XmSelectionBox XmSelectionDialog;"
    "Xm_Separator XmSeparator XmMessageBox XmMessageDialog XmErrorDialog XmInformationDialog "
    "XmQuestionDialog XmTemplateDialog XmWarningDialog XmWorkingDialog XmFileSelectionBox "
    "XmFileSelectionDialog XmPromptDialog XmSelectionBox XmSelectionDialog;"
    "Xm_Separator1 XmSeparator XmMainWindow;"
    "Xm_Separator2 XmSeparator XmMainWindow;"
    "Xm_Separator3 XmSeparator XmMainWindow;"
    "Xm_Symbol XmLabel XmMessageBox XmMessageDialog XmErrorDialog XmInformationDialog "
    "XmQuestionDialog XmTemplateDialog XmWarningDialog XmWorkingDialog;"
    "Xm_TearOffControl XmTearOffButton XmPopupMenu XmPulldownMenu;"
    "Xm_Text XmText XmPromptDialog XmSelectionBox XmSelectionDialog;"
    "Xm_Title XmLabel XmScale;"
    "Xm_VertScrollBar XmScrollBar XmScrolledWindow";

TEST(Vocabulary, AutoCreatedChildren) {
  const auto render = [](const AutoChildTemplate &row) {
    std::string text = std::string(row.name) + " " + row.child_name;
    for (int i = 0; i < row.num_parent_names; ++i) {
      text += std::string(" ") + row.parent_names[i];
    }
    return text;
  };
  ExpectRows(Pieces(kAutoChildren, ';'), Rendered(auto_created_children, render));
  for (const AutoChildTemplate &row : auto_created_children) {
    EXPECT_EQ(AUTO_CREATED, row.kind) << row.name;
    for (int i = row.num_parent_names; i < kMaxParentNames; ++i) {
      EXPECT_EQ(nullptr, row.parent_names[i]) << row.name;
    }
  }
}

// -- Arguments and reasons ---------------------------------------------------------------------

// The argument and, abbreviated, the kind of its value.
constexpr const char *kArguments =
    "XmNaccelerator:S XmNacceleratorText:CS XmNaccelerators:TT XmNadjustLast:B XmNadjustMargin:B "
    "XmNalignment:I XmNallowOverlap:B XmNallowResize:B XmNallowShellResize:B "
    "XmNancestorSensitive:B XmNapplyLabelString:CS XmNarmColor:CO XmNarmPixmap:P "
    "XmNarrowDirection:I XmNaudibleWarning:I XmNautoShowCursorPosition:B XmNautoUnmanage:B "
    "XmNautomaticSelection:B XmNbackground:CO XmNbackgroundPixmap:P XmNbaseHeight:I "
    "XmNbaseWidth:I XmNblinkRate:I XmNborderColor:CO XmNborderPixmap:P XmNborderWidth:I "
    "XmNbottomAttachment:I XmNbottomOffset:I XmNbottomPosition:I XmNbottomShadowColor:CO "
    "XmNbottomShadowPixmap:P XmNbottomWidget:W XmNbuttonFontList:FT XmNcancelButton:W "
    "XmNcancelLabelString:CS XmNcascadePixmap:P XmNchildHorizontalAlignment:I "
    "XmNchildHorizontalSpacing:I XmNchildPlacement:I XmNchildType:I XmNchildVerticalAlignment:I "
    "XmNcolormap:ID XmNcolumns:I XmNcommand:CS XmNcommandWindow:W XmNcommandWindowLocation:I "
    "XmNcursorPosition:I XmNcursorPositionVisible:B XmNdecimalPoints:I XmNdefaultButton:W "
    "XmNdefaultButtonShadowThickness:I XmNdefaultButtonType:I XmNdefaultFontList:FT "
    "XmNdefaultPosition:B XmNdeleteResponse:I XmNdepth:ID XmNdialogStyle:I XmNdialogTitle:CS "
    "XmNdialogType:I XmNdirListItemCount:I XmNdirListItems:CST XmNdirListLabelString:CS "
    "XmNdirMask:CS XmNdirSearchProc:A XmNdirSpec:CS XmNdirectory:CS XmNdoubleClickInterval:I "
    "XmNeditMode:I XmNeditable:B XmNentryAlignment:I XmNentryBorder:I XmNentryClass:CR "
    "XmNentryVerticalAlignment:I XmNfileListItemCount:I XmNfileListItems:CST "
    "XmNfileListLabelString:CS XmNfileSearchProc:A XmNfileTypeMask:I XmNfillOnArm:I "
    "XmNfillOnSelect:I XmNfilterLabelString:CS XmNfontList:FT XmNforeground:CO XmNfractionBase:I "
    "XmNgeometry:S XmNheight:I XmNheightInc:I XmNhelpLabelString:CS XmNhighlightColor:CO "
    "XmNhighlightOnEnter:B XmNhighlightPixmap:P XmNhighlightThickness:I XmNhistoryItemCount:I "
    "XmNhistoryItems:CST XmNhistoryMaxItems:I XmNhistoryVisibleItemCount:I "
    "XmNhorizontalScrollBar:W XmNhorizontalSpacing:I XmNiconMask:P XmNiconPixmap:P "
    "XmNiconWindow:A XmNiconX:I XmNiconY:I XmNincrement:I XmNindicatorOn:B XmNindicatorSize:I "
    "XmNindicatorType:I XmNinitialDelay:I XmNinitialFocus:W XmNinitialResourcesPersistent:B "
    "XmNinitialState:I XmNinput:B XmNinputMethod:S XmNinsertPosition:ID XmNisAligned:B "
    "XmNisHomogeneous:B XmNitemCount:I XmNitems:CST XmNkeyboardFocusPolicy:I XmNlabelFontList:FT "
    "XmNlabelInsensitivePixmap:P XmNlabelPixmap:P XmNlabelString:CS XmNlabelType:I "
    "XmNleftAttachment:I XmNleftOffset:I XmNleftPosition:I XmNleftWidget:W XmNlistItemCount:I "
    "XmNlistItems:CST XmNlistLabelString:CS XmNlistMarginHeight:I XmNlistMarginWidth:I "
    "XmNlistSizePolicy:I XmNlistSpacing:I XmNlistUpdated:B XmNlistVisibleItemCount:I "
    "XmNmainWindowMarginHeight:I XmNmainWindowMarginWidth:I XmNmappedWhenManaged:B "
    "XmNmappingDelay:I XmNmargin:I XmNmarginBottom:I XmNmarginHeight:I XmNmarginLeft:I "
    "XmNmarginRight:I XmNmarginTop:I XmNmarginWidth:I XmNmaxAspectX:I XmNmaxAspectY:I "
    "XmNmaxHeight:I XmNmaxLength:I XmNmaxWidth:I XmNmaximum:I XmNmenuAccelerator:S XmNmenuBar:W "
    "XmNmenuHelpWidget:W XmNmenuHistory:W XmNmenuPost:S XmNmessageAlignment:I "
    "XmNmessageString:CS XmNmessageWindow:W XmNminAspectX:I XmNminAspectY:I XmNminHeight:I "
    "XmNminWidth:I XmNminimizeButtons:B XmNminimum:I XmNmnemonic:K XmNmnemonicCharSet:S "
    "XmNmultiClick:I XmNmustMatch:B XmNmwmDecorations:I XmNmwmFunctions:I XmNmwmInputMode:I "
    "XmNmwmMenu:S XmNnavigationType:I XmNnoMatchString:CS XmNnoResize:B XmNnumColumns:I "
    "XmNokLabelString:CS XmNorientation:I XmNoverrideRedirect:B XmNpacking:I XmNpageIncrement:I "
    "XmNpaneMaximum:I XmNpaneMinimum:I XmNpattern:CS XmNpendingDelete:B XmNpopupEnabled:B "
    "XmNpositionIndex:I XmNpostFromCount:I XmNpostFromList:I XmNpreeditType:S "
    "XmNprocessingDirection:I XmNpromptString:CS XmNpushButtonEnabled:B "
    "XmNqualifySearchDataProc:A XmNradioAlwaysOne:B XmNradioBehavior:B XmNrecomputeSize:B "
    "XmNrefigureMode:B XmNrepeatDelay:I XmNresizable:B XmNresizeHeight:B XmNresizePolicy:I "
    "XmNresizeWidth:B XmNrightAttachment:I XmNrightOffset:I XmNrightPosition:I XmNrightWidget:W "
    "XmNrowColumnType:I XmNrows:I XmNrubberPositioning:B XmNsashHeight:I XmNsashIndent:I "
    "XmNsashShadowThickness:I XmNsashWidth:I XmNsaveUnder:B XmNscaleHeight:I XmNscaleMultiple:I "
    "XmNscaleWidth:I XmNscreen:ID XmNscrollBarDisplayPolicy:I XmNscrollBarPlacement:I "
    "XmNscrollHorizontal:B XmNscrollLeftSide:B XmNscrollTopSide:B XmNscrollVertical:B "
    "XmNscrolledWindowMarginHeight:I XmNscrolledWindowMarginWidth:I XmNscrollingPolicy:I "
    "XmNselectColor:CO XmNselectInsensitivePixmap:P XmNselectPixmap:P XmNselectThreshold:I "
    "XmNselectedItemCount:I XmNselectedItems:CST XmNselectionArray:A XmNselectionArrayCount:I "
    "XmNselectionLabelString:CS XmNselectionPolicy:I XmNsensitive:B XmNseparatorOn:B "
    "XmNseparatorType:I XmNset:B XmNshadowThickness:I XmNshadowType:I XmNshellUnitType:I "
    "XmNshowArrows:B XmNshowAsDefault:I XmNshowSeparator:B XmNshowValue:B XmNskipAdjust:B "
    "XmNsliderSize:I XmNsource:A XmNspacing:I XmNstringDirection:I XmNsubMenuId:W "
    "XmNsymbolPixmap:P XmNtearOffModel:I XmNtextAccelerators:TT XmNtextColumns:I "
    "XmNtextFontList:FT XmNtextString:CS XmNtextTranslations:TT XmNtitle:S XmNtitleEncoding:A "
    "XmNtitleString:CS XmNtopAttachment:I XmNtopCharacter:I XmNtopItemPosition:I XmNtopOffset:I "
    "XmNtopPosition:I XmNtopShadowColor:CO XmNtopShadowPixmap:P XmNtopWidget:W XmNtransient:B "
    "XmNtransientFor:W XmNtranslations:TT XmNtraversalOn:B XmNtroughColor:CO XmNunitType:I "
    "XmNunpostBehavior:A XmNuseAsyncGeometry:B XmNuserData:A XmNvalue:A XmNvalueWcs:WC "
    "XmNverifyBell:B XmNverticalScrollBar:B XmNverticalSpacing:I XmNvisibleItemCount:I "
    "XmNvisibleWhenOff:B XmNvisual:A XmNvisualPolicy:I XmNwaitForWm:B XmNwhichButton:I "
    "XmNwidth:I XmNwidthInc:I XmNwinGravity:I XmNwindowGroup:A XmNwmTimeout:I XmNwordWrap:B "
    "XmNworkWindow:W XmNx:I XmNy:I";

std::string Abbreviation(std::int32_t kind) {
  static const std::map<std::int32_t, std::string> abbreviations = {
      {INTEGER_NUMBER, "I"},
      {BOOLEAN_NUMBER, "B"},
      {COMPOUND_STRING, "CS"},
      {WIDGET, "W"},
      {PIXMAP, "P"},
      {ANY, "A"},
      {SIMPLE_STRING, "S"},
      {COLOR, "CO"},
      {COMPOUND_STRING_TABLE, "CST"},
      {FONT_TABLE, "FT"},
      {TRANSLATION_TABLE, "TT"},
      {IDENTIFIER, "ID"},
      {CLASS_REC_NAME, "CR"},
      {KEYSYM, "K"},
      {WIDE_CHARACTER, "WC"},
  };
  return abbreviations.at(kind);
}

std::vector<ArgumentName> AllArguments() {
  std::vector<ArgumentName> rows(argument_names_a_d.begin(), argument_names_a_d.end());
  rows.insert(rows.end(), argument_names_e_k.begin(), argument_names_e_k.end());
  rows.insert(rows.end(), argument_names_l_n.begin(), argument_names_l_n.end());
  rows.insert(rows.end(), argument_names_o_s.begin(), argument_names_o_s.end());
  rows.insert(rows.end(), argument_names_t_z.begin(), argument_names_t_z.end());
  return rows;
}

TEST(Vocabulary, Arguments) {
  const std::vector<ArgumentName> rows = AllArguments();
  ExpectRows(Words(kArguments), Rendered(rows, [](const ArgumentName &row) {
               return std::string(row.name) + ":" + Abbreviation(row.value_type);
             }));
  for (const ArgumentName &row : rows) {
    EXPECT_EQ(ARGUMENT_NAME, row.kind) << row.name;
    EXPECT_TRUE(row.predefined) << row.name;
  }
}

TEST(Vocabulary, ArgumentCountsByType) {
  std::map<std::int32_t, int> counts;
  for (const ArgumentName &row : AllArguments()) {
    ++counts[row.value_type];
  }
  const std::map<std::int32_t, int> expected = {{INTEGER_NUMBER, 147},
                                                {BOOLEAN_NUMBER, 55},
                                                {COMPOUND_STRING, 22},
                                                {WIDGET, 16},
                                                {PIXMAP, 14},
                                                {ANY, 12},
                                                {SIMPLE_STRING, 9},
                                                {COLOR, 9},
                                                {COMPOUND_STRING_TABLE, 6},
                                                {FONT_TABLE, 5},
                                                {TRANSLATION_TABLE, 4},
                                                {IDENTIFIER, 4},
                                                {CLASS_REC_NAME, 1},
                                                {KEYSYM, 1},
                                                {WIDE_CHARACTER, 1}};
  EXPECT_EQ(expected, counts);
}

// Each table holds the arguments of its letters, which is what follows "XmN".
template <typename Rows> void ExpectInitials(char first, char last, const Rows &rows) {
  for (const ArgumentName &row : rows) {
    const char initial = row.name[3];
    EXPECT_TRUE(first <= initial && initial <= last) << row.name;
  }
}

TEST(Vocabulary, ArgumentTablesByInitial) {
  ExpectInitials('a', 'd', argument_names_a_d);
  ExpectInitials('e', 'k', argument_names_e_k);
  ExpectInitials('l', 'n', argument_names_l_n);
  ExpectInitials('o', 's', argument_names_o_s);
  ExpectInitials('t', 'z', argument_names_t_z);
}

constexpr const char *kReasons =
    "MrmNcreateCallback XmNactivateCallback XmNapplyCallback XmNarmCallback "
    "XmNbrowseSelectionCallback XmNcancelCallback XmNcascadingCallback XmNcommandChangedCallback "
    "XmNcommandEnteredCallback XmNdecrementCallback XmNdefaultActionCallback XmNdestroyCallback "
    "XmNdisarmCallback XmNdragCallback XmNentryCallback XmNexposeCallback "
    "XmNextendedSelectionCallback XmNfocusCallback XmNgainPrimaryCallback XmNhelpCallback "
    "XmNincrementCallback XmNinputCallback XmNlosePrimaryCallback XmNlosingFocusCallback "
    "XmNmapCallback XmNmodifyVerifyCallback XmNmodifyVerifyCallbackWcs XmNmotionVerifyCallback "
    "XmNmultipleSelectionCallback XmNnoMatchCallback XmNokCallback XmNpageDecrementCallback "
    "XmNpageIncrementCallback XmNpopdownCallback XmNpopupCallback XmNresizeCallback "
    "XmNsimpleCallback XmNsingleSelectionCallback XmNtearOffMenuActivateCallback "
    "XmNtearOffMenuDeactivateCallback XmNtoBottomCallback XmNtoTopCallback "
    "XmNtraverseObscuredCallback XmNunmapCallback XmNvalueChangedCallback";

TEST(Vocabulary, Reasons) {
  ExpectRows(Words(kReasons), Rendered(reason_names, Name<ReasonName>));
  for (const ReasonName &row : reason_names) {
    EXPECT_EQ(REASON_NAME, row.kind) << row.name;
    EXPECT_EQ(nullptr, row.value) << row.name;
    EXPECT_TRUE(row.predefined) << row.name;
  }
}

// -- Order -------------------------------------------------------------------------------------

template <typename Rows> bool IsAlphabetical(const Rows &rows) {
  return std::is_sorted(std::begin(rows), std::end(rows), [](const auto &a, const auto &b) {
    return std::string(a.name) < std::string(b.name);
  });
}

TEST(Vocabulary, AlphabeticalTables) {
  EXPECT_TRUE(IsAlphabetical(reserved_words));
  EXPECT_TRUE(IsAlphabetical(non_res_words));
  EXPECT_TRUE(IsAlphabetical(constants));
  EXPECT_TRUE(IsAlphabetical(AllArguments()));
  EXPECT_TRUE(IsAlphabetical(reason_names));
}

} // namespace
