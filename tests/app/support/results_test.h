// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractItemView>
#include <QPointer>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QtTest>
#include <map>

#include "allocation/allocation_run.h"
#include "app/base/text.h"
#include "app/support/desktop_test.h"
#include "simulation/simulation_run.h"

/// How a failed test shows a text of the windows.
inline void PrintTo(const QString& text, std::ostream* stream) { *stream << text.toStdString(); }

namespace kaldo::test {

using Rows = std::vector<QStringList>;

/// The lines of a report as cells, without the line ends.
inline Rows ReportRows(const std::string& path) {
  Rows rows;
  for (const QString& line : Text(ReadFile(path)).split(QLatin1Char('\n'))) {
    rows.push_back(line.split(QLatin1Char('\t')));
  }
  return rows;
}

/// A row of a table for statistics programs, by the names of its columns.
using TsvRow = std::map<QString, QString>;

inline std::vector<TsvRow> TsvRows(const std::string& path) {
  const Rows lines = ReportRows(path);
  std::vector<TsvRow> rows;
  for (std::size_t k = 1; k + 1 < lines.size(); ++k) {
    for (int column = 0; column < lines[k].size(); ++column) {
      rows.resize(k);
      rows.back()[lines[0][column]] = lines[k][column];
    }
  }
  return rows;
}

/// Reads comma-separated values by the book, one byte after the other.
inline Rows ParseCsv(const std::string& csv) {
  Rows rows(1);
  std::string cell;
  bool quoted = false;
  for (std::size_t k = 0; k < csv.size(); ++k) {
    if (quoted && csv.compare(k, 2, "\"\"") == 0) {
      cell += csv[++k];
    } else if (csv[k] == '"') {
      quoted = !quoted;
    } else if (!quoted && (csv[k] == ',' || csv[k] == '\r')) {
      rows.back() += Text(cell);
      cell.clear();
      if (csv[k] == '\r') {
        rows.emplace_back();
        ++k;
      }
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
  return found != nullptr ? *found : throw std::runtime_error(std::string("no widget ") + name);
}

inline QAbstractItemModel& ModelIn(const QWidget& window, const char* name) {
  return *Find<QAbstractItemView>(window, name).model();
}

/// A window of results can be made as small as a monitor of 1366 x 768 that is shown twice as
/// large, whatever tab is in front, and nothing has to be scrolled sideways.
inline void ExpectFitsSmallMonitor(QWidget& window) {
  const QSize size = window.size();
  auto& tabs = Find<QTabWidget>(window, "Tabs");
  for (int tab = 0; tab < tabs.count(); ++tab) {
    tabs.setCurrentIndex(tab);
    window.resize(0, 0);
    QCoreApplication::processEvents();
    EXPECT_LE(window.width(), 683) << tab;
    EXPECT_LE(window.height(), 384) << tab;
    const auto* const area = qobject_cast<QScrollArea*>(tabs.widget(tab));
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << tab;
  }
  tabs.setCurrentIndex(0);
  window.resize(size);
}

/// The example data, which WriteExamples() has put into the working folder.
inline AllocationSettings ExampleAllocation(Flow flow) {
  const bool sexed = flow == Flow::kSexed;
  const auto file = [sexed](const char* name) {
    return std::string(sexed ? "data/sexed/" : "data/non-sexed/").append(name);
  };
  AllocationSettings settings;
  settings.flow = flow;
  settings.project = "p";
  settings.may_replace_other_flow = true;
  if (sexed) {
    settings.males_file = file("males.txt");
    settings.females_file = file("females.txt");
  } else {
    settings.parents_file = file("parents.txt");
  }
  settings.offspring_file = file("offspring.txt");
  settings.loci_file = file("loci.txt");
  return settings;
}

/// A short simulation of the lake or the ponds.
inline SimulationSettings ExampleSimulation(Flow flow) {
  SimulationSettings settings;
  settings.flow = flow;
  settings.project = "p";
  settings.may_replace_other_flow = true;
  settings.iterations = 5;
  settings.offspring_per_iteration = 40;
  settings.seed = 1;
  if (flow == Flow::kNonSexed) {
    settings.loci_file = "data/non-sexed/loci.txt";
    settings.sets[0].collected_file = "data/non-sexed/parents.txt";
    settings.sets[0].uncollected_sample = "data/non-sexed/parents.txt";
    settings.sets[0].uncollected = 10;
    return settings;
  }
  settings.loci_file = "data/sexed/loci.txt";
  settings.procedure = Procedure::kPreParental;
  const std::string males = "data/sexed/sample-males.txt";
  const std::string females = "data/sexed/sample-females.txt";
  settings.sets = {ParentalSet{"", males, 8, males, 4, 16, 4},
                   ParentalSet{"", females, 8, females, 4, 16, 4}};
  return settings;
}

inline auto Run(const AllocationSettings& settings) {
  RunObserver observer;
  return RunAllocation(settings, observer);
}

inline auto Run(const SimulationSettings& settings) {
  RunObserver observer;
  return RunSimulation(settings, observer);
}

template <typename Settings>
Settings Example(Flow flow) {
  if constexpr (std::is_same_v<Settings, AllocationSettings>) {
    return ExampleAllocation(flow);
  } else {
    return ExampleSimulation(flow);
  }
}

/// The run of an example, in its window once it is finished.
template <typename Settings, typename FinishedRun, typename Window>
struct Shown {
  explicit Shown(Flow flow) : settings(Example<Settings>(flow)) {}

  void Run() {
    run = test::Run(settings).value();
    window = new Window(settings, run, Text("p"));
    window->show();
  }
  ~Shown() { delete window; }
  Shown(const Shown&) = delete;
  Shown& operator=(const Shown&) = delete;

  Settings settings;
  FinishedRun run;
  QPointer<Window> window;
};

}  // namespace kaldo::test
