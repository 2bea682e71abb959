#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>

#include "adal/ADAddress.h"
#include "adal/ADError.h"
#include "adal/ADHttpExchange.h"

struct ADWebAnswer {
  std::optional<ADError> error;  // set when there was no complete response
  int status = 0;
  QByteArray body;
  QDateTime date;  // the server's time at the response; invalid when it does not say
};

// One exchange at a time with an authority, bounded in time and size. A GET follows redirects within its
// origin, a POST follows none, and no cookies are stored, so that secrets reach no other host. Destroying it
// cancels the exchange without calling `done`.
class ADWebClient final {
 public:
  using Done = std::function<void(const ADWebAnswer&)>;

  void get(const QUrl& address, Done done);
  void post(const QUrl& address, const ADParameters& form, Done done);

 private:
  void begin(const ADHttpRequest& request, Done done);
  void request();
  void read(const ADHttpResponse& response);
  void follow(const QByteArray& location);
  void settle(const ADWebAnswer& answer);

  std::unique_ptr<ADHttpExchange> m_exchange;
  QDeadlineTimer m_deadline;
  ADHttpRequest m_request;
  int m_redirectsLeft = 0;
  Done m_done;
};
