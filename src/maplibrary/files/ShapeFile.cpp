#include "maplibrary/files/ShapeFile.h"

#include "maplibrary/files/FileAccess.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

namespace orx::maplibrary {
namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t kMaxBytes = std::uint64_t{512} << 20;
constexpr std::size_t kHeaderBytes = 100;
constexpr std::size_t kRecordHeaderBytes = 8;
constexpr std::uint32_t kFileCode = 9994;
constexpr std::uint32_t kVersion = 1000;
/// Where the type of a shape ends and its box, and where the numbers of its parts and points stand behind the box.
constexpr std::size_t kTypeBytes = 4;
constexpr std::size_t kBoxBytes = 32;
constexpr std::size_t kPointBytes = 16;

/// Numbers of a file at their places. Reading behind the end is the caller's error.
class Bytes {
 public:
  explicit Bytes(std::string text) : mText(std::move(text)) {}

  std::size_t Size() const { return mText.size(); }
  std::uint32_t Big(std::size_t at) const {
    return Byte(at) << 24 | Byte(at + 1) << 16 | Byte(at + 2) << 8 | Byte(at + 3);
  }
  std::uint32_t Little(std::size_t at) const {
    return Byte(at + 3) << 24 | Byte(at + 2) << 16 | Byte(at + 1) << 8 | Byte(at);
  }
  double Number(std::size_t at) const {
    const std::uint64_t bits = static_cast<std::uint64_t>(Little(at + 4)) << 32 | Little(at);
    return std::bit_cast<double>(bits);
  }

 private:
  std::uint32_t Byte(std::size_t at) const { return static_cast<unsigned char>(mText[at]); }

  std::string mText;
};

/// One record, by its place in the file.
struct Record {
  std::uint32_t Number = 0;
  std::size_t Start = 0;
  std::size_t Size = 0;
};

class ShapeReader {
 public:
  explicit ShapeReader(const fs::path& path) : mPath(path), mBytes(ReadText(path, kMaxBytes)) {}

  std::vector<Shape> Read() const {
    if (mBytes.Size() < kHeaderBytes || mBytes.Big(0) != kFileCode || mBytes.Little(28) != kVersion)
      FailFile(mPath, "is no shape file.");
    std::vector<Shape> shapes;
    for (std::size_t at = kHeaderBytes; at < mBytes.Size();) {
      const Record record = RecordAt(at);
      if (std::optional<Shape> shape = ShapeOf(record)) shapes.push_back(std::move(*shape));
      at = record.Start + record.Size;
    }
    return shapes;
  }

 private:
  [[noreturn]] void Fail(const Record& record, const std::string& reason) const {
    FailFile(mPath, "record " + std::to_string(record.Number) + " " + reason);
  }

  Record RecordAt(std::size_t at) const {
    if (mBytes.Size() - at < kRecordHeaderBytes) FailFile(mPath, "ends within a record.");
    // Lengths count words of two bytes.
    const Record record{mBytes.Big(at), at + kRecordHeaderBytes, std::size_t{2} * mBytes.Big(at + 4)};
    if (record.Size > mBytes.Size() - record.Start) Fail(record, "is longer than the file.");
    if (record.Size < kTypeBytes) Fail(record, "has no type.");
    return record;
  }

  std::optional<Shape> ShapeOf(const Record& record) const {
    // Types with heights are 10 more than the plain ones, those with measures 20 more; what they add stands at the end.
    const std::uint32_t type = mBytes.Little(record.Start);
    switch (type > 30 ? type : type % 10) {
      case 0:
        return std::nullopt;
      case 1:
        Require(record, kTypeBytes + kPointBytes);
        return Shape{ShapeKind::Points, {{PointAt(record, kTypeBytes)}}};
      case 3:
        return Parted(record, ShapeKind::Line);
      case 5:
        return Parted(record, ShapeKind::Area);
      case 8:
        return MultiPoint(record);
      default:
        Fail(record, "is of type " + std::to_string(type) + ", which is not points, lines or areas.");
    }
  }

  void Require(const Record& record, std::uint64_t size) const {
    if (record.Size < size) Fail(record, "is too short for what it holds.");
  }

  GroundPoint PointAt(const Record& record, std::size_t offset) const {
    const GroundPoint point{mBytes.Number(record.Start + offset), mBytes.Number(record.Start + offset + 8)};
    if (!std::isfinite(point.X) || !std::isfinite(point.Y)) Fail(record, "has a coordinate that is no number.");
    return point;
  }

  Shape MultiPoint(const Record& record) const {
    constexpr std::size_t kCount = kTypeBytes + kBoxBytes;
    Require(record, kCount + 4);
    const std::uint32_t count = mBytes.Little(record.Start + kCount);
    Require(record, kCount + 4 + std::uint64_t{count} * kPointBytes);
    return {ShapeKind::Points, {PointsOf(record, kCount + 4, 0, count)}};
  }

  std::vector<GroundPoint> PointsOf(const Record& record, std::size_t offset, std::uint32_t first,
                                    std::uint32_t end) const {
    std::vector<GroundPoint> points;
    points.reserve(end - first);
    for (std::uint32_t i = first; i < end; ++i)
      points.push_back(PointAt(record, offset + std::size_t{i} * kPointBytes));
    return points;
  }

  Shape Parted(const Record& record, ShapeKind kind) const {
    constexpr std::size_t kCounts = kTypeBytes + kBoxBytes;
    Require(record, kCounts + 8);
    const std::uint32_t parts = mBytes.Little(record.Start + kCounts);
    const std::uint32_t points = mBytes.Little(record.Start + kCounts + 4);
    Require(record, kCounts + 8 + std::uint64_t{parts} * 4 + std::uint64_t{points} * kPointBytes);
    const std::size_t coordinates = kCounts + 8 + std::size_t{parts} * 4;
    Shape shape{kind, {}};
    for (std::uint32_t part = 0; part < parts; ++part) {
      const std::size_t at = record.Start + kCounts + 8 + std::size_t{part} * 4;
      const std::uint32_t first = mBytes.Little(at);
      const std::uint32_t end = part + 1 < parts ? mBytes.Little(at + 4) : points;
      if (first > end || end > points) Fail(record, "has parts that do not follow each other.");
      if (first < end) shape.Parts.push_back(PointsOf(record, coordinates, first, end));
    }
    return shape;
  }

  const fs::path& mPath;
  Bytes mBytes;
};

}  // namespace

std::vector<Shape> ReadShapeFile(const fs::path& path) {
  return ShapeReader(path).Read();
}

}  // namespace orx::maplibrary
