#include "companion/app/Border.h"

#include <QDesktopServices>
#include <QUrl>

Border::Border() : m_watch(handlers()) {
  m_host.setCommandHandler([this](quint64 number, const Content& content) {
    record(BorderEvent::command(BorderEvent::Kind::CommandToHost, number, content));
    Q_EMIT commandSent(number, content);
  });
}

Border::~Border() {
  m_host.shutDown();
}

BorderWatch::Handlers Border::handlers() {
  BorderWatch::Handlers handlers;
  handlers.posted = [this](const KZNotification& notification) {
    record({BorderEvent::Kind::Posted, notification.name, shownContent(notification.userInfo)});
  };
  handlers.opened = [this](const QUrl& url) {
    // A query may carry a sign-in's state; the place suffices.
    record({BorderEvent::Kind::Address, QStringLiteral("openURL"), url.toDisplayString(QUrl::RemoveQuery)});
    return QDesktopServices::openUrl(url);
  };
  handlers.warned = [this](const QString& title, const QString& message) {
    record({BorderEvent::Kind::Warning, title, shortened(message)});
  };
  handlers.traced = [this](const KZTraceRecord& trace) {
    record({BorderEvent::Kind::Trace, trace.method, shortened(trace.text)});
  };
  return handlers;
}

void Border::triggerCommand(quint64 number, const Content& content) {
  record(BorderEvent::command(BorderEvent::Kind::CommandToPlugin, number, content));
  m_host.triggerCommand(number, content);
}

void Border::notify(quint32 index, const Content& content) {
  record(BorderEvent::notification(index, content));
  m_host.notify(index, content);
}

void Border::record(const BorderEvent& event) {
  QMetaObject::invokeMethod(&m_log, [this, event] { m_log.append(event); });
}
