// Properties that a host fails to give or to take: what is locked, what is told, and that nothing else is lost.
#include "languages/TextLanguage.h"
#include "pages/PageTexts.h"
#include "tests/maplibrary/pages/PageFaults.h"

namespace orx::test {
namespace {

TEST_F(PageFaults, APropertyThatCannotBeReadIsLockedWithTheReasonAndTheOthersWork) {
  for (const bool isNumber : {false, true})
    for (const Edited& broken : EditedProperties()) {
      SCOPED_TRACE(broken.Member);
      const auto page = MakeFor(broken.Kind);
      Record& log = LogOf(broken.Kind);
      log.Failing = {broken.Member};
      log.ThrowsNumbers = isNumber;
      page->Page->RefreshContents();
      for (const Edited& property : PropertiesOf(broken.Kind)) {
        const bool isLocked = property.Member == broken.Member;
        EXPECT_EQ(!isLocked, form->Find(property.Field)->Enabled()) << property.Member;
        EXPECT_EQ(isLocked ? "Cannot be read: " + ReasonOf(broken.Member, isNumber) : "",
                  form->Find(property.Field)->ToolTipText());
      }
      // What a program puts into the locked field reaches nobody.
      EditAll(broken.Kind);
      page->Page->SaveChanges();
      EXPECT_EQ(PropertiesOf(broken.Kind).size() - 1, log.Calls.size());
      EXPECT_FALSE(Wrote(log, broken.Member));
      log.Failing.clear();
      page->Page->RefreshContents();
      if (broken.Kind == PageKind::LabelProperties) Get<CheckBox>("chkShowLabels").Value(CheckState::Checked);
      EXPECT_TRUE(form->Find(broken.Field)->Enabled());
      EXPECT_EQ("", form->Find(broken.Field)->ToolTipText());
    }
}

TEST_F(PageFaults, APropertyThatCannotBeWrittenIsToldOnceAndTheOthersAreWritten) {
  for (const bool isNumber : {false, true})
    for (const Edited& broken : EditedProperties()) {
      SCOPED_TRACE(broken.Member);
      const auto page = MakeFor(broken.Kind);
      Record& log = LogOf(broken.Kind);
      page->Page->RefreshContents();
      EditAll(broken.Kind);
      log.Failing = {broken.Member + "="};
      log.ThrowsNumbers = isNumber;
      EXPECT_EQ(std::vector{NotSaved(broken.Name + ": " + ReasonOf(broken.Member + "=", isNumber))},
                BoxesIn([&] { page->Page->SaveChanges(); }));
      EXPECT_EQ(PropertiesOf(broken.Kind).size() - 1, log.Calls.size());
      EXPECT_FALSE(Wrote(log, broken.Member));
      EXPECT_TRUE(page->Page->IsDirty());
      log.Failing.clear();
      log.Calls.clear();
      EXPECT_EQ(std::vector<Message>{}, BoxesIn([&] { page->Page->ApplyChanges(); }));
      EXPECT_EQ(1U, log.Calls.size());
      EXPECT_TRUE(Wrote(log, broken.Member));
    }
}

TEST_F(PageFaults, AnEdgeDoesNotPassTheOneThatWasRefused) {
  const auto page = MakeFor(PageKind::Coordinates);
  hosts->Layer.Extent.HeldLeft = 0;
  hosts->Layer.Extent.HeldRight = 10;
  page->Page->RefreshContents();
  Field("txtLeft").Text("20");
  Field("txtRight").Text("30");
  hosts->Layer.Log.Failing = {"Right="};
  EXPECT_EQ(std::vector{NotSaved("Left: Right= failed\r\nRight: Right= failed")},
            BoxesIn([&] { page->Page->ApplyChanges(); }));
  EXPECT_EQ(Calls{}, hosts->Layer.Log.Calls);
  EXPECT_EQ("20", Field("txtLeft").Text());
  hosts->Layer.Log.Failing.clear();
  page->Page->ApplyChanges();
  EXPECT_EQ((Calls{"Right(30)", "Left(20)"}), hosts->Layer.Log.Calls);
}

TEST_F(PageFaults, AnEdgeBesideAnUnreadableOneIsFree) {
  const auto page = MakeFor(PageKind::Coordinates);
  hosts->Layer.Log.Failing = {"Right"};
  page->Page->RefreshContents();
  EXPECT_EQ("", Field("txtWidth").Text());
  Field("txtLeft").Text("50");
  page->Page->SaveChanges();
  EXPECT_EQ(Calls{"Left(50)"}, hosts->Layer.Log.Calls);
}

TEST_F(PageFaults, APropertyOfALegendThatCannotBeReadIsFreeAgainWithTheNextLook) {
  const auto page = MakeFor(PageKind::Legends);
  hosts->Legends.Log.Failing = {"Title"};
  page->Page->RefreshContents();
  hosts->Legends.Log.Failing.clear();
  EXPECT_FALSE(Field("txtTitle").Enabled());
  EXPECT_TRUE(Field("txtTextSize").Enabled());
  page->Page->RefreshContents();
  EXPECT_TRUE(Field("txtTitle").Enabled());
}

TEST_F(PageFaults, AClientThatFailsToTellWhatItHasLeavesThePageEmptyAndSaysWhy) {
  const auto page = MakeFor(PageKind::Legends);
  page->Page->RefreshContents();
  hosts->Legends.Log.Failing = {"LegendCount"};
  page->Page->RefreshContents();
  EXPECT_FALSE(Field("txtTitle").Enabled());
  EXPECT_EQ("Cannot be read: LegendCount failed", Field("txtTitle").ToolTipText());
  page->Page->SaveChanges();
  EXPECT_EQ(Calls{}, hosts->Legends.Log.Calls);
  hosts->Legends.Log.Failing.clear();
  page->Page->RefreshContents();
  EXPECT_TRUE(Field("txtTitle").Enabled());
  EXPECT_EQ("", Field("txtTitle").ToolTipText());
}

TEST_F(PageFaults, AClientWithNothingToEditSaysSo) {
  const auto page = MakeFor(PageKind::DataProperties);
  page->Page->RefreshContents();
  EXPECT_EQ("There is nothing to edit here.", Field("txtFile").ToolTipText());
}

TEST_F(PageFaults, WhatShowsSeveralPropertiesIsLockedWithEachOfThem) {
  for (const std::string member : {"MinValue", "MaxValue", "ValueFormat"}) {
    RecordedData data;
    data.Log.Failing = {member};
    const auto page = MakePage(PageKind::DataProperties);
    page->Page->Client(&data);
    page->Page->RefreshContents();
    EXPECT_FALSE(Field("txtRange").Enabled()) << member;
    EXPECT_EQ("", Field("txtRange").Text()) << member;
    EXPECT_EQ("Cannot be read: " + member + " failed", Field("txtRange").ToolTipText());
    EXPECT_TRUE(Field("txtCount").Enabled()) << member;
    EXPECT_EQ("4", Field("txtCount").Text()) << member;
    EXPECT_EQ(member != "ValueFormat", Field("txtFormat").Enabled()) << member;
  }
}

TEST_F(PageFaults, AButtonForDataThatAreGoneSaysSo) {
  RecordedData data;
  FaultyObject host{[&](const std::type_info&) { return static_cast<IData*>(&data); }};
  const auto page = MakePage(PageKind::DataProperties);
  page->Page->Client(&host);
  int asked = 0;
  page->Page->ClassifyRequested = [&](ClassifyRequest&) { ++asked; };
  page->Page->OptionsRequested = [&](DataRequest&) { ++asked; };
  page->Page->RefreshContents();
  for (const char* const button : {"cmdClassify", "cmdOptions"})
    for (const Failure failure : {Failure::Error, Failure::Number, Failure::Null}) {
      FaultPlan plan(0, failure, true);
      host.Faults = &plan;
      const std::string reason = failure == Failure::Error    ? "ViewFor failed"
                                 : failure == Failure::Number ? "Unknown error"
                                                              : "The object does not answer.";
      EXPECT_EQ((std::vector<Message>{{"This cannot be done: " + reason, "Page", MessageIcon::Exclamation}}),
                BoxesIn([&] { Get<Button>(button).Click.Raise(); }));
      host.Faults = nullptr;
    }
  EXPECT_EQ(0, asked);
}

TEST_F(PageFaults, TheLanguageSpeaksOfFaultsToo) {
  languages::TextLanguage german{std::filesystem::path(ORX_DATA_DIR "/languages/de.txt")};
  const auto page = MakeFor(PageKind::Properties);
  page->Page->Language(&german);
  hosts->Layer.Log.Failing = {"SymbolSize", "Name="};
  hosts->Layer.Log.ThrowsNumbers = true;
  page->Page->RefreshContents();
  EXPECT_EQ("Kann nicht gelesen werden: Unbekannter Fehler", Field("txtSize").ToolTipText());
  Field("txtName").Text("Relief");
  EXPECT_EQ((std::vector<Message>{{"Nicht alles konnte gespeichert werden:\r\nName: Unbekannter Fehler", "Page",
                                   MessageIcon::Exclamation}}),
            BoxesIn([&] { page->Page->SaveChanges(); }));
}

/// Fails at every text once it has been set.
class FailingLanguage final : public languages::FormLanguage {
 public:
  std::int32_t EntryCount() override { return 1; }
  std::string TranslateText(const std::string& key) override {
    // Lists are translated before.
    if (Fails && key == pages::pagetexts::kNothingToEdit) throw std::runtime_error(key);
    return key;
  }
  bool Fails = false;
};

TEST_F(PageFaults, ALanguageThatFailsKeepsNothingFromBeingReadAndNothingIsWrittenForIt) {
  FailingLanguage language;
  service.Language(&language);
  language.Fails = true;
  InDialog("frmLabels", [this] {
    EXPECT_EQ("9", Seen("txtSize"));
    EXPECT_EQ("Name", Seen("cboContent"));
  });
  EXPECT_EQ(0, service.ShowLabels(&layer));
  EXPECT_EQ(Calls{}, layer.Log.Calls);
}

TEST_F(PageFaults, ADialogWithARefusedSettingEndsByItsRule) {
  layer.Log.Failing = {"SymbolSize="};
  InDialog("frmProperties", [this] {
    Type("txtName", "Relief");
    Type("txtSize", "20");
    script.ExpectMessage(NotSaved("Size: SymbolSize= failed", "Layer Properties"));
    script.WhenMessageIsUp = [this] { EXPECT_EQ(Pointer::Default, desktop().Pointer()); };
    Press("cmdOK");
    EXPECT_FALSE(form->Visible());
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
  });
  EXPECT_EQ(-1, service.ShowProperties(&layer));
  EXPECT_EQ(Calls{"Name(Relief)"}, layer.Log.Calls);
  EXPECT_EQ(std::vector{true}, callBack.Confirmed);
}

}  // namespace
}  // namespace orx::test
