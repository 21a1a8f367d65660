// Lists of grids: names of grids that are there, of files that are none, of the list itself, and arbitrary bytes.
#include "tests/fuzz/MapFuzz.h"

namespace {

std::string LinesFrom(FuzzedDataProvider& data) {
  std::string text;
  while (data.remaining_bytes() > 0 && data.ConsumeIntegralInRange(0, 9) > 0) {
    text += data.ConsumeIntegralInRange(0, 9) == 0
                ? data.ConsumeRandomLengthString(40)
                : std::string(data.PickValueInArray({"a.asc", "./a.asc", "b.bil", "B.BIL", "../a.asc", "a.lst", "",
                                                     "  b.bil  ", "a.asc\r", "\xEF\xBB\xBF", "./././b.bil"}));
    text += '\n';
  }
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const orx::fuzz::Folder folder;
  FuzzedDataProvider data(bytes, size);
  folder.Write("a.asc", "ncols 3\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 1\n1 2 3\n4 5 6\n");
  folder.Write("b.hdr", "NROWS 2\nNCOLS 2\nULXMAP 3\n");
  folder.Write("b.bil", "abcd");
  const std::string path = folder.Write("a.lst", LinesFrom(data));
  orx::fuzz::ReadAndDraw(data, path);
  return 0;
}
