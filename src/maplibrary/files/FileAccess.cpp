#include "maplibrary/files/FileAccess.h"

#include <charconv>
#include <cmath>
#include <system_error>

#include "text/Paths.h"

namespace orx::maplibrary {

namespace {

bool IsPlain(char c) {
  return c >= ' ' && c <= '~';
}

}  // namespace

std::string FileStem(const std::string& path) {
  return Utf8(PathOf(path).stem());
}

std::optional<double> NumberFrom(std::string_view text) {
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::string Quoted(std::string_view text) {
  constexpr std::size_t kMost = 40;
  std::string quoted = "\"";
  for (const char c : text.substr(0, kMost)) quoted += IsPlain(c) ? c : '?';
  return quoted + (text.size() > kMost ? "...\"" : "\"");
}

}  // namespace orx::maplibrary
