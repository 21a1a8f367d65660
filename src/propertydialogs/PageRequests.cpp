#include "propertydialogs/PageRequests.h"

#include "service/modMainDialogs.h"

namespace orx {
namespace {

void AnswerBrowse(DialogForm& form, BrowseRequest& request) {
  modMain::BrowsedFile file{request.FileName};
  const std::uintptr_t handle = form.Window() ? form.Window()->NativeHandle() : 0;
  modMain::BrowseDataFile(form.OwnerDesktop(), handle, form.Language(), file);
  request.FileName = file.FileName;
  request.Cancel = file.Cancel;
}

using DataDialog = bool (*)(Desktop&, HostObject*, bool&, ILanguage*);

void Answer(Event<DataRequest&>& event, DialogForm& form, DataDialog show) {
  event = [&form, show](DataRequest& request) {
    show(form.OwnerDesktop(), request.Data, request.Changed, form.Language());
  };
}

}  // namespace

void AnswerDataRequests(PropertyPage& page, DialogForm& form) {
  page.BrowseRequested = [&form](BrowseRequest& request) { AnswerBrowse(form, request); };
  page.ClassifyRequested = [&form](ClassifyRequest& request) {
    modMain::ShowClassifyDialog(form.OwnerDesktop(), {request.Data, request.Minimum, request.Maximum, request.Flags},
                                request.Changed, form.Language());
  };
  Answer(page.OptionsRequested, form, modMain::ShowDataOptionsDialog);
  Answer(page.ShadeRequested, form, modMain::ShowShadeDialog);
  Answer(page.IsolineRequested, form, modMain::ShowIsolineDialog);
  page.DataStyleRequested = [&form] { modMain::ShowDataStyleNotice(form.OwnerDesktop()); };
  page.ColorsRequested = [&form](ILanguage* language) {
    modMain::ShowColorsDialog(form.OwnerDesktop(), language ? language : form.Language(), {&form, 0});
  };
}

}  // namespace orx
