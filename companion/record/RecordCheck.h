#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <optional>

struct RecordDifference {
  int line;  // of the first record, from 1; 0 behind its end
  QJsonValue expected;
  QJsonValue got;  // null: nothing
};

// The first difference in what came out of the plug-in; nothing when both records say the same.
std::optional<RecordDifference> firstDifference(const QByteArray& expected, const QByteArray& got);
