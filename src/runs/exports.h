// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/file_source.h"
#include "base/run_observer.h"
#include "runs/run_record.h"
#include "runs/value_kinds.h"

namespace kaldo {

/// The forms of other programs in which the results of a run can be had beside its fixed reports.
struct ExportForms {
  bool tables = false;    ///< for statistics programs
  bool workbook = false;  ///< for spreadsheets
  bool page = false;      ///< for readers
  bool pedigree = false;  ///< for programs of quantitative genetics

  bool Any() const { return tables || workbook || page || pedigree; }

  friend bool operator==(const ExportForms&, const ExportForms&) = default;
};

/// One of the forms.
using ExportForm = bool ExportForms::*;
using NamedExportForm = NamedChoice<ExportForm>;

inline constexpr std::array<NamedExportForm, 4> kAllExportForms{{
    {&ExportForms::tables, "tsv", "tables for R and Python"},
    {&ExportForms::workbook, "xlsx", "a workbook"},
    {&ExportForms::page, "html", "a page to be read"},
    {&ExportForms::pedigree, "pedigree", "pedigree files"},
}};

/// What a simulation can be exported as.
inline constexpr std::span kSimulationExportForms = std::span(kAllExportForms).first<1>();

/// The further files that a user wants, and what they need.
struct WantedExports {
  ExportForms forms;
  std::string sexes_file;  ///< of individuals, for pedigrees; empty where there is none
  std::string names_file;  ///< the names that an import replaced by codes; empty likewise

  /// Pedigrees leave out parents of a lower posterior probability.
  std::optional<double> least_probability;

  friend bool operator==(const WantedExports&, const WantedExports&) = default;
};

/// Some of the forms, by their names between commas.
ValueKind<ExportForms> ExportFormsKind(std::span<const NamedExportForm> forms);

/// A probability, 0 to 1; nothing said: none.
ValueKind<std::optional<double>> LeastProbabilityKind();

/// The declaration of the forms; `place` leads to them in the settings.
template <typename Settings, typename Place>
Setting<Settings> ExportFormsSetting(Place place, std::span<const NamedExportForm> forms) {
  std::string help = "Further files:";
  for (const auto& form : forms) {
    help.append(&form == forms.data() ? " " : ", ").append(form.name);
    help.append(" (").append(form.help).append(")");
  }
  return {.key = "also",
          .option = "--also",
          .metavar = "FORMS",
          .group = "Output",
          .help = std::move(help),
          .value = ValueAt<Settings>(place, ExportFormsKind(forms)),
          .of_exports = true};
}

/// A further file with its whole contents.
struct ExportedFile {
  std::string_view name;  ///< with its leading "/"
  std::string text;
};

/// What became of the exports of a run.
struct Exported {
  std::vector<ExportedFile> files;
  std::vector<Problem> refused;       ///< why a file that was wanted is not among them
  std::vector<std::string> warnings;  ///< what other programs may stumble over
};

/// Makes the further files of a finished run. The room that knows other programs stands above those
/// of the runs, which write what it makes together with their own reports.
template <typename Settings, typename Input, typename Result>
class RunExports {
 public:
  RunExports() = default;
  RunExports(const RunExports&) = delete;
  RunExports& operator=(const RunExports&) = delete;
  RunExports(RunExports&&) = delete;
  RunExports& operator=(RunExports&&) = delete;
  virtual ~RunExports() = default;

  /// Before the run: reads the files that the exports need, adds them to those of the input, and
  /// tells what would keep the exports from being made.
  virtual std::optional<Problem> Prepare(Settings& settings, Input& input, FileSource& source) = 0;

  /// The names of all files that Make() may give.
  virtual std::vector<std::string_view> Files() const = 0;

  /// `record` lists the reports of the run.
  virtual Exported Make(const Settings& settings, const Input& input, const Result& result,
                        const RunRecord& record) = 0;
};

/// Tells an observer what of the exports was refused, and the warnings.
void TellExports(const Exported& exported, RunObserver& observer);

}  // namespace kaldo
