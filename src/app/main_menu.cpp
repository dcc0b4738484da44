// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_menu.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/about_box.h"
#include "app/base/elided_label.h"
#include "app/base/form_fields.h"
#include "app/base/messages.h"
#include "app/base/recent_folders.h"
#include "app/base/screen_table.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/example_data.h"
#include "app/flows/allocation_flow_window.h"
#include "app/flows/results_opener.h"
#include "app/flows/simulation_flow_window.h"
#include "app/guide.h"
#include "app/results/results_window.h"
#include "base/version.h"

namespace kaldo {

namespace {

constexpr FieldText kProject{
    Phrase("Name of project    ----->"), "Project",
    Phrase(
        "Names the folder for the results, in the folder below. A second run under the same name "
        "replaces the results of the first.")};

constexpr auto kAllocation = Phrase("ALLOCATION");
constexpr auto kSimulations = Phrase("SIMULATIONS");

constexpr auto kNonSexedHelp =
    Phrase("One set of candidate parents: any two of them may be a pair");
constexpr auto kSexedHelp = Phrase("Males and females are known: a pair is a male and a female");

constexpr int kWidestPath = 70;  ///< in characters

bool AreResultsOpen() {
  const auto windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && dynamic_cast<const ResultsWindow*>(window) != nullptr;
  });
}

std::size_t FlowPlace(Flow flow) { return static_cast<std::size_t>(flow); }

/// Of one kind of work, which has its name as its object name and as the title of its box.
QPushButton* NewFlowButton(Flow flow, Phrase group, int number, Qt::Key key) {
  const bool sexed = flow == Flow::kSexed;
  auto* const button = new QPushButton(sexed ? Tr("SEXED") : Tr("NON-SEXED"));
  Number(*button, number);
  button->setObjectName(Text(group.English()) + Text(sexed ? "SEXED" : "NON-SEXED"));
  button->setAccessibleName(Tr(group) + Text(", ") + button->text());
  const QKeySequence shortcut(Qt::ALT | key);
  button->setShortcut(shortcut);
  button->setToolTip(Tr(sexed ? kSexedHelp : kNonSexedHelp) + Text(" (") +
                     shortcut.toString(QKeySequence::NativeText) + Text(")"));
  return button;
}

}  // namespace

MainMenu::MainMenu(std::unique_ptr<FileSource> files)
    : project_(new QLineEdit), folder_(new ElidedLabel), opened_(std::move(files)) {
  Name(*this, kMainMenuScreen);
  setWindowTitle(Text(kProductTitle));
  setAcceptDrops(true);
  new GuideKey(this);
  auto* const column = new QVBoxLayout(this);
  column->addLayout(NewProjectRows());
  column->addWidget(NewFlowGroups());
  column->addLayout(NewFurtherButtons());
  column->addStretch();
  ShowFolder();
  project_->setFocus();
}

MainMenu::~MainMenu() = default;

QLayout* MainMenu::NewProjectRows() {
  auto* const form = new QFormLayout;
  form->setRowWrapPolicy(QFormLayout::WrapLongRows);
  Describe(*project_, kProject);
  project_->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
  form->addRow(Tr(kProject.label), project_);
  connect(project_, &QLineEdit::textChanged, this, [this] { ShowFolder(); });

  folder_->setObjectName(Text("ResultsFolder"));
  folder_->setAccessibleName(Tr("Results go to"));
  auto* const choose = NewButton(Phrase("Working &folder..."), "ChooseFolder",
                                 Phrase("Choose where project folders are made"));
  connect(choose, &QPushButton::clicked, this, [this] { ChooseFolder(); });
  auto* const row = new QHBoxLayout;
  row->addWidget(folder_, 1);
  row->addWidget(choose);
  form->addRow(Tr("Results go to"), row);
  return form;
}

QWidget* MainMenu::NewFlowGroups() {
  auto* const groups = new QWidget;
  auto* const row = new QHBoxLayout(groups);
  row->setContentsMargins(0, 0, 0, 0);
  auto* const allocation = new QGroupBox(Tr(kAllocation));
  auto* const simulations = new QGroupBox(Tr(kSimulations));
  auto* const allocation_column = new QVBoxLayout(allocation);
  auto* const simulation_column = new QVBoxLayout(simulations);
  const auto add = [this](QVBoxLayout& column, QPushButton* button, auto start) {
    column.addWidget(button);
    connect(button, &QPushButton::clicked, this, start);
  };
  add(*allocation_column,
      NewFlowButton(Flow::kNonSexed, kAllocation, kNonSexedAllocationButton, Qt::Key_1),
      [this] { StartAllocation(Flow::kNonSexed); });
  add(*allocation_column,
      NewFlowButton(Flow::kSexed, kAllocation, kSexedAllocationButton, Qt::Key_2),
      [this] { StartAllocation(Flow::kSexed); });
  add(*simulation_column,
      NewFlowButton(Flow::kNonSexed, kSimulations, kNonSexedSimulationButton, Qt::Key_3),
      [this] { StartSimulation(Flow::kNonSexed); });
  add(*simulation_column,
      NewFlowButton(Flow::kSexed, kSimulations, kSexedSimulationButton, Qt::Key_4),
      [this] { StartSimulation(Flow::kSexed); });
  row->addWidget(allocation);
  row->addWidget(simulations);
  return groups;
}

QLayout* MainMenu::NewFurtherButtons() {
  auto* const record = NewButton(Phrase("Open &run record..."), "OpenRecord",
                                 Phrase("Fill all screens as they were for an earlier run"));
  connect(record, &QPushButton::clicked, this, [this] { ChooseRecord(); });
  auto* const examples = NewButton(Phrase("&Examples"), "Examples",
                                   Phrase("Open a flow with the files of a made-up study"));
  auto* const menu = new QMenu(examples);
  const auto add = [this, menu](Phrase text, Flow flow, bool simulation) {
    menu->addAction(Tr(text), this, [=, this] { StartExampleOf(flow, simulation); });
  };
  add(Phrase("Allocation, &non-sexed: a lake"), Flow::kNonSexed, false);
  add(Phrase("Allocation, &sexed: two ponds"), Flow::kSexed, false);
  add(Phrase("Simulations, n&on-sexed: after netting the lake"), Flow::kNonSexed, true);
  add(Phrase("Simulations, s&exed: before netting the ponds"), Flow::kSexed, true);
  examples->setMenu(menu);
  auto* const about =
      NewButton(Phrase("A&bout KALDO..."), "About", Phrase("Version, licence, how to cite"));
  connect(about, &QPushButton::clicked, this, [this] { ShowAboutBox(this); });
  auto* const row = new QHBoxLayout;
  row->addWidget(NewResultsButton());
  row->addWidget(record);
  row->addWidget(examples);
  row->addStretch();
  row->addWidget(about);
  return row;
}

QPushButton* MainMenu::NewResultsButton() {
  auto* const results =
      NewButton(Phrase("&Open results"), "OpenResults",
                Phrase("Show the results of a finished run again, without running it"));
  auto* const menu = new QMenu(results);
  menu->setToolTipsVisible(true);
  connect(menu, &QMenu::aboutToShow, this, [this, menu] { FillResultsMenu(*menu); });
  results->setMenu(menu);
  return results;
}

void MainMenu::FillResultsMenu(QMenu& menu) {
  menu.clear();
  int number = 0;
  for (const QString& folder : RecentFolders()) {
    const int width = fontMetrics().averageCharWidth() * kWidestPath;
    QString name =
        fontMetrics().elidedText(QDir::toNativeSeparators(folder), Qt::ElideMiddle, width);
    name.replace(QLatin1Char('&'), Text("&&"));
    QAction* const action =
        menu.addAction(Text("&%1  %2").arg(QString::number(++number), name), this,
                       [this, folder] { OpenResultsOf(PathBytes(folder)); });
    action->setToolTip(TipText(QDir::toNativeSeparators(folder)));
  }
  if (number > 0) {
    menu.addSeparator();
  }
  menu.addAction(Tr("&Another folder..."), this, [this] { ChooseResults(); });
  if (number > 0) {
    menu.addAction(Tr("&Forget these folders"), this, [] { ForgetFolders(); });
  }
}

void MainMenu::OpenResultsOf(const std::string& path) {
  OpenResults(this, path, [this](const SimulationSettings& trial) { return RunTrial(trial); });
}

void MainMenu::ChooseResults() {
  const QString picked = QFileDialog::getExistingDirectory(
      this, Tr("Folder with the results of a run"), QDir::currentPath());
  if (!picked.isEmpty()) {
    OpenResultsOf(PathBytes(picked));
  }
}

AllocationFlowWindow& MainMenu::AllocationScreens(Flow flow) {
  auto& screens = allocations_.at(FlowPlace(flow));
  if (!screens) {
    screens = std::make_unique<AllocationFlowWindow>(flow, opened_, this);
    screens->SetOnTrial([this](const SimulationSettings& trial) { return RunTrial(trial); });
  }
  return *screens;
}

SimulationFlowWindow& MainMenu::SimulationScreens(Flow flow) {
  auto& screens = simulations_.at(FlowPlace(flow));
  if (!screens) {
    screens = std::make_unique<SimulationFlowWindow>(flow, opened_, this);
  }
  return *screens;
}

bool MainMenu::HasProject() {
  if (!project_->text().isEmpty()) {
    return true;
  }
  ShowSentence(this, "Please enter name of project!");
  return false;
}

void MainMenu::StartAllocation(Flow flow) {
  if (HasProject()) {
    AllocationScreens(flow).Start(PathBytes(project_->text()));
  }
}

void MainMenu::StartSimulation(Flow flow) {
  if (HasProject()) {
    SimulationScreens(flow).Start(PathBytes(project_->text()));
  }
}

void MainMenu::StartWith(const RunSettings& settings) {
  ShowFolder();
  if (const auto* allocation = std::get_if<AllocationSettings>(&settings)) {
    project_->setText(PathText(allocation->project));
    AllocationScreens(allocation->flow).Set(*allocation);
    StartAllocation(allocation->flow);
  } else if (const auto* simulation = std::get_if<SimulationSettings>(&settings)) {
    project_->setText(PathText(simulation->project));
    SimulationScreens(simulation->flow).Set(*simulation);
    StartSimulation(simulation->flow);
  }
}

std::optional<std::string> MainMenu::RunTrial(const SimulationSettings& trial) {
  const QString project = project_->text();
  StartWith(trial);
  project_->setText(project);
  return SimulationScreens(trial.flow).Found();
}

void MainMenu::StartExample() { StartExampleOf(Flow::kNonSexed, false); }

void MainMenu::StartExampleOf(Flow flow, bool simulation) {
  const auto start = [this](const auto& example) {
    if (example) {
      StartWith(*example);
    } else {
      ShowFailure(this, TrCore(example.error()));
    }
  };
  if (simulation) {
    start(SimulationExample(flow));
  } else {
    start(AllocationExample(flow));
  }
}

void MainMenu::OpenRecord(const std::string& path) {
  if (const auto settings = OpenRunRecord(this, path)) {
    StartWith(*settings);
  }
}

void MainMenu::ChooseRecord() {
  const QString picked = QFileDialog::getOpenFileName(
      this, Tr("Open run record"), QDir::currentPath(), Tr("Run records (*.toml);;All files (*)"));
  if (!picked.isEmpty()) {
    OpenRecord(PathBytes(picked));
  }
}

void MainMenu::ChooseFolder() {
  const QString picked =
      QFileDialog::getExistingDirectory(this, Tr("Working folder"), QDir::currentPath());
  if (!picked.isEmpty() && !QDir::setCurrent(picked)) {
    ShowFailure(this, Tr("Cannot use the folder %1").arg(picked));
  }
  ShowFolder();
}

void MainMenu::ShowFolder() {
  const QString folder =
      QDir::toNativeSeparators(QDir::current().absoluteFilePath(project_->text()));
  folder_->SetText(folder, folder);
  folder_->setToolTip(
      TipText(folder + Text("\n") + Tr("Made when the first screen of a flow is confirmed")));
}

void MainMenu::closeEvent(QCloseEvent* event) {
  if (AreResultsOpen() &&
      !AskBeforeLoss(this, Tr("Results are open. Close them, too? They stay in their folders and "
                              "can be opened again."))) {
    event->ignore();
    return;
  }
  event->accept();
  QApplication::quit();  // results windows go with the menu
}

void MainMenu::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->urls().size() == 1) {
    event->acceptProposedAction();
  }
}

void MainMenu::dropEvent(QDropEvent* event) {
  const QList<QUrl> urls = event->mimeData()->urls();
  if (urls.size() == 1 && urls.front().isLocalFile()) {
    event->acceptProposedAction();
    const QString dropped = urls.front().toLocalFile();
    if (QFileInfo(dropped).isDir()) {
      OpenResultsOf(PathBytes(dropped));
    } else {
      OpenRecord(PathBytes(dropped));
    }
  }
}

}  // namespace kaldo
