#include "settings/QSettingsStore.h"

#include <QStandardPaths>
#include <QStringList>
#include <QVariant>

namespace brimly {

namespace {

// The user's configuration folder ($XDG_CONFIG_HOME, else ~/.config), "brimly/Brimly.conf".
QString userFilePath() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/brimly/Brimly.conf");
}

QString toQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QSettingsStore::QSettingsStore() : QSettingsStore(userFilePath()) {}

QSettingsStore::QSettingsStore(const QString& filePath)
    : QSettingsStore(std::make_unique<QSettings>(filePath, QSettings::IniFormat)) {}

QSettingsStore::QSettingsStore(std::unique_ptr<QSettings> settings)
    : settings_(std::move(settings)), readFailed_(settings_->status() != QSettings::NoError) {}

std::optional<bool> QSettingsStore::readBool(std::string_view key) const {
  if (readFailed_) return std::nullopt;
  const QVariant value = settings_->value(toQString(key));
  switch (value.metaType().id()) {
    case QMetaType::Bool:
      return value.toBool();
    case QMetaType::QString: {
      const QString text = value.toString();
      if (text == QLatin1String("true")) return true;
      if (text == QLatin1String("false")) return false;
      return std::nullopt;
    }
    default:
      return std::nullopt;
  }
}

std::optional<std::vector<std::string>> QSettingsStore::readStringList(std::string_view key) const {
  if (readFailed_) return std::nullopt;
  const QVariant value = settings_->value(toQString(key));
  QStringList list;
  switch (value.metaType().id()) {
    case QMetaType::QStringList:
      list = value.toStringList();
      break;
    case QMetaType::QString:
      // The INI form of a list that holds one string.
      list = QStringList{value.toString()};
      break;
    default:
      return std::nullopt;
  }
  std::vector<std::string> strings;
  strings.reserve(static_cast<std::size_t>(list.size()));
  for (const QString& text : list)
    strings.push_back(text.toStdString());
  return strings;
}

void QSettingsStore::writeBool(std::string_view key, bool value) {
  settings_->setValue(toQString(key), value);
  settings_->sync();
}

void QSettingsStore::writeStringList(std::string_view key, const std::vector<std::string>& value) {
  QStringList list;
  list.reserve(static_cast<qsizetype>(value.size()));
  for (const std::string& text : value)
    list.push_back(QString::fromStdString(text));
  settings_->setValue(toQString(key), list);
  settings_->sync();
}

}  // namespace brimly
