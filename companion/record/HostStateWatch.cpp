#include "companion/record/HostStateWatch.h"

#include <QLocale>

#include "companion/format/HostState.h"
#include "companion/format/TokenState.h"

namespace {

// The keys whose values differ; null for those that are gone.
QJsonObject changedValues(const QJsonObject& before, const QJsonObject& after) {
  QJsonObject changed;
  for (auto value = before.begin(); value != before.end(); ++value) {
    if (!after.contains(value.key())) changed.insert(value.key(), QJsonValue::Null);
  }
  for (auto value = after.begin(); value != after.end(); ++value) {
    if (before.value(value.key()) != value.value()) changed.insert(value.key(), value.value());
  }
  return changed;
}

}  // namespace

HostStateWatch::State HostStateWatch::emptyState() {
  State state;
  state.credential = {{"username", QJsonValue::Null}, {"password", QJsonValue::Null}};
  state.tokens = QJsonArray();
  return state;
}

HostStateWatch::State HostStateWatch::present() const {
  State state;
  state.language = QLocale().name();
  state.host = hoststate::host().toObject();
  state.store = hoststate::store(valuecodec::Form::Exact).toObject();
  if (m_isBegun && m_keychain == Keychain::ReadOnce) {
    state.credential = m_seen.credential;
    state.tokens = m_seen.tokens;
    return state;
  }
  const QJsonObject keychain = hoststate::keychain().toObject();
  state.credential = {{"username", keychain.value(QLatin1String("outlookUsername"))},
                      {"password", keychain.value(QLatin1String("outlookPassword"))}};
  state.tokens = tokenstate::tokens();
  return state;
}

QList<QList<LineWriter::Member>> HostStateWatch::changes() {
  const State now = present();
  QList<QList<LineWriter::Member>> steps;
  if (now.language != m_seen.language) steps.append({{"set", "language"}, {"to", now.language}});
  const QJsonObject host = changedValues(m_seen.host, now.host);
  if (!host.isEmpty()) {
    QList<LineWriter::Member> step = {{"set", "host"}};
    for (auto value = host.begin(); value != host.end(); ++value)
      step.emplaceBack(value.key(), value.value());
    steps.append(step);
  }
  const QJsonObject store = changedValues(m_seen.store, now.store);
  if (!store.isEmpty()) steps.append({{"set", "store"}, {"values", store}});
  if (now.credential != m_seen.credential) {
    steps.append({{"set", "keychain"},
                  {"username", now.credential.value(QLatin1String("username"))},
                  {"password", now.credential.value(QLatin1String("password"))}});
  }
  if (now.tokens != m_seen.tokens) {
    steps.append({{"set", "tokens"}, {"items", tokenstate::settableTokens()}});
  }
  m_seen = now;
  m_isBegun = true;
  return steps;
}

void HostStateWatch::accept() {
  m_seen = present();
  m_isBegun = true;
}

void HostStateWatch::loadingBegins() {
  m_storeBeforeLoading = hoststate::store(valuecodec::Form::Exact).toObject();
}

void HostStateWatch::loadingEnded() {
  const QJsonObject now = hoststate::store(valuecodec::Form::Exact).toObject();
  const QJsonObject changed = changedValues(m_storeBeforeLoading, now);
  for (auto value = changed.begin(); value != changed.end(); ++value)
    m_seen.store.insert(value.key(), value.value());
}
