// Reads a type library and writes it down as the declarations that hosts know: "Sub Init(Min As Long, ...)".
#pragma once

#include <string>
#include <vector>

#include "com/Handles.h"

namespace orx::com::test {

/// A member of an interface.
struct Member {
  /// "Function ShowLegends(mObj As Object, Optional Index As Long = 0, ...) As Long". Parameters are by reference
  /// unless marked ByVal.
  std::string Declaration;
  /// What stands in the type library to help the author of a host.
  std::string Help;
  DISPID Id = 0;
  /// Counted from the first slot behind those of IDispatch.
  int Slot = 0;
};

/// An interface, a class or an enumeration.
struct Type {
  std::string Name;
  std::string Help;
  TYPEKIND Kind = TKIND_MAX;
  WORD Flags = 0;
  GUID Id = {};
};

/// The types of a library in their order.
std::vector<Type> TypesOf(ITypeLib& library);

/// The members of a dual interface in the order of their slots.
std::vector<Member> MembersOf(ITypeInfo& dualInterface);

/// The default interface of a class.
Type DefaultInterfaceOf(ITypeInfo& coclass);

/// The description of a type by its name; fails the test and is empty when there is none.
ComPtr<ITypeInfo> FindType(ITypeLib& library, const std::string& name);

/// "{xxxxxxxx-xxxx-...}".
std::string GuidText(const GUID& guid);

}  // namespace orx::com::test
