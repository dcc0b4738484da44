// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cluster/mpi_session.h"

namespace kaldo {

/// What every process but the first does: takes portions, gives back results, and writes nothing,
/// neither to files nor to the terminal, until process 0 says that the run has ended. Throws
/// RunFailure when process 0 has died.
void WorkForProcess0(MpiSession& session);

}  // namespace kaldo
