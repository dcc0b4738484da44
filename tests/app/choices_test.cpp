// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever can be chosen on the command line can be chosen in a window.
#include <QAbstractButton>
#include <algorithm>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "app/base/opened_files.h"
#include "app/pages/error_page.h"
#include "app/pages/output_page.h"
#include "app/pages/simulation_start_page.h"
#include "app/pages/strategy_page.h"
#include "app/pages/tolerance_page.h"

namespace kaldo {
namespace {

/// The screens of a simulation on which one of several things is chosen.
struct Screens {
  explicit Screens(Flow flow)
      : start(flow, opened, {}), error(Phrase()), tolerance(flow), strategy(flow), output(flow) {}

  SimulationSettings Settings() const {
    SimulationSettings settings;
    start.FillIn(settings);
    settings.error_model = error.Box().Model().value();
    tolerance.FillIn(settings);
    strategy.FillIn(settings);
    output.FillIn(settings);
    return settings;
  }

  OpenedFiles opened;
  SimulationStartPage start;
  ErrorPage error;
  TolerancePage tolerance;
  StrategyPage strategy;
  OutputPage output;
};

/// What settings say: "uniform=0.02" is uniform, "parents,offspring" both.
std::vector<std::string> Chosen(const Setting<SimulationSettings>& setting,
                                const SimulationSettings& settings) {
  const std::string text = setting.value.text(settings).value_or("");
  return CutAtCommas(text.substr(0, text.find('=')));
}

/// What the command line alone offers, by setting.
const std::map<std::string, std::set<std::string>> kTypedAlone = {
    {"allocate_with", {"uniform", "nonuniform"}}, {"undefined_in_sample", {"ignore"}}};

bool IsTypedAlone(const std::string& key, std::string_view choice) {
  const auto found = kTypedAlone.find(key);
  return found != kTypedAlone.end() && found->second.contains(std::string(choice));
}

class ChoicesTest : public testing::TestWithParam<Flow> {};

TEST_P(ChoicesTest, CanAllBeMadeWithTheButtonsOfTheScreens) {
  Screens screens(GetParam());
  std::map<std::string, std::set<std::string>> chosen;
  for (QWidget* screen :
       std::initializer_list<QWidget*>{&screens.start, &screens.error, &screens.tolerance,
                                       &screens.strategy, &screens.output}) {
    screen->show();
    for (QAbstractButton* button : screen->findChildren<QAbstractButton*>()) {
      if (!button->isCheckable() || !button->isVisible()) {
        continue;
      }
      button->click();
      for (const auto& setting : SimulationSettingTable()) {
        for (const std::string& name : Chosen(setting, screens.Settings())) {
          chosen[setting.key].insert(name);
        }
      }
    }
  }
  std::size_t with_choices = 0;
  for (const auto& setting : SimulationSettingTable()) {
    if (setting.of_exports) {
      continue;  // further files are made of a finished run
    }
    with_choices += setting.value.choices.empty() ? 0 : 1;
    for (const std::string_view choice : setting.value.choices) {
      if (setting.key == "allocate_with" && GetParam() == Flow::kSexed) {
        continue;  // the sexed flow takes the model of the run
      }
      EXPECT_NE(chosen[setting.key].contains(std::string(choice)),
                IsTypedAlone(setting.key, choice))
          << setting.key << ": no screen offers " << choice;
    }
  }
  EXPECT_EQ(with_choices, 8U)
      << "procedure, error model, strategy, kept files, random numbers and theirs of subsets, "
         "model "
         "of the allocation, undefined alleles; a further one needs its screen above";
}

INSTANTIATE_TEST_SUITE_P(BothFlows, ChoicesTest, testing::Values(Flow::kNonSexed, Flow::kSexed));

}  // namespace
}  // namespace kaldo
