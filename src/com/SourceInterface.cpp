#include "com/SourceInterface.h"

#include <ocidl.h>

#include "com/TypeDescriptions.h"

namespace orx::com {
namespace {

constexpr INT kDefaultSource = IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE;

ComPtr<ITypeInfo> DefaultSourceInfo(ITypeInfo& coclass) {
  ComPtr<ITypeInfo> source;
  const TypeAttributes attributes = AttributesOf(coclass);
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
  const TypeAttributes attributes = AttributesOf(*info.Get());
  if (!attributes) return source;
  source.Id = attributes->guid;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    const FunctionDescription function = FunctionOf(*info.Get(), i);
    Bstr name;
    UINT count = 0;
    if (function && SUCCEEDED(info->GetNames(function->memid, name.Out(), 1, &count)) && count == 1)
      source.Names[function->memid] = name.Text();
  }
  return source;
}

}  // namespace orx::com
