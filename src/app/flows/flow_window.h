// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "app/base/flow_page.h"
#include "runs/keeping_pace.h"

class QLabel;
class QPushButton;
class QScrollArea;

namespace kaldo {

class ElidedLabel;
class OpenedFiles;
struct Problem;

/// A chain of parameter screens that ends in a run. It stands over the main menu until the run is
/// done or the user leaves; what was typed stays for the next time. "OK" confirms a screen, Back
/// returns to the one before. The window keeps its size meanwhile.
class FlowWindow : public QDialog {
 public:
  /// `opened` keeps the input files while the flow is on, and must live as long as this.
  FlowWindow(OpenedFiles& opened, QWidget* parent);

  /// Shows the first screen for a project and returns when the flow is over.
  void Start(const std::string& project);

 protected:
  const std::string& Project() const { return project_; }
  OpenedFiles& Opened() const { return opened_; }

  /// Takes a screen into the flow, which owns it from here on.
  template <typename Page>
  Page* Own(Page* page) {
    pages_.push_back(page);
    Keep(page);
    return page;
  }

  /// The screen that a walk through the flow begins with.
  virtual FlowPage& FirstPage() = 0;

  /// Called at OK: tests what the screen says, and shows the next screen or runs.
  virtual void Confirm(const FlowPage& page) = 0;

  /// Called when the flow is over, run or not.
  virtual void Leave() = 0;

  /// The command line of the run, or nothing while the screens do not make one.
  virtual std::string Command() = 0;

  /// Called before a screen is shown, also by Back.
  virtual void Prepare(const FlowPage& page) = 0;

  /// How many screens follow this one, as far as is known by then.
  virtual std::size_t ScreensBehind(const FlowPage& page) const = 0;

  /// True for a screen whose OK may start the run: it tells where results go.
  virtual bool MayStartRun(const FlowPage& page) const = 0;

  /// Goes on to a screen; Back leads from it to the one before.
  void ShowPage(FlowPage& page);

  /// Shows the problem; the screen stays.
  void Refuse(const Problem& problem);

  /// The folder of the results, in full.
  QString ResultsFolder() const;

  /// Makes the project folder, and puts right what a run that died there left half done; tells why
  /// where that is not possible.
  bool MakeProjectFolder();

  /// Asks before a run of the flow replaces results of another flow. Sets `may_replace` to a Yes;
  /// false when the run is not to be.
  bool AskToReplace(std::string_view flow, bool& may_replace);

  /// Asks whether to go on with an unfinished run of the flow, if there is one.
  KeptWork AskToResume(std::string_view flow);

 private:
  void Keep(QWidget* page);
  void Display(FlowPage& page);
  void GoBack();
  void ConfirmCurrent();
  void CopyCommand();
  void ShowDestination(const FlowPage& page);

  /// Makes room for all screens at the first one, as far as the monitor has it: the window then
  /// keeps its size, and its buttons their place. Only a screen that has grown since makes it
  /// larger.
  void FitScreens();

  OpenedFiles& opened_;
  std::string project_;
  std::vector<FlowPage*> pages_;
  std::vector<FlowPage*> before_;  ///< the screens that Back leads to
  FlowPage* current_ = nullptr;
  QScrollArea* area_;
  ElidedLabel* destination_;
  QLabel* step_;
  QPushButton* copy_;
  QPushButton* back_;
  QPushButton* ok_;
};

}  // namespace kaldo
