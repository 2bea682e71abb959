#include "companion/session/LineWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMutexLocker>

namespace {

// A lone value is no JSON document here, so it travels in an array whose brackets are cut off.
QByteArray textOf(const QJsonValue& value) {
  const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
  return array.mid(1, array.size() - 2);
}

}  // namespace

void LineWriter::print(std::initializer_list<Member> members) {
  QByteArray line;
  for (const auto& [key, value] : members)
    line += (line.isEmpty() ? "{" : ",") + textOf(key) + ':' + textOf(value);
  line += "}\n";
  const QMutexLocker lock(&m_mutex);
  std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), m_stream);
  std::fflush(m_stream);
}
