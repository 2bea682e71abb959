#include "KZPreference/panes/notifications/NotificationRow.h"

#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "platform/FrameLayout.h"

namespace {

const QString kDefaultMinutes = QStringLiteral("15");

}  // namespace

NotificationRow::NotificationRow(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate,
                                 const Kind& kind)
    : View(frame), m_actionDelegate(actionDelegate), m_kind(kind) {
  initAlertsLable();
  initMinutes();
}

void NotificationRow::initAlertsLable() {
  const Frame row = frameOf(this);
  m_checkbox = addCheckbox(this, QStringLiteral("m_checkbox"),
                           {marginAtLeftEdge, row.height - checkboxButtonHeight,
                            row.width - marginAtLeftEdge - marginAtRightEdge, checkboxButtonHeight},
                           m_kind.label);
  connect(m_checkbox, &QCheckBox::clicked, this, &NotificationRow::onButton);
}

void NotificationRow::initMinutes() {
  m_minutesBtn =
      addPopUpButton(this, QStringLiteral("m_minutesBtn"),
                     {secondMarginAtLeftEdge, 0, popupButtonWidth, popupButtonHeight}, m_kind.minutes);
  m_minutesBtn->setAccessibleName(m_kind.minutesLabel);
  connect(m_minutesBtn, &PopUpButton::chosen, this, &NotificationRow::onMinutesButton);
  // The text may use the whole row's width: what it measures is the font's business.
  addStaticText(this, {.name = QStringLiteral("m_minutesTxt"),
                       .frame = {secondMarginAtLeftEdge + popupButtonWidth + marginPopupButtonToLabel, 3,
                                 frameOf(this).width, commonLabelHeight},
                       .text = m_kind.minutesLabel,
                       .role = FontRole::Label,
                       .size = labelFontSize});
}

void NotificationRow::setPreference(const Content& preference) {
  if (preference) m_prefs = *preference;
  const bool isOn = flagValue(m_prefs, m_kind.stateKey).value_or(true);
  const QString minutes = textValue(m_prefs, m_kind.minutesKey);
  m_checkbox->setChecked(isOn);
  m_minutesBtn->setTitle(minutes.isNull() ? kDefaultMinutes : minutes);
  m_minutesBtn->setEnabled(isOn);
}

void NotificationRow::reportClick(bool) {}
void NotificationRow::reportMinutes(const QString&) {}

void NotificationRow::onButton() {
  const bool isOn = m_checkbox->isChecked();
  m_minutesBtn->setEnabled(isOn);
  report(isOn, m_minutesBtn->title());
  reportClick(isOn);
}

void NotificationRow::onMinutesButton() {
  report(m_checkbox->isChecked(), m_minutesBtn->title());
  reportMinutes(m_minutesBtn->title());
}
