#include "KZPreference/panes/notifications/NotificationRow.h"

#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PreferenceTelemetry.h"
#include "KZPreference/layout/PrefsVisible.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/Accessible.h"
#include "platform/FrameLayout.h"

namespace {

const QString kDefaultMinutes = QStringLiteral("15");
constexpr double kMinutesTextX = secondMarginAtLeftEdge + popupButtonWidth + marginPopupButtonToLabel;

}  // namespace

NotificationRow::NotificationRow(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate,
                                 const Kind& kind)
    : View(frame), m_actionDelegate(actionDelegate), m_kind(kind) {
  initAlertsLable();
  initMinutes();
}

Size NotificationRow::sizeWith(const QString& minutesLabel) {
  return {.width = kMinutesTextX + commonLabelWidth(minutesLabel) + marginAtRightEdge, .height = 48};
}

void NotificationRow::initAlertsLable() {
  const Frame row = frameOf(this);
  m_checkbox = addCheckbox(this, "m_checkbox",
                           {marginAtLeftEdge, row.height - checkboxButtonHeight,
                            row.width - marginAtLeftEdge - marginAtRightEdge, checkboxButtonHeight},
                           m_kind.label);
  connect(m_checkbox, &QCheckBox::clicked, this, &NotificationRow::onButton);
}

void NotificationRow::initMinutes() {
  m_minutesBtn = addPopUpButton(
      this, "m_minutesBtn", {secondMarginAtLeftEdge, 0, popupButtonWidth, popupButtonHeight}, m_kind.minutes);
  connect(m_minutesBtn, &PopUpButton::chosen, this, &NotificationRow::onMinutesButton);
  // As wide as the row, so that the text is not cut before the pane's edge.
  StaticText* text = addLabel(
      this, "m_minutesTxt", {kMinutesTextX, 3, frameOf(this).width, commonLabelHeight}, m_kind.minutesLabel);
  setAccessibleLabel(m_minutesBtn, text);
}

void NotificationRow::setPreference(const Content& preference) {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "prefs:%@", preference);
  if (preference) m_prefs = *preference;
  const bool isOn = flagValue(m_prefs, m_kind.stateKey).value_or(true);
  const QString minutes = countValue(m_prefs, m_kind.minutesKey);
  m_checkbox->setChecked(isOn);
  m_minutesBtn->setTitle(minutes.isNull() ? kDefaultMinutes : minutes);
  m_minutesBtn->setEnabled(isOn);
}

void NotificationRow::onButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, m_kind.clickMethod}, "");
  const bool isOn = m_checkbox->isChecked();
  m_minutesBtn->setEnabled(isOn);
  (m_actionDelegate->*m_kind.report)(isOn, m_minutesBtn->title());
  if (m_kind.clickFeature.isNull()) return;
  PreferenceTelemetry::sharedInstance().writeFeatrueName(
      m_kind.clickFeature, TelemetryKey_Boolean,
      isOn ? TelemetryValue_BooleanTrue : TelemetryValue_BooleanFalse);
}

void NotificationRow::onMinutesButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, m_kind.minutesMethod}, "");
  const QString minutes = m_minutesBtn->title();
  (m_actionDelegate->*m_kind.report)(m_checkbox->isChecked(), minutes);
  if (m_kind.minutesFeature.isNull()) return;
  PreferenceTelemetry::sharedInstance().writeFeatrueName(m_kind.minutesFeature,
                                                         TelemetryKey_MeetingAlertMinutes, minutes);
}
