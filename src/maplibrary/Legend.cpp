#include "maplibrary/Legend.h"

#include "maplibrary/Errors.h"

namespace orx::maplibrary {

void Legend::TextSize(double value) {
  RequireSize("TextSize", value);
  mTextSize = value;
}

}  // namespace orx::maplibrary
