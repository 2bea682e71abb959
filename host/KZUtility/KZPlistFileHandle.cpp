#include "host/KZUtility/KZPlistFileHandle.h"

#include <algorithm>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/PropertyListFile.h"

namespace {

const QString kPreferenceInfo = QStringLiteral("preferenceInfo");
const QString kMeetingNotification = QStringLiteral("meetingNotification");
const QString kVideoDevice = QStringLiteral("videoDevice");
const QString kCalendarIntegration = QStringLiteral("calendarIntegration");
const QString kSiteName = QStringLiteral("siteName");
const QString kCdnUrl = QStringLiteral("cdnUrl");
const QString kUserName = QStringLiteral("userName");
const QString kDisplayName = QStringLiteral("displayName");

// Stricter than QVariant's comparison, for which true equals 1, also inside dictionaries and lists.
bool isSameValue(const QVariant& left, const QVariant& right) {
  if (left.metaType() != right.metaType()) return false;
  if (left.metaType() == QMetaType::fromType<Dictionary>()) {
    const Dictionary one = left.toMap();
    const Dictionary other = right.toMap();
    return one.keys() == other.keys() && std::equal(one.begin(), one.end(), other.begin(), isSameValue);
  }
  if (left.metaType() == QMetaType::fromType<QVariantList>()) {
    const QVariantList one = left.toList();
    const QVariantList other = right.toList();
    return std::ranges::equal(one, other, isSameValue);
  }
  return left == right;
}

}  // namespace

KZPlistFileHandle& KZPlistFileHandle::sharedInstance() {
  // Never destroyed: objects that outlive the application still read it.
  static KZPlistFileHandle* const handle = new KZPlistFileHandle;
  return *handle;
}

KZPlistFileHandle::KZPlistFileHandle() = default;
KZPlistFileHandle::~KZPlistFileHandle() = default;

bool KZPlistFileHandle::open(const QString& folder) {
  close();  // before the lock: the folder may be the same
  auto file = std::make_unique<PropertyListFile>(folder);
  if (!file->lock()) return false;
  m_file = std::move(file);
  m_values = m_file->read();
  m_setAsidePath = m_file->setAsidePath();
  reportProblem();
  return true;
}

void KZPlistFileHandle::close() {
  m_file.reset();
  m_values.clear();
  m_setAsidePath.clear();
  reportProblem();
}

QString KZPlistFileHandle::filePath() const {
  return m_file ? m_file->path() : QString();
}

KZSaveProblem KZPlistFileHandle::saveProblem() const {
  return m_file ? m_file->problem() : KZSaveProblem::None;
}

void KZPlistFileHandle::reportProblem() {
  if (m_problem == saveProblem()) return;
  m_problem = saveProblem();
  Q_EMIT saveProblemChanged(m_problem);
}

bool KZPlistFileHandle::isPlistKeyExist(const QString& key) const {
  return m_values.contains(key);
}

QVariant KZPlistFileHandle::value(const QString& key) const {
  return m_values.value(key);
}

void KZPlistFileHandle::setValue(const QString& key, const QVariant& value) {
  const QVariant before = m_values.value(key);
  const QVariant after = isMissing(value) ? QVariant() : value;
  const bool isChanged = !isSameValue(before, after);
  if (isChanged && after.isValid()) m_values.insert(key, after);
  if (isChanged && !after.isValid()) m_values.remove(key);
  // After a failure, even an unchanged value is written, to save what the file lacks.
  if (m_file && (isChanged || saveProblem() != KZSaveProblem::None)) {
    m_file->write(m_values);
    reportProblem();
  }
  if (isChanged) Q_EMIT valueChanged(key, before, after);
}

Content KZPlistFileHandle::dictionaryAt(const QString& key) const {
  const QVariant found = m_values.value(key);
  return found.metaType() == QMetaType::fromType<Dictionary>() ? Content(found.toMap()) : std::nullopt;
}

Content KZPlistFileHandle::preferenceInfo() const {
  return dictionaryAt(kPreferenceInfo);
}
Content KZPlistFileHandle::meetingNotification() const {
  return dictionaryAt(kMeetingNotification);
}
Content KZPlistFileHandle::videoDevice() const {
  return dictionaryAt(kVideoDevice);
}
Content KZPlistFileHandle::calendarIntegration() const {
  return dictionaryAt(kCalendarIntegration);
}

void KZPlistFileHandle::setPreferenceInfo(const Dictionary& info) {
  setValue(kPreferenceInfo, info);
}
void KZPlistFileHandle::setMeetingNotification(const Dictionary& settings) {
  setValue(kMeetingNotification, settings);
}
void KZPlistFileHandle::setVideoDevice(const Dictionary& settings) {
  setValue(kVideoDevice, settings);
}
void KZPlistFileHandle::setCalendarIntegration(const Dictionary& settings) {
  setValue(kCalendarIntegration, settings);
}

QString KZPlistFileHandle::siteName() const {
  return textValue(m_values, kSiteName);
}
QString KZPlistFileHandle::cdnUrl() const {
  return textValue(m_values, kCdnUrl);
}
QString KZPlistFileHandle::userName() const {
  return textValue(m_values, kUserName);
}
QString KZPlistFileHandle::displayName() const {
  return textValue(m_values, kDisplayName);
}

void KZPlistFileHandle::setSiteName(const QString& name) {
  setValue(kSiteName, name);
}
void KZPlistFileHandle::setCdnUrl(const QString& url) {
  setValue(kCdnUrl, url);
}
void KZPlistFileHandle::setUserName(const QString& name) {
  setValue(kUserName, name);
}
void KZPlistFileHandle::setDisplayName(const QString& name) {
  setValue(kDisplayName, name);
}

bool KZPlistFileHandle::launchAtLogin() const {
  return isSet(m_values, KZLaunchAtLogin);
}
bool KZPlistFileHandle::enableOutlookKZPlugin() const {
  return isSet(m_values, KZEnableOutlookKZPlugin);
}
void KZPlistFileHandle::setLaunchAtLogin(bool isOn) {
  setValue(KZLaunchAtLogin, isOn);
}
void KZPlistFileHandle::setEnableOutlookKZPlugin(bool isOn) {
  setValue(KZEnableOutlookKZPlugin, isOn);
}
