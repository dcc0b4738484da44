// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/result_table.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMimeData>
#include <QPushButton>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <string>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/copied_rows.h"
#include "app/results/save_file.h"
#include "base/number_text.h"

namespace kaldo {

namespace {

constexpr int kAtRight = static_cast<int>(Qt::AlignRight) | static_cast<int>(Qt::AlignVCenter);
constexpr int kMeasuredRows = 500;  ///< spread over the whole table
constexpr int kFewestRows = 4;      ///< that are seen in the smallest window
constexpr int kWidestColumn = 110;  ///< in characters

bool IsNumber(const QString& text) {
  return ParseDouble(Bytes(text)).has_value() || text == QLatin1String("NA");
}

/// Numbers stand at the right of their column. A blank behind them keeps them off a text that
/// begins at the left of the next one.
void KeepOff(Qt::Alignment alignment, QString& text) {
  if ((alignment & Qt::AlignRight) != 0) {
    text += QChar(QChar::Nbsp);
  }
}

class Heads : public QHeaderView {
 public:
  explicit Heads(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  }

 protected:
  bool viewportEvent(QEvent* event) override {
    if (event->type() != QEvent::ToolTip) {
      return QHeaderView::viewportEvent(event);
    }
    const auto* const help = static_cast<const QHelpEvent*>(event);
    const QVariant tip =
        model()->headerData(logicalIndexAt(help->pos()), Qt::Horizontal, Qt::ToolTipRole);
    QToolTip::showText(help->globalPos(), TipText(tip.toString()), this);
    return true;
  }
  void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override {
    QHeaderView::initStyleOptionForIndex(option, section);
    KeepOff(option->textAlignment, option->text);
  }
};

class Cells : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// A text that is wider than its column is told in full.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const QString text = index.data().toString();
    if (index.data(Qt::ToolTipRole).isValid() ||
        option.fontMetrics.horizontalAdvance(text) < option.rect.width()) {
      return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    QToolTip::showText(event->globalPos(), TipText(text), view);
    return true;
  }

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    KeepOff(option->displayAlignment, option->text);
  }
};

}  // namespace

void DataTableModel::SetTable(DataTable table) {
  beginResetModel();
  table_ = std::move(table);
  endResetModel();
}

int DataTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.rows.size());
}

int DataTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(table_.heads.size());
}

QVariant DataTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  const QString& text = table_.rows[static_cast<std::size_t>(index.row())].at(index.column());
  if (role == Qt::DisplayRole) {
    return text;
  }
  if (role == Qt::TextAlignmentRole && IsNumber(text)) {
    return kAtRight;
  }
  return {};
}

QVariant DataTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
    return table_.heads.value(section);
  }
  if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole && !table_.rows.empty() &&
      IsNumber(table_.rows.front().value(section))) {
    return kAtRight;
  }
  return {};
}

ResultTable::ResultTable(const QString& name, QWidget* parent) : QTableView(parent) {
  setAccessibleName(name);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->setVisible(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  const int row_height = fontMetrics().lineSpacing() * 4 / 3;
  verticalHeader()->setMinimumSectionSize(row_height);
  verticalHeader()->setDefaultSectionSize(row_height);
  setHorizontalHeader(new Heads(this));
  setItemDelegate(new Cells(this));
  AddActions();
}

void ResultTable::AddActions() {
  setContextMenuPolicy(Qt::ActionsContextMenu);
  const auto add = [this](Phrase text, auto act) {
    auto* const action = new QAction(Tr(text), this);
    connect(action, &QAction::triggered, this, act);
    addAction(action);
  };
  add(Phrase("&Copy rows"), [this] { CopyRows(); });
  add(Phrase("Select &all"), [this] { selectAll(); });
}

void ResultTable::setModel(QAbstractItemModel* model) {
  QTableView::setModel(model);
  FitColumns();
}

void ResultTable::FitColumns() {
  if (model() == nullptr) {
    return;
  }
  const int margin = 3 * fontMetrics().averageCharWidth();
  const int blank = fontMetrics().horizontalAdvance(QChar(QChar::Nbsp));
  const int widest = kWidestColumn * fontMetrics().averageCharWidth();
  const int rows = model()->rowCount();
  const int step = std::max(1, rows / kMeasuredRows);
  for (int column = 0; column < model()->columnCount(); ++column) {
    // The arrow that tells the order needs room beside the head, or else the blank behind it.
    const int arrow = isSortingEnabled() ? 2 * fontMetrics().averageCharWidth() : blank;
    int width = horizontalHeader()->sectionSizeHint(column) + arrow;
    qsizetype longest = 0;
    for (int row = 0; row < rows; row += step) {
      const QString text = model()->index(row, column).data().toString();
      if (text.size() * 3 >= longest * 2) {  // a much shorter one is not wider
        longest = std::max(longest, text.size());
        width = std::max(width, fontMetrics().horizontalAdvance(text) + margin);
      }
    }
    setColumnWidth(column, std::min(width, widest));
  }
}

int ResultTable::FullWidth() const {
  return horizontalHeader()->length() + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
}

QSize ResultTable::sizeHint() const {
  const int widest = kWidestColumn * fontMetrics().averageCharWidth();
  return {std::min(FullWidth(), widest), QTableView::sizeHint().height()};
}

QSize ResultTable::minimumSizeHint() const {
  const int height = horizontalHeader()->sizeHint().height() + 2 * frameWidth() +
                     horizontalScrollBar()->sizeHint().height() +
                     kFewestRows * verticalHeader()->defaultSectionSize();
  return {QTableView::minimumSizeHint().width(), height};
}

void ResultTable::CopyRows() const {
  CopiedRows rows(*model(), QLocale::system().decimalPoint().front());
  // By ranges: a list of all selected cells of a large table would take minutes.
  QItemSelection ranges = selectionModel()->selection();
  std::sort(ranges.begin(), ranges.end(),
            [](const auto& a, const auto& b) { return a.top() < b.top(); });
  if (ranges.isEmpty()) {
    rows.Add(0, model()->rowCount() - 1);
  }
  for (const QItemSelectionRange& range : std::as_const(ranges)) {
    rows.Add(range.top(), range.bottom());
  }
  auto* const copied = new QMimeData;
  copied->setText(rows.Plain());
  copied->setHtml(rows.Html());
  QApplication::clipboard()->setMimeData(copied);
}

void ResultTable::ExportRows(const QString& suggested) {
  const QString path = AskWhereToSave(window(), Tr("Export table"), suggested,
                                      {Tr("Comma-separated values (*.csv)")});
  if (!path.isEmpty()) {
    SaveCsv(path);
  }
}

bool ResultTable::SaveCsv(const QString& path) {
  return SaveFile(window(), path, CsvText(*model()));
}

void ResultTable::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    CopyRows();
    event->accept();
    return;
  }
  QTableView::keyPressEvent(event);
}

QLayout* NewTableButtons(ResultTable& table, std::string_view name, Phrase copy_help,
                         Phrase export_help, const QString& path) {
  auto* const copy = NewButton(Phrase("Copy &rows"), std::string(name) + "Copy", copy_help);
  auto* const save =
      NewButton(Phrase("&Export table..."), std::string(name) + "Export", export_help);
  QObject::connect(copy, &QPushButton::clicked, &table, [&table] { table.CopyRows(); });
  QObject::connect(save, &QPushButton::clicked, &table, [&table, path] { table.ExportRows(path); });
  auto* const row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(copy);
  row->addWidget(save);
  return row;
}

}  // namespace kaldo
