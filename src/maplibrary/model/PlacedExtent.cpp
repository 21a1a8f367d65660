#include "maplibrary/model/PlacedExtent.h"

#include "maplibrary/model/Errors.h"

namespace orx::maplibrary {

void PlacedExtent::Place(const GroundRect& place) {
  Left(place.Left);
  Right(place.Right);
  Bottom(place.Bottom);
  Top(place.Top);
}

void PlacedExtent::SetSide(const char* name, double GroundRect::*side, double value) {
  RequireFinite(name, value);
  GroundRect place = Current();
  if (place.*side == value) return;
  if (!mPlace) BeforePlacing();
  place.*side = value;
  mPlace = place;
}

}  // namespace orx::maplibrary
