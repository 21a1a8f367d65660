// What the type library says: hosts are compiled against it, so that every line of these tables is a promise.
#include <gtest/gtest.h>

#include <algorithm>

#include "com/TypeLibrary.h"
#include "hostobjects/RunTimeError.h"
#include "tests/com/support/Signatures.h"

namespace orx::com::test {
namespace {

struct Promise {
  DISPID Id;
  const char* Declaration;
};

constexpr Promise kProgressDialog[] = {
    {1, "Sub Init(Min As Long, Max As Long, Value As Long)"},
    {2, "Property Get CancelAction() As Boolean"},
    {3, "Property Get Value() As Long"},
    {3, "Property Let Value(ByVal Value As Long)"},
    {4, "Property Get Caption() As String"},
    {4, "Property Let Caption(ByVal Value As String)"},
    {5, "Property Get Message() As String"},
    {5, "Property Let Message(ByVal Value As String)"},
    {6, "Sub Show(Optional OwnerForm As Variant)"},
    {7, "Sub Hide()"},
    {8, "Sub Refresh()"},
};

constexpr Promise kMapDialogs[] = {
    {1, "Property Get RegistryKey() As String"},
    {1, "Property Let RegistryKey(Value As String)"},
    {2, "Property Get CallBack() As Object"},
    {2, "Property Set CallBack(Value As Object)"},
    {3, "Property Get Language() As Object"},
    {3, "Property Set Language(Value As Object)"},
    {4,
     "Function Show(mObj As Object, mFlags As Long, Optional mCaption As String, "
     "Optional mModal As FormShowMode = 1, Optional OwnerForm As Variant) As Long"},
    {5,
     "Function ShowDataProperties(mObj As Object, Optional mCaption As String, "
     "Optional mModal As FormShowMode = 1, Optional OwnerForm As Variant) As Long"},
    {6,
     "Function ShowLegends(mObj As Object, Optional Index As Long = 0, Optional mCaption As String, "
     "Optional mModal As FormShowMode = 1, Optional OwnerForm As Variant) As Long"},
    {7,
     "Function ShowDataClassify(mObj As Object, mMinValue As Double, mMaxValue As Double, "
     "ByVal flags As ClassifyFlags, IsDirty As Boolean, Optional mCaption As String, "
     "Optional mModal As FormShowMode = 1, Optional OwnerForm As Variant) As Long"},
    {8,
     "Function ShowDataOptions(mObj As Object, Optional mCaption As String, "
     "Optional mModal As FormShowMode = 1, Optional OwnerForm As Variant) As Long"},
    {9,
     "Function ShowProperties(mObj As Object, Optional mCaption As String, "
     "Optional mModal As FormShowMode = 1, Optional OwnerForm As Variant) As Long"},
    {10,
     "Function ShowLabels(mObj As Object, Optional mCaption As String, "
     "Optional mModal As FormShowMode = 1, Optional OwnerForm As Variant) As Long"},
    {11,
     "Function ShowCoordinates(mObj As Object, Optional mCaption As String, "
     "Optional mModal As FormShowMode = 1, Optional OwnerForm As Variant) As Long"},
    {12,
     "Function ShowGeoReference(mObj As Object, Optional mKeepRatio As CheckState = 2, Optional mFormat As String, "
     "Optional mCaption As String, Optional OwnerForm As Variant) As Long"},
    {13,
     "Function ShowCharacterSelection(mFontName As String, mCharacter As Long, mRotation As Double, "
     "mChanged As Boolean, Optional mCaption As String, Optional OwnerForm As Variant) As Long"},
    {14,
     "Function ShowListSelection(mSelection As String(), mMultiselect As Boolean, mListIndex As Long, "
     "mCaption As String, mAskConfirmation As Boolean, mConfirmationQuestion As String, "
     "mSelected As Long()) As Long"},
    {15, "Function ShowAddLayer(ByVal hWnd As Long, ByVal Multiselect As Boolean, Files As String()) As Boolean"},
    {16, "Function ShowAddData(ByVal hWnd As Long, ByVal Multiselect As Boolean, Files As String()) As Boolean"},
    {17, "Function ShowFileNotFound(ByVal FileName As String, NewFileName As String, CancelAll As Boolean) As Boolean"},
    {18,
     "Function ShowDataFileNotFound(ByVal FileName As String, NewFileName As String, CancelAll As Boolean) "
     "As Boolean"},
};

constexpr Promise kNewerMapDialogs[] = {
    {19, "Property Get FileCheck() As Object"},
    {19, "Property Set FileCheck(ByVal Value As Object)"},
};

template <std::size_t Count>
void ExpectMembers(const std::string& name, const Promise (&promises)[Count], int firstSlot = 0) {
  const ComPtr<ITypeLib> library = LoadTypeLibrary();
  const ComPtr<ITypeInfo> info = FindType(*library.Get(), name);
  ASSERT_TRUE(info);
  const std::vector<Member> members = MembersOf(*info.Get());
  ASSERT_EQ(members.size(), Count);
  for (std::size_t i = 0; i < Count; ++i) {
    EXPECT_EQ(members[i].Declaration, promises[i].Declaration);
    EXPECT_EQ(members[i].Id, promises[i].Id) << promises[i].Declaration;
    EXPECT_EQ(members[i].Slot, firstSlot + static_cast<int>(i)) << promises[i].Declaration;
    EXPECT_FALSE(members[i].Help.empty()) << promises[i].Declaration;
  }
}

TEST(TypeLibrary, HasItsNameHelpTextAndVersion) {
  const ComPtr<ITypeLib> library = LoadTypeLibrary();
  Bstr name;
  Bstr help;
  ASSERT_EQ(library->GetDocumentation(-1, name.Out(), help.Out(), nullptr, nullptr), S_OK);
  EXPECT_EQ(name.Text(), "OrvexMapDialogs2");
  EXPECT_EQ(help.Text(), "Orvex Map Dialogs 2");
  TLIBATTR* attributes = nullptr;
  ASSERT_EQ(library->GetLibAttr(&attributes), S_OK);
  const auto giveBack = [&](TLIBATTR* lent) { library->ReleaseTLibAttr(lent); };
  const std::unique_ptr<TLIBATTR, decltype(giveBack)> owner(attributes, giveBack);
  EXPECT_EQ(GuidText(attributes->guid), "{47EAA099-2CB6-416D-86DC-283CF0480FF9}");
  EXPECT_EQ(attributes->wMajorVerNum, 2);
  EXPECT_EQ(attributes->wMinorVerNum, 0);
  EXPECT_EQ(attributes->syskind, sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32);
}

TEST(TypeLibrary, PublishesTwoCreatableClassesInOrder) {
  const ComPtr<ITypeLib> library = LoadTypeLibrary();
  std::vector<std::string> classes;
  for (const Type& type : TypesOf(*library.Get())) {
    if (type.Kind != TKIND_COCLASS) continue;
    classes.push_back(type.Name + " " + DefaultInterfaceOf(*FindType(*library.Get(), type.Name).Get()).Name);
    EXPECT_TRUE(type.Flags & TYPEFLAG_FCANCREATE) << type.Name;
    EXPECT_FALSE(type.Help.empty()) << type.Name;
  }
  EXPECT_EQ(classes, (std::vector<std::string>{"CCommonProgressDialog _CCommonProgressDialog",
                                               "CCommonMapDialogs _CCommonMapDialogs"}));
}

TEST(TypeLibrary, KeepsTheIdentitiesThatHostsAreCompiledAgainst) {
  const ComPtr<ITypeLib> library = LoadTypeLibrary();
  const std::pair<const char*, const char*> identities[] = {
      {"CCommonProgressDialog", "{20B81D7F-8E9E-4BB8-B4A3-7B2B926271F2}"},
      {"CCommonMapDialogs", "{AAFAF84B-AFD8-48D3-87F3-36DA84C6A400}"},
      {"_CCommonProgressDialog", "{8A9E1DF7-E771-476E-AD78-3715EE6F7A8F}"},
      {"_CCommonMapDialogs", "{9E180BF5-C37E-41E2-A9FA-541C228A3129}"},
  };
  const std::vector<Type> types = TypesOf(*library.Get());
  for (const auto& [name, identity] : identities) {
    const auto found = std::ranges::find(types, name, &Type::Name);
    ASSERT_NE(found, types.end()) << name;
    EXPECT_EQ(GuidText(found->Id), identity) << name;
  }
}

TEST(TypeLibrary, AllInterfacesButTheEventsAreDualAndExplained) {
  const ComPtr<ITypeLib> library = LoadTypeLibrary();
  int interfaces = 0;
  for (const Type& type : TypesOf(*library.Get())) {
    EXPECT_FALSE(type.Help.empty()) << type.Name;
    if (type.Kind != TKIND_DISPATCH || type.Name == "_IMapPropertyPageEvents") continue;
    ++interfaces;
    EXPECT_TRUE(type.Flags & TYPEFLAG_FDUAL) << type.Name;
    for (const Member& member : MembersOf(*FindType(*library.Get(), type.Name).Get()))
      EXPECT_FALSE(member.Help.empty()) << type.Name << ": " << member.Declaration;
  }
  EXPECT_GE(interfaces, 20);
}

TEST(TypeLibrary, NoTwoTypesShareAnIdentity) {
  std::vector<std::string> identities;
  for (const Type& type : TypesOf(*LoadTypeLibrary().Get())) identities.push_back(GuidText(type.Id));
  std::ranges::sort(identities);
  EXPECT_EQ(std::ranges::adjacent_find(identities), identities.end());
}

TEST(TypeLibrary, TheProgressDialogHasItsMembersInTheirSlots) {
  ExpectMembers("_CCommonProgressDialog", kProgressDialog);
}

TEST(TypeLibrary, TheMapDialogsHaveTheirMembersInTheirSlots) {
  ExpectMembers("_CCommonMapDialogs", kMapDialogs);
}

TEST(TypeLibrary, WhatWasAddedToTheMapDialogsFollowsTheSlotsOfTheFirstVersion) {
  ExpectMembers("ICommonMapDialogs2", kNewerMapDialogs, static_cast<int>(std::size(kMapDialogs)));
}

TEST(TypeLibrary, AFileThatIsNoTypeLibraryIsNamedInTheError) {
  try {
    LoadTypeLibrary(L"Z:\\no such folder\\nothing.tlb");
    FAIL() << "It was loaded.";
  } catch (const RunTimeError& error) {
    EXPECT_NE(std::string(error.what()).find("nothing.tlb"), std::string::npos) << error.what();
    EXPECT_LT(error.Number(), 0);
  }
}

}  // namespace
}  // namespace orx::com::test
