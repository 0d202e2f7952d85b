#ifndef KIVUXL_PARSEUSAGE_H
#define KIVUXL_PARSEUSAGE_H

// The usage texts that the parser reports when a construct cannot be read.

#include "uiltoada.h"

// ORDER USAGE: ParseUsage.cpp holds the texts in the same order.
enum Construct {
  kNamesClause,
  kCharacterSetClause,
  kVersionClause,
  kObjectsClause,
  kParenthesis,
  kIntegerFunction,
  kSingleFloatFunction,
  kFloatFunction,
  kInclude,
  kValueDeclaration,
  kArgumentFunction,
  kAscizTable,
  kCharacterSetFunction,
  kClassRecName,
  kColor,
  kColorTable,
  kCompoundString,
  kFont,
  kFontset,
  kFontTable,
  kIcon,
  kIntegerTable,
  kKeysym,
  kReason,
  kRgb,
  kTranslationTable,
  kWideCharacter,
  kXBitmapFile,
  kIdentifierSection,
  kProcedureDeclaration,
  kListSection,
  kArgumentsList,
  kCallbacksList,
  kProceduresList,
  kInvocationValue,
  kControlsList,
  kControlReference,
  kAutomaticChild,
  kWidgetDefinition,
  kUserDefinedObject,
  kConstructCount,
};

// The usage text of a construct.
const char *UsageOf(Construct construct);

// Reports the usage of the construct on the line being read, as a syntax error.
void ReportUsage(Construct construct);

// The same, and makes `result` the value of a construct that failed: kind NIL, name "".
void SyntaxFault(YYSTYPE *result, Construct construct);

// The same value without a report.
void ParseFailed(YYSTYPE *result);

// The module's usage: once for a module that was recovered to its end; once for the first thing
// that is no module; and once when the parse was given up and neither had reported.
void ModuleFault(YYSTYPE *result);
void NotAModule(YYSTYPE *result);
void ModuleGivenUp();

void ParseUsageReset();

#endif
