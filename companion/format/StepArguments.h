#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <initializer_list>
#include <optional>

#include "companion/format/StepOutcome.h"
#include "host/KZFoundation/Dictionary.h"

// Reads one step's values. The first value that is missing or of a wrong type is remembered and everything
// after it reads as a default, so that a step reads all it needs and then asks once.
class StepArguments final {
 public:
  explicit StepArguments(const QJsonObject& step) : m_step(step) {}

  bool has(const char* key) const { return m_step.contains(QLatin1String(key)); }
  QJsonValue raw(const char* key) const { return m_step.value(QLatin1String(key)); }
  QStringList keys() const { return m_step.keys(); }

  QString text(const char* key);
  QString textOr(const char* key, const QString& fallback);
  QString optionalText(const char* key);  // null when left out or null
  QString choice(const char* key, std::initializer_list<const char*> choices);
  bool flag(const char* key);
  bool flagOr(const char* key, bool fallback);
  qint64 integer(const char* key, qint64 least, qint64 greatest);
  double number(const char* key);
  QStringList textsOr(const char* key, const QStringList& fallback);
  QJsonObject object(const char* key);
  Content content(const char* key);  // nothing when left out or null

  void fail(const QString& reason);
  bool isGood() const { return m_error.isEmpty(); }
  StepOutcome outcome() const { return StepOutcome::failed(m_error); }  // played while all is good

 private:
  QJsonValue typed(const char* key, QJsonValue::Type type, const char* typeName);

  QJsonObject m_step;
  QString m_error;
};
