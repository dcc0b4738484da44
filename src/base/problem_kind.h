// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kaldo {

/// What can be wrong with the files or the choices of a user, one kind per sentence. Code asks for
/// the kind, users search for the sentence: the sentences of a release do not change.
///
/// A new check adds its kind here and its sentence in the table below, at the same place.
enum class ProblemKind : std::uint8_t {
  // Names that were not given.
  kNoProject,
  kNoParentsFile,
  kNoMalesFile,
  kNoFemalesFile,
  kNoOffspringFile,
  kNoLociFile,
  kNoSampleFile,

  // A file as a whole.
  kCannotOpenFile,
  kNoLocus,
  kTooManyLoci,
  kLocusNameTooLong,
  kLocusNameTwice,
  kNoIndividual,
  kTooManyIndividuals,
  kTooManyAlleles,
  kNoAlleleInSample,
  kSeparatorsDiffer,
  kSeparatorInSimulation,

  // Genotypes, tested over the whole file.
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

  // A single record.
  kWrongFieldCount,
  kFieldNotDigits,
  kFieldOfOtherWidth,
  kAlleleTooLong,
  kNameTooLong,
  kNameHasControl,
  kNameNotUtf8,
  kParentNamedNone,

  // What is known of single offspring.
  kUnknownName,
  kNameOfSeveral,
  kOffspringHasTwoLines,
  kOtherWordsWanted,
  kUnknownGroup,
  kNoPairAllowed,

  // The model of error.
  kNoErrorModel,
  kEpsilonOutOfRange,
  kProbabilitySum,
  kErrorSumTooLarge,
  kSimulatedFocalOutOfRange,
  kSimulatedProbabilitySum,

  // The loci in use and their order.
  kUnknownLocus,
  kNoLocusInUse,
  kSequenceHasZero,
  kSequenceIndexTooLarge,
  kSequenceSum,
  kTooFewLociInUse,
  kTooManySubsets,

  // Numbers that are understood and make no run.
  kNegativeTolerance,
  kTooManyIterations,
  kNoIteration,
  kCriterionOutOfRange,
  kStartWithTooSmall,
  kNoPseudoOffspring,
  kTooManyPseudoOffspring,
  kNoPseudoCollected,
  kImpossibleNumberOfParents,
  kImpossibleEstimate,
  kTooFewParents,
  kStandardErrorOutOfRange,

  // Texts and options that are not understood.
  kNumberMissing,
  kNotWhole,
  kNotANumber,
  kNotADecimal,
  kNotAProbability,
  kNotASeed,
  kNotAThreadCount,
  kNotAConfidenceLevel,
  kNoStrategy,
  kUnknownKeptFile,
  kKeptAndNone,
  kUnknownRandomNumbers,
  kNotAnUndefinedRate,
  kUnknownCountOfUndefined,
  kChoicesDoNotFit,
  kUnknownExport,
  kCannotExport,
  kNotAShare,
  kParentsAndSexes,
  kOptionsOfOtherFlow,
  kCollectedAndPseudoCollected,

  // What a run would destroy.
  kOutputIsInput,
  kOtherFlowThere,
  kCannotResume,

  // Run records.
  kNotARunRecord,
  kUnusableRunRecord,
  kInputsChanged,
  kRunMayDiffer,

  kCount,  ///< no kind, but how many there are
};

struct ProblemSentence {
  ProblemKind kind;
  std::string_view text;  ///< "{}" stands for the `subject` of the Problem
};

/// The sentence of every kind, in their order.
inline constexpr std::array<ProblemSentence, static_cast<std::size_t>(ProblemKind::kCount)>
    kProblemSentences{{
        {ProblemKind::kNoProject, "Please enter name of project!"},
        {ProblemKind::kNoParentsFile, "Parent file name is missing!"},
        {ProblemKind::kNoMalesFile, "Male parent file name is missing!"},
        {ProblemKind::kNoFemalesFile, "Female parent file name is missing!"},
        {ProblemKind::kNoOffspringFile, "Offspring file name is missing!"},
        {ProblemKind::kNoLociFile, "Names of loci file name is missing!"},
        {ProblemKind::kNoSampleFile, "File name is missing!"},

        {ProblemKind::kCannotOpenFile, "Cannot open file \"{}\"!"},
        {ProblemKind::kNoLocus, "The names of loci file holds no locus!"},
        {ProblemKind::kTooManyLoci, "More than {} loci!"},
        {ProblemKind::kLocusNameTooLong, "A locus name has more than {} characters!"},
        {ProblemKind::kLocusNameTwice, "Two loci have the same name!"},
        {ProblemKind::kNoIndividual, "The file of {} holds no individual!"},
        {ProblemKind::kTooManyIndividuals, "More than {} individuals!"},
        {ProblemKind::kTooManyAlleles, "More than {} alleles at a locus!"},
        {ProblemKind::kNoAlleleInSample, "A sample has no defined allele at a locus!"},
        {ProblemKind::kSeparatorsDiffer,
         "The male and the female file hold different numbers of separators!"},
        {ProblemKind::kSeparatorInSimulation, "Simulation files have no separators!"},

        {ProblemKind::kOddDigitsInParents,
         "Some parental loci are represented with an odd number of digits!"},
        {ProblemKind::kOddDigitsInMales,
         "Some male parental loci are represented with an odd number of digits!"},
        {ProblemKind::kOddDigitsInFemales,
         "Some female parental loci are represented with an odd number of digits!"},
        {ProblemKind::kOddDigitsInOffspring,
         "Some offspring loci are represented with an odd number of digits!"},
        {ProblemKind::kUndefinedInParents,
         "Parental loci should not contain undefined alleles i.e. represented by a string of 0s!"},
        {ProblemKind::kUndefinedInMales,
         "Male parental loci should not contain undefined alleles i.e. represented by a string of "
         "0s!"},
        {ProblemKind::kUndefinedInFemales,
         "Female parental loci should not contain undefined alleles i.e. represented by a string "
         "of 0s!"},
        {ProblemKind::kHalfDefinedInOffspring,
         "Offspring loci should contain totally defined alleles(no string of 0s) or totally "
         "undefined alleles (two strings of 0s)!"},
        {ProblemKind::kHalfDefinedInSample,
         "Loci should contain totally defined alleles(no string of 0s) or totally undefined "
         "alleles (two strings of 0s)!"},
        {ProblemKind::kHalfDefinedInMaleSample,
         "Male loci should contain totally defined alleles(no string of 0s) or totally undefined "
         "alleles (two strings of 0s)!"},
        {ProblemKind::kHalfDefinedInFemaleSample,
         "Femele loci should contain totally defined alleles(no string of 0s) or totally undefined "
         "alleles (two strings of 0s)!"},

        {ProblemKind::kWrongFieldCount, "A record has a wrong number of fields!"},
        {ProblemKind::kFieldNotDigits, "A genotype field is not all digits!"},
        {ProblemKind::kFieldOfOtherWidth, "A genotype field has another number of digits!"},
        {ProblemKind::kAlleleTooLong, "An allele has more than {} digits!"},
        {ProblemKind::kNameTooLong, "A name has more than {} characters!"},
        {ProblemKind::kNameHasControl, "A name holds a character that cannot be shown!"},
        {ProblemKind::kNameNotUtf8, "A name is not written in UTF-8!"},
        {ProblemKind::kParentNamedNone, "A parent has a name that stands for no parent!"},

        {ProblemKind::kUnknownName, "There is no individual of that name!"},
        {ProblemKind::kNameOfSeveral, "A name stands for more than one individual!"},
        {ProblemKind::kOffspringHasTwoLines, "An offspring has two lines!"},
        {ProblemKind::kOtherWordsWanted, "A line holds other words than it should!"},
        {ProblemKind::kUnknownGroup, "There is no group of parents of that number!"},
        {ProblemKind::kNoPairAllowed, "No pair of parents is left for an offspring!"},

        {ProblemKind::kNoErrorModel, "Choose a model of error"},
        {ProblemKind::kEpsilonOutOfRange, "Espilon should be between 0 and 0.1"},
        {ProblemKind::kProbabilitySum, "Sum of probability must be 1 ! "},
        {ProblemKind::kErrorSumTooLarge, "Error sum should not exceed 0.1!"},
        {ProblemKind::kSimulatedFocalOutOfRange, "Focal allele must be between 0.9 and 1.0"},
        {ProblemKind::kSimulatedProbabilitySum, "Sum of probabilities must be 1"},

        {ProblemKind::kUnknownLocus, "There is no locus of that name!"},
        {ProblemKind::kNoLocusInUse, "Choose at least one locus!"},
        {ProblemKind::kSequenceHasZero,
         "Set of indices has to run from 1 to the total number of loci. No zero! Only integers!"},
        {ProblemKind::kSequenceIndexTooLarge,
         "Set of indices has to run from 1 to the total number of loci. Not farther!"},
        {ProblemKind::kSequenceSum,
         "Set of indices has to run from 1 to the total number of loci."},
        {ProblemKind::kTooFewLociInUse,
         "Fewer loci are in use than the number of loci to start with!"},
        {ProblemKind::kTooManySubsets, "There would be {} subsets of loci!"},

        {ProblemKind::kNegativeTolerance, "Enter a positive number"},
        {ProblemKind::kTooManyIterations, "Number of iterations must be inferior to 1000"},
        {ProblemKind::kNoIteration, "The number of iterations must be above 0!"},
        {ProblemKind::kCriterionOutOfRange, "Enter number between 0 and 1"},
        {ProblemKind::kStartWithTooSmall, "The minimum number of loci to start with is 1"},
        {ProblemKind::kNoPseudoOffspring, "The number of pseudo-offspring must be above 0!"},
        {ProblemKind::kTooManyPseudoOffspring, "More than {} pseudo-offspring in an iteration!"},
        {ProblemKind::kNoPseudoCollected,
         "The number of pseudo-collected parents must be above 0!"},
        {ProblemKind::kImpossibleNumberOfParents, "That number of parents is not possible!"},
        {ProblemKind::kImpossibleEstimate,
         "The estimated numbers of parents must not be negative, and not all 0!"},
        {ProblemKind::kTooFewParents, "There are too few parents for the pseudo-offspring!"},
        {ProblemKind::kStandardErrorOutOfRange,
         "A standard error to run until lies above 0 and below 1!"},

        {ProblemKind::kNumberMissing, "A number is missing!"},
        {ProblemKind::kNotWhole, "A whole number is wanted!"},
        {ProblemKind::kNotANumber, "A number is wanted!"},
        {ProblemKind::kNotADecimal, "Enter numbers with a decimal point!"},
        {ProblemKind::kNotAProbability, "A probability is not understood!"},
        {ProblemKind::kNotASeed, "That seed is not possible!"},
        {ProblemKind::kNotAThreadCount, "That number of threads is not possible!"},
        {ProblemKind::kNotAConfidenceLevel, "A level of confidence lies between 0.5 and 1!"},
        {ProblemKind::kNoStrategy, "Please, choose a procedure to run with !"},
        {ProblemKind::kUnknownKeptFile, "There is no such kind of file to keep!"},
        {ProblemKind::kKeptAndNone, "Choose files to keep, or none!"},
        {ProblemKind::kUnknownRandomNumbers, "There are no such random numbers!"},
        {ProblemKind::kNotAnUndefinedRate, "A share of undefined loci lies from 0 to below 1!"},
        {ProblemKind::kUnknownCountOfUndefined,
         "There is no such way to count the undefined alleles of a sample!"},
        {ProblemKind::kChoicesDoNotFit, "These choices do not go together!"},
        {ProblemKind::kUnknownExport, "There is no such form of export!"},
        {ProblemKind::kCannotExport, "The export cannot be made!"},
        {ProblemKind::kNotAShare, "A probability lies between 0 and 1!"},
        {ProblemKind::kParentsAndSexes,
         "Choose one file of parents, or one of males and one of females!"},
        {ProblemKind::kOptionsOfOtherFlow,
         "Choose options for parents, or with --sexed for males and females!"},
        {ProblemKind::kCollectedAndPseudoCollected,
         "Choose collected or pseudo-collected parents!"},

        {ProblemKind::kOutputIsInput, "The run would destroy one of its own input files!"},
        {ProblemKind::kOtherFlowThere, "{} Choose another project name, or add --replace."},
        {ProblemKind::kCannotResume, "The unfinished run cannot be resumed!"},
        {ProblemKind::kNotARunRecord, "This is not a run record!"},
        {ProblemKind::kUnusableRunRecord, "This run record cannot be used!"},
        {ProblemKind::kInputsChanged, "An input file has changed since the recorded run!"},
        {ProblemKind::kRunMayDiffer, "The run may differ from the recorded one."},
    }};

}  // namespace kaldo
