// The public class for long operations of the host: a window with a bar, a text and a Cancel button, which the host
// updates as it works.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "forms/FormWindow.h"

namespace orx {

class Desktop;
class frmProgress;

/// One progress window, which exists from the start and is hidden until it is shown. On another
/// thread than the one that made its desktop, members that show or change something throw WrongThread. It may be
/// destroyed in any event that one of its members lets be handled.
///
/// What is set appears at once, at most 60 times a second, whether or not the host handles events. A press of the
/// Cancel button is noticed only when it does (Desktop::ProcessPendingEvents, or the host's own loop).
class CCommonProgressDialog {
 public:
  /// The desktop must outlive the object. The bar goes from 0 to 100 and is empty; the title is "Progress".
  explicit CCommonProgressDialog(Desktop& desktop);
  ~CCommonProgressDialog();
  CCommonProgressDialog(const CCommonProgressDialog&) = delete;
  CCommonProgressDialog& operator=(const CCommonProgressDialog&) = delete;

  /// Sets the minimum of the bar, then its maximum, then its value, in single precision: whole numbers beyond
  /// 16,777,216 are rounded. Throws RunTimeError (kErrorInvalidValue) if `Max` is below `Min` or `Value` lies outside
  /// them; what was set by then stays.
  void Init(std::int32_t Min, std::int32_t Max, std::int32_t Value);
  /// True once the user has pressed Cancel, Escape or the close box. Hiding and showing the window does not reset it.
  bool CancelAction() const;

  /// The value of the bar. Setting it throws RunTimeError (kErrorInvalidValue) for a value outside the bar, and getting
  /// it (kErrorOverflow) for one that was rounded beyond 32 bits.
  std::int32_t Value() const;
  void Value(std::int32_t value);
  /// The title of the window, UTF-8.
  std::string Caption() const;
  void Caption(const std::string& value);
  /// The text above the bar, UTF-8; there is room for two lines.
  std::string Message() const;
  void Message(const std::string& value);

  /// Shows the window and returns at once. Without `OwnerForm` it belongs to no window and outlives those of the host.
  /// While a modal form of this library is open, the window is modal as well, and
  /// this returns when it has closed: by Hide, or by its close box once Cancel was pressed. Does nothing if the window
  /// is already shown. Lets pending events be handled. Never throws what goes wrong in showing.
  void Show(OwnerWindow OwnerForm = {});
  /// Hides the window, which can be shown again, and lets pending events be handled.
  void Hide();
  /// Repaints the window.
  void Refresh();

 private:
  Desktop& mDesktop;
  std::shared_ptr<frmProgress> mForm;
};

}  // namespace orx
