// The public class for long operations of the host: a window with a bar, a line of text and a Cancel button, which the
// host updates as it works.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "forms/FormWindow.h"

namespace orx {

class Desktop;
class frmProgress;

/// One progress window, there from the start and hidden until it is shown. For the user-interface thread of its
/// desktop.
///
/// The window shows what is set at once, at most 60 times a second, whether the host handles events or not; the Cancel
/// button is noticed only when it does (Desktop::ProcessPendingEvents, or the host's own loop).
class CCommonProgressDialog {
 public:
  /// The desktop must outlive the object. The bar goes from 0 to 100 and is empty, the title is "Progress".
  explicit CCommonProgressDialog(Desktop& desktop);
  ~CCommonProgressDialog();
  CCommonProgressDialog(const CCommonProgressDialog&) = delete;
  CCommonProgressDialog& operator=(const CCommonProgressDialog&) = delete;

  /// Sets the minimum of the bar, then its maximum, then its value, as numbers of single precision: whole numbers
  /// beyond 16,777,216 are rounded. Throws RunTimeError (kErrorInvalidValue) when `Max` is below `Min` or `Value`
  /// beyond them; what was set before it stays.
  void Init(std::int32_t Min, std::int32_t Max, std::int32_t Value);
  /// True once the user has pressed Cancel, Escape or the close box, also while the window is hidden or shown again.
  bool CancelAction() const;

  /// The value of the bar. Setting it throws RunTimeError (kErrorInvalidValue) beyond the ends of the bar, getting it
  /// (kErrorOverflow) when it has been rounded beyond 32 bits.
  std::int32_t Value() const;
  void Value(std::int32_t value);
  /// The title of the window, UTF-8.
  std::string Caption() const;
  void Caption(const std::string& value);
  /// The text above the bar, UTF-8; two lines have room.
  std::string Message() const;
  void Message(const std::string& value);

  /// Shows the window and returns at once. While a modal form of this library is open the window becomes modal, too,
  /// and this returns when it has closed: by Hide, or by its close box once Cancel has been pressed. Does nothing when
  /// the window is shown already. Lets pending events be handled; throws nothing of what goes wrong in showing.
  void Show(OwnerWindow OwnerForm = {});
  /// Takes the window from the screen and lets pending events be handled. It can be shown again.
  void Hide();
  /// Repaints the window.
  void Refresh();

 private:
  Desktop& mDesktop;
  std::shared_ptr<frmProgress> mForm;
};

}  // namespace orx
