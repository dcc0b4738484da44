// SPDX-License-Identifier: GPL-3.0-or-later
// What process 0 sends to the others before a part of a run. A damaged message ends the run by an
// exception, whatever is in it.
#include <cstdlib>
#include <stdexcept>

#include "cluster/sent_part.h"
#include "runs/portions.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kaldo;
  try {
    const SentPart sent = UnpackSentPart({reinterpret_cast<const char*>(data), size});
    const std::string packed = Pack(sent);
    if (Pack(UnpackSentPart(packed)) != packed) {
      std::abort();
    }
    (void)MakeTask(sent);
  } catch (const std::runtime_error&) {
    return 0;
  }
  return 0;
}
