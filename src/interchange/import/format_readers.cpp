// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/import/format_readers.h"

#include <algorithm>
#include <array>

namespace kaldo {

namespace {

// A table with one column or two per locus is what everything else with columns would pass for.
constexpr std::array<FormatReader, 8> kReaders{
    {{"vcf", "VCF", RecogniseVcf, ReadVcf},
     {"genepop", "GENEPOP", RecogniseGenepop, ReadGenepop},
     {"genalex", "GenAlEx", RecogniseGenAlEx, ReadGenAlEx},
     {"genemapper", "GeneMapper", RecogniseGeneMapper, ReadGeneMapper},
     {"colony", "COLONY", RecogniseColony, ReadColony},
     {"fstat", "FSTAT", RecogniseFstat, ReadFstat},
     {"structure", "STRUCTURE", RecogniseStructure, ReadStructure},
     {"table", "a table of loci", RecogniseTable, ReadTable}}};

}  // namespace

std::span<const FormatReader> FormatReaders() { return kReaders; }

const FormatReader* FindFormatReader(std::string_view key) {
  const auto* const found =
      std::find_if(kReaders.begin(), kReaders.end(),
                   [key](const FormatReader& each) { return each.key == key; });
  return found == kReaders.end() ? nullptr : found;
}

std::optional<RecognisedFormat> RecogniseFormat(const ForeignFile& file) {
  for (const FormatReader& reader : kReaders) {
    if (auto why = reader.recognise(file)) {
      return RecognisedFormat{&reader, std::move(*why)};
    }
  }
  return std::nullopt;
}

}  // namespace kaldo
