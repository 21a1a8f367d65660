// The demo's window: a map, the choice of a layer, a button for each dialog, a log, and the choice of a language. It is
// a form of the library itself, so the demo runs on every desktop.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

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

class HostWindow;

/// What the chosen entry of the layer list must have, so that a dialog can be opened for it.
enum class Need { Nothing, Layer, Labels, Data };

/// One of the demo's dialogs.
struct Dialog {
  /// Where the button stands among all, counted row by row; in this order Tab walks them.
  int Cell = 0;
  std::string Button;
  std::string Caption;
  std::function<void(HostWindow&)> Open;
  Need Needs = Need::Nothing;
  std::string ToolTip = {};
  /// What stands behind the form's name in the name of its picture; none: it has no picture.
  std::optional<std::string> PictureSuffix = "";
};

/// The button that opens a dialog. Window and dialog must outlive it.
struct DialogButton {
  DialogButton(HostWindow& window, const Dialog& dialog);

  const Dialog& Opens;
  orx::Button Face;
};

class HostWindow final : public orx::Form {
 public:
  /// All dialogs of the demo, in the order in which the gallery takes their pictures.
  static const std::vector<Dialog>& Dialogs();

  /// The map and the languages must outlive the window.
  HostWindow(orx::Desktop& desktop, orx::maplibrary::Map& map, const Languages& languages);
  ~HostWindow() override { mMap.Changed = nullptr; }

  orx::PictureBox pctMap{*this, "pctMap", {.ToolTipText = "The map", .AccessibleName = "Map"}};
  orx::Label lblLayer{*this, "lblLayer", {.Caption = "La&yer:"}};
  orx::ComboBox cboLayer{*this, "cboLayer", {}};
  /// The buttons that open the dialogs, as they stand row by row.
  std::deque<DialogButton> Buttons = MakeButtons();
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

  std::deque<DialogButton> MakeButtons();
  /// The data object of the chosen layer, null when it has none.
  orx::HostObject* ChosenData() const;
  bool ChosenHas(Need need) const;
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
