// The four pages of a layer, on the tabs of a dialog that edits all of them at once.
#pragma once

#include <array>
#include <memory>

#include "dialogframe/DialogForm.h"
#include "forms/TabControl.h"
#include "hostobjects/ErrorTrap.h"
#include "hostobjects/PropertyPage.h"

namespace orx {

/// Made when the dialog is loaded. What is said to all pages is said in the order of their tabs; what a page throws
/// travels, and the pages behind it are not told.
class LayerPages {
 public:
  /// The captions of the tabs.
  static constexpr std::array<const char*, 4> kTabCaptions{"Properties", "Label", "Data", "Coordinates"};
  /// The tabs.
  enum Tab { TabProperties, TabLabels, TabData, TabCoordinates };

  /// Makes the pages, and has their requests answered in the language of the form, which must outlive them. Throws what
  /// RequirePage throws.
  LayerPages(IPageFactory& factory, TabControl& tabs, DialogForm& form);

  PropertyPage& Page(Tab tab) { return *mPages.at(static_cast<std::size_t>(tab)); }

  void Client(HostObject* value);
  void Language(ILanguage* value);
  void IsDirty(bool value);
  /// Has each page do one thing: refresh, save, discard, apply. With a trap the other pages do it though one fails.
  using Act = void (PropertyPage::*)();
  void Do(Act act);
  void Do(Act act, ErrorTrap& trap);
  /// True when one of the four pages has changed something; each is asked.
  bool IsAnyDirty() const;
  /// The same without the page of the labels, which dialogs leave out of their result.
  bool IsDirtyBesideLabels() const;
  /// Tells each page whether its tab is the selected one.
  void Select(int tab);

 private:
  bool IsDirtyAt(Tab tab) const { return mPages.at(static_cast<std::size_t>(tab))->IsDirty(); }

  std::array<std::unique_ptr<PropertyPage>, kTabCaptions.size()> mPages;
};

}  // namespace orx
