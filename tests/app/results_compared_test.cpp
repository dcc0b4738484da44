// SPDX-License-Identifier: GPL-3.0-or-later
// Two allocations compared in a window, against the tables of both.
#include <QComboBox>
#include <QLabel>
#include <QTableView>
#include <array>
#include <filesystem>
#include <set>

#include <fmt/format.h>

#include "app/flows/results_opener.h"
#include "app/results/allocation_window.h"
#include "app/support/results_test.h"

namespace kaldo {

using test::Find;
using test::TsvRow;

namespace {

using Shown = test::Shown<AllocationSettings, AllocationRun, AllocationWindow>;

class ResultsComparedTest : public test::WorkplaceTest {
 protected:
  ResultsComparedTest() { WriteExamples(); }
};

/// What a run says of an offspring in its table.
struct Said {
  QStringList parents;
  std::vector<double> probabilities;
};

std::map<QString, Said> SaidBy(const std::string& project) {
  std::map<QString, Said> said;
  for (const TsvRow& row : test::TsvRows(project + "/Confidence.tsv")) {
    Said& of_offspring = said[row.at(Text("offspring"))];
    for (const char* side : {"father", "mother"}) {
      of_offspring.parents += row.at(Text(side) + Text("_reported"));
      of_offspring.probabilities.push_back(
          row.at(Text("p_") + Text(side) + Text("_reported")).toDouble());
    }
  }
  return said;
}

TEST_F(ResultsComparedTest, OffspringWithAnotherPairAreListedWithBothPairs) {
  AllocationSettings other = test::ExampleAllocation(Flow::kSexed);
  other.project = std::string("q");
  other.loci_in_use = {"Mir03Di", "Mir14Di", "Mir21Di"};
  other.tolerance = OffsetTolerance{2};
  // The other run knows neither the first offspring nor, by this name, the second.
  const std::string text = test::ReadFile("data/sexed/offspring.txt");
  std::string fewer = text.substr(text.find('\n') + 1);
  folder_.Write("fewer.txt", fewer.replace(fewer.find("Young02"), 7, "Other02"));
  other.offspring_file = "fewer.txt";
  ASSERT_TRUE(test::Run(other));

  Shown shown(Flow::kSexed);
  shown.Run();
  shown.window->OfferComparison(AskForOtherRun);
  script_.Await("Tabs").Press(Qt::Key_D, Qt::ControlModifier);
  test::PickInDialog(script_, PathText(folder_.Path("q/Run record.toml")));
  const auto here = SaidBy("p");
  const auto there = SaidBy("q");
  script_.Await("RunComparisonSentence").Do([&](QWidget& window) {
    std::map<QString, QStringList> rows;
    for (const QStringList& row : test::ModelRows(test::ModelIn(window, "RunComparisonTable"))) {
      rows[row[0]] = row;
    }
    rows.erase(Text("Offspring"));
    std::size_t changed = 0;
    for (const auto& [name, said] : here) {
      const auto other_said = there.find(name);
      const bool is_changed =
          other_said != there.end() && other_said->second.parents != said.parents;
      ASSERT_EQ(rows.count(name), is_changed ? 1U : 0U) << Bytes(name);
      if (is_changed) {
        ++changed;
        const QStringList& row = rows.at(name);
        EXPECT_EQ(QStringList({row[2], row[3]}), said.parents);
        EXPECT_EQ(QStringList({row[4], row[5]}), other_said->second.parents);
        EXPECT_NEAR(row[6].toDouble(), said.probabilities[0], 1e-5);
        EXPECT_NEAR(row[9].toDouble(), other_said->second.probabilities[1], 1e-5);
        EXPECT_FALSE(row[12].isEmpty() || row[13] == Text("NA"));
      }
    }
    EXPECT_EQ(rows.size(), changed);
    EXPECT_GT(changed, 3U);
    EXPECT_TRUE(Find<QLabel>(window, "RunComparisonSentence")
                    .text()
                    .startsWith(Text("%1 of %2 offspring of both runs have another pair; 2 in this "
                                     "run only, 1 in the other")
                                    .arg(changed)
                                    .arg(there.size() - 1)));
    const QString differences = Find<QLabel>(window, "RunComparisonRuns").text();
    EXPECT_TRUE(differences.contains(Text("fewer.txt")));
    EXPECT_TRUE(differences.contains(Text("- tolerance: 1 in this run, 2 in the other one")));
    EXPECT_TRUE(differences.contains(Text(" in this run, Mir03Di, Mir14Di, Mir21Di in the other")));
    EXPECT_EQ(differences.count(Text("\n- ")), 3) << "no more than the three that differ";
    Find<QComboBox>(window, "RunComparisonShow").setCurrentIndex(2);
    EXPECT_EQ(test::Column(test::ModelIn(window, "RunComparisonTable"), 0),
              QStringList({Text("Young01"), Text("Young02"), Text("Other02")}));
  });
  script_.Type("RunComparisonFind", Text("other0")).Do([](QWidget& window) {
    EXPECT_EQ(test::Column(test::ModelIn(window, "RunComparisonTable"), 1),
              QStringList{Text("other run only")});
  });
  script_.Click("Close").Await("Tabs");
  EXPECT_TRUE(script_.Run([&] { shown.window->activateWindow(); }));
}

/// A step of a sequence says what a run with its loci alone says.
TEST_F(ResultsComparedTest, StepsOfASequenceDifferAsRunsWithTheirLociDo) {
  const std::vector<std::string> loci = {"Mir03Di", "Mir08Di", "Mir14Di"};
  std::array<std::map<QString, Said>, 2> said;
  for (const std::size_t step : {0U, 1U}) {
    AllocationSettings of_step = test::ExampleAllocation(Flow::kSexed);
    of_step.project = fmt::format("step{}", step);
    of_step.loci_in_use.emplace(loci.begin(), loci.end() - (step == 0 ? 1 : 0));
    ASSERT_TRUE(test::Run(of_step));
    said.at(step) = SaidBy(of_step.project);
  }
  std::set<QStringList> changed;
  std::array<int, 2> both{};
  for (const auto& [name, before] : said[0]) {
    const QStringList& after = said[1].at(name).parents;
    if (before.parents != after) {
      changed.insert(QStringList{name} + before.parents + after);
    }
    both[0] += before.parents.contains(Text("UC")) ? 0 : 1;
    both[1] += after.contains(Text("UC")) ? 0 : 1;
  }
  ASSERT_GT(changed.size(), 3U);

  Shown shown(Flow::kSexed);
  shown.settings.sequence.emplace();
  shown.Run();
  const auto& window = *shown.window;
  Find<QComboBox>(window, "StepsFirst").setCurrentIndex(1);
  Find<QComboBox>(window, "StepsSecond").setCurrentIndex(2);
  test::Rows rows = test::ModelRows(test::ModelIn(window, "StepsTable"));
  EXPECT_EQ(std::set<QStringList>(rows.begin() + 1, rows.end()), changed);
  EXPECT_TRUE(Find<QLabel>(window, "StepsNumbers")
                  .text()
                  .contains(Text("CM + CF: %1, then %2").arg(both[0]).arg(both[1])));
  // The last step is that of the results.
  const int last = Find<QComboBox>(window, "StepsSecond").count() - 1;
  Find<QComboBox>(window, "StepsSecond").setCurrentIndex(last);
  const auto of_run = SaidBy("p");
  rows = test::ModelRows(test::ModelIn(window, "StepsTable"));
  for (std::size_t k = 1; k < rows.size(); ++k) {
    EXPECT_EQ(rows[k].mid(3), of_run.at(rows[k][0]).parents);
  }
}

}  // namespace
}  // namespace kaldo
