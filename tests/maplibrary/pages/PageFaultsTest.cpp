// Hosts that fail in the middle of a page's work: what is locked, what is told, and that nothing else is lost.
#include <algorithm>
#include <map>

#include "tests/maplibrary/pages/PagesTest.h"
#include "tests/support/RecordedData.h"

namespace orx::test {
namespace {

/// A property of a page: its member of the host, the field that edits it, and the name of that field in messages.
struct Edited {
  PageKind Kind;
  std::string Member;
  std::string Field;
  std::string Name;
};

const std::vector<Edited>& EditedProperties() {
  static const std::vector<Edited> kProperties{
      {PageKind::Properties, "Name", "txtName", "Name"},
      {PageKind::Properties, "Visible", "chkVisible", "Visible"},
      {PageKind::Properties, "SymbolFont", "cboFont", "Font"},
      {PageKind::Properties, "SymbolCharacter", "txtCharacter", "Character"},
      {PageKind::Properties, "SymbolRotation", "txtRotation", "Rotation"},
      {PageKind::Properties, "SymbolSize", "txtSize", "Size"},
      {PageKind::LabelProperties, "ShowLabels", "chkShowLabels", "Show labels"},
      {PageKind::LabelProperties, "Content", "cboContent", "Content"},
      {PageKind::LabelProperties, "Position", "cboPosition", "Position"},
      {PageKind::LabelProperties, "LabelRotation", "txtRotation", "Rotation"},
      {PageKind::LabelProperties, "LabelFont", "cboFont", "Font"},
      {PageKind::LabelProperties, "LabelColor", "txtColor", "Hex"},
      {PageKind::Coordinates, "Left", "txtLeft", "Left"},
      {PageKind::Coordinates, "Right", "txtRight", "Right"},
      {PageKind::Coordinates, "Bottom", "txtBottom", "Bottom"},
      {PageKind::Coordinates, "Top", "txtTop", "Top"},
      {PageKind::Legends, "Title", "txtTitle", "1: Height, Title"},
      {PageKind::Legends, "Visible", "chkVisible", "1: Height, Visible"},
      {PageKind::Legends, "Corner", "cboCorner", "1: Height, Corner"},
      {PageKind::Legends, "Framed", "chkFramed", "1: Height, With a frame"},
      {PageKind::Legends, "TextSize", "txtTextSize", "1: Height, Text size"}};
  return kProperties;
}

/// Gives a field another value than the host holds.
void Edit(Control& field) {
  static const std::map<std::string, std::string> kTexts{
      {"txtName", "Relief"},   {"txtCharacter", "B"},  {"txtRotation", "10"}, {"txtSize", "20"},
      {"txtColor", "#00FF00"}, {"txtLeft", "-90"},     {"txtRight", "5"},     {"txtBottom", "30"},
      {"txtTop", "40"},        {"txtTitle", "Height"}, {"txtTextSize", "10"}, {"cboFont", "Verdana"}};
  const auto text = kTexts.find(field.Name());
  if (auto* const check = dynamic_cast<CheckBox*>(&field))
    check->Value(CheckedIf(!check->IsChecked()));
  else if (auto* const box = dynamic_cast<TextBox*>(&field); box && text != kTexts.end())
    box->Text(text->second);
  else if (auto* const combo = dynamic_cast<ComboBox*>(&field))
    text != kTexts.end() ? combo->Text(text->second) : combo->ListIndex(combo->ListIndex() == 0 ? 1 : 0);
}

/// What has no words of its own is named all the same.
std::string ReasonOf(const std::string& member, bool isNumber) {
  return isNumber ? "Unknown error" : member + " failed";
}

class PageFaults : public PagesTest {
 protected:
  /// The objects of a host, as they are at first.
  struct Hosts {
    Hosts() { Legends.Legends.emplace_back(Legends.Log, "Elevation"); }
    RecordedLayer Layer;
    RecordedLegends Legends;
  };

  Record& LogOf(PageKind kind) { return kind == PageKind::Legends ? hosts->Legends.Log : hosts->Layer.Log; }
  /// A page for new objects.
  std::shared_ptr<PageForm> MakeFor(PageKind kind) {
    hosts = std::make_unique<Hosts>();
    auto made = MakePage(kind);
    made->Page->Client(kind == PageKind::Legends ? &hosts->Legends : static_cast<HostObject*>(&hosts->Layer));
    return made;
  }
  static std::vector<Edited> PropertiesOf(PageKind kind) {
    std::vector<Edited> properties;
    for (const Edited& property : EditedProperties())
      if (property.Kind == kind) properties.push_back(property);
    return properties;
  }
  void EditAll(PageKind kind) {
    for (const Edited& property : PropertiesOf(kind)) Edit(*form->Find(property.Field));
  }
  static bool Wrote(const Record& log, const std::string& member) {
    return std::ranges::any_of(log.Calls, [&](const std::string& call) { return call.starts_with(member + "("); });
  }
  /// The boxes that `act` shows.
  template <class Act>
  std::vector<Message> BoxesIn(Act act) {
    std::vector<Message> boxes;
    script.Noted = &boxes;
    act();
    script.Noted = nullptr;
    return boxes;
  }
  static Message NotSaved(const std::string& lines, const std::string& title = "Page") {
    return {"Not everything could be saved:\r\n" + lines, title, MessageIcon::Exclamation};
  }

  std::unique_ptr<Hosts> hosts;
};

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

TEST_F(PageFaults, ADialogWithARefusedSettingEndsByItsRule) {
  layer.Log.Failing = {"SymbolSize="};
  InDialog("frmProperties", [this] {
    Type("txtName", "Relief");
    Type("txtSize", "20");
    script.ExpectMessage(NotSaved("Size: SymbolSize= failed", "Layer Properties"));
    Press("cmdOK");
    EXPECT_FALSE(form->Visible());
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
  });
  EXPECT_EQ(-1, service.ShowProperties(&layer));
  EXPECT_EQ(Calls{"Name(Relief)"}, layer.Log.Calls);
  EXPECT_EQ(std::vector{true}, callBack.Confirmed);
}

/// A layer whose every answer passes a plan: what it is, its data, and all properties of both.
struct PlannedLayer {
  explicit PlannedLayer(FaultPlan& plan) {
    Layer.Behind = &DataHost;
    Layer.Log.Faults = Data.Log.Faults = Host.Faults = DataHost.Faults = &plan;
  }

  RecordedLayer Layer;
  RecordedData Data;
  FaultyObject DataHost{[this](const std::type_info&) { return static_cast<IData*>(&Data); }};
  FaultyObject Host{[this](const std::type_info& wanted) -> HostInterface* {
    if (wanted == typeid(IExtent)) return &Layer.Extent;
    return static_cast<ILayer*>(&Layer);
  }};
};

class PageFaultsOfALayer : public PageFaults {
 protected:
  PlannedLayer* planned = nullptr;
  /// Shows the four pages of a layer, of which some call fails; edits all that can be edited and presses the button.
  void Show(FaultPlan& plan, const char* button) {
    PlannedLayer shown(plan);
    SilentCallBack heard;
    service.CallBack(&heard);
    const std::vector<Message> boxes = BoxesIn([&] {
      InDialog("frmSettings", [&] {
        for (Control* const control : form->All())
          if (control->Enabled()) Edit(*control);
        Press(button);
      });
      service.Show(&shown.Host, 0);
      script.Verify();
    });
    EXPECT_EQ(Pointer::Default, desktop().Pointer()) << plan.Failed();
    service.CallBack(&callBack);
    Heard = heard;
    Written = shown.Layer.Log.Calls;
    for (const std::string& call : shown.Data.Writes()) Written.push_back(call);
    Boxes = boxes;
  }

  SilentCallBack Heard;
  Calls Written;
  std::vector<Message> Boxes;
};

TEST_F(PageFaultsOfALayer, WhateverFailsTheDialogIsShownAndEndsByItsRule) {
  ForEachFault(
      [this](FaultPlan& plan) {
        Show(plan, "cmdOK");
        EXPECT_EQ(1U, Heard.Confirmed.size()) << plan.Failed();
        EXPECT_GE(4U, Boxes.size()) << plan.Failed();
        for (const Message& box : Boxes)
          EXPECT_TRUE(box.Text.starts_with("Not everything could be saved:")) << box.Text;
      },
      testDesktop().Patience() < 10000 ? 40 : 7);
}

TEST_F(PageFaultsOfALayer, WhateverFailsCancelWritesNothing) {
  ForEachFault(
      [this](FaultPlan& plan) {
        Show(plan, "cmdCancel");
        EXPECT_EQ(Calls{}, Written) << plan.Failed();
        EXPECT_EQ(std::vector<Message>{}, Boxes) << plan.Failed();
      },
      testDesktop().Patience() < 10000 ? 40 : 7);
}

/// Each page alone, without a window, for every single call.
class PageFaultsOfEachKind : public PageFaults, public testing::WithParamInterface<PageKind> {};

INSTANTIATE_TEST_SUITE_P(Kinds, PageFaultsOfEachKind,
                         testing::Values(PageKind::Properties, PageKind::LabelProperties, PageKind::Coordinates,
                                         PageKind::Legends, PageKind::DataProperties),
                         [](const auto& kind) { return PageKindName(kind.param); });

/// A page with a client of its kind that follows a plan.
struct PlannedPage {
  PlannedPage(PageFaults&, std::shared_ptr<PageForm> form, FaultPlan& plan, PageKind kind)
      : Layer(plan), Page(std::move(form)) {
    Legends.Legends.emplace_back(Legends.Log, "Elevation");
    Legends.Log.Faults = Map.Faults = &plan;
    HandleAllRequests(*Page->Page);
    Page->Page->Client(kind == PageKind::Legends ? &Map : &Layer.Host);
  }
  std::size_t Writes() const {
    return Layer.Layer.Log.Calls.size() + Layer.Data.Writes().size() + Legends.Log.Calls.size();
  }

  PlannedLayer Layer;
  RecordedLegends Legends;
  FaultyObject Map{[this](const std::type_info&) { return static_cast<ILegends*>(&Legends); }};
  std::shared_ptr<PageForm> Page;
};

TEST_P(PageFaultsOfEachKind, NoSingleFaultLeavesThePageOrKeepsASilence) {
  ForEachFault([this](FaultPlan& plan) {
    PlannedPage planned(*this, MakePage(GetParam()), plan, GetParam());
    std::size_t edits = 0;
    const std::vector<Message> boxes = BoxesIn([&] {
      planned.Page->Page->RefreshContents();
      for (const Edited& property : PropertiesOf(GetParam()))
        if (form->Find(property.Field)->Enabled()) Edit(*form->Find(property.Field)), ++edits;
      planned.Page->Page->SaveChanges();
    });
    // An edit is written, or the user is told.
    std::size_t told = 0;
    for (const Message& box : boxes)
      for (std::size_t at = 0; (at = box.Text.find("\r\n", at)) != std::string::npos; ++at) ++told;
    EXPECT_GE(1U, boxes.size());
    EXPECT_EQ(edits, planned.Writes() + told) << plan.Failed();
    EXPECT_EQ(planned.Writes() > 0, planned.Page->Page->IsDirty()) << plan.Failed();
    for (const char* const button : {"cmdClassify", "cmdOptions", "cmdShade", "cmdIsolines", "cmdGeoreference"})
      if (auto* const found = dynamic_cast<Button*>(form->Find(button)); found && found->Enabled())
        BoxesIn([&] { found->Click.Raise(); });
    planned.Page->Page->DiscardChanges();
  });
}

TEST_P(PageFaultsOfEachKind, AFormThatIsClosedByItsHostEndsTheSave) {
  const auto run = [this](FaultPlan& plan) {
    const auto made = MakePage(GetParam());
    const Form::Act act(*made);
    made->Load();
    PlannedPage planned(*this, made, plan, GetParam());
    int atUnload = -1;
    plan.WhenReached = [&] {
      made->Unload();
      atUnload = plan.Count();
    };
    const std::vector<Message> boxes = BoxesIn([&] {
      made->Page->RefreshContents();
      for (const Edited& property : PropertiesOf(GetParam())) Edit(*form->Find(property.Field));
      made->Page->ApplyChanges();
    });
    if (atUnload < 0) return;
    EXPECT_EQ(std::vector<Message>{}, boxes);
    EXPECT_EQ(atUnload, plan.Count()) << plan.Failed();
    made->Page->RefreshContents();
    made->Page->SaveChanges();
    EXPECT_EQ(atUnload, plan.Count()) << plan.Failed();
  };
  FaultPlan counting;
  run(counting);
  for (int at = 0; at < counting.Count(); ++at) {
    FaultPlan plan(at, Failure::Null, false);
    run(plan);
  }
}

}  // namespace
}  // namespace orx::test
