// What the list of the layer manager shows, and what the selection of a row does.

#include "tests/layermanager/LayerManagerTest.h"

namespace orx::test {
namespace {

TEST_F(LayerManager, AMapsLayersStandInTheirOrder) {
  Fill({"Roads", "Rivers", "Terrain"});
  Show([&](frmMapSettings& form) {
    EXPECT_EQ((Texts{"Roads", "Rivers", "Terrain"}), Rows(form));
    EXPECT_EQ(0, form.sftLayers.Row(0).Level);
    EXPECT_EQ(0, Selected(form));
    EXPECT_EQ("Roads", Shown());
    EXPECT_EQ(1, form.SelectedLayer());
    EXPECT_EQ(kMayMove, Moving(form));
  });
}

TEST_F(LayerManager, ACollectionStandsAboveItsLayersAndIsExpanded) {
  Fill({"Roads", "Rivers"});
  ShowLayers([&](frmMapSettings& form) {
    EXPECT_EQ((Texts{"All layers", "Roads", "Rivers"}), Rows(form));
    EXPECT_TRUE(form.sftLayers.Row(0).Expanded);
    EXPECT_EQ(0, form.sftLayers.Row(0).Level);
    EXPECT_EQ(1, form.sftLayers.Row(1).Level);
    EXPECT_EQ("layers", Shown());
    EXPECT_EQ(0, form.SelectedLayer());
    EXPECT_EQ(kMayNotMove, Moving(form));
  });
}

TEST_F(LayerManager, ACollectionWithoutANameIsCalledMap) {
  for (const char* const name : {"", "   "}) {
    layers.Title = name;
    ShowLayers([&](frmMapSettings& form) { EXPECT_EQ(Texts{"Map"}, Rows(form)); });
  }
}

TEST_F(LayerManager, BlankLayersAreCalledByTheirPosition) {
  Fill({"", "Rivers", "  "});
  Show([&](frmMapSettings& form) { EXPECT_EQ((Texts{"Layer 1", "Rivers", "Layer 3"}), Rows(form)); });
}

TEST_F(LayerManager, ABlankLayerThatIsMovedUpGetsTheNumberOfItsNewPosition) {
  Fill({"Roads", "Rivers", ""});
  Show([&](frmMapSettings& form) {
    user.Click(form.sftLayers, 2);
    user.Click(form.cmdUp);
    EXPECT_EQ((Texts{"Roads", "Layer 2", "Rivers"}), Rows(form));
  });
}

TEST_F(LayerManager, TilesAreShownOfTwoInnerLayersOnAndNotOfOne) {
  map.AddTiled("Single", 1);
  map.AddTiled("Pair", 2);
  map.AddTiled("Empty", 0);
  Show([&](frmMapSettings& form) {
    EXPECT_EQ((Texts{"Single", "Pair", "Empty"}), Rows(form));
    EXPECT_EQ(5, form.sftLayers.ListCount());
    EXPECT_FALSE(form.sftLayers.HasChildren(0));
    EXPECT_FALSE(form.sftLayers.Row(1).Expanded);
    user.Fold(form.sftLayers, 1);
    EXPECT_EQ((Texts{"Single", "Pair", "Pair/1", "Pair/2", "Empty"}), Rows(form));
    EXPECT_EQ(1, form.sftLayers.Row(2).Level);
  });
}

TEST_F(LayerManager, BlankTilesAreCalledByTheirPosition) {
  ModelMap& tiled = map.AddTiled("Pair", 2);
  tiled.Layers[1]->Name = " ";
  Show([&](frmMapSettings& form) { EXPECT_EQ("Tile 2", form.sftLayers.Row(2).Text); });
}

TEST_F(LayerManager, ALayerIsShownOnAllPages) {
  Fill({"Roads", "Rivers"});
  ShowLayers([&](frmMapSettings& form) {
    log.Calls.clear();
    EXPECT_EQ("Rivers", AfterClick(form, 2));
    EXPECT_EQ((Calls{"Properties.Client(Rivers)", "LabelProperties.Client(Rivers)", "DataProperties.Client(Rivers)",
                     "Coordinates.Client(Rivers)", "Properties.RefreshContents", "LabelProperties.RefreshContents",
                     "DataProperties.RefreshContents", "Coordinates.RefreshContents"}),
              NewCalls());
    EXPECT_EQ(2, form.SelectedLayer());
    EXPECT_EQ(kMayMove, Moving(form));
    EXPECT_EQ("layers", AfterClick(form, 0));
    EXPECT_EQ(kMayNotMove, Moving(form));
  });
}

TEST_F(LayerManager, ATileIsShownAndCannotBeMovedOrRemoved) {
  Fill({"Roads"});
  map.AddTiled("Hills", 3);
  ShowLayers([&](frmMapSettings& form) {
    EXPECT_EQ("Hills", AfterClick(form, 2));
    user.Fold(form.sftLayers, 2);
    EXPECT_EQ("Hills/2", AfterClick(form, 4));
    EXPECT_EQ(0, form.SelectedLayer());
    EXPECT_EQ(kMayNotMove, Moving(form));
    EXPECT_EQ("Roads", AfterClick(form, 1));
    EXPECT_EQ(kMayMove, Moving(form));
  });
}

TEST_F(LayerManager, AClickOnTheSelectedRowLoadsItsObjectAgain) {
  Fill({"Roads"});
  Show([&](frmMapSettings& form) {
    EditPage(form, PageKind::Properties, "typed");
    log.Calls.clear();
    user.Click(form.sftLayers, 0);
    EXPECT_EQ("Properties.RefreshContents", NewCalls().at(4));
  });
}

TEST_F(LayerManager, ArrowKeysSelectAlsoWhenTheListGoesNoFurther) {
  Fill({"Roads", "Rivers"});
  Show([&](frmMapSettings& form) {
    user.ClickInto(form.sftLayers);
    user.PressKey(form, kKeyCodeDown);
    EXPECT_EQ("Rivers", Shown());
    for (const int key : {kKeyCodeDown, kKeyCodeLeft, kKeyCodeRight}) {
      log.Calls.clear();
      user.PressKey(form, key);
      EXPECT_EQ("Properties.Client(Rivers)", NewCalls().at(0)) << key;
    }
    user.PressKey(form, kKeyCodeUp);
    EXPECT_EQ("Roads", Shown());
  });
}

TEST_F(LayerManager, OtherKeysOfTheListSelectWhenTheyLeadElsewhere) {
  Fill({"Roads", "Rivers", "Terrain"});
  Show([&](frmMapSettings& form) {
    user.ClickInto(form.sftLayers);
    user.PressKey(form, kKeyCodeEnd);
    EXPECT_EQ("Terrain", Shown());
    user.PressKey(form, kKeyCodeHome);
    EXPECT_EQ("Roads", Shown());
    user.TypeCharacters(form, "ri");
    EXPECT_EQ("Rivers", Shown());
    log.Calls.clear();
    user.PressKey(form, 'Q');
    EXPECT_EQ(Calls{}, NewCalls());
  });
}

TEST_F(LayerManager, AnArrowKeyResumesASuspendedList) {
  Fill({"Roads", "Rivers"});
  Show([&](frmMapSettings& form) {
    user.ClickInto(form.sftLayers);
    form.sftLayers.Redraw(false);
    user.PressKey(form, kKeyCodeDown);
    EXPECT_TRUE(form.sftLayers.Redraw());
    EXPECT_EQ(1, Selected(form));
  });
}

TEST_F(LayerManager, F1ShowsHelpWithTheListsOwnNumber) {
  Fill({"Roads"});
  modMain::HelpFile("maps.hlp");
  Show([&](frmMapSettings& form) {
    user.ClickInto(form.sftLayers);
    form.sftLayers.HelpContextId(77);
    form.HelpContextId(5);
    user.PressKey(form, kKeyCodeF1);
    ASSERT_EQ(1U, script.Helps.size());
    EXPECT_EQ(77, script.Helps[0].ContextId);
    Press(form, "cmdHelp");
    EXPECT_EQ(5, script.Helps.at(1).ContextId);
  });
}

TEST_F(LayerManager, AnEmptyMapShowsAnEmptyList) {
  Show([&](frmMapSettings& form) {
    EXPECT_EQ(Texts{}, Rows(form));
    EXPECT_EQ("none", Shown());
    EXPECT_EQ(kMayNotMove, Moving(form));
  });
}

TEST_F(LayerManager, ANameThatCannotBeReadLeavesTheRestOfTheList) {
  Fill({"Roads", "Rivers", "Terrain"});
  int names = 0;
  Show([&](frmMapSettings& form) {
    map.Answers = [&](const std::string& member) {
      if (member == "LayerName" && ++names == 3) throw RunTimeError(5, "no name");
      return true;
    };
    user.Click(form.sftLayers, 1);
    user.Click(form.cmdUp);
    map.Answers = nullptr;
    EXPECT_EQ((Texts{"Rivers", "Roads"}), Rows(form));
    EXPECT_EQ(0, Selected(form));
    EXPECT_TRUE(form.sftLayers.Redraw());
    EXPECT_TRUE(form.IsDirty());
  });
}

TEST_F(LayerManager, ARenamedLayerIsRenamedInTheListAtOnce) {
  Fill({"Roads", "Rivers"});
  Show([&](frmMapSettings& form) {
    user.Click(form.sftLayers, 1);
    Page(PageKind::Properties).NameChanged.Raise("Streams");
    EXPECT_EQ((Texts{"Roads", "Streams"}), Rows(form));
  });
}

TEST_F(LayerManager, ANameForNoRowIsIgnored) {
  Show([&](frmMapSettings& form) {
    Page(PageKind::Properties).NameChanged.Raise("Streams");
    EXPECT_EQ(Texts{}, Rows(form));
  });
}

TEST_F(LayerManager, TheSelectedTabIsToldToItsPage) {
  Fill({"Roads"});
  Show([&](frmMapSettings& form) {
    const PageKind kinds[] = {PageKind::Properties, PageKind::LabelProperties, PageKind::DataProperties,
                              PageKind::Coordinates};
    for (const int tab : {0, 2, 1, 3, 0}) {
      user.SelectTab(form.ssTab, tab);
      for (int i = 0; i < 4; ++i) EXPECT_EQ(i == tab, Page(kinds[i]).Selected()) << tab << ", " << i;
    }
  });
}

}  // namespace
}  // namespace orx::test
