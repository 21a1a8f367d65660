// The header of a grid file: its fields by name, with errors that name file and field.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "maplibrary/files/GridData.h"
#include "text/AsciiCase.h"

namespace orx::maplibrary {

/// The fields of a header by name in any case; a field that is given twice keeps its last value.
class GridHeader {
 public:
  explicit GridHeader(std::filesystem::path file) : mFile(std::move(file)) {}

  void Add(std::string_view name, std::string_view value) { mValues[AsciiUpperCase(name)] = std::string(value); }
  bool IsEmpty() const { return mValues.empty(); }
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

/// Throws when the grid has more rows and columns than make `most` cells.
void RequireCellCount(const std::filesystem::path& file, const GridData& frame, std::int64_t most);

}  // namespace orx::maplibrary
