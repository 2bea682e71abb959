#include "companion/session/CrossingLine.h"

#include <QJsonObject>

#include "companion/session/ValueCodec.h"
#include "host/KZFoundation/KZCommands.h"

namespace {

QString levelName(KZTraceLevel level) {
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

}  // namespace

QList<LineWriter::Member> crossingLine(const Crossing& crossing) {
  switch (crossing.kind) {
    case Crossing::Kind::CommandToHost:
      return {{"sent", static_cast<qint64>(crossing.number)},
              {"name", kzCommandName(crossing.number)},
              {"content", valuecodec::encodeContent(crossing.content)}};
    case Crossing::Kind::Answer:
      return {{"posted", crossing.name}, {"userInfo", valuecodec::encodeContent(crossing.content)}};
    case Crossing::Kind::Address:
      return {{"opened", crossing.text}};
    case Crossing::Kind::Warning:
      return {{"warning", QJsonObject{{"title", crossing.name}, {"message", crossing.text}}}};
    case Crossing::Kind::Trace:
      return {{"trace", levelName(crossing.level)}, {"method", crossing.name}, {"text", crossing.text}};
    case Crossing::Kind::CommandToPlugin:
    case Crossing::Kind::Notification:
    case Crossing::Kind::PersonalRoom:
    case Crossing::Kind::Challenge:
      break;
  }
  return {};
}
