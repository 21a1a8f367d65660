// The layer manager: a list of the layers of a map and their tiles, which the user adds, moves and removes, beside the
// four property pages of the selected one.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "dialogframe/Glyphs.h"
#include "forms/TreeList.h"
#include "hostobjects/IMap.h"
#include "propertydialogs/Placement.h"
#include "propertydialogs/PropertyDialog.h"

namespace orx {

class frmMapSettings final : public PropertyDialog {
 public:
  frmMapSettings(Desktop& desktop, IPageFactory& pages);

  /// Flags of the host, which are kept but have no meaning so far.
  void RegisterFlags(std::int32_t flags) { mFlags = flags; }
  std::int32_t Flags() const { return mFlags; }
  /// Sets the map (IMap) or layer collection (ILayers) to edit, used and not owned, and the host's registry key. Other
  /// objects are reported to the user and not kept.
  void RegisterClient(HostObject* client, const std::string& registryKey) override;
  void Take(const PropertyTask& task, ErrorTrap& trap) override;
  /// Whether layers were added, moved, removed or changed, apart from their labels.
  bool IsDirty() const override { return mListChanged || PropertyDialog::IsDirty(); }
  void IsDirty(bool value) override;
  /// Shows the selected object on the pages. Does nothing without a map. Loads the form.
  void RefreshContents() override;

  /// The position of the selected layer in its map, from 1; 0 for the row of the map, for tiles, and while nothing is
  /// selected.
  std::int32_t SelectedLayer() const { return mSelectedLayer; }

  TreeList sftLayers{*this, "sftLayers", {.Place = {120, 120, 2400, 4995}, .AccessibleName = "Layers"}};
  Button cmdAdd{*this, "cmdAdd", PictureDesign("Add layer", 0), glyphs::kPlus};
  Button cmdUp{*this, "cmdUp", PictureDesign("Move selected layer up", 1), glyphs::kUp};
  Button cmdDown{*this, "cmdDown", PictureDesign("Move selected layer down", 2), glyphs::kDown};
  Button cmdRemove{*this, "cmdRemove", PictureDesign("Remove selected layer", 3), glyphs::kCross};

 protected:
  void Arrange() override;
  void Ready() override;
  void Form_Unload() override;

 private:
  using MoveLayer = bool (IMap::*)(std::int32_t);

  static Design PictureDesign(const char* toolTip, int position);
  /// The object of a row, and the position of a layer; 0 for all other rows.
  struct Selection {
    HostObject* Object = nullptr;
    std::int32_t Layer = 0;
  };

  void cmdApply_Click() override;
  void Accept() override;
  void cmdCancel_Click() override;
  void Relay(Act act, Notification notify) override;
  void ButtonStep(const std::function<void()>& step) override;
  bool IsAnyDirty() const override { return PropertyDialog::IsAnyDirty() || mListChanged; }
  void cmdAdd_Click();
  void cmdRemove_Click();
  void MoveSelected(MoveLayer move, int rows);
  void sftLayers_Click();
  void sftLayers_KeyDown(int keyCode);
  void NameChanged(const std::string& name);

  Placement Kept() const { return {OwnerDesktop(), RegistryKey(), "MapSettings"}; }
  /// Fills the list with what can be read of the map.
  void FillList();
  std::string CollectionName();
  void ReadLayers(std::vector<TreeRow>& rows);
  void ReadTiles(HostObject* layer, int level, std::vector<TreeRow>& rows);
  bool MayChange() const { return mMap && mSelectedLayer != 0 && !mIsChanging; }
  /// Has the map move or remove the selected layer, and fills the list if that is done, or if the layer has gone.
  bool Change(const std::function<bool()>& change);
  void AddFile(const std::string& path);
  /// Selects a row and shows its object. A row outside the list stands for the nearest one, and so does one whose layer
  /// has gone.
  void SelectRow(int row);
  /// The same by the position among the visible rows.
  void SelectPosition(int position);
  /// The position of the selected layer while all rows are folded, as they are right after filling.
  int FoldedPosition() const;
  bool ShowSelection(int row);
  /// Selects a row of the list alone and asks the map for what it stands for. Returns false if that has gone.
  bool TakeRow(int row, Selection& selection);
  Selection SelectionOf(int row);
  /// Makes an object the client of all pages. A page that fails keeps the others from nothing.
  void ShowObject(HostObject* object);
  /// Enables Up, Down and Remove, which work on layers only.
  void EnableMoving();

  std::int32_t mFlags = 0;
  HostObject* mClient = nullptr;
  ILayers* mLayers = nullptr;
  IMap* mMap = nullptr;
  HostObject* mCurrentObject = nullptr;
  std::int32_t mSelectedLayer = 0;
  int mSelectedRow = 0;
  /// Counts selections, to tell whether another one came in between.
  int mSelections = 0;
  /// The same for fillings of the list.
  int mFillings = 0;
  bool mListChanged = false;
  /// Set while the form itself moves the selection.
  bool mIsSelecting = false;
  /// Set while the map is changed, during which it is asked for no other change.
  bool mIsChanging = false;
};

}  // namespace orx
