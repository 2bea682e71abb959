#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "companion/record/RecordFile.h"
#include "companion/record/Recorder.h"

// The record that the companion makes of its host's events. Main thread only.
class Recording final : public QObject {
  Q_OBJECT

 public:
  explicit Recording(PluginHost* host) : m_host(host) {}  // not owned, must outlive this

  bool isRunning() const { return m_recorder != nullptr; }
  // Ends the current record first. False when the file cannot be created; the reason is shown to the user.
  [[nodiscard]] bool start(const QString& path);
  void stop();

 Q_SIGNALS:
  void changed(bool isRunning);
  void message(const QString& text);  // for the user

 private:
  [[nodiscard]] bool write(const QByteArray& line);  // on the thread that recorded it

  PluginHost* m_host;
  std::unique_ptr<RecordFile> m_file;
  std::unique_ptr<Recorder> m_recorder;
};
