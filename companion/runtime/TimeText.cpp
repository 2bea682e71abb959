#include "companion/runtime/TimeText.h"

#include <QLocale>

namespace {

// Only the C locale has seconds in its short formats.
QString inFormat(const QDateTime& time, QString format) {
  return QLocale().toString(time.toLocalTime(), format.remove(QLatin1String(":ss")));
}

}  // namespace

QString shortTime(const QDateTime& time) {
  return inFormat(time, QLocale().timeFormat(QLocale::ShortFormat));
}

QString shortDateTime(const QDateTime& time) {
  return inFormat(time, QLocale().dateTimeFormat(QLocale::ShortFormat));
}
