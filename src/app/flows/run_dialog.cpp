// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flows/run_dialog.h"

#include <QCloseEvent>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <atomic>
#include <chrono>
#include <cmath>
#include <mutex>
#include <new>
#include <system_error>
#include <thread>

#include <fmt/format.h>

#include "app/base/messages.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "base/problem.h"
#include "base/run_observer.h"

namespace kaldo {

namespace {

constexpr int kRefreshInterval = 100;  // milliseconds
constexpr int kBarSteps = 1000;
constexpr double kShareBeforeEstimate = 0.05;

using Clock = std::chrono::steady_clock;

constexpr std::string_view kReadingPart = "Reading the files";

/// Where a run is, as the dialog shows it.
struct Progress {
  std::string part;
  std::string note;
  std::uint64_t steps = 0;
  std::uint64_t done = 0;
  std::chrono::duration<double> elapsed{};  ///< since the part began

  double Share() const {
    return steps == 0 ? 0.0 : static_cast<double>(done) / static_cast<double>(steps);
  }
};

/// Hears the run on its threads, is read by the dialog.
class WatchedRun : public RunObserver {
 public:
  void OnPart(std::string_view name, std::uint64_t steps) override {
    const std::lock_guard lock(mutex_);
    part_ = name;
    note_.clear();
    steps_ = steps;
    done_ = 0;
    part_started_ = Clock::now();
  }
  void OnNote(std::string_view note) override {
    const std::lock_guard lock(mutex_);
    note_ = note;
  }
  void OnSteps(std::uint64_t steps) override { done_ += steps; }
  void OnMessage(RunMessage kind, std::string_view sentence) override {
    const std::lock_guard lock(mutex_);
    if (kind == RunMessage::kWarning) {  // what a run replaces stands on its last screen
      warnings_.append(warnings_.empty() ? "" : "\n").append(sentence);
    }
  }
  bool StopRequested() const override { return stop_; }

  std::string Warnings() const {
    const std::lock_guard lock(mutex_);
    return warnings_;
  }

  void Stop() { stop_ = true; }

  Progress Now() const {
    const std::lock_guard lock(mutex_);
    return {part_, note_, steps_, done_, Clock::now() - part_started_};
  }

 private:
  mutable std::mutex mutex_;  // guards what is neither const nor atomic
  std::string part_{kReadingPart};
  std::string note_;
  std::string warnings_;
  std::uint64_t steps_ = 0;
  Clock::time_point part_started_ = Clock::now();
  std::atomic<std::uint64_t> done_{0};
  std::atomic<bool> stop_{false};
};

std::string TimeText(double seconds) {
  const long whole = std::lround(seconds);
  return whole >= 3600 ? fmt::format("{}:{:02}:{:02}", whole / 3600, whole / 60 % 60, whole % 60)
                       : fmt::format("{}:{:02}", whole / 60, whole % 60);
}

/// "250 of 1000, 0:12 elapsed, about 0:36 left". An estimate comes once it means something.
QString ProgressText(const Progress& progress) {
  if (progress.steps == 0) {
    return {};
  }
  const double elapsed = progress.elapsed.count();
  QString text = Tr("%1 of %2, %3 elapsed")
                     .arg(progress.done)
                     .arg(progress.steps)
                     .arg(Text(TimeText(elapsed)));
  const double share = progress.Share();
  if (share >= kShareBeforeEstimate && share < 1) {
    text += Tr(", about %1 left").arg(Text(TimeText(elapsed * (1 - share) / share)));
  }
  return text;
}

enum class RunEnd { kRunning, kDone, kStopped, kFailed };

class RunDialog : public QDialog {
 public:
  RunDialog(QWidget* parent, const QString& title) : QDialog(parent) {
    setObjectName(Text("RunDialog"));
    setWindowTitle(title);
    setModal(true);
    part_->setObjectName(Text("RunPart"));
    bar_->setObjectName(Text("RunBar"));
    bar_->setAccessibleName(Tr("Progress of the run"));
    time_->setObjectName(Text("RunTime"));
    cancel_->setObjectName(Text("RunCancel"));
    cancel_->setToolTip(Tr("Stop; the results of earlier runs stay as they are"));
    auto* const column = new QVBoxLayout(this);
    column->addWidget(part_);
    column->addWidget(bar_);
    column->addWidget(time_);
    column->addWidget(cancel_, 0, Qt::AlignRight);
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    connect(cancel_, &QPushButton::clicked, this, [this] { Stop(); });
    connect(&refresh_, &QTimer::timeout, this, [this] { Refresh(); });
    refresh_.start(kRefreshInterval);
    Refresh();
  }

  RunEnd Run(const std::function<void(RunObserver&)>& work) {
    std::jthread worker;
    try {
      worker = std::jthread([this, &work] {
        const RunEnd end = Work(work);
        QMetaObject::invokeMethod(
            this, [this, end] { Finish(end); }, Qt::QueuedConnection);
      });
    } catch (const std::system_error& error) {
      failure_ = Text(error.what());
      return RunEnd::kFailed;
    }
    exec();
    return end_;
  }

  std::string Warnings() const { return watched_.Warnings(); }

  const QString& Failure() const { return failure_; }

 protected:
  /// Esc and the close button of the window.
  void reject() override {
    if (end_ == RunEnd::kRunning && !watched_.StopRequested() &&
        AskBeforeLoss(this, Tr("A run is going on. Stop it? The results of earlier runs stay as "
                               "they are."))) {
      Stop();
    }
  }
  void closeEvent(QCloseEvent* event) override {
    reject();
    event->ignore();  // the dialog goes when the run has ended
  }

 private:
  RunEnd Work(const std::function<void(RunObserver&)>& work) {
    try {
      work(watched_);
      return RunEnd::kDone;
    } catch (const RunStopped&) {
      return RunEnd::kStopped;
    } catch (const std::bad_alloc&) {
      failure_ = Tr("Out of memory. The results of earlier runs are as they were.");
    } catch (const std::exception& error) {
      failure_ = TrCore(error.what());
    }
    return RunEnd::kFailed;
  }

  void Stop() {
    watched_.Stop();
    cancel_->setEnabled(false);
    part_->setText(Tr("Stopping..."));
  }

  void Finish(RunEnd end) {
    end_ = end;
    refresh_.stop();
    // A question that is still open is no longer one.
    for (QMessageBox* question : findChildren<QMessageBox*>()) {
      question->reject();
    }
    accept();
  }

  void Refresh() {
    const Progress progress = watched_.Now();
    if (!watched_.StopRequested()) {
      part_->setText(progress.note.empty()
                         ? TrCore(progress.part) + Text("...")
                         : TrCore(progress.part) + Text(": ") + TrCore(progress.note));
    }
    bar_->setRange(0, progress.steps == 0 ? 0 : kBarSteps);
    bar_->setValue(static_cast<int>(progress.Share() * kBarSteps));
    time_->setText(ProgressText(progress));
  }

  WatchedRun watched_;
  RunEnd end_ = RunEnd::kRunning;
  QString failure_;
  QTimer refresh_;
  QLabel* part_ = new QLabel(this);
  QProgressBar* bar_ = new QProgressBar(this);
  QLabel* time_ = new QLabel(this);
  QPushButton* cancel_ = new QPushButton(Tr("&Cancel"), this);
};

}  // namespace

bool RunWithProgress(QWidget* parent, const QString& title,
                     const std::function<void(RunObserver&)>& work) {
  RunDialog dialog(parent, title);
  const RunEnd end = dialog.Run(work);
  if (const std::string warnings = dialog.Warnings(); !warnings.empty()) {
    ShowSentence(parent, warnings);
  }
  if (end == RunEnd::kStopped) {
    ShowSentence(parent, RunStopped().what());
  } else if (end == RunEnd::kFailed) {
    ShowFailure(parent, dialog.Failure());
  }
  return end == RunEnd::kDone;
}

}  // namespace kaldo
