// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "genotypes/token_file.h"

namespace kaldo {

/// Reads each file once, a pipe too, however often it is opened. The source must live as long.
FileOpener OpenOnce(FileSource& source);

}  // namespace kaldo
