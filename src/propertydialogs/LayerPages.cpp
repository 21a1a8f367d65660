#include "propertydialogs/LayerPages.h"

#include "propertydialogs/PageRequests.h"

namespace orx {
namespace {

struct PageOfTab {
  PageKind Kind;
  const char* Name;
};

/// In the order of the tabs.
constexpr PageOfTab kPages[] = {{PageKind::Properties, "Properties1"},
                                {PageKind::LabelProperties, "LabelProperties1"},
                                {PageKind::DataProperties, "DataProperties1"},
                                {PageKind::Coordinates, "Coordinates1"}};

}  // namespace

LayerPages::LayerPages(IPageFactory& factory, TabControl& tabs, DialogForm& form) {
  const Size size = tabs.PageSize();
  for (std::size_t i = 0; i < mPages.size(); ++i)
    mPages[i] = RequirePage(factory, kPages[i].Kind,
                            {tabs.Page(static_cast<int>(i)), kPages[i].Name, {0, 0, size.Width, size.Height}});
  AnswerCharacterRequest(Page(TabProperties), form);
  AnswerDataRequests(Page(TabData), form);
  AnswerGeoreferenceRequest(Page(TabCoordinates), form);
}

void LayerPages::Client(HostObject* value) {
  for (const auto& page : mPages) page->Client(value);
}

void LayerPages::Language(ILanguage* value) {
  for (const auto& page : mPages) page->Language(value);
}

void LayerPages::IsDirty(bool value) {
  for (const auto& page : mPages) page->IsDirty(value);
}

void LayerPages::Do(Act act) {
  for (const auto& page : mPages) (page.get()->*act)();
}

void LayerPages::Do(Act act, ErrorTrap& trap) {
  for (const auto& page : mPages) trap.Step([&] { (page.get()->*act)(); });
}

bool LayerPages::IsAnyDirty() const {
  const bool others = IsDirtyBesideLabels();
  return IsDirtyAt(TabLabels) || others;
}

bool LayerPages::IsDirtyBesideLabels() const {
  const bool properties = IsDirtyAt(TabProperties);
  const bool data = IsDirtyAt(TabData);
  const bool coordinates = IsDirtyAt(TabCoordinates);
  return properties || data || coordinates;
}

void LayerPages::Select(int tab) {
  for (std::size_t i = 0; i < mPages.size(); ++i) mPages[i]->Selected(static_cast<int>(i) == tab);
}

}  // namespace orx
