// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/import/import_preview.h"

#include <QHeaderView>
#include <algorithm>

#include "app/base/text.h"
#include "app/base/tr.h"

namespace kaldo {

namespace {

constexpr int kWhoRow = 0;
constexpr int kPopulationRow = 1;
constexpr int kFirstLocusRow = 2;

}  // namespace

ImportPreview::ImportPreview() {
  setObjectName(Text("ImportPreview"));
  setAccessibleName(Tr("The first individuals, locus by locus"));
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  horizontalHeader()->setMinimumSectionSize(1);
  horizontalHeader()->setHighlightSections(false);
  verticalHeader()->setHighlightSections(false);
  verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 4 / 3);
}

void ImportPreview::SetCell(int row, int column, const std::string& text) {
  auto* const item = new QTableWidgetItem(Text(text));
  item->setToolTip(TipText(item->text()));
  setItem(row, column, item);
}

void ImportPreview::Show(const StudyPreview& preview) {
  clear();
  setColumnCount(static_cast<int>(preview.individuals.size()));
  setRowCount(preview.individuals.empty() ? 0
                                          : kFirstLocusRow + static_cast<int>(preview.loci.size()));
  QStringList rows{preview.is_as_written ? Tr("file") : Tr("who"), Tr("population")};
  for (const std::string& locus : preview.loci) {
    rows += Text(locus);
  }
  setVerticalHeaderLabels(rows);
  QStringList names;
  bool has_population = false;
  for (int column = 0; const PreviewedIndividual& individual : preview.individuals) {
    names += Text(individual.name);
    SetCell(kWhoRow, column, individual.who);
    SetCell(kPopulationRow, column, individual.population);
    has_population = has_population || !individual.population.empty();
    for (int row = kFirstLocusRow; const std::string& genotype : individual.genotypes) {
      SetCell(row, column, genotype);
      ++row;
    }
    ++column;
  }
  setHorizontalHeaderLabels(names);
  setRowHidden(kPopulationRow, !has_population);
}

QSize ImportPreview::sizeHint() const {
  constexpr int kRowsShown = 7;
  return {QTableWidget::sizeHint().width(),
          horizontalHeader()->sizeHint().height() +
              kRowsShown * verticalHeader()->defaultSectionSize() + 2 * frameWidth()};
}

}  // namespace kaldo
