// SPDX-License-Identifier: GPL-3.0-or-later
// Every window can be used without a mouse and without eyes, and on a small monitor.
#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <algorithm>

#include <fmt/format.h>

#include "app/base/languages.h"
#include "app/base/screen_table.h"
#include "app/base/text.h"
#include "app/introduction_screen.h"
#include "app/support/desktop_test.h"

namespace kaldo {
namespace {

using test::OpenFlow;
using test::TypeAllocationFiles;
using test::WalkToParents;

/// What is wrong with a window for somebody without a mouse or without eyes.
class Faults {
 public:
  explicit Faults(const QWidget& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      // What Qt makes for itself is named so; the keys of tabs are our own.
      const bool is_of_qt = (widget->objectName().startsWith(Text("qt_")) &&
                             qobject_cast<QTabBar*>(widget) == nullptr) ||
                            qobject_cast<QTabBar*>(widget->parentWidget()) != nullptr;
      if (widget->isVisible() && !is_of_qt) {
        LookAtKeys(*widget);
        LookAtWords(*widget);
      }
    }
  }

  const std::vector<std::string>& All() const { return faults_; }

 private:
  void NoteKey(const QKeySequence& key, const QString& owner) {
    const std::string name = Bytes(key.toString());
    const auto [other, is_new] = keys_.emplace(name, Bytes(owner));
    if (!name.empty() && !is_new && other->second != Bytes(owner)) {
      faults_.push_back(name + " is for " + other->second + " and for " + Bytes(owner));
    }
  }

  void LookAtKeys(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
      NoteKey(QKeySequence::mnemonic(button->text()), button->text());
      NoteKey(button->shortcut(), button->text());
    } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
      NoteKey(QKeySequence::mnemonic(group->title()), group->title());
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
      for (int tab = 0; tab < tabs->count(); ++tab) {
        NoteKey(QKeySequence::mnemonic(tabs->tabText(tab)), tabs->tabText(tab));
      }
    } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
      LookAtLabel(*label);
    }
  }

  void LookAtLabel(const QLabel& label) {
    const QKeySequence key = QKeySequence::mnemonic(label.text());
    if (key.isEmpty()) {
      return;
    }
    NoteKey(key, label.text());
    if (label.buddy() == nullptr || label.buddy()->focusPolicy() == Qt::NoFocus) {
      faults_.push_back("the key of " + Bytes(label.text()) + " leads nowhere");
    }
  }

  void LookAtWords(QWidget& widget) {
    const bool is_table = qobject_cast<const QTableView*>(&widget) != nullptr;
    const bool takes_input = is_table || qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                             qobject_cast<const QComboBox*>(&widget) != nullptr ||
                             qobject_cast<const QLineEdit*>(&widget) != nullptr;
    if (!takes_input || (widget.focusPolicy() & Qt::TabFocus) == 0) {
      return;
    }
    const QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(&widget);
    if (spoken == nullptr || spoken->text(QAccessible::Name).trimmed().isEmpty()) {
      faults_.push_back(Bytes(widget.objectName()) + " has no name to be spoken");
    }
    // The columns of a table have tooltips of their own.
    if (!is_table && widget.toolTip().isEmpty()) {
      faults_.push_back(Bytes(widget.objectName()) + " has no tooltip");
    }
  }

  std::vector<std::string> faults_;
  std::map<std::string, std::string> keys_;
};

void ExpectNoFaults(const QWidget& window, std::string_view name) {
  EXPECT_EQ(Faults(window).All(), std::vector<std::string>{}) << name;
}

/// No screen is scrolled sideways where a monitor of 1366 x 768 is shown twice as large.
void ExpectFits(QWidget& window, std::string_view name) {
  const QSize size = window.size();
  window.resize(683 * 9 / 10, 384 * 9 / 10);
  QCoreApplication::processEvents();
  EXPECT_LE(window.width(), 683) << name;
  for (const QScrollArea* area : window.findChildren<QScrollArea*>()) {
    EXPECT_TRUE(!area->isVisible() || area->horizontalScrollBar()->maximum() == 0) << name;
  }
  window.resize(size);
  QCoreApplication::processEvents();
}

/// Before the windows are made.
class InLanguage : public testing::WithParamInterface<std::string> {
 protected:
  InLanguage() { EXPECT_TRUE(SetLanguage(Text(GetParam()))); }
  ~InLanguage() override { SetLanguage(Text("en")); }
};

class AccessibilityTest : public InLanguage, public test::MenuTest {
 protected:
  AccessibilityTest() { WriteStudy(); }

  /// Waits for a screen and looks for faults in it.
  void Inspect(std::string_view screen) {
    script_.Await(screen).Do([name = std::string(screen)](QWidget& window) {
      ExpectNoFaults(window, name);
      ExpectFits(window, name);
    });
  }

  void InspectAllocation(bool sexed) {
    OpenFlow(script_, sexed ? "ALLOCATIONSEXED" : "ALLOCATIONNON-SEXED",
             sexed ? Text("ponds") : Text("lake"));
    Inspect(sexed ? "SexedAllocationFiles" : "NonSexedAllocationFiles");
    TypeAllocationFiles(script_, sexed ? Flow::kSexed : Flow::kNonSexed, Text("data"));
    script_.Click("Ok");
    Inspect("ErrorModel");
    script_.Click("NoError").Click("Ok");
    Inspect("ChoiceOfLoci");
    script_.Click("Sequence").Click("Ok");
    Inspect("CumulativeSequence");
    script_.Click("Ok");
    InspectResults();
  }

  void InspectSimulation(bool sexed, bool parental) {
    WalkToParents(script_, sexed, parental);
    Inspect("Parents");
    script_.Click("Back");
    Inspect(sexed ? "SexedSimulationStart" : "NonSexedSimulationStart");
    script_.Click("Ok").Await("Parents").Click("Ok");
    Inspect("PseudoOffspring");
    script_.Click("NonUniform").Click("Ok");
    Inspect("Tolerance");
    script_.Click("Ok");
    Inspect("Strategy");
    script_.Click("ChoiceOfLociStrategy").Click("Ok");
    Inspect("ChoiceOfLoci");
    script_.Click("Back").Click("AllSubsets").Click("Ok");
    Inspect("Output");
    script_.Click("Ok");
    InspectResults();
  }

  /// Looks at every tab of the results.
  void InspectResults() {
    script_.Answer().Await("Tabs").Do([](QWidget& window) {
      auto* const tabs = window.findChild<QTabWidget*>(Text("Tabs"));
      for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        ExpectNoFaults(window, Bytes(tabs->tabText(tab)));
        ExpectFits(window, Bytes(tabs->tabText(tab)));
      }
    });
    script_.Click("Close").Await("MainMenu");
  }
};

TEST_P(AccessibilityTest, TheFirstScreens) {
  IntroductionScreen introduction;
  Script first;
  first.Await("Introduction").Do([](QWidget& window) { ExpectNoFaults(window, "Introduction"); });
  first.Press(Qt::Key_Return);
  EXPECT_TRUE(first.Run([&] { introduction.exec(); }));
  Inspect("MainMenu");
  script_.Click("About").Await("AboutBox").Press(Qt::Key_Escape).Await("MainMenu");
  Go(script_);
}

TEST_P(AccessibilityTest, TheScreenThatConvertsFiles) {
  WriteExamples();
  OpenFlow(script_, "ALLOCATIONSEXED");
  script_.Type("MalesFile", Text("data/foreign/adults.csv")).Click("MalesFileConvert");
  script_.Await("Import").Click("ImportMore");
  Inspect("Import");
  script_.Press(Qt::Key_Escape).Press(Qt::Key_Escape).Await("MainMenu");
  Go(script_);
}

TEST_P(AccessibilityTest, AllScreensAndResults) {
  for (const bool sexed : {false, true}) {
    InspectAllocation(sexed);
    InspectSimulation(sexed, false);
    InspectSimulation(sexed, true);
  }
  Go(script_);
}

std::vector<std::string> AllLanguages() {
  const QStringList codes = Languages();
  std::vector<std::string> languages(static_cast<std::size_t>(codes.size()));
  std::transform(codes.begin(), codes.end(), languages.begin(), Bytes);
  return languages;
}

INSTANTIATE_TEST_SUITE_P(In, AccessibilityTest, testing::ValuesIn(AllLanguages()),
                         [](const auto& language) { return language.param; });

}  // namespace
}  // namespace kaldo
