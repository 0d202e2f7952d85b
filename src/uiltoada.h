#ifndef KIVUXL_UILTOADA_H
#define KIVUXL_UILTOADA_H

// The symbol model: every record that the front end builds while it reads a UIL module and that
// the back end walks while it writes Ada.
//
// All records are plain structures whose first member is the head that they share, so that a
// record of unknown type may be inspected through a pointer to its head: `KindRec` (a kind) or
// `SimpleObjectRec` (a kind and a name).  Lists and hash tables hold untyped pointers, and every
// consumer dispatches on `kind`.  Records live in the memory of the model (Model.h) until the
// whole program is put back to its start; nobody frees one.

#include <cstddef>
#include <cstdint>

#include "Hash.h"
#include "List.h"
#include "Tokens.h"

// -- Types and names ---------------------------------------------------------------------------

// One row per type keyword: the keyword's entry and the description of the type.
struct FunctionName : SimpleObjectRec {
  std::int32_t value_type; // the kind that a value of this type carries
  std::int32_t const_type; // the binding kind of a named value, NIL where there is none
  bool do_prom;            // whether a value may be converted when it is assigned
  std::int32_t num_proms;  // how many entries of `proms` are used
  std::int32_t proms[3];   // the kinds to which a value may be converted, in order
};

// A word of the language or a name that means nothing yet.
struct BareWord : SimpleObjectRec {
  void *value; // the bound record; null for keywords
};
using Uninterned = BareWord;
using ReservedWord = BareWord;
using NonResWord = BareWord;
using Identifier = BareWord;

// The scanner's semantic value for a word: `value` is the entry found, null for a new name.
struct SymbolValue : SimpleObjectRec {
  SimpleObjectRec *value;
};
using ReservedWordValue = SymbolValue;
using NonResWordValue = SymbolValue;

struct IdentifierDecl : KindRec {
  BareWord *value;
};

// A name bound to a value: `kind` is a binding kind or a predefined-name kind, `name` the key in
// `symbol_table`.  All families share one record, so that an entry of unknown family can be read.
struct NamedBinding : SimpleObjectRec {
  union {
    NamedBinding *constant; // a name defined as another name
    void *value;            // the value record; its type follows from `kind`
  } value;
};
using ArgumentConstant = NamedBinding;
using FunctionConstant = NamedBinding;
using CharacterSetConst = NamedBinding;
using BooleanConstant = NamedBinding;
using IntegerConstant = NamedBinding;
using SingleFloatConst = NamedBinding;
using FloatConstant = NamedBinding;
using StringConstant = NamedBinding;
using ReasonConstant = NamedBinding;
using WidgetClassValue = NamedBinding;
using ClassRecNameConst = NamedBinding;
using AscizTableConst = NamedBinding;
using ColorTableConst = NamedBinding;
using CompoundStringCon = NamedBinding;
using CmpStringTableCon = NamedBinding;
using FontTableConstant = NamedBinding;
using IntegerTableConst = NamedBinding;
using TransTableConst = NamedBinding;
using ColorConstant = NamedBinding;
using RGBConstant = NamedBinding;
using FontConstant = NamedBinding;
using FontsetConstant = NamedBinding;
using IconConstant = NamedBinding;
using KeysymConstant = NamedBinding;
using XBitmapFileConst = NamedBinding;
using WideCharConstant = NamedBinding;
using PixmapConstant = NamedBinding;
using UnionConst = NamedBinding;

// A second name for an entry.
struct AliasName : SimpleObjectRec {
  BareWord *item;
};

// -- Vocabulary --------------------------------------------------------------------------------

// An argument (resource) name.
struct ArgumentName : SimpleObjectRec {
  std::int32_t value_type; // the value kind that the resource takes, 0 where not restricted
  bool predefined;         // false for arguments declared in the source
};

// A setting by name: a resource with its value, or a callback reason.  Both have one shape, since
// the emitters write the name of either in the same way.
struct NamedSetting : SimpleObjectRec {
  KindRec *value;  // the argument's value record; null for a reason
  bool predefined; // false for arguments and reasons declared in the source
};
using ReasonName = NamedSetting;     // REASON_NAME
using ArgumentInvoke = NamedSetting; // ARGUMENT

struct WidgetClass : SimpleObjectRec {
  bool need;       // the class is used by the module
  bool use_gadget; // the objects clause asked for the gadget variant
};

constexpr int kMaxParentNames = 13;

// Table row of a child that its parent creates by itself.
struct AutoChildTemplate : SimpleObjectRec {
  const char *child_name; // class name of the child
  std::int32_t num_parent_names;
  const char *parent_names[kMaxParentNames]; // class names of the parents
};

// The same child with its classes resolved.
struct AutoCreatedChild : SimpleObjectRec {
  WidgetClassValue *child;
  std::int32_t num_parents;
  WidgetClassValue **parents; // null-terminated
};

struct AutoChildValue : SimpleObjectRec {
  AutoCreatedChild *value;
};

struct CharacterSetValue : SimpleObjectRec {
  const char *charset; // X registry name
  bool parse_dir;      // the source text is written right to left
  bool write_dir;      // right-to-left writing direction
  bool sixteen_bit;    // two bytes per character
  bool predefined;
};

// -- Values ------------------------------------------------------------------------------------

struct BooleanValue : KindRec { // BOOLEAN_NUMBER
  bool value;
};

struct IntegerValue : KindRec { // INTEGER_NUMBER
  std::int32_t value;
};

struct SingleFloatValue : KindRec { // SINGLE_FLOAT_NUMBER
  float value;
};

struct FloatValue : KindRec { // FLOAT_NUMBER
  double value;
};

// The rows of the predefined Boolean and integer tables hold their value inline.
struct BooleanConstantTemplate : SimpleObjectRec {
  BooleanValue value;
};

struct IntegerConstantTemplate : SimpleObjectRec {
  IntegerValue value;
};

union NumberUnion {
  bool boolean;
  std::int32_t integer;
  float single;
  double float_v;
};

// The working record of expressions: any of the four number kinds.  Never stored in the model: a
// value that is bound or assigned is one of the four records above (NumberToValue).
struct NumberValue : KindRec {
  NumberUnion value;
};

// One run of a string in one character set.
struct StringCharSet : KindRec {
  const char *str;
  CharacterSetValue *charset; // null: the default character set
  std::int32_t start;         // first character of the run within the string
  std::int32_t length;        // characters in the run
};

struct StringValue : KindRec { // SIMPLE_STRING (LITERAL_SINGLE, LITERAL_DOUBLE from the scanner)
  const char *value;
  List charsets; // of StringCharSet; null when the text has no runs
};

// A string expression while it is being joined: its own growing buffer, so that a chain of parts
// is joined in linear time.  No buffer is shared with a stored StringValue until the chain ends.
struct StringBuild : StringValue {
  std::size_t length;   // characters in `value`
  std::size_t capacity; // bytes owned by this chain, 0 while `value` belongs to somebody else
};

struct ColorValue : KindRec { // COLOR
  const char *value;          // colour name; null for foreground and background in a colour table
  std::int32_t fallback;      // FOREGROUND, BACKGROUND or NIL
};
using RGBValue = ColorValue; // RGB: `value` is "#rrrrggggbbbb"

struct ColorAssignment : KindRec { // COLOR_TABLE_ENTRY
  const char *value;
  std::int32_t fallback;
  const char *chars; // the characters that stand for the colour in an icon
};

// An item of a compound string: a text segment (COMPOUND_STRING), or a modifier of the segment
// that follows (CHARACTER_SET, RIGHT_TO_LEFT, SEPARATE), which uses the fields of its kind.
struct CompoundStringSegment : KindRec {
  const char *value;
  bool default_charset;
  const char *charset; // UIL name of the character set
  bool default_direction;
  bool direction; // right to left
  bool default_separate;
  bool separate;
};

struct FontValue : KindRec { // FONT
  const char *value;
  const char *charset; // UIL name, may be null
};

struct FontsetValue : KindRec { // FONTSET
  List value;                   // of texts (char *)
  const char *charset;          // UIL name, may be null
};

union FontOrFontset {
  std::int32_t kind;
  FontValue font;
  FontsetValue fontset;
};
using FontListItem = FontOrFontset;

struct IconValue : KindRec { // ICON
  List value;                // of row texts (char *)
  List colors;               // of ColorAssignment; null without a colour table
};

struct XBitmapFileValue : SimpleObjectRec { // XBITMAPFILE
  const char *value;                        // the file name
};

union IconOrXBitmap {
  std::int32_t kind;
  IconValue icon;
  XBitmapFileValue xbmf;
};
using PixmapValue = IconOrXBitmap;

struct TextValue : KindRec {
  const char *value;
};
using KeysymValue = TextValue;   // KEYSYM
using WideCharValue = TextValue; // WIDE_CHARACTER

struct ClassRecNameValue : SimpleObjectRec { // CLASS_REC_NAME
  const char *value;                         // the class record name
};

// A value that is a list of items.
struct TableValue : KindRec {
  List value;
};
using AscizTableValue = TableValue;   // ASCIZ_STRING_TABLE: texts (char *)
using ColorTableValue = TableValue;   // COLOR_TABLE: ColorAssignment
using CompoundStringVal = TableValue; // COMPOUND_STRING: CompoundStringSegment
using CmpStringTableVal = TableValue; // COMPOUND_STRING_TABLE: CompoundStringVal
using FontTableValue = TableValue;    // FONT_TABLE: FontValue and FontsetValue
using IntegerTableValue = TableValue; // INTEGER_TABLE: IntegerValue
using TransTableValue = TableValue;   // TRANSLATION_TABLE: texts (char *)

// The common head of any named value.
using UnionValue = SimpleObjectRec;

// -- Procedures and lists ----------------------------------------------------------------------

struct ProcedureName : SimpleObjectRec {
  std::int32_t type;  // the value kind of the parameter, NIL for none, NONE for "()", ANY for any
  std::int32_t usage; // NIL until used, then CALLBACK_PROC or CREATE_PROC
};

struct ProcedureDecl : SimpleObjectRec {
  ProcedureName *value;
};

struct ProcedureInvoke : SimpleObjectRec {
  ProcedureName *proc;
  KindRec *param; // never null: kind NIL without parentheses, NONE with empty ones
};

// A list of the module, or an item that stands for one inside another list.  The kind tells which:
// ..._LIST for a list written where it is used, ..._LIST_NAME for a reference by name.
struct UnionList : SimpleObjectRec {
  List value;
};
using ArgumentsList = UnionList;
using CallbacksList = UnionList;
using ProceduresList = UnionList;
using ControlsList = UnionList;
using Attributes = UnionList; // ATTRIBUTES_LIST

// The binding of a named list: `value` is the list record.
struct ListDecl : SimpleObjectRec {
  UnionList *value;
};
using ArgsListDecl = ListDecl;
using CbsListDecl = ListDecl;
using ProcsListDecl = ListDecl;
using CtlsListDecl = ListDecl;

struct ArgumentValue : SimpleObjectRec {
  ArgumentName *value;
};

struct CallbackValue : SimpleObjectRec { // CALLBACK; `name` is the reason's bound UIL name
  List value;                            // of ProcedureInvoke
};

struct CbsListItem : KindRec {
  void *value;
};

// -- Widgets -----------------------------------------------------------------------------------

struct WidgetNotes;

struct WidgetDef : SimpleObjectRec {
  std::int32_t managed;  // MANAGED, UNMANAGED or NIL
  std::int32_t gadget;   // WIDGET or GADGET
  SimpleObjectRec *type; // the class's WidgetClassValue, or the ProcedureDecl of the creation
                         // procedure of a user-defined object
  List attribs;          // attribute records as written; null while only referred to
  List args;             // of ArgumentsList
  List cbs;              // of CallbacksList
  List ctls;             // of ControlsList
  bool anon;             // defined inline, named by the translator
  bool maybe_top;        // may be a top-level object

  // The rest is private to WidgetUtils.
  const WidgetDef *origin; // of a copy made for a reference, the definition
  WidgetNotes *notes;      // what is remembered of the definition, null while nothing is
};

struct WidgetRef : SimpleObjectRec { // WIDGET_REF
  std::int32_t managed;              // MANAGED, UNMANAGED or NIL
  WidgetDef *resolved;               // private to WidgetUtils: the resolved copy, once made
};

struct WidgetValue : SimpleObjectRec { // WIDGET_NAME: the binding of an object name
  WidgetDef *value;
};

// One item of a controls list.
struct ControlValue : SimpleObjectRec {
  union ControlValueKinds {
    WidgetDef *def;
    WidgetRef *ref;
    List list;
    void *ptr;
  } value;
};

// Per-object bookkeeping of the back end: what has been written already.
struct WidgetEmit : SimpleObjectRec {
  bool cbs;        // callback case arms
  bool decl;       // declaration of the creation function
  bool body;       // creation function
  bool post;       // declaration of the post procedure
  bool pstb;       // post procedure
  bool data;       // client data
  const char *rec; // the top-level widget under which it was last recorded, or null
};

// -- Module ------------------------------------------------------------------------------------

struct ModuleData : SimpleObjectRec { // MODULE
  bool case_sensitive;
  const char *default_character_set; // UIL name, null when not given
  const char *uil_version;           // null when not given
};

struct ModuleValue : KindRec {
  ModuleData *value;
};

// One shell of the main procedure: given by an option or deduced for a top-level widget.
struct Kivu_ShellInfo : KindRec {
  const char *childName;  // the top-level widget that the shell holds
  const char *shellName;  // the shell's own name
  const char *shellClass; // such as "applicationShell"
  const char *pkgName;    // base name of the packages that own the widget
};

// When a value is set: in the create call, right after it, or when every widget exists.
enum DeferUntil : std::uint8_t { SETARG_BEFORE = 0, SETARG_AFTER = 1, SETARG_SECOND = 2 };

// -- The parser's semantic value ---------------------------------------------------------------

// Trivially copyable and copied whole; the first word of every member is its kind.
union YYSTYPE {
  std::int32_t kind;
  ModuleValue module;
  SymbolValue symbol;
  BooleanValue boolean;
  IntegerValue integer;
  SingleFloatValue single;
  FloatValue float_t;
  NumberValue number;
  StringValue string;
  ArgumentName argument;
  AscizTableValue ascz_tbl;
  CharacterSetValue charset;
  ClassRecNameValue classrec;
  ColorValue color;
  ColorTableValue colortbl;
  ColorAssignment colorasm;
  CompoundStringVal cmpstr;
  CmpStringTableVal cstr_tbl;
  FontValue font;
  FontsetValue fontset;
  FontOrFontset font_itm;
  FontTableValue font_tbl;
  IconValue icon;
  IntegerTableValue int_tbl;
  KeysymValue keysym;
  PixmapValue pixmap;
  ReasonName reason;
  RGBValue rgb;
  TransTableValue xtable;
  WideCharValue wchar;
  WidgetValue widget;
  XBitmapFileValue xbmf;
  UnionValue value;
  BooleanConstant bool_c;
  IntegerConstant int_c;
  SingleFloatConst single_c;
  FloatConstant float_c;
  StringConstant string_c;
  CharacterSetConst chars_c;
  ArgumentConstant arg_c;
  AscizTableConst asczt_c;
  ClassRecNameConst class_c;
  ColorConstant color_c;
  ColorTableConst coltab_c;
  CompoundStringCon cmpstr_c;
  CmpStringTableCon cstrt_c;
  FontConstant font_c;
  FontsetConstant fset_c;
  FontTableConstant ftable_c;
  IconConstant icon_c;
  IntegerTableConst int_tb_c;
  KeysymConstant keysym_c;
  PixmapConstant pixmap_c;
  ReasonConstant reason_c;
  RGBConstant rgb_c;
  TransTableConst xtable_c;
  WideCharConstant wchar_c;
  XBitmapFileConst xbmf_c;
  UnionConst value_c;
  FunctionConstant func_c;
  ReservedWordValue reserved;
  NonResWordValue non_res;
  FunctionName function;
  WidgetClassValue widclass;
  AutoChildValue autchild;
  IdentifierDecl ident_d;
  ProcedureDecl proc_d;
  ArgumentsList args_l;
  CallbacksList cbs_l;
  ProceduresList procs_l;
  ControlsList ctls_l;
  ArgsListDecl args_d;
  CbsListDecl cbs_d;
  ProcsListDecl procs_d;
  CtlsListDecl ctls_d;
  WidgetDef widget_d;
  WidgetRef widget_r;
  Attributes attrib_l;
  UnionList attrib_v;
  ArgumentInvoke arg_v;
  CallbackValue cb_v;
  CbsListItem cbs_i;
  ProcedureInvoke proc_v;
  ControlValue ctl_v;
  StringBuild build;
};

#endif
