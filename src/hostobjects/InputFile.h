// Opening the files that a user names: plain files only, read up to a limit, with errors that name the file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

namespace orx {

/// The path that a UTF-8 text names. Throws RunTimeError when the text cannot be a path.
std::filesystem::path PathOf(const std::string& utf8);

/// Throws RunTimeError "<file name>: <text>" with kErrorFileFormat.
[[noreturn]] void FailFile(const std::filesystem::path& path, const std::string& text);

/// Opens a file for binary reading. Throws when it is missing or not readable, and when it is no plain file: a folder
/// has no text, and a pipe or a device may keep its reader waiting for ever.
std::ifstream OpenFile(const std::filesystem::path& path);
/// The length in bytes. Throws when the system does not tell it.
std::uint64_t FileSize(const std::filesystem::path& path);
/// The whole text of a file, without a byte order mark. Throws as OpenFile does, and when it has more than `limit`
/// bytes.
std::string ReadText(const std::filesystem::path& path, std::uint64_t limit);

}  // namespace orx
