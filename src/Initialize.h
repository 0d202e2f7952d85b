#ifndef KIVUXL_INITIALIZE_H
#define KIVUXL_INITIALIZE_H

// Loads the predefined vocabulary (Vocabulary.h) into `symbol_table`.  Each function returns true
// when every row was entered, and false as soon as one is refused; the rest is then left out.

#include <cstddef>

#include "uiltoada.h"

bool ReservedWordInit();
bool FunctionNameInit(); // also fills `token_types`
bool CharacterSetInit();
bool NamedValueInit();
bool WidgetClassInit();
bool ArgumentPartInit(const ArgumentName *table, std::size_t count);
bool ArgumentNameInit();
bool ReasonNameInit();
bool NonReservedWordInit();

// Takes the marks of the last module off the widget classes.
void InitializeReset();

#endif
