/*
 * The grammar of UIL.
 *
 * Actions of more than a line are functions of ParseModule, ParseValues, ParseLists and
 * ParseObjects, so that the grammar reads like the grammar.  The error alternative of a construct
 * reports the construct's usage text and leaves a value of kind NIL.
 *
 * A declared name returns another token than a new one, so a declaration must take effect before
 * the next name is read: each one is reduced by a default reduction, without a look at the next
 * token.  Keep it so (no lr.default-reduction or lr.type settings).
 */

%code requires {
#include "uiltoada.h"
}

%code {
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "Alloc.h"
#include "Error.h"
#include "Expression.h"
#include "Files.h"
#include "Model.h"
#include "ParseLists.h"
#include "ParseModule.h"
#include "ParseObjects.h"
#include "ParseUsage.h"
#include "ParseValues.h"
#include "Parser.h"
#include "Scanner.h"

// The parser's stack belongs to the model's memory, so that a fatal message that leaves the parser
// in the middle leaks nothing.  It is deep enough for 10,000 nested objects.
#define YYMALLOC _MAlloc
#define YYFREE _MFree
#define YYMAXDEPTH 100000

// yyparse is the entry point below, which looks at how the generated parser ended.
#define yyparse GeneratedParse
int GeneratedParse();
}

%define api.value.type {union YYSTYPE}
%define api.token.prefix {TOKEN_}
%define parse.trace
%expect 0

/* ORDER TOKENS: src/Tokens.h numbers them in the same order. */
%token NIL UNINTERNED SYMBOL BOOLEAN_NUMBER LITERAL_INTEGER INTEGER_NUMBER SINGLE_FLOAT_NUMBER
%token LITERAL_FLOAT FLOAT_NUMBER LITERAL_SINGLE LITERAL_DOUBLE SIMPLE_STRING BOOLEAN_CONSTANT
%token BOOLEAN_VALUE INTEGER_CONSTANT INTEGER_VALUE SINGLE_FLOAT_VALUE FLOAT_VALUE STRING_VALUE
%token CHARACTER_SET_CONSTANT MODULE END GADGET LIST ARGUMENTS CALLBACKS CONTROLS PROCEDURES
%token IDENTIFIER INCLUDE OBJECT PROCEDURE VALUE EXPORTED PRIVATE BACKGROUND FOREGROUND
%token CASE_INSENSITIVE CASE_SENSITIVE IMPORTED MANAGED UNMANAGED USER_DEFINED FILE_WORD NAMES
%token OBJECTS VERSION SEPARATE RIGHT_TO_LEFT SIXTEEN_BIT REASON_NAME ARGUMENT_NAME ANY ARGUMENT
%token ASCIZ_STRING_TABLE BOOLEAN CHARACTER_SET CLASS_REC_NAME COLOR COLOR_TABLE COMPOUND_STRING
%token COMPOUND_STRING_TABLE FLOAT FONT FONTSET FONT_TABLE ICON INTEGER INTEGER_TABLE KEYSYM
%token NONE PIXMAP REASON RGB SINGLE_FLOAT STRING TRANSLATION_TABLE WIDE_CHARACTER WIDGET
%token XBITMAPFILE ARGUMENT_VALUE ASCIZ_STRING_TABLE_VALUE CLASS_REC_NAME_VALUE COLOR_VALUE
%token COLOR_TABLE_VALUE COMPOUND_STRING_VALUE COMPOUND_STRING_TABLE_VALUE FONT_VALUE
%token FONTSET_VALUE FONT_TABLE_VALUE ICON_VALUE INTEGER_TABLE_VALUE KEYSYM_VALUE PIXMAP_VALUE
%token REASON_VALUE RGB_VALUE TRANSLATION_TABLE_VALUE WIDE_CHARACTER_VALUE XBITMAPFILE_VALUE
%token COLOR_TABLE_ENTRY WIDGET_CLASS AUTO_CREATED FONT_TABLE_ITEM IDENTIFIER_NAME
%token PROCEDURE_NAME ARGUMENTS_LIST_NAME ARGUMENTS_LIST CALLBACKS_LIST_NAME CALLBACKS_LIST
%token CALLBACK PROCEDURES_LIST_NAME PROCEDURES_LIST PROCEDURE_INVOKE CONTROLS_LIST_NAME
%token CONTROLS_LIST WIDGET_NAME WIDGET_REF WIDGET_DEF AUTO_CREATED_DEF ATTRIBUTES_LIST
%token CREATE_PROC CALLBACK_PROC EVENT_HANDLER LEFT_SHIFT RIGHT_SHIFT UNARY MAX_TOKENS

%left '|' '^'
%left '&'
%left LEFT_SHIFT RIGHT_SHIFT
%left '+' '-'
%left '*' '/'
%precedence UNARY

%start uil_module

%%

/* -- Module ------------------------------------------------------------------------------- */

uil_module
  : module_header .module_clauses.. .sections.. module_end
  | module_header error module_end { ModuleFault(&$$); }
  | error { NotAModule(&$$); }
  ;

module_header
  : MODULE SYMBOL { ModuleHeader(&$$, $2.symbol); }
  ;

module_end
  : END MODULE ';'
  ;

.module_clauses..
  : %empty { $$.kind = NIL; }
  | module_clauses..
  ;

module_clauses..
  : module_clause
  | module_clauses.. module_clause
  ;

module_clause
  : names_clause
  | character_set_clause
  | version_clause
  | objects_clause
  ;

names_clause
  : NAMES '=' CASE_SENSITIVE
  | NAMES '=' CASE_INSENSITIVE { NamesInsensitive(); }
  | NAMES error { SyntaxFault(&$$, kNamesClause); }
  ;

character_set_clause
  : CHARACTER_SET '=' CHARACTER_SET_CONSTANT { ModuleCharacterSet($3.symbol); }
  | CHARACTER_SET error { SyntaxFault(&$$, kCharacterSetClause); }
  ;

version_clause
  : VERSION '=' number_expr { ModuleVersionNumber($3.number); }
  | VERSION '=' string_expr { ModuleVersionText($3.build); }
  | VERSION error { SyntaxFault(&$$, kVersionClause); }
  ;

objects_clause
  : OBJECTS '=' '{' .object_variants.. '}'
  | OBJECTS '=' '{' .object_variants.. error '}' { SyntaxFault(&$$, kObjectsClause); }
  | OBJECTS error { SyntaxFault(&$$, kObjectsClause); }
  ;

.object_variants..
  : %empty { $$.kind = NIL; }
  | object_variants..
  ;

object_variants..
  : object_variant
  | object_variants.. object_variant
  ;

object_variant
  : WIDGET_CLASS '=' widget_or_gadget ';' { ObjectVariant($1.symbol, $3.kind); }
  ;

widget_or_gadget
  : WIDGET { $$.kind = WIDGET; }
  | GADGET { $$.kind = GADGET; }
  ;

/* -- Sections ----------------------------------------------------------------------------- */

.sections..
  : %empty { $$.kind = NIL; }
  | sections..
  ;

sections..
  : section
  | sections.. section
  ;

section
  : include_directive
  | value_section
  | identifier_section
  | procedure_section
  | list_section
  | object_section
  ;

/* The token after the file name is read before the file is opened.  A semicolon is the
   directive's; anything else is set aside and read again when the file has ended. */
include_directive
  : INCLUDE FILE_WORD string_expr
      {
        const int ahead = yychar;
        const bool keep = ahead != TOKEN_YYEMPTY && ahead != ';';
        if (keep) {
          yyclearin;
        }
        IncludeFile($3.build, keep ? &ahead : nullptr, yylval);
      }
    .semicolon
  | INCLUDE FILE_WORD error { SyntaxFault(&$$, kInclude); }
  | INCLUDE error { SyntaxFault(&$$, kInclude); }
  ;

.semicolon
  : %empty { $$.kind = NIL; }
  | ';'
  ;

/* -- Values ------------------------------------------------------------------------------- */

value_section
  : VALUE value_declarations..
  | VALUE error ';' { SyntaxFault(&$$, kValueDeclaration); }
  | VALUE error ';' { ReportUsage(kValueDeclaration); } value_declarations..
  ;

value_declarations..
  : value_declaration
  | value_declarations.. value_declaration
  ;

value_declaration
  : SYMBOL ':' .exported_or_private value_expr ';' { ValueDeclare($1.symbol, $4); }
  | SYMBOL ':' .exported_or_private error ';' { SyntaxFault(&$$, kValueDeclaration); }
  | SYMBOL ':' IMPORTED value_type ';' { ValueImport($1.symbol); }
  | SYMBOL ':' IMPORTED error ';' { SyntaxFault(&$$, kValueDeclaration); }
  | named_value ':' .exported_or_private value_expr ';' { ValueRedeclare($1.symbol, $4); }
  | named_value ':' .exported_or_private error ';' { SyntaxFault(&$$, kValueDeclaration); }
  | named_value ':' IMPORTED value_type ';' { ValueImport($1.symbol); }
  | named_value ':' IMPORTED error ';' { SyntaxFault(&$$, kValueDeclaration); }
  | named_value error ';' { SyntaxFault(&$$, kValueDeclaration); }
  ;

.exported_or_private
  : %empty { $$.kind = NIL; }
  | EXPORTED
  | PRIVATE
  ;

value_type
  : ARGUMENT { $$.kind = TypeOfKeyword($1.symbol); }
  | ASCIZ_STRING_TABLE { $$.kind = TypeOfKeyword($1.symbol); }
  | BOOLEAN { $$.kind = TypeOfKeyword($1.symbol); }
  | CLASS_REC_NAME { $$.kind = TypeOfKeyword($1.symbol); }
  | COLOR { $$.kind = TypeOfKeyword($1.symbol); }
  | COLOR_TABLE { $$.kind = TypeOfKeyword($1.symbol); }
  | COMPOUND_STRING { $$.kind = TypeOfKeyword($1.symbol); }
  | COMPOUND_STRING_TABLE { $$.kind = TypeOfKeyword($1.symbol); }
  | FLOAT { $$.kind = TypeOfKeyword($1.symbol); }
  | FONT { $$.kind = TypeOfKeyword($1.symbol); }
  | FONTSET { $$.kind = TypeOfKeyword($1.symbol); }
  | FONT_TABLE { $$.kind = TypeOfKeyword($1.symbol); }
  | ICON { $$.kind = TypeOfKeyword($1.symbol); }
  | INTEGER { $$.kind = TypeOfKeyword($1.symbol); }
  | INTEGER_TABLE { $$.kind = TypeOfKeyword($1.symbol); }
  | KEYSYM { $$.kind = TypeOfKeyword($1.symbol); }
  | PIXMAP { $$.kind = TypeOfKeyword($1.symbol); }
  | REASON { $$.kind = TypeOfKeyword($1.symbol); }
  | RGB { $$.kind = TypeOfKeyword($1.symbol); }
  | SINGLE_FLOAT { $$.kind = TypeOfKeyword($1.symbol); }
  | STRING { $$.kind = TypeOfKeyword($1.symbol); }
  | TRANSLATION_TABLE { $$.kind = TypeOfKeyword($1.symbol); }
  | WIDE_CHARACTER { $$.kind = TypeOfKeyword($1.symbol); }
  | XBITMAPFILE { $$.kind = TypeOfKeyword($1.symbol); }
  ;

named_value
  : ARGUMENT_VALUE
  | ASCIZ_STRING_TABLE_VALUE
  | BOOLEAN_VALUE
  | CLASS_REC_NAME_VALUE
  | COLOR_VALUE
  | COLOR_TABLE_VALUE
  | COMPOUND_STRING_VALUE
  | COMPOUND_STRING_TABLE_VALUE
  | FLOAT_VALUE
  | FONT_VALUE
  | FONTSET_VALUE
  | FONT_TABLE_VALUE
  | ICON_VALUE
  | INTEGER_VALUE
  | INTEGER_TABLE_VALUE
  | KEYSYM_VALUE
  | PIXMAP_VALUE
  | REASON_VALUE
  | RGB_VALUE
  | SINGLE_FLOAT_VALUE
  | STRING_VALUE
  | TRANSLATION_TABLE_VALUE
  | WIDE_CHARACTER_VALUE
  | XBITMAPFILE_VALUE
  ;

value_expr
  : argument_expr
  | asciz_string_table_expr
  | number_expr { NumberResult(&$$, $1); }
  | class_rec_name_expr
  | color_expr
  | color_table_expr
  | compound_string_expr
  | compound_string_table_expr
  | font_expr
  | fontset_expr
  | font_table_expr
  | icon_expr
  | integer_table_expr
  | keysym_expr
  | pixmap_expr
  | reason_expr
  | rgb_expr
  | string_expr
  | translation_table_expr
  | wide_character_expr
  | xbitmapfile_expr
  ;

number_expr
  : number_primary
  | number_expr '|' number_expr { OrExpression(&$$.number, $1.number, $3.number); }
  | number_expr '^' number_expr { ExclusiveOrExpression(&$$.number, $1.number, $3.number); }
  | number_expr '&' number_expr { AndExpression(&$$.number, $1.number, $3.number); }
  | number_expr LEFT_SHIFT number_expr { LeftShiftExpression(&$$.number, $1.number, $3.number); }
  | number_expr RIGHT_SHIFT number_expr { RightShiftExpression(&$$.number, $1.number, $3.number); }
  | number_expr '+' number_expr { AddExpression(&$$.number, $1.number, $3.number); }
  | number_expr '-' number_expr { SubtractExpression(&$$.number, $1.number, $3.number); }
  | number_expr '*' number_expr { MultiplyExpression(&$$.number, $1.number, $3.number); }
  | number_expr '/' number_expr { DivideExpression(&$$.number, $1.number, $3.number); }
  | '~' number_expr %prec UNARY { UnaryNotExpression(&$$.number, $2.number); }
  | '-' number_expr %prec UNARY { UnaryMinusExpression(&$$.number, $2.number); }
  | '+' number_expr %prec UNARY { $$ = $2; }
  ;

number_primary
  : BOOLEAN_CONSTANT { $$.number = ValueToNumber(&BoundValue<KindRec>($1.symbol)); }
  | BOOLEAN_VALUE { $$.number = ValueToNumber(&BoundValue<KindRec>($1.symbol)); }
  | INTEGER_CONSTANT { $$.number = ValueToNumber(&BoundValue<KindRec>($1.symbol)); }
  | INTEGER_VALUE { $$.number = ValueToNumber(&BoundValue<KindRec>($1.symbol)); }
  | LITERAL_INTEGER { $$.number = NumberOfInteger($1.integer.value); }
  | SINGLE_FLOAT_VALUE { $$.number = ValueToNumber(&BoundValue<KindRec>($1.symbol)); }
  | LITERAL_FLOAT { $$.number = NumberOfFloat($1.float_t.value); }
  | FLOAT_VALUE { $$.number = ValueToNumber(&BoundValue<KindRec>($1.symbol)); }
  | '(' number_expr ')' { $$ = $2; }
  | '(' error ')' { SyntaxFault(&$$, kParenthesis); }
  | INTEGER '(' number_expr ')' { $$.number = NumberOfInteger(NumberToInteger($3.number)); }
  | INTEGER '(' error ')' { SyntaxFault(&$$, kIntegerFunction); }
  | SINGLE_FLOAT '(' number_expr ')'
      { $$.number = NumberOfSingleFloat(NumberToSingleFloat($3.number)); }
  | SINGLE_FLOAT '(' error ')' { SyntaxFault(&$$, kSingleFloatFunction); }
  | FLOAT '(' number_expr ')' { $$.number = NumberOfFloat(NumberToFloat($3.number)); }
  | FLOAT '(' error ')' { SyntaxFault(&$$, kFloatFunction); }
  ;

string_expr
  : simple_string
  | string_expr '&' simple_string { StringJoin(&$$, $1.build, $3.build); }
  ;

simple_string
  : STRING_VALUE { StringBound(&$$, $1.symbol); }
  | LITERAL_SINGLE { StringLiteral(&$$, $1.string); }
  | LITERAL_DOUBLE { StringLiteral(&$$, $1.string); }
  | '#' character_set_expr LITERAL_DOUBLE
      { StringInCharacterSet(&$$, CharacterSetOf($2.chars_c), $3.string); }
  ;

string_expr..
  : string_expr { $$.ascz_tbl = OneItem(StringItem($1.build)); }
  | string_expr.. ',' string_expr { AddItem(&$$.ascz_tbl, $1.ascz_tbl, StringItem($3.build)); }
  ;

argument_expr
  : ARGUMENT '(' string_expr .argument_type ')' { ArgumentFunction(&$$, $3.build, $4.kind); }
  | ARGUMENT '(' string_expr error ')' { SyntaxFault(&$$, kArgumentFunction); }
  | ARGUMENT '(' error ')' { SyntaxFault(&$$, kArgumentFunction); }
  | ARGUMENT_VALUE { $$.argument = BoundValue<ArgumentName>($1.symbol); }
  ;

.argument_type
  : %empty { $$.kind = ANY; }
  | ',' argument_type { $$ = $2; }
  ;

argument_type
  : value_type
  | CHARACTER_SET { $$.kind = TypeOfKeyword($1.symbol); }
  | WIDGET { $$.kind = TypeOfKeyword($1.symbol); }
  | ANY { $$.kind = TypeOfKeyword($1.symbol); }
  ;

asciz_string_table_expr
  : ASCIZ_STRING_TABLE '(' string_expr.. ')' { TextTable(&$$, ASCIZ_STRING_TABLE, $3.ascz_tbl); }
  | ASCIZ_STRING_TABLE '(' string_expr.. error ')' { SyntaxFault(&$$, kAscizTable); }
  | ASCIZ_STRING_TABLE '(' error ')' { SyntaxFault(&$$, kAscizTable); }
  | ASCIZ_STRING_TABLE_VALUE { $$.ascz_tbl = BoundValue<AscizTableValue>($1.symbol); }
  ;

character_set_expr
  : CHARACTER_SET_CONSTANT { CharacterSetBound(&$$, $1.symbol); }
  | character_set_func
  ;

character_set_func
  : CHARACTER_SET '(' string_expr .character_set_options.. ')'
      { CharacterSetFunction(&$$, $3.build, $4.ascz_tbl); }
  | CHARACTER_SET '(' string_expr .character_set_options.. error ')'
      { SyntaxFault(&$$, kCharacterSetFunction); }
  | CHARACTER_SET '(' error ')' { SyntaxFault(&$$, kCharacterSetFunction); }
  ;

.character_set_options..
  : %empty { $$.ascz_tbl = NoItems(); }
  | character_set_options..
  ;

character_set_options..
  : character_set_option { $$.ascz_tbl = OneItem($1.ctl_v.value.ptr); }
  | character_set_options.. character_set_option
      { AddItem(&$$.ascz_tbl, $1.ascz_tbl, $2.ctl_v.value.ptr); }
  ;

character_set_option
  : right_to_left_option
  | sixteen_bit_option
  ;

right_to_left_option
  : ',' RIGHT_TO_LEFT '=' number_expr
      { $$.ctl_v.value.ptr = CharacterSetOption(RIGHT_TO_LEFT, $4.number); }
  ;

sixteen_bit_option
  : ',' SIXTEEN_BIT '=' number_expr
      { $$.ctl_v.value.ptr = CharacterSetOption(SIXTEEN_BIT, $4.number); }
  ;

class_rec_name_expr
  : CLASS_REC_NAME '(' string_expr ')' { ClassRecNameFunction(&$$, $3.build); }
  | CLASS_REC_NAME '(' error ')' { SyntaxFault(&$$, kClassRecName); }
  | CLASS_REC_NAME_VALUE { $$.classrec = BoundValue<ClassRecNameValue>($1.symbol); }
  ;

color_expr
  : COLOR '(' string_expr .foreground_background ')' { ColorFunction(&$$, $3.build, $4.kind); }
  | COLOR '(' string_expr error ')' { SyntaxFault(&$$, kColor); }
  | COLOR '(' error ')' { SyntaxFault(&$$, kColor); }
  | COLOR_VALUE { $$.color = BoundValue<ColorValue>($1.symbol); }
  ;

.foreground_background
  : %empty { $$.kind = NIL; }
  | FOREGROUND { $$.kind = FOREGROUND; }
  | BACKGROUND { $$.kind = BACKGROUND; }
  | ',' FOREGROUND { $$.kind = FOREGROUND; }
  | ',' BACKGROUND { $$.kind = BACKGROUND; }
  ;

color_table_expr
  : COLOR_TABLE '(' color_assignment.. ')' { TableFunction(&$$, COLOR_TABLE, $3.ascz_tbl); }
  | COLOR_TABLE '(' color_assignment.. error ')' { SyntaxFault(&$$, kColorTable); }
  | COLOR_TABLE '(' error ')' { SyntaxFault(&$$, kColorTable); }
  | COLOR_TABLE_VALUE { $$.colortbl = BoundValue<ColorTableValue>($1.symbol); }
  ;

color_assignment..
  : color_assignment { $$.ascz_tbl = OneItem($1.ctl_v.value.ptr); }
  | color_assignment.. ',' color_assignment
      { AddItem(&$$.ascz_tbl, $1.ascz_tbl, $3.ctl_v.value.ptr); }
  ;

color_assignment
  : color_expr '=' string_expr { ColorAssign(&$$, $1.color, $3.build); }
  | rgb_expr '=' string_expr { ColorAssign(&$$, $1.rgb, $3.build); }
  | FOREGROUND COLOR '=' string_expr { ColorAssignFallback(&$$, FOREGROUND, $4.build); }
  | BACKGROUND COLOR '=' string_expr { ColorAssignFallback(&$$, BACKGROUND, $4.build); }
  ;

compound_string_expr
  : compound_string_item
  | compound_string_expr '&' compound_string_item { CompoundStringJoin(&$$, $1, $3); }
  ;

compound_string_item
  : COMPOUND_STRING_VALUE { CompoundStringBound(&$$, $1.symbol); }
  | compound_string_func
  ;

compound_string_func
  : COMPOUND_STRING '(' string_expr .compound_string_options.. ')'
      { CompoundStringFunction(&$$, $3.build, $4.ascz_tbl); }
  | COMPOUND_STRING '(' string_expr error ')' { SyntaxFault(&$$, kCompoundString); }
  | COMPOUND_STRING '(' error ')' { SyntaxFault(&$$, kCompoundString); }
  ;

.compound_string_options..
  : %empty { $$.ascz_tbl = NoItems(); }
  | compound_string_options..
  ;

compound_string_options..
  : compound_string_option { $$.ascz_tbl = OneItem($1.ctl_v.value.ptr); }
  | compound_string_options.. compound_string_option
      { AddItem(&$$.ascz_tbl, $1.ascz_tbl, $2.ctl_v.value.ptr); }
  ;

compound_string_option
  : compound_string_charset_option
  | compound_string_direction_option
  | compound_string_separate_option
  ;

compound_string_charset_option
  : ',' CHARACTER_SET '=' character_set_expr
      { $$.ctl_v.value.ptr = OptionCharacterSet($4.chars_c); }
  ;

compound_string_direction_option
  : ',' RIGHT_TO_LEFT '=' number_expr { $$.ctl_v.value.ptr = OptionRightToLeft($4.number); }
  ;

compound_string_separate_option
  : ',' SEPARATE '=' number_expr { $$.ctl_v.value.ptr = OptionSeparate($4.number); }
  ;

compound_string_table_expr
  : COMPOUND_STRING_TABLE '(' compound_string_expr.. ')'
      { TableFunction(&$$, COMPOUND_STRING_TABLE, $3.ascz_tbl); }
  | COMPOUND_STRING_TABLE '(' string_expr.. ')' { StringsToCompoundTable(&$$, $3.ascz_tbl); }
  | COMPOUND_STRING_TABLE_VALUE { $$.cstr_tbl = BoundValue<CmpStringTableVal>($1.symbol); }
  ;

compound_string_expr..
  : compound_string_expr { $$.ascz_tbl = OneItem(CompoundStringItem($1)); }
  | compound_string_expr.. ',' compound_string_expr
      { AddItem(&$$.ascz_tbl, $1.ascz_tbl, CompoundStringItem($3)); }
  ;

font_expr
  : FONT '(' string_expr .compound_string_charset_option ')'
      { FontFunction(&$$, $3.build, static_cast<CompoundStringSegment *>($4.ctl_v.value.ptr)); }
  | FONT '(' string_expr error ')' { SyntaxFault(&$$, kFont); }
  | FONT '(' error ')' { SyntaxFault(&$$, kFont); }
  | FONT_VALUE { $$.font = BoundValue<FontValue>($1.symbol); }
  ;

.compound_string_charset_option
  : %empty { $$.ctl_v.value.ptr = nullptr; }
  | compound_string_charset_option
  ;

fontset_expr
  : FONTSET '(' string_expr.. .compound_string_charset_option ')'
      { FontsetFunction(&$$, $3.ascz_tbl,
                        static_cast<CompoundStringSegment *>($4.ctl_v.value.ptr)); }
  | FONTSET '(' string_expr.. error ')' { SyntaxFault(&$$, kFontset); }
  | FONTSET '(' error ')' { SyntaxFault(&$$, kFontset); }
  | FONTSET_VALUE { $$.fontset = BoundValue<FontsetValue>($1.symbol); }
  ;

font_table_expr
  : FONT_TABLE '(' font_table_items.. ')' { TableFunction(&$$, FONT_TABLE, $3.ascz_tbl); }
  | FONT_TABLE '(' font_table_items.. error ')' { SyntaxFault(&$$, kFontTable); }
  | FONT_TABLE '(' error ')' { SyntaxFault(&$$, kFontTable); }
  | FONT_TABLE_VALUE { $$.font_tbl = BoundValue<FontTableValue>($1.symbol); }
  ;

font_table_items..
  : font_table_item { $$.ascz_tbl = OneItem($1.ctl_v.value.ptr); }
  | font_table_items.. ',' font_table_item
      { AddItem(&$$.ascz_tbl, $1.ascz_tbl, $3.ctl_v.value.ptr); }
  ;

font_table_item
  : .character_set_override font_expr { $$.ctl_v.value.ptr = FontTableItem($1.chars_c, $2); }
  | .character_set_override fontset_expr { $$.ctl_v.value.ptr = FontTableItem($1.chars_c, $2); }
  ;

.character_set_override
  : %empty { $$.kind = NIL; }
  | character_set_expr '='
  ;

icon_expr
  : ICON '(' .color_table_override string_expr.. ')' { IconFunction(&$$, $3, $4.ascz_tbl); }
  | ICON '(' .color_table_override string_expr.. error ')' { SyntaxFault(&$$, kIcon); }
  | ICON '(' .color_table_override error ')' { SyntaxFault(&$$, kIcon); }
  | ICON_VALUE { $$.icon = BoundValue<IconValue>($1.symbol); }
  ;

.color_table_override
  : %empty { $$.kind = NIL; }
  | COLOR_TABLE '=' color_table_expr ',' { $$ = $3; }
  ;

integer_table_expr
  : INTEGER_TABLE '(' integer_expr.. ')' { IntegerTableFunction(&$$, $3.ascz_tbl); }
  | INTEGER_TABLE '(' integer_expr.. error ')' { SyntaxFault(&$$, kIntegerTable); }
  | INTEGER_TABLE '(' error ')' { SyntaxFault(&$$, kIntegerTable); }
  | INTEGER_TABLE_VALUE { $$.int_tbl = BoundValue<IntegerTableValue>($1.symbol); }
  ;

integer_expr..
  : number_expr { $$.ascz_tbl = OneItem(IntegerItem($1.number)); }
  | integer_expr.. ',' number_expr { AddItem(&$$.ascz_tbl, $1.ascz_tbl, IntegerItem($3.number)); }
  ;

keysym_expr
  : KEYSYM '(' string_expr ')' { TextFunction(&$$, KEYSYM, $3.build); }
  | KEYSYM '(' error ')' { SyntaxFault(&$$, kKeysym); }
  | KEYSYM_VALUE { $$.keysym = BoundValue<KeysymValue>($1.symbol); }
  ;

pixmap_expr
  : PIXMAP_VALUE { ParseFailed(&$$); }
  ;

reason_expr
  : REASON '(' string_expr ')' { ReasonFunction(&$$, $3.build); }
  | REASON '(' error ')' { SyntaxFault(&$$, kReason); }
  | REASON_VALUE { $$.reason = BoundValue<ReasonName>($1.symbol); }
  ;

rgb_expr
  : RGB '(' integer_expr.. ')' { RgbFunction(&$$, $3.ascz_tbl); }
  | RGB '(' integer_expr.. error ')' { SyntaxFault(&$$, kRgb); }
  | RGB '(' error ')' { SyntaxFault(&$$, kRgb); }
  | RGB_VALUE { $$.rgb = BoundValue<RGBValue>($1.symbol); }
  ;

translation_table_expr
  : TRANSLATION_TABLE '(' string_expr.. ')' { TextTable(&$$, TRANSLATION_TABLE, $3.ascz_tbl); }
  | TRANSLATION_TABLE '(' string_expr.. error ')' { SyntaxFault(&$$, kTranslationTable); }
  | TRANSLATION_TABLE '(' error ')' { SyntaxFault(&$$, kTranslationTable); }
  | TRANSLATION_TABLE_VALUE { $$.xtable = BoundValue<TransTableValue>($1.symbol); }
  ;

wide_character_expr
  : WIDE_CHARACTER '(' string_expr ')' { TextFunction(&$$, WIDE_CHARACTER, $3.build); }
  | WIDE_CHARACTER '(' error ')' { SyntaxFault(&$$, kWideCharacter); }
  | WIDE_CHARACTER_VALUE { $$.wchar = BoundValue<WideCharValue>($1.symbol); }
  ;

xbitmapfile_expr
  : XBITMAPFILE '(' string_expr ')' { XBitmapFileFunction(&$$, $3.build); }
  | XBITMAPFILE '(' error ')' { SyntaxFault(&$$, kXBitmapFile); }
  | XBITMAPFILE_VALUE { $$.xbmf = BoundValue<XBitmapFileValue>($1.symbol); }
  ;

/* -- Identifiers and procedures ----------------------------------------------------------- */

identifier_section
  : IDENTIFIER identifier_name..
  | IDENTIFIER error ';' { SyntaxFault(&$$, kIdentifierSection); }
  | IDENTIFIER error ';' identifier_name.. { SyntaxFault(&$$, kIdentifierSection); }
  ;

identifier_name..
  : identifier_name
  | identifier_name.. identifier_name
  ;

identifier_name
  : SYMBOL ';' { IdentifierDeclare($1.symbol); }
  ;

procedure_section
  : PROCEDURE procedure_decl..
  | PROCEDURE error ';' { SyntaxFault(&$$, kProcedureDeclaration); }
  | PROCEDURE error ';' procedure_decl.. { SyntaxFault(&$$, kProcedureDeclaration); }
  ;

procedure_decl..
  : procedure_decl
  | procedure_decl.. procedure_decl
  ;

procedure_decl
  : SYMBOL .parameter_type ';' { ProcedureDeclare($1.symbol, $2.kind); }
  ;

.parameter_type
  : %empty { $$.kind = NIL; }
  | '(' ')' { $$.kind = NONE; }
  | '(' argument_type ')' { $$ = $2; }
  | '(' error ')' { SyntaxFault(&$$, kProcedureDeclaration); }
  ;

/* -- Lists -------------------------------------------------------------------------------- */

list_section
  : LIST list_decl..
  | LIST error ';' { SyntaxFault(&$$, kListSection); }
  | LIST error ';' list_decl.. { SyntaxFault(&$$, kListSection); }
  ;

list_decl..
  : list_decl
  | list_decl.. list_decl
  ;

list_decl
  : args_list_decl
  | cbs_list_decl
  | procs_list_decl
  | ctls_list_decl
  ;

args_list_decl
  : SYMBOL ':' arguments_list { ListDeclare($1.symbol, ARGUMENTS_LIST_NAME, $3.attrib_v); }
  | ARGUMENTS_LIST_NAME ':' arguments_list
      { ErrorMessage(kError, "Arguments list multiply defined"); }
  ;

arguments_list
  : ARGUMENTS '{' .arguments_list_items.. '}' ';' { ListOf(&$$, ARGUMENTS_LIST, $3.ascz_tbl); }
  | ARGUMENTS '{' .arguments_list_items.. error '}' ';' { SyntaxFault(&$$, kArgumentsList); }
  ;

.arguments_list_items..
  : %empty { $$.ascz_tbl = NoItems(); }
  | arguments_list_items..
  ;

arguments_list_items..
  : arguments_list_item { $$.ascz_tbl = OneItem($1.ctl_v.value.ptr); }
  | arguments_list_items.. arguments_list_item
      { AddItem(&$$.ascz_tbl, $1.ascz_tbl, $2.ctl_v.value.ptr); }
  ;

arguments_list_item
  : args_list_ref ';' { $$.ctl_v.value.ptr = ListItemOf($1.attrib_v); }
  | ARGUMENT_NAME '=' argument_value_expr ';'
      { ArgumentItem(&$$, $1.symbol, $3); $$.ctl_v.value.ptr = ArgumentItemOf($$.arg_v); }
  | ARGUMENT_VALUE '=' argument_value_expr ';'
      { ArgumentItem(&$$, $1.symbol, $3); $$.ctl_v.value.ptr = ArgumentItemOf($$.arg_v); }
  | SYMBOL '=' argument_value_expr ';'
      { NameFault(&$$, $1.symbol, "Name %s not known as an argument name");
        $$.ctl_v.value.ptr = nullptr; }
  ;

args_list_ref
  : ARGUMENTS ARGUMENTS_LIST_NAME { ListReference(&$$, ARGUMENTS_LIST_NAME, $2.symbol); }
  | ARGUMENTS SYMBOL { NameFault(&$$, $2.symbol, "Name %s not known as an arguments list"); }
  ;

argument_value_expr
  : value_expr
  | WIDGET_CLASS WIDGET_NAME { WidgetOfClass(&$$, $1.symbol, $2.symbol); }
  | WIDGET_CLASS SYMBOL { NewWidgetOfClass(&$$, $1.symbol, $2.symbol); }
  | WIDGET_NAME { WidgetByName(&$$, $1.symbol); }
  | SYMBOL { UnknownByName(&$$, $1.symbol); }
  ;

cbs_list_decl
  : SYMBOL ':' callbacks_list { ListDeclare($1.symbol, CALLBACKS_LIST_NAME, $3.attrib_v); }
  | CALLBACKS_LIST_NAME ':' callbacks_list
      { ErrorMessage(kError, "Callbacks list multiply defined"); }
  ;

callbacks_list
  : CALLBACKS '{' .callbacks_list_items.. '}' ';' { ListOf(&$$, CALLBACKS_LIST, $3.ascz_tbl); }
  | CALLBACKS '{' .callbacks_list_items.. error '}' ';' { SyntaxFault(&$$, kCallbacksList); }
  ;

.callbacks_list_items..
  : %empty { $$.ascz_tbl = NoItems(); }
  | callbacks_list_items..
  ;

callbacks_list_items..
  : callbacks_list_item { $$.ascz_tbl = OneItem($1.ctl_v.value.ptr); }
  | callbacks_list_items.. callbacks_list_item
      { AddItem(&$$.ascz_tbl, $1.ascz_tbl, $2.ctl_v.value.ptr); }
  ;

callbacks_list_item
  : reason_procedure { $$.ctl_v.value.ptr = CallbackItemOf($1.cb_v); }
  | reason_procedures_list { $$.ctl_v.value.ptr = CallbackItemOf($1.cb_v); }
  | reason_named_procs_list { $$.ctl_v.value.ptr = CallbackItemOf($1.cb_v); }
  | named_callbacks_list { $$.ctl_v.value.ptr = ListItemOf($1.attrib_v); }
  ;

reason_procedure
  : REASON_NAME '=' PROCEDURE procedure_invoke { CallbackProcedure(&$$, $1.symbol, $4.proc_v); }
  | REASON_VALUE '=' PROCEDURE procedure_invoke { CallbackProcedure(&$$, $1.symbol, $4.proc_v); }
  | SYMBOL '=' PROCEDURE procedure_invoke
      { NameFault(&$$, $1.symbol, "Name %s not known as a callback reason"); }
  ;

reason_procedures_list
  : REASON_NAME '=' procedures_list { CallbackProcedures(&$$, $1.symbol, $3.attrib_v); }
  | REASON_VALUE '=' procedures_list { CallbackProcedures(&$$, $1.symbol, $3.attrib_v); }
  | SYMBOL '=' procedures_list
      { NameFault(&$$, $1.symbol, "Name %s not known as a callback reason"); }
  ;

reason_named_procs_list
  : REASON_NAME '=' procs_list_ref ';' { CallbackProcedures(&$$, $1.symbol, $3.attrib_v); }
  | SYMBOL '=' procs_list_ref ';'
      { NameFault(&$$, $1.symbol, "Name %s not known as a callback reason"); }
  ;

named_callbacks_list
  : CALLBACKS CALLBACKS_LIST_NAME ';' { ListReference(&$$, CALLBACKS_LIST_NAME, $2.symbol); }
  | CALLBACKS SYMBOL ';' { NameFault(&$$, $2.symbol, "Name %s not known as a callbacks list"); }
  ;

procs_list_decl
  : SYMBOL ':' procedures_list { ListDeclare($1.symbol, PROCEDURES_LIST_NAME, $3.attrib_v); }
  | PROCEDURES_LIST_NAME ':' procedures_list
      { ErrorMessage(kError, "Procedures list multiply defined"); }
  ;

procedures_list
  : PROCEDURES '{' .procedure_invokes.. '}' ';' { ListOf(&$$, PROCEDURES_LIST, $3.ascz_tbl); }
  | PROCEDURES '{' .procedure_invokes.. error '}' ';' { SyntaxFault(&$$, kProceduresList); }
  ;

procs_list_ref
  : PROCEDURES PROCEDURES_LIST_NAME { ListReference(&$$, PROCEDURES_LIST_NAME, $2.symbol); }
  | PROCEDURES SYMBOL { NameFault(&$$, $2.symbol, "Name %s not known as a procedure list"); }
  ;

.procedure_invokes..
  : %empty { $$.ascz_tbl = NoItems(); }
  | procedure_invokes..
  ;

procedure_invokes..
  : procedure_invoke { $$.ascz_tbl = OneItem(InvocationItem($1.proc_v)); }
  | procedure_invokes.. procedure_invoke
      { AddItem(&$$.ascz_tbl, $1.ascz_tbl, InvocationItem($2.proc_v)); }
  ;

procedure_invoke
  : PROCEDURE_NAME .parameter_value ';' { ProcedureInvocation(&$$, $1.symbol, $2); }
  | SYMBOL .parameter_value ';' { NameFault(&$$, $1.symbol, "Name %s not known as a procedure"); }
  ;

.parameter_value
  : %empty { NoParameter(&$$, NIL); }
  | '(' ')' { NoParameter(&$$, NONE); }
  | '(' parameter_value_expr ')' { $$ = $2; }
  | '(' error ')' { SyntaxFault(&$$, kInvocationValue); }
  ;

parameter_value_expr
  : value_expr
  | WIDGET_NAME { WidgetByName(&$$, $1.symbol); }
  | SYMBOL { UnknownByName(&$$, $1.symbol); }
  ;

ctls_list_decl
  : SYMBOL ':' controls_list { ListDeclare($1.symbol, CONTROLS_LIST_NAME, $3.attrib_v); }
  | CONTROLS_LIST_NAME ':' controls_list { ErrorMessage(kError, "Controls list multiply defined"); }
  ;

controls_list
  : CONTROLS '{' .controls_list_items.. '}' ';' { ListOf(&$$, CONTROLS_LIST, $3.ascz_tbl); }
  | CONTROLS '{' .controls_list_items.. error '}' ';' { SyntaxFault(&$$, kControlsList); }
  ;

.controls_list_items..
  : %empty { $$.ascz_tbl = NoItems(); }
  | controls_list_items..
  ;

controls_list_items..
  : controls_list_item { $$.ascz_tbl = OneItem($1.ctl_v.value.ptr); }
  | controls_list_items.. controls_list_item
      { AddItem(&$$.ascz_tbl, $1.ascz_tbl, $2.ctl_v.value.ptr); }
  ;

controls_list_item
  : controls_object_ref { $$.ctl_v.value.ptr = ControlItem($1.ctl_v); }
  | controls_object_def { $$.ctl_v.value.ptr = ControlItem($1.ctl_v); }
  | controls_auto_object { $$.ctl_v.value.ptr = ControlItem($1.ctl_v); }
  | controls_list_ref { $$.ctl_v.value.ptr = ListItemOf($1.attrib_v); }
  ;

controls_object_ref
  : .managed_or_unmanaged WIDGET_CLASS WIDGET_NAME ';'
      { ControlReference(&$$, $1.kind, &$2.symbol, $3.symbol); }
  | .managed_or_unmanaged WIDGET_CLASS SYMBOL ';'
      { ControlForward(&$$, $1.kind, &$2.symbol, $3.symbol); }
  | .managed_or_unmanaged .user_defined WIDGET_NAME ';'
      { ControlReference(&$$, $1.kind, nullptr, $3.symbol); }
  | .managed_or_unmanaged .user_defined SYMBOL ';'
      { ControlForward(&$$, $1.kind, nullptr, $3.symbol); }
  | .managed_or_unmanaged WIDGET_CLASS error ';' { SyntaxFault(&$$, kControlReference); }
  ;

controls_object_def
  : .managed_or_unmanaged widget_def ';' { ControlInline(&$$, $1.kind, $2.widget_d); }
  ;

.user_defined
  : %empty { $$.kind = NIL; }
  | USER_DEFINED
  ;

.managed_or_unmanaged
  : %empty { $$.kind = NIL; }
  | MANAGED { $$.kind = MANAGED; }
  | UNMANAGED { $$.kind = UNMANAGED; }
  ;

controls_auto_object
  : AUTO_CREATED '{' .attributes.. '}' ';' { ControlAutomatic(&$$, $1.symbol, $3.ascz_tbl); }
  | AUTO_CREATED '{' attributes.. error '}' ';' { SyntaxFault(&$$, kAutomaticChild); }
  | AUTO_CREATED '{' error '}' ';' { SyntaxFault(&$$, kAutomaticChild); }
  ;

controls_list_ref
  : CONTROLS CONTROLS_LIST_NAME ';' { ListReference(&$$, CONTROLS_LIST_NAME, $2.symbol); }
  | CONTROLS SYMBOL ';' { NameFault(&$$, $2.symbol, "Name %s not known as a controls list"); }
  ;

/* -- Objects ------------------------------------------------------------------------------ */

object_section
  : OBJECT .object_defs..
  ;

.object_defs..
  : %empty { $$.kind = NIL; }
  | object_defs..
  ;

object_defs..
  : object_def
  | object_defs.. object_def
  ;

object_def
  : SYMBOL ':' IMPORTED WIDGET_CLASS ';' { ObjectImport($1.symbol); }
  | WIDGET_NAME ':' IMPORTED WIDGET_CLASS ';' { ObjectImport($1.symbol); }
  | SYMBOL ':' .exported_or_private widget_def ';' { ObjectDefine($1.symbol, $4.widget_d); }
  | WIDGET_NAME ':' .exported_or_private widget_def ';'
      { ObjectComplete($1.symbol, $4.widget_d); }
  ;

widget_def
  : WIDGET_CLASS .widget_or_gadget '{' .attributes.. '}'
      { WidgetDefinition(&$$, $1.symbol, $2.kind, $4.ascz_tbl); }
  | WIDGET_CLASS .widget_or_gadget '{' attributes.. error '}'
      { SyntaxFault(&$$, kWidgetDefinition); }
  | WIDGET_CLASS .widget_or_gadget '{' error '}' { SyntaxFault(&$$, kWidgetDefinition); }
  | USER_DEFINED PROCEDURE PROCEDURE_NAME '{' .attributes.. '}'
      { UserDefinition(&$$, $3.symbol, $5.ascz_tbl); }
  | USER_DEFINED PROCEDURE PROCEDURE_NAME '{' attributes.. error '}'
      { ProcedureCreates($3.symbol); SyntaxFault(&$$, kUserDefinedObject); }
  | USER_DEFINED PROCEDURE PROCEDURE_NAME '{' error '}'
      { ProcedureCreates($3.symbol); SyntaxFault(&$$, kUserDefinedObject); }
  ;

.widget_or_gadget
  : %empty { $$.kind = NIL; }
  | widget_or_gadget
  ;

.attributes..
  : %empty { $$.ascz_tbl = NoItems(); }
  | attributes..
  ;

attributes..
  : attribute { $$.ascz_tbl = OneItem(ListItemOf($1.attrib_v)); }
  | attributes.. attribute { AddItem(&$$.ascz_tbl, $1.ascz_tbl, ListItemOf($2.attrib_v)); }
  ;

attribute
  : arguments_list
  | callbacks_list
  | controls_list
  ;

%%

#undef yyparse

// The generator numbers the tokens in the order of their declaration.
static_assert(TOKEN_NIL == static_cast<int>(NIL));
static_assert(TOKEN_SIMPLE_STRING == static_cast<int>(SIMPLE_STRING));
static_assert(TOKEN_ARGUMENT_NAME == static_cast<int>(ARGUMENT_NAME));
static_assert(TOKEN_WIDGET_CLASS == static_cast<int>(WIDGET_CLASS));
static_assert(TOKEN_WIDGET_NAME == static_cast<int>(WIDGET_NAME));
static_assert(TOKEN_MAX_TOKENS == static_cast<int>(MAX_TOKENS));

// How the generated parser ends when it gives up, and when its stack is full.
constexpr int kParseGivenUp = 1;

int yyparse() {
  const int result = GeneratedParse();
  if (result == kParseGivenUp) {
    ModuleGivenUp();
  }
  return result;
}

// Syntax errors are reported by the error alternatives; what is left is the parser's own failure.
void yyerror(const char *message) {
  if (std::strcmp(message, "syntax error") == 0 || std::strcmp(message, "parse error") == 0) {
    return;
  }
  const bool overflow = std::strcmp(message, "memory exhausted") == 0;
  std::fflush(stdout);
  std::fprintf(stderr, "%s(%d): %s\n", FilesCurrentFile(), yylineno,
               overflow ? "parser stack overflow" : message);
}

void ParserReset() {
  yydebug = 0;
  ParseUsageReset();
}
