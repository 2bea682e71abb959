#include "companion/format/Line.h"

#include <QJsonObject>

#include "companion/format/ValueCodec.h"

namespace {

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
    text +=
        (text.isEmpty() ? "{" : ",") + valuecodec::compactText(key) + ':' + valuecodec::compactText(value);
  return text + '}';
}

Line eventLine(const PluginEvent& event) {
  return std::visit(EventLine(), event);
}
