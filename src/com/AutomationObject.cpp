#include "com/AutomationObject.h"

#include <OrvexMapDialogs2.h>

#include <initializer_list>

#include "com/DataAdapters.h"
#include "com/GridAdapters.h"
#include "com/MapAdapters.h"

namespace orx::com {
namespace {

using Object = ComPtr<IDispatch>;

/// The members of the object, if it has the published interface or the members that identify the kind. Empty when it is
/// not of that kind.
template <class Published>
Members ViewOf(const Object& object, std::initializer_list<const char*> members, const char* unlike = nullptr) {
  Members named = Members::Of<Published>(object.Get());
  if (named.IsPublished()) return named;
  for (const char* const member : members)
    if (!named.Has(member)) return Members();
  return unlike && named.Has(unlike) ? Members() : named;
}

/// A view of a data object: the object itself, or what its member `giver` returns.
template <class Published>
Members PartOf(const Object& object, std::initializer_list<const char*> members, const char* giver) {
  if (Members view = ViewOf<Published>(object, members)) return view;
  const auto data = Members::Of<::IData>(object.Get());
  if (!data.Has(giver)) return Members();
  const Object given = data.GetObject(giver);
  return given ? ViewOf<Published>(given, members) : Members();
}

/// An object is a data object when it has a classification, itself or as a view.
Members DataOf(const Object& object) {
  if (Members data = ViewOf<::IData>(object, {"ClassifyMethod"})) return data;
  const Members named(object.Get());
  return named.Has("Classification") ? named : Members();
}

template <class Adapter>
std::shared_ptr<HostInterface> Adapted(AutomationObject& owner, Members view) {
  return std::make_shared<Adapter>(owner, std::move(view));
}

/// How an object becomes an interface: what of it is of that kind, if anything, and the adapter of that.
struct Adaption {
  const std::type_info& Wanted;
  std::shared_ptr<HostInterface> (*Adapt)(AutomationObject& owner, Members view);
  Members (*Find)(const Object& object);
};

const Adaption kAdaptions[] = {
    {typeid(IMap), Adapted<MapAdapter>,
     [](const Object& it) {
       return ViewOf<::IMap>(it, {"LayerCount", "Layer"});
     }},
    {typeid(ILayers), Adapted<LayersAdapter>,
     [](const Object& it) { return ViewOf<::ILayers>(it, {"Map"}, "LayerCount"); }},
    {typeid(ILayer), Adapted<LayerAdapter>, [](const Object& it) { return ViewOf<::ILayer>(it, {"SymbolFont"}); }},
    {typeid(ILabels), Adapted<LabelsAdapter>, [](const Object& it) { return ViewOf<::ILabels>(it, {"ShowLabels"}); }},
    {typeid(IExtent), Adapted<ExtentAdapter>,
     [](const Object& it) {
       return ViewOf<::IExtent>(it, {"Left", "Right", "Bottom", "Top"});
     }},
    {typeid(ILegends), Adapted<LegendsAdapter>,
     [](const Object& it) {
       return ViewOf<::ILegends>(it, {"LegendCount", "Legend"});
     }},
    {typeid(IData), Adapted<DataAdapter>, DataOf},
    {typeid(IFileCheck), Adapted<FileCheckAdapter>,
     [](const Object& it) { return ViewOf<::IFileCheck>(it, {"CanOpen"}); }},
    {typeid(IClassification), Adapted<ClassificationAdapter>,
     [](const Object& it) { return PartOf<::IClassification>(it, {"ClassifyMethod"}, "Classification"); }},
    {typeid(IDataOptions), Adapted<DataOptionsAdapter>,
     [](const Object& it) { return PartOf<::IDataOptions>(it, {"MissingValue"}, "Options"); }},
    {typeid(ShadeSettings), Adapted<ShadeAdapter>,
     [](const Object& it) { return PartOf<::ShadeSettings>(it, {"ScaleFactor"}, "Shade"); }},
    {typeid(ShadeSettings2), Adapted<ShadeAdapter>,
     [](const Object& it) { return PartOf<::ShadeSettings2>(it, {"ShadeVersion"}, "Shade"); }},
    {typeid(IIsolines), Adapted<IsolinesAdapter>,
     [](const Object& it) { return PartOf<::IIsolines>(it, {"RangeStep"}, "Isolines"); }},
};

}  // namespace

std::shared_ptr<HostInterface> AutomationObject::MakeView(const std::type_info& wanted) {
  for (const Adaption& adaption : kAdaptions) {
    if (adaption.Wanted != wanted) continue;
    Members view = adaption.Find(mObject);
    return view ? adaption.Adapt(*this, std::move(view)) : nullptr;
  }
  return nullptr;
}

HostInterface* AutomationObject::ViewFor(const std::type_info& wanted) {
  const auto known = mViews.find(wanted);
  if (known != mViews.end()) return known->second.get();
  return mViews.emplace(wanted, MakeView(wanted)).first->second.get();
}

AutomationObject* AutomationObject::Adopt(const ComPtr<IDispatch>& object) {
  if (!object) return nullptr;
  // The identity of an object is its IUnknown; the adapter's reference keeps the address from being used again.
  const ComPtr<IUnknown> identity = object.As<IUnknown>();
  std::shared_ptr<AutomationObject>& known = mAdopted[identity.Get()];
  if (!known) known = std::make_shared<AutomationObject>(object.Get());
  return known.get();
}

}  // namespace orx::com
