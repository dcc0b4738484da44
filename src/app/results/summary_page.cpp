// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/summary_page.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QSplitter>
#include <QTextBrowser>

#include "app/base/text.h"
#include "app/results/chart_panel.h"

namespace kaldo {

namespace {

QString Paragraphs(const QString& mark, const QStringList& sentences) {
  QString html;
  for (const QString& sentence : sentences) {
    html += Text("<p>%1%2</p>").arg(mark, sentence.toHtmlEscaped());
  }
  return html;
}

QString HtmlOf(const Summary& summary) {
  QString html = Text("<h3>%1</h3><table>").arg(summary.title.toHtmlEscaped());
  for (const auto& [label, text] : summary.lines) {
    html += Text("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>")
                .arg(label.toHtmlEscaped(), text.toHtmlEscaped());
  }
  html += Text("</table>");
  html += Paragraphs(Text("<b>&#9888; Warning:</b> "), summary.warnings);
  html += Paragraphs(QString(), summary.notes);
  html += Text("<p><b>%1</b></p><ul>").arg(summary.files_title.toHtmlEscaped());
  for (const QString& file : summary.files) {
    html += Text("<li>%1</li>").arg(file.toHtmlEscaped());
  }
  return html + Text("</ul>");
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

SummaryPage::SummaryPage(const Summary& summary, const Chart& chart, const DataTable& table,
                         const QString& folder, QWidget* parent)
    : QWidget(parent) {
  auto* text = new QTextBrowser;
  text->setObjectName(Text("SummaryText"));
  text->setAccessibleName(Text("Summary of the run"));
  text->setTabChangesFocus(true);
  text->setHtml(HtmlOf(summary));
  text->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
  auto* figures = new ChartPanel(Text("Summary"), Qt::Vertical, folder, nullptr);
  figures->Show(chart, table);
  auto* splitter = new QSplitter;
  splitter->addWidget(text);
  splitter->addWidget(figures);
  splitter->setStretchFactor(0, 1);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter);
}

}  // namespace kaldo
