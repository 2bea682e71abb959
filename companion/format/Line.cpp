#include "companion/format/Line.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "companion/format/ValueCodec.h"

namespace {

// QJsonDocument takes objects and arrays only, so the value travels in an array whose brackets are cut off.
QByteArray valueText(const QJsonValue& value) {
  const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
  return array.mid(1, array.size() - 2);
}

struct EventLine {
  Line operator()(const CommandToHost& sent) const {
    const auto number = static_cast<quint64>(sent.command);
    return {{"sent", static_cast<qint64>(number)},
            {"name", kzCommandName(number)},
            {"content", valuecodec::encodeContent(sent.content)}};
  }
  Line operator()(const CredentialResponse& posted) const {
    return {{"posted", posted.name}, {"userInfo", valuecodec::encodeContent(posted.userInfo)}};
  }
  Line operator()(const AddressRequest& request) const { return {{"opened", request.address}}; }
  Line operator()(const WarningShown& warning) const {
    return {{"warning", QJsonObject{{"title", warning.title}, {"message", warning.message}}}};
  }
  Line operator()(const KZTraceRecord& trace) const {
    return {{"trace", kzTraceLevelName(trace.level)}, {"method", trace.method}, {"text", trace.text}};
  }
  Line operator()(const StoreChange& change) const {
    return {{"stored", change.key},
            {"value", valuecodec::encode(change.after)},
            {"before", valuecodec::encode(change.before)}};
  }
  Line operator()(const KeychainChange& change) const {
    return {{change.kind == KeychainChange::Kind::Written ? "kept" : "removed", change.account}};
  }
  Line operator()(const auto&) const { return {}; }
};

}  // namespace

QByteArray lineText(const Line& line) {
  QByteArray text;
  for (const auto& [key, value] : line)
    text += (text.isEmpty() ? "{" : ",") + valueText(key) + ':' + valueText(value);
  return text + '}';
}

Line eventLine(const PluginEvent& event) {
  return std::visit(EventLine(), event);
}
