// Calls through the slots of the interfaces, by declarations of the test's own.
#include <gtest/gtest.h>

#include "tests/com/support/Recorder.h"
#include "tests/com/support/ScriptObject.h"

namespace orx::com::test {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// The slots as a host in C++ of another make would declare them. Not in the unnamed namespace, where the compiler
/// takes them for never implemented.
struct MapDialogSlots : IDispatch {
  virtual HRESULT STDMETHODCALLTYPE Slot0(BSTR*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot1(BSTR*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot2(IDispatch**) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot3(IDispatch**) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot4(IDispatch**) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot5(IDispatch**) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot6(IDispatch**, int*, BSTR*, int*, VARIANT*, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot7(IDispatch**, BSTR*, int*, VARIANT*, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot8(IDispatch**, int*, BSTR*, int*, VARIANT*, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot9(IDispatch**, double*, double*, int, short*, BSTR*, int*, VARIANT*, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot10(IDispatch**, BSTR*, int*, VARIANT*, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot11(IDispatch**, BSTR*, int*, VARIANT*, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot12(IDispatch**, BSTR*, int*, VARIANT*, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot13(IDispatch**, BSTR*, int*, VARIANT*, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot14(IDispatch**, int*, BSTR*, BSTR*, VARIANT*, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot15(BSTR*, int*, double*, short*, BSTR*, VARIANT*, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot16(SAFEARRAY**, short*, int*, BSTR*, short*, BSTR*, SAFEARRAY**, int*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot17(int, short, SAFEARRAY**, short*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot18(int, short, SAFEARRAY**, short*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot19(BSTR, BSTR*, short*, short*) = 0;
  virtual HRESULT STDMETHODCALLTYPE Slot20(BSTR, BSTR*, short*, short*) = 0;
};

#pragma GCC diagnostic pop

namespace {

class Slots : public testing::Test {
 protected:
  ComPtr<Recorder> recorder = MakeCounted<Recorder>();
  MapDialogSlots* slots =
      reinterpret_cast<MapDialogSlots*>(static_cast<::_CCommonMapDialogs*>(recorder.Get()));  // As a host sees it.
  ComPtr<ScriptObject> object = MakeCounted<ScriptObject>();
  IDispatch* client = object.Get();
  Bstr caption{"C"};
  int mode = 1;
  int result = 0;
  Variant owner{std::int32_t{5}};
};

TEST_F(Slots, PropertiesStandInTheFirstSix) {
  Bstr text;
  IDispatch* got = nullptr;
  slots->Slot0(text.Out());
  BSTR key = caption.Get();
  slots->Slot1(&key);
  slots->Slot2(&got);
  slots->Slot3(&client);
  slots->Slot4(&got);
  slots->Slot5(&client);
  EXPECT_EQ(recorder->Calls,
            (std::vector<std::string>{"get RegistryKey()", "let RegistryKey(\"C\")", "get CallBack()",
                                      "set CallBack(object)", "get Language()", "set Language(object)"}));
}

TEST_F(Slots, PropertyDialogsStandInTheirOrder) {
  int number = 3;
  BSTR text = caption.Get();
  slots->Slot6(&client, &number, &text, &mode, &owner, &result);
  slots->Slot7(&client, &text, &mode, &owner, &result);
  slots->Slot8(&client, &number, &text, &mode, &owner, &result);
  slots->Slot11(&client, &text, &mode, &owner, &result);
  slots->Slot12(&client, &text, &mode, &owner, &result);
  slots->Slot13(&client, &text, &mode, &owner, &result);
  EXPECT_EQ(recorder->Calls,
            (std::vector<std::string>{"Show(object, 3, \"C\", 1, VT3)", "ShowDataProperties(object, \"C\", 1, VT3)",
                                      "ShowLegends(object, 3, \"C\", 1, VT3)", "ShowProperties(object, \"C\", 1, VT3)",
                                      "ShowLabels(object, \"C\", 1, VT3)", "ShowCoordinates(object, \"C\", 1, VT3)"}));
  EXPECT_EQ(result, 11);
}

TEST_F(Slots, DataAndGroundDialogsStandInTheirOrder) {
  double lowest = 0.5;
  double highest = 9.25;
  short dirty = 0;
  int ratio = 2;
  BSTR text = caption.Get();
  slots->Slot9(&client, &lowest, &highest, 32, &dirty, &text, &mode, &owner, &result);
  EXPECT_EQ(dirty, -1);
  slots->Slot10(&client, &text, &mode, &owner, &result);
  slots->Slot14(&client, &ratio, &text, &text, &owner, &result);
  EXPECT_EQ(recorder->Calls, (std::vector<std::string>{"ShowDataClassify(object, 0.5, 9.25, 32, False, \"C\", 1, VT3)",
                                                       "ShowDataOptions(object, \"C\", 1, VT3)",
                                                       "ShowGeoReference(object, 2, \"C\", \"C\", VT3)"}));
  EXPECT_EQ(result, 12);
}

TEST_F(Slots, ChoicesStandInTheirOrder) {
  int character = 1;
  double rotation = 2;
  short flag = 0;
  BSTR text = caption.Get();
  Bstr font("F");
  slots->Slot15(font.InOut(), &character, &rotation, &flag, &text, &owner, &result);
  EXPECT_EQ(font.Text(), "Symbols");
  EXPECT_EQ(character, 65);
  SafeArray entries = ArrayOfTexts({"x"});
  SafeArray selected(VT_I4, {});
  slots->Slot16(entries.InOut(), &flag, &mode, &text, &flag, &text, selected.InOut(), &result);
  EXPECT_EQ(recorder->Calls,
            (std::vector<std::string>{"ShowCharacterSelection(\"F\", 1, 2.0, False, \"C\", VT3)",
                                      "ShowListSelection([x], True, 1, \"C\", True, \"C\", numbers)"}));
}

TEST_F(Slots, FileMembersStandLast) {
  short flag = 0;
  short answer = 7;
  SafeArray files = ArrayOfTexts({"x"});
  slots->Slot17(5, -1, files.InOut(), &answer);
  EXPECT_EQ(answer, -1);
  slots->Slot18(6, 0, files.InOut(), &answer);
  EXPECT_EQ(answer, 0);
  Bstr newName;
  slots->Slot19(caption.Get(), newName.Out(), &flag, &answer);
  EXPECT_EQ(newName.Text(), "new");
  slots->Slot20(caption.Get(), newName.Out(), &flag, &answer);
  EXPECT_EQ(recorder->Calls, (std::vector<std::string>{
                                 "ShowAddLayer(5, True, [x])", "ShowAddData(6, False, [a.bil b.bil])",
                                 "ShowFileNotFound(\"C\", \"\", False)", "ShowDataFileNotFound(\"C\", \"\", False)"}));
}

}  // namespace
}  // namespace orx::com::test
