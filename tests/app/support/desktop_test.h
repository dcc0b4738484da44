// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>

#include <gtest/gtest.h>

#include "app/main_menu.h"
#include "app/support/script.h"
#include "method/flow.h"
#include "tests/support/run_support.h"
#include "tests/support/temp_folder.h"

namespace kaldo::test {

/// All files of a folder and of those below it, by their paths from there.
using Contents = std::map<std::string, std::string>;

/// The same without what two equal runs do not share: when, where, how long, on how many cores.
Contents WithoutCircumstances(Contents contents);

/// Tells by name which files differ; pages of reports would hide it.
void ExpectSame(const Contents& found, const Contents& expected);

/// Runs a command line in a folder, with the command-line program of this build as "kaldo".
void RunCommandLine(const std::string& folder, const QString& command);

/// The messages that were shown, in their order.
std::vector<std::string> Told(const Script& script);

/// These messages were shown and no others.
void ExpectTold(const Script& script, const std::vector<std::string_view>& sentences);

/// The text that stands in a field or a label of the window in front.
QString TextIn(std::string_view name);

/// Whether a box or radio button of the window in front is marked.
bool IsMarked(std::string_view name);

/// A test in a working folder of its own, with the windows closed behind it.
class WorkplaceTest : public testing::Test {
 protected:
  WorkplaceTest() : here_(folder_.Path("")) {}
  void TearDown() override;

  /// Copies the example files to the folder "data".
  static void WriteExamples();

  /// A small study of four loci in the folder "data", for both flows and simulations.
  void WriteStudy() const;

  Contents ContentsOf(const std::string& folder) const;

  /// Runs a command line where the same input files are, and compares all files of the project.
  void ExpectAsCommandLine(const std::string& project, const QString& command) const;

  // NOLINTBEGIN(misc-non-private-member-variables-in-classes)
  TempFolder folder_;
  Script script_;
  QString command_;
  // NOLINTEND(misc-non-private-member-variables-in-classes)

 private:
  WorkingFolder here_;
};

/// The files of this machine, counted as they are read.
class CountedFiles final : public FileSource {
 public:
  explicit CountedFiles(std::map<std::string, int>& reads) : reads_(reads) {}
  tl::expected<std::vector<char>, Problem> Read(const std::string& path) override;

 private:
  std::map<std::string, int>& reads_;
};

/// A test that begins at the main menu.
class MenuTest : public WorkplaceTest {
 protected:
  MenuTest() : menu_(std::make_unique<CountedFiles>(reads_)) { menu_.show(); }

  /// Goes through the script from where the windows are.
  void Go(Script& script);

  /// How often each input file was read, by its path as typed.
  std::map<std::string, int> reads_;  // NOLINT(misc-non-private-member-variables-in-classes)
  MainMenu menu_;                     // NOLINT(misc-non-private-member-variables-in-classes)
};

// Steps that many walks have in common.

/// Opens a flow from the main menu, under a project.
void OpenFlow(Script& script, std::string_view button,
              const QString& project = QStringLiteral("p"));

/// Types the files of an allocation, all of them in one folder.
void TypeAllocationFiles(Script& script, Flow flow, const QString& folder);

/// From the menu to the choice of loci in an allocation of the files in the folder "data", without
/// transmission error.
void WalkToLoci(Script& script, Flow flow);

/// Types a set of parents: the file of the collected ones or of the sample for them, the sample of
/// the uncollected ones; how many uncollected, both estimates (by sex only), how many
/// pseudo-collected (last).
void TypeParents(Script& script, const std::string& sex, bool parental,
                 const std::pair<std::string, std::string>& files,
                 const std::vector<const char*>& numbers);

/// From the menu to the screen of the parents in a simulation with the small study, filled in.
void WalkToParents(Script& script, bool sexed, bool parental);

/// Names a file or a folder in a file dialog.
void PickInDialog(Script& script, const QString& path);

/// From the last screen of a flow: copies the command, runs, answers as many messages, closes the
/// results and waits for the menu. The results tell the same command, and the seed where none was
/// typed; that is the one which comes back.
void RunToTheEnd(Script& script, QString& command, int messages = 1);

/// Compares what a field or label shows when the script gets there.
void ExpectText(Script& script, std::string_view name, const QString& text);

}  // namespace kaldo::test
