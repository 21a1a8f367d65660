#include "forms/TabControl.h"

#include "forms/Form.h"

namespace orx {
namespace {

Design StripDesign(Design design, std::size_t tabs) {
  design.TabStop = design.TabStop && tabs > 1;
  return design;
}

}  // namespace

TabPage::TabPage(TabControl& owner, int index)
    : Panel(owner, owner.Name() + "Page" + std::to_string(index),
            {.Place = {TabControl::kBorder, TabControl::kStrip, owner.PageSize().Width, owner.PageSize().Height}}),
      mOwner(owner),
      mIndex(index) {
}

bool TabPage::ShowsChildren() const {
  return mOwner.Tab() == mIndex;
}

TabControl::TabControl(Container& parent, std::string name, Design design, std::vector<std::string> tabCaptions)
    : Control(parent, std::move(name), StripDesign(std::move(design), tabCaptions.size())),
      mCaptions(std::move(tabCaptions)) {
  for (int tab = 0; tab < TabCount(); ++tab) mPages.push_back(std::make_unique<TabPage>(*this, tab));
}

void TabControl::Placed() {
  for (const std::unique_ptr<TabPage>& page : mPages)
    page->Place({kBorder, kStrip, PageSize().Width, PageSize().Height});
}

Size TabControl::PageSize() const {
  return {Place().Width - 2 * kBorder, Place().Height - kStrip - kBorder};
}

void TabControl::TabCaption(int tab, const std::string& value) {
  mCaptions.at(static_cast<std::size_t>(tab)) = value;
  Changed(Aspect::Items);
}

void TabControl::Tab(int tab) {
  static_cast<void>(mPages.at(static_cast<std::size_t>(tab)));
  if (tab == mTab) return;
  const int before = mTab;
  mTab = tab;
  Changed(Aspect::Value);
  Click.Raise(before);
}

void TabControl::UserSelect(int tab) {
  OwnerForm().UserAct([&] {
    // The native strip has already switched; it must show the tab that the control ends up with.
    Changed(Aspect::Value);
    if (OwnerForm().MoveFocus(*this)) Tab(tab);
  });
}

}  // namespace orx
