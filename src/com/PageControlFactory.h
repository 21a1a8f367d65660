// Makes property pages of registered page controls, in place of the embedded pages.
#pragma once

#include <set>
#include <string>

#include "hostobjects/PropertyPage.h"

namespace orx::com {

/// Makes a page of the control that is registered as "OrvexMapControls." plus the name of the kind of page. Where none
/// is registered the embedded page is used.
///
/// The embedded page is also used where a registered control cannot be created: a broken installation must not lock
/// users out of their settings. They are told why the control's page is missing: a message names the control and the
/// reason, once for each control. An error would reach nobody, because the dialog service traps it.
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
