// The owners of descriptions that ITypeInfo lends: type attributes and function descriptions.
#pragma once

#include <memory>

#include "com/Handles.h"

namespace orx::com {

/// Holds a reference to the type information, which has to release the description.
struct DescriptionDeleter {
  ComPtr<ITypeInfo> Lender;
  void operator()(TYPEATTR* attributes) const { Lender->ReleaseTypeAttr(attributes); }
  void operator()(FUNCDESC* function) const { Lender->ReleaseFuncDesc(function); }
};

using TypeAttributes = std::unique_ptr<TYPEATTR, DescriptionDeleter>;
using FunctionDescription = std::unique_ptr<FUNCDESC, DescriptionDeleter>;

/// The attributes of a type; null when they cannot be read.
inline TypeAttributes AttributesOf(ITypeInfo& info) {
  TYPEATTR* attributes = nullptr;
  if (FAILED(info.GetTypeAttr(&attributes))) attributes = nullptr;
  return {attributes, {ComPtr<ITypeInfo>(&info)}};
}

/// The description of the member at an index from 0; null past the last one.
inline FunctionDescription FunctionOf(ITypeInfo& info, UINT index) {
  FUNCDESC* function = nullptr;
  if (FAILED(info.GetFuncDesc(index, &function))) function = nullptr;
  return {function, {ComPtr<ITypeInfo>(&info)}};
}

}  // namespace orx::com
