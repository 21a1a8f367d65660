// Where page controls are registered, they serve as the dialogs' property pages in place of the embedded ones.
#pragma once

#include <set>
#include <string>

#include "hostobjects/PropertyPage.h"

namespace orx::com {

/// Makes a page of the control that is registered as "OrvexMapControls." with the name of the kind of page. Where none
/// is registered the embedded page serves.
///
/// It serves as well where a registered control cannot be made: an installation that has gone wrong must not lock the
/// user out of the settings. It is not done silently, since a user who misses the page of the control has to learn why:
/// a message names the control and the reason, once for each control. An error would reach nobody, for the dialogs'
/// service traps it.
class PageControlFactory final : public IPageFactory {
 public:
  /// The embedded factory must outlive this one.
  explicit PageControlFactory(IPageFactory& embedded) : mEmbedded(embedded) {}

  std::unique_ptr<PropertyPage> CreatePage(PageKind kind, const PageSite& site) override;

 private:
  void TellOnce(const PageSite& site, const std::string& progId, const std::string& reason);

  IPageFactory& mEmbedded;
  std::set<std::string> mTold;
};

}  // namespace orx::com
