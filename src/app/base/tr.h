// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string_view>

namespace kaldo {

// Texts are written down as Phrase("..."), Tr("...") or TrCount("...", ...): by these words
// scripts/update-translations finds them.

/// A text of the windows, in English, that is written down before it is shown: whoever shows it
/// says Tr().
class Phrase {
 public:
  constexpr Phrase() = default;
  explicit constexpr Phrase(const char* english) : english_(english) {}

  constexpr const char* English() const { return english_; }
  constexpr bool IsEmpty() const { return *english_ == '\0'; }

 private:
  const char* english_ = "";
};

/// The text in the language of the windows; places are %1, %2 and so on.
QString Tr(const char* english);
QString Tr(Phrase phrase);

/// A text about a number, which stands for "%n": TrCount("%n loci", "%n locus", 3). Translations
/// have as many forms as their language.
QString TrCount(const char* many, const char* one, std::size_t count);

/// What the core says, which knows English alone: as the windows say it where a text of
/// core_phrases.cpp has its words, else as it is.
QString TrCore(std::string_view english);

}  // namespace kaldo
