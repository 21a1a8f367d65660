// The descriptions that type information lends, given back to it by their owner.
#pragma once

#include <memory>

#include "com/Handles.h"

namespace orx::com {

/// Keeps the type information alive that the description belongs to.
struct DescriptionDeleter {
  ComPtr<ITypeInfo> Lender;
  void operator()(TYPEATTR* attributes) const { Lender->ReleaseTypeAttr(attributes); }
  void operator()(FUNCDESC* function) const { Lender->ReleaseFuncDesc(function); }
};

using TypeAttributes = std::unique_ptr<TYPEATTR, DescriptionDeleter>;
using FunctionDescription = std::unique_ptr<FUNCDESC, DescriptionDeleter>;

/// The attributes of a type; null when there are none to be had.
inline TypeAttributes AttributesOf(ITypeInfo& info) {
  TYPEATTR* attributes = nullptr;
  if (FAILED(info.GetTypeAttr(&attributes))) attributes = nullptr;
  return {attributes, {ComPtr<ITypeInfo>(&info)}};
}

/// The description of a member, counted from 0; null behind the last one.
inline FunctionDescription FunctionOf(ITypeInfo& info, UINT index) {
  FUNCDESC* function = nullptr;
  if (FAILED(info.GetFuncDesc(index, &function))) function = nullptr;
  return {function, {ComPtr<ITypeInfo>(&info)}};
}

}  // namespace orx::com
