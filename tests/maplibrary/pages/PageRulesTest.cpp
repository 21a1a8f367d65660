// What all pages have in common: the client, what counts as changed, discarding, and clients that fail.
#include "tests/maplibrary/pages/PagesTest.h"

namespace orx::test {
namespace {

class MapLibraryPagesRules : public PagesTest {
 protected:
  MapLibraryPagesRules() { legends.Legends.emplace_back(legends.Log, "Elevation"); }

  HostObject* ClientOf(PageKind kind) {
    return kind == PageKind::Legends ? &legends : static_cast<HostObject*>(&layer);
  }
  /// A page with its client read, not shown.
  std::shared_ptr<PageForm> MakeFilled(PageKind kind) {
    auto made = MakePage(kind);
    made->Page->Client(ClientOf(kind));
    made->Page->RefreshContents();
    return made;
  }
  std::vector<std::string> EnabledInputs() {
    std::vector<std::string> names;
    for (Control* control : form->Find("Page1")->AsContainer()->All())
      if (control->TakesFocus() && control->Enabled()) names.push_back(control->Name());
    return names;
  }

  RecordedLegends legends;
};

class MapLibraryPagesOfEachKind : public MapLibraryPagesRules, public testing::WithParamInterface<PageKind> {};

INSTANTIATE_TEST_SUITE_P(Kinds, MapLibraryPagesOfEachKind,
                         testing::Values(PageKind::Properties, PageKind::LabelProperties, PageKind::Coordinates,
                                         PageKind::Legends),
                         [](const auto& kind) { return PageKindName(kind.param); });

TEST_P(MapLibraryPagesOfEachKind, APageWithoutAClientIsEmptyAndDisabled) {
  const auto page = MakePage(GetParam());
  page->Page->RefreshContents();
  EXPECT_EQ(Calls{}, EnabledInputs());
  page->Page->SaveChanges();
  page->Page->ApplyChanges();
  page->Page->DiscardChanges();
  EXPECT_FALSE(page->Page->IsDirty());
}

TEST_P(MapLibraryPagesOfEachKind, AClientWithoutWhatThePageEditsDisablesIt) {
  PlainObject other;
  const auto page = MakeFilled(GetParam());
  EXPECT_NE(Calls{}, EnabledInputs());
  page->Page->Client(&other);
  page->Page->RefreshContents();
  EXPECT_EQ(Calls{}, EnabledInputs());
  page->Page->SaveChanges();
  EXPECT_FALSE(page->Page->IsDirty());
}

TEST_P(MapLibraryPagesOfEachKind, SavingBeforeTheClientWasReadWritesNothing) {
  const auto page = MakePage(GetParam());
  page->Page->Client(ClientOf(GetParam()));
  page->Page->SaveChanges();
  EXPECT_EQ(Calls{}, layer.Log.Calls);
  EXPECT_EQ(Calls{}, legends.Log.Calls);
}

TEST_P(MapLibraryPagesOfEachKind, SavingAFilledPageCallsNoSetter) {
  const auto page = MakeFilled(GetParam());
  page->Page->ApplyChanges();
  page->Page->SaveChanges();
  EXPECT_EQ(Calls{}, layer.Log.Calls);
  EXPECT_EQ(Calls{}, legends.Log.Calls);
  EXPECT_FALSE(page->Page->IsDirty());
}

TEST_P(MapLibraryPagesOfEachKind, EachInputHasAnAccessibleName) {
  const auto page = MakePage(GetParam());
  for (Control* control : page->Tabs.Page(0).All()) {
    if (!control->TakesFocus()) continue;
    const std::string name = control->AccessibleName();
    EXPECT_FALSE(name.empty()) << control->Name();
    EXPECT_NE("Page", name) << control->Name();
  }
}

TEST_P(MapLibraryPagesOfEachKind, ControlsLieInsideTheirContainersAndApart) {
  const auto page = MakePage(GetParam());
  const Size size = GetParam() == PageKind::Legends ? Size{5835, 3525} : Size{6135, 4545};
  const auto apart = [](const Rect& a, const Rect& b) {
    return a.Right() <= b.Left || b.Right() <= a.Left || a.Bottom() <= b.Top || b.Bottom() <= a.Top;
  };
  for (Control* control : page->Find("Page1")->AsContainer()->All()) {
    const Control* outer = control->Parent().ContainerControl();
    const Size room = outer->Name() == "Page1" ? size : Size{outer->Place().Width, outer->Place().Height};
    EXPECT_LE(control->Place().Right(), room.Width - 120) << control->Name();
    EXPECT_LE(control->Place().Bottom(), room.Height - 120) << control->Name();
    for (const Control* other : control->Parent().Children())
      EXPECT_TRUE(other == control || apart(control->Place(), other->Place())) << control->Name() << other->Name();
  }
}

TEST_F(MapLibraryPagesRules, AnEditIsNotDirtyUntilItIsWritten) {
  const auto page = MakeFilled(PageKind::Properties);
  Field("txtName").Text("Relief");
  EXPECT_FALSE(page->Page->IsDirty());
  page->Page->ApplyChanges();
  EXPECT_TRUE(page->Page->IsDirty());
  page->Page->SaveChanges();
  EXPECT_TRUE(page->Page->IsDirty());
  page->Page->IsDirty(false);
  page->Page->SaveChanges();
  EXPECT_FALSE(page->Page->IsDirty());
  EXPECT_EQ(Calls{"Name(Relief)"}, layer.Log.Calls);
}

TEST_F(MapLibraryPagesRules, DiscardingShowsTheClientsValuesAgain) {
  const auto page = MakeFilled(PageKind::Properties);
  Field("txtName").Text("Relief");
  Field("txtSize").Text("99");
  page->Page->DiscardChanges();
  EXPECT_EQ("Elevation", Field("txtName").Text());
  page->Page->SaveChanges();
  EXPECT_EQ(Calls{}, layer.Log.Calls);
}

TEST_F(MapLibraryPagesRules, DiscardingAfterApplyKeepsWhatWasApplied) {
  const auto page = MakeFilled(PageKind::Properties);
  Field("txtName").Text("Relief");
  page->Page->ApplyChanges();
  Field("txtName").Text("Other");
  page->Page->DiscardChanges();
  EXPECT_EQ("Relief", Field("txtName").Text());
  EXPECT_TRUE(page->Page->IsDirty());
}

TEST_F(MapLibraryPagesRules, CancelWritesNothingAndReturnsZero) {
  InDialog("frmProperties", [this] {
    Type("txtName", "Relief");
    Press("cmdCancel");
  });
  EXPECT_EQ(0, service.ShowProperties(&layer));
  EXPECT_EQ(Calls{}, layer.Log.Calls);
}

TEST_F(MapLibraryPagesRules, ApplyTellsTheCallBackWhetherSomethingWasWritten) {
  InDialog("frmProperties", [this] {
    Press("cmdApply");
    Toggle("chkVisible");
    Press("cmdApply");
  });
  EXPECT_EQ(-1, service.ShowProperties(&layer));
  EXPECT_EQ((std::vector<bool>{false, true}), callBack.Applied);
}

TEST_F(MapLibraryPagesRules, AnEntryTypedAndConfirmedByEnterIsWritten) {
  InDialog("frmProperties", [this] {
    Type("txtSize", "20");
    user.Press(*form, kEnter);
  });
  EXPECT_EQ(-1, service.ShowProperties(&layer));
  EXPECT_EQ(Calls{"SymbolSize(20)"}, layer.Log.Calls);
}

TEST_F(MapLibraryPagesRules, ASaveWithAnEntryThatIsRefusedWritesNothingAtAll) {
  const auto page = MakeFilled(PageKind::Properties);
  Field("txtName").Text("Relief");
  Field("txtSize").Text("much");
  ExpectRefusal("Invalid number", "Size: \"much\" is not a number. Type a number from 1 to 144.");
  page->Page->SaveChanges();
  EXPECT_EQ(Calls{}, layer.Log.Calls);
  EXPECT_EQ("12", Field("txtSize").Text());
  EXPECT_TRUE(Field("txtSize").HasFocus());
}

TEST_F(MapLibraryPagesRules, AGetterThatFailsLocksItsFieldAndLeavesThePageUsable) {
  const auto page = MakePage(PageKind::Properties);
  page->Page->Client(&layer);
  layer.Log.Failing = {"SymbolSize"};
  page->Page->RefreshContents();
  EXPECT_FALSE(Field("txtSize").Enabled());
  EXPECT_EQ("", Field("txtSize").Text());
  EXPECT_NE(Calls{}, EnabledInputs());
  page->Page->SaveChanges();
  EXPECT_EQ(Calls{}, layer.Log.Calls);
  layer.Log.Failing.clear();
  page->Page->RefreshContents();
  EXPECT_EQ("12", Field("txtSize").Text());
  EXPECT_TRUE(Field("txtSize").Enabled());
}

TEST_F(MapLibraryPagesRules, AGetterThatFailsLaterKeepsNoOtherFieldFromBeingRead) {
  const auto page = MakeFilled(PageKind::LabelProperties);
  layer.HeldLabelRotation = 90;
  layer.Log.Failing = {"LabelColor"};
  page->Page->RefreshContents();
  EXPECT_EQ("90", Field("txtRotation").Text());
  EXPECT_FALSE(Get<ComboBox>("cboColor").Enabled());
  layer.Log.Failing.clear();
  page->Page->RefreshContents();
  // Not busy any more: a choice is followed by the preview.
  Get<ComboBox>("cboColor").ListIndex(5);
  EXPECT_EQ("#0000FF", Field("txtColor").Text());
}

TEST_F(MapLibraryPagesRules, ASetterThatFailsIsToldAndWhatWasWrittenCounts) {
  const auto page = MakeFilled(PageKind::Properties);
  Field("txtName").Text("Relief");
  Field("txtSize").Text("20");
  layer.Log.Failing = {"SymbolSize="};
  ExpectRefusal("Page", "Not everything could be saved:\r\nSize: SymbolSize= failed");
  page->Page->SaveChanges();
  EXPECT_TRUE(page->Page->IsDirty());
  layer.Log.Failing.clear();
  page->Page->SaveChanges();
  EXPECT_EQ((Calls{"Name(Relief)", "SymbolSize(20)"}), layer.Log.Calls);
}

TEST_F(MapLibraryPagesRules, ASetterThatFailsFirstIsNoChange) {
  const auto page = MakeFilled(PageKind::Coordinates);
  Field("txtTop").Text("40");
  layer.Log.Failing = {"Top="};
  ExpectRefusal("Page", "Not everything could be saved:\r\nTop: Top= failed");
  page->Page->ApplyChanges();
  EXPECT_FALSE(page->Page->IsDirty());
  EXPECT_EQ("40", Field("txtTop").Text());
}

}  // namespace
}  // namespace orx::test
