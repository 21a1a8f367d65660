// Shape files: records whose type, lengths and counts are right, wrong or strange, or arbitrary bytes.
#include "tests/fuzz/MapFuzz.h"

namespace {

class Content {
 public:
  void Big(std::uint32_t value) { Put(value, true); }
  void Little(std::uint32_t value) { Put(value, false); }
  void Number(double value) { mText.append(reinterpret_cast<const char*>(&value), sizeof value); }
  void Text(const std::string& text) { mText += text; }
  const std::string& All() const { return mText; }

 private:
  void Put(std::uint32_t value, bool big) {
    for (int i = 0; i < 4; ++i) mText += static_cast<char>(value >> 8 * (big ? 3 - i : i) & 0xFF);
  }

  std::string mText;
};

void Points(FuzzedDataProvider& data, Content& content, std::uint32_t count) {
  for (std::uint32_t i = 0; i < 2 * count; ++i)
    content.Number(data.ConsumeIntegralInRange(0, 15) == 0 ? orx::fuzz::AnyNumber(data)
                                                           : data.ConsumeIntegral<std::int8_t>());
}

/// A count of parts or points, nearly always the true one.
void Count(FuzzedDataProvider& data, Content& content, std::uint32_t count) {
  content.Little(data.ConsumeIntegralInRange(0, 19) == 0 ? data.ConsumeIntegral<std::uint32_t>() : count);
}

std::string RecordFrom(FuzzedDataProvider& data) {
  const auto type = data.PickValueInArray<std::uint32_t>({0, 1, 3, 3, 5, 5, 8, 11, 13, 15, 18, 21, 23, 25, 28, 31, 40});
  const std::uint32_t kind = type % 10;
  Content record;
  record.Little(type);
  if (kind == 1) Points(data, record, 1);
  if (kind != 3 && kind != 5 && kind != 8) return record.All();
  for (int i = 0; i < 4; ++i) record.Number(0);
  const auto parts = data.ConsumeIntegralInRange<std::uint32_t>(0, 4);
  const auto points = data.ConsumeIntegralInRange<std::uint32_t>(0, 12);
  if (kind != 8) Count(data, record, parts);
  Count(data, record, points);
  std::uint32_t first = 0;
  for (std::uint32_t i = 0; kind != 8 && i < parts; ++i) {
    record.Little(data.ConsumeIntegralInRange(0, 19) == 0 ? data.ConsumeIntegral<std::uint32_t>() : first);
    first += data.ConsumeIntegralInRange<std::uint32_t>(0, 4);
  }
  Points(data, record, points);
  return record.All();
}

std::string FileFrom(FuzzedDataProvider& data) {
  if (data.ConsumeIntegralInRange(0, 9) == 0) return data.ConsumeRandomLengthString(600);
  Content file;
  file.Big(9994);
  file.Text(std::string(24, '\0'));
  file.Little(1000);
  file.Text(std::string(68, '\0'));
  for (std::uint32_t number = 1; number < 12 && data.ConsumeIntegralInRange(0, 5) > 0; ++number) {
    const std::string record = RecordFrom(data);
    file.Big(number);
    const bool isRight = data.ConsumeIntegralInRange(0, 19) > 0;
    file.Big(isRight ? static_cast<std::uint32_t>(record.size() / 2) : data.ConsumeIntegral<std::uint32_t>());
    file.Text(record);
  }
  if (data.ConsumeIntegralInRange(0, 9) == 0) file.Text(data.ConsumeRandomLengthString(12));
  return file.All();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  static const orx::fuzz::Folder folder;
  FuzzedDataProvider data(bytes, size);
  const std::string path = folder.Write("a.shp", FileFrom(data));
  orx::fuzz::ReadAndDraw(data, path);
  return 0;
}
