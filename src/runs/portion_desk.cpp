// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/portion_desk.h"

#include <algorithm>
#include <cassert>

namespace kaldo {

namespace {

/// A portion is this part of what every worker would get of the rest: late portions are small.
constexpr std::size_t kPortionsPerWorker = 4;

// Handing out ends for a while with so many portions per worker on their way, or so many bytes of
// results that came early.
constexpr std::size_t kMostPortionsPerWorker = 32;
constexpr std::size_t kMostEarlyBytes = std::size_t{64} * 1024 * 1024;

}  // namespace

PortionDesk::PortionDesk(PortionPlan& plan, std::size_t workers)
    : plan_(plan),
      groups_(plan.Groups()),
      items_(plan.ItemsPerGroup()),
      workers_(std::max<std::size_t>(workers, 1)),
      next_group_(plan.First().group),
      next_item_(plan.First().item) {
  if (next_group_ >= groups_ || items_ == 0) {
    End();
  }
}

std::size_t PortionDesk::LeftInAll() const {
  return next_group_ == groups_ ? 0 : (groups_ - next_group_) * items_ - next_item_;
}

std::size_t PortionDesk::PortionSize() const {
  const std::size_t left_in_group = items_ - next_item_;
  const std::size_t left = plan_.MayEndEarly() ? left_in_group : LeftInAll();
  const std::size_t wanted = std::max<std::size_t>(left / (kPortionsPerWorker * workers_), 1);
  return std::min({wanted, plan_.MostItemsPerPortion(), left_in_group});
}

std::optional<HandedPortion> PortionDesk::NextLocked() {
  if (ended_ || next_group_ == groups_ || handed_.size() >= kMostPortionsPerWorker * workers_ ||
      early_bytes_ >= kMostEarlyBytes) {
    return std::nullopt;
  }
  const Portion portion{next_group_, next_item_, next_item_ + PortionSize()};
  HandedPortion handed{first_number_ + handed_.size(), plan_.Order(portion)};
  handed_.push_back(portion);
  next_item_ = portion.end;
  if (next_item_ == items_) {
    next_item_ = 0;
    ++next_group_;
  }
  return handed;
}

std::optional<HandedPortion> PortionDesk::TryNext() {
  const std::lock_guard lock(mutex_);
  return NextLocked();
}

std::optional<HandedPortion> PortionDesk::WaitForNext() {
  std::unique_lock lock(mutex_);
  std::optional<HandedPortion> handed;
  changed_.wait(lock, [&] { return ended_ || (handed = NextLocked()).has_value(); });
  return handed;
}

void PortionDesk::TakeInOrder() {
  for (auto first = early_.begin();
       !ended_ && first != early_.end() && first->first == first_number_; first = early_.begin()) {
    const std::string result = std::move(first->second);
    early_bytes_ -= result.size();
    early_.erase(first);
    const Portion portion = handed_.front();
    handed_.pop_front();
    ++first_number_;
    const bool go_on = plan_.HasEnded(portion.group) || plan_.Take(portion, result);
    if (next_group_ == portion.group && plan_.HasEnded(portion.group)) {
      next_item_ = 0;
      ++next_group_;
    }
    const bool is_any_awaited = !handed_.empty() && !plan_.HasEnded(handed_.back().group);
    if (!go_on || (!is_any_awaited && next_group_ == groups_)) {
      End();
    }
  }
}

std::size_t PortionDesk::HandIn(std::uint64_t number, std::string result) {
  std::size_t items = 0;
  {
    const std::lock_guard lock(mutex_);
    if (ended_) {
      return 0;
    }
    assert(number >= first_number_ && number - first_number_ < handed_.size());
    items = handed_[number - first_number_].Size();
    early_bytes_ += result.size();
    early_.emplace(number, std::move(result));
    try {
      TakeInOrder();
    } catch (...) {
      failure_ = std::current_exception();
      End();
    }
  }
  changed_.notify_all();
  return items;
}

void PortionDesk::Fail(std::exception_ptr failure) {
  {
    const std::lock_guard lock(mutex_);
    if (!ended_) {
      failure_ = std::move(failure);
      End();
    }
  }
  changed_.notify_all();
}

void PortionDesk::ThrowFailure() const {
  const std::lock_guard lock(mutex_);
  if (failure_) {
    std::rethrow_exception(failure_);
  }
}

}  // namespace kaldo
