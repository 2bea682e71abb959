#include "companion/services/GeneralSettings.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>

#include "companion/runtime/PluginHost.h"
#include "companion/texts/CompanionText.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

const QString kEntryName = QStringLiteral("brenn-mivra-companion.desktop");
// The desktop chooses the language, so all of them are in the entry.
constexpr const char* kComments[] = {
    "Comment=Starts after login; switched in Preferences, General",
    "Comment[de]=Startet nach der Anmeldung; einstellbar in den Einstellungen unter „Allgemein“",
    "Comment[es]=Se inicia después de entrar en la sesión; se cambia en Preferencias, General",
    "Comment[fr]=Démarre après l’ouverture de session\u00a0; réglable dans Préférences, Général",
    "Comment[ja]=ログイン後に起動します（「環境設定」の「一般」で変更）",
    "Comment[zh_CN]=登录后启动；可在“偏好设置”的“通用”中更改",
};

// A value of the type string: the backslash escapes.
QString escaped(QString text) {
  return text.replace(QLatin1Char('\\'), QLatin1String("\\\\"))
      .replace(QLatin1Char('\n'), QLatin1String("\\n"))
      .replace(QLatin1Char('\t'), QLatin1String("\\t"))
      .replace(QLatin1Char('\r'), QLatin1String("\\r"));
}

// One quoted argument of a command, with backslashes before special characters and doubled per cent signs,
// which would otherwise be field codes.
QString quotedArgument(const QString& argument) {
  QString quoted;
  for (const QChar character : argument) {
    if (QStringLiteral("\"`$\\").contains(character)) quoted += QLatin1Char('\\');
    if (character == QLatin1Char('%')) quoted += character;
    quoted += character;
  }
  return QLatin1Char('"') + quoted + QLatin1Char('"');
}

// Desktops look for the first word of a command as it is written, with its doubled per cent signs, and an
// equals sign is not allowed in it. A shell in front takes the program as an argument like any other.
QStringList startable(const QStringList& command) {
  static const QRegularExpression inTheWay(QStringLiteral("[%=]"));
  if (!command.first().contains(inTheWay)) return command;
  return QStringList{QStringLiteral("/bin/sh"), QStringLiteral("-c"), QStringLiteral("exec \"$0\" \"$@\"")} +
         command;
}

}  // namespace

AutostartEntry::AutostartEntry(const QString& folder, const QString& program, const QStringList& arguments)
    : m_folder(folder), m_command(QStringList(program) + arguments) {}

QString AutostartEntry::userFolder() {
  const QDir configuration(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
  return configuration.filePath(QStringLiteral("autostart"));
}

QString AutostartEntry::path() const {
  return QDir(m_folder).filePath(kEntryName);
}

QByteArray AutostartEntry::content() const {
  QStringList command;
  for (const QString& argument : startable(m_command)) command.append(quotedArgument(argument));
  QStringList lines = {"[Desktop Entry]", "Type=Application", "Name=Brenn Mivra Meetings"};
  for (const char* comment : kComments) lines.append(QString::fromUtf8(comment));
  lines += {"TryExec=" + escaped(m_command.first()), "Exec=" + escaped(command.join(QLatin1Char(' '))),
            "Icon=brenn-mivra-companion", "Terminal=false", QString()};
  return lines.join(QLatin1Char('\n')).toUtf8();
}

QString AutostartEntry::write() const {
  QFile present(path());
  if (present.open(QIODevice::ReadOnly) && present.readAll() == content()) return {};
  if (!QDir().mkpath(m_folder)) return companionText("the folder cannot be made");
  QSaveFile file(path());
  const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                         file.write(content()) == content().size() && file.commit();
  return isWritten ? QString() : file.errorString();
}

QString AutostartEntry::remove() const {
  QFile present(path());
  if (!present.exists() || present.remove()) return {};
  return present.errorString();
}

GeneralSettings::GeneralSettings(PluginHost* host, const AutostartEntry& autostart) : m_autostart(autostart) {
  host->handle(KZCommand::KZCmdUpdateGeneralSetting, this,
               [this](const Content& content) { update(content.value_or(Dictionary())); });
  // Without a choice nothing starts at login, and the pane, which takes that as on, is to show it.
  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  if (!store.isPlistKeyExist(KZLaunchAtLogin)) store.setLaunchAtLogin(false);
}

void GeneralSettings::apply() {
  const QString failure = carryOut(KZPlistFileHandle::sharedInstance().launchAtLogin());
  if (!failure.isEmpty()) Q_EMIT message(failure);
}

void GeneralSettings::update(const Dictionary& values) {
  if (const auto isWanted = flagValue(values, kLaunchAtLogin)) startAtLogin(*isWanted);
  if (const auto isWanted = flagValue(values, kEnableOutlookKZPluginValue)) {
    Q_EMIT message(*isWanted ? companionText("Meetings can be scheduled from Microsoft Outlook once it is "
                                             "started again.")
                             : companionText("Microsoft Outlook schedules no meetings any more once it is "
                                             "started again."));
  }
}

void GeneralSettings::startAtLogin(bool isWanted) {
  const QString failure = carryOut(isWanted);
  if (!failure.isEmpty()) return Q_EMIT message(failure);
  Q_EMIT message(isWanted ? companionText("Brenn Mivra Meetings starts after your next login.")
                          : companionText("Brenn Mivra Meetings does not start after login any more."));
}

QString GeneralSettings::carryOut(bool isWanted) const {
  const QString reason = isWanted ? m_autostart.write() : m_autostart.remove();
  if (reason.isEmpty()) return {};
  return companionText("%1 cannot be changed: %2. Make its folder writable and choose again.")
      .arg(m_autostart.path(), reason);
}
