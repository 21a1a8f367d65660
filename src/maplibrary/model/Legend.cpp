#include "maplibrary/model/Legend.h"

#include "maplibrary/model/Errors.h"

namespace orx::maplibrary {

void Legend::TextSize(double value) {
  RequireSize("TextSize", value);
  mTextSize = value;
}

}  // namespace orx::maplibrary
