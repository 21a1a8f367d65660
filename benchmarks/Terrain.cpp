// What a cell of the demo's terrain costs to shade, to contour and to paint.
#include <benchmark/benchmark.h>

#include "maplibrary/drawing/Contours.h"
#include "maplibrary/drawing/DrawIsolines.h"
#include "maplibrary/drawing/PaintGrid.h"
#include "maplibrary/model/SampleMap.h"

namespace orx::bench {
namespace {

using namespace maplibrary;

/// The terrain with nine classes.
struct Terrain {
  Terrain() { Data.NumberOfClasses(9); }

  std::unique_ptr<Map> Sample = MakeSampleMap(ORX_DATA_DIR "/jacksboro.bil");
  Layer& First = dynamic_cast<Layer&>(*Sample->Layer(1));
  LayerData& Data = *First.Data();
  const GridData& Grid = *Data.Grid();
};

/// Runs `act` on the terrain; the table tells the time for one cell.
template <class Act>
void PerCell(benchmark::State& state, Act&& act) {
  Terrain terrain;
  while (state.KeepRunning()) act(terrain);
  state.counters["cells"] = static_cast<double>(terrain.Grid.Values.size());
}

void Shade(benchmark::State& state) {
  PerCell(state, [](Terrain& terrain) { benchmark::DoNotOptimize(LightSource(315, 45).On(terrain.Grid, 1E-5)); });
}

void Contour(benchmark::State& state) {
  PerCell(state, [](Terrain& terrain) {
    for (const double level : IsolineLevels(terrain.Data)) benchmark::DoNotOptimize(ContoursOf(terrain.Grid, level));
  });
}

void Paint(benchmark::State& state) {
  PerCell(state, [](Terrain& terrain) {
    Image image = BlankImage({terrain.Grid.Columns, terrain.Grid.Rows});
    PaintGrid(image, terrain.Grid.Edges(), terrain.First.Grids().front(), {236, 1076});
    benchmark::DoNotOptimize(image);
  });
}

const bool kTerrainRegistered = [] {
  benchmark::RegisterBenchmark("shade the terrain/cell", Shade);
  benchmark::RegisterBenchmark("contour it at 8 levels/cell", Contour);
  benchmark::RegisterBenchmark("paint it/cell", Paint);
  return true;
}();

}  // namespace
}  // namespace orx::bench
