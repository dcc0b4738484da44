// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/copied_rows.h"

#include <QAbstractItemModel>

#include "app/base/text.h"
#include "app/results/data_table.h"

namespace kaldo {

namespace {

// What spreadsheets write themselves beside the cells of a copied table: Excel the style and the
// attributes with "x:", LibreOffice the others.
constexpr std::string_view kTextCell =
    R"(<td style='mso-number-format:"\@"' x:str sdnum="1033;0;@">%1</td>)";
constexpr std::string_view kFigureCell = R"(<td x:num="%1" sdval="%1">%2</td>)";

constexpr std::string_view kHead =
    R"(<html xmlns:x="urn:schemas-microsoft-com:office:excel"><head><meta charset="utf-8"></head>)"
    R"(<body><table>)";

}  // namespace

CopiedRows::CopiedRows(const QAbstractItemModel& model, QChar decimal_sign)
    : model_(model), decimal_sign_(decimal_sign) {
  for (int column = 0; column < model.columnCount(); ++column) {
    AddCell(model.headerData(column, Qt::Horizontal).toString(), false, column == 0);
  }
  EndRow();
}

void CopiedRows::Add(int first, int last) {
  for (int row = first; row <= last; ++row) {
    for (int column = 0; column < model_.columnCount(); ++column) {
      const QModelIndex index = model_.index(row, column);
      const bool is_at_right = (index.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight) != 0;
      AddCell(index.data().toString(), is_at_right, column == 0);
    }
    EndRow();
  }
}

void CopiedRows::AddCell(const QString& cell, bool may_be_figure, bool is_first) {
  plain_ += is_first ? QString() : QString(QLatin1Char('\t'));
  html_ += is_first ? Text("<tr>") : QString();
  if (may_be_figure && IsFigure(cell)) {
    const QString local = QString(cell).replace(QLatin1Char('.'), decimal_sign_);
    plain_ += local;
    html_ += Text(kFigureCell).arg(cell, local);
  } else {
    plain_ += cell;
    html_ += Text(kTextCell).arg(cell.toHtmlEscaped());
  }
}

void CopiedRows::EndRow() {
  plain_ += QLatin1Char('\n');
  html_ += Text("</tr>\n");
}

QString CopiedRows::Html() const { return Text(kHead) + html_ + Text("</table></body></html>"); }

}  // namespace kaldo
