#include "companion/record/HostStateTracker.h"

#include <QJsonArray>
#include <QLocale>
#include <utility>

#include "companion/format/HostState.h"

namespace {

QJsonObject readCredential() {
  const QJsonObject keychain = hoststate::keychain();
  return {{"username", keychain.value(QLatin1String("outlookUsername"))},
          {"password", keychain.value(QLatin1String("outlookPassword"))}};
}

QJsonObject readTokens() {
  const QJsonArray items = hoststate::tokens();
  return items.isEmpty() ? QJsonObject() : QJsonObject{{"items", items}};
}

// The values that differ; null for removed ones. An absent value equals null.
QJsonObject changedValues(const QJsonObject& before, const QJsonObject& after) {
  QJsonObject changed;
  for (const QString& key : before.keys()) {
    if (!after.contains(key)) changed.insert(key, QJsonValue::Null);
  }
  for (auto value = after.begin(); value != after.end(); ++value) {
    const bool isAbsent = value->isNull() && !before.contains(value.key());
    if (!isAbsent && before.value(value.key()) != value.value()) changed.insert(value.key(), value.value());
  }
  return changed;
}

Line stepOf(const QString& part, const QJsonObject& values) {
  Line step = {{"set", part}};
  for (auto value = values.begin(); value != values.end(); ++value)
    step.emplaceBack(value.key(), value.value());
  return step;
}

}  // namespace

QJsonObject HostStateTracker::present() const {
  const bool isKeychainRead =
      m_keychain == Keychain::ReadOnce && m_accepted.contains(QLatin1String("keychain"));
  return {{"language", QJsonObject{{"to", QLocale().name()}}},
          {"host", hoststate::host()},
          {"store", hoststate::store(valuecodec::Form::Exact)},
          {"keychain", isKeychainRead ? m_accepted.value(QLatin1String("keychain")) : readCredential()},
          {"tokens", isKeychainRead ? m_accepted.value(QLatin1String("tokens")) : readTokens()}};
}

QList<Line> HostStateTracker::changes() {
  const QJsonObject before = std::exchange(m_accepted, present());
  QList<Line> steps;
  for (const char* part : {"language", "host", "store", "keychain", "tokens"}) {
    const QLatin1String name(part);
    QJsonObject changed = changedValues(before.value(name).toObject(), m_accepted.value(name).toObject());
    if (changed.isEmpty()) continue;
    if (name == QLatin1String("store")) changed = {{"values", changed}};
    // The time of expiry is said anew, from now on.
    if (name == QLatin1String("tokens")) changed = {{"items", hoststate::tokens(valuecodec::Form::Exact)}};
    steps.append(stepOf(name, changed));
  }
  return steps;
}
