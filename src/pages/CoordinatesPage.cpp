#include "pages/CoordinatesPage.h"

#include <cmath>
#include <cstdio>

#include "forms/Form.h"
#include "hostobjects/EdgeOrder.h"

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
}

IExtent* CoordinatesPage::Extent() const {
  if (IExtent* const extent = QueryKind<IExtent>(Client())) return extent;
  IMap* const map = QueryKind<IMap>(Client());
  return map ? map->Extent() : nullptr;
}

void CoordinatesPage::ShowValues() {
  PageBase::ShowValues();
  mHorizontal.Restart();
  mVertical.Restart();
  ShowSizes();
  cmdGeoreference.Visible(GeoreferenceRequested.HasHandler() && QueryKind<IMap>(Client()));
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
    WriteInOrder(
        lower.Value() > lower.HostValue(), [&] { List().Write(lower); }, [&] { List().Write(upper); });
  };
  write(mLeft, mRight);
  write(mBottom, mTop);
}

void CoordinatesPage::cmdGeoreference_Click() {
  GeoreferenceRequest request{Client()};
  GeoreferenceRequested.Raise(request);
  if (!request.Changed) return;
  IsDirty(true);
  ReadClient();
  WhileBusy([this] { ShowValues(); });
}

}  // namespace orx::pages
