// An extent that follows what it surrounds until one of its sides is set.
#pragma once

#include <optional>

#include "hostobjects/IMap.h"
#include "maplibrary/files/GroundRect.h"

namespace orx::maplibrary {

/// Setting a side to the value that it has changes nothing. Infinity and NaN throw RunTimeError.
class PlacedExtent : public IExtent {
 public:
  double Left() const override { return Current().Left; }
  void Left(double value) override { SetSide("Left", &GroundRect::Left, value); }
  double Right() const override { return Current().Right; }
  void Right(double value) override { SetSide("Right", &GroundRect::Right, value); }
  double Bottom() const override { return Current().Bottom; }
  void Bottom(double value) override { SetSide("Bottom", &GroundRect::Bottom, value); }
  double Top() const override { return Current().Top; }
  void Top(double value) override { SetSide("Top", &GroundRect::Top, value); }

  GroundRect Current() const { return mPlace.value_or(Natural()); }
  /// Whether a side was set.
  bool IsPlaced() const { return mPlace.has_value(); }
  /// Sets all four sides.
  void Place(const GroundRect& place);
  /// Follows again what it surrounds.
  void Unplace() { mPlace.reset(); }

 protected:
  /// Where the extent lies while no side is set.
  virtual GroundRect Natural() const = 0;
  /// Called before the first side is set.
  virtual void BeforePlacing() {}

 private:
  void SetSide(const char* name, double GroundRect::*side, double value);

  std::optional<GroundRect> mPlace;
};

}  // namespace orx::maplibrary
