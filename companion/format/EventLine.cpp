#include "companion/format/EventLine.h"

#include <QJsonObject>

#include "companion/format/ValueCodec.h"

namespace {

using Line = QList<LineWriter::Member>;

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

Line eventLine(const PluginEvent& event) {
  return std::visit(
      Overloaded{[](const CommandToHost& sent) -> Line {
                   const auto number = static_cast<quint64>(sent.command);
                   return {{"sent", static_cast<qint64>(number)},
                           {"name", kzCommandName(number)},
                           {"content", valuecodec::encodeContent(sent.content)}};
                 },
                 [](const CredentialResponse& posted) -> Line {
                   return {{"posted", posted.name}, {"userInfo", valuecodec::encodeContent(posted.userInfo)}};
                 },
                 [](const AddressRequest& request) -> Line {
                   return {{"opened", request.address}};
                 },
                 [](const WarningShown& warning) -> Line {
                   return {{"warning", QJsonObject{{"title", warning.title}, {"message", warning.message}}}};
                 },
                 [](const KZTraceRecord& trace) -> Line {
                   return {{"trace", levelName(trace.level)}, {"method", trace.method}, {"text", trace.text}};
                 },
                 [](const auto&) -> Line { return {}; }},
      event);
}
