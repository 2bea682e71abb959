#pragma once

#include <QLocalServer>
#include <QObject>
#include <chrono>

class QLocalSocket;

// Lets a second companion on a state folder ask the first one to come to the front. The settings store's lock
// decides which one is the first. Main thread only.
class SingleInstance final : public QObject {
  Q_OBJECT

 public:
  explicit SingleInstance(const QString& stateFolder);

  // True when another one listens for this folder and has answered within that time.
  [[nodiscard]] bool askFirst(std::chrono::milliseconds patience) const;
  // By the first one, once it has locked the folder. Where that fails a second one gets no answer.
  void listen();

 Q_SIGNALS:
  // A second companion requested this one to come to the front.
  void asked();

 private:
  void receive();
  void answer(QLocalSocket* socket);

  const QString m_folder;
  QLocalServer m_server;
};
