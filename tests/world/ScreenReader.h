#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

// An object in an accessible tree, and what stands below it.
struct AccessibleNode {
  QString role = {};
  QString name = {};
  QString description = {};
  QStringList labels = {};  // the names of the objects that label it
  bool isShowing = false;
  bool isFocusable = false;
  QList<AccessibleNode> children = {};

  // It and everything below it that is showing, in order.
  QList<AccessibleNode> allShowing() const;
};

// Assistive technology on a desktop's accessibility bus: reads trees and hears events.
class ScreenReader final : public QObject {
  Q_OBJECT

 public:
  explicit ScreenReader(const QString& sessionBus);
  ~ScreenReader() override;

  // The tree of the only application's window of that title; its role is empty when there is none.
  AccessibleNode window(const QString& title);

  // Waits until something of that role and name ("push button Apply") has the focus; otherwise the test
  // fails.
  bool expectFocus(const QString& roleAndName);
  // What has the focus after all events that are under way.
  QString focused();

  // Texts that were to be spoken, and texts that were entered or changed, from the start or from the last
  // forget().
  QStringList announced();
  QStringList texts();
  void forget();

 private Q_SLOTS:
  void stateChanged(const QDBusMessage& event);
  void announcement(const QDBusMessage& event);
  void textChanged(const QDBusMessage& event);

 private:
  QVariantList call(const QString& service, const QString& path, const QString& interface,
                    const QString& method, const QVariantList& arguments = {});
  QVariant property(const QString& service, const QString& path, const char* name);
  QString role(const QString& service, const QString& path);
  // Waits for events that are under way.
  void settle();
  AccessibleNode node(const QString& service, const QString& path);

  QDBusConnection m_bus;
  QString m_focused;
  QStringList m_announced;
  QStringList m_texts;
};
