// The layer manager while its host lets the user act in the middle of a call, or changes the map by itself.
#include "tests/reentry/ReentryTest.h"

namespace orx::test {
namespace {

class LayerManagerReentry : public Reentry {
 protected:
  /// The calls of the map that the buttons beside the list make.
  struct Button {
    const char* Name;
    const char* Call;
  };
  static constexpr Button kButtons[] = {
      {"cmdUp", "MoveLayerUp"}, {"cmdDown", "MoveLayerDown"}, {"cmdRemove", "RemoveLayer"}};
};

TEST_F(LayerManagerReentry, TheCloseBoxWhileTheMapChangesEndsTheDialogAndTheChangeIsTheResult) {
  for (const Button& button : kButtons) {
    SCOPED_TRACE(button.Name);
    EXPECT_EQ(-1, Show([&](frmMapSettings& form) {
      user.Click(form.sftLayers, 1);
      During(button.Call, [&] { user.CloseBox(form); });
      Press(form, button.Name);
      EXPECT_FALSE(form.Visible());
    }));
  }
}

TEST_F(LayerManagerReentry, TheCloseBoxWhileTheListIsReadEndsTheDialog) {
  for (const char* const call : {"LayerCount", "LayerName", "Layer", "ViewFor"}) {
    SCOPED_TRACE(call);
    Show([&](frmMapSettings& form) {
      user.Click(form.sftLayers, 1);
      During(call, [&] { user.CloseBox(form); });
      Press(form, "cmdDown");
      EXPECT_FALSE(form.Visible());
    });
  }
}

TEST_F(LayerManagerReentry, AnotherPressWhileTheMapChangesComesToNothing) {
  EXPECT_EQ(-1, Show([&](frmMapSettings& form) {
    user.Click(form.sftLayers, 1);
    During("RemoveLayer", [&] { user.Click(form.cmdRemove); });
    user.Click(form.cmdRemove);
    EXPECT_EQ((Texts{"Roads", "Terrain"}), map.Names());
    EXPECT_EQ((Texts{"Roads", "Terrain"}), Rows(form));
    Press(form, "cmdOK");
  }));
}

TEST_F(LayerManagerReentry, ARowThatTheUserSelectsWhileAnotherIsReadStaysSelected) {
  Show([&](frmMapSettings& form) {
    During("Layer", [&] { user.Click(form.sftLayers, 2); });
    user.Click(form.sftLayers, 1);
    EXPECT_EQ(2, Selected(form));
    EXPECT_EQ("Terrain", Shown());
    EXPECT_EQ(3, form.SelectedLayer());
  });
}

TEST_F(LayerManagerReentry, ALayerThatHasGoneIsTakenFromTheListAndTheNearestOneSelected) {
  const auto form = std::make_shared<frmMapSettings>(desktop(), pages);
  form->RegisterClient(&map, {});
  script.ExpectForm("frmMapSettings", [&](Form&) {
    map.Layers.pop_back();
    user.Click(form->sftLayers, 2);
    EXPECT_EQ(1, script.Beeps);
    EXPECT_EQ((Texts{"Roads", "Rivers"}), Rows(*form));
    EXPECT_EQ(1, Selected(*form));
    EXPECT_EQ("Rivers", Shown());
    Press(*form, "cmdOK");
  });
  // An error would end the loop and come out here.
  EXPECT_NO_THROW(form->Show());
  form->Unload();
}

TEST_F(LayerManagerReentry, ALayerThatIsNullHasGoneToo) {
  Show([&](frmMapSettings& form) {
    FaultPlan plan(0, Failure::Null, true);
    map.Faults = &plan;
    user.Click(form.sftLayers, 2);
    EXPECT_EQ(1, script.Beeps);
    EXPECT_EQ("none", Shown());
    EXPECT_EQ(kMayNotMove, Moving(form));
  });
}

TEST_F(LayerManagerReentry, AButtonForALayerThatHasGoneShowsTheListAsItIs) {
  for (const Button& button : kButtons) {
    SCOPED_TRACE(button.Name);
    Fill({"Peaks"});
    Show([&](frmMapSettings& form) {
      const int last = static_cast<int>(map.Layers.size()) - 1;
      user.Click(form.sftLayers, last);
      map.Layers.pop_back();
      map.Answers = [](const std::string& member) { return !member.starts_with("Move") && member != "RemoveLayer"; };
      Press(form, button.Name);
      map.Answers = nullptr;
      EXPECT_EQ(map.Names(), Rows(form));
      EXPECT_TRUE(form.Visible());
      EXPECT_LT(Selected(form), last);
    });
  }
}

TEST_F(LayerManagerReentry, AManagerAboveMayChangeTheMap) {
  EXPECT_EQ(-1, Show([&](frmMapSettings& form) {
    user.Click(form.sftLayers, 2);
    const auto own = pages.Made;
    During("CallBack.ApplyNotify", [&] {
      EXPECT_EQ(-1, Show([&](frmMapSettings& above) {
        user.Click(above.sftLayers, 2);
        user.Click(above.cmdRemove);
        Press(above, "cmdOK");
      }));
      pages.Made = own;
    });
    Press(form, "cmdApply");
    user.Click(form.sftLayers, 2);
    EXPECT_EQ((Texts{"Roads", "Rivers"}), Rows(form));
    EXPECT_EQ("Rivers", Shown());
    user.Click(form.cmdUp);
    Press(form, "cmdOK");
  }));
}

/// A map whose only layers are itself.
class Ouroboros final : public HostObject, public IMap {
 public:
  std::int32_t LayerCount() override { return 2; }
  std::string LayerName(std::int32_t index) override { return "Self " + std::to_string(index); }
  HostObject* Layer(std::int32_t) override { return this; }
  HostObject* AddLayer(const std::string&, const std::string&) override { return nullptr; }
  bool RemoveLayer(std::int32_t) override { return false; }
  bool MoveLayerUp(std::int32_t) override { return false; }
  bool MoveLayerDown(std::int32_t) override { return false; }
  IExtent* Extent() override { return nullptr; }
};

TEST_F(LayerManagerReentry, AMapThatContainsItselfIsListedWithItsTilesOnce) {
  Ouroboros self;
  Show(self, [&](frmMapSettings& form) {
    EXPECT_EQ(6, form.sftLayers.ListCount());
    Press(form, "cmdOK");
  });
}

TEST_F(LayerManagerReentry, AFailingPageEndsNoSelection) {
  const auto form = std::make_shared<frmMapSettings>(desktop(), pages);
  form->RegisterClient(&map, {});
  script.ExpectForm("frmMapSettings", [&](Form&) {
    log.Failing = {"Properties.Client", "Coordinates.RefreshContents", "LabelProperties.Selected"};
    user.Click(form->sftLayers, 2);
    log.Failing.clear();
    EXPECT_EQ("Terrain", NameOf(Page(PageKind::DataProperties).Client()));
    EXPECT_EQ(kMayMove, Moving(*form));
    Press(*form, "cmdOK");
  });
  EXPECT_NO_THROW(form->Show());
  form->Unload();
}

TEST_F(LayerManagerReentry, WithoutPagesTheButtonsWorkAndThePointerIsBack) {
  for (const char* const button : {"cmdApply", "cmdRemove", "cmdOK", "cmdCancel"}) {
    SCOPED_TRACE(button);
    log.Failing = {"Pages.CreatePage"};
    const auto form = std::make_shared<frmMapSettings>(desktop(), pages);
    script.ExpectForm("frmMapSettings", [&](Form& shown) {
      Press(shown, button);
      EXPECT_EQ(Pointer::Default, desktop().Pointer());
      if (shown.Visible()) Press(shown, "cmdCancel");
      EXPECT_FALSE(shown.Visible());
    });
    service.Show(&map, 0);
    log.Failing.clear();
  }
}

}  // namespace
}  // namespace orx::test
