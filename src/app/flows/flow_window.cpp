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

#include "app/base/form_fields.h"
#include "app/base/messages.h"
#include "app/base/opened_files.h"
#include "app/base/text.h"
#include "runs/earlier_run.h"
#include "runs/project_folder.h"
#include "runs/project_lock.h"
#include "runs/run_record.h"
#include "runs/unfinished_run.h"

namespace kaldo {

namespace {

/// Room for the whole screen where the monitor has it; bars to scroll by where it has not.
class PageArea : public QScrollArea {
 public:
  using QScrollArea::QScrollArea;

  QSize sizeHint() const override {
    QSize wanted = widget()->sizeHint();
    if (widget()->hasHeightForWidth()) {  // some lines of text are wrapped
      wanted.setHeight(std::max(wanted.height(), widget()->heightForWidth(wanted.width())));
    }
    const QSize monitor = screen()->availableSize();
    return (wanted + QSize(2, 2))
        .boundedTo(QSize(monitor.width() * 9 / 10, monitor.height() * 3 / 4));
  }
};

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

FlowPage::FlowPage(const ScreenEntry& entry, std::string_view caption) : caption_(Text(caption)) {
  Name(*this, entry);
}

FlowWindow::FlowWindow(OpenedFiles& opened, QWidget* parent)
    : QDialog(parent),
      opened_(opened),
      area_(new PageArea),
      destination_(NewHint(nullptr)),
      copy_(NewButton("Cop&y as command", "CopyAsCommand",
                      "Copy the command line that does the same run, for a script or a cluster")),
      back_(NewButton("<---  Back", "Back", "To the screen before; what was typed stays")),
      ok_(NewButton("OK", "Ok", "Check this screen and go on")) {
  setModal(true);
  area_->setWidgetResizable(true);
  area_->setFrameShape(QFrame::NoFrame);
  destination_->setObjectName(Text("Destination"));

  Number(*back_, kBackButton);
  back_->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
  back_->setAutoDefault(false);
  copy_->setAutoDefault(false);
  ok_->setDefault(true);

  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(copy_);
  buttons->addStretch();
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
  area_->updateGeometry();
  layout()->activate();
  resize(sizeHint());
  FocusFirst(page);
}

void FlowWindow::ShowDestination(const FlowPage& page) {
  const bool may_start = MayStartRun(page);
  copy_->setVisible(may_start);
  destination_->setVisible(may_start);
  if (!may_start) {
    return;
  }
  QString text = Text("Results go to ") + ResultsFolder();
  const QFileInfo record(PathText(ProjectFolder(project_).Path(kRunRecordFile)));
  if (record.exists()) {
    text += Text("\nThe results of ") + record.lastModified().toString(Text("yyyy-MM-dd HH:mm")) +
            Text(" will be replaced.");
  }
  destination_->setText(text);
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
    QGuiApplication::clipboard()->setText(Text(command));
  }
}

void FlowWindow::Refuse(const Problem& problem) {
  Problem told = problem;
  if (const auto look = told.file.empty() ? std::nullopt : opened_.ForeignLookAt(told.file)) {
    told.found += fmt::format(
        "{}{} The button \"Convert...\" below its field makes files of it that "
        "a run takes.",
        told.found.empty() ? "" : " ", look->sentence);
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
    ShowFailure(this, Text(failure.what()));
    return false;
  }
}

bool FlowWindow::AskToReplace(std::string_view flow, bool& may_replace) {
  const auto other = OtherFlowSentence(ProjectFolder(project_), flow);
  may_replace = other && AskYesNo(this, Text(*other + " Replace them?"));
  return !other || may_replace;
}

KeptWork FlowWindow::AskToResume(std::string_view flow) {
  const auto unfinished = UnfinishedSentence(ProjectFolder(project_), flow);
  return unfinished && AskYesNo(this, Text(*unfinished + " Go on with it? With No this run begins "
                                                         "anew."))
             ? KeptWork::kResumed
             : KeptWork::kAnew;
}

}  // namespace kaldo
