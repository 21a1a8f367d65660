#include "com/SourceInterface.h"

#include <ocidl.h>

#include <memory>

namespace orx::com {
namespace {

constexpr INT kDefaultSource = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;

/// The description of a type or of a function, given back to the type information at the end.
auto AttributesOf(ITypeInfo& info) {
  TYPEATTR* attributes = nullptr;
  info.GetTypeAttr(&attributes);
  const auto giveBack = [owner = ComPtr<ITypeInfo>(&info)](TYPEATTR* gone) { owner->ReleaseTypeAttr(gone); };
  return std::unique_ptr<TYPEATTR, decltype(giveBack)>(attributes, giveBack);
}

auto FunctionOf(ITypeInfo& info, UINT index) {
  FUNCDESC* function = nullptr;
  info.GetFuncDesc(index, &function);
  const auto giveBack = [owner = ComPtr<ITypeInfo>(&info)](FUNCDESC* gone) { owner->ReleaseFuncDesc(gone); };
  return std::unique_ptr<FUNCDESC, decltype(giveBack)>(function, giveBack);
}

ComPtr<ITypeInfo> DefaultSourceInfo(ITypeInfo& coclass) {
  ComPtr<ITypeInfo> source;
  const auto attributes = AttributesOf(coclass);
  for (UINT i = 0; attributes && i < attributes->cImplTypes; ++i) {
    INT flags = 0;
    HREFTYPE reference = 0;
    if (FAILED(coclass.GetImplTypeFlags(i, &flags)) || (flags & kDefaultSource) != kDefaultSource) continue;
    if (SUCCEEDED(coclass.GetRefTypeOfImplType(i, &reference))) coclass.GetRefTypeInfo(reference, source.Out());
    break;
  }
  return source;
}

}  // namespace

SourceInterface DefaultSource(IUnknown& control) {
  SourceInterface source;
  const auto provider = ComPtr<IProvideClassInfo>::From(&control);
  ComPtr<ITypeInfo> coclass;
  if (!provider || FAILED(provider->GetClassInfo(coclass.Out())) || !coclass) return source;
  const ComPtr<ITypeInfo> info = DefaultSourceInfo(*coclass.Get());
  if (!info) return source;
  const auto attributes = AttributesOf(*info.Get());
  if (!attributes) return source;
  source.Id = attributes->guid;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    const auto function = FunctionOf(*info.Get(), i);
    Bstr name;
    UINT count = 0;
    if (function && SUCCEEDED(info->GetNames(function->memid, name.Out(), 1, &count)) && count == 1)
      source.Names[function->memid] = name.Text();
  }
  return source;
}

}  // namespace orx::com
