// SPDX-License-Identifier: GPL-3.0-or-later
// What a user leans on without thinking of it: buttons that stay in place, screens that fit, help
// that is about what is on the screen.
#include <QCoreApplication>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <gmock/gmock.h>

#include "app/base/text.h"
#include "app/support/desktop_test.h"

namespace kaldo {
namespace {

using test::OpenFlow;

class SteadinessTest : public test::MenuTest {
 protected:
  SteadinessTest() { WriteStudy(); }

  /// Notes where the window has its OK button, and that nothing has to be scrolled sideways even
  /// where a monitor of 1366 x 768 is shown twice as large.
  void LookAtScreen(std::string_view screen, std::string_view step) {
    script_.Await(screen).Do([=, this](QWidget& window) {
      EXPECT_EQ(Bytes(test::TextIn("Step")), step) << screen;
      const QWidget* const ok = VisibleWidget("Ok");
      places_.emplace_back(window.size(), ok->geometry());
      EXPECT_EQ(places_.back(), places_.front()) << screen;
      const QSize size = window.size();
      window.resize(683 * 9 / 10, 384 * 9 / 10);
      QCoreApplication::processEvents();
      EXPECT_EQ(window.findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0) << screen;
      EXPECT_LE(window.width(), 683) << screen;
      window.resize(size);
      QCoreApplication::processEvents();
    });
  }

  /// Without a desktop nobody gives the keys back to the window that was in front of the guide.
  void ExpectGuideAt(std::string_view heading) {
    script_.Do([this](QWidget& window) { asking_ = &window; });
    script_.Press(Qt::Key_F1).Await("GuideText").Do([this, heading](QWidget& window) {
      auto* const text = window.findChild<QTextBrowser*>(Text("GuideText"));
      EXPECT_EQ(Bytes(text->textCursor().block().text()), heading);
      text->window()->close();
      asking_->activateWindow();
    });
  }

 private:
  QPointer<QWidget> asking_;
  std::vector<std::pair<QSize, QRect>> places_;
};

TEST_F(SteadinessTest, TheScreensOfAnAllocationKeepTheirPlace) {
  OpenFlow(script_, "ALLOCATIONSEXED");
  LookAtScreen("SexedAllocationFiles", "Step 1 of 3");
  test::TypeAllocationFiles(script_, Flow::kSexed, Text("data"));
  LookAtScreen("SexedAllocationFiles", "Step 1 of 3");
  script_.Click("Ok").Click("NonUniform");
  LookAtScreen("ErrorModel", "Step 2 of 3");
  script_.Click("Ok").Await("ChoiceOfLoci").Click("Sequence");
  LookAtScreen("ChoiceOfLoci", "Step 3 of 3");
  script_.Click("Ok");
  LookAtScreen("CumulativeSequence", "Step 4 of 4");
  script_.Press(Qt::Key_Escape);
  Go(script_);
}

TEST_F(SteadinessTest, TheScreensOfASimulationKeepTheirPlace) {
  test::WalkToParents(script_, true, false);
  LookAtScreen("Parents", "Step 2 of 6");
  script_.Click("Ok").Await("PseudoOffspring").Click("NoError");
  LookAtScreen("PseudoOffspring", "Step 3 of 6");
  script_.Click("Ok");
  LookAtScreen("Tolerance", "Step 4 of 6");
  script_.Click("Ok").Await("Strategy").Click("CumulativeStrategy").Click("Ok");
  LookAtScreen("CumulativeSequence", "Step 6 of 7");
  script_.Click("Ok");
  LookAtScreen("Output", "Step 7 of 7");
  script_.Press(Qt::Key_Escape);
  Go(script_);
}

TEST_F(SteadinessTest, AFaultIsSeenWithoutMovingTheFields) {
  folder_.Write("broken.txt", "O1 100104 204208 150152 124128 and " + std::string(60, 'x') + "\n");
  QPoint place;
  QColor colour;
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  test::TypeAllocationFiles(script_, Flow::kNonSexed, Text("data"));
  script_.Do([&](QWidget&) {
    place = VisibleWidget("LociFile")->mapToGlobal(QPoint());
    colour = VisibleWidget("OffspringFileHint")->palette().color(QPalette::WindowText);
  });
  script_.Type("OffspringFile", Text("broken.txt"));
  script_.Until([&] { return test::TextIn("OffspringFileHint").contains(Text("left over")); },
                "the file is read");
  script_.Do([&](QWidget&) {
    EXPECT_EQ(VisibleWidget("LociFile")->mapToGlobal(QPoint()), place);
    EXPECT_NE(VisibleWidget("OffspringFileHint")->palette().color(QPalette::WindowText), colour);
  });
  // The message about it offers the file.
  script_.Click("Ok").Await("OpenFile").Answer();
  Go(script_);
}

TEST_F(SteadinessTest, TheGuideOpensAtTheScreenInQuestion) {
  ExpectGuideAt("Starting");
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  test::TypeAllocationFiles(script_, Flow::kNonSexed, Text("data"));
  ExpectGuideAt("Files");
  script_.Click("Ok").Await("ErrorModel").Click("NoError");
  ExpectGuideAt("Model of error");
  script_.Click("Ok").Await("ChoiceOfLoci").Click("Ok").Answer().Click("CopyCommand");
  ExpectGuideAt("Reading the results of an allocation");
  script_.Press(Qt::Key_G, Qt::AltModifier).Await("MatingsTable");
  ExpectGuideAt("Who had offspring with whom");
  Go(script_);
}

TEST_F(SteadinessTest, DetailsSayWhatWasTyped) {
  OpenFlow(script_, "ALLOCATIONNON-SEXED");
  test::TypeAllocationFiles(script_, Flow::kNonSexed, Text("data"));
  script_.Click("Ok").Await("ErrorModel").Click("Uniform").Type("Epsilon", Text("0.1000001"));
  script_.Click("Ok").Answer().Type("Epsilon", Text("0.05")).Click("Ok").Await("ChoiceOfLoci");
  script_.Click("Sequence").Click("Ok").Type("Index2", Text("x")).Click("Ok").Answer();
  script_.Press(Qt::Key_Escape);
  OpenFlow(script_, "SIMULATIONSNON-SEXED");
  script_.Type("LociFile", Text("data/loci.txt")).Type("Iterations", Text("many")).Click("Ok");
  script_.Answer().Press(Qt::Key_Escape);
  Go(script_);
  EXPECT_THAT(Bytes(script_.Details().join(QLatin1Char(' '))),
              testing::AllOf(testing::HasSubstr("0.1000001"), testing::HasSubstr("\"x\""),
                             testing::HasSubstr("\"many\"")));
}

}  // namespace
}  // namespace kaldo
