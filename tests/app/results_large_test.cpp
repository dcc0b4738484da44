// SPDX-License-Identifier: GPL-3.0-or-later
// The models of large runs: still right with 50,000 offspring and a quarter of a million subsets.
#include <QTableView>
#include <random>
#include <set>

#include "app/results/allocation_window.h"
#include "app/results/offspring_model.h"
#include "app/results/simulation_summary.h"
#include "app/results/subset_model.h"
#include "tests/app/results_support.h"

namespace kaldo {

using test::Column;

namespace {

constexpr std::uint32_t kParents = 1000;
constexpr std::uint32_t kOffspring = 50000;

/// A non-sexed run with made-up outcomes: no search could be waited for.
FinishedAllocation LargeAllocation() {
  std::mt19937 random(20260301);
  FinishedAllocation made;
  AllocationInput& input = made.run.input;
  input.table = GenotypeTable(1);
  for (std::uint32_t k = 0; k < kParents; ++k) {
    input.table.AddIndividual(std::string("P").append(std::to_string(k)));
  }
  input.first_parents = {0, kParents};
  input.second_parents = {kParents, kParents};
  input.offspring = {kParents, kParents + kOffspring};
  for (std::uint32_t k = 0; k < kOffspring; ++k) {
    input.table.AddIndividual(std::string("K").append(std::to_string(random() % 90000)));
    AllocationOutcome outcome;
    const auto pairs = static_cast<int>(random() % 6);
    outcome.pair_entries = 2 * pairs;
    outcome.more_than_five = pairs == 5 && random() % 2 == 0;
    outcome.pairs.front() = {Slot{static_cast<std::uint32_t>(random() % kParents)},
                             Slot{static_cast<std::uint32_t>(random() % kParents)}};
    outcome.par1_uncollected = pairs > 0 && random() % 3 == 0;
    outcome.par2_uncollected = pairs > 0 && random() % 3 == 0;
    outcome.best_likelihood = pairs == 0 ? 0 : 1e-9 * static_cast<double>(random());
    made.run.result.outcomes.push_back(outcome);
  }
  return made;
}

double NumberOf(const QString& cell) {
  return cell == Text("--") ? -1 : cell == Text("5+") ? 6 : cell.toDouble();
}

}  // namespace

class ResultsLargeTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void SortsAndFiltersFiftyThousandOffspring() {
    OffspringModel model(std::make_shared<const FinishedAllocation>(LargeAllocation()), nullptr);
    OffspringFilter filter(model, nullptr);
    using C = OffspringColumn;
    for (const C column : {C::kRank1, C::kErrors2, C::kPairs, C::kLikelihood}) {
      filter.sort(static_cast<int>(column), Qt::AscendingOrder);
      const QStringList cells = Column(filter, static_cast<int>(column));
      QCOMPARE(cells.size(), qsizetype{kOffspring});
      QVERIFY(std::is_sorted(cells.begin(), cells.end(), [](const QString& a, const QString& b) {
        return NumberOf(a) < NumberOf(b);
      }));
    }
    OffspringChoice choice;
    choice.name = Text("p77");
    choice.the_class = 1;
    filter.Choose(choice);
    int expected = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
      QString names;
      for (const C column : {C::kOffspring, C::kParent1, C::kParent2}) {
        names += model.index(row, static_cast<int>(column)).data().toString() + Text(" ");
      }
      const QString of_class = model.index(row, static_cast<int>(C::kClass)).data().toString();
      expected += names.contains(Text("P77")) && of_class == Text("C + UC") ? 1 : 0;
    }
    QVERIFY(expected > 100);
    QCOMPARE(filter.rowCount(), expected);
    filter.Choose({});
    QCOMPARE(filter.rowCount(), static_cast<int>(kOffspring));
  }

  void SortsAndNarrowsAQuarterOfAMillionSubsets() {
    constexpr std::uint32_t kLoci = 18;
    const QTemporaryDir folder;
    QString names;
    for (std::uint32_t k = 0; k < kLoci; ++k) {
      names += Text("L%1\n").arg(k, 2, 10, QLatin1Char('0'));
    }
    QFile file(folder.filePath(Text("loci.txt")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(names.toUtf8()) > 0);
    file.close();
    FinishedSimulation made;
    auto tokens = TokenFile::Read(PathBytes(file.fileName()));
    QVERIFY(tokens.has_value());
    made.run.input.loci = LociList(*tokens);
    std::mt19937 random(7);
    std::size_t with_both = 0;
    for (std::uint32_t choice = 1; choice < 1U << kLoci; ++choice) {
      SubsetFigures subset;
      for (std::uint32_t k = 0; k < kLoci; ++k) {
        if ((choice >> k & 1U) != 0) {
          subset.loci.push_back(LocusIndex{k});
        }
      }
      subset.probabilities.any = static_cast<double>(random() % 1000) / 1000;
      with_both += (choice & 0b11U) == 0b11U ? 1 : 0;
      made.run.result.subsets.push_back(std::move(subset));
    }
    // Of thousands of subsets of one size several reach the highest of a thousand figures.
    QStringList first_of_best;
    const auto& subsets = made.run.result.subsets;
    for (std::uint32_t size = 1; size <= kLoci; ++size) {
      double highest = -1;
      for (const SubsetFigures& subset : subsets) {
        highest =
            subset.loci.size() == size ? std::max(highest, subset.probabilities.any) : highest;
      }
      const auto first = std::find_if(subsets.begin(), subsets.end(), [&](const auto& subset) {
        return subset.loci.size() == size && subset.probabilities.any == highest;
      });
      first_of_best += QString::number(first - subsets.begin() + 1);
    }
    SubsetModel model(std::make_shared<const FinishedSimulation>(std::move(made)), nullptr);
    QCOMPARE(model.rowCount(), (1 << kLoci) - 1);
    model.sort(static_cast<int>(SubsetColumn::kAnyCorrect), Qt::DescendingOrder);
    const QStringList figures = Column(model, static_cast<int>(SubsetColumn::kAnyCorrect));
    QVERIFY(std::is_sorted(figures.rbegin(), figures.rend(), [](const auto& a, const auto& b) {
      return a.toDouble() < b.toDouble();
    }));
    // Equals stay in the order of the run, whichever way the others are sorted.
    const QStringList places = Column(model, static_cast<int>(SubsetColumn::kPlace));
    for (qsizetype k = 1; k < figures.size(); ++k) {
      QVERIFY(figures[k] != figures[k - 1] || places[k].toInt() > places[k - 1].toInt());
    }
    SubsetChoice choice;
    choice.loci = Text("L00 L01");
    model.Choose(choice);
    QCOMPARE(static_cast<std::size_t>(model.rowCount()), with_both);
    choice.only_best = true;
    choice.loci.clear();
    model.Choose(choice);
    model.sort(static_cast<int>(SubsetColumn::kLoci), Qt::AscendingOrder);
    QCOMPARE(Column(model, static_cast<int>(SubsetColumn::kPlace)), first_of_best);
  }
};

}  // namespace kaldo

QTEST_MAIN(kaldo::ResultsLargeTest)
#include "results_large_test.moc"
