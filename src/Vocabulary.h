#ifndef KIVUXL_VOCABULARY_H
#define KIVUXL_VOCABULARY_H

// The predefined vocabulary of the language: keywords, types, character sets, named constants,
// widget classes with the children that they create by themselves, arguments and reasons.
//
// The rows are static data that Initialize.h loads into `symbol_table`.  Only the keywords, which
// are entered as they are, and the widget classes, which a module marks, are not constant.

#include <array>
#include <cstddef>

#include "uiltoada.h"

extern std::array<BareWord, 15> reserved_words;
extern std::array<BareWord, 15> non_res_words;

// Where two rows have one value type, the later one describes it.
extern const std::array<FunctionName, 30> function_names;

extern const std::array<CharacterSetValue, 19> character_sets;
extern const std::array<IntegerConstantTemplate, 128> constants;
extern const std::array<BooleanConstantTemplate, 4> booleans;

extern std::array<WidgetClass, 58> widget_class_rows;

// Each class named here has a row in `widget_class_rows`.
extern const std::array<AutoChildTemplate, 25> auto_created_children;

// The arguments by their initial letter.
extern const std::array<ArgumentName, 67> argument_names_a_d;
extern const std::array<ArgumentName, 52> argument_names_e_k;
extern const std::array<ArgumentName, 61> argument_names_l_n;
extern const std::array<ArgumentName, 80> argument_names_o_s;
extern const std::array<ArgumentName, 46> argument_names_t_z;

extern const std::array<ReasonName, 45> reason_names;

#endif
