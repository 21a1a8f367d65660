#include "tests/com/faults/LateCases.h"

#include "service/CCommonMapDialogs.h"
#include "tests/com/support/Recorder.h"
#include "tests/com/support/ScriptCall.h"

namespace orx::com::test {
namespace {

Variant Handle(HWND window) {
  return Variant(static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(window)));
}

LateOutcome OutcomeOf(ScriptCall& call, HRESULT code) {
  LateOutcome outcome{code, call.Description};
  Variant number;
  if (SUCCEEDED(code) && call.Result.vt != VT_EMPTY &&
      SUCCEEDED(VariantChangeType(number.Out(), &call.Result, 0, VT_I4)))
    outcome.Result = number.lVal;
  return outcome;
}

LateOutcome Done(ScriptCall& call) {
  const HRESULT code = call.Call();
  return OutcomeOf(call, code);
}

LateOutcome DoneFor(ScriptCall& call, HWND owner) {
  return Done(call.Named("OwnerForm", Handle(owner)));
}

using ObjectOf = ComPtr<ScriptObject> LateHost::*;

/// A dialog that needs nothing but its object.
auto Plain(const char* member, ObjectOf object) {
  return [member, object](LateHost& host, HWND owner) {
    ScriptCall call(host.Service.Get(), member);
    return DoneFor(call.Value(Variant((host.*object).Get())), owner);
  };
}

auto Show(ObjectOf object) {
  return [object](LateHost& host, HWND owner) {
    ScriptCall call(host.Service.Get(), "Show");
    return DoneFor(call.Value(Variant((host.*object).Get())).Value(Variant(std::int32_t{0})), owner);
  };
}

LateOutcome SetLanguage(LateHost& host, HWND) {
  ScriptCall call(host.Service.Get(), "Language");
  const HRESULT code = call.Value(Variant(host.Language.Get())).Put(DISPATCH_PROPERTYPUTREF);
  return OutcomeOf(call, code);
}

LateOutcome ShowClassify(LateHost& host, HWND owner) {
  ScriptCall call(host.Service.Get(), "ShowDataClassify");
  call.Value(Variant(host.Data.Get())).Value(Variant(0.0)).Value(Variant(100.0));
  return DoneFor(call.Value(Variant(std::int32_t{kMayChangeClassCount})).Value(Variant(false)), owner);
}

LateOutcome ShowCharacter(LateHost& host, HWND owner) {
  ScriptCall call(host.Service.Get(), "ShowCharacterSelection");
  call.Value(Variant("Arial")).Value(Variant(std::int32_t{65})).Value(Variant(0.0)).Value(Variant(false));
  return DoneFor(call, owner);
}

LateOutcome ShowList(LateHost& host, HWND) {
  Variant entries = ArrayOfTexts({"one", "two"}).MoveToVariant(VT_BSTR);
  Variant selected;
  ScriptCall call(host.Service.Get(), "ShowListSelection");
  call.Variable(entries).Value(Variant(false)).Value(Variant(std::int32_t{1})).Value(Variant("List"));
  return Done(call.Value(Variant(false)).Value(Variant("")).Variable(selected));
}

auto Choose(const char* member) {
  return [member](LateHost& host, HWND owner) {
    Variant files;
    ScriptCall call(host.Service.Get(), member);
    return Done(call.Value(Handle(owner)).Value(Variant(true)).Variable(files));
  };
}

auto AskFor(const char* member) {
  return [member](LateHost& host, HWND) {
    Variant found("");
    Variant cancelAll(false);
    ScriptCall call(host.Service.Get(), member);
    return Done(call.Value(Variant("C:\\gone\\a.shp")).Variable(found).Variable(cancelAll));
  };
}

}  // namespace

const std::vector<LateCase>& LateCases() {
  constexpr orx::test::DialogRules kPages{.MayLeaveHourglass = true};
  constexpr orx::test::DialogRules kThrows{.MayThrow = true};
  static const std::vector<LateCase> kCases{
      {"Language", SetLanguage, kThrows},
      {"Show(map)", Show(&LateHost::Map)},
      {"Show(layers)", Show(&LateHost::Layers)},
      {"Show(layer)", Show(&LateHost::Layer), kPages},
      {"ShowDataProperties", Plain("ShowDataProperties", &LateHost::Layer), kPages},
      {"ShowLegends", Plain("ShowLegends", &LateHost::Map), kPages},
      {"ShowProperties", Plain("ShowProperties", &LateHost::Layer), kPages},
      {"ShowLabels", Plain("ShowLabels", &LateHost::Layer), kPages},
      {"ShowCoordinates", Plain("ShowCoordinates", &LateHost::Map), kPages},
      {"ShowDataClassify", ShowClassify},
      {"ShowDataOptions", Plain("ShowDataOptions", &LateHost::Data)},
      {"ShowGeoReference", Plain("ShowGeoReference", &LateHost::Map), kThrows},
      {"ShowCharacterSelection", ShowCharacter},
      {"ShowListSelection", ShowList, kThrows, 1},
      {"ShowAddLayer", Choose("ShowAddLayer")},
      {"ShowAddData", Choose("ShowAddData")},
      {"ShowFileNotFound", AskFor("ShowFileNotFound"), kThrows},
      {"ShowDataFileNotFound", AskFor("ShowDataFileNotFound"), kThrows},
  };
  return kCases;
}

}  // namespace orx::com::test
