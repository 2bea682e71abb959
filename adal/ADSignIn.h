#pragma once

#include <QList>
#include <QObject>
#include <QTimer>
#include <memory>

#include "adal/ADCompletions.h"
#include "adal/ADEndpoints.h"
#include "adal/ADLoopbackListener.h"
#include "adal/ADRequest.h"
#include "adal/ADSignInDialog.h"
#include "adal/ADWebClient.h"

// One sign-in in the browser, shared by equal requests. When all of their owners have left, it is cancelled:
// the port and the dialog are closed. Main thread only.
class ADSignIn final : public QObject, public std::enable_shared_from_this<ADSignIn> {
 public:
  // The sign-in in progress for an equal request, or a new one.
  static std::shared_ptr<ADSignIn> forRequest(const ADSignInRequest& request);

  explicit ADSignIn(const ADSignInRequest& request);
  ~ADSignIn() override;

  ADCompletions& completions() { return m_completions; }

 private:
  void start();
  void openPage(const ADEndpoints& endpoints);
  QUrl pageAddress() const;
  [[nodiscard]] std::optional<ADError> openListener();
  void showDialog(ADSignInDialog::Kind kind);
  void openBrowser();
  bool isExpected(const ADParameters& answer) const;
  void onAnswer(const ADParameters& answer);
  void onCodeEntered(const QString& entered);
  void redeem(const QString& code);
  void fail(const ADError& error);
  void finish(const ADAuthenticationResult& result);
  void stopWaiting();
  void giveUp();

  const ADSignInRequest m_request;
  ADCompletions m_completions;
  QByteArray m_state;
  QByteArray m_verifier;
  QUrl m_redirectUri;  // as sent, with the listener's port
  ADEndpoints m_endpoints;
  ADWebClient m_web;
  QTimer m_deadline;
  std::unique_ptr<ADLoopbackListener> m_listener;
  std::unique_ptr<ADSignInDialog> m_dialog;
  bool m_isFinished = false;
};
