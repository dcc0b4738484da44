// SPDX-License-Identifier: GPL-3.0-or-later
// Files of other programs, from the field that names one to the finished allocation. What the
// screen writes must be what the command line writes, to the byte.
#include <QComboBox>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <filesystem>

#include "app/base/command_text.h"
#include "app/base/text.h"
#include "app/support/desktop_test.h"

namespace kaldo {
namespace {

namespace fs = std::filesystem;
using test::ExpectText;
using test::OpenFlow;
using test::RunToTheEnd;

const QString kReady = Text("Ready to convert.");

/// What is told about the files on the screen of the import.
QString Findings() {
  const auto* text = qobject_cast<QPlainTextEdit*>(VisibleWidget("ImportFindings"));
  return text == nullptr ? QString() : text->toPlainText();
}

/// A column of the first individuals: name, who, population, genotypes.
std::string Previewed(int column) {
  const auto& table = *qobject_cast<QTableWidget*>(VisibleWidget("ImportPreview"));
  QStringList cells{table.horizontalHeaderItem(column)->text()};
  for (int row = 0; row < table.rowCount(); ++row) {
    cells += table.item(row, column)->text();
  }
  return Bytes(cells.join(Text(" | ")));
}

class ImportTest : public test::MenuTest {
 protected:
  ImportTest() { WriteExamples(); }

  void AwaitText(std::string_view name, const QString& text) {
    script_.Until([name = std::string(name), text] { return test::TextIn(name) == text; },
                  "see " + Bytes(text));
  }

  void ExpectFound(const char* part) {
    script_.Do([part](QWidget&) {
      EXPECT_TRUE(Findings().contains(Text(part))) << part << " in " << Bytes(Findings());
    });
  }

  void ExpectPreviewed(int column, const char* cells) {
    script_.Do([column, cells](QWidget&) { EXPECT_EQ(Previewed(column), cells); });
  }

  /// From the file screen to the end of the run.
  void Allocate() {
    script_.Click("Ok").Await("ErrorModel").Click("NoError").Click("Ok");
    script_.Await("ChoiceOfLoci");
    RunToTheEnd(script_, command_);
  }
};

TEST_F(ImportTest, AGenepopFileIsRecognisedConvertedAndAllocated) {
  const std::string theirs = "data/foreign/pond-imported/loci.txt";
  folder_.Write("data/foreign/pond-imported/note.txt", "mine\n");
  folder_.Write(theirs, "another study\n");
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  script_.Type("ParentsFile", Text("data/foreign/pond.gen"));
  AwaitText("ParentsFileHint", Text("This looks like GENEPOP, 3 populations, 3 loci."));
  script_.Click("Ok").Answer().Await("NonSexedAllocationFiles");
  script_.Click("ParentsFileConvert").Await("Import");
  ExpectText(script_, "ImportStatus", Text("To be settled first:"));
  ExpectFound("Who is a parent and who an offspring? Of 8 individuals it is not known.");
  ExpectPreviewed(0, "Heron pond 1 | not known | pop1 | 124/128 | 166/170 | 96/104");
  script_.Press(Qt::Key_P, Qt::AltModifier).Press(Qt::Key_Down).Press(Qt::Key_Down);
  script_.Press(Qt::Key_Space);
  AwaitText("ImportStatus", kReady);
  ExpectPreviewed(0, "Ind1 | parents.txt |  | 124128 | 166170 | 096104");
  script_.Click("ImportConvert").Answer("No").Await("Import");
  script_.Do([theirs](QWidget&) { EXPECT_EQ(test::ReadFile(theirs), "another study\n"); });
  script_.Click("ImportConvert").Answer("Yes").Await("NonSexedAllocationFiles");
  ExpectText(script_, "OffspringFile", Text("data/foreign/pond-imported/offspring.txt"));
  AwaitText("ParentsFileHint",
            Text("4 individuals in 2 groups, 3 loci, 6 digits per field, no missing genotypes"));
  Allocate();
  Go(script_);
  ExpectAsCommandLine("p", command_);
  EXPECT_EQ(test::ReadFile("data/foreign/pond-imported/note.txt"), "mine\n");
  fs::remove("data/foreign/pond-imported/note.txt");
  ExpectAsCommandLine("data/foreign/pond-imported",
                      CommandHere("kaldo import data/foreign/pond.gen --offspring-populations pop3 "
                                  "--to data/foreign/pond-imported"));
}

TEST_F(ImportTest, TablesBySexWithFaultsAreConvertedOnceTheyAreSettled) {
  const std::string young = test::ReadFile("data/foreign/young.csv");
  folder_.Write("data/foreign/young.csv", young + "Young04,158.5/160,124/122\n");
  folder_.Write("data/foreign/adults.csv",
                test::ReadFile("data/foreign/adults.csv") + "Male12;m;Reed;126;;154;158\n");
  OpenFlow(script_, "ALLOCATIONSEXED");
  script_.Type("MalesFile", Text("data/foreign/adults.csv"));
  script_.Type("FemalesFile", Text("data/foreign/adults.csv"));
  script_.Type("OffspringFile", Text("data/foreign/young.csv"));
  AwaitText("OffspringFileHint", Text("This looks like a table of loci, 2 loci."));
  script_.Click("OffspringFileConvert").Await("Import");
  ExpectFound(
      "data/foreign/young.csv, line 5, column \"Mir08\" (Young04): \"158.5\" is a raw size");
  script_.Click("ImportConvert").Answer().Await("Import");
  script_.Do([this, young](QWidget&) {
    EXPECT_FALSE(fs::exists("data/foreign/adults-imported"));
    folder_.Write("data/foreign/young.csv", young);
  });
  script_.Click("ImportConvert").Answer().Await("Import");
  ExpectFound("Choose with \"Parents with undefined loci\" what becomes of them");
  script_.Do([](QWidget&) { VisibleWidget("ImportMissingParents")->setFocus(); });
  script_.Press(Qt::Key_End);
  AwaitText("ImportStatus", kReady);
  ExpectFound("3 males, 2 females in 2 groups, 3 offspring, 2 loci");
  script_.Click("ImportConvert").Await("SexedAllocationFiles");
  ExpectText(script_, "FemalesFile", Text("data/foreign/adults-imported/females.txt"));
  Allocate();
  Go(script_);
  EXPECT_TRUE(command_.contains(Text("--allow-undefined-parents")));
  ExpectAsCommandLine("p", command_);
  ExpectAsCommandLine("data/foreign/adults-imported",
                      CommandHere("kaldo import --parents data/foreign/adults.csv --offspring "
                                  "data/foreign/young.csv --missing-parents keep --to "
                                  "data/foreign/adults-imported"));
}

}  // namespace
}  // namespace kaldo
