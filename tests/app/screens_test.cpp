// SPDX-License-Identifier: GPL-3.0-or-later
// What the screens keep and show.
#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <algorithm>

#include <fmt/format.h>

#include "app/base/screen_table.h"
#include "app/base/text.h"
#include "app/support/desktop_test.h"

namespace kaldo {
namespace {

using test::ExpectText;
using test::OpenFlow;
using test::TypeAllocationFiles;
using test::WalkToLoci;

class ScreensTest : public test::MenuTest {
 protected:
  ScreensTest() { WriteStudy(); }

  /// Writes the names of as many loci, and files with a genotype at each.
  void WriteLoci(int count) const {
    std::string names;
    std::string genotypes;
    for (int locus = 1; locus <= count; ++locus) {
      names += fmt::format("L&{} ", locus);
      genotypes += fmt::format(" {}{}", 100 + 2 * locus, 102 + 2 * locus);
    }
    folder_.Write("data/loci.txt", names + '\n');
    folder_.Write("data/parents.txt", "P1" + genotypes + "\nP2" + genotypes + '\n');
    folder_.Write("data/offspring.txt", "O1" + genotypes + '\n');
  }

  /// From the sequence of an allocation back to the menu.
  void ExpectOnTheWayBack() {
    script_.Click("Back");
    ExpectRows({"A [x]", "B [ ]", "C [x]", "D [x]"});
    script_.Do([](QWidget&) { EXPECT_TRUE(test::IsMarked("Sequence")); });
    script_.Click("Back").Await("ErrorModel");
    ExpectText(script_, "Epsilon", Text("0.07"));
    ExpectText(script_, "Plus1", Text("0.5"));
    script_.Do([](QWidget&) { EXPECT_TRUE(test::IsMarked("Uniform")); });
    script_.Click("Back").Await("NonSexedAllocationFiles");
    ExpectText(script_, "ParentsFile", Text("data/parents.txt"));
    ExpectText(script_, "Tolerance", Text("3"));
    script_.Click("Back").Await("MainMenu");
  }

  /// The rows of the choice of loci that show anything: "A [x]", "B [ ]", or "C" without a box.
  static std::vector<std::string> Rows(const QWidget& window) {
    std::vector<std::string> rows;
    for (int number = kFirstLocusBox; number <= kLastLocusBox; ++number) {
      const auto* name = window.findChild<QLineEdit*>(
          Text(fmt::format("LocusName{}", number - kFirstLocusBox + 1)));
      const auto* box = qobject_cast<QAbstractButton*>(VisibleWidget(number));
      const std::string mark = box == nullptr ? "" : box->isChecked() ? " [x]" : " [ ]";
      if (name == nullptr || !name->text().isEmpty() || !mark.empty()) {
        rows.push_back((name == nullptr ? "no row" : Bytes(name->text())) + mark);
      }
    }
    return rows;
  }

  void ExpectRows(const std::vector<std::string>& rows) {
    script_.Await("ChoiceOfLoci").Do([rows](QWidget& window) { EXPECT_EQ(Rows(window), rows); });
  }

  /// The rows of as many loci, all marked.
  static std::vector<std::string> MarkedRows(int count) {
    std::vector<std::string> rows;
    for (int locus = 1; locus <= count; ++locus) {
      rows.push_back(fmt::format("L&{} [x]", locus));
    }
    return rows;
  }
};

TEST_F(ScreensTest, ScreensHaveTheNumbersOfTheirManuals) {
  const auto expect_number = [this](std::string_view screen, int number) {
    script_.Await(screen).Do([=](QWidget& window) {
      QWidget* const widget =
          window.property(kNumberProperty) == number ? &window : VisibleWidget(number);
      EXPECT_NE(widget, nullptr) << number;
    });
  };
  expect_number("MainMenu", 102);
  script_.Type("Project", Text("p"));
  for (const auto& [button, screen] :
       {std::pair(1001, 139), {1002, 135}, {1003, 140}, {1004, 146}}) {
    script_.ClickNumber(button);
    expect_number("Ok", screen);
    script_.ClickNumber(kBackButton).Await("MainMenu");
  }
  script_.ClickNumber(1002);
  TypeAllocationFiles(script_, Flow::kSexed, Text("data"));
  script_.Click("Ok").Click("NoError").Click("Ok");
  expect_number("ChoiceOfLoci", 154);
  script_.ClickNumber(1083).Click("Ok");
  expect_number("CumulativeSequence", 167);
  script_.Press(Qt::Key_Escape);
  Go(script_);
}

TEST_F(ScreensTest, BackKeepsWhatWasTypedInAnAllocation) {
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  TypeAllocationFiles(script_, Flow::kNonSexed, Text("data"));
  script_.Type("Tolerance", Text("3")).Click("Ok").Await("ErrorModel").Click("Uniform");
  script_.Type("Epsilon", Text("0.07")).Type("Plus1", Text("0.5")).Click("Ok");
  script_.Await("ChoiceOfLoci").ClickNumber(kFirstLocusBox + 1).Click("Sequence").Click("Ok");
  script_.Await("CumulativeSequence").Type("Index1", Text("4"));
  script_.Click("Back").Await("ChoiceOfLoci").Click("Ok").Await("CumulativeSequence");
  ExpectText(script_, "Index1", Text("4"));
  ExpectOnTheWayBack();
  // The next walk through the flow finds it too, but begins with the file order of the loci.
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  script_.Click("Ok").Await("ErrorModel").Click("Ok").Await("ChoiceOfLoci").Click("Ok");
  script_.Await("CumulativeSequence");
  ExpectText(script_, "Index1", Text("1"));
  ExpectOnTheWayBack();
  Go(script_);
  EXPECT_EQ(test::Told(script_), std::vector<std::string>{});
}

TEST_F(ScreensTest, BackKeepsWhatWasTypedInASimulation) {
  test::WalkToParents(script_, true, false);
  script_.Click("Ok").Await("PseudoOffspring").Type("OffspringPerIteration", Text("12"));
  script_.Do([](QWidget&) {
    // 9 of 16 pairs are of two collected parents: 4.5 of 6 on either side.
    const auto* table = qobject_cast<QTableWidget*>(VisibleWidget("Origins"));
    EXPECT_EQ(Bytes(table->item(0, 1)->text()), "0.562");
    EXPECT_EQ(Bytes(table->item(0, 2)->text()), "6");
  });
  script_.Click("NonUniform").Click("Ok").Await("Tolerance").Type("Tolerance", Text("2"));
  script_.Click("Ok").Await("Strategy").Click("MinimalSubsets").Type("Criterion", Text("0.9"));
  script_.Click("Ok").Await("Output").Click("KeepMatrices").Type("Seed", Text("5"));
  script_.Click("Back").Await("Strategy");
  ExpectText(script_, "Criterion", Text("0.9"));
  script_.Click("Back").Await("Tolerance");
  ExpectText(script_, "Tolerance", Text("2"));
  script_.Click("Back").Await("PseudoOffspring");
  ExpectText(script_, "OffspringPerIteration", Text("12"));
  script_.Click("Back").Await("Parents");
  ExpectText(script_, "EstimatedUncollectedMales", Text("1.5"));
  ExpectText(script_, "PseudoCollectedFemalesSample", Text("data/parents.txt"));
  script_.Click("Back").Await("SexedSimulationStart").Do([](QWidget&) {
    EXPECT_TRUE(test::IsMarked("PreParental"));
  });
  ExpectText(script_, "Iterations", Text("2"));
  script_.Click("Back").Await("MainMenu");
  // Another flow in between changes nothing; its own screens begin empty.
  OpenFlow(script_, "SIMULATIONSNON-SEXED");
  ExpectText(script_, "LociFile", QString());
  script_.Click("Back");
  OpenFlow(script_, "SIMULATIONSSEXED");
  for (const char* screen : {"Parents", "PseudoOffspring", "Tolerance", "Strategy", "Output"}) {
    script_.Click("Ok").Await(screen);
  }
  ExpectText(script_, "Seed", Text("5"));
  script_.Do([](QWidget&) { EXPECT_TRUE(test::IsMarked("KeepMatrices")); });
  script_.Press(Qt::Key_Escape).Await("MainMenu");
  Go(script_);
}

TEST_F(ScreensTest, AllLociHidesTheChoiceAndKeepsIt) {
  QString command;
  WalkToLoci(script_, Flow::kNonSexed);
  script_.ClickNumber(kFirstLocusBox + 2);
  script_.ClickNumber(kAllLociBox);
  ExpectRows({"A", "B", "C", "D"});
  script_.ClickNumber(kAllLociBox);
  ExpectRows({"A [x]", "B [x]", "C [ ]", "D [x]"});
  script_.ClickNumber(kAllLociBox);
  test::RunToTheEnd(script_, command);
  Go(script_);
  EXPECT_FALSE(command.contains(Text("--use"))) << "all loci are in use";
  ExpectAsCommandLine("p", command);
}

TEST_F(ScreensTest, EveryLocusHasItsRow) {
  QString command;
  WriteLoci(50);
  WalkToLoci(script_, Flow::kNonSexed);
  ExpectRows(MarkedRows(50));
  for (int number = kFirstLocusBox; number < kLastLocusBox; ++number) {
    script_.ClickNumber(number);
  }
  // A name is shown as it is, also where a label could take a part of it for a key.
  script_.Click("Sequence").Click("Ok").Await("CumulativeSequence").Do([](QWidget& window) {
    const auto* field = VisibleField("Index50");
    EXPECT_EQ(Bytes(field->accessibleName()), "L&50");
    EXPECT_EQ(Bytes(field->text()), "50");
    const auto labels = window.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [field](const QLabel* label) {
      return label->buddy() == field && label->text() == Text("L&&50");
    }));
  });
  test::RunToTheEnd(script_, command);
  script_.Do([&](QWidget&) {
    EXPECT_TRUE(command.contains(Text("--use 'L&50'"))) << Bytes(command);
    ExpectAsCommandLine("p", command);
    WriteLoci(3);
  });
  // The same screen for fewer loci.
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  script_.Click("Ok").Click("Ok");
  ExpectRows(MarkedRows(3));
  script_.Press(Qt::Key_Escape);
  Go(script_);
}

TEST_F(ScreensTest, TheHintsTellWhatWasRead) {
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  const auto await_hint = [this](const std::string& hint, const std::string& text) {
    script_.Until([=] { return Bytes(test::TextIn(hint)) == text; }, hint + " to say " + text);
  };
  script_.Type("ParentsFile", Text("data/parents.txt"));
  await_hint("ParentsFileHint", "20 words; choose the names-of-loci file to see what is in it");
  script_.Drop("LociFile", QString::fromStdString(folder_.Path("data/loci.txt")));
  await_hint("LociFileHint", "4 loci: A, B, C, D");
  await_hint("ParentsFileHint", "4 individuals, 4 loci, 6 digits per field, no missing genotypes");
  ExpectText(script_, "LociFile", QString::fromStdString(folder_.Path("data/loci.txt")));
  script_.Type("ParentsFile", Text("data/nowhere.txt"));
  await_hint("ParentsFileHint", "cannot be read: No such file or directory");
  // What was mended meanwhile shows when the screen comes back.
  script_.Press(Qt::Key_Escape).Await("MainMenu").Do([this](QWidget&) {
    folder_.Write("data/nowhere.txt", "P1 100102 200204 150150 120124\n");
  });
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  await_hint("ParentsFileHint", "1 individual, 4 loci, 6 digits per field, no missing genotypes");
  script_.Press(Qt::Key_Escape);
  Go(script_);
}

TEST_F(ScreensTest, UnequalGroupsAreHintedAt) {
  const auto await_hint = [this](const std::string& hint, bool differ) {
    script_.Until(
        [=] { return test::TextIn(hint).contains(Text("2 of males, 1 of females")) == differ; },
        hint + (differ ? " to tell the groups" : " to tell no groups"));
  };
  const std::string male = " 100102 200204 150150 120124\n";
  folder_.Write("data/males.txt", "M1" + male + "*\nM2" + male);
  OpenFlow(script_, "ALLOCATIONSEXED");
  TypeAllocationFiles(script_, Flow::kSexed, Text("data"));
  await_hint("MalesFileHint", true);
  await_hint("FemalesFileHint", true);
  script_.Type("FemalesFile", Text("data/males.txt"));
  await_hint("MalesFileHint", false);
  await_hint("FemalesFileHint", false);
  script_.Press(Qt::Key_Escape);
  Go(script_);
}

}  // namespace
}  // namespace kaldo
