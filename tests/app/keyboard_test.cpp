// SPDX-License-Identifier: GPL-3.0-or-later
// Whole flows without a mouse: Tab, arrows, Space, Return, Esc and Alt with a letter.
#include <QApplication>
#include <QClipboard>

#include "app/base/text.h"
#include "app/desktop.h"
#include "app/support/desktop_test.h"

namespace kaldo {
namespace {

class KeyboardTest : public test::WorkplaceTest {
 protected:
  KeyboardTest() { WriteStudy(); }

  /// Alt with a letter leads to a field, whose text is replaced, or presses a button.
  Script& Alt(Qt::Key key) { return script_.Press(key, Qt::AltModifier); }

  /// A button that is pressed with its key goes down for a moment first.
  void AltMarks(Qt::Key key, const std::string& name) {
    Alt(key).Until([name] { return test::IsMarked(name); }, "see marked " + name);
  }

  /// Types into fields, which follow each other as often as Tab is pressed.
  void TypeAndTab(const std::vector<const char*>& texts, int tabs) {
    for (std::size_t k = 0; k < texts.size(); ++k) {
      for (int tab = 0; k > 0 && tab < tabs; ++tab) {
        script_.Press(Qt::Key_Tab);
      }
      script_.TypeHere(Text(texts[k]));
    }
  }

  void Confirm(std::string_view next_screen) { script_.Press(Qt::Key_Return).Await(next_screen); }

  /// From the introduction through the steps and the run to the end of the program.
  void RunProgram(const std::function<void()>& steps) {
    script_.Await("Introduction");
    Confirm("MainMenu");
    steps();
    QApplication::clipboard()->clear();
    Alt(Qt::Key_Y).Until([] { return !QApplication::clipboard()->text().isEmpty(); },
                         "see the command copied");
    script_.Do([this](QWidget&) { command_ = QApplication::clipboard()->text(); });
    Confirm("qt_msgbox_label");
    Confirm("Tabs");
    Alt(Qt::Key_L).Await("MainMenu").CloseWindow();
    ASSERT_TRUE(script_.Run([] { EXPECT_EQ(RunDesktop({}), 0); }));
  }
};

TEST_F(KeyboardTest, AnAllocation) {
  const auto steps = [this] {
    script_.TypeHere(Text("p"));
    Alt(Qt::Key_1).Await("NonSexedAllocationFiles").TypeHere(Text("data/parents.txt"));
    Alt(Qt::Key_O);
    TypeAndTab({"data/offspring.txt", "data/loci.txt"}, 2);
    Alt(Qt::Key_T).TypeHere(Text("3"));
    Confirm("ErrorModel");
    script_.Press(Qt::Key_Down).Press(Qt::Key_Space);
    Alt(Qt::Key_G).TypeHere(Text("0.05"));
    Confirm("ChoiceOfLoci");
    script_.Press(Qt::Key_Tab).Press(Qt::Key_Tab).Press(Qt::Key_Space);
    AltMarks(Qt::Key_C, "Sequence");
    Confirm("CumulativeSequence");
    TypeAndTab({"4", "3", "2", "1"}, 1);
    Alt(Qt::Key_Left).Await("ChoiceOfLoci");
    Confirm("CumulativeSequence");
  };
  ASSERT_NO_FATAL_FAILURE(RunProgram(steps));
  for (const char* option :
       {"--tolerance 3", "uniform=0.05", "--use A,C,D", "--sequence 4,3,2,1"}) {
    EXPECT_TRUE(command_.contains(Text(option))) << option << " in " << Bytes(command_);
  }
  ExpectAsCommandLine("p", command_);
}

TEST_F(KeyboardTest, ASimulation) {
  const auto steps = [this] {
    Alt(Qt::Key_3).Await("qt_msgbox_label");
    Confirm("MainMenu");
    script_.TypeHere(Text("p"));
    Alt(Qt::Key_3).Await("NonSexedSimulationStart").TypeHere(Text("data/loci.txt"));
    Alt(Qt::Key_I).TypeHere(Text("3")).Press(Qt::Key_Tab).Press(Qt::Key_Down);
    Confirm("Parents");
    TypeAndTab({"data/parents.txt", "6"}, 2);
    Alt(Qt::Key_U).TypeHere(Text("data/sample.txt"));
    Alt(Qt::Key_N).TypeHere(Text("2.5"));
    Confirm("PseudoOffspring");
    script_.TypeHere(Text("12"));
    AltMarks(Qt::Key_O, "NonUniform");
    Confirm("Tolerance");
    AltMarks(Qt::Key_S, "AllocateWithRun");
    Alt(Qt::Key_T).TypeHere(Text("2"));
    Confirm("Strategy");
    script_.Press(Qt::Key_Space).Press(Qt::Key_Down).Press(Qt::Key_Down);
    Alt(Qt::Key_G).TypeHere(Text("0.4"));
    Confirm("Output");
    AltMarks(Qt::Key_M, "KeepMatrices");
    Alt(Qt::Key_E).TypeHere(Text("5"));
  };
  ASSERT_NO_FATAL_FAILURE(RunProgram(steps));
  for (const char* option : {"--pseudo-collected 6", "--uncollected 2.5", "--iterations 3",
                             "--tolerance 2", "--offspring-per-iteration 12",
                             "--strategy minimal --criterion 0.4", "matrices", "--seed 5"}) {
    EXPECT_TRUE(command_.contains(Text(option))) << option << " in " << Bytes(command_);
  }
  ExpectAsCommandLine("p", command_);
}

}  // namespace
}  // namespace kaldo
