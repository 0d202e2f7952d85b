#ifndef KIVUXL_PARSER_H
#define KIVUXL_PARSER_H

// The parser of src/uil.y.

extern int yydebug; // trace the parser on standard error

// Parses the module that FilesOpen has made the scanner's input.  Returns 0 on success.
int yyparse();

// The generator's hook for syntax errors.
void yyerror(const char *message);

void ParserReset();

#endif
