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

/// Where a dialog is to be shown, and in which language.
struct Stage {
  orx::Desktop& Desktop;
  ILanguage* Language;
  OwnerWindow Owner = {};
};

/// Shows a modal dialog. `give` hands over what to edit; `take` collects the outcome and learns whether the dialog was
/// shown and closed without an error. Returns true if nothing failed.
template <class Dialog, class Give, class Take>
bool Run(const Stage& stage, Give&& give, Take&& take) noexcept {
  ErrorTrap trap;
  std::shared_ptr<Dialog> form;
  trap.Step([&] { form = std::make_shared<Dialog>(stage.Desktop); });
  if (!form) return false;
  trap.Step([&] { form->Language(stage.Language); });
  trap.Step([&] { give(*form); });
  bool wasShown = false;
  trap.Step([&] {
    form->Show(ShowMode::Modal, stage.Owner);
    wasShown = true;
  });
  take(*form, wasShown, trap);
  const bool isDone = !trap.IsPending();
  trap.Step([&] { form->Unload(); });
  return isDone;
}

/// Shows a dialog for a data object, without owner.
template <class Dialog, class Give>
bool RunForData(const Stage& stage, HostObject* data, bool& changed, Give&& give) noexcept {
  if (!data) {
    ErrorTrap trap;
    trap.Step([&] { stage.Desktop.Beep(); });
    return false;
  }
  bool isDirty = false;
  Run<Dialog>(stage, give, [&](const Dialog& form, bool, ErrorTrap&) { changed = isDirty = form.IsDirty(); });
  return isDirty;
}

/// The map's current extent, which is fetched anew for each value.
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
    // The opposite edge is in the way only if the map has refused to move it.
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
  return RunForData<frmDataClassify>({desktop, language}, task.Data, isDirty, [&](frmDataClassify& form) {
    form.SetData(task.Data, task.Minimum, task.Maximum, task.Flags, task.Text);
  });
}

bool ShowDataOptionsDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept {
  return RunForData<frmDataOptions>({desktop, language}, data, changed, [&](frmDataOptions& form) { form.Data(data); });
}

bool ShowShadeDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept {
  return RunForData<frmDataShade>({desktop, language}, data, changed,
                                  [&](frmDataShade& form) { form.ShadeObject(data); });
}

bool ShowIsolineDialog(Desktop& desktop, HostObject* data, bool& changed, ILanguage* language) noexcept {
  return RunForData<frmDataIsoline>({desktop, language}, data, changed,
                                    [&](frmDataIsoline& form) { form.IsolineObject(data); });
}

void ShowDataStyleNotice(Desktop& desktop) {
  desktop.ShowMessage({"Sorry, Data Style not yet supported", "Data Style", MessageIcon::Information});
}

bool ShowColorsDialog(Desktop& desktop, ILanguage* language, OwnerWindow owner) noexcept {
  return Run<frmManageColors>(
      {desktop, language, owner}, [](frmManageColors&) {}, [](const frmManageColors&, bool, ErrorTrap&) {});
}

bool ShowCharacterDialog(Desktop& desktop, CharacterRequest& choice, ILanguage* language, OwnerWindow owner) noexcept {
  const auto give = [&](frmTrueType& form) {
    form.SelFont(choice.FontName);
    form.SelCharacter(choice.Character);
    form.SelRotation(numbers::RoundToLong(choice.Rotation));
  };
  const auto take = [&](const frmTrueType& form, bool, ErrorTrap& trap) {
    trap.Step([&] {
      const bool isSame = form.SelFont() == choice.FontName && form.SelCharacter() == choice.Character &&
                          form.SelRotation() == choice.Rotation;
      if (!isSame) choice = {form.SelFont(), form.SelCharacter(), static_cast<double>(form.SelRotation()), true};
    });
  };
  return Run<frmTrueType>({desktop, language, owner}, give, take);
}

bool ShowGeoreferenceDialog(Desktop& desktop, HostObject* map, ILanguage* language, OwnerWindow owner) noexcept {
  EdgePair across{};
  EdgePair up{};
  ErrorTrap reading;
  reading.Step([&] { across.Lower = ExtentOf(map).Left(); });
  reading.Step([&] { across.Upper = ExtentOf(map).Right(); });
  reading.Step([&] { up.Lower = ExtentOf(map).Bottom(); });
  reading.Step([&] { up.Upper = ExtentOf(map).Top(); });
  // An edge that could not be read must not be overwritten with something else.
  const double ratio = (across.Upper - across.Lower) / (up.Upper - up.Lower);
  if (reading.IsPending() || !std::isfinite(ratio) || ratio == 0) {
    reading.Step([&] { desktop.Beep(); });
    return false;
  }
  const auto give = [&](frmGeoreference& form) {
    form.LeftEdge(across.Lower);
    form.RightEdge(across.Upper);
    form.BottomEdge(up.Lower);
    form.TopEdge(up.Upper);
  };
  const auto take = [&](const frmGeoreference& form, bool wasShown, ErrorTrap& trap) {
    if (!wasShown || form.Canceled()) return;
    WriteEdges(trap, map, across, {form.LeftEdge(), form.RightEdge()}, &IExtent::Left, &IExtent::Right);
    WriteEdges(trap, map, up, {form.BottomEdge(), form.TopEdge()}, &IExtent::Bottom, &IExtent::Top);
  };
  return Run<frmGeoreference>({desktop, language, owner}, give, take);
}

}  // namespace orx::modMain
