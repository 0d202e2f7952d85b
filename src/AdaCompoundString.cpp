// See AdaCompoundString.h.  The items of a compound string are read in order: modifiers collect the
// attributes of the next segment, and each segment uses them up.  The first segment becomes the
// string, every further one is appended to it by way of a copy.

#include "AdaCompoundString.h"

#include "AdaArgument.h"
#include "AdaString.h"
#include "Emit.h"
#include "Error.h"
#include "Model.h"

namespace {

// The attributes of the segment to come.
struct SegmentAttributes {
  bool default_charset = true;
  const char *charset = nullptr;
  bool default_direction = true;
  bool right_to_left = false;
  bool separate = false;
};

} // namespace

std::string compound_string_varname(int n) { return ExpressionFormat("compound_string_%d"_ada, n); }

std::string compound_string_varptr(int n) { return compound_string_varname(n); }

// -- Declarations ------------------------------------------------------------------------------

// Declares the text of each segment; returns the number of segments.
static int DeclareSegmentTexts(List items, std::FILE *file, int n) {
  int segments = 0;
  for (const ListItem *node = ListFirstNode(items); node != nullptr; node = node->next) {
    const auto *item = static_cast<const KindRec *>(node->data);
    if (item->kind != COMPOUND_STRING) {
      continue;
    }
    ++segments;
    Emit(file,
         "    string_%d_%d : constant string :=\n"
         "%s;\n"_ada,
         n, segments,
         string_value_expr(static_cast<const CompoundStringSegment *>(item)->value).c_str());
  }
  return segments;
}

void compound_string_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                             int n) {
  argument_declare(argument, file, n);
  const int segments =
      DeclareSegmentTexts(static_cast<const CompoundStringVal *>(value)->value, file, n);
  Emit(file, "    compound_string_%d : xm1_2_2.xmstring;\n"_ada, n);
  if (segments > 1) {
    Emit(file, "    compound_string_segment_%d : xm1_2_2.xmstring;\n"_ada, n);
    Emit(file, "    compound_string_temp_%d : xm1_2_2.xmstring;\n"_ada, n);
  }
}

// -- Segments ----------------------------------------------------------------------------------

static bool CharacterSetIsRightToLeft(const char *name) {
  const CharacterSetValue *charset = name == nullptr ? nullptr : SymbolFindCharacterSet(name);
  return charset != nullptr && charset->write_dir;
}

// A direction that nobody gave is that of the character set.
static bool SegmentIsRightToLeft(const SegmentAttributes &attributes) {
  if (!attributes.default_direction) {
    return attributes.right_to_left;
  }
  return CharacterSetIsRightToLeft(attributes.default_charset ? default_character_set
                                                              : attributes.charset);
}

// The character set by name, or null for the toolkit's default tag.
static const char *SegmentCharacterSet(const SegmentAttributes &attributes) {
  return !attributes.default_charset && attributes.charset != nullptr ? attributes.charset
                                                                      : default_character_set;
}

static void CreateSegment(const SegmentAttributes &attributes, std::FILE *file, int n,
                          int segment) {
  const char *variable = segment == 1 ? "_" : "_segment_";
  const char *charset = SegmentCharacterSet(attributes);
  const char *direction =
      SegmentIsRightToLeft(attributes) ? "STRING_DIRECTION_R_TO_L" : "STRING_DIRECTION_L_TO_R";
  const char *separator = attributes.separate ? "TRUE" : "FALSE";
  if (charset != nullptr) {
    Emit(file,
         "    compound_string%s%d :=\n"
         "      xm1_2_2.stringsegmentcreate( string_%d_%d,\n"
         "                                   \"%s\",\n"
         "                                   xm1_2_2.%s,\n"
         "                                   %s );\n"_ada,
         variable, n, n, segment, charset, direction, separator);
  } else {
    Emit(file,
         "    compound_string%s%d :=\n"
         "      xm1_2_2.stringsegmentcreate( string_%d_%d,\n"
         "                                   xmdef.FONTLIST_DEFAULT_TAG,\n"
         "                                   xm1_2_2.%s,\n"
         "                                   %s );\n"_ada,
         variable, n, n, segment, direction, separator);
  }
}

static void AppendSegment(std::FILE *file, int n) {
  Emit(file,
       "    compound_string_temp_%d :=\n"
       "      xm1_2_2.stringcopy( compound_string_%d );\n"
       "    xm1_2_2.stringfree( compound_string_%d );\n"
       "    compound_string_%d :=\n"
       "      xm1_2_2.stringconcat( compound_string_temp_%d,\n"
       "                            compound_string_segment_%d );\n"
       "    xm1_2_2.stringfree( compound_string_temp_%d );\n"
       "    xm1_2_2.stringfree( compound_string_segment_%d );\n"_ada,
       n, n, n, n, n, n, n, n);
}

static void WriteSegment(const CompoundStringSegment *item, SegmentAttributes attributes,
                         std::FILE *file, int n, int segment) {
  if (!item->default_charset) {
    attributes.default_charset = false;
    attributes.charset = item->charset;
  }
  CreateSegment(attributes, file, n, segment);
  if (segment > 1) {
    AppendSegment(file, n);
  }
}

static const CompoundStringSegment *AsSegment(const KindRec *item) {
  return static_cast<const CompoundStringSegment *>(item);
}

static void TakeModifier(const KindRec *item, SegmentAttributes *attributes) {
  switch (item->kind) {
  case SEPARATE:
    attributes->separate = AsSegment(item)->separate;
    break;
  case RIGHT_TO_LEFT:
    attributes->default_direction = AsSegment(item)->default_direction;
    attributes->right_to_left = AsSegment(item)->direction;
    break;
  case CHARACTER_SET:
    attributes->default_charset = AsSegment(item)->default_charset;
    attributes->charset = AsSegment(item)->charset;
    break;
  default:
    ErrorMessage(kImmediate, "Internal error: non-string object in compound string");
    break;
  }
}

void compound_string_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                            int n) {
  SegmentAttributes attributes;
  int segments = 0;
  List items = static_cast<const CompoundStringVal *>(value)->value;
  for (const ListItem *node = ListFirstNode(items); node != nullptr; node = node->next) {
    const auto *item = static_cast<const KindRec *>(node->data);
    if (item->kind == COMPOUND_STRING) {
      WriteSegment(AsSegment(item), attributes, file, n, ++segments);
      attributes = {};
    } else {
      TakeModifier(item, &attributes);
    }
  }
  argument_setarg(compound_string_varname(n).c_str(), argument, file, n);
}

// The widget has a copy of its own by then.
void compound_string_cleanup(std::FILE *file, int n) {
  Emit(file, "    xm1_2_2.stringfree( %s );\n"_ada, compound_string_varname(n).c_str());
}
