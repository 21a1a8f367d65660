#include "forms/Desktop.h"

#include <algorithm>

#include "forms/ErrorText.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Pixels.h"
#include "forms/Requests.h"

namespace orx {
namespace {

/// The topmost of all that is modal, for as long as it lives.
class Topmost {
 public:
  Topmost(std::vector<const Form*>& modals, const Form* form) : mModals(modals) { mModals.push_back(form); }
  ~Topmost() { mModals.pop_back(); }
  Topmost(const Topmost&) = delete;
  Topmost& operator=(const Topmost&) = delete;

 private:
  std::vector<const Form*>& mModals;
};

/// Its address tells threads apart, for much less than asking the system: whatever changes a control asks.
thread_local const char kMark = 0;

}  // namespace

Desktop::Desktop() : mThread(&kMark) {
}

Desktop::~Desktop() = default;

void Desktop::RequireThread() const {
  if (&kMark != mThread) throw WrongThread();
}

int Desktop::ToPixels(int twips) const {
  return TwipsToPixels(twips, Scale());
}

int Desktop::ToTwips(int pixels) const {
  return PixelsToTwips(pixels, Scale());
}

int Desktop::FrameLine(bool hasCaption) const {
  return hasCaption ? kFrameLine : 0;
}

template <class Run>
auto Desktop::RunBox(const Modal& modal, Run&& run) {
  RequireThread();
  const Topmost box(mModals, nullptr);
  if (mHook) mHook->ModalOpening(modal);
  decltype(run()) answer{};
  std::exception_ptr error;
  try {
    answer = run();
  } catch (...) {
    error = std::current_exception();
  }
  if (mHook) mHook->ModalClosed(modal);
  if (error) std::rethrow_exception(error);
  return answer;
}

MessageAnswer Desktop::ShowMessage(const Message& message) {
  return RunBox({.ShownMessage = &message}, [&] {
    FormWindow* owner = nullptr;
    if (!mSessions.empty()) {
      owner = mSessions.back()->Shown->Window();
    } else if (!mOpenForms.empty()) {
      owner = mOpenForms.back()->Window();
    }
    return DoShowMessage(message, owner);
  });
}

bool Desktop::OpenFiles(OpenFileRequest& request) {
  if (request.Buffer.empty()) return false;
  std::string refusal;
  const bool chosen = RunBox({.ShownFiles = &request}, [&] {
    try {
      return DoOpenFiles(request);
    } catch (const AnswerRefused& refused) {
      refusal = refused.what();
      return false;
    }
  });
  if (!refusal.empty()) ShowMessage({refusal, request.Title, MessageIcon::Exclamation});
  return chosen;
}

bool Desktop::ChooseColor(ColorRequest& request) {
  return RunBox({.ShownColor = &request}, [&] { return DoChooseColor(request); });
}

bool Desktop::ChooseFont(FontRequest& request) {
  return RunBox({.ShownFont = &request}, [&] { return DoChooseFont(request); });
}

void Desktop::ModalIsRunning(const Modal& modal) {
  if (mHook) mHook->ModalRunning(modal);
}

void Desktop::ProcessPendingEvents() {
  RequireThread();
  if (mHook) mHook->EventsPending();
  DoProcessPendingEvents();
}

void Desktop::Beep() {
  RequireThread();
  if (mHook) mHook->Beeped();
  DoBeep();
}

void Desktop::Pointer(orx::Pointer value) {
  RequireThread();
  mPointer = value;
  if (mHook) mHook->PointerChanged(value);
  DoSetPointer(value);
}

void Desktop::ShowHelp(const HelpRequest& request) {
  RequireThread();
  if (mHook && mHook->HelpRequested(request)) return;
  DoShowHelp(request);
}

bool Desktop::HasModalForm() const {
  return std::ranges::any_of(mSessions, [](const Session* session) { return session->Shown->Visible(); });
}

bool Desktop::IsBehindModal(const Form& form) const {
  // A form that has gone from the screen only waits for its loop to end.
  const auto top =
      std::find_if(mModals.rbegin(), mModals.rend(), [](const Form* modal) { return !modal || modal->Visible(); });
  return top != mModals.rend() && *top != &form;
}

void Desktop::RunModal(Form& form) {
  Session session{&form, nullptr, nullptr};
  const Modal modal{.ShownForm = &form};
  mSessions.push_back(&session);
  const Topmost topmost(mModals, &form);
  bool isOpen = false;
  try {
    form.UserAct([&] { form.FocusFirst(); });
    // The handlers may have closed it, or failed.
    if (form.Visible() && !session.Error) {
      isOpen = true;
      if (mHook) mHook->ModalOpening(modal);
      form.Window()->RunModal();
    }
  } catch (...) {
    session.Error = std::current_exception();
  }
  // A form that stayed up would keep the user from its owner.
  if (session.Error) form.Hide();
  std::erase(mSessions, &session);
  if (isOpen && mHook) mHook->ModalClosed(modal);
  if (session.Error) std::rethrow_exception(session.Error);
}

void Desktop::EndModal(const Form& form) {
  for (Session* session : mSessions)
    if (session->Shown == &form && form.mWindow) form.mWindow->EndModal();
}

void Desktop::Retire(const Form& form, std::unique_ptr<FormWindow> window) {
  const auto session = std::ranges::find(mSessions, &form, &Session::Shown);
  if (session != mSessions.end()) (*session)->Retired = std::move(window);
}

void Desktop::KeepOpen(std::shared_ptr<Form> form) {
  mOpenForms.push_back(std::move(form));
}

void Desktop::LeaveAct() {
  --mActs;
  LetGoOfClosedForms();
}

void Desktop::LetGoOfClosedForms() {
  // Acts that are still running may use them.
  if (mActs > 0) return;
  // A form that closes may hold the last reference to another one, so the list is complete before any of them is
  // released.
  const auto closed = std::stable_partition(mOpenForms.begin(), mOpenForms.end(),
                                            [](const std::shared_ptr<Form>& form) { return form->Visible(); });
  const std::vector<std::shared_ptr<Form>> gone(closed, mOpenForms.end());
  mOpenForms.erase(closed, mOpenForms.end());
}

void Desktop::CloseOpenForms() {
  const std::vector<std::shared_ptr<Form>> forms = std::move(mOpenForms);
  mOpenForms.clear();
  for (const std::shared_ptr<Form>& form : forms) form->UnloadQuietly();
}

void Desktop::HandlerFailed(const Form& form, std::exception_ptr error) {
  if (mSessions.empty()) {
    ShowMessage({ErrorText(error), form.Caption(), MessageIcon::Critical});
    return;
  }
  Session& session = *mSessions.back();
  if (!session.Error) session.Error = std::move(error);
  EndModal(*session.Shown);
}

}  // namespace orx
