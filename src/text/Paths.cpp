#include "text/Paths.h"

#include <system_error>

#include "text/AsciiCase.h"

namespace orx {

std::optional<std::filesystem::path> PathFrom(const std::string& utf8) try {
  if (utf8.find('\0') != std::string::npos) return std::nullopt;
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
} catch (const std::system_error&) {
  return std::nullopt;
}

std::string Utf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

std::string ExtensionOf(const std::filesystem::path& path) {
  return AsciiUpperCase(Utf8(path.extension()));
}

}  // namespace orx
