// The native window of a form, as a desktop provides it.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "forms/Geometry.h"

namespace orx {

/// Whether the user must close the dialog before going on, and the caller waits for it.
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
  /// Hides the window; Show may follow.
  virtual void Hide() = 0;
  /// Runs the modal loop until EndModal; calls Desktop::ModalIsRunning once the user can act.
  virtual void RunModal() = 0;
  /// Has the innermost RunModal of this window return; called from inside its loop.
  virtual void EndModal() = 0;
  /// Takes over the form's caption and place.
  virtual void UpdateCaption() = 0;
  virtual void UpdatePlace() = 0;
  /// Ignores the user while the form is not enabled, without a change in look.
  virtual void UpdateEnabled() = 0;
  /// Paints the window and its controls anew.
  virtual void Repaint() = 0;
  /// Paints what has changed since the last painting, without waiting for events.
  virtual void PaintChanges() = 0;
  /// Calls Form::ShowUpdates once, when events are handled after that time. At most one call is pending at a time.
  virtual void CallShowUpdates(std::chrono::milliseconds after) = 0;
  /// Lets the user drag the lower edge, as if the mouse button that is down had been pressed there.
  virtual void DragBottomEdge() = 0;
  /// The handle that the platform's help engine and owned windows need; 0 when there is none.
  virtual std::uintptr_t NativeHandle() const = 0;
  /// Runs what may call the host, in the surroundings that the host had when it showed the window: native events arrive
  /// in those of the desktop. The window may be gone when this returns.
  virtual void RunAsHost(const std::function<void()>& act) { act(); }
  /// The form gives up the window: neither the form nor its controls may be used from now on, whatever native events
  /// still come. A modal loop that runs in the window still comes to its end; the destructor follows later.
  virtual void Abandon() = 0;
};

}  // namespace orx
