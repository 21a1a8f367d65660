// The public entry point of the library: a host makes one object, gives it its settings, and asks for one dialog at a
// time.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "forms/CheckBox.h"
#include "forms/Desktop.h"
#include "hostobjects/HostObject.h"
#include "hostobjects/IDialogCallBack.h"
#include "hostobjects/ILanguage.h"
#include "hostobjects/PropertyPage.h"
#include "hostobjects/TextArray.h"

namespace orx {

class PropertyDialog;

/// Shows the dialogs. All calls come on the user-interface thread of the desktop. The objects given to it are used, not
/// owned: the host keeps the desktop, the page factory, the language and the call-back alive for as long as it uses the
/// service or a modeless dialog is open.
///
/// The members that show property dialogs share their parameters and their result:
/// - `mObj`: the object to edit; null and objects that the page cannot edit show an empty page.
/// - `mCaption`: the title of the dialog; a blank one leaves the dialog's own.
/// - `mModal`: modal, the call returns when the dialog has closed; modeless, it returns at once and the dialog lives
///   until it is closed. While a modal dialog of the library is open nothing is shown modeless, and the result is 0.
/// - `OwnerForm`: the window that the dialog belongs to; by default none.
/// - result: -1 when the object was changed, 0 when it was not or the user cancelled or closed the window.
/// They trap errors step by step: a step that fails is skipped, a result is always returned, and nothing is thrown.
class CCommonMapDialogs {
 public:
  /// Shows dialogs on `desktop` with pages made by `pages`; without language and call-back.
  CCommonMapDialogs(Desktop& desktop, IPageFactory& pages) : mDesktop(desktop), mPages(pages) {}
  CCommonMapDialogs(const CCommonMapDialogs&) = delete;
  CCommonMapDialogs& operator=(const CCommonMapDialogs&) = delete;

  /// The key under which dialogs keep their placement in the host's settings; empty at first: nothing is kept.
  const std::string& RegistryKey() const { return mRegistryKey; }
  void RegistryKey(const std::string& value) { mRegistryKey = value; }

  /// The object that hears of Apply, Cancel and OK; null for none.
  IDialogCallBack* CallBack() const { return mCallBack; }
  void CallBack(IDialogCallBack* value) { mCallBack = value; }

  /// The language of the dialogs; null for none. A language with entries also gives the library its help file, under
  /// the key "_HelpFileMapDialogs". Throws what the language throws.
  ILanguage* Language() const { return mLanguage; }
  void Language(ILanguage* value);

  /// All settings of a layer on four pages; of a map (IMap) or a layer collection (ILayers) the layer manager, which
  /// `mFlags` is handed to. Where a dialog stood is kept under RegistryKey.
  std::int32_t Show(HostObject* mObj, std::int32_t mFlags, const std::string& mCaption = {},
                    ShowMode mModal = ShowMode::Modal, OwnerWindow OwnerForm = {});
  /// The data of a layer (an object with ILayer or IData).
  std::int32_t ShowDataProperties(HostObject* mObj, const std::string& mCaption = {}, ShowMode mModal = ShowMode::Modal,
                                  OwnerWindow OwnerForm = {});
  /// The legends of a map (an object with ILegends). `Index` is the legend shown first, counted from 0.
  std::int32_t ShowLegends(HostObject* mObj, std::int32_t Index = 0, const std::string& mCaption = {},
                           ShowMode mModal = ShowMode::Modal, OwnerWindow OwnerForm = {});
  /// General properties of a layer (an object with ILayer).
  std::int32_t ShowProperties(HostObject* mObj, const std::string& mCaption = {}, ShowMode mModal = ShowMode::Modal,
                              OwnerWindow OwnerForm = {});
  /// The labels of a layer (an object with ILabels).
  std::int32_t ShowLabels(HostObject* mObj, const std::string& mCaption = {}, ShowMode mModal = ShowMode::Modal,
                          OwnerWindow OwnerForm = {});
  /// The coordinates of a layer (an object with IExtent) or of a map (IMap).
  std::int32_t ShowCoordinates(HostObject* mObj, const std::string& mCaption = {}, ShowMode mModal = ShowMode::Modal,
                               OwnerWindow OwnerForm = {});

  /// How the values of a data object (IData) are divided into classes. `mMinValue` and `mMaxValue` are the range of the
  /// data, kUnknownRangeEnd when not known; `flags` is kMayChangeClassCount or 0. `IsDirty` becomes the result. The
  /// dialog is always modal, without owner and under its own title, whatever the last three say. Other objects: 0, and
  /// nothing is shown.
  std::int32_t ShowDataClassify(HostObject* mObj, double mMinValue, double mMaxValue, std::int32_t flags, bool& IsDirty,
                                const std::string& mCaption = {}, ShowMode mModal = ShowMode::Modal,
                                OwnerWindow OwnerForm = {});
  /// How missing values, zeros and places without data of a data object (IData) are treated; as ShowDataClassify.
  std::int32_t ShowDataOptions(HostObject* mObj, const std::string& mCaption = {}, ShowMode mModal = ShowMode::Modal,
                               OwnerWindow OwnerForm = {});

  /// Where a map (IMap) lies on the ground; the edges keep their ratio of width to height. The first three settings
  /// have no effect: the ratio is always kept, and the dialog has a number format and a title of its own. -1 when no
  /// error has occurred, also when the user cancelled, else 0. Other objects: 0, and nothing is shown. Throws what the
  /// object throws when it is asked what it is.
  std::int32_t ShowGeoReference(HostObject* mObj, CheckState mKeepRatio = CheckState::Grayed,
                                const std::string& mFormat = "0.0000", const std::string& mCaption = {},
                                OwnerWindow OwnerForm = {});

  /// Has the user choose a character of a font and an angle to turn it by. `mFontName` (a face name, UTF-8),
  /// `mCharacter` (0 to 255) and `mRotation` (degrees) are what the dialog opens on. When one of them has changed, all
  /// three become what the dialog has held, the angle whole degrees, and `mChanged` becomes true; else all four stay.
  /// `mCaption` has no effect. -1 when no error has occurred, also when the user cancelled, else 0.
  std::int32_t ShowCharacterSelection(std::string& mFontName, std::int32_t& mCharacter, double& mRotation,
                                      bool& mChanged, const std::string& mCaption = {}, OwnerWindow OwnerForm = {});

  /// Has the user choose entries of a list, of which the host's own array says what and by which indexes. Without a
  /// word in it, an entry is shown by its index. `mMultiselect`: several can be chosen. `mListIndex` is the place of
  /// the entry that is selected at first, from 1; 0 and below: none, behind the last: the first. `mAskConfirmation`: a
  /// choice counts when the user has answered `mConfirmationQuestion` with Yes. Texts are UTF-8.
  /// Gives how many were chosen, and in `mSelected` their indexes. 0 when the user cancelled and when none of several
  /// was chosen, with `mSelected` as it was; where one can be chosen, 1 also when none was, by OK or by the close box,
  /// with `mSelected` empty. Throws what the language throws when it is asked for its number of entries.
  std::int32_t ShowListSelection(const TextArray& mSelection, bool mMultiselect, std::int32_t mListIndex,
                                 const std::string& mCaption, bool mAskConfirmation,
                                 const std::string& mConfirmationQuestion, std::vector<std::int32_t>& mSelected);

  /// Has the user choose the files of new layers, several if wanted whatever `Multiselect` says; the dialog belongs to
  /// the window `hWnd` (HWND on Windows, WId on Qt; 0: none) and opens on the first of `Files`. True when files of an
  /// accepted type were chosen; `Files` then holds their full paths, UTF-8, else it is as it was.
  bool ShowAddLayer(std::uintptr_t hWnd, bool Multiselect, std::vector<std::string>& Files);
  /// The same for one data file.
  bool ShowAddData(std::uintptr_t hWnd, bool Multiselect, std::vector<std::string>& Files);

  /// Asks the user what to do about the file of a layer that is not at its path. `NewFileName` becomes the path of
  /// another file that the user has found, or empty; `CancelAll` becomes true when no more missing files are to be
  /// told. The result is always False. Throws what the language throws.
  bool ShowFileNotFound(const std::string& FileName, std::string& NewFileName, bool& CancelAll);
  /// The same for a data file.
  bool ShowDataFileNotFound(const std::string& FileName, std::string& NewFileName, bool& CancelAll);

 private:
  struct MissingFile;
  bool AskForFile(const MissingFile& missing, std::string& newFileName, bool& cancelAll);

  struct Request;
  std::int32_t ShowPages(const std::shared_ptr<PropertyDialog>& form, const Request& request);

  Desktop& mDesktop;
  IPageFactory& mPages;
  std::string mRegistryKey;
  ILanguage* mLanguage = nullptr;
  IDialogCallBack* mCallBack = nullptr;
};

}  // namespace orx
