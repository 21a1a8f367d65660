// The property pages of a dialog, one on each of its tabs.
#pragma once

#include <memory>
#include <vector>

#include "dialogframe/DialogForm.h"
#include "forms/TabControl.h"
#include "hostobjects/PropertyPage.h"

namespace orx {

/// A page as its dialog is drawn up with it.
struct PageDesign {
  PageKind Kind;
  const char* Name;
  const char* TabCaption;
  /// Has a form answer the page's requests; null leaves them unanswered.
  void (*Answer)(PropertyPage& page, DialogForm& form) = nullptr;
  /// Whether a change on this page is a change in the result of the dialog.
  bool IsResult = true;
};

/// The pages of a layer, for the dialogs that show all of them. Labels are no part of the result there.
const std::vector<PageDesign>& LayerPages();

/// Made when the dialog is loaded. What is said to all pages is said in the order of their tabs; what a page throws
/// travels, and the pages behind it are not told.
class PropertyPages {
 public:
  /// Makes the pages on the tabs, and has their requests answered by the form, which must outlive them. Throws what
  /// RequirePage throws.
  PropertyPages(IPageFactory& factory, const std::vector<PageDesign>& designs, TabControl& tabs, DialogForm& form);

  /// The page of that kind; throws std::out_of_range where the dialog has none.
  PropertyPage& Of(PageKind kind);
  template <class Action>
  void ForEach(Action&& action) {
    for (const Hosted& hosted : mPages) action(*hosted.Page);
  }

  void Client(HostObject* value);
  void Language(ILanguage* value);
  void IsDirty(bool value);
  void RefreshContents();
  /// True when one of the pages has changed something, of all pages or of those that make up the result; each is asked.
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

  std::vector<Hosted> mPages;
};

}  // namespace orx
