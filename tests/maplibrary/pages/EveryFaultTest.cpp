// Each single call of a page into its host fails once: the dialog goes on, nothing travels, and the user hears of it.
#include "tests/maplibrary/pages/PageFaults.h"

namespace orx::test {
namespace {

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
    SilentCallBack listener;
    service.CallBack(&listener);
    const std::vector<Message> shownBoxes = BoxesIn([&] {
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
    heard = listener;
    written = shown.Layer.Log.Calls;
    for (const std::string& call : shown.Data.Writes()) written.push_back(call);
    boxes = shownBoxes;
  }

  SilentCallBack heard;
  Calls written;
  std::vector<Message> boxes;
};

TEST_F(PageFaultsOfALayer, WhateverFailsTheDialogIsShownAndEndsByItsRule) {
  ForEachFault(
      [this](FaultPlan& plan) {
        Show(plan, "cmdOK");
        EXPECT_EQ(1U, heard.Confirmed.size()) << plan.Failed();
        EXPECT_GE(4U, boxes.size()) << plan.Failed();
        for (const Message& box : boxes)
          EXPECT_TRUE(box.Text.starts_with("Not everything could be saved:")) << box.Text;
      },
      testDesktop().Patience() < 10000 ? 40 : 7);
}

TEST_F(PageFaultsOfALayer, WhateverFailsCancelWritesNothing) {
  ForEachFault(
      [this](FaultPlan& plan) {
        Show(plan, "cmdCancel");
        EXPECT_EQ(Calls{}, written) << plan.Failed();
        EXPECT_EQ(std::vector<Message>{}, boxes) << plan.Failed();
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
  for (int at = 0; at < counting.Count(); at += CallStride()) {
    FaultPlan plan(at, Failure::Null, false);
    run(plan);
  }
}

}  // namespace
}  // namespace orx::test
