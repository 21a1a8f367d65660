#include "maplibrary/drawing/ValueLegend.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "maplibrary/drawing/ValueColors.h"
#include "numbers/Numbers.h"

namespace orx::maplibrary {
namespace {

constexpr std::int32_t kMostRows = 16;
constexpr const char* kTo = " \xE2\x80\x93 ";

/// A coloured field with what it stands for. The side is in pixels, 0 that of the row.
struct ColorRow {
  Color Fill;
  std::string Text;
  int Side = 0;
};

int SideOf(const LayerData& data, std::int32_t index) {
  if (data.LegendStyle() == legendstyle::kByColor) return 0;
  const std::int32_t last = data.NumberOfClasses() - 1;
  const double share = last > 0 ? static_cast<double>(index) / last : 0;
  return std::max(
      1, static_cast<int>(std::lround(data.FirstClassSize() + share * (data.LastClassSize() - data.FirstClassSize()))));
}

/// From the highest class down, as maps are read.
std::vector<ColorRow> ClassRows(const LayerData& data) {
  std::vector<ColorRow> rows;
  const auto text = [&](double value) { return numbers::FormatNumber(value, data.ValueFormat()); };
  for (std::int32_t i = data.NumberOfClasses() - 1; i >= 0; --i) {
    const ValueRange limits = data.LimitsOf(i);
    rows.push_back(
        {ClassColor(i, data.NumberOfClasses()), text(limits.Low) + kTo + text(limits.High), SideOf(data, i)});
  }
  return rows;
}

std::vector<ColorRow> SpecialRows(const LayerData& data) {
  std::vector<ColorRow> rows;
  for (const SpecialValue* const kind : {&data.Missing(), &data.Zero(), &data.NoData()})
    if (kind->Enabled() && kind->InLegend()) rows.push_back({kind->Color(), kind->TextValue()});
  return rows;
}

class ValueDrawing final : public LegendDrawing {
 public:
  ValueDrawing(const Legend& legend, const Layer* layer, const std::optional<ValueRange>& range, Canvas& canvas,
               Lettering& lettering)
      : LegendDrawing(legend, canvas, lettering), mRange(range) {
    if (!layer) return;
    mData = &layer->Data();
    if (mData->ShowParameterName()) mName = layer->Name();
    if (mData->HasClasses()) mRange = {mData->MinValue(), mData->MaxValue()};
    if (mData->HasClasses() && mData->NumberOfClasses() <= kMostRows) mRows = ClassRows(*mData);
    mHasBar = mRange && mRows.empty();
    for (ColorRow& row : SpecialRows(*mData)) mRows.push_back(std::move(row));
  }

  bool IsEmpty() const override { return !mHasBar && mRows.empty(); }

 protected:
  Size MeasureBody() const override {
    double widest = 0;
    const auto measure = [&](const std::string& text) { widest = std::max(widest, mLettering.WidthOf(text, mFont)); };
    for (const ColorRow& row : mRows) measure(row.Text);
    if (mHasBar)
      for (const std::string& text : BarTexts()) measure(text);
    int height = NameHeight() + (mHasBar ? BarHeight() + mRow : 0);
    for (const ColorRow& row : mRows) height += HeightOf(row);
    const int nameWidth = Ceiled(mLettering.WidthOf(mName, mFont));
    return {std::max(nameWidth, FieldWidth() + kLegendSpace + Ceiled(widest)), height};
  }

  void DrawBody(const Point& start) override {
    Point at = start;
    if (!mName.empty()) DrawText(at, mName, mFont);
    at.Y += NameHeight();
    if (mHasBar) {
      DrawBar(at);
      at.Y += BarHeight() + mRow;
    }
    for (const ColorRow& row : mRows) {
      DrawRow(row, at);
      at.Y += HeightOf(row);
    }
  }

 private:
  int NameHeight() const { return mName.empty() ? 0 : mRow; }
  int BarHeight() const { return 6 * mRow; }
  int SideOfField(const ColorRow& row) const { return row.Side > 0 ? row.Side : mRow - kLegendSpace / 2; }
  int HeightOf(const ColorRow& row) const { return std::max(mRow, SideOfField(row) + kLegendSpace / 2); }
  int FieldWidth() const {
    int width = mRow;
    for (const ColorRow& row : mRows) width = std::max(width, SideOfField(row));
    return width;
  }

  std::array<std::string, 3> BarTexts() const {
    const auto text = [this](double value) {
      return mData && mData->HasClasses() ? numbers::FormatNumber(value, mData->ValueFormat()) : ValueText(value);
    };
    return {text(mRange->High), text(mRange->Low / 2 + mRange->High / 2), text(mRange->Low)};
  }

  /// The highest value stands at the top, the lowest at the bottom.
  void DrawBar(const Point& start) {
    const Rect bar = {start.X, start.Y + mRow / 2, mRow, BarHeight()};
    const ValueColors colors(mData, *mRange);
    for (int y = 0; y < bar.Height; ++y) {
      const double share = 1 - (y + 0.5) / bar.Height;
      mCanvas.Draw(FillMark{{bar.Left, bar.Top + y, bar.Width, 1}, colors.ForShare(share)});
    }
    DrawBox(mCanvas, bar, kLegendEdge);
    const std::array<std::string, 3> texts = BarTexts();
    for (int i = 0; i < 3; ++i)
      DrawText({start.X + FieldWidth() + kLegendSpace, start.Y + i * bar.Height / 2},
               texts[static_cast<std::size_t>(i)], mFont);
  }

  void DrawRow(const ColorRow& row, const Point& at) {
    const int side = SideOfField(row);
    const Rect field = {at.X + (FieldWidth() - side) / 2, at.Y + (HeightOf(row) - side) / 2, side, side};
    mCanvas.Draw(FillMark{field, row.Fill});
    if (side > 2) DrawBox(mCanvas, field, kLegendEdge);
    DrawText({at.X + FieldWidth() + kLegendSpace, at.Y + (HeightOf(row) - mRow) / 2}, row.Text, mFont);
  }

  const LayerData* mData = nullptr;
  std::optional<ValueRange> mRange;
  std::string mName;
  bool mHasBar = mRange.has_value();
  std::vector<ColorRow> mRows;
};

}  // namespace

std::unique_ptr<LegendDrawing> MakeValueLegend(const Legend& legend, const Layer* layer,
                                               const std::optional<ValueRange>& range, Canvas& canvas,
                                               Lettering& lettering) {
  return std::make_unique<ValueDrawing>(legend, layer, range, canvas, lettering);
}

}  // namespace orx::maplibrary
