#include "tests/com/pagecontrols/TestTypeLibrary.h"

#include "com/Errors.h"

namespace orx::test {
namespace {

using com::Check;
using com::ComPtr;

const GUID kDispatchLibrary = {0x00020430, 0, 0, {0xc0, 0, 0, 0, 0, 0, 0, 0x46}};

/// Adds IDispatch, which every dispinterface stands on.
HREFTYPE DispatchIn(ICreateTypeInfo& info) {
  ComPtr<ITypeLib> standard;
  ComPtr<ITypeInfo> dispatch;
  HREFTYPE reference = 0;
  Check(LoadRegTypeLib(kDispatchLibrary, 2, 0, 0, standard.Out()), "stdole");
  Check(standard->GetTypeInfoOfGuid(IID_IDispatch, dispatch.Out()), "IDispatch");
  Check(info.AddRefTypeInfo(dispatch.Get(), &reference), "AddRefTypeInfo");
  return reference;
}

ComPtr<ITypeInfo> DescribeSource(ICreateTypeLib2& library, const IID& source, const DescribedEvent& event) {
  ComPtr<ICreateTypeInfo> info;
  wchar_t name[] = L"_Events";
  Check(library.CreateTypeInfo(name, TKIND_DISPATCH, info.Out()), "CreateTypeInfo");
  Check(info->SetGuid(source), "SetGuid");
  Check(info->AddImplType(0, DispatchIn(*info.Get())), "AddImplType");
  FUNCDESC function = {};
  function.memid = event.Id;
  function.funckind = FUNC_DISPATCH;
  function.invkind = INVOKE_FUNC;
  function.callconv = CC_STDCALL;
  function.elemdescFunc.tdesc.vt = VT_VOID;
  Check(info->AddFuncDesc(0, &function), "AddFuncDesc");
  std::wstring wide = com::Widened(event.Name);
  LPOLESTR names = wide.data();
  Check(info->SetFuncAndParamNames(0, &names, 1), "SetFuncAndParamNames");
  Check(info->LayOut(), "LayOut");
  return info.As<ITypeInfo>();
}

}  // namespace

ComPtr<ITypeInfo> DescribeClass(const IID& source, const DescribedEvent& event) {
  ComPtr<ICreateTypeLib2> library;
  Check(CreateTypeLib2(sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32, L"test.tlb", library.Out()), "CreateTypeLib2");
  const ComPtr<ITypeInfo> described = DescribeSource(*library.Get(), source, event);
  ComPtr<ICreateTypeInfo> info;
  wchar_t name[] = L"Control";
  HREFTYPE reference = 0;
  Check(library->CreateTypeInfo(name, TKIND_COCLASS, info.Out()), "CreateTypeInfo");
  Check(info->AddRefTypeInfo(described.Get(), &reference), "AddRefTypeInfo");
  Check(info->AddImplType(0, reference), "AddImplType");
  Check(info->SetImplTypeFlags(0, IMPLTYPEFLAG_FDEFAULT | IMPLTYPEFLAG_FSOURCE), "SetImplTypeFlags");
  Check(info->LayOut(), "LayOut");
  return info.As<ITypeInfo>();
}

}  // namespace orx::test
