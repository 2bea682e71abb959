#pragma once

#include <QObject>
#include <QProcess>
#include <QTimer>

#include "companion/exchange/SandboxDescription.h"

// The program kz-sandbox as a child. It ends with this object, and also when this process is killed. Main
// thread only.
class Sandbox final : public QObject {
  Q_OBJECT

 public:
  Sandbox();
  ~Sandbox() override;

  // The one beside this program; empty when there is none.
  static QString programPath();

  // Returns at once; ready or failed follows. An empty path fails. Start at most once.
  void start(const QString& path);
  qint64 processId() const { return m_process.processId(); }

 Q_SIGNALS:
  void ready(const SandboxDescription& description);
  void failed(const QString& reason);  // a sentence for the user; once, also after ready

 private:
  void readFirstLine();
  void fail(const QString& reason);

  QProcess m_process;
  QTimer m_startLimit;
};
