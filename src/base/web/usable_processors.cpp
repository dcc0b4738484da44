// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/this_process.h"

namespace kaldo {

// A page from the disk gets no memory that threads could share.
unsigned UsableProcessors() { return 1; }

}  // namespace kaldo
