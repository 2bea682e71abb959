#include "companion/app/DesktopColors.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QStyleHints>

namespace {

const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kSettings = QStringLiteral("org.freedesktop.portal.Settings");
const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kColorScheme = QStringLiteral("color-scheme");
const QString kContrast = QStringLiteral("contrast");

// The portal's numbers; any other one means that the desktop does not mind.
constexpr uint kPrefersDark = 1;
constexpr uint kPrefersLight = 2;
constexpr uint kPrefersContrast = 1;

bool isContrastScheme(LookScheme scheme) {
  return scheme == LookScheme::HighContrastLight || scheme == LookScheme::HighContrastDark;
}

bool isDarkScheme(LookScheme scheme) {
  return scheme == LookScheme::Dark || scheme == LookScheme::HighContrastDark;
}

}  // namespace

DesktopColors::DesktopColors() {
  const LookScheme theme = lookSchemeFor(QGuiApplication::palette());
  m_isThemeDark = isDarkScheme(theme);
  m_hasThemeContrast = isContrastScheme(theme);
}

LookScheme DesktopColors::scheme() const {
  const bool isDark = m_isDark.value_or(m_isThemeDark);
  if (!m_hasContrast && !m_hasThemeContrast) return isDark ? LookScheme::Dark : LookScheme::Light;
  return isDark ? LookScheme::HighContrastDark : LookScheme::HighContrastLight;
}

void DesktopColors::follow(QDBusConnection bus) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
  connect(QGuiApplication::styleHints(), &QStyleHints::colorSchemeChanged, this, &DesktopColors::takeTheme);
#endif
  if (!bus.isConnected()) return;
  // Whoever the sender is: to look up the portal's owner, Qt would wait for the bus.
  bus.connect({}, kPath, kSettings, QStringLiteral("SettingChanged"), this, SLOT(takeChange(QDBusMessage)));
  QDBusMessage call = QDBusMessage::createMethodCall(kPortal, kPath, kSettings, QStringLiteral("ReadAll"));
  call << QStringList{kAppearance};
  auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    answer->deleteLater();
    const QDBusMessage reply = QDBusPendingReply<>(*answer).reply();
    if (answer->isError() || reply.signature() != QLatin1String("a{sa{sv}}")) return;
    take(qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().constFirst()).value(kAppearance));
  });
}

void DesktopColors::takeChange(const QDBusMessage& change) {
  if (change.signature() != QLatin1String("ssv")) return;
  const QVariantList arguments = change.arguments();
  if (arguments.at(0) != kAppearance) return;
  take({{arguments.at(1).toString(), arguments.at(2).value<QDBusVariant>().variant()}});
}

void DesktopColors::take(const QVariantMap& settings) {
  const LookScheme before = scheme();
  if (settings.contains(kColorScheme)) {
    const uint preference = settings.value(kColorScheme).toUInt();
    m_isDark.reset();
    if (preference == kPrefersDark || preference == kPrefersLight) m_isDark = preference == kPrefersDark;
  }
  if (settings.contains(kContrast)) m_hasContrast = settings.value(kContrast).toUInt() == kPrefersContrast;
  if (scheme() != before) Q_EMIT changed();
}

void DesktopColors::takeTheme() {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
  const Qt::ColorScheme theme = QGuiApplication::styleHints()->colorScheme();
  if (theme == Qt::ColorScheme::Unknown) return;
  const LookScheme before = scheme();
  m_isThemeDark = theme == Qt::ColorScheme::Dark;
  if (scheme() != before) Q_EMIT changed();
#endif
}
