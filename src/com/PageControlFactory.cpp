#include "com/PageControlFactory.h"

#include "com/HostedPage.h"
#include "forms/Container.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx::com {

std::unique_ptr<PropertyPage> PageControlFactory::CreatePage(PageKind kind, const PageSite& site) {
  const std::string progId = std::string("OrvexMapControls.") + PageKindName(kind);
  CLSID control = {};
  if (FAILED(CLSIDFromProgID(Widened(progId).c_str(), &control))) return mEmbedded.CreatePage(kind, site);
  try {
    return std::make_unique<HostedPage>(site, progId, control);
  } catch (const std::exception& error) {
    TellOnce(site, progId, error.what());
  }
  return mEmbedded.CreatePage(kind, site);
}

void PageControlFactory::TellOnce(const PageSite& site, const std::string& progId, const std::string& reason) {
  if (!mTold.insert(progId).second) return;
  Form& form = site.Parent.ContainingForm();
  form.OwnerDesktop().ShowMessage(
      {"The page control " + progId + " cannot be used. " + reason +
           "\n\nThe built-in page is shown instead. Install the control again to have its own.",
       form.Caption(), MessageIcon::Exclamation});
}

}  // namespace orx::com
