// See Vocabulary.h.  Each table is written with a maker function of its own, so that a row shows
// what distinguishes it and nothing else.  `std::to_array` makes a wrong number of rows an error of
// the compiler.

#include "Vocabulary.h"

#include <initializer_list>

// -- Makers of rows ----------------------------------------------------------------------------

static constexpr BareWord Word(const char *name, std::int32_t token) noexcept {
  BareWord row{};
  row.kind = token;
  row.name = name;
  return row;
}

// A type whose values take no other type.
static constexpr FunctionName Type(const char *name, std::int32_t token, std::int32_t value_type,
                                   std::int32_t const_type) {
  FunctionName row{};
  row.kind = token;
  row.name = name;
  row.value_type = value_type;
  row.const_type = const_type;
  return row;
}

// A type whose values are accepted as they are where one of the kinds listed is asked for.
static constexpr FunctionName Accepted(const char *name, std::int32_t token,
                                       std::int32_t value_type, std::int32_t const_type,
                                       std::initializer_list<std::int32_t> kinds) {
  FunctionName row = Type(name, token, value_type, const_type);
  for (const std::int32_t kind : kinds) {
    row.proms[row.num_proms++] = kind;
  }
  return row;
}

// A type whose values are converted to the kinds listed.
static constexpr FunctionName Converted(const char *name, std::int32_t token,
                                        std::int32_t value_type, std::int32_t const_type,
                                        std::initializer_list<std::int32_t> kinds) {
  FunctionName row = Accepted(name, token, value_type, const_type, kinds);
  row.do_prom = true;
  return row;
}

enum CharacterSetFlags : unsigned {
  kPlain = 0,
  kParsedRightToLeft = 1,
  kWrittenRightToLeft = 2,
  kSixteenBit = 4,
  kRightToLeft = kParsedRightToLeft | kWrittenRightToLeft,
};

static constexpr CharacterSetValue CharacterSet(const char *name, const char *registry,
                                                CharacterSetFlags flags) {
  CharacterSetValue row{};
  row.kind = CHARACTER_SET_CONSTANT;
  row.name = name;
  row.charset = registry;
  row.parse_dir = (flags & kParsedRightToLeft) != 0;
  row.write_dir = (flags & kWrittenRightToLeft) != 0;
  row.sixteen_bit = (flags & kSixteenBit) != 0;
  row.predefined = true;
  return row;
}

static constexpr IntegerConstantTemplate Integer(const char *name, std::int32_t value) {
  IntegerConstantTemplate row{};
  row.kind = INTEGER_CONSTANT;
  row.name = name;
  row.value.kind = INTEGER_NUMBER;
  row.value.value = value;
  return row;
}

static constexpr BooleanConstantTemplate Boolean(const char *name, bool value) {
  BooleanConstantTemplate row{};
  row.kind = BOOLEAN_CONSTANT;
  row.name = name;
  row.value.kind = BOOLEAN_NUMBER;
  row.value.value = value;
  return row;
}

static constexpr WidgetClass Class(const char *name) noexcept {
  WidgetClass row{};
  row.kind = WIDGET_CLASS;
  row.name = name;
  return row;
}

// A child of that class, created by the classes of each group in turn.
template <typename... Groups>
static constexpr AutoChildTemplate AutoChild(const char *name, const char *child_name,
                                             const Groups &...groups) {
  AutoChildTemplate row{};
  row.kind = AUTO_CREATED;
  row.name = name;
  row.child_name = child_name;
  const auto add = [&row](const auto &group) {
    for (const char *parent : group) {
      row.parent_names[row.num_parent_names++] = parent;
    }
  };
  (add(groups), ...);
  return row;
}

static constexpr ArgumentName Argument(const char *name, std::int32_t value_type) {
  ArgumentName row{};
  row.kind = ARGUMENT_NAME;
  row.name = name;
  row.value_type = value_type;
  row.predefined = true;
  return row;
}

static constexpr ReasonName Reason(const char *name) {
  ReasonName row{};
  row.kind = REASON_NAME;
  row.name = name;
  row.predefined = true;
  return row;
}

// -- Keywords -----------------------------------------------------------------------------------

constinit std::array<BareWord, 15> reserved_words = std::to_array<BareWord>({
    Word("arguments", ARGUMENTS),
    Word("callbacks", CALLBACKS),
    Word("controls", CONTROLS),
    Word("end", END),
    Word("exported", EXPORTED),
    Word("gadget", GADGET),
    Word("identifier", IDENTIFIER),
    Word("include", INCLUDE),
    Word("list", LIST),
    Word("module", MODULE),
    Word("object", OBJECT),
    Word("private", PRIVATE),
    Word("procedure", PROCEDURE),
    Word("procedures", PROCEDURES),
    Word("value", VALUE),
});

constinit std::array<BareWord, 15> non_res_words = std::to_array<BareWord>({
    Word("background", BACKGROUND),
    Word("case_insensitive", CASE_INSENSITIVE),
    Word("case_sensitive", CASE_SENSITIVE),
    Word("file", FILE_WORD),
    Word("foreground", FOREGROUND),
    Word("imported", IMPORTED),
    Word("managed", MANAGED),
    Word("names", NAMES),
    Word("objects", OBJECTS),
    Word("right_to_left", RIGHT_TO_LEFT),
    Word("separate", SEPARATE),
    Word("sixteen_bit", SIXTEEN_BIT),
    Word("unmanaged", UNMANAGED),
    Word("user_defined", USER_DEFINED),
    Word("version", VERSION),
});

// -- Types --------------------------------------------------------------------------------------

constexpr std::array<FunctionName, 30> function_names = std::to_array<FunctionName>({
    Type("any", ANY, ANY, NIL),
    Type("argument", ARGUMENT, ARGUMENT_NAME, ARGUMENT_VALUE),
    Type("asciz_string_table", ASCIZ_STRING_TABLE, ASCIZ_STRING_TABLE, ASCIZ_STRING_TABLE_VALUE),
    Type("asciz_table", ASCIZ_STRING_TABLE, ASCIZ_STRING_TABLE, ASCIZ_STRING_TABLE_VALUE),
    Converted("boolean", BOOLEAN, BOOLEAN_NUMBER, BOOLEAN_VALUE,
              {INTEGER_NUMBER, SINGLE_FLOAT_NUMBER, FLOAT_NUMBER}),
    Type("character_set", CHARACTER_SET, CHARACTER_SET, NIL),
    Type("class_rec_name", CLASS_REC_NAME, CLASS_REC_NAME, CLASS_REC_NAME_VALUE),
    Accepted("color", COLOR, COLOR, COLOR_VALUE, {RGB}),
    Type("color_table", COLOR_TABLE, COLOR_TABLE, COLOR_TABLE_VALUE),
    Type("compound_string", COMPOUND_STRING, COMPOUND_STRING, COMPOUND_STRING_VALUE),
    Type("compound_string_table", COMPOUND_STRING_TABLE, COMPOUND_STRING_TABLE,
         COMPOUND_STRING_TABLE_VALUE),
    Converted("float", FLOAT, FLOAT_NUMBER, FLOAT_VALUE,
              {BOOLEAN_NUMBER, INTEGER_NUMBER, SINGLE_FLOAT_NUMBER}),
    Converted("font", FONT, FONT, FONT_VALUE, {FONT_TABLE}),
    Converted("fontset", FONTSET, FONTSET, FONTSET_VALUE, {FONT_TABLE}),
    Type("font_table", FONT_TABLE, FONT_TABLE, FONT_TABLE_VALUE),
    Accepted("icon", ICON, ICON, ICON_VALUE, {PIXMAP}),
    Converted("integer", INTEGER, INTEGER_NUMBER, INTEGER_VALUE,
              {BOOLEAN_NUMBER, SINGLE_FLOAT_NUMBER, FLOAT_NUMBER}),
    Type("integer_table", INTEGER_TABLE, INTEGER_TABLE, INTEGER_TABLE_VALUE),
    Type("keysym", KEYSYM, KEYSYM, KEYSYM_VALUE),
    Type("void", NONE, NONE, NIL),
    Type("pixmap", PIXMAP, PIXMAP, PIXMAP_VALUE),
    Type("reason", REASON, REASON_NAME, REASON_VALUE),
    Accepted("rgb", RGB, RGB, RGB_VALUE, {COLOR}),
    Converted("single_float", SINGLE_FLOAT, SINGLE_FLOAT_NUMBER, SINGLE_FLOAT_VALUE,
              {BOOLEAN_NUMBER, INTEGER_NUMBER, FLOAT_NUMBER}),
    Converted("string", STRING, SIMPLE_STRING, STRING_VALUE, {COMPOUND_STRING}),
    Type("string_table", COMPOUND_STRING_TABLE, COMPOUND_STRING_TABLE, COMPOUND_STRING_TABLE_VALUE),
    Type("translation_table", TRANSLATION_TABLE, TRANSLATION_TABLE, TRANSLATION_TABLE_VALUE),
    Type("wide_character", WIDE_CHARACTER, WIDE_CHARACTER, WIDE_CHARACTER_VALUE),
    Type("widget", WIDGET, WIDGET, NIL),
    Accepted("xbitmapfile", XBITMAPFILE, XBITMAPFILE, XBITMAPFILE_VALUE, {PIXMAP}),
});

// -- Character sets -----------------------------------------------------------------------------

// The registry name of iso_latin5 is that of iso_cyrillic, and that of the Chinese sets begins with
// gb2313: both are meant, however odd they look.
constexpr std::array<CharacterSetValue, 19> character_sets = std::to_array<CharacterSetValue>({
    CharacterSet("iso_latin1", "iso8859-1", kPlain),
    CharacterSet("iso_latin2", "iso8859-2", kPlain),
    CharacterSet("iso_latin3", "iso8859-3", kPlain),
    CharacterSet("iso_latin4", "iso8859-4", kPlain),
    CharacterSet("iso_latin5", "iso8859-5", kPlain),
    CharacterSet("iso_cyrillic", "iso8859-5", kPlain),
    CharacterSet("iso_arabic", "iso8859-6", kPlain),
    CharacterSet("iso_greek", "iso8859-7", kPlain),
    CharacterSet("iso_latin8", "iso8859-8", kRightToLeft),
    CharacterSet("iso_latin8_lr", "iso8859-8", kWrittenRightToLeft),
    CharacterSet("iso_hebrew", "iso8859-8", kRightToLeft),
    CharacterSet("iso_hebrew_lr", "iso8859-8", kWrittenRightToLeft),
    CharacterSet("gb_hanzi", "gb2313.1980-0", kSixteenBit),
    CharacterSet("gb_hanzi_gr", "gb2313.1980-1", kSixteenBit),
    CharacterSet("jis_kanji", "jisx0208.1983-0", kSixteenBit),
    CharacterSet("jis_kanji_gr", "jisx0208.1983-1", kSixteenBit),
    CharacterSet("jis_katakana", "jisx0201.1976-0", kPlain),
    CharacterSet("ksc_hangul", "ksc5601.1987-0", kSixteenBit),
    CharacterSet("ksc_hangul_gr", "ksc5601.1987-1", kSixteenBit),
});

// -- Constants ----------------------------------------------------------------------------------

constexpr std::array<IntegerConstantTemplate, 128> constants =
    std::to_array<IntegerConstantTemplate>({
        Integer("Xm1000TH_INCHES", 2),
        Integer("Xm100TH_FONT_UNITS", 4),
        Integer("Xm100TH_MILLIMETERS", 1),
        Integer("Xm100TH_POINTS", 3),
        Integer("XmALIGNMENT_BASELINE_BOTTOM", 2),
        Integer("XmALIGNMENT_BASELINE_TOP", 0),
        Integer("XmALIGNMENT_BEGINNING", 0),
        Integer("XmALIGNMENT_CENTER", 1),
        Integer("XmALIGNMENT_CONTENTS_BOTTOM", 4),
        Integer("XmALIGNMENT_CONTENTS_TOP", 3),
        Integer("XmALIGNMENT_END", 2),
        Integer("XmALIGNMENT_WIDGET_BOTTOM", 4),
        Integer("XmALIGNMENT_WIDGET_TOP", 3),
        Integer("XmAPPLICATION_DEFINED", 1),
        Integer("XmARROW_DOWN", 1),
        Integer("XmARROW_LEFT", 2),
        Integer("XmARROW_RIGHT", 3),
        Integer("XmARROW_UP", 0),
        Integer("XmAS_NEEDED", 1),
        Integer("XmATTACH_FORM", 1),
        Integer("XmATTACH_NONE", 0),
        Integer("XmATTACH_OPPOSITE_FORM", 2),
        Integer("XmATTACH_OPPOSITE_WIDGET", 4),
        Integer("XmATTACH_POSITION", 5),
        Integer("XmATTACH_SELF", 6),
        Integer("XmATTACH_WIDGET", 3),
        Integer("XmAUTOMATIC", 0),
        Integer("XmBOTTOM_LEFT", 2),
        Integer("XmBOTTOM_RIGHT", 0),
        Integer("XmBROWSE_SELECT", 3),
        Integer("XmCHANGE_ALL", 0),
        Integer("XmCHANGE_HEIGHT", 3),
        Integer("XmCHANGE_NONE", 1),
        Integer("XmCHANGE_WIDTH", 2),
        Integer("XmCOMMAND_ABOVE_WORKSPACE", 0),
        Integer("XmCOMMAND_BELOW_WORKSPACE", 1),
        Integer("XmCONSTANT", 1),
        Integer("XmDIALOG_APPLICATION_MODAL", 1),
        Integer("XmDIALOG_CANCEL_BUTTON", 0),
        Integer("XmDIALOG_COMMAND", 3),
        Integer("XmDIALOG_DEFAULT_BUTTON", 0),
        Integer("XmDIALOG_ERROR", 1),
        Integer("XmDIALOG_FILE_SELECTION", 4),
        Integer("XmDIALOG_FULL_APPLICATION_MODAL", 2),
        Integer("XmDIALOG_HELP_BUTTON", 0),
        Integer("XmDIALOG_INFORMATION", 2),
        Integer("XmDIALOG_MESSAGE", 3),
        Integer("XmDIALOG_MESSAGE_LABEL", 0),
        Integer("XmDIALOG_MODELESS", 0),
        Integer("XmDIALOG_OK_BUTTON", 0),
        Integer("XmDIALOG_PRIMARY_APPLICATION_MODAL", 1),
        Integer("XmDIALOG_PROMPT", 1),
        Integer("XmDIALOG_QUESTION", 4),
        Integer("XmDIALOG_SELECTION", 2),
        Integer("XmDIALOG_SEPARATOR", 0),
        Integer("XmDIALOG_SYMBOL_LABEL", 0),
        Integer("XmDIALOG_SYSTEM_MODAL", 3),
        Integer("XmDIALOG_WARNING", 5),
        Integer("XmDIALOG_WORKING", 6),
        Integer("XmDIALOG_WORK_AREA", 0),
        Integer("XmDOUBLE_DASHED_LINE", 4),
        Integer("XmDOUBLE_LINE", 2),
        Integer("XmDYNAMIC", 1),
        Integer("XmEXCLUSIVE_TAB_GROUP", 3),
        Integer("XmEXTENDED_SELECT", 2),
        Integer("XmFILE_ANY_TYPE", 3),
        Integer("XmFILE_DIRECTORY", 1),
        Integer("XmFILE_REGULAR", 2),
        Integer("XmFRAME_GENERIC_CHILD", 0),
        Integer("XmFRAME_TITLE_CHILD", 2),
        Integer("XmFRAME_WORKAREA_CHILD", 1),
        Integer("XmHORIZONTAL", 2),
        Integer("XmMAX_ON_BOTTOM", 1),
        Integer("XmMAX_ON_LEFT", 2),
        Integer("XmMAX_ON_RIGHT", 3),
        Integer("XmMAX_ON_TOP", 0),
        Integer("XmMENU_BAR", 1),
        Integer("XmMENU_OPTION", 4),
        Integer("XmMENU_POPUP", 3),
        Integer("XmMENU_PULLDOWN", 2),
        Integer("XmMULTIPLE_SELECT", 1),
        Integer("XmMULTI_LINE_EDIT", 0),
        Integer("XmNONE", 0),
        Integer("XmNO_LINE", 0),
        Integer("XmNO_ORIENTATION", 0),
        Integer("XmNO_PACKING", 0),
        Integer("XmN_OF_MANY", 1),
        Integer("XmONE_OF_MANY", 2),
        Integer("XmPACK_COLUMN", 2),
        Integer("XmPACK_NONE", 3),
        Integer("XmPACK_TIGHT", 1),
        Integer("XmPIXELS", 0),
        Integer("XmPIXMAP", 1),
        Integer("XmRESIZE_ANY", 2),
        Integer("XmRESIZE_GROW", 1),
        Integer("XmRESIZE_IF_POSSIBLE", 2),
        Integer("XmRESIZE_NONE", 0),
        Integer("XmSHADOW_ETCHED_IN", 5),
        Integer("XmSHADOW_ETCHED_OUT", 6),
        Integer("XmSHADOW_IN", 7),
        Integer("XmSHADOW_OUT", 8),
        Integer("XmSINGLE_DASHED_LINE", 3),
        Integer("XmSINGLE_LINE", 1),
        Integer("XmSINGLE_LINE_EDIT", 1),
        Integer("XmSINGLE_SELECT", 0),
        Integer("XmSTATIC", 0),
        Integer("XmSTICKY_TAB_GROUP", 2),
        Integer("XmSTRING", 2),
        Integer("XmSTRING_DIRECTION_L_TO_R", 0),
        Integer("XmSTRING_DIRECTION_R_TO_L", 1),
        Integer("XmTAB_GROUP", 1),
        Integer("XmTEAR_OFF_DISABLED", 1),
        Integer("XmTEAR_OFF_ENABLED", 0),
        Integer("XmTOP_LEFT", 3),
        Integer("XmTOP_RIGHT", 1),
        Integer("XmTRAVERSE_CURRENT", 0),
        Integer("XmTRAVERSE_DOWN", 7),
        Integer("XmTRAVERSE_HOME", 3),
        Integer("XmTRAVERSE_LEFT", 8),
        Integer("XmTRAVERSE_NEXT", 1),
        Integer("XmTRAVERSE_NEXT_TAB_GROUP", 4),
        Integer("XmTRAVERSE_PREV", 2),
        Integer("XmTRAVERSE_PREV_TAB_GROUP", 5),
        Integer("XmTRAVERSE_RIGHT", 9),
        Integer("XmTRAVERSE_UP", 6),
        Integer("XmVARIABLE", 0),
        Integer("XmVERTICAL", 1),
        Integer("XmWORK_AREA", 0),
    });

constexpr std::array<BooleanConstantTemplate, 4> booleans = std::to_array<BooleanConstantTemplate>({
    Boolean("on", true),
    Boolean("off", false),
    Boolean("true", true),
    Boolean("false", false),
});

// -- Widget classes -----------------------------------------------------------------------------

constinit std::array<WidgetClass, 58> widget_class_rows = std::to_array<WidgetClass>({
    Class("ApplicationShell"),
    Class("OverrideShell"),
    Class("Shell"),
    Class("TopLevelShell"),
    Class("TransientShell"),
    Class("VendorShell"),
    Class("WMShell"),
    Class("XmArrowButton"),
    Class("XmArrowButtonGadget"),
    Class("XmBulletinBoard"),
    Class("XmBulletinBoardDialog"),
    Class("XmCascadeButton"),
    Class("XmCascadeButtonGadget"),
    Class("XmCommand"),
    Class("XmDrawingArea"),
    Class("XmDrawnButton"),
    Class("XmFileSelectionBox"),
    Class("XmFileSelectionDialog"),
    Class("XmForm"),
    Class("XmFormDialog"),
    Class("XmFrame"),
    Class("XmLabel"),
    Class("XmLabelGadget"),
    Class("XmList"),
    Class("XmScrolledList"),
    Class("XmMainWindow"),
    Class("XmMessageBox"),
    Class("XmMessageDialog"),
    Class("XmQuestionDialog"),
    Class("XmPromptDialog"),
    Class("XmWarningDialog"),
    Class("XmInformationDialog"),
    Class("XmErrorDialog"),
    Class("XmTemplateDialog"),
    Class("XmWorkingDialog"),
    Class("XmMenuBar"),
    Class("XmOptionMenu"),
    Class("XmPopupMenu"),
    Class("XmRadioBox"),
    Class("XmRowColumn"),
    Class("XmPulldownMenu"),
    Class("XmWorkArea"),
    Class("XmPanedWindow"),
    Class("XmPushButton"),
    Class("XmPushButtonGadget"),
    Class("XmScale"),
    Class("XmScrollBar"),
    Class("XmScrolledWindow"),
    Class("XmSelectionBox"),
    Class("XmSelectionDialog"),
    Class("XmSeparator"),
    Class("XmSeparatorGadget"),
    Class("XmScrolledText"),
    Class("XmTearOffButton"),
    Class("XmText"),
    Class("XmTextField"),
    Class("XmToggleButton"),
    Class("XmToggleButtonGadget"),
});

// -- Children that their parents create ---------------------------------------------------------

constexpr auto kMessageBoxes = std::to_array<const char *>({
    "XmMessageBox",
    "XmMessageDialog",
    "XmErrorDialog",
    "XmInformationDialog",
    "XmQuestionDialog",
    "XmTemplateDialog",
    "XmWarningDialog",
    "XmWorkingDialog",
});
constexpr auto kFileSelections =
    std::to_array<const char *>({"XmFileSelectionBox", "XmFileSelectionDialog"});
constexpr auto kSelections =
    std::to_array<const char *>({"XmPromptDialog", "XmSelectionBox", "XmSelectionDialog"});
constexpr auto kMainWindow = std::to_array<const char *>({"XmMainWindow"});
constexpr auto kOptionMenu = std::to_array<const char *>({"XmOptionMenu"});
constexpr auto kScale = std::to_array<const char *>({"XmScale"});
constexpr auto kScrolledWindow = std::to_array<const char *>({"XmScrolledWindow"});
constexpr auto kTearOffMenus = std::to_array<const char *>({"XmPopupMenu", "XmPulldownMenu"});

constexpr std::array<AutoChildTemplate, 25> auto_created_children =
    std::to_array<AutoChildTemplate>({
        AutoChild("Xm_Apply", "XmLabel", kSelections),
        AutoChild("Xm_Cancel", "XmPushButton", kMessageBoxes, kFileSelections, kSelections),
        AutoChild("Xm_Dir", "XmLabel", kFileSelections),
        AutoChild("Xm_DirList", "XmScrolledList", kFileSelections),
        AutoChild("Xm_Filter", "XmPushButton", kFileSelections),
        AutoChild("Xm_FilterLabel", "XmLabel", kFileSelections),
        AutoChild("Xm_FilterText", "XmText", kFileSelections),
        AutoChild("Xm_Help", "XmPushButton", kMessageBoxes, kFileSelections, kSelections),
        AutoChild("Xm_HorScrollBar", "XmScrollBar", kScrolledWindow),
        AutoChild("Xm_Items", "XmLabel", kFileSelections, kSelections),
        AutoChild("Xm_ItemsList", "XmScrolledList", kFileSelections, kSelections),
        AutoChild("Xm_Message", "XmLabel", kMessageBoxes),
        AutoChild("Xm_OK", "XmPushButton", kMessageBoxes, kFileSelections, kSelections),
        AutoChild("Xm_OptionButton", "XmCascadeButtonGadget", kOptionMenu),
        AutoChild("Xm_OptionLabel", "XmLabelGadget", kOptionMenu),
        AutoChild("Xm_Selection", "XmLabel", kSelections),
        AutoChild("Xm_Separator", "XmSeparator", kMessageBoxes, kFileSelections, kSelections),
        AutoChild("Xm_Separator1", "XmSeparator", kMainWindow),
        AutoChild("Xm_Separator2", "XmSeparator", kMainWindow),
        AutoChild("Xm_Separator3", "XmSeparator", kMainWindow),
        AutoChild("Xm_Symbol", "XmLabel", kMessageBoxes),
        AutoChild("Xm_TearOffControl", "XmTearOffButton", kTearOffMenus),
        AutoChild("Xm_Text", "XmText", kSelections),
        AutoChild("Xm_Title", "XmLabel", kScale),
        AutoChild("Xm_VertScrollBar", "XmScrollBar", kScrolledWindow),
    });

// -- Arguments ----------------------------------------------------------------------------------

constexpr std::array<ArgumentName, 67> argument_names_a_d = std::to_array<ArgumentName>({
    Argument("XmNaccelerator", SIMPLE_STRING),
    Argument("XmNacceleratorText", COMPOUND_STRING),
    Argument("XmNaccelerators", TRANSLATION_TABLE),
    Argument("XmNadjustLast", BOOLEAN_NUMBER),
    Argument("XmNadjustMargin", BOOLEAN_NUMBER),
    Argument("XmNalignment", INTEGER_NUMBER),
    Argument("XmNallowOverlap", BOOLEAN_NUMBER),
    Argument("XmNallowResize", BOOLEAN_NUMBER),
    Argument("XmNallowShellResize", BOOLEAN_NUMBER),
    Argument("XmNancestorSensitive", BOOLEAN_NUMBER),
    Argument("XmNapplyLabelString", COMPOUND_STRING),
    Argument("XmNarmColor", COLOR),
    Argument("XmNarmPixmap", PIXMAP),
    Argument("XmNarrowDirection", INTEGER_NUMBER),
    Argument("XmNaudibleWarning", INTEGER_NUMBER),
    Argument("XmNautoShowCursorPosition", BOOLEAN_NUMBER),
    Argument("XmNautoUnmanage", BOOLEAN_NUMBER),
    Argument("XmNautomaticSelection", BOOLEAN_NUMBER),
    Argument("XmNbackground", COLOR),
    Argument("XmNbackgroundPixmap", PIXMAP),
    Argument("XmNbaseHeight", INTEGER_NUMBER),
    Argument("XmNbaseWidth", INTEGER_NUMBER),
    Argument("XmNblinkRate", INTEGER_NUMBER),
    Argument("XmNborderColor", COLOR),
    Argument("XmNborderPixmap", PIXMAP),
    Argument("XmNborderWidth", INTEGER_NUMBER),
    Argument("XmNbottomAttachment", INTEGER_NUMBER),
    Argument("XmNbottomOffset", INTEGER_NUMBER),
    Argument("XmNbottomPosition", INTEGER_NUMBER),
    Argument("XmNbottomShadowColor", COLOR),
    Argument("XmNbottomShadowPixmap", PIXMAP),
    Argument("XmNbottomWidget", WIDGET),
    Argument("XmNbuttonFontList", FONT_TABLE),
    Argument("XmNcancelButton", WIDGET),
    Argument("XmNcancelLabelString", COMPOUND_STRING),
    Argument("XmNcascadePixmap", PIXMAP),
    Argument("XmNchildHorizontalAlignment", INTEGER_NUMBER),
    Argument("XmNchildHorizontalSpacing", INTEGER_NUMBER),
    Argument("XmNchildPlacement", INTEGER_NUMBER),
    Argument("XmNchildType", INTEGER_NUMBER),
    Argument("XmNchildVerticalAlignment", INTEGER_NUMBER),
    Argument("XmNcolormap", IDENTIFIER),
    Argument("XmNcolumns", INTEGER_NUMBER),
    Argument("XmNcommand", COMPOUND_STRING),
    Argument("XmNcommandWindow", WIDGET),
    Argument("XmNcommandWindowLocation", INTEGER_NUMBER),
    Argument("XmNcursorPosition", INTEGER_NUMBER),
    Argument("XmNcursorPositionVisible", BOOLEAN_NUMBER),
    Argument("XmNdecimalPoints", INTEGER_NUMBER),
    Argument("XmNdefaultButton", WIDGET),
    Argument("XmNdefaultButtonShadowThickness", INTEGER_NUMBER),
    Argument("XmNdefaultButtonType", INTEGER_NUMBER),
    Argument("XmNdefaultFontList", FONT_TABLE),
    Argument("XmNdefaultPosition", BOOLEAN_NUMBER),
    Argument("XmNdeleteResponse", INTEGER_NUMBER),
    Argument("XmNdepth", IDENTIFIER),
    Argument("XmNdialogStyle", INTEGER_NUMBER),
    Argument("XmNdialogTitle", COMPOUND_STRING),
    Argument("XmNdialogType", INTEGER_NUMBER),
    Argument("XmNdirListItemCount", INTEGER_NUMBER),
    Argument("XmNdirListItems", COMPOUND_STRING_TABLE),
    Argument("XmNdirListLabelString", COMPOUND_STRING),
    Argument("XmNdirMask", COMPOUND_STRING),
    Argument("XmNdirSearchProc", ANY),
    Argument("XmNdirSpec", COMPOUND_STRING),
    Argument("XmNdirectory", COMPOUND_STRING),
    Argument("XmNdoubleClickInterval", INTEGER_NUMBER),
});

constexpr std::array<ArgumentName, 52> argument_names_e_k = std::to_array<ArgumentName>({
    Argument("XmNeditMode", INTEGER_NUMBER),
    Argument("XmNeditable", BOOLEAN_NUMBER),
    Argument("XmNentryAlignment", INTEGER_NUMBER),
    Argument("XmNentryBorder", INTEGER_NUMBER),
    Argument("XmNentryClass", CLASS_REC_NAME),
    Argument("XmNentryVerticalAlignment", INTEGER_NUMBER),
    Argument("XmNfileListItemCount", INTEGER_NUMBER),
    Argument("XmNfileListItems", COMPOUND_STRING_TABLE),
    Argument("XmNfileListLabelString", COMPOUND_STRING),
    Argument("XmNfileSearchProc", ANY),
    Argument("XmNfileTypeMask", INTEGER_NUMBER),
    Argument("XmNfillOnArm", INTEGER_NUMBER),
    Argument("XmNfillOnSelect", INTEGER_NUMBER),
    Argument("XmNfilterLabelString", COMPOUND_STRING),
    Argument("XmNfontList", FONT_TABLE),
    Argument("XmNforeground", COLOR),
    Argument("XmNfractionBase", INTEGER_NUMBER),
    Argument("XmNgeometry", SIMPLE_STRING),
    Argument("XmNheight", INTEGER_NUMBER),
    Argument("XmNheightInc", INTEGER_NUMBER),
    Argument("XmNhelpLabelString", COMPOUND_STRING),
    Argument("XmNhighlightColor", COLOR),
    Argument("XmNhighlightOnEnter", BOOLEAN_NUMBER),
    Argument("XmNhighlightPixmap", PIXMAP),
    Argument("XmNhighlightThickness", INTEGER_NUMBER),
    Argument("XmNhistoryItemCount", INTEGER_NUMBER),
    Argument("XmNhistoryItems", COMPOUND_STRING_TABLE),
    Argument("XmNhistoryMaxItems", INTEGER_NUMBER),
    Argument("XmNhistoryVisibleItemCount", INTEGER_NUMBER),
    Argument("XmNhorizontalScrollBar", WIDGET),
    Argument("XmNhorizontalSpacing", INTEGER_NUMBER),
    Argument("XmNiconMask", PIXMAP),
    Argument("XmNiconPixmap", PIXMAP),
    Argument("XmNiconWindow", ANY),
    Argument("XmNiconX", INTEGER_NUMBER),
    Argument("XmNiconY", INTEGER_NUMBER),
    Argument("XmNincrement", INTEGER_NUMBER),
    Argument("XmNindicatorOn", BOOLEAN_NUMBER),
    Argument("XmNindicatorSize", INTEGER_NUMBER),
    Argument("XmNindicatorType", INTEGER_NUMBER),
    Argument("XmNinitialDelay", INTEGER_NUMBER),
    Argument("XmNinitialFocus", WIDGET),
    Argument("XmNinitialResourcesPersistent", BOOLEAN_NUMBER),
    Argument("XmNinitialState", INTEGER_NUMBER),
    Argument("XmNinput", BOOLEAN_NUMBER),
    Argument("XmNinputMethod", SIMPLE_STRING),
    Argument("XmNinsertPosition", IDENTIFIER),
    Argument("XmNisAligned", BOOLEAN_NUMBER),
    Argument("XmNisHomogeneous", BOOLEAN_NUMBER),
    Argument("XmNitemCount", INTEGER_NUMBER),
    Argument("XmNitems", COMPOUND_STRING_TABLE),
    Argument("XmNkeyboardFocusPolicy", INTEGER_NUMBER),
});

constexpr std::array<ArgumentName, 61> argument_names_l_n = std::to_array<ArgumentName>({
    Argument("XmNlabelFontList", FONT_TABLE),
    Argument("XmNlabelInsensitivePixmap", PIXMAP),
    Argument("XmNlabelPixmap", PIXMAP),
    Argument("XmNlabelString", COMPOUND_STRING),
    Argument("XmNlabelType", INTEGER_NUMBER),
    Argument("XmNleftAttachment", INTEGER_NUMBER),
    Argument("XmNleftOffset", INTEGER_NUMBER),
    Argument("XmNleftPosition", INTEGER_NUMBER),
    Argument("XmNleftWidget", WIDGET),
    Argument("XmNlistItemCount", INTEGER_NUMBER),
    Argument("XmNlistItems", COMPOUND_STRING_TABLE),
    Argument("XmNlistLabelString", COMPOUND_STRING),
    Argument("XmNlistMarginHeight", INTEGER_NUMBER),
    Argument("XmNlistMarginWidth", INTEGER_NUMBER),
    Argument("XmNlistSizePolicy", INTEGER_NUMBER),
    Argument("XmNlistSpacing", INTEGER_NUMBER),
    Argument("XmNlistUpdated", BOOLEAN_NUMBER),
    Argument("XmNlistVisibleItemCount", INTEGER_NUMBER),
    Argument("XmNmainWindowMarginHeight", INTEGER_NUMBER),
    Argument("XmNmainWindowMarginWidth", INTEGER_NUMBER),
    Argument("XmNmappedWhenManaged", BOOLEAN_NUMBER),
    Argument("XmNmappingDelay", INTEGER_NUMBER),
    Argument("XmNmargin", INTEGER_NUMBER),
    Argument("XmNmarginBottom", INTEGER_NUMBER),
    Argument("XmNmarginHeight", INTEGER_NUMBER),
    Argument("XmNmarginLeft", INTEGER_NUMBER),
    Argument("XmNmarginRight", INTEGER_NUMBER),
    Argument("XmNmarginTop", INTEGER_NUMBER),
    Argument("XmNmarginWidth", INTEGER_NUMBER),
    Argument("XmNmaxAspectX", INTEGER_NUMBER),
    Argument("XmNmaxAspectY", INTEGER_NUMBER),
    Argument("XmNmaxHeight", INTEGER_NUMBER),
    Argument("XmNmaxLength", INTEGER_NUMBER),
    Argument("XmNmaxWidth", INTEGER_NUMBER),
    Argument("XmNmaximum", INTEGER_NUMBER),
    Argument("XmNmenuAccelerator", SIMPLE_STRING),
    Argument("XmNmenuBar", WIDGET),
    Argument("XmNmenuHelpWidget", WIDGET),
    Argument("XmNmenuHistory", WIDGET),
    Argument("XmNmenuPost", SIMPLE_STRING),
    Argument("XmNmessageAlignment", INTEGER_NUMBER),
    Argument("XmNmessageString", COMPOUND_STRING),
    Argument("XmNmessageWindow", WIDGET),
    Argument("XmNminAspectX", INTEGER_NUMBER),
    Argument("XmNminAspectY", INTEGER_NUMBER),
    Argument("XmNminHeight", INTEGER_NUMBER),
    Argument("XmNminWidth", INTEGER_NUMBER),
    Argument("XmNminimizeButtons", BOOLEAN_NUMBER),
    Argument("XmNminimum", INTEGER_NUMBER),
    Argument("XmNmnemonic", KEYSYM),
    Argument("XmNmnemonicCharSet", SIMPLE_STRING),
    Argument("XmNmultiClick", INTEGER_NUMBER),
    Argument("XmNmustMatch", BOOLEAN_NUMBER),
    Argument("XmNmwmDecorations", INTEGER_NUMBER),
    Argument("XmNmwmFunctions", INTEGER_NUMBER),
    Argument("XmNmwmInputMode", INTEGER_NUMBER),
    Argument("XmNmwmMenu", SIMPLE_STRING),
    Argument("XmNnavigationType", INTEGER_NUMBER),
    Argument("XmNnoMatchString", COMPOUND_STRING),
    Argument("XmNnoResize", BOOLEAN_NUMBER),
    Argument("XmNnumColumns", INTEGER_NUMBER),
});

constexpr std::array<ArgumentName, 80> argument_names_o_s = std::to_array<ArgumentName>({
    Argument("XmNokLabelString", COMPOUND_STRING),
    Argument("XmNorientation", INTEGER_NUMBER),
    Argument("XmNoverrideRedirect", BOOLEAN_NUMBER),
    Argument("XmNpacking", INTEGER_NUMBER),
    Argument("XmNpageIncrement", INTEGER_NUMBER),
    Argument("XmNpaneMaximum", INTEGER_NUMBER),
    Argument("XmNpaneMinimum", INTEGER_NUMBER),
    Argument("XmNpattern", COMPOUND_STRING),
    Argument("XmNpendingDelete", BOOLEAN_NUMBER),
    Argument("XmNpopupEnabled", BOOLEAN_NUMBER),
    Argument("XmNpositionIndex", INTEGER_NUMBER),
    Argument("XmNpostFromCount", INTEGER_NUMBER),
    Argument("XmNpostFromList", INTEGER_NUMBER),
    Argument("XmNpreeditType", SIMPLE_STRING),
    Argument("XmNprocessingDirection", INTEGER_NUMBER),
    Argument("XmNpromptString", COMPOUND_STRING),
    Argument("XmNpushButtonEnabled", BOOLEAN_NUMBER),
    Argument("XmNqualifySearchDataProc", ANY),
    Argument("XmNradioAlwaysOne", BOOLEAN_NUMBER),
    Argument("XmNradioBehavior", BOOLEAN_NUMBER),
    Argument("XmNrecomputeSize", BOOLEAN_NUMBER),
    Argument("XmNrefigureMode", BOOLEAN_NUMBER),
    Argument("XmNrepeatDelay", INTEGER_NUMBER),
    Argument("XmNresizable", BOOLEAN_NUMBER),
    Argument("XmNresizeHeight", BOOLEAN_NUMBER),
    Argument("XmNresizePolicy", INTEGER_NUMBER),
    Argument("XmNresizeWidth", BOOLEAN_NUMBER),
    Argument("XmNrightAttachment", INTEGER_NUMBER),
    Argument("XmNrightOffset", INTEGER_NUMBER),
    Argument("XmNrightPosition", INTEGER_NUMBER),
    Argument("XmNrightWidget", WIDGET),
    Argument("XmNrowColumnType", INTEGER_NUMBER),
    Argument("XmNrows", INTEGER_NUMBER),
    Argument("XmNrubberPositioning", BOOLEAN_NUMBER),
    Argument("XmNsashHeight", INTEGER_NUMBER),
    Argument("XmNsashIndent", INTEGER_NUMBER),
    Argument("XmNsashShadowThickness", INTEGER_NUMBER),
    Argument("XmNsashWidth", INTEGER_NUMBER),
    Argument("XmNsaveUnder", BOOLEAN_NUMBER),
    Argument("XmNscaleHeight", INTEGER_NUMBER),
    Argument("XmNscaleMultiple", INTEGER_NUMBER),
    Argument("XmNscaleWidth", INTEGER_NUMBER),
    Argument("XmNscreen", IDENTIFIER),
    Argument("XmNscrollBarDisplayPolicy", INTEGER_NUMBER),
    Argument("XmNscrollBarPlacement", INTEGER_NUMBER),
    Argument("XmNscrollHorizontal", BOOLEAN_NUMBER),
    Argument("XmNscrollLeftSide", BOOLEAN_NUMBER),
    Argument("XmNscrollTopSide", BOOLEAN_NUMBER),
    Argument("XmNscrollVertical", BOOLEAN_NUMBER),
    Argument("XmNscrolledWindowMarginHeight", INTEGER_NUMBER),
    Argument("XmNscrolledWindowMarginWidth", INTEGER_NUMBER),
    Argument("XmNscrollingPolicy", INTEGER_NUMBER),
    Argument("XmNselectColor", COLOR),
    Argument("XmNselectInsensitivePixmap", PIXMAP),
    Argument("XmNselectPixmap", PIXMAP),
    Argument("XmNselectThreshold", INTEGER_NUMBER),
    Argument("XmNselectedItemCount", INTEGER_NUMBER),
    Argument("XmNselectedItems", COMPOUND_STRING_TABLE),
    Argument("XmNselectionArray", ANY),
    Argument("XmNselectionArrayCount", INTEGER_NUMBER),
    Argument("XmNselectionLabelString", COMPOUND_STRING),
    Argument("XmNselectionPolicy", INTEGER_NUMBER),
    Argument("XmNsensitive", BOOLEAN_NUMBER),
    Argument("XmNseparatorOn", BOOLEAN_NUMBER),
    Argument("XmNseparatorType", INTEGER_NUMBER),
    Argument("XmNset", BOOLEAN_NUMBER),
    Argument("XmNshadowThickness", INTEGER_NUMBER),
    Argument("XmNshadowType", INTEGER_NUMBER),
    Argument("XmNshellUnitType", INTEGER_NUMBER),
    Argument("XmNshowArrows", BOOLEAN_NUMBER),
    Argument("XmNshowAsDefault", INTEGER_NUMBER),
    Argument("XmNshowSeparator", BOOLEAN_NUMBER),
    Argument("XmNshowValue", BOOLEAN_NUMBER),
    Argument("XmNskipAdjust", BOOLEAN_NUMBER),
    Argument("XmNsliderSize", INTEGER_NUMBER),
    Argument("XmNsource", ANY),
    Argument("XmNspacing", INTEGER_NUMBER),
    Argument("XmNstringDirection", INTEGER_NUMBER),
    Argument("XmNsubMenuId", WIDGET),
    Argument("XmNsymbolPixmap", PIXMAP),
});

constexpr std::array<ArgumentName, 46> argument_names_t_z = std::to_array<ArgumentName>({
    Argument("XmNtearOffModel", INTEGER_NUMBER),
    Argument("XmNtextAccelerators", TRANSLATION_TABLE),
    Argument("XmNtextColumns", INTEGER_NUMBER),
    Argument("XmNtextFontList", FONT_TABLE),
    Argument("XmNtextString", COMPOUND_STRING),
    Argument("XmNtextTranslations", TRANSLATION_TABLE),
    Argument("XmNtitle", SIMPLE_STRING),
    Argument("XmNtitleEncoding", ANY),
    Argument("XmNtitleString", COMPOUND_STRING),
    Argument("XmNtopAttachment", INTEGER_NUMBER),
    Argument("XmNtopCharacter", INTEGER_NUMBER),
    Argument("XmNtopItemPosition", INTEGER_NUMBER),
    Argument("XmNtopOffset", INTEGER_NUMBER),
    Argument("XmNtopPosition", INTEGER_NUMBER),
    Argument("XmNtopShadowColor", COLOR),
    Argument("XmNtopShadowPixmap", PIXMAP),
    Argument("XmNtopWidget", WIDGET),
    Argument("XmNtransient", BOOLEAN_NUMBER),
    Argument("XmNtransientFor", WIDGET),
    Argument("XmNtranslations", TRANSLATION_TABLE),
    Argument("XmNtraversalOn", BOOLEAN_NUMBER),
    Argument("XmNtroughColor", COLOR),
    Argument("XmNunitType", INTEGER_NUMBER),
    Argument("XmNunpostBehavior", ANY),
    Argument("XmNuseAsyncGeometry", BOOLEAN_NUMBER),
    Argument("XmNuserData", ANY),
    Argument("XmNvalue", ANY),
    Argument("XmNvalueWcs", WIDE_CHARACTER),
    Argument("XmNverifyBell", BOOLEAN_NUMBER),
    Argument("XmNverticalScrollBar", BOOLEAN_NUMBER),
    Argument("XmNverticalSpacing", INTEGER_NUMBER),
    Argument("XmNvisibleItemCount", INTEGER_NUMBER),
    Argument("XmNvisibleWhenOff", BOOLEAN_NUMBER),
    Argument("XmNvisual", ANY),
    Argument("XmNvisualPolicy", INTEGER_NUMBER),
    Argument("XmNwaitForWm", BOOLEAN_NUMBER),
    Argument("XmNwhichButton", INTEGER_NUMBER),
    Argument("XmNwidth", INTEGER_NUMBER),
    Argument("XmNwidthInc", INTEGER_NUMBER),
    Argument("XmNwinGravity", INTEGER_NUMBER),
    Argument("XmNwindowGroup", ANY),
    Argument("XmNwmTimeout", INTEGER_NUMBER),
    Argument("XmNwordWrap", BOOLEAN_NUMBER),
    Argument("XmNworkWindow", WIDGET),
    Argument("XmNx", INTEGER_NUMBER),
    Argument("XmNy", INTEGER_NUMBER),
});

// -- Reasons ------------------------------------------------------------------------------------

constexpr std::array<ReasonName, 45> reason_names = std::to_array<ReasonName>({
    Reason("MrmNcreateCallback"),
    Reason("XmNactivateCallback"),
    Reason("XmNapplyCallback"),
    Reason("XmNarmCallback"),
    Reason("XmNbrowseSelectionCallback"),
    Reason("XmNcancelCallback"),
    Reason("XmNcascadingCallback"),
    Reason("XmNcommandChangedCallback"),
    Reason("XmNcommandEnteredCallback"),
    Reason("XmNdecrementCallback"),
    Reason("XmNdefaultActionCallback"),
    Reason("XmNdestroyCallback"),
    Reason("XmNdisarmCallback"),
    Reason("XmNdragCallback"),
    Reason("XmNentryCallback"),
    Reason("XmNexposeCallback"),
    Reason("XmNextendedSelectionCallback"),
    Reason("XmNfocusCallback"),
    Reason("XmNgainPrimaryCallback"),
    Reason("XmNhelpCallback"),
    Reason("XmNincrementCallback"),
    Reason("XmNinputCallback"),
    Reason("XmNlosePrimaryCallback"),
    Reason("XmNlosingFocusCallback"),
    Reason("XmNmapCallback"),
    Reason("XmNmodifyVerifyCallback"),
    Reason("XmNmodifyVerifyCallbackWcs"),
    Reason("XmNmotionVerifyCallback"),
    Reason("XmNmultipleSelectionCallback"),
    Reason("XmNnoMatchCallback"),
    Reason("XmNokCallback"),
    Reason("XmNpageDecrementCallback"),
    Reason("XmNpageIncrementCallback"),
    Reason("XmNpopdownCallback"),
    Reason("XmNpopupCallback"),
    Reason("XmNresizeCallback"),
    Reason("XmNsimpleCallback"),
    Reason("XmNsingleSelectionCallback"),
    Reason("XmNtearOffMenuActivateCallback"),
    Reason("XmNtearOffMenuDeactivateCallback"),
    Reason("XmNtoBottomCallback"),
    Reason("XmNtoTopCallback"),
    Reason("XmNtraverseObscuredCallback"),
    Reason("XmNunmapCallback"),
    Reason("XmNvalueChangedCallback"),
});
