// SPDX-License-Identifier: GPL-3.0-or-later
#include "runs/result_files.h"

#include <algorithm>
#include <array>

#include "runs/run_record.h"

namespace kaldo {

namespace {

constexpr std::array<std::string_view, 8> kOfAllocations = {
    "/Allocation results.xls",   "/Max like pairs.txt",
    "/Transmision matrices.xls", "/Stepping error file.xls",
    "/Sequence results.xls",     "/Service file.xls",
    "/Confidence.tsv",           "/Loci.tsv",
};

constexpr std::array<std::string_view, 16> kOfNonSexedSimulations = {
    "/Summary.xls",
    "/Iterations - global results.xls",
    "/Iterations - results_2collpar.xls",
    "/Iterations - results_1collpar.xls",
    "/Iterations - results_0collpar.xls",
    "/Detailled summary.xls",
    "/Sequence results.xls",
    "/Stepping error file.xls",
    "/Service file.xls",
    "/Iterations - transmission matrices.xls",
    "/pseudo-collected parents.txt",
    "/uncollected parents.txt",
    "/pseudo-offspring.txt",
    "/Reliability.tsv",
    "/Subsets.tsv",
    "/Scan.tsv",
};

constexpr std::array<std::string_view, 19> kOfSexedSimulations = {
    "/Summary.xls",
    "/Iterations-global results.xls",
    "/Iterations-results_coll_m_coll_f.xls",
    "/Iterations-results_coll_m_unc_f.xls",
    "/Iterations-results_unc_m_coll_f.xls",
    "/Iterations-results_unc_m_unc_f.xls",
    "/Detailed Iterations Results.xls",
    "/Sequence results.xls",
    "/Stepping error file.xls",
    "/Service file.xls",
    "/Iterations-transmission matrices.xls",
    "/pseudo-collected males.txt",
    "/pseudo-collected females.txt",
    "/uncollected males.txt",
    "/uncollected females.txt",
    "/pseudo-offspring.txt",
    "/Reliability.tsv",
    "/Subsets.tsv",
    "/Scan.tsv",
};

constexpr std::array<std::string_view, 9> kExportsOfAllocations = {
    "/Allocations.tsv",      "/Parents.tsv",           "/Sequence.tsv",
    "/Report.html",          "/Results.xlsx",          "/Pedigree.tsv",
    "/Pedigree optiSel.tsv", "/Pedigree kinship2.tsv", "/Pedigree.fam",
};

constexpr std::array<std::string_view, 2> kExportsOfSimulations = {"/Iterations.tsv",
                                                                   "/Sequence.tsv"};

}  // namespace

std::span<const std::string_view> ResultFiles(std::string_view flow) {
  if (flow.starts_with("allocation, ")) {
    return kOfAllocations;
  }
  if (flow == "simulation, non-sexed") {
    return kOfNonSexedSimulations;
  }
  if (flow == "simulation, sexed") {
    return kOfSexedSimulations;
  }
  return {};
}

std::span<const std::string_view> ExportFiles(std::string_view flow) {
  if (ResultFiles(flow).empty()) {
    return {};
  }
  return flow.starts_with("allocation, ")
             ? std::span<const std::string_view>(kExportsOfAllocations)
             : std::span<const std::string_view>(kExportsOfSimulations);
}

bool IsExportFile(std::string_view flow, std::string_view file) {
  const auto files = ExportFiles(flow);
  return std::find(files.begin(), files.end(), file) != files.end();
}

bool IsResultFile(std::string_view flow, std::string_view file) {
  const auto files = ResultFiles(flow);
  return file == kRunRecordFile || IsExportFile(flow, file) ||
         std::find(files.begin(), files.end(), file) != files.end();
}

}  // namespace kaldo
