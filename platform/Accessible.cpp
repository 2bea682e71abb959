#include "platform/Accessible.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QVariant>
#include <chrono>

#include "platform/View.h"

namespace {

using namespace std::chrono_literals;

constexpr char kAccessibleRoleProperty[] = "platformAccessibleRole";

class RoleAccessible final : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QString text(QAccessible::Text kind) const override {
    const QString known = QAccessibleWidget::text(kind);
    const auto* label = qobject_cast<const QLabel*>(widget());
    return kind == QAccessible::Name && known.isEmpty() && label ? label->text() : known;
  }
};

QAccessibleInterface* accessibleWithRole(const QString& /*className*/, QObject* object) {
  // A view has an accessible of its own, which asks for the role.
  if (!object || qobject_cast<View*>(object)) return nullptr;
  const QAccessible::Role role = accessibleRoleOf(object);
  return role == QAccessible::NoRole ? nullptr : new RoleAccessible(static_cast<QWidget*>(object), role);
}

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)

// Screen readers ask for the text only after they were told, and may be slow.
constexpr auto kAnnouncementTime = 10s;

// Without an event for announcements: screen readers speak a notification that appears.
class AnnouncementAccessible final : public QAccessibleObject {
 public:
  AnnouncementAccessible(QObject* announcement, QWidget* source, QString text)
      : QAccessibleObject(announcement), m_source(source), m_text(std::move(text)) {}

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(
        m_source ? m_source->window() : static_cast<QObject*>(QCoreApplication::instance()));
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? m_text : QString();
  }
  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override { return {}; }

 private:
  QPointer<QWidget> m_source;
  QString m_text;
};

#endif

}  // namespace

QAccessible::Role accessibleRoleOf(const QObject* view) {
  return QAccessible::Role(view->property(kAccessibleRoleProperty).toInt());
}

void setAccessibleRole(QWidget* view, QAccessible::Role role) {
  QAccessible::installFactory(accessibleWithRole);  // once: it ignores one that it has
  view->setProperty(kAccessibleRoleProperty, int(role));
  renewAccessible(view);
}

void renewAccessible(QWidget* view) {
  QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(view)));
}

void setAccessibleLabel(QWidget* view, QLabel* label) {
  // Some screen readers read a pop-up button's title as its name; they find the label through the buddy.
  label->setBuddy(view);
  if (!qobject_cast<QLabel*>(view)) view->setAccessibleName(label->text());
}

void announce(QWidget* source, const QString& text) {
  if (!QAccessible::isActive() || text.isEmpty()) return;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
  QAccessibleAnnouncementEvent event(source, text);
#else
  auto* announcement = new QObject(QCoreApplication::instance());
  QTimer::singleShot(kAnnouncementTime, announcement, &QObject::deleteLater);
  QAccessible::registerAccessibleInterface(new AnnouncementAccessible(announcement, source, text));
  QAccessibleEvent event(announcement, QAccessible::ObjectShow);
#endif
  QAccessible::updateAccessibility(&event);
}
