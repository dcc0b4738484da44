// SPDX-License-Identifier: GPL-3.0-or-later
// The windows in other languages than English: what is translated, and what never is.
#include "app/base/languages.h"

#include <QLabel>
#include <QTabWidget>

#include <fmt/format.h>

#include "app/base/core_phrases.h"
#include "app/base/text.h"
#include "app/support/desktop_test.h"
#include "base/warning.h"
#include "confidence/certainty.h"

namespace kaldo {
namespace {

/// Before the windows are made.
class InGerman {
 protected:
  InGerman() { is_there_ = SetLanguage(Text("de")); }
  ~InGerman() { SetLanguage(Text("en")); }
  bool is_there_ = false;  // NOLINT(misc-non-private-member-variables-in-classes)
};

class LanguagesTest : public InGerman, public test::MenuTest {
 protected:
  void SetUp() override {
    if (!is_there_) {
      GTEST_SKIP() << "built without translations";
    }
  }
};

TEST_F(LanguagesTest, AGermanFlowWritesWhatTheCommandLineWrites) {
  WriteStudy();
  const auto expect_text = [this](std::string_view name, const QString& text) {
    script_.Do([name = std::string(name), text](QWidget&) {
      EXPECT_EQ(Bytes(test::TextIn(name)), Bytes(text));
    });
  };
  test::OpenFlow(script_, "ALLOCATIONSEXED", Text("teiche"));
  script_.Await("SexedAllocationFiles").Do([](QWidget& window) {
    EXPECT_EQ(Bytes(window.windowTitle()), "ZUORDNUNG : MIT GESCHLECHT");
  });
  expect_text("Step", Text("Schritt 1 von 3"));
  test::TypeAllocationFiles(script_, Flow::kSexed, Text("data"));
  script_.Until([] { return !test::TextIn("MalesFileHint").isEmpty(); }, "read the file");
  expect_text("MalesFileHint", Text("4 Individuen, 4 Loci, 6 Ziffern je Feld, keine fehlenden "
                                    "Genotypen"));
  script_.Click("Ok").Await("ErrorModel").Click("Ok").Answer();
  script_.Click("Uniform").Type("Epsilon", Text("0.02")).Click("Ok").Await("ChoiceOfLoci");
  test::RunToTheEnd(script_, command_);
  Go(script_);
  // Sentences of messages are the same in every language.
  test::ExpectTold(script_, {"Choose a model of error", "Calculations completed!"});
  ExpectAsCommandLine("teiche", command_);
}

TEST_F(LanguagesTest, SaysWhatTheCoreSaysInItsPlaces) {
  const std::map<std::string, std::string> said{
      {"32 of 50 offspring have both parents in your files; 3 need a look.",
       "32 von 50 Nachkommen haben beide Eltern in Ihren Dateien; 3 brauchen einen zweiten Blick."},
      {"50 individuals in 2 groups, 6 loci, 4 digits per field, 1 missing genotype; name twice: A",
       "50 Individuen in 2 Gruppen, 6 Loci, 4 Ziffern je Feld, 1 fehlender Genotyp; Name doppelt: "
       "A"},
      {"A simulation like this run (5 x 50 pseudo-offspring) estimates how probably allocations "
       "are "
       "right in the population: any allocation 0.950 (standard error 0.01), allocation to a "
       "collected male 0.900.",
       "Eine Simulation wie dieser Lauf (5 x 50 Pseudo-Nachkommen) schätzt, wie wahrscheinlich "
       "Zuordnungen in der Population richtig sind: beliebige Zuordnung 0.950 (Standardfehler "
       "0.01), Zuordnung zu einem beprobten Männchen 0.900."},
      {"%2 has a probability of %1 only", "%2 hat nur eine Wahrscheinlichkeit von %1"},
      {"Two records have the same name. parents.txt, line 3: open",
       "Zwei Einträge haben denselben Namen. parents.txt, Zeile 3: open"},
      {"1 of 50 offspring of both runs has another pair; 0 in this run only, 3 in the other one "
       "only.",
       "1 von 50 Nachkommen beider Läufe hat ein anderes Paar; 0 nur in diesem Lauf, 3 nur im "
       "anderen."},
      {"known mothers: m.txt in this run only", "bekannte Mütter: m.txt nur in diesem Lauf"},
      {"error model: Uniform (epsilon 0.02) in this run, No Error in the other one",
       "Fehlermodell: Gleichverteilt (Epsilon 0.02) in diesem Lauf, Kein Fehler im anderen"},
      {"Cannot write \"p/Loci.tsv\": No space left on device. The results of earlier runs are as "
       "they were.",
       "„p/Loci.tsv“ lässt sich nicht schreiben: Der Datenträger ist voll. Die Ergebnisse früherer "
       "Läufe sind, wie sie waren."},
      {"2 of 5 parents are undefined at some locus. Choose with --missing-parents what becomes of "
       "them:\n  drop-loci         1 locus left out (B); 5 parents and 3 loci stay",
       "2 von 5 Eltern sind an einem Locus undefiniert. Wählen Sie mit --missing-parents, was mit "
       "ihnen geschieht:\n  drop-loci         ohne 1 Locus (B); 5 Eltern und 3 Loci bleiben"},
      {"Calculations completed!", "Calculations completed!"},
      {"nobody has said open, or sure", "nobody has said open, or sure"}};
  for (const auto& [english, german] : said) {
    EXPECT_EQ(Bytes(TrCore(english)), german);
  }
}

/// Sentences that are the same in every language, by which users find them in manuals.
bool IsFixed(ProblemKind kind) {
  using enum ProblemKind;
  constexpr std::array kFixed = {kNoProject,
                                 kNoParentsFile,
                                 kNoMalesFile,
                                 kNoFemalesFile,
                                 kNoOffspringFile,
                                 kNoLociFile,
                                 kNoSampleFile,
                                 kTooManyLoci,
                                 kTooManyIndividuals,
                                 kTooManyAlleles,
                                 kOddDigitsInParents,
                                 kOddDigitsInMales,
                                 kOddDigitsInFemales,
                                 kOddDigitsInOffspring,
                                 kUndefinedInParents,
                                 kUndefinedInMales,
                                 kUndefinedInFemales,
                                 kHalfDefinedInOffspring,
                                 kHalfDefinedInSample,
                                 kHalfDefinedInMaleSample,
                                 kHalfDefinedInFemaleSample,
                                 kNoErrorModel,
                                 kEpsilonOutOfRange,
                                 kProbabilitySum,
                                 kErrorSumTooLarge,
                                 kSimulatedFocalOutOfRange,
                                 kSimulatedProbabilitySum,
                                 kSequenceHasZero,
                                 kSequenceIndexTooLarge,
                                 kSequenceSum,
                                 kNegativeTolerance,
                                 kTooManyIterations,
                                 kCriterionOutOfRange,
                                 kStartWithTooSmall,
                                 kTooManyPseudoOffspring,
                                 kNoStrategy};
  return std::find(kFixed.begin(), kFixed.end(), kind) != kFixed.end();
}

TEST_F(LanguagesTest, KnowsEveryKindOfSentenceButTheFixedOnes) {
  const auto is_translated = [](std::string_view english) {
    return TrCore(english) != Text(english);
  };
  for (int k = 0; k < static_cast<int>(ProblemKind::kCount); ++k) {
    const Problem problem{.kind = static_cast<ProblemKind>(k), .subject = "7"};
    const std::string sentence = SentenceOf(problem);
    EXPECT_NE(is_translated(sentence), IsFixed(problem.kind)) << sentence;
  }
  for (int k = 0; k < static_cast<int>(WarningKind::kCount); ++k) {
    const Warning warning{.kind = static_cast<WarningKind>(k), .file = "a.txt", .line = 3};
    EXPECT_TRUE(is_translated(TextOf(warning))) << TextOf(warning);
  }
  for (const Certainty certainty : kAllCertainties) {
    EXPECT_TRUE(is_translated(Word(certainty)) && is_translated(MeaningForOffspring(certainty)))
        << Word(certainty);
  }
}

}  // namespace
}  // namespace kaldo
