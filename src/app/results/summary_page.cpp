// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/summary_page.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/base/wrapping_row.h"
#include "app/results/chart_panel.h"

namespace kaldo {

namespace {

constexpr int kMostLines = 9;  ///< of what to check, seen at once

QString Paragraphs(const QString& mark, const QStringList& sentences) {
  QString html;
  for (const QString& sentence : sentences) {
    html += Text("<p>%1%2</p>").arg(mark, sentence.toHtmlEscaped());
  }
  return html;
}

QString TableHtml(const std::vector<std::pair<QString, QString>>& lines) {
  QString html = Text("<table>");
  for (const auto& [label, text] : lines) {
    html += Text("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>")
                .arg(label.toHtmlEscaped(), text.toHtmlEscaped());
  }
  return html + Text("</table>");
}

QString FilesHtml(const Summary& summary) {
  QString html = Text("<p><b>%1</b></p><ul>").arg(summary.files_title.toHtmlEscaped());
  for (const QString& file : summary.files) {
    html += Text("<li>%1</li>").arg(file.toHtmlEscaped());
  }
  return html + Text("</ul>");
}

QString HtmlOf(const Summary& summary, bool with_settings) {
  QString html = Text("<h3>%1</h3>").arg(summary.title.toHtmlEscaped());
  const QString found =
      Paragraphs(Text("<b>&#9888; %1</b> ").arg(Tr("Warning:")), summary.warnings) +
      Paragraphs(QString(), summary.notes);
  if (summary.headline.isEmpty()) {
    return html + TableHtml(summary.lines) + found + FilesHtml(summary);
  }
  html += Text("<p><b>%1</b></p>").arg(summary.headline.toHtmlEscaped());
  if (!summary.figures.empty()) {
    html += Paragraphs(QString(), {summary.figures_title}) + TableHtml(summary.figures);
  }
  html += found;
  return with_settings ? html + TableHtml(summary.lines) + FilesHtml(summary) : html;
}

}  // namespace

QStringList FilesPresent(const QString& folder, const std::vector<std::string_view>& candidates) {
  QStringList files;
  for (const std::string_view file : candidates) {
    if (QFileInfo::exists(folder + Text(file))) {
      files += Text(file.substr(1));
    }
  }
  return files;
}

SummaryPage::SummaryPage(Summary summary, const Chart& chart, const DataTable& table,
                         const QString& folder, QWidget* parent)
    : QWidget(parent),
      summary_(std::move(summary)),
      text_(new QTextBrowser),
      to_check_(new QListWidget),
      more_(NewButton(Phrase("Files an&d settings"), "SummaryMore",
                      Phrase("Show which files and settings this run had, and what it wrote."))),
      trial_(NewButton(
          Phrase("How far can this be tr&usted?"), "SummaryTrial",
          Phrase("Simulate offspring of these parents, whose origin is known, and see how "
                 "often such allocations are right. The screens are filled in for you; the "
                 "figures come back here."))) {
  auto* figures = new ChartPanel(Text("Summary"), Qt::Vertical, folder, nullptr);
  figures->Show(chart, table);
  auto* splitter = new QSplitter;
  splitter->addWidget(NewTextSide());
  splitter->addWidget(figures);
  splitter->setStretchFactor(0, 1);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter);
  ShowText();
}

QWidget* SummaryPage::NewTextSide() {
  text_->setObjectName(Text("SummaryText"));
  text_->setAccessibleName(Tr("Summary of the run"));
  text_->setTabChangesFocus(true);
  text_->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
  to_check_->setObjectName(Text("SummaryToCheck"));
  to_check_->setAccessibleName(Tr("Offspring to check"));
  to_check_->setToolTip(Tr("Choose a line to see the offspring, locus by locus."));
  to_check_->addItems(summary_.to_check);
  to_check_->setWordWrap(true);
  to_check_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  to_check_->setMaximumHeight((kMostLines + 1) * fontMetrics().lineSpacing() * 4 / 3);
  more_->setCheckable(true);
  auto* label = new QLabel(Tr("To chec&k:"));
  label->setBuddy(to_check_);
  auto* side = new QWidget;
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text_, 1);
  layout->addWidget(label);
  layout->addWidget(to_check_);
  auto* row = new WrappingRow;
  row->layout()->addWidget(more_);
  row->layout()->addWidget(trial_);
  layout->addWidget(row);
  trial_->hide();
  const bool checks = !summary_.to_check.isEmpty();
  label->setVisible(checks);
  to_check_->setVisible(checks);
  more_->setVisible(!summary_.headline.isEmpty());
  connect(more_, &QPushButton::toggled, this, [this] { ShowText(); });
  return side;
}

void SummaryPage::ShowText() { text_->setHtml(HtmlOf(summary_, more_->isChecked())); }

void SummaryPage::AddNote(const QString& note) {
  summary_.notes += note;
  ShowText();
}

void SummaryPage::OfferTrial(std::function<void()> on_trial) {
  trial_->show();
  connect(trial_, &QPushButton::clicked, this, std::move(on_trial));
}

void SummaryPage::SetOnCheck(std::function<void(std::size_t)> on_check) {
  const auto choose = [this, on_check = std::move(on_check)](const QListWidgetItem* item) {
    on_check(static_cast<std::size_t>(to_check_->row(item)));
  };
  // A click shows it; from the keyboard Enter does.
  connect(to_check_, &QListWidget::itemClicked, this, choose);
  connect(to_check_, &QListWidget::itemActivated, this, choose);
}

}  // namespace kaldo
