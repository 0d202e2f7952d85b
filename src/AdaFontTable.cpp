// See AdaFontTable.h.  The fonts and font sets are opened in a block of their own, whose variables
// are numbered by entry; each becomes a font list entry with its tag, and the entries are joined.

#include "AdaFontTable.h"

#include "AdaArgument.h"
#include "AdaFont.h"
#include "AdaFontset.h"
#include "Emit.h"
#include "Error.h"
#include "Model.h"

std::string font_table_varname(int n) { return ExpressionFormat("font_table_%d"_ada, n); }

std::string font_table_varptr(int n) { return font_table_varname(n); }

namespace {

// How an entry of a kind is opened.
struct EntryFamily {
  std::int32_t kind;
  void (*declare)(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
  void (*setarg)(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n);
  std::string (*varname)(int n);
  const char *type; // of the font list entry
  const char *(*charset)(const KindRec *value);
};

const char *FontCharset(const KindRec *value) {
  return static_cast<const FontValue *>(value)->charset;
}

const char *FontsetCharset(const KindRec *value) {
  return static_cast<const FontsetValue *>(value)->charset;
}

constexpr EntryFamily kEntryFamilies[] = {
    {FONT, font_declare, font_setarg, font_varname, "xm.font_is_font", FontCharset},
    {FONTSET, fontset_declare, fontset_setarg, fontset_varname, "xm.font_is_fontset",
     FontsetCharset},
};

const EntryFamily *FamilyOfEntry(const KindRec *entry) {
  for (const EntryFamily &family : kEntryFamilies) {
    if (family.kind == entry->kind) {
      return &family;
    }
  }
  return nullptr;
}

// Calls visit(entry, family, i) for each entry with its number; what is neither a font nor a font
// set has no family.
template <typename Visit> void ForEachEntry(List entries, Visit visit) {
  int i = 0;
  for (const ListItem *node = ListFirstNode(entries); node != nullptr; node = node->next) {
    const auto *entry = static_cast<const KindRec *>(node->data);
    visit(entry, FamilyOfEntry(entry), ++i);
  }
}

// Only the fonts and font sets.
template <typename Visit> void ForEachFont(List entries, Visit visit) {
  ForEachEntry(entries, [&](const KindRec *entry, const EntryFamily *family, int i) {
    if (family != nullptr) {
      visit(entry, *family, i);
    }
  });
}

} // namespace

// The tag is the entry's character set, else the module's, else the toolkit's default.
static void DeclareTag(const char *charset, std::FILE *file, int n, int i) {
  const char *tag = charset != nullptr && *charset != '\0' ? charset : default_character_set;
  if (tag != nullptr) {
    Emit(file, "    font_table_tag_%d_%d : constant string := \"%s\";\n"_ada, n, i, tag);
  } else {
    Emit(file,
         "    font_table_tag_%d_%d : constant string :=\n"
         "        Xmdef.FONTLIST_DEFAULT_TAG;\n"_ada,
         n, i);
  }
}

void font_table_declare(const KindRec *value, const NamedSetting *argument, std::FILE *file,
                        int n) {
  argument_declare(argument, file, n);
  Emit(file, "    %s : %s;\n"_ada, font_table_varname(n).c_str(), argument_object_type(FONT_TABLE));
  ForEachEntry(static_cast<const FontTableValue *>(value)->value,
               [&](const KindRec *entry, const EntryFamily *family, int i) {
                 Emit(file, "    font_table_entry_%d_%d : xm1_2_2.fontlistentry;\n"_ada, n, i);
                 if (family == nullptr) {
                   ErrorMessage(kImmediate, "Internal error: unexpected type in font table");
                 } else {
                   DeclareTag(family->charset(entry), file, n, i);
                 }
               });
}

static void CreateEntries(List entries, std::FILE *file, int n) {
  Emit(file, "    declare\n"_ada);
  ForEachFont(entries, [&](const KindRec *entry, const EntryFamily &family, int i) {
    family.declare(entry, nullptr, file, i);
  });
  Emit(file, "    begin\n"_ada);
  ForEachFont(entries, [&](const KindRec *entry, const EntryFamily &family, int i) {
    family.setarg(entry, nullptr, file, i);
    Emit(file,
         "    font_table_entry_%d_%d :=\n"
         "      xm1_2_2.fontlistentrycreate(\n"
         "        font_table_tag_%d_%d,\n"
         "        %s,\n"
         "        %s );\n"_ada,
         n, i, n, i, family.type, family.varname(i).c_str());
  });
  Emit(file, "    end;\n"_ada);
}

static void JoinEntries(List entries, const char *table, std::FILE *file, int n) {
  ForEachFont(entries, [&](const KindRec *, const EntryFamily &, int i) {
    Emit(file,
         "    %s :=\n"
         "      xm1_2_2.fontlistappendentry(\n"
         "        %s,\n"
         "        font_table_entry_%d_%d );\n"
         "    xtr5.free( font_table_entry_%d_%d );\n"_ada,
         table, table, n, i, n, i);
  });
}

void font_table_setarg(const KindRec *value, const NamedSetting *argument, std::FILE *file, int n) {
  List entries = static_cast<const FontTableValue *>(value)->value;
  const std::string table = font_table_varname(n);
  if (ListLength(entries) != 0) {
    CreateEntries(entries, file, n);
  }
  Emit(file, "    %s := xtr5.xtnull;\n"_ada, table.c_str());
  JoinEntries(entries, table.c_str(), file, n);
  argument_setarg(table.c_str(), argument, file, n);
}
