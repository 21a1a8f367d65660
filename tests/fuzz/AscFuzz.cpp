// ASCII grids: fields and values that are right, wrong or strange, or arbitrary bytes.
#include "tests/fuzz/GridTexts.h"
#include "tests/fuzz/MapFuzz.h"

namespace {

std::string GridFrom(FuzzedDataProvider& data) {
  if (data.ConsumeIntegralInRange(0, 7) == 0) return data.ConsumeRandomLengthString(1000);
  const int rows = data.ConsumeIntegralInRange(1, 9);
  const int columns = data.ConsumeIntegralInRange(1, 9);
  std::string text = "ncols " + std::to_string(columns) + "\nnrows " + std::to_string(rows) + "\n";
  text += data.ConsumeBool() ? orx::fuzz::AnyFields(data, {"xllcorner", "yllcorner", "cellsize", "nodata_value",
                                                           "xllcenter", "yllcenter", "nodata"})
                             : "xllcorner 0\nyllcorner 0\ncellsize 1\n";
  // The right number of values for the most part.
  const int values = rows * columns + (data.ConsumeIntegralInRange(0, 9) == 0 ? data.ConsumeIntegralInRange(-2, 2) : 0);
  for (int i = 0; i < values; ++i) {
    text += data.ConsumeIntegralInRange(0, 19) == 0 ? orx::fuzz::AnyValue(data)
                                                    : std::to_string(data.ConsumeIntegral<std::int8_t>());
    text += i % columns == columns - 1 ? '\n' : ' ';
  }
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const orx::fuzz::Folder folder;
  FuzzedDataProvider data(bytes, size);
  const std::string path = folder.Write("a.asc", GridFrom(data));
  orx::fuzz::ReadAndDraw(data, path);
  return 0;
}
