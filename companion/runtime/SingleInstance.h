#pragma once

#include <QLocalServer>
#include <QObject>
#include <chrono>

class QLocalSocket;

// One host to a state folder. The first takes the folder until it ends, however it ends; a later one asks it
// to come to the front. Main thread only.
class SingleInstance final : public QObject {
  Q_OBJECT

 public:
  enum class Claim {
    First,     // ours from now on
    Asked,     // another has it and has been asked to come to the front
    NoAnswer,  // another has it and does not answer
  };

  // The folder is made when missing. Where it can neither be made nor locked, and nobody answers for it, it
  // is ours.
  explicit SingleInstance(const QString& stateFolder);
  ~SingleInstance() override;

  // Waits at most that long. Once.
  [[nodiscard]] Claim claim(std::chrono::milliseconds patience = std::chrono::seconds(5));

 Q_SIGNALS:
  // Another one asks the first to come to the front.
  void asked();

 private:
  enum class Lock { Taken, Held, Impossible };

  [[nodiscard]] Lock lockFolder();
  [[nodiscard]] bool askFirst(std::chrono::milliseconds patience) const;
  void listen();
  void receive();
  void read(QLocalSocket* socket);

  const QString m_folder;
  const QString m_socketPath;  // empty where the user has no folder for it
  QLocalServer m_server;
  int m_lock = -1;
};
