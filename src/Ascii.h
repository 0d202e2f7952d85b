#ifndef KIVUXL_ASCII_H
#define KIVUXL_ASCII_H

// Letters, digits and case in ASCII, whatever the user's locale.
//
// UIL names, keywords and file suffixes are compared and folded by these functions only: the C
// library's own follow the locale, under which a Turkish "title" is not "TITLE".  Bytes of 128 and
// above are never letters and never change.

#include <cstddef>
#include <string>
#include <string_view>

inline constexpr bool AsciiIsDigit(char c) { return c >= '0' && c <= '9'; }

inline constexpr bool AsciiIsAlpha(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

inline constexpr bool AsciiIsAlnum(char c) { return AsciiIsAlpha(c) || AsciiIsDigit(c); }

inline constexpr char AsciiToLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

inline constexpr char AsciiToUpper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Orders two texts as strcmp does after both are put in lower case: negative, 0 or positive.
// Neither may be null.
inline constexpr int AsciiCompareNoCase(const char *left, const char *right) {
  while (*left != '\0' && AsciiToLower(*left) == AsciiToLower(*right)) {
    ++left;
    ++right;
  }
  return static_cast<unsigned char>(AsciiToLower(*left)) -
         static_cast<unsigned char>(AsciiToLower(*right));
}

inline constexpr bool AsciiEqualNoCase(std::string_view left, std::string_view right) {
  if (left.size() != right.size()) {
    return false;
  }
  for (std::size_t i = 0; i < left.size(); ++i) {
    if (AsciiToLower(left[i]) != AsciiToLower(right[i])) {
      return false;
    }
  }
  return true;
}

inline constexpr bool AsciiEndsWithNoCase(std::string_view text, std::string_view suffix) {
  return text.size() >= suffix.size() &&
         AsciiEqualNoCase(text.substr(text.size() - suffix.size()), suffix);
}

inline void AsciiLowerInPlace(std::string &text) {
  for (char &c : text) {
    c = AsciiToLower(c);
  }
}

#endif
