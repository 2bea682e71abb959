#pragma once

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

// The next meetings of the applied account. Requested while they are on the screen: at once when the account
// changes, and every few minutes. Main thread only.
class NextMeetings final : public QObject {
  Q_OBJECT

 public:
  // The two are not owned and must outlive this.
  NextMeetings(PluginHost* host, ServiceNetwork* network);

  // Whether the meetings are on the screen; at first they are not.
  void setWatched(bool isWatched);
  // Soon, and only while they are watched.
  void refresh();

  const QList<ExchangeMeeting>& meetings() const { return m_meetings; }
  const QString& text() const { return m_text; }  // why there are none; empty where there are
  bool isAsking() const { return m_isAsking; }

 Q_SIGNALS:
  void changed();

 private:
  void watchStore();
  void watchHost(PluginHost* host);
  void request();
  void list(const QString& token);
  void show(const QList<ExchangeMeeting>& meetings, const QString& text);

  ServiceNetwork* m_network;
  TokenRequest m_token;
  MeetingAccount m_account;  // of the current request
  std::unique_ptr<ExchangeMeetings> m_exchange;
  std::shared_ptr<const void> m_observing;
  QTimer m_soon;
  QTimer m_again;
  bool m_isWatched = false;
  bool m_isAsking = false;
  QList<ExchangeMeeting> m_meetings;
  QString m_text;
};
