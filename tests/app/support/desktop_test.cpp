// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/support/desktop_test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <array>
#include <filesystem>
#include <regex>

#include <fmt/format.h>

#include "app/base/text.h"
#include "base/shell_text.h"

namespace kaldo::test {

namespace {

constexpr int kGenerous = 120'000;  // milliseconds: against a hang only

}  // namespace

Contents WithoutCircumstances(Contents contents) {
  static const std::regex circumstances("(date|folder|threads|duration_seconds) = .*\n");
  for (auto& [name, text] : contents) {
    if (name.ends_with("Run record.toml")) {
      text = std::regex_replace(text, circumstances, "");
    }
  }
  return contents;
}

void ExpectSame(const Contents& found, const Contents& expected) {
  std::vector<std::string> found_names;
  for (const auto& [name, text] : found) {
    found_names.push_back(name);
    const auto other = expected.find(name);
    EXPECT_TRUE(other != expected.end() && other->second == text) << name << " is another";
  }
  std::vector<std::string> expected_names;
  for (const auto& [name, text] : expected) {
    expected_names.push_back(name);
  }
  EXPECT_EQ(found_names, expected_names);
}

void RunCommandLine(const std::string& folder, const QString& command) {
  QProcess shell;
  shell.setWorkingDirectory(PathText(folder));
  const std::string programs = std::filesystem::path(KALDO_PROGRAM).parent_path().string();
  shell.start(Text("/bin/sh"), {Text("-c"), Text("PATH='" + programs + "':$PATH\n") + command});
  ASSERT_TRUE(shell.waitForFinished(kGenerous));
  ASSERT_EQ(shell.exitCode(), 0) << Bytes(command) << shell.readAllStandardError().toStdString();
}

std::vector<std::string> Told(const Script& script) {
  std::vector<std::string> sentences;
  for (const QString& sentence : script.Messages()) {
    sentences.push_back(Bytes(sentence));
  }
  return sentences;
}

void ExpectTold(const Script& script, const std::vector<std::string_view>& sentences) {
  EXPECT_EQ(Told(script), std::vector<std::string>(sentences.begin(), sentences.end()));
}

QString TextIn(std::string_view name) {
  if (const QLineEdit* const field = VisibleField(name)) {
    return field->text();
  }
  const auto* label = qobject_cast<QLabel*>(VisibleWidget(name));
  return label != nullptr ? label->text() : Text("nothing of that name");
}

bool IsMarked(std::string_view name) {
  const auto* button = qobject_cast<QAbstractButton*>(VisibleWidget(name));
  return button != nullptr && button->isChecked();
}

void WorkplaceTest::TearDown() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->testAttribute(Qt::WA_DeleteOnClose)) {
      window->close();
    }
  }
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WorkplaceTest::WriteExamples() {
  std::filesystem::copy(
      std::string(KALDO_ROOT) + "/examples", "data",
      std::filesystem::copy_options::recursive | std::filesystem::copy_options::overwrite_existing);
}

void WorkplaceTest::WriteStudy() const {
  const std::array<std::string, 4> adults{
      "100102 200204 150150 120124", "104104 208208 152154 128128", "100106 200202 150152 120120",
      "102104 202208 150154 124128"};
  for (const std::string name : {"parents", "males", "females"}) {
    std::string text;
    for (std::size_t k = 0; k < adults.size(); ++k) {
      text += fmt::format("{}{} {}\n", name, k + 1, adults.at(k));
    }
    folder_.Write("data/" + name + ".txt", text);
  }
  folder_.Write("data/loci.txt", "A B C D\n");
  folder_.Write("data/offspring.txt",
                "O1 100104 204208 150152 124128\n"
                "O2 000000 200208 150154 120128\n");
  folder_.Write("data/sample.txt",
                "S1 100104 204208 150152 124128\n"
                "S2 102106 200208 150154 120128\n");
}

Contents WorkplaceTest::ContentsOf(const std::string& folder) const {
  Contents contents;
  const std::filesystem::path top = folder_.Path(folder);
  for (const auto& entry : std::filesystem::recursive_directory_iterator(top)) {
    if (entry.is_regular_file()) {
      contents[entry.path().lexically_relative(top).string()] = ReadFile(entry.path().string());
    }
  }
  return contents;
}

void WorkplaceTest::ExpectAsCommandLine(const std::string& project, const QString& command) const {
  const TempFolder other;
  const std::filesystem::path place = other.Path("");
  std::filesystem::copy(folder_.Path(""), place, std::filesystem::copy_options::recursive);
  ASSERT_NE(std::filesystem::remove_all(place / project), 0U);
  const QString there =
      Text("cd " + ShellQuoted(std::filesystem::current_path().string()) + " && ");
  ASSERT_TRUE(command.startsWith(there)) << Bytes(command);
  ASSERT_NO_FATAL_FAILURE(RunCommandLine(place.string(), command.mid(there.size())));

  Contents expected;
  const std::string prefix = project + '/';
  for (const auto& entry : std::filesystem::recursive_directory_iterator(place / project)) {
    expected[entry.path().filename().string()] = ReadFile(entry.path().string());
  }
  EXPECT_GT(expected.size(), 3U);
  ExpectSame(WithoutCircumstances(ContentsOf(project)), WithoutCircumstances(expected));
}

tl::expected<std::vector<char>, Problem> CountedFiles::Read(const std::string& path) {
  ++reads_[path];
  return DiskFiles().Read(path);
}

void MenuTest::Go(Script& script) {
  EXPECT_TRUE(script.Run([this] { menu_.activateWindow(); }));
}

void OpenFlow(Script& script, std::string_view button, const QString& project) {
  script.Await("MainMenu").Type("Project", project).Click(button);
}

void TypeAllocationFiles(Script& script, Flow flow, const QString& folder) {
  const auto path = [&folder](std::string_view name) { return folder + Text("/") + Text(name); };
  if (flow == Flow::kSexed) {
    script.Type("MalesFile", path("males.txt")).Type("FemalesFile", path("females.txt"));
  } else {
    script.Type("ParentsFile", path("parents.txt"));
  }
  script.Type("OffspringFile", path("offspring.txt")).Type("LociFile", path("loci.txt"));
}

void WalkToLoci(Script& script, Flow flow) {
  OpenFlow(script, flow == Flow::kSexed ? "ALLOCATIONSEXED" : "ALLOCATIONNON-SEXED");
  TypeAllocationFiles(script, flow, Text("data"));
  script.Click("Ok").Click("NoError").Click("Ok").Await("ChoiceOfLoci");
}

void TypeParents(Script& script, const std::string& sex, bool parental,
                 const std::pair<std::string, std::string>& files,
                 const std::vector<const char*>& numbers) {
  if (parental) {
    script.Type("Collected" + sex + "File", Text(files.first));
  } else {
    script.Type("PseudoCollected" + sex + "Sample", Text(files.first));
    script.Type("PseudoCollected" + sex, Text(numbers.back()));
  }
  script.Type("Uncollected" + sex + "Sample", Text(files.second));
  script.Type("Uncollected" + sex, Text(numbers[0]));
  if (!sex.empty()) {
    script.Type("EstimatedCollected" + sex, Text(numbers[1]));
    script.Type("EstimatedUncollected" + sex, Text(numbers[2]));
  }
}

void WalkToParents(Script& script, bool sexed, bool parental) {
  OpenFlow(script, sexed ? "SIMULATIONSSEXED" : "SIMULATIONSNON-SEXED",
           sexed ? Text("p") : Text("q"));
  script.Type("LociFile", Text("data/loci.txt")).Type("Iterations", Text("2"));
  script.Click(parental ? "Parental" : "PreParental").Click("Ok").Await("Parents");
  const std::vector<std::string> sexes =
      sexed ? std::vector<std::string>{"Males", "Females"} : std::vector<std::string>{""};
  for (const std::string& sex : sexes) {
    TypeParents(script, sex, parental, {"data/parents.txt", "data/sample.txt"},
                {"3", "4.5", "1.5", "6"});
  }
}

void PickInDialog(Script& script, const QString& path) {
  // The completion of names in the dialog would depend on what else lies in the folder.
  script.Await("fileNameEdit").Do([path](QWidget&) {
    VisibleField("fileNameEdit")->setText(path);
  });
  script.Press(Qt::Key_Return);
}

void RunToTheEnd(Script& script, QString& command, int messages) {
  script.Click("CopyAsCommand");
  script.Do([&command](QWidget&) { command = QGuiApplication::clipboard()->text(); });
  script.Click("Ok");
  for (int k = 0; k < messages; ++k) {
    script.Answer();
  }
  script.Click("CopyCommand").Do([&command](QWidget&) {
    const QString afterwards = QGuiApplication::clipboard()->text();
    static const std::regex seed_at_most("( --seed [0-9]+)?");
    EXPECT_TRUE(afterwards.startsWith(command) &&
                std::regex_match(Bytes(afterwards.mid(command.size())), seed_at_most))
        << Bytes(afterwards);
    command = afterwards;
  });
  script.Click("Close").Await("MainMenu");
}

void ExpectText(Script& script, std::string_view name, const QString& text) {
  script.Do([name = std::string(name), text](QWidget&) {
    EXPECT_EQ(Bytes(TextIn(name)), Bytes(text)) << name;
  });
}

}  // namespace kaldo::test
