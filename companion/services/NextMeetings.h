#pragma once

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>
#include <QTimer>
#include <memory>

#include "companion/exchange/ExchangeMeetings.h"
#include "companion/services/MeetingAccount.h"
#include "companion/services/ServiceNetwork.h"
#include "companion/services/TokenRequest.h"

class PluginHost;

// The next meetings of the applied account. Asked while somebody watches: at once when the account changes,
// and every few minutes. Main thread only.
class NextMeetings final : public QObject {
  Q_OBJECT

 public:
  // The two are not owned and must outlive this; `exchange` is how accounts are reached without the sandbox.
  NextMeetings(PluginHost* host, ServiceNetwork* network, ExchangeConfiguration exchange);

  // `description` is the "exchange" of what kz-sandbox prints first; empty while it is not running.
  void useSandbox(const QJsonObject& description);

  // Nobody watches at first.
  void setWatched(bool isWatched);
  void refresh() { refreshSoon(); }

  const QList<ExchangeMeeting>& meetings() const { return m_meetings; }
  const QString& text() const { return m_text; }  // what is missing, or how it stands
  bool isAsking() const { return m_isAsking; }

 Q_SIGNALS:
  void changed();

 private:
  void refreshSoon();
  void watchStore();
  void watchHost(PluginHost* host);
  void ask();
  void show(const QList<ExchangeMeeting>& meetings, const QString& text);

  ServiceNetwork* m_network;
  const ExchangeConfiguration m_ordinary;
  TokenRequest m_token;
  MeetingAccount m_account;  // the one that is asked
  std::unique_ptr<ExchangeMeetings> m_exchange;
  std::shared_ptr<const void> m_observing;
  QTimer m_soon;
  QTimer m_again;
  bool m_isWatched = false;
  bool m_isAsking = false;
  QList<ExchangeMeeting> m_meetings;
  QString m_text;
};
