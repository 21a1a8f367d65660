// The demo's window: a map, the choice of a layer, a button for each dialog, a log, and the choice of a language. It is
// a form of the library itself, so the demo runs on every desktop.
#pragma once

#include "examples/maphost/HostLog.h"
#include "examples/maphost/Languages.h"
#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ComboBox.h"
#include "forms/Form.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "maplibrary/model/Map.h"
#include "pages/PageFactory.h"
#include "service/CCommonMapDialogs.h"

namespace maphost {

class HostWindow final : public orx::Form {
 public:
  /// The map and the languages must outlive the window.
  HostWindow(orx::Desktop& desktop, orx::maplibrary::Map& map, const Languages& languages);
  ~HostWindow() override { mMap.Changed = nullptr; }

  orx::PictureBox pctMap{*this, "pctMap", {.ToolTipText = "The map", .AccessibleName = "Map"}};
  orx::Label lblLayer{*this, "lblLayer", {.Caption = "La&yer:"}};
  orx::ComboBox cboLayer{*this, "cboLayer", {}};
  orx::Button cmdManager{*this, "cmdManager", {.Caption = "Layer manage&r..."}};
  orx::Button cmdSettings{*this, "cmdSettings", {.Caption = "&Settings..."}};
  orx::Button cmdData{*this, "cmdData", {.Caption = "Da&ta..."}};
  orx::Button cmdProperties{*this, "cmdProperties", {.Caption = "&Properties..."}};
  orx::Button cmdLabels{*this, "cmdLabels", {.Caption = "&Labels..."}};
  orx::Button cmdSymbol{
      *this, "cmdSymbol", {.Caption = "Sym&bol...", .ToolTipText = "Picks the character that marks points"}};
  orx::Button cmdCoordinates{*this, "cmdCoordinates", {.Caption = "&Coordinates..."}};
  orx::Button cmdLegends{*this, "cmdLegends", {.Caption = "Le&gends..."}};
  orx::Button cmdGeoreference{
      *this, "cmdGeoreference", {.Caption = "Georefere&nce...", .ToolTipText = "Moves the map on the ground"}};
  orx::Button cmdClassify{*this, "cmdClassify", {.Caption = "Classi&fication..."}};
  orx::Button cmdOptions{*this, "cmdOptions", {.Caption = "Data &options..."}};
  orx::Button cmdShade{*this, "cmdShade", {.Caption = "Relief s&hading..."}};
  orx::Button cmdIsolines{*this, "cmdIsolines", {.Caption = "&Isolines..."}};
  orx::Button cmdContours{*this,
                          "cmdContours",
                          {.Caption = "Contours o&ver tiles...",
                           .ToolTipText = "Computes the contours of a large area, with progress and Cancel"}};
  orx::Button cmdColors{*this, "cmdColors", {.Caption = "Color sche&mes..."}};
  orx::Button cmdAddLayer{*this, "cmdAddLayer", {.Caption = "A&dd layer..."}};
  orx::Button cmdLost{
      *this, "cmdLost", {.Caption = "Missing fil&e...", .ToolTipText = "Opens a layer whose file is gone"}};
  orx::Button cmdJump{*this, "cmdJump", {.Caption = "&Jump to layer..."}};
  orx::Button cmdShowHide{*this, "cmdShowHide", {.Caption = "Sho&w/hide..."}};
  orx::CheckBox chkModeless{*this, "chkModeless", {.Caption = "&Keep dialogs open"}};
  orx::Label lblLanguage{*this, "lblLanguage", {.Caption = "L&anguage:"}};
  orx::ComboBox cboLanguage{*this, "cboLanguage", {}};
  orx::Label lblLog{*this, "lblLog", {.Caption = "Call-backs and res&ults:"}};
  orx::TextBox txtLog{*this, "txtLog", {}, orx::TextLines::Multiple, true};

  /// How many times the grid of a layer is laid out, across and down, for the contours of a large area.
  void TilesAcross(std::int32_t value) { mTilesAcross = value; }

 protected:
  void Form_Load() override;
  void Form_Resize() override;

 private:
  using Member = std::int32_t (orx::CCommonMapDialogs::*)(orx::HostObject*, const std::string&, orx::ShowMode,
                                                          orx::OwnerWindow);
  /// An entry of the layer list.
  struct Choice {
    std::string Name;
    orx::HostObject* Object;
  };

  /// The data object of the chosen layer, null when it has none.
  orx::HostObject* ChosenData() const;
  void FillLayers();
  void FillLanguages();
  void EnableDialogs();
  void DrawMap();
  orx::ShowMode Mode() const;
  /// Shows a dialog for the chosen layer and writes its result down.
  void ShowFor(const std::string& what, Member member);
  void cmdManager_Click();
  void cmdSettings_Click();
  void cmdLegends_Click();
  void cmdGeoreference_Click();
  void cmdSymbol_Click();
  void cmdClassify_Click();
  void cmdOptions_Click();
  using GridDialog = bool (*)(orx::Desktop&, orx::HostObject*, bool&, orx::ILanguage*);
  void ShowGridDialog(const std::string& what, GridDialog dialog);
  void cmdContours_Click();
  void cmdColors_Click();
  void cmdJump_Click();
  void cmdShowHide_Click();
  /// Has the user choose layers from a list; gives their places among the choices.
  std::vector<std::int32_t> ChooseLayers(const std::string& caption, bool several, const std::string& question);
  std::string Translated(const std::string& text) const;
  const Choice& Chosen() const { return mChoices.at(static_cast<std::size_t>(cboLayer.ListIndex())); }
  void cmdAddLayer_Click();
  void cmdLost_Click();
  /// Reads the files; what cannot be read is told.
  void AddLayers(const std::vector<std::string>& files);
  void cboLanguage_Click();
  /// Writes the result of a property dialog down, which may be open still, and of one that has closed.
  void ReportPages(const std::string& what, std::int32_t result);
  void Report(const std::string& what, std::int32_t result);
  void Redraw();

  orx::maplibrary::Map& mMap;
  orx::maplibrary::Layers mLayers{mMap};
  const Languages& mLanguages;
  DesignedCaptions mDesigned{*this};
  std::vector<Choice> mChoices;
  std::int32_t mTilesAcross = 4;
  orx::pages::PageFactory mPages;
  HostLog mLog{txtLog};
  HostCallBack mCallBack{mLog, [this] { DrawMap(); }};
  orx::CCommonMapDialogs mDialogs{OwnerDesktop(), mPages};
};

}  // namespace maphost
