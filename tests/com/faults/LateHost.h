// A host of a script language with everything that the dialogs can be given: objects known by the names of their
// members alone, each of which asks a plan of faults in every call.
#pragma once

#include <OrvexMapDialogs2.h>

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "tests/com/support/ScriptObject.h"

namespace orx::com::test {

class LateHost {
 public:
  using Fields = std::map<std::string, Variant>;
  using FieldLists = std::initializer_list<Fields>;

  explicit LateHost(orx::test::FaultPlan& plan);

  /// Takes away what is edited.
  void Remove() { Map->Field("LayerCount") = Variant(std::int32_t{0}); }
  /// How many references each of the objects has.
  std::vector<ULONG> References() const;
  /// The members that were put, of all objects.
  std::vector<std::string> Writes() const;

 private:
  /// An object with the members of all these kinds.
  ComPtr<ScriptObject> Make(FieldLists kinds);
  static Variant LinkTo(const ComPtr<ScriptObject>& object) { return Variant(static_cast<IDispatch*>(object.Get())); }
  ComPtr<ScriptObject> MakeData();
  ComPtr<ScriptObject> MakeLayer();
  ComPtr<ScriptObject> MakeMap();

  std::vector<ComPtr<ScriptObject>> mAll;

 public:
  ComPtr<ScriptObject> Data = MakeData();
  ComPtr<ScriptObject> Layer = MakeLayer();
  ComPtr<ScriptObject> Map = MakeMap();
  ComPtr<ScriptObject> Layers = Make({{{"Name", Variant("All layers")}, {"Map", LinkTo(Map)}}});
  ComPtr<ScriptObject> Language = Make(
      {{{"EntryCount", Variant(std::int32_t{3})}, {"TranslateText", Variant("Text")}, {"TranslateForm", Variant()}}});
  ComPtr<ScriptObject> CallBack = Make({{{"RegisterNotify", Variant(std::int32_t{0})},
                                         {"ApplyNotify", Variant()},
                                         {"CancelNotify", Variant()},
                                         {"OKNotify", Variant()}}});
  /// The service, with language and call-back.
  ComPtr<IDispatch> Service;
};

}  // namespace orx::com::test
