// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/allele_listing.h"

#include "base/number_text.h"

namespace kaldo {

std::string AlleleListing(const LociList& loci, const AlleleCatalogues& catalogues,
                          std::size_t number_of_individuals) {
  const double gene_copies = 2.0 * static_cast<double>(number_of_individuals);
  std::string text = "LIST OF ALLELES FOR EACH LOCUS\n\n";
  for (const LocusIndex locus : loci.LociInUse()) {
    const AlleleCatalogue& catalogue = catalogues[locus.Value()];
    std::string frequencies;
    double sum = 0;
    text += loci.Name(locus) + '\t';
    for (std::size_t place = 0; place < catalogue.Sizes().size(); ++place) {
      const double frequency = static_cast<double>(catalogue.Counts()[place]) / gene_copies;
      sum += frequency;
      text += std::to_string(catalogue.Sizes()[place].Value()) + '\t';
      frequencies += FormatDouble(frequency) + '\t';
    }
    text += "\nfrequency\t" + frequencies + "\nsum total\t" + FormatDouble(sum) + "\n\n";
  }
  return text;
}

}  // namespace kaldo
