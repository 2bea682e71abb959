#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <initializer_list>

#include "companion/format/Line.h"
#include "host/KZFoundation/Dictionary.h"

// The result of a step: the line that is printed for it (empty: none), or the reason why it cannot be played.
// A control that a user could not use is no failure: a refusal is printed.
struct [[nodiscard]] StepResult {
  Line line = {};
  QString failure = {};

  static StepResult answer(const QJsonValue& value) { return {{{"result", value}}}; }
  static StepResult refused(const QString& why) { return {why.isNull() ? Line() : Line{{"refused", why}}}; }
  static StepResult failed(const QString& reason) { return {{}, reason}; }
};

// The values of one step. The first that is missing or of a wrong type is remembered and everything after it
// reads as a default, so that a step reads all its values and then checks once.
class Step final {
 public:
  explicit Step(const QJsonObject& values) : m_values(values) {}

  bool has(const char* key) const { return m_values.contains(QLatin1String(key)); }
  QJsonValue raw(const char* key) const { return m_values.value(QLatin1String(key)); }
  QStringList keys() const { return m_values.keys(); }

  QString text(const char* key);
  QString optionalText(const char* key);                                        // null when left out or null
  QString choice(const char* key, std::initializer_list<const char*> choices);  // left out: the first one
  bool flag(const char* key);
  bool optionalFlag(const char* key);  // left out: false
  double number(const char* key);
  qint64 integer(const char* key, qint64 least, qint64 greatest);
  QJsonArray list(const char* key);
  QJsonObject object(const char* key);
  Content content(const char* key);  // nothing when left out or null

  void fail(const QString& reason);
  bool isGood() const { return m_failure.isEmpty(); }
  StepResult result() const { return StepResult::failed(m_failure); }  // prints nothing while all is good

 private:
  QJsonValue typed(const char* key, QJsonValue::Type type, const char* typeName);

  QJsonObject m_values;
  QString m_failure;
};
