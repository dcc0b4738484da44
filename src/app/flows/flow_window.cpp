// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flows/flow_window.h"

#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include <fmt/format.h>

#include "app/base/command_text.h"
#include "app/base/elided_label.h"
#include "app/base/form_fields.h"
#include "app/base/messages.h"
#include "app/base/opened_files.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "runs/earlier_run.h"
#include "runs/project_folder.h"
#include "runs/project_lock.h"
#include "runs/run_record.h"
#include "runs/unfinished_run.h"

namespace kaldo {

namespace {

constexpr int kLinesBelow = 2;  ///< of the folder of the results

// The room of a usual screen: some grow when files are known.
constexpr int kUsualWidth = 100;  ///< in characters
constexpr int kUsualLines = 38;

/// The room that a screen asks for.
QSize WantedBy(const QWidget& page) {
  QSize wanted = page.sizeHint().expandedTo(page.minimumSizeHint());
  if (page.hasHeightForWidth()) {  // some lines of text are wrapped
    wanted.setHeight(std::max(wanted.height(), page.heightForWidth(wanted.width())));
  }
  return wanted + QSize(2, 2);
}

/// Stays where it is when it is not seen, so that nothing else moves.
void KeepPlace(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

/// The keyboard starts at the first field of a screen.
void FocusFirst(QWidget& page) {
  for (QWidget* next = page.nextInFocusChain(); next != &page; next = next->nextInFocusChain()) {
    if (page.isAncestorOf(next) && next->isVisibleTo(&page) &&
        (next->focusPolicy() & Qt::TabFocus) != 0) {
      next->setFocus(Qt::TabFocusReason);
      return;
    }
  }
}

}  // namespace

FlowWindow::FlowWindow(OpenedFiles& opened, QWidget* parent)
    : QDialog(parent),
      opened_(opened),
      area_(new QScrollArea),
      destination_(new ElidedLabel),
      step_(new QLabel),
      copy_(NewButton(
          Phrase("Cop&y as command"), "CopyAsCommand",
          Phrase("Copy the command line that does the same run, for a script or a cluster"))),
      back_(NewButton(Phrase("<---  Back"), "Back",
                      Phrase("To the screen before; what was typed stays"))),
      ok_(NewButton(Phrase("OK"), "Ok", Phrase("Check this screen and go on"))) {
  setModal(true);
  area_->setWidgetResizable(true);
  area_->setFrameShape(QFrame::NoFrame);
  destination_->setObjectName(Text("Destination"));
  destination_->setFixedHeight(kLinesBelow * fontMetrics().lineSpacing());
  step_->setObjectName(Text("Step"));
  KeepPlace(*destination_);
  KeepPlace(*copy_);

  Number(*back_, kBackButton);
  back_->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
  back_->setAutoDefault(false);
  copy_->setAutoDefault(false);
  ok_->setDefault(true);

  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(copy_);
  buttons->addStretch();
  buttons->addWidget(step_);
  buttons->addWidget(back_);
  buttons->addWidget(ok_);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(area_, 1);
  column->addWidget(destination_);
  column->addLayout(buttons);

  connect(ok_, &QPushButton::clicked, this, [this] { ConfirmCurrent(); });
  connect(back_, &QPushButton::clicked, this, [this] { GoBack(); });
  connect(copy_, &QPushButton::clicked, this, [this] { CopyCommand(); });
}

void FlowWindow::Start(const std::string& project) {
  project_ = project;
  before_.clear();
  Display(FirstPage());
  exec();
  Leave();
  opened_.Forget();
}

void FlowWindow::Keep(QWidget* page) {
  page->setParent(this);
  page->hide();
}

void FlowWindow::ShowPage(FlowPage& page) {
  before_.push_back(current_);
  Display(page);
}

void FlowWindow::Display(FlowPage& page) {
  current_ = &page;
  Prepare(page);
  if (QWidget* const shown_before = area_->takeWidget()) {
    Keep(shown_before);
  }
  area_->setWidget(&page);
  page.show();
  setWindowTitle(page.Caption());
  ShowDestination(page);
  step_->setText(
      Tr("Step %1 of %2").arg(before_.size() + 1).arg(before_.size() + 1 + ScreensBehind(page)));
  FitScreens();
  FocusFirst(page);
}

void FlowWindow::FitScreens() {
  QSize room(fontMetrics().averageCharWidth() * kUsualWidth,
             fontMetrics().lineSpacing() * kUsualLines);
  for (const FlowPage* page : pages_) {
    if (before_.empty() || page == current_) {
      room = room.expandedTo(WantedBy(*page));
    }
  }
  const QMargins edges = layout()->contentsMargins();
  const int below = kLinesBelow * fontMetrics().lineSpacing() + ok_->sizeHint().height();
  const QSize wanted = room + QSize(edges.left() + edges.right(),
                                    edges.top() + below + edges.bottom() + 2 * layout()->spacing());
  const QSize monitor = screen()->availableSize() * 9 / 10;
  resize(size().expandedTo(wanted).boundedTo(monitor));
}

void FlowWindow::ShowDestination(const FlowPage& page) {
  const bool may_start = MayStartRun(page);
  copy_->setVisible(may_start);
  destination_->setVisible(may_start);
  if (!may_start) {
    return;
  }
  const QString folder = QDir::toNativeSeparators(ResultsFolder());
  QString text = Tr("Results go to %1").arg(folder);
  const QFileInfo record(PathText(ProjectFolder(project_).Path(kRunRecordFile)));
  if (record.exists()) {
    text += Text("\n") + Tr("The results of %1 will be replaced.")
                             .arg(record.lastModified().toString(Text("yyyy-MM-dd HH:mm")));
  }
  destination_->SetText(text, folder);
}

void FlowWindow::GoBack() {
  if (before_.empty()) {
    reject();
    return;
  }
  FlowPage* const page = before_.back();
  before_.pop_back();
  Display(*page);
}

void FlowWindow::ConfirmCurrent() { Confirm(*current_); }

void FlowWindow::CopyCommand() {
  const std::string command = Command();
  if (!command.empty()) {
    QGuiApplication::clipboard()->setText(CommandHere(command));
  }
}

void FlowWindow::Refuse(const Problem& problem) {
  Problem told = problem;
  current_->TellTyped(told);
  if (const auto look = told.file.empty() ? std::nullopt : opened_.ForeignLookAt(told.file)) {
    const QString found = Text(told.found);
    told.found =
        Bytes(found + Text(found.isEmpty() ? "" : " ") + TrCore(look->sentence) + Text(" ") +
              Tr("The button \"Convert...\" below its field makes files of it that a run "
                 "takes."));
  }
  ShowProblem(this, told);
}

QString FlowWindow::ResultsFolder() const {
  return QDir::current().absoluteFilePath(PathText(project_));
}

bool FlowWindow::MakeProjectFolder() {
  try {
    (void)ProjectFolder(project_).Create();
    if (const auto recovered = RecoverProject(ProjectFolder(project_))) {
      ShowSentence(this, *recovered);
    }
    return true;
  } catch (const RunFailure& failure) {
    ShowFailure(this, TrCore(failure.what()));
    return false;
  }
}

bool FlowWindow::AskToReplace(std::string_view flow, bool& may_replace) {
  const auto other = OtherFlowSentence(ProjectFolder(project_), flow);
  may_replace = other && AskYesNo(this, TrCore(*other) + Text(" ") + Tr("Replace them?"));
  return !other || may_replace;
}

KeptWork FlowWindow::AskToResume(std::string_view flow) {
  const auto unfinished = UnfinishedSentence(ProjectFolder(project_), flow);
  return unfinished && AskYesNo(this, TrCore(*unfinished) + Text(" ") +
                                          Tr("Go on with it? With No this run begins anew."))
             ? KeptWork::kResumed
             : KeptWork::kAnew;
}

}  // namespace kaldo
