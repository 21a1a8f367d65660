#include "propertydialogs/PageHostForm.h"

#include "hostobjects/RunTimeError.h"

namespace orx {

PageHostForm::PageHostForm(Desktop& desktop, IPageFactory& pages, const PropertyDesign& design,
                           const HostedPageDesign& page)
    : PropertyDialog(desktop, design), mPages(pages), mPageDesign(page) {
}

void PageHostForm::RegisterClient(HostObject* client, const std::string& registryKey) {
  RegistryKey(registryKey);
  Hold(client);
  Page().Client(client);
}

PropertyPage& PageHostForm::Page() {
  Load();
  if (!mPage) throw RunTimeError(kErrorNotLoaded, Caption() + ": the property page is missing.");
  return *mPage;
}

void PageHostForm::Form_Load() {
  const Size size = ssTab.PageSize();
  mPage = RequirePage(mPages, mPageDesign.Kind, {ssTab.Page(0), mPageDesign.Name, {0, 0, size.Width, size.Height}});
  AnswerRequests(*mPage);
  Position();
  TakeLanguage();
  mPage->Language(Language());
  Translate();
}

void PageHostForm::cmdApply_Click() {
  OwnerDesktop().Pointer(Pointer::Hourglass);
  Page().ApplyChanges();
  if (CallBack()) CallBack()->ApplyNotify(IsDirty());
  OwnerDesktop().Pointer(Pointer::Default);
}

void PageHostForm::cmdOK_Click() {
  OwnerDesktop().Pointer(Pointer::Hourglass);
  Page().SaveChanges();
  if (CallBack()) CallBack()->OKNotify(IsDirty());
  Close(false);
  OwnerDesktop().Pointer(Pointer::Default);
}

void PageHostForm::cmdCancel_Click() {
  Page().DiscardChanges();
  if (CallBack()) CallBack()->CancelNotify(IsDirty());
  Close(true);
}

void PageHostForm::Form_Unload() {
  mPage.reset();
  PropertyDialog::Form_Unload();
}

}  // namespace orx
