// The native window of a form, as a desktop provides it.
#pragma once

#include <cstdint>

#include "forms/Geometry.h"

namespace orx {

enum class ShowMode { Modeless = 0, Modal = 1 };

class Form;

/// The window that a dialog belongs to: another form, or a native window of the host by its handle (HWND on Windows; on
/// Qt the WId of a window of the same application). Neither: the dialog stands alone.
struct OwnerWindow {
  Form* OwnerForm = nullptr;
  std::uintptr_t NativeHandle = 0;
};

/// Realised when a form is shown for the first time, gone when it is unloaded. Owns the peers of the form's controls.
class FormWindow {
 public:
  virtual ~FormWindow() = default;
  /// Shows the window at the form's place, its client area `Form::ShownClientSize` large.
  virtual void Show(ShowMode mode, OwnerWindow owner) = 0;
  virtual void Hide() = 0;
  /// Runs the modal loop until EndModal; calls Desktop::ModalIsRunning once the user can act.
  virtual void RunModal() = 0;
  virtual void EndModal() = 0;
  /// Takes over the form's caption and place.
  virtual void UpdateCaption() = 0;
  virtual void UpdatePlace() = 0;
  virtual void Repaint() = 0;
  virtual std::uintptr_t NativeHandle() const = 0;
  /// The form lets the window go: neither the form nor its controls may be touched from now on, whatever native events
  /// still come. A modal loop that runs in the window lives to its end; the destructor follows later.
  virtual void Abandon() = 0;
};

}  // namespace orx
