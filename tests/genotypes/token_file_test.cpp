// SPDX-License-Identifier: GPL-3.0-or-later
#include "genotypes/token_file.h"

#include <utility>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/support/temp_folder.h"

namespace kaldo {
namespace {

using test::TempFolder;
using namespace std::string_literals;

/// Words with their lines.
using Words = std::vector<std::pair<std::string, std::uint32_t>>;

TokenFile Open(const TempFolder& folder, const std::string& bytes) {
  auto file = TokenFile::Read(folder.Write("file.txt", bytes));
  EXPECT_TRUE(file.has_value());
  return file ? std::move(*file) : TokenFile();
}

Words WordsOf(const TokenFile& file) {
  Words words;
  for (const Token& token : file.Tokens()) {
    words.emplace_back(token.text, token.line);
  }
  return words;
}

TEST(TokenFile, ReadsWhatEditorsAndSpreadsheetsWrite) {
  const TempFolder folder;
  const std::vector<std::pair<std::string, Words>> cases = {
      {"", {}},
      {" \r\n\t\n", {}},
      {"A1 100102\nA2 100104\n", {{"A1", 1}, {"100102", 1}, {"A2", 2}, {"100104", 2}}},
      {"A1\t100102\r\nA2\t100104\r\n", {{"A1", 1}, {"100102", 1}, {"A2", 2}, {"100104", 2}}},
      {"A1\n\n\nA2", {{"A1", 1}, {"A2", 4}}},
      {"A1\fA2\vA3 \f\n A4", {{"A1", 1}, {"A2", 1}, {"A3", 1}, {"A4", 2}}},
      {"\xef\xbb\xbf"
       "A1 100102\r\n",
       {{"A1", 1}, {"100102", 1}}},
      {"\xef\xbb\xbf", {}},
      {"A\xc3\xa9 \xef\xbb\xbfZ", {{"A\xc3\xa9", 1}, {"\xef\xbb\xbfZ", 1}}},
      {"\xc2\xa0", {{"\xc2\xa0", 1}}},  // a no-break space is no blank for the method
  };
  for (const auto& [bytes, words] : cases) {
    EXPECT_EQ(WordsOf(Open(folder, bytes)), words) << testing::PrintToString(bytes);
  }
}

RC_GTEST_PROP(TokenFile, GivesBackTheWordsAndCountsTheLines, ()) {
  const TempFolder folder;
  std::string bytes;
  std::uint32_t line = 1;
  Words words;
  const int count = *rc::gen::inRange(0, 40);
  for (int i = 0; i < count; ++i) {
    words.emplace_back(*rc::gen::elementOf(std::vector{"*"s, "A1"s, "152156"s, "\xc3\xa9"s}), line);
    const auto gap = *rc::gen::elementOf(std::vector{" "s, "\n"s, "\r\n"s, "\t\t"s, "\n \n"s});
    for (const char character : gap) {
      line += character == '\n' ? 1 : 0;
    }
    bytes += words.back().first + gap;
  }
  RC_ASSERT(WordsOf(Open(folder, bytes)) == words);
}

TEST(TokenFile, WordsOutliveAMove) {
  const TempFolder folder;
  TokenFile first = Open(folder, "A1");  // short enough for an optimized string to move its bytes
  const TokenFile second = std::move(first);
  EXPECT_EQ(WordsOf(second), (Words{{"A1", 1}}));
}

TEST(TokenFile, DigestIsThatOfTheBytesAsTheyLie) {
  const TempFolder folder;
  EXPECT_EQ(Open(folder, "abc").Digest(),
            (FileDigest{3, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"}));
  EXPECT_EQ(Open(folder, "").Digest(),
            (FileDigest{0, "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"}));
  const TokenFile marked = Open(folder,
                                "\xef\xbb\xbf"
                                "abc");
  EXPECT_EQ(marked.Digest().bytes, 6U);
  const auto again = DigestOfFile(marked.Path());
  ASSERT_TRUE(again.has_value());
  EXPECT_EQ(*again, marked.Digest());
}

TEST(TokenFile, TellsWhyAFileCannotBeRead) {
  const TempFolder folder;
  folder.Write("folder/file", "");
  folder.Write("little.txt",
               "\xff\xfe"
               "A\0"s);
  folder.Write("big.txt", "\xfe\xff\0A"s);
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"missing.txt", "No such file or directory"},
      {"folder", "Is a directory"},
      {"little.txt", "it is written in UTF-16"},
      {"big.txt", "it is written in UTF-16"},
  };
  for (const auto& [name, reason] : cases) {
    const std::string path = folder.Path(name);
    const auto file = TokenFile::Read(path);
    ASSERT_FALSE(file.has_value()) << name;
    EXPECT_EQ(SentenceOf(file.error()), "Cannot open file \"" + path + "\"!");
    EXPECT_EQ(file.error().file, path);
    EXPECT_EQ(file.error().found.substr(0, reason.size()), reason);
  }
  EXPECT_FALSE(DigestOfFile(folder.Path("missing.txt")).has_value());
}

}  // namespace
}  // namespace kaldo
