#include "settings/QSettingsStore.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>
#include <QVariant>
#include <cstdio>
#include <optional>

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

// Why the file at `filePath` must not be opened, or nothing when it may be (also when it does not
// exist yet). Only the file's metadata is looked at: a FIFO would block the first read.
std::optional<QString> reasonToRefuse(const QString& filePath) {
  const QFileInfo file(filePath);
  if (!file.exists()) return std::nullopt;
  if (!file.isFile()) return QStringLiteral("is not a regular file");
  if (file.size() > QSettingsStore::kMaxFileBytes)
    return QStringLiteral("is larger than %1 KiB").arg(QSettingsStore::kMaxFileBytes / 1024);
  return std::nullopt;
}

}  // namespace

QSettingsStore::QSettingsStore() : QSettingsStore(userFilePath()) {}

QSettingsStore::QSettingsStore(const QString& filePath) : filePath_(filePath) {
  if (const std::optional<QString> reason = reasonToRefuse(filePath)) {
    readFailed_ = true;
    std::fprintf(stderr,
                 "Brimly: the settings file %s %s; using the defaults and leaving it as it is\n",
                 QFile::encodeName(filePath).constData(), reason->toLocal8Bit().constData());
    return;
  }
  settings_ = std::make_unique<QSettings>(filePath, QSettings::IniFormat);
  readFailed_ = settings_->status() != QSettings::NoError;
}

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
  // A write replaces the whole file with what this store knows: none after a failed read.
  if (readFailed_) return;
  settings_->setValue(toQString(key), value);
  settings_->sync();
}

void QSettingsStore::writeStringList(std::string_view key, const std::vector<std::string>& value) {
  if (readFailed_) return;
  QStringList list;
  list.reserve(static_cast<qsizetype>(value.size()));
  for (const std::string& text : value)
    list.push_back(QString::fromStdString(text));
  settings_->setValue(toQString(key), list);
  settings_->sync();
}

}  // namespace brimly
