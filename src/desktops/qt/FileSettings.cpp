#include "desktops/qt/FileSettings.h"

#include <QSettings>
#include <QStringList>
#include <QUrl>
#include <stdexcept>

#include "desktops/qt/Text.h"

namespace orx::qt {
namespace {

/// The user's store, opened for a single access, so that several programs can share it.
class Store final : public QSettings {
 public:
  Store() : QSettings(QSettings::IniFormat, QSettings::UserScope, "OrvexMapDialogs2", "Settings") {
    // Defaults for the whole machine are not settings of this library.
    setFallbacksEnabled(false);
  }
};

/// A level of a path in the store. Slashes would start further levels, so they are percent-encoded.
QString Level(const std::string& name) {
  return QString::fromLatin1(QUrl::toPercentEncoding(ToQt(name), " ()'!*"));
}

QString KeyPath(const std::string& key) {
  QStringList levels;
  for (const QString& level : ToQt(key).split('\\', Qt::SkipEmptyParts)) levels += Level(FromQt(level));
  return levels.join('/');
}

QString PathOf(const SettingName& setting) {
  return KeyPath(setting.Key) + '/' + Level(setting.Section) + '/' + Level(setting.Name);
}

}  // namespace

std::optional<std::string> FileSettings::Read(const SettingName& setting) const {
  const Store store;
  const QVariant value = store.value(PathOf(setting));
  if (!value.isValid() || !value.canConvert<QString>()) return std::nullopt;
  return FromQt(value.toString());
}

void FileSettings::Write(const SettingName& setting, const std::string& text) {
  RequireName(setting);
  Store store;
  store.setValue(PathOf(setting), ToQt(text));
  store.sync();
  if (store.status() != QSettings::NoError)
    throw std::runtime_error("The setting " + Described(setting) + " cannot be kept in " + FromQt(store.fileName()));
}

void FileSettings::Forget(const std::string& key) {
  // A path without a level would stand for the whole store.
  const QString path = KeyPath(key);
  if (!path.isEmpty()) Store().remove(path);
}

}  // namespace orx::qt
