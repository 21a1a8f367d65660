// What the grid readers share: opening files by UTF-8 path, fields of a header by name, and errors that name both.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace orx::maplibrary {

/// The path that a UTF-8 text names. Throws RunTimeError when it is no text that can be a path.
std::filesystem::path PathOf(const std::string& utf8);
/// The same the other way.
std::string Utf8(const std::filesystem::path& path);
/// The extension in capitals, with its dot: ".BIL".
std::string ExtensionOf(const std::filesystem::path& path);

/// Throws RunTimeError "<file name>: <text>" with kErrorFileFormat.
[[noreturn]] void FailFile(const std::filesystem::path& path, const std::string& text);

/// Opens a file for binary reading. Throws when it is missing, no plain file, or not readable.
std::ifstream OpenFile(const std::filesystem::path& path);
std::uint64_t FileSize(const std::filesystem::path& path);
/// The whole text of a file, without a byte order mark. Throws when it has more than `limit` bytes.
std::string ReadText(const std::filesystem::path& path, std::uint64_t limit);

/// The whole text as a number, '.' as decimal point, with an optional sign in front.
std::optional<double> NumberFrom(std::string_view text);
std::string UpperCase(std::string_view text);
/// The text in quotes for an error, cut when long, strange bytes replaced.
std::string Quoted(std::string_view text);

/// Sides and cells beyond this are no places on any ground.
inline constexpr double kMaxCoordinate = 1e15;

/// The fields of a header by name in any case; a field that is given twice keeps its last value.
class GridFields {
 public:
  explicit GridFields(std::filesystem::path file) : mFile(std::move(file)) {}

  void Add(std::string_view name, std::string_view value) { mValues[UpperCase(name)] = std::string(value); }
  bool Has(const std::string& name) const { return mValues.count(name) > 0; }
  const std::filesystem::path& File() const { return mFile; }

  /// Each of these throws RunTimeError when the field is missing without a default, or its value is not as required.
  std::int64_t Whole(const std::string& name, std::int64_t least, std::int64_t most,
                     std::optional<std::int64_t> standard = {}) const;
  double Coordinate(const std::string& name, std::optional<double> standard = {}) const;
  double CellSize(const std::string& name, std::optional<double> standard = {}) const;
  /// Any finite number; none when the field is missing.
  std::optional<double> Number(const std::string& name) const;
  /// The value in capitals, one of `choices`, which are separated by blanks.
  std::string Choice(const std::string& name, const std::string& choices, const std::string& standard) const;
  [[noreturn]] void Fail(const std::string& name, const std::string& requirement) const;

 private:
  const std::string* Find(const std::string& name, bool required) const;

  std::filesystem::path mFile;
  std::map<std::string, std::string> mValues;
};

/// Throws when the grid has more than kMaxGridCells cells.
void RequireCellCount(const std::filesystem::path& file, std::int64_t rows, std::int64_t columns);

}  // namespace orx::maplibrary
