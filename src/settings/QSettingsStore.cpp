#include "settings/QSettingsStore.h"

#include <QFile>
#include <QStringList>
#include <utility>

#include "core/PathText.h"
#include "platform/StandardErrorLine.h"
#include "platform/UserFiles.h"
#include "platform/XdgBaseDirectories.h"
#include "settings/IniText.h"

namespace brimly {

namespace {

// "<configuration folder>/brimly/Brimly.conf"; empty without a configuration folder.
std::string userFilePath() {
  const std::string folder = configHomeOfThisProcess();
  if (folder.empty()) return {};
  return folder + "/brimly/Brimly.conf";
}

QString toQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QSettingsStore::QSettingsStore() : QSettingsStore(userFilePath()) {}

QSettingsStore::QSettingsStore(const QString& filePath)
    : QSettingsStore(QFile::encodeName(filePath).toStdString()) {}

QSettingsStore::QSettingsStore(std::string filePath) : filePath_(std::move(filePath)) {
  if (filePath_.empty()) return;
  const std::variant<QVariantMap, std::string> values = load();
  if (const auto* problem = std::get_if<std::string>(&values)) {
    refusedAtStart_ = *problem;
    writeStandardErrorLine("Brimly: using the default settings and leaving the file as it is: " +
                           refusedAtStart_);
  }
}

QString QSettingsStore::fileName() const {
  return QString::fromStdString(printablePath(filePath_));
}

std::variant<QVariantMap, std::string> QSettingsStore::load() const {
  const UserFileRead file = readUserFile(filePath_, kMaxFileBytes);
  switch (file.outcome) {
    case UserFileRead::Outcome::missing:
      return QVariantMap();
    case UserFileRead::Outcome::refused:
      return file.problem;
    case UserFileRead::Outcome::read:
      break;
  }
  const QByteArray text(file.contents.data(), static_cast<qsizetype>(file.contents.size()));
  if (std::optional<QVariantMap> values = IniText::parse(text)) return std::move(*values);
  return printablePath(filePath_) + " cannot be parsed";
}

QVariant QSettingsStore::readValue(std::string_view key) const {
  if (filePath_.empty() || readFailed()) return {};
  const std::variant<QVariantMap, std::string> values = load();
  if (const auto* map = std::get_if<QVariantMap>(&values)) return map->value(toQString(key));
  return {};
}

std::optional<bool> QSettingsStore::readBool(std::string_view key) const {
  const QVariant value = readValue(key);
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
  const QVariant value = readValue(key);
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

std::optional<std::string> QSettingsStore::readString(std::string_view key) const {
  const QVariant value = readValue(key);
  if (value.metaType().id() != QMetaType::QString) return std::nullopt;
  return value.toString().toStdString();
}

std::optional<std::string> QSettingsStore::writeBool(std::string_view key, bool value) {
  return write(key, value);
}

std::optional<std::string> QSettingsStore::writeStringList(std::string_view key,
                                                           const std::vector<std::string>& value) {
  QStringList list;
  list.reserve(static_cast<qsizetype>(value.size()));
  for (const std::string& text : value)
    list.push_back(QString::fromStdString(text));
  return write(key, list);
}

std::optional<std::string> QSettingsStore::writeString(std::string_view key,
                                                       std::string_view value) {
  return write(key, toQString(value));
}

std::optional<std::string> QSettingsStore::write(std::string_view key, const QVariant& value) {
  if (filePath_.empty()) {
    return std::string(
        "no configuration folder: neither XDG_CONFIG_HOME nor HOME is an absolute path");
  }
  // A write replaces the whole file with what this store knows: nothing of a file it could not
  // read.
  if (readFailed()) return refusedAtStart_ + ", and is left as it is";
  std::variant<QVariantMap, std::string> loaded = load();
  if (const auto* problem = std::get_if<std::string>(&loaded)) return *problem;
  QVariantMap& values = std::get<QVariantMap>(loaded);
  values.insert(toQString(key), value);
  const std::optional<QByteArray> text = IniText::format(values);
  if (!text) return "cannot write " + printablePath(filePath_) + ": no scratch file for its text";
  if (std::optional<std::string> problem = makeUserFolders(parentFolder(filePath_))) return problem;
  return replaceUserFile(filePath_, std::string_view(text->constData(), text->size()));
}

}  // namespace brimly
