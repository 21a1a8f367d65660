// The progress window through the slots and by name, as hosts call it.
#include "com/ProgressDialog.h"

#include "forms/Button.h"
#include "pickers/frmProgress.h"
#include "tests/com/support/MapDialogsTest.h"
#include "tests/com/support/ScriptCall.h"

namespace orx::com::test {
namespace {

class Progress : public MapDialogsTest {
 protected:
  static frmProgress& Window() {
    return dynamic_cast<frmProgress&>(*ThreadContext::OfThread()->Screen().OpenForms().back());
  }
  static bool IsOpen() { return !ThreadContext::OfThread()->Screen().OpenForms().empty(); }

  HRESULT Init(long min, long max, long value) { return progress->Init(&min, &max, &value); }
  long Value() {
    long value = -77;
    EXPECT_EQ(progress->get_Value(&value), S_OK);
    return value;
  }
  VARIANT_BOOL CancelAction() {
    VARIANT_BOOL canceled = 77;
    EXPECT_EQ(progress->get_CancelAction(&canceled), S_OK);
    return canceled;
  }
  std::string Message() {
    Bstr text;
    EXPECT_EQ(progress->get_Message(text.Out()), S_OK);
    return text.Text();
  }
  std::string Caption() {
    Bstr text;
    EXPECT_EQ(progress->get_Caption(text.Out()), S_OK);
    return text.Text();
  }

  ComPtr<::_CCommonProgressDialog> progress{MakeCounted<ProgressDialog>().Get()};
};

TEST_F(Progress, GivesBackWhatItWasGiven) {
  EXPECT_EQ(Caption(), "Progress");
  EXPECT_EQ(Message(), "Message ...");
  EXPECT_EQ(Init(-10, 90, 40), S_OK);
  EXPECT_EQ(Value(), 40);
  EXPECT_EQ(progress->put_Value(-10), S_OK);
  EXPECT_EQ(Value(), -10);
  EXPECT_EQ(progress->put_Caption(Bstr("Gel\xC3\xA4nde").Get()), S_OK);
  EXPECT_EQ(Caption(), "Gel\xC3\xA4nde");
  EXPECT_EQ(progress->put_Message(Bstr("Tiles & \xE2\x82\xAC").Get()), S_OK);
  EXPECT_EQ(Message(), "Tiles & \xE2\x82\xAC");
  EXPECT_EQ(progress->put_Message(nullptr), S_OK);
  EXPECT_EQ(Message(), "");
}

TEST_F(Progress, TellsTheErrorOfTheBar) {
  EXPECT_EQ(Init(0, 10, 5), S_OK);
  EXPECT_EQ(progress->put_Value(11), CodeOf(kErrorInvalidValue));
  EXPECT_EQ(TakenErrorText(), "The value 11 does not fit a progress bar from 0 to 10");
  EXPECT_EQ(Init(20, 10, 5), CodeOf(kErrorInvalidValue));
  EXPECT_EQ(TakenErrorText(), "The maximum 10 does not fit a progress bar from 20 to 20");
  EXPECT_EQ(Init(0, 2147483647, 2147483647), S_OK);
  long value = 5;
  EXPECT_EQ(progress->get_Value(&value), CodeOf(kErrorOverflow));
  EXPECT_EQ(value, 5);
}

TEST_F(Progress, RefusesNullPointers) {
  long number = 0;
  EXPECT_EQ(progress->Init(nullptr, &number, &number), E_POINTER);
  EXPECT_EQ(progress->Init(&number, nullptr, &number), E_POINTER);
  EXPECT_EQ(progress->Init(&number, &number, nullptr), E_POINTER);
  EXPECT_EQ(progress->get_Value(nullptr), E_POINTER);
  EXPECT_EQ(progress->get_CancelAction(nullptr), E_POINTER);
  EXPECT_EQ(progress->get_Caption(nullptr), E_POINTER);
  EXPECT_EQ(progress->get_Message(nullptr), E_POINTER);
}

TEST_F(Progress, IsShownCanceledAndHidden) {
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(progress->Show(nullptr), S_OK);
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(CancelAction(), VARIANT_FALSE);
  Window().cmdCancel.UserPress();
  EXPECT_EQ(CancelAction(), VARIANT_TRUE);
  EXPECT_EQ(progress->Refresh(), S_OK);
  EXPECT_EQ(progress->Hide(), S_OK);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(progress->Show(nullptr), S_OK);
  EXPECT_EQ(CancelAction(), VARIANT_TRUE);
}

TEST_F(Progress, IsUsedByName) {
  const auto call = [this](const char* member) { return ScriptCall(progress.Get(), member); };
  Variant minimum("0");
  EXPECT_EQ(call("Init").Variable(minimum).Value(Variant(10.0)).Value(Variant(std::int32_t{4})).Call(), S_OK);
  EXPECT_EQ(call("Value").Value(Variant(std::int32_t{7})).Put(), S_OK);
  EXPECT_EQ(call("Message").Value(Variant("Seven")).Put(), S_OK);
  EXPECT_EQ(call("Caption").Value(Variant("By name")).Put(), S_OK);
  EXPECT_EQ(call("Show").Call(), S_OK);
  EXPECT_EQ(call("Refresh").Call(), S_OK);
  ScriptCall value(progress.Get(), "Value");
  EXPECT_EQ(value.Call(), S_OK);
  EXPECT_EQ(value.Result.lVal, 7);
  ScriptCall canceled(progress.Get(), "CancelAction");
  EXPECT_EQ(canceled.Call(), S_OK);
  EXPECT_EQ(canceled.Result.vt, VT_BOOL);
  EXPECT_EQ(Message(), "Seven");
  EXPECT_EQ(Caption(), "By name");
  EXPECT_EQ(call("Hide").Call(), S_OK);
  ScriptCall tooGreat(progress.Get(), "Value");
  EXPECT_EQ(tooGreat.Value(Variant(std::int32_t{11})).Put(), DISP_E_EXCEPTION);
  EXPECT_EQ(tooGreat.Code, CodeOf(kErrorInvalidValue));
  EXPECT_EQ(tooGreat.Source, "OrvexMapDialogs2.CCommonProgressDialog");
}

TEST_F(Progress, GoesWithTheLastReference) {
  EXPECT_EQ(progress->Show(nullptr), S_OK);
  dialogs.Reset();
  progress.Reset();
  EXPECT_FALSE(ThreadContext::StillOpen());
}

TEST_F(Progress, KeepsTheSurroundingsWithoutADialogOfTheOtherClass) {
  dialogs.Reset();
  Desktop* const desktop = &ThreadContext::OfThread()->Screen();
  EXPECT_EQ(progress->Show(nullptr), S_OK);
  EXPECT_EQ(&ThreadContext::OfThread()->Screen(), desktop);
  EXPECT_TRUE(IsOpen());
}

TEST_F(Progress, IsModalAboveAModalDialog) {
  answer = [this](Form& form) {
    if (auto* const window = dynamic_cast<frmProgress*>(&form)) {
      EXPECT_TRUE(window->IsModal());
      window->cmdCancel.UserPress();
      window->UserClose();
      return;
    }
    EXPECT_EQ(progress->Show(nullptr), S_OK);
    EXPECT_EQ(CancelAction(), VARIANT_TRUE);
    form.UserClose();
  };
  EXPECT_EQ(ShowProperties(nullptr), S_OK);
  EXPECT_EQ(ShownNames(), (std::vector<std::string>{"frmProperties", "frmProgress"}));
}

TEST_F(Progress, ClosesWhenItIsLetGoOfWhileItIsModal) {
  const std::function<HRESULT()> shows[] = {[this] { return progress->Show(nullptr); },
                                            [this] { return ScriptCall(progress.Get(), "Show").Call(); }};
  for (const auto& show : shows) {
    bool wasOpen = false;
    answer = [&](Form& form) {
      if (dynamic_cast<frmProgress*>(&form)) {
        wasOpen = form.Visible();
        progress.Reset();
        EXPECT_FALSE(form.Visible());
        return;
      }
      EXPECT_EQ(show(), S_OK);
      form.UserClose();
    };
    EXPECT_EQ(ShowProperties(nullptr), S_OK);
    EXPECT_TRUE(wasOpen);
    progress = ComPtr<::_CCommonProgressDialog>(MakeCounted<ProgressDialog>().Get());
  }
}

/// An owner that lets go of somebody when it is asked for its window.
class ParentThatLetsGo final : public Counted<IDispatch> {
 public:
  explicit ParentThatLetsGo(std::function<void()> act) : mAct(std::move(act)) {}

  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* id) noexcept override {
    *id = 1;
    return S_OK;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                                   UINT*) noexcept override {
    mAct();
    *result = Variant(std::int32_t{0}).Detach();
    return S_OK;
  }

 private:
  std::function<void()> mAct;
};

TEST_F(Progress, IsNotShownWhenItIsLetGoOfBeforehand) {
  ::_CCommonProgressDialog* const plain = progress.Get();
  Variant owner(MakeCounted<ParentThatLetsGo>([this] { progress.Reset(); }).Get());
  EXPECT_EQ(plain->Show(&owner), S_OK);
  EXPECT_FALSE(IsOpen());
}

TEST_F(Progress, AnOwnerOfTheWrongKindShowsNothingAndSaysSo) {
  Variant owner("Main window");
  EXPECT_EQ(progress->Show(&owner), CodeOf(kErrorTypeMismatch));
  EXPECT_NE(TakenErrorText().find("OwnerForm"), std::string::npos);
  EXPECT_FALSE(IsOpen());
  Variant none;
  EXPECT_EQ(progress->Show(&none), S_OK);
  EXPECT_TRUE(IsOpen());
}

}  // namespace
}  // namespace orx::com::test
