#include "companion/app/BorderEvent.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

#include "companion/session/ValueCodec.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZUtility/KZTrace.h"

namespace {

constexpr qsizetype kLongestText = 4000;

QString notificationName(quint32 index) {
  const auto table = kzNotifyTable();
  const auto row = std::ranges::find(table, static_cast<KZNotify>(index), &KZNotifyRow::index);
  return row == table.end() ? QString() : QString::fromLatin1(row->name);
}

QString numbered(quint64 number, const QString& name) {
  return QStringLiteral("%1 %2").arg(number).arg(name);
}

}  // namespace

BorderEvent BorderEvent::command(Kind kind, quint64 number, const Content& content) {
  return {kind, numbered(number, QLatin1String(kzCommandName(number))), shownContent(content)};
}

BorderEvent BorderEvent::notification(quint32 index, const Content& content) {
  return {Kind::Notification, numbered(index, notificationName(index)), shownContent(content)};
}

QString kindText(BorderEvent::Kind kind) {
  switch (kind) {
    case BorderEvent::Kind::CommandToPlugin:
      return QStringLiteral("Command to plug-in");
    case BorderEvent::Kind::CommandToHost:
      return QStringLiteral("Command to host");
    case BorderEvent::Kind::Notification:
      return QStringLiteral("Notification");
    case BorderEvent::Kind::Posted:
      return QStringLiteral("Posted");
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
