// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace kaldo {

// What files that are written have in common, by the numbers of the operating system.

/// What the last call of the operating system failed with.
std::error_code LastError();

/// Opens a new file for writing: no link is followed, and nothing that is there is opened. Negative
/// when that fails, see LastError().
int OpenNewFile(const std::string& path);

/// Opens a file that is there for writing: no link is followed. Negative when that fails.
int OpenOldFile(const std::string& path);

/// Cuts off what is behind so many bytes, and goes on writing there.
std::error_code CutFile(int file, std::uint64_t bytes);

/// Writes all of the text, whatever interrupts it.
std::error_code WriteAll(int file, std::string_view text);

/// Waits until the disk holds every byte.
std::error_code SyncFile(int file);

std::error_code CloseFile(int file);

}  // namespace kaldo
