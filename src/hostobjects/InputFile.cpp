#include "hostobjects/InputFile.h"

#include <system_error>

#include "hostobjects/RunTimeError.h"
#include "text/Paths.h"

namespace orx {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Fail(std::int32_t number, const fs::path& path, const std::string& text) {
  throw RunTimeError(number, Utf8(path.filename()) + ": " + text);
}

void RequirePlainFile(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) Fail(kErrorNoSuchFile, path, "file not found.");
  if (status.type() == fs::file_type::directory) Fail(kErrorFileAccess, path, "is a folder, choose a file in it.");
  if (status.type() == fs::file_type::none) Fail(kErrorFileAccess, path, "cannot be opened: " + error.message() + ".");
  if (status.type() != fs::file_type::regular) Fail(kErrorFileAccess, path, "is not a plain file.");
}

}  // namespace

fs::path PathOf(const std::string& utf8) {
  if (const std::optional<fs::path> path = PathFrom(utf8)) return *path;
  throw RunTimeError(kErrorFileAccess, "The path is no valid text.");
}

void FailFile(const fs::path& path, const std::string& text) {
  Fail(kErrorFileFormat, path, text);
}

std::ifstream OpenFile(const fs::path& path) {
  RequirePlainFile(path);
  std::ifstream file(path, std::ios::binary);
  if (!file) Fail(kErrorFileAccess, path, "cannot be opened for reading.");
  return file;
}

std::uint64_t FileSize(const fs::path& path) {
  std::error_code error;
  const std::uint64_t size = fs::file_size(path, error);
  if (error) Fail(kErrorFileAccess, path, "cannot be read: " + error.message() + ".");
  return size;
}

std::string ReadText(const fs::path& path, std::uint64_t limit) {
  std::ifstream file = OpenFile(path);
  const std::uint64_t size = FileSize(path);
  if (size > limit) {
    FailFile(path, "too large: " + std::to_string(size) + " bytes, at most " + std::to_string(limit) + " can be read.");
  }
  std::string text(static_cast<std::size_t>(size), '\0');
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (static_cast<std::uint64_t>(file.gcount()) != size) Fail(kErrorFileAccess, path, "cannot be read to its end.");
  if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
  return text;
}

}  // namespace orx
