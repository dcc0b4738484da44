// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/catalogued_loci.h"

namespace kaldo {

tl::expected<AlleleCatalogues, TooManyAlleles> CatalogueAlleles(GenotypeTable& table,
                                                                const LociList& loci) {
  AlleleCatalogues catalogues(loci.Count());
  for (const LocusIndex locus : loci.LociInUse()) {
    auto catalogue = AlleleCatalogue::Build(table.Locus(locus));
    if (!catalogue) {
      return tl::unexpected(TooManyAlleles{locus, catalogue.error()});
    }
    catalogue->SortSizes();
    catalogue->ReIndex(table.Locus(locus));
    catalogues[locus.Value()] = *catalogue;
  }
  return catalogues;
}

}  // namespace kaldo
