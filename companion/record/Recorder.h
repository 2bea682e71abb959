#pragma once

#include <QObject>
#include <chrono>
#include <memory>
#include <vector>

#include "companion/record/HostStateTracker.h"
#include "companion/record/InputRecorder.h"
#include "companion/record/RecordWriter.h"
#include "companion/runtime/PluginHost.h"

// Writes the actions of a host and its user as the steps of a session, and the results as comments in
// between. Secrets are replaced before they are written. Create it on the main thread.
class Recorder final : public QObject {
  Q_OBJECT

 public:
  struct Options {
    RecordWriter::Clock clock;           // for pauses; any thread
    std::chrono::milliseconds slack{0};  // added to every pause
    HostStateTracker::Keychain keychain = HostStateTracker::Keychain::Followed;
    const void* hostPoster = nullptr;  // marks responses that the host itself posts
  };

  // The host is not owned and must outlive this. The sink gets the first line from within the constructor.
  Recorder(PluginHost* host, RecordWriter::Sink sink, const Options& options);
  ~Recorder() override;  // writes what is pending

 private:
  enum class Actor { Plugin, Host };

  void onEvent(const PluginEvent& event, PluginHost::Phase phase);
  void begin(Actor actor);
  void end();
  bool isPluginAtWork() const { return !m_actors.empty() && m_actors.back() == Actor::Plugin; }
  void writeHostChanges();

  // Shared with the observer, which may run on another thread while this ends.
  const std::shared_ptr<RecordWriter> m_writer;
  const void* const m_hostPoster;
  HostStateTracker m_state;
  InputRecorder m_input;
  std::vector<Actor> m_actors;  // of the calls under way, the innermost last
  PluginHost::Token m_observer;
};
