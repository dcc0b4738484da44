// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/resuming_workforce.h"

#include <fmt/format.h>

#include "base/byte_packing.h"
#include "base/problem.h"

namespace kaldo {

namespace {

/// The plan of a part from the first item on that is not done.
class RestOfPlan final : public PortionPlan {
 public:
  RestOfPlan(PortionPlan& plan, std::uint64_t part, UnfinishedRun& unfinished)
      : plan_(plan),
        groups_(plan.Groups()),
        items_(plan.ItemsPerGroup()),
        part_(part),
        unfinished_(unfinished) {}

  std::size_t Groups() const override { return groups_; }
  std::size_t ItemsPerGroup() const override { return items_; }
  PortionPlace First() const override { return first_; }
  std::size_t MostItemsPerPortion() const override { return plan_.MostItemsPerPortion(); }
  bool MayEndEarly() const override { return plan_.MayEndEarly(); }
  bool HasEnded(std::size_t group) const override { return plan_.HasEnded(group); }
  std::string Order(const Portion& portion) override { return plan_.Order(portion); }

  bool IsPossible(const Portion& portion, std::string_view result) const override {
    return plan_.IsPossible(portion, result);
  }

  bool Take(const Portion& portion, std::string_view result) override {
    const bool go_on = plan_.Take(portion, result);
    unfinished_.Keep({part_, portion, std::string(result)});
    return go_on;
  }

  /// Takes the results of the unfinished run.
  void TakeOver(const RunObserver& observer) {
    while (!has_ended_ && !IsDone()) {
      const LoggedPortion* const next = unfinished_.Next();
      if (next == nullptr || next->part != part_) {
        return;
      }
      if (observer.StopRequested()) {
        throw RunStopped();
      }
      if (!Fits(*next)) {
        return;  // as if the file ended here: what is done from here on takes its place
      }
      TakeOver(*next);
      unfinished_.Advance();
    }
  }

  std::size_t ItemsDone() const { return first_.group * items_ + first_.item; }
  bool IsDone() const { return has_ended_ || items_ == 0 || first_.group >= groups_; }

 private:
  bool Fits(const LoggedPortion& next) const {
    const auto& [group, begin, end] = next.portion;
    try {
      return PortionPlace{group, begin} == first_ && end > begin && end <= items_ &&
             plan_.IsPossible(next.portion, next.result);
    } catch (const DamagedBytes&) {
      return false;
    }
  }

  void TakeOver(const LoggedPortion& next) {
    const auto& [group, begin, end] = next.portion;
    (void)plan_.Order(next.portion);
    has_ended_ = !plan_.Take(next.portion, next.result);
    first_ = end == items_ || plan_.HasEnded(group) ? PortionPlace{group + 1, 0}
                                                    : PortionPlace{group, end};
  }

  PortionPlan& plan_;
  std::size_t groups_;
  std::size_t items_;
  std::uint64_t part_;
  UnfinishedRun& unfinished_;
  PortionPlace first_;
  bool has_ended_ = false;
};

void TellWhatIsDone(const PortionJob& job, std::size_t done, RunObserver& observer) {
  if (done == 0) {
    return;
  }
  const std::size_t all = job.plan.Groups() * job.plan.ItemsPerGroup();
  observer.OnMessage(RunMessage::kNote, fmt::format("{}: {} of {} were done by the unfinished run.",
                                                    job.part, done, all));
  observer.OnPart(job.part, all - done);  // the time left is judged by what this run does
}

}  // namespace

void ResumingWorkforce::Do(const PortionJob& job, unsigned wanted, RunObserver& observer) {
  unfinished_.Begin(job.record(), difference_, Pace());
  RestOfPlan rest(job.plan, parts_++, unfinished_);
  rest.TakeOver(observer);
  TellWhatIsDone(job, rest.ItemsDone(), observer);
  try {
    if (!rest.IsDone()) {
      workforce_.Do({job.part, job.task, rest, job.record}, wanted, observer);
    }
  } catch (...) {
    unfinished_.Save();
    throw;
  }
  unfinished_.Save();
}

}  // namespace kaldo
