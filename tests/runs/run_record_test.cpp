// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/run_record.h"

#include <bit>
#include <cmath>
#include <filesystem>
#include <map>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::TempFolder;

/// Texts that a path or a name may be: any bytes, quotes, backslashes, control characters, other
/// alphabets, and what looks like UTF-8 and is not: a surrogate, an overlong "/", one past the last
/// character.
rc::Gen<std::string> AnyText() {
  const auto piece = rc::gen::oneOf(
      rc::gen::map(rc::gen::inRange(0, 256),
                   [](int byte) { return std::string(1, static_cast<char>(byte)); }),
      rc::gen::element<std::string>("\"", "\\", "\\u", "'", R"(""")", "\n", "é", "鯉", "𝛼", "#",
                                    " ", "\xed\xa0\x80", "\xc0\xaf", "\xf4\x90\x80\x80"));
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(piece),
                      [](const std::vector<std::string>& pieces) {
                        std::string text;
                        for (const std::string& one : pieces) {
                          text += one;
                        }
                        return text;
                      });
}

rc::Gen<double> AnyDouble() {
  return rc::gen::oneOf(rc::gen::element(0.0, 1.0, -1.0, 1e-300, 0.002, 1e22, 5e-324, 123456789.0),
                        rc::gen::map(rc::gen::arbitrary<std::uint64_t>(), [](std::uint64_t bits) {
                          const auto value = std::bit_cast<double>(bits);
                          return std::isfinite(value) ? value : 0.98;
                        }));
}

template <typename Value>
rc::Gen<RecordValue> Valued(const rc::Gen<Value>& values) {
  return rc::gen::map(values, [](Value value) { return RecordValue(std::move(value)); });
}

rc::Gen<RecordValue> AnyValue() {
  return rc::gen::oneOf(
      Valued(rc::gen::arbitrary<bool>()), Valued(rc::gen::arbitrary<std::int64_t>()),
      Valued(AnyDouble()), Valued(AnyText()),
      Valued(rc::gen::container<std::vector<std::string>>(AnyText())),
      Valued(rc::gen::nonEmpty(
          rc::gen::container<std::vector<std::int64_t>>(rc::gen::arbitrary<std::int64_t>()))),
      Valued(rc::gen::nonEmpty(rc::gen::container<std::vector<double>>(AnyDouble()))));
}

RunRecord SmallRecord() {
  RunRecord record;
  record.version = "1.0.0";
  record.date = "2026-03-01T14:02:11Z";
  record.flow = "allocation, non-sexed";
  return record;
}

RC_GTEST_PROP(RunRecord, ReadsBackWhatItWrote, ()) {
  RunRecord record = SmallRecord();
  record.flow = *AnyText();
  record.folder = *AnyText();
  if (*rc::gen::arbitrary<bool>()) {
    record.seed = *rc::gen::arbitrary<std::uint32_t>();
  }
  record.threads = *rc::gen::inRange(1, 1000);
  record.duration_seconds = *AnyDouble();
  record.warnings = {*AnyText()};
  for (const char* const key : {"project", "tolerance", "error_values", "use"}) {
    record.settings.emplace_back(key, *AnyValue());
  }
  const auto bytes = *rc::gen::inRange<std::uint64_t>(0, std::uint64_t{1} << 40U);
  record.inputs = {{*AnyText(), *AnyText(), {bytes, "0badc0de"}},
                   {"offspring", *AnyText(), {1, ""}}};
  record.outputs = {{"Max like pairs.txt", {bytes, "c0de"}}};

  const TempFolder folder;
  const auto read = ReadRunRecord(folder.Write("r.toml", FormatRunRecord(record)));
  if (!read) {
    RC_FAIL(DetailLine(read.error()));
  }
  RC_ASSERT(read->version == record.version);
  RC_ASSERT(read->flow == record.flow);
  RC_ASSERT(read->folder == record.folder);
  RC_ASSERT(read->seed == record.seed);
  RC_ASSERT(read->threads == record.threads);
  RC_ASSERT(read->duration_seconds == record.duration_seconds);
  using Settings = std::map<std::string, RecordValue>;
  RC_ASSERT(Settings(read->settings.begin(), read->settings.end()) ==
            Settings(record.settings.begin(), record.settings.end()));
  RC_ASSERT(read->date == record.date);
  RC_ASSERT(read->warnings == record.warnings);
  RC_ASSERT(read->inputs == record.inputs);
  RC_ASSERT(read->outputs == record.outputs);
}

// Folders named on older systems hold bytes that are no UTF-8; their runs are repeatable too.
TEST(RunRecord, ReadsBackALatin1Path) {
  RunRecord record = SmallRecord();
  record.settings.emplace_back("project", "rivi\xe8re");
  const TempFolder folder;
  const auto read = ReadRunRecord(folder.Write("r.toml", FormatRunRecord(record)));
  ASSERT_TRUE(read.has_value()) << DetailLine(read.error());
  EXPECT_EQ(read->Setting<std::string>("project"), "rivi\xe8re");
}

TEST(RunRecord, RefusesWhatIsNoRecord) {
  const TempFolder folder;
  const std::string head = "program = \"KALDO\"\n";
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"", ": program = \"KALDO\" and [settings] are missing"},
      {head, ": program = \"KALDO\" and [settings] are missing"},
      {"program = \"OTHER\"\n[settings]\n", ": program = \"KALDO\" and [settings] are missing"},
      {"P1 152156 100102\n", ", line 1: "},
      {head + "\nversion =\n[settings]\n", ", line 3: "},
      {head + "[settings]\nuse = [\"A\"\ntolerance = 1\n", ", line 4: "},
      {head + "[settings]\nproject = \"a\"\ntolerance = 2026-03-01\n",
       ", line 4: the setting tolerance has no value of a known kind"},
      {head + "[settings]\nuse = [\"A\", 1]\n",
       ", line 3: the setting use has no value of a known kind"},
      {head + "seed = \"5\"\n[settings]\n",
       ", line 2: the value of seed is no whole number from 0"},
      {head + "seed = -1\n[settings]\n", ", line 2: the value of seed"},
      {head + "seed = 4294967301\n[settings]\n", ", line 2: the value of seed"},
      {head + "threads = 0\n[settings]\n", ", line 2: the value of threads"},
      {head + "warnings = [1]\n[settings]\n",
       ", line 2: the value of warnings is no list of texts"},
      {head + "folder = \"hex:0g\"\n[settings]\n", ", line 2: the value of folder is no text"},
      {head + "sead = 5\n[settings]\n", ", line 2: the key \"sead\" is not known"},
      {head + "seed = 5\nseed = 5\n[settings]\n", ", line 3: "},
      {head + "[settings]\nuse = [\"A\"]\nuse = [\"A\"]\n", ", line 4: "},
      {head + "[settings]\n[[input]]\nrole = \"loci\"\npath = \"a\"\n",
       ", line 3: bytes is missing"},
      {head + "[settings]\n[[input]]\nrole = \"a\"\npath = \"a\"\nsha256 = \"0\"\nbytes = -1\n",
       ", line 7: the value of bytes"},
      {head + "[settings]\n[input]\n", ", line 3: the value of input is no list"},
      {head + "[settings]\n[[output]]\nfile = \"../x\"\nbytes = 1\nsha256 = \"0\"\n",
       ", line 3: the value of file is no name"},
      {head + "[settings]\nuse.a = 1\n", ", line 3: a key with a dot"},
  };
  for (const auto& [text, detail] : cases) {
    const std::string path = folder.Write("r.toml", text);
    const auto record = ReadRunRecord(path);
    ASSERT_FALSE(record.has_value()) << text;
    EXPECT_EQ(SentenceOf(record.error()), "This is not a run record!");
    EXPECT_EQ(DetailLine(record.error()).substr(0, (path + detail).size()), path + detail) << text;
  }
  const std::string missing = folder.Path("missing.toml");
  const auto record = ReadRunRecord(missing);
  ASSERT_FALSE(record.has_value());
  EXPECT_EQ(SentenceOf(record.error()), "Cannot open file \"" + missing + "\"!");
}

TEST(ChangedInputs, TellsOtherContentsEvenOfTheSameSize) {
  const TempFolder folder;
  RunRecord record;
  for (const std::string name : {"same", "edited", "longer", "gone"}) {
    const std::string path = folder.Write(name, name + " as it was");
    record.inputs.push_back({"role of " + name, path, *DigestOfFile(path)});
  }
  EXPECT_TRUE(ChangedInputs(record).empty());
  folder.Write("edited", "edited as it is ");
  folder.Write("longer", "longer as it was before");
  std::filesystem::remove(folder.Path("gone"));  // the run itself says that it cannot be opened
  const auto changed = ChangedInputs(record);
  ASSERT_EQ(changed.size(), 2U);
  EXPECT_EQ(changed[0].find("role of edited (\"" + folder.Path("edited") + "\")"), 0U);
  EXPECT_NE(changed[1].find("16 bytes then, 23 bytes now"), std::string::npos) << changed[1];
}

TEST(DateText, IsUniversalTime) {
  EXPECT_EQ(DateText(std::chrono::system_clock::from_time_t(0)), "1970-01-01T00:00:00Z");
  EXPECT_EQ(DateText(std::chrono::system_clock::from_time_t(1709254799)), "2024-03-01T00:59:59Z");
}

}  // namespace
}  // namespace kaldo
