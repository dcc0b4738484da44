// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemView>
#include <QFile>
#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "allocation/allocation_run.h"
#include "app/base/text.h"
#include "app/results/chart_view.h"
#include "simulation/simulation_run.h"

namespace kaldo::test {

using Rows = std::vector<QStringList>;

/// The bytes of a file; none, and a failed test, where it cannot be read.
inline QByteArray ReadFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    QTest::qFail(qPrintable(path), __FILE__, __LINE__);
  }
  return file.readAll();
}

/// The lines of a tab-separated report as cells, without the line ends.
inline Rows ReportRows(const QString& path) {
  Rows rows;
  for (const QString& line : QString::fromUtf8(ReadFile(path)).split(QLatin1Char('\n'))) {
    rows.push_back(line.split(QLatin1Char('\t')));
  }
  return rows;
}

/// Reads comma-separated values by the book, one byte after the other.
inline Rows ParseCsv(const QByteArray& csv) {
  Rows rows(1);
  QByteArray cell;
  bool quoted = false;
  const auto end_cell = [&] {
    rows.back() += QString::fromUtf8(cell);
    cell.clear();
  };
  for (qsizetype k = 0; k < csv.size(); ++k) {
    if (csv[k] == '"' && quoted && k + 1 < csv.size() && csv[k + 1] == '"') {
      cell += csv[++k];
    } else if (csv[k] == '"') {
      quoted = !quoted;
    } else if (csv[k] == ',' && !quoted) {
      end_cell();
    } else if (csv[k] == '\r' && !quoted) {
      end_cell();
      rows.emplace_back();
      ++k;
    } else {
      cell += csv[k];
    }
  }
  rows.pop_back();
  return rows;
}

/// What a model shows, its heads first.
inline Rows ModelRows(const QAbstractItemModel& model) {
  Rows rows(1);
  for (int column = 0; column < model.columnCount(); ++column) {
    rows.back() += model.headerData(column, Qt::Horizontal).toString();
  }
  for (int row = 0; row < model.rowCount(); ++row) {
    rows.emplace_back();
    for (int column = 0; column < model.columnCount(); ++column) {
      rows.back() += model.index(row, column).data().toString();
    }
  }
  return rows;
}

/// One column of a model, from top to bottom.
inline QStringList Column(const QAbstractItemModel& model, int column) {
  QStringList cells;
  for (int row = 0; row < model.rowCount(); ++row) {
    cells += model.index(row, column).data().toString();
  }
  return cells;
}

/// A widget of a window by its object name, which must be there.
template <typename Widget>
Widget& Find(const QWidget& window, const char* name) {
  auto* found = dynamic_cast<Widget*>(window.findChild<QWidget*>(Text(name)));
  if (found == nullptr) {
    throw std::runtime_error(std::string("no widget ") + name);
  }
  return *found;
}

inline QAbstractItemModel& ModelOf(const QWidget& window, const char* name) {
  return *Find<QAbstractItemView>(window, name).model();
}

inline std::string ExampleFile(Flow flow, const char* file) {
  return std::string(KALDO_ROOT) + "/examples/" + (flow == Flow::kSexed ? "sexed/" : "non-sexed/") +
         file;
}

/// The example data with the reports in a folder of the test.
inline AllocationSettings ExampleAllocation(Flow flow, const QTemporaryDir& folder) {
  AllocationSettings settings;
  settings.flow = flow;
  settings.project = PathBytes(folder.filePath(Text("project")));
  if (flow == Flow::kSexed) {
    settings.males_file = ExampleFile(flow, "males.txt");
    settings.females_file = ExampleFile(flow, "females.txt");
  } else {
    settings.parents_file = ExampleFile(flow, "parents.txt");
  }
  settings.offspring_file = ExampleFile(flow, "offspring.txt");
  settings.loci_file = ExampleFile(flow, "loci.txt");
  return settings;
}

inline AllocationRun Run(const AllocationSettings& settings) {
  RunObserver observer;
  auto run = RunAllocation(settings, observer);
  if (!run) {
    throw std::runtime_error(SentenceOf(run.error()));
  }
  return std::move(*run);
}

/// A short simulation of the lake or the ponds.
inline SimulationSettings ExampleSimulation(Flow flow, const QTemporaryDir& folder) {
  SimulationSettings settings;
  settings.flow = flow;
  settings.project = PathBytes(folder.filePath(Text("project")));
  settings.loci_file = ExampleFile(flow, "loci.txt");
  settings.iterations = 5;
  settings.offspring_per_iteration = 40;
  settings.seed = 1;
  if (flow == Flow::kNonSexed) {
    settings.sets[0].collected_file = ExampleFile(flow, "parents.txt");
    settings.sets[0].uncollected_sample = ExampleFile(flow, "parents.txt");
    settings.sets[0].uncollected = 10;
    return settings;
  }
  settings.procedure = Procedure::kPreParental;
  const std::string males = ExampleFile(flow, "sample-males.txt");
  const std::string females = ExampleFile(flow, "sample-females.txt");
  settings.sets = {ParentalSet{"", males, 8, males, 4, 16, 4},
                   ParentalSet{"", females, 8, females, 4, 16, 4}};
  return settings;
}

/// A simulation leaves a file in the working folder, which therefore is one of the test.
inline SimulationRun Run(const SimulationSettings& settings) {
  RunObserver observer;
  auto run = RunSimulation(settings, observer);
  if (!run) {
    throw std::runtime_error(SentenceOf(run.error()));
  }
  return std::move(*run);
}

/// A finished example run in its window.
template <typename Settings, typename FinishedRun, typename Window>
struct Shown {
  Shown(Settings (*example)(Flow, const QTemporaryDir&), Flow flow)
      : settings(example(flow, folder)) {}

  void Run() {
    run = test::Run(settings);
    window = new Window(settings, run, project);
    window->show();
  }
  ~Shown() { delete window; }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;

  QTemporaryDir folder;
  QString project = folder.filePath(Text("project"));
  Settings settings;
  FinishedRun run;
  QPointer<Window> window;
};

}  // namespace kaldo::test
