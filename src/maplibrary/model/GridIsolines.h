// The contour lines of a grid layer: their settings.
#pragma once

#include "hostobjects/IGridSettings.h"

namespace orx::maplibrary {

/// Throws RunTimeError for unknown pen styles and widths that are not from 0 to 100 pixels.
class LineStyle final : public ILineStyle {
 public:
  std::int32_t Style() const override { return mStyle; }
  void Style(std::int32_t value) override;
  std::int32_t Width() const override { return mWidth; }
  void Width(std::int32_t value) override;
  orx::Color Color() const override { return mColor; }
  void Color(orx::Color value) override { mColor = value; }

  static constexpr std::int32_t kInvisible = 5;

 private:
  std::int32_t mStyle = kInvisible;
  std::int32_t mWidth = 1;
  orx::Color mColor{120, 72, 32};
};

/// Throws RunTimeError for sizes that are not from 0 to 1000 points.
class LabelFont final : public ILabelFont {
 public:
  std::string Name() const override { return mName; }
  void Name(const std::string& value) override { mName = value; }
  float Size() const override { return mSize; }
  void Size(float value) override;
  bool Bold() const override { return mBold; }
  void Bold(bool value) override { mBold = value; }
  bool Italic() const override { return mItalic; }
  void Italic(bool value) override { mItalic = value; }
  bool Underline() const override { return mUnderline; }
  void Underline(bool value) override { mUnderline = value; }
  bool Strikethrough() const override { return mStrikethrough; }
  void Strikethrough(bool value) override { mStrikethrough = value; }
  orx::Color Color() const override { return mColor; }
  void Color(orx::Color value) override { mColor = value; }

  /// As drawings name it.
  Font Face() const;

 private:
  std::string mName = "Arial";
  float mSize = 8;
  bool mBold = false;
  bool mItalic = false;
  bool mUnderline = false;
  bool mStrikethrough = false;
  orx::Color mColor{80, 48, 24};
};

/// Invisible at first. Setters throw RunTimeError outside the ranges of the interface.
class GridIsolines final : public IIsolines {
 public:
  bool UseRangeColor() const override { return mUseRangeColor; }
  void UseRangeColor(bool value) override { mUseRangeColor = value; }
  bool UseRangeWidth() const override { return mUseRangeWidth; }
  void UseRangeWidth(bool value) override { mUseRangeWidth = value; }
  std::int32_t MaxWidth() const override { return mMaxWidth; }
  void MaxWidth(std::int32_t value) override;
  double LabelDistance() const override { return mDistance; }
  void LabelDistance(double value) override;
  bool LabelUseRangeColor() const override { return mLabelUseRangeColor; }
  void LabelUseRangeColor(bool value) override { mLabelUseRangeColor = value; }
  bool LabelVisible() const override { return mLabelVisible; }
  void LabelVisible(bool value) override { mLabelVisible = value; }
  std::int32_t RangeStep() const override { return mStep; }
  void RangeStep(std::int32_t value) override;
  bool LabelAllIsolines() const override { return mLabelAll; }
  void LabelAllIsolines(bool value) override { mLabelAll = value; }
  LineStyle& Line() override { return mLine; }
  maplibrary::LabelFont& LabelFont() override { return mFont; }
  const LineStyle& Pen() const { return mLine; }
  const maplibrary::LabelFont& Lettering() const { return mFont; }

  /// Nothing would be drawn.
  bool IsInvisible() const { return mLine.Style() == LineStyle::kInvisible && !mLabelVisible; }

 private:
  bool mUseRangeColor = false;
  bool mUseRangeWidth = false;
  std::int32_t mMaxWidth = 3;
  double mDistance = 0.25;
  bool mLabelUseRangeColor = false;
  bool mLabelVisible = false;
  std::int32_t mStep = 1;
  bool mLabelAll = false;
  LineStyle mLine;
  maplibrary::LabelFont mFont;
};

}  // namespace orx::maplibrary
