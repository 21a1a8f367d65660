#include "maplibrary/model/TiledLayer.h"

#include "maplibrary/files/GridData.h"
#include "maplibrary/model/Errors.h"
#include "maplibrary/model/LayerData.h"

namespace orx::maplibrary {

std::vector<PlacedGrid> TiledLayer::Grids() const {
  std::vector<PlacedGrid> grids;
  for (const auto& tile : mTiles.All()) {
    if (!tile->Visible()) continue;
    for (const PlacedGrid& placed : tile->Grids()) grids.push_back({placed.Grid, OnMap(placed.Place), placed.Data});
  }
  return grids;
}

std::vector<MarkedPeak> TiledLayer::MarkedPeaks() const {
  std::vector<MarkedPeak> peaks;
  for (const auto& tile : mTiles.All()) {
    if (!tile->Visible()) continue;
    for (const MarkedPeak& peak : tile->MarkedPeaks())
      peaks.push_back({peak.Marker, {OnMap(peak.At.Place), peak.At.Value}});
  }
  for (const MarkedPeak& own : MapLayer::MarkedPeaks()) peaks.push_back(own);
  return peaks;
}

MapLayer* TiledLayer::AddLayer(const std::string& path, const std::string&) {
  return &AddTile(ReadLayer(path));
}

GroundPoint TiledLayer::OnMap(const GroundPoint& point) const {
  return Frame().IsEmpty() ? point : Moved(point, Frame(), Current());
}

GroundRect TiledLayer::OnMap(const GroundRect& rect) const {
  return Frame().IsEmpty() ? rect : Moved(rect, Frame(), Current());
}

std::unique_ptr<TiledLayer> MakeQuarters(std::string name, std::string source, const GridData& grid) {
  if (grid.Rows < 2 || grid.Columns < 2) {
    throw RunTimeError(kErrorInvalidValue, "A grid needs two rows and two columns to be cut into quarters.");
  }
  const std::int32_t north = grid.Rows / 2;
  const std::int32_t west = grid.Columns / 2;
  auto layer = std::make_unique<TiledLayer>(std::move(name), source);
  const auto add = [&](const char* tile, const GridCell& first, std::int32_t rows, std::int32_t columns) {
    auto part = std::make_shared<const GridData>(PartOf(grid, first, rows, columns));
    layer->AddTile(std::make_unique<maplibrary::Layer>(tile, source, std::move(part)));
  };
  add("North-west", {0, 0}, north, west);
  add("North-east", {0, west}, north, grid.Columns - west);
  add("South-west", {north, 0}, grid.Rows - north, west);
  add("South-east", {north, west}, grid.Rows - north, grid.Columns - west);
  return layer;
}

}  // namespace orx::maplibrary
