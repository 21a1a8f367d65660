// Hosts whose objects have the published interfaces: they are called by their slots, whatever their IDispatch can do.
#include "tests/com/support/SlotObjects.h"

#include <gtest/gtest.h>

#include "com/HostAdapters.h"
#include "com/Members.h"
#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "hostobjects/IData.h"
#include "hostobjects/IGridSettings.h"
#include "hostobjects/IMap.h"
#include "hostobjects/RunTimeError.h"
#include "tests/com/support/MapDialogsTest.h"

namespace orx::com::test {
namespace {

TEST(SlotHost, ALayerIsReadAndWritten) {
  const auto object = MakeCounted<SlotLayer>();
  object->Name = "Relief";
  object->SymbolCharacter = 108;
  const auto adapter = AdaptHostObject(object.Get());
  ASSERT_TRUE(QueryKind<orx::ILayer>(adapter.get()));
  auto& layer = *QueryKind<orx::ILayer>(adapter.get());
  EXPECT_EQ(layer.Name(), "Relief");
  EXPECT_EQ(layer.SymbolCharacter(), 108);
  EXPECT_FALSE(layer.Visible());
  EXPECT_EQ(layer.Data(), nullptr);
  layer.Name("H\xC3\xBCgel");
  layer.Visible(true);
  layer.SymbolRotation(45);
  EXPECT_EQ(object->Name, "H\xC3\xBCgel");
  EXPECT_EQ(object->Visible, VARIANT_TRUE);
  EXPECT_EQ(object->SymbolRotation, 45);
}

TEST(SlotHost, AMapGivesItsLayersAndTakesWhatIsDoneToThem) {
  const auto object = MakeCounted<SlotMap>();
  object->Only = ComPtr<IDispatch>(MakeCounted<SlotLayer>().Get());
  const auto adapter = AdaptHostObject(object.Get());
  ASSERT_TRUE(QueryKind<orx::IMap>(adapter.get()));
  auto& map = *QueryKind<orx::IMap>(adapter.get());
  EXPECT_EQ(map.LayerCount(), 1);
  EXPECT_EQ(map.LayerName(7), "Layer 7");
  EXPECT_TRUE(QueryKind<orx::ILayer>(map.Layer(1)));
  EXPECT_EQ(map.AddLayer("a.bil", ""), map.Layer(1));
  EXPECT_TRUE(map.MoveLayerUp(1));
  EXPECT_FALSE(map.MoveLayerDown(2));
  EXPECT_TRUE(map.RemoveLayer(1));
  EXPECT_EQ(object->Acts, "add a.bil up 1 down 2 remove 1 ");
  EXPECT_EQ(map.Extent(), nullptr);
}

TEST(SlotHost, ChoicesFontsAndColoursKeepTheirTypes) {
  const auto font = MakeCounted<SlotFont>();
  font->Name = "Arial";
  font->Size = 8.25F;
  font->Color = 0x80000005;
  const auto object = MakeCounted<SlotLabels>();
  object->Position = ::LabelLeft;
  object->LabelFont = ComPtr<IDispatch>(font.Get());
  const auto adapter = AdaptHostObject(object.Get());
  ASSERT_TRUE(QueryKind<orx::ILabels>(adapter.get()));
  auto& labels = *QueryKind<orx::ILabels>(adapter.get());
  EXPECT_EQ(labels.Position(), orx::LabelPosition::Left);
  labels.Content(orx::LabelContent::NameAndValue);
  EXPECT_EQ(object->Content, ::LabelNameAndValue);
  Font face = labels.LabelFont();
  EXPECT_EQ(face.Size, 8.25);
  face.Bold = true;
  face.Size = 11.5;
  labels.LabelFont(face);
  EXPECT_EQ(font->Bold, VARIANT_TRUE);
  EXPECT_EQ(font->Size, 11.5F);
  labels.LabelColor({0, 0, 255});
  EXPECT_EQ(font->Color, OLE_COLOR{0xFF0000});
}

TEST(SlotHost, AnExtendedInterfaceHasTheMembersOfItsBaseToo) {
  const auto object = MakeCounted<SlotShade>();
  object->ShadeVersion = 20;
  const auto adapter = AdaptHostObject(object.Get());
  ASSERT_TRUE(QueryKind<orx::ShadeSettings2>(adapter.get()));
  auto& shade = *QueryKind<orx::ShadeSettings2>(adapter.get());
  EXPECT_EQ(shade.ShadeVersion(), 20);
  shade.CombineColors(2);
  shade.Azimuth(315);
  shade.MaxIntensity(150);
  EXPECT_EQ(object->CombineColors, 2);
  EXPECT_EQ(object->Azimuth, 315);
  EXPECT_EQ(object->MaxIntensity, 150);
  double factor = 0;
  EXPECT_TRUE(shade.SuggestScaleFactor(factor));
  EXPECT_EQ(factor, 0.125);
}

TEST(SlotHost, ADataObjectGivesItsViews) {
  const auto object = MakeCounted<SlotData>();
  object->ClassCount = 5;
  object->MaximumOfData = 99.5;
  object->Shade = ComPtr<IDispatch>(MakeCounted<SlotShade>().Get());
  const auto adapter = AdaptHostObject(object.Get());
  ASSERT_TRUE(QueryKind<orx::IData>(adapter.get()));
  EXPECT_EQ(QueryKind<orx::IData>(adapter.get())->ClassCount(), 5);
  EXPECT_EQ(QueryKind<orx::IData>(adapter.get())->MaximumOfData(), 99.5);
  EXPECT_TRUE(QueryKind<orx::ShadeSettings>(adapter.get()));
  EXPECT_FALSE(QueryKind<orx::IIsolines>(adapter.get()));
}

/// A page whose members are in slots. It counts what it is told to do.
class SlotPage final : public SlotObject<::IMapPropertyPage> {
 public:
  int Acts = 0;
  ORX_READ_SLOT(IDispatch*, Client)
  ORX_READ_SLOT(IDispatch*, Language)
  ORX_SLOT(VARIANT_BOOL, IsDirty)
  ORX_SLOT(long, StartUpIndex)
  ORX_SLOT(VARIANT_BOOL, Selected)

  HRESULT STDMETHODCALLTYPE putref_Client(IDispatch* value) noexcept override {
    Client = ComPtr<IDispatch>(value);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE putref_Language(IDispatch* value) noexcept override {
    Language = ComPtr<IDispatch>(value);
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE RefreshContents() noexcept override { return Count(); }
  HRESULT STDMETHODCALLTYPE SaveChanges() noexcept override { return Count(); }
  HRESULT STDMETHODCALLTYPE DiscardChanges() noexcept override { return Count(); }
  HRESULT STDMETHODCALLTYPE ApplyChanges() noexcept override { return Count(); }

 private:
  HRESULT Count() {
    ++Acts;
    return S_OK;
  }
};

TEST(SlotHost, APageTakesObjectsFlagsAndActs) {
  const auto page = MakeCounted<SlotPage>();
  const auto layer = MakeCounted<SlotLayer>();
  const auto members = Members::Of<::IMapPropertyPage>(page.Get());
  members.Put("Client", static_cast<IDispatch*>(layer.Get()));
  members.Put("Language", static_cast<IDispatch*>(nullptr));
  members.Put("Selected", true);
  EXPECT_EQ(page->Client.Get(), static_cast<IDispatch*>(layer.Get()));
  EXPECT_FALSE(page->Language);
  EXPECT_EQ(page->Selected, VARIANT_TRUE);
  EXPECT_FALSE(members.GetBool("IsDirty"));
  for (const char* const act : {"RefreshContents", "SaveChanges", "DiscardChanges", "ApplyChanges"}) members.Call(act);
  EXPECT_EQ(page->Acts, 4);
}

/// A layer whose name cannot be read.
class NamelessLayer final : public SlotLayer {
 public:
  HRESULT STDMETHODCALLTYPE get_Name(BSTR*) noexcept override {
    return Guarded("Host", [] { throw RunTimeError(kErrorFileFormat, "The name is broken"); });
  }
  HRESULT STDMETHODCALLTYPE put_Name(BSTR) noexcept override { return E_ACCESSDENIED; }
};

TEST(SlotHost, AnErrorOfASlotKeepsItsNumberAndDescription) {
  const auto adapter = AdaptHostObject(MakeCounted<NamelessLayer>().Get());
  auto& layer = *QueryKind<orx::ILayer>(adapter.get());
  try {
    layer.Name();
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), kErrorFileFormat);
    EXPECT_STREQ(error.what(), "The name is broken");
  }
  // The one without a description gets one of its own, not that of an earlier error.
  try {
    layer.Name("x");
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), E_ACCESSDENIED);
    EXPECT_EQ(std::string(error.what()).substr(0, 6), "Name: ");
  }
}

using SlotHostDialogs = MapDialogsTest;

TEST_F(SlotHostDialogs, LanguageAndCallBackServeTheDialogOnALayer) {
  const auto layer = MakeCounted<SlotLayer>();
  layer->Name = "Relief";
  const auto callBack = MakeCounted<SlotCallBack>();
  const auto language = MakeCounted<SlotLanguage>();
  language->EntryCount = 3;
  language->Text = "Text";
  IDispatch* given = callBack.Get();
  ASSERT_EQ(dialogs->putref_CallBack(&given), S_OK);
  given = language.Get();
  ASSERT_EQ(dialogs->putref_Language(&given), S_OK);
  answer = [](Form& form) {
    dynamic_cast<CheckBox&>(*form.Find("chkVisible")).UserToggle();
    dynamic_cast<Button&>(*form.Find("cmdOK")).UserPress();
  };
  EXPECT_EQ(ShowProperties(layer.Get()), S_OK);
  EXPECT_EQ(result, -1);
  EXPECT_EQ(layer->Visible, VARIANT_TRUE);
  EXPECT_EQ(callBack->Heard, "register ok ");
  EXPECT_GT(language->Forms, 0);
}

}  // namespace
}  // namespace orx::com::test
