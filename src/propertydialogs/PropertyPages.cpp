#include "propertydialogs/PropertyPages.h"

#include <stdexcept>

#include "propertydialogs/PageRequests.h"

namespace orx {

const std::vector<PageDesign>& LayerPages() {
  static const std::vector<PageDesign> kPages{
      {PageKind::Properties, "Properties1", "Properties", AnswerCharacterRequest},
      {.Kind = PageKind::LabelProperties, .Name = "LabelProperties1", .TabCaption = "Label", .IsResult = false},
      {PageKind::DataProperties, "DataProperties1", "Data", AnswerDataRequests},
      {PageKind::Coordinates, "Coordinates1", "Coordinates", AnswerGeoreferenceRequest}};
  return kPages;
}

PropertyPages::PropertyPages(IPageFactory& factory, const std::vector<PageDesign>& designs, TabControl& tabs,
                             DialogForm& form)
    : mForm(form) {
  const Size size = tabs.PageSize();
  for (const PageDesign& design : designs) {
    if (form.IsRetired()) return;
    TabPage& tab = tabs.Page(static_cast<int>(mPages.size()));
    mPages.push_back({design.Kind, design.IsResult,
                      RequirePage(factory, design.Kind, {tab, design.Name, {0, 0, size.Width, size.Height}})});
    if (design.Answer) design.Answer(*mPages.back().Page, form);
  }
}

PropertyPage& PropertyPages::Of(PageKind kind) {
  for (const Hosted& hosted : mPages)
    if (hosted.Kind == kind) return *hosted.Page;
  throw std::out_of_range(std::string("The dialog has no page \"") + PageKindName(kind) + '"');
}

void PropertyPages::Client(HostObject* value) {
  ForEach([&](PropertyPage& page) { page.Client(value); });
}

void PropertyPages::Language(ILanguage* value) {
  ForEach([&](PropertyPage& page) { page.Language(value); });
}

void PropertyPages::IsDirty(bool value) {
  ForEach([&](PropertyPage& page) { page.IsDirty(value); });
}

void PropertyPages::RefreshContents() {
  ForEach([](PropertyPage& page) { page.RefreshContents(); });
}

bool PropertyPages::IsDirtyAmong(bool results) const {
  bool isDirty = false;
  for (const Hosted& hosted : mPages)
    if (hosted.IsResult == results && !mForm.IsRetired() && hosted.Page->IsDirty()) isDirty = true;
  return isDirty;
}

bool PropertyPages::IsAnyDirty() const {
  const bool isResult = IsResultDirty();
  return IsDirtyAmong(false) || isResult;
}

bool PropertyPages::IsResultDirty() const {
  return IsDirtyAmong(true);
}

void PropertyPages::Select(int tab) {
  int each = 0;
  ForEach([&](PropertyPage& page) { page.Selected(each++ == tab); });
}

}  // namespace orx
