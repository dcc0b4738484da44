// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/results_window.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QTabWidget>
#include <QUrl>

#include "app/base/form_fields.h"
#include "app/base/messages.h"
#include "app/base/recent_folders.h"
#include "app/base/text.h"
#include "app/base/wrapping_row.h"
#include "base/version.h"

namespace kaldo {

namespace {

/// Scrolls a page up and down where it does not fit, and never sideways.
class PageArea : public QScrollArea {
 public:
  PageArea() {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
  }

  QSize minimumSizeHint() const override {
    const int bar = verticalScrollBar()->sizeHint().width();
    return {widget()->minimumSizeHint().width() + bar, fontMetrics().lineSpacing() * 6};
  }
};

}  // namespace

ResultsWindow::ResultsWindow(const std::string& project, QString folder, QWidget* parent)
    : QWidget(parent, Qt::Window),
      folder_(std::move(folder)),
      note_(NewHint(nullptr)),
      tabs_(new QTabWidget),
      copy_command_(new QPushButton(Tr("&Copy as command"))),
      export_(
          NewButton(Phrase("E&xport..."), "ExportRun",
                    Phrase("Write the results for other programs: tables, a workbook, pedigrees"))),
      html_report_(
          NewButton(Phrase("HT&ML report"), "HtmlReport",
                    Phrase("Write the results as a page to read and print, and open it"))) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(Tr("%1 - %2 - results").arg(Text(kProductTitle), PathText(project)));
  tabs_->setObjectName(Text("Tabs"));
  tabs_->setDocumentMode(true);
  auto* layout = new QVBoxLayout(this);
  note_->setObjectName(Text("Note"));
  note_->hide();
  layout->addWidget(note_);
  layout->addWidget(tabs_, 1);
  layout->addWidget(ButtonRow());
  new QShortcut(QKeySequence(Qt::Key_Escape), this, [this] { ClearSearch(); });
  new QShortcut(QKeySequence::Close, this, [this] { close(); });
  RememberFolder(folder_);
  const QSize wanted(fontMetrics().averageCharWidth() * 170, fontMetrics().lineSpacing() * 44);
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

QWidget* ResultsWindow::ButtonRow() {
  auto* open = new QPushButton(Tr("Open &folder"));
  open->setObjectName(Text("OpenFolder"));
  open->setToolTip(TipText(Tr("Show the reports of this run: %1").arg(folder_)));
  copy_command_->setObjectName(Text("CopyCommand"));
  copy_command_->setToolTip(
      Tr("Copy the command line that repeats this run, for a script or a colleague."));
  copy_command_->setEnabled(false);
  auto* close_button = NewButton(Phrase("C&lose"), "Close",
                                 Phrase("Close this window. The reports stay in their folder."));

  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  buttons_ = new WrappingRow;
  buttons_->layout()->addWidget(open);
  buttons_->layout()->addWidget(copy_command_);
  AddExports(*buttons_->layout());
  layout->addWidget(buttons_, 1);
  layout->addWidget(close_button, 0, Qt::AlignBottom);
  connect(open, &QPushButton::clicked, this, [this] {
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder_))) {
      ShowFailure(this, Tr("The folder \"%1\" cannot be opened.").arg(folder_));
    }
  });
  connect(copy_command_, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(command_); });
  connect(close_button, &QPushButton::clicked, this, [this] { close(); });
  return row;
}

void ResultsWindow::AddExports(QLayout& row) {
  row.addWidget(export_);
  row.addWidget(html_report_);
  export_->hide();
  html_report_->hide();
  connect(export_, &QPushButton::clicked, this,
          [this] { ExportDialog(this, exports_, folder_).exec(); });
  connect(html_report_, &QPushButton::clicked, this,
          [this] { OpenHtmlReport(this, exports_, folder_); });
}

void ResultsWindow::SetExports(ExportOffer offer) {
  exports_ = std::move(offer);
  export_->setVisible(!exports_.forms.empty());
  html_report_->setVisible(exports_.Has(&ExportForms::page));
}

void ResultsWindow::NarrowExports(std::vector<NamedExportForm> forms) {
  exports_.forms = std::move(forms);
  SetExports(std::move(exports_));
}

void ResultsWindow::SetCommand(const QString& command) {
  command_ = command;
  copy_command_->setEnabled(!command.isEmpty());
}

void ResultsWindow::SetNote(const QString& note) {
  note_->setText(note);
  note_->show();
}

void ResultsWindow::ClearSearch() {
  for (QLineEdit* field : findChildren<QLineEdit*>()) {
    if (field->isVisible() && field->isClearButtonEnabled()) {
      field->clear();
    }
  }
}

void ResultsWindow::AddTab(QWidget* page, Phrase title, Phrase tip) {
  auto* framed = new QWidget;
  auto* layout = new QVBoxLayout(framed);
  layout->addWidget(page);
  // A small monitor shows less than a page at once; what is below is scrolled to.
  auto* area = new PageArea;
  area->setWidget(framed);
  framed->setAutoFillBackground(false);
  area->setObjectName(Text(title.English()).remove(QLatin1Char('&')).remove(QLatin1Char(' ')) +
                      Text("Tab"));
  tabs_->setTabToolTip(tabs_->addTab(area, Tr(title)), Tr(tip));
}

void ResultsWindow::AddButton(QPushButton* button) { buttons_->layout()->addWidget(button); }

void ResultsWindow::ShowTab(const QWidget& page) {
  for (int tab = 0; tab < tabs_->count(); ++tab) {
    if (tabs_->widget(tab)->isAncestorOf(&page)) {
      tabs_->setCurrentIndex(tab);
    }
  }
}

}  // namespace kaldo
