#pragma once

#include <QByteArray>
#include <QMutex>
#include <QObject>
#include <QThread>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "companion/record/HostStateWatch.h"
#include "companion/record/InputWatch.h"
#include "companion/record/SecretVault.h"
#include "companion/runtime/PluginHost.h"

// Writes what a host and its user do to the plug-in as the steps of a session, and what comes out of it as
// comments in between. Secrets are replaced before they are written. Make it on the main thread.
class Recorder final : public QObject {
  Q_OBJECT

 public:
  struct Options {
    // What pauses are measured with. Any thread.
    std::function<std::chrono::milliseconds()> clock;
    // Added to every pause, so that what came at its end comes again before what followed.
    std::chrono::milliseconds slack{0};
    HostStateWatch::Keychain keychain = HostStateWatch::Keychain::Followed;
    const void* hostPoster = nullptr;  // marks answers that the host itself posts
  };
  // Takes a line without its end; false ends the recording. On the thread on which it
  // happened; the first from within the constructor.
  using Sink = std::function<bool(const QByteArray& line)>;

  // How the lines begin that tell what came out.
  static constexpr char outputMark[] = "# <- ";

  // The host is not owned and must outlive this.
  Recorder(PluginHost* host, Sink sink, Options options);
  ~Recorder() override;

  // Writes what is pending; from then on nothing is recorded.
  void stop();
  // A line that it has made, without the secrets too that became known only after it.
  QByteArray revised(const QByteArray& line);

 private:
  using Step = InputWatch::Step;
  enum class Actor { Loader, Plugin, User, Host };
  // Shared with the observer, which may outlive this on another thread.
  struct Gate {
    const QThread* home;
    QMutex mutex{};
    bool isOpen = true;
  };

  InputWatch::Handlers inputHandlers();
  void onEvent(const PluginEvent& event, PluginHost::Phase phase);
  void onBegin(const PluginEvent& event);
  void writePost(const QString& name, const Dictionary& userInfo);
  void begin(Actor actor);
  void end();
  bool isPluginAtWork() const { return !m_actors.empty() && m_actors.back() != Actor::Host; }
  void writeHostChanges();

  PluginEvent withoutSecrets(const PluginEvent& event);
  void writeHeader();
  void writeStep(const Step& step);
  void writeOutput(const PluginEvent& event);
  void writeTyped(const TypedText::Edit& edit);
  void writeUnnamed(const QString& what);
  // With `m_mutex` held.
  void write(const QByteArray& line);
  void writePause();

  Sink m_sink;
  const Options m_options;
  HostStateWatch m_state;
  InputWatch m_input;
  std::vector<Actor> m_actors;  // who acts for whom, the present one last

  QMutex m_mutex;
  SecretVault m_vault;
  std::chrono::milliseconds m_lastWritten;
  bool m_isOver = false;
  const std::shared_ptr<Gate> m_gate{new Gate{QThread::currentThread()}};
  PluginHost::Token m_observer;
};
