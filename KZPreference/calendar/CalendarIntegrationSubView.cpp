#include "KZPreference/calendar/CalendarIntegrationSubView.h"

#include <QLineEdit>
#include <QRadioButton>
#include <array>

#include "KZPreference/layout/Localization.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/FrameLayout.h"

namespace {

constexpr double kFirstButtonBelowTop = 50;
constexpr double kButtonPitch = 26;

}  // namespace

CalendarIntegrationSubView::CalendarIntegrationSubView(const Frame& frame,
                                                       PreferenceActionDelegateProtocol* actionDelegate)
    : CalendarIntegrationGroup(frame, actionDelegate) {
  initControls();
}

void CalendarIntegrationSubView::initRadioButtons() {
  m_noneRadioBtn = addRadioButton(QStringLiteral("m_noneRadioBtn"), 0, localizedString("None"));
  m_mivraRadioBtn = addRadioButton(QStringLiteral("m_mivraRadioBtn"), 1, localizedString("Mivra"));
  m_googleRadioBtn = addRadioButton(QStringLiteral("m_googleRadioBtn"), 2, localizedString("Google"));
  m_outlookRadioBtn =
      addRadioButton(QStringLiteral("m_outlookRadioBtn"), 3, localizedString("Microsoft Outlook"));
  // Google is not offered until an option record says so.
  m_googleRadioBtn->setEnabled(false);
  for (const QRadioButton* button : radioButtons())
    connect(button, &QRadioButton::toggled, this, &CalendarIntegrationSubView::updateTabStop);
  connect(m_noneRadioBtn, &QRadioButton::clicked, this, &CalendarIntegrationSubView::onNoneButton);
  connect(m_mivraRadioBtn, &QRadioButton::clicked, this, &CalendarIntegrationSubView::onMivRaButton);
  connect(m_googleRadioBtn, &QRadioButton::clicked, this, &CalendarIntegrationSubView::onGoogleButton);
  connect(m_outlookRadioBtn, &QRadioButton::clicked, this, &CalendarIntegrationSubView::onOutlookButton);
}

std::array<QRadioButton*, 4> CalendarIntegrationSubView::radioButtons() const {
  return {m_noneRadioBtn, m_mivraRadioBtn, m_googleRadioBtn, m_outlookRadioBtn};
}

// Tab stops at the source that is on; the arrows go on from there.
void CalendarIntegrationSubView::updateTabStop(bool isOn) {
  if (!isOn) return;
  for (QRadioButton* button : radioButtons())
    button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

void CalendarIntegrationSubView::setCalendarPreference(const Dictionary& preference) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "prefs:%@", preference);
  updateByAppliedState();
  const QString source = textValue(preference, kKZCalendarIntegrationSource);
  if (isEqualText(source, kKZCalendarIntegrationSourceMivRa)) return enableMivRa();
  if (isEqualText(source, kKZCalendarIntegrationSourceGoogle)) return enableGoogle();
  if (isEqualText(source, kKZCalendarIntegrationSourceNone)) return enableNone();
  enableOutlook();
}

void CalendarIntegrationSubView::setCalendarIntergrationOption(const KZCalendarIntegrationOption& option) {
  m_noneRadioBtn->setEnabled(option.isEnableNone);
  m_googleRadioBtn->setEnabled(option.isEnableGoogle);
  relayoutButtons();
}

void CalendarIntegrationSubView::relayoutButtons() {
  double y = frameOf(this).height - kFirstButtonBelowTop;
  const auto place = [&y](QRadioButton* button) {
    Frame frame = frameOf(button);
    frame.y = y;
    setFrame(button, frame);
    y -= kButtonPitch;
  };
  const auto placeOrHide = [&place](QRadioButton* button) {
    button->isEnabled() ? place(button) : button->hide();
  };
  placeOrHide(m_noneRadioBtn);
  place(m_mivraRadioBtn);
  placeOrHide(m_googleRadioBtn);
  place(m_outlookRadioBtn);
  relayoutCredentialControls();
}

void CalendarIntegrationSubView::updateByAppliedState() {
  CalendarIntegrationGroup::updateByAppliedState();
  if (m_mivraRadioBtn->isChecked()) m_message.hideMessage();
}

void CalendarIntegrationSubView::enableWithoutAccount(QRadioButton* button) {
  if (!button->isEnabled()) return;
  button->setChecked(true);
  disableCredentialControls();
  m_message.hideMessage();
}

void CalendarIntegrationSubView::enableNone() {
  enableWithoutAccount(m_noneRadioBtn);
}
void CalendarIntegrationSubView::enableMivRa() {
  enableWithoutAccount(m_mivraRadioBtn);
}
void CalendarIntegrationSubView::enableGoogle() {
  enableWithoutAccount(m_googleRadioBtn);
}

void CalendarIntegrationSubView::enableOutlook() {
  if (m_outlookRadioBtn->isEnabled()) CalendarIntegrationGroup::enableOutlook();
}

void CalendarIntegrationSubView::onNoneButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  enableNone();
  reportSource(kKZCalendarIntegrationSourceNone, TelemetryValue_FeatureName_Click_CalendarSourceNone);
}

void CalendarIntegrationSubView::onMivRaButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  enableMivRa();
  reportSource(kKZCalendarIntegrationSourceMivRa, TelemetryValue_FeatureName_Click_CalendarSourceMivra);
}

void CalendarIntegrationSubView::onGoogleButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  enableGoogle();
  reportSource(kKZCalendarIntegrationSourceGoogle, TelemetryValue_FeatureName_Click_CalendarSourceGoogle);
}

QString CalendarIntegrationSubView::calendarSourceByButton() const {
  const auto sources = std::to_array<std::pair<const QRadioButton*, QString>>(
      {{m_mivraRadioBtn, kKZCalendarIntegrationSourceMivRa},
       {m_outlookRadioBtn, kKZCalendarIntegrationSourceOutlook},
       {m_googleRadioBtn, kKZCalendarIntegrationSourceGoogle},
       {m_noneRadioBtn, kKZCalendarIntegrationSourceNone}});
  for (const auto& [button, source] : sources)
    if (button->isChecked()) return source;
  return {};
}

void CalendarIntegrationSubView::windowDidBecomeKey() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_sourceOnWindowOpening = calendarSourceByButton();
}

void CalendarIntegrationSubView::reportSourceOnClose() {
  m_isOpeningByDashboard = false;
  if (isEqualText(calendarSourceByButton(), m_sourceOnWindowOpening)) return;
  m_actionDelegate->calendarIntergrationSourceChanged();
}
