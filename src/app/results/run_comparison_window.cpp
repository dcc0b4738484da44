// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/results/run_comparison_window.h"

#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <functional>

#include "app/base/form_fields.h"
#include "app/base/text.h"
#include "app/base/tr.h"
#include "app/results/allocation_classes.h"
#include "app/results/result_table.h"
#include "app/results/row_filter.h"
#include "app/results/searchable_table.h"
#include "base/version.h"

namespace kaldo {

namespace {

constexpr SearchableTexts kTexts{
    "RunComparison",
    Phrase("Offspring in both runs"),
    Phrase("part of a name"),
    Phrase("Show only offspring whose name, or the name of a parent in either run, contains this."),
    Phrase("Show only offspring with another pair, all, or those of one run alone."),
    "comparison.csv"};

/// The list of what to show, in its order.
enum class ShownOffspring { kChanged, kAll, kInOneRun };

/// What stands in the table for one run beside the same of the other.
struct ComparedColumns {
  std::vector<Phrase> heads;
  std::vector<Phrase> sexed_heads;
  std::function<QStringList(const RunStatement&)> cells;
};

std::vector<ComparedColumns> ColumnsOfRuns() {
  return {{{Phrase("Parent 1"), Phrase("Parent 2")},
           {Phrase("Male"), Phrase("Female")},
           [](const RunStatement& run) {
             return QStringList{Text(run.parents[0]), Text(run.parents[1])};
           }},
          {{Phrase("p right 1"), Phrase("p right 2")},
           {Phrase("p male right"), Phrase("p female right")},
           [](const RunStatement& run) {
             return QStringList{ShortNumber(run.p_right[0]), ShortNumber(run.p_right[1])};
           }},
          {{Phrase("Class")},
           {Phrase("Class")},
           [](const RunStatement& run) { return QStringList{Text(run.the_class)}; }},
          {{Phrase("Certainty")}, {Phrase("Certainty")}, [](const RunStatement& run) {
             return QStringList{run.certainty ? CertaintyText(*run.certainty) : Text("NA")};
           }}};
}

QStringList Heads(bool sexed) {
  QStringList heads{Tr("Offspring"), Tr("Result")};
  for (const ComparedColumns& columns : ColumnsOfRuns()) {
    for (const Phrase& run : {Phrase("This: %1"), Phrase("Other: %1")}) {
      for (const Phrase& head : sexed ? columns.sexed_heads : columns.heads) {
        heads += Tr(run).arg(Tr(head));
      }
    }
  }
  return heads;
}

QString ResultText(const ComparedOffspring& offspring) {
  return Tr(!offspring.first       ? Phrase("other run only")
            : !offspring.second    ? Phrase("this run only")
            : offspring.is_changed ? Phrase("another pair")
                                   : Phrase("same pair"));
}

DataTable TableOfComparison(const RunComparison& comparison, const RunStatements& here,
                            const RunStatements& other) {
  DataTable table;
  table.heads = Heads(here.flow == Flow::kSexed && other.flow == Flow::kSexed);
  table.rows.reserve(comparison.offspring.size());
  const std::vector<ComparedColumns> all_columns = ColumnsOfRuns();
  for (const ComparedOffspring& offspring : comparison.offspring) {
    const RunStatement* const first = offspring.first ? &here.offspring[*offspring.first] : nullptr;
    const RunStatement* const second =
        offspring.second ? &other.offspring[*offspring.second] : nullptr;
    QStringList row{Text((first != nullptr ? first : second)->offspring), ResultText(offspring)};
    for (const ComparedColumns& columns : all_columns) {
      for (const RunStatement* const run : {first, second}) {
        const auto count = static_cast<qsizetype>(columns.heads.size());
        row += run != nullptr ? columns.cells(*run) : QStringList(count, Text("--"));
      }
    }
    table.rows.push_back(row);
  }
  return table;
}

QString RunsText(const OtherRun& here, const OtherRun& other, const RunComparison& comparison) {
  QStringList lines{Tr("This run: %1").arg(QDir::toNativeSeparators(here.folder)),
                    Tr("Other run: %1").arg(QDir::toNativeSeparators(other.folder))};
  lines += comparison.other_files.empty() ? Tr("Both have the same input files.")
                                          : Tr("Their input files differ:");
  for (const std::string& file : comparison.other_files) {
    lines += Text("- ") + TrCore(file);
  }
  lines += comparison.other_settings.empty() ? Tr("Both have the same settings.")
                                             : Tr("Their settings differ:");
  for (const std::string& setting : comparison.other_settings) {
    lines += Text("- ") + TrCore(setting);
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace

/// The rows as the user has sorted and narrowed them.
class RunComparisonFilter : public RowFilter {
 public:
  RunComparisonFilter(std::vector<ComparedOffspring> offspring, DataTableModel& model)
      : RowFilter(&model), offspring_(std::move(offspring)) {
    setSourceModel(&model);
  }

  void Choose(const QString& name, ShownOffspring shown) {
    name_ = name;
    shown_ = shown;
    NarrowAgain();
  }

 protected:
  bool Accepts(int row) const override {
    const ComparedOffspring& offspring = offspring_[static_cast<std::size_t>(row)];
    if ((shown_ == ShownOffspring::kChanged && !offspring.is_changed) ||
        (shown_ == ShownOffspring::kInOneRun && offspring.first && offspring.second)) {
      return false;
    }
    constexpr std::array kNames = {0, 2, 3, 4, 5};  // columns
    return name_.isEmpty() || std::any_of(kNames.begin(), kNames.end(), [&](int column) {
             return sourceModel()
                 ->index(row, column)
                 .data()
                 .toString()
                 .contains(name_, Qt::CaseInsensitive);
           });
  }

  bool IsBefore(const QModelIndex& left, const QModelIndex& right) const override {
    const QString a = left.data().toString();
    const QString b = right.data().toString();
    return IsFigure(a) && IsFigure(b) ? a.toDouble() < b.toDouble() : a < b;
  }

 private:
  std::vector<ComparedOffspring> offspring_;
  QString name_;
  ShownOffspring shown_ = ShownOffspring::kChanged;
};

RunComparisonWindow::RunComparisonWindow(const OtherRun& here, const OtherRun& other,
                                         QWidget* parent)
    : QWidget(parent, Qt::Window), list_(new SearchableTable(kTexts, here.folder)) {
  setAttribute(Qt::WA_DeleteOnClose);
  setObjectName(Text("RunComparison"));
  setWindowTitle(Tr("%1 - two runs compared").arg(Text(kProductTitle)));
  const RunComparison comparison = Compare(here.statements, other.statements);
  auto* const model = new DataTableModel(this);
  model->SetTable(TableOfComparison(comparison, here.statements, other.statements));
  filter_ = new RunComparisonFilter(comparison.offspring, *model);
  for (const Phrase& choice :
       {Phrase("another pair"), Phrase("all offspring"), Phrase("in one run only")}) {
    list_->Choices().addItem(Tr(choice));
  }
  ResultTable& table = list_->Table();
  table.setModel(filter_);
  table.setSortingEnabled(true);
  table.sortByColumn(-1, Qt::AscendingOrder);  // as in the files
  table.FitColumns();
  LayOut(TrCore(ComparisonSentence(comparison)), RunsText(here, other, comparison));
  list_->SetOnChoice([this] { Narrow(); });
  Narrow();
  new QShortcut(QKeySequence(Qt::Key_Escape), this, [this] { list_->ClearSought(); });
  new QShortcut(QKeySequence::Close, this, [this] { close(); });
  const QSize wanted(fontMetrics().averageCharWidth() * 150, fontMetrics().lineSpacing() * 36);
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

void RunComparisonWindow::LayOut(const QString& found, const QString& compared) {
  auto* const sentence = NewHint(nullptr);
  sentence->setObjectName(Text("RunComparisonSentence"));
  sentence->setText(found);
  QFont bold = sentence->font();
  bold.setBold(true);
  sentence->setFont(bold);
  auto* const runs = NewHint(nullptr);
  runs->setObjectName(Text("RunComparisonRuns"));
  runs->setText(compared);
  auto* const close_button = NewButton(Phrase("C&lose"), "Close", Phrase("Close this window."));
  connect(close_button, &QPushButton::clicked, this, [this] { close(); });
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(sentence);
  layout->addWidget(runs);
  layout->addWidget(list_, 1);
  layout->addWidget(close_button, 0, Qt::AlignRight);
}

void RunComparisonWindow::Narrow() {
  filter_->Choose(list_->SoughtText(),
                  static_cast<ShownOffspring>(list_->Choices().currentIndex()));
  list_->SetCount(
      Tr("%1 of %2 offspring").arg(filter_->rowCount()).arg(filter_->sourceModel()->rowCount()));
}

}  // namespace kaldo
