// SPDX-License-Identifier: GPL-3.0-or-later
// How fast the table of the offspring follows what is typed: 100 letters into the search field of
// an allocation of many offspring, each with the drawing that follows it. Times are of the
// processor, without a screen.
//
// build/release/benchmarks/kaldo_typing_table [OFFSPRING]
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <random>

#include <fmt/format.h>

#include "app/base/text.h"
#include "app/results/offspring_page.h"
#include "base/temporary_folder.h"

namespace kaldo {
namespace {

constexpr std::size_t kLoci = 10;
constexpr std::size_t kParents = 500;

void WriteFile(const std::string& name, char prefix, std::size_t count, std::mt19937& random) {
  std::uniform_int_distribution<int> allele(1, 12);
  std::ofstream file(name);
  for (std::size_t k = 0; k < count; ++k) {
    file << fmt::format("{}{:06}", prefix, k);
    for (std::size_t locus = 0; locus < kLoci; ++locus) {
      file << fmt::format(" {}{}", 100 + 2 * allele(random), 100 + 2 * allele(random));
    }
    file << '\n';
  }
}

/// A finished allocation of unrelated offspring.
SharedAllocation Allocate(std::size_t offspring) {
  std::mt19937 random(1);
  WriteFile("parents.txt", 'P', kParents, random);
  WriteFile("offspring.txt", 'K', offspring, random);
  std::ofstream loci("loci.txt");
  for (std::size_t locus = 0; locus < kLoci; ++locus) {
    loci << 'L' << locus << ' ';
  }
  loci.close();
  AllocationSettings settings;
  settings.project = "p";
  settings.parents_file = "parents.txt";
  settings.offspring_file = "offspring.txt";
  settings.loci_file = "loci.txt";
  settings.confidence.computed = false;
  RunObserver observer;
  auto run = RunAllocation(settings, observer);
  if (!run) {
    fmt::print(stderr, "{}\n", SentenceOf(run.error()));
    std::exit(EXIT_FAILURE);
  }
  return std::make_shared<const FinishedAllocation>(
      FinishedAllocation{std::move(settings), std::move(*run)});
}

/// Milliseconds of processor time until a key is answered.
double TimeOf(QLineEdit& field, int key, const QString& text) {
  const std::clock_t begin = std::clock();
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&field, &press);
  QApplication::processEvents();
  return 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
}

void Measure(std::size_t offspring) {
  OffspringPage page(Allocate(offspring), QString());
  page.resize(1200, 800);
  page.show();
  QApplication::processEvents();
  auto* const field = page.findChild<QLineEdit*>(Text("OffspringFind"));
  std::vector<double> times;
  std::mt19937 random(2);
  while (times.size() < 100) {
    // A number is looked for and taken back, letter by letter.
    const std::string number = fmt::format("{:04}", std::uniform_int_distribution(0, 9999)(random));
    for (const char digit : number) {
      times.push_back(TimeOf(*field, Qt::Key_0 + (digit - '0'), QString(QLatin1Char(digit))));
    }
    for (std::size_t k = 0; k < number.size(); ++k) {
      times.push_back(TimeOf(*field, Qt::Key_Backspace, QString()));
    }
  }
  std::sort(times.begin(), times.end());
  fmt::print(
      "{} offspring: a letter takes {:.1f} ms (median), {:.1f} ms (95 of 100), {:.1f} ms "
      "(longest)\n",
      offspring, times[times.size() / 2], times[times.size() * 95 / 100], times.back());
}

}  // namespace
}  // namespace kaldo

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const kaldo::TemporaryFolder folder;
  std::filesystem::current_path(folder.Path());
  kaldo::Measure(argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 50'000);
  return EXIT_SUCCESS;
}
