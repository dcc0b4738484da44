// SPDX-License-Identifier: GPL-3.0-or-later
// The file in which a run keeps what is done. Whatever is in it, what is read of it is what a run
// with these results would write.
#include "runs/portion_log.h"

#include <cstdlib>

#include "fuzz/files_of_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace kaldo;
  static const fuzz::FilesOfFuzzer folder;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  PortionLogReader reader(folder.Write("log", bytes));
  if (!reader.Record()) {
    return 0;
  }
  PortionLogText text;
  std::string again = text.Head(*reader.Record());
  const bool is_own_head = bytes.starts_with(again);  // else the record is written in another way
  for (text = reader.TextBehind(), again = bytes.substr(0, reader.BytesTaken()); reader.Next();
       reader.Advance()) {
    again += text.Entry(*reader.Next());
  }
  if (reader.BytesTaken() != again.size() || !bytes.starts_with(again) ||
      (is_own_head && again.empty())) {
    std::abort();
  }
  return 0;
}
