// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/report_set.h"

#include <csignal>
#include <filesystem>
#include <functional>
#include <sys/resource.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "base/problem.h"
#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::ReadFile;
using test::TempFolder;

using Names = std::vector<std::string>;

/// Lets no file grow beyond so many bytes while it lives, as a full disk does.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &earlier_), 0);
    earlier_handler_ = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, earlier_.rlim_max};
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  FullDisk(FullDisk&&) = delete;
  FullDisk& operator=(FullDisk&&) = delete;
  ~FullDisk() {
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &earlier_), 0);
    (void)std::signal(SIGXFSZ, earlier_handler_);
  }

 private:
  rlimit earlier_{};
  void (*earlier_handler_)(int) = nullptr;
};

class ReportSetTest : public testing::Test {
 protected:
  ReportSetTest() {
    folder_.Write("lake/a.xls", "earlier a\n");
    folder_.Write("lake/b.xls", "earlier b\n");
  }

  ProjectFolder Project() const { return ProjectFolder(folder_.Path("lake")); }
  std::string Read(const std::string& name) const { return ReadFile(folder_.Path("lake/" + name)); }

  void ExpectEarlierReports() const {
    EXPECT_EQ(folder_.FilesIn("lake"), (Names{"a.xls", "b.xls"}));
    EXPECT_EQ(Read("a.xls"), "earlier a\n");
    EXPECT_EQ(Read("b.xls"), "earlier b\n");
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

  TempFolder folder_;  // NOLINT(misc-non-private-member-variables-in-classes)
};

TEST_F(ReportSetTest, ChangesNothingBeforeCommit) {
  std::string long_text;
  ReportSet reports(Project());
  ReportFile& report = reports.Add("/a.xls");
  for (int line = 0; line < 100'000; ++line) {
    const std::string text = "line " + std::to_string(line) + '\n';
    report.Append(text);
    long_text += text;
  }
  reports.Add("/c.xls", "new c\n");
  reports.Add("/empty.xls", "");
  reports.Remove("/b.xls");
  reports.Remove("/never written.xls");
  EXPECT_EQ(Read("a.xls"), "earlier a\n");
  EXPECT_EQ(Read("b.xls"), "earlier b\n");
  EXPECT_FALSE(std::filesystem::exists(folder_.Path("lake/c.xls")));

  reports.Commit();
  EXPECT_EQ(folder_.FilesIn("lake"), (Names{"a.xls", "c.xls", "empty.xls"}));
  EXPECT_TRUE(Read("a.xls") == long_text);
  EXPECT_EQ(Read("c.xls"), "new c\n");
  EXPECT_EQ(Read("empty.xls"), "");
}

TEST_F(ReportSetTest, AFailedRunLeavesNoTrace) {
  {
    ReportSet reports(Project());
    reports.Add("/a.xls", std::string(1'000'000, 'x'));
    reports.Remove("/b.xls");
    EXPECT_EQ(folder_.FilesIn("lake").size(), 3U) << "the report grows beside the earlier one";
  }
  ExpectEarlierReports();
  {
    ReportSet reports(ProjectFolder(folder_.Path("new/deeper")));
    reports.Add("/a.xls", "text");
  }
  EXPECT_FALSE(std::filesystem::exists(folder_.Path("new/deeper")));
}

TEST_F(ReportSetTest, AFullDiskLeavesTheEarlierReports) {
  // Found while the report is written ...
  EXPECT_EQ(FailureOf([this] {
              const FullDisk disk(100'000);
              ReportSet reports(Project());
              reports.Add("/a.xls", std::string(1'000'000, 'x'));
            }),
            "Cannot write \"" + folder_.Path("lake/a.xls") + "\": File too large");
  ExpectEarlierReports();
  // ... or only when the last of several is finished.
  EXPECT_EQ(FailureOf([this] {
              const FullDisk disk(1'000);
              ReportSet reports(Project());
              reports.Add("/a.xls", "new a\n");
              reports.Add("/b.xls", std::string(5'000, 'x'));
              reports.Commit();
            }),
            "Cannot write \"" + folder_.Path("lake/b.xls") + "\": File too large");
  ExpectEarlierReports();
}

TEST_F(ReportSetTest, AFolderInTheWayIsToldBeforeAnythingIsWritten) {
  folder_.Write("lake/c.xls/file", "");
  EXPECT_EQ(
      FailureOf([this] {
        ReportSet reports(Project());
        reports.Add("/a.xls", "new a\n");
        reports.Add("/c.xls", "new c\n");
        reports.Commit();
      }),
      "Cannot replace \"" + folder_.Path("lake/c.xls") + "\": a folder of that name is in the way");
  std::filesystem::remove_all(folder_.Path("lake/c.xls"));
  ExpectEarlierReports();
}

// Whatever the failure, the earlier reports stay as they were.
TEST_F(ReportSetTest, AFolderInPlaceOfAnObsoleteReportDoesNotHalfFinishARun) {
  folder_.Write("lake/Service file.xls/notes.txt", "the user's own");
  const std::string failure = FailureOf([this] {
    ReportSet reports(Project());
    reports.Add("/a.xls", "new a\n");
    reports.Remove("/Service file.xls");
    reports.Commit();
  });
  EXPECT_EQ(ReadFile(folder_.Path("lake/Service file.xls/notes.txt")), "the user's own");
  EXPECT_EQ(Read("a.xls"), failure == "no failure" ? "new a\n" : "earlier a\n") << failure;
}

TEST_F(ReportSetTest, TellsAFolderThatCannotBeMadeOrWritten) {
  for (const std::string name : {"lake/a.xls", "lake/a.xls/deeper"}) {
    const std::string path = folder_.Path(name);
    EXPECT_EQ(FailureOf([&path] { ReportSet{ProjectFolder(path)}; }),
              "Cannot make the folder \"" + path + "\": Not a directory");
  }
  ExpectEarlierReports();
  if (::geteuid() == 0) {
    return;  // the superuser may write anywhere
  }
  std::filesystem::permissions(folder_.Path("lake"), std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::remove);
  EXPECT_EQ(FailureOf([this] { ReportSet(Project()).Add("/a.xls"); }),
            "Cannot open \"" + folder_.Path("lake/a.xls") + "\": Permission denied");
  std::filesystem::permissions(folder_.Path("lake"), std::filesystem::perms::owner_write,
                               std::filesystem::perm_options::add);
  ExpectEarlierReports();
}

}  // namespace
}  // namespace kaldo
