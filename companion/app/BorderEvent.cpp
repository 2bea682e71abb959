#include "companion/app/BorderEvent.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>
#include <algorithm>

#include "companion/session/ValueCodec.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZUtility/KZTrace.h"

namespace {

constexpr qsizetype kLongestText = 4000;

QString notificationName(quint64 index) {
  const auto table = kzNotifyTable();
  const auto row = std::ranges::find(table, static_cast<KZNotify>(index), &KZNotifyRow::index);
  return row == table.end() ? QString() : QString::fromLatin1(row->name);
}

QString numbered(quint64 number, const QString& name) {
  return QStringLiteral("%1 %2").arg(number).arg(name);
}

}  // namespace

BorderEvent BorderEvent::of(const Crossing& crossing) {
  switch (crossing.kind) {
    case Kind::CommandToPlugin:
    case Kind::CommandToHost:
      return {crossing.kind, numbered(crossing.number, QLatin1String(kzCommandName(crossing.number))),
              shownContent(crossing.content)};
    case Kind::Notification:
      return {crossing.kind, numbered(crossing.number, notificationName(crossing.number)),
              shownContent(crossing.content)};
    case Kind::PersonalRoom:
      return {crossing.kind, QStringLiteral("setPMRJoinUrl:sipUrl:"), shownContent(crossing.content)};
    case Kind::Challenge:
    case Kind::Answer:
      return {crossing.kind, crossing.name, shownContent(crossing.content)};
    case Kind::Address:
      // A query may carry a sign-in's state; the place suffices.
      return {crossing.kind, QStringLiteral("openURL"),
              QUrl(crossing.text).toDisplayString(QUrl::RemoveQuery)};
    case Kind::Warning:
    case Kind::Trace:
      break;
  }
  return {crossing.kind, crossing.name, shortened(crossing.text)};
}

QString kindText(BorderEvent::Kind kind) {
  switch (kind) {
    case BorderEvent::Kind::CommandToPlugin:
      return QStringLiteral("Command to plug-in");
    case BorderEvent::Kind::CommandToHost:
      return QStringLiteral("Command to host");
    case BorderEvent::Kind::Notification:
      return QStringLiteral("Notification");
    case BorderEvent::Kind::PersonalRoom:
      return QStringLiteral("Personal room");
    case BorderEvent::Kind::Challenge:
      return QStringLiteral("Challenge");
    case BorderEvent::Kind::Answer:
      return QStringLiteral("Answer");
    case BorderEvent::Kind::Address:
      return QStringLiteral("Address");
    case BorderEvent::Kind::Warning:
      return QStringLiteral("Warning");
    case BorderEvent::Kind::Trace:
      break;
  }
  return QStringLiteral("Trace");
}

QString shownContent(const Content& content) {
  if (!content) return QStringLiteral("none");
  const QJsonObject object = valuecodec::encode(kzMaskSecrets(*content)).toObject();
  return shortened(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

QString shortened(const QString& text) {
  return text.size() <= kLongestText ? text : text.left(kLongestText) + QChar(u'…');
}
