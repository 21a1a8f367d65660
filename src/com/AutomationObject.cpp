#include "com/AutomationObject.h"

#include <OrvexMapDialogs2.h>

#include <initializer_list>

#include "com/DataAdapters.h"
#include "com/GridAdapters.h"
#include "com/MapAdapters.h"

namespace orx::com {
namespace {

/// The published interface of the object if it has it, or the object itself if it has the members that identify the
/// kind. Empty when it is not of that kind.
template <class Published>
ComPtr<IDispatch> ViewOf(const ComPtr<IDispatch>& object, std::initializer_list<const char*> members,
                         const char* unlike = nullptr) {
  if (const auto published = object.As<Published>()) return ComPtr<IDispatch>(published.Get());
  const LateBound named(object.Get());
  for (const char* const member : members)
    if (!named.Has(member)) return {};
  return unlike && named.Has(unlike) ? ComPtr<IDispatch>() : object;
}

/// A view of a data object: the object itself, or what its member `giver` returns.
template <class Published>
ComPtr<IDispatch> PartOf(const ComPtr<IDispatch>& object, std::initializer_list<const char*> members,
                         const char* giver) {
  if (ComPtr<IDispatch> view = ViewOf<Published>(object, members)) return view;
  const auto data = object.As<::IData>();
  const LateBound named(data ? data.Get() : object.Get());
  if (!named.Has(giver)) return {};
  const ComPtr<IDispatch> given = named.GetObject(giver);
  return given ? ViewOf<Published>(given, members) : ComPtr<IDispatch>();
}

/// An object is a data object when it has a classification, itself or as a view.
ComPtr<IDispatch> DataOf(const ComPtr<IDispatch>& object) {
  if (ComPtr<IDispatch> data = ViewOf<::IData>(object, {"ClassifyMethod"})) return data;
  return LateBound(object.Get()).Has("Classification") ? object : ComPtr<IDispatch>();
}

}  // namespace

AutomationObject::View AutomationObject::MakeView(Kind kind) {
  const auto as = [this]<class Adapter>(std::type_identity<Adapter>, const ComPtr<IDispatch>& object) {
    if (!object) return View{};
    auto adapter = std::make_shared<Adapter>(*this, object);
    Adapter* const exact = adapter.get();
    return View{std::move(adapter), exact};
  };
  switch (kind) {
    case Kind::Map:
      return as(std::type_identity<MapAdapter>(), ViewOf<::IMap>(mObject, {"LayerCount", "Layer"}));
    case Kind::Layers:
      return as(std::type_identity<LayersAdapter>(), ViewOf<::ILayers>(mObject, {"Map"}, "LayerCount"));
    case Kind::Layer:
      return as(std::type_identity<LayerAdapter>(), ViewOf<::ILayer>(mObject, {"SymbolFont"}));
    case Kind::Labels:
      return as(std::type_identity<LabelsAdapter>(), ViewOf<::ILabels>(mObject, {"ShowLabels"}));
    case Kind::Extent:
      return as(std::type_identity<ExtentAdapter>(), ViewOf<::IExtent>(mObject, {"Left", "Right", "Bottom", "Top"}));
    case Kind::Legends:
      return as(std::type_identity<LegendsAdapter>(), ViewOf<::ILegends>(mObject, {"LegendCount", "Legend"}));
    case Kind::Data:
      return as(std::type_identity<DataAdapter>(), DataOf(mObject));
    case Kind::Classification:
      return as(std::type_identity<ClassificationAdapter>(),
                PartOf<::IClassification>(mObject, {"ClassifyMethod"}, "Classification"));
    case Kind::DataOptions:
      return as(std::type_identity<DataOptionsAdapter>(), PartOf<::IDataOptions>(mObject, {"MissingValue"}, "Options"));
    case Kind::Shade:
      return as(std::type_identity<ShadeAdapter>(), PartOf<::ShadeSettings>(mObject, {"ScaleFactor"}, "Shade"));
    case Kind::ExtendedShade:
      return as(std::type_identity<ShadeAdapter>(), PartOf<::ShadeSettings2>(mObject, {"ShadeVersion"}, "Shade"));
    case Kind::Isolines:
      return as(std::type_identity<IsolinesAdapter>(), PartOf<::IIsolines>(mObject, {"RangeStep"}, "Isolines"));
  }
  return {};
}

void* AutomationObject::Query(Kind kind) {
  const auto known = mViews.find(kind);
  if (known != mViews.end()) return known->second.Interface;
  return mViews.emplace(kind, MakeView(kind)).first->second.Interface;
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
