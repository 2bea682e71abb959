#include "KZPreference/core/KZPreference.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZXmlDocument.h"

QString KZPreference::getBrennOI(const Dictionary& content) {
  return textValue(content, QStringLiteral("BrennOI"));
}

QString KZPreference::paserMeetingKey(const QString& xml) {
  return KZXmlDocument::firstText(xml, QStringLiteral("MivRa"),
                                  {QStringLiteral("MeetingInfo"), QStringLiteral("MeetingKey")});
}

QString KZPreference::hasHostInfo(const Dictionary& content) const {
  const QString xml = getBrennOI(content);
  if (xml.isNull()) return {};
  const QString meetingKey = paserMeetingKey(xml);
  return !meetingKey.isNull() && dictHostInfoWndController.contains(meetingKey) ? meetingKey : QString();
}

void KZPreference::releasePreferenceHostInfoWindowController(const QString& meetingKey) {
  if (!meetingKey.isNull()) dictHostInfoWndController.erase(meetingKey);
}

void KZPreference::releasePreferenceWindowController() {
  myWindowController.reset();
}

void KZPreference::onHandleClosePreferenceWindow() {
  if (myWindowController && myWindowController->isWindowVisible()) myWindowController->close();
}

void KZPreference::onHandleShowPreferenceWindow(const Dictionary& content, const QString& actionFrom) {
  const QString meetingKey = hasHostInfo(content);
  const auto found = dictHostInfoWndController.find(meetingKey);
  PreferencesWndController* known =
      found != dictHostInfoWndController.end() ? found->second.get() : myWindowController.get();
  if (known) {
    known->bringPreferenceWindowToTop();
  } else {
    myDictPreferenceInfo = content;
    showPreferenceWindow();
  }
  writeTelemetryData(TelemetryValue_FeatureName_Click_Preferences, actionFrom);
}
