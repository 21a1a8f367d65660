// Access to the files of grids and shapes: opening them by UTF-8 path, whole texts, numbers in texts, and errors that
// name the file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace orx::maplibrary {

/// The path that a UTF-8 text names. Throws RunTimeError when it is no text that can be a path.
std::filesystem::path PathOf(const std::string& utf8);

/// Name of a file without folder and extension, UTF-8: "jacksboro" for "data/jacksboro.bil". Throws as PathOf does.
std::string FileStem(const std::string& path);

/// Throws RunTimeError "<file name>: <text>" with kErrorFileFormat.
[[noreturn]] void FailFile(const std::filesystem::path& path, const std::string& text);

/// Opens a file for binary reading. Throws when it is missing, no plain file, or not readable.
std::ifstream OpenFile(const std::filesystem::path& path);
std::uint64_t FileSize(const std::filesystem::path& path);
/// The whole text of a file, without a byte order mark. Throws when it has more than `limit` bytes.
std::string ReadText(const std::filesystem::path& path, std::uint64_t limit);

/// The whole text as a number, '.' as decimal point, with an optional sign in front.
std::optional<double> NumberFrom(std::string_view text);
/// The text in quotes for an error, cut when long, strange bytes replaced.
std::string Quoted(std::string_view text);

/// Sides and cells beyond this are no places on any ground.
inline constexpr double kMaxCoordinate = 1e15;

}  // namespace orx::maplibrary
