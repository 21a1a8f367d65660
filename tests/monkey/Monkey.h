// A user without any sense: works on whatever is in front, and watches that dialogs keep to their rules. The host and
// the system around it are in its hands too.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "languages/PseudoLanguage.h"
#include "tests/monkey/Act.h"
#include "tests/support/HostFaults.h"

namespace orx::test {

class Monkey final : public DesktopHook {
 public:
  /// The host asks `plan`; files are picked from that folder, under any of those names.
  Monkey(TestDesktop& screen, DialogHost& host, const DialogCase& dialog, FaultPlan& plan, Acts acts, Picked files);

  /// What was done so far, oldest first.
  const std::vector<std::string>& Story() const { return mStory; }
  /// The first rule that was broken, empty for none.
  const std::string& Complaint() const { return mComplaint; }
  void Complain(const std::string& text);
  /// The number of acts, and whether an error has happened in the host.
  int Done() const { return mActs.Taken(); }
  bool HasErrorStruck();
  /// True while there are acts left.
  bool IsWilling() const { return mActs.Left() > 0; }

  /// Is told the story as it goes on; null for nobody.
  std::ostream* Listener = nullptr;

  void ModalRunning(const Modal& modal) override;
  void EventsPending() override;
  bool HelpRequested(const HelpRequest&) override { return true; }

 private:
  /// So many dialogs above each other are enough.
  static constexpr std::size_t kManyForms = 4;

  void Visit(Form& form);
  void Leave(Form& form);
  /// Does the next act in the dialog in front. False when there are no more of them, or no dialog.
  bool DoNext();
  void Do(Form& form, const Act& act);
  Form* Top() const;

  /// The acts, each of its kind.
  void Work(Form& form, const Act& act);
  void WorkOn(Button& button, const Act& act);
  void WorkOn(ListBox& box, const Act& act);
  void WorkOn(TreeList& list, const Act& act);
  void WorkOn(PictureBox& box, const Act& act);
  void WorkOn(ComboBox& box, const Act& act);
  void PressDialogKey(Form& form, const Act& act);
  void PressMnemonic(Form& form, const Act& act);
  void PressKey(Form& form, const Act& act);
  void Size(Form& form, const Act& act);
  void CloseBehind(const Form& form, const Act& act);
  void SwitchLanguage(const Act& act);
  void HostFails(const Act& act);
  void HostChanges(const Act& act);
  void Answer(const Modal& modal);

  /// A press of that control, null for none, may end the dialog or have it write.
  void Pressing(const Control* control);
  void NoteStrike();
  void Say(const std::string& text);

  TestDesktop& mScreen;
  User& mUser;
  DialogHost& mHost;
  FaultPlan& mPlan;
  FaultScene mScene;
  Acts mActs;
  Picked mFiles;
  languages::PseudoLanguage mPseudo;
  std::vector<Form*> mForms;
  std::vector<std::string> mStory;
  std::string mComplaint;
  /// Acts in which others are done.
  int mDepth = 0;
  /// How often something was done that may end a dialog, and that may have the host's objects written.
  int mEndings = 0;
  int mWritings = 0;
  /// The fault that is to happen and has not been seen to.
  std::optional<Fault> mPlanned;
  bool mHasErrorStruck = false;
};

}  // namespace orx::test
