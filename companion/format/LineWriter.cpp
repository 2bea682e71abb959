#include "companion/format/LineWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMutexLocker>

namespace {

// A lone value is no JSON document here, so it travels in an array whose brackets are cut off.
QByteArray valueText(const QJsonValue& value) {
  const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
  return array.mid(1, array.size() - 2);
}

}  // namespace

QByteArray LineWriter::textOf(const QList<Member>& members) {
  QByteArray text;
  for (const auto& [key, value] : members)
    text += (text.isEmpty() ? "{" : ",") + valueText(key) + ':' + valueText(value);
  return text + '}';
}

void LineWriter::print(const QList<Member>& members) {
  const QByteArray line = textOf(members) + '\n';
  const QMutexLocker lock(&m_mutex);
  std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), m_stream);
  std::fflush(m_stream);
}
