// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/report_set.h"

#include <filesystem>
#include <functional>
#include <unistd.h>

#include <gtest/gtest.h>

#include "base/problem.h"
#include "runs/project_lock.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::ReadFile;
using test::TempFolder;

using Names = std::vector<std::string>;

/// Remembers what the user is told.
class Listener final : public RunObserver {
 public:
  void OnMessage(RunMessage /*kind*/, std::string_view sentence) override { told += sentence; }
  std::string told;
};

// Whatever fails at the disk is tested with whole runs; here is what one process can see.
class ReportSetTest : public testing::Test {
 protected:
  ReportSetTest() {
    folder_.Write("lake/Summary.xls", "earlier a\n");
    folder_.Write("lake/uncollected males.txt", "earlier b\n");
  }

  ReportsOrder Order(const std::string& name = "lake") const {
    return {ProjectFolder(folder_.Path(name)), "simulation, sexed", inputs_};
  }
  std::string Read(const std::string& name) const { return ReadFile(folder_.Path("lake/" + name)); }

  void ExpectEarlierReports() const {
    EXPECT_EQ(folder_.FilesIn("lake"), (Names{"Summary.xls", "uncollected males.txt"}));
    EXPECT_EQ(Read("Summary.xls"), "earlier a\n");
    EXPECT_EQ(Read("uncollected males.txt"), "earlier b\n");
  }

  /// What the run fails with.
  static std::string FailureOf(const std::function<void()>& run) {
    try {
      run();
    } catch (const RunFailure& failure) {
      return failure.what();
    }
    return "no failure";
  }

  // NOLINTBEGIN(misc-non-private-member-variables-in-classes)
  TempFolder folder_;
  std::vector<RecordedInput> inputs_;
  Listener listener_;
  // NOLINTEND(misc-non-private-member-variables-in-classes)
};

TEST_F(ReportSetTest, ChangesNothingBeforeCommit) {
  std::string long_text;
  ReportSet reports(Order(), listener_);
  ReportFile& report = reports.Add("/Summary.xls");
  for (int line = 0; line < 100'000; ++line) {
    const std::string text = "line " + std::to_string(line) + '\n';
    report.Append(text);
    long_text += text;
  }
  reports.AddIfAny("/pseudo-offspring.txt").Append("new c\n");
  reports.Add("/Service file.xls");
  reports.AddIfAny("/uncollected males.txt");
  reports.Remove("/uncollected females.txt");
  EXPECT_EQ(Read("Summary.xls"), "earlier a\n");
  EXPECT_EQ(Read("uncollected males.txt"), "earlier b\n");

  reports.Commit();
  EXPECT_TRUE(Read("Summary.xls") == long_text);
  EXPECT_EQ(Read("pseudo-offspring.txt"), "new c\n");
  EXPECT_EQ(Read("Service file.xls"), "");
  EXPECT_FALSE(std::filesystem::exists(folder_.Path("lake/uncollected males.txt")));
}

TEST_F(ReportSetTest, AFailedRunLeavesNoTrace) {
  {
    ReportSet reports(Order(), listener_);
    reports.Add("/Summary.xls").Append(std::string(1'000'000, 'x'));
    reports.Remove("/uncollected males.txt");
    EXPECT_EQ(folder_.FilesIn("lake").size(), 4U) << "the lock and the working folder";
  }
  ExpectEarlierReports();
  {
    ReportSet reports(Order("new/deeper"), listener_);
    reports.Add("/Summary.xls").Append("text");
  }
  EXPECT_FALSE(std::filesystem::exists(folder_.Path("new")));
}

TEST_F(ReportSetTest, OneRunAtATime) {
  {
    ReportSet reports(Order(), listener_);
    reports.Add("/Summary.xls").Append("new a\n");
    const std::string failure = FailureOf([this] { ReportSet{Order(), listener_}; });
    EXPECT_EQ(failure.find("Another run is at work in \"" + folder_.Path("lake") + "\" (process "),
              0U)
        << failure;
    EXPECT_EQ(RecoverProject(ProjectFolder(folder_.Path("lake"))), std::nullopt);
    reports.Commit();
  }
  EXPECT_EQ(Read("Summary.xls"), "new a\n");
}

TEST_F(ReportSetTest, RefusesToDestroyAnInput) {
  std::filesystem::create_symlink("uncollected males.txt", folder_.Path("lake/link"));
  std::filesystem::create_hard_link(folder_.Path("lake/uncollected males.txt"),
                                    folder_.Path("other name"));
  for (const char* const path : {"lake/uncollected males.txt", "lake/../lake/uncollected males.txt",
                                 "lake/link", "other name"}) {
    inputs_ = {{"sample of uncollected males", folder_.Path(path), {}}};
    EXPECT_THROW(ReportSet(Order(), listener_).Remove("/uncollected males.txt"), RunRefused);
    EXPECT_THROW(ReportSet(Order(), listener_).AddIfAny("/uncollected males.txt"), RunRefused);
    EXPECT_NO_THROW(ReportSet(Order(), listener_).Add("/Summary.xls"));
  }
  // An output may be a link to an input.
  std::filesystem::create_symlink(folder_.Path("other name"),
                                  folder_.Path("lake/Service file.xls"));
  EXPECT_THROW(ReportSet(Order(), listener_).Add("/Service file.xls"), RunRefused);
}

TEST_F(ReportSetTest, AFolderInTheWayIsToldBeforeAnythingIsWritten) {
  folder_.Write("lake/Service file.xls/notes.txt", "the user's own");
  for (const bool removed : {false, true}) {
    EXPECT_EQ(FailureOf([&] {
                ReportSet reports(Order(), listener_);
                removed ? reports.Remove("/Service file.xls")
                        : (void)reports.Add("/Service file.xls");
              }),
              "Cannot replace \"" + folder_.Path("lake/Service file.xls") +
                  "\": a folder of that name is in the way");
  }
  EXPECT_EQ(ReadFile(folder_.Path("lake/Service file.xls/notes.txt")), "the user's own");
}

TEST_F(ReportSetTest, TellsAFolderThatCannotBeMadeOrWritten) {
  for (const std::string name : {"lake/Summary.xls", "lake/Summary.xls/deeper"}) {
    EXPECT_EQ(FailureOf([&] {
                ReportSet{Order(name), listener_};
              }),
              "Cannot make the folder \"" + folder_.Path(name) + "\": \"" +
                  folder_.Path("lake/Summary.xls") + "\" is a file");
  }
  ExpectEarlierReports();
  if (::geteuid() == 0) {
    return;  // the superuser may write anywhere
  }
  std::filesystem::permissions(folder_.Path("lake"), std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::remove);
  EXPECT_EQ(FailureOf([this] {
              ReportSet{Order(), listener_};
            }),
            "Cannot write into the folder \"" + folder_.Path("lake") + "\": Permission denied");
  std::filesystem::permissions(folder_.Path("lake"), std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::add);
  ExpectEarlierReports();
}

// A journal that somebody wrote must not move files elsewhere.
TEST_F(ReportSetTest, ABrokenJournalMovesNothing) {
  const std::string working = "lake/.kaldo-0123456789abcdef/";
  folder_.Write(working + "old/x", "");
  folder_.Write(working + "new/x", "");
  for (const char* const lines : {"place new /../../outside\nend\n", "place new /x\n"}) {
    folder_.Write(working + "journal", std::string("KALDO exchanges results\n") + lines);
    const std::string failure =
        FailureOf([this] { (void)RecoverProject(ProjectFolder(folder_.Path("lake"))); });
    EXPECT_NE(failure.find("cannot be read"), std::string::npos) << lines << failure;
    EXPECT_EQ(folder_.FilesIn(working + "new"), Names{"x"});
  }
}

}  // namespace
}  // namespace kaldo
