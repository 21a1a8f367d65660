// Paths of files as UTF-8 texts, whatever the platform's own encoding is.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace orx {

/// The path that a UTF-8 text names; none when the text cannot be a path: malformed, or with a zero character, which
/// would end the name for the system and open another file than the one named.
std::optional<std::filesystem::path> PathFrom(const std::string& utf8);

/// The same the other way.
std::string Utf8(const std::filesystem::path& path);

/// The extension in capitals, with its dot: ".BIL".
std::string ExtensionOf(const std::filesystem::path& path);

}  // namespace orx
