#include "tests/com/support/Signatures.h"

#include <gtest/gtest.h>

#include <map>

#include "com/TypeDescriptions.h"

namespace orx::com::test {
namespace {

constexpr int kSlotsOfDispatch = 7;

std::string NameOf(ITypeInfo& info) {
  Bstr name;
  info.GetDocumentation(MEMBERID_NIL, name.Out(), nullptr, nullptr, nullptr);
  return name.Text();
}

std::string NameOfType(ITypeInfo& info, const TYPEDESC& type) {
  static const std::map<VARTYPE, std::string> kNames = {
      {VT_I2, "Integer"},   {VT_I4, "Long"},         {VT_R8, "Double"},       {VT_BSTR, "String"},
      {VT_BOOL, "Boolean"}, {VT_VARIANT, "Variant"}, {VT_DISPATCH, "Object"}, {VT_UNKNOWN, "Unknown"}};
  if (type.vt == VT_SAFEARRAY) return NameOfType(info, *type.lptdesc) + "()";
  if (type.vt == VT_USERDEFINED) {
    ComPtr<ITypeInfo> described;
    info.GetRefTypeInfo(type.hreftype, described.Out());
    return described ? NameOf(*described.Get()) : "?";
  }
  const auto found = kNames.find(type.vt);
  return found == kNames.end() ? "VT" + std::to_string(type.vt) : found->second;
}

std::string Declared(ITypeInfo& info, const ELEMDESC& parameter, const std::string& name) {
  const WORD flags = parameter.paramdesc.wParamFlags;
  const bool isReference = parameter.tdesc.vt == VT_PTR;
  std::string text = (flags & PARAMFLAG_FOPT) || (flags & PARAMFLAG_FHASDEFAULT) ? "Optional " : "";
  if (!isReference) text += "ByVal ";
  text += name + " As " + NameOfType(info, isReference ? *parameter.tdesc.lptdesc : parameter.tdesc);
  if (flags & PARAMFLAG_FHASDEFAULT) {
    Variant value;
    VariantChangeType(&value, &parameter.paramdesc.pparamdescex->varDefaultValue, 0, VT_BSTR);
    text += " = " + TextOf(value.bstrVal);
  }
  return text;
}

std::string KindOf(INVOKEKIND kind, bool hasResult) {
  switch (kind) {
    case INVOKE_PROPERTYGET:
      return "Property Get ";
    case INVOKE_PROPERTYPUT:
      return "Property Let ";
    case INVOKE_PROPERTYPUTREF:
      return "Property Set ";
    default:
      return hasResult ? "Function " : "Sub ";
  }
}

std::vector<std::string> NamesOf(ITypeInfo& info, const FUNCDESC& function) {
  std::vector<Bstr> owners(static_cast<std::size_t>(function.cParams) + 1);
  std::vector<BSTR> names(owners.size(), nullptr);
  UINT count = 0;
  info.GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &count);
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < names.size(); ++i) {
    owners[i].SwapWith(names[i]);
    texts.push_back(owners[i].Get() ? owners[i].Text() : "value");
  }
  return texts;
}

std::string DeclarationOf(ITypeInfo& info, const FUNCDESC& function) {
  const std::vector<std::string> names = NamesOf(info, function);
  std::string parameters;
  std::string result;
  for (SHORT i = 0; i < function.cParams; ++i) {
    const ELEMDESC& parameter = function.lprgelemdescParam[i];
    if (parameter.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) {
      result = " As " + NameOfType(info, *parameter.tdesc.lptdesc);
      continue;
    }
    if (!parameters.empty()) parameters += ", ";
    parameters += Declared(info, parameter, names[static_cast<std::size_t>(i) + 1]);
  }
  return KindOf(function.invkind, !result.empty()) + names[0] + "(" + parameters + ")" + result;
}

Type TypeOf(ITypeInfo& info) {
  Type type;
  Bstr name;
  Bstr help;
  info.GetDocumentation(MEMBERID_NIL, name.Out(), help.Out(), nullptr, nullptr);
  const TypeAttributes attributes = AttributesOf(info);
  type.Name = name.Text();
  type.Help = help.Text();
  type.Kind = attributes->typekind;
  type.Flags = attributes->wTypeFlags;
  type.Id = attributes->guid;
  return type;
}

}  // namespace

std::vector<Type> TypesOf(ITypeLib& library) {
  std::vector<Type> types;
  for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> info;
    if (SUCCEEDED(library.GetTypeInfo(i, info.Out()))) types.push_back(TypeOf(*info.Get()));
  }
  return types;
}

std::vector<Member> MembersOf(ITypeInfo& dualInterface) {
  std::vector<Member> members;
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> slots;
  // The other face of a dual interface, the one with slots and results of calls.
  EXPECT_HRESULT_SUCCEEDED(dualInterface.GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
  EXPECT_HRESULT_SUCCEEDED(dualInterface.GetRefTypeInfo(reference, slots.Out()));
  if (!slots) return members;
  const TypeAttributes attributes = AttributesOf(*slots.Get());
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    const FunctionDescription function = FunctionOf(*slots.Get(), i);
    Bstr help;
    slots->GetDocumentation(function->memid, nullptr, help.Out(), nullptr, nullptr);
    members.push_back({DeclarationOf(*slots.Get(), *function), help.Text(), function->memid,
                       function->oVft / static_cast<int>(sizeof(void*)) - kSlotsOfDispatch});
  }
  return members;
}

Type DefaultInterfaceOf(ITypeInfo& coclass) {
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> info;
  EXPECT_HRESULT_SUCCEEDED(coclass.GetRefTypeOfImplType(0, &reference));
  EXPECT_HRESULT_SUCCEEDED(coclass.GetRefTypeInfo(reference, info.Out()));
  return info ? TypeOf(*info.Get()) : Type();
}

ComPtr<ITypeInfo> FindType(ITypeLib& library, const std::string& name) {
  for (UINT i = 0; i < library.GetTypeInfoCount(); ++i) {
    ComPtr<ITypeInfo> info;
    if (SUCCEEDED(library.GetTypeInfo(i, info.Out())) && NameOf(*info.Get()) == name) return info;
  }
  ADD_FAILURE() << "The type library lacks " << name;
  return {};
}

std::string GuidText(const GUID& guid) {
  wchar_t text[39] = {};
  StringFromGUID2(guid, text, 39);
  return Narrowed({text, 38});
}

}  // namespace orx::com::test
