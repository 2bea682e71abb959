#pragma once

#include <QApplication>
#include <QStringList>
#include <QToolButton>
#include <QWidget>
#include <vector>

#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZNotificationCenter.h"
#include "host/KZFoundation/KZPluginCoreMgr.h"

// How PreferenceHost notes that the host is told of a changed source.
inline const QString kSourceChanged = QStringLiteral("18 {}");

// A host in the test's own process: an empty store, an empty keychain, and a record of everything that the
// plug-in sends and traces. The plug-in is shut down with it.
class PreferenceHost final : public KZPluginDelegate {
 public:
  enum class Variant { SignedIn, Guest };

  PreferenceHost();
  ~PreferenceHost() override;

  quint64 sendPluginCommand(const KZEventIdentify& event, const Content& content) override;

  void command(KZCommand number, const Content& content = std::nullopt);
  void notify(KZNotify index, const Content& content);

  // The window on its Meetings pane, active.
  void openMeetings(Variant variant);
  void openMeetings();  // the variant that it has already
  static QWidget* window();
  void needCredential();
  void resolve(const Dictionary& result);
  void resolveWith(const QString& email);  // success, with that account
  void fail(const QString& message);

  template <typename T = QWidget>
  static T& control(const char* name) {
    // Other panes have controls of the same names.
    const auto* pane = window() ? window()->findChild<QWidget*>(QStringLiteral("m_meetingView")) : nullptr;
    T* found = pane ? pane->findChild<T*>(QLatin1String(name)) : nullptr;
    if (!found) qFatal("no control is called %s", name);
    return *found;
  }
  // Real input: into the middle of the control, and key by key into a field whose old text is replaced.
  static void click(const char* name);
  static void type(const char* name, const QString& text);
  static void paste(const char* name, const QString& text);
  static void press(const char* name, Qt::Key key);

  // Numbers and contents since the last call, without telemetry: `15 {"QRT_ExchangeDiscover_Email":"a@b"}`.
  QStringList takeSent();
  QStringList takeTelemetry();  // feature names
  const QStringList& trace() const { return m_trace; }

 private:
  KZPluginCoreMgr* m_core;
  QStringList m_sent;
  QStringList m_telemetry;
  QStringList m_trace;
};
