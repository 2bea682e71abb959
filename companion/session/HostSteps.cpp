#include "companion/session/HostSteps.h"

#include <QClipboard>
#include <QGuiApplication>

#include "companion/format/HostState.h"
#include "companion/format/TokenState.h"
#include "companion/format/ValueCodec.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/ViewDescription.h"

HostSteps::HostSteps(PluginHost* host, LineWriter* writer) : m_host(host), m_writer(writer) {
  m_getters = {
      {"store", [this](StepArguments&) { return answer(hoststate::store()); }},
      {"keychain", [this](StepArguments&) { return answer(hoststate::keychain()); }},
      {"host", [this](StepArguments&) { return answer(hoststate::host()); }},
      {"tokens", [this](StepArguments&) { return answer(tokenstate::tokens()); }},
      {"token", [this](StepArguments& step) { return getToken(step); }},
      {"pasteboard", [this](StepArguments&) { return answer(QGuiApplication::clipboard()->text()); }},
      {"personalRoom",
       [this](StepArguments&) {
         return answer(
             QJsonObject{{"join", m_host->core().pmrJoinUrl()}, {"sip", m_host->core().pmrSipUrl()}});
       }},
      {"window", [this](StepArguments&) { return answer(describeWindow(findPreferencesWindow())); }},
  };
  m_setters = {
      {"store", hoststate::setStore},    {"keychain", hoststate::setKeychain},
      {"host", hoststate::setHost},      {"language", hoststate::setLanguage},
      {"tokens", tokenstate::setTokens},
  };
}

void HostSteps::addTo(StepTable* table) {
  table->insert("get", [this](StepArguments& step) { return dispatch(m_getters, "get", step); });
  table->insert("set", [this](StepArguments& step) { return dispatch(m_setters, "set", step); });
}

StepOutcome HostSteps::dispatch(const StepTable& table, const char* verb, StepArguments& step) {
  const QString what = step.text(verb);
  if (!step.isGood()) return step.outcome();
  const auto handler = table.constFind(what);
  if (handler == table.constEnd()) {
    return StepOutcome::failed(QStringLiteral("there is no \"%1\" to %2").arg(what, QLatin1String(verb)));
  }
  return (*handler)(step);
}

StepOutcome HostSteps::getToken(StepArguments& step) {
  const QString email = step.optionalText("email");
  const QString username = step.optionalText("username");
  if (!step.isGood()) return step.outcome();
  if (!m_host->tokenLookup()) return StepOutcome::failed(QStringLiteral("this plug-in has no token cache"));
  const Dictionary token = m_host->tokenLookup()->getAccessTokenByEmail(email, username);
  return answer(valuecodec::encodeContent(token.isEmpty() ? Content() : Content(token)));
}

StepOutcome HostSteps::answer(const QJsonValue& result) {
  m_writer->print({{"result", result}});
  return StepOutcome::played();
}
