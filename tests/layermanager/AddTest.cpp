// Adding layers from files.
#include <algorithm>

#include "tests/files/FilesTest.h"
#include "tests/layermanager/LayerManagerTest.h"

namespace orx::test {
namespace {

class LayerManagerAdds : public LayerManager {
 protected:
  LayerManagerAdds() {
    modDialog::ResetRememberedChoices();
    map.Add("Roads");
  }
  ~LayerManagerAdds() override { modDialog::ResetRememberedChoices(); }

  /// Expects the user to pick these files, which are made before.
  void ExpectPick(const std::vector<std::string>& names, const std::function<void()>& meanwhile = nullptr) {
    for (const std::string& name : names) folder.Add(name);
    script.ExpectFiles([this, names, meanwhile](OpenFileRequest& request) {
      if (meanwhile) meanwhile();
      user.PickFiles(request, {folder.Path(), names});
    });
  }

  TestFolder folder;
};

TEST_F(LayerManagerAdds, FilesAreAddedInTheirOrderAndTheLastRowIsSelected) {
  EXPECT_EQ(-1, Show([&](frmMapSettings& form) {
    ExpectPick({"a.shp", "b.shp", "c.shp"});
    user.Click(form.cmdAdd);
    EXPECT_EQ((Texts{folder.PathOf("a.shp") + "|", folder.PathOf("b.shp") + "|", folder.PathOf("c.shp") + "|"}),
              map.Paths);
    EXPECT_EQ((Texts{"Roads", "a.shp", "b.shp", "c.shp"}), Rows(form));
    EXPECT_EQ(3, Selected(form));
    EXPECT_EQ("c.shp", Shown());
    EXPECT_TRUE(form.IsDirty());
    EXPECT_TRUE(form.Enabled());
    Press(form, "cmdOK");
  }));
}

TEST_F(LayerManagerAdds, NothingChosenChangesNothing) {
  EXPECT_EQ(0, Show([&](frmMapSettings& form) {
              script.ExpectFiles([this](OpenFileRequest& request) { user.CancelFiles(request); });
              user.Click(form.cmdAdd);
              EXPECT_EQ(Texts{}, map.Paths);
              EXPECT_EQ(0, Selected(form));
              EXPECT_TRUE(form.Enabled());
              EXPECT_EQ(Pointer::Default, desktop().Pointer());
              Press(form, "cmdOK");
            }));
}

TEST_F(LayerManagerAdds, TheFormIsDisabledAndTheHourglassStandsWhileFilesAreRead) {
  Show([&](frmMapSettings& form) {
    int added = 0;
    ExpectPick({"a.shp", "b.shp"}, [&] { EXPECT_FALSE(form.Enabled()); });
    map.Answers = [&](const std::string& member) {
      if (member != "AddLayer") return true;
      ++added;
      EXPECT_FALSE(form.Enabled());
      EXPECT_EQ(Pointer::Hourglass, desktop().Pointer());
      return true;
    };
    user.Click(form.cmdAdd);
    map.Answers = nullptr;
    EXPECT_EQ(2, added);
    EXPECT_TRUE(form.Enabled());
    EXPECT_EQ(Pointer::Default, desktop().Pointer());
  });
}

TEST_F(LayerManagerAdds, AFileThatGivesNoLayerIsSkippedWithoutAMessage) {
  Show([&](frmMapSettings& form) {
    int file = 0;
    map.Answers = [&](const std::string& member) {
      if (member != "AddLayer") return true;
      if (++file == 2) throw RunTimeError(1, "unreadable");
      return file != 1;
    };
    ExpectPick({"a.shp", "b.shp", "c.shp"});
    user.Click(form.cmdAdd);
    map.Answers = nullptr;
    EXPECT_EQ((Texts{"Roads", "c.shp"}), Rows(form));
    EXPECT_EQ("c.shp", Shown());
  });
}

TEST_F(LayerManagerAdds, WhenNoFileGivesALayerTheLastRowIsSelectedAndNothingIsDirty) {
  map.Add("Rivers");
  Show([&](frmMapSettings& form) {
    map.Answers = [](const std::string& member) { return member != "AddLayer"; };
    ExpectPick({"a.shp"});
    user.Click(form.cmdAdd);
    map.Answers = nullptr;
    EXPECT_EQ("Rivers", Shown());
    EXPECT_FALSE(form.IsDirty());
  });
}

TEST_F(LayerManagerAdds, ALayerIsAddedToTheListedMapWhileATileIsSelected) {
  ModelMap& tiled = map.AddTiled("Hills", 2);
  Show([&](frmMapSettings& form) {
    user.Fold(form.sftLayers, 1);
    EXPECT_EQ("Hills/1", AfterClick(form, 2));
    ExpectPick({"a.shp"});
    user.Click(form.cmdAdd);
    EXPECT_EQ((Texts{"Roads", "Hills", "a.shp"}), map.Names());
    EXPECT_EQ(2U, tiled.Layers.size());
  });
}

TEST_F(LayerManagerAdds, EachFileRefillsTheListAndLoadsThePagesAgain) {
  Show([&](frmMapSettings& form) {
    ExpectPick({"a.shp", "b.shp"});
    log.Calls.clear();
    user.Click(form.cmdAdd);
    // Twice for the files with the old layer, once for the selected row.
    EXPECT_EQ(3, std::ranges::count(log.Calls, "Properties.RefreshContents"));
    EXPECT_EQ(2, std::ranges::count(log.Calls, "Properties.Client(Roads)"));
    EXPECT_EQ(1, std::ranges::count(log.Calls, "Properties.Client(b.shp)"));
    EXPECT_FALSE(form.Canceled());
  });
}

TEST_F(LayerManagerAdds, FiveHundredFilesAreAdded) {
  Show([&](frmMapSettings& form) {
    // The dialogs of the platforms take their time for each typed name.
    for (int hundred = 100; hundred < 600; hundred += 100) {
      std::vector<std::string> names;
      for (int i = hundred; i < hundred + 100; ++i) names.push_back("f" + std::to_string(i) + ".shp");
      ExpectPick(names);
      user.Click(form.cmdAdd);
    }
    EXPECT_EQ(501U, Rows(form).size());
    EXPECT_EQ(500, Selected(form));
    EXPECT_EQ("f599.shp", Shown());
    EXPECT_TRUE(user.SeesRow(form.sftLayers, 500));
  });
}

TEST_F(LayerManagerAdds, WithoutAMapAddDoesNothing) {
  PlainObject plain;
  const auto form = std::make_shared<frmMapSettings>(desktop(), pages);
  script.ExpectMessage({"Object does not support IMap or ILayers interface!", "Register", MessageIcon::Critical});
  form->RegisterClient(&plain, "");
  form->RefreshContents();
  EXPECT_FALSE(form->IsLoaded());
  form->Show(ShowMode::Modeless);
  user.Click(form->cmdAdd);
  EXPECT_EQ(0, form->sftLayers.ListCount());
  EXPECT_TRUE(form->Enabled());
  form->Unload();
}

}  // namespace
}  // namespace orx::test
