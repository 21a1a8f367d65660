// The members of CCommonMapDialogs, called through the slots as compiled hosts do.
#include "tests/com/support/MapDialogsTest.h"

#include <thread>

#include "forms/TreeList.h"
#include "service/modMain.h"

namespace orx::com::test {
namespace {

TEST_F(MapDialogsTest, TheRegistryKeyIsACopy) {
  Bstr key("Maps \xC3\xA4 \xE2\x82\xAC");
  BSTR given = key.Get();
  ASSERT_EQ(dialogs->put_RegistryKey(&given), S_OK);
  key = Bstr("Other");
  Bstr got;
  ASSERT_EQ(dialogs->get_RegistryKey(got.Out()), S_OK);
  EXPECT_EQ(got.Text(), "Maps \xC3\xA4 \xE2\x82\xAC");
}

TEST_F(MapDialogsTest, TheRegistryKeyIsEmptyAtFirstAndMayBeEmptied) {
  Bstr got("x");
  ASSERT_EQ(dialogs->get_RegistryKey(got.Out()), S_OK);
  EXPECT_EQ(got.Text(), "");
  BSTR null = nullptr;
  EXPECT_EQ(dialogs->put_RegistryKey(&null), S_OK);
  ASSERT_EQ(dialogs->get_RegistryKey(got.Out()), S_OK);
  EXPECT_EQ(got.Text(), "");
}

TEST_F(MapDialogsTest, ObjectsHaveSettingsOfTheirOwn) {
  const auto other = Create();
  Bstr key("A");
  BSTR given = key.Get();
  dialogs->put_RegistryKey(&given);
  Bstr got;
  other->get_RegistryKey(got.Out());
  EXPECT_EQ(got.Text(), "");
}

TEST_F(MapDialogsTest, NoReferenceIsKeptOfLanguageAndCallBack) {
  const auto language = LanguageOf(0);
  const auto callBack = MakeCounted<ScriptObject>();
  IDispatch* given = language.Get();
  ASSERT_EQ(dialogs->putref_Language(&given), S_OK);
  EXPECT_EQ(given, language.Get());
  given = callBack.Get();
  ASSERT_EQ(dialogs->putref_CallBack(&given), S_OK);
  EXPECT_EQ(ReferencesOf(language.Get()), 1u);
  EXPECT_EQ(ReferencesOf(callBack.Get()), 1u);
  IDispatch* none = nullptr;
  ASSERT_EQ(dialogs->putref_Language(&none), S_OK);
  ASSERT_EQ(dialogs->putref_CallBack(&none), S_OK);
  EXPECT_EQ(ReferencesOf(language.Get()), 1u);
  EXPECT_EQ(ReferencesOf(callBack.Get()), 1u);
}

TEST_F(MapDialogsTest, TheEndOfTheServiceReleasesNothing) {
  const auto language = LanguageOf(0);
  IDispatch* given = language.Get();
  ASSERT_EQ(dialogs->putref_Language(&given), S_OK);
  ASSERT_EQ(dialogs->putref_CallBack(&given), S_OK);
  dialogs.Reset();
  EXPECT_EQ(ReferencesOf(language.Get()), 1u);
}

TEST_F(MapDialogsTest, ReadingLanguageAndCallBackGivesACountedReference) {
  const auto language = LanguageOf(0);
  IDispatch* given = language.Get();
  dialogs->putref_Language(&given);
  dialogs->putref_CallBack(&given);
  ComPtr<IDispatch> first;
  ComPtr<IDispatch> second;
  ASSERT_EQ(dialogs->get_Language(first.Out()), S_OK);
  ASSERT_EQ(dialogs->get_CallBack(second.Out()), S_OK);
  EXPECT_EQ(first.Get(), language.Get());
  EXPECT_EQ(second.Get(), language.Get());
  EXPECT_EQ(ReferencesOf(language.Get()), 3u);
}

TEST_F(MapDialogsTest, LanguageAndCallBackAreNothingAtFirst) {
  auto* got = reinterpret_cast<IDispatch*>(this);
  ASSERT_EQ(dialogs->get_Language(&got), S_OK);
  EXPECT_FALSE(got);
  got = reinterpret_cast<IDispatch*>(this);
  ASSERT_EQ(dialogs->get_CallBack(&got), S_OK);
  EXPECT_FALSE(got);
}

TEST_F(MapDialogsTest, ALanguageWithEntriesGivesTheHelpFile) {
  const struct Restore {
    std::string Before = modMain::HelpFile();
    ~Restore() { modMain::HelpFile(Before); }
  } restore;
  const auto empty = LanguageOf(0, "empty.hlp");
  const auto full = LanguageOf(3, "maps.hlp");
  IDispatch* given = empty.Get();
  ASSERT_EQ(dialogs->putref_Language(&given), S_OK);
  EXPECT_EQ(modMain::HelpFile(), restore.Before);
  given = full.Get();
  ASSERT_EQ(dialogs->putref_Language(&given), S_OK);
  EXPECT_EQ(modMain::HelpFile(), "maps.hlp");
}

TEST_F(MapDialogsTest, ALanguageMayReleaseTheServiceThatItIsGivenTo) {
  const auto language = LanguageOf(3);
  orx::test::FaultPlan plan("EntryCount", [this] { dialogs.Reset(); });
  language->Faults = &plan;
  IDispatch* given = language.Get();
  EXPECT_EQ(dialogs->putref_Language(&given), S_OK);
  EXPECT_FALSE(dialogs);
  EXPECT_EQ(ReferencesOf(language.Get()), 1u);
}

TEST_F(MapDialogsTest, ALanguageMaySetAnotherOneWhenItIsSet) {
  const auto first = LanguageOf(3);
  const auto second = LanguageOf(3);
  orx::test::FaultPlan plan("EntryCount", [&] {
    IDispatch* given = second.Get();
    EXPECT_EQ(dialogs->putref_Language(&given), S_OK);
  });
  first->Faults = &plan;
  IDispatch* given = first.Get();
  EXPECT_EQ(dialogs->putref_Language(&given), S_OK);
  ComPtr<IDispatch> got;
  ASSERT_EQ(dialogs->get_Language(got.Out()), S_OK);
  EXPECT_EQ(got.Get(), second.Get());
}

TEST_F(MapDialogsTest, AnObjectThatIsNoLanguageIsToldByTheMissingMember) {
  const auto object = MakeCounted<ScriptObject>();
  IDispatch* given = object.Get();
  EXPECT_TRUE(FAILED(dialogs->putref_Language(&given)));
  EXPECT_NE(TakenErrorText().find("EntryCount"), std::string::npos);
  EXPECT_EQ(ReferencesOf(object.Get()), 1u);
}

TEST_F(MapDialogsTest, PlacesForResultsAreRequired) {
  IDispatch* object = nullptr;
  EXPECT_EQ(dialogs->get_RegistryKey(nullptr), E_POINTER);
  EXPECT_EQ(dialogs->put_RegistryKey(nullptr), E_POINTER);
  EXPECT_EQ(dialogs->get_Language(nullptr), E_POINTER);
  EXPECT_EQ(dialogs->get_CallBack(nullptr), E_POINTER);
  EXPECT_EQ(dialogs->ShowProperties(nullptr, nullptr, nullptr, nullptr, &result), E_POINTER);
  EXPECT_EQ(dialogs->ShowProperties(&object, nullptr, nullptr, nullptr, nullptr), E_POINTER);
  EXPECT_EQ(dialogs->ShowLegends(nullptr, nullptr, nullptr, nullptr, nullptr, &result), E_POINTER);
  long flags = 0;
  EXPECT_EQ(dialogs->Show(nullptr, &flags, nullptr, nullptr, nullptr, &result), E_POINTER);
  EXPECT_EQ(dialogs->Show(&object, nullptr, nullptr, nullptr, nullptr, &result), E_POINTER);
  EXPECT_EQ(dialogs->Show(&object, &flags, nullptr, nullptr, nullptr, nullptr), E_POINTER);
  EXPECT_EQ(dialogs->ShowDataProperties(nullptr, nullptr, nullptr, nullptr, &result), E_POINTER);
  EXPECT_EQ(dialogs->ShowDataProperties(&object, nullptr, nullptr, nullptr, nullptr), E_POINTER);
  EXPECT_TRUE(shown.empty());
}

TEST_F(MapDialogsTest, EachMemberShowsItsDialog) {
  IDispatch* object = nullptr;
  EXPECT_EQ(dialogs->ShowProperties(&object, nullptr, nullptr, nullptr, &result), S_OK);
  EXPECT_EQ(dialogs->ShowLabels(&object, nullptr, nullptr, nullptr, &result), S_OK);
  EXPECT_EQ(dialogs->ShowCoordinates(&object, nullptr, nullptr, nullptr, &result), S_OK);
  EXPECT_EQ(dialogs->ShowLegends(&object, nullptr, nullptr, nullptr, nullptr, &result), S_OK);
  EXPECT_EQ(dialogs->ShowDataProperties(&object, nullptr, nullptr, nullptr, &result), S_OK);
  EXPECT_EQ(ShownNames(),
            (std::vector<std::string>{"frmProperties", "frmLabels", "frmCoordinates", "frmLegend", "frmDataDialog"}));
  EXPECT_EQ(result, 0);
}

TEST_F(MapDialogsTest, ShowOpensTheLayerManagerForMapsAndCollectionsAndTheSettingsForOthers) {
  const auto map = MakeCounted<ScriptObject>(
      std::map<std::string, Variant>{{"LayerCount", Variant(std::int32_t{0})}, {"Layer", Variant(std::int32_t{0})}});
  const auto layers = MakeCounted<ScriptObject>(std::map<std::string, Variant>{
      {"Name", Variant("Layers")}, {"Map", Variant(static_cast<IDispatch*>(map.Get()))}});
  const auto layer = MakeCounted<ScriptObject>(std::map<std::string, Variant>{{"Name", Variant("Roads")}});
  long flags = 3;
  for (IDispatch* object : {static_cast<IDispatch*>(map.Get()), static_cast<IDispatch*>(layers.Get()),
                            static_cast<IDispatch*>(layer.Get()), static_cast<IDispatch*>(nullptr)})
    EXPECT_EQ(dialogs->Show(&object, &flags, nullptr, nullptr, nullptr, &result), S_OK);
  EXPECT_EQ(ShownNames(), (std::vector<std::string>{"frmMapSettings", "frmMapSettings", "frmSettings", "frmSettings"}));
  EXPECT_EQ(result, 0);
}

TEST_F(MapDialogsTest, TheLayerManagerListsTheObjectsOfACollection) {
  const auto map = MakeCounted<ScriptObject>(
      std::map<std::string, Variant>{{"LayerCount", Variant(std::int32_t{0})}, {"Layer", Variant(std::int32_t{0})}});
  const auto layers = MakeCounted<ScriptObject>(std::map<std::string, Variant>{
      {"Name", Variant("Layers")}, {"Map", Variant(static_cast<IDispatch*>(map.Get()))}});
  long flags = 0;
  int rows = 0;
  std::string first;
  answer = [&](Form& form) {
    auto& list = dynamic_cast<TreeList&>(*form.Find("sftLayers"));
    rows = list.ListCount();
    if (rows > 0) first = list.Row(0).Text;
    form.UserClose();
  };
  IDispatch* object = layers.Get();
  ASSERT_EQ(dialogs->Show(&object, &flags, nullptr, nullptr, nullptr, &result), S_OK);
  EXPECT_EQ(rows, 1);
  EXPECT_EQ(first, "Layers");
}

TEST_F(MapDialogsTest, TheCaptionIsTakenAsItIsUnlessBlank) {
  IDispatch* object = nullptr;
  ASSERT_EQ(ShowProperties(nullptr), S_OK);
  for (const char* caption : {"   ", "", " Roads "}) {
    Bstr text(caption);
    BSTR given = text.Get();
    ASSERT_EQ(dialogs->ShowProperties(&object, &given, nullptr, nullptr, &result), S_OK);
  }
  ASSERT_EQ(shown.size(), 4u);
  EXPECT_EQ(shown[1], shown[0]);
  EXPECT_EQ(shown[2], shown[0]);
  EXPECT_EQ(shown[3], "frmProperties:  Roads ");
}

TEST_F(MapDialogsTest, EveryModeButZeroIsModal) {
  IDispatch* object = nullptr;
  for (const int mode : {1, 2, -1}) {
    auto given = static_cast<::FormShowMode>(mode);
    ASSERT_EQ(dialogs->ShowProperties(&object, nullptr, &given, nullptr, &result), S_OK);
  }
  EXPECT_EQ(shown.size(), 3u);
}

TEST_F(MapDialogsTest, TheObjectComesBackAsItWasAndIsLetGo) {
  const auto object = MakeCounted<ScriptObject>();
  IDispatch* given = object.Get();
  ASSERT_EQ(dialogs->ShowProperties(&given, nullptr, nullptr, nullptr, &result), S_OK);
  EXPECT_EQ(given, object.Get());
  EXPECT_EQ(ReferencesOf(object.Get()), 1u);
}

TEST_F(MapDialogsTest, AModelessDialogOutlivesTheServiceAndKeepsTheModule) {
  const auto object = MakeCounted<ScriptObject>();
  IDispatch* given = object.Get();
  auto mode = ::ShowModeless;
  ASSERT_EQ(dialogs->ShowProperties(&given, nullptr, &mode, nullptr, &result), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_TRUE(shown.empty());
  Desktop& desktop = ThreadContext::OfThread()->Screen();
  EXPECT_FALSE(desktop.OpenForms().empty());
  dialogs.Reset();
  EXPECT_TRUE(ThreadContext::StillOpen());
  EXPECT_GT(ReferencesOf(object.Get()), 1u);
  desktop.CloseOpenForms();
  EXPECT_FALSE(ThreadContext::StillOpen());
  EXPECT_EQ(ReferencesOf(object.Get()), 1u);
}

TEST_F(MapDialogsTest, AServiceMadeLaterFindsTheDialogsThatAreStillOpen) {
  IDispatch* none = nullptr;
  auto mode = ::ShowModeless;
  ASSERT_EQ(dialogs->ShowProperties(&none, nullptr, &mode, nullptr, &result), S_OK);
  Desktop* const desktop = &ThreadContext::OfThread()->Screen();
  dialogs.Reset();
  dialogs = Create();
  EXPECT_EQ(&ThreadContext::OfThread()->Screen(), desktop);
  desktop->CloseOpenForms();
  EXPECT_EQ(ShowProperties(nullptr), S_OK);
  EXPECT_EQ(shown.size(), 1u);
}

/// Shows a modeless dialog in a thread that ends without closing it, and returns its number.
DWORD LeaveDialogOpen() {
  DWORD number = 0;
  std::thread([&] {
    number = GetCurrentThreadId();
    IDispatch* object = nullptr;
    const auto service = MakeCounted<MapDialogs>();
    auto mode = ::ShowModeless;
    long answer = 0;
    EXPECT_EQ(service->ShowProperties(&object, nullptr, &mode, nullptr, &answer), S_OK);
    EXPECT_EQ(ThreadContext::OfThread()->Screen().OpenForms().size(), 1u);
  }).join();
  return number;
}

TEST_F(MapDialogsTest, WhatAThreadLeavesOpenWhenItEndsDoesNotKeepTheModule) {
  LeaveDialogOpen();
  EXPECT_FALSE(ThreadContext::StillOpen());
}

TEST_F(MapDialogsTest, AThreadInheritsNothingFromAnEarlierOneWithItsNumber) {
  const DWORD number = LeaveDialogOpen();
  // From here on the system may give the number again, which takes some hundred threads.
  ThreadContext::StillOpen();
  bool isSame = false;
  for (int thread = 0; thread < 5000 && !isSame; ++thread)
    std::thread([&] {
      isSame = GetCurrentThreadId() == number;
      EXPECT_TRUE(!isSame || ThreadContext::OfThread()->Screen().OpenForms().empty());
    }).join();
  EXPECT_TRUE(isSame);
}

TEST_F(MapDialogsTest, AServiceThatIsLetGoFromItsOwnDialogLivesToTheEndOfTheCall) {
  answer = [this](Form&) { dialogs.Reset(); };
  ::_CCommonMapDialogs* const plain = dialogs.Get();
  IDispatch* object = nullptr;
  EXPECT_EQ(plain->ShowProperties(&object, nullptr, nullptr, nullptr, &result), S_OK);
  EXPECT_EQ(result, 0);
  EXPECT_FALSE(ThreadContext::StillOpen());
}

TEST_F(MapDialogsTest, AnOwnerOfTheWrongKindShowsNothing) {
  Variant owner("Main window");
  EXPECT_EQ(ShowProperties(nullptr, &owner), CodeOf(kErrorTypeMismatch));
  EXPECT_NE(TakenErrorText().find("OwnerForm"), std::string::npos);
  EXPECT_TRUE(shown.empty());
  EXPECT_EQ(result, 0);
}

TEST_F(MapDialogsTest, OwnersThatAMemberDoesNotUseAreNotAsked) {
  const auto window = MakeCounted<ScriptObject>(std::map<std::string, Variant>{{"hWnd", Variant(std::int32_t{0})}});
  for (Variant owner : {Variant(window.Get()), Variant("Main window")}) {
    for (const auto& object :
         {MakeCounted<ScriptObject>(),
          MakeCounted<ScriptObject>(std::map<std::string, Variant>{{"ClassifyMethod", Variant(std::int32_t{1})}})}) {
      IDispatch* given = object.Get();
      double low = 0;
      double high = 1;
      VARIANT_BOOL isDirty = VARIANT_FALSE;
      EXPECT_EQ(dialogs->ShowDataClassify(&given, &low, &high, ::ClassifyFlags(0), &isDirty, nullptr, nullptr, &owner,
                                          &result),
                S_OK);
      EXPECT_EQ(dialogs->ShowDataOptions(&given, nullptr, nullptr, &owner, &result), S_OK);
      EXPECT_EQ(dialogs->ShowGeoReference(&given, nullptr, nullptr, nullptr, &owner, &result), S_OK);
      EXPECT_EQ(result, 0);
    }
  }
  EXPECT_EQ(ShownNames(), (std::vector<std::string>{"frmDataClassify", "frmDataClassify"}));
  EXPECT_TRUE(window->Read.empty());
}

TEST_F(MapDialogsTest, OnlyAnObjectThatCanBeToldOfApplyIsACallBack) {
  std::vector<bool> applies;
  answer = [&](Form& form) { applies.push_back(form.Find("cmdApply")->Visible()); };
  const auto plain = MakeCounted<ScriptObject>();
  const auto callBack = MakeCounted<ScriptObject>(
      std::map<std::string, Variant>{{"ApplyNotify", Variant()}, {"RegisterNotify", Variant()}});
  for (const auto& object : {plain, callBack}) {
    IDispatch* given = object.Get();
    ASSERT_EQ(dialogs->putref_CallBack(&given), S_OK);
    ASSERT_EQ(ShowProperties(nullptr), S_OK);
    ComPtr<IDispatch> got;
    ASSERT_EQ(dialogs->get_CallBack(got.Out()), S_OK);
    EXPECT_EQ(got.Get(), object.Get());
  }
  EXPECT_EQ(applies, (std::vector<bool>{false, true}));
}

}  // namespace
}  // namespace orx::com::test
