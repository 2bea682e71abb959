#include "companion/session/LineWriter.h"

#include <QJsonDocument>
#include <QMutexLocker>

void LineWriter::print(const QJsonObject& line) {
  const QByteArray text = QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
  const QMutexLocker lock(&m_mutex);
  std::fwrite(text.constData(), 1, static_cast<size_t>(text.size()), m_stream);
  std::fflush(m_stream);
}
