#include "tests/monkey/Monkey.h"

#include <algorithm>

namespace orx::test {
namespace {

/// Where two states differ first.
std::string Difference(const std::string& before, const std::string& after) {
  const auto at = std::ranges::mismatch(before, after).in1 - before.begin();
  const auto begin = before.rfind('\n', static_cast<std::size_t>(at)) + 1;
  const auto line = [begin](const std::string& text) {
    return begin < text.size() ? text.substr(begin, text.find('\n', begin) - begin) : std::string("nothing");
  };
  return "\"" + line(before) + "\" became \"" + line(after) + "\"";
}

/// True when the selected filter of a dialog for files shows such a name.
bool Offers(const OpenFileRequest& request, const std::string& name) {
  const std::vector<FileFilter> filters = FiltersOf(request);
  const auto selected = static_cast<std::size_t>(std::max(1, request.FilterIndex)) - 1;
  return selected < filters.size() && std::ranges::any_of(filters[selected].Patterns, [&](const std::string& pattern) {
           return name.ends_with(pattern.substr(1));
         });
}

}  // namespace

Monkey::Monkey(TestDesktop& screen, DialogHost& host, const DialogCase& dialog, FaultPlan& plan, Acts acts,
               Picked files)
    : mScreen(screen),
      mUser(screen.Person()),
      mHost(host),
      mPlan(plan),
      mScene(SceneOf(
          host, dialog, mUser, [this] { return Top(); },
          [this] {
            for (int i = 0; i < 3; ++i) DoNext();
          })),
      mActs(acts),
      mFiles(std::move(files)) {
}

void Monkey::Say(const std::string& text) {
  const Form* const top = Top();
  mStory.push_back(std::to_string(Done()) + (top ? ". in " + top->Name() + ": " : ". ") + text);
  if (Listener) *Listener << "  " << mStory.back() << std::endl;
}

void Monkey::Complain(const std::string& text) {
  if (!mComplaint.empty()) return;
  Say("--> " + text);
  mComplaint = text;
  mActs.End();
}

void Monkey::NoteStrike() {
  if (mPlanned && !mPlan.Failed().empty()) {
    Say("in " + mPlan.Failed() + " the host " + NameOf(*mPlanned));
    mHasErrorStruck = mHasErrorStruck || IsError(*mPlanned);
    if (mPlanned == Fault::Removes) ++mWritings;
    ++mEndings;
    mPlanned.reset();
  }
  // One that answers nothing goes on with it.
  if (mHasErrorStruck) ++mEndings;
}

bool Monkey::HasErrorStruck() {
  NoteStrike();
  return mHasErrorStruck;
}

Form* Monkey::Top() const {
  for (auto form = mForms.rbegin(); form != mForms.rend(); ++form)
    if ((*form)->Visible()) return *form;
  // What a modal dialog stands above is out of reach.
  const auto& open = mHost.Screen.OpenForms();
  return mForms.empty() && !open.empty() && open.back()->Visible() ? open.back().get() : nullptr;
}

void Monkey::ModalRunning(const Modal& modal) {
  if (modal.ShownForm) {
    Visit(*modal.ShownForm);
  } else {
    Answer(modal);
  }
}

void Monkey::EventsPending() {
  // Where there are windows, the user's own acts have events handled.
  const int deepest = mScreen.IsQuick() ? 3 : 1;
  if (mDepth < deepest && (mDepth > 0 || mForms.empty())) DoNext();
}

void Monkey::Visit(Form& form) {
  const std::shared_ptr<Form> keep = form.shared_from_this();
  const std::string before = mHost.State();
  const int writings = mWritings;
  mForms.push_back(&form);
  Say("is shown");
  while (form.Visible() && mForms.size() <= kManyForms && DoNext()) {
  }
  Leave(form);
  mForms.pop_back();
  NoteStrike();
  if (writings != mWritings || !mComplaint.empty()) return;
  if (const std::string after = mHost.State(); after != before)
    Complain(form.Name() + " has written without being told to: " + Difference(before, after));
}

void Monkey::Leave(Form& form) {
  // An error in the host may have taken the form off its loop, and left it to its caller.
  if (form.Visible()) mUser.CloseBox(form);
  // A dialog that stands for work going on is cancelled by the first press.
  if (form.Visible()) mUser.CloseBox(form);
  if (form.Visible() && !HasErrorStruck()) Complain(form.Name() + " cannot be closed");
  form.Hide();
}

bool Monkey::DoNext() {
  Form* const form = Top();
  if (!form) return false;
  const std::optional<Act> act = mActs.Next();
  if (!act) return false;
  const std::shared_ptr<Form> keep = form->shared_from_this();
  const int endings = mEndings;
  const bool isOutermost = mDepth++ == 0;
  try {
    Do(*form, *act);
  } catch (...) {
    Complain("an error has come out of an act of the user");
  }
  --mDepth;
  NoteStrike();
  if (!form->Visible() && endings == mEndings) Complain(form->Name() + " has gone without being told to");
  const bool isWaiting = mHost.Screen.Pointer() == Pointer::Hourglass;
  if (isOutermost && !mHasErrorStruck && isWaiting) Complain("the hourglass was left");
  return true;
}

void Monkey::Answer(const Modal& modal) {
  const Act act = mActs.Next().value_or(Act{Deed::Work, 0, 0});
  if (modal.ShownMessage) {
    Say("is told \"" + modal.ShownMessage->Text + "\"");
    const bool isQuestion = modal.ShownMessage->Buttons == MessageButtons::YesNo;
    const MessageAnswer answer = act.AnyWith(2) == 0 ? MessageAnswer::No : MessageAnswer::Yes;
    return mUser.AnswerMessage(modal, isQuestion ? answer : MessageAnswer::OK);
  }
  const bool picks = act.AnyWith(3) > 0;
  Say(picks ? "picks what it is asked for" : "picks nothing");
  if (modal.ShownFiles) {
    const std::string name = mFiles.Names.at(act.How % mFiles.Names.size());
    // The dialogs of some platforms refuse what their filter hides. The one of Qt needs to be active for names to be
    // typed, which it is not in the middle of whatever else goes on.
    const bool takesNames = mScreen.IsQuick() || mScreen.IsSlow();
    if (!picks || !takesNames || !Offers(*modal.ShownFiles, name)) return mUser.CancelFiles(*modal.ShownFiles);
    // A file that is chosen is taken at once.
    ++mWritings;
    return mUser.PickFiles(*modal.ShownFiles, {mFiles.Folder, {name}});
  }
  const auto part = [&](int shift) { return static_cast<std::uint8_t>(act.How >> shift); };
  const Color color{part(0), part(8), part(16)};
  if (modal.ShownColor) return picks ? mUser.PickColor(*modal.ShownColor, color) : mUser.CancelColor(*modal.ShownColor);
  // Which fonts the platform's dialog offers is another thing on each machine.
  if (!picks || !mScreen.IsQuick()) return mUser.CancelFont(*modal.ShownFont);
  mUser.PickFont(*modal.ShownFont,
                 {{.Name = "Arial", .Size = act.AnyHow(80) / 4.0, .Bold = act.AnyWith(2) == 0}, color});
}

}  // namespace orx::test
