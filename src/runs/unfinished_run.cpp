// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/unfinished_run.h"

#include <algorithm>
#include <filesystem>

#include <fmt/format.h>

#include "base/disk_file.h"
#include "base/path_text.h"
#include "runs/run_refused.h"

namespace kaldo {

namespace {

/// Results in memory, whatever the time.
constexpr std::size_t kMostPendingBytes = std::size_t{64} * 1024 * 1024;

std::optional<std::string> InputDifference(const RunRecord& then, const RunRecord& now) {
  for (const RecordedInput& input : now.inputs) {
    const auto earlier =
        std::find_if(then.inputs.begin(), then.inputs.end(),
                     [&](const RecordedInput& each) { return each.role == input.role; });
    if (earlier == then.inputs.end() || earlier->digest != input.digest) {
      return fmt::format("{} ({}) has changed since it was started", input.role,
                         Quoted(input.path));
    }
  }
  return std::nullopt;
}

/// Why the results of one run cannot be those of the other.
std::optional<std::string> Difference(const RunRecord& then, const RunRecord& now,
                                      const RunDifference& of_settings) {
  if (then.version != now.version) {
    return fmt::format("it was started by KALDO {}, and this is KALDO {}", then.version,
                       now.version);
  }
  if (then.flow != now.flow) {
    return fmt::format("it is of another flow: {}, now {}", then.flow, now.flow);
  }
  if (const auto setting = of_settings(then, now)) {
    return fmt::format("it was started {}", *setting);
  }
  if (then.seed != now.seed) {
    return fmt::format("it was started with --seed {}, now with --seed {}", then.seed.value_or(0),
                       now.seed.value_or(0));
  }
  return InputDifference(then, now);
}

std::string Sentence(const ProjectFolder& project, const RunRecord& unfinished) {
  return fmt::format("\"{}\" holds an unfinished run ({}, of {}).", project.Name(), unfinished.flow,
                     unfinished.date);
}

}  // namespace

std::optional<std::string> UnfinishedSentence(const ProjectFolder& project, std::string_view flow) {
  const auto unfinished = PortionLogReader(project.Path(kUnfinishedRunFile)).Record();
  return unfinished && unfinished->flow == flow ? std::optional(Sentence(project, *unfinished))
                                                : std::nullopt;
}

UnfinishedRun::UnfinishedRun(ProjectFolder project, std::string new_file, KeptWork work,
                             RunObserver& observer)
    : project_(std::move(project)),
      new_file_(std::move(new_file)),
      observer_(observer),
      has_given_up_(work == KeptWork::kNone) {
  reader_.emplace(project_.Path(kUnfinishedRunFile));
  TellWhatIsThere(work);
  if (work != KeptWork::kResumed || !reader_->Record()) {
    reader_.reset();
  }
}

void UnfinishedRun::TellWhatIsThere(KeptWork work) const {
  if (work == KeptWork::kResumed && !reader_->Record()) {
    observer_.OnMessage(
        RunMessage::kNote,
        fmt::format("There is no unfinished run in \"{}\" to go on with: this one begins anew.",
                    project_.Name()));
  } else if (work == KeptWork::kAnew && reader_->Record()) {
    observer_.OnMessage(
        RunMessage::kNote,
        fmt::format("{} This one begins anew and soon takes its place; with --resume it would go "
                    "on with it.",
                    Sentence(project_, *reader_->Record())));
  }
}

std::optional<std::uint32_t> UnfinishedRun::Seed() const {
  return reader_ ? reader_->Record()->seed : std::nullopt;
}

void UnfinishedRun::Begin(const RunRecord& now, const RunDifference& difference, KeepingPace pace) {
  if (has_begun_) {
    return;
  }
  if (reader_) {
    if (const auto why = Difference(*reader_->Record(), now, difference)) {
      throw RunRefused({.kind = ProblemKind::kCannotResume, .found = *why});
    }
  } else {
    pending_ = text_.Head(now);
  }
  has_begun_ = true;
  is_on_disk_ = reader_.has_value();
  pace_ = pace;
  next_write_ = reader_ ? Clock::now() + pace.then : started_ + pace.first;
}

const LoggedPortion* UnfinishedRun::Next() const {
  return reader_ && reader_->Next() ? &*reader_->Next() : nullptr;
}

void UnfinishedRun::Advance() { reader_->Advance(); }

void UnfinishedRun::Keep(const LoggedPortion& portion) {
  if (reader_) {
    text_ = reader_->TextBehind();
    const auto error = file_.Open(project_.Path(kUnfinishedRunFile), reader_->BytesTaken());
    reader_.reset();
    if (error) {
      GiveUp(error.message());
    }
  }
  if (has_given_up_) {
    return;
  }
  if (portion.result.size() > kMostResultBytes) {
    GiveUp("a result is too large to be kept");
    return;
  }
  pending_ += text_.Entry(portion);
  if (Clock::now() >= next_write_ || pending_.size() >= kMostPendingBytes) {
    next_write_ = Clock::now();
    Save();
  }
}

void UnfinishedRun::Save() {
  const auto begin = Clock::now();
  if (has_given_up_ || pending_.empty() || (!file_.IsOpen() && begin < next_write_)) {
    return;
  }
  if (WouldFillTheDisk()) {
    GiveUp("the disk has less free space than it takes");
    return;
  }
  if (const auto error = Write()) {
    GiveUp(error.message());
    return;
  }
  is_on_disk_ = true;
  pending_.clear();
  const auto end = Clock::now();
  next_write_ =
      end + std::max<KeepingPace::Duration>(pace_.then, pace_.part_of_time * (end - begin));
}

std::error_code UnfinishedRun::Write() {
  return file_.IsOpen() ? file_.Append(pending_) : WriteFirst();
}

std::error_code UnfinishedRun::WriteFirst() {
  std::error_code error = file_.Create(new_file_);
  if (!error) {
    error = file_.Append(pending_);
  }
  if (!error) {
    std::filesystem::rename(FilePath(new_file_), FilePath(project_.Path(kUnfinishedRunFile)),
                            error);
  }
  if (!error) {
    error = SyncFolder(project_.Name());
  }
  return error;
}

bool UnfinishedRun::WouldFillTheDisk() const {
  std::error_code unknown;
  const auto space = std::filesystem::space(FilePath(project_.Name()), unknown);
  return !unknown && space.available < file_.Bytes() + pending_.size();
}

void UnfinishedRun::GiveUp(const std::string& why) {
  has_given_up_ = true;
  pending_.clear();
  file_.Close();
  observer_.OnMessage(
      RunMessage::kWarning,
      fmt::format("What is done from here on cannot be kept in \"{}\" for the case that the run is "
                  "stopped ({}). The run goes on.",
                  project_.Name(), why));
}

std::optional<std::string> UnfinishedRun::KeptSentence() const {
  return is_on_disk_
             ? std::optional(fmt::format("What was done is kept in \"{}\": the same command with "
                                         "--resume goes on with it.",
                                         project_.Name()))
             : std::nullopt;
}

}  // namespace kaldo
