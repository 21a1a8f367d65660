#include "pages/CoordinatesPage.h"

#include <cmath>
#include <cstdio>

#include "forms/Form.h"
#include "hostobjects/EdgeOrder.h"
#include "hostobjects/ErrorTrap.h"

namespace orx::pages {
namespace {

/// A difference of two edges carries their rounding errors in its last digits; people need not read them.
double Readable(double size) {
  char text[32];
  std::snprintf(text, sizeof text, "%.12g", size);
  return numbers::ToDouble(text).value_or(size);
}

}  // namespace

CoordinatesPage::CoordinatesPage(const PageSite& site) : PageBase(site) {
  mHorizontal.Changed = [this] { ShowSizes(); };
  mVertical.Changed = [this] { ShowSizes(); };
  cmdGeoreference.Click = [this] { cmdGeoreference_Click(); };
  Follow(txtWidth, {&mLeft, &mRight});
  Follow(txtHeight, {&mBottom, &mTop});
}

IExtent* CoordinatesPage::Extent() const {
  if (IExtent* const extent = As<IExtent>(Client())) return extent;
  IMap* const map = As<IMap>(Client());
  return map ? map->Extent() : nullptr;
}

void CoordinatesPage::ShowValues() {
  PageBase::ShowValues();
  mHorizontal.Restart();
  mVertical.Restart();
  ShowSizes();
  bool isMap = false;
  ErrorTrap().Step([&] { isMap = As<IMap>(Client()) != nullptr; });
  cmdGeoreference.Visible(GeoreferenceRequested.HasHandler() && isMap);
}

void CoordinatesPage::ShowSizes() {
  const numbers::Separators separators = OwnerForm().OwnerDesktop().Separators();
  const auto show = [&](TextBox& box, const NumberSpan& span, double size) {
    const bool isSize = span.IsInOrder() && std::isfinite(size);
    box.Text(isSize ? numbers::ShortestText(Readable(size), separators) : std::string());
  };
  show(txtWidth, mHorizontal, mRight.Value() - mLeft.Value());
  show(txtHeight, mVertical, mTop.Value() - mBottom.Value());
}

void CoordinatesPage::WriteClient() {
  const auto write = [this](CheckedNumberSetting& lower, CheckedNumberSetting& upper) {
    const auto writeUnlessPast = [&](CheckedNumberSetting& edge, const CheckedNumberSetting& other) {
      // An edge that the client has refused stays where it was, and must not be passed.
      const bool isHeldUp = other.Fault() && other.IsRead() &&
                            !(&edge == &lower ? edge.Value() < other.HostValue() : edge.Value() > other.HostValue());
      if (isHeldUp && edge.Differs()) return edge.Fault(other.Fault());
      List().Write(edge);
    };
    WriteInOrder(
        lower.Value() > lower.HostValue(), [&] { writeUnlessPast(lower, upper); },
        [&] { writeUnlessPast(upper, lower); });
  };
  write(mLeft, mRight);
  write(mBottom, mTop);
}

void CoordinatesPage::cmdGeoreference_Click() {
  GeoreferenceRequest request{Client()};
  GeoreferenceRequested.Raise(request);
  if (!request.Changed) return;
  IsDirty(true);
  RefreshContents();
}

}  // namespace orx::pages
