// Reader of ESRI .bil grids: raw cells, row by row, described by a text header of the same name.
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <sstream>

#include "maplibrary/files/FileAccess.h"
#include "maplibrary/files/GridFile.h"
#include "maplibrary/files/GridHeader.h"
#include "maplibrary/files/GridReaders.h"
#include "text/Trimmed.h"

namespace orx::maplibrary {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t kMaxHeaderBytes = 1'000'000;
constexpr std::int64_t kMaxRowBytes = 1'000'000'000;
constexpr std::int64_t kMaxSkipBytes = 1'000'000'000'000;

enum class PixelType { Unsigned, Signed, Float };

/// How the cells stand in the file.
struct CellLayout {
  bool BigEndian = false;
  int Bytes = 1;
  PixelType Type = PixelType::Unsigned;
  std::int64_t Skip = 0;
  std::int64_t RowBytes = 0;
};

fs::path HeaderOf(const fs::path& path) {
  fs::path header = fs::path(path).replace_extension(".hdr");
  const fs::path capitals = fs::path(path).replace_extension(".HDR");
  std::error_code ignored;
  return !fs::exists(header, ignored) && fs::exists(capitals, ignored) ? capitals : header;
}

GridHeader ReadHeader(const fs::path& path) {
  GridHeader fields(path);
  std::istringstream lines(ReadText(path, kMaxHeaderBytes));
  for (std::string line; std::getline(lines, line);) {
    const std::string_view field = Trimmed(line);
    const std::size_t end = std::min(field.find_first_of(" \t"), field.size());
    if (end > 0) fields.Add(std::string(field.substr(0, end)), std::string(Trimmed(field.substr(end))));
  }
  return fields;
}

PixelType PixelTypeFrom(const GridHeader& fields, std::int64_t bits) {
  const std::string type = fields.Choice("PIXELTYPE", "SIGNEDINT UNSIGNEDINT FLOAT", "UNSIGNEDINT");
  if (type == "FLOAT" && bits != 32) fields.Fail("PIXELTYPE", "SIGNEDINT or UNSIGNEDINT unless NBITS is 32");
  return type == "FLOAT" ? PixelType::Float : type == "SIGNEDINT" ? PixelType::Signed : PixelType::Unsigned;
}

void RequireOneBand(const GridHeader& fields) {
  fields.Choice("LAYOUT", "BIL BIP BSQ", "BIL");
  if (fields.Whole("NBANDS", 1, 100000, 1) != 1) fields.Fail("NBANDS", "1, as a layer shows a single band");
}

CellLayout LayoutFrom(const GridHeader& fields, std::int64_t columns) {
  const std::int64_t bits = fields.Whole("NBITS", 1, 64, 8);
  if (bits != 8 && bits != 16 && bits != 32) fields.Fail("NBITS", "8, 16 or 32");
  CellLayout layout;
  layout.Bytes = static_cast<int>(bits / 8);
  layout.Type = PixelTypeFrom(fields, bits);
  layout.BigEndian = fields.Choice("BYTEORDER", "I M", "I") == "M";
  layout.Skip = fields.Whole("SKIPBYTES", 0, kMaxSkipBytes, 0);
  const std::int64_t packed = columns * layout.Bytes;
  const std::int64_t bandRow = fields.Whole("BANDROWBYTES", packed, kMaxRowBytes, packed);
  layout.RowBytes = fields.Whole("TOTALROWBYTES", bandRow, kMaxRowBytes, bandRow);
  return layout;
}

GridData BilFrame(const GridHeader& fields, std::int64_t mostCells) {
  GridData grid;
  grid.Rows = static_cast<std::int32_t>(fields.Whole("NROWS", 1, kMaxGridSide));
  grid.Columns = static_cast<std::int32_t>(fields.Whole("NCOLS", 1, kMaxGridSide));
  RequireCellCount(fields.File(), grid, mostCells);
  grid.CellWidth = fields.CellSize("XDIM", 1);
  grid.CellHeight = fields.CellSize("YDIM", 1);
  grid.UpperLeft = {fields.Coordinate("ULXMAP", 0), fields.Coordinate("ULYMAP", grid.Rows - 1)};
  grid.NoData = fields.Number(fields.Has("NODATA") ? "NODATA" : "NODATA_VALUE");
  return grid;
}

double Decoded(const unsigned char* bytes, const CellLayout& layout) {
  std::uint32_t raw = 0;
  for (int i = 0; i < layout.Bytes; ++i) {
    raw = raw << 8 | bytes[layout.BigEndian ? i : layout.Bytes - 1 - i];
  }
  if (layout.Type == PixelType::Float) return std::bit_cast<float>(raw);
  if (layout.Type == PixelType::Unsigned) return raw;
  const int unused = 32 - 8 * layout.Bytes;
  return static_cast<std::int32_t>(raw << unused) >> unused;
}

/// The no-data value as a cell can hold it: a float cell has fewer digits than the header's text.
double MissingAs(const CellLayout& layout, double noData) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  if (layout.Type != PixelType::Float) return noData;
  return static_cast<float>(std::min(std::max(noData, -kLargest), kLargest));
}

void RequireFileSize(const fs::path& path, const CellLayout& layout, const GridData& grid) {
  const std::int64_t lastRow = static_cast<std::int64_t>(grid.Columns) * layout.Bytes;
  const auto expected = static_cast<std::uint64_t>(layout.Skip + (grid.Rows - 1) * layout.RowBytes + lastRow);
  const std::uint64_t found = FileSize(path);
  if (found >= expected) return;
  FailFile(path, "too short: " + std::to_string(expected) + " bytes expected from its header, " +
                     std::to_string(found) + " found.");
}

void ReadCells(const fs::path& path, std::ifstream& file, const CellLayout& layout, GridData& grid) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  const double missing = grid.NoData ? MissingAs(layout, *grid.NoData) : kNone;
  const auto cellBytes = static_cast<std::size_t>(layout.Bytes);
  std::vector<unsigned char> row(static_cast<std::size_t>(grid.Columns) * cellBytes);
  grid.Values.reserve(static_cast<std::size_t>(grid.Rows) * static_cast<std::size_t>(grid.Columns));
  for (std::int64_t i = 0; i < grid.Rows; ++i) {
    file.seekg(layout.Skip + i * layout.RowBytes);
    file.read(reinterpret_cast<char*>(row.data()), static_cast<std::streamsize>(row.size()));
    if (!file) FailFile(path, "row " + std::to_string(i + 1) + " cannot be read.");
    for (std::size_t at = 0; at < row.size(); at += cellBytes) {
      const double value = Decoded(row.data() + at, layout);
      grid.Values.push_back(value == missing || !std::isfinite(value) ? kNone : value);
    }
  }
}

}  // namespace

GridData ReadBil(const fs::path& path, std::int64_t mostCells) {
  std::ifstream file = OpenFile(path);
  const GridHeader fields = ReadHeader(HeaderOf(path));
  RequireOneBand(fields);
  GridData grid = BilFrame(fields, mostCells);
  const CellLayout layout = LayoutFrom(fields, grid.Columns);
  RequireFileSize(path, layout, grid);
  ReadCells(path, file, layout, grid);
  return grid;
}

}  // namespace orx::maplibrary
