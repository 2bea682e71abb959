#include "companion/record/RecordCheck.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QList>

#include "companion/record/RecordWriter.h"

namespace {

struct Output {
  int line = 0;
  QJsonValue value = QJsonValue::Null;
};

QList<Output> outputsIn(const QByteArray& record) {
  const QByteArray mark = RecordWriter::outputMark;
  QList<Output> outputs;
  int number = 0;
  for (const QByteArray& line : record.split('\n')) {
    ++number;
    if (line.startsWith(mark))
      outputs.append({number, QJsonDocument::fromJson(line.mid(mark.size())).object()});
  }
  return outputs;
}

}  // namespace

std::optional<RecordDifference> firstDifference(const QByteArray& expected, const QByteArray& got) {
  const QList<Output> before = outputsIn(expected);
  const QList<Output> after = outputsIn(got);
  for (qsizetype place = 0; place < qMax(before.size(), after.size()); ++place) {
    const Output wanted = before.value(place);
    const Output made = after.value(place);
    if (wanted.value != made.value) return RecordDifference{wanted.line, wanted.value, made.value};
  }
  return {};
}
