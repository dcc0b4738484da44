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

std::vector<std::string> Told(const Script& script) {
  std::vector<std::string> sentences;
  for (const QString& sentence : script.Messages()) {
    sentences.push_back(Bytes(sentence));
  }
  return sentences;
}

QString TextIn(std::string_view name) {
  QWidget* const widget = VisibleWidget(name);
  if (const auto* field = qobject_cast<QLineEdit*>(widget)) {
    return field->text();
  }
  const auto* label = qobject_cast<QLabel*>(widget);
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

void WorkplaceTest::WriteExamples() const {
  std::filesystem::copy(std::string(KALDO_ROOT) + "/examples", "data",
                        std::filesystem::copy_options::recursive);
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

  QProcess shell;
  shell.setWorkingDirectory(PathText(place.string()));
  // The shell finds the program of this build under the name that the command has.
  const std::string folder = std::filesystem::path(KALDO_PROGRAM).parent_path().string();
  shell.start(Text("/bin/sh"), {Text("-c"), Text("PATH='" + folder + "':$PATH\n") + command});
  ASSERT_TRUE(shell.waitForFinished(kGenerous));
  EXPECT_EQ(shell.exitCode(), 0) << Bytes(command) << shell.readAllStandardError().toStdString();

  Contents expected;
  const std::string prefix = project + '/';
  for (const auto& entry : std::filesystem::recursive_directory_iterator(place / project)) {
    expected[entry.path().filename().string()] = ReadFile(entry.path().string());
  }
  EXPECT_GT(expected.size(), 3U);
  ExpectSame(WithoutCircumstances(ContentsOf(project)), WithoutCircumstances(expected));
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

void PickInDialog(Script& script, const QString& path) {
  script.Type("fileNameEdit", path).Press(Qt::Key_Return);
}

void RunToTheEnd(Script& script, QString& command, int messages) {
  script.Click("CopyAsCommand");
  script.Do([&command](QWidget&) { command = QGuiApplication::clipboard()->text(); });
  script.Click("Ok");
  for (int k = 0; k < messages; ++k) {
    script.Answer();
  }
  // The results window tells the same command.
  script.Click("CopyCommand").Do([&command](QWidget&) {
    EXPECT_EQ(QGuiApplication::clipboard()->text(), command);
  });
  script.Click("Close").Await("MainMenu");
}

void ExpectText(Script& script, std::string_view name, const QString& text) {
  script.Do([name = std::string(name), text](QWidget&) {
    EXPECT_EQ(Bytes(TextIn(name)), Bytes(text)) << name;
  });
}

}  // namespace kaldo::test
