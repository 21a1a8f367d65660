// The layer manager: a list of the layers of a map and their tiles, which the user adds, moves and removes, beside the
// four property pages of the selected one.
#pragma once

#include <cstdint>
#include <string>

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
  void cmdApply_Click() override;
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
  void FillList();
  void AddRows(IMap& map, const char* defaultName, const char* tag, int level);
  void AddTiles(HostObject* layer, int level);
  void AddFile(const std::string& path);
  /// Selects a row and shows its object. A row outside the list stands for the nearest one.
  void SelectRow(int row);
  /// The same by the position among the visible rows.
  void SelectPosition(int position);
  /// The position of the selected layer while all rows are folded, as they are right after filling.
  int FoldedPosition() const;
  bool ShowSelection(int row);
  void TakeObject();
  void ShowObject();
  /// Enables Up, Down and Remove, which work on layers only.
  void EnableMoving();

  std::int32_t mFlags = 0;
  HostObject* mClient = nullptr;
  ILayers* mLayers = nullptr;
  IMap* mMap = nullptr;
  HostObject* mCurrentObject = nullptr;
  IMap* mCurrentMap = nullptr;
  std::int32_t mSelectedLayer = 0;
  int mSelectedRow = 0;
  /// Counts selections, to tell whether another one came in between.
  int mSelections = 0;
  bool mListChanged = false;
  /// Set while the form itself moves the selection.
  bool mIsSelecting = false;
};

}  // namespace orx
