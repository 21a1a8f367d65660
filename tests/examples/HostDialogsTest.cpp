// The dialogs that the demo opens, and the map redrawn behind them.
#include "tests/examples/HostWindowTest.h"

#include <algorithm>

#include "pickers/CharacterGrid.h"
#include "tests/support/MapText.h"

namespace orx::test {
namespace {

TEST_F(ExamplesHost, OKUntouchedInEveryDialogLeavesEveryBitOfTheMap) {
  const std::string before = Serialise(*map);
  for (int entry = 0; entry < window->cboLayer.ListCount(); ++entry) {
    user.Choose(window->cboLayer, entry);
    for (const auto& [button, form] : {std::pair{"cmdProperties", "frmProperties"},
                                       {"cmdLabels", "frmLabels"},
                                       {"cmdCoordinates", "frmCoordinates"},
                                       {"cmdLegends", "frmLegend"}}) {
      if (!Get<Button>(*window, button).Enabled()) continue;
      script.ExpectForm(form, [&](Form& shown) { Press(user, shown, "cmdOK"); });
      Press(user, *window, button);
      EXPECT_TRUE(LastLine().ends_with("not changed (0)")) << LastLine();
      EXPECT_EQ(before, Serialise(*map)) << form << " of " << window->cboLayer.Text();
    }
  }
}

TEST_F(ExamplesHost, TheLayerManagerMovesAndRemovesLayersWhileTheMapIsRedrawn) {
  script.ExpectForm("frmMapSettings", [&](Form& shown) {
    auto& list = Get<TreeList>(shown, "sftLayers");
    EXPECT_EQ((std::vector<std::string>{"jacksboro", "Terrain", "Quarters"}), user.SeeRows(list));
    const std::vector<Mark> before = Drawn();
    user.Click(list, 1);
    Press(user, shown, "cmdDown");
    EXPECT_NE(before, Drawn());
    EXPECT_EQ("Quarters", window->cboLayer.List(1));
    const std::vector<Mark> moved = Drawn();
    Press(user, shown, "cmdRemove");
    EXPECT_NE(moved, Drawn());
    EXPECT_EQ(6, window->cboLayer.ListCount());
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdManager");
  EXPECT_EQ("Layer manager: changed (-1)", LastLine());
}

TEST_F(ExamplesHost, TheSettingsAndTheDataOfTheChosenLayerAreEdited) {
  script.ExpectForm("frmSettings", [&](Form& shown) {
    user.Type(Get<TextBox>(shown, "txtName"), "Hills");
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdSettings");
  EXPECT_EQ("Settings of Terrain: changed (-1)", LastLine());
  EXPECT_EQ("Hills", user.See(window->cboLayer).Text);
  script.ExpectForm("frmDataDialog", [&](Form& shown) { Press(user, shown, "cmdOK"); });
  Press(user, *window, "cmdData");
  EXPECT_EQ("Data of Hills: not changed (0)", LastLine());
  user.Choose(window->cboLayer, 2);
  EXPECT_FALSE(user.See(Get<Button>(*window, "cmdData")).Enabled);
}

TEST_F(ExamplesHost, ApplyRedrawsTheMapBehindTheOpenDialog) {
  script.ExpectForm("frmProperties", [&](Form& shown) {
    const std::vector<Mark> before = Drawn();
    user.Toggle(Get<CheckBox>(shown, "chkVisible"));
    EXPECT_EQ(before, Drawn());
    Press(user, shown, "cmdApply");
    EXPECT_EQ("Call-back: Apply, changed", LastLine());
    EXPECT_NE(before, Drawn());
    EXPECT_TRUE(shown.Visible());
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdProperties");
  EXPECT_EQ("Properties of Terrain: changed (-1)", LastLine());
}

TEST_F(ExamplesHost, ARenamedLayerIsListedUnderItsNewName) {
  script.ExpectForm("frmProperties", [&](Form& shown) {
    user.Type(Get<TextBox>(shown, "txtName"), "Hills");
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdProperties");
  EXPECT_EQ("Hills", user.See(window->cboLayer).Text);
}

TEST_F(ExamplesHost, TheMapIsRedrawnInTheClassesThatTheUserSets) {
  const std::vector<Mark> before = Drawn();
  script.ExpectForm("frmDataClassify", [&](Form& shown) {
    EXPECT_TRUE(Get<CheckBox>(shown, "chkAutoClassify").IsChecked());
    EXPECT_EQ("236", user.See(Get<TextBox>(shown, "txtMin")).Text);
    user.Toggle(Get<CheckBox>(shown, "chkAutoClassify"));
    user.Type(Get<ComboBox>(shown, "cboClasses"), "5");
    user.Choose(Get<ComboBox>(shown, "cboFormat"), 2);
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdClassify");
  EXPECT_EQ("Classification of Terrain: changed (-1)", LastLine());
  EXPECT_NE(before, Drawn());
  const auto says = [&](const std::string& text) {
    return std::ranges::any_of(Drawn(), [&](const Mark& mark) {
      const auto* const words = std::get_if<TextMark>(&mark);
      return words && words->Text == text;
    });
  };
  EXPECT_TRUE(says("236.0 – 404.0"));
  EXPECT_TRUE(says("908.0 – 1076.0"));
}

TEST_F(ExamplesHost, SpecialValuesAreDrawnAsSet) {
  const std::vector<Mark> before = Drawn();
  script.ExpectForm("frmDataOptions", [&](Form& shown) {
    user.Toggle(Get<CheckBox>(shown, "chkEnabled(0)"));
    user.Type(Get<TextBox>(shown, "txtMinValue(0)"), "300");
    user.Type(Get<TextBox>(shown, "txtMaxValue(0)"), "350");
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdOptions");
  EXPECT_EQ("Data options of Terrain: changed (-1)", LastLine());
  EXPECT_NE(before, Drawn());
}

TEST_F(ExamplesHost, OKUntouchedInTheDialogsOfTheDataLeavesEveryBitOfTheMap) {
  const std::string before = Serialise(*map);
  for (const auto& [button, form] : {std::pair{"cmdClassify", "frmDataClassify"},
                                     {"cmdOptions", "frmDataOptions"},
                                     {"cmdShade", "frmDataShade"},
                                     {"cmdIsolines", "frmDataIsoline"}}) {
    script.ExpectForm(form, [&](Form& shown) { Press(user, shown, "cmdOK"); });
    Press(user, *window, button);
    EXPECT_TRUE(LastLine().ends_with("not changed (0)")) << LastLine();
    EXPECT_EQ(before, Serialise(*map)) << form;
  }
}

TEST_F(ExamplesHost, TheTerrainIsShadedAndContouredAsSet) {
  std::vector<Mark> before = Drawn();
  script.ExpectForm("frmDataShade", [&](Form& shown) {
    user.Choose(Get<ComboBox>(shown, "cmbCombine"), 1);
    user.Click(Get<Button>(shown, "cmdScaleFactor"));
    EXPECT_EQ("1.08E-05", user.See(Get<TextBox>(shown, "txtScaleFactor")).Text);
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdShade");
  EXPECT_EQ("Relief shading of Terrain: changed (-1)", LastLine());
  EXPECT_NE(before, Drawn());
  const auto lines = [&] {
    return std::ranges::count_if(Drawn(), [](const Mark& mark) { return std::holds_alternative<LineMark>(mark); });
  };
  const auto few = lines();
  script.ExpectForm("frmDataIsoline", [&](Form& shown) {
    user.Choose(Get<ComboBox>(shown, "cmbLineStyle"), 0);
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdIsolines");
  EXPECT_EQ("Isolines of Terrain: changed (-1)", LastLine());
  EXPECT_GT(lines(), few + 100);
}

TEST_F(ExamplesHost, TheColorSchemesOpen) {
  script.ExpectForm("frmManageColors", [&](Form& shown) { Press(user, shown, "cmdOK"); });
  Press(user, *window, "cmdColors");
  EXPECT_EQ("Color schemes: closed", LastLine());
}

TEST_F(ExamplesHost, TheMapIsGeoreferencedWhateverIsChosen) {
  user.Choose(window->cboLayer, 3);
  const std::string before = Serialise(*map);
  script.ExpectForm("frmGeoreference", [&](Form& shown) { Press(user, shown, "cmdOK"); });
  Press(user, *window, "cmdGeoreference");
  EXPECT_EQ("Georeference: done (-1)", LastLine());
  EXPECT_EQ(before, Serialise(*map));
  const std::vector<Mark> drawn = Drawn();
  const double top = map->Extent()->Top();
  script.ExpectForm("frmGeoreference", [&](Form& shown) {
    user.Type(Get<TextBox>(shown, "txtInput(1)"), "-80");
    EXPECT_EQ("-80", user.See(*shown.Find("txtInput(1)")).Text);
    EXPECT_TRUE(user.See(*shown.Find("txtInput(1)")).Focused);
    Press(user, shown, "cmdOK");
  });
  Press(user, *window, "cmdGeoreference");
  EXPECT_EQ(-80, map->Extent()->Right());
  EXPECT_GT(map->Extent()->Top(), top);
  EXPECT_NE(drawn, Drawn());
}

TEST_F(ExamplesHost, TheSymbolOfTheChosenLayerIsPickedAndDrawn) {
  const std::string before = Serialise(*map);
  script.ExpectForm("frmTrueType", [&](Form& shown) { Press(user, shown, "cmdOK"); });
  Press(user, *window, "cmdSymbol");
  EXPECT_EQ("Symbol of Terrain: not changed (0)", LastLine());
  EXPECT_EQ(before, Serialise(*map));
  const std::vector<Mark> drawn = Drawn();
  script.ExpectForm("frmTrueType", [&](Form& shown) {
    const Rect cell = CharacterGrid(desktop().Scale()).CellOf(0xA4);
    user.DoubleClickAt(Get<PictureBox>(shown, "picFont"), {cell.Left, cell.Top});
  });
  Press(user, *window, "cmdSymbol");
  EXPECT_EQ("Symbol of Terrain: changed (-1)", LastLine());
  EXPECT_EQ(0xA4, map->Layer(1)->SymbolCharacter());
  EXPECT_NE(drawn, Drawn());
}

}  // namespace
}  // namespace orx::test
