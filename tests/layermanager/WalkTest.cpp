// A user who does thousands of things in any order, over a map that sometimes refuses or fails. After each of them the
// dialog is compared with a second account of what has to be seen, which knows nothing of the dialog.
#include <algorithm>
#include <random>
#include <set>

#include "tests/files/FilesTest.h"
#include "tests/layermanager/LayerManagerTest.h"

namespace orx::test {
namespace {

/// The second account: layers with tiles, which of them are unfolded, and which row is selected.
class Account {
 public:
  struct Layer {
    std::string Name;
    std::vector<std::string> Tiles;
  };
  struct Row {
    std::string Text;
    int Level;
    /// Counted from 1; 0 for the collection, and for a layer.
    int LayerNumber;
    int TileNumber;
  };

  std::vector<Layer> Layers;
  int Selected = 0;
  bool ListChanged = false;

  std::vector<Row> Rows() const {
    std::vector<Row> rows{{"All layers", 0, 0, 0}};
    for (std::size_t i = 0; i < Layers.size(); ++i) {
      const int number = static_cast<int>(i) + 1;
      rows.push_back({Layers[i].Name.empty() ? "Layer " + std::to_string(number) : Layers[i].Name, 1, number, 0});
      if (Layers[i].Tiles.size() < 2) continue;
      for (std::size_t j = 0; j < Layers[i].Tiles.size(); ++j)
        rows.push_back({Layers[i].Tiles[j], 2, number, static_cast<int>(j) + 1});
    }
    return rows;
  }
  bool Holds(int row) const {
    const std::vector<Row> rows = Rows();
    const auto next = static_cast<std::size_t>(row) + 1;
    return next < rows.size() && rows[next].Level > rows[next - 1].Level;
  }
  int Above(int row) const {
    const std::vector<Row> rows = Rows();
    int above = row - 1;
    while (above >= 0 && rows[static_cast<std::size_t>(above)].Level >= rows[static_cast<std::size_t>(row)].Level)
      --above;
    return above;
  }
  bool IsSeen(int row) const {
    for (int above = Above(row); above >= 0; above = Above(above))
      if (!mOpen.contains(above)) return false;
    return true;
  }
  std::vector<int> Seen() const {
    std::vector<int> seen;
    for (int row = 0; row < static_cast<int>(Rows().size()); ++row)
      if (IsSeen(row)) seen.push_back(row);
    return seen;
  }
  std::vector<std::string> SeenTexts() const {
    std::vector<std::string> texts;
    for (const int row : Seen()) texts.push_back(Rows()[static_cast<std::size_t>(row)].Text);
    return texts;
  }
  /// What the pages show.
  std::string Object() const {
    const Row row = Rows().at(static_cast<std::size_t>(Selected));
    if (row.LayerNumber == 0) return "layers";
    const Layer& layer = Layers.at(static_cast<std::size_t>(row.LayerNumber) - 1);
    return row.TileNumber == 0 ? layer.Name : layer.Tiles.at(static_cast<std::size_t>(row.TileNumber) - 1);
  }
  /// The number of the selected layer, 0 while none is that can be moved.
  int Movable() const {
    const Row row = Rows().at(static_cast<std::size_t>(Selected));
    return row.TileNumber == 0 ? row.LayerNumber : 0;
  }

  void Select(int row) {
    Selected = std::clamp(row, 0, static_cast<int>(Rows().size()) - 1);
    for (int above = Above(Selected); above >= 0; above = Above(above)) mOpen.insert(above);
  }
  /// Selects by the place among the rows that are seen.
  void SelectSeen(int place) { Select(Seen().at(static_cast<std::size_t>(std::max(place, 0)))); }
  void Refill() { mOpen = {0}; }
  void Fold(int row) {
    if (!Holds(row)) return;
    if (!mOpen.erase(row)) mOpen.insert(row);
    if (!IsSeen(Selected)) Selected = row;
  }
  void Press(int key) {
    const std::vector<int> seen = Seen();
    const auto at = static_cast<int>(std::ranges::find(seen, Selected) - seen.begin());
    const auto pick = [&](int position) {
      Selected = seen[static_cast<std::size_t>(std::clamp(position, 0, static_cast<int>(seen.size()) - 1))];
    };
    if (key == kKeyCodeUp) pick(at - 1);
    if (key == kKeyCodeDown) pick(at + 1);
    if (key == kKeyCodeHome) pick(0);
    if (key == kKeyCodeEnd) pick(static_cast<int>(seen.size()));
    if (key == kKeyCodeLeft) {
      if (Holds(Selected) && mOpen.contains(Selected)) {
        mOpen.erase(Selected);
      } else if (Above(Selected) >= 0) {
        Selected = Above(Selected);
      }
    }
    if (key == kKeyCodeRight && Holds(Selected)) {
      if (mOpen.contains(Selected)) {
        ++Selected;
      } else {
        mOpen.insert(Selected);
      }
    }
  }

 private:
  std::set<int> mOpen{0};
};

class LayerManagerWalk : public LayerManager {
 protected:
  LayerManagerWalk() {
    modDialog::ResetRememberedChoices();
    map.Answers = [this](const std::string& member) {
      if (member != "MoveLayerUp" && member != "MoveLayerDown" && member != "RemoveLayer") return true;
      if (mMood == 1) throw RunTimeError(1001, "The map fails");
      return mMood != 0;
    };
    for (int i = 0; i < 12; ++i) AddLayer(i);
  }
  ~LayerManagerWalk() override { modDialog::ResetRememberedChoices(); }

  int Draw(int below) { return static_cast<int>(mRandom() % static_cast<unsigned>(below)); }

  void AddLayer(int number) {
    const std::string name = number % 5 == 3 ? "" : "L" + std::to_string(number);
    Account::Layer layer{name, {}};
    ModelMap& made = map.Add(name);
    made.IsMap = number % 3 == 1;
    for (int tile = 0; made.IsMap && tile < number % 4; ++tile) {
      layer.Tiles.push_back(name + "/" + std::to_string(tile));
      made.Add(layer.Tiles.back());
    }
    account.Layers.push_back(layer);
  }

  /// What the map answers to the next move or removal: refuses, fails, or does it.
  bool DrawMood() {
    mMood = Draw(6);
    return mMood > 1;
  }

  void Move(frmMapSettings& form, bool up) {
    const bool isWilling = DrawMood();
    const int number = account.Movable();
    user.Click(up ? form.cmdUp : form.cmdDown);
    if (number == 0) return;
    const int other = up ? number - 1 : number + 1;
    if (!isWilling || other < 1 || other > static_cast<int>(account.Layers.size())) {
      ++beeps;
      return;
    }
    std::swap(account.Layers[static_cast<std::size_t>(number) - 1],
              account.Layers[static_cast<std::size_t>(other) - 1]);
    account.ListChanged = true;
    account.Refill();
    account.SelectSeen(other);
  }

  void Remove(frmMapSettings& form) {
    const bool isWilling = DrawMood();
    const int number = account.Movable();
    user.Click(form.cmdRemove);
    if (number == 0) return;
    if (isWilling) {
      account.Layers.erase(account.Layers.begin() + (number - 1));
      account.ListChanged = true;
      account.Refill();
      // The row before; the collection stands above the layers.
      account.SelectSeen(number - 1);
    } else {
      const std::vector<int> seen = account.Seen();
      account.SelectSeen(static_cast<int>(std::ranges::find(seen, account.Selected) - seen.begin()) - 1);
    }
  }

  void Add(frmMapSettings& form) {
    const std::string name = "f" + std::to_string(++mFiles) + ".shp";
    folder.Add(name);
    script.ExpectFiles([this, name](OpenFileRequest& request) { user.PickFiles(request, {folder.Path(), {name}}); });
    user.Click(form.cmdAdd);
    account.Layers.push_back({name, {}});
    account.ListChanged = true;
    account.Refill();
    account.SelectSeen(static_cast<int>(account.Layers.size()));
  }

  void Rename() {
    // A new name reaches the list through the page, and the map when the list is filled anew.
    const Account::Row row = account.Rows().at(static_cast<std::size_t>(account.Selected));
    if (row.LayerNumber == 0 || row.TileNumber != 0) return;
    const std::string name = "R" + std::to_string(++mNames);
    account.Layers[static_cast<std::size_t>(row.LayerNumber) - 1].Name = name;
    map.Layers[static_cast<std::size_t>(row.LayerNumber) - 1]->Name = name;
    Page(PageKind::Properties).NameChanged.Raise(name);
  }

  void Act(frmMapSettings& form) {
    const std::vector<int> seen = account.Seen();
    const int row = seen[static_cast<std::size_t>(Draw(static_cast<int>(seen.size())))];
    const int choice = Draw(1000);
    if (choice < 250) {
      user.Click(form.sftLayers, row);
      account.Select(row);
    } else if (choice < 400) {
      if (account.Holds(row)) {
        user.Fold(form.sftLayers, row);
        account.Fold(row);
      }
    } else if (choice < 600) {
      constexpr int kKeys[] = {kKeyCodeUp,   kKeyCodeDown,  kKeyCodeLeft, kKeyCodeRight,
                               kKeyCodeHome, kKeyCodeRight, kKeyCodeEnd};
      const int key = kKeys[Draw(7)];
      form.sftLayers.SetFocus();
      user.PressKey(form, key);
      account.Press(key);
    } else if (choice < 750) {
      Move(form, true);
    } else if (choice < 880) {
      Move(form, false);
    } else if (choice < 895) {
      if (account.Layers.size() > 4) Remove(form);
    } else if (choice < 900) {
      Add(form);
    } else if (choice < 970) {
      Rename();
    } else {
      Press(form, "cmdApply");
      account.ListChanged = false;
    }
    if (account.Layers.size() < 6) Add(form);
  }

  void Compare(frmMapSettings& form) {
    ASSERT_EQ(account.SeenTexts(), Rows(form));
    ASSERT_EQ(account.Selected, Selected(form));
    ASSERT_EQ(account.Object(), Shown());
    ASSERT_EQ(account.Movable() != 0 ? kMayMove : kMayNotMove, Moving(form));
    ASSERT_EQ(account.ListChanged, form.IsDirty());
    ASSERT_EQ(beeps, script.Beeps);
    ASSERT_EQ(map.Layers.size(), account.Layers.size());
  }

  TestFolder folder;
  Account account;
  int beeps = 0;

 private:
  std::mt19937 mRandom{20260411};
  int mMood = 2;
  int mFiles = 0;
  int mNames = 0;
};

TEST_F(LayerManagerWalk, ThousandsOfActsKeepListPagesButtonsAndDirtyStateTogether) {
  service.CallBack(&callBack);
  ShowLayers([&](frmMapSettings& form) {
    Compare(form);
    for (int act = 0; act < testDesktop().Patience() && !HasFatalFailure(); ++act) {
      SCOPED_TRACE("act " + std::to_string(act));
      Act(form);
      log.Calls.clear();
      script.Pointers.clear();
      Compare(form);
    }
  });
}

}  // namespace
}  // namespace orx::test
