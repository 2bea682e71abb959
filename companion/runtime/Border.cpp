#include "companion/runtime/Border.h"

#include <QMutexLocker>
#include <QThread>
#include <utility>

Border::Border(Opener opener) : m_watch(handlers(std::move(opener))) {
  m_host.setCommandHandler([this](quint64 number, const Content& content) {
    tell({.kind = Crossing::Kind::CommandToHost, .number = number, .content = content});
    Q_EMIT commandSent(number, content);
    Q_EMIT returned();
  });
}

Border::~Border() {
  m_host.shutDown();
}

bool Border::loadPlugin(const QString& path) {
  Q_EMIT loading();
  const bool isLoaded = m_host.load(path);
  Q_EMIT returned();
  // Observers run in the order in which they came: the plug-in's is before this one.
  m_challengesEnd = KZNotificationCenter::defaultCenter().addObserver(
      QStringLiteral("HTTPAuthenticationRequired"), [this](const KZNotification&) {
        if (QThread::currentThread() == thread()) Q_EMIT returned();
      });
  return isLoaded;
}

Border::Token Border::addObserver(Observer observer) {
  auto token = std::make_shared<const Observer>(std::move(observer));
  const QMutexLocker lock(&m_mutex);
  std::erase_if(m_observers, [](const auto& known) { return known.expired(); });
  m_observers.push_back(token);
  return token;
}

void Border::triggerCommand(quint64 number, const Content& content) {
  tell({.kind = Crossing::Kind::CommandToPlugin, .number = number, .content = content});
  m_host.triggerCommand(number, content);
  Q_EMIT returned();
}

void Border::notify(quint32 index, const Content& content) {
  tell({.kind = Crossing::Kind::Notification, .number = index, .content = content});
  m_host.notify(index, content);
  Q_EMIT returned();
}

void Border::setPersonalRoom(const QString& joinUrl, const QString& sipUrl) {
  Dictionary room;
  if (!joinUrl.isNull()) room.insert(QStringLiteral("join"), joinUrl);
  if (!sipUrl.isNull()) room.insert(QStringLiteral("sip"), sipUrl);
  tell({.kind = Crossing::Kind::PersonalRoom, .content = room});
  m_host.core().setPMRJoinUrl(joinUrl, sipUrl);
  Q_EMIT returned();
}

BorderWatch::Handlers Border::handlers(Opener opener) {
  const auto tellOfPost = [this](Crossing::Kind kind, const KZNotification& notification) {
    tell({.kind = kind,
          .name = notification.name,
          .content = notification.userInfo,
          .poster = notification.object});
  };
  BorderWatch::Handlers handlers;
  handlers.challenged = [tellOfPost](const KZNotification& challenge) {
    tellOfPost(Crossing::Kind::Challenge, challenge);
  };
  handlers.answered = [tellOfPost](const KZNotification& answer) {
    tellOfPost(Crossing::Kind::Answer, answer);
  };
  handlers.opened = [this, opener = std::move(opener)](const QUrl& url) {
    tell({.kind = Crossing::Kind::Address, .text = url.toString(QUrl::FullyEncoded)});
    return opener(url);
  };
  handlers.warned = [this](const QString& title, const QString& message) {
    tell({.kind = Crossing::Kind::Warning, .name = title, .text = message});
  };
  handlers.traced = [this](const KZTraceRecord& trace) {
    tell({.kind = Crossing::Kind::Trace, .name = trace.method, .text = trace.text, .level = trace.level});
  };
  return handlers;
}

void Border::tell(const Crossing& crossing) {
  std::vector<Token> observers;
  {
    const QMutexLocker lock(&m_mutex);
    for (const auto& known : m_observers) {
      if (auto token = known.lock()) observers.push_back(std::move(token));
    }
  }
  for (const Token& observer : observers) (*observer)(crossing);
}
