// A dialog: named controls, event handlers, and the life from Load to Unload. Knows no platform; a desktop shows it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "forms/Container.h"
#include "forms/Control.h"
#include "forms/Desktop.h"
#include "forms/Keys.h"

namespace orx {

class Button;
class ScreenUpdates;
enum class ButtonRole;

/// How a form is designed. The client area is in twips.
struct FormDesign {
  std::string Caption = {};
  Size Client = {};
  BorderStyle Border = BorderStyle::Fixed;
  std::int32_t HelpContextId = 0;
};

/// The base of all dialogs. Create forms with std::make_shared: a modeless form keeps itself alive until it is closed.
/// All members are for the thread that made the desktop; on another one, what reaches the window or runs code of the
/// form throws WrongThread.
class Form : public Container, public std::enable_shared_from_this<Form> {
 public:
  /// Makes an empty form, neither loaded nor shown; the desktop must outlive it. `name` is the name by which tests and
  /// automation find it.
  Form(Desktop& desktop, std::string name, FormDesign design);
  ~Form() override;

  /// The name and the desktop that were given when the form was made.
  const std::string& Name() const { return mName; }
  Desktop& OwnerDesktop() const { return mDesktop; }
  /// The title of the window, UTF-8.
  const std::string& Caption() const { return mDesign.Caption; }
  void Caption(const std::string& value);
  /// The topic that Help opens; 0 for none of its own.
  std::int32_t HelpContextId() const { return mDesign.HelpContextId; }
  void HelpContextId(std::int32_t value) { mDesign.HelpContextId = value; }
  /// Whether the user may size the window.
  BorderStyle Border() const { return mDesign.Border; }
  /// True for a form that is read from right to left: its window shows it mirrored, drawings excepted. A change counts
  /// when the form next gets a window. False at first.
  bool RightToLeft() const { return mRightToLeft; }
  void RightToLeft(bool value) { mRightToLeft = value; }

  /// Place of the window with its frame, in twips from the upper left corner of the screen.
  int Left() const { return mLeft; }
  int Top() const { return mTop; }
  void Move(int left, int top);
  int Width() const;
  int Height() const;
  /// The client area in which the controls have their places, in twips. Setting it raises Form_Resize while the form is
  /// shown.
  Size ClientSize() const { return mDesign.Client; }
  void ClientSize(Size value);
  /// What the window shows of the client area and of the room that it gives to frames beyond their design (see
  /// FrameRoom): as much as the screen has room for; the rest is reached by scrolling.
  Size ShownClientSize() const;
  /// Puts the window into the middle of the screen.
  void Center();

  /// Something of the form runs: a handler, a page, a call into the host, a modal loop. While an act lives the form
  /// lives, and with it all that its code may be in the middle of: an unload inside takes the window away at once, and
  /// Form_Release follows when the outermost act ends. Acts are as cheap as a counter.
  class Act {
   public:
    /// One more act of the form.
    explicit Act(Form& form);
    ~Act();
    Act(const Act&) = delete;
    Act& operator=(const Act&) = delete;

   private:
    // In this order, so that the form is let go last.
    std::shared_ptr<Form> mKeep;
    Form& mForm;
  };

  /// Runs Form_Load, once until the next Unload. What it throws travels; the form counts as loaded all the same. Does
  /// nothing for a retired form.
  void Load();
  /// True from Load to Unload.
  bool IsLoaded() const { return mLoaded; }
  /// True for a form that was unloaded inside an act that still runs: what the act still does is for nothing. Such a
  /// form neither loads nor shows.
  bool IsRetired() const { return mRetired; }
  /// Loads and shows the form; one that unloads itself as it loads is not shown. Modal: returns when it was hidden or
  /// unloaded, and rethrows what a handler did not catch. Modeless: returns at once. Throws std::logic_error when the
  /// form is shown already, and when it is to be modeless while a modal one is open, which would keep the user from it.
  void Show(ShowMode mode = ShowMode::Modal, OwnerWindow owner = {});
  /// Hides the form and keeps its state.
  void Hide();
  /// Takes the form from the screen, runs Form_Unload and gives up the window; Form_Release follows at the end of the
  /// outermost act. Does nothing when not loaded. What Form_Unload throws travels when all else is done.
  void Unload();
  /// The same for a form that nobody waits for: what it cannot keep, on a full disk for example, is lost with it.
  void UnloadQuietly() noexcept;
  /// For a modeless form that nobody shows again or asks for its outcome: it unloads by itself once it is hidden.
  void UnloadWhenHidden() { mUnloadsWhenHidden = true; }
  /// Repaints the form with all that has changed, without waiting for events.
  void Refresh();
  /// While false, nothing that the user does reaches the form; it looks as before. True at first.
  bool Enabled() const { return mEnabled; }
  void Enabled(bool value);
  /// True while the form is on the screen.
  bool Visible() const { return mVisible; }
  /// True while the form is on the screen and the caller of Show waits for it to close.
  bool IsModal() const { return mVisible && mMode == ShowMode::Modal; }

  /// The control with the focus, null when none has it.
  Control* ActiveControl() const { return mActive; }
  /// The controls where Tab stops, in order.
  std::vector<Control*> TabOrder() const;
  /// The first button with that role, null when there is none.
  Button* ButtonFor(ButtonRole role) const;

  /// Moves the focus and runs LostFocus and GotFocus. True when it rests there, false when the field that loses it has
  /// taken it back or the control is not reachable.
  bool MoveFocus(Control& to);

  /// For desktops and test users: runs what an act of the user sets off. Exceptions that handlers do not catch end the
  /// modal loop and reach the caller of Show; nothing is thrown here.
  void UserAct(const std::function<void()>& act);
  /// Runs what may call the host, in the surroundings that the host had when it showed the form (see
  /// FormWindow::RunAsHost). UserAct does so; it is for whoever is called by a native window in another way.
  void RunAsHost(const std::function<void()>& act);
  /// The native focus has come to a control by mouse or by the platform.
  void UserFocus(Control& control);
  /// A key was pressed. True when it was a dialog key (see KeyStroke) and has been handled. A mnemonic that several
  /// controls have only moves the focus among them.
  bool UserKey(const KeyStroke& stroke);
  /// The close box was pressed: the form unloads unless Form_QueryUnload keeps it, and no button handler runs. A form
  /// that the user cannot reach, because a box or another form is modal above it, stays.
  void UserClose();
  /// The platform has taken the window away, or the program is about to end: the form unloads.
  void WindowLost();
  /// The user has sized the window, to a client area that has the room for its frames in it, or moved it.
  void UserResize(Size client);
  void UserMove(int left, int top);
  /// The mouse was moved over the window or its button was pressed beside the controls; in pixels of the client area.
  void UserMouseMove(Point at);
  void UserMouseDown(Point at);

  /// For desktops: brings the changes that were held back (see PaceUpdates) to the screen now.
  void ShowUpdates();

  /// The native window, null while there is none.
  FormWindow* Window() const { return mWindow.get(); }
  /// The handle of that window, as common dialogs and help take it for their owner: HWND on Windows, WId on Qt; 0 while
  /// there is none.
  std::uintptr_t NativeHandle() const { return mWindow ? mWindow->NativeHandle() : 0; }

  Form& ContainingForm() override { return *this; }
  Control* ContainerControl() override { return nullptr; }

 protected:
  /// Runs when the form is loaded, sized (and first shown), and unloaded. Form_Unload saves what is to be kept and
  /// forgets the host's objects; code that is still running must find all else as it was.
  virtual void Form_Load() {}
  virtual void Form_Resize() {}
  virtual void Form_Unload() {}
  /// Runs after Form_Unload when no act of the form runs any more: lets go of pages and of all else that handlers may
  /// have been using.
  virtual void Form_Release() {}
  /// Runs when the close box was pressed; false keeps the form.
  virtual bool Form_QueryUnload() { return true; }
  /// Runs when F1 was pressed, unless the control with the focus handles keys itself. True when help was shown.
  virtual bool Form_Help() { return false; }
  /// Run as the mouse moves over the window, also to a place outside its client area, and when its button is pressed
  /// where no control is. In pixels from the upper left corner of the client area.
  virtual void Form_MouseMove(Point) {}
  virtual void Form_MouseDown(Point) {}
  /// For forms of a program that is too busy to handle events: from now on texts and values that change reach the
  /// screen without any, at most 60 times a second. Changes that are held back follow as soon as events are handled.
  /// Controls of such a form live as long as it does.
  void PaceUpdates();
  /// Called from Form_MouseDown: the user goes on to drag the lower edge of the window.
  void DragBottomEdge();

 private:
  friend class Control;
  friend class Desktop;

  /// For Control: true when the change reaches the screen by ShowUpdates.
  bool TakesOver(Control& control, Aspect aspect, Urgency urgency);
  /// What waits for the end of the outermost act.
  void EndActs();
  /// Closes the window; the peers go with it.
  void DropWindow();
  /// The work area that holds most of the window, or is nearest to it.
  Rect NearestWorkArea() const;
  void KeepOnScreen();
  /// Runs the focus events until the focus rests.
  void SettleFocus(Control* to);
  void FocusFirst();
  /// Moves the focus on when its control cannot be reached any more.
  void LeaveUnreachable();
  void TabAway(bool backwards);
  bool PressByKey(Button* button);
  bool PressMnemonic(char32_t letter);
  bool TurnTab(bool backwards);

  Desktop& mDesktop;
  std::string mName;
  FormDesign mDesign;
  int mLeft = 0;
  int mTop = 0;
  bool mLoaded = false;
  bool mRetired = false;
  bool mUnloadsWhenHidden = false;
  bool mRightToLeft = false;
  int mActs = 0;
  bool mVisible = false;
  bool mEnabled = true;
  ShowMode mMode = ShowMode::Modal;
  std::unique_ptr<FormWindow> mWindow;
  std::unique_ptr<ScreenUpdates> mUpdates;
  Control* mActive = nullptr;
  Control* mFocusTarget = nullptr;
  bool mSettlingFocus = false;
};

}  // namespace orx
