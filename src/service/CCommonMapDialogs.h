// The public entry point of the library: a host creates one object, configures it, and asks it for one dialog at a
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
#include "hostobjects/IFileCheck.h"
#include "hostobjects/ILanguage.h"
#include "hostobjects/PropertyPage.h"
#include "hostobjects/TextArray.h"

namespace orx {

class PropertyDialog;

/// Shows the dialogs. The members that show one, and the one that sets the language, throw WrongThread when they are
/// called on another thread than the one that made the desktop, and nothing is shown. The objects given to it are used,
/// not owned: the host keeps the desktop, the page factory, the language and the call-back alive for as long as it uses
/// the service or has a modeless dialog open.
///
/// The members that show property dialogs share their parameters and their result:
/// - `mObj`: the object to edit. Null, and objects that the page cannot edit, show an empty page.
/// - `mCaption`: the title of the dialog; a blank one keeps the dialog's own.
/// - `mModal`: a modal call returns when the dialog has closed; a modeless one returns at once, and the dialog lives
///   until it is closed. While a modal dialog of the library is open nothing is shown modeless, and the result is 0.
/// - `OwnerForm`: the window that the dialog belongs to. None by default: a modeless dialog then belongs to no window,
/// so
///   that it outlives those of the host; on Windows a modal one belongs to the host's foremost window, behind which it
///   would be lost otherwise.
/// - result: -1 if the object was changed; 0 if it was not, or if the user cancelled or closed the window. The layer
///   manager moves and removes layers at once, so that after that it is -1 also for a closed window.
/// On the right thread they never throw: failing steps are skipped, and a result is always returned. What a page, the
/// call-back or the language throws while a dialog is opened or a button works ends that step: a dialog that cannot be
/// filled is not shown, and the hourglass of Apply and OK stays for the host to take away.
///
/// In any call that reaches it the host may throw, close the dialog, open another one, or destroy this object; the call
/// that shows the dialog returns all the same.
class CCommonMapDialogs {
 public:
  /// Shows dialogs on `desktop` with pages made by `pages`. There is no language and no call-back at first.
  CCommonMapDialogs(Desktop& desktop, IPageFactory& pages) : mKit{.Screen = desktop, .Pages = pages} {}
  CCommonMapDialogs(const CCommonMapDialogs&) = delete;
  CCommonMapDialogs& operator=(const CCommonMapDialogs&) = delete;

  /// The key under which dialogs keep their placement in the host's settings. While empty, as it is at first, nothing
  /// is kept.
  const std::string& RegistryKey() const { return mKit.RegistryKey; }
  void RegistryKey(const std::string& value) { mKit.RegistryKey = value; }

  /// The object that is notified of Apply, Cancel and OK; null for none.
  IDialogCallBack* CallBack() const { return mKit.CallBack; }
  void CallBack(IDialogCallBack* value) { mKit.CallBack = value; }

  /// The language of the dialogs; null for none. A language with entries also provides the library's help file, under
  /// the key "_HelpFileMapDialogs". Throws what the language throws.
  ILanguage* Language() const { return mKit.Language; }
  void Language(ILanguage* value);

  /// The check that data files chosen with a page's Browse button have to pass, for the whole process; used, not owned.
  /// A file that it refuses is not taken, and the dialog stays. Null, as at first, leaves it to the data object that
  /// the file is for: the map library's objects read the file to see; other files have to be readable.
  static IFileCheck* FileCheck();
  static void FileCheck(IFileCheck* value);

  /// All settings of a layer on four pages or, for a map (IMap) or a layer collection (ILayers), the layer manager,
  /// which also receives `mFlags` and keeps its placement under RegistryKey.
  std::int32_t Show(HostObject* mObj, std::int32_t mFlags, const std::string& mCaption = {},
                    ShowMode mModal = ShowMode::Modal, OwnerWindow OwnerForm = {});
  /// The data of a layer (an object with ILayer or IData). Its placement is kept under RegistryKey.
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
  /// data, kUnknownRangeEnd if not known; `flags` is kMayChangeClassCount or 0. `IsDirty` is set to the result. The
  /// dialog is always modal, without owner and with its own title, whatever the last three parameters say. For other
  /// objects nothing is shown, the result is 0, and `IsDirty` is left alone. OK writes nothing unless a setting was
  /// changed: a field that nobody has typed into, and a list in which nobody has picked an entry, stand for exactly
  /// what the object holds. With equal steps a confirmed change also writes the upper end that is shown, which follows
  /// from step and number of classes; where the settings have no number of classes, OK takes the one of IData. A
  /// property that cannot be read leaves its field as designed; when OK writes, it writes all properties, that one too.
  std::int32_t ShowDataClassify(HostObject* mObj, double mMinValue, double mMaxValue, std::int32_t flags, bool& IsDirty,
                                const std::string& mCaption = {}, ShowMode mModal = ShowMode::Modal,
                                OwnerWindow OwnerForm = {});
  /// How missing values, zeros and places without data of a data object (IData) are treated. Works like
  /// ShowDataClassify, but OK writes all values, and the range of zero always from -|x| to |x|, x being its lower
  /// bound: the one case in which OK can change an object that the user has not edited. The result does not count it.
  /// Where one of the values cannot be read, nothing is shown, and the result is 0.
  std::int32_t ShowDataOptions(HostObject* mObj, const std::string& mCaption = {}, ShowMode mModal = ShowMode::Modal,
                               OwnerWindow OwnerForm = {});

  /// The extent of a map (IMap), which keeps its ratio of width to height. `mKeepRatio`, `mFormat` and `mCaption` have
  /// no effect: the ratio is always kept, and the dialog has a number format and a title of its own. Returns -1 if no
  /// error occurred, also if the user cancelled, and 0 otherwise. For other objects nothing is shown, and the result is
  /// 0. Throws what the object throws when asked for its kind.
  std::int32_t ShowGeoReference(HostObject* mObj, CheckState mKeepRatio = CheckState::Grayed,
                                const std::string& mFormat = "0.0000", const std::string& mCaption = {},
                                OwnerWindow OwnerForm = {});

  /// Lets the user choose a character of a font and an angle to turn it by. The dialog opens on `mFontName` (a face
  /// name, UTF-8), `mCharacter` (0 to 255) and `mRotation` (degrees). If any of them changes, all three take the values
  /// of the dialog, whose angle is in whole degrees, and `mChanged` becomes true; otherwise all four are left alone.
  /// `mCaption` has no effect. Returns -1 if no error occurred, also if the user cancelled, and 0 otherwise.
  std::int32_t ShowCharacterSelection(std::string& mFontName, std::int32_t& mCharacter, double& mRotation,
                                      bool& mChanged, const std::string& mCaption = {}, OwnerWindow OwnerForm = {});

  /// Lets the user choose entries of a list. `mSelection` holds the entries, with the indexes of the host's own array;
  /// a blank entry is shown as its index. With `mMultiselect` several can be chosen. `mListIndex` is the position of
  /// the entry selected at first, from 1; 0 and below select none, and a position past the last one selects the first.
  /// With `mAskConfirmation` a choice only counts once the user has answered `mConfirmationQuestion` with Yes. Texts
  /// are UTF-8. Returns the number of entries chosen, and their indexes in `mSelected`. If the user cancelled, or chose
  /// none of several, the result is 0 and `mSelected` is left alone. Where only one can be chosen, the result is 1 even
  /// if none was, by OK or by the close box, and `mSelected` is empty. Throws what the language throws when asked for
  /// its number of entries.
  std::int32_t ShowListSelection(const TextArray& mSelection, bool mMultiselect, std::int32_t mListIndex,
                                 const std::string& mCaption, bool mAskConfirmation,
                                 const std::string& mConfirmationQuestion, std::vector<std::int32_t>& mSelected);

  /// Lets the user choose the files of new layers, several at once whatever `Multiselect` says. The dialog belongs to
  /// the window `hWnd` (HWND on Windows, WId on Qt; 0 for none) and opens on the first of `Files`. Returns true if
  /// files of an accepted type were chosen; `Files` then holds their full paths, UTF-8, and is left alone otherwise.
  bool ShowAddLayer(std::uintptr_t hWnd, bool Multiselect, std::vector<std::string>& Files);
  /// The same for a single data file.
  bool ShowAddData(std::uintptr_t hWnd, bool Multiselect, std::vector<std::string>& Files);

  /// Asks the user what to do about a layer's file that is missing. `NewFileName` is set to the path of a replacement,
  /// or to an empty text if there is none; `CancelAll` is set to true if the user wants to skip all other missing files
  /// as well. Always returns false. Throws what the language throws.
  bool ShowFileNotFound(const std::string& FileName, std::string& NewFileName, bool& CancelAll);
  /// The same for a data file.
  bool ShowDataFileNotFound(const std::string& FileName, std::string& NewFileName, bool& CancelAll);

 private:
  /// All that this object knows. A call works with a copy from the time on when host code can run, since the host may
  /// destroy the object in the middle of it.
  struct Kit {
    Desktop& Screen;
    IPageFactory& Pages;
    std::string RegistryKey = {};
    ILanguage* Language = nullptr;
    IDialogCallBack* CallBack = nullptr;
  };

  struct MissingFile;
  static bool AskForFile(const Kit& kit, const MissingFile& missing, std::string& newFileName, bool& cancelAll);

  struct Request;
  template <class Dialog>
  static std::int32_t ShowPages(const Kit& kit, const Request& request);
  static std::int32_t RunPages(const Kit& kit, PropertyDialog& form, const Request& request);

  /// What a member works with. A copy, since the host may destroy this object meanwhile. Throws WrongThread.
  Kit Ready() const;

  Kit mKit;
};

}  // namespace orx
