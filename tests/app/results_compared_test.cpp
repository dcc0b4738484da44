// SPDX-License-Identifier: GPL-3.0-or-later
// Two allocations compared in a window, against the tables of both.
#include <QComboBox>
#include <QLabel>
#include <QTableView>
#include <filesystem>

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
    EXPECT_TRUE(Find<QLabel>(window, "RunComparisonRuns").text().contains(Text("fewer.txt")));
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

}  // namespace
}  // namespace kaldo
