// What hosts are told of an error beside its code: description, source and interface.
#include <cguid.h>

#include <algorithm>
#include <functional>
#include <utility>

#include "com/ProgressDialog.h"
#include "forms/Button.h"
#include "tests/com/support/MapDialogsTest.h"
#include "tests/com/support/Signatures.h"

namespace orx::com::test {
namespace {

/// The thread's error information, which is taken away by this.
struct ErrorInfo {
  ErrorInfo() {
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, info.Out()) != S_OK) return;
    Bstr text;
    info->GetDescription(text.Out());
    Description = text.Text();
    info->GetSource(text.Out());
    Source = text.Text();
    info->GetGUID(&Interface);
  }

  std::string Description;
  std::string Source;
  GUID Interface = {};
};

/// An error of somebody else that is still there when a call begins.
void LeaveOldError() {
  ComPtr<ICreateErrorInfo> made;
  ASSERT_EQ(CreateErrorInfo(made.Out()), S_OK);
  std::wstring text = L"Old";
  made->SetDescription(text.data());
  SetErrorInfo(0, made.As<IErrorInfo>().Get());
}

class ErrorInfos : public MapDialogsTest {
 protected:
  ComPtr<::_CCommonProgressDialog> progress{MakeCounted<ProgressDialog>().Get()};
};

TEST_F(ErrorInfos, APointerToNowhereIsNamed) {
  IDispatch* object = nullptr;
  long number = 0;
  double value = 0;
  VARIANT_BOOL flag = 0;
  BSTR text = nullptr;
  SAFEARRAY* array = nullptr;
  const std::pair<const char*, std::function<HRESULT()>> calls[] = {
      {"The result", [&] { return dialogs->get_RegistryKey(nullptr); }},
      {"RegistryKey", [&] { return dialogs->put_RegistryKey(nullptr); }},
      {"mObj", [&] { return dialogs->ShowLabels(nullptr, nullptr, nullptr, nullptr, &number); }},
      {"The result", [&] { return dialogs->ShowLabels(&object, nullptr, nullptr, nullptr, nullptr); }},
      {"mFlags", [&] { return dialogs->Show(&object, nullptr, nullptr, nullptr, nullptr, &number); }},
      {"mMaxValue",
       [&] {
         return dialogs->ShowDataClassify(&object, &value, nullptr, ::ClassifyNone, &flag, nullptr, nullptr, nullptr,
                                          &number);
       }},
      {"mChanged",
       [&] { return dialogs->ShowCharacterSelection(&text, &number, &value, nullptr, nullptr, nullptr, &number); }},
      {"mCaption",
       [&] { return dialogs->ShowListSelection(&array, &flag, &number, nullptr, &flag, &text, &array, &number); }},
      {"Files", [&] { return dialogs->ShowAddData(0, VARIANT_FALSE, nullptr, &flag); }},
      {"CancelAll", [&] { return dialogs->ShowFileNotFound(nullptr, &text, nullptr, &flag); }},
      {"Max", [&] { return progress->Init(&number, nullptr, &number); }},
      {"The result", [&] { return progress->get_Message(nullptr); }},
      {"The list of arguments",
       [&] { return dialogs->Invoke(1, IID_NULL, 0, DISPATCH_PROPERTYGET, nullptr, nullptr, nullptr, nullptr); }},
      {"The names", [&] { return dialogs->GetIDsOfNames(IID_NULL, nullptr, 1, 0, &number); }},
      {"The result", [&] { return dialogs->GetTypeInfo(0, 0, nullptr); }},
      {"The number of descriptions", [&] { return dialogs->GetTypeInfoCount(nullptr); }},
  };
  for (const auto& [name, call] : calls) {
    LeaveOldError();
    EXPECT_EQ(call(), E_POINTER) << name;
    EXPECT_EQ(ErrorInfo().Description, std::string(name) + " is a null pointer.");
  }
  EXPECT_TRUE(shown.empty());
}

TEST_F(ErrorInfos, TellTheInterfaceAndTheClassOfTheMember) {
  EXPECT_EQ(dialogs->put_RegistryKey(nullptr), E_POINTER);
  const ErrorInfo ofDialogs;
  EXPECT_EQ(GuidText(ofDialogs.Interface), GuidText(__uuidof(::_CCommonMapDialogs)));
  EXPECT_EQ(ofDialogs.Source, "OrvexMapDialogs2.CCommonMapDialogs");
  EXPECT_EQ(progress->put_Value(999), CodeOf(kErrorInvalidValue));
  const ErrorInfo ofProgress;
  EXPECT_EQ(GuidText(ofProgress.Interface), GuidText(__uuidof(::_CCommonProgressDialog)));
  EXPECT_EQ(ofProgress.Source, "OrvexMapDialogs2.CCommonProgressDialog");
}

TEST_F(ErrorInfos, KeepTheSourceThatTheHostHasNamed) {
  const auto language = LanguageOf(3);
  language->Broken = "TranslateText";
  IDispatch* given = language.Get();
  EXPECT_EQ(dialogs->putref_Language(&given), CodeOf(kErrorFileFormat));
  const ErrorInfo raised;
  EXPECT_EQ(raised.Description, "TranslateText is broken");
  EXPECT_EQ(raised.Source, "ScriptObject");
  EXPECT_EQ(GuidText(raised.Interface), GuidText(__uuidof(::_CCommonMapDialogs)));
}

TEST_F(ErrorInfos, CallsInTheNameOfAnInterfaceAreRefused) {
  std::wstring name = L"RegistryKey";
  LPOLESTR text = name.data();
  DISPID number = 77;
  EXPECT_EQ(dialogs->GetIDsOfNames(__uuidof(::_CCommonMapDialogs), &text, 1, 0, &number), DISP_E_UNKNOWNINTERFACE);
  EXPECT_EQ(number, 77);
  DISPPARAMS none = {};
  Variant result;
  EXPECT_EQ(dialogs->Invoke(1, IID_IDispatch, 0, DISPATCH_PROPERTYGET, &none, &result, nullptr, nullptr),
            DISP_E_UNKNOWNINTERFACE);
  EXPECT_EQ(dialogs->Invoke(1, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &result, nullptr, nullptr), S_OK);
}

}  // namespace
}  // namespace orx::com::test
