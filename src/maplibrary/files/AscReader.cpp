// Reader of ESRI ASCII grids: a few named fields, then the values as text, row by row from the north.
#include <algorithm>
#include <limits>

#include "maplibrary/files/FileAccess.h"
#include "maplibrary/files/GridFile.h"
#include "maplibrary/files/GridHeader.h"
#include "maplibrary/files/GridReaders.h"
#include "text/AsciiCase.h"

namespace orx::maplibrary {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t kMaxTextBytes = 1'000'000'000;
constexpr double kStandardNoData = -9999;

/// The words of a text one after the other, empty at the end.
class Words {
 public:
  explicit Words(std::string_view text) : mRest(text) {}

  std::string_view Peek() {
    mRest.remove_prefix(std::min(mRest.find_first_not_of(kBlanks), mRest.size()));
    return mRest.substr(0, std::min(mRest.find_first_of(kBlanks), mRest.size()));
  }
  std::string_view Next() {
    const std::string_view word = Peek();
    mRest.remove_prefix(word.size());
    return word;
  }
  /// More words than this cannot follow.
  std::size_t Most() const { return mRest.size() / 2 + 1; }

 private:
  static constexpr std::string_view kBlanks = " \t\r\n\v\f";
  std::string_view mRest;
};

bool IsFieldName(std::string_view word) {
  return !word.empty() && ((word[0] >= 'a' && word[0] <= 'z') || (word[0] >= 'A' && word[0] <= 'Z'));
}

bool IsKnown(const std::string& name) {
  constexpr std::string_view kFields[] = {"NCOLS",     "NROWS",    "XLLCORNER",    "XLLCENTER", "YLLCORNER",
                                          "YLLCENTER", "CELLSIZE", "NODATA_VALUE", "NODATA"};
  return std::ranges::find(kFields, name) != std::end(kFields);
}

GridHeader ReadFields(const fs::path& path, Words& words) {
  GridHeader fields(path);
  while (IsFieldName(words.Peek())) {
    const std::string name = AsciiUpperCase(words.Next());
    if (IsKnown(name)) {
      fields.Add(name, words.Next());
    } else if (fields.IsEmpty()) {
      // What is no grid at all is not for an error to quote: a list may name any file of the user.
      FailFile(path, "is no grid, as it does not begin with a field such as NCOLS.");
    } else {
      FailFile(path, "unknown field " + Quoted(name) + ".");
    }
  }
  return fields;
}

/// The first centre on an axis, given as the centre itself or as the corner of the lower left cell.
double FirstCenter(const GridHeader& fields, const std::string& axis, double cellSize) {
  if (fields.Has(axis + "LLCENTER")) return fields.Coordinate(axis + "LLCENTER");
  return fields.Coordinate(axis + "LLCORNER") + cellSize / 2;
}

GridData AscFrame(const GridHeader& fields, std::int64_t mostCells) {
  GridData grid;
  grid.Columns = static_cast<std::int32_t>(fields.Whole("NCOLS", 1, kMaxGridSide));
  grid.Rows = static_cast<std::int32_t>(fields.Whole("NROWS", 1, kMaxGridSide));
  RequireCellCount(fields.File(), grid, mostCells);
  grid.CellWidth = grid.CellHeight = fields.CellSize("CELLSIZE");
  grid.UpperLeft.X = FirstCenter(fields, "X", grid.CellWidth);
  grid.UpperLeft.Y = FirstCenter(fields, "Y", grid.CellHeight) + (grid.Rows - 1) * grid.CellHeight;
  grid.NoData = fields.Number(fields.Has("NODATA") ? "NODATA" : "NODATA_VALUE").value_or(kStandardNoData);
  return grid;
}

std::string ExpectedCount(const GridData& grid) {
  return std::to_string(static_cast<std::int64_t>(grid.Rows) * grid.Columns) + " expected (" +
         std::to_string(grid.Rows) + " rows of " + std::to_string(grid.Columns) + ")";
}

std::string CellName(const GridData& grid, std::size_t index) {
  const auto columns = static_cast<std::size_t>(grid.Columns);
  return "row " + std::to_string(index / columns + 1) + ", column " + std::to_string(index % columns + 1);
}

// Room is made for what the file can really hold, so that a header with large sizes cannot claim memory by itself.
void ReadValues(const fs::path& path, Words& words, GridData& grid) {
  const std::size_t count = static_cast<std::size_t>(grid.Rows) * static_cast<std::size_t>(grid.Columns);
  grid.Values.reserve(std::min(count, words.Most()));
  for (std::string_view word = words.Next(); !word.empty(); word = words.Next()) {
    if (grid.Values.size() == count) FailFile(path, "too many values: " + ExpectedCount(grid) + ", more found.");
    const std::optional<double> value = NumberFrom(word);
    if (!value) FailFile(path, CellName(grid, grid.Values.size()) + " must be a number, found " + Quoted(word) + ".");
    grid.Values.push_back(*value == grid.NoData ? std::numeric_limits<double>::quiet_NaN() : *value);
  }
  if (grid.Values.size() == count) return;
  FailFile(path, "too few values: " + ExpectedCount(grid) + ", " + std::to_string(grid.Values.size()) + " found.");
}

}  // namespace

GridData ReadAsc(const fs::path& path, std::int64_t mostCells) {
  const std::string text = ReadText(path, kMaxTextBytes);
  Words words(text);
  const GridHeader fields = ReadFields(path, words);
  GridData grid = AscFrame(fields, mostCells);
  ReadValues(path, words, grid);
  return grid;
}

}  // namespace orx::maplibrary
