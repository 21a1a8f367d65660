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
  modMain::BrowseDataFile(form.OwnerDesktop(), form.NativeHandle(), form.Language(), request);
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

/// Answers a request of a page. The form and its pages stay until that is done, whatever happens to the form while the
/// other dialog is open.
template <class... Arguments, class Work>
void Answer(Event<Arguments...>& event, DialogForm& form, Work work) {
  event = [&form, work](Arguments... arguments) {
    const Form::Act act(form);
    if (!form.IsRetired()) work(form, arguments...);
  };
}

using DataDialog = bool (*)(Desktop&, HostObject*, bool&, ILanguage*);

void AnswerWith(DataDialog show, Event<DataRequest&>& event, DialogForm& form) {
  Answer(event, form, [show](DialogForm& asked, DataRequest& request) {
    show(asked.OwnerDesktop(), request.Data, request.Changed, asked.Language());
  });
}

void AnswerClassify(DialogForm& form, ClassifyRequest& request) {
  modMain::ShowClassifyDialog(form.OwnerDesktop(), {request.Data, request.Minimum, request.Maximum, request.Flags},
                              request.Changed, form.Language());
}

void AnswerColors(DialogForm& form, ILanguage* language) {
  modMain::ShowColorsDialog(form.OwnerDesktop(), language ? language : form.Language(), {&form, 0});
}

void AnswerCharacter(DialogForm& form, CharacterRequest& request) {
  modMain::ShowCharacterDialog(form.OwnerDesktop(), request, form.Language(), {&form, 0});
}

void AnswerGeoreference(DialogForm& form, GeoreferenceRequest& request) {
  // The routine returns true for a cancelled dialog as well, so the edges have to be compared.
  const auto before = EdgesOf(request.Map);
  modMain::ShowGeoreferenceDialog(form.OwnerDesktop(), request.Map, form.Language(), {&form, 0});
  request.Changed = EdgesOf(request.Map) != before;
}

}  // namespace

void AnswerDataRequests(PropertyPage& page, DialogForm& form) {
  Answer(page.BrowseRequested, form, AnswerBrowse);
  Answer(page.ClassifyRequested, form, AnswerClassify);
  AnswerWith(modMain::ShowDataOptionsDialog, page.OptionsRequested, form);
  AnswerWith(modMain::ShowShadeDialog, page.ShadeRequested, form);
  AnswerWith(modMain::ShowIsolineDialog, page.IsolineRequested, form);
  Answer(page.DataStyleRequested, form, [](DialogForm& asked) { modMain::ShowDataStyleNotice(asked.OwnerDesktop()); });
  Answer(page.ColorsRequested, form, AnswerColors);
}

void AnswerCharacterRequest(PropertyPage& page, DialogForm& form) {
  Answer(page.CharacterRequested, form, AnswerCharacter);
}

void AnswerGeoreferenceRequest(PropertyPage& page, DialogForm& form) {
  Answer(page.GeoreferenceRequested, form, AnswerGeoreference);
}

}  // namespace orx
