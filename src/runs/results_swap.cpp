// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/results_swap.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include <fmt/format.h>

#include "base/disk_file.h"
#include "base/folder_content.h"
#include "base/path_text.h"
#include "base/problem.h"

namespace kaldo {

namespace {

constexpr std::string_view kJournalHead = "KALDO exchanges results";
constexpr std::string_view kJournalEnd = "end";

/// A disk that refuses once, a virus scanner that looks at a new file: often a second attempt does.
constexpr int kAttempts = 2;

void ThrowFailure(std::string_view what, const std::string& path, std::error_code error) {
  if (error) {
    throw RunFailure(fmt::format("Cannot {} \"{}\": {}", what, path, error.message()));
  }
}

bool IsFolder(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::is_directory(std::filesystem::symlink_status(FilePath(path), ignored));
}

std::string Sentence(const RunFailure& failure) {
  const std::string text = failure.what();
  return text.ends_with('.') || text.ends_with('?') ? text : text + '.';
}

/// A journal must not lead out of the folder, whoever wrote it.
bool IsFileName(std::string_view name) {
  return name.size() > 1 && name.front() == '/' && name.find('/', 1) == std::string_view::npos &&
         name != "/." && name != "/..";
}

}  // namespace

void ResultsSwap::MakeFolders() const {
  for (const char* const folder : {"", "/new", "/old"}) {
    std::error_code error;
    if (!std::filesystem::create_directory(FilePath(folder_ + folder), error)) {
      ThrowFailure("write into the folder", project_.Name(),
                   error ? error : make_error_code(std::errc::file_exists));
    }
  }
}

void ResultsSwap::SyncFolders() const {
  for (const std::string& folder : {folder_ + "/new", folder_ + "/old", folder_, project_.Name()}) {
    ThrowFailure("write into the folder", project_.Name(), SyncFolder(folder));
  }
}

void ResultsSwap::Move(const std::string& from, const std::string& to, const std::string& shown) {
  std::error_code error;
  if (IsFolder(from)) {
    error = make_error_code(std::errc::is_a_directory);
  } else {
    std::filesystem::rename(FilePath(from), FilePath(to), error);
  }
  if (error) {
    throw RunFailure(
        fmt::format("Cannot replace \"{}\": {}. Is it protected, or open in another "
                    "program, such as a spreadsheet?",
                    shown, error.message()));
  }
}

void ResultsSwap::WriteJournal(const std::vector<SwappedFile>& files) const {
  std::string text = fmt::format("{}\n", kJournalHead);
  for (const SwappedFile& file : files) {
    text += fmt::format("{} {} {}\n", file.placed ? "place" : "remove",
                        file.existed ? "replacing" : "new", file.name);
  }
  text.append(kJournalEnd).append("\n");
  const std::string unfinished = JournalPath() + ".part";
  ThrowFailure("write into the folder", project_.Name(), WriteNewFile(unfinished, text));
  SyncFolders();  // what the journal speaks of is on the disk before the journal is
  std::error_code error;
  std::filesystem::rename(FilePath(unfinished), FilePath(JournalPath()), error);
  ThrowFailure("write into the folder", project_.Name(), error);
  ThrowFailure("write into the folder", project_.Name(), SyncFolder(folder_));
}

std::vector<SwappedFile> ResultsSwap::ReadJournal() const {
  std::vector<SwappedFile> files;
  std::ifstream journal(FilePath(JournalPath()), std::ios::binary);
  std::string line;
  bool is_whole = std::getline(journal, line) && line == kJournalHead;
  while (is_whole && std::getline(journal, line) && line != kJournalEnd) {
    std::istringstream words(line);
    std::string what;
    std::string over;
    SwappedFile file;
    words >> what >> over;
    words.get();
    std::getline(words, file.name);
    file.placed = what == "place";
    file.existed = over == "replacing";
    is_whole = IsFileName(file.name);
    files.push_back(std::move(file));
  }
  if (!is_whole || line != kJournalEnd) {
    throw RunFailure(fmt::format(
        "An earlier run ended while it replaced the results in \"{}\", and its journal \"{}\" "
        "cannot be read. The earlier results are in the folder \"old\" beside it, the new ones in "
        "\"new\": move one or the other by hand, then delete that folder.",
        project_.Name(), JournalPath()));
  }
  return files;
}

bool ResultsSwap::RemoveJournal() const {
  std::error_code error;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    std::filesystem::remove(FilePath(JournalPath()), error);
    if (!error) {
      return !SyncFolder(folder_) || !SyncFolder(folder_);
    }
  }
  return false;
}

bool ResultsSwap::CanFinish(const std::vector<SwappedFile>& files) const {
  const auto waits = [this](const SwappedFile& file) {
    return file.placed && IsThere(NewPath(file.name));
  };
  if (std::none_of(files.begin(), files.end(), waits)) {
    return true;  // all were put in place; the user may have moved some since
  }
  return std::all_of(files.begin(), files.end(), [&](const SwappedFile& file) {
    return !file.placed || waits(file) || IsThere(project_.Path(file.name));
  });
}

void ResultsSwap::Finish(const std::vector<SwappedFile>& files) const {
  for (const SwappedFile& file : files) {
    const std::string place = project_.Path(file.name);
    const bool is_earlier = !file.placed || IsThere(NewPath(file.name));
    if (file.existed && is_earlier && !IsThere(OldPath(file.name)) && IsThere(place)) {
      Move(place, OldPath(file.name), place);
    }
  }
  SyncFolders();
  for (const SwappedFile& file : files) {
    if (file.placed && IsThere(NewPath(file.name))) {
      const std::string place = project_.Path(file.name);
      Move(NewPath(file.name), place, place);
    }
  }
  SyncFolders();
}

void ResultsSwap::Undo(const std::vector<SwappedFile>& files) const {
  std::optional<RunFailure> first;
  for (auto file = files.rbegin(); file != files.rend(); ++file) {
    try {
      PutBack(*file);
    } catch (const RunFailure& failure) {
      first = first.value_or(failure);  // one that is held open keeps none of the others away
    }
  }
  if (first) {
    throw RunFailure(*first);
  }
  SyncFolders();
}

void ResultsSwap::PutBack(const SwappedFile& file) const {
  const std::string place = project_.Path(file.name);
  if (file.placed && !IsThere(NewPath(file.name)) && IsThere(place)) {
    Move(place, NewPath(file.name), place);
  }
  if (file.existed && IsThere(OldPath(file.name))) {
    Move(OldPath(file.name), place, place);
  }
}

void ResultsSwap::Do(const std::vector<SwappedFile>& files) const {
  try {
    WriteJournal(files);
    Finish(files);
  } catch (const RunFailure& failure) {
    try {
      Undo(files);
    } catch (const RunFailure& second) {
      throw RunFailure(fmt::format(
          "{} The earlier results could not be put back either: {} Nothing is lost: \"kaldo "
          "check\" with this project, or the next run, goes on with it.",
          Sentence(failure), Sentence(second)));
    }
    (void)RemoveJournal();
    throw RunFailure(
        fmt::format("{} The results of earlier runs are as they were.", Sentence(failure)));
  }
  (void)RemoveJournal();
}

bool ResultsSwap::IsUnfinished() const { return IsThere(JournalPath()); }

bool ResultsSwap::Recover() const {
  const auto files = ReadJournal();
  bool finished = CanFinish(files);
  if (finished) {
    try {
      Finish(files);
    } catch (const RunFailure&) {
      finished = false;
    }
  }
  if (!finished) {
    try {
      Undo(files);
    } catch (const RunFailure& failure) {
      throw RunFailure(
          fmt::format("An earlier run ended while it replaced the results in \"{}\", "
                      "which can neither be finished nor undone: {}",
                      project_.Name(), failure.what()));
    }
  }
  if (!RemoveJournal()) {
    throw RunFailure(fmt::format("Cannot remove \"{}\" of an earlier run.", JournalPath()));
  }
  return finished;
}

void ResultsSwap::Clean() const {
  for (int attempt = 0; attempt < kAttempts && !IsUnfinished(); ++attempt) {
    if (!RemoveFolder(folder_)) {
      return;
    }
  }
}

}  // namespace kaldo
