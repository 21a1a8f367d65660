// Dialogs where settings can be neither read nor written, as in a home that is not there.
#include <QFileInfo>
#include <QSettings>

#include "desktops/qt/QtDesktop.h"
#include "forms/Form.h"
#include "service/CCommonMapDialogs.h"
#include "tests/qt/QtTest.h"
#include "tests/support/RecordingHost.h"

namespace orx::test {
namespace {

/// Puts the users' settings elsewhere for the time of a test.
class SettingsFolder {
 public:
  explicit SettingsFolder(const QString& folder) { Set(folder); }
  ~SettingsFolder() { Set(mBefore); }
  SettingsFolder(const SettingsFolder&) = delete;
  SettingsFolder& operator=(const SettingsFolder&) = delete;

 private:
  static QString Present() {
    const QSettings settings(QSettings::IniFormat, QSettings::UserScope, "organisation", "application");
    return QFileInfo(QFileInfo(settings.fileName()).path()).path();
  }
  static void Set(const QString& folder) { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder); }

  QString mBefore = Present();
};

class QtWithoutSettings : public QtFormsTest {
 protected:
  SettingsFolder nowhere{"/dev/null/x"};
  CallLog log;
  RecordingPages pages{log};
  PlainObject object;
};

TEST_F(QtWithoutSettings, WhatCannotBeKeptIsAnErrorThatNamesIt) {
  try {
    desktop().Settings().Write({"Host", "DataDialog", "Left"}, "1");
    FAIL() << "kept";
  } catch (const std::runtime_error& error) {
    EXPECT_NE(std::string::npos, std::string(error.what()).find("DataDialog")) << error.what();
  }
  EXPECT_EQ(std::nullopt, desktop().Settings().Read({"Host", "DataDialog", "Left"}));
  desktop().Settings().Forget("Host");
}

TEST_F(QtWithoutSettings, ADesktopGoesWithAModelessDialog) {
  auto own = std::make_unique<qt::QtDesktop>();
  CCommonMapDialogs service{*own, pages};
  service.RegistryKey("Host");
  service.ShowDataProperties(&object, "", ShowMode::Modeless);
  ASSERT_EQ(1u, own->OpenForms().size());
  const std::weak_ptr<Form> form = own->OpenForms().front();
  own.reset();
  EXPECT_TRUE(form.expired());
}

}  // namespace
}  // namespace orx::test
