// Band interleaved grids: a header of fields that are right, wrong or strange, or arbitrary bytes, and the cells.
#include "tests/fuzz/GridTexts.h"
#include "tests/fuzz/MapFuzz.h"

namespace {

std::string HeaderFrom(FuzzedDataProvider& data) {
  if (data.ConsumeIntegralInRange(0, 7) == 0) return data.ConsumeRandomLengthString(400);
  return "NROWS " + std::to_string(data.ConsumeIntegralInRange(1, 12)) + "\nNCOLS " +
         std::to_string(data.ConsumeIntegralInRange(1, 12)) + "\n" +
         (data.ConsumeBool() ? orx::fuzz::AnyFields(data, {"NBITS", "PIXELTYPE", "BYTEORDER", "XDIM", "YDIM", "ULXMAP",
                                                           "ULYMAP", "NODATA", "SKIPBYTES", "LAYOUT", "NBANDS",
                                                           "BANDROWBYTES", "TOTALROWBYTES", "NROWS", "NCOLS"})
                             : "NBITS " + std::string(data.PickValueInArray({"8", "16", "32"})) + "\nPIXELTYPE " +
                                   data.PickValueInArray({"FLOAT", "SIGNEDINT", "UNSIGNEDINT"}) + "\nBYTEORDER " +
                                   data.PickValueInArray({"I", "M"}) + "\n");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const orx::fuzz::Folder folder;
  FuzzedDataProvider data(bytes, size);
  folder.Write("a.hdr", HeaderFrom(data));
  const std::string path = folder.Write("a.bil", data.ConsumeRandomLengthString(1000));
  orx::fuzz::ReadAndDraw(data, path);
  return 0;
}
