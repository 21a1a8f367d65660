// The fixture of tests that show dialogs through the component's objects, on a desktop without a screen.
#pragma once

// The interfaces come first: their names are global there and the library's own ones are not.
#include <OrvexMapDialogs2.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "com/MapDialogs.h"
#include "forms/DesktopHook.h"
#include "forms/Form.h"
#include "tests/com/support/ScriptObject.h"

namespace orx::com::test {

class MapDialogsTest : public testing::Test, private DesktopHook {
 protected:
  MapDialogsTest();
  ~MapDialogsTest() override;

  ComPtr<::_CCommonMapDialogs> Create() { return ComPtr<::_CCommonMapDialogs>(MakeCounted<MapDialogs>().Get()); }
  /// Shows the properties of an object modally.
  HRESULT ShowProperties(IDispatch* object, VARIANT* owner = nullptr);

  /// The modal forms that were shown: "frmProperties: Layer Properties".
  std::vector<std::string> shown;
  /// The names of those forms.
  std::vector<std::string> ShownNames() const;
  /// What the user does in a modal form; unless set, the close box is pressed.
  std::function<void(Form&)> answer;
  /// What the user does in the dialog for files; unless set, Cancel is pressed.
  std::function<void(OpenFileRequest&)> answerFiles;
  /// The result of the last dialog.
  long result = 77;

  ComPtr<::_CCommonMapDialogs> dialogs;

 private:
  void ModalRunning(const Modal& modal) override;
};

/// A language as script hosts bring it: the number of its texts, and one text for every key.
ComPtr<ScriptObject> LanguageOf(std::int32_t entries, const char* text = "");

/// The description of the thread's error information, which is taken away by this.
std::string TakenErrorText();

}  // namespace orx::com::test
