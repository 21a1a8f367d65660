// A legend of the embedded map.
#pragma once

#include <string>

#include "hostobjects/IMap.h"

namespace orx::maplibrary {

/// What a legend explains: the colours of the elevations, or the symbols of the layers.
enum class LegendKind { Elevation, Layers };

class Legend : public ILegend {
 public:
  Legend(LegendKind kind, std::string title, LegendCorner corner)
      : mKind(kind), mTitle(std::move(title)), mCorner(corner) {}

  LegendKind Explains() const { return mKind; }
  std::string Title() const override { return mTitle; }
  void Title(const std::string& value) override { mTitle = value; }
  bool Visible() const override { return mVisible; }
  void Visible(bool value) override { mVisible = value; }
  LegendCorner Corner() const override { return mCorner; }
  void Corner(LegendCorner value) override { mCorner = value; }
  bool Framed() const override { return mFramed; }
  void Framed(bool value) override { mFramed = value; }
  double TextSize() const override { return mTextSize; }
  /// Throws RunTimeError unless the size is from 0 to 1000 points.
  void TextSize(double value) override;

 private:
  LegendKind mKind;
  std::string mTitle;
  bool mVisible = true;
  LegendCorner mCorner;
  bool mFramed = true;
  double mTextSize = 9;
};

}  // namespace orx::maplibrary
