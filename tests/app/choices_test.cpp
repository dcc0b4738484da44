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

namespace kaldo {
namespace {

/// The screens of a simulation on which one of several things is chosen.
struct Screens {
  explicit Screens(Flow flow) : start(flow, opened), error(""), strategy(flow), output(flow) {}

  SimulationSettings Settings() const {
    SimulationSettings settings;
    start.FillIn(settings);
    settings.error_model = error.Box().Model().value();
    strategy.FillIn(settings);
    output.FillIn(settings);
    return settings;
  }

  OpenedFiles opened;
  SimulationStartPage start;
  ErrorPage error;
  StrategyPage strategy;
  OutputPage output;
};

/// What settings say: "uniform=0.02" is uniform, "parents,offspring" both.
std::vector<std::string> Chosen(const Setting<SimulationSettings>& setting,
                                const SimulationSettings& settings) {
  const std::string text = setting.value.text(settings).value_or("");
  return CutAtCommas(text.substr(0, text.find('=')));
}

class ChoicesTest : public testing::TestWithParam<Flow> {};

TEST_P(ChoicesTest, CanAllBeMadeWithTheButtonsOfTheScreens) {
  Screens screens(GetParam());
  std::map<std::string, std::set<std::string>> chosen;
  for (QWidget* screen : std::initializer_list<QWidget*>{&screens.start, &screens.error,
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
      EXPECT_TRUE(chosen[setting.key].contains(std::string(choice)))
          << setting.key << ": no screen offers " << choice;
    }
  }
  EXPECT_EQ(with_choices, 6U)
      << "procedure, error model, strategy, kept files, random numbers and theirs of subsets; a "
         "further one needs its screen above";
}

INSTANTIATE_TEST_SUITE_P(BothFlows, ChoicesTest, testing::Values(Flow::kNonSexed, Flow::kSexed));

}  // namespace
}  // namespace kaldo
