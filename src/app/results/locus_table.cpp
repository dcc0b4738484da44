// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/locus_table.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "allocation/reports/loci_report.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "confidence/locus_order.h"

namespace kaldo {

namespace {

/// What is read first; the others follow as in the file.
constexpr std::array<std::string_view, 6> kFirst = {
    "locus",  "exclusion_pair", "error_rate", "null_allele_frequency", "homozygote_mismatches",
    "alleles"};

/// The places of all columns in the order in which they are shown.
std::vector<qsizetype> OrderOf(const QStringList& heads) {
  std::vector<qsizetype> order;
  order.reserve(static_cast<std::size_t>(heads.size()));
  for (const std::string_view head : kFirst) {
    order.push_back(heads.indexOf(Text(head)));
  }
  for (qsizetype column = 0; column < heads.size(); ++column) {
    if (std::find(order.begin(), order.end(), column) == order.end()) {
      order.push_back(column);
    }
  }
  return order;
}

QStringList InOrder(const QStringList& cells, const std::vector<qsizetype>& order) {
  QStringList sorted;
  for (const qsizetype column : order) {
    sorted += cells.value(column);
  }
  return sorted;
}

QStringList Cells(const QString& line) {
  QStringList cells = line.split(QLatin1Char('\t'));
  for (QString& cell : cells) {
    bool is_number = false;
    const double value = cell.toDouble(&is_number);
    cell = is_number ? ShortNumber(value) : cell;
  }
  return cells;
}

}  // namespace

DataTable LocusTable(const FinishedAllocation& allocation) {
  std::vector<LocusQuality> loci = allocation.run.result.loci_quality;
  std::stable_sort(loci.begin(), loci.end(), [](const auto& a, const auto& b) {
    return TellsMore(a.exclusions, b.exclusions);
  });
  const QStringList lines = Text(LociReport(allocation.run.input.loci, loci))
                                .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  const QStringList heads = lines.front().split(QLatin1Char('\t'));
  const std::vector<qsizetype> order = OrderOf(heads);
  DataTable table;
  for (QString head : InOrder(heads, order)) {
    table.heads += TrCore(Bytes(head.replace(QLatin1Char('_'), QLatin1Char(' '))));
  }
  table.rows.reserve(loci.size() + 1);
  for (const QString& line : lines.mid(1)) {
    table.rows.push_back(InOrder(Cells(line), order));
  }
  return table;
}

}  // namespace kaldo
