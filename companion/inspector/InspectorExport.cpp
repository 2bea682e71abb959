#include "companion/inspector/InspectorExport.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

using Kind = InspectorEvent::Kind;

QString levelText(KZTraceLevel level) {
  switch (level) {
    case KZTraceLevel::Info:
      return QStringLiteral("info");
    case KZTraceLevel::Warning:
      return QStringLiteral("warning");
    case KZTraceLevel::Error:
      break;
  }
  return QStringLiteral("error");
}

void insertContent(QJsonObject* line, const InspectorEvent& event) {
  if (event.kind == Kind::StoreWrite) {
    line->insert(QStringLiteral("difference"), QJsonArray::fromStringList(event.difference()));
    return;
  }
  if (event.kind == Kind::Trace) line->insert(QStringLiteral("level"), levelText(event.level));
  const bool isText = event.kind == Kind::Trace || event.kind == Kind::Warning ||
                      event.kind == Kind::Address || event.kind == Kind::Keychain;
  const QJsonDocument json = isText ? QJsonDocument() : QJsonDocument::fromJson(event.content.toUtf8());
  if (json.isObject()) {
    line->insert(QStringLiteral("content"), json.object());
  } else {
    // Content that was cut is no JSON any more.
    line->insert(QStringLiteral("text"), event.content);
  }
}

}  // namespace

QByteArray exportedLine(const InspectorEvent& event) {
  QJsonObject line{{QStringLiteral("time"),
                    QDateTime::fromMSecsSinceEpoch(event.time, Qt::UTC).toString(Qt::ISODateWithMs)},
                   {QStringLiteral("kind"), kindText(event.kind)},
                   {QStringLiteral("name"), event.name}};
  if (event.number != 0) line.insert(QStringLiteral("number"), static_cast<qint64>(event.number));
  insertContent(&line, event);
  return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

QString exportEvents(const QString& path, const std::deque<InspectorLog::Event>& events) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return file.errorString();
  if (!file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner)) return file.errorString();
  for (const InspectorLog::Event& event : events) {
    if (file.write(exportedLine(*event)) < 0) return file.errorString();
  }
  return file.commit() ? QString() : file.errorString();
}
