// SPDX-License-Identifier: GPL-3.0-or-later

// Takes the pictures of the user guide: walks through all four flows with the example data and
// saves every screen. Usage: kaldo_screenshots FOLDER [dark] [LANGUAGE]

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QProgressBar>
#include <QSettings>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <array>
#include <utility>

#include "allocation/allocation_run.h"
#include "app/base/elided_label.h"
#include "app/base/languages.h"
#include "app/base/text.h"
#include "app/desktop.h"
#include "app/example_data.h"
#include "app/introduction_screen.h"
#include "app/main_menu.h"
#include "app/support/script.h"

namespace kaldo {

namespace {

QPalette DarkPalette() {
  QPalette palette(QColor(66, 66, 68), QColor(53, 53, 55));
  palette.setColor(QPalette::Base, QColor(38, 38, 40));
  palette.setColor(QPalette::AlternateBase, QColor(48, 48, 50));
  palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
  palette.setColor(QPalette::Highlight, QColor(60, 110, 170));
  palette.setColor(QPalette::Link, QColor(120, 170, 240));
  return palette;
}

/// The folder of a user, in place of the one in which the pictures are taken: a guide that is taken
/// again shows the same.
void ShowHome(const QWidget& window) {
  const QString here = QDir::currentPath();
  const QString home = Text("/home/ana");
  for (QLabel* label : window.findChildren<QLabel*>()) {
    if (label->text().contains(here)) {
      label->setText(label->text().replace(here, home));
    }
  }
  for (QTextEdit* text : window.findChildren<QTextEdit*>()) {
    if (text->toPlainText().contains(here)) {
      text->setHtml(text->toHtml().replace(here, home));
    }
  }
}

/// The same moment of every run.
void ShowOneMoment(const QWidget& window) {
  auto* const bar = window.findChild<QProgressBar*>(Text("RunBar"));
  auto* const time = window.findChild<QLabel*>(Text("RunTime"));
  auto* const part = window.findChild<QLabel*>(Text("RunPart"));
  if (bar != nullptr && time != nullptr && part != nullptr) {
    part->setText(part->text().section(QLatin1Char(':'), 0, 0));
    time->setText(Text("63750 of 255000, 0:12 elapsed, about 0:36 left"));
    bar->setRange(0, 4);
    bar->setValue(1);
  }
}

class Photographer {
 public:
  explicit Photographer(QString folder) : folder_(std::move(folder)) { QDir().mkpath(folder_); }

  /// Saves the window in front once it has been laid out.
  void Take(Script& script, std::string_view name) const {
    const QString path = folder_ + Text("/") + Text(name) + Text(".png");
    script.Do([path](QWidget& window) {
      QTest::qWait(50);
      ShowHome(window);
      ShowOneMoment(window);
      if (!window.grab().save(path)) {
        qWarning("cannot write %s", qPrintable(path));
      }
    });
  }

  /// Saves every tab of a results window, then closes it.
  void TakeResults(Script& script, std::string_view name) const {
    const QString path = folder_ + Text("/") + Text(name);
    script.Await("Tabs").Do([path](QWidget& window) {
      auto* const tabs = window.findChild<QTabWidget*>(Text("Tabs"));
      for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        QTest::qWait(100);
        ShowHome(window);
        const QString shown = tabs->widget(tab)->objectName().chopped(3).toLower();  // "Tab"
        if (!window.grab().save(path + Text("-") + shown + Text(".png"))) {
          qWarning("cannot write into %s", qPrintable(path));
        }
      }
      window.close();
    });
  }

 private:
  QString folder_;
};

void TakeFirstScreens(const Photographer& photographer) {
  IntroductionScreen introduction;
  Script script;
  script.Await("Introduction");
  photographer.Take(script, "introduction");
  script.Click("Ok");
  script.Run([&] { introduction.exec(); });
}

/// The run in front beside one with fewer loci and their errors.
void TakeComparison(const Photographer& photographer, Script& script, std::string_view name) {
  script.Await("Tabs").Do([](QWidget&) {
    auto settings = AllocationExample(Flow::kSexed).value();
    settings.project = std::string("fewer-loci");
    settings.loci_in_use = {"Mir03Di", "Mir14Di", "Mir21Di", "Mir05Tet"};
    RunObserver observer;
    if (!RunAllocation(settings, observer)) {
      qWarning("cannot run with fewer loci");
    }
  });
  script.Press(Qt::Key_D, Qt::ControlModifier).Await("fileNameEdit").Do([](QWidget&) {
    VisibleField("fileNameEdit")
        ->setText(QDir().absoluteFilePath(Text("fewer-loci/Run record.toml")));
  });
  script.Press(Qt::Key_Return).Await("RunComparisonSentence");
  photographer.Take(script, name);
  script.Click("Close");
}

/// The screens of an allocation that the example has filled in.
void TakeAllocation(const Photographer& photographer, MainMenu& menu, bool sexed) {
  const std::string name = sexed ? "allocation-sexed" : "allocation-non-sexed";
  Script script;
  script.Click("Examples").Press(Qt::Key_Down);
  if (sexed) {
    script.Press(Qt::Key_Down);
  }
  script.Press(Qt::Key_Return);
  script.Await(sexed ? "SexedAllocationFiles" : "NonSexedAllocationFiles");
  photographer.Take(script, name + "-files");
  script.Click("Ok").Await("ErrorModel");
  photographer.Take(script, name + "-error");
  script.Click("Ok").Await("ChoiceOfLoci");
  photographer.Take(script, name + "-loci");
  if (sexed) {
    script.Click("Sequence").Click("Ok").Await("CumulativeSequence");
    photographer.Take(script, name + "-sequence");
  }
  script.Click("Ok").Answer();
  if (sexed) {
    TakeComparison(photographer, script, name + "-results-compared");
  }
  photographer.TakeResults(script, name + "-results");
  script.Run([&menu] { menu.activateWindow(); });
}

void TakeSimulation(const Photographer& photographer, MainMenu& menu, bool sexed) {
  const std::string name = sexed ? "simulation-sexed" : "simulation-non-sexed";
  Script script;
  script.Click("Examples");
  for (int step = 0; step < (sexed ? 4 : 3); ++step) {
    script.Press(Qt::Key_Down);
  }
  script.Press(Qt::Key_Return);
  script.Await(sexed ? "SexedSimulationStart" : "NonSexedSimulationStart");
  photographer.Take(script, name + "-start");
  const std::array<std::pair<std::string_view, std::string_view>, 4> screens{
      {{"Parents", "-parents"},
       {"PseudoOffspring", "-offspring"},
       {"Tolerance", "-tolerance"},
       {"Strategy", "-strategy"}}};
  for (const auto& [screen, ending] : screens) {
    script.Click("Ok").Await(screen);
    photographer.Take(script, name + std::string(ending));
  }
  script.Click(sexed ? "CumulativeStrategy" : "MinimalSubsets");
  script.Click("Ok").Await(sexed ? "CumulativeSequence" : "Output");
  if (sexed) {
    script.Click("Ok").Await("Output");
  }
  photographer.Take(script, name + "-output");
  script.Click("Ok").Answer();
  photographer.TakeResults(script, name + "-results");
  script.Run([&menu] { menu.activateWindow(); });
}

/// A run that is long enough to be looked at, and stopped.
void TakeProgress(const Photographer& photographer, MainMenu& menu) {
  Script script;
  script.Click("Examples");
  for (int step = 0; step < 4; ++step) {
    script.Press(Qt::Key_Down);
  }
  script.Press(Qt::Key_Return).Await("SexedSimulationStart").Type("Iterations", Text("1000"));
  script.Click("Ok").Click("Ok").Await("PseudoOffspring");
  script.Type("OffspringPerIteration", Text("5000")).Click("Ok").Await("Tolerance").Click("Ok");
  script.Await("Strategy").Click("AllSubsets").Click("Ok").Await("Output").Click("Ok");
  script.Until(
      [] {
        const auto* const bar = qobject_cast<QProgressBar*>(VisibleWidget("RunBar"));
        return bar != nullptr && bar->value() > 0;
      },
      "see progress");
  photographer.Take(script, "running");
  script.Click("RunCancel").Answer().Press(Qt::Key_Escape);
  script.Run([&menu] { menu.activateWindow(); });
}

/// A spreadsheet has dropped the leading zero of a field.
void TakeMessage(const Photographer& photographer, MainMenu& menu) {
  QFile young(Text("kaldo-example/data/non-sexed/offspring.txt"));
  QFile broken(Text("kaldo-example/data/non-sexed/young.txt"));
  if (!young.open(QIODevice::ReadOnly) || !broken.open(QIODevice::WriteOnly)) {
    qWarning("cannot write the broken file");
    return;
  }
  QByteArray text = young.readAll();
  text.remove(text.indexOf(" 0") + 1, 1);
  broken.write(text);
  broken.close();
  Script script;
  script.Click("Examples").Press(Qt::Key_Down).Press(Qt::Key_Return);
  script.Await("NonSexedAllocationFiles").Type("OffspringFile", broken.fileName()).Click("Ok");
  script.Await("qt_msgbox_label");
  photographer.Take(script, "message");
  script.Answer();
  script.Run([&menu] { menu.activateWindow(); });
}

/// A file of another program, from its field to the screen that converts it.
void TakeImport(const Photographer& photographer, MainMenu& menu) {
  QFile::copy(Text(KALDO_ROOT "/examples/foreign/pond.gen"), Text("pond.gen"));
  Script script;
  script.Await("MainMenu").Type("Project", Text("lake"));
  script.Click("ALLOCATIONNON-SEXED").Await("NonSexedAllocationFiles");
  script.Type("ParentsFile", Text("pond.gen")).Await("ParentsFileConvert");
  photographer.Take(script, "import-field");
  script.Click("ParentsFileConvert").Await("Import");
  script.Press(Qt::Key_P, Qt::AltModifier).Press(Qt::Key_End).Press(Qt::Key_Space);
  script.Do([](QWidget&) { QTest::qWait(600); });
  photographer.Take(script, "import");
  script.Press(Qt::Key_Escape).Press(Qt::Key_Escape).Await("MainMenu");
  script.Run([&menu] { menu.activateWindow(); });
}

int TakeAll(const QString& folder) {
  const QTemporaryDir work;
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  const Photographer photographer(QDir::current().absoluteFilePath(folder));
  QDir::setCurrent(work.path());
  TakeFirstScreens(photographer);
  MainMenu menu;
  menu.show();
  Script first;
  first.Await("MainMenu").Type("Project", Text("lake"));
  photographer.Take(first, "menu");
  first.Click("About").Await("AboutBox");
  photographer.Take(first, "about");
  first.Press(Qt::Key_Escape);
  bool done = first.Run([] {});
  for (const bool sexed : {false, true}) {
    TakeAllocation(photographer, menu, sexed);
    TakeSimulation(photographer, menu, sexed);
  }
  TakeProgress(photographer, menu);
  TakeMessage(photographer, menu);
  TakeImport(photographer, menu);
  return done ? 0 : 1;
}

}  // namespace

}  // namespace kaldo

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  kaldo::PrepareApplication();
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);  // seen in every picture, or in none
  QApplication::setStyle(QStyleFactory::create(kaldo::Text("Fusion")));
  if (argc < 2) {
    qWarning("usage: kaldo_screenshots FOLDER [dark] [LANGUAGE]");
    return 2;
  }
  for (const QString& wish : QCoreApplication::arguments().mid(2)) {
    if (!kaldo::SetLanguage(wish)) {
      QApplication::setPalette(kaldo::DarkPalette());
    }
  }
  return kaldo::TakeAll(QString::fromLocal8Bit(argv[1]));
}
