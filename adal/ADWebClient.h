#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <optional>

#include "adal/ADAddress.h"
#include "adal/ADError.h"

class QNetworkReply;
class QNetworkRequest;

struct ADWebAnswer {
  std::optional<ADError> error;  // set when there was no complete response
  int status = 0;
  QByteArray body;
  QDateTime date;  // the server's time at the response; invalid when it does not say
};

// One exchange at a time with an authority, bounded in time and size. A GET follows redirects within its
// origin, a POST follows none, and no cookies are stored, so that secrets reach no other host. Destroying it
// cancels the exchange without calling `done`.
class ADWebClient final : public QObject {
 public:
  using Done = std::function<void(const ADWebAnswer&)>;

  explicit ADWebClient(QObject* parent = nullptr);
  ~ADWebClient() override;

  void get(const QUrl& address, Done done);
  void post(const QUrl& address, const ADParameters& form, Done done);

 private:
  void begin(Done done);
  void watch(QNetworkReply* reply);
  void follow(const QUrl& target);
  void checkSize();
  void readAnswer();
  void settle(const ADWebAnswer& answer);

  QNetworkAccessManager m_manager;
  QTimer m_deadline;
  QPointer<QNetworkReply> m_reply;
  qint64 m_limit = 0;
  int m_redirectsLeft = 0;
  Done m_done;
};
