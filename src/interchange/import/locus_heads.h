// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kaldo {

/// The name of the locus whose alleles stand in two neighbouring columns of these heads, as they
/// are usually written: "L.1" and "L.2", "La" and "Lb", "L" twice, "L" and nothing, and what
/// statistics programs make of "L" twice, "L" and "L.1". Nothing where the heads do not belong
/// together.
std::optional<std::string> CommonHead(std::string_view first, std::string_view second);

/// True where the two heads differ in their last character alone, with no sign before it: "L1" and
/// "L2" may also be two loci.
bool MayBeTwoLoci(std::string_view first, std::string_view second);

/// A head that says nothing: empty, or what a program puts in place of it ("Unnamed: 3").
bool IsBlankHead(std::string_view head);

}  // namespace kaldo
