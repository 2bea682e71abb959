#include "companion/record/HostStateTracker.h"

#include <QLocale>
#include <utility>

#include "companion/format/HostState.h"

namespace {

const QString kLanguage = QStringLiteral("language");
const QString kHost = QStringLiteral("host");
const QString kStore = QStringLiteral("store");
const QString kKeychain = QStringLiteral("keychain");
const QString kTokens = QStringLiteral("tokens");

QJsonObject readCredential() {
  const QJsonObject keychain = hoststate::keychain();
  return {{"username", keychain.value(QLatin1String("outlookUsername"))},
          {"password", keychain.value(QLatin1String("outlookPassword"))}};
}

// The values that differ; null for those that are gone. What is absent is as good as null.
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
  const bool isKeychainRead = m_keychain == Keychain::ReadOnce && m_accepted.contains(kKeychain);
  return {{kLanguage, QLocale().name()},
          {kHost, hoststate::host()},
          {kStore, hoststate::store(valuecodec::Form::Exact)},
          {kKeychain, isKeychainRead ? m_accepted.value(kKeychain) : readCredential()},
          {kTokens, isKeychainRead ? m_accepted.value(kTokens) : hoststate::tokens()}};
}

QList<Line> HostStateTracker::changes() {
  const QJsonObject before = std::exchange(m_accepted, present());
  const auto changed = [&](const QString& part) {
    return changedValues(before.value(part).toObject(), m_accepted.value(part).toObject());
  };
  QList<Line> steps;
  if (before.value(kLanguage) != m_accepted.value(kLanguage))
    steps.append({{"set", kLanguage}, {"to", m_accepted.value(kLanguage)}});
  if (const QJsonObject host = changed(kHost); !host.isEmpty()) steps.append(stepOf(kHost, host));
  if (const QJsonObject store = changed(kStore); !store.isEmpty())
    steps.append({{"set", kStore}, {"values", store}});
  if (const QJsonObject credential = changed(kKeychain); !credential.isEmpty())
    steps.append(stepOf(kKeychain, credential));
  if (before.value(kTokens).toArray() != m_accepted.value(kTokens).toArray())
    steps.append({{"set", kTokens}, {"items", hoststate::tokens(valuecodec::Form::Exact)}});
  return steps;
}
