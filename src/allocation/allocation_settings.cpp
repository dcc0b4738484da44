// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation/allocation_settings.h"

#include "confidence/confidence_level_setting.h"
#include "method/method_settings.h"

namespace kaldo {

namespace {

using Declared = Setting<AllocationSettings>;

bool IsSexed(const AllocationSettings& settings) { return settings.flow == Flow::kSexed; }
bool IsNonSexed(const AllocationSettings& settings) { return settings.flow == Flow::kNonSexed; }

/// A file of genotypes.
Declared FileSetting(const std::string& name, std::string help,
                     std::string AllocationSettings::*path) {
  return {.key = name,
          .option = "--" + name,
          .metavar = "FILE",
          .group = "Files",
          .help = std::move(help),
          .value = Member(path, TextKind())};
}

/// That there are males or females makes a run a sexed one, so that a command gives both even when
/// their names are empty.
Declared SexFileSetting(const std::string& name, std::string help,
                        std::string AllocationSettings::*path) {
  Declared setting = FileSetting(name, std::move(help), path);
  setting.applies = IsSexed;
  setting.always_told = true;
  return setting;
}

/// A file of what is known of single offspring.
Declared KnowledgeSetting(const std::string& name, std::string help,
                          std::string AllocationSettings::*path) {
  Declared setting = FileSetting(name, std::move(help), path);
  setting.value = Member(path, OptionalTextKind());
  setting.may_be_left_out = true;
  return setting;
}

Declared ParentFileSetting() {
  Declared setting = FileSetting("parents", "Non-sexed: genotypes of the collected parents",
                                 &AllocationSettings::parents_file);
  setting.applies = IsNonSexed;
  return setting;
}

/// A place in the wanted confidence.
template <typename Value>
auto InConfidence(Value WantedConfidence::*member) {
  return [member](auto& settings) -> auto& { return settings.confidence.*member; };
}

Declared ComputedSetting() {
  return {.key = "confidence",
          .option = "--no-confidence",
          .group = "Method",
          .help = "Do not compute how sure each allocation is",
          .value = ValueAt<AllocationSettings>(InConfidence(&WantedConfidence::computed),
                                               FlagKind(true))};
}

Declared RelativesSetting() {
  return {
      .key = "relatives",
      .option = "--relatives",
      .group = "Method",
      .help = "How sure, when parents that were not collected may be full sibs of collected ones",
      .value = ValueAt<AllocationSettings>(InConfidence(&WantedConfidence::relatives), FlagKind())};
}

/// A place in the wanted exports.
template <typename Value>
auto InExports(Value WantedExports::*member) {
  return [member](auto& settings) -> auto& { return settings.exports.*member; };
}

/// A file that the exports need and the method does not.
Declared ExportFileSetting(const std::string& name, std::string help,
                           std::string WantedExports::*path) {
  return {.key = name,
          .option = "--" + name,
          .metavar = "FILE",
          .group = "Output",
          .help = std::move(help),
          .value = ValueAt<AllocationSettings>(InExports(path), OptionalTextKind()),
          .may_be_left_out = true,
          .of_exports = true};
}

Declared LeastProbabilitySetting() {
  return {.key = "min_probability",
          .option = "--min-probability",
          .metavar = "P",
          .group = "Output",
          .help = "Pedigrees leave out parents that are less probable; default: none is",
          .value = ValueAt<AllocationSettings>(InExports(&WantedExports::least_probability),
                                               LeastProbabilityKind()),
          .of_exports = true};
}

std::vector<Declared> DeclareSettings() {
  return {
      ProjectSetting<AllocationSettings>(),
      LociSetting<AllocationSettings>(),
      FileSetting("offspring", "Genotypes of the offspring", &AllocationSettings::offspring_file),
      ParentFileSetting(),
      SexFileSetting("males", "Sexed: genotypes of the collected males",
                     &AllocationSettings::males_file),
      SexFileSetting("females", "Sexed: genotypes of the collected females",
                     &AllocationSettings::females_file),
      KnowledgeSetting("known-mother",
                       "Per line an offspring and its mother (non-sexed: one of its parents)",
                       &AllocationSettings::known_mother_file),
      KnowledgeSetting("candidates", "Per line an offspring and the parents that may be its own",
                       &AllocationSettings::candidates_file),
      KnowledgeSetting("offspring-groups",
                       "Per line an offspring and the number of its group of parents",
                       &AllocationSettings::offspring_groups_file),
      ToleranceSetting<AllocationSettings>(
          "Maximal offset tolerance, in whole unit distances (repeats), 0 or more"),
      ErrorModelSetting<AllocationSettings>(" (" + PlainErrorModels() + ")"),
      LociInUseSetting<AllocationSettings>(),
      UndefinedParentsSetting<AllocationSettings>(),
      {.key = "sequence",
       .option = "--sequence",
       .metavar = "[I1,I2,...]",
       .group = "Method",
       .help = "Repeat for a cumulative sequence of loci: alone in file order, else the position "
               "of each locus of the names file, or names in order, between commas",
       .value = Member(&AllocationSettings::sequence, SequenceKind()),
       .may_stand_alone = true},
      ComputedSetting(),
      ConfidenceLevelSetting<AllocationSettings>(InConfidence(&WantedConfidence::level)),
      RelativesSetting(),
      ExportFormsSetting<AllocationSettings>(InExports(&WantedExports::forms), kAllExportForms),
      ExportFileSetting("sexes", "For pedigrees: per line an individual and its sex, f or m",
                        &WantedExports::sexes_file),
      ExportFileSetting("names",
                        "Further files give the original names of this table; default: names.tsv "
                        "beside the offspring, where it is",
                        &WantedExports::names_file),
      LeastProbabilitySetting(),
      ThreadsSetting<AllocationSettings>(),
  };
}

}  // namespace

SettingTable<AllocationSettings> AllocationSettingTable() {
  static const std::vector<Declared> table = DeclareSettings();
  return table;
}

AllocationSettings FirstShownAllocation(Flow flow) {
  AllocationSettings settings;
  settings.flow = flow;
  FillInFirstShown(AllocationSettingTable(), settings);
  return settings;
}

}  // namespace kaldo
