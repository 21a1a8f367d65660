// A tab control: a strip of tabs with one page of controls for each.
#pragma once

#include <memory>
#include <vector>

#include "forms/Container.h"
#include "forms/Control.h"
#include "forms/Panel.h"

namespace orx {

class TabControl;

/// The page behind one tab. Its controls can be seen only while its tab is selected.
class TabPage final : public Panel {
 public:
  /// Made by its tab control.
  TabPage(TabControl& owner, int index);
  bool ShowsChildren() const override;

 private:
  TabControl& mOwner;
  int mIndex;
};

/// Shows one of its pages at a time, the first one at the start.
class TabControl final : public Control, public Container {
 public:
  /// Height of the tab strip and width of the border around a page, in twips.
  static constexpr int kStrip = 390;
  static constexpr int kBorder = 60;

  /// With a single tab there is nothing to switch, so the Tab key does not stop at the strip.
  TabControl(Container& parent, std::string name, Design design, std::vector<std::string> tabCaptions);

  /// The number of tabs, as given when the control was made.
  int TabCount() const { return static_cast<int>(mCaptions.size()); }
  /// The caption of a tab, by index from 0. An index outside the tabs throws std::out_of_range.
  const std::string& TabCaption(int tab) const { return mCaptions.at(static_cast<std::size_t>(tab)); }
  void TabCaption(int tab, const std::string& value);
  /// The page of a tab; its client area starts below the strip and is `PageSize()` twips large.
  TabPage& Page(int tab) { return *mPages.at(static_cast<std::size_t>(tab)); }
  Size PageSize() const;

  /// The index of the selected tab.
  int Tab() const { return mTab; }
  /// Selects a tab and raises Click when it was not selected. Throws std::out_of_range.
  void Tab(int tab);

  /// Raised with the tab that was selected before, when another is selected by the user or by the program.
  Event<int> Click;

  /// For desktops and test users: the user selects a tab.
  void UserSelect(int tab);

  Container* AsContainer() override { return this; }
  Form& ContainingForm() override { return OwnerForm(); }
  Control* ContainerControl() override { return this; }
  void Accept(ControlVisitor& visitor) override;

 protected:
  void Placed() override;

 private:
  std::vector<std::string> mCaptions;
  std::vector<std::unique_ptr<TabPage>> mPages;
  int mTab = 0;
};

}  // namespace orx
