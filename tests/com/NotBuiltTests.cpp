// Members whose dialogs are not built yet: they say so. A dialog that comes takes its line out of this table.
#include "com/ProgressDialog.h"
#include "tests/com/support/MapDialogsTest.h"

namespace orx::com::test {
namespace {

struct MissingProgress {
  const char* Name;
  HRESULT (*Call)(::_CCommonProgressDialog& dialog);
};

constexpr MissingProgress kMissingProgress[] = {
    {"Init", [](auto& d) { return d.Init(nullptr, nullptr, nullptr); }},
    {"CancelAction", [](auto& d) { return d.get_CancelAction(nullptr); }},
    {"Value", [](auto& d) { return d.get_Value(nullptr); }},
    {"Value", [](auto& d) { return d.put_Value(1); }},
    {"Caption", [](auto& d) { return d.get_Caption(nullptr); }},
    {"Caption", [](auto& d) { return d.put_Caption(nullptr); }},
    {"Message", [](auto& d) { return d.get_Message(nullptr); }},
    {"Message", [](auto& d) { return d.put_Message(nullptr); }},
    {"Show", [](auto& d) { return d.Show(nullptr); }},
    {"Hide", [](auto& d) { return d.Hide(); }},
    {"Refresh", [](auto& d) { return d.Refresh(); }},
};

using NotBuilt = MapDialogsTest;

TEST_F(NotBuilt, TheProgressDialogSaysThatItIsMissing) {
  const auto progress = MakeCounted<ProgressDialog>();
  for (const MissingProgress& missing : kMissingProgress) {
    EXPECT_EQ(missing.Call(*progress.Get()), E_NOTIMPL) << missing.Name;
  }
}

}  // namespace
}  // namespace orx::com::test
