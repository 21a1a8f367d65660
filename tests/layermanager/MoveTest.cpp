// Moving, removing and adding layers.

#include "tests/layermanager/LayerManagerTest.h"

namespace orx::test {
namespace {

/// What a map is made to do at its next question of that name.
enum class Mood { Refuse, Throw };

class LayerManagerMoves : public LayerManager {
 protected:
  void Make(const std::string& failing, Mood mood) {
    map.Answers = [failing, mood](const std::string& member) {
      if (member != failing) return true;
      if (mood == Mood::Throw) throw RunTimeError(1001, failing + " failed");
      return false;
    };
  }
};

TEST_F(LayerManagerMoves, UpAndDownChangePlacesAndKeepTheLayerSelected) {
  Fill({"Roads", "Rivers", "Terrain"});
  EXPECT_EQ(-1, Show([&](frmMapSettings& form) {
    user.Click(form.sftLayers, 2);
    user.Click(form.cmdUp);
    EXPECT_EQ((Texts{"Roads", "Terrain", "Rivers"}), map.Names());
    EXPECT_EQ((Texts{"Roads", "Terrain", "Rivers"}), Rows(form));
    EXPECT_EQ(1, Selected(form));
    EXPECT_EQ("Terrain", Shown());
    user.Click(form.cmdUp);
    EXPECT_EQ(0, Selected(form));
    user.Click(form.cmdDown);
    EXPECT_EQ((Texts{"Roads", "Terrain", "Rivers"}), map.Names());
    EXPECT_EQ("Terrain", Shown());
    EXPECT_EQ(2, form.SelectedLayer());
    EXPECT_EQ(0, script.Beeps);
    Press(form, "cmdOK");
  }));
}

TEST_F(LayerManagerMoves, TheFirstLayerDoesNotGoUpNorTheLastDown) {
  Fill({"Roads", "Rivers"});
  EXPECT_EQ(0, Show([&](frmMapSettings& form) {
              user.Click(form.cmdUp);
              EXPECT_EQ(1, script.Beeps);
              user.Click(form.sftLayers, 1);
              user.Click(form.cmdDown);
              EXPECT_EQ(2, script.Beeps);
              EXPECT_EQ((Texts{"Roads", "Rivers"}), map.Names());
              EXPECT_EQ(1, Selected(form));
              EXPECT_FALSE(form.IsDirty());
              Press(form, "cmdOK");
            }));
}

TEST_F(LayerManagerMoves, AMapThatRefusesOrFailsOnlyBeeps) {
  Fill({"Roads", "Rivers", "Terrain"});
  for (const Mood mood : {Mood::Refuse, Mood::Throw}) {
    Show([&](frmMapSettings& form) {
      script.Beeps = 0;
      user.Click(form.sftLayers, 1);
      Make("MoveLayerUp", mood);
      user.Click(form.cmdUp);
      Make("MoveLayerDown", mood);
      user.Click(form.cmdDown);
      map.Answers = nullptr;
      EXPECT_EQ(2, script.Beeps);
      EXPECT_EQ(1, Selected(form));
      EXPECT_FALSE(form.IsDirty());
      EXPECT_EQ((Texts{"Roads", "Rivers", "Terrain"}), Rows(form));
    });
  }
}

TEST_F(LayerManagerMoves, RemovingSelectsTheRowBefore) {
  Fill({"Roads", "Rivers", "Terrain"});
  EXPECT_EQ(-1, ShowLayers([&](frmMapSettings& form) {
    user.Click(form.sftLayers, 3);
    user.Click(form.cmdRemove);
    EXPECT_EQ((Texts{"Roads", "Rivers"}), map.Names());
    EXPECT_EQ(2, Selected(form));
    EXPECT_EQ("Rivers", Shown());
    Press(form, "cmdOK");
  }));
}

TEST_F(LayerManagerMoves, TheDeleteKeyRemovesTheSelectedLayerAndNothingElse) {
  Fill({"Roads", "Rivers", "Terrain"});
  EXPECT_EQ(-1, ShowLayers([&](frmMapSettings& form) {
    user.Click(form.sftLayers, 3);
    user.PressKey(form, kKeyCodeDelete);
    EXPECT_EQ((Texts{"Roads", "Rivers"}), map.Names());
    EXPECT_EQ(2, Selected(form));
    EXPECT_TRUE(user.See(form.sftLayers).Focused);
    // The row of the collection is no layer.
    user.Click(form.sftLayers, 0);
    user.PressKey(form, kKeyCodeDelete);
    EXPECT_EQ((Texts{"Roads", "Rivers"}), map.Names());
    Press(form, "cmdOK");
  }));
}

TEST_F(LayerManagerMoves, RemovingTheFirstLayerSelectsTheRootRow) {
  Fill({"Roads", "Rivers"});
  ShowLayers([&](frmMapSettings& form) {
    user.Click(form.sftLayers, 1);
    user.Click(form.cmdRemove);
    EXPECT_EQ(0, Selected(form));
    EXPECT_EQ("layers", Shown());
    EXPECT_EQ(kMayNotMove, Moving(form));
  });
}

TEST_F(LayerManagerMoves, RemovingTheFirstLayerWithoutARootRowSelectsTheNewFirst) {
  Fill({"Roads", "Rivers"});
  Show([&](frmMapSettings& form) {
    user.Click(form.cmdRemove);
    EXPECT_EQ(0, Selected(form));
    EXPECT_EQ("Rivers", Shown());
    user.Click(form.cmdRemove);
    EXPECT_EQ(Texts{}, Rows(form));
    EXPECT_EQ("none", Shown());
    EXPECT_EQ(kMayNotMove, Moving(form));
  });
}

TEST_F(LayerManagerMoves, ARefusedRemovalSelectsTheRowBeforeAllTheSame) {
  Fill({"Roads", "Rivers", "Terrain"});
  for (const Mood mood : {Mood::Refuse, Mood::Throw}) {
    Show([&](frmMapSettings& form) {
      user.Click(form.sftLayers, 2);
      Make("RemoveLayer", mood);
      user.Click(form.cmdRemove);
      map.Answers = nullptr;
      EXPECT_EQ((Texts{"Roads", "Rivers", "Terrain"}), Rows(form));
      EXPECT_EQ("Rivers", Shown());
      EXPECT_FALSE(form.IsDirty());
    });
  }
}

TEST_F(LayerManagerMoves, TheLayerBeforeIsSelectedAndNotATileOfIt) {
  for (const bool isUnfolded : {false, true}) {
    map.Layers.clear();
    map.AddTiled("Hills", 2);
    Fill({"Roads"});
    Show([&](frmMapSettings& form) {
      if (isUnfolded) user.Fold(form.sftLayers, 0);
      user.Click(form.sftLayers, 3);
      user.Click(form.cmdRemove);
      EXPECT_EQ("Hills", Shown());
      EXPECT_EQ(Texts{"Hills"}, Rows(form));
    });
  }
}

TEST_F(LayerManagerMoves, ALayerStaysSelectedAsItPassesOneWithTiles) {
  for (const bool isUnfolded : {false, true}) {
    map.Layers.clear();
    map.AddTiled("Hills", 3);
    Fill({"Roads"});
    ShowLayers([&](frmMapSettings& form) {
      if (isUnfolded) user.Fold(form.sftLayers, 1);
      user.Click(form.sftLayers, 5);
      user.Click(form.cmdUp);
      EXPECT_EQ("Roads", Shown());
      EXPECT_EQ(1, Selected(form));
      if (isUnfolded) user.Fold(form.sftLayers, 2);
      user.Click(form.cmdDown);
      EXPECT_EQ("Roads", Shown());
      EXPECT_EQ((Texts{"All layers", "Hills", "Roads"}), Rows(form));
    });
  }
}

TEST_F(LayerManagerMoves, ARefusedRemovalSelectsTheTileAboveWhenItIsSeen) {
  map.AddTiled("Hills", 2);
  Fill({"Roads"});
  Show([&](frmMapSettings& form) {
    user.Fold(form.sftLayers, 0);
    user.Click(form.sftLayers, 3);
    Make("RemoveLayer", Mood::Refuse);
    user.Click(form.cmdRemove);
    map.Answers = nullptr;
    EXPECT_EQ("Hills/2", Shown());
  });
}

TEST_F(LayerManagerMoves, ThePagesLetARemovedLayerGoAtOnce) {
  Fill({"Roads", "Rivers"});
  Show([&](frmMapSettings& form) {
    user.Click(form.sftLayers, 1);
    log.Calls.clear();
    user.Click(form.cmdRemove);
    EXPECT_EQ("Properties.Client(none)", log.Calls.at(0));
    EXPECT_EQ("Roads", Shown());
  });
}

TEST_F(LayerManagerMoves, ALayerThatCannotBeHadLeavesThePagesEmpty) {
  Fill({"Roads", "Rivers"});
  script.ExpectForm("frmMapSettings", [&](Form& shown) {
    auto& form = dynamic_cast<frmMapSettings&>(shown);
    Make("Layer", Mood::Throw);
    user.Click(form.sftLayers, 1);
    map.Answers = nullptr;
    EXPECT_EQ("none", Shown());
    EXPECT_EQ(kMayNotMove, Moving(form));
    form.Hide();
  });
  EXPECT_EQ(0, service.Show(&map, 0));
}

TEST_F(LayerManagerMoves, TheButtonsHaveToolTipsNamesAndKeys) {
  Fill({"Roads", "Rivers"});
  Show([&](frmMapSettings& form) {
    EXPECT_EQ("Add layer", form.cmdAdd.ToolTipText());
    EXPECT_EQ("Move selected layer up", form.cmdUp.ToolTipText());
    EXPECT_EQ("Move selected layer down", form.cmdDown.ToolTipText());
    EXPECT_EQ("Remove selected layer", form.cmdRemove.ToolTipText());
    for (const Button* button : {&form.cmdAdd, &form.cmdUp, &form.cmdDown, &form.cmdRemove}) {
      EXPECT_EQ(button->ToolTipText(), button->AccessibleName());
      EXPECT_NE(nullptr, button->Picture());
    }
    user.Press(form, AltKey(U'3'));
    EXPECT_EQ((Texts{"Rivers", "Roads"}), map.Names());
    user.Press(form, AltKey(U'2'));
    EXPECT_EQ((Texts{"Roads", "Rivers"}), map.Names());
    user.Press(form, AltKey(U'4'));
    EXPECT_EQ(Texts{"Rivers"}, map.Names());
  });
}

}  // namespace
}  // namespace orx::test
