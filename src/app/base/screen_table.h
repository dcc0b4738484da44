// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "app/base/tr.h"
#include "method/flow.h"

class QWidget;

namespace kaldo {

// The numbers by which manuals name screens and controls. Released numbers are fixed; here is the
// one place that knows them. A widget carries its number as the property "number", by which tests
// and scripts find it.

/// A screen: its number (0 where it has none) and its object name.
struct ScreenEntry {
  int number = 0;
  std::string_view object_name;
};

inline constexpr ScreenEntry kAboutScreen{100, "AboutBox"};
inline constexpr ScreenEntry kMainMenuScreen{102, "MainMenu"};
inline constexpr ScreenEntry kSexedAllocationScreen{135, "SexedAllocationFiles"};
inline constexpr ScreenEntry kIntroductionScreen{138, "Introduction"};
inline constexpr ScreenEntry kNonSexedAllocationScreen{139, "NonSexedAllocationFiles"};
inline constexpr ScreenEntry kNonSexedSimulationScreen{140, "NonSexedSimulationStart"};
inline constexpr ScreenEntry kSexedSimulationScreen{146, "SexedSimulationStart"};
inline constexpr ScreenEntry kSexedAllocationLociScreen{154, "ChoiceOfLoci"};
inline constexpr ScreenEntry kSequenceScreen{167, "CumulativeSequence"};

inline constexpr ScreenEntry kLociScreen{0, "ChoiceOfLoci"};
inline constexpr ScreenEntry kErrorScreen{0, "ErrorModel"};
inline constexpr ScreenEntry kParentalScreen{0, "Parents"};
inline constexpr ScreenEntry kOffspringScreen{0, "PseudoOffspring"};
inline constexpr ScreenEntry kToleranceScreen{0, "PseudoAllocation"};
inline constexpr ScreenEntry kStrategyScreen{0, "Strategy"};
inline constexpr ScreenEntry kOutputScreen{0, "Output"};

/// The control numbers; some come again on another screen.
enum ControlNumber : int {
  kNonSexedAllocationButton = 1001,
  kSexedAllocationButton = 1002,
  kNonSexedSimulationButton = 1003,
  kSexedSimulationButton = 1004,
  kBackButton = 1002,
  kAllLociBox = 1062,
  kCumulativeSequenceBox = 1083,
  kFirstLocusBox = 1255,
  kLastLocusBox = 1304,
};

// The captions of the flows.
constexpr Phrase AllocationCaption(Flow flow) {
  return flow == Flow::kSexed ? Phrase("ALLOCATION : SEXED") : Phrase("ALLOCATION : NON-SEXED");
}
constexpr Phrase SimulationCaption(Flow flow) {
  return flow == Flow::kSexed ? Phrase("SIMULATIONS : SEXED") : Phrase("SIMULATIONS: NON-SEXED");
}
inline constexpr Phrase kSequenceCaption = Phrase("Cumulative Sequence");

inline constexpr const char* kNumberProperty = "number";

/// Gives a screen its object name and its number.
void Name(QWidget& screen, const ScreenEntry& entry);

/// Gives a control its number.
void Number(QWidget& control, int number);

}  // namespace kaldo
