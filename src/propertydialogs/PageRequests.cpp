#include "propertydialogs/PageRequests.h"

#include <array>
#include <optional>

#include "hostobjects/ErrorTrap.h"
#include "hostobjects/IMap.h"
#include "openers/DataFile.h"
#include "openers/SecondaryDialogs.h"

namespace orx {
namespace {

void AnswerBrowse(DialogForm& form, BrowseRequest& request) {
  modMain::BrowsedFile file{request.FileName};
  modMain::BrowseDataFile(form.OwnerDesktop(), form.NativeHandle(), form.Language(), file);
  request.FileName = file.FileName;
  request.Cancel = file.Cancel;
}

/// The edges of a map; none if they cannot be read.
std::optional<std::array<double, 4>> EdgesOf(HostObject* object) {
  std::optional<std::array<double, 4>> edges;
  ErrorTrap trap;
  trap.Step([&] {
    IMap* const map = QueryKind<IMap>(object);
    if (const IExtent* const extent = map ? map->Extent() : nullptr)
      edges = {extent->Left(), extent->Right(), extent->Bottom(), extent->Top()};
  });
  return edges;
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

void AnswerCharacterRequest(PropertyPage& page, DialogForm& form) {
  page.CharacterRequested = [&form](CharacterRequest& request) {
    modMain::ShowCharacterDialog(form.OwnerDesktop(), request, form.Language(), {&form, 0});
  };
}

void AnswerGeoreferenceRequest(PropertyPage& page, DialogForm& form) {
  page.GeoreferenceRequested = [&form](GeoreferenceRequest& request) {
    // The routine returns true for a cancelled dialog as well, so the edges have to be compared.
    const auto before = EdgesOf(request.Map);
    modMain::ShowGeoreferenceDialog(form.OwnerDesktop(), request.Map, form.Language(), {&form, 0});
    request.Changed = EdgesOf(request.Map) != before;
  };
}

}  // namespace orx
