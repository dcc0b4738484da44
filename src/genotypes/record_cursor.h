// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

#include "genotypes/separator.h"
#include "genotypes/token_file.h"

namespace kaldo {

/// Whether "*" lines divide a genotype file into groups (sites, ponds, cohorts). Only the files of
/// collected parents of an allocation have them; elsewhere "*x" is an ordinary name.
enum class Separators { kAllowed, kNone };

/// The layout of one genotype file: how many loci follow each name, and whether "*" separates.
struct RecordLayout {
  std::size_t number_of_loci = 0;
  Separators separators = Separators::kNone;

  bool IsSeparator(std::string_view name) const {
    return separators == Separators::kAllowed && IsSeparatorName(name);
  }
};

/// The counts behind the checks of a genotype file: how many records its words make, if each has
/// its name and all its fields.
struct TokenCounts {
  std::size_t tokens = 0;
  std::size_t separators = 0;
  std::size_t records = 0;  ///< separators + whole records, the remainder dropped
};

/// Counts every word that looks like a separator as one, wherever it stands.
TokenCounts CountTokens(std::span<const Token> tokens, RecordLayout layout);

/// Walks over the records of a genotype file: a name and one field per locus, or a separator.
/// Behind the end of the file every name and field is empty, so that a file with missing fields can
/// be walked too.
class RecordCursor {
 public:
  RecordCursor(std::span<const Token> tokens, RecordLayout layout)
      : tokens_(tokens), layout_(layout) {}

  bool AtEnd() const { return position_ >= tokens_.size(); }

  /// Steps to the next record.
  void Next() {
    name_ = Take();
    ++record_;
    is_separator_ = layout_.IsSeparator(name_.text);
    fields_ = is_separator_ ? std::span<const Token>{} : TakeFields();
  }

  const Token& Name() const { return name_; }
  bool IsSeparator() const { return is_separator_; }

  /// The number of the record in its file, counted from 1, separators included.
  std::uint32_t Record() const { return record_; }

  /// The fields of the record; fewer than the number of loci at a torn end of the file.
  std::span<const Token> Fields() const { return fields_; }

 private:
  Token Take() { return AtEnd() ? Token{} : tokens_[position_++]; }

  std::span<const Token> TakeFields() {
    const std::size_t left = tokens_.size() - position_;
    const std::size_t count = left < layout_.number_of_loci ? left : layout_.number_of_loci;
    const auto fields = tokens_.subspan(position_, count);
    position_ += count;
    return fields;
  }

  std::span<const Token> tokens_;
  RecordLayout layout_;
  std::size_t position_ = 0;
  Token name_;
  std::uint32_t record_ = 0;
  bool is_separator_ = false;
  std::span<const Token> fields_;
};

}  // namespace kaldo
