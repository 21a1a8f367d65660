#include "service/CCommonMapDialogs.h"

#include "dialogframe/FileChoice.h"
#include "dialogframe/Help.h"
#include "dialogframe/PointerScope.h"
#include "hostobjects/ErrorTrap.h"
#include "hostobjects/IData.h"
#include "hostobjects/IMap.h"
#include "openers/DataFile.h"
#include "openers/SecondaryDialogs.h"
#include "pickers/frmListSelection.h"
#include "pickers/frmMsgBox.h"
#include "propertydialogs/frmCoordinates.h"
#include "propertydialogs/frmDataDialog.h"
#include "propertydialogs/frmLabels.h"
#include "propertydialogs/frmLegend.h"
#include "propertydialogs/frmMapSettings.h"
#include "propertydialogs/frmProperties.h"
#include "propertydialogs/frmSettings.h"
#include "text/Trimmed.h"

namespace orx {
struct CCommonMapDialogs::Request {
  HostObject* Client;
  /// The index of a legend, or the flags of the layer manager.
  std::int32_t Number;
  std::string Caption;
  ShowMode Mode;
  OwnerWindow Owner;
};

CCommonMapDialogs::Kit CCommonMapDialogs::Ready() const {
  // Before any trap, which would take the error for one of the host's objects.
  mKit.Screen.RequireThread();
  return mKit;
}

void CCommonMapDialogs::Language(ILanguage* value) {
  mKit.Screen.RequireThread();
  mKit.Language = value;
  if (IsActive(value)) modMain::HelpFile(value->TranslateText("_HelpFileMapDialogs"));
}

IFileCheck* CCommonMapDialogs::FileCheck() {
  return modMain::FileCheck();
}

void CCommonMapDialogs::FileCheck(IFileCheck* value) {
  modMain::FileCheck(value);
}

template <class Dialog>
std::int32_t CCommonMapDialogs::ShowPages(const Kit& kit, const Request& request) {
  std::shared_ptr<PropertyDialog> form;
  ErrorTrap trap;
  trap.Step([&] { form = std::make_shared<Dialog>(kit.Screen, kit.Pages); });
  return form ? RunPages(kit, *form, request) : 0;
}

std::int32_t CCommonMapDialogs::RunPages(const Kit& kit, PropertyDialog& form, const Request& request) {
  // What the form holds stays until it is asked for its outcome, whatever the host does meanwhile.
  const Form::Act act(form);
  ErrorTrap trap;
  trap.Step([&] { form.Language(kit.Language); });
  form.Take({request.Client, kit.RegistryKey, kit.CallBack, request.Number}, trap);
  trap.Step([&] { form.RefreshContents(); });
  // Loading translates the designed caption, so it has to happen before the caption is replaced.
  trap.Step([&] { form.Load(); });
  if (!Trimmed(request.Caption, kSpaces).empty()) trap.Step([&] { form.Caption(request.Caption); });
  if (request.Mode == ShowMode::Modeless) form.UnloadWhenHidden();
  trap.Step([&] { form.Show(request.Mode, request.Owner); });
  std::int32_t result = 0;
  trap.Step([&] {
    if (!form.Canceled() && form.IsDirty()) result = -1;
  });
  if (request.Mode == ShowMode::Modal) trap.Step([&] { form.Unload(); });
  return result;
}

std::int32_t CCommonMapDialogs::Show(HostObject* mObj, std::int32_t mFlags, const std::string& mCaption,
                                     ShowMode mModal, OwnerWindow OwnerForm) {
  const Kit kit = Ready();
  const Request request{mObj, mFlags, mCaption, mModal, OwnerForm};
  bool isMap = false;
  ErrorTrap trap;
  trap.Step([&] { isMap = QueryKind<IMap>(mObj) || QueryKind<ILayers>(mObj); });
  return isMap ? ShowPages<frmMapSettings>(kit, request) : ShowPages<frmSettings>(kit, request);
}

std::int32_t CCommonMapDialogs::ShowDataProperties(HostObject* mObj, const std::string& mCaption, ShowMode mModal,
                                                   OwnerWindow OwnerForm) {
  return ShowPages<frmDataDialog>(Ready(), {mObj, 0, mCaption, mModal, OwnerForm});
}

std::int32_t CCommonMapDialogs::ShowLegends(HostObject* mObj, std::int32_t Index, const std::string& mCaption,
                                            ShowMode mModal, OwnerWindow OwnerForm) {
  return ShowPages<frmLegend>(Ready(), {mObj, Index, mCaption, mModal, OwnerForm});
}

std::int32_t CCommonMapDialogs::ShowProperties(HostObject* mObj, const std::string& mCaption, ShowMode mModal,
                                               OwnerWindow OwnerForm) {
  return ShowPages<frmProperties>(Ready(), {mObj, 0, mCaption, mModal, OwnerForm});
}

std::int32_t CCommonMapDialogs::ShowLabels(HostObject* mObj, const std::string& mCaption, ShowMode mModal,
                                           OwnerWindow OwnerForm) {
  return ShowPages<frmLabels>(Ready(), {mObj, 0, mCaption, mModal, OwnerForm});
}

std::int32_t CCommonMapDialogs::ShowCoordinates(HostObject* mObj, const std::string& mCaption, ShowMode mModal,
                                                OwnerWindow OwnerForm) {
  return ShowPages<frmCoordinates>(Ready(), {mObj, 0, mCaption, mModal, OwnerForm});
}

std::int32_t CCommonMapDialogs::ShowDataClassify(HostObject* mObj, double mMinValue, double mMaxValue,
                                                 std::int32_t flags, bool& IsDirty, const std::string&, ShowMode,
                                                 OwnerWindow) {
  const Kit kit = Ready();
  bool changed = false;
  ErrorTrap trap;
  trap.Step([&] {
    if (QueryKind<IData>(mObj))
      changed = modMain::ShowClassifyDialog(kit.Screen, {mObj, mMinValue, mMaxValue, flags}, IsDirty, kit.Language);
  });
  return changed ? -1 : 0;
}

std::int32_t CCommonMapDialogs::ShowDataOptions(HostObject* mObj, const std::string&, ShowMode, OwnerWindow) {
  const Kit kit = Ready();
  bool changed = false;
  ErrorTrap trap;
  trap.Step([&] {
    if (QueryKind<IData>(mObj)) modMain::ShowDataOptionsDialog(kit.Screen, mObj, changed, kit.Language);
  });
  return changed ? -1 : 0;
}

std::int32_t CCommonMapDialogs::ShowGeoReference(HostObject* mObj, CheckState, const std::string&, const std::string&,
                                                 OwnerWindow OwnerForm) {
  const Kit kit = Ready();
  if (!QueryKind<IMap>(mObj)) return 0;
  return modMain::ShowGeoreferenceDialog(kit.Screen, mObj, kit.Language, OwnerForm) ? -1 : 0;
}

std::int32_t CCommonMapDialogs::ShowCharacterSelection(std::string& mFontName, std::int32_t& mCharacter,
                                                       double& mRotation, bool& mChanged, const std::string&,
                                                       OwnerWindow OwnerForm) {
  CharacterRequest choice{mFontName, mCharacter, mRotation, mChanged};
  const Kit kit = Ready();
  const bool isDone = modMain::ShowCharacterDialog(kit.Screen, choice, kit.Language, OwnerForm);
  mFontName = std::move(choice.FontName);
  mCharacter = choice.Character;
  mRotation = choice.Rotation;
  mChanged = choice.Changed;
  return isDone ? -1 : 0;
}

std::int32_t CCommonMapDialogs::ShowListSelection(const TextArray& mSelection, bool mMultiselect,
                                                  std::int32_t mListIndex, const std::string& mCaption,
                                                  bool mAskConfirmation, const std::string& mConfirmationQuestion,
                                                  std::vector<std::int32_t>& mSelected) {
  // Errors reach the host, but the form is unloaded first.
  const auto unload = [](frmListSelection* form) { form->UnloadQuietly(); };
  const Kit kit = Ready();
  const auto form = std::make_shared<frmListSelection>(kit.Screen);
  const std::unique_ptr<frmListSelection, decltype(unload)> unloaded(form.get(), unload);
  form->Language(kit.Language);
  form->Init(mSelection, mMultiselect, mListIndex, mAskConfirmation, mConfirmationQuestion, mCaption);
  form->Show();
  bool isCanceled = false;
  std::int32_t count = 0;
  form->GetSelectedItems(mSelected, isCanceled, count);
  return count;
}

bool CCommonMapDialogs::ShowAddLayer(std::uintptr_t hWnd, bool Multiselect, std::vector<std::string>& Files) {
  const Kit kit = Ready();
  return modDialog::ChooseFiles({kit.Screen, hWnd, modDialog::FileKind::Layers, kit.Language}, Multiselect, Files);
}

bool CCommonMapDialogs::ShowAddData(std::uintptr_t hWnd, bool Multiselect, std::vector<std::string>& Files) {
  const Kit kit = Ready();
  return modDialog::ChooseFiles({kit.Screen, hWnd, modDialog::FileKind::Data, kit.Language}, Multiselect, Files);
}

struct CCommonMapDialogs::MissingFile {
  const char* Prefix;
  const char* Caption;
  modDialog::FileKind Kind;
  const std::string& FileName;
};

bool CCommonMapDialogs::AskForFile(const Kit& kit, const MissingFile& missing, std::string& newFileName,
                                   bool& cancelAll) {
  const PointerScope pointer(kit.Screen, Pointer::Default, kit.Screen.Pointer());
  const auto form = std::make_shared<frmMsgBox>(kit.Screen);
  form->Language(kit.Language);
  form->Kind(missing.Kind);
  form->Message(missing.Prefix + missing.FileName + "\r\nDo you want to specify a new file?\r\n");
  form->Caption(missing.Caption);
  form->FileName(missing.FileName);
  kit.Screen.Beep();
  form->Show();
  cancelAll = form->CancelAll();
  newFileName = form->NewFileName();
  return false;
}

bool CCommonMapDialogs::ShowFileNotFound(const std::string& FileName, std::string& NewFileName, bool& CancelAll) {
  return AskForFile(Ready(), {"File not found: ", "Open layer", modDialog::FileKind::Layers, FileName}, NewFileName,
                    CancelAll);
}

bool CCommonMapDialogs::ShowDataFileNotFound(const std::string& FileName, std::string& NewFileName, bool& CancelAll) {
  return AskForFile(Ready(), {"Data file not found: ", "Open Data", modDialog::FileKind::Data, FileName}, NewFileName,
                    CancelAll);
}

}  // namespace orx
