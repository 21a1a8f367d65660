#include "openers/SecondaryDialogs.h"

#include <cmath>

#include "datadialogs/frmDataClassify.h"
#include "datadialogs/frmDataOptions.h"
#include "datadialogs/frmManageColors.h"
#include "griddialogs/frmDataIsoline.h"
#include "griddialogs/frmDataShade.h"
#include "hostobjects/EdgeOrder.h"
#include "hostobjects/ErrorTrap.h"
#include "hostobjects/IMap.h"
#include "hostobjects/RunTimeError.h"
#include "numbers/Numbers.h"
#include "pickers/frmGeoreference.h"
#include "pickers/frmTrueType.h"

namespace orx::modMain {
namespace {

/// Shows a dialog for a data object, which `give` hands over to it.
template <class DataForm, class Give>
bool ShowDataDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language, Give&& give,
                    bool (DataForm::*isChanged)() const) noexcept {
  ErrorTrap trap;
  if (!data) {
    trap.Step([&] { desktop.Beep(); });
    return false;
  }
  std::shared_ptr<DataForm> form;
  trap.Step([&] { form = std::make_shared<DataForm>(desktop); });
  if (!form) return false;
  trap.Step([&] { form->Language(language); });
  trap.Step([&] { give(*form); });
  trap.Step([&] { form->Show(); });
  bool isDirty = false;
  trap.Step([&] { isDirty = ((*form).*isChanged)(); });
  changed = isDirty;
  trap.Step([&] { form->Unload(); });
  return isDirty;
}

/// The extent of the map as it is now, asked for with each value.
IExtent& ExtentOf(HostObject* map) {
  IMap* const asked = QueryKind<IMap>(map);
  IExtent* const extent = asked ? asked->Extent() : nullptr;
  if (!extent) throw RunTimeError(kErrorNotLoaded, "The map has no extent.");
  return *extent;
}

/// Two opposite edges of an extent.
struct EdgePair {
  double Lower;
  double Upper;
  bool IsInOrder() const { return Lower < Upper; }
};

using EdgeSetter = void (IExtent::*)(double);

void WriteEdges(ErrorTrap& trap, HostObject* map, EdgePair held, EdgePair now, EdgeSetter setLower,
                EdgeSetter setUpper) {
  const bool keepsOrder = held.IsInOrder() && now.IsInOrder();
  const auto write = [&](double EdgePair::*edge, EdgeSetter set) {
    EdgePair next = held;
    next.*edge = now.*edge;
    // The opposite edge is in the way only when the map has refused to move it.
    if (keepsOrder && !next.IsInOrder()) return;
    trap.Step([&] {
      (ExtentOf(map).*set)(now.*edge);
      held = next;
    });
  };
  WriteInOrder(
      now.Lower > held.Lower, [&] { write(&EdgePair::Lower, setLower); }, [&] { write(&EdgePair::Upper, setUpper); });
}

}  // namespace

bool ShowClassifyDialog(Desktop& desktop, const ClassifyTask& task, bool& isDirty, ILanguage* language) noexcept {
  const auto give = [&](frmDataClassify& form) {
    form.SetData(task.Data, task.Minimum, task.Maximum, task.Flags, task.Text);
  };
  return ShowDataDialog(desktop, task.Data, isDirty, language, give, &frmDataClassify::IsDirty);
}

bool ShowDataOptionsDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept {
  const auto give = [&](frmDataOptions& form) { form.Data(data); };
  return ShowDataDialog(desktop, data, changed, language, give, &frmDataOptions::IsDirty);
}

bool ShowShadeDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept {
  const auto give = [&](frmDataShade& form) { form.ShadeObject(data); };
  return ShowDataDialog(desktop, data, changed, language, give, &frmDataShade::Changed);
}

bool ShowIsolineDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept {
  const auto give = [&](frmDataIsoline& form) { form.IsolineObject(data); };
  return ShowDataDialog(desktop, data, changed, language, give, &frmDataIsoline::Changed);
}

void ShowDataStyleNotice(Desktop& desktop) {
  desktop.ShowMessage({"Sorry, Data Style not yet supported", "Data Style", MessageIcon::Information});
}

bool ShowColorsDialog(Desktop& desktop, ILanguage* language, OwnerWindow owner) noexcept {
  ErrorTrap trap;
  std::shared_ptr<frmManageColors> form;
  trap.Step([&] { form = std::make_shared<frmManageColors>(desktop); });
  if (!form) return false;
  trap.Step([&] { form->Language(language); });
  trap.Step([&] { form->Show(ShowMode::Modal, owner); });
  const bool isDone = !trap.IsPending();
  trap.Step([&] { form->Unload(); });
  return isDone;
}

bool ShowCharacterDialog(Desktop& desktop, CharacterRequest& choice, ILanguage* language, OwnerWindow owner) noexcept {
  ErrorTrap trap;
  std::shared_ptr<frmTrueType> form;
  trap.Step([&] { form = std::make_shared<frmTrueType>(desktop); });
  if (!form) return false;
  trap.Step([&] { form->Language(language); });
  trap.Step([&] { form->SelFont(choice.FontName); });
  trap.Step([&] { form->SelCharacter(choice.Character); });
  trap.Step([&] { form->SelRotation(numbers::RoundToLong(choice.Rotation)); });
  trap.Step([&] { form->Show(ShowMode::Modal, owner); });
  trap.Step([&] {
    const bool isSame = form->SelFont() == choice.FontName && form->SelCharacter() == choice.Character &&
                        form->SelRotation() == choice.Rotation;
    if (!isSame) choice = {form->SelFont(), form->SelCharacter(), static_cast<double>(form->SelRotation()), true};
  });
  const bool isDone = !trap.IsPending();
  trap.Step([&] { form->Unload(); });
  return isDone;
}

bool ShowGeoreferenceDialog(Desktop& desktop, HostObject* map, ILanguage* language, OwnerWindow owner) noexcept {
  EdgePair across{};
  EdgePair up{};
  ErrorTrap trap;
  trap.Step([&] { across.Lower = ExtentOf(map).Left(); });
  trap.Step([&] { across.Upper = ExtentOf(map).Right(); });
  trap.Step([&] { up.Lower = ExtentOf(map).Bottom(); });
  trap.Step([&] { up.Upper = ExtentOf(map).Top(); });
  // What cannot be read must not be written back as something else.
  const double ratio = (across.Upper - across.Lower) / (up.Upper - up.Lower);
  if (trap.IsPending() || !std::isfinite(ratio) || ratio == 0) {
    trap.Step([&] { desktop.Beep(); });
    return false;
  }
  std::shared_ptr<frmGeoreference> form;
  trap.Step([&] { form = std::make_shared<frmGeoreference>(desktop); });
  if (!form) return false;
  trap.Step([&] { form->Language(language); });
  form->LeftEdge(across.Lower);
  form->RightEdge(across.Upper);
  form->BottomEdge(up.Lower);
  form->TopEdge(up.Upper);
  bool isConfirmed = false;
  trap.Step([&] {
    form->Show(ShowMode::Modal, owner);
    isConfirmed = !form->Canceled();
  });
  if (isConfirmed) {
    WriteEdges(trap, map, across, {form->LeftEdge(), form->RightEdge()}, &IExtent::Left, &IExtent::Right);
    WriteEdges(trap, map, up, {form->BottomEdge(), form->TopEdge()}, &IExtent::Bottom, &IExtent::Top);
  }
  const bool isDone = !trap.IsPending();
  trap.Step([&] { form->Unload(); });
  return isDone;
}

}  // namespace orx::modMain
