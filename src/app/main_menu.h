// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <array>
#include <memory>
#include <optional>
#include <string>

#include "app/base/opened_files.h"
#include "app/flows/record_opener.h"

class QLineEdit;
class QMenu;
class QPushButton;
class QVBoxLayout;

namespace kaldo {

class AllocationFlowWindow;
class ElidedLabel;
class SimulationFlowWindow;

/// The main menu: the name of the project, the four flows, the folder that results go to. Flows run
/// one after the other over the menu; closing the menu ends the program.
class MainMenu : public QWidget {
 public:
  /// `files` is where input files are read from.
  explicit MainMenu(std::unique_ptr<FileSource> files = std::make_unique<DiskFiles>());
  MainMenu(const MainMenu&) = delete;
  MainMenu& operator=(const MainMenu&) = delete;
  MainMenu(MainMenu&&) = delete;
  MainMenu& operator=(MainMenu&&) = delete;
  ~MainMenu() override;

  /// Opens an allocation with the example data.
  void StartExample();

  /// Opens the flow of a run record with all its settings.
  void OpenRecord(const std::string& path);

  /// Shows the results of a finished run; `path` names its folder or its record.
  void OpenResultsOf(const std::string& path);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QWidget* NewFlowGroups();
  QLayout* NewProjectRows();
  QLayout* NewFurtherButtons();

  AllocationFlowWindow& AllocationScreens(Flow flow);
  SimulationFlowWindow& SimulationScreens(Flow flow);

  void StartAllocation(Flow flow);
  void StartSimulation(Flow flow);
  void StartWith(const RunSettings& settings);
  /// Opens a simulation that tries the results of an allocation, and gives back what it found.
  std::optional<std::string> RunTrial(const SimulationSettings& trial);

  void StartExampleOf(Flow flow, bool simulation);
  bool HasProject();
  QPushButton* NewResultsButton();
  void FillResultsMenu(QMenu& menu);
  void ChooseResults();
  void ChooseRecord();
  void ChooseFolder();
  void ShowFolder();

  QLineEdit* project_;
  ElidedLabel* folder_;
  OpenedFiles opened_;  ///< outlives the screens

  // The screens of a flow are made when it is first reached, and keep what was typed.
  std::array<std::unique_ptr<AllocationFlowWindow>, 2> allocations_;
  std::array<std::unique_ptr<SimulationFlowWindow>, 2> simulations_;
};

}  // namespace kaldo
