// Access to the files of grids: paths, sizes, texts, and the errors that name the file.
#include <system_error>

#include "maplibrary/Errors.h"
#include "maplibrary/GridFields.h"
#include "maplibrary/GridFile.h"

namespace orx::maplibrary {

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

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

std::string ExtensionOf(const fs::path& path) {
  return UpperCase(Utf8(path.extension()));
}

fs::path PathOf(const std::string& utf8) try {
  // A zero character would end the name for the system and open another file than the one named.
  if (utf8.find('\0') != std::string::npos) throw RunTimeError(kErrorFileAccess, "The path is no valid text.");
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
} catch (const std::system_error&) {
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

std::string FileStem(const std::string& path) {
  return Utf8(PathOf(path).stem());
}

}  // namespace orx::maplibrary
