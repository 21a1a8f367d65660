#include "maplibrary/files/GridHeader.h"

#include <charconv>
#include <cmath>
#include <sstream>

#include "maplibrary/files/FileAccess.h"
#include "maplibrary/files/GridFile.h"
#include "text/AsciiCase.h"

namespace orx::maplibrary {

const std::string* GridHeader::Find(const std::string& name, bool required) const {
  const auto found = mValues.find(name);
  if (found != mValues.end()) return &found->second;
  if (required) FailFile(mFile, name + " is missing.");
  return nullptr;
}

void GridHeader::Fail(const std::string& name, const std::string& requirement) const {
  FailFile(mFile, name + " must be " + requirement + ", found " + Quoted(*Find(name, true)) + ".");
}

std::int64_t GridHeader::Whole(const std::string& name, std::int64_t least, std::int64_t most,
                               std::optional<std::int64_t> standard) const {
  const std::string* text = Find(name, !standard);
  if (!text) return *standard;
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), value);
  if (error != std::errc() || end != text->data() + text->size() || value < least || value > most) {
    Fail(name, "a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  }
  return value;
}

double GridHeader::Coordinate(const std::string& name, std::optional<double> standard) const {
  const std::string* text = Find(name, !standard);
  if (!text) return *standard;
  const std::optional<double> value = NumberFrom(*text);
  if (!value || std::abs(*value) > kMaxCoordinate) Fail(name, "a number from -1E+15 to 1E+15");
  return *value;
}

double GridHeader::CellSize(const std::string& name, std::optional<double> standard) const {
  const std::string* text = Find(name, !standard);
  if (!text) return *standard;
  const std::optional<double> value = NumberFrom(*text);
  if (!value || *value <= 0 || *value > kMaxCoordinate) Fail(name, "a number above 0 and up to 1E+15");
  return *value;
}

std::optional<double> GridHeader::Number(const std::string& name) const {
  const std::string* text = Find(name, false);
  if (!text) return std::nullopt;
  const std::optional<double> value = NumberFrom(*text);
  if (!value) Fail(name, "a number");
  return value;
}

std::string GridHeader::Choice(const std::string& name, const std::string& choices, const std::string& standard) const {
  const std::string* text = Find(name, false);
  if (!text) return standard;
  std::string value = AsciiUpperCase(*text);
  std::istringstream words(choices);
  std::string list;
  for (std::string word; words >> word;) {
    if (word == value) return value;
    list += (list.empty() ? "" : " or ") + word;
  }
  Fail(name, list);
}

void RequireCellCount(const std::filesystem::path& file, const GridData& frame, std::int64_t most) {
  if (std::int64_t{frame.Rows} * frame.Columns <= most) return;
  FailFile(file, "too large: " + std::to_string(frame.Rows) + " rows of " + std::to_string(frame.Columns) +
                     " cells, at most " + std::to_string(most) + (most < kMaxGridCells ? " more" : "") +
                     " cells can be read.");
}

}  // namespace orx::maplibrary
