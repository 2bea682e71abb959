#pragma once

#include <QStringList>
#include <QWidget>

#include "platform/WindowController.h"
#include "tests/kit/TestHost.h"

// The command for a changed source, as takeSent() returns it.
inline const QString kSourceChanged = QStringLiteral("18 {}");

// A host with helpers for the Meetings pane.
class PreferenceHost final : public TestHost {
 public:
  enum class Variant { SignedIn, Guest };

  quint64 sendPluginCommand(const KZEventIdentify& event, const Content& content) override;

  // The window on its Meetings pane, active.
  void openMeetings(Variant variant);
  void openMeetings();  // the variant that it has already
  void needCredential();
  void resolve(const Dictionary& result);
  void resolveWith(const QString& email);  // success, with that account
  void fail(const QString& message);
  // The Exchange client asks for a credential; invalid arguments are left out. Any thread.
  static void challenge(const QVariant& kind, const QVariant& warning = QVariant());

  template <typename T = QWidget>
  static T& control(const char* name) {
    // Other panes have controls of the same names.
    const auto* pane = window() ? window()->findChild<QWidget*>(QStringLiteral("m_meetingView")) : nullptr;
    T* found = pane ? pane->findChild<T*>(QLatin1String(name)) : nullptr;
    if (!found) qFatal("no control is called %s", name);
    return *found;
  }
  static void click(const char* name);
  static void type(const char* name, const QString& text);
  static void paste(const char* name, const QString& text);
  static void press(const char* name, Qt::Key key);

  QStringList takeTelemetry();  // feature names; they are not among what was sent

 private:
  QStringList m_telemetry;
};
