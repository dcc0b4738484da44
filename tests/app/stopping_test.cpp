// SPDX-License-Identifier: GPL-3.0-or-later
// A run that is stopped leaves everything as it was, and the windows usable.
#include <QLabel>
#include <QProgressBar>
#include <vector>

#include "app/base/text.h"
#include "app/support/desktop_test.h"

namespace kaldo {
namespace {

using test::Contents;
using test::OpenFlow;

constexpr std::string_view kCompleted = "Calculations completed!";
constexpr std::string_view kStopped = "Stopped. The results of earlier runs are as they were.";

class StoppingTest : public test::MenuTest {
 protected:
  StoppingTest() { WriteStudy(); }

  /// From the menu to the last screen of a sexed simulation.
  void WalkToOutput() {
    test::WalkToParents(script_, true, true);
    script_.Click("Ok").Await("PseudoOffspring").Click("NoError").Click("Ok").Await("Tolerance");
    script_.Click("Ok").Await("Strategy").Click("AllSubsets").Click("Ok").Await("Output");
    script_.Click("KeepMatrices").Click("PrintIterations").Type("Seed", Text("3"));
  }

  /// From the last screen back to the numbers that set how long the run takes, and forth again.
  void SetLength(const char* iterations, const char* offspring) {
    for (const char* screen : {"Strategy", "Tolerance", "PseudoOffspring"}) {
      script_.Click("Back").Await(screen);
    }
    script_.Type("OffspringPerIteration", Text(offspring));
    script_.Click("Back").Await("Parents").Click("Back").Await("SexedSimulationStart");
    script_.Type("Iterations", Text(iterations));
    for (const char* screen : {"Parents", "PseudoOffspring", "Tolerance", "Strategy", "Output"}) {
      script_.Click("Ok").Await(screen);
    }
  }

  std::vector<std::string> UnfinishedFiles() const {
    std::vector<std::string> names = folder_.FilesIn("p");
    std::erase_if(names, [](const std::string& name) { return !name.starts_with(".kaldo-"); });
    return names;
  }

  /// Waits until the run goes on and has written a part of its files.
  void AwaitProgress() {
    script_.Await("RunDialog")
        .Until(
            [this] {
              const auto* const bar = qobject_cast<QProgressBar*>(VisibleWidget("RunBar"));
              return bar != nullptr && bar->value() > 0 && !UnfinishedFiles().empty();
            },
            "see progress");
  }

  /// The project folder is as it was before the runs that were stopped.
  void ExpectAsBefore() {
    script_.Await("Output").Do([this](QWidget&) {
      EXPECT_EQ(UnfinishedFiles(), std::vector<std::string>{});
      test::ExpectSame(ContentsOf("p"), before_);
    });
  }

  Contents before_;  // NOLINT(misc-non-private-member-variables-in-classes)
};

TEST_F(StoppingTest, EarlierResultsStayAndTheWindowsGoOn) {
  QString command;
  WalkToOutput();
  test::RunToTheEnd(script_, command);
  script_.Do([this](QWidget&) { before_ = ContentsOf("p"); });
  OpenFlow(script_, "SIMULATIONSSEXED");
  for (const char* screen : {"Parents", "PseudoOffspring", "Tolerance", "Strategy", "Output"}) {
    script_.Click("Ok").Await(screen);
  }
  SetLength("1000", "20000");
  script_.Click("Ok");
  AwaitProgress();
  script_.Click("RunCancel").Answer();
  ExpectAsBefore();

  // "No" to the question lets the run go on.
  script_.Click("Ok");
  AwaitProgress();
  script_.Press(Qt::Key_Escape).Answer("No");
  script_.Await("RunDialog").Do([](QWidget&) {
    EXPECT_TRUE(VisibleWidget("RunCancel")->isEnabled());
    EXPECT_NE(test::TextIn("RunPart"), Text("Stopping..."));
  });
  script_.Press(Qt::Key_Escape).Answer("Yes").Answer();
  ExpectAsBefore();

  script_.Click("Ok");
  AwaitProgress();
  script_.CloseWindow().Answer("Yes").Answer();
  ExpectAsBefore();

  SetLength("3", "20");
  test::RunToTheEnd(script_, command);
  Go(script_);
  const std::string_view question =
      "A run is going on. Stop it? The results of earlier runs stay as they are.";
  test::ExpectTold(script_, {kCompleted, kStopped, question, question, kStopped, question, kStopped,
                             kCompleted});
  ExpectAsCommandLine("p", command);
}

TEST_F(StoppingTest, ARunThatEndsAnswersTheQuestionItself) {
  WalkToOutput();
  SetLength("100", "2000");
  script_.Click("Ok");
  AwaitProgress();
  // The user hesitates over the question until the run is done.
  script_.Press(Qt::Key_Escape).Await("qt_msgbox_label");
  script_.Until([] { return test::TextIn("qt_msgbox_label") == Text(kCompleted); },
                "hear that the run is done");
  script_.Answer().Click("Close").Await("MainMenu");
  Go(script_);
  test::ExpectTold(script_, {kCompleted});
  EXPECT_EQ(UnfinishedFiles(), std::vector<std::string>{});
}

}  // namespace
}  // namespace kaldo
