// The property pages of a dialog, one on each of its tabs.
#pragma once

#include <memory>
#include <vector>

#include "dialogframe/DialogForm.h"
#include "forms/TabControl.h"
#include "hostobjects/PropertyPage.h"

namespace orx {

/// One page in the design of a dialog.
struct PageDesign {
  PageKind Kind;
  const char* Name;
  const char* TabCaption;
  /// Sets the form up to answer the page's requests; null leaves them unanswered.
  void (*Answer)(PropertyPage& page, DialogForm& form) = nullptr;
  /// Whether a change on this page counts in the result of the dialog.
  bool IsResult = true;
};

/// The four pages of a layer, for the dialogs that show all of them. Labels do not count in their result.
const std::vector<PageDesign>& LayerPages();

/// Created when the dialog is loaded. Calls go to all pages in the order of their tabs; an error travels, and the
/// pages after it are not called. Neither are those after one in which the form was retired.
class PropertyPages {
 public:
  /// Makes the pages on the tabs; the form answers their requests and must outlive them. Throws what RequirePage
  /// throws.
  PropertyPages(IPageFactory& factory, const std::vector<PageDesign>& designs, TabControl& tabs, DialogForm& form);

  /// The page of that kind; throws std::out_of_range if the dialog has none.
  PropertyPage& Of(PageKind kind);
  template <class Action>
  void ForEach(Action&& action) {
    for (const Hosted& hosted : mPages)
      if (!mForm.IsRetired()) action(*hosted.Page);
  }

  void Client(HostObject* value);
  void Language(ILanguage* value);
  void IsDirty(bool value);
  void RefreshContents();
  /// True if any page, or any that counts in the result, has changed something. All of them are asked.
  bool IsAnyDirty() const;
  bool IsResultDirty() const;
  /// Tells each page whether its tab is the selected one.
  void Select(int tab);

 private:
  struct Hosted {
    PageKind Kind;
    bool IsResult;
    std::unique_ptr<PropertyPage> Page;
  };

  bool IsDirtyAmong(bool results) const;

  DialogForm& mForm;
  std::vector<Hosted> mPages;
};

}  // namespace orx
