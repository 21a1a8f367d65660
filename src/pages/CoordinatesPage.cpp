#include "pages/CoordinatesPage.h"

#include <cmath>
#include <cstdio>

#include "forms/Form.h"
#include "hostobjects/EdgeOrder.h"
#include "hostobjects/IMap.h"

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
  for (NumberField* field : {&mLeft, &mRight, &mBottom, &mTop}) Watch(*field);
  mHorizontal.Changed = [this] { ShowSizes(); };
  mVertical.Changed = [this] { ShowSizes(); };
  cmdGeoreference.Click = [this] { cmdGeoreference_Click(); };
}

IExtent* CoordinatesPage::Extent() const {
  if (IExtent* const extent = QueryKind<IExtent>(Client())) return extent;
  IMap* const map = QueryKind<IMap>(Client());
  return map ? map->Extent() : nullptr;
}

void CoordinatesPage::ReadClient() {
  const IExtent& extent = *Extent();
  mRead = Edges{extent.Left(), extent.Right(), extent.Bottom(), extent.Top()};
}

void CoordinatesPage::ShowValues() {
  if (mRead) {
    mHorizontal.Values(mRead->Left, mRead->Right);
    mVertical.Values(mRead->Bottom, mRead->Top);
  } else {
    for (NumberField* field : {&mLeft, &mRight, &mBottom, &mTop}) field->Clear();
  }
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
  IExtent& extent = *Extent();
  Edges& read = *mRead;
  const auto left = [&] { Write(read.Left, mLeft.Value(), [&](double value) { extent.Left(value); }); };
  const auto right = [&] { Write(read.Right, mRight.Value(), [&](double value) { extent.Right(value); }); };
  const auto bottom = [&] { Write(read.Bottom, mBottom.Value(), [&](double value) { extent.Bottom(value); }); };
  const auto top = [&] { Write(read.Top, mTop.Value(), [&](double value) { extent.Top(value); }); };
  WriteInOrder(mLeft.Value() > read.Left, left, right);
  WriteInOrder(mBottom.Value() > read.Bottom, bottom, top);
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
